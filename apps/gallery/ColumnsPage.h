/// Page "columns": a column bar over a flat list of packages, whose tab columns follow it.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "apps/gallery/Hands.h"
#include "apps/gallery/Page.h"
#include "apps/gallery/SwitchPanel.h"
#include "apps/gallery/Workbench.h"
#include "apps/gallery/drawing.h"
#include "apps/gallery/packages.h"

namespace gallery {

/// A press on a caption orders the packages by that column. The bar tells of no drag, so the page looks at
/// its widths in each turn.
class ColumnsPage : public Page {
public:
    enum Switch : std::size_t { Add, Remove, Bold, Reset };

    ColumnsPage(tvok::Desktop& desktop, tvok::Form& form);
    void Layout(const tvok::tvok_Rect& area) override;
    void Paint(tvok::host::Handle hDC) override;
    bool IsLive() const override { return true; }
    void Turn(std::chrono::milliseconds) override { Follow(); }
    void Attach(Workbench& bench) override { bench_ = &bench; }
    std::optional<std::vector<Subject>> Subjects() override;
    std::vector<Scene> Scenes() override;

    tvok::pcols& bar() { return bar_; }
    tvok::qRoster& list() { return list_; }
    SwitchPanel& switches() { return switches_; }

private:
    struct Places;

    void SetUpSwitches();
    void MakeColumns();
    void ColumnsChanged();
    void AddColumn();
    void RemoveColumn();
    void Press(std::int32_t column);
    void Fill();   ///< Makes the rows anew, with a cell for each column.
    void Follow(); ///< Takes the bar's widths over where they have changed.
    void ClickSwitch(Switch which);

    tvok::Desktop& desktop_;
    tvok::Form& form_;
    Hands hands_;
    Fonts fonts_;
    Collection collection_;
    tvok::pcols& bar_;
    tvok::qRoster& list_;
    SwitchPanel switches_;
    Workbench* bench_ = nullptr;
    tvok::tvok_Rect area_;
    std::string widths_; ///< As the list shows them.
    std::string pressed_ = "none yet";
};

} // namespace gallery
