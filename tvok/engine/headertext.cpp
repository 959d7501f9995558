#include "tvok/engine/headertext.h"

#include "tvok/records/numeric.h"

namespace tvok::mtvok {

void ApplyFontStyle(host::Font& font, std::int32_t flags) {
    const auto want = [&](std::int32_t bit, bool is, void (host::Font::*write)(bool)) {
        const bool on = (flags & bit) != 0;
        if (on != is) (font.*write)(on);
    };
    want(vflag::Bold, font.Bold(), &host::Font::Bold);
    want(vflag::Italic, font.Italic(), &host::Font::Italic);
    want(vflag::Strikethrough, font.Strikethrough(), &host::Font::Strikethrough);
    want(vflag::Underline, font.Underline(), &host::Font::Underline);
}

void ApplyFontFlags(std::int32_t hDC, const host::FontPtr& font, std::int32_t flags) {
    host::platform().SetBkMode(hDC, host::OPAQUE_BK);
    ApplyFontStyle(*font, flags);
}

host::Point PlaceCellText(std::int32_t hDC, std::int32_t alignment, const tvok_Rect& cell,
                          std::int32_t margin, std::int32_t textHeight) {
    const std::int64_t y = (std::int64_t{cell.bottom} - cell.Top - textHeight) / 2 + cell.Top;
    std::int64_t x = (std::int64_t{cell.Right} + cell.Left) / 2;
    std::int32_t align = host::TA_CENTER;
    if (alignment == 0) {
        x = std::int64_t{cell.Left} + margin;
        align = host::TA_LEFT;
    } else if (alignment == 1) {
        x = std::int64_t{cell.Right} - margin;
        align = host::TA_RIGHT;
    }
    host::platform().SetTextAlign(hDC, align);
    return {ToInt32(x), ToInt32(y)};
}

} // namespace tvok::mtvok
