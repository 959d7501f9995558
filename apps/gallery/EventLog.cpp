#include "apps/gallery/EventLog.h"

#include <algorithm>
#include <array>
#include <utility>

#include "apps/gallery/market.h"
#include "apps/gallery/words.h"
#include "tvok/engine/dgi.h"

namespace gallery {

using tvok::host::platform;

namespace {

constexpr std::int32_t RowHeight = 18, BarHeight = 20, TextStart = 4;
constexpr std::int32_t ActionName = 52, ActionWidth = 84, FilterName = 112, FilterWidth = 236;
constexpr std::int32_t LeastArguments = 80;
constexpr std::int64_t MuchIsLost = EventStore::Capacity / 4;
constexpr std::int16_t ControlBit = 2;

struct Column {
    const char* caption;
    std::int32_t width; // of the last one: what is left
};
constexpr std::array<Column, 4> Columns{{{"Time", 98}, {"Control", 130}, {"Event", 160}, {"Arguments", 0}}};

/// Hears one control. It keeps the store, and so may outlive the log.
class ControlListener : public EventListener {
public:
    ControlListener(std::shared_ptr<EventStore> store, std::string control)
        : store_(std::move(store)), control_(std::move(control)) {}
    std::optional<std::int64_t> Begun(const EventInfo& event) override {
        return store_->Begin(control_, event);
    }
    void Ended(std::int64_t number, const std::string& arguments) override { store_->End(number, arguments); }

private:
    std::shared_ptr<EventStore> store_;
    std::string control_;
};

std::string EventWords(const LoggedEvent& row) {
    std::string words(static_cast<std::size_t>(row.depth) * 2, ' '); // inside the event that stands below
    words += row.event.name;
    if (row.count > 1) words += " \u00D7" + Grouped(row.count);
    return words;
}

} // namespace

struct EventLog::Places {
    tvok::Placement heading, actions, filters, bar, list;

    explicit Places(const tvok::tvok_Rect& area) {
        const std::int32_t left = area.Left + Margin;
        const std::int32_t width = std::max(area.Right - area.Left - 2 * Margin, 1);
        const std::int32_t panel = SwitchPanel::HeightOf(1);
        filters = {left + width - 2 * FilterWidth - 2, area.Top, 2 * FilterWidth + 2, panel};
        actions = {filters.left - Margin - 3 * ActionWidth - 2, area.Top, 3 * ActionWidth + 2, panel};
        heading = {left, area.Top, std::max(actions.left - left, 0), HeadingHeight};
        bar = {left, area.Top + HeadingHeight + 2, width, BarHeight};
        list = {left, bar.top + BarHeight, width,
                std::max(area.bottom - Margin / 2 - bar.top - BarHeight, 1)};
    }
};

EventLog::EventLog(tvok::Desktop& desktop, tvok::Form& form)
    : desktop_(desktop), form_(form), store_(std::make_shared<EventStore>()),
      list_(form.Add<tvok::qRosterex>("log.list", {})), bar_(form.Add<tvok::pcols>("log.bar", {})),
      actions_(form.Add<tvok::qRoster>("log.actions", {}), desktop.AddImageList(DrawIcons(), IconSize), 3,
               ActionName),
      filters_(form.Add<tvok::qRoster>("log.filters", {}), desktop.AddImageList(DrawIcons(), IconSize), 2,
               FilterName) {
    SetUpList();
    SetUpSwitches();
}

// Setting up.

void EventLog::SetUpList() {
    list_.GridlineWidth(0);
    list_.ItemHeight(RowHeight);
    list_.CX_TEXT(TextStart);
    list_.MultiSelect(1);
    list_.ViewMode(0);
    list_.ClearText("  No event yet");
    for (const Column& column : Columns) list_.HeaderAdd(0, column.caption, std::max(column.width, 10));
    list_.events.EnumDATA = [this](std::int32_t& row, tvok::qrosterdata& record) { GiveRow(row, record); };
    list_.events.MouseDown = [this](auto&...) { isReading_ = true; };
    list_.events.KeyDown = [this](std::int16_t& code, std::int16_t& shift) {
        isReading_ = true;
        if (code != 'C' || (shift & ControlBit) == 0) return;
        CopySelected();
        UpdateWords();
        code = 0;
    };
    list_.Refresh();
}

void EventLog::SetUpSwitches() {
    const auto none = [] { return std::string(); };
    actions_.Add({"Pause", [this] { return CheckIcon(store_->IsPaused()); }, none,
                  [this] {
                      store_->Pause(!store_->IsPaused());
                      UpdateWords();
                  }});
    actions_.Add({"Clear", [] { return Icon::Page; }, none, [this] { ClearAll(); }});
    actions_.Add({"Copy", [] { return Icon::Books; }, none,
                  [this] {
                      CopySelected();
                      UpdateWords();
                  }});
    filters_.Add({"Newest", [] { return Icon::Newest; },
                  [this] {
                      if (added_ == 0) return std::string();
                      const std::int64_t unseen = NewAbove();
                      return unseen == 0 ? "following" : Plural(unseen, "new above", "new above");
                  },
                  [this] { GoToNewest(); }});
    filters_.Add({"Painting, moves", [this] { return CheckIcon(store_->ShowsFrequent()); },
                  [this] {
                      return store_->ShowsFrequent() ? std::string()
                                                     : Grouped(store_->LeftOut()) + " left out";
                  },
                  [this] { store_->ShowFrequent(!store_->ShowsFrequent()); }});
    for (SwitchPanel* panel : {&actions_, &filters_}) panel->list().BackColor(tvok::cButtonFace);
}

void EventLog::Watch(tvok::host::Control& control, const std::string& name) {
    const std::array<const tvok::host::Control*, 4> own{&list_, &bar_, &actions_.list(), &filters_.list()};
    if (std::ranges::find(own, &control) != own.end()) return;
    watches_[&control] = WatchEvents(control, std::make_shared<ControlListener>(store_, name));
}

void EventLog::WatchForm(tvok::Form& form, const std::string& name) {
    const auto listener = [this](const std::string& of) {
        return std::make_shared<ControlListener>(store_, of);
    };
    std::vector<EventWatches> watches{WatchEvents(form, listener(name))};
    for (const std::string& control : form.Names())
        watches.push_back(WatchEvents(*form.Find(control), listener(name + "." + control)));
    forms_[&form] = std::move(watches);
}

// Rows.

std::string EventLog::RowText(std::int32_t row) const {
    const LoggedEvent* event = store_->Find(NumberOf(row));
    if (event == nullptr) return "\t\t(no longer kept)\t";
    return TimeOfDayText(static_cast<std::int32_t>(event->time.count())) + "\t" + event->control + "\t" +
           EventWords(*event) + "\t" + event->arguments;
}

void EventLog::GiveRow(std::int32_t row, tvok::qrosterdata& record) {
    seen_ = std::max(seen_, row);
    const LoggedEvent* event = store_->Find(NumberOf(row));
    const bool isPale = event == nullptr || event->event.kind != EventKind::Action;
    record.text = RowText(row);
    record.bColor = NumberOf(row) % 2 == 0 ? StripeColor() : tvok::cWindowBackground;
    record.fcolor = isPale ? tvok::SystemColor(tvok::host::COLOR_GRAYTEXT) : tvok::cWindowText;
    record.vflag = 0;
}

void EventLog::Turn() {
    if (!isVisible_) return;
    FollowBar();
    ShowStale();
    ShowAdded();
    DropOld();
    UpdateWords();
}

/// All rows of one turn come together, so thousands cost no more than a page.
void EventLog::ShowAdded() {
    const std::int64_t newest = store_->Newest() - before_;
    if (newest == added_) return;
    note_.clear();
    while (added_ < newest) {
        added_ += 1;
        // A list that has no bar yet would need a refresh for rows that wait.
        const bool hasBar = list_.Count() > list_.yn();
        list_.BufAddItemOnly(added_ < newest && hasBar);
        list_.AddItemTop();
    }
    store_->NoteShown();
    // Who comes with the Tab key finds the newest event, and who scrolled or chose a row finds that again. A
    // list without a current row would go to its oldest one.
    if (!isReading_ && NewAbove() == 0) list_.ListIndex(list_.Count());
}

void EventLog::ShowStale() {
    for (const std::int64_t number : store_->TakeStale()) {
        const std::int64_t row = number - before_;
        if (row >= 1 && row <= list_.Count()) list_.DrawItem(static_cast<std::int32_t>(row));
    }
}

/// Rows whose events are gone stay for a reader who scrolled away, and go when the reader is back.
void EventLog::DropOld() {
    const std::int64_t lost = store_->Oldest() - 1 - before_;
    if (lost < MuchIsLost || NewAbove() != 0) return;
    list_.Clear();
    before_ += lost;
    added_ = seen_ = static_cast<std::int32_t>(store_->Newest() - before_);
    list_.Count(added_);
    isReading_ = false;
    list_.ListIndex(added_);
}

void EventLog::GoToNewest() {
    isReading_ = false;
    if (list_.Count() > 0) list_.ListIndex(list_.Count());
    UpdateWords();
}

void EventLog::ClearAll() {
    store_->Clear();
    before_ = store_->Newest();
    added_ = seen_ = 0;
    isReading_ = false;
    note_.clear();
    list_.Clear();
    UpdateWords();
}

/// Newest first, as they are shown. Of more than the clipboard takes, the newest.
void EventLog::CopySelected() {
    const std::int32_t first = list_.StartSelected();
    std::int32_t row = list_.EndSelected();
    if (first < 1) return;
    std::string text;
    std::int64_t copied = 0;
    for (; row >= first; --row) {
        const std::string line = RowText(row) + "\n";
        if (text.size() + line.size() > desktop_.ClipboardCapacity()) break;
        text += line;
        ++copied;
    }
    desktop_.ClipboardText(text);
    note_ = Plural(copied, "row", "rows") + " copied";
}

// Looks.

std::string EventLog::Heading() const {
    if (!note_.empty()) return note_;
    if (store_->IsPaused()) return "Paused: " + Grouped(store_->PassedBy()) + " passed by";
    return "Events, newest first";
}

void EventLog::UpdateWords() {
    actions_.Update();
    filters_.Update();
    if (heading_ == Heading()) return;
    heading_ = Heading();
    const tvok::Placement place = Places(area_).heading;
    const tvok::tvok_Rect rect{place.left, place.top, place.left + place.width, place.top + place.height};
    platform().InvalidateRect(form_.hWnd(), &rect, false);
}

/// The bar tells of no drag, so its widths are looked at. The list needs some of the last column's for its
/// scroll bar.
void EventLog::FollowBar() {
    const std::string widths = bar_.HeaderWidths();
    if (widths == widths_) return;
    widths_ = widths;
    std::string stops;
    for (std::int32_t column = 1; column <= bar_.Count(); ++column) {
        std::int32_t width = bar_.GetData(column).hWidth;
        if (column == bar_.Count()) width -= platform().GetSystemMetrics(tvok::host::SM_CXVSCROLL) + 4;
        stops += (column > 1 ? "-" : "") + std::to_string(std::max(width, 10));
    }
    list_.HeaderWidths(stops);
    list_.Refresh();
}

void EventLog::Layout(const tvok::tvok_Rect& area) {
    area_ = area;
    const Places places(area);
    form_.Place(actions_.list(), places.actions);
    form_.Place(filters_.list(), places.filters);
    actions_.Spread(places.actions.width - 2);
    filters_.Spread(places.filters.width - 2);
    form_.Place(bar_, places.bar);
    form_.Place(list_, places.list);
    tvok::tvok_Rect client;
    platform().GetClientRect(form_.ComponentOf(bar_).hWnd(), client);
    std::array<std::int32_t, Columns.size()> widths{};
    std::int32_t rest = client.Right;
    for (std::size_t i = 0; i + 1 < Columns.size(); ++i) {
        const auto column = static_cast<std::int32_t>(i) + 1;
        widths[i] = column <= bar_.Count() ? bar_.GetData(column).hWidth : Columns[i].width;
        rest -= widths[i];
    }
    widths.back() = std::max(rest, LeastArguments);
    bar_.Clear();
    for (std::size_t i = 0; i < Columns.size(); ++i)
        bar_.Add(0, Columns[i].caption, widths[i], {}, 0, tvok::cButtonText);
    bar_.Refresh();
    FollowBar();
    UpdateWords();
}

void EventLog::Paint(tvok::host::Handle hDC) {
    tvok::dgi::FillRectColor(hDC, area_, tvok::cButtonFace);
    const tvok::Placement place = Places(area_).heading;
    heading_ = Heading();
    DrawLabel(hDC, {place.left, place.top, place.left + place.width, place.top + place.height}, heading_,
              fonts_.Bold(), tvok::cButtonText);
}

void EventLog::Visible(bool show) {
    isVisible_ = show;
    for (const tvok::host::Control* control :
         {static_cast<const tvok::host::Control*>(&list_), static_cast<const tvok::host::Control*>(&bar_),
          static_cast<const tvok::host::Control*>(&actions_.list()),
          static_cast<const tvok::host::Control*>(&filters_.list())})
        form_.ComponentOf(*control).Visible(show);
}

} // namespace gallery
