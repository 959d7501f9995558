#include "tvok/engine/dgi.h"

#include <cmath>
#include <string_view>

#include "tvok/engine/drawingscopes.h"
#include "tvok/records/Error.h"
#include "tvok/records/numeric.h"
#include "tvok/records/text.h"

namespace tvok::dgi {
namespace {

using host::platform;

Owned SolidBrush(OLE_COLOR color) {
    return Owned(platform().CreateSolidBrush(TranslateColor(color)));
}

void DrawRectangle(host::Handle hDC, const tvok_Rect& rect, host::Handle brush) {
    const Selected inUse(hDC, brush);
    platform().Rectangle(hDC, rect.Left, rect.Top, rect.Right, rect.bottom);
}

std::int32_t ScreenPixelsPerInch() {
    const auto screen = platform().GetWindowDC(0);
    const auto pixels = platform().GetDeviceCaps(screen, host::LOGPIXELSY);
    platform().ReleaseDC(0, screen);
    return pixels;
}

} // namespace

void DrawBoxRect(std::int32_t hDC, const tvok_Rect& rect, std::int32_t width, OLE_COLOR lineColor,
                 OLE_COLOR fillColor, bool fill) {
    const Owned pen(platform().CreatePen(host::PS_INSIDEFRAME, width, TranslateColor(lineColor)));
    const Selected inUse(hDC, pen.handle());
    platform().SetROP2(hDC, host::R2_COPYPEN);
    if (fill) return DrawRectangle(hDC, rect, SolidBrush(fillColor).handle());
    DrawRectangle(hDC, rect, platform().GetStockObject(host::HOLLOW_BRUSH));
}

void FillRectColor(std::int32_t hDC, const tvok_Rect& rect, OLE_COLOR color) {
    platform().FillRect(hDC, rect, SolidBrush(color).handle());
}

void FrameRectColor(std::int32_t hDC, const tvok_Rect& rect, OLE_COLOR color) {
    platform().FrameRect(hDC, rect, SolidBrush(color).handle());
}

void FillRectFrame(std::int32_t hDC, const tvok_Rect& outer, const tvok_Rect& inner, OLE_COLOR color) {
    const Owned brush = SolidBrush(color);
    const auto fill = [&](const tvok_Rect& band) { platform().FillRect(hDC, band, brush.handle()); };
    fill({outer.Left, outer.Top, inner.Left, outer.bottom});
    fill({inner.Right, outer.Top, outer.Right, outer.bottom});
    fill({outer.Left, outer.Top, outer.Right, inner.Top});
    fill({outer.Left, inner.bottom, outer.Right, outer.bottom});
}

std::int32_t TranslateColor(OLE_COLOR color) {
    return color >= 0 ? color : platform().GetSysColor(color & 0xFF);
}

tvok_Rect InflatedRect(const tvok_Rect& rect, std::int32_t d) {
    tvok_Rect grown = rect;
    host::Platform::InflateRect(grown, d, d);
    return grown;
}

tvok_Rect MakeRect(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) {
    return {left, top, right, bottom};
}

tvok_Rect GetClientScreenRect(std::int32_t hWnd) {
    tvok_Rect rect;
    platform().GetClientRect(hWnd, rect);
    host::Point origin;
    platform().ClientToScreen(hWnd, origin);
    host::Platform::OffsetRect(rect, origin.x, origin.y);
    return rect;
}

tvok_Rect RectToWindowDC(std::int32_t hDC, std::int32_t hWnd, const tvok_Rect& rect) {
    host::Point origin;
    platform().GetDCOrgEx(hDC, origin);
    platform().ScreenToClient(hWnd, origin);
    tvok_Rect moved = rect;
    host::Platform::OffsetRect(moved, origin.x, origin.y);
    return moved;
}

bool IsFocusWindow(std::int32_t hWnd) {
    return platform().GetFocus() == hWnd;
}

host::Point PointFromLParam(std::int32_t lParam) {
    const auto bits = static_cast<std::uint32_t>(lParam);
    return {static_cast<std::int16_t>(bits & 0xFFFF), static_cast<std::int16_t>(bits >> 16)};
}

std::int32_t LParamFromPoint(std::int32_t x, std::int32_t y) {
    return static_cast<std::int32_t>((static_cast<std::uint32_t>(x) & 0xFFFF) | static_cast<std::uint32_t>(y)
                                                                                    << 16);
}

std::int32_t PointsToPixels(float points) {
    std::int32_t pixels = 0;
    quietly([&] { pixels = RoundToInt32(std::abs(double{points} * ScreenPixelsPerInch() / 72)); });
    return pixels;
}

std::int32_t TwipsToPixels(float twips, float twipsPerPixel) {
    const std::int64_t dividend = RoundToInt32(double{twips});
    const std::int64_t divisor = RoundToInt32(double{twipsPerPixel});
    if (divisor == 0) throw OverflowError("a pixel has no twips");
    return ToInt32(dividend / divisor);
}

bool GetSystemFont(std::string& name, float& size) {
    host::LogFont font;
    const auto object = platform().GetStockObject(host::DEFAULT_GUI_FONT);
    if (platform().GetObjectA(object, sizeof font, &font) == 0) return false;
    const auto pixelsPerInch = ScreenPixelsPerInch();
    if (pixelsPerInch == 0) return false;
    const std::string_view face(font.lfFaceName, sizeof font.lfFaceName);
    name = Trim(face.substr(0, face.find('\0')));
    size = static_cast<float>(std::abs(font.lfHeight * 72.0 / pixelsPerInch));
    return true;
}

void ApplySystemFont(const host::FontPtr& font, bool setSize) {
    std::string name;
    float size = 0;
    bool known = false;
    quietly([&] { known = GetSystemFont(name, size); });
    if (!known || !font) return;
    quietly([&] { font->Name(name); },
            [&] {
                if (setSize) font->Size(size);
            });
}

bool IsPrimaryButtonDown() {
    const bool swapped = platform().GetSystemMetrics(host::SM_SWAPBUTTON) != 0;
    return platform().GetAsyncKeyState(swapped ? host::VK_RBUTTON : host::VK_LBUTTON) != 0;
}

} // namespace tvok::dgi
