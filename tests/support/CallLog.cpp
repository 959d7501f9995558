#include "tests/support/CallLog.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <ostream>
#include <utility>

namespace tvok::test {

using host::Handle;
using host::Point;

namespace {

constexpr Handle cScreenContext = 90, cStockBase = 700, cHollow = cStockBase + host::HOLLOW_BRUSH,
                 cGuiFont = cStockBase + host::DEFAULT_GUI_FONT;

tvok_Rect OrEmpty(const tvok_Rect* rect) {
    return rect ? *rect : tvok_Rect{};
}

} // namespace

std::ostream& operator<<(std::ostream& out, const Call& call) {
    out << call.name << " (" << call.rect.Left << "," << call.rect.Top << ")-(" << call.rect.Right << ","
        << call.rect.bottom << ")";
    for (const auto value : call.values) out << " " << value;
    return out << " \"" << call.text << "\"";
}

Call FillRectCall(const tvok_Rect& rect, std::int32_t color) {
    return {"FillRect", rect, {color}};
}
Call FrameRectCall(const tvok_Rect& rect, std::int32_t color) {
    return {"FrameRect", rect, {color}};
}
Call RectangleCall(const tvok_Rect& rect, std::int32_t penStyle, std::int32_t penWidth, std::int32_t penColor,
                   std::int32_t fill, std::int32_t rasterOperation) {
    return {"Rectangle", rect, {penStyle, penWidth, penColor, fill, rasterOperation}};
}
Call TextCall(std::int32_t x, std::int32_t y, const tvok_Rect& rect, const std::string& text,
              const TextLook& look, std::int32_t options) {
    return {"ExtTextOutA",
            rect,
            {x, y, options, look.textColor, look.backColor, look.align, look.backMode},
            text};
}
Call FocusCall(const tvok_Rect& rect, std::int32_t textColor, std::int32_t backColor) {
    return {"DrawFocusRect", rect, {textColor, backColor}};
}
Call ImageCall(std::int32_t list, std::int32_t index, std::int32_t x, std::int32_t y, std::int32_t style) {
    return {"ImageList_Draw", {}, {list, index, x, y, style}};
}
Call PlainCall(const std::string& name, std::vector<std::int32_t> values, const std::string& text) {
    return {name, {}, std::move(values), text};
}

Calls CallLog::Drawing() const {
    return NamedOneOf({"FillRect", "FrameRect", "Rectangle", "MoveToEx", "LineTo", "DrawFocusRect",
                       "DrawEdge", "DrawFrameControl", "ExtTextOutA", "DrawTextA", "ImageList_Draw",
                       "ScrollDC", "ExDraw"});
}
Calls CallLog::Named(const std::string& name) const {
    return NamedOneOf({name});
}
Calls CallLog::NamedOneOf(const std::set<std::string>& names) const {
    Calls result;
    std::ranges::copy_if(calls_, std::back_inserter(result),
                         [&](const Call& call) { return names.contains(call.name); });
    return result;
}

void CallLog::Note(const std::string& name, std::vector<std::int32_t> values, const tvok_Rect& rect,
                   const std::string& text) {
    if (onCall) onCall(name);
    calls_.push_back({name, rect, std::move(values), text});
}
Handle CallLog::Create(const Object& object) {
    objects_[++nextObject_] = object;
    return nextObject_;
}
std::int32_t CallLog::Exchange(const std::string& name, std::int32_t& field, std::int32_t value) {
    Note(name, {value});
    return std::exchange(field, value);
}
std::int32_t CallLog::ColorOf(Handle object) const {
    const auto found = objects_.find(object);
    return found == objects_.end() ? -1 : found->second.color;
}

bool CallLog::GetClientRect(Handle hWnd, tvok_Rect& rect) {
    Note("GetClientRect", {hWnd});
    rect = client;
    return true;
}
bool CallLog::GetWindowRect(Handle hWnd, tvok_Rect& rect) {
    Note("GetWindowRect", {hWnd});
    rect = window;
    return true;
}
bool CallLog::ClientToScreen(Handle hWnd, Point& point) {
    Note("ClientToScreen", {hWnd});
    point = {point.x + window.Left + 2, point.y + window.Top + 2};
    return true;
}
bool CallLog::ScreenToClient(Handle hWnd, Point& point) {
    Note("ScreenToClient", {hWnd});
    point = {point.x - window.Left - 2, point.y - window.Top - 2};
    return true;
}
Handle CallLog::GetFocus() {
    Note("GetFocus");
    return focus;
}
Handle CallLog::SetFocus(Handle hWnd) {
    return Exchange("SetFocus", focus, hWnd);
}
Handle CallLog::SetCapture(Handle hWnd) {
    return Exchange("SetCapture", capture_, hWnd);
}
Handle CallLog::GetCapture() {
    return capture_;
}
bool CallLog::ReleaseCapture() {
    Exchange("ReleaseCapture", capture_, 0);
    return true;
}
Handle CallLog::GetParent(Handle hWnd) {
    Note("GetParent", {hWnd});
    return 0;
}
Handle CallLog::SetParent(Handle hChild, Handle hNewParent) {
    Note("SetParent", {hChild, hNewParent});
    return 0;
}
bool CallLog::SetWindowPos(Handle hWnd, Handle hAfter, std::int32_t x, std::int32_t y, std::int32_t cx,
                           std::int32_t cy, std::int32_t flags) {
    Note("SetWindowPos", {hWnd, hAfter, x, y, cx, cy, flags});
    return true;
}
bool CallLog::ShowWindow(Handle hWnd, bool show) {
    Note("ShowWindow", {hWnd, show});
    return true;
}
bool CallLog::IsWindowVisible(Handle hWnd) {
    Note("IsWindowVisible", {hWnd});
    return true;
}
std::int32_t CallLog::GetWindowExStyle(Handle hWnd) {
    Note("GetWindowExStyle", {hWnd});
    return 0;
}
std::int32_t CallLog::SetWindowExStyle(Handle hWnd, std::int32_t style) {
    Note("SetWindowExStyle", {hWnd, style});
    return 0;
}

bool CallLog::InvalidateRect(Handle hWnd, const tvok_Rect* rect, bool erase) {
    Note("InvalidateRect", {hWnd, rect ? 1 : 0, erase ? 1 : 0}, OrEmpty(rect));
    return true;
}
bool CallLog::UpdateWindow(Handle hWnd) {
    Note("UpdateWindow", {hWnd});
    return true;
}
Handle CallLog::BeginPaint(Handle hWnd, host::PaintStruct& paint) {
    Note("BeginPaint", {hWnd});
    paint.rcPaint = client;
    return paint.hdc;
}
bool CallLog::EndPaint(Handle hWnd, const host::PaintStruct&) {
    Note("EndPaint", {hWnd});
    return true;
}
bool CallLog::ScrollDC(Handle hDC, std::int32_t dx, std::int32_t dy, const tvok_Rect* scroll,
                       const tvok_Rect* clip, Handle, tvok_Rect* update) {
    Note("ScrollDC", {hDC, dx, dy, scroll ? 1 : 0, clip ? 1 : 0}, OrEmpty(scroll));
    if (update) *update = {};
    return true;
}

Handle CallLog::GetWindowDC(Handle hWnd) {
    Note("GetWindowDC", {hWnd});
    ++openContexts_;
    return cScreenContext;
}
bool CallLog::ReleaseDC(Handle hWnd, Handle hDC) {
    Note("ReleaseDC", {hWnd, hDC});
    --openContexts_;
    return true;
}
bool CallLog::GetDCOrgEx(Handle hDC, Point& point) {
    Note("GetDCOrgEx", {hDC});
    point = contextOrigin;
    return true;
}
std::int32_t CallLog::GetDeviceCaps(Handle hDC, std::int32_t index) {
    Note("GetDeviceCaps", {hDC, index});
    return index == host::LOGPIXELSY ? verticalDpi : 0;
}
Handle CallLog::CreatePen(std::int32_t style, std::int32_t width, std::int32_t color) {
    Note("CreatePen", {style, width, color});
    return Create({true, style, width, color});
}
Handle CallLog::CreateSolidBrush(std::int32_t color) {
    Note("CreateSolidBrush", {color});
    return Create({false, 0, 0, color});
}
Handle CallLog::CreateFontIndirectA(const host::LogFont& font) {
    Note("CreateFontIndirectA", {font.lfHeight}, {}, font.lfFaceName);
    return Create({});
}
Handle CallLog::GetStockObject(std::int32_t index) {
    Note("GetStockObject", {index});
    return cStockBase + index;
}
Handle CallLog::SelectObject(Handle hDC, Handle object) {
    const auto found = objects_.find(object);
    const bool isPen = object == cFirstPen || (found != objects_.end() && found->second.isPen);
    Note("SelectObject", {hDC, object});
    return std::exchange(isPen ? pen : brush, object);
}
bool CallLog::DeleteObject(Handle object) {
    Note("DeleteObject", {object});
    if (object >= cStockBase && object < 1000) return false;
    if (object == pen || object == brush || objects_.erase(object) == 0) {
        ++slips_;
        return false;
    }
    return true;
}
std::int32_t CallLog::GetObjectA(Handle object, std::int32_t bytes, void* buffer) {
    Note("GetObjectA", {object, bytes});
    if (!guiFontReadable || object != cGuiFont) return 0;
    const auto size = std::min(bytes, static_cast<std::int32_t>(sizeof guiFont));
    std::memcpy(buffer, &guiFont, static_cast<std::size_t>(size));
    return size;
}
std::int32_t CallLog::SetTextColor(Handle, std::int32_t color) {
    return Exchange("SetTextColor", textColor, color);
}
std::int32_t CallLog::SetBkColor(Handle, std::int32_t color) {
    return Exchange("SetBkColor", backColor, color);
}
std::int32_t CallLog::SetBkMode(Handle, std::int32_t mode) {
    return Exchange("SetBkMode", backMode, mode);
}
std::int32_t CallLog::SetTextAlign(Handle, std::int32_t align) {
    return Exchange("SetTextAlign", textAlign, align);
}
std::int32_t CallLog::SetROP2(Handle, std::int32_t mode) {
    return Exchange("SetROP2", rasterOperation, mode);
}

bool CallLog::FillRect(Handle, const tvok_Rect& rect, Handle with) {
    Note("FillRect", {ColorOf(with)}, rect);
    return true;
}
bool CallLog::FrameRect(Handle, const tvok_Rect& rect, Handle with) {
    Note("FrameRect", {ColorOf(with)}, rect);
    return true;
}
bool CallLog::Rectangle(Handle, std::int32_t left, std::int32_t top, std::int32_t right,
                        std::int32_t bottom) {
    const auto found = objects_.find(pen);
    const Object line = found == objects_.end() ? Object{} : found->second;
    const std::int32_t fill = brush == cHollow ? -1 : ColorOf(brush);
    Note("Rectangle", {line.style, line.width, line.color, fill, rasterOperation},
         {left, top, right, bottom});
    return true;
}
bool CallLog::MoveToEx(Handle hDC, std::int32_t x, std::int32_t y, Point*) {
    Note("MoveToEx", {hDC, x, y});
    return true;
}
bool CallLog::LineTo(Handle hDC, std::int32_t x, std::int32_t y) {
    Note("LineTo", {hDC, x, y});
    return true;
}
bool CallLog::DrawFocusRect(Handle, const tvok_Rect& rect) {
    Note("DrawFocusRect", {textColor, backColor}, rect);
    return true;
}
bool CallLog::DrawEdge(Handle, tvok_Rect& rect, std::int32_t edge, std::int32_t flags) {
    Note("DrawEdge", {edge, flags}, rect);
    return true;
}
bool CallLog::DrawFrameControl(Handle, tvok_Rect& rect, std::int32_t type, std::int32_t state) {
    Note("DrawFrameControl", {type, state}, rect);
    return true;
}
bool CallLog::ExtTextOutA(Handle, std::int32_t x, std::int32_t y, std::int32_t options, const tvok_Rect* rect,
                          const char* text, std::int32_t count, const std::int32_t*) {
    Note("ExtTextOutA", {x, y, options, textColor, backColor, textAlign, backMode}, OrEmpty(rect),
         std::string(text, static_cast<std::size_t>(count)));
    return true;
}
std::int32_t CallLog::DrawTextA(Handle, const char* text, std::int32_t count, tvok_Rect& rect,
                                std::int32_t flags) {
    const std::string drawn =
        count < 0 ? std::string(text) : std::string(text, static_cast<std::size_t>(count));
    Note("DrawTextA", {flags, textColor, backColor, backMode}, rect, drawn);
    return rect.bottom - rect.Top;
}
bool CallLog::ImageList_Draw(Handle imageList, std::int32_t index, Handle, std::int32_t x, std::int32_t y,
                             std::int32_t style) {
    Note("ImageList_Draw", {imageList, index, x, y, style});
    return true;
}

std::int32_t CallLog::GetSysColor(std::int32_t index) {
    Note("GetSysColor", {index});
    return Sys(index);
}
std::int32_t CallLog::GetSystemMetrics(std::int32_t index) {
    Note("GetSystemMetrics", {index});
    const auto found = metrics.find(index);
    return found == metrics.end() ? 0 : found->second;
}
std::int32_t CallLog::GetAsyncKeyState(std::int32_t key) {
    Note("GetAsyncKeyState", {key});
    return keysDown.contains(key) ? keyDownValue : 0;
}
bool CallLog::GetCursorPos(Point& point) {
    point = {};
    return true;
}
bool CallLog::PostMessageA(Handle hWnd, std::int32_t message, std::int32_t wParam, std::int32_t lParam) {
    Note("PostMessageA", {hWnd, message, wParam, lParam});
    return true;
}
void CallLog::DoEvents() {
    Note("DoEvents");
}

} // namespace tvok::test
