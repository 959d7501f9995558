#include "tvok/host/desktop/gdi/DeviceContext_private.h"

#include "tvok/records/text.h"

namespace tvok::soft {

namespace {

constexpr std::int32_t horizontalBits = host::TA_CENTER;
constexpr std::int32_t verticalBits = host::TA_BASELINE;

/// Bytes of the character at the start of `text`.
std::size_t CharacterSize(std::string_view text) {
    std::size_t size = 0;
    NextCharacter(text, size);
    return size;
}

std::int64_t SumOf(const std::int32_t* dx, std::size_t count) {
    std::int64_t sum = 0;
    for (std::size_t i = 0; i < count; ++i) sum += dx[i];
    return sum;
}

std::int64_t OffsetToLeft(std::int32_t align, std::int64_t width) {
    switch (align & horizontalBits) {
    case host::TA_RIGHT: return -width;
    case host::TA_CENTER: return -width / 2;
    default: return 0;
    }
}

std::int64_t OffsetToTop(std::int32_t align, const FontMetrics& metrics) {
    switch (align & verticalBits) {
    case host::TA_BOTTOM: return -std::int64_t{metrics.height};
    case host::TA_BASELINE: return -std::int64_t{metrics.ascent};
    default: return 0;
    }
}

} // namespace

bool DeviceContext::TextOut(std::int32_t x, std::int32_t y, std::int32_t options, const tvok_Rect* rect,
                            std::string_view text, const std::int32_t* dx) {
    const bool opaque = rect && (options & host::ETO_OPAQUE) != 0;
    const bool clipped = rect && (options & host::ETO_CLIPPED) != 0;
    if (opaque) FillColor(*rect, bkColor_);
    const tvok_Rect limit = clipped ? Placed(*rect) : bounds_;
    if (IsEmpty(limit) || text.empty()) return true;
    const FontId font = Font();
    std::int64_t left = x;
    if ((textAlign_ & horizontalBits) != 0)
        left += OffsetToLeft(textAlign_, dx ? SumOf(dx, text.size()) : text_.Measure(font, text));
    const std::int64_t top = y + OffsetToTop(textAlign_, text_.Metrics(font));
    // A rectangle that was filled and clips leaves nothing of the text's own background to draw.
    PutText(limit, {left, top}, text, dx, bkMode_ == host::OPAQUE_BK && !(opaque && clipped));
    return true;
}

/// Draws one line with its top left at `place`, inside `limit`, with the font's lines under and through it.
void DeviceContext::PutText(const tvok_Rect& limit, WidePoint place, std::string_view text,
                            const std::int32_t* dx, bool background) {
    const FontMetrics& metrics = text_.Metrics(Font());
    if (!background && !underline_ && !strikeout_) return PutGlyphs(limit, place, text, dx);
    const std::int64_t width = dx ? SumOf(dx, text.size()) : text_.Measure(font_, text);
    const auto band = [&](std::int64_t top, std::int32_t height, std::int32_t color) {
        Put(Intersection(limit, Placed({place.x, top, place.x + width, top + height})), PixelOf(color));
    };
    if (background) band(place.y, metrics.height, bkColor_);
    PutGlyphs(limit, place, text, dx);
    const std::int64_t baseline = place.y + metrics.ascent;
    if (underline_) band(baseline + metrics.underline, metrics.lineWidth, textColor_);
    if (strikeout_) band(baseline - metrics.strikeout, metrics.lineWidth, textColor_);
}

void DeviceContext::PutGlyphs(const tvok_Rect& limit, WidePoint place, std::string_view text,
                              const std::int32_t* dx) {
    // Letters may reach beyond their line, to the sides and, from a font for other scripts, up and down.
    const std::int64_t reach = std::int64_t{text_.Metrics(Font()).height} * 2;
    const auto [left, top] = place;
    const tvok_Rect ink =
        Intersection(limit, Placed({left - reach, top - reach, INT32_MAX, top + 2 * reach}));
    const std::int64_t x = left + originX_;
    if (IsEmpty(ink) || x < INT32_MIN) return;
    const std::int64_t width =
        dx ? PutCharacters(ink, place, text, dx) : DrawRun(ink, Clamp32(x), Clamp32(top + originY_), text);
    Note(Intersection(ink, Placed({left - reach, top - reach, left + width + reach, top + 2 * reach})));
}

std::int32_t DeviceContext::DrawRun(const tvok_Rect& ink, std::int32_t x, std::int32_t y,
                                    std::string_view text) {
    std::int32_t width = 0;
    EachVisible(ink, [&](const tvok_Rect& part) {
        width = text_.Draw(*surface_, part, x, y, font_, text, PixelOf(textColor_));
    });
    return width;
}

/// Each character at its own place, as `dx` says.
std::int64_t DeviceContext::PutCharacters(const tvok_Rect& ink, WidePoint place, std::string_view text,
                                          const std::int32_t* dx) {
    const std::int32_t y = Clamp32(place.y + originY_);
    std::int64_t offset = 0;
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t size = CharacterSize(text.substr(i));
        const std::int64_t x = place.x + originX_ + offset;
        if (x >= INT32_MIN && x <= INT32_MAX) DrawRun(ink, Clamp32(x), y, text.substr(i, size));
        offset += SumOf(dx + i, size);
        i += size;
    }
    return offset;
}

} // namespace tvok::soft
