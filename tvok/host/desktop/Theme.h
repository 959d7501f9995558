/// How the desktop looks: its colours, metrics and default font.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tvok {

/// A plain value; change what you like and give it to the desktop.
struct Theme {
    std::string name;
    std::array<std::int32_t, 25> colors{}; ///< By system colour index, 0x00BBGGRR.
    std::string fontName = "DejaVu Sans";  ///< The default GUI font.
    float fontPoints = 9;
    std::int32_t scrollBarSize = 17; ///< Width of a vertical bar and height of a horizontal one, in pixels.
    std::int32_t dotsPerInch = 96;

    static const Theme& Classic();
    static const Theme& Dark();
    static const Theme& HighContrast();
    /// "classic", "dark" or "contrast". Throws `Error` that lists these for any other name.
    static const Theme& ByName(std::string_view name);
};

} // namespace tvok
