/// The range of selected rows, state by state. Off: no range. Range: both ends set. Open: an anchor without
/// an end. Empty: a range without ends.
#include <random>

#include "tests/support/FakeLargeList.h"

namespace tvok::test {
namespace {

constexpr std::int32_t cShiftKey = 1, cShift = 4, cControl = 8;

struct RangeList : FakeLargeList {
    explicit RangeList(std::int32_t current = 3, std::int32_t rows = 100)
        : FakeLargeList({.MultiSelect = 1}, rows) {
        if (current > 0) list.ListIndex(current);
        Forget();
    }
    std::pair<std::int32_t, std::int32_t> Ends() const { return {list.StartSelected(), list.EndSelected()}; }
    /// The rows among 1 to 5 that are painted as selected.
    Rows Painted() {
        Rows rows;
        for (std::int32_t row = 1; row <= 5; ++row)
            if (SelectedWhenPainted(row)) rows.push_back(row);
        return rows;
    }
    void MakeRange() { Key(40, cShiftKey); } ///< From the current row to the next.
};

using Ends = std::pair<std::int32_t, std::int32_t>;

TEST(LargeListRange, OffShiftWithAKeyStartsARangeAtTheOldRow) {
    RangeList f;
    f.Key(40, cShiftKey);
    EXPECT_EQ(f.TakeEvents(), (Lines{}));
    EXPECT_EQ(f.Ends(), Ends(3, 4));
    EXPECT_EQ(f.list.ListIndex(), 4);
    EXPECT_EQ(f.Painted(), (Rows{3, 4}));
}

TEST(LargeListRange, OffShiftWithAKeyThatMovesNothingLeavesItOpen) {
    RangeList f(1);
    f.Key(38, cShiftKey);
    EXPECT_EQ(f.Ends(), Ends(0, 1));
    f.Key(36, cShiftKey);
    EXPECT_EQ(f.Ends(), Ends(0, 1));
}

TEST(LargeListRange, AnOpenRangePaintsFromTheFirstRowToTheAnchor) {
    RangeList f(3);
    f.Key(65, cShiftKey); // no navigation key
    EXPECT_EQ(f.Ends(), Ends(0, 3));
    EXPECT_EQ(f.Painted(), (Rows{1, 2, 3}));
    f.Key(40, cShiftKey);
    EXPECT_EQ(f.Ends(), Ends(3, 4));
    EXPECT_EQ(f.Painted(), (Rows{3, 4}));
}

TEST(LargeListRange, OffShiftWithAPressStartsARange) {
    RangeList f(4);
    f.PressSlot(2, cShift);
    EXPECT_EQ(f.TakeEvents(), (Lines{}));
    EXPECT_EQ(f.Ends(), Ends(2, 4));
    EXPECT_EQ(f.list.ListIndex(), 2);
    f.Release(50, 30, cShift);
    EXPECT_EQ(f.TakeEvents(), (Lines{"Click 2"}));
}

TEST(LargeListRange, OffShiftWithAPressWithoutACurrentRowMarksTheRowItself) {
    RangeList f(0);
    f.PressSlot(2, cShift);
    EXPECT_EQ(f.Ends(), Ends(2, 2));
}

TEST(LargeListRange, AShiftPressBesideTheRowsStartsNothing) {
    RangeList f(2, 3);
    f.PressSlot(5, cShift);
    EXPECT_EQ(f.Ends(), Ends(2, 2));
    f.list.ListIndex(1);
    EXPECT_EQ(f.Ends(), Ends(1, 1));
}

TEST(LargeListRange, OffADragOntoAnotherRowStartsARangeAndGivesNoClick) {
    RangeList f(0);
    f.PressSlot(2);
    EXPECT_EQ(f.TakeEvents(), (Lines{"Change 2"}));
    EXPECT_EQ(f.Ends(), Ends(2, 2));
    f.MoveToSlot(3);
    EXPECT_EQ(f.Ends(), Ends(2, 3));
    f.Release(50, 50);
    EXPECT_EQ(f.TakeEvents(), (Lines{}));
}

TEST(LargeListRange, AMoveOnThePressedRowMakesARangeOfThatRow) {
    RangeList f(0);
    f.PressSlot(2);
    f.Move(60, 32);
    f.list.MultiSelect(0); // ends a range that exists, with a repaint
    EXPECT_FALSE(f.TakeAsked().empty());
    f.list.MultiSelect(1);
    f.Release(50, 30);
    EXPECT_EQ(f.TakeEvents(), (Lines{"Change 2", "Click 2"}));
}

TEST(LargeListRange, ARangeFollowsKeysAndKeepsItsAnchor) {
    RangeList f;
    f.MakeRange();
    f.Key(40, cShiftKey);
    EXPECT_EQ(f.Ends(), Ends(3, 5));
    f.Key(36, cShiftKey);
    EXPECT_EQ(f.Ends(), Ends(1, 3));
    f.Key(35, cShiftKey);
    EXPECT_EQ(f.Ends(), Ends(3, 100));
    EXPECT_EQ(f.TakeEvents(), (Lines{}));
}

TEST(LargeListRange, ARangeFollowsADragAndPressesWithShift) {
    RangeList f(0);
    f.PressSlot(2);
    f.MoveToSlot(4);
    f.MoveToSlot(1);
    EXPECT_EQ(f.Ends(), Ends(1, 2));
    f.Release(50, 10);
    f.PressSlot(5, cShift);
    EXPECT_EQ(f.Ends(), Ends(2, 5));
}

TEST(LargeListRange, AKeyWithoutShiftEndsItAndMoves) {
    RangeList f;
    f.MakeRange();
    f.Forget();
    f.Key(40);
    EXPECT_EQ(f.list.ListIndex(), 5);
    EXPECT_EQ(f.Ends(), Ends(5, 5));
    EXPECT_EQ(f.TakeEvents(), (Lines{"Change 5"}));
    f.MakeRange();
    f.Key(65); // any key without Shift
    EXPECT_EQ(f.Ends(), Ends(6, 6));
}

TEST(LargeListRange, APressWithoutShiftEndsItAndMoves) {
    RangeList f;
    f.MakeRange();
    f.PressSlot(1);
    EXPECT_EQ(f.Ends(), Ends(1, 1));
    EXPECT_EQ(f.TakeEvents(), (Lines{"Change 1"}));
}

TEST(LargeListRange, WritingMultiSelectEndsItAndOtherValuesAreIgnored) {
    RangeList f;
    f.MakeRange();
    f.Forget();
    f.list.MultiSelect(2);
    f.list.MultiSelect(-1);
    EXPECT_EQ(f.list.MultiSelect(), 1);
    EXPECT_EQ(f.Ends(), Ends(3, 4));
    EXPECT_TRUE(f.log().All().empty());
    f.list.MultiSelect(1);
    EXPECT_EQ(f.Ends(), Ends(4, 4));
    EXPECT_EQ(f.TakeAsked(), (Rows{1, 2, 3, 4, 5}));
    f.list.MultiSelect(0);
    EXPECT_TRUE(f.asked.empty());
    EXPECT_EQ(f.list.MultiSelect(), 0);
}

TEST(LargeListRange, ClearSelectedLeavesItEmptyAndRepaintsInAnyCase) {
    RangeList f;
    f.MakeRange();
    f.Forget();
    f.list.ClearSelected(false);
    EXPECT_EQ(f.TakeAsked(), (Rows{1, 2, 3, 4, 5}));
    EXPECT_EQ(f.Ends(), Ends(0, 0));
    EXPECT_EQ(f.Painted(), (Rows{4})); // the current row alone
}

TEST(LargeListRange, EmptyShiftWithAKeyHasNoAnchorAndPaintsFromTheFirstRow) {
    RangeList f(2);
    f.MakeRange();
    f.list.ClearSelected();
    f.Key(40, cShiftKey);
    EXPECT_EQ(f.Ends(), Ends(0, 4));
    EXPECT_EQ(f.Painted(), (Rows{1, 2, 3, 4}));
}

TEST(LargeListRange, EmptyADragSetsTheAnchorAgain) {
    RangeList f(2);
    f.PressSlot(2);
    f.MoveToSlot(3);
    f.list.ClearSelected();
    f.MoveToSlot(5);
    EXPECT_EQ(f.Ends(), Ends(3, 5));
}

TEST(LargeListRange, EmptyAKeyOrPressWithoutShiftEndsIt) {
    for (const bool press : {false, true}) {
        RangeList f;
        f.MakeRange();
        f.list.ClearSelected();
        press ? f.PressSlot(5) : f.Key(40);
        EXPECT_EQ(f.Ends(), Ends(5, 5));
    }
}

TEST(LargeListRange, ClearLeavesItEmpty) {
    RangeList f;
    f.MakeRange();
    f.list.Clear();
    f.list.Count(10);
    EXPECT_EQ(f.Ends(), Ends(0, 0));
    f.list.ListIndex(3);
    EXPECT_EQ(f.Ends(), Ends(0, 0)); // still a range
    f.Key(40);
    EXPECT_EQ(f.Ends(), Ends(4, 4));
}

TEST(LargeListRange, AShortStepRepaintsOnlyTheRowsBetween) {
    RangeList f(1);
    f.Key(40, cShiftKey);
    EXPECT_EQ(f.TakeAsked(), (Rows{1, 2}));
    f.PressSlot(5, cShift);
    EXPECT_EQ(f.TakeAsked(), (Rows{2, 3, 4, 5}));
    f.PressSlot(3, cShift);
    EXPECT_EQ(f.TakeAsked(), (Rows{5, 4, 3}));
}

TEST(LargeListRange, ARangeOfAMillionRowsPaintsOnePage) {
    RangeList f(1, 1000000);
    f.Key(35, cShiftKey);
    EXPECT_EQ(f.Ends(), Ends(1, 1000000));
    EXPECT_LE(f.asked.size(), 12u);
    EXPECT_TRUE(f.SelectedWhenPainted(999997));
}

TEST(LargeListRange, TheIconStaysPressedAfterTheButtonIsUp) {
    RangeList f;
    f.list.ShowIcon(true);
    f.Press(5, 10);
    f.Release(5, 10);
    EXPECT_TRUE(f.list.MouseDownOnIcon());
    f.Press(5, 10);
    f.MoveToSlot(2);
    EXPECT_FALSE(f.list.MouseDownOnIcon());
}

TEST(LargeListRange, ReleaseScrollsTheRowInBeforeTheClick) {
    FakeLargeList f({.height = 110, .MultiSelect = 1}, 100);
    std::int32_t at = -1;
    f.list.events.Click = [&](std::int32_t) { at = f.hook().ScrollValue(); };
    f.PressSlot(6);
    EXPECT_EQ(f.hook().ScrollValue(), 0);
    f.Release(50, 105);
    EXPECT_EQ(at, 1);
    FakeLargeList single({.height = 110}, 100);
    single.list.events.Click = [&](std::int32_t) { at = single.hook().ScrollValue(); };
    single.PressSlot(6);
    single.Release(50, 105);
    EXPECT_EQ(at, 0);
    EXPECT_EQ(single.hook().ScrollValue(), 1);
}

TEST(LargeListRange, ADoubleClickNeedsFreeModifierKeys) {
    RangeList f;
    f.PressSlot(2);
    f.Release(50, 30);
    f.TakeEvents();
    f.DoubleClick(50, 30, cControl);
    f.DoubleClick(50, 30, cShift);
    EXPECT_EQ(f.TakeEvents(), (Lines{}));
    f.DoubleClick(50, 30);
    f.Release(50, 30);
    EXPECT_EQ(f.TakeEvents(), (Lines{"DblClick 2"}));
}

TEST(LargeListRange, APressOnABarOrAMoveWithoutAPressIsNoDrag) {
    RangeList f(1);
    f.MoveToSlot(4);
    EXPECT_EQ(f.Ends(), Ends(1, 1));
    for (const std::int32_t message : {161, 162, 163}) {
        f.PressSlot(1);
        f.Send(message, 0, 0, 0);
        f.MoveToSlot(4);
        EXPECT_EQ(f.Ends(), Ends(1, 1));
    }
    f.PressSlot(1);
    f.MoveToSlot(4, 0);
    EXPECT_EQ(f.Ends(), Ends(1, 1));
}

TEST(LargeListRange, ADragFollowsRowsThatArriveUnderThePointer) {
    RangeList f(0);
    f.list.ViewMode(0);
    f.list.Refresh();
    f.PressSlot(2); // row 99
    f.MoveToSlot(3);
    EXPECT_EQ(f.Ends(), Ends(98, 99));
    f.list.AddItemTop();
    EXPECT_EQ(f.list.ListIndex(), 99);
    EXPECT_EQ(f.Ends(), Ends(99, 99));
    f.list.AddItemTop();
    EXPECT_EQ(f.Ends(), Ends(99, 100));
    f.Release(50, 50);
    f.list.AddItemTop();
    EXPECT_EQ(f.Ends(), Ends(99, 100));
}

TEST(LargeListRange, ADragAboveTheListExtendsOneRowForEachMessage) {
    RangeList f(0);
    f.hook().ScrollValue(50);
    f.PressSlot(1);
    f.Move(50, -9);
    f.Move(50, -9);
    EXPECT_EQ(f.Ends(), Ends(49, 51));
    EXPECT_EQ(f.hook().ScrollValue(), 48);
}

TEST(LargeListRange, OffShiftWithAKeyWithoutACurrentRowHasNoAnchor) {
    RangeList f(0);
    f.Key(40, cShiftKey);
    EXPECT_EQ(f.Ends(), Ends(0, 1));
    f.Key(40, cShiftKey);
    EXPECT_EQ(f.Ends(), Ends(0, 2));
    EXPECT_EQ(f.Painted(), (Rows{1, 2}));
}

TEST(LargeListRange, OffADragThatBeginsBelowTheRowsStartsAtTheFirstRowItMeets) {
    RangeList f(0, 3);
    f.PressSlot(5);
    f.MoveToSlot(2);
    EXPECT_EQ(f.Ends(), Ends(2, 2));
    f.MoveToSlot(1);
    EXPECT_EQ(f.Ends(), Ends(1, 2));
    EXPECT_EQ(f.TakeEvents(), (Lines{}));
}

TEST(LargeListRange, OffClearSelectedStaysOff) {
    RangeList f(3);
    f.list.ClearSelected();
    EXPECT_EQ(f.Ends(), Ends(3, 3));
    f.list.ListIndex(4);
    EXPECT_EQ(f.Ends(), Ends(4, 4));
}

TEST(LargeListRange, OffKeysAndPressesWithoutShiftMoveTheRowAlone) {
    RangeList f(3);
    f.Key(40);
    EXPECT_EQ(f.Ends(), Ends(4, 4));
    f.PressSlot(2);
    EXPECT_EQ(f.Ends(), Ends(2, 2));
    EXPECT_EQ(f.TakeEvents(), (Lines{"Change 4", "Change 2"}));
    EXPECT_EQ(f.Painted(), (Rows{2}));
}

TEST(LargeListRange, ARangeKeepsItsAnchorWhenTheCurrentRowIsWritten) {
    RangeList f(2);
    f.MakeRange();
    f.list.ListIndex(5);
    EXPECT_EQ(f.TakeEvents(), (Lines{"Change 5"}));
    EXPECT_EQ(f.Ends(), Ends(2, 3));
    f.Key(40, cShiftKey);
    EXPECT_EQ(f.Ends(), Ends(2, 6));
}

TEST(LargeListRange, ADragOnTheRowItHasReachedRepaintsNothing) {
    RangeList f(0);
    f.PressSlot(2);
    f.MoveToSlot(4);
    f.Forget();
    f.Move(80, 75);
    EXPECT_TRUE(f.asked.empty());
    EXPECT_EQ(f.Ends(), Ends(2, 4));
}

TEST(LargeListRange, OpenAPressWithShiftKeepsTheAnchor) {
    RangeList f(3);
    f.Key(65, cShiftKey);
    f.PressSlot(5, cShift);
    EXPECT_EQ(f.Ends(), Ends(3, 5));
    f.MoveToSlot(1);
    EXPECT_EQ(f.Ends(), Ends(1, 3));
}

TEST(LargeListRange, OpenStaysOpenOverRepaintsAndEndsAsARangeDoes) {
    const std::vector<std::function<void(RangeList&)>> ends{
        [](RangeList& f) { f.Key(65); }, [](RangeList& f) { f.PressSlot(3); },
        [](RangeList& f) { f.list.MultiSelect(0); }, [](RangeList& f) { f.list.MultiSelect(1); }};
    for (const auto& end : ends) {
        RangeList f(3);
        f.Key(65, cShiftKey);
        f.list.PaintAll();
        f.list.Refresh();
        EXPECT_EQ(f.Ends(), Ends(0, 3));
        end(f);
        EXPECT_EQ(f.Ends(), Ends(3, 3));
        f.list.ListIndex(4);
        EXPECT_EQ(f.Ends(), Ends(4, 4)); // no range any more
    }
}

TEST(LargeListRange, OpenClearSelectedLeavesItEmpty) {
    RangeList f(3);
    f.Key(65, cShiftKey);
    f.list.ClearSelected();
    EXPECT_EQ(f.Ends(), Ends(0, 0));
    EXPECT_EQ(f.Painted(), (Rows{3}));
}

TEST(LargeListRange, EmptyAPressWithShiftSetsTheAnchorAgain) {
    RangeList f(2);
    f.MakeRange();
    f.list.ClearSelected();
    f.PressSlot(5, cShift);
    EXPECT_EQ(f.Ends(), Ends(3, 5));
}

TEST(LargeListRange, EmptyWritingMultiSelectEndsIt) {
    RangeList f(2);
    f.MakeRange();
    f.list.ClearSelected();
    f.list.MultiSelect(1);
    EXPECT_EQ(f.Ends(), Ends(3, 3));
}

TEST(LargeListRange, ARangeThatAHandlerMakesDuringAPressLosesItsEnds) {
    RangeList f(3);
    f.list.events.Change = [&](std::int32_t) {
        f.list.events.Change = nullptr;
        f.MakeRange();
    };
    f.PressSlot(1);
    EXPECT_EQ(f.Ends(), Ends(0, 0));
}

TEST(LargeListRange, ASpanOfOnePageIsDrawnRowByRowAndMoreInOneRepaint) {
    RangeList f(1);
    f.Key(34, cShiftKey); // from row 1 to row 6: the page and the slot below it
    EXPECT_EQ(f.TakeAsked(), (Rows{1, 2, 3, 4, 5, 6}));
    RangeList longer(1);
    longer.list.KeySeek(true);
    longer.list.events.KeySeek = [](std::int16_t, std::int32_t, std::int32_t& row) { row = 7; };
    longer.Key(65, cShiftKey);
    EXPECT_EQ(longer.TakeAsked(), (Rows{1, 2, 3, 4, 5, 6})); // the last of them scrolled in
    EXPECT_EQ(longer.TakeScrolls(), (Rows{-20}));
}

TEST(LargeListRange, ARowIsPartOfARangeByTheNumberThatItsHandlerLeaves) {
    RangeList f(2);
    f.MakeRange();
    f.fill = [](std::int32_t& row, qrosterdata& x) {
        x = {.text = "x", .bColor = 1};
        if (row == 5) row = 2;
        if (row == 1) row = 4;
    };
    EXPECT_EQ(f.Painted(), (Rows{2, 3, 5}));
}

/// The state machine as its table says it, for pages that are never left.
struct Model {
    std::int32_t rows, current = 0, anchor = 0, end = 0;
    bool active = false;

    void Off() {
        active = false;
        anchor = end = 0;
    }
    void Start(std::int32_t old) {
        if (anchor == 0) anchor = old > 0 ? old : current;
    }
    void Key(std::int32_t target, bool shift) {
        if (shift && !active) {
            active = true;
            Start(current);
        }
        if (!shift && active) Off();
        if (target == current) return;
        current = target;
        if (active) end = current;
    }
    void Press(std::int32_t row, bool shift) {
        const std::int32_t old = current;
        current = row;
        if (!shift) return Off();
        active = true;
        Start(old);
        end = current;
    }
    void Drag(std::int32_t row) {
        const std::int32_t old = current;
        current = row;
        Start(old);
        if (row == end) return;
        active = true;
        end = row;
    }
    Ends Selected() const { return active ? Ends(std::minmax(anchor, end)) : Ends(current, current); }
};

TEST(LargeListRange, ARandomWalkAgreesWithThePlainTable) {
    std::mt19937 random(4711);
    const auto pick = [&](std::int32_t below) {
        return static_cast<std::int32_t>(random() % static_cast<std::uint32_t>(below));
    };
    RangeList f(0, 5);
    Model model{.rows = 5};
    bool pressed = false;
    for (int step = 0; step < 4000; ++step) {
        const bool shift = pick(2) == 0;
        const std::int32_t row = 1 + pick(5);
        switch (pick(7)) {
        case 0:
            f.Key(36, shift ? 1 : 0);
            model.Key(1, shift);
            break;
        case 1:
            f.Key(35, shift ? 1 : 0);
            model.Key(5, shift);
            break;
        case 2:
            f.Key(40, shift ? 1 : 0);
            model.Key(std::min(5, model.current + 1), shift);
            break;
        case 3:
            f.PressSlot(row, shift ? cShift : 0);
            model.Press(row, shift);
            pressed = true;
            break;
        case 4:
            f.MoveToSlot(row);
            if (pressed) model.Drag(row);
            break;
        case 5:
            f.Release(50, row * 20 - 10);
            pressed = false;
            break;
        default: f.list.ClearSelected(); model.anchor = model.end = 0;
        }
        ASSERT_EQ(f.list.ListIndex(), model.current) << step;
        ASSERT_EQ(f.Ends(), model.Selected()) << step;
        f.Forget();
    }
}

} // namespace
} // namespace tvok::test
