#include "tvok/host/desktop/text/ScaledFont.h"

#include <algorithm>

#include "tvok/host/desktop/text/characters.h"
#include "tvok/records/Error.h"

namespace tvok::soft {

const Glyph ScaledFont::needsShaping{};

namespace {

const Glyph nothing{}; ///< No width and no pixels.

bool HasAll(const Face& face, const std::uint32_t* unit, std::size_t count) {
    return std::all_of(unit, unit + count, [&](std::uint32_t character) {
        return face.IndexOf(character) != 0 || IsInvisible(character);
    });
}

} // namespace

Face* FaceStore::Open(const FaceFile& file, std::int32_t pixelHeight) {
    for (const OpenFace& open : faces_)
        if (open.pixelHeight == pixelHeight && open.file == file) return open.face.get();
    auto face = Face::Open(library_, file, pixelHeight);
    return faces_.emplace_back(OpenFace{file, pixelHeight, std::move(face)}).face.get();
}

Face& FaceStore::Find(const FontSpec& spec) {
    for (const FaceFile& file : catalog_.Find(spec))
        if (Face* face = Open(file, spec.pixelHeight)) return *face;
    if (!fontFile_.empty()) throw ResourceError(fontFile_ + ": is no font file that can be read");
    if (Face* face = Covering('x', spec)) return *face;
    throw ResourceError(
        "no font found: install the package fonts-dejavu-core (apt install fonts-dejavu-core)");
}

Face* FaceStore::Covering(char32_t character, const FontSpec& spec) {
    const FaceFile* file = catalog_.Covering(character, spec);
    return file ? Open(*file, spec.pixelHeight) : nullptr;
}

const Glyph* ScaledFont::LookUp(char32_t character) {
    auto& page = pages_[character >> 8];
    if (!page) page = std::make_unique<Page>();
    const Glyph*& place = (*page)[character & 0xFF];
    const auto shown = static_cast<std::uint32_t>(ShownFor(character));
    if (shown == noWidth) return place = &nothing;
    if (NeedsShaping(shown)) return place = &needsShaping;
    Face& face = FaceFor(&shown, 1);
    return place = &face.GlyphAt(face.IndexOf(shown));
}

Face& ScaledFont::FaceFor(const std::uint32_t* unit, std::size_t count) {
    if (HasAll(face_, unit, count)) return face_;
    Face* other = store_.Covering(*unit, spec_);
    if (other && HasAll(*other, unit, count)) return *other;
    for (std::size_t i = 1; i < count; ++i) {
        Face* third = store_.Covering(unit[i], spec_);
        if (third && HasAll(*third, unit, count)) return *third;
    }
    if (face_.IndexOf(*unit) != 0 || !other || other->IndexOf(*unit) == 0) return face_;
    return *other;
}

} // namespace tvok::soft
