/// What a form designer needs of a form: forms inside forms, the order of controls, marks above them and the
/// mouse at design time.
#include <algorithm>

#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok::soft {

// Marks.

MarkWindow::MarkWindow(World& world, Window& form)
    : world_(world), form_(form), window_(world.windows, *this) {}

void MarkWindow::Show(const FormMark& mark) {
    const bool repaint = mark.fill != mark_.fill || mark.edge != mark_.edge;
    mark_ = mark;
    if (!window_.IsAlive()) {
        world_.windows.Attach(window_, &form_, mark.rect, true);
        return;
    }
    world_.windows.Place(window_, mark.rect);
    if (repaint) world_.windows.Invalidate(window_, nullptr, true);
}

std::int32_t MarkWindow::Process(Window& window, const Message& message) {
    if (message.message == host::WM_ERASEBKGND) return 1;
    if (message.message != host::WM_PAINT || window.update().IsEmpty()) return 0;
    host::PaintStruct paint;
    if (world_.windows.BeginPaint(window, paint) == 0) return 0;
    Paint();
    if (window.IsAlive()) world_.windows.EndPaint(window);
    return 0;
}

void MarkWindow::Paint() {
    const tvok_Rect all{0, 0, WidthOf(window_.clientArea()), HeightOf(window_.clientArea())};
    window_.dc().FillColor(all, world_.ColorOf(mark_.edge));
    window_.dc().FillColor({1, 1, all.Right - 1, all.bottom - 1}, EraseColor());
}

std::int32_t MarkWindow::EraseColor() const {
    return world_.ColorOf(mark_.fill);
}

void FormWindow::Marks(const std::vector<FormMark>& marks) {
    if (ended_) return;
    marks_.resize(std::min(marks_.size(), marks.size()));
    while (marks_.size() < marks.size()) marks_.push_back(std::make_unique<MarkWindow>(world_, window_));
    for (std::size_t i = 0; i < marks.size(); ++i) marks_[i]->Show(marks[i]);
    const auto isMark = [](const Window* window) {
        return dynamic_cast<const MarkWindow*>(&window->client()) != nullptr;
    };
    const auto& children = window_.children();
    if (std::all_of(children.begin(), children.begin() + static_cast<std::ptrdiff_t>(marks.size()), isMark))
        return;
    for (const auto& mark : marks_) world_.windows.Order(mark->window(), host::HWND_TOP);
}

// Order.

void FormWindow::Reorder(const host::Control& control, std::size_t place) {
    const auto found =
        std::ranges::find(entries_, EntryOf(control).name, &Entry::name); // throws where it is not here
    place = std::min(place, entries_.size() - 1);
    const auto wanted = entries_.begin() + static_cast<std::ptrdiff_t>(place);
    if (found < wanted) {
        std::rotate(found, found + 1, wanted + 1);
    } else {
        std::rotate(wanted, found, found + 1);
    }
    host::Handle before = marks_.empty() ? host::HWND_TOP : marks_.front()->window().handle();
    if (place > 0) before = entries_[place - 1].component->window().handle();
    world_.windows.Order(entries_[place].component->window(), before);
}

// Inner forms.

FormWindow* FormWindow::Around(const Window& window) {
    for (const Window* each = &window; each; each = each->parent())
        if (auto* form = dynamic_cast<FormWindow*>(&each->client())) return form;
    return nullptr;
}

Form& FormWindow::AddInner(std::unique_ptr<Form> form) {
    Form& added = *form;
    inner_.push_back(std::move(form));
    added.window().form(&added);
    return added;
}

/// Ends those whose window is inside this one. They are freed when nothing of theirs can be running.
void FormWindow::EndInner(const Window& inside) {
    const auto find = [&] {
        return std::ranges::find_if(
            inner_, [&](const auto& form) { return form->window().window().IsInside(inside); });
    };
    for (auto found = find(); found != inner_.end(); found = find()) {
        std::shared_ptr<Form> ended = std::move(*found);
        inner_.erase(found);
        world_.Bury(ended);
        ended->window().End();
        ended->window().form(nullptr);
    }
}

void FormWindow::CloseInner(Form& form) {
    const auto found = std::ranges::find(inner_, &form, [](const auto& each) { return each.get(); });
    if (found == inner_.end()) return;
    std::shared_ptr<Form> closed = std::move(*found);
    inner_.erase(found);
    world_.Bury(closed);
    closed->window().End();
    closed->window().form(nullptr);
    FormWindow& outermost = Outermost();
    if (world_.focus.active() == &outermost && world_.focus.focus() == 0)
        world_.focus.Focus(outermost.WantedFocus());
    closed->events.Closed();
}

void FormWindow::FocusInside(bool inside) {
    holdsFocus_ = inside;
    if (outer_) world_.windows.InvalidateFrame(window_);
}

bool FormWindow::LooksActive() const {
    return outer_ ? holdsFocus_ : world_.focus.active() == this;
}

// The mouse at design time.

void FormWindow::SetPointer(std::int16_t value) {
    pointer = value;
    world_.input.ShowPointer();
}

/// Raises what a message says. False for what is none of the mouse, and where the controls get it.
bool FormWindow::HearMouse(const Message& message) {
    if (!IsDesigned()) return false;
    if (message.message == host::WM_MOUSEMOVE) {
        RaiseMouse(&Form::Events::MouseMove, world_.input.ButtonBits(), message);
        return true;
    }
    static_assert(host::WM_RBUTTONDOWN == host::WM_LBUTTONDOWN + 3 &&
                  host::WM_MBUTTONDBLCLK == host::WM_LBUTTONDOWN + 8);
    if (message.message < host::WM_LBUTTONDOWN || message.message > host::WM_MBUTTONDBLCLK) return false;
    const std::int32_t number = message.message - host::WM_LBUTTONDOWN; // down, up and double of each button
    const auto button = static_cast<std::int16_t>(1 << number / 3);
    FocusManager& focus = world_.focus;
    if (number % 3 == 1) {
        if (world_.input.ButtonBits() == 0 && focus.capture() == window_.handle() &&
            focus.captureKind() == FocusManager::CaptureKind::Automatic)
            focus.ReleaseCapture();
        RaiseMouse(&Form::Events::MouseUp, button, message);
        return true;
    }
    if (focus.capture() == 0) focus.Capture(window_.handle(), FocusManager::CaptureKind::Automatic);
    const bool twice = number == 2;
    RaiseMouse(twice ? &Form::Events::DblClick : &Form::Events::MouseDown, button, message);
    return true;
}

void FormWindow::RaiseMouse(Form::MouseEvent Form::Events::*event, std::int16_t button,
                            const Message& message) {
    if (form_)
        (form_->events.*event)(button, world_.input.ShiftBits(), LowWord(message.lParam),
                               HighWord(message.lParam));
}

} // namespace tvok::soft
