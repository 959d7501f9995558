#include "apps/gallery/ColumnsPage.h"

#include <algorithm>
#include <array>
#include <limits>

#include "apps/gallery/inspected.h"

namespace gallery {

using tvok::host::platform;

namespace {

constexpr std::int32_t BarHeight = 26, RowHeight = 20, TextStart = 4;
constexpr std::int32_t SwitchColumns = 2, SwitchRows = 2;
constexpr std::size_t MostRows = 400;

struct Field {
    const char* key;
    const char* caption;
    std::int32_t width;
    std::int16_t alignment;
    std::string (*cell)(const Package& package);
};

constexpr std::array<Field, 6> Fields{{
    {"name", "Package", 230, 0, [](const Package& package) { return package.name; }},
    {"version", "Version", 230, 0, [](const Package& package) { return package.version; }},
    {"size", "Size", 110, 1, [](const Package& package) { return SizeText(package.kibibytes); }},
    {"section", "Section", 130, 2, [](const Package& package) { return package.section; }},
    {"summary", "Summary", 300, 0, [](const Package& package) { return package.summary; }},
    {"priority", "Priority", 110, 0, [](const Package& package) { return package.priority; }},
}};
constexpr std::size_t FieldsAtFirst = 4;

const Field& FieldOf(const tvok::qrosterheader& column) {
    return *std::ranges::find(Fields, column.key, [](const Field& field) { return std::string(field.key); });
}

} // namespace

struct ColumnsPage::Places {
    tvok::Placement bar;
    tvok::Placement list;
    tvok::Placement switches;

    explicit Places(const tvok::tvok_Rect& area) {
        const std::int32_t left = area.Left + Margin, top = area.Top + BannerHeight + Margin;
        const std::int32_t width = std::max(area.Right - area.Left - 2 * Margin, 120);
        const std::int32_t panel = SwitchPanel::HeightOf(SwitchRows);
        const std::int32_t bottom = std::max(area.bottom - 2 * Margin - panel, top + BarHeight + 60);
        bar = {left, top, width, BarHeight};
        list = {left, top + BarHeight, width, bottom - top - BarHeight};
        switches = {left, bottom + Margin, width, panel};
    }
};

ColumnsPage::ColumnsPage(tvok::Desktop& desktop, tvok::Form& form)
    : desktop_(desktop), form_(form), hands_(desktop, form), collection_(LoadCollection()),
      bar_(form.Add<tvok::pcols>("columns.bar", {})), list_(form.Add<tvok::qRoster>("columns.list", {})),
      switches_(form.Add<tvok::qRoster>("columns.switches", {}), desktop.AddImageList(DrawIcons(), IconSize),
                SwitchColumns) {
    if (collection_.packages.size() > MostRows) collection_.packages.resize(MostRows);
    list_.FixedHeight(false);
    list_.ItemHeight(RowHeight);
    list_.CX_TEXT(TextStart);
    bar_.events.MouseDown = [this](std::int32_t column, std::int32_t) { Press(column); };
    SetUpSwitches();
}

void ColumnsPage::SetUpSwitches() {
    const auto arrow = [] { return Icon::Newest; };
    switches_.Add({"Add", arrow,
                   [] { return std::string("one more column in front: the others pay for it"); },
                   [this] { AddColumn(); }});
    switches_.Add({"Remove", arrow, [] { return std::string("the last column; its room stays empty"); },
                   [this] { RemoveColumn(); }});
    switches_.Add({"lFlag", [this] { return CheckIcon(bar_.lFlag() != 0); },
                   [this] { return std::string(bar_.lFlag() != 0 ? "bold captions" : "plain captions"); },
                   [this] {
                       bar_.lFlag(bar_.lFlag() != 0 ? 0 : tvok::vflag::Bold);
                       bar_.Refresh();
                   }});
    switches_.Add({"Clear", arrow, [] { return std::string("and add the columns of the beginning"); },
                   [this] { MakeColumns(); }});
}

// Columns.

/// Once the bar has its size, since columns are fitted into it.
void ColumnsPage::MakeColumns() {
    bar_.Clear();
    for (std::size_t i = 0; i < FieldsAtFirst; ++i)
        bar_.Add(0, Fields[i].caption, Fields[i].width, Fields[i].key, Fields[i].alignment,
                 tvok::cButtonText);
    ColumnsChanged();
}

void ColumnsPage::AddColumn() {
    const Field& next = Fields[static_cast<std::size_t>(bar_.Count()) % Fields.size()];
    bar_.Add(bar_.Count() > 0 ? -1 : 0, next.caption, next.width, next.key, next.alignment,
             tvok::cButtonText);
    ColumnsChanged();
}

void ColumnsPage::RemoveColumn() {
    bar_.Remove(bar_.Count());
    ColumnsChanged();
}

void ColumnsPage::ColumnsChanged() {
    bar_.Refresh();
    Fill();
    if (bench_) bench_->SubjectsChanged();
}

/// The bar has properties for each of its columns, which come and go.
std::optional<std::vector<Subject>> ColumnsPage::Subjects() {
    const Subject bar{.name = "columns.bar", .control = &bar_, .form = &form_};
    std::vector<Subject> subjects{bar,
                                  {.name = "columns.list", .control = &list_, .form = &form_},
                                  {.name = "columns.switches", .control = &switches_.list(), .form = &form_}};
    subjects.front().properties = [bar] { return GroupsOf(bar); };
    return subjects;
}

void ColumnsPage::Press(std::int32_t column) {
    pressed_ = column > 0 ? "on \"" + bar_.GetData(column).text + "\"" : "on the empty part";
    if (column > 0) {
        const Field& by = FieldOf(bar_.GetData(column));
        const bool sizes = std::string_view(by.key) == "size";
        std::ranges::stable_sort(collection_.packages, [&](const Package& a, const Package& b) {
            return sizes ? a.kibibytes > b.kibibytes : by.cell(a) < by.cell(b);
        });
        Fill();
    }
    platform().InvalidateRect(form_.hWnd(), nullptr, false);
}

void ColumnsPage::Fill() {
    list_.Clear();
    for (const Package& package : collection_.packages) {
        std::string text;
        for (std::int32_t column = 1; column <= bar_.Count(); ++column)
            text += (column > 1 ? "\t " : "") + FieldOf(bar_.GetData(column)).cell(package);
        list_.AddItem(0, {.text = std::move(text)});
    }
    list_.Refresh();
    widths_.clear();
    Follow();
}

void ColumnsPage::Follow() {
    const std::string widths = bar_.HeaderWidths();
    if (widths == widths_) return;
    widths_ = widths;
    std::string stops; // the first tab column begins with the text
    for (std::int32_t column = 1; column <= bar_.Count(); ++column) {
        const std::int32_t width = bar_.GetData(column).hWidth - (column == 1 ? TextStart : 0);
        stops += (column > 1 ? "," : "") + std::to_string(width);
    }
    list_.TabStopSettingStr(stops);
    list_.Refresh();
    platform().InvalidateRect(form_.hWnd(), nullptr, false);
}

// Looks.

void ColumnsPage::Layout(const tvok::tvok_Rect& area) {
    area_ = area;
    const Places places(area);
    form_.Place(bar_, places.bar);
    form_.Place(list_, places.list);
    form_.Place(switches_.list(), places.switches);
    switches_.Spread(places.switches.width);
    if (bar_.Count() == 0) return MakeColumns();
    bar_.SetData(std::numeric_limits<std::int32_t>::max(), {}); // stores nothing and fits the columns
    bar_.Refresh();
    Follow();
}

void ColumnsPage::Paint(tvok::host::Handle hDC) {
    DrawBackground(hDC, area_, fonts_, "A column bar over a list",
                   "HeaderWidths " + widths_ + "  \u00B7  last press " + pressed_ +
                       "  \u00B7  drag a divider: two columns share their width");
}

// Scenes.

void ColumnsPage::ClickSwitch(Switch which) {
    tvok::tvok_Rect client;
    platform().GetClientRect(form_.ComponentOf(switches_.list()).hWnd(), client);
    const auto place = static_cast<std::int32_t>(which);
    hands_.Click(switches_.list(), {place % SwitchColumns * client.Right / SwitchColumns + 40,
                                    place / SwitchColumns * SwitchPanel::RowHeight + 8});
    desktop_.ProcessEvents(std::chrono::milliseconds{0});
}

std::vector<Scene> ColumnsPage::Scenes() {
    const auto divider = [this](std::int32_t by) {
        const std::int32_t edge = bar_.GetData(1).hWidth;
        hands_.Drag(bar_, {edge, 10}, {edge + by, 10});
        desktop_.ProcessEvents(std::chrono::milliseconds{0});
        Follow();
    };
    return {
        {"", [] {}},
        {"dragged", [divider] { divider(-70); }},
        {"sorted",
         [this] {
             hands_.Click(bar_, {bar_.GetData(1).hWidth + bar_.GetData(2).hWidth + 20, 10});
             ClickSwitch(Bold);
         }},
        {"added",
         [this] {
             ClickSwitch(Add);
             ClickSwitch(Add);
         }},
        {"resized", [this] { form_.Size(form_.Width() * 3 / 4, form_.Height() * 3 / 4); }},
    };
}

} // namespace gallery
