#include "apps/gallery/design/DesignedForm.h"

#include <algorithm>

namespace gallery {

namespace {

constexpr std::int32_t MostPlace = 32767, MostSide = 8192; // of a form file

tvok::Placement Limited(const tvok::Placement& place) {
    return {std::clamp(place.left, -MostPlace, MostPlace), std::clamp(place.top, -MostPlace, MostPlace),
            std::clamp(place.width, 0, MostPlace), std::clamp(place.height, 0, MostPlace)};
}

/// What a list writes and does not take back from a bag: whether lines go along its border, whose key is read
/// by another spelling, and the band of a property list, which is always a loaded one's.
template<class List>
void SetAgain(tvok::host::Control& control, const tvok::FormFileControl& content) {
    auto* list = dynamic_cast<List*>(&control);
    if (list == nullptr) return;
    tvok::host::MemoryBag settings = content.settings;
    const bool lines = tvok::host::Read(settings, "GridLineOnBorder", false);
    const std::int32_t band = tvok::host::Read(settings, "HeadWidthEx", 0);
    // Some members throw at design time, after the property has its new value.
    if (list->GridlineOnBorder() != lines) tvok::quietly([&] { list->GridlineOnBorder(lines); });
    if (list->HeadWidthEx() != band) tvok::quietly([&] { list->HeadWidthEx(band); });
}

} // namespace

DesignedForm::DesignedForm(tvok::Form& form) : form_(form) {
    if (form_.Names().empty()) form_.UserMode(false);
    now_ = {form_.Caption(), form_.Width(), form_.Height(), {}};
    for (const std::string& name : form_.Names()) now_.controls.push_back(Read(*form_.Find(name)));
    history_.push_back(now_);
}

tvok::FormFile DesignedForm::Content() const {
    tvok::FormFile content{now_.caption, now_.width, now_.height, {}};
    for (const Control& control : now_.controls) content.controls.push_back(*control);
    return content;
}

std::string DesignedForm::Text() const {
    return tvok::FormFileText(Content());
}

bool DesignedForm::Same(const State& a, const State& b) {
    const auto same = [](const Control& one, const Control& other) { return one == other || *one == *other; };
    return a.caption == b.caption && a.width == b.width && a.height == b.height &&
           std::ranges::equal(a.controls, b.controls, same);
}

std::size_t DesignedForm::PlaceOf(const std::string& name) const {
    const auto found = std::ranges::find(now_.controls, name, [](const Control& each) { return each->name; });
    return static_cast<std::size_t>(found - now_.controls.begin());
}

/// The wanted name where it is free, else the type and the first number that makes one.
std::string DesignedForm::FreeName(const std::string& type, const std::string& wanted) const {
    if (!wanted.empty() && PlaceOf(wanted) == now_.controls.size()) return wanted;
    for (std::size_t number = 1;; ++number) {
        std::string name = type + std::to_string(number);
        if (PlaceOf(name) == now_.controls.size()) return name;
    }
}

DesignedForm::Control DesignedForm::Read(tvok::host::Control& control) const {
    return std::make_shared<const tvok::FormFileControl>(form_.ContentOf(control));
}

/// Reads a control anew. False where it is what it was.
bool DesignedForm::Update(const std::string& name) {
    const std::size_t place = PlaceOf(name);
    if (place == now_.controls.size()) return false;
    Control content = Read(*form_.Find(name));
    if (*content == *now_.controls[place]) return false;
    now_.controls[place] = std::move(content);
    return true;
}

void DesignedForm::Told() const {
    if (changed) changed();
}

/// Ends a step, unless it changed nothing. Within a drag it goes on.
void DesignedForm::Commit() {
    if (!dragging_ && !Same(now_, history_[position_])) {
        history_.resize(position_ + 1);
        history_.push_back(now_);
        ++position_;
    }
    Told();
}

// Edits.

std::string DesignedForm::Add(const std::string& type, const tvok::Placement& place) {
    std::string name = FreeName(type);
    form_.Adopt(name, Limited(place), tvok::MakeControl(type), nullptr);
    now_.controls.push_back(Read(*form_.Find(name)));
    Commit();
    return name;
}

void DesignedForm::Delete(const Names& names) {
    for (const std::string& name : names) {
        const std::size_t place = PlaceOf(name);
        if (place == now_.controls.size()) continue;
        form_.Remove(*form_.Find(name));
        now_.controls.erase(now_.controls.begin() + static_cast<std::ptrdiff_t>(place));
    }
    Commit();
}

void DesignedForm::Place(const Places& places) {
    bool any = false;
    for (const auto& [name, place] : places) {
        if (tvok::host::Control* control = form_.Find(name)) form_.Place(*control, Limited(place));
        any |= Update(name);
    }
    if (any) Commit();
}

bool DesignedForm::Rename(const std::string& name, const std::string& wanted) {
    const std::size_t place = PlaceOf(name);
    if (wanted.empty() || place == now_.controls.size() || PlaceOf(wanted) != now_.controls.size())
        return name == wanted && !wanted.empty();
    State target = now_;
    tvok::FormFileControl renamed = *target.controls[place];
    renamed.name = wanted;
    target.controls[place] = std::make_shared<const tvok::FormFileControl>(std::move(renamed));
    Show(target);
    Commit();
    return true;
}

void DesignedForm::Reorder(const std::string& name, std::size_t place) {
    const std::size_t from = PlaceOf(name);
    if (from == now_.controls.size()) return;
    State target = now_;
    const Control moved = target.controls[from];
    target.controls.erase(target.controls.begin() + static_cast<std::ptrdiff_t>(from));
    place = std::min(place, target.controls.size());
    target.controls.insert(target.controls.begin() + static_cast<std::ptrdiff_t>(place), moved);
    Show(target);
    Commit();
}

bool DesignedForm::Take(const std::string& name) {
    const bool kept = Update(name);
    if (kept) Commit();
    return kept;
}

void DesignedForm::TakeForm() {
    now_.caption = form_.Caption();
    Size(form_.Width(), form_.Height());
}

void DesignedForm::Caption(const std::string& text) {
    form_.Caption(text);
    now_.caption = text;
    Commit();
}

void DesignedForm::Size(std::int32_t width, std::int32_t height) {
    now_.width = std::clamp(width, 1, MostSide);
    now_.height = std::clamp(height, 1, MostSide);
    form_.Size(now_.width, now_.height);
    Commit();
}

void DesignedForm::Replace(const tvok::FormFile& content) {
    Show({content.caption,
          std::clamp(content.width, 1, MostSide),
          std::clamp(content.height, 1, MostSide),
          {}});
    for (const tvok::FormFileControl& control : content.controls) Insert(form_.Add(control));
    Commit();
}

/// A control that is as the one whose content this was. One from a form file may be another.
tvok::host::Control& DesignedForm::Make(const tvok::FormFileControl& content) {
    tvok::host::Control& made = form_.Add(content);
    SetAgain<tvok::qRoster>(made, content);
    SetAgain<tvok::gList>(made, content);
    SetAgain<tvok::xPopup>(made, content);
    return made;
}

/// As the last one.
void DesignedForm::Insert(tvok::host::Control& made) {
    now_.controls.push_back(Read(made)); // it may keep to other values than those wanted
}

std::string DesignedForm::Copy(const Names& names) const {
    tvok::FormFile part{now_.caption, now_.width, now_.height, {}};
    for (const Control& control : now_.controls)
        if (std::ranges::find(names, control->name) != names.end()) part.controls.push_back(*control);
    return tvok::FormFileText(part);
}

DesignedForm::Names DesignedForm::Paste(std::string_view text, std::int32_t offset) {
    tvok::FormFile part = tvok::ParseFormFile(text, "clipboard");
    Names names;
    for (tvok::FormFileControl& control : part.controls) {
        control.name = FreeName(control.type, control.name);
        control.place.left += offset;
        control.place.top += offset;
        control.place = Limited(control.place);
        Insert(Make(control));
        names.push_back(control.name);
    }
    Commit();
    return names;
}

// Drags.

void DesignedForm::BeginDrag() {
    EndDrag();
    dragging_ = true;
}

void DesignedForm::EndDrag() {
    if (std::exchange(dragging_, false)) Commit();
}

void DesignedForm::CancelDrag() {
    if (!std::exchange(dragging_, false)) return;
    Show(history_[position_]);
    Told();
}

// Steps.

DesignedForm::Names DesignedForm::Undo() {
    EndDrag();
    if (!CanUndo()) return {};
    Names names = Show(history_[--position_]);
    Told();
    return names;
}

DesignedForm::Names DesignedForm::Redo() {
    EndDrag();
    if (!CanRedo()) return {};
    Names names = Show(history_[++position_]);
    Told();
    return names;
}

/// Makes the form what `target` says, with as many of its controls as can stay.
DesignedForm::Names DesignedForm::Show(const State& target) {
    const State wanted = target; // which may be a step, and these may be dropped
    const auto isWanted = [&](const std::string& name) {
        return std::ranges::any_of(wanted.controls, [&](const Control& each) { return each->name == name; });
    };
    for (const std::string& name : form_.Names())
        if (!isWanted(name)) form_.Remove(*form_.Find(name));
    Names others;
    for (std::size_t i = 0; i < wanted.controls.size(); ++i) {
        const Control& control = wanted.controls[i];
        if (std::ranges::find(now_.controls, control) == now_.controls.end()) {
            Become(control);
            others.push_back(control->name);
        }
        if (form_.Names()[i] != control->name) form_.Reorder(*form_.Find(control->name), i);
    }
    if (form_.Caption() != wanted.caption) form_.Caption(wanted.caption);
    form_.Size(wanted.width, wanted.height);
    now_ = wanted;
    return others;
}

/// A control that only has to be moved is moved; else it is made anew.
void DesignedForm::Become(const Control& target) {
    if (tvok::host::Control* control = form_.Find(target->name)) {
        if (tvok::ControlTypeName(*control) == target->type) {
            form_.Place(*control, target->place);
            if (form_.ContentOf(*control) == *target) return;
        }
        form_.Remove(*control);
    }
    Make(*target);
}

} // namespace gallery
