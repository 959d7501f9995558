/// A list of small square images: the icons of controls.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tvok/host/desktop/pixels/Surface.h"
#include "tvok/records/tvok_declare.h"

namespace tvok::soft {

class ImageList {
public:
    /// Images of `size` by `size` pixels, 0xAARRGGBB, one after the other. A last image that is not complete
    /// is left out. A size below 1 gives an empty list.
    ImageList(const std::vector<std::uint32_t>& pixels, std::int32_t size);

    /// Each file is a strip: `size` pixels high, one or more images side by side. Throws `FileError` that
    /// names the file that cannot be read or has another shape.
    static ImageList FromPngs(const std::vector<std::string>& files, std::int32_t size);

    std::int32_t Size() const { return size_; } ///< Width and height of each image.
    std::int32_t Count() const { return count_; }

    /// Draws image `index`, 0-based, with its top left at (x, y), inside `clip`. `transparent`: mixed by its
    /// alpha; otherwise its colours replace what is there. False for an index that names none.
    bool Draw(Surface& surface, const tvok_Rect& clip, std::int32_t index, std::int32_t x, std::int32_t y,
              bool transparent) const;

private:
    std::int32_t size_ = 0;
    std::int32_t count_ = 0;
    std::vector<std::uint32_t> pixels_;
};

} // namespace tvok::soft
