#include "apps/gallery/SwitchPanel.h"

#include <algorithm>
#include <utility>

namespace gallery {

namespace {

constexpr std::int32_t IconArea = 26;

} // namespace

SwitchPanel::SwitchPanel(tvok::qRoster& list, std::int32_t icons, std::int32_t columns,
                         std::int32_t nameWidth)
    : list_(list), nameWidth_(nameWidth) {
    list_.FixedHeight(false);
    list_.GridlineWidth(0);
    list_.xn(columns);
    list_.ItemHeight(RowHeight);
    list_.CX_TEXT(IconArea);
    list_.IconPos(tvok::PackIconPos(
        {.Height = IconSize, .width = IconSize, .Top = (RowHeight - IconSize) / 2, .Left = 5}));
    list_.IconHandle(icons);
    list_.TabStopSettingStr(std::to_string(nameWidth_));
    list_.events.MouseDown = [this](auto&...) { pressed_ = list_.ListIndex(); };
    list_.events.MouseUp = [this](auto&...) { pressed_ = 0; };
    const auto clicked = [this](std::int32_t index, tvok::qrosterdata&) {
        // Arrow keys raise Click, too, and so does a drag onto another row.
        if (index == pressed_) Flip(static_cast<std::size_t>(index) - 1);
    };
    list_.events.Click = clicked;
    list_.events.DblClick = [this](std::int32_t index, tvok::qrosterdata&) {
        Flip(static_cast<std::size_t>(index) - 1); // the second of two quick clicks
    };
    list_.events.KeyDown = [this](std::int16_t& code, std::int16_t&) {
        const std::int32_t current = list_.ListIndex();
        if ((code != tvok::host::VK_SPACE && code != tvok::host::VK_RETURN) || current < 1) return;
        Flip(static_cast<std::size_t>(current) - 1);
        code = 0;
    };
}

tvok::qrosterdata SwitchPanel::ItemOf(const PanelSwitch& shown) const {
    return {.text = shown.name + "\t" + shown.words(),
            .key = shown.name,
            .IconID = static_cast<std::int32_t>(shown.icon()),
            .vflag = tvok::vflag::IconBox | tvok::vflag::IconOnBackground};
}

void SwitchPanel::Add(PanelSwitch added) {
    list_.AddItem(0, ItemOf(added));
    list_.Refresh();
    switches_.push_back(std::move(added));
}

void SwitchPanel::Update() {
    for (std::size_t place = 0; place < switches_.size(); ++place) {
        const auto index = static_cast<std::int32_t>(place) + 1;
        const tvok::qrosterdata item = ItemOf(switches_[place]);
        tvok::qrosterdata shown;
        list_.GetData(index, shown);
        if (shown.text != item.text || shown.IconID != item.IconID) list_.SetData(index, item);
    }
}

void SwitchPanel::Flip(std::size_t place) {
    switches_.at(place).flip();
    Update();
}

void SwitchPanel::Spread(std::int32_t width) {
    list_.ItemWidth(std::max(width / list_.xn(), nameWidth_));
    list_.Refresh();
}

} // namespace gallery
