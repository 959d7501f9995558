#include "apps/gallery/PropertiesPage.h"

#include <algorithm>
#include <chrono>

#include "apps/gallery/icons.h"
#include "apps/gallery/words.h"
#include "tvok/engine/dgi.h"

namespace gallery {

using tvok::host::platform;

namespace {

constexpr std::int32_t ListWidth = 430;
constexpr std::int32_t RowHeight = 20, IconArea = 24;
constexpr std::int32_t BarHeight = 26, LabelHeight = 44, StripHeight = 28;
constexpr std::int32_t SwitchColumns = 2, SwitchRows = 2;
constexpr std::int32_t LargeRows = 10'000;

struct Kind {
    const char* text;
    Icon icon;
};
constexpr Kind Kinds[] = {
    {"Archives\tpacked files", Icon::Box},      {"Books\tto read", Icon::Books},
    {"Command lines\tto type", Icon::Terminal}, {"Databases\trows and rows", Icon::Cylinder},
    {"E-mail\tto answer", Icon::Letter},        {"Figures\tto look at", Icon::Chart},
    {"Graphics\tto draw", Icon::Picture},       {"Hardware\tto plug in", Icon::Gear},
    {"Internet\teverything else", Icon::Globe}, {"Manuals\tto look up", Icon::Page},
};

std::int32_t IconPlace(std::int32_t rowHeight) {
    return tvok::PackIconPos({.Height = IconSize,
                              .width = IconSize,
                              .Top = static_cast<std::uint8_t>((rowHeight - IconSize) / 2),
                              .Left = 4});
}

} // namespace

struct PropertiesPage::Places {
    tvok::Placement list;
    tvok::Placement switches;
    tvok::Placement roster;
    tvok::Placement large;
    tvok::Placement bar;
    tvok::Placement label;
    tvok::Placement strip;

    explicit Places(const tvok::tvok_Rect& area) {
        const std::int32_t top = area.Top + BannerHeight + HeadingHeight;
        const std::int32_t bottom = std::max(area.bottom - Margin, top + 400);
        list = {area.Left + Margin, top, ListWidth, bottom - top};
        const std::int32_t left = list.left + ListWidth + Margin;
        const std::int32_t width = std::max(area.Right - Margin - left, 200);
        std::int32_t y = top;
        const auto next = [&](std::int32_t height) {
            const tvok::Placement place{left, y, width, height};
            y += height + HeadingHeight;
            return place;
        };
        switches = next(SwitchPanel::HeightOf(SwitchRows));
        const std::int32_t fixed = BarHeight + LabelHeight + StripHeight + 5 * HeadingHeight;
        const std::int32_t rest = bottom - y - fixed + HeadingHeight;
        roster = next(rest / 2);
        large = next(rest - rest / 2);
        bar = next(BarHeight);
        label = next(LabelHeight);
        strip = next(StripHeight);
    }
};

PropertiesPage::PropertiesPage(tvok::Desktop& desktop, tvok::Form& form)
    : desktop_(desktop), form_(form), hands_(desktop, form),
      icons_(desktop.AddImageList(DrawIcons(), IconSize)),
      list_(form.Add<tvok::gList>("properties.list", {})),
      text_(form.Add<tvok::TextBox>("properties.text", {})),
      check_(form.Add<CheckBox>("properties.check", {})),
      switches_(form.Add<tvok::qRoster>("properties.switches", {}), icons_, SwitchColumns),
      roster_(form.Add<tvok::qRoster>("properties.roster", {})),
      large_(form.Add<tvok::qRosterex>("properties.large", {})),
      bar_(form.Add<tvok::pcols>("properties.bar", {0, 0, 512, BarHeight})),
      label_(form.Add<tvok::iLabel>("properties.label", {})),
      strip_(form.Add<tvok::xbutton>("properties.strip", {})),
      properties_(form, {list_, text_, check_, form.Add<tvok::xPopup>("properties.popup", {})}) {
    SetUpList();
    FillRoster();
    FillLarge();
    FillBar();
    SetUpLabel();
    strip_.IconHandle(icons_);
    strip_.ButtonSettingsStr("B|bold|0|I|italic|0|7|globe|1|8|picture|1|0|list|2|1|next|2|2|close|2");
    properties_.Add(PropertiesOf(roster_));
    properties_.Add(PropertiesOf(large_));
    properties_.Add(PropertiesOf(bar_));
    properties_.Add(PropertiesOf(label_));
    properties_.Add(PropertiesOf(strip_));
    properties_.Add(PropertiesOf(list_));
    properties_.Build();
    properties_.changed = [this] { PlaceControls(); };
    SetUpSwitches();
}

// The controls.

void PropertiesPage::SetUpList() {
    list_.FixedHeight(false);
    list_.ListMode(1);
    list_.ItemHeight(RowHeight);
    list_.CX_TEXT(IconArea);
    list_.IconPos(tvok::PackIconPos({.Height = 12, .width = 16, .Top = 4, .Left = 4}));
    list_.HeadExBackColor(tvok::cButtonFace);
    list_.HeadExBorderColor(tvok::SystemColor(tvok::host::COLOR_BTNSHADOW));
    list_.GridlineColor(tvok::cButtonFace);
    list_.IconBorderColor(tvok::cWindowText);
}

void PropertiesPage::FillRoster() {
    roster_.FixedHeight(false);
    roster_.ItemHeight(RowHeight);
    roster_.CX_TEXT(IconArea);
    roster_.IconHandle(icons_);
    roster_.IconPos(IconPlace(RowHeight));
    roster_.GridlineColor(tvok::cButtonFace);
    roster_.TabStopSettingStr("140");
    for (const Kind& kind : Kinds) {
        roster_.AddItem(0, {.text = kind.text,
                            .IconID = static_cast<std::int32_t>(kind.icon),
                            .vflag = tvok::vflag::IconBox | tvok::vflag::IconOnBackground});
    }
    roster_.Refresh();
    roster_.ListIndex(2);
    roster_.events.Change = [this](std::int32_t, tvok::qrosterdata&) { properties_.Update(); };
}

void PropertiesPage::FillLarge() {
    large_.ItemHeight(RowHeight);
    large_.HeaderHeight(RowHeight);
    large_.CX_TEXT(IconArea);
    large_.ShowIcon(true);
    large_.IconCX((IconArea - IconSize) / 2);
    large_.IconCY((RowHeight - IconSize) / 2);
    large_.IconHandle(icons_);
    large_.HeaderAdd(0, "Number", 110, {}, 0, tvok::cButtonText);
    large_.HeaderAdd(0, "Square", 150, {}, 1, tvok::cButtonText);
    large_.HeaderAdd(0, "Cube", 190, {}, 1, tvok::cButtonText);
    large_.events.EnumDATA = [](std::int32_t& row, tvok::qrosterdata& record) {
        const std::int64_t number = row;
        record = {.text = Grouped(number) + "\t" + Grouped(number * number) + "\t" +
                          Grouped(number * number * number),
                  .IconID = row % IconCount, // image 0 is the first one here
                  .IconPos = 0};
    };
    large_.ClearText("There is nothing in this list");
    large_.Count(LargeRows);
    large_.ListIndex(LargeRows - 1);
    large_.events.Change = [this](std::int32_t) { properties_.Update(); };
}

void PropertiesPage::FillBar() {
    bar_.Add(0, "Name", 200, {}, 0, tvok::cButtonText);
    bar_.Add(0, "Size", 100, {}, 1, tvok::cButtonText);
    bar_.Add(0, "Remark", 200, {}, 2, tvok::cButtonText);
    bar_.Refresh();
}

void PropertiesPage::SetUpLabel() {
    label_.IconHandle(icons_);
    label_.IconID(static_cast<std::int32_t>(Icon::Globe));
    label_.IconLeft(8);
    label_.IconTop(12);
    label_.TextLeft(30);
    PropertiesPage::ThemeChanged();
    label_.Caption("A label whose every property is at the left");
}

void PropertiesPage::ThemeChanged() {
    label_.ForeColor(tvok::dgi::TranslateColor(tvok::cWindowText)); // which takes plain colours alone
}

void PropertiesPage::SetUpSwitches() {
    const auto word = [](bool on, const char* yes, const char* no) { return std::string(on ? yes : no); };
    switches_.Add({"Grouped", [this] { return CheckIcon(properties_.IsGrouped()); },
                   [=, this] { return word(properties_.IsGrouped(), "on: by control", "off: flat"); },
                   [this] { properties_.Group(!properties_.IsGrouped()); }});
    switches_.Add({"Sorted", [this] { return CheckIcon(list_.Sorted()); },
                   [=, this] { return word(list_.Sorted(), "on: by caption", "off: as added"); },
                   [this] { properties_.Sort(!list_.Sorted()); }});
    switches_.Add({"Save", [] { return Icon::Cylinder; },
                   [this] {
                       return saved_.empty() ? std::string("as one text")
                                             : Grouped(static_cast<std::int64_t>(saved_.size())) + " bytes";
                   },
                   [this] { saved_ = properties_.Save(); }});
    switches_.Add({"Restore", [] { return Icon::Newest; },
                   [=, this] { return word(saved_.empty(), "nothing saved yet", "what was saved"); },
                   [this] {
                       if (!saved_.empty()) properties_.Restore(saved_);
                   }});
}

// Looks.

void PropertiesPage::Layout(const tvok::tvok_Rect& area) {
    area_ = area;
    properties_.editors().Hide();
    const Places places(area);
    form_.Place(switches_.list(), places.switches);
    switches_.Spread(places.switches.width - 2);
    PlaceControls();
    form_.Place(list_, places.list);
    list_.Refresh(); // brings the editor of the current row
}

void PropertiesPage::PlaceControls() {
    const Places places(area_);
    form_.Place(roster_, places.roster);
    form_.Place(large_, places.large);
    form_.Place(bar_, places.bar);
    form_.Place(strip_, places.strip);
    form_.Place(label_, places.label);
    tvok::tvok_Rect client;
    platform().GetClientRect(label_.hwnd(), client);
    label_.TextRight(client.Right); // which does not follow the size by itself
}

void PropertiesPage::Paint(tvok::host::Handle hDC) {
    DrawBackground(hDC, area_, fonts_, "A property list over live controls",
                   "Type, F2 or Enter to edit, F4 for a list, Esc takes it back. What changes at the left "
                   "changes at the right");
    const auto heading = [&](const tvok::Placement& below, const std::string& text) {
        DrawLabel(hDC, {below.left, below.top - HeadingHeight, below.left + below.width, below.top}, text,
                  fonts_.Bold(), tvok::cButtonText);
    };
    const Places places(area_);
    heading(places.list, "Properties");
    heading(places.switches, "How the list shows them");
    heading(places.roster, "Flat list");
    heading(places.large, "Large list");
    heading(places.bar, "Column bar");
    heading(places.label, "Label");
    heading(places.strip, "Button strip");
}

// Scenes.

std::int32_t PropertiesPage::RowOf(const std::string& key) const {
    tvok::elistdata item;
    for (std::int32_t row = 1; row <= list_.Count(); ++row)
        if (list_.GetItem(item, {}, row) != 0 && item.hItem.key == key) return row;
    return 0;
}

void PropertiesPage::ClickRow(const std::string& key) {
    list_.ShowItem(key);
    tvok::tvok_Rect value;
    if (!list_.GetItemRect(RowOf(key), value)) return;
    clicks_ += 1; // never twice at one point, so that two are no double click
    tvok::host::Point point{value.Left - 20 - clicks_ % 4 * 10, (value.Top + value.bottom) / 2};
    platform().ScreenToClient(list_.hwnd(), point);
    hands_.Click(list_, point);
    desktop_.ProcessEvents(std::chrono::milliseconds{0});
}

void PropertiesPage::Key(std::int32_t code) {
    hands_.Press(code);
    desktop_.ProcessEvents(std::chrono::milliseconds{0});
}

void PropertiesPage::Type(const std::string& text) {
    hands_.Type(text);
    desktop_.ProcessEvents(std::chrono::milliseconds{0});
}

/// Presses a button of the current row's strip, counted from the right, and holds it.
void PropertiesPage::PressStrip(std::int32_t button) {
    tvok::tvok_Rect value;
    if (!list_.GetItemRect(list_.ListIndex(), value)) return;
    const std::int32_t side = value.bottom - value.Top;
    desktop_.Input().MouseMove(value.Right - side * button + side / 2, value.Top + side / 2);
    desktop_.Input().MouseDown(tvok::desktop::MouseButton::Left);
    desktop_.ProcessEvents(std::chrono::milliseconds{0});
}

void PropertiesPage::Release() {
    desktop_.Input().MouseUp(tvok::desktop::MouseButton::Left);
    desktop_.ProcessEvents(std::chrono::milliseconds{0});
}

/// Opens the row's popup by a button of its strip and drags down into it.
void PropertiesPage::DragIntoPopup(const std::string& key, std::int32_t button) {
    Release(); // takes what the popup before has chosen
    ClickRow(key);
    PressStrip(button);
    const tvok::host::Point at = desktop_.Input().Pointer();
    desktop_.Input().MouseMove(at.x - 60, at.y + 90);
}

void PropertiesPage::FoldAndStep() {
    for (const char* group : {"roster", "large", "bar"}) {
        ClickRow(group);
        Key(tvok::host::VK_SPACE);
    }
    ClickRow("self.ItemHeight");
    for (int step = 0; step < 2; ++step) {
        PressStrip(1);
        Release();
    }
}

std::vector<Scene> PropertiesPage::Scenes() {
    return {
        {"", [] {}},
        {"selected", [this] { ClickRow("label.GridlineWidth"); }},
        {"checked",
         [this] {
             ClickRow("label.IconBorder");
             Key(tvok::host::VK_SPACE);
         }},
        {"edited",
         [this] {
             ClickRow("label.Caption");
             Type("Typed into the row");
         }},
        {"colors", [this] { DragIntoPopup("label.BackColor", 3); }, true},
        {"numbers", [this] { DragIntoPopup("roster.HeadWidthEx", 1); }, true},
        {"choices",
         [this] {
             Release();
             list_.ShowItem("self.BackColor"); // so that there is room below
             DragIntoPopup("label.IconID", 1);
         },
         true},
        {"folded",
         [this] {
             Release();
             switches_.Flip(Save);
             FoldAndStep();
         }},
        {"flat", [this] { switches_.Flip(Groups); }},
        {"unsorted", [this] { switches_.Flip(Order); }},
        {"restored", [this] { switches_.Flip(Restore); }},
        {"scrolled", [this] { hands_.Wheel(list_, -12); }},
    };
}

} // namespace gallery
