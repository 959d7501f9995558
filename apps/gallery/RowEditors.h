/// What a host gives to a `gList`: a text box and a check box that stand in its current row, and the keys
/// that start and end editing.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "apps/gallery/CheckBox.h"
#include "tvok/tvok.h"

namespace gallery {

/// The values behind the rows, by item key, as texts.
class EditedRows {
public:
    virtual ~EditedRows() = default;
    virtual bool IsTruth(const std::string& key) const = 0; ///< The check box edits it: "0" or "1".
    virtual std::string Text(const std::string& key) const = 0;
    virtual bool Take(const std::string& key, const std::string& text) = 0; ///< False: no such value.
    virtual void Drop(const std::string& key) = 0; ///< Open its popup, if it has one.
    virtual void Fold(std::int32_t row) = 0;
};

/// One text box and one check box serve every row. Both lie on the form in front of the list and come when
/// the current row's item has the editor flag; the focus stays in the list meanwhile.
///
/// In the list F2, Enter and anything typed start editing, F4 opens the popup, and Enter or Space fold a
/// group. In an editor Enter takes the text, Esc puts the old one back, both give the focus back to the list,
/// and the keys for rows go to the list. A text that is taken away the focus from is taken, too; one that is
/// no value is dropped.
class RowEditors {
public:
    /// The controls belong to the form, and the rows have to live as long as they do.
    RowEditors(tvok::Form& form, tvok::gList& list, tvok::TextBox& text, CheckBox& check, EditedRows& rows);
    RowEditors(const RowEditors&) = delete;
    RowEditors& operator=(const RowEditors&) = delete;

    void Hide();                         ///< Until the current row is painted again.
    void Reload(const std::string& key); ///< The value changed: what its editor shows is out of date.
    void Follow(const std::string& key); ///< The same, unless the user has typed something else since.
    void Take();                         ///< What was typed, as if the focus left the editor.
    void Forget();                       ///< No row is in the editor any more; hides it.
    void FocusList();
    bool FocusIsInList() const;                     ///< In it or in its strip of buttons.
    const std::string& key() const { return key_; } ///< Of the row in the editor, empty for none.

private:
    void Load(const std::string& key);
    bool Commit();
    void Begin();
    void Place(const std::string& key, const tvok::tvok_Rect& twips);
    void Show(const std::string& key);
    void HideEditor(tvok::host::Control& editor);
    void HearList();
    void HearEditors();
    void HearKeys();
    void HearWheel(std::shared_ptr<tvok::host::WindowHook>& hook, const tvok::host::Control& editor);
    void EditorKey(std::int16_t& code, std::int16_t& shift);
    bool ListKey(std::int32_t code);
    tvok::host::Control& EditorOf(const std::string& key) const;
    std::string Shown() const;

    tvok::Form& form_;
    tvok::gList& list_;
    tvok::TextBox& text_;
    CheckBox& check_;
    EditedRows& rows_;
    tvok::host::Handle window_; // the list's, also when that has ended and keys still come
    std::string key_;           // of the row whose value is in the editor
    std::string before_;        // that value as a text
    bool hiding_ = false;
    std::shared_ptr<tvok::host::WindowHook> keys_;
    std::array<std::shared_ptr<tvok::host::WindowHook>, 2> wheels_; // of the editors
};

} // namespace gallery
