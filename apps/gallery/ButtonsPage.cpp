#include "apps/gallery/ButtonsPage.h"

#include <algorithm>

#include "tvok/engine/dgi.h"

namespace gallery {

using tvok::host::platform;

namespace {

constexpr std::int32_t FieldHeight = 24;
constexpr std::int32_t Smallest = 16, Largest = 64, SizeStep = 8;
constexpr std::int32_t StripRowHeight = 56;
constexpr std::int32_t TallestShown = 44;
constexpr std::array<std::int32_t, 3> Heights{20, 30, TallestShown};
constexpr std::int32_t RowHeight = 20, IconArea = 24;

constexpr const char* EveryKind = "...|dialog|0|B|bold|0|7|globe|1|8|picture|1|0|list|2|1|next|2|2|close|2";
constexpr const char* Wider = "Yes|yes|0|No|no|0|&A|all|0|0|more|2";

} // namespace

struct ButtonsPage::Places {
    tvok::Placement text;
    tvok::Placement sizer;
    tvok::Placement strip;
    std::array<tvok::Placement, 3> sizes;
    tvok::Placement log;

    Places(const tvok::tvok_Rect& area, std::int32_t side) {
        const std::int32_t left = area.Left + Margin;
        const std::int32_t width = std::max(area.Right - area.Left - 2 * Margin, 160);
        std::int32_t top = area.Top + BannerHeight + HeadingHeight;
        text = {left, top, width, FieldHeight};
        top += FieldHeight + Margin;
        sizer = {left, top, 0, FieldHeight};
        strip = {left + 2 * FieldHeight + Margin, top, 0, side};
        top += Largest + HeadingHeight;
        std::int32_t x = left;
        for (std::size_t i = 0; i < sizes.size(); ++i) {
            sizes[i] = {x, top, 0, Heights[i]};
            x += 7 * Heights[i] + Margin;
        }
        top += StripRowHeight + HeadingHeight;
        log = {left, top, width, std::max(area.bottom - Margin - top, 60)};
    }
};

ButtonsPage::ButtonsPage(tvok::Desktop& desktop, tvok::Form& form)
    : desktop_(desktop), form_(form), hands_(desktop, form),
      text_(form.Add<tvok::TextBox>("buttons.text", {})),
      strip_(form.Add<tvok::xbutton>("buttons.strip", {})),
      sizer_(form.Add<tvok::xbutton>("buttons.sizer", {})), log_(form.Add<tvok::qRoster>("buttons.log", {})) {
    const std::int32_t icons = desktop.AddImageList(DrawIcons(), IconSize);
    log_.FixedHeight(false);
    log_.ItemHeight(RowHeight);
    log_.CX_TEXT(IconArea);
    log_.IconHandle(icons);
    log_.IconPos(tvok::PackIconPos({.Height = IconSize, .width = IconSize, .Top = 2, .Left = 4}));
    SetUp(strip_, "strip", icons);
    SetUp(sizer_, "height", icons);
    sizer_.ButtonSettingsStr("0|less|2|1|more|2");
    for (std::size_t i = 0; i < sizes_.size(); ++i) {
        const std::string name = std::to_string(Heights[i]) + " pixels";
        sizes_[i] = &form.Add<tvok::xbutton>("buttons." + std::to_string(i), {});
        SetUp(*sizes_[i], name.c_str(), icons);
        sizes_[i]->ButtonSettingsStr(EveryKind);
    }
    text_.events.Change = [this] { strip_.ButtonSettingsStr(text_.Text()); };
    text_.Text(EveryKind);
}

// Content.

void ButtonsPage::SetUp(tvok::xbutton& strip, const char* name, std::int32_t icons) {
    strip.IconHandle(icons);
    const std::string title = name;
    strip.events.MouseDown = [this, title](const std::string& key) {
        Tell(title + ": MouseDown(\"" + key + "\")");
    };
    strip.events.Click = [this, title, &strip](const std::string& key) {
        Tell(title + ": Click(\"" + key + "\")");
        if (&strip == &sizer_) Resize(key);
    };
    strip.events.KeyDown = [this, title](std::int16_t& code, std::int16_t& shift) {
        Tell(title + ": KeyDown(" + std::to_string(code) + ", " + std::to_string(shift) + ")");
    };
}

void ButtonsPage::Tell(const std::string& line) {
    log_.AddItem(1, {.text = line,
                     .IconID = static_cast<std::int32_t>(Icon::Newest),
                     .vflag = tvok::vflag::IconBox | tvok::vflag::IconOnBackground});
    log_.Refresh();
}

void ButtonsPage::Resize(const std::string& key) {
    side_ = std::clamp(side_ + (key == "more" ? SizeStep : -SizeStep), Smallest, Largest);
    form_.Place(strip_, Places(area_, side_).strip); // its width follows
}

// Looks.

void ButtonsPage::Layout(const tvok::tvok_Rect& area) {
    area_ = area;
    const Places places(area, side_);
    form_.Place(text_, places.text);
    form_.Place(sizer_, places.sizer);
    form_.Place(strip_, places.strip);
    for (std::size_t i = 0; i < sizes_.size(); ++i) form_.Place(*sizes_[i], places.sizes[i]);
    form_.Place(log_, places.log);
}

void ButtonsPage::Paint(tvok::host::Handle hDC) {
    const Places places(area_, side_);
    DrawBackground(hDC, area_, fonts_, "Strips of small buttons",
                   "Each is described by one text, is as high as it is told and as wide as its buttons");
    const auto heading = [&](const tvok::Placement& below, const char* text) {
        DrawLabel(hDC, {below.left, below.top - HeadingHeight, area_.Right - Margin, below.top}, text,
                  fonts_.Bold(), tvok::cButtonText);
    };
    heading(places.text, "The text: caption or number | key | kind, for each button. Edit it");
    heading(places.sizes[0], "The same text in three heights");
    heading(places.log, "What the strips tell, the newest first");
}

// Scenes.

tvok::host::Point ButtonsPage::MiddleOf(const tvok::xbutton& strip, std::int32_t button) const {
    tvok::tvok_Rect client;
    platform().GetClientRect(strip.hwnd(), client);
    return {client.bottom * button - client.bottom / 2, client.bottom / 2};
}

void ButtonsPage::Click(const tvok::xbutton& strip, std::int32_t button) {
    hands_.Click(strip, MiddleOf(strip, button));
    desktop_.ProcessEvents(std::chrono::milliseconds{0});
}

void ButtonsPage::Hold(const tvok::xbutton& strip, std::int32_t button) {
    tvok::host::Point point = MiddleOf(strip, button);
    platform().ClientToScreen(strip.hwnd(), point);
    desktop_.Input().MouseMove(point.x, point.y);
    desktop_.Input().MouseDown(tvok::desktop::MouseButton::Left);
}

std::vector<Scene> ButtonsPage::Scenes() {
    return {
        {"",
         [this] {
             Click(strip_, 1);
             Click(*sizes_[2], 5);
         }},
        {"held", [this] { Hold(strip_, 4); }},
        {"edited",
         [this] {
             desktop_.Input().MouseUp(tvok::desktop::MouseButton::Left);
             text_.Text(Wider);
             Click(sizer_, 2);
             Click(strip_, 3);
         }},
    };
}

} // namespace gallery
