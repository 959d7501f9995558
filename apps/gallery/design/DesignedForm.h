/// A form that is being designed: what can be done to it, step by step, and taken back without limit. It
/// knows nothing of the mouse or of a selection.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tvok/tvok.h"

namespace gallery {

/// Works on a form at design time, whose controls nobody else adds or removes meanwhile. The form always
/// shows what `Content` gives. Each edit is one step, save within a drag; one that changes nothing is none.
class DesignedForm {
public:
    using Names = std::vector<std::string>;
    using Places = std::vector<std::pair<std::string, tvok::Placement>>;

    /// After each change, also one of an undo or within a drag. Controls of the form may be others then.
    std::function<void()> changed;

    /// Sets design time, unless the form holds controls: it has to be at design time then. What it holds is
    /// the beginning.
    explicit DesignedForm(tvok::Form& form);

    tvok::Form& form() const { return form_; }
    tvok::FormFile Content() const; ///< What a form file of it holds.
    std::string Text() const;       ///< The same as the text of a form file.

    // Edits. Names that the form does not have are passed over.

    /// Gives the new control's name: its type and the first number that is free. Throws `tvok::ObjectError`
    /// where the type is not known.
    std::string Add(const std::string& type, const tvok::Placement& place);
    void Delete(const Names& names);
    void Place(const Places& places); ///< A control may keep to a size of its own.
    /// False, and nothing happens, where the new name is empty or another control has it.
    bool Rename(const std::string& name, const std::string& wanted);
    void Reorder(const std::string& name, std::size_t place); ///< In the order of Tab, from 0.
    /// Takes over what somebody else has changed of a control: its properties, or its place. False where
    /// nothing is changed that a form file keeps.
    bool Take(const std::string& name);
    void TakeForm(); ///< The same of the form's caption and size, as one step.
    void Caption(const std::string& text);
    void Size(std::int32_t width, std::int32_t height); ///< Kept within what a form file takes.
    void Replace(const tvok::FormFile& content);        ///< By all of another form.

    /// These controls as the text of a form file, and such a text's controls added, moved by `offset` pixels,
    /// under names that are free; gives the names. Throws `tvok::FileError` for another text.
    std::string Copy(const Names& names) const;
    Names Paste(std::string_view text, std::int32_t offset);

    // A drag: all that is done between its two ends is one step.

    void BeginDrag();
    void EndDrag();
    void CancelDrag(); ///< Everything is as it was when it began.
    bool IsDragging() const { return dragging_; }

    // Steps. They end a drag first. Each gives the names of the controls that are others now.

    bool CanUndo() const { return position_ > 0; }
    bool CanRedo() const { return position_ + 1 < history_.size(); }
    Names Undo();
    Names Redo();

private:
    using Control = std::shared_ptr<const tvok::FormFileControl>;
    /// Steps share the controls that they leave as they are.
    struct State {
        std::string caption{};
        std::int32_t width = 0;
        std::int32_t height = 0;
        std::vector<Control> controls{};
    };
    static bool Same(const State& a, const State& b);

    std::size_t PlaceOf(const std::string& name) const; ///< The number of controls where it is not here.
    std::string FreeName(const std::string& type, const std::string& wanted = {}) const;
    Control Read(tvok::host::Control& control) const;
    bool Update(const std::string& name);
    tvok::host::Control& Make(const tvok::FormFileControl& content);
    void Insert(tvok::host::Control& made);
    void Commit();
    Names Show(const State& target);
    void Become(const Control& target);
    void Told() const;

    tvok::Form& form_;
    State now_;
    std::vector<State> history_;
    std::size_t position_ = 0; ///< Of what the form was after the last step, in the history.
    bool dragging_ = false;
};

} // namespace gallery
