/// Windows, focus and input.
#include "tvok/host/desktop/windows/SoftPlatform.h"

#include "tvok/host/desktop/windows/World.h"

namespace tvok::soft {

Window* SoftPlatform::Find(host::Handle hWnd) const {
    return world_.windows.Find(hWnd);
}

DeviceContext* SoftPlatform::Context(host::Handle hDC) const {
    const ContextSlot* slot = world_.windows.Context(hDC);
    return slot ? slot->context : nullptr;
}

bool SoftPlatform::GetClientRect(host::Handle hWnd, tvok_Rect& rect) {
    const Window* window = Find(hWnd);
    if (!window) return false;
    rect = {0, 0, WidthOf(window->clientArea()), HeightOf(window->clientArea())};
    return true;
}

bool SoftPlatform::GetWindowRect(host::Handle hWnd, tvok_Rect& rect) {
    const Window* window = Find(hWnd);
    if (window) rect = world_.windows.ScreenRect(*window);
    return window != nullptr;
}

bool SoftPlatform::ClientToScreen(host::Handle hWnd, host::Point& point) {
    const Window* window = Find(hWnd);
    if (!window) return false;
    const host::Point origin = world_.windows.ClientOrigin(*window);
    point = {Saturated(std::int64_t{point.x} + origin.x), Saturated(std::int64_t{point.y} + origin.y)};
    return true;
}

bool SoftPlatform::ScreenToClient(host::Handle hWnd, host::Point& point) {
    const Window* window = Find(hWnd);
    if (!window) return false;
    const host::Point origin = world_.windows.ClientOrigin(*window);
    point = {Saturated(std::int64_t{point.x} - origin.x), Saturated(std::int64_t{point.y} - origin.y)};
    return true;
}

host::Handle SoftPlatform::GetFocus() {
    return world_.focus.focus();
}

host::Handle SoftPlatform::SetFocus(host::Handle hWnd) {
    return hWnd == 0 || Find(hWnd) ? world_.focus.Focus(hWnd) : 0;
}

host::Handle SoftPlatform::SetCapture(host::Handle hWnd) {
    return Find(hWnd) ? world_.focus.Capture(hWnd) : 0;
}

host::Handle SoftPlatform::GetCapture() {
    return world_.focus.capture();
}

bool SoftPlatform::ReleaseCapture() {
    return world_.focus.ReleaseCapture();
}

host::Handle SoftPlatform::GetParent(host::Handle hWnd) {
    const Window* window = Find(hWnd);
    return window && window->parent() ? window->parent()->handle() : 0;
}

host::Handle SoftPlatform::SetParent(host::Handle hChild, host::Handle hNewParent) {
    Window* window = Find(hChild);
    Window* parent = Find(hNewParent);
    if (!window || (hNewParent != 0 && !parent)) return 0;
    const host::Handle before = GetParent(hChild);
    return world_.windows.Reparent(*window, parent) ? before : 0;
}

bool SoftPlatform::SetWindowPos(host::Handle hWnd, host::Handle hAfter, std::int32_t x, std::int32_t y,
                                std::int32_t cx, std::int32_t cy, std::int32_t flags) {
    Window* window = Find(hWnd);
    if (!window) return false;
    if ((flags & host::SWP_NOZORDER) == 0) world_.windows.Order(*window, hAfter);
    tvok_Rect rect = window->rect();
    if ((flags & host::SWP_NOMOVE) == 0)
        rect = Moved(rect, LimitCoordinate(x) - rect.Left, LimitCoordinate(y) - rect.Top);
    if ((flags & host::SWP_NOSIZE) == 0) {
        rect.Right = rect.Left + LimitCoordinate(cx);
        rect.bottom = rect.Top + LimitCoordinate(cy);
    }
    world_.windows.Place(*window, rect);
    if (flags & host::SWP_SHOWWINDOW) ShowWindow(hWnd, true);
    if (flags & host::SWP_HIDEWINDOW) ShowWindow(hWnd, false);
    return true;
}

bool SoftPlatform::ShowWindow(host::Handle hWnd, bool show) {
    Window* window = Find(hWnd);
    const bool before = window && window->shown();
    if (window) world_.windows.Show(*window, show);
    return before;
}

bool SoftPlatform::IsWindowVisible(host::Handle hWnd) {
    const Window* window = Find(hWnd);
    return window && window->IsVisible();
}

std::int32_t SoftPlatform::GetWindowExStyle(host::Handle hWnd) {
    const Window* window = Find(hWnd);
    return window ? window->exStyle() : 0;
}

std::int32_t SoftPlatform::SetWindowExStyle(host::Handle hWnd, std::int32_t style) {
    Window* window = Find(hWnd);
    if (!window) return 0;
    const std::int32_t before = window->exStyle();
    world_.windows.ExStyle(*window, style);
    return before;
}

bool SoftPlatform::InvalidateRect(host::Handle hWnd, const tvok_Rect* rect, bool erase) {
    Window* window = Find(hWnd);
    if (window) world_.windows.Invalidate(*window, rect, erase);
    return window != nullptr;
}

bool SoftPlatform::UpdateWindow(host::Handle hWnd) {
    Window* window = Find(hWnd);
    if (window) world_.windows.Update(*window);
    return window != nullptr;
}

host::Handle SoftPlatform::BeginPaint(host::Handle hWnd, host::PaintStruct& paint) {
    Window* window = Find(hWnd);
    return window ? world_.windows.BeginPaint(*window, paint) : 0;
}

bool SoftPlatform::EndPaint(host::Handle hWnd, const host::PaintStruct&) {
    Window* window = Find(hWnd);
    if (window) world_.windows.EndPaint(*window);
    return window != nullptr;
}

bool SoftPlatform::ScrollDC(host::Handle hDC, std::int32_t dx, std::int32_t dy, const tvok_Rect* scroll,
                            const tvok_Rect* clip, host::Handle, tvok_Rect* update) {
    const ContextSlot* slot = world_.windows.Context(hDC);
    if (!slot || !slot->window || slot->whole) return false;
    return world_.windows.Scroll(*slot->window, {dx, dy}, scroll, clip, update);
}

std::int32_t SoftPlatform::GetAsyncKeyState(std::int32_t key) {
    return world_.input.IsDown(key) ? -0x8000 : 0;
}

bool SoftPlatform::GetCursorPos(host::Point& point) {
    point = world_.input.cursor();
    return true;
}

bool SoftPlatform::PostMessageA(host::Handle hWnd, std::int32_t message, std::int32_t wParam,
                                std::int32_t lParam) {
    if (!Find(hWnd)) return false;
    world_.loop.Post(Message{hWnd, message, wParam, lParam});
    return true;
}

void SoftPlatform::DoEvents() {
    world_.DoEvents();
}

} // namespace tvok::soft
