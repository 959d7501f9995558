/// The gallery's window: a list of the pages at the left, beside it the page that the user chose, and around
/// that the panes of the workbench.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "apps/gallery/EventLog.h"
#include "apps/gallery/Inspector.h"
#include "apps/gallery/Page.h"
#include "apps/gallery/ToolBar.h"
#include "apps/gallery/drawing.h"
#include "tvok/host/Hooks.h"

namespace gallery {

inline constexpr std::int32_t FormWidth = 1120, FormHeight = 640; ///< The list and the page alone.
inline constexpr std::int32_t PageListWidth = 140, InspectorWidth = 340, LogHeight = 190;
/// With the panes.
inline constexpr std::int32_t BenchWidth = FormWidth + InspectorWidth;
inline constexpr std::int32_t BenchHeight = FormHeight + ToolBar::Height + LogHeight;

enum class Panes {
    None, ///< The list and the page are all of the window, as in the pages' pictures.
    Shown
};

/// A click on the list, its arrow keys, and Ctrl+Tab and Ctrl+Shift+Tab from anywhere go from page to page. A
/// page is made when it is first shown and keeps its state while others are.
///
/// With panes, F6 and Shift+F6 go around the page, the inspector and the event log, and F9 hides and shows
/// these two. A pane gives way where it would leave the page too little room.
class Window : private Workbench {
public:
    /// Opens a form with this page; with an empty name, the first. It lives as long as the form.
    static std::shared_ptr<Window> Open(tvok::Desktop& desktop, const std::string& page = {},
                                        Panes panes = Panes::None);

    ~Window() override = default;
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    tvok::Form& form() { return form_; }
    tvok::qRoster& pages() { return pages_; }
    Page& page() { return *shown_->page; } ///< The one that is shown.
    const PageEntry& entry() const { return *shown_->entry; }
    Workbench& workbench() { return *this; }

    // Null without panes.
    Inspector* inspector() { return bench_ ? &bench_->inspector : nullptr; }
    EventLog* log() { return bench_ ? &bench_->log : nullptr; }
    ToolBar* tools() { return bench_ ? &bench_->tools : nullptr; }

    /// After each turn of the desktop's loop: turns the page, if it is live, and brings the panes up to date.
    void Turn(std::chrono::milliseconds elapsed);

    std::vector<Scene> Scenes(); ///< Of the workbench; with panes.

    /// Every page follows, also those that are made later.
    void SetTheme(const std::string& name);
    /// As `Desktop::Scale`. Of a form that does not fit the screen any more, the rest is taken off until it
    /// does.
    void SetScale(float scale);

private:
    struct Shown {
        const PageEntry* entry = nullptr;
        std::unique_ptr<Page> page;        // made when it is first shown
        std::vector<std::string> controls; // by name, those that it put on the form
        std::string selected;              // in the inspector
    };
    struct Bench {
        Bench(tvok::Desktop& desktop, tvok::Form& form, std::int32_t icons);

        Inspector inspector; // in the order of Tab
        ToolBar tools;
        EventLog log;
        bool inspectorWanted = true, logWanted = true;
        tvok::host::Handle pressed = 0; // the window that the mouse went down on since the last turn
        std::shared_ptr<tvok::host::WindowHook> presses;
        std::vector<std::pair<std::string, tvok::host::Control*>> watched;
    };

    Window(tvok::Desktop& desktop, tvok::Form& form, Panes panes);
    void SetUpList();
    void SetUpBench();
    void HearPresses();
    void HearKeys();
    void Choose(std::size_t place);
    void Make(Shown& shown);
    void TakeControls(Shown& shown);
    void ShowControls(const Shown& shown, bool visible);
    void Step(bool back);
    void Layout();
    void FitScreen(float scale);
    void Paint();

    // The panes.
    void Select(const std::string& name) override;
    std::string Selected() const override;
    void UpdateInspector() override;
    void SubjectsChanged() override;
    void WatchForm(tvok::Form& form, const std::string& name) override;
    void ForgetForm(const tvok::Form& form) override;
    std::vector<Subject> SubjectsOf(const Shown& shown) const;
    void Watch();
    void SelectPressed();
    void TogglePanes();
    bool ShowsInspector() const;
    bool ShowsLog() const;
    void GoAround(bool back);
    bool Focus(const std::string& part);
    std::string PartWithFocus() const;

    struct Areas;

    tvok::Desktop& desktop_;
    tvok::Form& form_;
    Fonts fonts_;
    std::int32_t icons_;
    tvok::qRoster& pages_;
    std::unique_ptr<Bench> bench_;
    std::vector<Shown> all_;
    Shown* shown_ = nullptr;
    tvok::host::Point wanted_; // the form's size where the screen has the room
    tvok::host::Point fitted_; // the one that it was given
};

} // namespace gallery
