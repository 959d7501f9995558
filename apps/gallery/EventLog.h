/// The pane at the bottom of the window: the events of the page's controls as they come.
#pragma once

#include <string>

#include "apps/gallery/Workbench.h"
#include "apps/gallery/drawing.h"

namespace gallery {

class EventLog : public Pane {
public:
    EventLog(tvok::Desktop& desktop, tvok::Form& form);

    void Layout(const tvok::tvok_Rect& area) override;
    void Paint(tvok::host::Handle hDC) override;
    void Visible(bool show) override;

    /// Notes the control's events from now on, under this name, and passes them on to the handlers that it
    /// has. For each control once, after its page was made.
    void Watch(tvok::host::Control& control, const std::string& name);
    /// Shows what was noted since the last turn. Cheap where there is nothing, or while it is hidden.
    void Turn();

private:
    tvok::Form& form_;
    Fonts fonts_;
    tvok::tvok_Rect area_;
    tvok::qRosterex& list_;
};

} // namespace gallery
