/// The bar between the page and the event log: the theme, the scale, and which panes are shown.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "apps/gallery/SwitchPanel.h"
#include "apps/gallery/Workbench.h"
#include "apps/gallery/drawing.h"

namespace gallery {

/// Flat lists of one row each: a click on a word, or an arrow key, chooses.
class ToolBar : public Pane {
public:
    static constexpr std::int32_t Height = 30;

    std::function<void(const std::string&)> themeChosen; ///< Its name.
    std::function<void(float)> scaleChosen;

    /// `icons` is an image list of `DrawIcons`.
    ToolBar(tvok::Desktop& desktop, tvok::Form& form, std::int32_t icons);

    void Layout(const tvok::tvok_Rect& area) override;
    void Paint(tvok::host::Handle hDC) override;
    void Visible(bool show) override;

    tvok::qRoster& themes() { return themes_; }
    tvok::qRoster& scales() { return scales_; }
    SwitchPanel& switches() { return switches_; }

    /// A switch behind those that are there, as wide as the others. The window lays the bar out anew.
    void AddSwitch(PanelSwitch added);
    void Update(); ///< Shows the theme, the scale and the switches as they are now.

private:
    struct Choice {
        std::string label;
        tvok::qRoster* list = nullptr;
        std::int32_t itemWidth = 0;
    };
    tvok::qRoster& AddChoice(const char* name, const char* label, std::int32_t itemWidth,
                             const std::vector<std::string>& words);

    tvok::Desktop& desktop_;
    tvok::Form& form_;
    Fonts fonts_;
    tvok::tvok_Rect area_;
    std::vector<Choice> choices_;
    tvok::qRoster& themes_;
    tvok::qRoster& scales_;
    SwitchPanel switches_;
};

} // namespace gallery
