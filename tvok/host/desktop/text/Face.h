/// One face at one size: its glyphs, rendered when they are first asked for and kept.
#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

#include <hb.h>

#include "tvok/host/desktop/text/FontCatalog.h"
#include "tvok/host/desktop/text/FontLibrary.h"
#include "tvok/host/desktop/text/TextEngine.h"

namespace tvok::soft {

/// A rendered glyph: coverage bytes in rows whose length is a multiple of 4; what pads them is 0.
struct Glyph {
    std::int32_t advance = 0; ///< Whole pixels to the next glyph.
    std::int32_t left = 0;    ///< From the pen to the first column.
    std::int32_t top = 0;     ///< From the baseline up to the first row.
    std::int32_t width = 0;   ///< Without padding. 0 for a blank.
    std::int32_t height = 0;
    std::int32_t pitch = 0; ///< `width` rounded up to a multiple of 4.
    const std::uint8_t* rows = nullptr;
};

class Face {
public:
    /// Null when the file cannot be opened or understood. `pixelHeight`: the em square, taken as 1 to 2000.
    static std::unique_ptr<Face> Open(FontLibrary& library, const FaceFile& file, std::int32_t pixelHeight);
    ~Face();
    Face(const Face&) = delete;
    Face& operator=(const Face&) = delete;

    FontMetrics Metrics() const;
    /// The number of the character's glyph, 0 where the face has none.
    std::uint32_t IndexOf(char32_t character) const;
    /// Glyph 0 shows a missing character. A number that names none, or a glyph that cannot be rendered, is
    /// blank. Valid as long as the face.
    const Glyph& GlyphAt(std::uint32_t index);
    /// The face for HarfBuzz, with the advances of `GlyphAt`.
    hb_font_t* Shaping();

private:
    Face(FT_Face face, const FaceFile& file, std::int32_t pixelHeight);
    bool SetSize();
    Glyph Render(std::uint32_t index);
    void Restyle();
    Glyph Keep(const FT_Bitmap& bitmap, Glyph glyph);
    std::uint8_t* Reserve(std::size_t size);
    std::int32_t Scaled(std::int64_t value) const;

    FT_Face face_;
    std::int32_t pixelHeight_;
    std::int32_t strikeHeight_ = 0; ///< Of ready pictures that have to be scaled; 0 for outlines.
    bool slant_;
    std::int32_t boldPixels_; ///< How much wider each stroke becomes; 0 for a face that is as it should be.
    std::unordered_map<std::uint32_t, Glyph> glyphs_;
    std::vector<std::unique_ptr<std::uint8_t[]>> blocks_;
    std::size_t blockRest_ = 0;
    std::uint8_t* blockPlace_ = nullptr;
    hb_font_t* shaping_ = nullptr;
};

} // namespace tvok::soft
