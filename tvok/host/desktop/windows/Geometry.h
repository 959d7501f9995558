/// Rectangles of windows.
#pragma once

#include <algorithm>
#include <cstdint>

#include "tvok/host/constants.h"
#include "tvok/host/desktop/pixels/kernels.h"

namespace tvok::soft {

/// The widths of the four sides of a frame.
struct Insets {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
    friend bool operator==(const Insets&, const Insets&) = default;
};

constexpr std::int32_t WidthOf(const tvok_Rect& rect) {
    return rect.Right - rect.Left;
}
constexpr std::int32_t HeightOf(const tvok_Rect& rect) {
    return rect.bottom - rect.Top;
}
constexpr bool IsEmpty(const tvok_Rect& rect) {
    return rect.Left >= rect.Right || rect.Top >= rect.bottom;
}
constexpr bool Contains(const tvok_Rect& rect, host::Point point) {
    return point.x >= rect.Left && point.x < rect.Right && point.y >= rect.Top && point.y < rect.bottom;
}
/// The nearest value that 32 bits hold.
constexpr std::int32_t Saturated(std::int64_t value) {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, INT32_MIN, INT32_MAX));
}
constexpr tvok_Rect Moved(const tvok_Rect& rect, std::int32_t dx, std::int32_t dy) {
    return {rect.Left + dx, rect.Top + dy, rect.Right + dx, rect.bottom + dy};
}
constexpr bool Meet(const tvok_Rect& a, const tvok_Rect& b) {
    return !IsEmpty(Intersection(a, b));
}

/// Without the frame; of no size where the frame leaves nothing.
constexpr tvok_Rect Inside(const tvok_Rect& rect, Insets frame) {
    const std::int32_t left = std::min(rect.Left + frame.left, rect.Right);
    const std::int32_t top = std::min(rect.Top + frame.top, rect.bottom);
    return {left, top, std::max(left, rect.Right - frame.right), std::max(top, rect.bottom - frame.bottom)};
}

/// Sizes and places of windows stay within this, so that sums of them fit 32 bits.
inline constexpr std::int32_t kMaxCoordinate = 0x3FFFFF;
inline constexpr std::int32_t kMaxSurface = 16384; ///< Of a top-level window, each way.
constexpr std::int32_t LimitCoordinate(std::int32_t value) {
    return std::clamp(value, -kMaxCoordinate, kMaxCoordinate);
}

inline bool SameSize(const tvok_Rect& a, const tvok_Rect& b) {
    return WidthOf(a) == WidthOf(b) && HeightOf(a) == HeightOf(b);
}

} // namespace tvok::soft
