/// The user's press on a scroll bar, from the button's way down to its way up.
#pragma once

#include <chrono>
#include <optional>

#include "tvok/host/desktop/windows/ScrollBars.h"

namespace tvok::soft {

class Window;
class World;

/// An arrow or a page is one step at once, after 400 ms one more each 50 ms while the pointer is over it; a
/// page stops where the thumb meets the pointer. A dragged thumb follows the pointer and goes back to where
/// it began while the pointer is more than 150 pixels away.
class ScrollTracker {
public:
    explicit ScrollTracker(World& world) : world_(world) {}

    bool Active() const { return hWnd_ != 0; }
    host::Handle window() const { return hWnd_; }

    void Press(Window& window, Bar bar, host::Point screen);
    void Move(host::Point screen);
    void Release(); ///< Ends a drag with `EndScroll` and gives the capture back.
    /// The capture went elsewhere: ends like `Release`.
    void CaptureLost();
    /// The bars or the window are going away: ends without an event.
    void Forget(host::Handle hWnd);

    std::optional<std::chrono::milliseconds> Due() const; ///< When `Tick` has something to do.
    void Tick(std::chrono::milliseconds now);

private:
    ScrollBars* Bars() const; ///< Null, and no longer active, when they are gone.
    host::Point OnSurface(const Window& window, host::Point screen) const;
    bool TakeCapture(host::Handle hWnd);
    BarPart PartUnder() const;
    void Step();
    void ShowPressed(BarPart part);
    void Stop();

    World& world_;
    host::Handle hWnd_ = 0;
    Bar bar_ = Bar::Vertical;
    BarPart part_ = BarPart::None;
    host::Point pointer_;
    std::int32_t grab_ = 0; ///< From the thumb's beginning to the pointer.
    std::int32_t startValue_ = 0;
    std::chrono::milliseconds due_{};
};

} // namespace tvok::soft
