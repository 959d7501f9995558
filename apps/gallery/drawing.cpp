#include "apps/gallery/drawing.h"

#include "tvok/engine/dgi.h"

namespace gallery {

using namespace tvok::host;

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

} // namespace gallery
