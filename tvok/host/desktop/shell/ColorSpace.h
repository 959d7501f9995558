/// Colours as hue, saturation and lightness.
#pragma once

#include <cstdint>

#include "tvok/records/tvok_declare.h"

namespace tvok::soft {

/// Each from 0 to 1. A hue of 0 and of 1 is red; without saturation it has no effect.
struct HslColor {
    double hue = 0;
    double saturation = 0;
    double lightness = 0;
};

HslColor ToHsl(OLE_COLOR color);   ///< Of 0x00BBGGRR.
OLE_COLOR FromHsl(HslColor color); ///< Components are rounded; values out of range are limited.

constexpr std::int32_t RedOf(OLE_COLOR color) {
    return color & 0xFF;
}
constexpr std::int32_t GreenOf(OLE_COLOR color) {
    return color >> 8 & 0xFF;
}
constexpr std::int32_t BlueOf(OLE_COLOR color) {
    return color >> 16 & 0xFF;
}
constexpr OLE_COLOR FromRgb(std::int32_t red, std::int32_t green, std::int32_t blue) {
    return red | green << 8 | blue << 16;
}

} // namespace tvok::soft
