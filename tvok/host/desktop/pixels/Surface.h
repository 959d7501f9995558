/// A rectangle of 32-bit pixels in memory: what every window of the software desktop is drawn on.
#pragma once

#include <cstdint>
#include <vector>

namespace tvok::soft {

/// Pixels are 0x00RRGGBB.
using Pixel = std::uint32_t;

/// Rows lie in memory in any order: moving pixels up or down mostly changes which row lies where.
class Surface {
public:
    Surface() = default;
    Surface(std::int32_t width, std::int32_t height) { Resize(width, height); }

    std::int32_t Width() const { return width_; }
    std::int32_t Height() const { return height_; }
    /// Keeps the pixels that fit; new ones are black. Sizes below 0 count as 0.
    void Resize(std::int32_t width, std::int32_t height);

    /// `Width()` pixels of row `y`, from 0 to `Height()` - 1. Valid until the next `Resize` or `Move`.
    Pixel* Row(std::int32_t y) { return pixels_.data() + places_[static_cast<std::size_t>(y)]; }
    const Pixel* Row(std::int32_t y) const { return pixels_.data() + places_[static_cast<std::size_t>(y)]; }

    /// Moves the pixels of columns `left` to `right` - 1 within rows `top` to `bottom` - 1, both within the
    /// surface, up or down by `dy`, fewer than half of these rows. Rows that nothing arrives at stay as they
    /// are. Costs the pixels beside the columns and not those in them.
    void Roll(std::int32_t left, std::int32_t right, std::int32_t top, std::int32_t bottom, std::int32_t dy);

private:
    std::int32_t width_ = 0;
    std::int32_t height_ = 0;
    std::vector<Pixel> pixels_;
    std::vector<std::size_t> places_; ///< Where each row begins.
    std::vector<Pixel> spare_;        ///< Of `Roll`.
};

/// A colour value of the drawing interface, 0x00BBGGRR, as a pixel.
constexpr Pixel PixelOf(std::int32_t color) {
    const auto bits = static_cast<std::uint32_t>(color);
    return (bits & 0xFFu) << 16 | (bits & 0xFF00u) | (bits >> 16 & 0xFFu);
}

} // namespace tvok::soft
