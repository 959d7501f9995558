/// The FreeType library behind every face.
#pragma once

#include <cstddef>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_SYSTEM_H

namespace tvok::soft {

/// FreeType with its own defaults: the environment does not change how glyphs look.
class FontLibrary {
public:
    FontLibrary();
    ~FontLibrary();
    FontLibrary(const FontLibrary&) = delete;
    FontLibrary& operator=(const FontLibrary&) = delete;

    FT_Library Raw() const { return library_; }

private:
    FT_MemoryRec_ memory_;
    FT_Library library_ = nullptr;
};

} // namespace tvok::soft
