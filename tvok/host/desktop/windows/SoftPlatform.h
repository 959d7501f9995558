/// The platform operations of the software desktop.
#pragma once

#include "tvok/host/Platform.h"

namespace tvok::soft {

class DeviceContext;
class Window;
class World;

class SoftPlatform final : public host::Platform {
public:
    explicit SoftPlatform(World& world) : world_(world) {}

    bool GetClientRect(host::Handle hWnd, tvok_Rect& rect) override;
    bool GetWindowRect(host::Handle hWnd, tvok_Rect& rect) override;
    bool ClientToScreen(host::Handle hWnd, host::Point& point) override;
    bool ScreenToClient(host::Handle hWnd, host::Point& point) override;
    host::Handle GetFocus() override;
    host::Handle SetFocus(host::Handle hWnd) override;
    host::Handle SetCapture(host::Handle hWnd) override;
    host::Handle GetCapture() override;
    bool ReleaseCapture() override;
    host::Handle GetParent(host::Handle hWnd) override;
    host::Handle SetParent(host::Handle hChild, host::Handle hNewParent) override;
    bool SetWindowPos(host::Handle hWnd, host::Handle hAfter, std::int32_t x, std::int32_t y, std::int32_t cx,
                      std::int32_t cy, std::int32_t flags) override;
    bool ShowWindow(host::Handle hWnd, bool show) override;
    bool IsWindowVisible(host::Handle hWnd) override;
    std::int32_t GetWindowExStyle(host::Handle hWnd) override;
    std::int32_t SetWindowExStyle(host::Handle hWnd, std::int32_t style) override;
    bool InvalidateRect(host::Handle hWnd, const tvok_Rect* rect, bool erase) override;
    bool UpdateWindow(host::Handle hWnd) override;
    host::Handle BeginPaint(host::Handle hWnd, host::PaintStruct& paint) override;
    bool EndPaint(host::Handle hWnd, const host::PaintStruct& paint) override;
    bool ScrollDC(host::Handle hDC, std::int32_t dx, std::int32_t dy, const tvok_Rect* scroll,
                  const tvok_Rect* clip, host::Handle hUpdateRegion, tvok_Rect* update) override;
    host::Handle GetWindowDC(host::Handle hWnd) override;
    bool ReleaseDC(host::Handle hWnd, host::Handle hDC) override;
    bool GetDCOrgEx(host::Handle hDC, host::Point& point) override;
    std::int32_t GetDeviceCaps(host::Handle hDC, std::int32_t index) override;
    host::Handle CreatePen(std::int32_t style, std::int32_t width, std::int32_t color) override;
    host::Handle CreateSolidBrush(std::int32_t color) override;
    host::Handle CreateFontIndirectA(const host::LogFont& font) override;
    host::Handle GetStockObject(std::int32_t index) override;
    host::Handle SelectObject(host::Handle hDC, host::Handle object) override;
    bool DeleteObject(host::Handle object) override;
    std::int32_t GetObjectA(host::Handle object, std::int32_t bytes, void* buffer) override;
    std::int32_t SetTextColor(host::Handle hDC, std::int32_t color) override;
    std::int32_t SetBkColor(host::Handle hDC, std::int32_t color) override;
    std::int32_t SetBkMode(host::Handle hDC, std::int32_t mode) override;
    std::int32_t SetTextAlign(host::Handle hDC, std::int32_t align) override;
    std::int32_t SetROP2(host::Handle hDC, std::int32_t mode) override;
    bool FillRect(host::Handle hDC, const tvok_Rect& rect, host::Handle brush) override;
    bool FrameRect(host::Handle hDC, const tvok_Rect& rect, host::Handle brush) override;
    bool Rectangle(host::Handle hDC, std::int32_t left, std::int32_t top, std::int32_t right,
                   std::int32_t bottom) override;
    bool MoveToEx(host::Handle hDC, std::int32_t x, std::int32_t y, host::Point* before) override;
    bool LineTo(host::Handle hDC, std::int32_t x, std::int32_t y) override;
    bool DrawFocusRect(host::Handle hDC, const tvok_Rect& rect) override;
    bool DrawEdge(host::Handle hDC, tvok_Rect& rect, std::int32_t edge, std::int32_t flags) override;
    bool DrawFrameControl(host::Handle hDC, tvok_Rect& rect, std::int32_t type, std::int32_t state) override;
    bool ExtTextOutA(host::Handle hDC, std::int32_t x, std::int32_t y, std::int32_t options,
                     const tvok_Rect* rect, const char* text, std::int32_t count,
                     const std::int32_t* dx = nullptr) override;
    std::int32_t DrawTextA(host::Handle hDC, const char* text, std::int32_t count, tvok_Rect& rect,
                           std::int32_t flags) override;
    bool ImageList_Draw(host::Handle imageList, std::int32_t index, host::Handle hDC, std::int32_t x,
                        std::int32_t y, std::int32_t style) override;
    std::int32_t GetSysColor(std::int32_t index) override;
    std::int32_t GetSystemMetrics(std::int32_t index) override;
    std::int32_t GetAsyncKeyState(std::int32_t key) override;
    bool GetCursorPos(host::Point& point) override;
    bool PostMessageA(host::Handle hWnd, std::int32_t message, std::int32_t wParam,
                      std::int32_t lParam) override;
    void DoEvents() override;

private:
    Window* Find(host::Handle hWnd) const;
    DeviceContext* Context(host::Handle hDC) const;

    World& world_;
};

} // namespace tvok::soft
