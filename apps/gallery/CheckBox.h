/// A check box with the word "yes" or "no" beside it.
#pragma once

#include <cstdint>

#include "tvok/tvok.h"

namespace gallery {

/// A click or the space bar changes it.
class CheckBox : public tvok::host::Control {
public:
    struct Events {
        tvok::Event<> Change;                              ///< By the user.
        tvok::Event<std::int16_t&, std::int16_t&> KeyDown; ///< What is left in them is acted on.
    };
    Events events;

    bool Value() const { return value_; }
    void Value(bool on);

    /// Fills `rect` with such a box and word: for cells that look like one.
    static void Draw(tvok::host::Handle hDC, const tvok::tvok_Rect& rect, bool on);

    void Initialize(tvok::host::Component& component) override;
    void Paint() override;
    void Terminate() override { component_ = nullptr; }
    void GotFocus() override { Repaint(); }
    void LostFocus() override { Repaint(); }
    void KeyDown(std::int16_t& keyCode, std::int16_t& shift) override;
    void MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void DblClick() override { Toggle(); } ///< The second of two quick clicks.

private:
    void Toggle();
    void Repaint() const;

    tvok::host::Component* component_ = nullptr;
    bool value_ = false;
};

} // namespace gallery
