#include "tvok/host/desktop/text/FontLibrary.h"

#include <cstdlib>
#include <new>

#include FT_MODULE_H

namespace tvok::soft {

namespace {

void* Allocate(FT_Memory /*memory*/, long size) {
    return std::malloc(static_cast<std::size_t>(size)); // NOLINT(cppcoreguidelines-no-malloc): FreeType's way
}

void Free(FT_Memory /*memory*/, void* block) {
    std::free(block); // NOLINT(cppcoreguidelines-no-malloc)
}

void* Reallocate(FT_Memory /*memory*/, long /*before*/, long size, void* block) {
    return std::realloc(block, static_cast<std::size_t>(size)); // NOLINT(cppcoreguidelines-no-malloc)
}

} // namespace

// `FT_Init_FreeType` would read FREETYPE_PROPERTIES, by which a user could change every glyph.
FontLibrary::FontLibrary() : memory_{nullptr, Allocate, Free, Reallocate} {
    if (FT_New_Library(&memory_, &library_) != 0) throw std::bad_alloc();
    FT_Add_Default_Modules(library_);
}

FontLibrary::~FontLibrary() {
    FT_Done_Library(library_);
}

} // namespace tvok::soft
