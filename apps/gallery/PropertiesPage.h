/// Page "properties": a property list over live controls.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "apps/gallery/CheckBox.h"
#include "apps/gallery/Hands.h"
#include "apps/gallery/Page.h"
#include "apps/gallery/PropertyList.h"
#include "apps/gallery/SwitchPanel.h"
#include "apps/gallery/drawing.h"

namespace gallery {

/// At the left the properties of the controls at the right, and of the property list itself. A change in a
/// row is at once one of the control; switches group, sort, save and restore the list.
class PropertiesPage : public Page {
public:
    enum Switch : std::size_t { Groups, Order, Save, Restore };

    PropertiesPage(tvok::Desktop& desktop, tvok::Form& form);
    void Layout(const tvok::tvok_Rect& area) override;
    void Paint(tvok::host::Handle hDC) override;
    void ThemeChanged() override;
    std::vector<Scene> Scenes() override;

    tvok::gList& list() { return list_; }
    tvok::TextBox& text() { return text_; }
    CheckBox& check() { return check_; }
    PropertyList& properties() { return properties_; }
    SwitchPanel& switches() { return switches_; }
    tvok::qRoster& roster() { return roster_; }
    tvok::qRosterex& large() { return large_; }
    tvok::pcols& bar() { return bar_; }
    tvok::xbutton& strip() { return strip_; }
    tvok::iLabel& label() { return label_; }

private:
    struct Places;

    void SetUpList();
    void SetUpSwitches();
    void FillRoster();
    void FillLarge();
    void FillBar();
    void SetUpLabel();
    void PlaceControls(); ///< Some properties change a control's size.

    // For the scenes.
    std::int32_t RowOf(const std::string& key) const;
    void ClickRow(const std::string& key);
    void Key(std::int32_t code);
    void Type(const std::string& text);
    void PressStrip(std::int32_t button);
    void Release();
    void DragIntoPopup(const std::string& key, std::int32_t button);
    void FoldAndStep();

    tvok::Desktop& desktop_;
    tvok::Form& form_;
    Hands hands_;
    Fonts fonts_;
    tvok::tvok_Rect area_;
    std::int32_t icons_;
    tvok::gList& list_; // in the order of Tab
    tvok::TextBox& text_;
    CheckBox& check_;
    SwitchPanel switches_;
    tvok::qRoster& roster_;
    tvok::qRosterex& large_;
    tvok::pcols& bar_;
    tvok::iLabel& label_;
    tvok::xbutton& strip_;
    PropertyList properties_;
    std::string saved_;
    std::int32_t clicks_ = 0;
};

} // namespace gallery
