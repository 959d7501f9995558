#include "tvok/host/desktop/pixels/Region.h"

#include <new>
#include <utility>

namespace tvok::soft {

namespace {

bool IsEmptyRect(const tvok_Rect& rect) {
    return rect.Left >= rect.Right || rect.Top >= rect.bottom;
}

pixman_box32_t BoxOf(const tvok_Rect& rect) {
    return {rect.Left, rect.Top, rect.Right, rect.bottom};
}

/// pixman answers false when memory is short.
void Check(pixman_bool_t done) {
    if (!done) throw std::bad_alloc();
}

pixman_region32_t* Raw(const pixman_region32_t& region) { // pixman's readers take no const
    return const_cast<pixman_region32_t*>(&region);       // NOLINT(cppcoreguidelines-pro-type-const-cast)
}

} // namespace

Region::Region() {
    pixman_region32_init(&region_);
}

Region::Region(const tvok_Rect& rect) : Region() {
    pixman_box32_t box = BoxOf(rect);
    if (!IsEmptyRect(rect)) pixman_region32_init_with_extents(&region_, &box);
}

Region::Region(const Region& other) : Region() {
    Check(pixman_region32_copy(&region_, Raw(other.region_)));
}

Region::Region(Region&& other) noexcept : Region() {
    std::swap(region_, other.region_);
}

Region& Region::operator=(const Region& other) {
    if (this != &other) Check(pixman_region32_copy(&region_, Raw(other.region_)));
    return *this;
}

Region& Region::operator=(Region&& other) noexcept {
    std::swap(region_, other.region_);
    return *this;
}

Region::~Region() {
    pixman_region32_fini(&region_);
}

bool Region::IsEmpty() const {
    return !pixman_region32_not_empty(Raw(region_));
}

tvok_Rect Region::Bounds() const {
    if (IsEmpty()) return {};
    return RectOf(*pixman_region32_extents(Raw(region_)));
}

std::span<const pixman_box32_t> Region::Boxes() const {
    int count = 0;
    const pixman_box32_t* boxes = pixman_region32_rectangles(Raw(region_), &count);
    return {boxes, static_cast<std::size_t>(count)};
}

bool Region::Contains(std::int32_t x, std::int32_t y) const {
    return pixman_region32_contains_point(Raw(region_), x, y, nullptr) != 0;
}

bool Region::ContainsWhole(const tvok_Rect& rect) const {
    if (IsEmptyRect(rect)) return true;
    pixman_box32_t box = BoxOf(rect);
    return pixman_region32_contains_rectangle(Raw(region_), &box) == PIXMAN_REGION_IN;
}

void Region::Clear() {
    pixman_region32_clear(&region_);
}

Region& Region::Add(const tvok_Rect& rect) {
    return IsEmptyRect(rect) ? *this : Add(Region(rect));
}

Region& Region::Add(const Region& other) {
    Check(pixman_region32_union(&region_, &region_, Raw(other.region_)));
    return *this;
}

Region& Region::Intersect(const tvok_Rect& rect) {
    return Intersect(Region(rect));
}

Region& Region::Intersect(const Region& other) {
    Check(pixman_region32_intersect(&region_, &region_, Raw(other.region_)));
    return *this;
}

Region& Region::Subtract(const tvok_Rect& rect) {
    return IsEmptyRect(rect) ? *this : Subtract(Region(rect));
}

Region& Region::Subtract(const Region& other) {
    Check(pixman_region32_subtract(&region_, &region_, Raw(other.region_)));
    return *this;
}

Region& Region::Translate(std::int32_t dx, std::int32_t dy) {
    pixman_region32_translate(&region_, dx, dy);
    return *this;
}

bool operator==(const Region& a, const Region& b) {
    if (a.IsEmpty() || b.IsEmpty()) return a.IsEmpty() == b.IsEmpty(); // empty ones may keep different places
    return pixman_region32_equal(Raw(a.region_), Raw(b.region_)) != 0;
}

} // namespace tvok::soft
