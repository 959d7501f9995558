#include "apps/gallery/FeedPage.h"

#include <algorithm>
#include <cstdio>

#include "apps/gallery/words.h"

namespace gallery {

using std::chrono::milliseconds;
using tvok::host::platform;

namespace {

constexpr std::int32_t IconArea = 22;
constexpr std::int32_t RowHeight = 20;
constexpr std::int32_t HeaderHeight = 23;
constexpr std::int32_t SwitchColumns = 2, SwitchRows = 3;
constexpr std::int32_t Opening =
    9 * 3600 * 1000 + 30 * 60 * 1000; // of the market, in milliseconds of the day
constexpr std::int32_t DayLength = 24 * 3600 * 1000;
constexpr milliseconds LongestTurn{250}, FiguresEvery{500}, SceneTurn{25};
constexpr std::array<std::int32_t, 4> Rates{100, 400, 1'000, 5'000};

struct Column {
    const char* caption;
    std::int32_t width;
    std::int16_t alignment;
};
constexpr std::int16_t AtLeft = 0, AtRight = 1;

// The first column is the icon's. A blank keeps numbers off the text beside them.
constexpr Column Columns[] = {{"", IconArea, AtLeft},  {"Time", 94, AtLeft},     {"Symbol", 66, AtLeft},
                              {"Price ", 72, AtRight}, {"Change ", 70, AtRight}, {"Volume ", 66, AtRight},
                              {" Venue", 62, AtLeft}};

std::string Ratio(std::int64_t calls, std::int32_t rows) {
    if (rows == 0) return "none";
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", static_cast<double>(calls) / rows);
    return text;
}

} // namespace

struct FeedPage::Places {
    std::array<tvok::Placement, 2> lists;
    tvok::Placement switches;

    explicit Places(const tvok::tvok_Rect& area) {
        const std::int32_t top = area.Top + BannerHeight + HeadingHeight;
        const std::int32_t switchHeight = SwitchPanel::HeightOf(SwitchRows);
        const std::int32_t height =
            std::max(area.bottom - Margin - switchHeight - HeadingHeight - Margin / 2 - top, 100);
        const std::int32_t width = std::max((area.Right - area.Left - 3 * Margin) / 2, 120);
        const std::int32_t left = area.Left + Margin;
        lists[0] = {left, top, width, height};
        lists[1] = {left + width + Margin, top, width, height};
        switches = {left, top + height + Margin / 2 + HeadingHeight, 2 * width + Margin, switchHeight};
    }
};

FeedPage::FeedPage(tvok::Desktop& desktop, tvok::Form& form)
    : desktop_(desktop), form_(form),
      hands_(desktop, form), sides_{Side{form.Add<tvok::qRosterex>("feed.left", {})},
                                    Side{form.Add<tvok::qRosterex>("feed.right", {})}},
      switches_(form.Add<tvok::qRoster>("feed.switches", {}), desktop.AddImageList(DrawIcons(), IconSize),
                SwitchColumns),
      time_(Opening) {
    const std::int32_t icons = desktop.AddImageList(DrawIcons(), IconSize);
    for (Side& side : sides_) SetUp(side, icons);
    left().ViewMode(0);
    right().ViewMode(1);
    SetUpSwitches();
    TakeFigures();
}

// Setting up.

void FeedPage::SetUp(Side& side, std::int32_t icons) {
    tvok::qRosterex& list = side.list;
    list.GridlineWidth(0);
    list.ItemHeight(RowHeight);
    list.HeaderHeight(HeaderHeight);
    list.HeaderFlag(tvok::vflag::Bold);
    list.CX_TEXT(IconArea);
    list.ShowIcon(true);
    list.IconCX((IconArea - IconSize) / 2);
    list.IconCY((RowHeight - IconSize) / 2);
    list.IconHandle(icons);
    list.ClearText("  No trade yet");
    for (const Column& column : Columns)
        list.HeaderAdd(0, column.caption, column.width, {}, column.alignment, tvok::cButtonText);
    list.FileBufCreate(); // keeps when each row came
    list.events.EnumDATA = [this, &side](std::int32_t& row, tvok::qrosterdata& record) {
        GiveRow(side, row, record);
    };
    list.Refresh();
}

void FeedPage::SetUpSwitches() {
    const auto both = [this](auto member, auto value) {
        for (Side& side : sides_) (side.list.*member)(value);
    };
    using List = tvok::qRosterex;
    switches_.Add({"Feed", [this] { return CheckIcon(running_); },
                   [this] { return std::string(running_ ? "on: trades arrive" : "off: paused"); },
                   [this] { running_ = !running_; }});
    switches_.Add(
        {"BufAddItemOnly", [this] { return CheckIcon(onlyBuffer_); },
         [this] { return std::string(onlyBuffer_ ? "on: new rows wait" : "off: new rows show at once"); },
         [this, both] {
             onlyBuffer_ = !onlyBuffer_;
             both(static_cast<void (List::*)(bool)>(&List::BufAddItemOnly), onlyBuffer_);
             ShowEverything();
         }});
    switches_.Add({"LockedPaint", [this] { return CheckIcon(locked_); },
                   [this] { return std::string(locked_ ? "on: pixels only move" : "off: rows are painted"); },
                   [this, both] {
                       locked_ = !locked_;
                       both(static_cast<void (List::*)(bool)>(&List::LockedPaint), locked_);
                       ShowEverything();
                   }});
    switches_.Add({"ViewMode", [this] { return CheckIcon(left().ViewMode() != 0); },
                   [this] { return ModeWords(); }, [this] { TurnRound(); }});
    switches_.Add({"Rate", [] { return Icon::Gear; },
                   [this] {
                       const std::int32_t rate = Rates[rate_];
                       return Grouped(rate) + " a second, bursts of " + Grouped(rate * Arrivals::BurstFactor);
                   },
                   [this] { rate_ = (rate_ + 1) % Rates.size(); }});
    switches_.Add({"Newest row", [] { return Icon::Newest; },
                   [] { return std::string("go to it in both lists"); }, [this] { ShowNewest(); }});
}

const FeedPage::Side& FeedPage::SideOf(const tvok::qRosterex& list) const {
    return &sides_[0].list == &list ? sides_[0] : sides_[1];
}

// Rows.

void FeedPage::GiveRow(Side& side, std::int32_t row, tvok::qrosterdata& record) {
    side.asked += 1;
    side.newest = std::max(side.newest, row);
    const Trade trade = TradeOfRow(row);
    record.text = "\t" + TimeOfDayText(side.list.FileBufValue(row)) + "\t" + std::string(trade.symbol) +
                  "\t" + PriceText(trade.cents) + " \t" + ChangeText(trade.change) + " \t" +
                  Grouped(trade.volume) + " \t " + std::string(trade.venue);
    record.bColor = row % 2 == 0 ? StripeColor() : tvok::cWindowBackground;
    record.fcolor = trade.change > 0 ? RisingColor() : trade.change < 0 ? FallingColor() : tvok::cWindowText;
    record.IconPos = 0;
    const Icon icon = trade.change > 0 ? Icon::Rise : Icon::Fall;
    record.IconID = trade.change == 0 ? -1 : static_cast<std::int32_t>(icon) - 1; // image 0 is the first here
    record.vflag = 0;
}

void FeedPage::Add(std::int32_t timeOfDay, bool last) {
    fed_ += 1;
    for (Side& side : sides_) {
        // The rows of one turn come together, so thousands cost no more than a page. A list that has no bar
        // yet would need a refresh for that.
        const bool hasBar = side.list.Count() > side.list.yn();
        side.list.BufAddItemOnly(onlyBuffer_ || (!last && hasBar));
        // The last add decides how a list lies, so the one that fits how it lies now is taken.
        if (side.list.ViewMode() == 0)
            side.list.AddItemTop(timeOfDay);
        else
            side.list.AddItemButtom(timeOfDay);
        // A list without a current row goes to row 1 when it gets the focus: a click would lose the place.
        if (side.list.ListIndex() == 0) side.list.ListIndex(1);
    }
}

void FeedPage::Turn(milliseconds elapsed) {
    elapsed = std::min(elapsed, LongestTurn);
    if (running_) {
        const std::int32_t rows = arrivals_.Next(elapsed, Rates[rate_]);
        for (std::int32_t i = 0; i < rows; ++i) {
            const std::int64_t now = time_.count() + elapsed.count() * i / rows;
            Add(static_cast<std::int32_t>(now % DayLength), i + 1 == rows);
        }
        time_ += elapsed;
    }
    sinceFigures_ += elapsed;
    if (sinceFigures_ >= FiguresEvery) TakeFigures();
}

void FeedPage::ShowEverything() {
    for (Side& side : sides_) side.list.Refresh();
    RepaintText();
}

void FeedPage::ShowNewest() {
    for (Side& side : sides_) side.list.ListIndex(side.list.Count());
    RepaintText();
}

void FeedPage::TurnRound() {
    for (Side& side : sides_) {
        side.list.ViewMode(side.list.ViewMode() == 0 ? 1 : 0);
        side.list.Refresh();
    }
    ShowNewest(); // the place on the page means other rows now
}

// Words.

std::string FeedPage::ModeWords() const {
    const auto end = [](const Side& side) {
        return side.list.ViewMode() == 0 ? "0 newest first" : "1 newest last";
    };
    return std::string(end(sides_[0])) + ", " + end(sides_[1]);
}

std::string FeedPage::Heading(const tvok::qRosterex& list) const {
    return list.ViewMode() == 0 ? "Newest at the top" : "Newest at the bottom";
}

std::string FeedPage::News(const tvok::qRosterex& list) const {
    const std::int32_t waiting = fed_ - list.Count();
    if (waiting > 0) return Plural(waiting, "row waits", "rows wait");
    const std::int32_t unseen = list.Count() - SideOf(list).newest;
    if (unseen == 0) return "following";
    if (locked_) return Plural(unseen, "row", "rows") + " not painted";
    return Plural(unseen, "newer row", "newer rows") + (list.ViewMode() == 0 ? " above" : " below");
}

void FeedPage::TakeFigures() {
    const std::int64_t time = std::max<std::int64_t>(sinceFigures_.count(), 1);
    const std::int32_t rows = fed_ - fedAtFigures_;
    figures_ = Plural(fed_, "row", "rows") + "  \u00B7  " + Grouped(std::int64_t{rows} * 1000 / time) +
               " rows a second  \u00B7  EnumDATA calls for each new row: " + Ratio(sides_[0].asked, rows) +
               " at the left, " + Ratio(sides_[1].asked, rows) + " at the right";
    for (Side& side : sides_) side.asked = 0;
    fedAtFigures_ = fed_;
    sinceFigures_ = milliseconds{0};
    RepaintText();
}

// Looks.

void FeedPage::Layout(const tvok::tvok_Rect& area) {
    area_ = area;
    const Places places(area);
    for (std::size_t i = 0; i < sides_.size(); ++i) PlaceList(sides_[i], places.lists[i]);
    form_.Place(switches_.list(), places.switches);
    tvok::tvok_Rect client;
    platform().GetClientRect(form_.ComponentOf(switches_.list()).hWnd(), client);
    switches_.Spread(client.Right);
}

void FeedPage::PlaceList(const Side& side, const tvok::Placement& place) {
    tvok::qRosterex& list = side.list;
    // A list that gets lower keeps its first row, so the newest one at the bottom would leave the page.
    const bool leaves = list.ViewMode() != 0 && place.height < form_.PlacementOf(list).height;
    const bool follows = side.newest == list.Count();
    form_.Place(list, place);
    if (leaves && follows) list.ListIndex(list.Count());
}

void FeedPage::Paint(tvok::host::Handle hDC) {
    using tvok::host::DT_LEFT;
    using tvok::host::DT_RIGHT;
    const Places places(area_);
    DrawBackground(hDC, area_, fonts_, "A market feed, as it comes", figures_);
    const auto line = [&](const tvok::Placement& below, const std::string& text, tvok::host::Handle font,
                          std::int32_t alignment) {
        DrawLabel(hDC, {below.left, below.top - HeadingHeight, below.left + below.width, below.top}, text,
                  font, tvok::cButtonText, alignment);
    };
    for (std::size_t i = 0; i < sides_.size(); ++i) {
        line(places.lists[i], Heading(sides_[i].list), fonts_.Bold(), DT_LEFT);
        line(places.lists[i], News(sides_[i].list), fonts_.Plain(), DT_RIGHT);
    }
    line(places.switches, "Switches of both lists (a click, or Space)", fonts_.Bold(), DT_LEFT);
}

void FeedPage::RepaintText() {
    const tvok::tvok_Rect text{area_.Left, area_.Top, area_.Right, area_.Top + BannerHeight + HeadingHeight};
    platform().InvalidateRect(form_.hWnd(), &text, false);
    switches_.Update();
}

// Scenes.

void FeedPage::Play(std::int32_t turns) {
    for (; turns > 0; --turns) Turn(SceneTurn);
}

void FeedPage::ClickSwitch(Switch which) {
    tvok::tvok_Rect client;
    platform().GetClientRect(form_.ComponentOf(switches_.list()).hWnd(), client);
    const auto place = static_cast<std::int32_t>(which);
    hands_.Click(switches_.list(), {place % SwitchColumns * client.Right / SwitchColumns + 40,
                                    place / SwitchColumns * SwitchPanel::RowHeight + 8});
    desktop_.ProcessEvents(milliseconds{0});
}

void FeedPage::ScrollAway() {
    hands_.Wheel(left(), -8);
    hands_.Wheel(right(), 8);
    desktop_.ProcessEvents(milliseconds{0});
}

std::vector<Scene> FeedPage::Scenes() {
    return {
        {"", [this] { Play(100); }},
        {"scrolled",
         [this] {
             ScrollAway();
             Play(40);
         }},
        {"waiting",
         [this] {
             ClickSwitch(Newest);
             ClickSwitch(BufAddItemOnly);
             Play(40);
         }},
        {"turned",
         [this] {
             ClickSwitch(BufAddItemOnly);
             ClickSwitch(ViewMode);
             Play(40);
         }},
        {"resized",
         [this] {
             form_.Size(form_.Width() * 3 / 4, form_.Height() * 3 / 4);
             hands_.Drag(left(), {IconArea + 94, 10}, {IconArea + 124, 10});
             desktop_.ProcessEvents(milliseconds{0});
             Play(20);
         }},
    };
}

} // namespace gallery
