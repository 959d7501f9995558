/// The mouse and the keyboard on a form that is being designed: what is selected, drags, handles, the grid.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "apps/gallery/design/DesignedForm.h"
#include "apps/gallery/design/geometry.h"
#include "tvok/tvok.h"

namespace gallery {

/// A click selects, with Ctrl it adds or takes away; one beside the controls, or on the form's frame, selects
/// the form itself. A drag moves what is selected, one of a handle resizes it, one beside the controls
/// selects what it touches. Both keep to the grid, unless Alt or Shift is held. The arrow keys move by a
/// pixel, with Ctrl by a step of the grid, and with Shift they resize. Page Up brings what is selected one
/// place forward, that is earlier in the order of Tab and closer to the front, and Page Down one place back.
/// Del deletes; Ctrl with A, C, X, V, Z and Y selects all, copies, cuts, pastes, takes back and does again.
/// Esc ends a drag as if it had not been, and then selects the form.
class Designer {
public:
    using Names = DesignedForm::Names;

    std::function<void()> selectionChanged;
    std::function<void()> contentChanged; ///< As `DesignedForm::changed`, with the selection set right.
    std::function<void(const std::string&)> failed; ///< A text for the user: what could not be done.

    /// Takes over the events of the form, and has to live until that has ended. See `DesignedForm`.
    Designer(tvok::Desktop& desktop, tvok::Form& form);
    Designer(const Designer&) = delete;
    Designer& operator=(const Designer&) = delete;

    DesignedForm& model() { return model_; }
    tvok::Form& form() const { return model_.form(); }

    /// Names of controls, the one that was selected last at the end: others follow it. None: the form.
    const Names& Selected() const { return selected_; }
    void Select(Names names); ///< Those that the form has.

    void Undo();
    void Redo();
    void DeleteSelected();
    /// By one place in the order of Tab: forward is earlier and closer to the front.
    void ReorderSelected(bool forward);
    void CopySelected() const;
    void Paste();
    /// Adds a control of this type in its usual size and selects it: with its left top at the grid's point
    /// next to this one, or where there is room.
    void Add(const std::string& type, tvok::host::Point place);
    void Add(const std::string& type);

    /// Shows what a control of this type would cover there; an empty type: nothing.
    void Preview(const std::string& type, tvok::host::Point place);

private:
    enum class Drag { None, Pressed, Move, Resize, Band };

    void Press(std::int16_t button, std::int16_t shift, tvok::host::Point point);
    void PressControl(const std::string& name, bool add);
    void MoveTo(std::int16_t button, std::int16_t shift, tvok::host::Point point);
    void Follow(std::int16_t shift, tvok::host::Point point);
    void SelectBand(tvok::host::Point point);
    void Finish();
    void Cancel();
    bool Key(std::int16_t code, std::int16_t shift);
    bool CommandKey(std::int16_t code);
    bool ArrowKey(std::int16_t code, std::int16_t shift);

    tvok::Placement PlaceOf(const std::string& name) const;
    std::string ControlAt(tvok::host::Point point) const;
    bool GripUnder(tvok::host::Point point, Grip& grip, std::string& name) const;
    DesignedForm::Places Places() const;
    void SetSelected(Names names);
    void ContentChanged();
    void ShowMarks();
    void PaintGrid() const;

    tvok::Desktop& desktop_;
    DesignedForm model_;
    Names selected_;
    Drag drag_ = Drag::None;
    tvok::host::Point pressed_;
    std::string lead_;                  ///< The control that was pressed, or whose handle was.
    Grip grip_;                         ///< That was pressed.
    DesignedForm::Places before_;       ///< Of what is dragged, when the button went down.
    Names kept_;                        ///< What a band adds to.
    std::vector<tvok::FormMark> extra_; ///< The band, or what is to be added.
};

} // namespace gallery
