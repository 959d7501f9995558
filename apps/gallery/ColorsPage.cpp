#include "apps/gallery/ColorsPage.h"

#include <algorithm>
#include <cstdio>

#include "apps/gallery/icons.h"
#include "tvok/engine/dgi.h"

namespace gallery {

using tvok::host::platform;

namespace {

constexpr std::int32_t SelectorWidth = 265, SelectorHeight = 24;
constexpr std::int32_t RowHeight = 20, IconArea = 24, BandWidth = 40, CodeLine = 20;
constexpr std::int32_t MostRows = 200, CurrentRow = 4;
constexpr std::int32_t VersionWidth = 170, SizeWidth = 90;
constexpr std::int32_t ItemFlags =
    tvok::vflag::IconBox | tvok::vflag::IconOnBackground | tvok::vflag::HostHead;

struct UseOfColor {
    const char* heading;
    const char* code;
    tvok::OLE_COLOR first;
};

constexpr std::array<UseOfColor, ColorsPage::UseCount> Uses{{
    {"Text", "item.fcolor = ", tvok::cWindowText},
    {"Background", "item.bColor = ", tvok::cWindowBackground},
    {"Grid lines", "list.GridlineColor", tvok::c3DLight},
    {"Selected row", "list.SelectedColor", tvok::cHighlight},
    {"Band of numbers", "list.HeadExBackColor", tvok::cButtonFace},
}};

} // namespace

ColorsPage::ColorsPage(tvok::Desktop& desktop, tvok::Form& form)
    : ColorsPage(desktop, form, LoadCollection()) {}

ColorsPage::ColorsPage(tvok::Desktop& desktop, tvok::Form& form, const Collection& collection)
    : desktop_(desktop), form_(form), list_(form.Add<tvok::qRoster>("colors.list", {})) {
    for (std::size_t use = 0; use < UseCount; ++use) {
        auto& selector = form.Add<tvok::ucColorSelector>("colors." + std::to_string(use + 1), {});
        selector.borderColor(tvok::SystemColor(tvok::host::COLOR_BTNSHADOW));
        selector.SelectColor(Uses[use].first);
        fields_[use].selector = &selector;
    }
    ColorsPage::ThemeChanged();
    list_.FixedHeight(false);
    list_.ItemHeight(RowHeight);
    list_.CX_TEXT(IconArea);
    list_.IconHandle(desktop.AddImageList(DrawIcons(), IconSize));
    list_.IconPos(tvok::PackIconPos({.Height = IconSize, .width = IconSize, .Top = 2, .Left = 4}));
    list_.HeadWidthEx(BandWidth);
    list_.events.ExDraw = [this](std::int32_t& message, std::int32_t index, const std::string&,
                                 std::int32_t hDC, std::int32_t, std::int32_t left, std::int32_t top,
                                 std::int32_t right, std::int32_t bottom) {
        if (message != tvok::bExDrawHead) return;
        DrawLabel(hDC, {left, top + 2, right - 6, bottom}, std::to_string(index), 0, fields_[Text].applied,
                  tvok::host::DT_RIGHT);
    };
    Fill(collection);
    for (std::size_t use = 0; use < UseCount; ++use) Apply(static_cast<Use>(use), Uses[use].first);
    list_.ListIndex(CurrentRow);
}

void ColorsPage::Fill(const Collection& collection) {
    for (const Package& package : collection.packages) {
        if (list_.Count() == MostRows) break;
        list_.AddItem(0, {.text = package.name + "\t" + package.version + "\t" + SizeText(package.kibibytes),
                          .IconID = static_cast<std::int32_t>(IconOfSection(package.section)),
                          .vflag = ItemFlags});
    }
}

// Colours.

void ColorsPage::Follow() {
    for (std::size_t use = 0; use < UseCount; ++use) {
        const tvok::OLE_COLOR color = fields_[use].selector->SelectColor();
        if (color != fields_[use].applied) Apply(static_cast<Use>(use), color);
    }
}

void ColorsPage::Apply(Use use, tvok::OLE_COLOR color) {
    fields_[use].applied = color;
    switch (use) {
    case Text: ColorItems(); break;
    case Background:
        list_.BackColor(color);
        ColorItems();
        break;
    case GridLines: list_.GridlineColor(color); break;
    case SelectedRow: list_.SelectedColor(color); break;
    case Band: list_.HeadExBackColor(color); break;
    }
    list_.Refresh();
    const tvok::tvok_Rect code = CodeBox();
    platform().InvalidateRect(form_.hWnd(), &code, false);
}

void ColorsPage::ColorItems() {
    tvok::qrosterdata item;
    for (std::int32_t row = 1; row <= list_.Count(); ++row) {
        list_.GetData(row, item);
        item.fcolor = fields_[Text].applied;
        item.bColor = fields_[Background].applied;
        list_.SetData(row, item, false);
    }
}

std::string ColorsPage::Code(Use use) const {
    std::array<char, 16> color{};
    std::snprintf(color.data(), color.size(), "0x%08X", static_cast<unsigned>(fields_[use].applied));
    const std::string code = Uses[use].code;
    const bool call = code.starts_with("list.");
    return code + (call ? "(" : "") + color.data() + (call ? ");" : ";");
}

// Looks.

tvok::Placement ColorsPage::PlaceOf(std::size_t use) const {
    const std::int32_t step = SelectorHeight + HeadingHeight + Margin / 2;
    return {area_.Left + Margin,
            area_.Top + BannerHeight + HeadingHeight + static_cast<std::int32_t>(use) * step, SelectorWidth,
            SelectorHeight};
}

tvok::tvok_Rect ColorsPage::CodeBox() const {
    const tvok::Placement below = PlaceOf(UseCount);
    return {below.left, below.top, below.left + SelectorWidth,
            below.top + static_cast<std::int32_t>(UseCount) * CodeLine + 8};
}

void ColorsPage::Layout(const tvok::tvok_Rect& area) {
    area_ = area;
    for (std::size_t use = 0; use < UseCount; ++use) form_.Place(*fields_[use].selector, PlaceOf(use));
    const std::int32_t left = area.Left + SelectorWidth + 3 * Margin;
    const std::int32_t top = area.Top + BannerHeight + HeadingHeight;
    const std::int32_t width = std::max(area.Right - Margin - left, 160);
    form_.Place(list_, {left, top, width, std::max(area.bottom - Margin - top, 60)});
    tvok::tvok_Rect client;
    platform().GetClientRect(form_.ComponentOf(list_).hWnd(), client);
    const std::int32_t name = client.Right - BandWidth - IconArea - VersionWidth - SizeWidth;
    list_.TabStopSettingStr(std::to_string(std::max(name, 80)) + "," + std::to_string(VersionWidth));
    list_.Refresh();
}

void ColorsPage::Paint(tvok::host::Handle hDC) {
    DrawBackground(hDC, area_, fonts_, "The colours of a list",
                   "Press an arrow, drag into the colours, and let go: the list follows. Esc takes it back");
    const auto heading = [&](const tvok::Placement& below, const char* text) {
        DrawLabel(hDC, {below.left, below.top - HeadingHeight, below.left + below.width, below.top}, text,
                  fonts_.Bold(), tvok::cButtonText);
    };
    for (std::size_t use = 0; use < UseCount; ++use) heading(PlaceOf(use), Uses[use].heading);
    heading(PlaceOf(UseCount), "In a program");
    heading(form_.PlacementOf(list_), "What has these colours");
    tvok::tvok_Rect line = CodeBox();
    tvok::dgi::DrawBoxRect(hDC, line, 1, tvok::SystemColor(tvok::host::COLOR_BTNSHADOW),
                           tvok::cWindowBackground, true);
    line = {line.Left + 6, line.Top + 4, line.Right - 2, line.Top + 4 + CodeLine};
    for (std::size_t use = 0; use < UseCount; ++use) {
        DrawLabel(hDC, line, Code(static_cast<Use>(use)), fonts_.Plain(), tvok::cWindowText);
        line.Top += CodeLine;
        line.bottom += CodeLine;
    }
}

// Scenes.

tvok::host::Point ColorsPage::OnScreen(Use use, std::int32_t x, std::int32_t y) {
    tvok::host::Point point{x, y};
    platform().ClientToScreen(form_.ComponentOf(*fields_[use].selector).hWnd(), point);
    return point;
}

void ColorsPage::Press(Use use, std::int32_t button) {
    tvok::tvok_Rect client;
    platform().GetClientRect(form_.ComponentOf(*fields_[use].selector).hWnd(), client);
    constexpr std::int32_t Buttons = 3;
    DragTo(use, client.Right - (Buttons - button) * client.bottom + client.bottom / 2, client.bottom / 2);
    desktop_.Input().MouseDown(tvok::desktop::MouseButton::Left);
    Process();
}

void ColorsPage::DragTo(Use use, std::int32_t x, std::int32_t y) {
    const tvok::host::Point point = OnScreen(use, x, y);
    desktop_.Input().MouseMove(point.x, point.y);
    Process();
}

void ColorsPage::LetGo() {
    desktop_.Input().MouseUp(tvok::desktop::MouseButton::Left);
    Process();
}

void ColorsPage::Key(std::int32_t key) {
    desktop_.Input().KeyDown(key);
    desktop_.Input().KeyUp(key);
    Process();
}

void ColorsPage::ThemeChanged() {
    for (const Field& field : fields_)
        field.selector->ForeColor(tvok::dgi::TranslateColor(tvok::cWindowText)); // it takes a plain one
}

void ColorsPage::Process() {
    desktop_.ProcessEvents(std::chrono::milliseconds{0});
    Follow();
}

std::vector<Scene> ColorsPage::Scenes() {
    const auto focus = [this] {
        DragTo(Text, 60, 10);
        desktop_.Input().MouseDown(tvok::desktop::MouseButton::Left);
        LetGo();
    };
    const auto preview = [this] {
        Press(Background, 0);
        const bool dark = tvok::dgi::TranslateColor(tvok::cWindowBackground) < 0x808080;
        constexpr std::int32_t Line = 11, Light = 1, Dark = 9; // of the grid, with lines of its own
        DragTo(Background, 130, SelectorHeight + Line * (dark ? Dark : Light) + 4);
    };
    const auto system = [this] {
        Press(SelectedRow, 1);
        LetGo();
        Key('A');
    };
    return {{"", [] {}},
            {"focused", focus},
            {"preview", preview, true},
            {"chosen", [this] { LetGo(); }},
            {"system", system, true},
            {"cancelled", [this] { Key(tvok::host::VK_ESCAPE); }}};
}

} // namespace gallery
