#include "apps/gallery/design/Designer.h"

#include <algorithm>
#include <cstdlib>

#include "apps/gallery/design/marks.h"
#include "apps/gallery/design/types.h"

namespace gallery {

using tvok::host::Point;

namespace {

constexpr std::int32_t DragStart = 3; ///< A press that moves less is a click.

} // namespace

Designer::Designer(tvok::Desktop& desktop, tvok::Form& form) : desktop_(desktop), model_(form) {
    model_.changed = [this] { ContentChanged(); };
    form.events.Paint = [this] { PaintGrid(); };
    form.events.MouseDown = [this](std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y) {
        Press(button, shift, {x, y});
    };
    form.events.DblClick = [this](std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y) {
        Press(button, shift, {x, y});
    };
    form.events.MouseMove = [this](std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y) {
        MoveTo(button, shift, {x, y});
    };
    form.events.MouseUp = [this](std::int16_t button, std::int16_t, std::int32_t, std::int32_t) {
        if (button == LeftButton) Finish();
    };
    form.events.KeyDown = [this](std::int16_t& code, std::int16_t& shift) {
        if (Key(code, shift)) code = 0;
    };
}

// Selection.

void Designer::SetSelected(Names names) {
    if (selected_ == names) return;
    selected_ = std::move(names);
    ShowMarks();
    if (selectionChanged) selectionChanged();
}

void Designer::Select(Names names) {
    std::erase_if(names, [&](const std::string& name) { return form().Find(name) == nullptr; });
    SetSelected(std::move(names));
}

/// Controls may be gone, and marks have to follow those that moved.
void Designer::ContentChanged() {
    const std::size_t gone =
        std::erase_if(selected_, [&](const std::string& name) { return form().Find(name) == nullptr; });
    ShowMarks();
    if (contentChanged) contentChanged();
    if (gone > 0 && selectionChanged) selectionChanged();
}

tvok::Placement Designer::PlaceOf(const std::string& name) const {
    return form().PlacementOf(*form().Find(name));
}

/// The frontmost; empty for none.
std::string Designer::ControlAt(Point point) const {
    for (const std::string& name : form().Names())
        if (tvok::host::Platform::PtInRect(RectOf(PlaceOf(name)), point)) return name;
    return {};
}

bool Designer::GripUnder(Point point, Grip& grip, std::string& name) const {
    for (auto each = selected_.rbegin(); each != selected_.rend(); ++each) {
        const auto found = GripAt(PlaceOf(*each), point.x, point.y);
        if (!found) continue;
        grip = *found;
        name = *each;
        return true;
    }
    return false;
}

DesignedForm::Places Designer::Places() const {
    DesignedForm::Places places;
    for (const std::string& name : selected_) places.emplace_back(name, PlaceOf(name));
    return places;
}

// The mouse.

void Designer::Press(std::int16_t button, std::int16_t shift, Point point) {
    if (button != LeftButton || drag_ != Drag::None) return;
    pressed_ = point;
    if (GripUnder(point, grip_, lead_)) {
        drag_ = Drag::Resize;
        before_ = Places();
        model_.BeginDrag();
        return;
    }
    const bool add = (shift & ControlBit) != 0;
    const std::string name = ControlAt(point);
    if (!name.empty()) return PressControl(name, add);
    kept_ = add ? selected_ : Names{};
    Select(kept_);
    const bool onFrame = !tvok::host::Platform::PtInRect({0, 0, form().Width(), form().Height()}, point);
    if (!onFrame) drag_ = Drag::Band;
}

void Designer::PressControl(const std::string& name, bool add) {
    Names names = selected_;
    const bool was = std::erase(names, name) > 0;
    if (add && was) return Select(std::move(names));
    if (!add && !was) names.clear();
    names.push_back(name);
    Select(std::move(names));
    lead_ = name;
    before_ = Places();
    drag_ = Drag::Pressed;
}

void Designer::MoveTo(std::int16_t button, std::int16_t shift, Point point) {
    if (drag_ != Drag::None && (button & LeftButton) == 0) Finish(); // somebody else took the mouse away
    if (drag_ == Drag::None) {
        Grip grip;
        std::string name;
        const bool onGrip = GripUnder(point, grip, name);
        form().MousePointer(onGrip ? PointerOf(grip) : tvok::host::ccDefault);
        return;
    }
    if (drag_ == Drag::Pressed) {
        if (std::max(std::abs(point.x - pressed_.x), std::abs(point.y - pressed_.y)) < DragStart) return;
        drag_ = Drag::Move;
        model_.BeginDrag();
    }
    if (drag_ == Drag::Band) return SelectBand(point);
    Follow(shift, point);
}

/// Brings what is dragged to where the pointer says, each time from where it was at first.
void Designer::Follow(std::int16_t shift, Point point) {
    const auto lead = std::ranges::find(before_, lead_, &std::pair<std::string, tvok::Placement>::first);
    if (lead == before_.end()) return;
    const std::int32_t dx = point.x - pressed_.x, dy = point.y - pressed_.y;
    DesignedForm::Places places = before_;
    if (drag_ == Drag::Move) {
        const Point by = SnappedMove(lead->second, dx, dy, Snaps(shift));
        for (auto& [name, place] : places) place.left += by.x, place.top += by.y;
    } else {
        for (auto& [name, place] : places) place = Resized(place, grip_, dx, dy, Snaps(shift));
    }
    model_.Place(places);
}

void Designer::SelectBand(Point point) {
    const tvok::tvok_Rect band = Between(pressed_, point);
    extra_ = Outline(band);
    Names names = kept_;
    for (const std::string& name : form().Names())
        if (Touches(band, PlaceOf(name)) && std::ranges::find(names, name) == names.end())
            names.push_back(name);
    selected_ == names ? ShowMarks() : SetSelected(std::move(names));
}

void Designer::Finish() {
    const Drag ended = std::exchange(drag_, Drag::None);
    extra_.clear();
    if (ended == Drag::Band) ShowMarks();
    model_.EndDrag();
}

void Designer::Cancel() {
    const Drag ended = std::exchange(drag_, Drag::None);
    extra_.clear();
    model_.CancelDrag();
    if (ended == Drag::None || ended == Drag::Pressed) return Select({});
    if (ended == Drag::Band) Select(kept_);
    ShowMarks();
}

// The keyboard.

bool Designer::Key(std::int16_t code, std::int16_t shift) {
    if (code == tvok::host::VK_ESCAPE) {
        Cancel();
        return true;
    }
    if (drag_ != Drag::None || (shift & AltBit) != 0) return false;
    if (code == tvok::host::VK_DELETE && shift == 0) {
        DeleteSelected();
        return true;
    }
    if ((code == tvok::host::VK_PRIOR || code == tvok::host::VK_NEXT) && shift == 0) {
        ReorderSelected(code == tvok::host::VK_PRIOR);
        return true;
    }
    return ArrowKey(code, shift) || (shift == ControlBit && CommandKey(code));
}

bool Designer::CommandKey(std::int16_t code) {
    switch (code) {
    case 'A': Select(form().Names()); return true;
    case 'C': CopySelected(); return true;
    case 'X':
        CopySelected();
        DeleteSelected();
        return true;
    case 'V': Paste(); return true;
    case 'Z': Undo(); return true;
    case 'Y': Redo(); return true;
    default: return false;
    }
}

bool Designer::ArrowKey(std::int16_t code, std::int16_t shift) {
    using namespace tvok::host;
    const std::int32_t step = (shift & ControlBit) != 0 ? GridStep : 1;
    const std::int32_t dx = code == VK_LEFT ? -step : code == VK_RIGHT ? step : 0;
    const std::int32_t dy = code == VK_UP ? -step : code == VK_DOWN ? step : 0;
    if (dx == 0 && dy == 0) return false;
    DesignedForm::Places places = Places();
    for (auto& [name, place] : places) {
        if ((shift & ShiftBit) != 0) {
            place = Resized(place, {1, 1}, dx, dy, false);
        } else {
            place.left += dx, place.top += dy;
        }
    }
    model_.Place(places);
    return true;
}

// Commands.

void Designer::Undo() {
    Finish();
    if (model_.CanUndo()) Select(model_.Undo());
}

void Designer::Redo() {
    Finish();
    if (model_.CanRedo()) Select(model_.Redo());
}

void Designer::DeleteSelected() {
    if (!selected_.empty()) model_.Delete(Names(selected_)); // which changes while they go
}

/// Each changes places with the one before or behind it, unless that is selected and could not.
void Designer::ReorderSelected(bool forward) {
    Names order = form().Names();
    if (!forward) std::ranges::reverse(order);
    const auto isSelected = [&](const std::string& name) {
        return std::ranges::find(selected_, name) != selected_.end();
    };
    model_.BeginDrag(); // one step
    for (std::size_t i = 1; i < order.size(); ++i) {
        if (!isSelected(order[i]) || isSelected(order[i - 1])) continue;
        std::swap(order[i], order[i - 1]);
        model_.Reorder(order[i - 1], forward ? i - 1 : order.size() - i);
    }
    model_.EndDrag();
}

void Designer::CopySelected() const {
    if (!selected_.empty()) desktop_.ClipboardText(model_.Copy(selected_));
}

void Designer::Paste() {
    try {
        Select(model_.Paste(desktop_.ClipboardText(), GridStep));
    } catch (const tvok::Error& error) {
        if (failed) failed(error.what());
    }
}

void Designer::Add(const std::string& type, Point place) {
    const tvok::Placement size = UsualSize(type);
    Select({model_.Add(type, {Snapped(place.x), Snapped(place.y), size.width, size.height})});
}

/// Goes down the form by steps that show what is below.
void Designer::Add(const std::string& type) {
    Point place{GridStep, GridStep};
    const auto taken = [&] {
        return std::ranges::any_of(form().Names(), [&](const std::string& name) {
            const tvok::Placement other = PlaceOf(name);
            return other.left == place.x && other.top == place.y;
        });
    };
    while (taken()) place = {place.x + 2 * GridStep, place.y + 2 * GridStep};
    Add(type, place);
}

void Designer::Preview(const std::string& type, Point place) {
    extra_.clear();
    if (!type.empty()) {
        const tvok::Placement size = UsualSize(type);
        const std::int32_t left = Snapped(place.x), top = Snapped(place.y);
        extra_ = Outline({left, top, left + size.width, top + size.height});
    }
    ShowMarks();
}

// Looks.

void Designer::ShowMarks() {
    std::vector<tvok::FormMark> marks;
    for (const std::string& name : selected_) {
        const std::vector<tvok::FormMark> added = SelectionMarks(PlaceOf(name), name == selected_.back());
        marks.insert(marks.end(), added.begin(), added.end());
    }
    marks.insert(marks.end(), extra_.begin(), extra_.end());
    form().Marks(marks);
}

void Designer::PaintGrid() const {
    DrawGrid(form().hDC(), form().Width(), form().Height());
}

} // namespace gallery
