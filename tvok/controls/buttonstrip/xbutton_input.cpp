// Mouse, keyboard and the loss of the focus of `xbutton`.
#include "tvok/controls/buttonstrip/xbutton.h"
#include "tvok/engine/dgi.h"
#include "tvok/host/Services.h"

namespace tvok {

namespace {

constexpr std::int16_t cLeftButton = 1; // the number of a press, and the bit of a move

} // namespace

std::int32_t xbutton::ButtonAt(float x, float y) const {
    const host::Screen& screen = host::services().Screen();
    return row_.ButtonAt(dgi::TwipsToPixels(x, screen.TwipsPerPixelX()),
                         dgi::TwipsToPixels(y, screen.TwipsPerPixelY()));
}

void xbutton::MouseDown(std::int16_t& button, std::int16_t& /*shift*/, float& x, float& y) {
    if (button != cLeftButton) return;
    const std::int32_t pressed = ButtonAt(x, y);
    if (pressed < 1) return;
    row_[pressed].state = buttonstate::Pressed;
    DrawButton(pressed, row_[pressed].state);
    lastKey_ = row_[pressed].key;
    const std::string key = lastKey_;
    events.MouseDown(key); // the last step: the handler may have ended the control
}

/// A held button follows the pointer out and in. The others are not held, so they stay as they are.
void xbutton::MouseMove(std::int16_t& button, std::int16_t& /*shift*/, float& x, float& y) {
    if ((button & cLeftButton) == 0) return;
    const std::int32_t under = ButtonAt(x, y);
    for (std::int32_t i = 1; i <= row_.Count(); ++i) {
        const std::int16_t state = row_[i].state;
        if (i == under) {
            // Held and drawn down already: nothing to repaint.
            if (state == buttonstate::Pressed || state == buttonstate::DrawnDown) DrawButton(i, state);
        } else if ((state & buttonstate::DrawnDown) != 0) {
            DrawButton(i, 0);
        }
    }
}

void xbutton::MouseUp(std::int16_t& button, std::int16_t& /*shift*/, float& /*x*/, float& /*y*/) {
    if (button == cLeftButton) ReleaseButtons();
}

void xbutton::ReleaseButtons() {
    row_.Release();
    Paint();
}

/// Tells the button that was pressed last, whatever was under the pointer at the press and the release: a
/// press on no button tells an earlier one, and where there was none the empty text. Hosts rely on a button
/// being told although the release slipped off it.
void xbutton::Click() {
    const std::string key = lastKey_;
    events.Click(key);
}

void xbutton::KeyDown(std::int16_t& keyCode, std::int16_t& shift) {
    events.KeyDown(keyCode, shift);
}

/// Who opens a popup from `MouseDown` takes the release of the mouse away; the focus that goes with it lets
/// the button up.
void xbutton::AttachHook() {
    WSHOOK_ = host::services().CreateWindowHook();
    WSHOOK_->RtMsg = [this](std::int32_t message, std::int32_t, std::int32_t, std::int32_t&, bool&) {
        if (message == host::WM_KILLFOCUS) ReleaseButtons();
    };
    std::int32_t kind = 0;
    std::int32_t target = hwnd();
    bool flag = true;
    WSHOOK_->HookSet(kind, target, flag);
}

} // namespace tvok
