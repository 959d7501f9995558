/// The two hook classes of the software desktop.
#pragma once

#include "tvok/host/Hooks.h"
#include "tvok/host/desktop/windows/ScrollBars.h"

namespace tvok::soft {

class World;

class SoftMessageHook final : public host::MessageHook {
public:
    explicit SoftMessageHook(World& world) : world_(world) {}
    ~SoftMessageHook() override { SoftMessageHook::HookDetach(); }

    void HookMode(std::int32_t mode) override;
    void HookAttach(host::Handle hWnd, bool& flag) override;
    void HookDetach() override;
    std::int32_t HookCount() const override { return count_; }
    void HookActive(bool) override {}

    std::int32_t ScrollValue() const override { return bars_.vertical().value; }
    void ScrollValue(std::int32_t value) override { Set(Bar::Vertical, value); }
    std::int32_t ScrollMax() const override { return bars_.vertical().max; }
    void ScrollMax(std::int32_t max) override { SetMax(Bar::Vertical, max); }
    std::int32_t ScrollLarge() const override { return bars_.vertical().large; }
    void ScrollLarge(std::int32_t page) override { SetLarge(Bar::Vertical, page); }
    std::int32_t ScrollHValue() const override { return bars_.horizontal().value; }
    void ScrollHValue(std::int32_t value) override { Set(Bar::Horizontal, value); }
    std::int32_t ScrollHMax() const override { return bars_.horizontal().max; }
    void ScrollHMax(std::int32_t max) override { SetMax(Bar::Horizontal, max); }
    std::int32_t ScrollHLarge() const override { return bars_.horizontal().large; }
    void ScrollHLarge(std::int32_t page) override { SetLarge(Bar::Horizontal, page); }
    bool ScrollBarShown() const override { return bars_.vertical().shown; }
    void ScrollBarShown(bool show) override;
    bool ScrollHBarShown() const override { return bars_.horizontal().shown; }
    void ScrollHBarShown(bool show) override;
    bool vBusy() const override { return busy_; }

    void ScrollGrow(std::int32_t& count, bool redraw) override;
    void ScrollGrowValue(std::int32_t& count, std::int32_t reserved, bool redraw) override;

    // The user's hand on the bars. Each may end this hook.

    void StepTo(Bar bar, std::int64_t value); ///< Raises `Change` if the position changes.
    void BeginDrag() { busy_ = true; }
    void DragTo(Bar bar, std::int32_t value); ///< Raises `Scroll` if the position changes.
    void EndDrag(Bar bar);
    void WindowGone();
    void Redraw(); ///< The bars look different.

private:
    void Set(Bar bar, std::int32_t value) { StepTo(bar, value); }
    void SetMax(Bar bar, std::int32_t max);
    void SetLarge(Bar bar, std::int32_t page);
    void Grow(std::int32_t count, bool move);
    void ShowBars();
    void RaiseChange();

    World& world_;
    host::Handle hWnd_ = 0;
    std::int32_t mode_ = 0;
    std::int32_t count_ = 0;
    ScrollBars bars_{*this};
    bool wanted_ = false; ///< `ScrollBarShown` as written, for the mode with two bars.
    bool wantedHorizontal_ = false;
    bool busy_ = false;
};

class SoftWindowHook final : public host::WindowHook {
public:
    explicit SoftWindowHook(World& world) : world_(world) {}
    ~SoftWindowHook() override { SoftWindowHook::HookRelease(); }

    const host::MouseHookRecord* Mouse() const override;
    void HookSet(std::int32_t& kind, std::int32_t& target, bool& flag) override;
    void HookRelease() override;

private:
    World& world_;
    std::int32_t kind_ = -1; ///< -1: released.
};

} // namespace tvok::soft
