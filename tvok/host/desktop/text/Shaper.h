/// Turns texts into placed glyphs: order of right-to-left parts, joining, marks, faces for each script.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include <hb.h>

#include "tvok/host/desktop/text/BidiLevels.h"
#include "tvok/host/desktop/text/ScaledFont.h"

namespace tvok::soft {

/// A glyph of a run: where its pen stands, in pixels right of the run's start and below its baseline.
struct PlacedGlyph {
    const Glyph* glyph = nullptr;
    std::int32_t x = 0;
    std::int32_t y = 0;
};

/// Where a unit of the text ends, in the order of the text.
struct RunEdge {
    std::size_t offset = 0; ///< Bytes from the start of the text.
    std::int32_t x = 0;     ///< Width of all units up to here.
};

struct ShapedRun {
    std::vector<PlacedGlyph> glyphs; ///< From left to right.
    std::vector<RunEdge> edges;      ///< One for each unit; the last one is the whole text.
    std::int32_t width = 0;
};

class Shaper {
public:
    Shaper();
    ~Shaper();
    Shaper(const Shaper&) = delete;
    Shaper& operator=(const Shaper&) = delete;

    /// Replaces what `run` holds; its memory is used again. The text's direction is left to right, with
    /// right-to-left parts in their own order. Throws `OverflowError` when 32 bits do not hold the width.
    void Shape(ScaledFont& font, std::string_view text, ShapedRun& run);

private:
    /// A part of one level, script and face.
    struct Item {
        std::size_t begin = 0;
        std::size_t end = 0;
        FriBidiLevel level = 0;
        hb_script_t script = HB_SCRIPT_COMMON;
        Face* face = nullptr;
    };

    void Decode(std::string_view text);
    void FindScripts();
    void FindItems(ScaledFont& font);
    void OrderItems();
    std::int64_t ShapeItem(const Item& item, std::int64_t pen, ShapedRun& run);
    void AppendGlyphs(const Item& item, std::int64_t& pen, ShapedRun& run);
    void FindEdges(ShapedRun& run) const;

    hb_buffer_t* buffer_;
    std::vector<std::uint32_t> characters_;
    std::vector<std::size_t> offsets_; ///< Of each character and of the text's end.
    BidiLevels bidi_;
    std::vector<hb_script_t> scripts_;
    std::vector<Item> items_;
    std::vector<std::int64_t> advances_; ///< Width of the unit that starts at each character.
};

} // namespace tvok::soft
