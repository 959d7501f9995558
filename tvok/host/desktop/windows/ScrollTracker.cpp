#include "tvok/host/desktop/windows/ScrollTracker.h"

#include <algorithm>

#include "tvok/host/desktop/windows/SoftHooks.h"
#include "tvok/host/desktop/windows/World.h"
#include "tvok/records/Error.h"

namespace tvok::soft {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds kFirstRepeat{400};
constexpr milliseconds kRepeat{50};
constexpr int kMostSteps = 200; ///< At one time, after a long pause of the program.
constexpr std::int32_t kAstray = 150;

} // namespace

ScrollBars* ScrollTracker::Bars() const {
    const Window* window = world_.windows.Find(hWnd_);
    return window ? window->bars() : nullptr;
}

host::Point ScrollTracker::OnSurface(const Window& window, host::Point screen) const {
    const tvok_Rect& place = window.top()->window->rect();
    return {screen.x - place.Left, screen.y - place.Top};
}

void ScrollTracker::Press(Window& window, Bar bar, host::Point screen) {
    ScrollBars* bars = window.bars();
    if (Active() || !bars) return;
    const host::Point point = OnSurface(window, screen);
    const BarLayout layout = bars->Layout(bar);
    const BarPart part = layout.PartAt(bars->Along(bar, point));
    if (part == BarPart::None) return;
    if (!TakeCapture(window.handle())) return;
    bars = window.bars();
    hWnd_ = window.handle();
    bar_ = bar;
    part_ = part;
    pointer_ = screen;
    startValue_ = bars->state(bar).value;
    due_ = world_.Now() + kFirstRepeat;
    if (part == BarPart::Thumb) {
        grab_ = bars->Along(bar, point) - layout.thumbStart;
        bars->hook().BeginDrag();
        return;
    }
    ShowPressed(part);
    Step();
}

/// False where the window, its bars or the capture are gone again: who lost the capture was told.
bool ScrollTracker::TakeCapture(host::Handle hWnd) {
    try {
        world_.focus.Capture(hWnd, FocusManager::CaptureKind::Tracking);
    } catch (...) {
        world_.focus.DropCapture(hWnd);
        throw;
    }
    const Window* window = world_.windows.Find(hWnd);
    if (!window || world_.focus.capture() != hWnd) return false;
    if (!window->bars()) world_.focus.DropCapture(hWnd);
    return window->bars() != nullptr;
}

BarPart ScrollTracker::PartUnder() const {
    const Window* window = world_.windows.Find(hWnd_);
    const ScrollBars* bars = Bars();
    if (!bars) return BarPart::None;
    const host::Point point = OnSurface(*window, pointer_);
    if (bars->Astray(bar_, point) > 0) return BarPart::None;
    return bars->Layout(bar_).PartAt(bars->Along(bar_, point));
}

void ScrollTracker::Move(host::Point screen) {
    pointer_ = screen;
    ScrollBars* bars = Bars();
    if (!bars) return Stop();
    if (part_ != BarPart::Thumb) return ShowPressed(PartUnder() == part_ ? part_ : BarPart::None);
    const host::Point point = OnSurface(*world_.windows.Find(hWnd_), screen);
    const bool astray = bars->Astray(bar_, point) > kAstray;
    const std::int32_t start = bars->Along(bar_, point) - grab_;
    bars->hook().DragTo(bar_,
                        astray ? startValue_ : bars->Layout(bar_).ValueAt(start, bars->state(bar_).max));
}

void ScrollTracker::Release() {
    const host::Handle hWnd = hWnd_;
    const Bar bar = bar_;
    const bool dragged = part_ == BarPart::Thumb;
    ShowPressed(BarPart::None);
    Stop();
    FirstError failed;
    if (world_.focus.capture() == hWnd) failed.Try([&] { world_.focus.ReleaseCapture(); });
    const Window* window = world_.windows.Find(hWnd);
    if (dragged && window && window->bars()) failed.Try([&] { window->bars()->hook().EndDrag(bar); });
    failed.Rethrow();
}

void ScrollTracker::CaptureLost() {
    if (Active()) Release();
}

void ScrollTracker::Forget(host::Handle hWnd) {
    if (hWnd == 0 || hWnd_ != hWnd) return;
    ShowPressed(BarPart::None);
    Stop();
    world_.focus.DropCapture(hWnd);
}

void ScrollTracker::Stop() {
    hWnd_ = 0;
    part_ = BarPart::None;
}

void ScrollTracker::ShowPressed(BarPart part) {
    ScrollBars* bars = Bars();
    if (!bars) return;
    bars->Pressed(bar_, part);
    bars->hook().Redraw();
}

void ScrollTracker::Step() {
    ScrollBars* bars = Bars();
    if (!bars) return Stop();
    const BarState& state = bars->state(bar_);
    const std::int64_t line = bar_ == Bar::Vertical ? 1 : kHorizontalLine;
    const std::int64_t page = std::max(state.large, 1);
    const bool isLine = part_ == BarPart::LineBack || part_ == BarPart::LineForward;
    const bool isBack = part_ == BarPart::LineBack || part_ == BarPart::PageBack;
    const std::int64_t step = isLine ? line : page;
    bars->hook().StepTo(bar_, state.value + (isBack ? -step : step));
}

std::optional<milliseconds> ScrollTracker::Due() const {
    if (!Active() || part_ == BarPart::Thumb) return {};
    return due_;
}

void ScrollTracker::Tick(milliseconds now) {
    for (int steps = 0; Due() && due_ <= now; ++steps) {
        due_ = steps < kMostSteps ? due_ + kRepeat : now + kRepeat;
        if (PartUnder() == part_) Step();
    }
}

} // namespace tvok::soft
