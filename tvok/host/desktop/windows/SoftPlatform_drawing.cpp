/// Device contexts, drawing objects, drawing, colours and metrics.
#include <string_view>

#include "tvok/host/desktop/gdi/Frames.h"
#include "tvok/host/desktop/windows/SoftPlatform.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok::soft {

namespace {

std::string_view TextOf(const char* text, std::int32_t count) {
    if (!text) return {};
    if (count < 0) return text;
    return {text, static_cast<std::size_t>(count)};
}

} // namespace

host::Handle SoftPlatform::GetWindowDC(host::Handle hWnd) {
    Window* window = Find(hWnd);
    return hWnd == 0 || window ? world_.windows.OpenContext(window) : 0;
}

bool SoftPlatform::ReleaseDC(host::Handle, host::Handle hDC) {
    return world_.windows.CloseContext(hDC);
}

bool SoftPlatform::GetDCOrgEx(host::Handle hDC, host::Point& point) {
    if (!Context(hDC)) return false;
    point = world_.windows.ContextOrigin(hDC);
    return true;
}

std::int32_t SoftPlatform::GetDeviceCaps(host::Handle hDC, std::int32_t index) {
    if (!Context(hDC)) return 0;
    constexpr std::int32_t kBits = 32;
    switch (index) {
    case host::LOGPIXELSX:
    case host::LOGPIXELSY: return world_.theme.dotsPerInch;
    case host::HORZRES: return WidthOf(world_.display->Screen());
    case host::VERTRES: return HeightOf(world_.display->Screen());
    case host::BITSPIXEL: return kBits;
    default: return 0;
    }
}

host::Handle SoftPlatform::CreatePen(std::int32_t style, std::int32_t width, std::int32_t color) {
    return world_.objects.Add(Pen{style, width, color});
}

host::Handle SoftPlatform::CreateSolidBrush(std::int32_t color) {
    return world_.objects.Add(Brush{false, color});
}

host::Handle SoftPlatform::CreateFontIndirectA(const host::LogFont& font) {
    return world_.objects.Add(FontOf(font));
}

host::Handle SoftPlatform::GetStockObject(std::int32_t index) {
    return world_.objects.Stock(index);
}

host::Handle SoftPlatform::SelectObject(host::Handle hDC, host::Handle object) {
    DeviceContext* context = Context(hDC);
    return context ? context->Select(object) : 0;
}

bool SoftPlatform::DeleteObject(host::Handle object) {
    return world_.objects.Delete(object);
}

std::int32_t SoftPlatform::GetObjectA(host::Handle object, std::int32_t bytes, void* buffer) {
    return world_.objects.Describe(object, bytes, buffer);
}

std::int32_t SoftPlatform::SetTextColor(host::Handle hDC, std::int32_t color) {
    DeviceContext* context = Context(hDC);
    return context ? context->TextColor(color) : 0;
}

std::int32_t SoftPlatform::SetBkColor(host::Handle hDC, std::int32_t color) {
    DeviceContext* context = Context(hDC);
    return context ? context->BkColor(color) : 0;
}

std::int32_t SoftPlatform::SetBkMode(host::Handle hDC, std::int32_t mode) {
    DeviceContext* context = Context(hDC);
    return context ? context->BkMode(mode) : 0;
}

std::int32_t SoftPlatform::SetTextAlign(host::Handle hDC, std::int32_t align) {
    DeviceContext* context = Context(hDC);
    return context ? context->TextAlign(align) : 0;
}

std::int32_t SoftPlatform::SetROP2(host::Handle hDC, std::int32_t mode) {
    DeviceContext* context = Context(hDC);
    return context ? context->Rop2(mode) : 0;
}

bool SoftPlatform::FillRect(host::Handle hDC, const tvok_Rect& rect, host::Handle brush) {
    DeviceContext* context = Context(hDC);
    return context && context->FillRect(rect, brush);
}

bool SoftPlatform::FrameRect(host::Handle hDC, const tvok_Rect& rect, host::Handle brush) {
    DeviceContext* context = Context(hDC);
    return context && context->FrameRect(rect, brush);
}

bool SoftPlatform::Rectangle(host::Handle hDC, std::int32_t left, std::int32_t top, std::int32_t right,
                             std::int32_t bottom) {
    DeviceContext* context = Context(hDC);
    return context && context->Rectangle({left, top, right, bottom});
}

bool SoftPlatform::MoveToEx(host::Handle hDC, std::int32_t x, std::int32_t y, host::Point* before) {
    DeviceContext* context = Context(hDC);
    return context && context->MoveTo(x, y, before);
}

bool SoftPlatform::LineTo(host::Handle hDC, std::int32_t x, std::int32_t y) {
    DeviceContext* context = Context(hDC);
    return context && context->LineTo(x, y);
}

bool SoftPlatform::DrawFocusRect(host::Handle hDC, const tvok_Rect& rect) {
    DeviceContext* context = Context(hDC);
    return context && context->FocusRect(rect);
}

bool SoftPlatform::DrawEdge(host::Handle hDC, tvok_Rect& rect, std::int32_t edge, std::int32_t flags) {
    DeviceContext* context = Context(hDC);
    return context && soft::DrawEdge(*context, world_.theme, rect, edge, flags);
}

bool SoftPlatform::DrawFrameControl(host::Handle hDC, tvok_Rect& rect, std::int32_t type,
                                    std::int32_t state) {
    DeviceContext* context = Context(hDC);
    return context && soft::DrawFrameControl(*context, world_.theme, rect, type, state);
}

bool SoftPlatform::ExtTextOutA(host::Handle hDC, std::int32_t x, std::int32_t y, std::int32_t options,
                               const tvok_Rect* rect, const char* text, std::int32_t count,
                               const std::int32_t* dx) {
    DeviceContext* context = Context(hDC);
    return context && context->TextOut(x, y, options, rect, TextOf(text, count), dx);
}

std::int32_t SoftPlatform::DrawTextA(host::Handle hDC, const char* text, std::int32_t count, tvok_Rect& rect,
                                     std::int32_t flags) {
    DeviceContext* context = Context(hDC);
    return context ? context->DrawText(TextOf(text, count), rect, flags) : 0;
}

bool SoftPlatform::ImageList_Draw(host::Handle imageList, std::int32_t index, host::Handle hDC,
                                  std::int32_t x, std::int32_t y, std::int32_t style) {
    DeviceContext* context = Context(hDC);
    const ImageList* images = world_.Images(imageList);
    return context && images && context->Image(*images, index, x, y, (style & host::ILD_TRANSPARENT) != 0);
}

std::int32_t SoftPlatform::GetSysColor(std::int32_t index) {
    const auto& colors = world_.theme.colors;
    return index >= 0 && index < static_cast<std::int32_t>(colors.size())
               ? colors[static_cast<std::size_t>(index)]
               : 0;
}

std::int32_t SoftPlatform::GetSystemMetrics(std::int32_t index) {
    switch (index) {
    case host::SM_CXSCREEN: return WidthOf(world_.display->Screen());
    case host::SM_CYSCREEN: return HeightOf(world_.display->Screen());
    case host::SM_CXVSCROLL:
    case host::SM_CYHSCROLL:
    case host::SM_CYVSCROLL:
    case host::SM_CXHSCROLL: return world_.theme.scrollBarSize;
    case host::SM_CYCAPTION: return kTitleHeight;
    case host::SM_CXBORDER:
    case host::SM_CYBORDER: return 1;
    case host::SM_CXEDGE:
    case host::SM_CYEDGE: return 2;
    case host::SM_CXDOUBLECLK:
    case host::SM_CYDOUBLECLK: return kDoubleClickSize;
    default: return 0;
    }
}

} // namespace tvok::soft
