#include "tvok/host/desktop/gdi/Damage.h"

#include <algorithm>
#include <utility>

namespace tvok::soft {

namespace {

/// So many rectangles are kept before they are merged: a program that never shows what it draws stays
/// bounded.
constexpr std::size_t mostRecent = 4096;

/// The union of `boxes`, made of halves, so that no step adds one box to a region of many.
Region UnionOf(const tvok_Rect* boxes, std::size_t count) {
    if (count == 0) return {};
    if (count == 1) return Region(*boxes);
    Region all = UnionOf(boxes, count / 2);
    all.Add(UnionOf(boxes + count / 2, count - count / 2));
    return all;
}

} // namespace

void Damage::Add(const Region& region) {
    for (const pixman_box32_t& box : region.Boxes()) Add({box.x1, box.y1, box.x2, box.y2});
}

const Region& Damage::Area() {
    Settle();
    return settled_;
}

Region Damage::Take() {
    Settle();
    return std::exchange(settled_, {});
}

/// A row of cells that is whole now joins the rows above it.
void Damage::JoinLast() {
    while (recent_.size() > 1 && Join(recent_[recent_.size() - 2], recent_.back())) recent_.pop_back();
}

void Damage::Append(const tvok_Rect& rect) {
    JoinLast();
    const std::size_t looked = std::min<std::size_t>(recent_.size(), 4);
    for (std::size_t i = 1; i <= looked; ++i)
        if (Join(recent_[recent_.size() - i], rect)) return;
    if (recent_.size() >= mostRecent) Settle();
    recent_.push_back(rect);
}

void Damage::Settle() {
    if (recent_.empty()) return;
    JoinLast();
    settled_.Add(UnionOf(recent_.data(), recent_.size()));
    recent_.clear();
}

} // namespace tvok::soft
