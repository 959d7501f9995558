#include "apps/gallery/ToolBar.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "tvok/engine/dgi.h"

namespace gallery {

namespace {

constexpr std::int32_t LabelWidth = 46, SwitchWidth = 112;

const std::vector<std::string>& ThemeNames() {
    static const std::vector<std::string> names{"classic", "dark", "contrast"};
    return names;
}

constexpr std::array ScalePercents{100, 125, 150, 200};

std::vector<std::string> ScaleNames() {
    std::vector<std::string> names;
    names.reserve(ScalePercents.size());
    for (const std::int32_t percent : ScalePercents) names.push_back(std::to_string(percent) + " %");
    return names;
}

} // namespace

ToolBar::ToolBar(tvok::Desktop& desktop, tvok::Form& form, std::int32_t icons)
    : desktop_(desktop), form_(form), themes_(AddChoice("tools.themes", "Theme", 62, ThemeNames())),
      scales_(AddChoice("tools.scales", "Scale", 50, ScaleNames())),
      switches_(form.Add<tvok::qRoster>("tools.switches", {}), icons, 1) {
    // With the release: behind a press that moves the bar, the pointer would be dragging elsewhere.
    themes_.events.Click = [this](std::int32_t index, tvok::qrosterdata& item) {
        if (index > 0 && themeChosen) themeChosen(std::string(item.text));
    };
    scales_.events.Click = [this](std::int32_t index, tvok::qrosterdata&) {
        if (index > 0 && scaleChosen)
            scaleChosen(static_cast<float>(ScalePercents.at(static_cast<std::size_t>(index) - 1)) / 100);
    };
    switches_.list().BackColor(tvok::cButtonFace);
    Update();
}

tvok::qRoster& ToolBar::AddChoice(const char* name, const char* label, std::int32_t itemWidth,
                                  const std::vector<std::string>& words) {
    auto& list = form_.Add<tvok::qRoster>(name, {});
    list.FixedHeight(false);
    list.GridlineWidth(0);
    list.xn(static_cast<std::int32_t>(words.size()));
    list.ItemHeight(SwitchPanel::RowHeight);
    list.ItemWidth(itemWidth);
    list.CX_TEXT(6);
    for (const std::string& word : words) list.AddItem(0, {.text = word});
    list.Refresh();
    choices_.push_back({label, &list, itemWidth});
    return list;
}

void ToolBar::AddSwitch(PanelSwitch added) {
    switches_.Add(std::move(added));
    switches_.list().xn(switches_.list().Count());
}

void ToolBar::Update() {
    const auto& names = ThemeNames();
    const auto found = std::ranges::find(names, desktop_.CurrentTheme().name);
    if (found != names.end()) themes_.ListIndex(static_cast<std::int32_t>(found - names.begin()) + 1);
    const auto percent = static_cast<std::int32_t>(std::lround(desktop_.Scale() * 100));
    const auto scale = std::ranges::find(ScalePercents, percent);
    if (scale != ScalePercents.end())
        scales_.ListIndex(static_cast<std::int32_t>(scale - ScalePercents.begin()) + 1);
    switches_.Update();
}

void ToolBar::Layout(const tvok::tvok_Rect& area) {
    area_ = area;
    const std::int32_t height = SwitchPanel::HeightOf(1);
    const std::int32_t top = area.Top + (Height - height) / 2;
    std::int32_t left = area.Left + Margin;
    for (const Choice& choice : choices_) {
        left += LabelWidth;
        const std::int32_t width = choice.itemWidth * choice.list->xn() + 2;
        form_.Place(*choice.list, {left, top, width, height});
        left += width + Margin;
    }
    const std::int32_t width = SwitchWidth * switches_.list().Count() + 2;
    form_.Place(switches_.list(), {left, top, width, height});
    switches_.Spread(width - 2);
}

void ToolBar::Paint(tvok::host::Handle hDC) {
    tvok::dgi::FillRectColor(hDC, area_, tvok::cButtonFace);
    tvok::dgi::FillRectColor(hDC, {area_.Left, area_.Top, area_.Right, area_.Top + 1},
                             tvok::SystemColor(tvok::host::COLOR_BTNSHADOW));
    for (const Choice& choice : choices_) {
        const tvok::Placement place = form_.PlacementOf(*choice.list);
        DrawLabel(hDC, {place.left - LabelWidth, place.top, place.left, place.top + place.height},
                  choice.label, fonts_.Plain(), tvok::cButtonText);
    }
}

void ToolBar::Visible(bool show) {
    for (const Choice& choice : choices_) form_.ComponentOf(*choice.list).Visible(show);
    form_.ComponentOf(switches_.list()).Visible(show);
}

} // namespace gallery
