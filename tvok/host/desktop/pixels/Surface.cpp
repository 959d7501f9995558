#include "tvok/host/desktop/pixels/Surface.h"

#include <algorithm>

namespace tvok::soft {

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
}

} // namespace tvok::soft
