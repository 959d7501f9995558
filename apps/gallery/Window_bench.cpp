// The window's panes: what the inspector offers, what the event log listens to, and the keys that go around.
#include <algorithm>
#include <array>
#include <utility>

#include "apps/gallery/Window.h"
#include "tvok/host/Services.h"
#include "tvok/host/desktop/ControlTypes.h"

namespace gallery {

using tvok::host::Handle;
using tvok::host::platform;

namespace {

/// What a page needs beside a pane.
constexpr std::int32_t LeastPageWidth = 640, LeastPageHeight = 360;

constexpr std::array Parts{"", "inspector.", "log."}; // by the names of their controls; the first is the page

bool IsInside(Handle window, Handle outer) {
    for (; window != 0; window = platform().GetParent(window))
        if (window == outer) return true;
    return false;
}

} // namespace

Window::Bench::Bench(tvok::Desktop& desktop, tvok::Form& form, std::int32_t icons)
    : inspector(desktop, form), tools(desktop, form, icons), log(desktop, form) {}

void Window::SetUpBench() {
    bench_ = std::make_unique<Bench>(desktop_, form_, icons_);
    bench_->tools.themeChosen = [this](const std::string& name) { SetTheme(name); };
    bench_->tools.scaleChosen = [this](float scale) { SetScale(scale); };
    const auto wanted = [this](const char* name, bool Bench::*flag) {
        bench_->tools.AddSwitch({name, [=, this] { return CheckIcon((*bench_).*flag); },
                                 [] { return std::string(); },
                                 [=, this] {
                                     (*bench_).*flag = !((*bench_).*flag);
                                     Layout();
                                 }});
    };
    wanted("Inspector", &Bench::inspectorWanted);
    wanted("Event log", &Bench::logWanted);
    bench_->inspector.chosen = [this](const std::string& name) {
        shown_->selected = name;
        shown_->page->Selected(name);
    };
    bench_->inspector.changed = [this](const PropertyChange& change) {
        shown_->page->PropertyChanged(change);
    };
    HearPresses();
}

/// A press gives the focus to its control. What it means for the inspector waits for the turn after, so that
/// the control, and the editor that loses the focus, have had it first.
void Window::HearPresses() {
    bench_->presses = tvok::host::services().CreateWindowHook();
    bench_->presses->RtMsg = [this](std::int32_t, std::int32_t message, std::int32_t, std::int32_t&, bool&) {
        const auto* record = bench_->presses->Mouse();
        if (record != nullptr && message == tvok::host::WM_LBUTTONDOWN) bench_->pressed = record->hWnd;
    };
    std::int32_t kind = 2;
    std::int32_t thread = tvok::host::services().ThreadID();
    bool flag = false;
    bench_->presses->HookSet(kind, thread, flag);
}

void Window::SelectPressed() {
    const Handle pressed = std::exchange(bench_->pressed, 0);
    if (pressed == 0) return;
    for (const Subject& subject : bench_->inspector.subjects()) {
        if (subject.control == nullptr || subject.form == nullptr) continue;
        if (!IsInside(pressed, subject.form->ComponentOf(*subject.control).hWnd())) continue;
        const std::string name = subject.name;
        if (name == Selected()) return;
        Select(name);
        shown_->page->Selected(name);
        return;
    }
}

// What a page says.

void Window::Select(const std::string& name) {
    if (!bench_) return;
    bench_->inspector.Select(name);
    shown_->selected = bench_->inspector.Selected();
}

std::string Window::Selected() const {
    return bench_ ? bench_->inspector.Selected() : std::string();
}

void Window::UpdateInspector() {
    if (bench_) bench_->inspector.Update();
}

void Window::SubjectsChanged() {
    if (!bench_ || shown_ == nullptr) return;
    TakeControls(*shown_);
    std::vector<Subject> subjects = SubjectsOf(*shown_);
    if (shown_->selected.empty() && !subjects.empty()) shown_->selected = subjects.front().name;
    bench_->inspector.Offer(shown_->entry->name, std::move(subjects));
    bench_->inspector.Select(shown_->selected);
    Watch();
}

std::vector<Subject> Window::SubjectsOf(const Shown& shown) const {
    if (auto own = shown.page->Subjects()) return std::move(*own);
    std::vector<Subject> subjects;
    for (const std::string& name : shown.controls) {
        tvok::host::Control* control = form_.Find(name);
        if (control != nullptr && !tvok::ControlTypeName(*control).empty())
            subjects.push_back({.name = name, .control = control, .form = &form_});
    }
    return subjects;
}

/// Each control once, also where it is a subject and on the form. One that is made anew at the same place in
/// memory has lost its handlers with the one before, whose end the page told.
void Window::Watch() {
    using Watched = std::pair<std::string, tvok::host::Control*>;
    std::vector<Watched> now;
    const auto add = [&](const std::string& name, tvok::host::Control* control) {
        const auto same = [&](const auto& entry) { return entry.second == control; };
        if (control != nullptr && std::ranges::none_of(now, same)) now.emplace_back(name, control);
    };
    for (const Subject& subject : bench_->inspector.subjects()) add(subject.name, subject.control);
    for (const Shown& shown : all_)
        for (const std::string& name : shown.controls) add(name, form_.Find(name));
    for (const auto& [name, control] : now)
        if (std::ranges::find(bench_->watched, std::pair(name, control)) == bench_->watched.end())
            bench_->log.Watch(*control, name);
    for (const auto& [name, control] : bench_->watched)
        if (std::ranges::find(now, control, &Watched::second) == now.end()) bench_->log.Forget(control);
    bench_->watched = std::move(now);
}

void Window::WatchForm(tvok::Form& form, const std::string& name) {
    if (bench_) bench_->log.WatchForm(form, name);
}

void Window::ForgetForm(const tvok::Form& form) {
    if (bench_) bench_->log.ForgetForm(form);
}

// Showing and hiding.

bool Window::ShowsInspector() const {
    return bench_ && bench_->inspectorWanted &&
           form_.Width() - PageListWidth - InspectorWidth >= LeastPageWidth;
}

bool Window::ShowsLog() const {
    return bench_ && bench_->logWanted && form_.Height() - ToolBar::Height - LogHeight >= LeastPageHeight;
}

/// Both go, or where both are gone both come.
void Window::TogglePanes() {
    const bool show = !bench_->inspectorWanted && !bench_->logWanted;
    bench_->inspectorWanted = bench_->logWanted = show;
    bench_->tools.Update();
    Layout();
}

// The focus.

std::string Window::PartWithFocus() const {
    const Handle focus = platform().GetFocus();
    for (const std::string& name : form_.Names()) {
        if (!IsInside(focus, form_.ComponentOf(*form_.Find(name)).hWnd())) continue;
        for (const char* part : Parts)
            if (*part != '\0' && name.starts_with(part)) return part;
    }
    return {};
}

bool Window::Focus(const std::string& part) {
    std::vector<std::string> names = part.empty() ? shown_->controls : form_.Names();
    names.insert(names.begin(), part.empty() ? shown_->selected : part + "list");
    for (const std::string& name : names) {
        const auto* control = name.starts_with(part) ? form_.Find(name) : nullptr;
        if (control == nullptr || !form_.ComponentOf(*control).Visible()) continue;
        form_.ComponentOf(*control).SetFocus();
        return true;
    }
    return false;
}

void Window::GoAround(bool back) {
    const auto count = Parts.size();
    const std::string now = PartWithFocus();
    auto place = static_cast<std::size_t>(std::ranges::find(Parts, now) - Parts.begin());
    for (std::size_t step = 1; step < count; ++step) {
        place = (place + (back ? count - 1 : 1)) % count;
        if (Focus(Parts[place])) return;
    }
}

} // namespace gallery
