/// Turns what displays and tests feed into messages to the right window.
#pragma once

#include <bitset>

#include "tvok/host/desktop/displays/Display.h"
#include "tvok/host/desktop/windows/MessageLoop.h"
#include "tvok/host/desktop/windows/WindowTree.h"

namespace tvok::soft {

/// Feeding only queues. The state of keys, buttons and pointer changes when an event is processed, so a
/// handler sees what belongs to its message.
class InputRouter final : public DisplayEvents {
public:
    explicit InputRouter(World& world) : world_(world) {}

    void MouseMove(std::int32_t x, std::int32_t y) override;
    void MouseDown(desktop::MouseButton button) override;
    void MouseUp(desktop::MouseButton button) override;
    void Wheel(std::int32_t notches, bool horizontal) override;
    void KeyDown(std::int32_t virtualKey) override;
    void KeyUp(std::int32_t virtualKey) override;
    void Text(std::string_view utf8) override;
    void Activate(host::Handle form) override;
    host::Point Pointer() const override { return fedPointer_; }
    void WindowMoved(host::Handle id, std::int32_t x, std::int32_t y) override;
    void WindowResized(host::Handle id, std::int32_t width, std::int32_t height) override;
    void WindowExposed(host::Handle id) override;
    void CloseRequested(host::Handle id) override;
    void PointerLeft() override {}
    void Woken() override {}

    void Process(const InputEvent& event);

    host::Point cursor() const { return cursor_; }
    bool IsDown(std::int32_t key) const {
        return key >= 0 && key < 256 && down_[static_cast<std::size_t>(key)];
    }
    std::int16_t ShiftBits() const;  ///< 1 Shift, 2 Control, 4 Alt.
    std::int16_t ButtonBits() const; ///< 1 left, 2 right, 4 middle.
    void ShowPointer();              ///< Tells the display the pointer that fits the place it is at.

private:
    void Feed(InputEvent::Kind kind, std::int32_t a = 0, std::int32_t b = 0, host::Handle window = 0);
    std::int32_t StateBits() const;
    void SetDown(std::int32_t key, bool down);
    Hit Aim() const;
    void Press(const InputEvent& event);
    void Mouse(std::int32_t message, std::int32_t highWord = 0);
    bool AskMouseHooks(std::int32_t message, const Hit& hit);
    void Deliver(std::int32_t message, std::int32_t highWord, const Hit& hit);
    void Key(std::int32_t key, bool down);
    void Character(std::int32_t unit);
    void Window(const InputEvent& event);
    bool IsSecondPress(std::int32_t button, const Hit& hit, std::chrono::milliseconds time);

    World& world_;
    host::Point fedPointer_;
    host::Point cursor_;
    std::bitset<256> down_;
    bool keyTaken_ = false; ///< The key that went down last gives no character.
    std::int16_t shownPointer_ = host::ccDefault;

    std::int32_t lastButton_ = 0; ///< Of the last press, for double clicks; 0: none.
    host::Handle lastWindow_ = 0;
    host::Point lastPlace_;
    std::chrono::milliseconds lastTime_{};
};

} // namespace tvok::soft
