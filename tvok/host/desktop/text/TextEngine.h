/// Text on surfaces: finds fonts, shapes texts, caches glyphs and runs, measures and draws.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "tvok/host/desktop/pixels/Surface.h"
#include "tvok/records/tvok_declare.h"

namespace tvok::soft {

/// A font by what is asked for; what is found may be another face.
struct FontSpec {
    std::string face;              ///< Family name; empty for the system's.
    std::int32_t pixelHeight = 12; ///< Size of the em square in pixels.
    bool bold = false;
    bool italic = false;

    friend bool operator==(const FontSpec&, const FontSpec&) = default;
};

struct FontMetrics {
    std::int32_t ascent = 0;  ///< Pixels from the top of the line to the baseline.
    std::int32_t descent = 0; ///< Pixels below the baseline.
    std::int32_t height = 0;  ///< `ascent` + `descent`: the line height.
    std::int32_t underline =
        0; ///< Pixels from the baseline down to the underline; its thickness is `lineWidth`.
    std::int32_t strikeout = 0; ///< Pixels from the baseline up to the strikeout.
    std::int32_t lineWidth = 1;
};

/// A font that was looked up, valid as long as the engine. 0 is none.
using FontId = std::int32_t;

/// Texts are UTF-8, drawn from left to right with right-to-left parts in their own order. Bytes that are not
/// UTF-8 and control characters show as U+FFFD, tabs as one blank, carriage return and line feed as nothing.
/// Characters that the font lacks come from other fonts of the machine, and from none as a box. There is no
/// kerning and there are no ligatures, save where a script cannot be written without them.
class TextEngine {
public:
    /// `fontFile`: the face that every look-up finds first, for pixels that do not depend on the machine;
    /// empty to look fonts up by name. Fonts are looked for at the first use.
    explicit TextEngine(std::string fontFile = {});
    ~TextEngine();
    TextEngine(const TextEngine&) = delete;
    TextEngine& operator=(const TextEngine&) = delete;

    /// The same id for the same spec. Throws `ResourceError` that says what to install when there is no font
    /// at all.
    FontId Find(const FontSpec& spec);
    const FontMetrics& Metrics(FontId font) const;

    /// Width of the text in pixels: the sum of its rounded advances.
    std::int32_t Measure(FontId font, std::string_view text);
    /// The longest beginning of `text`, in bytes and at a character's edge, that is at most `width` pixels
    /// wide.
    std::size_t Fit(FontId font, std::string_view text, std::int32_t width);
    /// The byte offset of the character edge nearest to `x`, and the x of an edge; for carets. Left-to-right
    /// order.
    std::size_t OffsetAt(FontId font, std::string_view text, std::int32_t x);

    /// Draws with the line's top left at (x, y), inside `clip`, which lies within the surface. Returns the
    /// width.
    std::int32_t Draw(Surface& surface, const tvok_Rect& clip, std::int32_t x, std::int32_t y, FontId font,
                      std::string_view text, Pixel color);

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace tvok::soft
