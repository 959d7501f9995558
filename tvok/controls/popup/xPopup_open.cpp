// Opening and closing of `xPopup`. Both run step by step: a step that fails is left out, so that a popup
// opens also without a hook that could not be attached, and closes whatever a handler throws.
#include <algorithm>

#include "tvok/controls/popup/xPopup.h"
#include "tvok/engine/dgi.h"
#include "tvok/host/Services.h"
#include "tvok/records/numeric.h"

namespace tvok {

namespace {

using host::platform;

constexpr std::int32_t cHookWindow = 1; // kinds of window hooks
constexpr std::int32_t cHookThreadMouse = 2;
constexpr std::int32_t cHookThreadKeys = 3;

/// Whole pixels of a length in twips: each operand is rounded first, what is left over is dropped.
std::int32_t PixelsOf(float twips, float twipsPerPixel) {
    const std::int32_t divisor = RoundToInt32(twipsPerPixel);
    if (divisor == 0) throw OverflowError("a pixel has less than half a twip");
    return RoundToInt32(twips) / divisor;
}

const host::Screen& Screen() {
    return host::services().Screen();
}

/// Sets a hook that is there. `HookSet` takes all of its arguments by reference.
void Listen(const std::shared_ptr<host::WindowHook>& hook, std::int32_t kind, std::int32_t target) {
    if (!hook) throw ObjectError("xPopup: no hooks at design time");
    bool flag = false;
    hook->HookSet(kind, target, flag);
}

void StopListening(const std::shared_ptr<host::WindowHook>& hook) {
    if (hook) hook->HookRelease();
}

} // namespace

// The place to open at.

void xPopup::SetParentRect(const tvok_Rect& pRct) {
    parentRect_ = pRct;
}

void xPopup::SetParentHwnd(std::int32_t tmpHwnd) {
    if (tmpHwnd != 0) platform().GetWindowRect(tmpHwnd, parentRect_);
}

void xPopup::SetParenpObject(const PlacedObject& pObj, std::int32_t pHwnd) {
    host::Point corner;
    tvok_Rect& rect = parentRect_;
    quietly(
        [&] {
            if (pObj.Left) corner.x = PixelsOf(*pObj.Left, Screen().TwipsPerPixelX());
        },
        [&] {
            // The horizontal factor, for the top as well. That stays; only the height has the vertical one.
            if (pObj.Top) corner.y = PixelsOf(*pObj.Top, Screen().TwipsPerPixelX());
        },
        [&] { platform().ClientToScreen(pHwnd, corner); },
        [&] {
            rect.Left = corner.x;
            rect.Top = corner.y;
        },
        [&] {
            if (!pObj.width) return;
            rect.Right = ToInt32(std::int64_t{corner.x} + PixelsOf(*pObj.width, Screen().TwipsPerPixelX()));
        },
        [&] {
            if (!pObj.Height) return;
            rect.bottom = ToInt32(std::int64_t{corner.y} + PixelsOf(*pObj.Height, Screen().TwipsPerPixelY()));
        });
}

void xPopup::SetParenpObject(const host::Widget& pObj, std::int32_t pHwnd) {
    PlacedObject placed; // a member that cannot be read counts as one that the object does not have
    quietly([&] { placed.Left = pObj.Left(); }, [&] { placed.Top = pObj.Top(); },
            [&] { placed.width = pObj.Width(); }, [&] { placed.Height = pObj.Height(); });
    SetParenpObject(placed, pHwnd);
}

host::Point xPopup::ComputePopupPosition(const tvok_Rect& anchor, std::int32_t width, std::int32_t height,
                                         bool alignLeft) const {
    const double screenWidth = double{Screen().Width()} / double{Screen().TwipsPerPixelX()};
    const double screenHeight = double{Screen().Height()} / double{Screen().TwipsPerPixelY()};
    const bool fitsBelow = screenHeight > static_cast<double>(anchor.bottom) + height;
    // An upward popup may begin above the screen: its end stays at its parent. Nothing limits y.
    const std::int64_t y = fitsBelow ? std::int64_t{anchor.bottom} : std::int64_t{anchor.Top} - height;
    std::int64_t x = alignLeft ? std::int64_t{anchor.Left} : std::int64_t{anchor.Right} - width;
    x = std::max<std::int64_t>(x, 0);
    // Last, so that a popup wider than the screen begins left of it.
    if (screenWidth <= static_cast<double>(x + width)) x = RoundToInt32(screenWidth - width);
    return {ToInt32(x), ToInt32(y)};
}

// Opening.

void xPopup::Popup(bool AlignCursor, bool AlignLeft) {
    if (state_.Count < 1 || state_.xn < 1 || state_.yn < 1) return;
    NoteSurroundings();
    AttachHooks();
    alignLeft_ = AlignLeft;
    const std::int32_t rows = (state_.Count - 1) / state_.xn + 1;
    state_.yn = std::min(state_.yn, rows); // for good: a later opening with more items keeps it
    StartScrolling();
    FitWindow();
    tvok_Rect anchor = parentRect_;
    if (AlignCursor) {
        host::Point cursor;
        quietly([&] { platform().GetCursorPos(cursor); });
        anchor = {cursor.x, cursor.y, cursor.x, cursor.y};
    }
    PlaceWindow(anchor);
    mouseupHidepopup_ = false;
    hideOnDown_ = false; // cleared here alone; the flag of the scroll bar keeps its value
    ShowWindow();
}

void xPopup::NoteSurroundings() {
    quietly(
        [&] {
            cbExDraw_ = std::make_shared<cExdrawCallback>();
            cbExDraw_->ExDrawCallback = [this](std::int32_t& Msg, std::int32_t Index, const std::string& key,
                                               std::int32_t mHdc, std::int32_t cy, std::int32_t x,
                                               std::int32_t Y, std::int32_t w, std::int32_t h) {
                events.ExDraw(Msg, Index, key, mHdc, cy, x, Y, w, h);
            };
        },
        [&] {
            if (WndHook_) WndHook_->HookActive(false);
        },
        [&] { state_.TopRow = 0; },
        // The painter shows the focus while this window keeps it, which it does all the time a popup is open.
        [&] { state_.FocusHwnd = platform().GetFocus(); }, [&] { state_.TextHeight = TextHeight(); },
        [&] { popupHwnd_ = Picture().hWnd(); });
    entered_ = false;
}

void xPopup::AttachHooks() {
    quietly([&] { Listen(HookFocus_, cHookWindow, state_.FocusHwnd); },
            [&] { Listen(HookKeyboard_, cHookThreadKeys, host::services().ThreadID()); },
            [&] {
                // Closing does not detach: the first opening attaches, and later ones find it there.
                if (!WndHook_ || WndHook_->HookCount() >= 1) return;
                bool flag = false;
                WndHook_->HookAttach(popupHwnd_, flag);
            },
            [&] { Listen(HookMouse_, cHookThreadMouse, host::services().ThreadID()); });
}

void xPopup::StartScrolling() {
    const auto hook = WndHook_;
    if (!hook) return;
    quietly([&] { hook->HookMode(3); }, [&] { hook->ScrollHMax(0); }, [&] { hook->ScrollValue(0); },
            [&] { mtvok::UpdateScrollRange(hook.get(), state_); });
}

/// Of the parent; a popup of one column grows to its items and to the measured texts beside a scroll bar.
std::int32_t xPopup::WantedWidth() const {
    std::int64_t width = 0;
    quietly([&] { width = ToInt32(std::int64_t{parentRect_.Right} - parentRect_.Left); });
    if (state_.xn == 1) {
        std::int64_t texts = textWidth_;
        if (WndHook_ && WndHook_->ScrollBarShown()) texts += platform().GetSystemMetrics(host::SM_CXVSCROLL);
        width = std::max({width, std::int64_t{state_.ItemWidth}, texts});
    }
    quietly([&] {
        width = std::min(width, std::int64_t{PixelsOf(Screen().Width(), Screen().TwipsPerPixelX())});
    });
    return ToInt32(width);
}

void xPopup::FitWindow() {
    quietly(
        [&] {
            const double twips = double{Screen().TwipsPerPixelX()} * WantedWidth();
            Picture().Width(static_cast<float>(twips));
        },
        [&] { ResetSize(); }, [&] { popupWidth_ = PixelsOf(Picture().Width(), Screen().TwipsPerPixelX()); },
        [&] { popupHeight_ = PixelsOf(Picture().Height(), Screen().TwipsPerPixelY()); },
        [&] { mtvok::BuildCellGrid(cells_, state_); }, [&] { NoteGrid(); });
}

/// A grid that could not be laid out has no rows: nothing is painted, and no point is on an item.
void xPopup::NoteGrid() {
    const bool fits = state_.GridCols <= cells_.UpperColumn() && state_.GridRows <= cells_.UpperRow();
    shown_ = {state_.xn, state_.yn, fits ? state_.GridRows : 0};
}

void xPopup::ResetSize() {
    quietly(
        [&] {
            const std::int32_t height = mtvok::ComputeFitHeight(state_, state_.yn);
            if (height > 0) Picture().Height(static_cast<float>(height));
        },
        [&] {
            const std::int32_t width = mtvok::ComputeFitWidth(state_);
            if (width > 0) Picture().Width(static_cast<float>(width));
        });
}

void xPopup::PlaceWindow(const tvok_Rect& anchor) {
    host::Point place;
    quietly([&] { place = ComputePopupPosition(anchor, popupWidth_, popupHeight_, alignLeft_); },
            // Out of the form, for good: a later opening finds it outside and says so once more.
            [&] { platform().SetParent(Picture().hWnd(), 0); },
            [&] {
                platform().SetWindowPos(Picture().hWnd(), host::HWND_TOPMOST, place.x, place.y, popupWidth_,
                                        popupHeight_, 0);
            },
            [&] { platform().GetWindowRect(state_.hWnd, state_.WindowRect); },
            [&] { platform().GetClientRect(state_.hWnd, state_.ClientRect); },
            [&] { clientScreenRect_ = dgi::GetClientScreenRect(state_.hWnd); });
}

void xPopup::ShowWindow() {
    quietly([&] { Picture().Visible(true); },
            [&] {
                tvok_Rect client;
                platform().GetClientRect(state_.hWnd, client);
                platform().InvalidateRect(state_.hWnd, &client, false);
                platform().UpdateWindow(state_.hWnd);
            },
            [&] { platform().DoEvents(); },
            [&] {
                // What ran meanwhile may have closed the popup, and a window that is not there must not keep
                // the mouse. One that has the capture, such as the button that was pressed for this, keeps
                // it: the mouse hook takes it when the pointer comes in.
                if (IsOpen() && platform().GetCapture() == 0) platform().SetCapture(popupHwnd_);
            });
}

// Closing.

void xPopup::HidePopUp(bool accept) {
    quietly([&] { StopListening(HookFocus_); }, [&] { StopListening(HookKeyboard_); },
            [&] { StopListening(HookMouse_); }, [&] { cbExDraw_.reset(); });
    // Several hooks may come here for one action of the user. Only the first finds the window.
    if (!IsOpen()) return;
    quietly(
        [&] {
            if (platform().GetCapture() == popupHwnd_) platform().ReleaseCapture();
        },
        [&] { Picture().Visible(false); },
        [&] {
            const std::int32_t index = state_.ListIndex;
            auto loan = items_.Lend(itemIndex_[index]); // index 0 is entry 0, and the slot that it names
            events.Click(index, loan.record(), !(accept && index >= 1));
        });
}

} // namespace tvok
