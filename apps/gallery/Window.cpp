#include "apps/gallery/Window.h"

#include <algorithm>

#include "tvok/engine/dgi.h"

namespace gallery {

namespace {

constexpr std::int32_t ListWidth = 140;
constexpr std::int32_t RowHeight = 28;
constexpr std::int32_t HintHeight = 52;
constexpr std::int16_t ShiftBit = 1, ControlBit = 2;

} // namespace

std::shared_ptr<Window> Window::Open(tvok::Desktop& desktop, const std::string& page) {
    std::shared_ptr<Window> window(
        new Window(desktop, desktop.AddForm("tvok gallery", FormWidth, FormHeight)));
    const auto named = [&](const Shown& shown) { return shown.entry->name == page; };
    const auto found = std::find_if(window->all_.begin(), window->all_.end(), named);
    window->pages_.ListIndex(
        found == window->all_.end() ? 1 : static_cast<std::int32_t>(found - window->all_.begin()) + 1);
    window->form_.events.Closed = [window] {};
    return window;
}

Window::Window(tvok::Desktop& desktop, tvok::Form& form)
    : desktop_(desktop), form_(form), pages_(form.Add<tvok::qRoster>("pages", {})) {
    for (const PageEntry& entry : Pages()) all_.push_back({&entry, nullptr, {}});
    SetUpList();
    form_.events.Resize = [this] { Layout(); };
    form_.events.Paint = [this] { Paint(); };
    form_.events.KeyDown = [this](std::int16_t& code, std::int16_t& shift) {
        if (code != tvok::host::VK_TAB || (shift & ControlBit) == 0) return;
        Step((shift & ShiftBit) != 0);
        code = 0;
    };
}

void Window::SetUpList() {
    pages_.BorderStyle(0);
    pages_.FixedHeight(false);
    pages_.GridlineWidth(0);
    pages_.ItemHeight(RowHeight);
    pages_.BackColor(tvok::cButtonFace);
    pages_.CX_TEXT(36);
    pages_.IconPos(tvok::PackIconPos(
        {.Height = IconSize, .width = IconSize, .Top = (RowHeight - IconSize) / 2, .Left = 12}));
    pages_.IconHandle(desktop_.AddImageList(DrawIcons(), IconSize));
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
    if (!next.page) Make(next);
    if (shown_ != nullptr) ShowControls(*shown_, false);
    shown_ = &next;
    ShowControls(next, true);
    Layout();
}

void Window::Make(Shown& shown) {
    const std::vector<std::string> before = form_.Names();
    shown.page = shown.entry->make(desktop_, form_);
    for (const std::string& name : form_.Names()) {
        if (std::find(before.begin(), before.end(), name) == before.end())
            shown.controls.push_back(form_.Find(name));
    }
}

void Window::ShowControls(const Shown& shown, bool visible) {
    for (const tvok::host::Control* control : shown.controls) form_.ComponentOf(*control).Visible(visible);
}

void Window::Step(bool back) {
    const std::int32_t count = pages_.Count();
    const std::int32_t step = back ? count - 1 : 1;
    pages_.ListIndex((pages_.ListIndex() - 1 + step) % count + 1);
}

void Window::Turn(std::chrono::milliseconds elapsed) {
    if (shown_->page->IsLive()) shown_->page->Turn(elapsed);
}

tvok::tvok_Rect Window::PageArea() const {
    return {ListWidth, 0, std::max(form_.Width(), ListWidth), form_.Height()};
}

void Window::Layout() {
    const std::int32_t height = form_.Height() - BannerHeight - HintHeight;
    form_.Place(pages_, {0, BannerHeight, ListWidth - 1, std::max(height, RowHeight)});
    if (shown_ != nullptr) shown_->page->Layout(PageArea());
    tvok::host::platform().InvalidateRect(form_.hWnd(), nullptr, false);
}

void Window::Paint() {
    using namespace tvok;
    const host::Handle hDC = form_.hDC();
    const std::int32_t bottom = form_.Height();
    dgi::FillRectColor(hDC, {0, 0, ListWidth - 1, bottom}, cButtonFace);
    dgi::FillRectColor(hDC, {ListWidth - 1, 0, ListWidth, bottom}, SystemColor(host::COLOR_BTNSHADOW));
    DrawLabel(hDC, {Margin, 0, ListWidth - 1, BannerHeight}, "tvok", fonts_.Title(), cButtonText);
    const OLE_COLOR pale = SystemColor(host::COLOR_GRAYTEXT);
    const std::int32_t hint = bottom - HintHeight;
    DrawLabel(hDC, {Margin, hint, ListWidth - 1, hint + 20}, "Next page:", fonts_.Plain(), pale);
    DrawLabel(hDC, {Margin, hint + 20, ListWidth - 1, hint + 40}, "Ctrl+Tab", fonts_.Plain(), pale);
    if (shown_ != nullptr) shown_->page->Paint(hDC);
}

} // namespace gallery
