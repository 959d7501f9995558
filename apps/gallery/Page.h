/// One page of the gallery: some controls in a part of the gallery's form.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "apps/gallery/Workbench.h"
#include "apps/gallery/icons.h"
#include "tvok/tvok.h"

namespace gallery {

/// A state of a page that is worth a picture: what a user would do to come there, and what to call it.
struct Scene {
    std::string name; ///< Empty: the page as it comes up.
    std::function<void()> act;
    bool popups = false; ///< Something is open above the form: the picture shows that, too.
};

/// It puts its controls on the form when it is made, under names that no other page uses, and lives as long
/// as the form. The gallery shows and hides the controls as the user goes from page to page.
class Page {
public:
    virtual ~Page() = default;
    /// Places the controls in this part of the form: before the page is first shown, and with each new size.
    virtual void Layout(const tvok::tvok_Rect& area) = 0;
    /// Paints the whole area around the controls. Comes only while the page is shown.
    virtual void Paint(tvok::host::Handle hDC) = 0;
    /// A live page gets `Turn` some forty times a second while it is shown, with the time since the last one.
    virtual bool IsLive() const { return false; }
    virtual void Turn(std::chrono::milliseconds /*elapsed*/) {}
    /// The theme changed: for colours that the page had translated or mixed and gave to its controls.
    virtual void ThemeChanged() {}

    // The workbench around the page. It calls these only while the page is shown, save `Attach`.

    /// Comes once, after the page was made and before it is first shown, and only where there are panes. The
    /// workbench outlives the page. By it the page says what the inspector shows, and that its controls are
    /// others now.
    virtual void Attach(Workbench& /*bench*/) {}
    /// What the inspector offers to choose from. Without a list of its own, the page's controls on the
    /// gallery's form. Asked after `Attach`, when the page is shown again, and after
    /// `Workbench::SubjectsChanged`.
    virtual std::optional<std::vector<Subject>> Subjects() { return std::nullopt; }
    /// The user chose this subject: in the inspector, or by giving its control the focus.
    virtual void Selected(const std::string& /*name*/) {}
    /// After the user changed a property in the inspector, once the control has it. While a popup tries
    /// values out the control follows, but this comes once, when it closes, with the value from before it
    /// opened, and not at all where that is back. Whoever puts `before` back (an undo) calls
    /// `Workbench::UpdateInspector`.
    virtual void PropertyChanged(const PropertyChange& /*change*/) {}

    /// In order; each starts from the state that the one before left.
    virtual std::vector<Scene> Scenes() = 0;
};

struct PageEntry {
    const char* name;  ///< For `--page` and the names of the pictures.
    const char* title; ///< In the gallery's list of pages.
    Icon icon;
    const char* description;
    std::unique_ptr<Page> (*make)(tvok::Desktop& desktop, tvok::Form& form);
};

const std::vector<PageEntry>& Pages();

/// Null where there is no page of this name.
const PageEntry* FindPage(const std::string& name);

} // namespace gallery
