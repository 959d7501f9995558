/// A platform that passes every call on to another one and writes it as one readable line, for traces that a
/// test or a review compares.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "tvok/host/Platform.h"

namespace tvok::host {

/// The lines are the same in every run that makes the same calls: handles get the numbers 1, 2, … of their
/// first appearance, pens and brushes stand by their colour (`#RRGGBB`), bytes outside printable ASCII as
/// `\xNN`. Results stand behind "->" where they carry something; "-> false" marks an operation that failed.
///
///     FillRect        hdc=1 (0,0)-(20,18) brush=#FFFFFF
///     ExtTextOutA     hdc=1 at (20,2) flags=6 (20,0)-(120,18) "Apples"
///
/// An operation that can send messages is written before it runs, so that what it leads to stands below it.
class RecordingPlatform : public Platform {
public:
    using Sink = std::function<void(std::string_view line)>; ///< Gets each line without a line end.

    /// `next` has to outlive this. It is not made the thread's current platform here: see `SetPlatform`.
    RecordingPlatform(Platform& next, Sink sink);

    bool GetClientRect(Handle hWnd, tvok_Rect& rect) override;
    bool GetWindowRect(Handle hWnd, tvok_Rect& rect) override;
    bool ClientToScreen(Handle hWnd, Point& point) override;
    bool ScreenToClient(Handle hWnd, Point& point) override;
    Handle GetFocus() override;
    Handle SetFocus(Handle hWnd) override;
    Handle SetCapture(Handle hWnd) override;
    Handle GetCapture() override;
    bool ReleaseCapture() override;
    Handle GetParent(Handle hWnd) override;
    Handle SetParent(Handle hChild, Handle hNewParent) override;
    bool SetWindowPos(Handle hWnd, Handle hAfter, std::int32_t x, std::int32_t y, std::int32_t cx,
                      std::int32_t cy, std::int32_t flags) override;
    bool ShowWindow(Handle hWnd, bool show) override;
    bool IsWindowVisible(Handle hWnd) override;
    std::int32_t GetWindowExStyle(Handle hWnd) override;
    std::int32_t SetWindowExStyle(Handle hWnd, std::int32_t style) override;

    bool InvalidateRect(Handle hWnd, const tvok_Rect* rect, bool erase) override;
    bool UpdateWindow(Handle hWnd) override;
    Handle BeginPaint(Handle hWnd, PaintStruct& paint) override;
    bool EndPaint(Handle hWnd, const PaintStruct& paint) override;
    bool ScrollDC(Handle hDC, std::int32_t dx, std::int32_t dy, const tvok_Rect* scroll,
                  const tvok_Rect* clip, Handle hUpdateRegion, tvok_Rect* update) override;

    Handle GetWindowDC(Handle hWnd) override;
    bool ReleaseDC(Handle hWnd, Handle hDC) override;
    bool GetDCOrgEx(Handle hDC, Point& point) override;
    std::int32_t GetDeviceCaps(Handle hDC, std::int32_t index) override;
    Handle CreatePen(std::int32_t style, std::int32_t width, std::int32_t color) override;
    Handle CreateSolidBrush(std::int32_t color) override;
    Handle CreateFontIndirectA(const LogFont& font) override;
    Handle GetStockObject(std::int32_t index) override;
    Handle SelectObject(Handle hDC, Handle object) override;
    bool DeleteObject(Handle object) override;
    std::int32_t GetObjectA(Handle object, std::int32_t bytes, void* buffer) override;
    std::int32_t SetTextColor(Handle hDC, std::int32_t color) override;
    std::int32_t SetBkColor(Handle hDC, std::int32_t color) override;
    std::int32_t SetBkMode(Handle hDC, std::int32_t mode) override;
    std::int32_t SetTextAlign(Handle hDC, std::int32_t align) override;
    std::int32_t SetROP2(Handle hDC, std::int32_t mode) override;

    bool FillRect(Handle hDC, const tvok_Rect& rect, Handle brush) override;
    bool FrameRect(Handle hDC, const tvok_Rect& rect, Handle brush) override;
    bool Rectangle(Handle hDC, std::int32_t left, std::int32_t top, std::int32_t right,
                   std::int32_t bottom) override;
    bool MoveToEx(Handle hDC, std::int32_t x, std::int32_t y, Point* before) override;
    bool LineTo(Handle hDC, std::int32_t x, std::int32_t y) override;
    bool DrawFocusRect(Handle hDC, const tvok_Rect& rect) override;
    bool DrawEdge(Handle hDC, tvok_Rect& rect, std::int32_t edge, std::int32_t flags) override;
    bool DrawFrameControl(Handle hDC, tvok_Rect& rect, std::int32_t type, std::int32_t state) override;
    bool ExtTextOutA(Handle hDC, std::int32_t x, std::int32_t y, std::int32_t options, const tvok_Rect* rect,
                     const char* text, std::int32_t count, const std::int32_t* dx) override;
    std::int32_t DrawTextA(Handle hDC, const char* text, std::int32_t count, tvok_Rect& rect,
                           std::int32_t flags) override;
    bool ImageList_Draw(Handle imageList, std::int32_t index, Handle hDC, std::int32_t x, std::int32_t y,
                        std::int32_t style) override;

    std::int32_t GetSysColor(std::int32_t index) override;
    std::int32_t GetSystemMetrics(std::int32_t index) override;
    std::int32_t GetAsyncKeyState(std::int32_t key) override;
    bool GetCursorPos(Point& point) override;
    bool PostMessageA(Handle hWnd, std::int32_t message, std::int32_t wParam, std::int32_t lParam) override;
    void DoEvents() override;

private:
    class Line;
    using Numbers = std::map<Handle, std::size_t>;

    std::string Object(Handle object);

    Platform& next_;
    Sink sink_;
    Numbers windows_;
    Numbers contexts_;
    Numbers imageLists_;
    Numbers strangers_;                     ///< Objects that were not made through this platform.
    std::map<Handle, std::string> objects_; ///< What each made or stock object looks like in a line.
};

} // namespace tvok::host
