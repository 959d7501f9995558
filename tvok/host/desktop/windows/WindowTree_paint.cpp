/// Update regions, painting and scrolling.
#include <algorithm>

#include "tvok/host/desktop/windows/ScrollBars.h"
#include "tvok/host/desktop/windows/WindowTree.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok::soft {

namespace {

tvok_Rect OnSurface(const Window& window, const tvok_Rect& client) {
    return Moved(client, window.clientArea().Left, window.clientArea().Top);
}
tvok_Rect InClient(const Window& window, const tvok_Rect& onSurface) {
    return Moved(onSurface, -window.clientArea().Left, -window.clientArea().Top);
}

/// A client rectangle cut to the client area, so that moving it cannot overflow.
tvok_Rect CutToClient(const Window& window, const tvok_Rect* rect) {
    const tvok_Rect all = InClient(window, window.clientArea());
    return rect ? Intersection(*rect, all) : all;
}

/// Calls `visit` for every window of a tree, parents first, while it answers true.
template<class Visit>
bool ForEach(Window& window, const Visit& visit) {
    if (!visit(window)) return false;
    return std::ranges::all_of(window.children(), [&](Window* child) { return ForEach(*child, visit); });
}

} // namespace

void WindowTree::Invalidate(Window& window, const tvok_Rect* rect, bool erase) {
    if (!window.alive_) return;
    scratch_ = window.visible_;
    scratch_.Intersect(OnSurface(window, CutToClient(window, rect)));
    if (scratch_.IsEmpty()) return;
    window.update_.Add(scratch_);
    window.erase_ |= erase;
}

std::vector<Window*> WindowTree::All() const {
    std::vector<Window*> all;
    for (Window* top : tops_)
        ForEach(*top, [&](Window& window) {
            all.push_back(&window);
            return true;
        });
    return all;
}

void WindowTree::InvalidateAll() {
    for (Window* window : All()) {
        Invalidate(*window, nullptr, true);
        window->frameDirty_ = true;
    }
}

void WindowTree::Update(Window& window) {
    if (!window.alive_ || window.update_.IsEmpty()) return;
    const host::Handle handle = window.handle_;
    const std::size_t depth = window.painting_.size();
    window.validated_ = false;
    const auto finish = [&](bool failed) {
        Window* same = Find(handle);
        if (!same) return;
        if (failed || !same->validated_) same->update_.Clear();
        if (same->painting_.size() <= depth) return;
        same->painting_.resize(depth);
        ApplyClip(*same);
    };
    try {
        world_.Send({handle, host::WM_PAINT, 0, 0});
    } catch (...) {
        finish(true);
        throw;
    }
    finish(false);
}

bool WindowTree::NeedsPaint() const {
    return !std::ranges::all_of(tops_, [](Window* top) {
        return ForEach(*top, [](const Window& window) { return window.update_.IsEmpty(); });
    });
}

void WindowTree::UpdateAll() {
    constexpr int kRounds = 8; // a handler that invalidates while it paints would go on for ever
    for (int round = 0; round < kRounds; ++round) {
        std::vector<host::Handle> stale;
        stale.swap(stale_);
        stale.clear();
        for (Window* top : tops_)
            ForEach(*top, [&](const Window& window) {
                if (!window.update_.IsEmpty()) stale.push_back(window.handle_);
                return true;
            });
        for (const host::Handle handle : stale)
            if (Window* window = Find(handle)) Update(*window);
        const bool done = stale.empty();
        stale_.swap(stale);
        if (done) return;
    }
}

host::Handle WindowTree::BeginPaint(Window& window, host::PaintStruct& paint) {
    window.validated_ = true;
    window.painting_.push_back(window.update_);
    window.update_.Clear();
    ApplyClip(window);
    paint.hdc = window.hDC_;
    const tvok_Rect box = window.painting_.back().Bounds();
    paint.rcPaint = IsEmpty(box) ? tvok_Rect{} : InClient(window, box);
    paint.fErase = window.erase_;
    if (std::exchange(window.erase_, false)) {
        const host::Handle handle = window.handle_;
        paint.fErase = world_.Send({handle, host::WM_ERASEBKGND, window.hDC_, 0}) == 0;
        if (!Find(handle)) paint.hdc = 0;
    }
    return paint.hdc;
}

void WindowTree::EndPaint(Window& window) {
    if (window.painting_.empty()) return;
    window.painting_.pop_back();
    ApplyClip(window);
}

bool WindowTree::Scroll(Window& window, host::Point by, const tvok_Rect* scroll, const tvok_Rect* clip,
                        tvok_Rect* update) {
    const tvok_Rect from = CutToClient(window, scroll);
    const tvok_Rect within = CutToClient(window, clip);
    Region uncovered;
    if (!window.dc_.Scroll(by.x, by.y, from, within, uncovered)) return false;
    if (!window.update_.IsEmpty()) {
        MoveDirtyPart(window, by, from, within);
        uncovered.Add(dirty_);
    }
    if (update) *update = uncovered.IsEmpty() ? tvok_Rect{} : uncovered.Bounds();
    return true;
}

/// What waited for a paint and was moved waits at its new place. `dirty_` gets that part, in client
/// coordinates.
void WindowTree::MoveDirtyPart(Window& window, host::Point by, const tvok_Rect& scroll,
                               const tvok_Rect& clip) {
    Region area = window.dc_.Clip(); // pixels move from it to it
    area.Intersect(OnSurface(window, Intersection(scroll, clip)));
    Region reached = area;
    reached.Translate(by.x, by.y).Intersect(area);
    dirty_ = window.update_;
    dirty_.Intersect(area).Translate(by.x, by.y).Intersect(reached);
    window.update_.Subtract(reached).Add(dirty_);
    dirty_.Translate(-window.area_.Left, -window.area_.Top);
}

void WindowTree::DrawFrames() {
    for (Window* top : tops_)
        ForEach(*top, [&](Window& window) {
            if (std::exchange(window.frameDirty_, false)) DrawFrame(window);
            return true;
        });
}

bool WindowTree::NeedsFrames() const {
    return !std::ranges::all_of(tops_, [](Window* top) {
        return ForEach(*top, [](const Window& window) { return !window.frameDirty_; });
    });
}

void WindowTree::DrawFrame(Window& window) {
    if (window.insets() == Insets{}) return;
    scratch_ = Region(window.outer_);
    RemoveCover(window, scratch_);
    scratch_.Subtract(window.area_);
    if (scratch_.IsEmpty()) return;
    frameDc_->Target(&window.top_->surface, window.outer_.Left, window.outer_.Top, &window.top_->damage);
    frameDc_->Clip(scratch_);
    window.client_.DrawFrame(window, *frameDc_);
    if (!window.bars_) return;
    frameDc_->Target(&window.top_->surface, 0, 0, &window.top_->damage);
    window.bars_->Draw(*frameDc_, world_.theme);
}

host::Handle WindowTree::OpenContext(Window* window) {
    auto spare = std::ranges::find(frameContexts_, 0, [](const auto& context) { return context->handle; });
    if (spare == frameContexts_.end())
        spare = frameContexts_.insert(spare, std::make_unique<FrameContext>(world_.objects, world_.text));
    FrameContext& context = **spare;
    context.slot = {&context.context, window, true};
    context.handle = contexts_.Add(&context.slot);
    TargetContext(context);
    return context.handle;
}

bool WindowTree::CloseContext(host::Handle hDC) {
    const auto found =
        std::ranges::find(frameContexts_, hDC, [](const auto& context) { return context->handle; });
    if (hDC == 0 || found == frameContexts_.end()) return false;
    contexts_.Remove(hDC);
    (*found)->handle = 0;
    (*found)->slot.window = nullptr;
    (*found)->context.Reset(); // the next user gets it fresh, and what was selected is in use no more
    return true;
}

void WindowTree::CloseContextsOf(const Window& window) {
    for (const auto& context : frameContexts_)
        if (context->slot.window == &window) CloseContext(context->handle);
}

void WindowTree::TargetContext(FrameContext& context) {
    Window* window = context.slot.window;
    if (!window) return context.context.Target(nullptr, 0, 0, nullptr);
    scratch_ = Region(window->outer_);
    RemoveCover(*window, scratch_);
    RemoveChildren(*window, scratch_);
    context.context.Target(&window->top_->surface, window->outer_.Left, window->outer_.Top,
                           &window->top_->damage);
    context.context.Clip(scratch_);
}

host::Point WindowTree::ContextOrigin(host::Handle hDC) const {
    const ContextSlot* slot = Context(hDC);
    if (!slot || !slot->window) return {};
    if (!slot->whole) return ClientOrigin(*slot->window);
    const tvok_Rect rect = ScreenRect(*slot->window);
    return {rect.Left, rect.Top};
}

} // namespace tvok::soft
