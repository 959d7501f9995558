/// The pane at the right of the window: the properties of one of the page's controls, to look at and to edit.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "apps/gallery/PropertyList.h"
#include "apps/gallery/Workbench.h"
#include "apps/gallery/drawing.h"

namespace gallery {

/// A line names the selected subject and its type. A press on it, or F4, Enter, Space or an arrow in it,
/// opens the list of all subjects to choose another one. Below are the properties, edited as in every
/// `PropertyList`.
class Inspector : public Pane {
public:
    std::function<void(const std::string&)> chosen;     ///< The user chose another subject in the pane.
    std::function<void(const PropertyChange&)> changed; ///< As `Page::PropertyChanged`.

    Inspector(tvok::Desktop& desktop, tvok::Form& form);

    void Layout(const tvok::tvok_Rect& area) override;
    void Paint(tvok::host::Handle hDC) override;
    void Visible(bool show) override;

    /// What there is to choose from, on the page with this name. The selected one stays where it is among
    /// them.
    void Offer(const std::string& page, std::vector<Subject> subjects);
    void
    Select(const std::string& name); ///< Raises nothing. A name that is not offered: nothing is selected.
    const std::string& Selected() const { return selected_; }
    const std::vector<Subject>& subjects() const { return subjects_; }
    void Update();     ///< Shows values that something else has changed.
    void Take();       ///< What is being typed becomes the property's value.
    void OpenChoice(); ///< The list of the subjects.
    void ThemeChanged();

    PropertyList& properties() { return properties_; }
    tvok::gList& list() { return list_; }
    tvok::iLabel& line() { return line_; }
    tvok::xPopup& choice() { return choice_; }

private:
    const Subject* Find(const std::string& name) const;
    std::string LineOf(const Subject& subject) const; ///< "lists.details: qRoster".
    void SetUpLine();
    void SetUpList();
    void FillChoice();
    void Show(bool controlsAreGone);

    tvok::Form& form_;
    Fonts fonts_;
    tvok::tvok_Rect area_;
    tvok::iLabel& line_; // in the order of Tab
    tvok::xbutton& arrow_;
    tvok::gList& list_;
    tvok::TextBox& text_;
    CheckBox& check_;
    tvok::xPopup& choice_;
    PropertyList properties_;
    std::string page_;
    std::vector<Subject> subjects_;
    std::string selected_;
    tvok::host::Control* shown_ = nullptr; // the selected one's control; only to compare
};

} // namespace gallery
