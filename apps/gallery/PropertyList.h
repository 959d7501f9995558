/// The properties of live controls in a `gList`: its rows show them, and a change in a row is at once one of
/// the control.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "apps/gallery/RowEditors.h"
#include "apps/gallery/properties.h"
#include "tvok/tvok.h"

namespace gallery {

/// The controls that it works with. They belong to the form.
struct PropertyListParts {
    tvok::gList& list;
    tvok::TextBox& text;
    CheckBox& check;
    tvok::xPopup& popup; ///< For what the keyboard opens; the mouse opens the list's own.
};

/// An item's key is that of its control, a point and the name of the property: "label.Caption".
class PropertyList : private EditedRows {
public:
    std::function<void()> changed; ///< After a property of a control took another value.
    /// The user is done with a change: the item's key, the value before and the one now. Of values that a
    /// popup tries out only the last one comes, when it closes. The handler may clear the list.
    std::function<void(const std::string&, const tvok::Variant&, const tvok::Variant&)> edited;

    PropertyList(tvok::Form& form, const PropertyListParts& parts);

    void Add(PropertyGroup group);
    void Build(); ///< Makes the rows, after the last `Add`.
    /// Drops all groups and rows. What is being typed is taken first, unless the controls are gone.
    void Clear(bool controlsAreGone = false);

    bool IsGrouped() const { return list_.ListMode() == 1; }
    void Group(bool on); ///< Without groups a caption also names the control.
    void Sort(bool on);  ///< Off: in the order of adding, as long as none was restored.

    /// The whole list as one text: its settings, its groups as they are folded, and the values.
    std::string Save();
    void Restore(const std::string& text); ///< The controls take their values back, too.

    /// Gives a property a value. False where it does not take it; it has the old one then.
    bool Set(const std::string& key, const tvok::Variant& value);
    void Update(); ///< Shows values that something else has changed.
    const Property* Find(const std::string& key) const;
    const std::vector<PropertyGroup>& groups() const { return groups_; }
    RowEditors& editors() { return editors_; }

private:
    // The rows, for the editors.
    bool IsTruth(const std::string& key) const override;
    std::string Text(const std::string& key) const override;
    bool Take(const std::string& key, const std::string& text) override;
    void Drop(const std::string& key) override;
    void Fold(std::int32_t row) override;

    void HearList();
    void HearItem(tvok::elistdata& item, std::int32_t action);
    void ShowValue(tvok::elistdata& item) const;
    void DrawTruth(std::int32_t row, std::int32_t hDC, const tvok::tvok_Rect& rect) const;
    void Report(const std::string& key, const tvok::Variant& before);
    void LeaveStrip();
    void Step(const std::string& key, bool up);
    void SetCaptions();
    bool FillPopup(const Property& property, const tvok::Variant& value);
    void HearPopup(const std::string& key, const tvok::qrosterdata& chosen, bool canceled);

    tvok::gList& list_;
    tvok::xPopup& popup_;
    ColorNames colors_;
    std::vector<PropertyGroup> groups_;
    RowEditors editors_;
    bool popupHasMouse_ = false;
    struct Tried {
        std::string key;
        tvok::Variant before;
    };
    std::optional<Tried> tried_; // while a popup is open, and it tried a value
};

} // namespace gallery
