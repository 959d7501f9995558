// Input of `xPopup`. The mouse hook sees every mouse message of the thread first and tells what a press
// means; the capture brings the messages to the floating window, where they are acted on. The key hook takes
// the keys from the window that has the focus and keeps it all the time; when it loses it, the popup closes.
#include "tvok/controls/popup/xPopup.h"
#include "tvok/engine/WindowPaint.h"
#include "tvok/engine/dgi.h"
#include "tvok/host/Services.h"

namespace tvok {

using host::platform;

void xPopup::CreateHooks() {
    HookFocus_ = host::services().CreateWindowHook();
    HookFocus_->RtMsg = [this](std::int32_t message, std::int32_t, std::int32_t, std::int32_t&, bool&) {
        HookFocus_RtMsg(message);
    };
    HookKeyboard_ = host::services().CreateWindowHook();
    HookKeyboard_->RtMsg = [this](std::int32_t, std::int32_t key, std::int32_t word, std::int32_t&,
                                  bool& fCallNext) { HookKeyboard_RtMsg(key, word, fCallNext); };
    WndHook_ = host::services().CreateMessageHook();
    WndHook_->events.RtMsg = [this](std::int32_t message, std::int32_t wParam, std::int32_t lParam,
                                    std::int32_t&, bool& fMsgProcess) {
        WndHook_RtMsg(message, wParam, lParam, fMsgProcess);
    };
    WndHook_->events.Change = [this](std::int32_t value, std::int32_t, std::int32_t) {
        WndHook_Change(value);
    };
    WndHook_->events.Scroll = [this](std::int32_t value, std::int32_t, std::int32_t) {
        WndHook_Change(value);
    };
    HookMouse_ = host::services().CreateWindowHook();
    HookMouse_->RtMsg = [this](std::int32_t, std::int32_t message, std::int32_t, std::int32_t&, bool&) {
        const host::MouseHookRecord* record = HookMouse_->Mouse();
        if (record != nullptr) HookMouse_RtMsg(message, {record->x, record->y});
    };
    WndHook_->HookActive(false);
}

void xPopup::HookFocus_RtMsg(std::int32_t message) {
    if (message == host::WM_KILLFOCUS) HidePopUp(false);
}

// Keys. Tab and the like pass, and close the popup by moving the focus.

void xPopup::HookKeyboard_RtMsg(std::int32_t key, std::int32_t word, bool& fCallNext) {
    constexpr std::int32_t kLowBits = 0x7FFF;
    constexpr std::int32_t kLastKey = 126;
    const bool goesDown = (word & ~kLowBits) > 0;
    const bool taken =
        key == host::VK_ESCAPE || key == host::VK_RETURN || (key >= host::VK_SPACE && key <= kLastKey);
    if (!goesDown || !taken) return;
    fCallNext = false;
    HandlePopupKey(key);
}

void xPopup::HandlePopupKey(std::int32_t key) {
    if (key == host::VK_ESCAPE && IsOpen()) return HidePopUp(false);
    if (key == host::VK_RETURN) return HidePopUp(state_.ListIndex >= 1);
    std::int32_t index = OnShownGrid([&](const ListState& state) { return mtvok::IndexFromKey(key, state); });
    if (index == 0) index = mtvok::SeekItemChar(key, state_, items_, itemIndex_);
    ListIndex(index);
}

// The mouse.

void xPopup::HookMouse_RtMsg(std::int32_t message, host::Point point) {
    if (!entered_ && host::Platform::PtInRect(clientScreenRect_, point)) {
        entered_ = true;
        platform().SetCapture(popupHwnd_);
        // Pressed since the opening and dragged in: the release is to close.
        if (dgi::IsPrimaryButtonDown()) mouseupHidepopup_ = true;
    }
    switch (message) {
    case host::WM_LBUTTONDOWN:
    case host::WM_NCLBUTTONDOWN: ClassifyPress(point); break;
    case host::WM_LBUTTONUP:
    case host::WM_NCLBUTTONUP: msDownNC_ = false; break;
    default: break;
    }
    // Won back after anything took it away. Who lost it may have closed the popup.
    if (IsOpen() && platform().GetCapture() == 0) platform().SetCapture(popupHwnd_);
}

void xPopup::ClassifyPress(host::Point point) {
    if (!host::Platform::PtInRect(state_.WindowRect, point)) {
        hideOnDown_ = true;
        msDownNC_ = false;
        return;
    }
    const bool inside = host::Platform::PtInRect(clientScreenRect_, point);
    mouseupHidepopup_ = inside;
    msDownNC_ = !inside; // on the scroll bar
}

void xPopup::WndHook_RtMsg(std::int32_t message, std::int32_t wParam, std::int32_t lParam,
                           bool& fMsgProcess) {
    switch (message) {
    case host::WM_PAINT: {
        const WindowPaint paint(state_.hWnd);
        fMsgProcess = false;
        return PaintPopupRect(paint.rect());
    }
    case host::WM_MOUSEMOVE: return SelectUnderMouse(wParam, lParam);
    case host::WM_LBUTTONDOWN: return PressInWindow(wParam, lParam, fMsgProcess);
    case host::WM_LBUTTONUP:
        msDownNC_ = false;
        fMsgProcess = false;
        if (mouseupHidepopup_) return HidePopUp(true);
        platform().SetCapture(popupHwnd_);
        return;
    case host::WM_NCLBUTTONUP: msDownNC_ = false; return;
    default: return;
    }
}

void xPopup::PressInWindow(std::int32_t wParam, std::int32_t lParam, bool& fMsgProcess) {
    if (hideOnDown_) {
        fMsgProcess = false;
        return HidePopUp(false);
    }
    if (!mouseupHidepopup_) {
        fMsgProcess = false;
        return PassPressToScrollBar(lParam);
    }
    SelectUnderMouse(wParam, lParam);
}

/// The press came here because of the capture, but it is on the scroll bar, which gets it as its own.
void xPopup::PassPressToScrollBar(std::int32_t lParam) {
    platform().ReleaseCapture();
    host::Point point = dgi::PointFromLParam(lParam);
    platform().ClientToScreen(popupHwnd_, point);
    platform().PostMessageA(popupHwnd_, host::WM_NCLBUTTONDOWN, host::HTVSCROLL,
                            dgi::LParamFromPoint(point.x, point.y));
}

void xPopup::SelectUnderMouse(std::int32_t wParam, std::int32_t lParam) {
    if (msDownNC_) return;
    const std::int32_t index = OnShownGrid(
        [&](const ListState& state) { return mtvok::ItemFromMouseMsg(state, cells_, lParam, wParam); });
    if (index != state_.ListIndex && index >= 1) ListIndex(index);
}

} // namespace tvok
