#include "tvok/host/desktop/windows/FocusManager.h"

#include <algorithm>
#include <utility>

#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/World.h"
#include "tvok/records/Error.h"

namespace tvok::soft {

host::Handle FocusManager::Focus(host::Handle hWnd) {
    const host::Handle before = focus_;
    Window* window = world_.windows.Find(hWnd);
    if (before == hWnd || (hWnd != 0 && !window)) return before;
    FormWindow* const form = window ? world_.FormOf(*window) : nullptr;
    if (form) form->RememberFocus(hWnd);
    if (form && !active_) return before; // another program is in front, and stays: it comes with the return
    const World::Running running(world_);
    FirstError failed; // what one handler throws keeps no other from hearing of the focus
    focus_ = hWnd;
    if (form && form != active_) failed.Try([&] { Activate(form); });
    if (before != 0 && focus_ == hWnd)
        failed.Try([&] { world_.Send({before, host::WM_KILLFOCUS, hWnd, 0}); });
    if (focus_ == hWnd && LeaveAndEnter(hWnd, failed) && hWnd != 0)
        failed.Try([&] { world_.Send({hWnd, host::WM_SETFOCUS, before, 0}); });
    failed.Rethrow();
    return before;
}

/// False when the focus moved on meanwhile.
bool FocusManager::LeaveAndEnter(host::Handle focus, FirstError& failed) {
    std::vector<host::Handle> now;
    for (const Window* window = world_.windows.Find(focus); window; window = window->parent())
        now.insert(now.begin(), window->handle());

    const auto isLeft = [&](host::Handle hWnd) { return std::ranges::find(now, hWnd) == now.end(); };
    for (auto last = std::ranges::find_if(inside_.rbegin(), inside_.rend(), isLeft); last != inside_.rend();
         last = std::ranges::find_if(inside_.rbegin(), inside_.rend(), isLeft)) {
        Window* window = world_.windows.Find(*last);
        inside_.erase(std::next(last).base());
        if (window) failed.Try([&] { window->client().FocusInside(false); });
        if (focus_ != focus) return false;
    }
    for (const host::Handle entered : now) {
        if (std::ranges::find(inside_, entered) != inside_.end()) continue;
        inside_.push_back(entered);
        if (Window* window = world_.windows.Find(entered))
            failed.Try([&] { window->client().FocusInside(true); });
        if (focus_ != focus) return false;
    }
    return true;
}

host::Handle FocusManager::Capture(host::Handle hWnd, CaptureKind kind) {
    const host::Handle before = capture_;
    if (!world_.windows.Find(hWnd)) return before;
    if (before == hWnd) {
        if (kind_ != CaptureKind::Tracking) kind_ = kind;
        return before;
    }
    capture_ = hWnd;
    kind_ = kind;
    world_.display->Capture(world_.windows.Find(hWnd)->root().handle());
    FirstError failed;
    failed.Try([&] { world_.tracker.CaptureLost(); });
    if (before != 0) failed.Try([&] { world_.Send({before, host::WM_CAPTURECHANGED, 0, hWnd}); });
    failed.Rethrow();
    return before;
}

bool FocusManager::ReleaseCapture() {
    const host::Handle before = std::exchange(capture_, 0);
    world_.display->Capture(0);
    FirstError failed;
    failed.Try([&] { world_.tracker.CaptureLost(); });
    if (before != 0) failed.Try([&] { world_.Send({before, host::WM_CAPTURECHANGED, 0, 0}); });
    failed.Rethrow();
    return true;
}

void FocusManager::DropCapture(host::Handle hWnd) {
    if (capture_ != hWnd) return;
    capture_ = 0;
    world_.display->Capture(0);
}

void FocusManager::Activate(FormWindow* form) {
    if (form == active_) {
        if (form) world_.windows.Order(form->window(), host::HWND_TOP);
        return;
    }
    FormWindow* before = std::exchange(active_, form);
    if (before) world_.windows.InvalidateFrame(before->window());
    if (!form) {
        Focus(0);
        return;
    }
    world_.windows.Order(form->window(), host::HWND_TOP);
    world_.windows.InvalidateFrame(form->window());
    if (const Window* window = world_.windows.Find(focus_); !window || world_.FormOf(*window) != form)
        Focus(form->WantedFocus());
}

void FocusManager::WindowGone(const Window& window) {
    DropCapture(window.handle());
    std::erase(inside_, window.handle());
    if (focus_ == window.handle()) focus_ = 0;
}

void FocusManager::WindowHidden(const Window& window) {
    const Window* focused = world_.windows.Find(focus_);
    if (!focused || !focused->IsInside(window)) return;
    FormWindow* form = world_.FormOf(window);
    const Window* parent = window.parent();
    // A part of a component leaves it to the component; a component leaves it to the form's others.
    if (form && parent && parent != &form->window() && parent->IsVisible()) {
        Focus(parent->handle());
        return;
    }
    Focus(form && &form->window() != &window ? form->WantedFocus() : 0);
}

void FocusManager::FormGone(const FormWindow& form) {
    if (active_ == &form) active_ = nullptr;
}

} // namespace tvok::soft
