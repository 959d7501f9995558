#include "tvok/host/desktop/windows/World.h"

#include <algorithm>

#include "tvok/host/desktop/Form.h"
#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/SoftHooks.h"

namespace tvok::soft {

namespace {

class MachineClock final : public Clock {
public:
    std::chrono::milliseconds Now() const override {
        return std::chrono::duration_cast<std::chrono::milliseconds>(
            std::chrono::steady_clock::now().time_since_epoch());
    }
};

constexpr std::chrono::hours kLongestWait{1}; ///< What is longer overflows in some clocks.

const Clock& ClockOf(const DesktopOptions& options) {
    static const MachineClock machine;
    return options.clock ? *options.clock : machine;
}

/// Counts a level of `ProcessEvents` while it lives.
struct Level {
    explicit Level(int& depth) : depth(depth) { ++depth; }
    ~Level() { --depth; }
    Level(const Level&) = delete;
    Level& operator=(const Level&) = delete;
    int& depth;
};

} // namespace

World::World(Desktop& owner, const DesktopOptions& options, std::unique_ptr<Display> shownOn)
    : desktop(owner), theme(options.theme), objects(theme), text(options.fontFile),
      display(std::move(shownOn)), windows(*this), loop(*this), focus(*this), tracker(*this), input(*this),
      platform(*this), services(*this, options.language), clock_(ClockOf(options)), clipboard_(*display),
      clipboardBefore_(SetClipboard(&clipboard_)) {}

World::~World() {
    for (const auto& form : forms) form->window().End();
    forms.clear();
    grave_.clear();
    SetClipboard(clipboardBefore_);
}

std::int32_t World::Send(const Message& message) {
    if (!windows.Find(message.hWnd)) return 0;
    std::int32_t result = 0;
    const auto ask = [&](auto& hook) {
        bool goOn = true;
        hook.RtMsg(message.message, message.wParam, message.lParam, result, goOn);
        return goOn && windows.Find(message.hWnd);
    };
    if (!hooks.windows.All(message.hWnd, ask)) return result;
    if (!hooks.messages.All(message.hWnd, [&](SoftMessageHook& hook) {
            bool goOn = true;
            hook.events.RtMsg(message.message, message.wParam, message.lParam, result, goOn);
            return goOn && windows.Find(message.hWnd);
        }))
        return result;
    Window* window = windows.Find(message.hWnd);
    return window ? window->client().Process(*window, message) : 0;
}

bool World::ProcessEvents(std::chrono::milliseconds timeout) {
    if (over_) return false;
    {
        const Level level(depth_);
        const auto wait = std::min(timeout, loop.Idle().value_or(timeout));
        display->Wait(std::clamp<std::chrono::milliseconds>(wait, std::chrono::milliseconds{0}, kLongestWait),
                      input);
        loop.Run();
        Present();
    }
    if (depth_ == 0) grave_.clear();
    return !over_;
}

void World::DoEvents() {
    const Level level(depth_);
    display->Wait(std::chrono::milliseconds{0}, input);
    loop.Run();
    Present();
}

void World::Quit(int code) {
    over_ = true;
    exitCode_ = code;
    display->Wake();
}

host::FontValue World::DefaultFont() const {
    return {.Name = theme.fontName, .Size = theme.fontPoints};
}

std::int32_t World::ColorOf(OLE_COLOR color) const {
    if (color >= 0) return color & 0xFFFFFF;
    const auto index = static_cast<std::size_t>(color & 0xFF);
    return index < theme.colors.size() ? theme.colors[index] : 0;
}

void World::SetTheme(const Theme& wanted) {
    theme = wanted;
    objects.ApplyTheme(theme);
    for (Window* top : std::vector(windows.tops())) windows.FrameChanged(*top);
    windows.InvalidateAll();
}

Form& World::AddForm(std::unique_ptr<Form> form) {
    Form& added = *form;
    forms.push_back(std::move(form));
    added.window().form(&added);
    focus.Activate(&added.window());
    return added;
}

void World::CloseForm(Form& form) {
    const auto found = std::ranges::find(forms, &form, [](const auto& each) { return each.get(); });
    if (found == forms.end()) return;
    std::shared_ptr<Form> closed = std::move(*found);
    forms.erase(found);
    Bury(closed);
    closed->window().End();
    closed->window().form(nullptr);
    if (forms.empty()) {
        over_ = true;
    } else if (!focus.active()) {
        focus.Activate(&forms.back()->window());
    }
    closed->events.Closed();
}

FormWindow* World::FormOf(const Window& window) const {
    const TopLevel* top = window.top();
    const auto found = std::ranges::find_if(
        forms, [&](const auto& form) { return top && top->window == &form->window().window(); });
    return found == forms.end() ? nullptr : &(*found)->window();
}

void World::FormGone(const FormWindow& form) {
    focus.FormGone(form);
    if (modal_ == &form) modal_ = nullptr;
}

host::Point World::NextFormPlace() {
    const std::int32_t step = formsMade_++ % 10;
    return {40 + 24 * step, 40 + 24 * step};
}

void World::WindowGone(const Window& window) {
    tracker.Forget(window.handle());
    focus.WindowGone(window);
    while (SoftMessageHook* hook = hooks.messages.Newest(window.handle())) hook->WindowGone();
    while (SoftWindowHook* hook = hooks.windows.Newest(window.handle())) hook->HookRelease();
}

void World::WindowHidden(const Window& window) {
    focus.WindowHidden(window);
}

void World::Present() {
    windows.UpdateAll();
    windows.DrawFrames();
    const auto fromBack = std::vector(windows.tops().rbegin(), windows.tops().rend());
    for (Window* window : fromBack) Show(*window);
}

/// Tells the display what changed of a top-level window since it was told last.
void World::Show(Window& window) {
    TopLevel& top = *window.top();
    DisplayWindow now{window.handle(), window.rect(), top.caption, top.popup, !top.popup, window.shown()};
    if (!top.isOpen) {
        if (!now.visible) return;
        display->Open(now);
        top.isOpen = true;
        top.damage.Add(window.outer());
    } else if (now.rect != top.told.rect || now.caption != top.told.caption ||
               now.visible != top.told.visible) {
        display->Change(now);
    }
    top.told = std::move(now);
    if (std::exchange(top.toRaise, false) && window.shown()) display->Raise(window.handle());
    if (window.shown() && !top.damage.IsEmpty())
        display->Present(window.handle(), top.surface, top.damage.Take());
}

host::Handle World::AddImages(ImageList images) {
    constexpr host::Handle kFirst = 0x30000000;
    images_.push_back(std::make_unique<ImageList>(std::move(images)));
    return kFirst + static_cast<host::Handle>(images_.size());
}

const ImageList* World::Images(host::Handle handle) const {
    const auto index = static_cast<std::size_t>(static_cast<std::uint32_t>(handle) - 0x30000001U);
    return index < images_.size() ? images_[index].get() : nullptr;
}

} // namespace tvok::soft
