#include "tvok/host/desktop/gdi/DeviceContext_private.h"

#include <cstdlib>

namespace tvok::soft {

namespace {

bool IsShiftOut(const tvok_Rect& area, std::int32_t dx, std::int32_t dy) {
    return std::abs(std::int64_t{dx}) >= std::int64_t{area.Right} - area.Left ||
           std::abs(std::int64_t{dy}) >= std::int64_t{area.bottom} - area.Top;
}

tvok_Rect Shifted(const tvok_Rect& rect, std::int32_t dx, std::int32_t dy) {
    return {rect.Left + dx, rect.Top + dy, rect.Right + dx, rect.bottom + dy};
}

/// Moves pixels so that the boxes of `arrived` get theirs. Boxes that lie ahead in the direction of the move
/// go first, so that none is written before it was read: bands of boxes from that side, and so within a band.
void MoveInOrder(Surface& surface, const Region& arrived, std::int32_t dx, std::int32_t dy) {
    const auto boxes = arrived.Boxes();
    const auto moveBox = [&](const pixman_box32_t& box) {
        Move(surface, Shifted(RectOf(box), -dx, -dy), dx, dy);
    };
    const auto moveBand = [&](std::size_t first, std::size_t behind) {
        if (dx > 0)
            for (std::size_t i = behind; i > first; --i) moveBox(boxes[i - 1]);
        else
            for (std::size_t i = first; i < behind; ++i) moveBox(boxes[i]);
    };
    if (dy > 0) {
        for (std::size_t behind = boxes.size(); behind > 0;) {
            std::size_t first = behind - 1;
            while (first > 0 && boxes[first - 1].y1 == boxes[first].y1) --first;
            moveBand(first, behind);
            behind = first;
        }
        return;
    }
    for (std::size_t first = 0; first < boxes.size();) {
        std::size_t behind = first + 1;
        while (behind < boxes.size() && boxes[behind].y1 == boxes[first].y1) ++behind;
        moveBand(first, behind);
        first = behind;
    }
}

/// `area` without its part `kept`, which covers one of its corners or sides.
void SetRest(Region& rest, const tvok_Rect& area, const tvok_Rect& kept) {
    rest = Region(kept.Top > area.Top ? tvok_Rect{area.Left, area.Top, area.Right, kept.Top}
                                      : tvok_Rect{area.Left, kept.bottom, area.Right, area.bottom});
    rest.Add(kept.Left > area.Left ? tvok_Rect{area.Left, kept.Top, kept.Left, kept.bottom}
                                   : tvok_Rect{kept.Right, kept.Top, area.Right, kept.bottom});
}

} // namespace

bool DeviceContext::Scroll(std::int32_t dx, std::int32_t dy, const tvok_Rect& scroll, const tvok_Rect& clip,
                           Region& uncovered) {
    const tvok_Rect bounds = Intersection(Placed(scroll), Placed(clip));
    if (IsEmpty(bounds))
        uncovered.Clear();
    else if (plainClip_)
        ScrollBox(bounds, dx, dy, uncovered);
    else
        ScrollVisible(bounds, dx, dy, uncovered);
    uncovered.Translate(-originX_, -originY_);
    return true;
}

void DeviceContext::ScrollBox(const tvok_Rect& area, std::int32_t dx, std::int32_t dy, Region& uncovered) {
    if (IsShiftOut(area, dx, dy)) {
        uncovered = Region(area);
        return;
    }
    const tvok_Rect arrived = Intersection(area, Shifted(area, dx, dy));
    Move(*surface_, Shifted(arrived, -dx, -dy), dx, dy);
    if (damage_) damage_->Add(arrived);
    SetRest(uncovered, area, arrived);
}

void DeviceContext::ScrollVisible(const tvok_Rect& bounds, std::int32_t dx, std::int32_t dy,
                                  Region& uncovered) {
    uncovered = clip_;
    uncovered.Intersect(bounds);
    if (IsShiftOut(uncovered.Bounds(), dx, dy)) return;
    Region arrived = uncovered;
    arrived.Translate(dx, dy).Intersect(uncovered);
    MoveInOrder(*surface_, arrived, dx, dy);
    if (damage_) damage_->Add(arrived);
    uncovered.Subtract(arrived);
}

} // namespace tvok::soft
