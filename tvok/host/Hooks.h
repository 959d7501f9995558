/// The two hook classes: the one that carries scrolling and the one that only listens.
#pragma once

#include <cstdint>

#include "tvok/host/constants.h"
#include "tvok/records/Event.h"

namespace tvok::host {

/// Events of a `MessageHook`. A handler may write to the hook, detach it or destroy it.
struct MessageHookEvents {
    /// Each message to the hooked window before its normal processing: message, wParam, lParam, the
    /// procedure's result, and a boolean that comes in true; left false, the window's normal processing is
    /// skipped.
    Event<std::int32_t, std::int32_t, std::int32_t, std::int32_t&, bool&> RtMsg;
    /// The position changed: vertical value, horizontal value, and a third that nothing reads.
    Event<std::int32_t, std::int32_t, std::int32_t> Change;
    /// The thumb is being dragged: as `Change`, which is not raised then.
    Event<std::int32_t, std::int32_t, std::int32_t> Scroll;
    /// The drag ended: the new value.
    Event<std::int32_t> EndScroll;
};

/// Subclasses a window and gives it scroll bars. Positions are within 0 to the maximum: a written one is
/// limited. `Change` is raised exactly when a position really changed, also by lowering a maximum below it.
class MessageHook {
public:
    virtual ~MessageHook() = default; ///< Detaches.

    MessageHookEvents events;

    /// Set before `HookAttach`. 3: one vertical bar, shown exactly while `ScrollMax` is above 0. 5: two bars
    /// that are shown as `ScrollBarShown` and `ScrollHBarShown` say.
    virtual void HookMode(std::int32_t mode) = 0;
    virtual void HookAttach(Handle hWnd, bool& flag) = 0;
    virtual void HookDetach() = 0;
    virtual std::int32_t HookCount() const = 0; ///< Attachments so far, 0 before the first.
    virtual void HookActive(bool active) = 0;   ///< Without effect.

    virtual std::int32_t ScrollValue() const = 0;
    virtual void ScrollValue(std::int32_t value) = 0;
    virtual std::int32_t ScrollMax() const = 0;
    virtual void ScrollMax(std::int32_t max) = 0; ///< Below 0 counts as 0.
    virtual std::int32_t ScrollLarge() const = 0; ///< Page step; also the size of the thumb.
    virtual void ScrollLarge(std::int32_t page) = 0;
    virtual std::int32_t ScrollHValue() const = 0; ///< In pixels, as the two below.
    virtual void ScrollHValue(std::int32_t value) = 0;
    virtual std::int32_t ScrollHMax() const = 0;
    virtual void ScrollHMax(std::int32_t max) = 0;
    virtual std::int32_t ScrollHLarge() const = 0;
    virtual void ScrollHLarge(std::int32_t page) = 0;
    /// Showing or hiding a bar changes the client area and raises no `Resize`.
    virtual bool ScrollBarShown() const = 0;
    virtual void ScrollBarShown(bool show) = 0;
    virtual bool ScrollHBarShown() const = 0;
    virtual void ScrollHBarShown(bool show) = 0;
    virtual bool vBusy() const = 0; ///< True while the user drags a thumb.

    /// Adds `count` to `ScrollMax`; the position stays. Raises nothing. Throws `OverflowError` past 32 bits.
    virtual void ScrollGrow(std::int32_t& count, bool redraw) = 0;
    /// Adds `count` to `ScrollMax` and to the position. Raises nothing. Throws `OverflowError` past 32 bits.
    virtual void ScrollGrowValue(std::int32_t& count, std::int32_t reserved, bool redraw) = 0;
};

/// Listens to a window or to the thread's mouse or key messages. Several may listen to one target: the last
/// one set is asked first.
class WindowHook {
public:
    virtual ~WindowHook() = default; ///< Releases.

    /// Message, wParam, lParam, result, and a boolean that comes in true: left false, neither the next
    /// listener nor the window gets the message. `kind` 2 delivers the mouse message number as wParam, and
    /// its record as `Mouse`; `kind` 3 the key code as wParam and the key message word as lParam (bit 31 set
    /// while the key goes up).
    Event<std::int32_t, std::int32_t, std::int32_t, std::int32_t&, bool&> RtMsg;

    /// The record of the mouse message that `RtMsg` is being raised for, for `kind` 2; null otherwise.
    virtual const MouseHookRecord* Mouse() const = 0;

    /// `kind` 0 or 1: `target` is a window. 2: the mouse messages, 3: the key messages of the thread
    /// `target`. An attached hook is released first, also where this throws: `ObjectError` for a target that
    /// is not there, `Error` for another kind.
    virtual void HookSet(std::int32_t& kind, std::int32_t& target, bool& flag) = 0;
    virtual void HookRelease() = 0; ///< Harmless when nothing is attached.
};

} // namespace tvok::host
