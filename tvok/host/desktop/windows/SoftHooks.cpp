#include "tvok/host/desktop/windows/SoftHooks.h"

#include <algorithm>

#include "tvok/host/desktop/windows/World.h"
#include "tvok/records/Error.h"
#include "tvok/records/numeric.h"

namespace tvok::soft {

namespace {

constexpr std::int32_t kTwoBars = 5;

std::int32_t Limited(std::int64_t value, std::int32_t max) {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, 0, max));
}

} // namespace

void SoftMessageHook::HookMode(std::int32_t mode) {
    mode_ = mode;
    ShowBars();
}

void SoftMessageHook::HookAttach(host::Handle hWnd, bool&) {
    Window* window = world_.windows.Find(hWnd);
    if (!window) throw ObjectError("a hook was attached to a window that does not exist");
    HookDetach();
    hWnd_ = hWnd;
    ++count_;
    world_.hooks.messages.Add(hWnd, *this);
    world_.windows.Bars(*window, &bars_);
}

void SoftMessageHook::HookDetach() {
    if (hWnd_ == 0) return;
    const host::Handle hWnd = std::exchange(hWnd_, 0);
    busy_ = false;
    world_.hooks.messages.Remove(*this);
    Window* window = world_.windows.Find(hWnd);
    if (!window || window->bars() != &bars_) return;
    world_.tracker.Forget(hWnd);
    SoftMessageHook* other = world_.hooks.messages.Newest(hWnd);
    world_.windows.Bars(*window, other ? &other->bars_ : nullptr);
}

void SoftMessageHook::WindowGone() {
    world_.hooks.messages.Remove(*this);
    hWnd_ = 0;
    busy_ = false;
}

void SoftMessageHook::ScrollBarShown(bool show) {
    wanted_ = show;
    ShowBars();
}

void SoftMessageHook::ScrollHBarShown(bool show) {
    wantedHorizontal_ = show;
    ShowBars();
}

void SoftMessageHook::ShowBars() {
    const bool two = mode_ == kTwoBars;
    const bool vertical = two ? wanted_ : bars_.vertical().max > 0;
    const bool horizontal = two && wantedHorizontal_;
    BarState& upright = bars_.state(Bar::Vertical);
    BarState& level = bars_.state(Bar::Horizontal);
    const bool changed = upright.shown != vertical || level.shown != horizontal;
    upright.shown = vertical;
    level.shown = horizontal;
    Window* window = world_.windows.Find(hWnd_);
    if (!window || window->bars() != &bars_) return;
    if (changed) {
        world_.windows.FrameChanged(*window);
    } else {
        world_.windows.InvalidateFrame(*window);
    }
}

void SoftMessageHook::Redraw() {
    if (Window* window = world_.windows.Find(hWnd_)) world_.windows.InvalidateFrame(*window);
}

void SoftMessageHook::StepTo(Bar bar, std::int64_t value) {
    BarState& state = bars_.state(bar);
    const std::int32_t limited = Limited(value, state.max);
    if (limited == state.value) return;
    state.value = limited;
    Redraw();
    RaiseChange();
}

void SoftMessageHook::SetMax(Bar bar, std::int32_t max) {
    BarState& state = bars_.state(bar);
    state.max = std::max(max, 0);
    const std::int32_t limited = Limited(state.value, state.max);
    const bool moved = limited != state.value;
    state.value = limited;
    ShowBars();
    if (moved) RaiseChange();
}

void SoftMessageHook::SetLarge(Bar bar, std::int32_t page) {
    bars_.state(bar).large = page;
    Redraw();
}

void SoftMessageHook::ScrollGrow(std::int32_t& count, bool) {
    Grow(count, false);
}

void SoftMessageHook::ScrollGrowValue(std::int32_t& count, std::int32_t, bool) {
    Grow(count, true);
}

void SoftMessageHook::Grow(std::int32_t count, bool move) {
    BarState& state = bars_.state(Bar::Vertical);
    state.max = std::max(ToInt32(std::int64_t{state.max} + count), 0);
    state.value = Limited(std::int64_t{state.value} + (move ? count : 0), state.max);
    ShowBars();
}

void SoftMessageHook::RaiseChange() {
    events.Change(bars_.vertical().value, bars_.horizontal().value, 0);
}

void SoftMessageHook::DragTo(Bar bar, std::int32_t value) {
    BarState& state = bars_.state(bar);
    const std::int32_t limited = Limited(value, state.max);
    if (limited == state.value) return;
    state.value = limited;
    Redraw();
    events.Scroll(bars_.vertical().value, bars_.horizontal().value, 0);
}

void SoftMessageHook::EndDrag(Bar bar) {
    if (!std::exchange(busy_, false)) return;
    Redraw();
    events.EndScroll(bars_.state(bar).value);
}

const host::MouseHookRecord* SoftWindowHook::Mouse() const {
    return kind_ == 2 ? world_.hooks.record : nullptr;
}

void SoftWindowHook::HookSet(std::int32_t& kind, std::int32_t& target, bool&) {
    HookRelease();
    if (kind < 0 || kind > 3) throw Error("a hook has the kind 0, 1, 2 or 3");
    const bool ofThread = kind >= 2;
    if (ofThread ? target != kThreadID : !world_.windows.Find(target))
        throw ObjectError("a hook was set on a window or thread that does not exist");
    kind_ = kind;
    (kind == 2   ? world_.hooks.mouse
     : kind == 3 ? world_.hooks.keys
                 : world_.hooks.windows)
        .Add(target, *this);
}

void SoftWindowHook::HookRelease() {
    if (std::exchange(kind_, -1) < 0) return;
    world_.hooks.windows.Remove(*this);
    world_.hooks.mouse.Remove(*this);
    world_.hooks.keys.Remove(*this);
}

} // namespace tvok::soft
