#include "tvok/host/desktop/text/Face.h"

#include <algorithm>
#include <cstdlib>

#include <hb-ft.h>

#include FT_OUTLINE_H
#include FT_TRUETYPE_TABLES_H

namespace tvok::soft {

namespace {

constexpr std::int32_t highest = 2000;
constexpr std::size_t blockSize = 32 * 1024;
constexpr FT_Fixed slantBy = 0x3600; // 0.21: about 12 degrees

/// Whole pixels, rounded, of a length in 64ths.
std::int32_t Rounded(FT_Pos length) {
    return static_cast<std::int32_t>((length + 32) >> 6);
}

/// The coverage of a ready picture's pixel. Coloured ones become shades: dark parts cover more.
std::uint8_t CoverageAt(const FT_Bitmap& bitmap, std::int32_t x, std::int32_t y) {
    const std::ptrdiff_t pitch = bitmap.pitch;
    const auto rows = static_cast<std::ptrdiff_t>(bitmap.rows);
    const std::uint8_t* row = bitmap.buffer + (pitch < 0 ? (rows - 1 - y) * -pitch : y * pitch);
    switch (bitmap.pixel_mode) {
    case FT_PIXEL_MODE_GRAY: return row[x];
    case FT_PIXEL_MODE_MONO: return (row[x >> 3] >> (7 - (x & 7)) & 1) != 0 ? 255 : 0;
    case FT_PIXEL_MODE_BGRA: {
        const std::uint8_t* pixel = row + std::ptrdiff_t{4} * x;
        const std::int32_t light = (pixel[0] + 6 * pixel[1] + 3 * pixel[2]) / 10; // multiplied by alpha
        return static_cast<std::uint8_t>(std::clamp(pixel[3] - light * 3 / 4, 0, 255));
    }
    default: return 0;
    }
}

/// Mean coverage of the part of the picture that pixel (x, y) of `width` by `height` pixels stands for.
std::uint8_t MeanAt(const FT_Bitmap& bitmap, std::int32_t x, std::int32_t y, std::int32_t width,
                    std::int32_t height) {
    const auto bound = [](std::int64_t place, std::uint32_t from, std::int32_t to) {
        return static_cast<std::int32_t>(place * from / to);
    };
    const std::int32_t left = bound(x, bitmap.width, width), top = bound(y, bitmap.rows, height);
    const std::int32_t right = std::max(left + 1, bound(x + 1, bitmap.width, width));
    const std::int32_t bottom = std::max(top + 1, bound(y + 1, bitmap.rows, height));
    std::int64_t sum = 0;
    for (std::int32_t row = top; row < bottom; ++row)
        for (std::int32_t column = left; column < right; ++column) sum += CoverageAt(bitmap, column, row);
    return static_cast<std::uint8_t>(sum / (std::int64_t{right - left} * (bottom - top)));
}

hb_position_t AdvanceOf(hb_font_t* /*font*/, void* face, hb_codepoint_t index, void* /*unused*/) {
    return static_cast<Face*>(face)->GlyphAt(index).advance * 64;
}

hb_font_funcs_t* AdvanceFunctions() {
    static hb_font_funcs_t* const functions = [] {
        hb_font_funcs_t* made = hb_font_funcs_create();
        hb_font_funcs_set_glyph_h_advance_func(made, AdvanceOf, nullptr, nullptr);
        hb_font_funcs_make_immutable(made);
        return made;
    }();
    return functions;
}

} // namespace

std::unique_ptr<Face> Face::Open(FontLibrary& library, const FaceFile& file, std::int32_t pixelHeight) {
    FT_Face raw = nullptr;
    if (FT_New_Face(library.Raw(), file.file.c_str(), file.index, &raw) != 0) return nullptr;
    std::unique_ptr<Face> face(new Face(raw, file, std::clamp(pixelHeight, 1, highest)));
    return face->SetSize() ? std::move(face) : nullptr;
}

Face::Face(FT_Face face, const FaceFile& file, std::int32_t pixelHeight)
    : face_(face), pixelHeight_(pixelHeight), slant_(file.slant),
      boldPixels_(file.embolden ? std::max(1, (pixelHeight + 12) / 24) : 0) {}

Face::~Face() {
    hb_font_destroy(shaping_);
    FT_Done_Face(face_);
}

/// A face of ready pictures alone gets the smallest that is large enough.
bool Face::SetSize() {
    if (FT_IS_SCALABLE(face_)) return FT_Set_Pixel_Sizes(face_, 0, static_cast<FT_UInt>(pixelHeight_)) == 0;
    FT_Int best = -1;
    std::int32_t bestHeight = 0;
    for (FT_Int i = 0; i < face_->num_fixed_sizes; ++i) {
        const std::int32_t height = std::max(1, Rounded(face_->available_sizes[i].y_ppem));
        const bool better =
            bestHeight < pixelHeight_ ? height > bestHeight : height >= pixelHeight_ && height < bestHeight;
        if (best >= 0 && !better) continue;
        best = i;
        bestHeight = height;
    }
    strikeHeight_ = bestHeight;
    return best >= 0 && FT_Select_Size(face_, best) == 0;
}

/// A length of the chosen picture size as one of this face's size.
std::int32_t Face::Scaled(std::int64_t value) const {
    if (strikeHeight_ == 0 || strikeHeight_ == pixelHeight_) return static_cast<std::int32_t>(value);
    const std::int64_t twice = 2 * value * pixelHeight_;
    return static_cast<std::int32_t>((twice + (twice < 0 ? -strikeHeight_ : strikeHeight_)) /
                                     (2 * std::int64_t{strikeHeight_}));
}

FontMetrics Face::Metrics() const {
    const FT_Size_Metrics& size = face_->size->metrics;
    FontMetrics metrics;
    metrics.ascent = std::max(1, Scaled((size.ascender + 63) >> 6));
    metrics.descent = std::max(0, Scaled((63 - size.descender) >> 6));
    metrics.height = metrics.ascent + metrics.descent;
    metrics.underline = 1;
    metrics.strikeout = std::max(1, metrics.ascent / 3);
    if (!FT_IS_SCALABLE(face_)) return metrics;
    const auto pixels = [&](FT_Pos units) { return Rounded(FT_MulFix(units, size.y_scale)); };
    metrics.lineWidth = std::max(1, pixels(face_->underline_thickness));
    metrics.underline = std::max(1, pixels(-face_->underline_position) - metrics.lineWidth / 2);
    const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face_, FT_SFNT_OS2));
    if (os2 && os2->yStrikeoutPosition > 0) metrics.strikeout = std::max(1, pixels(os2->yStrikeoutPosition));
    return metrics;
}

std::uint32_t Face::IndexOf(char32_t character) const {
    return FT_Get_Char_Index(face_, character);
}

const Glyph& Face::GlyphAt(std::uint32_t index) {
    const auto [place, isNew] = glyphs_.try_emplace(index);
    if (isNew) place->second = Render(index);
    return place->second;
}

/// Ready pictures inside outline fonts are left out, so that all sizes look alike.
Glyph Face::Render(std::uint32_t index) {
    const FT_Int32 kind = FT_IS_SCALABLE(face_) ? FT_LOAD_NO_BITMAP : FT_LOAD_COLOR;
    if (FT_Load_Glyph(face_, index, FT_LOAD_TARGET_NORMAL | kind) != 0) return {};
    const FT_GlyphSlot slot = face_->glyph;
    Glyph glyph;
    glyph.advance = std::max(0, Scaled(Rounded(slot->advance.x)));
    if (slot->format == FT_GLYPH_FORMAT_OUTLINE) {
        if (boldPixels_ > 0 && glyph.advance > 0) glyph.advance += boldPixels_;
        Restyle();
    }
    if (FT_Render_Glyph(slot, FT_RENDER_MODE_NORMAL) != 0) return glyph;
    glyph.left = Scaled(slot->bitmap_left);
    glyph.top = Scaled(slot->bitmap_top);
    return Keep(slot->bitmap, glyph);
}

/// Makes the outline bold or slanted where the file has no such face. Strokes grow by whole pixels, which
/// keeps their edges sharp.
void Face::Restyle() {
    FT_Outline& outline = face_->glyph->outline;
    if (boldPixels_ > 0) FT_Outline_EmboldenXY(&outline, FT_Pos{boldPixels_} * 64, 0);
    if (!slant_) return;
    const FT_Matrix matrix{0x10000, slantBy, 0, 0x10000};
    FT_Outline_Transform(&outline, &matrix);
}

Glyph Face::Keep(const FT_Bitmap& bitmap, Glyph glyph) {
    if (bitmap.width == 0 || bitmap.rows == 0 || !bitmap.buffer) return glyph;
    glyph.width = std::max(1, Scaled(bitmap.width));
    glyph.height = std::max(1, Scaled(bitmap.rows));
    glyph.pitch = (glyph.width + 3) & ~3;
    std::uint8_t* row =
        Reserve(static_cast<std::size_t>(glyph.pitch) * static_cast<std::size_t>(glyph.height));
    glyph.rows = row;
    for (std::int32_t y = 0; y < glyph.height; ++y, row += glyph.pitch)
        for (std::int32_t x = 0; x < glyph.width; ++x)
            row[x] = MeanAt(bitmap, x, y, glyph.width, glyph.height);
    return glyph;
}

/// Bytes of 0 that live as long as the face.
std::uint8_t* Face::Reserve(std::size_t size) {
    if (size > blockRest_) {
        blockRest_ = std::max(size, blockSize);
        blockPlace_ = blocks_.emplace_back(std::make_unique<std::uint8_t[]>(blockRest_)).get();
    }
    std::uint8_t* const place = blockPlace_;
    blockPlace_ += size;
    blockRest_ -= size;
    return place;
}

hb_font_t* Face::Shaping() {
    if (shaping_) return shaping_;
    hb_font_t* parent = hb_ft_font_create_referenced(face_);
    shaping_ = hb_font_create_sub_font(parent);
    hb_font_destroy(parent);
    hb_font_set_funcs(shaping_, AdvanceFunctions(), this, nullptr);
    return shaping_;
}

} // namespace tvok::soft
