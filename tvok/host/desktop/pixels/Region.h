/// A set of pixels as rectangles: visible regions, update regions, damage, clips.
#pragma once

#include <cstdint>
#include <span>

#include <pixman.h>

#include "tvok/records/tvok_declare.h"

namespace tvok::soft {

constexpr tvok_Rect RectOf(const pixman_box32_t& box) {
    return {box.x1, box.y1, box.x2, box.y2};
}

/// A value. Rectangles are half open; empty ones add nothing.
class Region {
public:
    Region();
    explicit Region(const tvok_Rect& rect);
    Region(const Region& other);
    Region(Region&& other) noexcept;
    Region& operator=(const Region& other);
    Region& operator=(Region&& other) noexcept;
    ~Region();

    bool IsEmpty() const;
    tvok_Rect Bounds() const;
    /// The rectangles, from top to bottom and left to right within a band. Valid until the region changes.
    std::span<const pixman_box32_t> Boxes() const;
    bool Contains(std::int32_t x, std::int32_t y) const;
    bool ContainsWhole(const tvok_Rect& rect) const;

    void Clear();
    Region& Add(const tvok_Rect& rect);
    Region& Add(const Region& other);
    Region& Intersect(const tvok_Rect& rect);
    Region& Intersect(const Region& other);
    Region& Subtract(const tvok_Rect& rect);
    Region& Subtract(const Region& other);
    Region& Translate(std::int32_t dx, std::int32_t dy);

    friend bool operator==(const Region& a, const Region& b);

private:
    pixman_region32_t region_;
};

} // namespace tvok::soft
