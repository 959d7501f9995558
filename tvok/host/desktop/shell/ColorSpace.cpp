#include "tvok/host/desktop/shell/ColorSpace.h"

#include <algorithm>
#include <cmath>

namespace tvok::soft {

namespace {

/// Which sixth of the circle the hue lies in, from the largest component and the other two.
double HueOf(double red, double green, double blue, double largest, double range) {
    if (largest == red) return std::fmod((green - blue) / range + 6, 6) / 6;
    if (largest == green) return ((blue - red) / range + 2) / 6;
    return ((red - green) / range + 4) / 6;
}

/// A component of a hue: 0 to 1 to 0 over the circle, `turn` before the component's own place.
double Component(const HslColor& color, double turn) {
    const double range = (1 - std::abs(2 * color.lightness - 1)) * color.saturation;
    const double place = std::fmod(color.hue * 6 + turn, 6);
    const double share = std::clamp(std::abs(place - 3) - 1, 0.0, 1.0);
    return color.lightness + range * (share - 0.5);
}

std::int32_t Byte(double component) {
    return static_cast<std::int32_t>(std::lround(std::clamp(component, 0.0, 1.0) * 255));
}

} // namespace

HslColor ToHsl(OLE_COLOR color) {
    const double red = RedOf(color) / 255.0;
    const double green = GreenOf(color) / 255.0;
    const double blue = BlueOf(color) / 255.0;
    const auto [smallest, largest] = std::minmax({red, green, blue});
    const double range = largest - smallest;
    const double lightness = (largest + smallest) / 2;
    if (range == 0) return {0, 0, lightness};
    return {HueOf(red, green, blue, largest, range), range / (1 - std::abs(2 * lightness - 1)), lightness};
}

OLE_COLOR FromHsl(HslColor color) {
    color.hue = std::clamp(color.hue, 0.0, 1.0);
    color.saturation = std::clamp(color.saturation, 0.0, 1.0);
    color.lightness = std::clamp(color.lightness, 0.0, 1.0);
    return FromRgb(Byte(Component(color, 0)), Byte(Component(color, 4)), Byte(Component(color, 2)));
}

} // namespace tvok::soft
