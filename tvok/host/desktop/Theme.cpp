#include "tvok/host/desktop/Theme.h"

#include <utility>

#include "tvok/records/Error.h"

namespace tvok {

namespace {

enum Look : std::size_t { classicLook, darkLook, contrastLook, lookCount };

/// The system colours by their index, as 0xRRGGBB: classic, dark, high contrast.
constexpr std::array<std::array<std::uint32_t, lookCount>, 25> systemColors{{
    {{0xEDEDED, 0x26262A, 0x000000}}, // scroll bar
    {{0x3A6EA5, 0x101820, 0x000000}}, // desktop
    {{0x99B4D1, 0x2B4764, 0x3A0078}}, // active caption
    {{0xBFCDDB, 0x303036, 0x000000}}, // inactive caption
    {{0xF4F4F4, 0x2B2B2F, 0x000000}}, // menu
    {{0xFFFFFF, 0x1E1E20, 0x000000}}, // window
    {{0x646464, 0x78787E, 0xFFFFFF}}, // window frame
    {{0x000000, 0xE8E8E8, 0xFFFFFF}}, // menu text
    {{0x000000, 0xE8E8E8, 0xFFFFFF}}, // window text
    {{0x000000, 0xFFFFFF, 0xFFFFFF}}, // caption text
    {{0xB4B4B4, 0x4A4A50, 0x1AEBFF}}, // active border
    {{0xE8ECF2, 0x3A3A40, 0xFFFFFF}}, // inactive border
    {{0xABABAB, 0x161618, 0x000000}}, // work space
    {{0x0A64C8, 0x2A6AB0, 0x1AEBFF}}, // highlight
    {{0xFFFFFF, 0xFFFFFF, 0x000000}}, // highlight text
    {{0xDCDCDC, 0x38383C, 0x000000}}, // button face
    {{0xA0A0A0, 0x232326, 0x9A9A9A}}, // button shadow
    {{0x6D6D6D, 0xA2A2A8, 0x3FF23F}}, // grey text
    {{0x000000, 0xF0F0F0, 0xFFFFFF}}, // button text
    {{0x434E54, 0xB4B4BA, 0xFFFFFF}}, // inactive caption text
    {{0xFFFFFF, 0x66666C, 0xFFFFFF}}, // button highlight
    {{0x606060, 0x0C0C0E, 0xFFFFFF}}, // dark shadow
    {{0xE6E6E6, 0x48484E, 0xC8C8C8}}, // 3-D light
    {{0x000000, 0xF0F0E0, 0xFFFF00}}, // information text
    {{0xFFFFE1, 0x3C3C2C, 0x000000}}, // information background
}};

constexpr std::int32_t ColorValue(std::uint32_t rgb) {
    return static_cast<std::int32_t>((rgb & 0xFFu) << 16 | (rgb & 0xFF00u) | (rgb >> 16 & 0xFFu));
}

Theme Make(std::string name, Look look) {
    Theme theme;
    theme.name = std::move(name);
    for (std::size_t i = 0; i < systemColors.size(); ++i) theme.colors[i] = ColorValue(systemColors[i][look]);
    return theme;
}

} // namespace

const Theme& Theme::Classic() {
    static const Theme theme = Make("classic", classicLook);
    return theme;
}

const Theme& Theme::Dark() {
    static const Theme theme = Make("dark", darkLook);
    return theme;
}

const Theme& Theme::HighContrast() {
    static const Theme theme = Make("contrast", contrastLook);
    return theme;
}

const Theme& Theme::ByName(std::string_view name) {
    for (const Theme* theme : {&Classic(), &Dark(), &HighContrast()})
        if (theme->name == name) return *theme;
    throw Error("no theme is named \"" + std::string(name) + "\"; the themes are classic, dark and contrast");
}

} // namespace tvok
