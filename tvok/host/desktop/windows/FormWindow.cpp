#include "tvok/host/desktop/windows/FormWindow.h"

#include <algorithm>

#include "tvok/host/desktop/gdi/Frames.h"
#include "tvok/host/desktop/windows/World.h"
#include "tvok/records/Error.h"

namespace tvok::soft {

namespace {

constexpr std::int32_t kBorder = 3;

constexpr std::int32_t kCloseWidth = 16;
constexpr std::int32_t kCloseHeight = 14;

} // namespace

FormWindow::FormWindow(World& world, std::string_view text, std::int32_t width, std::int32_t height)
    : caption(text), world_(world), window_(world.windows, *this) {
    const host::Point place = world.NextFormPlace();
    world.windows.Attach(window_, nullptr, {place.x, place.y, place.x, place.y}, false);
    TopLevel& top = *window_.top();
    top.popup = false;
    top.caption = caption;
    Open(width, height);
}

FormWindow::FormWindow(FormWindow& outer, Window& parent, std::string_view text, std::int32_t width,
                       std::int32_t height)
    : caption(text), world_(outer.world_), outer_(&outer), window_(world_.windows, *this) {
    world_.windows.Attach(window_, &parent, {}, false);
    Open(width, height);
}

void FormWindow::Open(std::int32_t width, std::int32_t height) {
    Size(width, height);
    world_.windows.Order(window_, host::HWND_TOP);
    world_.windows.Show(window_, true);
}

FormWindow::~FormWindow() {
    End();
}

void FormWindow::End() {
    if (std::exchange(ended_, true)) return;
    world_.FormGone(*this);
    const World::Running running(world_);
    EndInner(window_);
    std::vector<ComponentWindow*> ending; // the end of one may remove another, which is buried then
    for (const Entry& entry : entries_) ending.push_back(entry.component.get());
    for (ComponentWindow* component : ending) component->End();
    world_.windows.Remove(window_);
}

const FormWindow::Entry& FormWindow::EntryOf(const host::Control& control) const {
    const auto found =
        std::ranges::find(entries_, &control, [](const Entry& entry) { return entry.control.get(); });
    if (found == entries_.end()) throw ObjectError("the control is not on this form");
    return *found;
}

const FormWindow::Entry* FormWindow::Find(std::string_view name) const {
    const auto found = std::ranges::find(entries_, name, &Entry::name);
    return found == entries_.end() ? nullptr : &*found;
}

void FormWindow::Adopt(std::string_view name, const tvok_Rect& rect, std::unique_ptr<host::Control> control,
                       host::PropertyBag* settings) {
    if (ended_) throw ObjectError("the form is closed");
    if (!control) throw ObjectError("there is no control to adopt");
    if (Find(name)) throw Error("the form has a control named \"" + std::string(name) + "\" already");
    auto component =
        std::make_unique<ComponentWindow>(world_, window_, *control, std::string(name), rect, userMode);
    ComponentWindow& made = *component;
    host::Control& adopted = *control;
    world_.windows.Order(made.window(), host::HWND_BOTTOM);
    entries_.push_back({std::string(name), std::move(component), std::move(control)});
    try {
        made.BringUp(settings);
    } catch (...) {
        Remove(adopted);
        throw;
    }
    if (world_.focus.active() == this && world_.focus.focus() == window_.handle() && made.window().IsAlive())
        world_.focus.Focus(made.window().handle());
}

void FormWindow::Remove(host::Control& control) {
    const auto find = [&] {
        return std::ranges::find(entries_, &control, [](const Entry& entry) { return entry.control.get(); });
    };
    auto found = find();
    if (found == entries_.end()) return;
    found->component->LoseFocus();
    found = find(); // a handler may have removed it, or another
    if (found == entries_.end()) return;
    auto removed = std::make_shared<Entry>(std::move(*found));
    entries_.erase(found);
    EndInner(removed->component->window());
    removed->component->End();
    world_.Bury(std::move(removed)); // one of its own events may be running
    FormWindow& outermost = Outermost();
    if (world_.focus.active() == &outermost && world_.focus.focus() == 0)
        world_.focus.Focus(outermost.WantedFocus());
}

void FormWindow::SetCaption(std::string_view text) {
    caption = text;
    if (!window_.IsAlive()) return;
    if (window_.IsTopLevel()) window_.top()->caption = caption;
    world_.windows.InvalidateFrame(window_);
}

void FormWindow::Size(std::int32_t width, std::int32_t height) {
    const Insets frame = Frame();
    const tvok_Rect& rect = window_.rect();
    world_.windows.Place(window_,
                         {rect.Left, rect.Top, rect.Left + LimitCoordinate(width) + frame.left + frame.right,
                          rect.Top + LimitCoordinate(height) + frame.top + frame.bottom});
}

void FormWindow::RequestClose() {
    if (ended_ || !form_) return;
    bool keep = false;
    form_->events.Closing(keep);
    if (keep || ended_) return;
    if (outer_) {
        outer_->CloseInner(*form_);
    } else {
        world_.CloseForm(*form_);
    }
}

host::Handle FormWindow::WantedFocus() const {
    if (IsDesigned()) return window_.handle();
    const Window* last = world_.windows.Find(lastFocus_);
    if (last && last->IsVisible() && last->IsInside(window_) && last != &window_) return lastFocus_;
    const auto first = std::ranges::find_if(
        entries_, [](const Entry& entry) { return entry.component->window().IsVisible(); });
    return first == entries_.end() ? window_.handle() : first->component->window().handle();
}

bool FormWindow::MoveFocus(bool back) {
    if (IsDesigned()) return false;
    const Window* focused = world_.windows.Find(world_.focus.focus());
    const auto count = static_cast<std::ptrdiff_t>(entries_.size());
    std::ptrdiff_t current = back ? 0 : -1;
    for (std::ptrdiff_t i = 0; i < count; ++i)
        if (focused && focused->IsInside(entries_[static_cast<std::size_t>(i)].component->window()))
            current = i;
    for (std::ptrdiff_t step = 1; step <= count; ++step) {
        const std::ptrdiff_t next = (current + (back ? -step : step) + 2 * count) % count;
        const Window& window = entries_[static_cast<std::size_t>(next)].component->window();
        if (!window.IsVisible() || next == current) continue;
        world_.focus.Focus(window.handle());
        return true;
    }
    return false;
}

bool FormWindow::TakeTab(std::int16_t code, std::int16_t shift) {
    constexpr std::int16_t kControlOrAlt = 2 | 4;
    return code == host::VK_TAB && (shift & kControlOrAlt) == 0 && MoveFocus((shift & 1) != 0);
}

void FormWindow::RaiseKeyDown(std::int16_t& code, std::int16_t& shift) {
    if (outer_) outer_->RaiseKeyDown(code, shift);
    if (code != 0 && form_ && !ended_) form_->events.KeyDown(code, shift);
}

std::int32_t FormWindow::Process(Window& window, const Message& message) {
    if (HearMouse(message)) return 0;
    switch (message.message) {
    case host::WM_PAINT: Paint(); return 0;
    case host::WM_ERASEBKGND:
        window.dc().FillColor({0, 0, WidthOf(window.clientArea()), HeightOf(window.clientArea())},
                              EraseColor());
        return 1;
    case host::WM_SIZE:
        if (form_) form_->events.Resize();
        return 0;
    case host::WM_CLOSE: RequestClose(); return 0;
    case host::WM_NCLBUTTONDOWN: PressFrame(message); return 0;
    case host::WM_KEYDOWN:
    case host::WM_SYSKEYDOWN: {
        auto code = static_cast<std::int16_t>(message.wParam);
        std::int16_t shift = world_.input.ShiftBits();
        RaiseKeyDown(code, shift);
        return !ended_ && (TakeTab(code, shift) || (outer_ && outer_->TakeTab(code, shift))) ? 1 : 0;
    }
    default: return 0;
    }
}

void FormWindow::Paint() {
    if (window_.update().IsEmpty()) return;
    host::PaintStruct paint;
    if (world_.windows.BeginPaint(window_, paint) == 0) return;
    if (form_) form_->events.Paint();
    if (window_.IsAlive()) world_.windows.EndPaint(window_);
}

std::int32_t FormWindow::EraseColor() const {
    return world_.ColorOf(backColor);
}

Insets FormWindow::Frame() const {
    if (!outer_ && world_.display->DecoratesWindows()) return {};
    return {kBorder, kBorder + kTitleHeight, kBorder, kBorder};
}

tvok_Rect FormWindow::CloseButton() const {
    if (Frame() == Insets{}) return {};
    const std::int32_t right = WidthOf(window_.rect()) - kBorder - 2;
    const std::int32_t top = kBorder + (kTitleHeight - kCloseHeight) / 2;
    return {right - kCloseWidth, top, right, top + kCloseHeight};
}

void FormWindow::DrawFrame(Window& window, DeviceContext& context) {
    const Theme& theme = world_.theme;
    tvok_Rect outer{0, 0, WidthOf(window.rect()), HeightOf(window.rect())};
    context.FillColor(outer, theme.colors[host::COLOR_BTNFACE]);
    DrawEdge(context, theme, outer, host::EDGE_RAISED, host::BF_RECT);

    const bool active = LooksActive();
    const tvok_Rect title{kBorder, kBorder, outer.Right - kBorder, kBorder + kTitleHeight - 1};
    context.FillColor(title, theme.colors[active ? host::COLOR_ACTIVECAPTION : host::COLOR_INACTIVECAPTION]);
    context.Select(world_.objects.Stock(host::DEFAULT_GUI_FONT));
    context.TextColor(theme.colors[active ? host::COLOR_CAPTIONTEXT : host::COLOR_INACTIVECAPTIONTEXT]);
    context.BkMode(host::TRANSPARENT_BK);
    const tvok_Rect close = CloseButton();
    tvok_Rect text{title.Left + 4, title.Top, close.Left - 4, title.bottom};
    context.DrawText(caption, text, host::DT_SINGLELINE | host::DT_VCENTER | host::DT_NOPREFIX);
    DrawFrameControl(context, theme, close, host::DFC_CAPTION, host::DFCS_CAPTIONCLOSE);
}

void FormWindow::PressFrame(const Message& message) {
    const tvok_Rect place = world_.windows.ScreenRect(window_);
    const host::Point point{LowWord(message.lParam) - place.Left, HighWord(message.lParam) - place.Top};
    if (Contains(CloseButton(), point)) RequestClose();
}

} // namespace tvok::soft
