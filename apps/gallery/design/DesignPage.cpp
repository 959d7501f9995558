#include "apps/gallery/design/DesignPage.h"

#include <algorithm>

#include "apps/gallery/design/start.h"
#include "apps/gallery/design/types.h"
#include "apps/gallery/inspected.h"
#include "tvok/engine/dgi.h"

namespace gallery {

using tvok::host::platform;
using tvok::host::Point;

namespace {

constexpr std::int32_t PaletteWidth = 148, RowHeight = 26, IconArea = 30, StatusHeight = 26;
constexpr std::int32_t LabelWidth = 52, NameWidth = 130;
constexpr std::int32_t FormLeft = 20, FormTop = 16; // of the designed form in its area
constexpr const char* FormSubject = "(form)";       // in the inspector

} // namespace

struct DesignPage::Places {
    tvok::Placement palette;
    tvok::Placement commands;
    tvok::Placement path;
    tvok::Placement name;
    tvok::Placement area;
    tvok::tvok_Rect status;

    Places(const tvok::tvok_Rect& page, std::int32_t commandsWidth) {
        const std::int32_t left = page.Left + Margin, right = page.Right - Margin;
        const std::int32_t top = page.Top + BannerHeight;
        const std::int32_t bottom = std::max(page.bottom - StatusHeight, top + 160);
        palette = {left, top + HeadingHeight, PaletteWidth, bottom - top - HeadingHeight};
        const std::int32_t beside = left + PaletteWidth + Margin;
        commands = {beside, top + Margin, commandsWidth, CommandBar::Height};
        const std::int32_t field = beside + commandsWidth + LabelWidth;
        name = {right - NameWidth, commands.top, NameWidth, CommandBar::Height};
        path = {field, commands.top, std::max(name.left - LabelWidth - field, 60), CommandBar::Height};
        const std::int32_t below = commands.top + CommandBar::Height + Margin;
        area = {beside, below, std::max(right - beside, 120), std::max(bottom - below, 60)};
        status = {beside, bottom, right, page.bottom};
    }
};

DesignPage::DesignPage(tvok::Desktop& desktop, tvok::Form& form)
    : desktop_(desktop), form_(form), hands_(desktop, form),
      icons_(desktop.AddImageList(DrawIcons(), IconSize)),
      palette_(form.Add<tvok::qRoster>("design.types", {})),
      commands_(form.Add<tvok::qRoster>("design.commands", {})),
      path_(form.Add<tvok::TextBox>("design.path", {})), name_(form.Add<tvok::TextBox>("design.name", {})),
      area_(form.Add<DesignArea>("design.area", {})), designer_(desktop, MakeForm()) {
    path_.Text("form.toml");
    path_.events.Enter = [this] { Open(); };
    name_.events.Enter = [this] { Rename(); };
    SetUpPalette();
    SetUpCommands();
    HearDesigner();
    ContentChanged();
}

tvok::Form& DesignPage::MakeForm() {
    tvok::Form& made = form_.AddForm(area_, "", 100, 100);
    made.UserMode(false);
    made.Move(FormLeft, FormTop);
    made.Content(StartForm());
    return made;
}

void DesignPage::SetUpPalette() {
    palette_.FixedHeight(false);
    palette_.ItemHeight(RowHeight);
    palette_.CX_TEXT(IconArea);
    palette_.IconPos(tvok::PackIconPos(
        {.Height = IconSize, .width = IconSize, .Top = (RowHeight - IconSize) / 2, .Left = 7}));
    palette_.IconHandle(icons_);
    for (const DesignType& type : DesignTypes())
        palette_.AddItem(0, {.text = type.name,
                             .key = type.name,
                             .IconID = static_cast<std::int32_t>(type.icon),
                             .vflag = tvok::vflag::IconBox | tvok::vflag::IconOnBackground});
    palette_.Refresh();
    palette_.events.DblClick = [this](std::int32_t, tvok::qrosterdata& item) { designer_.Add(item.key); };
    palette_.events.KeyDown = [this](std::int16_t& code, std::int16_t&) {
        if (code == tvok::host::VK_RETURN && !PaletteType().empty()) designer_.Add(PaletteType());
    };
    palette_.events.MouseDown = [this](std::int16_t& button, auto&...) {
        if (button == LeftButton) dragged_ = PaletteType();
    };
    palette_.events.MouseMove = [this](std::int16_t& button, auto&...) {
        if (dragged_.empty()) return;
        Point point;
        const bool shows = (button & LeftButton) != 0 && OverForm(point);
        designer_.Preview(shows ? dragged_ : std::string(), point);
    };
    palette_.events.MouseUp = [this](auto&...) {
        const std::string type = std::exchange(dragged_, {});
        if (type.empty()) return;
        designer_.Preview({}, {});
        if (Point point; OverForm(point)) designer_.Add(type, point);
    };
}

void DesignPage::SetUpCommands() {
    DesignedForm& model = designer_.model();
    commands_.Add({"New", [this] { New(); }});
    commands_.Add({"Open", [this] { Open(); }});
    commands_.Add({"Save", [this] { Save(); }});
    commands_.Add({"Undo", [this] { designer_.Undo(); }, [&model] { return model.CanUndo(); }});
    commands_.Add({"Redo", [this] { designer_.Redo(); }, [&model] { return model.CanRedo(); }});
    commands_.Add({"Run", [this] { Run(); }});
}

void DesignPage::HearDesigner() {
    designer_.selectionChanged = [this] { SelectionChanged(); };
    designer_.contentChanged = [this] { ContentChanged(); };
    designer_.failed = [this](const std::string& text) { Tell(text, true); };
    area_.Show(designer_.model());
    area_.pressed = [this] {
        designer_.Select({});
        designer_.form().SetFocus();
    };
    area_.focused = [this] { designer_.form().SetFocus(); };
    area_.ended = [this] { CloseRunning(); };
}

std::string DesignPage::PaletteType() const {
    tvok::qrosterdata item;
    if (palette_.ListIndex() < 1) return {};
    palette_.GetData(palette_.ListIndex(), item);
    return item.key;
}

/// Whether the pointer is over what is seen of the designed form's own area, and where there.
bool DesignPage::OverForm(Point& point) const {
    Point pointer;
    platform().GetCursorPos(pointer);
    const auto inside = [&](tvok::host::Handle hWnd, Point& place) {
        tvok::tvok_Rect client;
        place = pointer;
        platform().ScreenToClient(hWnd, place);
        platform().GetClientRect(hWnd, client);
        return tvok::host::Platform::PtInRect(client, place);
    };
    Point inArea;
    return inside(form_.ComponentOf(area_).hWnd(), inArea) && inside(designer_.form().hWnd(), point);
}

void DesignPage::Rename() {
    const Designer::Names names = designer_.Selected();
    if (names.empty()) return Tell("Only a control has a name", true);
    const std::string wanted = name_.Text();
    if (!designer_.model().Rename(names.back(), wanted))
        return Tell("\"" + wanted + "\" is empty, or another control's name", true);
    designer_.Select({wanted});
    designer_.form().SetFocus();
}

// Files.

void DesignPage::Try(const std::string& done, const std::function<void()>& action) {
    try {
        action();
        Tell(done);
    } catch (const tvok::Error& error) {
        Tell(error.what(), true);
    }
    designer_.form().SetFocus();
}

void DesignPage::New() {
    Try("A new form", [this] { designer_.model().Replace({"Form", 400, 300, {}}); });
}

void DesignPage::Open() {
    Try("Opened " + path_.Text(), [this] { designer_.model().Replace(tvok::LoadFormFile(path_.Text())); });
}

void DesignPage::Save() {
    Try("Saved " + path_.Text(), [this] { tvok::SaveFormFile(designer_.model().Content(), path_.Text()); });
}

void DesignPage::Run() {
    tvok::Form* run = nullptr;
    try {
        run = &desktop_.AddForm("", 100, 100);
        running_.push_back(run);
        run->events.Closed = [this, run] {
            std::erase(running_, run);
            if (bench_) bench_->ForgetForm(*run);
        };
        run->Content(designer_.model().Content());
        if (bench_) bench_->WatchForm(*run, "run");
        tvok::tvok_Rect place;
        platform().GetWindowRect(designer_.form().hWnd(), place);
        run->Move(place.Left + 120, place.Top + 80);
        Tell("Running: it closes with its window");
    } catch (const tvok::Error& error) {
        if (run != nullptr) run->Close();
        Tell(error.what(), true);
    }
}

void DesignPage::CloseRunning() {
    const std::vector<tvok::Form*> running = running_;
    for (tvok::Form* run : running) {
        run->events.Closing = nullptr;
        run->Close();
    }
}

// The workbench.

void DesignPage::Attach(Workbench& bench) {
    bench_ = &bench;
}

std::optional<std::vector<Subject>> DesignPage::Subjects() {
    std::vector<Subject> subjects;
    subjects.push_back({.name = FormSubject, .properties = [this] { return std::vector{FormProperties()}; }});
    for (const auto& [name, control] : offered_)
        subjects.push_back({.name = name, .control = control, .form = &designer_.form()});
    return subjects;
}

/// They change the form itself, also for a value that is only tried; what is chosen becomes a step.
PropertyGroup DesignPage::FormProperties() {
    tvok::Form& form = designer_.form();
    const auto resize = [this, &form](std::int32_t width, std::int32_t height) {
        form.Size(width, height);
        area_.Refresh();
    };
    const auto side = [](const char* name, auto get, auto set) {
        return Property{.name = name,
                        .kind = ValueKind::Number,
                        .get = [get] { return tvok::Variant(get()); },
                        .set = [set](const tvok::Variant& value) { set(value.AsInteger()); },
                        .least = 1,
                        .most = 8192};
    };
    PropertyGroup group{FormSubject, "Form", {}};
    group.properties.push_back(
        {.name = "Caption",
         .kind = ValueKind::Text,
         .get = [&form] { return tvok::Variant(form.Caption()); },
         .set = [&form](const tvok::Variant& value) { form.Caption(value.AsText()); }});
    group.properties.push_back(side(
        "Width", [&form] { return form.Width(); },
        [resize, &form](std::int32_t width) { resize(width, form.Height()); }));
    group.properties.push_back(side(
        "Height", [&form] { return form.Height(); },
        [resize, &form](std::int32_t height) { resize(form.Width(), height); }));
    return group;
}

void DesignPage::Selected(const std::string& name) {
    designer_.Select(name == FormSubject ? Designer::Names{} : Designer::Names{name});
}

void DesignPage::PropertyChanged(const PropertyChange& change) {
    if (change.subject == FormSubject) return designer_.model().TakeForm();
    if (designer_.model().Take(change.subject)) return;
    PutBack(change);
    Tell(change.property + " is not kept in form files", true);
}

void DesignPage::PutBack(const PropertyChange& change) {
    const std::vector<Subject> subjects = Subjects().value();
    const auto subject = std::ranges::find(subjects, change.subject, &Subject::name);
    if (subject == subjects.end()) return;
    for (const PropertyGroup& group : GroupsOf(*subject))
        for (const Property& property : group.properties)
            if (property.name == change.property) tvok::quietly([&] { property.set(change.before); });
    if (bench_) bench_->UpdateInspector();
}

void DesignPage::SelectionChanged() {
    const Designer::Names& names = designer_.Selected();
    area_.ShowHandles(names.empty());
    if (bench_) bench_->Select(names.empty() ? FormSubject : names.back());
    name_.Text(names.empty() ? std::string() : names.back());
    TellSelection();
}

/// The inspector hears of other controls at once, before those that it shows are freed.
void DesignPage::ContentChanged() {
    std::vector<std::pair<std::string, tvok::host::Control*>> now;
    const tvok::Form& form = designer_.form();
    for (const std::string& name : form.Names()) now.emplace_back(name, form.Find(name));
    const bool others = now != offered_;
    offered_ = std::move(now);
    if (bench_ && others) bench_->SubjectsChanged();
    if (bench_) bench_->UpdateInspector();
    commands_.Update();
    area_.Refresh();
    TellSelection();
}

// Looks.

void DesignPage::Tell(const std::string& text, bool wrong) {
    message_ = text;
    wrong_ = wrong;
    const tvok::tvok_Rect status = Places(page_, commands_.Width()).status;
    platform().InvalidateRect(form_.hWnd(), &status, false);
}

void DesignPage::TellSelection() {
    const Designer::Names& names = designer_.Selected();
    const tvok::Form& form = designer_.form();
    if (names.empty())
        return Tell("The form: " + std::to_string(form.Width()) + " x " + std::to_string(form.Height()));
    if (names.size() > 1) return Tell(std::to_string(names.size()) + " controls, led by " + names.back());
    const tvok::Placement place = form.PlacementOf(*form.Find(names.back()));
    const std::vector<std::string> order = form.Names();
    const auto number = std::ranges::find(order, names.back()) - order.begin() + 1;
    Tell(names.back() + " at " + std::to_string(place.left) + ", " + std::to_string(place.top) + ": " +
         std::to_string(place.width) + " x " + std::to_string(place.height) + ", " + std::to_string(number) +
         " of " + std::to_string(order.size()) + " in the order of Tab");
}

void DesignPage::Layout(const tvok::tvok_Rect& area) {
    page_ = area;
    const Places places(area, commands_.Width());
    form_.Place(palette_, places.palette);
    form_.Place(commands_.list(), places.commands);
    form_.Place(path_, places.path);
    form_.Place(name_, places.name);
    form_.Place(area_, places.area);
}

void DesignPage::Paint(tvok::host::Handle hDC) {
    DrawBackground(hDC, page_, fonts_, "A form to arrange",
                   "Double click a type, or drag it into the form; drag controls and their handles; "
                   "PgUp and PgDn change the order; Ctrl+Z takes back");
    const Places places(page_, commands_.Width());
    const tvok::Placement& palette = places.palette;
    DrawLabel(hDC, {palette.left, palette.top - HeadingHeight, palette.left + palette.width, palette.top},
              "Controls", fonts_.Bold(), tvok::cButtonText);
    for (const auto& [label, field] : {std::pair{"File", places.path}, {"Name", places.name}})
        DrawLabel(hDC, {field.left - LabelWidth + 8, field.top, field.left, field.top + field.height}, label,
                  fonts_.Plain(), tvok::cButtonText);
    DrawLabel(hDC, places.status, message_, wrong_ ? fonts_.Bold() : fonts_.Plain(),
              wrong_ ? FallingColor() : tvok::cButtonText);
}

} // namespace gallery
