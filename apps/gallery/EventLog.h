/// The pane at the bottom of the window: the events of the page's controls as they come, newest first, with
/// their arguments.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "apps/gallery/EventStore.h"
#include "apps/gallery/SwitchPanel.h"
#include "apps/gallery/Workbench.h"
#include "apps/gallery/drawing.h"
#include "apps/gallery/events.h"

namespace gallery {

/// A large list over an `EventStore`, under a column bar. Events only go to the store when they come; the
/// list takes them over in `Turn`, so that an event that is raised while the log paints finds it at rest.
///
/// A reader who scrolls away keeps the place, and the switch "Newest" says how many are new. Ctrl+C copies
/// the selected rows.
class EventLog : public Pane {
public:
    enum Action : std::size_t { Pause, Clear, Copy };
    enum Filter : std::size_t { Newest, Frequent };

    EventLog(tvok::Desktop& desktop, tvok::Form& form);

    void Layout(const tvok::tvok_Rect& area) override;
    void Paint(tvok::host::Handle hDC) override;
    void Visible(bool show) override;

    /// Notes the control's events from now on, under this name; its handlers stay what they are. A control
    /// that is watched gets the new name. Nothing for the log's own controls.
    void Watch(tvok::host::Control& control, const std::string& name);
    /// It may be freed already: nothing but its address counts. The rows stay.
    void Forget(const tvok::host::Control* control) { watches_.erase(control); }
    /// As `Workbench` has them.
    void WatchForm(tvok::Form& form, const std::string& name);
    void ForgetForm(const tvok::Form& form) { forms_.erase(&form); }
    std::size_t Watched() const { return watches_.size() + forms_.size(); } ///< Controls and forms.
    /// Shows what was noted since the last turn. Cheap where there is nothing, or while it is hidden.
    void Turn();

    EventStore& store() { return *store_; }
    tvok::qRosterex& list() { return list_; }
    tvok::pcols& bar() { return bar_; }
    SwitchPanel& actions() { return actions_; }
    SwitchPanel& filters() { return filters_; }
    /// A row of the list as it is shown and copied: time, control, event and arguments between tab
    /// characters.
    std::string RowText(std::int32_t row) const;
    std::string Heading() const;                             ///< The line above the list.
    std::int64_t NewAbove() const { return added_ - seen_; } ///< Rows that the reader has not been shown.

private:
    struct Places;

    void SetUpList();
    void SetUpSwitches();
    void GiveRow(std::int32_t row, tvok::qrosterdata& record);
    std::int64_t NumberOf(std::int32_t row) const { return before_ + row; }

    void ShowAdded();
    void ShowStale();
    void DropOld();
    void GoToNewest();
    void ClearAll();
    void CopySelected();
    void FollowBar();
    void UpdateWords();

    tvok::Desktop& desktop_;
    tvok::Form& form_;
    Fonts fonts_;
    std::shared_ptr<EventStore> store_; // the watches keep it
    tvok::qRosterex& list_;
    tvok::pcols& bar_;
    SwitchPanel actions_;
    SwitchPanel filters_;
    std::map<const tvok::host::Control*, EventWatches> watches_;
    std::map<const tvok::Form*, std::vector<EventWatches>> forms_; // each with its controls
    tvok::tvok_Rect area_;
    bool isVisible_ = true;
    std::int64_t before_ = 0; // the number of row 0
    std::int32_t added_ = 0;  // rows of the list, with those that wait in it
    std::int32_t seen_ = 0;   // the newest row that was painted
    bool isReading_ = false;  // the reader has chosen a row
    std::string widths_;      // of the bar, as the list shows them
    std::string note_;
    std::string heading_; // as it is painted
};

} // namespace gallery
