#include "tvok/host/desktop/text/TextEngine.h"

#include <algorithm>
#include <vector>

#include "tvok/host/desktop/pixels/kernels.h"
#include "tvok/host/desktop/text/RunCache.h"
#include "tvok/host/desktop/text/ScaledFont.h"
#include "tvok/host/desktop/text/Shaper.h"
#include "tvok/records/Error.h"
#include "tvok/records/numeric.h"
#include "tvok/records/text.h"

// Two ways to one result. Characters that stand for themselves are looked up one by one in a table, which is
// fast for texts never seen before. A text with any other character is shaped as a whole and the run is kept.
// Both add up advances that are rounded one by one, without kerning, so a text is as wide as its parts.

namespace tvok::soft {

namespace {

constexpr std::size_t keptRuns = 4096;
constexpr std::size_t longestKept = 512; ///< Bytes of text; longer ones are shaped each time.

/// Where glyphs go.
struct Canvas {
    Surface& surface;
    tvok_Rect clip; ///< Within the surface.
    Pixel color;
};

/// Blends the part of the glyph that lies inside the clip.
void DrawClipped(const Canvas& canvas, const Glyph& glyph, std::int64_t left, std::int64_t top) {
    const std::int64_t fromX = std::max<std::int64_t>(left, canvas.clip.Left);
    const std::int64_t toX = std::min<std::int64_t>(left + glyph.width, canvas.clip.Right);
    const std::int64_t fromY = std::max<std::int64_t>(top, canvas.clip.Top);
    const std::int64_t toY = std::min<std::int64_t>(top + glyph.height, canvas.clip.bottom);
    if (fromX >= toX || fromY >= toY) return;
    const auto pitch = static_cast<std::size_t>(glyph.pitch);
    const Coverage part{glyph.rows + (fromY - top) * glyph.pitch + (fromX - left), pitch,
                        static_cast<std::int32_t>(toX - fromX), static_cast<std::int32_t>(toY - fromY)};
    BlendCoverage(canvas.surface, static_cast<std::int32_t>(fromX), static_cast<std::int32_t>(fromY), part,
                  canvas.color);
}

/// `x` and `baseline`: where the glyph's pen stands on the surface.
void DrawGlyph(const Canvas& canvas, const Glyph& glyph, std::int64_t x, std::int64_t baseline) {
    const std::int64_t left = x + glyph.left, top = baseline - glyph.top;
    const tvok_Rect& clip = canvas.clip;
    const bool isInside = left >= clip.Left && left + glyph.pitch <= clip.Right && top >= clip.Top &&
                          top + glyph.height <= clip.bottom;
    if (!isInside) return DrawClipped(canvas, glyph, left, top);
    // Whole rows with their padding, which covers nothing: the blend then works on full groups of pixels.
    const Coverage block{glyph.rows, static_cast<std::size_t>(glyph.pitch), glyph.pitch, glyph.height};
    BlendCoverage(canvas.surface, static_cast<std::int32_t>(left), static_cast<std::int32_t>(top), block,
                  canvas.color);
}

} // namespace

struct TextEngine::Impl {
    explicit Impl(std::string fontFile) : store(std::move(fontFile)), runs(keptRuns) {}

    ScaledFont& FontAt(FontId id) {
        const auto place = static_cast<std::size_t>(id) - 1; // 0 becomes the largest number
        if (place >= fonts.size()) [[unlikely]]
            throw ObjectError("there is no font with the id " + std::to_string(id));
        return *fonts[place];
    }

    /// The glyphs of a text whose characters all stand for themselves, in `simple`. False for any other text.
    bool CollectSimple(ScaledFont& font, std::string_view text) {
        simple.clear();
        for (std::size_t place = 0; place < text.size();) {
            const Glyph* glyph = NextSimple(font, text, place);
            if (!glyph) return false;
            simple.push_back(glyph);
        }
        return true;
    }

    static const Glyph* NextSimple(ScaledFont& font, std::string_view text, std::size_t& place) {
        const auto byte = static_cast<unsigned char>(text[place]);
        if (byte >= 0x80) return font.SimpleGlyph(NextCharacter(text, place));
        ++place;
        return font.SimpleGlyph(byte);
    }

    const ShapedRun& RunOf(FontId id, std::string_view text) {
        if (text.size() > longestKept) {
            shaper.Shape(FontAt(id), text, longRun);
            return longRun;
        }
        if (const ShapedRun* known = runs.Find(id, text)) return *known;
        shaper.Shape(FontAt(id), text, freshRun);
        return runs.Add(id, text, freshRun);
    }

    std::size_t FitRun(TextEngine& engine, FontId font, std::string_view text, std::int32_t width);
    std::size_t NearestEdge(FontId font, std::string_view text, std::int32_t x);

    FaceStore store;
    std::vector<std::unique_ptr<ScaledFont>> fonts;
    Shaper shaper;
    RunCache runs;
    ShapedRun freshRun;
    ShapedRun longRun;
    std::vector<const Glyph*> simple;
    std::vector<RunEdge> edges;
};

TextEngine::TextEngine(std::string fontFile) : impl_(std::make_unique<Impl>(std::move(fontFile))) {}

TextEngine::~TextEngine() = default;

FontId TextEngine::Find(const FontSpec& spec) {
    auto& fonts = impl_->fonts;
    const auto known =
        std::find_if(fonts.begin(), fonts.end(), [&](const auto& font) { return font->Spec() == spec; });
    if (known == fonts.end()) {
        fonts.push_back(std::make_unique<ScaledFont>(spec, impl_->store));
        return static_cast<FontId>(fonts.size());
    }
    return static_cast<FontId>(known - fonts.begin()) + 1;
}

const FontMetrics& TextEngine::Metrics(FontId font) const {
    return impl_->FontAt(font).Metrics();
}

std::int32_t TextEngine::Measure(FontId font, std::string_view text) {
    ScaledFont& scaled = impl_->FontAt(font);
    std::int64_t width = 0;
    for (std::size_t place = 0; place < text.size();) {
        const Glyph* glyph = Impl::NextSimple(scaled, text, place);
        if (!glyph) return impl_->RunOf(font, text).width;
        width += glyph->advance;
    }
    return ToInt32(width);
}

std::size_t TextEngine::Fit(FontId font, std::string_view text, std::int32_t width) {
    ScaledFont& scaled = impl_->FontAt(font);
    std::int64_t x = 0;
    for (std::size_t place = 0; place < text.size();) {
        const std::size_t before = place;
        const Glyph* glyph = Impl::NextSimple(scaled, text, place);
        if (!glyph) return impl_->FitRun(*this, font, text, width);
        x += glyph->advance;
        if (x > width) return before;
    }
    return text.size();
}

/// Letters that join look different at the end of a text, so the cut that the whole run suggests is measured.
std::size_t TextEngine::Impl::FitRun(TextEngine& engine, FontId font, std::string_view text,
                                     std::int32_t width) {
    edges = RunOf(font, text).edges;
    const auto fits = [&](std::size_t count) {
        return engine.Measure(font, text.substr(0, edges[count - 1].offset)) <= width;
    };
    const auto beyond =
        std::find_if(edges.begin(), edges.end(), [&](const RunEdge& edge) { return edge.x > width; });
    auto count = static_cast<std::size_t>(beyond - edges.begin());
    while (count > 0 && !fits(count)) --count;
    while (count < edges.size() && fits(count + 1)) ++count;
    return count == 0 ? 0 : edges[count - 1].offset;
}

std::size_t TextEngine::OffsetAt(FontId font, std::string_view text, std::int32_t x) {
    ScaledFont& scaled = impl_->FontAt(font);
    std::int64_t left = 0;
    for (std::size_t place = 0; place < text.size();) {
        const std::size_t before = place;
        const Glyph* glyph = Impl::NextSimple(scaled, text, place);
        if (!glyph) return impl_->NearestEdge(font, text, x);
        if (x - left < left + glyph->advance - x) return before;
        left += glyph->advance;
    }
    return text.size();
}

std::size_t TextEngine::Impl::NearestEdge(FontId font, std::string_view text, std::int32_t x) {
    std::int64_t left = 0;
    std::size_t offset = 0;
    for (const RunEdge& edge : RunOf(font, text).edges) {
        if (x - left < edge.x - x) break;
        left = edge.x;
        offset = edge.offset;
    }
    return offset;
}

std::int32_t TextEngine::Draw(Surface& surface, const tvok_Rect& clip, std::int32_t x, std::int32_t y,
                              FontId font, std::string_view text, Pixel color) {
    ScaledFont& scaled = impl_->FontAt(font);
    const Canvas canvas{surface, Intersection(clip, BoundsOf(surface)), color};
    const std::int64_t baseline = std::int64_t{y} + scaled.Metrics().ascent;
    if (!impl_->CollectSimple(scaled, text)) {
        const ShapedRun& run = impl_->RunOf(font, text);
        for (const PlacedGlyph& placed : run.glyphs)
            DrawGlyph(canvas, *placed.glyph, std::int64_t{x} + placed.x, baseline + placed.y);
        return run.width;
    }
    std::int64_t pen = x;
    for (const Glyph* glyph : impl_->simple) {
        if (glyph->width > 0) DrawGlyph(canvas, *glyph, pen, baseline);
        pen += glyph->advance;
    }
    return ToInt32(pen - x);
}

} // namespace tvok::soft
