#include "apps/gallery/Inspector.h"

#include <algorithm>
#include <utility>

#include "apps/gallery/inspected.h"
#include "apps/gallery/keys.h"
#include "tvok/engine/dgi.h"

namespace gallery {

using tvok::host::platform;

namespace {

constexpr std::int32_t LineHeight = 24, RowHeight = 20, IconArea = 24;
constexpr std::int32_t MostRowsOfChoice = 16;

constexpr bool IsOpening(std::int32_t code) {
    using namespace tvok::host;
    return code == F4 || code == VK_RETURN || code == VK_SPACE || code == VK_DOWN || code == VK_UP;
}

} // namespace

Inspector::Inspector(tvok::Desktop&, tvok::Form& form)
    : form_(form), line_(form.Add<tvok::iLabel>("inspector.line", {})),
      arrow_(form.Add<tvok::xbutton>("inspector.arrow", {})),
      list_(form.Add<tvok::gList>("inspector.list", {})),
      text_(form.Add<tvok::TextBox>("inspector.text", {})), check_(form.Add<CheckBox>("inspector.check", {})),
      choice_(form.Add<tvok::xPopup>("inspector.choice", {})),
      properties_(form, {list_, text_, check_, form.Add<tvok::xPopup>("inspector.popup", {})}) {
    SetUpLine();
    SetUpList();
}

void Inspector::SetUpLine() {
    line_.TextLeft(4);
    line_.IconID(0);
    line_.events.MouseDown = [this](std::int16_t& button, auto&...) {
        if (button == 1) OpenChoice();
    };
    line_.events.KeyDown = [this](std::int16_t& code, std::int16_t&) {
        if (IsOpening(code)) OpenChoice();
    };
    arrow_.ButtonSettingsStr("0|choose|2");
    arrow_.events.MouseDown = [this](const std::string&) { OpenChoice(); };
    choice_.HotTrack(true);
    choice_.events.Click = [this](std::int32_t index, tvok::qrosterdata&, bool canceled) {
        form_.ComponentOf(list_).SetFocus(); // also lets the arrow go, whose release the popup took
        const auto place = static_cast<std::size_t>(index) - 1;
        if (canceled || place >= subjects_.size() || subjects_[place].name == selected_) return;
        const std::string name = subjects_[place].name;
        Select(name);
        if (chosen) chosen(name);
    };
}

void Inspector::SetUpList() {
    list_.FixedHeight(false);
    list_.ListMode(1);
    list_.ItemHeight(RowHeight);
    list_.CX_TEXT(IconArea);
    list_.IconPos(tvok::PackIconPos({.Height = 12, .width = 16, .Top = 4, .Left = 4}));
    list_.HeadExBackColor(tvok::cButtonFace);
    list_.HeadExBorderColor(tvok::SystemColor(tvok::host::COLOR_BTNSHADOW));
    list_.GridlineColor(tvok::cButtonFace);
    list_.IconBorderColor(tvok::cWindowText);
    properties_.edited = [this](const std::string& key, const tvok::Variant& before,
                                const tvok::Variant& now) {
        const Property* property = properties_.Find(key);
        if (property == nullptr || !changed) return;
        const PropertyChange change{selected_, property->name, before, now};
        changed(change);
    };
}

// What is shown.

const Subject* Inspector::Find(const std::string& name) const {
    const auto found = std::ranges::find(subjects_, name, &Subject::name);
    return found == subjects_.end() ? nullptr : &*found;
}

std::string Inspector::LineOf(const Subject& subject) const {
    const bool named = subject.name.starts_with(page_ + ".");
    const std::string name = named ? subject.name : page_ + "." + subject.name;
    return subject.control == nullptr ? name : name + ": " + tvok::ControlTypeName(*subject.control);
}

/// The rows are left alone where they are the same control's as before, so that nothing folds or moves.
void Inspector::Offer(const std::string& page, std::vector<Subject> subjects) {
    const bool samePage = std::exchange(page_, page) == page;
    const bool stays =
        samePage && std::ranges::any_of(subjects, [&](const Subject& subject) {
            return subject.name == selected_ && subject.control == shown_ && !subject.properties;
        });
    const bool gone = std::ranges::none_of(
        subjects, [&](const Subject& subject) { return subject.control == shown_ && shown_ != nullptr; });
    subjects_ = std::move(subjects);
    FillChoice();
    if (stays) return Update();
    if (Find(selected_) == nullptr) selected_.clear();
    Show(gone && samePage);
}

void Inspector::Take() {
    properties_.editors().Take();
}

void Inspector::Select(const std::string& name) {
    if (name != selected_) Take(); // which may change what there is to select
    const Subject* subject = Find(name);
    const std::string wanted = subject == nullptr ? std::string() : name;
    if (wanted == selected_) return Update();
    selected_ = wanted;
    Show(false);
}

void Inspector::Show(bool controlsAreGone) {
    properties_.Clear(controlsAreGone);
    const Subject* subject = Find(selected_); // what was typed last may have changed all of it
    shown_ = subject == nullptr ? nullptr : subject->control;
    if (subject != nullptr)
        for (PropertyGroup& group : GroupsOf(*subject)) properties_.Add(std::move(group));
    properties_.Build();
    ThemeChanged();
    line_.Caption(subject == nullptr ? page_ + ": nothing is selected" : LineOf(*subject));
    line_.Refresh();
}

void Inspector::ThemeChanged() {
    line_.ForeColor(tvok::dgi::TranslateColor(tvok::cWindowText)); // which takes plain colours alone
}

void Inspector::Update() {
    properties_.Update();
}

// Choosing another one.

void Inspector::FillChoice() {
    choice_.Clear();
    choice_.CX_TEXT(4);
    choice_.ItemHeight(RowHeight);
    choice_.GridlineColor(tvok::SystemColor(tvok::host::COLOR_BTNSHADOW));
    choice_.GridlineOnBorder(true);
    for (const Subject& subject : subjects_) choice_.AddItem({.text = LineOf(subject)});
}

void Inspector::OpenChoice() {
    const auto found = std::ranges::find(subjects_, selected_, &Subject::name);
    if (subjects_.empty()) return;
    tvok::tvok_Rect place;
    platform().GetWindowRect(line_.hwnd(), place);
    place.Right += place.bottom - place.Top; // to the arrow's edge
    choice_.yn(std::min(choice_.Count(), MostRowsOfChoice));
    choice_.CalTextWidth();
    choice_.SetParentRect(place);
    if (found != subjects_.end()) choice_.ListIndex(static_cast<std::int32_t>(found - subjects_.begin()) + 1);
    choice_.Popup(false, true);
}

// Looks.

void Inspector::Layout(const tvok::tvok_Rect& area) {
    area_ = area;
    properties_.editors().Hide();
    const std::int32_t width = std::max(area.Right - area.Left - Margin, LineHeight + 1);
    const std::int32_t lineTop = area.Top + BannerHeight + Margin;
    form_.Place(line_, {area.Left, lineTop, width - LineHeight, LineHeight});
    form_.Place(arrow_, {area.Left + width - LineHeight, lineTop, LineHeight, LineHeight});
    tvok::tvok_Rect client;
    platform().GetClientRect(line_.hwnd(), client);
    line_.TextRight(client.Right); // which does not follow the size by itself
    const std::int32_t top = lineTop + LineHeight + Margin / 2;
    form_.Place(list_, {area.Left, top, width, std::max(area.bottom - Margin - top, 1)});
    list_.Refresh(); // brings the editor of the current row
}

void Inspector::Paint(tvok::host::Handle hDC) {
    DrawBackground(hDC, area_, fonts_, {}, {});
    const std::int32_t top = area_.Top; // where the controls begin, beside the page's own margin
    DrawLabel(hDC, {area_.Left, top + 6, area_.Right, top + 34}, "Inspector", fonts_.Title(),
              tvok::cWindowText);
    DrawLabel(hDC, {area_.Left, top + 32, area_.Right, top + 52},
              "F2 or Enter edits, F4 lists, Esc takes back", fonts_.Plain(), tvok::cWindowText);
}

void Inspector::Visible(bool show) {
    for (const tvok::host::Control* control :
         {static_cast<tvok::host::Control*>(&line_), static_cast<tvok::host::Control*>(&arrow_),
          static_cast<tvok::host::Control*>(&list_)})
        form_.ComponentOf(*control).Visible(show);
    if (!show) properties_.editors().Hide();
}

} // namespace gallery
