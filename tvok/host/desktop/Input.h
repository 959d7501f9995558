/// What a display, a test or an embedding program feeds to the desktop.
#pragma once

#include <cstdint>
#include <string_view>

#include "tvok/host/constants.h"

/// What feeds a desktop.
namespace tvok::desktop {

enum class MouseButton { Left = 1, Right = 2, Middle = 4 };

/// Points are screen pixels. Each call queues its messages; `Desktop::ProcessEvents` runs them in order.
class Input {
public:
    virtual ~Input() = default;
    virtual void MouseMove(std::int32_t x, std::int32_t y) = 0; ///< The pointer is there now.
    virtual void
    MouseDown(MouseButton button) = 0; ///< At the pointer; the second within the double click time is one.
    virtual void MouseUp(MouseButton button) = 0;                          ///< At the pointer.
    virtual void Wheel(std::int32_t notches, bool horizontal = false) = 0; ///< Positive: away from the user.
    /// Enter, Backspace, Escape, Tab and Control with a letter give their WM_CHAR by themselves; what can be
    /// printed comes by `Text`.
    virtual void KeyDown(std::int32_t virtualKey) = 0;
    virtual void KeyUp(std::int32_t virtualKey) = 0; ///< When the key comes up.
    /// Characters typed, after the `KeyDown` that made them: one WM_CHAR for each UTF-16 unit. Dropped where
    /// a key hook took that key.
    virtual void Text(std::string_view utf8) = 0;
    virtual void
    Activate(host::Handle form) = 0;         ///< The user brought a form to the front; 0: another program.
    virtual host::Point Pointer() const = 0; ///< After all moves fed so far.
};

} // namespace tvok::desktop
