/// Where windows lie and what of them is visible.
#include <algorithm>

#include "tvok/host/desktop/windows/ScrollBars.h"
#include "tvok/host/desktop/windows/WindowTree.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok::soft {

namespace {

/// A window inside another may be larger than any surface.
void LimitToSurface(tvok_Rect& rect) {
    rect.Right = std::min(rect.Right, rect.Left + kMaxSurface);
    rect.bottom = std::min(rect.bottom, rect.Top + kMaxSurface);
}

} // namespace

struct WindowTree::Affected {
    const Window& window;
    tvok_Rect before; ///< On the surface.
    tvok_Rect after;

    bool Touches(const Window& other) const {
        return Meet(other.outer(), before) || Meet(other.outer(), after) || other.IsInside(window);
    }
};

/// Runs `change` on `window`'s place, order or visibility and sets right what its surface shows.
template<class Change>
void WindowTree::Rearrange(Window& window, Change change) {
    const tvok_Rect before = window.shown_ ? window.outer_ : tvok_Rect{};
    change();
    UpdatePlaces(window);
    const Affected affected{window, before, window.shown_ ? window.outer_ : tvok_Rect{}};
    Recompute(window.parent_ ? *window.parent_ : window, affected);
    for (const auto& context : frameContexts_) TargetContext(*context);
}

void WindowTree::Attach(Window& window, Window* parent, const tvok_Rect& rect, bool shown) {
    window.handle_ = windows_.Add(&window);
    window.slot_ = {&window.dc_, &window, false};
    window.hDC_ = contexts_.Add(&window.slot_);
    window.alive_ = true;
    window.rect_ = rect;
    Link(window, parent);
    Rearrange(window, [&] { window.shown_ = shown; });
}

void WindowTree::Remove(Window& window) {
    if (!window.alive_) return;
    while (!window.children_.empty()) Remove(*window.children_.front());
    Rearrange(window, [&] { window.shown_ = false; });
    Unlink(window);
    if (window.own_ && window.own_->isOpen) world_.display->Close(window.handle_);
    window.own_.reset();
    window.alive_ = false;
    window.top_ = nullptr;
    window.bars_ = nullptr;
    window.dc_.Target(nullptr, 0, 0, nullptr);
    CloseContextsOf(window);
    windows_.Remove(window.handle_);
    contexts_.Remove(window.hDC_);
    world_.WindowGone(window);
}

void WindowTree::UpdatePlaces(Window& window) {
    if (window.own_) {
        window.top_ = window.own_.get();
        window.outer_ = {0, 0, WidthOf(window.rect_), HeightOf(window.rect_)};
        Surface& surface = window.own_->surface;
        if (surface.Width() != window.outer_.Right || surface.Height() != window.outer_.bottom) {
            surface.Resize(window.outer_.Right, window.outer_.bottom);
            window.own_->damage.Add(window.outer_);
        }
    } else {
        window.top_ = window.parent_->top_;
        window.outer_ = Moved(window.rect_, window.parent_->area_.Left, window.parent_->area_.Top);
    }
    window.area_ = Inside(window.outer_, window.insets());
    if (window.bars_) window.bars_->Arrange(Inside(window.outer_, window.client_.Frame()), window.area_);
    window.dc_.Target(&window.top_->surface, window.area_.Left, window.area_.Top, &window.top_->damage);
    for (Window* child : window.children_) UpdatePlaces(*child);
}

void WindowTree::Recompute(Window& window, const Affected& affected) {
    Reveal(window);
    for (Window* child : window.children_)
        if (affected.Touches(*child)) Recompute(*child, affected);
}

/// Makes the visible region anew and invalidates what came into view.
void WindowTree::Reveal(Window& window) {
    const host::Point origin{window.area_.Left, window.area_.Top};
    if (origin != window.visibleOrigin_ || window.visibleTop_ != window.top_) {
        window.visible_.Clear();
        window.update_.Clear();
    }
    window.visibleOrigin_ = origin;
    window.visibleTop_ = window.top_;

    Region now(window.area_);
    RemoveCover(window, now);
    RemoveChildren(window, now);
    scratch_ = now;
    scratch_.Subtract(window.visible_);
    window.visible_ = std::move(now);
    window.update_.Intersect(window.visible_);
    if (!scratch_.IsEmpty()) {
        window.update_.Add(scratch_);
        window.erase_ = true;
    }
    window.frameDirty_ = true;
    ApplyClip(window);
}

/// Takes away what is outside the parents or behind windows in front. Nothing is left of a hidden window.
void WindowTree::RemoveCover(const Window& window, Region& region) const {
    const Window* below = &window;
    for (; below->parent_; below = below->parent_) {
        if (!below->shown_) return region.Clear();
        region.Intersect(below->parent_->area_);
        for (const Window* sibling : below->parent_->children_) {
            if (sibling == below) break;
            if (sibling->shown_) region.Subtract(sibling->outer_);
        }
    }
    if (!below->shown_) return region.Clear();
    region.Intersect(below->outer_);
}

void WindowTree::RemoveChildren(const Window& window, Region& region) const {
    for (const Window* child : window.children_)
        if (child->shown_) region.Subtract(Intersection(child->outer_, window.area_));
}

void WindowTree::ApplyClip(Window& window) {
    if (window.painting_.empty()) return window.dc_.Clip(window.visible_);
    scratch_ = window.visible_;
    scratch_.Intersect(window.painting_.back());
    window.dc_.Clip(scratch_);
}

void WindowTree::Place(Window& window, const tvok_Rect& rect) {
    const tvok_Rect before = window.rect_;
    const std::int32_t left = LimitCoordinate(rect.Left);
    const std::int32_t top = LimitCoordinate(rect.Top);
    const std::int32_t most = window.own_ ? kMaxSurface : window.client_.LongestSide();
    const tvok_Rect now{left, top, left + std::clamp(rect.Right - rect.Left, 0, most),
                        top + std::clamp(rect.bottom - rect.Top, 0, most)};
    if (now == before) return;
    const bool sized = !SameSize(now, before);
    if (!window.alive_) {
        window.rect_ = now;
        return;
    }
    if (window.own_ && !sized) {
        window.rect_ = now;
    } else {
        Rearrange(window, [&] { window.rect_ = now; });
    }
    const host::Handle handle = window.handle_;
    if (now.Left != before.Left || now.Top != before.Top)
        world_.Send({handle, host::WM_MOVE, 0, PackWords(now.Left, now.Top)});
    if (const Window* same = Find(handle); same && sized)
        world_.Send({handle, host::WM_SIZE, 0, PackWords(WidthOf(same->area_), HeightOf(same->area_))});
}

void WindowTree::Show(Window& window, bool show) {
    if (window.shown_ == show || !window.alive_) return;
    Rearrange(window, [&] { window.shown_ = show; });
    if (window.own_ && show) window.own_->toRaise = true;
    if (!show) world_.WindowHidden(window);
}

void WindowTree::Order(Window& window, host::Handle after) {
    if (!window.alive_) return;
    if (after == host::HWND_TOPMOST) window.exStyle_ |= host::WS_EX_TOPMOST;
    if (after == host::HWND_NOTOPMOST) window.exStyle_ &= ~host::WS_EX_TOPMOST;
    auto& order = window.parent_ ? window.parent_->children_ : tops_;
    const auto change = [&] {
        std::erase(order, &window);
        auto place = order.begin();
        if (after == host::HWND_BOTTOM) {
            place = order.end();
        } else if (after > host::HWND_BOTTOM) {
            place = std::find(order.begin(), order.end(), Find(after));
            if (place != order.end()) ++place;
        }
        order.insert(place, &window);
        SortTops();
    };
    // Every click asks for the front again.
    if (after != host::HWND_TOP || order.empty() || order.front() != &window) Rearrange(window, change);
    if (window.own_ && after != host::HWND_BOTTOM) window.own_->toRaise = true;
}

bool WindowTree::Reparent(Window& window, Window* parent) {
    if (!window.alive_ || (parent && parent->IsInside(window))) return false;
    if (parent == window.parent_ && (parent || window.own_)) return true;
    const bool shown = window.shown_;
    Rearrange(window, [&] { window.shown_ = false; });
    Unlink(window);
    if (window.own_) {
        if (window.own_->isOpen) world_.display->Close(window.handle_);
        window.own_.reset();
    }
    if (!parent) LimitToSurface(window.rect_);
    Link(window, parent);
    Rearrange(window, [&] { window.shown_ = shown; });
    return true;
}

void WindowTree::FrameChanged(Window& window) {
    if (window.alive_) Rearrange(window, [] {});
}

void WindowTree::Bars(Window& window, ScrollBars* bars) {
    window.bars_ = bars;
    FrameChanged(window);
}

void WindowTree::ExStyle(Window& window, std::int32_t style) {
    window.exStyle_ = style;
    SortTops();
}

} // namespace tvok::soft
