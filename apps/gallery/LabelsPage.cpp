#include "apps/gallery/LabelsPage.h"

#include <algorithm>
#include <chrono>

#include "tvok/engine/dgi.h"

namespace gallery {

using tvok::host::platform;

namespace {

constexpr std::int32_t Columns = 2;
constexpr std::int32_t LabelHeight = 52;
constexpr std::int32_t TextStart = 30;

/// A label takes plain colours for its text.
tvok::OLE_COLOR Plain(tvok::OLE_COLOR color) {
    return tvok::dgi::TranslateColor(color);
}

} // namespace

LabelsPage::LabelsPage(tvok::Desktop& desktop, tvok::Form& form)
    : desktop_(desktop), form_(form), hands_(desktop, form),
      icons_(desktop.AddImageList(DrawIcons(), IconSize)) {
    AddPlainOnes();
    AddFramedOnes();
    AddTexts();
    LabelsPage::ThemeChanged();
}

void LabelsPage::ThemeChanged() {
    for (const Entry& entry : entries_)
        entry.label->ForeColor(entry.label == colored_ ? RisingColor() : Plain(tvok::cWindowText));
}

tvok::iLabel& LabelsPage::Add(const std::string& heading, const std::string& caption, Icon icon) {
    auto& label = form_.Add<tvok::iLabel>("labels." + std::to_string(entries_.size() + 1), {});
    label.IconHandle(icons_);
    label.IconID(static_cast<std::int32_t>(icon));
    label.IconLeft(8);
    label.IconTop(16);
    label.TextLeft(TextStart);
    label.Caption(caption);
    Hear(label, caption);
    entries_.push_back({heading, &label});
    return label;
}

void LabelsPage::AddPlainOnes() {
    Add("IconID, TextLeft", "An icon and a line of text", Icon::Globe);
    auto& flat = Add("BorderStyle 0, BackColor", "On the form's own colour", Icon::Letter);
    flat.BorderStyle(0);
    flat.BackColor(tvok::cButtonFace);
    auto& quiet = Add("HideFocus", "Takes the focus and does not show it", Icon::Gear);
    quiet.HideFocus(true);
    auto& bold = Add("Font, ForeColor", "In a font and a colour of its own", Icon::Books);
    bold.Font()->Bold(true);
    bold.Font()->Italic(true);
    colored_ = &bold;
}

void LabelsPage::AddFramedOnes() {
    auto& frame = Add("GridlineWidth 3, GridlineColor", "In a frame of three pixels", Icon::Box);
    frame.BorderStyle(0);
    frame.GridlineColor(tvok::cHighlight);
    frame.GridlineWidth(3);
    auto& box =
        Add("IconBorder, as its size comes", "The box ends at IconWidth and IconHeight", Icon::Picture);
    box.IconTop(8);
    box.IconBorder(true);
    box.IconBorderColor(tvok::cWindowText);
    auto& around = Add("IconWidth 25, IconHeight 25, IconBackColor", "A box around its icon", Icon::Terminal);
    around.IconTop(8);
    around.IconWidth(25);
    around.IconHeight(25);
    around.IconBorder(true);
    around.IconBorderColor(tvok::cWindowText);
    around.IconTransParent(false);
    around.IconBackColor(tvok::SystemColor(tvok::host::COLOR_INFOBK));
}

void LabelsPage::AddTexts() {
    auto& marked = Add("NOPREFIX false", "&Open, save && close", Icon::Page);
    marked.NOPREFIX(false);
    auto& wrapped = Add("MultiLine",
                        "A caption of more words than one line holds goes on in the next one, between words.",
                        Icon::Brackets);
    wrapped.MultiLine(true);
    Add("Any script", "Ελληνικά, Русский, עברית, 日本語", Icon::Globe);
}

// Events.

void LabelsPage::Hear(tvok::iLabel& label, const std::string& name) {
    const auto button = [this, name](const char* event) {
        return [this, name, event](std::int16_t& which, std::int16_t&, float& x, float& y) {
            Tell(std::string(event) + " " + std::to_string(which) + " at " +
                 std::to_string(static_cast<int>(x)) + ", " + std::to_string(static_cast<int>(y)) +
                 " twips: " + name);
        };
    };
    const auto key = [this, name](const char* event) {
        return [this, name, event](std::int16_t& code, std::int16_t&) {
            Tell(std::string(event) + " " + std::to_string(code) + ": " + name);
        };
    };
    label.events.MouseDown = button("MouseDown");
    label.events.MouseUp = button("MouseUp");
    label.events.KeyDown = key("KeyDown");
    label.events.KeyUp = key("KeyUp");
}

void LabelsPage::Tell(const std::string& event) {
    lastEvent_ = event;
    const tvok::tvok_Rect banner{area_.Left, area_.Top, area_.Right, area_.Top + BannerHeight};
    platform().InvalidateRect(form_.hWnd(), &banner, false);
}

// Looks.

tvok::Placement LabelsPage::PlaceOf(std::size_t place) const {
    const auto number = static_cast<std::int32_t>(place);
    const std::int32_t width = std::max((area_.Right - area_.Left - (Columns + 1) * Margin) / Columns, 80);
    const std::int32_t step = LabelHeight + HeadingHeight + Margin / 2;
    return {area_.Left + Margin + number % Columns * (width + Margin),
            area_.Top + BannerHeight + HeadingHeight + number / Columns * step, width, LabelHeight};
}

void LabelsPage::Layout(const tvok::tvok_Rect& area) {
    area_ = area;
    for (std::size_t place = 0; place < entries_.size(); ++place) {
        tvok::iLabel& label = *entries_[place].label;
        form_.Place(label, PlaceOf(place));
        tvok::tvok_Rect client;
        platform().GetClientRect(label.hwnd(), client);
        label.TextRight(client.Right); // which does not follow the size by itself
        label.Refresh();
    }
}

void LabelsPage::Paint(tvok::host::Handle hDC) {
    DrawBackground(hDC, area_, fonts_, "Labels that take the focus", lastEvent_);
    for (std::size_t place = 0; place < entries_.size(); ++place) {
        const tvok::Placement label = PlaceOf(place);
        DrawLabel(hDC, {label.left, label.top - HeadingHeight, label.left + label.width, label.top},
                  entries_[place].heading, fonts_.Bold(), tvok::cButtonText);
    }
}

// Scenes.

std::vector<Scene> LabelsPage::Scenes() {
    return {
        {"", [] {}},
        {"pressed",
         [this] {
             hands_.Click(label(0), {100, 20});
         }},
        {"tabbed",
         [this] {
             for (int i = 0; i < 7; ++i) {
                 desktop_.Input().KeyDown(tvok::host::VK_TAB);
                 desktop_.Input().KeyUp(tvok::host::VK_TAB);
             }
             desktop_.Input().KeyDown('O');
             desktop_.Input().KeyUp('O');
         }},
        {"resized", [this] { form_.Size(form_.Width() * 3 / 4, form_.Height()); }},
    };
}

} // namespace gallery
