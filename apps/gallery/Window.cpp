#include "apps/gallery/Window.h"

#include <algorithm>

#include "apps/gallery/keys.h"
#include "tvok/engine/dgi.h"

namespace gallery {

namespace {

constexpr std::int32_t RowHeight = 28;
constexpr std::int32_t HintHeight = 20;
constexpr std::int16_t ShiftBit = 1, ControlBit = 2;

} // namespace

std::shared_ptr<Window> Window::Open(tvok::Desktop& desktop, const std::string& page, Panes panes) {
    const bool bench = panes == Panes::Shown;
    std::shared_ptr<Window> window(new Window(
        desktop,
        desktop.AddForm("tvok gallery", bench ? BenchWidth : FormWidth, bench ? BenchHeight : FormHeight),
        panes));
    const auto named = [&](const Shown& shown) { return shown.entry->name == page; };
    const auto found = std::find_if(window->all_.begin(), window->all_.end(), named);
    window->pages_.ListIndex(
        found == window->all_.end() ? 1 : static_cast<std::int32_t>(found - window->all_.begin()) + 1);
    window->form_.events.Closed = [window] {};
    if (bench) window->FitScreen(desktop.Scale());
    return window;
}

Window::Window(tvok::Desktop& desktop, tvok::Form& form, Panes panes)
    : desktop_(desktop), form_(form), icons_(desktop.AddImageList(DrawIcons(), IconSize)),
      pages_(form.Add<tvok::qRoster>("pages", {})) {
    for (const PageEntry& entry : Pages()) all_.push_back({&entry, nullptr, {}, {}});
    SetUpList();
    if (panes == Panes::Shown) SetUpBench();
    form_.events.Resize = [this] { Layout(); };
    form_.events.Paint = [this] { Paint(); };
    HearKeys();
}

void Window::HearKeys() {
    form_.events.KeyDown = [this](std::int16_t& code, std::int16_t& shift) {
        if (code == tvok::host::VK_TAB && (shift & ControlBit) != 0) {
            Step((shift & ShiftBit) != 0);
        } else if (bench_ && code == F6 && (shift & ~ShiftBit) == 0) {
            GoAround(shift != 0);
        } else if (bench_ && code == F9 && shift == 0) {
            TogglePanes();
        } else {
            return;
        }
        code = 0;
    };
}

// The list of pages.

void Window::SetUpList() {
    pages_.BorderStyle(0);
    pages_.FixedHeight(false);
    pages_.GridlineWidth(0);
    pages_.ItemHeight(RowHeight);
    pages_.BackColor(tvok::cButtonFace);
    pages_.CX_TEXT(36);
    pages_.IconPos(tvok::PackIconPos(
        {.Height = IconSize, .width = IconSize, .Top = (RowHeight - IconSize) / 2, .Left = 12}));
    pages_.IconHandle(icons_);
    for (const PageEntry& entry : Pages()) {
        pages_.AddItem(0, {.text = entry.title,
                           .IconID = static_cast<std::int32_t>(entry.icon),
                           .bColor = tvok::cButtonFace,
                           .fcolor = tvok::cButtonText,
                           .vflag = tvok::vflag::IconBox | tvok::vflag::IconOnBackground});
    }
    pages_.Refresh();
    pages_.events.Change = [this](std::int32_t index, tvok::qrosterdata&) {
        Choose(static_cast<std::size_t>(index) - 1);
    };
}

void Window::Choose(std::size_t place) {
    Shown& next = all_.at(place);
    if (shown_ == &next) return;
    if (bench_) bench_->inspector.Take(); // still the page's that was shown
    const bool made = next.page == nullptr;
    if (made) Make(next);
    if (shown_ != nullptr) ShowControls(*shown_, false);
    shown_ = &next;
    ShowControls(next, true);
    if (bench_ && made) next.page->Attach(*this);
    Layout(); // first: some controls have properties only once they have a size
    SubjectsChanged();
}

void Window::Make(Shown& shown) {
    shown.page = shown.entry->make(desktop_, form_);
    TakeControls(shown);
}

/// What is on the form and is nobody else's is this page's.
void Window::TakeControls(Shown& shown) {
    const auto isWindows = [](const std::string& name) {
        return name == "pages" || name.starts_with("inspector.") || name.starts_with("tools.") ||
               name.starts_with("log.");
    };
    const auto isOthers = [&](const std::string& name) {
        return std::ranges::any_of(all_, [&](const Shown& other) {
            return &other != &shown && std::ranges::find(other.controls, name) != other.controls.end();
        });
    };
    shown.controls.clear();
    for (const std::string& name : form_.Names())
        if (!isWindows(name) && !isOthers(name)) shown.controls.push_back(name);
}

void Window::ShowControls(const Shown& shown, bool visible) {
    for (const std::string& name : shown.controls)
        if (const auto* control = form_.Find(name)) form_.ComponentOf(*control).Visible(visible);
}

void Window::Step(bool back) {
    const std::int32_t count = pages_.Count();
    const std::int32_t step = back ? count - 1 : 1;
    pages_.ListIndex((pages_.ListIndex() - 1 + step) % count + 1);
}

void Window::SetTheme(const std::string& name) {
    desktop_.SetTheme(tvok::Theme::ByName(name));
    for (const Shown& shown : all_)
        if (shown.page) shown.page->ThemeChanged();
    if (!bench_) return;
    bench_->inspector.ThemeChanged();
    bench_->tools.Update();
}

void Window::SetScale(float scale) {
    const bool grows = scale > desktop_.Scale();
    if (grows) FitScreen(scale); // first: no window is ever larger than the screen
    desktop_.Scale(scale);
    if (!grows) FitScreen(scale);
    if (bench_) bench_->tools.Update();
}

/// A larger scale leaves fewer pixels: what does not fit is taken off, and comes back with the room for it.
void Window::FitScreen(float scale) {
    constexpr std::int32_t frameWidth = 16, frameHeight = 48;
    if (desktop_.IsHeadless()) return; // where nothing has to fit
    const bool isAsFitted = form_.Width() == fitted_.x && form_.Height() == fitted_.y;
    if (!isAsFitted) wanted_ = {form_.Width(), form_.Height()}; // by the user
    const auto room = [&](std::int32_t metric, std::int32_t frame) {
        const float pixels =
            static_cast<float>(tvok::host::platform().GetSystemMetrics(metric)) * desktop_.Scale();
        return std::max(static_cast<std::int32_t>(pixels / scale) - frame, 1);
    };
    fitted_ = {std::min(wanted_.x, room(tvok::host::SM_CXSCREEN, frameWidth)),
               std::min(wanted_.y, room(tvok::host::SM_CYSCREEN, frameHeight))};
    form_.Size(fitted_.x, fitted_.y);
}

// Looks.

/// The parts of the form.
struct Window::Areas {
    tvok::tvok_Rect page;
    tvok::tvok_Rect inspector;
    tvok::tvok_Rect tools;
    tvok::tvok_Rect log;

    Areas(tvok::Form& form, bool bench, bool inspectorShown, bool logShown) {
        const std::int32_t width = std::max(form.Width(), PageListWidth);
        const std::int32_t height = form.Height();
        const std::int32_t right = width - (inspectorShown ? InspectorWidth : 0);
        const std::int32_t logTop = height - (logShown ? LogHeight : 0);
        const std::int32_t toolTop = logTop - (bench ? ToolBar::Height : 0);
        page = {PageListWidth, 0, right, std::max(toolTop, 0)};
        inspector = {right, 0, width, height};
        tools = {PageListWidth, toolTop, right, logTop};
        log = {PageListWidth, logTop, right, height};
    }
};

void Window::Layout() {
    const std::int32_t hints = (bench_ ? 6 : 2) * HintHeight + 12;
    const std::int32_t height = form_.Height() - BannerHeight - hints;
    form_.Place(pages_, {0, BannerHeight, PageListWidth - 1, std::max(height, RowHeight)});
    const bool inspector = ShowsInspector();
    const bool log = ShowsLog();
    const Areas areas(form_, bench_ != nullptr, inspector, log);
    if (bench_) {
        bench_->inspector.Visible(inspector);
        bench_->log.Visible(log);
        bench_->tools.Layout(areas.tools);
        if (inspector) bench_->inspector.Layout(areas.inspector);
        if (log) bench_->log.Layout(areas.log);
    }
    if (shown_ != nullptr) shown_->page->Layout(areas.page);
    tvok::host::platform().InvalidateRect(form_.hWnd(), nullptr, false);
}

void Window::Paint() {
    using namespace tvok;
    const host::Handle hDC = form_.hDC();
    const std::int32_t bottom = form_.Height();
    dgi::FillRectColor(hDC, {0, 0, PageListWidth - 1, bottom}, cButtonFace);
    dgi::FillRectColor(hDC, {PageListWidth - 1, 0, PageListWidth, bottom},
                       SystemColor(host::COLOR_BTNSHADOW));
    DrawLabel(hDC, {Margin, 0, PageListWidth - 1, BannerHeight}, "tvok", fonts_.Title(), cButtonText);
    std::vector<const char*> hints{"Next page:", "Ctrl+Tab"};
    if (bench_) hints.insert(hints.end(), {"Next pane:", "F6", "Panes on and off:", "F9"});
    const OLE_COLOR pale = SystemColor(host::COLOR_GRAYTEXT);
    std::int32_t top = bottom - static_cast<std::int32_t>(hints.size()) * HintHeight - 12;
    for (const char* hint : hints) {
        DrawLabel(hDC, {Margin, top, PageListWidth - 1, top + HintHeight}, hint, fonts_.Plain(), pale);
        top += HintHeight;
    }
    if (shown_ != nullptr) shown_->page->Paint(hDC);
    if (!bench_) return;
    bench_->tools.Paint(hDC);
    if (ShowsInspector()) bench_->inspector.Paint(hDC);
    if (ShowsLog()) bench_->log.Paint(hDC);
}

void Window::Turn(std::chrono::milliseconds elapsed) {
    if (shown_->page->IsLive()) shown_->page->Turn(elapsed);
    if (!bench_) return;
    SelectPressed();
    if (ShowsInspector()) bench_->inspector.Update();
    bench_->log.Turn();
}

} // namespace gallery
