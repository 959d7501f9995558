#include "tvok/host/desktop/windows/World.h"

#include <algorithm>

#include "tvok/host/desktop/Form.h"
#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/SoftHooks.h"
#include "tvok/records/Error.h"
#include "tvok/records/Event.h"

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

} // namespace

World::World(Desktop& owner, const DesktopOptions& options, std::unique_ptr<Display> shownOn)
    : desktop(owner), theme(options.theme), objects(theme), text(options.fontFile),
      display(std::move(shownOn)), windows(*this), loop(*this), focus(*this), tracker(*this), input(*this),
      platform(*this), services(*this, options.language), clock_(ClockOf(options)), clipboard_(*display),
      clipboardBefore_(SetClipboard(&clipboard_)) {}

World::~World() {
    {
        const Running running(*this);
        std::vector<FormWindow*> ending; // the end of one may close another, which is buried then
        for (const auto& form : forms) ending.push_back(&form->window());
        for (FormWindow* form : ending) form->End();
    }
    forms.clear();
    FreeBuried();
    SetClipboard(clipboardBefore_);
}

std::int32_t World::Send(const Message& message) {
    if (!windows.Find(message.hWnd)) return 0;
    const Running running(*this);
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
        const Running running(*this);
        // What a host drew since the last turn is shown now, and not after the wait.
        const auto wait =
            NeedsPresent() ? std::chrono::milliseconds{0} : std::min(timeout, loop.Idle().value_or(timeout));
        display->Wait(std::clamp<std::chrono::milliseconds>(wait, std::chrono::milliseconds{0}, kLongestWait),
                      input);
        loop.Run();
        Present();
    }
    // A host may have called a control directly, whose event then came here.
    if (depth_ == 0 && RunningEvent::Count() == 0) FreeBuried();
    return !over_;
}

void World::FreeBuried() {
    const auto freed = std::exchange(grave_, {}); // which may bury something in its turn
}

void World::DoEvents() {
    const Running running(*this);
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
    const Running running(*this);
    std::vector<std::pair<host::Handle, tvok_Rect>> before;
    for (Window* window : windows.All()) {
        before.emplace_back(window->handle(), window->clientArea());
        window->client().ThemeChanged();
    }
    for (Window* top : windows.tops()) windows.FrameChanged(*top);
    windows.InvalidateAll();
    FirstError failed;
    for (const auto& [handle, area] : before) {
        Window* window = windows.Find(handle);
        if (window && !SameSize(window->clientArea(), area))
            failed.Try([&] { window->client().FrameResized(); });
    }
    failed.Rethrow();
}

/// What windows were given before counts at the scale before. The places that the display tells wait in the
/// queue, as those that a user moves windows to.
void World::Scale(float scale) {
    if (scale == display->Scale()) return;
    for (Window* top : windows.tops())
        if (top->top()->isOpen) Tell(*top);
    display->Scale(scale, input);
    for (Window* top : windows.tops()) top->top()->damage.Add(top->outer());
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

bool World::NeedsPresent() const {
    return windows.NeedsFrames() || std::ranges::any_of(windows.tops(), [&](const Window* window) {
               const TopLevel& top = *window->top();
               if (!top.isOpen) return window->shown();
               return Describe(*window) != top.told ||
                      (window->shown() && (top.toRaise || !top.damage.IsEmpty()));
           });
}

/// A top-level window as the display is to know it.
DisplayWindow World::Describe(const Window& window) const {
    const TopLevel& top = *window.top();
    const FormWindow* form = FormOf(window);
    return {window.handle(), window.rect(), top.caption, top.popup, form && form->resizable, window.shown()};
}

/// Tells the display of an open window what changed since it was told last.
void World::Tell(Window& window) {
    TopLevel& top = *window.top();
    DisplayWindow now = Describe(window);
    if (now != top.told) display->Change(now);
    top.told = std::move(now);
}

/// The same of any window, and its pixels.
void World::Show(Window& window) {
    TopLevel& top = *window.top();
    if (top.isOpen) {
        Tell(window);
    } else {
        top.told = Describe(window);
        if (!top.told.visible) return;
        display->Open(top.told);
        top.isOpen = true;
        top.damage.Add(window.outer());
    }
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
