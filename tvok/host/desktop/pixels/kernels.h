/// The inner loops of drawing: fill, move, invert and blend. Where the processor has SSE2 or AVX2 they use
/// it, and give the same bits as the plain loops in `scalar`.
#pragma once

#include <cstddef>
#include <cstdint>

#include "tvok/host/desktop/pixels/Surface.h"
#include "tvok/records/tvok_declare.h"

namespace tvok::soft {

/// What both rectangles cover; an empty rectangle of zeros when that is nothing.
constexpr tvok_Rect Intersection(const tvok_Rect& a, const tvok_Rect& b) {
    const tvok_Rect both{a.Left > b.Left ? a.Left : b.Left, a.Top > b.Top ? a.Top : b.Top,
                         a.Right < b.Right ? a.Right : b.Right, a.bottom < b.bottom ? a.bottom : b.bottom};
    return both.Left < both.Right && both.Top < both.bottom ? both : tvok_Rect{};
}

/// The whole surface as a rectangle.
inline tvok_Rect BoundsOf(const Surface& surface) {
    return {0, 0, surface.Width(), surface.Height()};
}

// Rectangles of a surface. What lies outside the surface is left out.

void Fill(Surface& surface, const tvok_Rect& rect, Pixel color);
/// Turns each pixel into its complement; twice gives the first picture again.
void Invert(Surface& surface, const tvok_Rect& rect);
/// Moves the pixels of `source` by (dx, dy). Source and destination may overlap. Pixels that would come from
/// outside the surface or go there are left out.
void Move(Surface& surface, const tvok_Rect& source, std::int32_t dx, std::int32_t dy);

/// A block of coverage bytes, 0 (nothing) to 255 (all): a glyph.
struct Coverage {
    const std::uint8_t* bytes = nullptr;
    std::size_t pitch = 0; ///< Bytes from one row to the next.
    std::int32_t width = 0;
    std::int32_t height = 0;
};

/// Mixes `color` into `block.width` by `block.height` pixels whose top left is (left, top): each channel is
/// within 1 of the exact mix. The caller has clipped.
void BlendCoverage(Surface& surface, std::int32_t left, std::int32_t top, const Coverage& block, Pixel color);
/// Draws 0xAARRGGBB pixels, colours not multiplied by alpha, over `to`.
void BlendImageRow(Pixel* to, const std::uint32_t* image, std::size_t count);
void FillRow(Pixel* to, std::size_t count, Pixel color);
void InvertRow(Pixel* to, std::size_t count);

/// The plain loops that the ones above agree with bit by bit.
namespace scalar {
void BlendCoverage(Surface& surface, std::int32_t left, std::int32_t top, const Coverage& block, Pixel color);
void BlendImageRow(Pixel* to, const std::uint32_t* image, std::size_t count);
void FillRow(Pixel* to, std::size_t count, Pixel color);
void InvertRow(Pixel* to, std::size_t count);
} // namespace scalar

} // namespace tvok::soft
