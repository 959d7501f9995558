/// What stands around a page in the gallery's window: panes that show its controls' properties and events,
/// and what a page and these say to each other.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "apps/gallery/properties.h"
#include "tvok/tvok.h"

namespace gallery {

/// A part of the window beside the page. It puts its controls on the form when it is made, under names that
/// begin with its own and a point, and lives as long as the form.
class Pane {
public:
    virtual ~Pane() = default;
    virtual void Layout(const tvok::tvok_Rect& area) = 0; ///< Places the controls in this part of the form.
    virtual void Paint(tvok::host::Handle hDC) = 0;       ///< All of that part. Comes only while it is shown.
    virtual void Visible(bool show) = 0;                  ///< Shows or hides the controls. `Layout` follows.
};

/// A control, or anything else with properties, that the inspector can show.
struct Subject {
    std::string name{};                     ///< Unique on its page; what the user chooses it by.
    tvok::host::Control* control = nullptr; ///< Null for what is no control.
    tvok::Form* form = nullptr;             ///< That the control stands on: its place can be edited then.
    /// The properties, where they are others than those of the control's type. What they refer to has to live
    /// until the page says `SubjectsChanged`.
    std::function<std::vector<PropertyGroup>()> properties{};
};

/// A property that the user gave another value in the inspector.
struct PropertyChange {
    std::string subject;  ///< Its name.
    std::string property; ///< "ItemHeight", "Font.Size"; "Left", "Top", "Width" and "Height" for the place.
    tvok::Variant before;
    tvok::Variant after;
};

/// The window as a page sees it. Where no panes are, all of it does nothing.
class Workbench {
public:
    virtual ~Workbench() = default;

    /// Shows this subject of the page in the inspector; nothing for a name that it does not have, as "". The
    /// page's `Selected` does not follow.
    virtual void Select(const std::string& name) = 0;
    virtual std::string Selected() const = 0; ///< Empty where nothing is.

    /// Something changed values: the inspector shows them at once. It also looks by itself, but later.
    virtual void UpdateInspector() = 0;
    /// The page added, removed or renamed controls or subjects. To be called before one that was shown is
    /// freed, or in the same event as `Form::Remove`: the inspector drops what is not there any more, and the
    /// event log listens to what is new. Controls that are on the form now and are nobody else's belong to
    /// the page, that is they are shown and hidden with it.
    virtual void SubjectsChanged() = 0;

    /// Notes in the event log what a form that is no part of the page raises, under this name, and what its
    /// controls raise, as "name.control". Until `ForgetForm`, which may come from within such an event.
    virtual void WatchForm(tvok::Form& form, const std::string& name) = 0;
    virtual void ForgetForm(const tvok::Form& form) = 0; ///< Nothing for one that is not watched.
};

} // namespace gallery
