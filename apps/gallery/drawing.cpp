#include "apps/gallery/drawing.h"

#include "tvok/engine/dgi.h"

namespace gallery {

using namespace tvok::host;

namespace {

constexpr tvok::OLE_COLOR Rgb(std::int32_t red, std::int32_t green, std::int32_t blue) {
    return red | green << 8 | blue << 16;
}

std::int32_t Channel(tvok::OLE_COLOR color, std::int32_t shift) {
    return tvok::dgi::TranslateColor(color) >> shift & 0xFF;
}

bool WindowIsDark() {
    const tvok::OLE_COLOR window = tvok::cWindowBackground;
    return Channel(window, 0) + Channel(window, 8) + Channel(window, 16) < 3 * 128;
}

} // namespace

Fonts::Fonts() {
    Platform& platform = tvok::host::platform();
    plain_ = platform.GetStockObject(DEFAULT_GUI_FONT);
    LogFont font;
    platform.GetObjectA(plain_, sizeof font, &font);
    font.lfWeight = 700;
    bold_ = platform.CreateFontIndirectA(font);
    font.lfHeight = font.lfHeight * 3 / 2;
    title_ = platform.CreateFontIndirectA(font);
}

Fonts::~Fonts() {
    tvok::quietly([&] { platform().DeleteObject(bold_); }, [&] { platform().DeleteObject(title_); });
}

void DrawLabel(Handle hDC, tvok::tvok_Rect rect, std::string_view text, Handle font, tvok::OLE_COLOR color,
               std::int32_t alignment) {
    Platform& platform = tvok::host::platform();
    const Handle before = font != 0 ? platform.SelectObject(hDC, font) : 0;
    platform.SetBkMode(hDC, TRANSPARENT_BK);
    platform.SetTextAlign(hDC, TA_LEFT);
    platform.SetTextColor(hDC, tvok::dgi::TranslateColor(color));
    platform.DrawTextA(hDC, text.data(), static_cast<std::int32_t>(text.size()), rect,
                       alignment | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    if (before != 0) platform.SelectObject(hDC, before);
}

void DrawBackground(Handle hDC, const tvok::tvok_Rect& area, const Fonts& fonts, std::string_view title,
                    std::string_view line) {
    using namespace tvok;
    const std::int32_t top = area.Top;
    const std::int32_t edge = top + BannerHeight - 1;
    dgi::FillRectColor(hDC, {area.Left, edge + 1, area.Right, area.bottom}, cButtonFace);
    dgi::FillRectColor(hDC, {area.Left, top, area.Right, edge}, cWindowBackground);
    dgi::FillRectColor(hDC, {area.Left, edge, area.Right, edge + 1}, SystemColor(COLOR_BTNSHADOW));
    const std::int32_t left = area.Left + Margin;
    const std::int32_t right = area.Right - Margin;
    DrawLabel(hDC, {left, top + 6, right, top + 34}, title, fonts.Title(), cWindowText);
    DrawLabel(hDC, {left, top + 32, right, top + 52}, line, fonts.Plain(), cWindowText);
}

tvok::OLE_COLOR RisingColor() {
    return WindowIsDark() ? Rgb(110, 214, 150) : Rgb(0, 112, 60);
}

tvok::OLE_COLOR FallingColor() {
    return WindowIsDark() ? Rgb(255, 128, 118) : Rgb(184, 16, 28);
}

tvok::OLE_COLOR StripeColor() {
    const auto mixed = [](std::int32_t shift) {
        const std::int32_t window = Channel(tvok::cWindowBackground, shift);
        return window + (Channel(tvok::cWindowText, shift) - window) * 4 / 100;
    };
    return Rgb(mixed(0), mixed(8), mixed(16));
}

} // namespace gallery
