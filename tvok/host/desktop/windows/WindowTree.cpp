#include "tvok/host/desktop/windows/WindowTree.h"

#include <algorithm>

#include "tvok/host/desktop/windows/ScrollBars.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok::soft {

Window::Window(WindowTree& tree, WindowClient& client)
    : tree_(tree), client_(client), dc_(tree.world().objects, tree.world().text) {}

Window::~Window() {
    tree_.Remove(*this);
}

bool Window::IsInside(const Window& ancestor) const {
    for (const Window* window = this; window; window = window->parent_)
        if (window == &ancestor) return true;
    return false;
}

Window& Window::root() {
    Window* window = this;
    while (window->parent_) window = window->parent_;
    return *window;
}

Insets Window::insets() const {
    Insets insets = client_.Frame();
    if (bars_) {
        const std::int32_t size = tree_.world().theme.scrollBarSize;
        if (bars_->vertical().shown) insets.right += size;
        if (bars_->horizontal().shown) insets.bottom += size;
    }
    return insets;
}

bool Window::IsVisible() const {
    for (const Window* window = this; window; window = window->parent_)
        if (!window->shown_) return false;
    return alive_;
}

WindowTree::WindowTree(World& world)
    : world_(world), frameDc_(std::make_unique<DeviceContext>(world.objects, world.text)) {}

WindowTree::~WindowTree() = default;

void WindowTree::Link(Window& window, Window* parent) {
    window.parent_ = parent;
    if (parent) {
        parent->children_.insert(parent->children_.begin(), &window);
        return;
    }
    if (!window.own_) window.own_ = std::make_unique<TopLevel>();
    window.own_->window = &window;
    tops_.insert(tops_.begin(), &window);
    SortTops();
}

void WindowTree::Unlink(Window& window) {
    std::erase(window.parent_ ? window.parent_->children_ : tops_, &window);
    window.parent_ = nullptr;
}

void WindowTree::SortTops() {
    std::stable_partition(tops_.begin(), tops_.end(), [](const Window* window) {
        return window->own_->popup || (window->exStyle_ & host::WS_EX_TOPMOST);
    });
}

host::Point WindowTree::ClientOrigin(const Window& window) const {
    const tvok_Rect& place = window.top_ ? window.top_->window->rect_ : window.rect_;
    return {place.Left + window.area_.Left, place.Top + window.area_.Top};
}

tvok_Rect WindowTree::ScreenRect(const Window& window) const {
    if (!window.top_) return window.rect_;
    const tvok_Rect& place = window.top_->window->rect_;
    return Moved(window.outer_, place.Left, place.Top);
}

namespace {

Window* Deepest(Window& window, host::Point onSurface) {
    for (Window* child : window.children())
        if (child->shown() && Contains(child->outer(), onSurface) && Contains(window.clientArea(), onSurface))
            return Deepest(*child, onSurface);
    return &window;
}

std::int32_t CodeAt(const Window& window, host::Point onSurface) {
    if (Contains(window.clientArea(), onSurface)) return host::HTCLIENT;
    if (const ScrollBars* bars = window.bars()) {
        if (Contains(bars->Place(Bar::Vertical), onSurface)) return host::HTVSCROLL;
        if (Contains(bars->Place(Bar::Horizontal), onSurface)) return host::HTHSCROLL;
    }
    return host::HTBORDER;
}

} // namespace

Hit WindowTree::HitTest(host::Point screen) const {
    for (Window* top : tops_) {
        if (!top->shown_ || !Contains(top->rect_, screen)) continue;
        const host::Point onSurface{screen.x - top->rect_.Left, screen.y - top->rect_.Top};
        Window* window = Deepest(*top, onSurface);
        return {window, CodeAt(*window, onSurface)};
    }
    return {};
}

} // namespace tvok::soft
