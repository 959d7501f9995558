/// The pane at the right of the window: the properties of one of the page's controls, to look at and to edit.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "apps/gallery/PropertyList.h"
#include "apps/gallery/Workbench.h"
#include "apps/gallery/drawing.h"

namespace gallery {

class Inspector : public Pane {
public:
    std::function<void(const std::string&)> chosen;     ///< The user chose another subject in the pane.
    std::function<void(const PropertyChange&)> changed; ///< As `Page::PropertyChanged`.

    Inspector(tvok::Desktop& desktop, tvok::Form& form);

    void Layout(const tvok::tvok_Rect& area) override;
    void Paint(tvok::host::Handle hDC) override;
    void Visible(bool show) override;

    /// The page has this name in the pane's line. What was selected stays so where it is still there.
    void Offer(const std::string& page, std::vector<Subject> subjects);
    void
    Select(const std::string& name); ///< Raises nothing. A name that is not offered: nothing is selected.
    const std::string& Selected() const { return selected_; }
    const std::vector<Subject>& subjects() const { return subjects_; }
    void Update(); ///< Shows what changed of the values.

private:
    tvok::Form& form_;
    Fonts fonts_;
    tvok::tvok_Rect area_;
    tvok::gList& list_;
    std::string page_;
    std::vector<Subject> subjects_;
    std::string selected_;
};

} // namespace gallery
