// A large list is fed at both ends while a user scrolls, drags, sizes and selects at random. What is on
// screen has to be what a full repaint of the same state gives, to the pixel.
//
// TVOK_RANDOM_SEED=n repeats a run; the seed is printed. TVOK_SOAK_ROWS=n is how many rows each list is fed.

#include <cstdint>
#include <deque>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/RandomRuns.h"
#include "tests/support/TestDesktop.h"
#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/ScrollBars.h"

namespace tvok::test {
namespace {

constexpr std::int32_t cShownAsPoison = 0x00FF00FF;
constexpr std::int32_t cSwatch = 0x1000;
constexpr std::int32_t cOneCell = 0x2000;

struct Feed {
    const char* name;
    bool top = false;  ///< Where most rows come.
    bool both = false; ///< Some come at the other end.
    bool file = false;
    std::int32_t MultiSelect = 0;
    std::int32_t columns = 2;
    std::int32_t largestBurst = 40;
};

class Soak {
public:
    Soak(const Feed& feed, std::uint32_t seed, std::uint32_t rows);
    ~Soak() { host::SetServices(before_); }
    Soak(const Soak&) = delete;
    Soak& operator=(const Soak&) = delete;

    bool IsFed() const { return fed_ >= rows_; }
    void Step();
    /// What does not hold; empty where everything does.
    std::string Broken();
    /// The last deeds, for a failure.
    std::string Deeds() const;

private:
    std::int32_t Number(std::int32_t low, std::int32_t high) {
        return std::uniform_int_distribution<std::int32_t>(low, high)(random_);
    }
    bool Chance(std::int32_t oneIn) { return Number(1, oneIn) == 1; }
    void Note(std::string deed);
    host::MessageHook& Hook() { return *services_.hook; }
    soft::Window& Window();

    void MakeList();
    void Fill(std::int32_t row, qrosterdata& record) const;
    bool Waits() { return Hook().vBusy() || list_->BufAddItemOnly(); }

    void Burst(std::int32_t count);
    void Act();
    void UseKeys();
    void UseMouse();
    void UseBars();
    void PressThumb();
    void MoveThumb();
    void LetThumbGo();
    void DragDivider();
    void Resize();
    void SetGeometry();
    void SetColumns();
    void SetLooks();
    void SetModes();
    void Shrink();
    void Lock();

    void LookForOddRange();
    std::string BrokenNumbers();
    std::string BrokenPicture();
    void Poison();

    Feed feed_;
    std::mt19937 random_;
    std::uint32_t rows_;
    TestDesktop desktop_;
    WatchedServices services_;
    host::Services* before_ = nullptr;
    qRosterex* list_ = nullptr;
    std::int32_t icons_ = 0;
    std::uint32_t fed_ = 0;
    std::vector<std::int32_t> values_; ///< Of each row in order of arrival; those that wait are among them.
    std::int32_t asked_ = 0;           ///< How many rows were asked for.
    bool thumbHeld_ = false;
    bool stale_ = false; ///< What is on screen need not be up to date: only a `Refresh` makes it so.
    bool odd_ = false;   ///< The range is in a state that shows only as rows happen to be painted.
    std::string broken_;
    std::deque<std::string> deeds_;
};

Soak::Soak(const Feed& feed, std::uint32_t seed, std::uint32_t rows)
    : feed_(feed), random_(seed), rows_(rows), services_(host::services()) {
    before_ = host::SetServices(&services_);
    std::vector<std::uint32_t> pixels(3 * 8 * 8);
    for (std::size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = 0xFF000000U + static_cast<std::uint32_t>(i) * 0x10305U;
    icons_ = desktop_.desktop().AddImageList(pixels, 8);
    MakeList();
}

void Soak::MakeList() {
    list_ = &desktop_.form().Add<qRosterex>("list", Placement{10, 10, 220, 150});
    list_->BorderStyle(1);
    list_->HeaderHeight(20);
    list_->MultiSelect(feed_.MultiSelect);
    for (std::int32_t c = 0; c < feed_.columns; ++c) list_->HeaderAdd(0, "column", 60 + 15 * c);
    list_->IconHandle(icons_);
    list_->ViewMode(feed_.top ? 0 : 1);
    list_->events.EnumDATA = [this](std::int32_t& row, qrosterdata& record) { Fill(row, record); };
    if (feed_.file) list_->FileBufCreate();
    list_->Refresh();
    desktop_.Pump();
}

/// Writes every field, so that a row looks the same whatever its place in the cache held.
void Soak::Fill(std::int32_t row, qrosterdata& record) const {
    const std::uint32_t mix = static_cast<std::uint32_t>(row) * 2654435761U;
    const std::int32_t flags = (row % 4 == 0 ? cSwatch : 0) | (row % 11 == 0 ? cOneCell : 0) |
                               (row % 6 == 0 ? vflag::Bold : 0) | (row % 13 == 0 ? vflag::Underline : 0);
    record = {.text = std::to_string(row) + '\t' + std::to_string(list_->FileBufValue(row)) + "\tx",
              .IconID = row % 5 - 1,
              .IconBackColor = static_cast<OLE_COLOR>(mix >> 8),
              .IconPos =
                  list_->CX_TEXT() > 0 && row % 7 == 0 ? row % 9 : 0, // the indent needs an icon column
              .ItemData = row % 10,
              .bColor = static_cast<OLE_COLOR>(0xFFFFFF - (mix >> 8 & 0x3F3F3F)),
              .fcolor = static_cast<OLE_COLOR>(mix >> 4 & 0x7F7F7F),
              .vflag = flags};
    ++const_cast<Soak*>(this)->asked_;
}

soft::Window& Soak::Window() {
    return desktop_.form().window().EntryOf(*list_).component->window();
}

void Soak::Note(std::string deed) {
    deeds_.push_back(std::move(deed));
    if (deeds_.size() > 25) deeds_.pop_front();
}

std::string Soak::Deeds() const {
    std::string text = "the last deeds:";
    for (const std::string& deed : deeds_) text += "\n  " + deed;
    text += "\ncount " + std::to_string(list_->Count()) + ", mode " + std::to_string(list_->ViewMode()) +
            ", position " + std::to_string(services_.hook->ScrollValue()) + " of " +
            std::to_string(services_.hook->ScrollMax()) +
            (services_.hook->ScrollBarShown() ? "" : " without a bar") + ", sideways " +
            std::to_string(services_.hook->ScrollHValue()) + ", current row " +
            std::to_string(list_->ListIndex()) + ", rows of " + std::to_string(list_->ItemHeight()) + " + " +
            std::to_string(list_->GridlineWidth()) + " below " + std::to_string(list_->HeaderHeight()) +
            ", page of " + std::to_string(list_->yn());
    return text;
}

// Rows.

void Soak::Burst(std::int32_t count) {
    const bool top = feed_.both && Chance(8) ? !feed_.top : feed_.top;
    const std::int16_t mode = top ? 0 : 1;
    // Adding at the other end turns the display of all rows, which a host shows by a repaint of its own.
    if (mode != list_->ViewMode()) stale_ = true;
    const bool waits = Waits();
    const bool waited = list_->Count() < static_cast<std::int32_t>(values_.size());
    // Pending rows of a list without a bar move its few rows; only a refresh puts them right.
    if (waited && !waits && !Hook().ScrollBarShown()) stale_ = true;
    const bool barBefore = Hook().ScrollBarShown();
    const bool away = top ? Hook().ScrollValue() != 0 : Hook().ScrollValue() != Hook().ScrollMax();
    const std::int32_t countBefore = list_->Count();
    asked_ = 0;
    Note((top ? "add at the top " : "add at the bottom ") + std::to_string(count) +
         (waits ? ", they wait" : ""));
    for (std::int32_t i = 0; i < count; ++i) {
        values_.push_back(Number(-100000, 100000));
        top ? list_->AddItemTop(values_.back()) : list_->AddItemButtom(values_.back());
    }
    fed_ += static_cast<std::uint32_t>(count);
    if (waits && list_->Count() != countBefore) broken_ = "rows that wait are not counted";
    if (!waits && list_->Count() != static_cast<std::int32_t>(values_.size()))
        broken_ = "every row is counted";
    if ((waits || (barBefore && away && feed_.MultiSelect == 0)) && asked_ != 0)
        broken_ = "rows out of sight ask for nothing";
    // Four: grid lines make neighbours meet the freed band, and pending rows come in together.
    if (barBefore && feed_.MultiSelect == 0 && asked_ > 4 * count + list_->yn() + 1)
        broken_ = "a new row costs a row, not a page";
}

void Soak::Shrink() {
    // Values of rows that wait would not follow them.
    if (Waits() || list_->Count() < static_cast<std::int32_t>(values_.size())) return;
    if (Chance(3)) {
        Note("clear");
        list_->Clear();
        values_.clear();
        return;
    }
    if (values_.empty()) return;
    const std::int32_t count = Number(1, list_->Count());
    Note("count " + std::to_string(count));
    list_->Count(count);
    values_.resize(static_cast<std::size_t>(count));
}

// The user.

void Soak::UseKeys() {
    static constexpr std::int32_t keys[] = {host::VK_UP,  host::VK_DOWN, host::VK_PRIOR, host::VK_NEXT,
                                            host::VK_END, host::VK_HOME, host::VK_LEFT,  host::VK_RIGHT};
    const bool shift = Chance(3);
    if (Chance(6)) {
        Note("focus away");
        desktop_.FocusAway();
        return;
    }
    desktop_.Focus(*list_);
    if (shift) desktop_.HoldKey(host::VK_SHIFT);
    for (std::int32_t i = Number(1, 3); i > 0; --i) {
        const std::int32_t key = keys[Number(0, 7)];
        Note("key " + std::to_string(key) + (shift ? " with Shift" : ""));
        desktop_.Key(key);
        LookForOddRange();
    }
    if (shift) desktop_.LetGoKey(host::VK_SHIFT);
}

void Soak::UseMouse() {
    const tvok_Rect area = Window().clientArea();
    const auto x = [&] { return Number(-5, area.Right - area.Left + 5); };
    const auto y = [&] { return Number(-10, area.bottom - area.Top + 10); };
    const auto rowY = [&] { return Number(list_->HeaderHeight() + 1, std::max(area.bottom - area.Top, 30)); };
    const bool shift = Chance(4);
    if (shift) desktop_.HoldKey(host::VK_SHIFT);
    if (Chance(5)) {
        Note("double click");
        desktop_.DoubleClick(*list_, Number(5, 60), rowY());
    } else {
        const std::int32_t atX = Number(5, 60), atY = rowY();
        Note("press at " + std::to_string(atX) + "," + std::to_string(atY) + (shift ? " with Shift" : ""));
        desktop_.clock().now += std::chrono::seconds(1);
        desktop_.Press(*list_, atX, atY);
        LookForOddRange();
        for (std::int32_t moves = Number(0, 4); moves > 0; --moves) {
            desktop_.MoveTo(*list_, x(), y());
            LookForOddRange();
            if (Chance(4)) Burst(Number(1, 4));
            LookForOddRange();
        }
        desktop_.Release();
    }
    if (shift) desktop_.LetGoKey(host::VK_SHIFT);
    LookForOddRange();
}

void Soak::PressThumb() {
    const soft::Bar bar = Chance(3) ? soft::Bar::Horizontal : soft::Bar::Vertical;
    const soft::ScrollBars* bars = Window().bars();
    if (bars == nullptr || !bars->state(bar).shown) return;
    const tvok_Rect place = bars->Place(bar);
    const soft::BarLayout layout = bars->Layout(bar);
    if (layout.thumbLength == 0) return;
    const tvok_Rect area = Window().clientArea();
    const std::int32_t along = layout.thumbStart + layout.thumbLength / 2;
    const bool upright = bar == soft::Bar::Vertical;
    const host::Point at{(upright ? (place.Left + place.Right) / 2 : place.Left + along) - area.Left,
                         (upright ? place.Top + along : (place.Top + place.bottom) / 2) - area.Top};
    Note("press a thumb");
    desktop_.clock().now += std::chrono::seconds(1);
    desktop_.Press(*list_, at.x, at.y);
    thumbHeld_ = Hook().vBusy();
    if (!thumbHeld_) desktop_.Release();
}

void Soak::MoveThumb() {
    const tvok_Rect area = Window().clientArea();
    Note("move the thumb");
    desktop_.MoveTo(*list_, Number(0, area.Right - area.Left + 14), Number(0, area.bottom - area.Top + 14));
}

void Soak::LetThumbGo() {
    Note("let the thumb go");
    // As with an add: the rows that waited move what is on screen where no bar tells the place.
    if (!Hook().ScrollBarShown()) stale_ = true;
    desktop_.Release();
    thumbHeld_ = false;
    if (Hook().vBusy()) broken_ = "the drag is over";
}

void Soak::UseBars() {
    if (Chance(2)) return PressThumb();
    const tvok_Rect area = Window().clientArea();
    const bool upright = Chance(2);
    Note("press on a bar");
    desktop_.Click(*list_, upright ? area.Right - area.Left + 5 : Number(0, 200),
                   upright ? Number(0, 130) : area.bottom - area.Top + 5);
}

void Soak::DragDivider() {
    if (list_->HeaderCount() < 1 || list_->HeaderHeight() < 2) return;
    const std::int32_t edge = list_->HeaderGet(1).hWidth - Hook().ScrollHValue();
    if (edge < 2 || edge > 150) return;
    Note("drag a divider");
    desktop_.Drag(*list_, {edge, 1}, {edge + Number(-80, 120), Number(0, 60)}, 4);
    LookForOddRange();
}

void Soak::Resize() {
    const Placement place{Number(0, 20), Number(0, 20), Number(60, 260), Number(40, 200)};
    Note("size " + std::to_string(place.width) + " x " + std::to_string(place.height));
    desktop_.form().Place(*list_, place);
}

// The host.

void Soak::SetGeometry() {
    switch (Number(0, 5)) {
    case 0: list_->GridlineWidth(Number(0, 2)); break;
    case 1: list_->ItemHeight(Number(12, 26)); break;
    case 2: list_->CX_TEXT(Number(0, 2) * 12); break;
    case 3:
        list_->ShowIcon(Chance(2));
        list_->IconHandle(icons_);
        break;
    case 4:
        list_->IconCX(Number(0, 2));
        list_->IconCY(list_->IconCX());
        break;
    default: list_->HeaderHeight(Number(0, 2) * 12);
    }
    list_->Refresh(); // some of them only store
}

void Soak::SetColumns() {
    const std::int32_t count = list_->HeaderCount();
    switch (Number(0, 4)) {
    case 0:
        list_->HeaderWidths(std::to_string(Number(10, 200)) + "-" + std::to_string(Number(10, 200)));
        break;
    case 1:
        if (count < 5) list_->HeaderAdd(0, "more", Number(10, 120));
        break;
    case 2: list_->HeaderCount(Number(1, 4)); break;
    case 3: {
        auto column = list_->HeaderGet(count);
        column.Alignment = static_cast<std::int16_t>(Number(0, 2));
        column.text = std::to_string(Number(0, 999));
        list_->HeaderSet(count, column);
        break;
    }
    default: list_->HeaderFlag(Chance(2) ? vflag::Bold : 0);
    }
    list_->Refresh();
}

void Soak::SetLooks() {
    switch (Number(0, 6)) {
    case 0: list_->SelectedColor(Number(0, 0xFFFFFF)); break;
    case 1: list_->BackColor(Number(0, 0xFFFFFF) & 0xFFFEFF); break;
    case 2: list_->IconBorderColor(Number(0, 0xFFFFFF)); break;
    case 3: list_->ClearText(std::to_string(Number(0, 99)) + " rows"); break;
    case 4: list_->CacheSize(Number(100, 300)); break;
    case 5: list_->ClearItemData(Number(0, 9)); break;
    default: list_->DrawItem(Number(0, list_->Count()));
    }
}

void Soak::SetModes() {
    switch (Number(0, 5)) {
    case 0: list_->HotTrack(Chance(2)); break;
    case 1: list_->BufAddItemOnly(Chance(3)); break; // what waited comes with the next add or refresh
    case 2:
        list_->MultiSelect(feed_.MultiSelect); // ends a range
        break;
    case 3:
        if (feed_.MultiSelect == 1) list_->ClearSelected();
        break;
    case 4:
        if (feed_.both) {
            list_->ViewMode(static_cast<std::int16_t>(Number(0, 2)));
            list_->Refresh();
        }
        break;
    default: list_->ListIndex(Number(0, list_->Count()));
    }
    LookForOddRange();
}

void Soak::Lock() {
    Note("lock, and unlock with a repaint");
    list_->LockedPaint(true);
    for (std::int32_t i = Number(1, 4); i > 0; --i) {
        Burst(Number(1, 10));
        desktop_.Wheel(Number(-3, 3));
    }
    list_->LockedPaint(false);
    list_->PaintAll();
}

void Soak::Act() {
    const std::int32_t kind = Number(0, 99);
    if (kind < 14) {
        const std::int32_t notches = Number(-4, 4);
        Note("wheel " + std::to_string(notches));
        desktop_.MoveTo(*list_, 20, 20);
        LookForOddRange();
        desktop_.Wheel(notches);
    } else if (kind < 26) {
        UseKeys();
    } else if (kind < 40 && !thumbHeld_) {
        UseMouse();
    } else if (kind < 56 && !thumbHeld_) {
        UseBars();
    } else if (kind < 60 && !thumbHeld_) {
        DragDivider();
    } else if (kind < 66) {
        Resize();
    } else if (kind < 70) {
        Note("geometry");
        SetGeometry();
    } else if (kind < 74) {
        Note("columns");
        SetColumns();
    } else if (kind < 79) {
        Note("looks");
        SetLooks();
    } else if (kind < 90) {
        Note("modes");
        SetModes();
    } else if (kind < 92) {
        Lock();
    } else if (kind < 94 && Chance(4)) {
        Shrink();
    }
}

void Soak::Step() {
    desktop_.clock().now += std::chrono::milliseconds(Number(0, 40));
    if (Chance(2)) Burst(Number(1, feed_.largestBurst));
    Act();
    if (thumbHeld_) {
        MoveThumb();
        if (Chance(12)) LetThumbGo();
    }
    desktop_.Pump();
    LookForOddRange();
}

// What has to hold.

/// A range whose one end is not the current row, or is not set, changes by rules that repaint only the rows
/// that they name: a range left open selects rows from the first one on, and the current row may have moved
/// without it. Those rows look so with their next repaint, and the range has to end before the picture counts
/// again.
void Soak::LookForOddRange() {
    const std::int32_t from = list_->StartSelected(), to = list_->EndSelected(), at = list_->ListIndex();
    if ((at != from && at != to) || (from == 0 && to != 0)) odd_ = true;
}

std::string Soak::BrokenNumbers() {
    const host::MessageHook& hook = Hook();
    const auto all = static_cast<std::int32_t>(values_.size());
    if (list_->Count() > all) return "no row is counted twice";
    if (!Waits() && list_->Count() != all) return "after a refresh no row waits";
    if (hook.ScrollValue() < 0 || hook.ScrollValue() > hook.ScrollMax()) return "the position is in range";
    if (hook.ScrollBarShown() && hook.ScrollMax() != std::max(list_->Count() - list_->yn(), 0))
        return "the bar spans the rows";
    if (list_->ListIndex() < 0 || list_->ListIndex() > list_->Count())
        return "the current row is one of the rows";
    if (feed_.file && all > 0) {
        for (int i = 0; i < 3; ++i) {
            const std::int32_t row = Number(1, all);
            if (list_->FileBufValue(row) != values_[static_cast<std::size_t>(row) - 1])
                return "row " + std::to_string(row) + " has its value";
        }
    }
    return {};
}

/// Fills the client area with a colour of its own.
void Soak::Poison() {
    host::Platform& platform = desktop_.desktop().OwnPlatform();
    const host::Handle brush = platform.CreateSolidBrush(cShownAsPoison);
    platform.FillRect(desktop_.form().ComponentOf(*list_).hDC(), {0, 0, 1000, 1000}, brush);
    platform.DeleteObject(brush);
}

std::string Soak::BrokenPicture() {
    const auto shown = desktop_.Pixels(*list_);
    Poison();
    list_->PaintAll();
    const auto full = desktop_.Pixels(*list_);
    if (shown.size() != full.size()) return "the picture keeps its size";
    const tvok_Rect area = Window().clientArea();
    const auto width = static_cast<std::size_t>(std::max(area.Right - area.Left, 1));
    bool left = false;
    for (std::size_t i = 0; i < full.size(); ++i) {
        // The second line of a wide gap belongs to nobody, and so may hold anything.
        const bool unpainted = full[i] == static_cast<std::uint32_t>(cShownAsPoison);
        left = left || unpainted;
        if (!unpainted && full[i] != shown[i])
            return "a full repaint changes pixel " + std::to_string(i % width) + "," +
                   std::to_string(i / width);
    }
    // Columns that became narrow leave the band's end to a bar that went off at its position.
    const bool covers = list_->GridlineWidth() < 2 && Hook().ScrollHValue() == 0;
    if (covers && left) return "a full repaint reaches every pixel";
    return {};
}

std::string Soak::Broken() {
    if (!broken_.empty()) return broken_;
    if (odd_) {
        odd_ = false;
        list_->MultiSelect(feed_.MultiSelect); // ends the range and repaints
    }
    const bool waited = list_->Count() < static_cast<std::int32_t>(values_.size());
    if (stale_ || waited) list_->Refresh();
    stale_ = false;
    if (const auto broken = BrokenNumbers(); !broken.empty()) return broken;
    return BrokenPicture();
}

class LargeListSoak : public testing::TestWithParam<Feed> {};

TEST_P(LargeListSoak, ShowsWhatAFullRepaintShows) {
    const std::uint32_t seed = FromEnvironment("TVOK_RANDOM_SEED", 20);
    const std::uint32_t rows = FromEnvironment("TVOK_SOAK_ROWS", 4000);
    RecordProperty("seed", static_cast<int>(seed));
    Soak soak(GetParam(), seed, rows);
    std::uint32_t step = 0;
    for (; !soak.IsFed(); ++step) {
        ASSERT_NO_THROW(soak.Step()) << "seed " << seed << ", step " << step << ", " << soak.Deeds();
        const std::string broken = soak.Broken();
        ASSERT_EQ(broken, "") << "seed " << seed << ", step " << step << ", " << soak.Deeds();
    }
    EXPECT_GT(step, rows / 100);
}

INSTANTIATE_TEST_SUITE_P(
    Feeds, LargeListSoak,
    testing::Values(Feed{.name = "Top", .top = true, .columns = 2}, Feed{.name = "Bottom", .file = true},
                    Feed{.name = "TopRange", .top = true, .file = true, .MultiSelect = 1, .columns = 3},
                    Feed{.name = "BottomRange", .MultiSelect = 1, .columns = 4},
                    Feed{.name = "BothEnds", .both = true, .file = true, .MultiSelect = 1, .columns = 3},
                    Feed{.name = "FewRows", .top = true, .both = true, .columns = 1, .largestBurst = 1}),
    [](const testing::TestParamInfo<Feed>& info) { return std::string(info.param.name); });

} // namespace
} // namespace tvok::test
