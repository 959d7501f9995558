/// How the desktop looks: its colours, metrics and default font.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tvok {

/// A plain value; change what you like and give it to the desktop.
struct Theme {
    std::string name;                      ///< What a program calls it.
    std::array<std::int32_t, 25> colors{}; ///< By system colour index, 0x00BBGGRR.
    std::string fontName = "DejaVu Sans";  ///< The default GUI font.
    float fontPoints = 9;                  ///< Its size.
    std::int32_t scrollBarSize = 17; ///< Width of a vertical bar and height of a horizontal one, in pixels.
    std::int32_t dotsPerInch = 96;   ///< Pixels of a font of 72 points.

    static const Theme& Classic();      ///< The default: grey faces, blue selection.
    static const Theme& Dark();         ///< Light text on dark windows.
    static const Theme& HighContrast(); ///< Few and strong colours.
    /// "classic", "dark" or "contrast". Throws `Error` that lists these for any other name.
    static const Theme& ByName(std::string_view name);
};

} // namespace tvok
