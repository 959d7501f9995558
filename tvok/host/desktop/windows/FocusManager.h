/// Which form is active, which window has the keyboard and which one the mouse.
#pragma once

#include <vector>

#include "tvok/host/constants.h"

namespace tvok {
class FirstError;
}

namespace tvok::soft {

class FormWindow;
class Window;
class World;

class FocusManager {
public:
    enum class CaptureKind {
        Program,   ///< By `SetCapture`: until it is given back.
        Automatic, ///< Of a component while a button is held.
        Tracking   ///< Of a scroll bar while it is pressed.
    };

    explicit FocusManager(World& world) : world_(world) {}

    host::Handle focus() const { return focus_; }
    /// WM_KILLFOCUS to the old window, leave and enter to the components in between, WM_SETFOCUS to the new
    /// one. Where one of these moves the focus again, the rest is not sent. Where one throws, the rest is
    /// sent first. Gives the window before. A window of a form makes that form the active one; while another
    /// program is active it is only remembered, and gets the focus when the user comes back to its form.
    host::Handle Focus(host::Handle hWnd);

    host::Handle capture() const { return capture_; }
    CaptureKind captureKind() const { return kind_; }
    /// WM_CAPTURECHANGED goes to a window that loses it to another. Gives the window before.
    host::Handle Capture(host::Handle hWnd, CaptureKind kind = CaptureKind::Program);
    bool ReleaseCapture();
    void DropCapture(host::Handle hWnd); ///< Where it has it, and sends nothing.

    FormWindow* active() const { return active_; }
    /// Brings the form to the front and its focus back to where it was. Null: another program is active.
    void Activate(FormWindow* form);

    void WindowGone(const Window& window);
    void WindowHidden(const Window& window);
    void FormGone(const FormWindow& form);

private:
    bool LeaveAndEnter(host::Handle focus, FirstError& failed);

    World& world_;
    host::Handle focus_ = 0;
    std::vector<host::Handle> inside_; ///< The windows that hold the focus, from the form down.
    host::Handle capture_ = 0;
    CaptureKind kind_ = CaptureKind::Program;
    FormWindow* active_ = nullptr;
};

} // namespace tvok::soft
