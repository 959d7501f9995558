/// What the parts of the device context share.
#pragma once

#include <algorithm>
#include <cstdint>

#include "tvok/host/desktop/gdi/DeviceContext.h"
#include "tvok/host/desktop/pixels/kernels.h"

namespace tvok::soft {

constexpr bool IsEmpty(const tvok_Rect& rect) {
    return rect.Left >= rect.Right || rect.Top >= rect.bottom;
}

constexpr std::int32_t Clamp32(std::int64_t value) {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, INT32_MIN, INT32_MAX));
}

struct WidePoint {
    std::int64_t x, y;
};

/// A rectangle whose edges may lie outside 32 bits.
struct WideRect {
    std::int64_t left, top, right, bottom;

    WideRect(std::int64_t l, std::int64_t t, std::int64_t r, std::int64_t b)
        : left(l), top(t), right(r), bottom(b) {}
    WideRect(const tvok_Rect& rect) : WideRect(rect.Left, rect.Top, rect.Right, rect.bottom) {}

    WideRect Shrunk(std::int64_t before, std::int64_t behind) const {
        return {left + before, top + before, right - behind, bottom - behind};
    }
    bool IsEmpty() const { return left >= right || top >= bottom; }
};

/// Pixels on each side of the line that a pen follows.
struct PenReach {
    std::int64_t before;
    std::int64_t behind;

    explicit PenReach(std::int64_t width)
        : before(std::max<std::int64_t>(width, 1) / 2), behind((std::max<std::int64_t>(width, 1) - 1) / 2) {}
};

/// Whether the pen draws dashes.
bool HasGaps(const Pen& pen);

inline tvok_Rect DeviceContext::Placed(const WideRect& rect) const {
    const tvok_Rect cut{Clamp32(std::max<std::int64_t>(rect.left + originX_, bounds_.Left)),
                        Clamp32(std::max<std::int64_t>(rect.top + originY_, bounds_.Top)),
                        Clamp32(std::min<std::int64_t>(rect.right + originX_, bounds_.Right)),
                        Clamp32(std::min<std::int64_t>(rect.bottom + originY_, bounds_.bottom))};
    return IsEmpty(cut) ? tvok_Rect{} : cut;
}

template<class Draw>
void DeviceContext::EachVisible(const tvok_Rect& placed, Draw draw) const {
    if (IsEmpty(placed)) return;
    if (plainClip_) return draw(placed);
    for (const pixman_box32_t& box : clip_.Boxes()) {
        if (box.y1 >= placed.bottom) break;
        const tvok_Rect part = Intersection(placed, RectOf(box));
        if (!IsEmpty(part)) draw(part);
    }
}

inline void DeviceContext::Note(const tvok_Rect& placed) {
    if (!damage_) return;
    EachVisible(placed, [this](const tvok_Rect& part) { damage_->Add(part); });
}

/// Copies a colour, whatever the raster operation is.
inline void DeviceContext::Put(const tvok_Rect& placed, Pixel color) {
    EachVisible(placed, [&](const tvok_Rect& part) { Fill(*surface_, part, color); });
    Note(placed);
}

} // namespace tvok::soft
