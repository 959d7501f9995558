#include "tvok/host/desktop/displays/Scaling.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace tvok::soft {

namespace {

/// Two neighbours in a row or a column, and the weight of the second in 256ths.
struct Sample {
    std::int32_t first = 0;
    std::int32_t second = 0;
    std::uint32_t weight = 0;
};

Sample SampleAt(std::int32_t place, float scale, std::int32_t size) {
    const double center = (place + 0.5) / static_cast<double>(scale);
    if (scale == std::floor(scale)) {
        const std::int32_t nearest = std::min(static_cast<std::int32_t>(center), size - 1);
        return {nearest, nearest, 0};
    }
    const double before = std::max(center - 0.5, 0.0);
    const auto first = std::min(static_cast<std::int32_t>(before), size - 1);
    return {first, std::min(first + 1, size - 1),
            static_cast<std::uint32_t>((before - std::floor(before)) * 256)};
}

/// Both pixels mixed, two channels at a time.
Pixel Mix(Pixel a, Pixel b, std::uint32_t weightOfB) {
    constexpr Pixel even = 0x00FF00FFu;
    const std::uint32_t weightOfA = 256 - weightOfB;
    const Pixel redBlue = ((a & even) * weightOfA + (b & even) * weightOfB) >> 8 & even;
    const Pixel green = ((a >> 8 & 0xFFu) * weightOfA + (b >> 8 & 0xFFu) * weightOfB) & 0xFF00u;
    return redBlue | green;
}

void CopyRows(const Surface& from, const tvok_Rect& rect, Pixel* to, std::size_t pitch) {
    const auto left = static_cast<std::size_t>(rect.Left);
    const auto bytes = static_cast<std::size_t>(rect.Right - rect.Left) * sizeof(Pixel);
    for (std::int32_t y = rect.Top; y < rect.bottom; ++y)
        std::memcpy(to + static_cast<std::size_t>(y) * pitch + left, from.Row(y) + left, bytes);
}

} // namespace

std::int32_t ToScreen(std::int32_t pixels, float scale) {
    return static_cast<std::int32_t>(std::lround(static_cast<double>(pixels) * static_cast<double>(scale)));
}

std::int32_t FromScreen(std::int32_t pixels, float scale) {
    return static_cast<std::int32_t>(std::floor(static_cast<double>(pixels) / static_cast<double>(scale)));
}

tvok_Rect ScaledRect(const tvok_Rect& rect, float scale, std::int32_t width, std::int32_t height) {
    const double factor = static_cast<double>(scale);
    const double margin = scale == std::floor(scale) ? 0 : 1; // blending reaches one desktop pixel further
    const auto low = [&](std::int32_t place) {
        return std::max(static_cast<std::int32_t>(std::floor((place - margin) * factor)), 0);
    };
    const auto high = [&](std::int32_t place, std::int32_t limit) {
        return std::min(static_cast<std::int32_t>(std::ceil((place + margin) * factor)), limit);
    };
    return {low(rect.Left), low(rect.Top), high(rect.Right, width), high(rect.bottom, height)};
}

void ScalePixels(const Surface& from, float scale, const tvok_Rect& rect, Pixel* to, std::size_t pitch) {
    if (from.Width() <= 0 || from.Height() <= 0) return;
    const auto reach = [&](std::int32_t size) {
        return static_cast<std::int32_t>(std::ceil(static_cast<double>(size) * static_cast<double>(scale)));
    };
    const tvok_Rect area{std::max(rect.Left, 0), std::max(rect.Top, 0),
                         std::min(rect.Right, reach(from.Width())),
                         std::min(rect.bottom, reach(from.Height()))};
    if (area.Left >= area.Right || area.Top >= area.bottom) return;
    if (scale == 1) return CopyRows(from, area, to, pitch);

    std::vector<Sample> columns;
    for (std::int32_t x = area.Left; x < area.Right; ++x) columns.push_back(SampleAt(x, scale, from.Width()));
    for (std::int32_t y = area.Top; y < area.bottom; ++y) {
        const Sample row = SampleAt(y, scale, from.Height());
        const Pixel* upper = from.Row(row.first);
        const Pixel* lower = from.Row(row.second);
        Pixel* target = to + static_cast<std::size_t>(y) * pitch + static_cast<std::size_t>(area.Left);
        for (const Sample& column : columns)
            *target++ = Mix(Mix(upper[column.first], upper[column.second], column.weight),
                            Mix(lower[column.first], lower[column.second], column.weight), row.weight);
    }
}

} // namespace tvok::soft
