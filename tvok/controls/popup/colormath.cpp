#include "tvok/controls/popup/colormath.h"

#include <algorithm>

#include "tvok/records/numeric.h"

namespace tvok::popup {
namespace {

constexpr std::int32_t kScale = 240;
constexpr std::int32_t kThird = kScale / 3;
constexpr std::int32_t kSixth = kScale / 6;

/// A share of 0 to 240 as one of 0 to 255.
std::int32_t Byte(double share) {
    return RoundToInt32(std::clamp(share * 256 / kScale, 0.0, 255.0));
}

} // namespace

OLE_COLOR HslToRgb(std::int32_t hue, std::int32_t saturation, std::int32_t lightness) {
    if (saturation == 0) {
        const std::int32_t grey = Byte(lightness);
        return Rgb(grey, grey, grey);
    }
    const double s = saturation;
    const double l = lightness;
    const double high = lightness <= kScale / 2 ? l * (kScale + s) / kScale : l + s - l * s / kScale;
    const std::int32_t m1 = RoundToInt32(2 * l - high);
    const std::int32_t m2 = RoundToInt32(high);
    return Rgb(Byte(HueToValue(m1, m2, hue + kThird)), Byte(HueToValue(m1, m2, hue)),
               Byte(HueToValue(m1, m2, hue - kThird)));
}

std::int32_t HueToValue(std::int32_t m1, std::int32_t m2, std::int32_t hue) {
    if (hue < 0) hue += kScale;
    if (hue > kScale) hue -= kScale;
    const double rise = m2 - m1;
    if (hue < kSixth) return RoundToInt32(m1 + rise * hue / kScale * 6);
    if (hue < kScale / 2) return m2;
    if (hue < 2 * kThird) return RoundToInt32(m1 + (2 * kThird - hue) * rise / kScale * 6);
    return m1;
}

} // namespace tvok::popup
