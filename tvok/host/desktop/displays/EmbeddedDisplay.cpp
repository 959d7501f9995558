#include "tvok/host/desktop/displays/EmbeddedDisplay.h"

#include <algorithm>
#include <utility>

#include "tvok/host/desktop/windows/World.h"

namespace tvok::soft {

using host::Handle;

namespace {

EmbeddedWindow Described(const DisplayWindow& window) {
    return {window.id, window.rect, window.caption, window.popup, window.resizable, window.visible};
}

} // namespace

EmbeddedDisplay::EmbeddedDisplay(Embedding::Layout layout, std::int32_t width, std::int32_t height,
                                 EmbeddingCalls calls)
    : layout_(layout), calls_(std::move(calls)), memory_(MakeHeadlessDisplay(width, height)) {
    Resize(width, height);
}

// Windows. The program hears of them later: the desktop is in the middle of something here.

void EmbeddedDisplay::Notice(std::function<void()> call) {
    if (!IsOneSurface()) notices_.push_back(std::move(call));
}

void EmbeddedDisplay::TellNotices() {
    while (!notices_.empty()) {
        const auto call = std::move(notices_.front()); // which may take a turn that tells the others
        notices_.pop_front();
        call();
    }
}

void EmbeddedDisplay::Open(const DisplayWindow& window) {
    const EmbeddedWindow now = Described(window);
    entries_[window.id] = {now, {}};
    Damage(now);
    if (calls_.opened) Notice([this, now] { calls_.opened(now); });
}

void EmbeddedDisplay::Change(const DisplayWindow& window) {
    const auto found = entries_.find(window.id);
    if (found == entries_.end()) return;
    const EmbeddedWindow now = Described(window);
    Damage(std::exchange(found->second.window, now));
    Damage(now);
    if (calls_.changed) Notice([this, now] { calls_.changed(now); });
}

void EmbeddedDisplay::Raise(Handle id) {
    if (calls_.raised) Notice([this, id] { calls_.raised(id); });
}

void EmbeddedDisplay::Close(Handle id) {
    const auto found = entries_.find(id);
    if (found == entries_.end()) return;
    Damage(found->second.window);
    entries_.erase(found);
    if (calls_.closed) Notice([this, id] { calls_.closed(id); });
}

const EmbeddedWindow* EmbeddedDisplay::Find(Handle id) const {
    const auto found = entries_.find(id);
    return found == entries_.end() ? nullptr : &found->second.window;
}

void EmbeddedDisplay::SetRect(Handle id, const tvok_Rect& rect) {
    const auto found = entries_.find(id);
    if (found != entries_.end()) found->second.window.rect = rect;
}

bool EmbeddedDisplay::HasPopup() const {
    return std::ranges::any_of(
        entries_, [](const auto& entry) { return entry.second.window.popup && entry.second.window.visible; });
}

// Pixels.

void EmbeddedDisplay::Picture::Resize(std::int32_t newWidth, std::int32_t newHeight) {
    if (width == newWidth && height == newHeight) return;
    width = newWidth;
    height = newHeight;
    pixels.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0);
    damage = Region({0, 0, width, height});
}

std::vector<tvok_Rect> EmbeddedDisplay::Picture::TakeDamage() {
    damage.Intersect({0, 0, width, height});
    std::vector<tvok_Rect> rects;
    for (const pixman_box32_t& box : damage.Boxes()) rects.push_back(RectOf(box));
    damage.Clear();
    return rects;
}

void EmbeddedDisplay::Picture::Fill(Pixel color, const tvok_Rect& part) {
    for (std::int32_t y = part.Top; y < part.bottom; ++y)
        std::fill_n(pixels.begin() + static_cast<std::ptrdiff_t>(y) * width + part.Left, WidthOf(part),
                    color);
}

/// What of `part` a surface at `place` covers.
void EmbeddedDisplay::Picture::Copy(const Surface& from, host::Point place, const tvok_Rect& part) {
    const tvok_Rect all{place.x, place.y, place.x + from.Width(), place.y + from.Height()};
    const tvok_Rect copied = Intersection(all, part);
    if (soft::IsEmpty(copied)) return;
    for (std::int32_t y = copied.Top; y < copied.bottom; ++y)
        std::copy_n(from.Row(y - place.y) + (copied.Left - place.x), WidthOf(copied),
                    pixels.begin() + static_cast<std::ptrdiff_t>(y) * width + copied.Left);
}

void EmbeddedDisplay::Resize(std::int32_t width, std::int32_t height) {
    screen_ = {0, 0, std::clamp(width, 0, kMaxSurface), std::clamp(height, 0, kMaxSurface)};
    if (IsOneSurface()) surface_.Resize(screen_.Right, screen_.bottom);
}

/// Of a surface: all of a window that comes, goes or moves.
void EmbeddedDisplay::Damage(const EmbeddedWindow& window) {
    if (IsOneSurface() && window.visible) surface_.damage.Add(window.rect);
}

void EmbeddedDisplay::Present(Handle id, const Surface&, const Region& damage) {
    const auto found = entries_.find(id);
    if (found == entries_.end()) return;
    if (!IsOneSurface()) {
        found->second.picture.damage.Add(damage);
        return;
    }
    const tvok_Rect& rect = found->second.window.rect;
    Region onScreen = damage;
    surface_.damage.Add(onScreen.Translate(rect.Left, rect.Top));
}

/// A window that only went to the front or the back has no damage of its own.
void EmbeddedDisplay::DamageReordered(std::vector<Handle> order) {
    const auto common = [](const std::vector<Handle>& these, const std::vector<Handle>& those) {
        std::vector<Handle> result;
        std::ranges::copy_if(these, std::back_inserter(result),
                             [&](Handle id) { return std::ranges::find(those, id) != those.end(); });
        return result;
    };
    if (common(order, order_) != common(order_, order)) surface_.damage.Add(screen_);
    order_ = std::move(order);
}

std::vector<tvok_Rect> EmbeddedDisplay::TakeDamage(Handle id, const World& world) {
    return IsOneSurface() ? TakeSurfaceDamage(id, world) : TakeWindowDamage(id, world);
}

std::vector<tvok_Rect> EmbeddedDisplay::TakeSurfaceDamage(Handle id, const World& world) {
    if (id != 0) return {};
    std::vector<const Window*> shown; // from the back
    std::vector<Handle> order;
    const auto& tops = world.windows.tops();
    for (auto top = tops.rbegin(); top != tops.rend(); ++top) {
        const EmbeddedWindow* told = Find((*top)->handle());
        if (!told || !told->visible) continue;
        shown.push_back(*top);
        order.push_back(told->id);
    }
    DamageReordered(std::move(order));
    auto rects = surface_.TakeDamage();
    const Pixel background = PixelOf(world.theme.colors[host::COLOR_BACKGROUND]);
    for (const tvok_Rect& rect : rects) {
        surface_.Fill(background, rect);
        for (const Window* window : shown) {
            const tvok_Rect& place = entries_.at(window->handle()).window.rect;
            surface_.Copy(window->top()->surface, {place.Left, place.Top}, rect);
        }
    }
    return rects;
}

std::vector<tvok_Rect> EmbeddedDisplay::TakeWindowDamage(Handle id, const World& world) {
    const auto found = entries_.find(id);
    const Window* window = world.windows.Find(id);
    if (found == entries_.end() || !window || !window->IsTopLevel()) return {};
    const Surface& surface = window->top()->surface;
    Picture& picture = found->second.picture;
    picture.Resize(surface.Width(), surface.Height());
    auto rects = picture.TakeDamage();
    for (const tvok_Rect& rect : rects) picture.Copy(surface, {0, 0}, rect);
    return rects;
}

EmbeddedPixels EmbeddedDisplay::Pixels(Handle id) const {
    const auto found = entries_.find(id);
    const bool known = IsOneSurface() ? id == 0 : found != entries_.end();
    if (!known) return {};
    const Picture& picture = IsOneSurface() ? surface_ : found->second.picture;
    if (picture.pixels.empty()) return {};
    return {picture.pixels.data(), picture.width, picture.height, picture.width};
}

// The rest.

void EmbeddedDisplay::Wait(std::chrono::milliseconds timeout, DisplayEvents& events) {
    const bool waits = timeout.count() > 0 && calls_.wait;
    if (waits) TellNotices();
    if (waits && !woken_) calls_.wait(timeout);
    woken_ = false;
    memory_->Wait(waits ? std::chrono::milliseconds{0} : timeout, events);
}

void EmbeddedDisplay::Wake() {
    memory_->Wake();
    if (!woken_.exchange(true) && calls_.wake) calls_.wake();
}

void EmbeddedDisplay::Pointer(std::int16_t mousePointer) {
    if (calls_.pointer) calls_.pointer(mousePointer);
}

std::string EmbeddedDisplay::ClipboardText() {
    return HasOuterClipboard() ? calls_.readClipboard() : memory_->ClipboardText();
}

void EmbeddedDisplay::ClipboardText(std::string_view utf8) {
    HasOuterClipboard() ? calls_.writeClipboard(utf8) : memory_->ClipboardText(utf8);
}

} // namespace tvok::soft
