/// Hue, saturation and lightness to a plain colour, as the popup's palettes are made.
#pragma once

#include <cstdint>

#include "tvok/records/tvok_declare.h"

namespace tvok::popup {

/// All three from 0 to 240; the result is 0x00BBGGRR. Halves are rounded to the even neighbour on the way, so
/// the colours are the same on every machine.
OLE_COLOR HslToRgb(std::int32_t hue, std::int32_t saturation, std::int32_t lightness);

/// The share of one of the three colours, 0 to 240, at `hue`; a hue outside 0 to 240 is taken round once.
std::int32_t HueToValue(std::int32_t m1, std::int32_t m2, std::int32_t hue);

/// The colour of three shares from 0 to 255.
constexpr OLE_COLOR Rgb(std::int32_t red, std::int32_t green, std::int32_t blue) {
    return red | green << 8 | blue << 16;
}

} // namespace tvok::popup
