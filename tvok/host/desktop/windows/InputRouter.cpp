#include "tvok/host/desktop/windows/InputRouter.h"

#include <cstdlib>

#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/SoftHooks.h"
#include "tvok/host/desktop/windows/World.h"
#include "tvok/records/text.h"

namespace tvok::soft {

using Kind = InputEvent::Kind;

namespace {

constexpr std::chrono::milliseconds kDoubleClick{500};
constexpr std::int32_t kNotch = 120;
/// From a message of the client area to the one of the frame.
constexpr std::int32_t kFrameMessages = host::WM_MOUSEMOVE - host::WM_NCMOUSEMOVE;

std::int32_t KeyOf(std::int32_t button) {
    return button == 1 ? host::VK_LBUTTON : button == 2 ? host::VK_RBUTTON : host::VK_MBUTTON;
}

/// The message of a button: `step` 0 down, 1 up, 2 double.
std::int32_t ButtonMessage(std::int32_t button, std::int32_t step) {
    const std::int32_t first = button == 1   ? host::WM_LBUTTONDOWN
                               : button == 2 ? host::WM_RBUTTONDOWN
                                             : host::WM_MBUTTONDOWN;
    return first + step;
}

bool IsPress(std::int32_t message) {
    return message == host::WM_LBUTTONDOWN || message == host::WM_RBUTTONDOWN ||
           message == host::WM_MBUTTONDOWN || message == host::WM_LBUTTONDBLCLK ||
           message == host::WM_RBUTTONDBLCLK || message == host::WM_MBUTTONDBLCLK;
}

bool IsWheel(std::int32_t message) {
    return message == host::WM_MOUSEWHEEL || message == host::WM_MOUSEHWHEEL;
}

/// The character that a key makes without a keyboard layout; 0 for none.
std::int32_t ControlCharacter(std::int32_t key, bool control) {
    if (key == host::VK_RETURN || key == host::VK_BACK || key == host::VK_ESCAPE || key == host::VK_TAB)
        return key;
    return control && key >= 'A' && key <= 'Z' ? key - 'A' + 1 : 0;
}

} // namespace

void InputRouter::Feed(Kind kind, std::int32_t a, std::int32_t b, host::Handle window) {
    world_.loop.Post(InputEvent{kind, window, a, b, world_.Now()});
}

void InputRouter::MouseMove(std::int32_t x, std::int32_t y) {
    fedPointer_ = {LimitCoordinate(x), LimitCoordinate(y)};
    Feed(Kind::MouseMove, fedPointer_.x, fedPointer_.y);
}
void InputRouter::MouseDown(desktop::MouseButton button) {
    Feed(Kind::MouseDown, static_cast<std::int32_t>(button));
}
void InputRouter::MouseUp(desktop::MouseButton button) {
    Feed(Kind::MouseUp, static_cast<std::int32_t>(button));
}
void InputRouter::Wheel(std::int32_t notches, bool horizontal) {
    Feed(Kind::Wheel, notches, horizontal ? 1 : 0);
}
void InputRouter::KeyDown(std::int32_t virtualKey) {
    Feed(Kind::KeyDown, virtualKey);
}
void InputRouter::KeyUp(std::int32_t virtualKey) {
    Feed(Kind::KeyUp, virtualKey);
}
void InputRouter::Text(std::string_view utf8) {
    for (std::size_t place = 0; place < utf8.size();) {
        const auto character = static_cast<std::int32_t>(NextCharacter(utf8, place));
        if (character < 0x10000) {
            Feed(Kind::Character, character);
        } else {
            Feed(Kind::Character, 0xD800 + ((character - 0x10000) >> 10));
            Feed(Kind::Character, 0xDC00 + ((character - 0x10000) & 0x3FF));
        }
    }
}
void InputRouter::Activate(host::Handle form) {
    Feed(Kind::Activate, 0, 0, form);
}
void InputRouter::WindowMoved(host::Handle id, std::int32_t x, std::int32_t y) {
    Feed(Kind::WindowMoved, x, y, id);
}
void InputRouter::WindowResized(host::Handle id, std::int32_t width, std::int32_t height) {
    Feed(Kind::WindowResized, width, height, id);
}
void InputRouter::WindowExposed(host::Handle id) {
    const soft::Window* window = world_.windows.Find(id);
    if (window && window->IsTopLevel()) window->top()->damage.Add(window->outer());
}
void InputRouter::CloseRequested(host::Handle id) {
    Feed(Kind::CloseRequested, 0, 0, id);
}

void InputRouter::Process(const InputEvent& event) {
    switch (event.kind) {
    case Kind::MouseMove:
        cursor_ = {event.a, event.b};
        Mouse(host::WM_MOUSEMOVE);
        ShowPointer();
        break;
    case Kind::MouseDown: Press(event); break;
    case Kind::MouseUp:
        SetDown(KeyOf(event.a), false);
        Mouse(ButtonMessage(event.a, 1));
        break;
    case Kind::Wheel:
        Mouse(event.b != 0 ? host::WM_MOUSEHWHEEL : host::WM_MOUSEWHEEL, event.a * kNotch);
        break;
    case Kind::KeyDown: Key(event.a, true); break;
    case Kind::KeyUp: Key(event.a, false); break;
    case Kind::Character: Character(event.a); break;
    default: Window(event); break;
    }
}

void InputRouter::SetDown(std::int32_t key, bool down) {
    if (key >= 0 && key < 256) down_[static_cast<std::size_t>(key)] = down;
}

std::int16_t InputRouter::ShiftBits() const {
    return static_cast<std::int16_t>((IsDown(host::VK_SHIFT) ? 1 : 0) | (IsDown(host::VK_CONTROL) ? 2 : 0) |
                                     (IsDown(host::VK_MENU) ? 4 : 0));
}

std::int16_t InputRouter::ButtonBits() const {
    return static_cast<std::int16_t>((IsDown(host::VK_LBUTTON) ? 1 : 0) | (IsDown(host::VK_RBUTTON) ? 2 : 0) |
                                     (IsDown(host::VK_MBUTTON) ? 4 : 0));
}

std::int32_t InputRouter::StateBits() const {
    return (IsDown(host::VK_LBUTTON) ? host::MK_LBUTTON : 0) |
           (IsDown(host::VK_RBUTTON) ? host::MK_RBUTTON : 0) | (IsDown(host::VK_SHIFT) ? host::MK_SHIFT : 0) |
           (IsDown(host::VK_CONTROL) ? host::MK_CONTROL : 0) |
           (IsDown(host::VK_MBUTTON) ? host::MK_MBUTTON : 0);
}

/// The window that a mouse message is for: the one with the capture, else the one under the pointer, or its
/// form where that is designed.
Hit InputRouter::Aim() const {
    if (soft::Window* captured = world_.windows.Find(world_.focus.capture()))
        return {captured, host::HTCLIENT};
    const Hit hit = world_.windows.HitTest(cursor_);
    FormWindow* form = hit.window ? FormWindow::Around(*hit.window) : nullptr;
    if (!form || !form->IsDesigned() || (hit.window == &form->window() && !form->IsInner())) return hit;
    return {&form->window(), host::HTCLIENT};
}

void InputRouter::Press(const InputEvent& event) {
    SetDown(KeyOf(event.a), true);
    const bool second = IsSecondPress(event.a, Aim(), event.time);
    Mouse(ButtonMessage(event.a, second ? 2 : 0));
}

bool InputRouter::IsSecondPress(std::int32_t button, const Hit& hit, std::chrono::milliseconds time) {
    const host::Handle window = hit.window ? hit.window->handle() : 0;
    constexpr std::int32_t kReach = kDoubleClickSize / 2;
    const bool second = button == lastButton_ && window == lastWindow_ && time - lastTime_ <= kDoubleClick &&
                        std::abs(cursor_.x - lastPlace_.x) <= kReach &&
                        std::abs(cursor_.y - lastPlace_.y) <= kReach;
    lastButton_ = second ? 0 : button; // a third press is a first one again
    lastWindow_ = window;
    lastPlace_ = cursor_;
    lastTime_ = time;
    return second;
}

void InputRouter::Mouse(std::int32_t message, std::int32_t highWord) {
    Hit hit = Aim();
    const host::Handle aimedAt = hit.window ? hit.window->handle() : 0; // a listener may free the window
    const host::Handle captured = world_.focus.capture();
    if (!AskMouseHooks(message, hit)) return;
    // A listener may take the capture, and then has the very message that it was asked about.
    if (captured != world_.focus.capture() || !world_.windows.Find(aimedAt)) hit = Aim();
    if (world_.tracker.Active() && !IsWheel(message)) {
        if (message == host::WM_MOUSEMOVE) world_.tracker.Move(cursor_);
        if (message == host::WM_LBUTTONUP) world_.tracker.Release();
        return;
    }
    if (hit.window) Deliver(message, highWord, hit);
}

bool InputRouter::AskMouseHooks(std::int32_t message, const Hit& hit) {
    const host::MouseHookRecord record{cursor_.x, cursor_.y, hit.window ? hit.window->handle() : 0, hit.code,
                                       0};
    const bool inFrame = hit.window && hit.code != host::HTCLIENT && !IsWheel(message);
    const std::int32_t number = inFrame ? message - kFrameMessages : message;
    struct Restore {
        Hooks& hooks;
        const host::MouseHookRecord* before;
        ~Restore() { hooks.record = before; }
    } restore{world_.hooks, std::exchange(world_.hooks.record, &record)};
    return world_.hooks.mouse.All(kThreadID, [&](SoftWindowHook& hook) {
        std::int32_t result = 0;
        bool callNext = true;
        hook.RtMsg(0, number, 0, result, callNext);
        return callNext;
    });
}

void InputRouter::Deliver(std::int32_t message, std::int32_t highWord, const Hit& hit) {
    const host::Handle target = hit.window->handle();
    if (!world_.TakesInput(world_.FormOf(*hit.window))) return;
    if (IsPress(message) && world_.focus.capture() == 0) {
        soft::Window* keyboard = hit.window->client().FocusByMouse();
        const host::Handle focus = keyboard ? keyboard->handle() : 0;
        if (FormWindow* form = world_.FormOf(*hit.window)) world_.focus.Activate(form);
        if (world_.windows.Find(focus)) world_.focus.Focus(focus);
    }
    const soft::Window* window = world_.windows.Find(target);
    if (!window) return;
    const std::int32_t onScreen = PackWords(cursor_.x, cursor_.y);
    if (IsWheel(message)) {
        world_.Send({target, message, PackWords(StateBits(), highWord), onScreen});
    } else if (hit.code != host::HTCLIENT) {
        world_.Send({target, message - kFrameMessages, hit.code, onScreen});
    } else {
        const host::Point origin = world_.windows.ClientOrigin(*window);
        world_.Send({target, message, StateBits(), PackWords(cursor_.x - origin.x, cursor_.y - origin.y)});
    }
}

void InputRouter::ShowPointer() {
    const Hit hit = Aim();
    const std::int16_t pointer =
        hit.window && hit.code == host::HTCLIENT ? hit.window->client().Pointer() : host::ccDefault;
    if (std::exchange(shownPointer_, pointer) != pointer) world_.display->Pointer(pointer);
}

void InputRouter::Key(std::int32_t key, bool down) {
    const bool before = IsDown(key);
    SetDown(key, down);
    const bool system = IsDown(host::VK_MENU) && !IsDown(host::VK_CONTROL);
    // One repeat, the key as its own scan code, then Alt, the state before and the way.
    const std::uint32_t word = 1U | (static_cast<std::uint32_t>(key) & 0xFFU) << 16 |
                               (system ? 1U << 29 : 0U) | (before ? 1U << 30 : 0U) | (down ? 0U : 1U << 31);
    const auto parameter = static_cast<std::int32_t>(word);
    const bool passed = world_.hooks.keys.All(kThreadID, [&](SoftWindowHook& hook) {
        std::int32_t result = 0;
        bool callNext = true;
        hook.RtMsg(0, key, parameter, result, callNext);
        return callNext;
    });
    keyTaken_ = down && !passed;
    const host::Handle target = world_.focus.focus();
    if (!passed || target == 0) return;
    if (!down) {
        world_.Send({target, system ? host::WM_SYSKEYUP : host::WM_KEYUP, key, parameter});
        return;
    }
    const bool usedUp =
        world_.Send({target, system ? host::WM_SYSKEYDOWN : host::WM_KEYDOWN, key, parameter}) != 0;
    keyTaken_ = usedUp;
    const std::int32_t character = ControlCharacter(key, IsDown(host::VK_CONTROL));
    if (!usedUp && character != 0) world_.Send({target, host::WM_CHAR, character, parameter});
}

void InputRouter::Character(std::int32_t unit) {
    if (!keyTaken_ && world_.focus.focus() != 0) world_.Send({world_.focus.focus(), host::WM_CHAR, unit, 1});
}

void InputRouter::Window(const InputEvent& event) {
    soft::Window* window = world_.windows.Find(event.window);
    FormWindow* form = window ? world_.FormOf(*window) : nullptr;
    if (event.kind == Kind::Activate) {
        if (!form) down_.reset();
        return world_.focus.Activate(form && !world_.TakesInput(form) ? world_.Modal() : form);
    }
    if (!window || !window->IsTopLevel()) return;
    const tvok_Rect rect = window->rect();
    DisplayWindow& told = window->top()->told;
    switch (event.kind) {
    case Kind::WindowMoved:
        told.rect = Moved(told.rect, event.a - told.rect.Left, event.b - told.rect.Top);
        return world_.windows.Place(*window, Moved(rect, event.a - rect.Left, event.b - rect.Top));
    case Kind::WindowResized:
        told.rect.Right = told.rect.Left + event.a;
        told.rect.bottom = told.rect.Top + event.b;
        return world_.windows.Place(*window, {rect.Left, rect.Top, rect.Left + event.a, rect.Top + event.b});
    default:
        if (form && world_.TakesInput(form)) form->RequestClose();
    }
}

} // namespace tvok::soft
