#include "tvok/host/desktop/pixels/Surface.h"

#include <algorithm>
#include <cstdlib>

namespace tvok::soft {

namespace {

/// Columns and rows whose pixels move, and how far.
struct Band {
    std::int32_t left, right, top, bottom, distance;
};

/// Moves the pixels beside the band the other way than its rows go, round and round, so that they stay where
/// they are when the rows have moved with them. `spare` keeps those that go round.
void TurnBeside(Surface& surface, const Band& band, bool down, std::vector<Pixel>& spare) {
    const std::int32_t behind = surface.Width() - band.right, beside = band.left + behind;
    const auto copy = [&](const Pixel* from, const Pixel* fromBehind, Pixel* to, Pixel* toBehind) {
        std::copy_n(from, band.left, to);
        std::copy_n(fromBehind, behind, toBehind);
    };
    const auto copyRow = [&](std::int32_t from, std::int32_t to) {
        copy(surface.Row(from), surface.Row(from) + band.right, surface.Row(to),
             surface.Row(to) + band.right);
    };
    spare.resize(static_cast<std::size_t>(band.distance) * static_cast<std::size_t>(beside));
    const std::int32_t leaving = down ? band.top : band.bottom - band.distance;
    const std::int32_t arriving = down ? band.bottom - band.distance : band.top;
    Pixel* kept = spare.data();
    for (std::int32_t y = leaving; y < leaving + band.distance; ++y, kept += beside)
        copy(surface.Row(y), surface.Row(y) + band.right, kept, kept + band.left);
    if (down)
        for (std::int32_t y = band.top; y < arriving; ++y) copyRow(y + band.distance, y);
    else
        for (std::int32_t y = band.bottom; y > band.top + band.distance; --y)
            copyRow(y - 1 - band.distance, y - 1);
    kept = spare.data();
    for (std::int32_t y = arriving; y < arriving + band.distance; ++y, kept += beside)
        copy(kept, kept + band.left, surface.Row(y), surface.Row(y) + band.right);
}

} // namespace

void Surface::Resize(std::int32_t width, std::int32_t height) {
    width = std::max(width, 0);
    height = std::max(height, 0);
    if (width == width_ && height == height_) return;
    std::vector<Pixel> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    const std::int32_t keptRows = std::min(height, height_);
    const std::int32_t keptPixels = std::min(width, width_);
    for (std::int32_t y = 0; y < keptRows; ++y)
        std::copy_n(Row(y), keptPixels,
                    pixels.begin() + static_cast<std::ptrdiff_t>(y) * static_cast<std::ptrdiff_t>(width));
    pixels_ = std::move(pixels);
    width_ = width;
    height_ = height;
    places_.resize(static_cast<std::size_t>(height));
    for (std::size_t y = 0; y < places_.size(); ++y) places_[y] = y * static_cast<std::size_t>(width);
}

void Surface::Roll(std::int32_t left, std::int32_t right, std::int32_t top, std::int32_t bottom,
                   std::int32_t dy) {
    const std::int32_t distance = std::abs(dy);
    const Band band{left, right, top, bottom, distance};
    if (left > 0 || right < width_) TurnBeside(*this, band, dy > 0, spare_);
    const auto first = places_.begin() + top, last = places_.begin() + bottom;
    std::rotate(first, dy < 0 ? first + distance : last - distance, last);
    // The rows that came round hold what was pushed out. What they have to show has moved with the others.
    const std::int32_t round = dy < 0 ? bottom - distance : top;
    for (std::int32_t y = round; y < round + distance; ++y)
        std::copy_n(Row(y + dy) + left, right - left, Row(y) + left);
}

} // namespace tvok::soft
