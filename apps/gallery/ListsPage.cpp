#include "apps/gallery/ListsPage.h"

#include <algorithm>
#include <utility>

#include "apps/gallery/icons.h"
#include "apps/gallery/words.h"
#include "tvok/engine/dgi.h"

namespace gallery {

using tvok::host::platform;

namespace {

constexpr std::int32_t StatusHeight = 28;
constexpr std::int32_t SectionsWidth = 230;
constexpr std::int32_t RowHeight = 20;
constexpr std::int32_t IconArea = 24;
constexpr std::int32_t CountBand = 46;
constexpr std::int32_t NameColumns = 3;
constexpr std::int32_t VersionWidth = 170, SizeWidth = 100, SectionWidth = 110;
constexpr std::size_t SizeColumn = 2;
constexpr std::int32_t SizeTextWidth = 66; // of a padded size in the default font

constexpr std::int32_t IconFlags = tvok::vflag::IconBox | tvok::vflag::IconOnBackground;

/// `text` behind as many digit-wide blanks as fill `width` characters, so that sizes stand in a column.
std::string PaddedLeft(const std::string& text, std::size_t width) {
    std::string result;
    for (std::size_t count = text.size(); count < width; ++count) result += "\u2007";
    return result + text;
}

tvok::qrosterdata DetailsItem(const Package& package) {
    const bool basic = package.priority == "required" || package.priority == "important";
    return {.text = package.name + "\t" + package.version + "\t" +
                    PaddedLeft(SizeText(package.kibibytes), 9) + "\t" + package.section,
            .key = package.name,
            .IconID = static_cast<std::int32_t>(IconOfSection(package.section)),
            .vflag = IconFlags | (basic ? tvok::vflag::Bold : 0)};
}

tvok::qrosterdata NameItem(const Package& package) {
    return {.text = package.name,
            .key = package.name,
            .IconID = static_cast<std::int32_t>(IconOfSection(package.section)),
            .vflag = IconFlags};
}

} // namespace

struct ListsPage::Places {
    tvok::Placement details;
    tvok::Placement names;
    tvok::Placement sections;

    explicit Places(const tvok::tvok_Rect& area) {
        const std::int32_t top = area.Top + BannerHeight + HeadingHeight;
        const std::int32_t bottom = std::max(area.bottom - StatusHeight - Margin / 2, top + 120);
        const std::int32_t left = area.Left + Margin;
        const std::int32_t wide = std::max(area.Right - area.Left - 3 * Margin - SectionsWidth, 160);
        const std::int32_t namesHeight = (bottom - top - HeadingHeight) / 3;
        details = {left, top, wide, bottom - top - HeadingHeight - namesHeight};
        names = {left, bottom - namesHeight, wide, namesHeight};
        sections = {left + wide + Margin, top, SectionsWidth, bottom - top};
    }
};

ListsPage::ListsPage(tvok::Desktop& desktop, tvok::Form& form) : ListsPage(desktop, form, LoadCollection()) {}

ListsPage::ListsPage(tvok::Desktop& desktop, tvok::Form& form, Collection collection)
    : form_(form), hands_(desktop, form), collection_(std::move(collection)),
      details_(form.Add<tvok::qRoster>("details", {})), names_(form.Add<tvok::qRoster>("names", {})),
      sections_(form.Add<tvok::qRoster>("sections", {})) {
    const std::int32_t icons = desktop.AddImageList(DrawIcons(), IconSize);
    for (tvok::qRoster* list : {&details_, &names_, &sections_}) {
        SetUp(*list);
        list->IconHandle(icons);
    }
    CountSections();
    SetUpDetails();
    SetUpNames();
    SetUpSections();
    FillLists();
    Summarise();
}

// Setting up.

void ListsPage::SetUp(tvok::qRoster& list) {
    list.FixedHeight(false);
    list.ItemHeight(RowHeight);
    list.CX_TEXT(IconArea);
    list.IconPos(tvok::PackIconPos({.Height = IconSize, .width = IconSize, .Top = 3, .Left = 4}));
}

void ListsPage::SetUpDetails() {
    details_.events.Change = [this](std::int32_t index, tvok::qrosterdata&) {
        names_.ListIndex(index); // its own Change comes back here and finds nothing to change
        ShowCurrent(index);
    };
}

void ListsPage::SetUpNames() {
    names_.GridlineWidth(0);
    names_.xn(NameColumns);
    names_.events.Change = [this](std::int32_t index, tvok::qrosterdata&) { details_.ListIndex(index); };
}

void ListsPage::SetUpSections() {
    sections_.HeadWidthEx(CountBand);
    sections_.HeadExBackColor(tvok::cButtonFace);
    sections_.HeadExBorderColor(tvok::c3DLight);
    sections_.MultiSelect(1);
    sections_.events.ExDraw = [this](std::int32_t& message, std::int32_t, const std::string& key,
                                     std::int32_t hDC, std::int32_t, std::int32_t left, std::int32_t top,
                                     std::int32_t right, std::int32_t bottom) {
        if (message != tvok::bExDrawHead) return;
        DrawLabel(hDC, {left, top + 2, right - 6, bottom}, std::to_string(sectionCounts_[key]), 0,
                  tvok::cButtonText, tvok::host::DT_RIGHT);
    };
    // With several items selected a list raises no Click, so the mouse and the keys are watched.
    sections_.events.Click = [this](std::int32_t, tvok::qrosterdata&) { Filter(); };
    sections_.events.MouseUp = [this](std::int16_t&, std::int16_t&, float&, float&) { Filter(); };
    sections_.events.KeyUp = [this](std::int16_t&, std::int16_t&) { Filter(); };

    for (const auto& [section, count] : sectionCounts_) {
        sections_.AddItem(0, {.text = section,
                              .key = section,
                              .IconID = static_cast<std::int32_t>(IconOfSection(section)),
                              .vflag = IconFlags | tvok::vflag::HostHead});
    }
    sections_.Refresh();
}

void ListsPage::CountSections() {
    for (const Package& package : collection_.packages) ++sectionCounts_[package.section];
}

// Looks.

void ListsPage::Layout(const tvok::tvok_Rect& area) {
    area_ = area;
    const Places places(area);
    form_.Place(details_, places.details);
    form_.Place(names_, places.names);
    form_.Place(sections_, places.sections);
    SetTabStops();
}

void ListsPage::SetTabStops() {
    tvok::tvok_Rect client;
    platform().GetClientRect(form_.ComponentOf(details_).hWnd(), client);
    const std::int32_t wide =
        std::max(client.Right - IconArea - SizeWidth, 100); // for the other three columns
    const std::int32_t version = std::min(VersionWidth, wide * 3 / 10);
    const std::int32_t section = std::min(SectionWidth, wide / 5);
    tabStops_ = {wide - version - section, version, SizeWidth};
    std::string setting;
    for (const std::int32_t stop : tabStops_) setting += (setting.empty() ? "" : ",") + std::to_string(stop);
    details_.TabStopSettingStr(setting);

    platform().GetClientRect(form_.ComponentOf(names_).hWnd(), client);
    names_.ItemWidth(std::max(client.Right / NameColumns, 40));
}

void ListsPage::Paint(tvok::host::Handle hDC) {
    DrawBackground(hDC, area_, fonts_, collection_.title, summary_);
    PaintHeadings(hDC, Places(area_));
    DrawLabel(hDC, {area_.Left + Margin, area_.bottom - StatusHeight, area_.Right - Margin, area_.bottom},
              status_, fonts_.Plain(), tvok::cButtonText);
}

void ListsPage::PaintHeadings(std::int32_t hDC, const Places& places) {
    using tvok::host::DT_LEFT;
    const auto heading = [&](std::int32_t left, std::int32_t right, std::int32_t listTop, const char* text,
                             std::int32_t alignment) {
        DrawLabel(hDC, {left, listTop - HeadingHeight, right, listTop}, text, fonts_.Bold(),
                  tvok::cButtonText, alignment);
    };
    const std::int32_t end = places.details.left + places.details.width;
    std::int32_t left = places.details.left + IconArea;
    const char* const columns[] = {"Package", "Version", "Size", "Section"};
    for (std::size_t column = 0; column < std::size(columns); ++column) {
        const std::int32_t right = column < tabStops_.size() ? std::min(left + tabStops_[column], end) : end;
        const bool numbers = column == SizeColumn;
        heading(left, numbers ? left + SizeTextWidth : right, places.details.top, columns[column],
                numbers ? tvok::host::DT_RIGHT : DT_LEFT);
        left = right;
    }
    heading(places.names.left, end, places.names.top, "The same by name, in three columns", DT_LEFT);
    heading(places.sections.left, area_.Right, places.sections.top, "Sections (choose one or more)", DT_LEFT);
}

void ListsPage::Repaint() {
    platform().InvalidateRect(form_.hWnd(), nullptr, false);
}

// Content.

std::vector<std::string> ListsPage::ChosenSections() const {
    std::vector<std::string> result;
    tvok::qrosterdata item;
    for (std::int32_t index = 1; index <= sections_.Count(); ++index) {
        if (sections_.IsSelected(index) && sections_.GetData(index, item)) result.push_back(item.key);
    }
    return result;
}

void ListsPage::Filter() {
    auto chosen = ChosenSections();
    if (chosen == chosen_) return;
    chosen_ = std::move(chosen);
    FillLists();
    Summarise();
    Repaint();
}

void ListsPage::FillLists() {
    shown_.clear();
    details_.Clear();
    names_.Clear();
    for (std::size_t place = 0; place < collection_.packages.size(); ++place) {
        const Package& package = collection_.packages[place];
        if (!chosen_.empty() && std::find(chosen_.begin(), chosen_.end(), package.section) == chosen_.end()) {
            continue;
        }
        shown_.push_back(place);
        details_.AddItem(0, DetailsItem(package));
        names_.AddItem(0, NameItem(package));
    }
    names_.Refresh();
    details_.Refresh();
    status_.clear();
    details_.ListIndex(1);
}

void ListsPage::ShowCurrent(std::int32_t index) {
    const Package& package = collection_.packages[shown_.at(static_cast<std::size_t>(index) - 1)];
    status_ = package.name;
    for (const std::string& part :
         {package.version, SizeText(package.kibibytes), package.section, package.summary}) {
        if (!part.empty()) status_ += "  \u00B7  " + part;
    }
    Repaint();
}

void ListsPage::Summarise() {
    std::int64_t kibibytes = 0;
    for (const std::size_t place : shown_) kibibytes += collection_.packages[place].kibibytes;
    const bool packages = collection_.note.empty();
    const auto count = static_cast<std::int64_t>(shown_.size());
    summary_ = packages ? Plural(count, "package", "packages") : Plural(count, "file", "files");
    summary_ += ", " + SizeText(kibibytes) + " in all";
    if (!chosen_.empty())
        summary_ += ", in " + Plural(static_cast<std::int64_t>(chosen_.size()), "section", "sections");
    for (std::size_t place = 0; place < chosen_.size(); ++place)
        summary_ += (place > 0 ? ", " : ": ") + chosen_[place];
    if (!packages) summary_ += ". " + collection_.note;
}

// Scenes.

std::vector<Scene> ListsPage::Scenes() {
    return {
        {"", [this] { ClickItem(details_, 3); }},
        {"scrolled", [this] { hands_.Wheel(details_, -12); }},
        {"selected",
         [this] {
             ClickItem(sections_, 2);
             ClickItem(sections_, 4, tvok::host::VK_CONTROL);
             ClickItem(sections_, 7, tvok::host::VK_CONTROL);
         }},
        {"resized", [this] { form_.Size(form_.Width() * 3 / 4, form_.Height() * 3 / 4); }},
    };
}

void ListsPage::ClickItem(tvok::qRoster& list, std::int32_t index, std::int32_t heldKey) {
    const std::int32_t row = (index - 1) / list.xn();
    hands_.Click(list, {list.HeadWidthEx() + 40, row * (list.ItemHeight() + list.GridlineWidth()) + 8},
                 heldKey);
}

} // namespace gallery
