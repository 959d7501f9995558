/// Pictures in PNG files.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tvok/host/desktop/pixels/Surface.h"

namespace tvok::soft {

/// A picture with transparency: 0xAARRGGBB, colours not multiplied by alpha, rows from top to bottom.
struct Image {
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::vector<std::uint32_t> pixels;
};

/// Reads any kind of PNG. Pictures without transparency get alpha 255. Throws `FileError` that names the file
/// and says why: missing, cut off, damaged, or more than 64 million pixels.
Image ReadPng(const std::string& file);

/// Writes the surface as an RGB picture; an existing file is replaced. Compressed for speed, not for size.
/// Throws `FileError` that names the file; what was written so far is removed. A surface without pixels is
/// such an error.
void WritePng(const std::string& file, const Surface& surface);

} // namespace tvok::soft
