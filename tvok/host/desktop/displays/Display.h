/// Where the desktop's top-level windows are shown and where its input comes from. A display only presents
/// damage and feeds input: all behaviour lives above it.
#pragma once

#include <chrono>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <string_view>

#include "tvok/host/desktop/Input.h"
#include "tvok/host/desktop/pixels/Region.h"
#include "tvok/host/desktop/pixels/Surface.h"

namespace tvok::soft {

/// A top-level window as a display sees it. Rectangles are screen pixels of the desktop, before scaling.
struct DisplayWindow {
    host::Handle id = 0;
    tvok_Rect rect; ///< The client area where the display decorates windows, else the whole window.
    std::string caption;
    bool popup = false; ///< Borderless, above the others, takes no focus and has no task bar entry.
    bool resizable = true;
    bool visible = false;
    friend bool operator==(const DisplayWindow&, const DisplayWindow&) = default;
};

/// What a display tells the desktop. Calls come from `Display::Wait` and from `Display::Scale` only, on the
/// desktop's thread.
class DisplayEvents : public desktop::Input {
public:
    virtual void WindowMoved(host::Handle id, std::int32_t x, std::int32_t y) = 0;
    virtual void WindowResized(host::Handle id, std::int32_t width, std::int32_t height) = 0;
    virtual void WindowExposed(host::Handle id) = 0; ///< Present everything again.
    virtual void CloseRequested(host::Handle id) = 0;
    virtual void PointerLeft() = 0;
    virtual void Woken() = 0; ///< `Wake` was called.
};

class Display {
public:
    virtual ~Display() = default;

    virtual bool IsHeadless() const = 0;
    virtual bool DecoratesWindows() const = 0; ///< Whether a frame and a caption are drawn by somebody else.
    virtual tvok_Rect Screen() const = 0;      ///< In desktop pixels; left and top are 0.
    virtual float Scale() const = 0;           ///< Screen pixels for each desktop pixel.
    /// From 0.5 to 4. Windows keep their size in desktop pixels and their left top on the screen, and
    /// `events` hears where that is in desktop pixels now. The desktop presents everything again.
    virtual void Scale(float scale, DisplayEvents& events) = 0;

    virtual void Open(const DisplayWindow& window) = 0;
    virtual void Change(const DisplayWindow& window) = 0; ///< Place, size, caption or visibility changed.
    virtual void Raise(host::Handle id) = 0;
    virtual void Close(host::Handle id) = 0;

    /// Shows the damaged parts, in the window's own pixels. The surface is valid during the call.
    virtual void Present(host::Handle id, const Surface& surface, const Region& damage) = 0;

    /// Waits up to `timeout` for input and feeds all of it. A timeout of 0 only looks.
    virtual void Wait(std::chrono::milliseconds timeout, DisplayEvents& events) = 0;
    virtual void Wake() = 0; ///< Ends a `Wait`; from any thread.

    virtual void Pointer(std::int16_t mousePointer) = 0; ///< A component's `MousePointer`.
    virtual void Capture(host::Handle id) = 0;           ///< All mouse input until it is given 0.
    virtual std::string ClipboardText() = 0;
    virtual void ClipboardText(std::string_view utf8) = 0; ///< Not for more than `ClipboardCapacity` bytes.
    virtual std::size_t ClipboardCapacity() const { return std::numeric_limits<std::size_t>::max(); }
};

/// A display in memory. It keeps its scale as a number and shows nothing by it.
std::unique_ptr<Display> MakeHeadlessDisplay(std::int32_t width, std::int32_t height, float scale = 1);

/// Real windows. Null where there is no display; `why` then says so in words.
std::unique_ptr<Display> MakeSdlDisplay(float scale, std::string& why);

} // namespace tvok::soft
