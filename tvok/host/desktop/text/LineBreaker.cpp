#include "tvok/host/desktop/text/LineBreaker.h"

#include <algorithm>
#include <string>

#include "tvok/host/desktop/text/characters.h"
#include "tvok/records/text.h"

namespace tvok::soft {

namespace {

constexpr std::u32string_view closing = U"\u3001\u3002\u3005\u3009\u300B\u300D\u300F\u3011\u3015\u3017\u30FB"
                                        U"\u30FC\uFF01\uFF09\uFF0C\uFF0E\uFF1A\uFF1B\uFF1F\uFF3D\uFF5D"
                                        U"!),.:;?]}";
constexpr std::u32string_view opening = U"\u3008\u300A\u300C\u300E\u3010\u3014\u3016\uFF08\uFF3B\uFF5B([{";

bool IsBlank(char byte) {
    return byte == ' ' || byte == '\t';
}

bool Holds(std::u32string_view set, char32_t character) {
    return set.find(character) != std::u32string_view::npos;
}

bool BreaksBetween(char32_t before, char32_t character) {
    if (!IsEastAsian(before) && !IsEastAsian(character)) return false;
    if (ContinuesUnit(before, character)) return false;
    return !Holds(opening, before) && !Holds(closing, character);
}

std::size_t SkipBlanks(std::string_view text, std::size_t place) {
    while (place < text.size() && IsBlank(text[place])) ++place;
    return place;
}

/// The end of the word that begins at `place`: the blank behind it, a break inside, or the text's end.
std::size_t WordEnd(std::string_view text, std::size_t place) {
    char32_t before = NextCharacter(text, place);
    while (place < text.size() && !IsBlank(text[place])) {
        std::size_t behind = place;
        const char32_t character = NextCharacter(text, behind);
        if (BreaksBetween(before, character)) break;
        before = character;
        place = behind;
    }
    return place;
}

/// Breaks a paragraph: text without line ends that stands at `offset` of the whole text.
class Paragraph {
public:
    Paragraph(TextEngine& engine, FontId font, std::string_view text, std::int32_t width)
        : engine_(engine), font_(font), text_(text), width_(width) {}

    void Break(std::size_t offset, std::vector<Line>& lines) {
        std::size_t begin = 0;
        do {
            const std::size_t end = LineEnd(begin);
            lines.push_back({offset + begin, offset + end, Measured(begin, end)});
            begin = SkipBlanks(text_, end);
        } while (begin < text_.size());
    }

private:
    std::int32_t Measured(std::size_t begin, std::size_t end) {
        return engine_.Measure(font_, text_.substr(begin, end - begin));
    }

    /// Blanks at the start of a paragraph belong to its first word.
    std::size_t LineEnd(std::size_t begin) {
        const std::size_t limit = begin + LongestFit(begin);
        std::size_t end = begin;
        for (std::size_t place = SkipBlanks(text_, begin); place < text_.size();) {
            const std::size_t wordEnd = WordEnd(text_, place);
            if (wordEnd > limit && end > begin) return end;
            end = wordEnd;
            if (end > limit) return end;
            place = SkipBlanks(text_, wordEnd);
        }
        return end;
    }

    /// Bytes from `begin` on that fit. Only as much text as a line may hold is looked at.
    std::size_t LongestFit(std::size_t begin) {
        for (std::size_t size = 256;; size *= 2) {
            const std::string_view part = text_.substr(begin, size);
            const std::size_t fit = engine_.Fit(font_, part, width_);
            if (fit + 32 < part.size() || begin + part.size() == text_.size()) return fit;
        }
    }

    TextEngine& engine_;
    FontId font_;
    std::string_view text_;
    std::int32_t width_;
};

} // namespace

std::vector<Line> BreakLines(TextEngine& engine, FontId font, std::string_view text, std::int32_t width) {
    std::vector<Line> lines;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find_first_of("\r\n", begin), text.size());
        Paragraph(engine, font, text.substr(begin, end - begin), width).Break(begin, lines);
        const bool isPair = text.substr(end, 2) == "\r\n";
        begin = end + (isPair ? 2 : 1);
    }
    return lines;
}

} // namespace tvok::soft
