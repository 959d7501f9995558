#include "tvok/host/desktop/pixels/ImageList.h"

#include <algorithm>

#include "tvok/host/desktop/pixels/Png.h"
#include "tvok/host/desktop/pixels/kernels.h"
#include "tvok/records/Error.h"

namespace tvok::soft {

namespace {

Image ReadStrip(const std::string& file, std::int32_t size) {
    Image strip = ReadPng(file);
    if (size > 0 && strip.height == size && strip.width % size == 0) return strip;
    throw FileError(file + ": has " + std::to_string(strip.width) + " by " + std::to_string(strip.height) +
                    " pixels, which is no row of images of " + std::to_string(size) + " by " +
                    std::to_string(size));
}

/// Appends the images of a strip one after the other.
void AppendImages(std::vector<std::uint32_t>& pixels, const Image& strip, std::int32_t size) {
    for (std::int32_t left = 0; left < strip.width; left += size)
        for (std::int32_t y = 0; y < size; ++y) {
            const auto row = strip.pixels.begin() + std::ptrdiff_t{y} * strip.width + left;
            pixels.insert(pixels.end(), row, row + size);
        }
}

void CopyColors(Pixel* to, const std::uint32_t* image, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) to[i] = image[i] & 0x00FFFFFF;
}

} // namespace

ImageList::ImageList(const std::vector<std::uint32_t>& pixels, std::int32_t size) {
    if (size < 1) return;
    const auto area = static_cast<std::size_t>(size) * static_cast<std::size_t>(size);
    size_ = size;
    count_ = static_cast<std::int32_t>(pixels.size() / area);
    pixels_.assign(pixels.begin(),
                   pixels.begin() + static_cast<std::ptrdiff_t>(static_cast<std::size_t>(count_) * area));
}

ImageList ImageList::FromPngs(const std::vector<std::string>& files, std::int32_t size) {
    std::vector<std::uint32_t> pixels;
    for (const std::string& file : files) AppendImages(pixels, ReadStrip(file, size), size);
    return {pixels, size};
}

bool ImageList::Draw(Surface& surface, const tvok_Rect& clip, std::int32_t index, std::int32_t x,
                     std::int32_t y, bool transparent) const {
    if (index < 0 || index >= count_) return false;
    const tvok_Rect bounds = Intersection(clip, BoundsOf(surface));
    const std::int64_t left = std::max<std::int64_t>(bounds.Left, x);
    const std::int64_t right = std::min<std::int64_t>(bounds.Right, std::int64_t{x} + size_);
    const std::int64_t bottom = std::min<std::int64_t>(bounds.bottom, std::int64_t{y} + size_);
    if (left >= right) return true;
    const std::uint32_t* image = pixels_.data() + std::ptrdiff_t{index} * size_ * size_;
    for (std::int64_t row = std::max<std::int64_t>(bounds.Top, y); row < bottom; ++row) {
        Pixel* to = surface.Row(static_cast<std::int32_t>(row)) + left;
        const std::uint32_t* from = image + (row - y) * size_ + (left - x);
        (transparent ? BlendImageRow : CopyColors)(to, from, static_cast<std::size_t>(right - left));
    }
    return true;
}

} // namespace tvok::soft
