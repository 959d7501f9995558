#include "apps/gallery/design/geometry.h"

#include <algorithm>

namespace gallery {

namespace {

/// The middle of a handle on one axis.
std::int32_t Middle(std::int32_t start, std::int32_t length, std::int32_t side) {
    return side < 0 ? start : side > 0 ? start + length - 1 : start + length / 2;
}

/// Moves one end of a span; the other stays.
void MoveEnd(std::int32_t& start, std::int32_t& length, std::int32_t side, std::int32_t by, bool snap) {
    if (side == 0) return;
    const std::int32_t least = std::min(length, LeastSide);
    const std::int32_t end = start + length;
    if (side > 0) {
        const std::int32_t moved = snap ? Snapped(end + by) : end + by;
        length = std::max(moved - start, least);
    } else {
        const std::int32_t moved = snap ? Snapped(start + by) : start + by;
        start = std::min(moved, end - least);
        length = end - start;
    }
}

} // namespace

bool Snaps(std::int16_t shift) {
    return (shift & (ShiftBit | AltBit)) == 0;
}

tvok::tvok_Rect RectOf(const tvok::Placement& place) {
    return {place.left, place.top, place.left + place.width, place.top + place.height};
}

tvok::tvok_Rect HandleRect(const tvok::Placement& place, Grip grip) {
    const std::int32_t x = Middle(place.left, place.width, grip.x) - HandleSize / 2;
    const std::int32_t y = Middle(place.top, place.height, grip.y) - HandleSize / 2;
    return {x, y, x + HandleSize, y + HandleSize};
}

std::optional<Grip> GripAt(const tvok::Placement& place, std::int32_t x, std::int32_t y) {
    std::optional<Grip> found;
    for (const Grip grip : Grips)
        if (tvok::host::Platform::PtInRect(HandleRect(place, grip), {x, y})) found = grip;
    return found;
}

std::int16_t PointerOf(Grip grip) {
    if (grip.x == 0) return tvok::host::ccSizeNS;
    if (grip.y == 0) return tvok::host::ccSizeWE;
    return grip.x == grip.y ? tvok::host::ccSizeNWSE : tvok::host::ccSizeNESW;
}

std::int32_t Snapped(std::int32_t value) {
    const std::int32_t moved = value + GridStep / 2;
    const std::int32_t rest = moved % GridStep;
    return moved - (rest < 0 ? rest + GridStep : rest);
}

tvok::Placement Resized(const tvok::Placement& from, Grip grip, std::int32_t dx, std::int32_t dy, bool snap) {
    tvok::Placement place = from;
    MoveEnd(place.left, place.width, grip.x, dx, snap);
    MoveEnd(place.top, place.height, grip.y, dy, snap);
    return place;
}

tvok::host::Point SnappedMove(const tvok::Placement& lead, std::int32_t dx, std::int32_t dy, bool snap) {
    if (!snap) return {dx, dy};
    return {Snapped(lead.left + dx) - lead.left, Snapped(lead.top + dy) - lead.top};
}

tvok::tvok_Rect Between(tvok::host::Point a, tvok::host::Point b) {
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x) + 1, std::max(a.y, b.y) + 1};
}

bool Touches(const tvok::tvok_Rect& rect, const tvok::Placement& place) {
    return rect.Left < place.left + place.width && place.left < rect.Right &&
           rect.Top < place.top + place.height && place.top < rect.bottom;
}

} // namespace gallery
