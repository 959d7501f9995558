/// A rectangle of 32-bit pixels in memory: what every window of the software desktop is drawn on.
#pragma once

#include <cstdint>
#include <vector>

namespace tvok::soft {

/// Pixels are 0x00RRGGBB, rows from top to bottom, without gaps between rows.
using Pixel = std::uint32_t;

class Surface {
public:
    Surface() = default;
    Surface(std::int32_t width, std::int32_t height) { Resize(width, height); }

    std::int32_t Width() const { return width_; }
    std::int32_t Height() const { return height_; }
    /// Keeps the pixels that fit; new ones are black. Sizes below 0 count as 0.
    void Resize(std::int32_t width, std::int32_t height);

    /// `y` from 0 to `Height()` - 1. Valid until the next `Resize`.
    Pixel* Row(std::int32_t y) { return pixels_.data() + static_cast<std::size_t>(y) * Pitch(); }
    const Pixel* Row(std::int32_t y) const { return pixels_.data() + static_cast<std::size_t>(y) * Pitch(); }
    std::size_t Pitch() const {
        return static_cast<std::size_t>(width_);
    } ///< Pixels from one row to the next.

private:
    std::int32_t width_ = 0;
    std::int32_t height_ = 0;
    std::vector<Pixel> pixels_;
};

/// A colour value of the drawing interface, 0x00BBGGRR, as a pixel.
constexpr Pixel PixelOf(std::int32_t color) {
    const auto bits = static_cast<std::uint32_t>(color);
    return (bits & 0xFFu) << 16 | (bits & 0xFF00u) | (bits >> 16 & 0xFFu);
}

} // namespace tvok::soft
