#include "tvok/host/RecordingPlatform.h"

#include <algorithm>
#include <utility>

namespace tvok::host {
namespace {

constexpr std::size_t kNameWidth = 16;
constexpr char kHexDigits[] = "0123456789ABCDEF";

std::string Color(std::int32_t color) {
    const auto bits = static_cast<std::uint32_t>(color);
    std::string text = "#";
    for (const auto shift : {4, 0, 12, 8, 20, 16}) text += kHexDigits[bits >> shift & 15];
    return text;
}

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            (quoted += '\\') += c;
        } else if (byte >= 0x20 && byte < 0x7F) {
            quoted += c;
        } else {
            ((quoted += "\\x") += kHexDigits[byte >> 4]) += kHexDigits[byte & 15];
        }
    }
    return quoted += '"';
}

/// The text of a call that gives a length, or -1 for up to the zero character.
std::string_view TextOf(const char* text, std::int32_t count) {
    if (text == nullptr) return {};
    return count < 0 ? std::string_view(text) : std::string_view(text, static_cast<std::size_t>(count));
}

std::string PointText(std::int32_t x, std::int32_t y) {
    return '(' + std::to_string(x) + ',' + std::to_string(y) + ')';
}

std::string RectText(const tvok_Rect* rect) {
    if (rect == nullptr) return "all";
    return PointText(rect->Left, rect->Top) + '-' + PointText(rect->Right, rect->bottom);
}

std::string PenText(std::int32_t style, std::int32_t width, std::int32_t color) {
    return "pen=" + Color(color) + " width=" + std::to_string(width) + " style=" + std::to_string(style);
}

std::string FontText(const LogFont& font) {
    const std::string_view face(font.lfFaceName, sizeof font.lfFaceName);
    std::string text = "font=" + Quoted(face.substr(0, face.find('\0'))) +
                       " height=" + std::to_string(font.lfHeight) +
                       " weight=" + std::to_string(font.lfWeight);
    if (font.lfItalic != 0) text += " italic";
    if (font.lfUnderline != 0) text += " underline";
    if (font.lfStrikeOut != 0) text += " strikeout";
    return text;
}

} // namespace

/// One line in the making.
class RecordingPlatform::Line {
public:
    Line(RecordingPlatform& owner, std::string_view name) : owner_(owner), text_(name) {
        text_.resize(std::max(text_.size(), kNameWidth - 1), ' ');
    }

    Line& Add(std::string_view word) {
        (text_ += ' ') += word;
        return *this;
    }
    Line& Value(std::string_view name, std::int32_t value) {
        return Add(std::string(name) + '=' + std::to_string(value));
    }
    Line& Window(Handle hWnd) { return Number("hwnd", hWnd, owner_.windows_); }
    Line& Context(Handle hDC) { return Number("hdc", hDC, owner_.contexts_); }
    Line& Images(Handle list) { return Number("images", list, owner_.imageLists_); }
    Line& Object(Handle object) { return Add(owner_.Object(object)); }
    Line& Rect(const tvok_Rect& rect) { return Add(RectText(&rect)); }
    Line& Gives() { return Add("->"); }

    void Write() const { owner_.sink_(text_); }

    /// Writes the line of an operation that tells whether it went well.
    bool Done(bool well) {
        if (!well) Add("-> false");
        Write();
        return well;
    }

private:
    Line& Number(std::string_view name, Handle handle, Numbers& numbers) {
        if (handle == 0) return Value(name, 0);
        const auto [found, fresh] = numbers.try_emplace(handle, numbers.size() + 1);
        return Value(name, static_cast<std::int32_t>(found->second));
    }

    RecordingPlatform& owner_;
    std::string text_;
};

RecordingPlatform::RecordingPlatform(Platform& next, Sink sink) : next_(next), sink_(std::move(sink)) {}

std::string RecordingPlatform::Object(Handle object) {
    if (object == 0) return "object=0";
    if (const auto known = objects_.find(object); known != objects_.end()) return known->second;
    const auto [found, fresh] = strangers_.try_emplace(object, strangers_.size() + 1);
    return "object=" + std::to_string(found->second);
}

// Windows.

bool RecordingPlatform::GetClientRect(Handle hWnd, tvok_Rect& rect) {
    const bool well = next_.GetClientRect(hWnd, rect);
    return Line(*this, "GetClientRect").Window(hWnd).Gives().Rect(rect).Done(well);
}

bool RecordingPlatform::GetWindowRect(Handle hWnd, tvok_Rect& rect) {
    const bool well = next_.GetWindowRect(hWnd, rect);
    return Line(*this, "GetWindowRect").Window(hWnd).Gives().Rect(rect).Done(well);
}

bool RecordingPlatform::ClientToScreen(Handle hWnd, Point& point) {
    Line line(*this, "ClientToScreen");
    line.Window(hWnd).Add(PointText(point.x, point.y));
    const bool well = next_.ClientToScreen(hWnd, point);
    return line.Gives().Add(PointText(point.x, point.y)).Done(well);
}

bool RecordingPlatform::ScreenToClient(Handle hWnd, Point& point) {
    Line line(*this, "ScreenToClient");
    line.Window(hWnd).Add(PointText(point.x, point.y));
    const bool well = next_.ScreenToClient(hWnd, point);
    return line.Gives().Add(PointText(point.x, point.y)).Done(well);
}

Handle RecordingPlatform::GetFocus() {
    const auto hWnd = next_.GetFocus();
    Line(*this, "GetFocus").Gives().Window(hWnd).Write();
    return hWnd;
}

Handle RecordingPlatform::SetFocus(Handle hWnd) {
    Line(*this, "SetFocus").Window(hWnd).Write();
    return next_.SetFocus(hWnd);
}

Handle RecordingPlatform::SetCapture(Handle hWnd) {
    Line(*this, "SetCapture").Window(hWnd).Write();
    return next_.SetCapture(hWnd);
}

Handle RecordingPlatform::GetCapture() {
    const auto hWnd = next_.GetCapture();
    Line(*this, "GetCapture").Gives().Window(hWnd).Write();
    return hWnd;
}

bool RecordingPlatform::ReleaseCapture() {
    Line(*this, "ReleaseCapture").Write();
    return next_.ReleaseCapture();
}

Handle RecordingPlatform::GetParent(Handle hWnd) {
    const auto parent = next_.GetParent(hWnd);
    Line(*this, "GetParent").Window(hWnd).Gives().Window(parent).Write();
    return parent;
}

Handle RecordingPlatform::SetParent(Handle hChild, Handle hNewParent) {
    Line(*this, "SetParent").Window(hChild).Add("to").Window(hNewParent).Write();
    return next_.SetParent(hChild, hNewParent);
}

bool RecordingPlatform::SetWindowPos(Handle hWnd, Handle hAfter, std::int32_t x, std::int32_t y,
                                     std::int32_t cx, std::int32_t cy, std::int32_t flags) {
    Line line(*this, "SetWindowPos");
    line.Window(hWnd);
    hAfter > HWND_BOTTOM ? line.Add("after").Window(hAfter) : line.Value("after", hAfter);
    line.Add("at " + PointText(x, y)).Add("size " + PointText(cx, cy)).Value("flags", flags).Write();
    return next_.SetWindowPos(hWnd, hAfter, x, y, cx, cy, flags);
}

bool RecordingPlatform::ShowWindow(Handle hWnd, bool show) {
    Line(*this, "ShowWindow").Window(hWnd).Value("show", show ? 1 : 0).Write();
    return next_.ShowWindow(hWnd, show);
}

bool RecordingPlatform::IsWindowVisible(Handle hWnd) {
    return Line(*this, "IsWindowVisible").Window(hWnd).Done(next_.IsWindowVisible(hWnd));
}

std::int32_t RecordingPlatform::GetWindowExStyle(Handle hWnd) {
    const auto style = next_.GetWindowExStyle(hWnd);
    Line(*this, "GetWindowExStyle").Window(hWnd).Gives().Value("style", style).Write();
    return style;
}

std::int32_t RecordingPlatform::SetWindowExStyle(Handle hWnd, std::int32_t style) {
    Line(*this, "SetWindowExStyle").Window(hWnd).Value("style", style).Write();
    return next_.SetWindowExStyle(hWnd, style);
}

// Update regions and painting.

bool RecordingPlatform::InvalidateRect(Handle hWnd, const tvok_Rect* rect, bool erase) {
    const bool well = next_.InvalidateRect(hWnd, rect, erase);
    return Line(*this, "InvalidateRect")
        .Window(hWnd)
        .Add(RectText(rect))
        .Value("erase", erase ? 1 : 0)
        .Done(well);
}

bool RecordingPlatform::UpdateWindow(Handle hWnd) {
    Line(*this, "UpdateWindow").Window(hWnd).Write();
    return next_.UpdateWindow(hWnd);
}

Handle RecordingPlatform::BeginPaint(Handle hWnd, PaintStruct& paint) {
    const auto hDC = next_.BeginPaint(hWnd, paint);
    Line(*this, "BeginPaint").Window(hWnd).Gives().Context(hDC).Rect(paint.rcPaint).Write();
    return hDC;
}

bool RecordingPlatform::EndPaint(Handle hWnd, const PaintStruct& paint) {
    return Line(*this, "EndPaint").Window(hWnd).Done(next_.EndPaint(hWnd, paint));
}

bool RecordingPlatform::ScrollDC(Handle hDC, std::int32_t dx, std::int32_t dy, const tvok_Rect* scroll,
                                 const tvok_Rect* clip, Handle hUpdateRegion, tvok_Rect* update) {
    Line line(*this, "ScrollDC");
    line.Context(hDC).Add("by " + PointText(dx, dy)).Add(RectText(scroll)).Add("clip " + RectText(clip));
    const bool well = next_.ScrollDC(hDC, dx, dy, scroll, clip, hUpdateRegion, update);
    if (update != nullptr) line.Gives().Rect(*update);
    return line.Done(well);
}

// Device contexts and drawing objects.

Handle RecordingPlatform::GetWindowDC(Handle hWnd) {
    const auto hDC = next_.GetWindowDC(hWnd);
    Line(*this, "GetWindowDC").Window(hWnd).Gives().Context(hDC).Write();
    return hDC;
}

bool RecordingPlatform::ReleaseDC(Handle hWnd, Handle hDC) {
    return Line(*this, "ReleaseDC").Window(hWnd).Context(hDC).Done(next_.ReleaseDC(hWnd, hDC));
}

bool RecordingPlatform::GetDCOrgEx(Handle hDC, Point& point) {
    const bool well = next_.GetDCOrgEx(hDC, point);
    return Line(*this, "GetDCOrgEx").Context(hDC).Gives().Add(PointText(point.x, point.y)).Done(well);
}

std::int32_t RecordingPlatform::GetDeviceCaps(Handle hDC, std::int32_t index) {
    const auto value = next_.GetDeviceCaps(hDC, index);
    Line(*this, "GetDeviceCaps")
        .Context(hDC)
        .Value("index", index)
        .Gives()
        .Add(std::to_string(value))
        .Write();
    return value;
}

Handle RecordingPlatform::CreatePen(std::int32_t style, std::int32_t width, std::int32_t color) {
    const auto pen = next_.CreatePen(style, width, color);
    if (pen != 0) objects_[pen] = PenText(style, width, color);
    Line(*this, "CreatePen").Add(PenText(style, width, color)).Done(pen != 0);
    return pen;
}

Handle RecordingPlatform::CreateSolidBrush(std::int32_t color) {
    const auto brush = next_.CreateSolidBrush(color);
    if (brush != 0) objects_[brush] = "brush=" + Color(color);
    Line(*this, "CreateSolidBrush").Add("brush=" + Color(color)).Done(brush != 0);
    return brush;
}

Handle RecordingPlatform::CreateFontIndirectA(const LogFont& font) {
    const auto made = next_.CreateFontIndirectA(font);
    if (made != 0) objects_[made] = FontText(font);
    Line(*this, "CreateFontIndirectA").Add(FontText(font)).Done(made != 0);
    return made;
}

Handle RecordingPlatform::GetStockObject(std::int32_t index) {
    const auto object = next_.GetStockObject(index);
    if (object != 0) objects_[object] = "stock=" + std::to_string(index);
    Line(*this, "GetStockObject").Add("stock=" + std::to_string(index)).Done(object != 0);
    return object;
}

Handle RecordingPlatform::SelectObject(Handle hDC, Handle object) {
    const auto before = next_.SelectObject(hDC, object);
    Line(*this, "SelectObject").Context(hDC).Object(object).Gives().Object(before).Write();
    return before;
}

bool RecordingPlatform::DeleteObject(Handle object) {
    Line line(*this, "DeleteObject");
    line.Object(object);
    const bool well = line.Done(next_.DeleteObject(object));
    if (well) objects_.erase(object);
    return well;
}

std::int32_t RecordingPlatform::GetObjectA(Handle object, std::int32_t bytes, void* buffer) {
    const auto copied = next_.GetObjectA(object, bytes, buffer);
    Line(*this, "GetObjectA")
        .Object(object)
        .Value("bytes", bytes)
        .Gives()
        .Add(std::to_string(copied))
        .Write();
    return copied;
}

std::int32_t RecordingPlatform::SetTextColor(Handle hDC, std::int32_t color) {
    Line(*this, "SetTextColor").Context(hDC).Add(Color(color)).Write();
    return next_.SetTextColor(hDC, color);
}

std::int32_t RecordingPlatform::SetBkColor(Handle hDC, std::int32_t color) {
    Line(*this, "SetBkColor").Context(hDC).Add(Color(color)).Write();
    return next_.SetBkColor(hDC, color);
}

std::int32_t RecordingPlatform::SetBkMode(Handle hDC, std::int32_t mode) {
    Line(*this, "SetBkMode").Context(hDC).Value("mode", mode).Write();
    return next_.SetBkMode(hDC, mode);
}

std::int32_t RecordingPlatform::SetTextAlign(Handle hDC, std::int32_t align) {
    Line(*this, "SetTextAlign").Context(hDC).Value("align", align).Write();
    return next_.SetTextAlign(hDC, align);
}

std::int32_t RecordingPlatform::SetROP2(Handle hDC, std::int32_t mode) {
    Line(*this, "SetROP2").Context(hDC).Value("mode", mode).Write();
    return next_.SetROP2(hDC, mode);
}

// Drawing.

bool RecordingPlatform::FillRect(Handle hDC, const tvok_Rect& rect, Handle brush) {
    const bool well = next_.FillRect(hDC, rect, brush);
    return Line(*this, "FillRect").Context(hDC).Rect(rect).Object(brush).Done(well);
}

bool RecordingPlatform::FrameRect(Handle hDC, const tvok_Rect& rect, Handle brush) {
    const bool well = next_.FrameRect(hDC, rect, brush);
    return Line(*this, "FrameRect").Context(hDC).Rect(rect).Object(brush).Done(well);
}

bool RecordingPlatform::Rectangle(Handle hDC, std::int32_t left, std::int32_t top, std::int32_t right,
                                  std::int32_t bottom) {
    const bool well = next_.Rectangle(hDC, left, top, right, bottom);
    return Line(*this, "Rectangle").Context(hDC).Rect({left, top, right, bottom}).Done(well);
}

bool RecordingPlatform::MoveToEx(Handle hDC, std::int32_t x, std::int32_t y, Point* before) {
    const bool well = next_.MoveToEx(hDC, x, y, before);
    return Line(*this, "MoveToEx").Context(hDC).Add(PointText(x, y)).Done(well);
}

bool RecordingPlatform::LineTo(Handle hDC, std::int32_t x, std::int32_t y) {
    return Line(*this, "LineTo").Context(hDC).Add(PointText(x, y)).Done(next_.LineTo(hDC, x, y));
}

bool RecordingPlatform::DrawFocusRect(Handle hDC, const tvok_Rect& rect) {
    return Line(*this, "DrawFocusRect").Context(hDC).Rect(rect).Done(next_.DrawFocusRect(hDC, rect));
}

bool RecordingPlatform::DrawEdge(Handle hDC, tvok_Rect& rect, std::int32_t edge, std::int32_t flags) {
    Line line(*this, "DrawEdge");
    line.Context(hDC).Rect(rect).Value("edge", edge).Value("flags", flags);
    return line.Done(next_.DrawEdge(hDC, rect, edge, flags));
}

bool RecordingPlatform::DrawFrameControl(Handle hDC, tvok_Rect& rect, std::int32_t type, std::int32_t state) {
    Line line(*this, "DrawFrameControl");
    line.Context(hDC).Rect(rect).Value("type", type).Value("state", state);
    return line.Done(next_.DrawFrameControl(hDC, rect, type, state));
}

bool RecordingPlatform::ExtTextOutA(Handle hDC, std::int32_t x, std::int32_t y, std::int32_t options,
                                    const tvok_Rect* rect, const char* text, std::int32_t count,
                                    const std::int32_t* dx) {
    const bool well = next_.ExtTextOutA(hDC, x, y, options, rect, text, count, dx);
    Line line(*this, "ExtTextOutA");
    line.Context(hDC).Add("at " + PointText(x, y)).Value("flags", options);
    if (rect != nullptr) line.Rect(*rect);
    line.Add(Quoted(TextOf(text, count)));
    for (std::int32_t i = 0; dx != nullptr && i < count; ++i) line.Value("dx", dx[i]);
    return line.Done(well);
}

std::int32_t RecordingPlatform::DrawTextA(Handle hDC, const char* text, std::int32_t count, tvok_Rect& rect,
                                          std::int32_t flags) {
    Line line(*this, "DrawTextA");
    line.Context(hDC).Rect(rect).Value("flags", flags).Add(Quoted(TextOf(text, count)));
    const auto height = next_.DrawTextA(hDC, text, count, rect, flags);
    if ((flags & DT_CALCRECT) != 0) line.Gives().Rect(rect);
    line.Write();
    return height;
}

bool RecordingPlatform::ImageList_Draw(Handle imageList, std::int32_t index, Handle hDC, std::int32_t x,
                                       std::int32_t y, std::int32_t style) {
    const bool well = next_.ImageList_Draw(imageList, index, hDC, x, y, style);
    return Line(*this, "ImageList_Draw")
        .Images(imageList)
        .Value("index", index)
        .Context(hDC)
        .Add("at " + PointText(x, y))
        .Value("style", style)
        .Done(well);
}

// System.

std::int32_t RecordingPlatform::GetSysColor(std::int32_t index) {
    const auto color = next_.GetSysColor(index);
    Line(*this, "GetSysColor").Value("index", index).Gives().Add(Color(color)).Write();
    return color;
}

std::int32_t RecordingPlatform::GetSystemMetrics(std::int32_t index) {
    const auto value = next_.GetSystemMetrics(index);
    Line(*this, "GetSystemMetrics").Value("index", index).Gives().Add(std::to_string(value)).Write();
    return value;
}

std::int32_t RecordingPlatform::GetAsyncKeyState(std::int32_t key) {
    const auto state = next_.GetAsyncKeyState(key);
    Line(*this, "GetAsyncKeyState").Value("key", key).Gives().Add(std::to_string(state)).Write();
    return state;
}

bool RecordingPlatform::GetCursorPos(Point& point) {
    const bool well = next_.GetCursorPos(point);
    return Line(*this, "GetCursorPos").Gives().Add(PointText(point.x, point.y)).Done(well);
}

bool RecordingPlatform::PostMessageA(Handle hWnd, std::int32_t message, std::int32_t wParam,
                                     std::int32_t lParam) {
    const bool well = next_.PostMessageA(hWnd, message, wParam, lParam);
    return Line(*this, "PostMessageA")
        .Window(hWnd)
        .Value("message", message)
        .Value("wParam", wParam)
        .Value("lParam", lParam)
        .Done(well);
}

void RecordingPlatform::DoEvents() {
    Line(*this, "DoEvents").Write();
    next_.DoEvents();
}

} // namespace tvok::host
