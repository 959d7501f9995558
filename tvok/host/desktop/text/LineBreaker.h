/// Breaks texts into lines at words.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "tvok/host/desktop/text/TextEngine.h"

namespace tvok::soft {

/// A line of a text, without its line end and the blanks that a break swallows.
struct Line {
    std::size_t begin = 0; ///< Bytes from the start of the text.
    std::size_t end = 0;
    std::int32_t width = 0; ///< Pixels.

    friend bool operator==(const Line&, const Line&) = default;
};

/// Lines end at CR LF, LF and CR, and where the next word would pass `width` pixels. Breaks are at blanks
/// (U+0020 and tab), which go with them, and between East Asian characters, save before closing and behind
/// opening punctuation. A word wider than `width` stands on a line of its own and passes it. A text that ends
/// with a line end has no empty line behind it; an empty text has no line.
std::vector<Line> BreakLines(TextEngine& engine, FontId font, std::string_view text, std::int32_t width);

} // namespace tvok::soft
