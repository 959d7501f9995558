#include "tvok/host/desktop/gdi/DeviceContext_private.h"

#include <cstring>

#include "tvok/host/desktop/text/LineBreaker.h"
#include "tvok/records/text.h"

namespace tvok::soft {

namespace {

constexpr std::size_t nowhere = std::string_view::npos;

/// A text as it is shown, and the place of the character that is underlined.
struct Caption {
    std::string_view text;
    std::size_t mnemonic = nowhere;
};

/// Takes out the marks: "&&" shows one "&", any other "&" underlines what follows it. The last mark counts.
Caption WithoutMarks(std::string_view text, std::string& shown) {
    if (text.find('&') == nowhere) return {text, nowhere};
    Caption caption;
    shown.clear();
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '&') {
            shown += text[i];
        } else if (++i < text.size()) {
            if (text[i] != '&') caption.mnemonic = shown.size();
            shown += text[i];
        }
    }
    caption.text = shown;
    return caption;
}

/// Calls `line(begin, end)` for each line between line ends: CR LF, LF or CR.
template<class Visit>
void SplitLines(std::string_view text, Visit line) {
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find_first_of("\r\n", begin), text.size());
        line(begin, end);
        begin = end + (text.substr(end, 2) == "\r\n" ? 2 : 1);
    }
}

std::int64_t WidthOf(const tvok_Rect& rect) {
    return std::int64_t{rect.Right} - rect.Left;
}

std::int64_t LineLeft(const tvok_Rect& rect, std::int64_t lineWidth, std::int32_t flags) {
    if (flags & host::DT_RIGHT) return rect.Right - lineWidth;
    if (flags & host::DT_CENTER) return rect.Left + (WidthOf(rect) - lineWidth) / 2;
    return rect.Left;
}

std::int64_t FirstTop(const tvok_Rect& rect, std::int32_t lineHeight, std::int32_t flags) {
    const std::int64_t spare = std::int64_t{rect.bottom} - rect.Top - lineHeight;
    if (!(flags & host::DT_SINGLELINE)) return rect.Top;
    if (flags & host::DT_VCENTER) return rect.Top + spare / 2;
    if (flags & host::DT_BOTTOM) return rect.Top + spare;
    return rect.Top;
}

} // namespace

template<class Visit>
void DeviceContext::EachLine(std::string_view text, std::int64_t width, std::int32_t flags, Visit line) {
    if (flags & host::DT_SINGLELINE) return line(0, text.size());
    if (!(flags & host::DT_WORDBREAK)) return SplitLines(text, line);
    for (const Line& part : BreakLines(text_, Font(), text, Clamp32(std::max<std::int64_t>(width, 0))))
        line(part.begin, part.end);
}

std::int32_t DeviceContext::DrawText(std::string_view text, tvok_Rect& rect, std::int32_t flags) {
    const std::int32_t lineHeight = Metrics().height;
    const Caption caption =
        (flags & host::DT_NOPREFIX) ? Caption{text, nowhere} : WithoutMarks(text, scratch_);
    if (flags & host::DT_CALCRECT) return CalculateText(caption.text, rect, flags);
    if (caption.text.empty()) return lineHeight;

    const tvok_Rect limit = (flags & host::DT_NOCLIP) ? bounds_ : Placed(rect);
    const std::int64_t first = FirstTop(rect, lineHeight, flags);
    std::int64_t top = first;
    EachLine(caption.text, WidthOf(rect), flags, [&](std::size_t begin, std::size_t end) {
        const std::string_view line = caption.text.substr(begin, end - begin);
        const std::int64_t left = LineLeft(rect, LineWidth(line, flags), flags);
        PutLine(limit, {left, top}, line, flags);
        if (caption.mnemonic >= begin && caption.mnemonic < end)
            UnderlineCharacter(limit, {left, top}, line, caption.mnemonic - begin, flags);
        top += lineHeight;
    });
    const bool isPlaced = (flags & host::DT_SINGLELINE) && (flags & (host::DT_VCENTER | host::DT_BOTTOM));
    return Clamp32(top - (isPlaced ? rect.Top : first));
}

std::int32_t DeviceContext::CalculateText(std::string_view text, tvok_Rect& rect, std::int32_t flags) {
    const std::int32_t lineHeight = Metrics().height;
    std::int64_t width = 0;
    std::int64_t height = 0;
    EachLine(text, WidthOf(rect), flags, [&](std::size_t begin, std::size_t end) {
        width = std::max(width, LineWidth(text.substr(begin, end - begin), flags));
        height += lineHeight;
    });
    rect.Right = Clamp32(rect.Left + width);
    rect.bottom = Clamp32(rect.Top + height);
    return text.empty() ? lineHeight : Clamp32(height);
}

/// Calls `part(offset, text)` for the pieces between tabs, and gives the width of all. Without DT_EXPANDTABS,
/// and in wrapped text, whose lines end at tabs as at blanks, there is one piece.
template<class Visit>
std::int64_t DeviceContext::EachPiece(std::string_view line, std::int32_t flags, Visit part) {
    if (!(flags & host::DT_EXPANDTABS) || (flags & host::DT_WORDBREAK)) {
        part(0, line);
        return text_.Measure(Font(), line);
    }
    std::int64_t offset = 0;
    for (std::size_t begin = 0;;) {
        const std::size_t end = std::min(line.find('\t', begin), line.size());
        const std::string_view piece = line.substr(begin, end - begin);
        part(offset, piece);
        offset += text_.Measure(Font(), piece);
        if (end == line.size()) return offset;
        offset = (offset / TabWidth() + 1) * TabWidth();
        begin = end + 1;
    }
}

std::int64_t DeviceContext::LineWidth(std::string_view line, std::int32_t flags) {
    return EachPiece(line, flags, [](std::int64_t, std::string_view) {});
}

void DeviceContext::PutLine(const tvok_Rect& limit, WidePoint place, std::string_view line,
                            std::int32_t flags) {
    EachPiece(line, flags, [&](std::int64_t offset, std::string_view piece) {
        if (!piece.empty())
            PutText(limit, {place.x + offset, place.y}, piece, nullptr, bkMode_ == host::OPAQUE_BK);
    });
}

void DeviceContext::UnderlineCharacter(const tvok_Rect& limit, WidePoint place, std::string_view line,
                                       std::size_t at, std::int32_t flags) {
    const FontMetrics& metrics = text_.Metrics(Font());
    std::size_t behind = at;
    NextCharacter(line, behind);
    const std::int64_t left = place.x + LineWidth(line.substr(0, at), flags);
    const std::int64_t right = left + text_.Measure(Font(), line.substr(at, behind - at));
    const std::int64_t top = place.y + metrics.ascent + metrics.underline;
    Put(Intersection(limit, Placed({left, top, right, top + metrics.lineWidth})), PixelOf(textColor_));
}

/// Eight average letters.
std::int32_t DeviceContext::TabWidth() {
    constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    if (tabWidth_ == 0)
        tabWidth_ =
            std::max(1, 8 * text_.Measure(Font(), letters) / static_cast<std::int32_t>(letters.size()));
    return tabWidth_;
}

} // namespace tvok::soft
