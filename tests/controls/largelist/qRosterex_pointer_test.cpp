/// Keys and the pointer on a `qRosterex` where little happens, or something unexpected: keys that the host
/// answers, rows under a pointer without a button, dividers, and rows that cannot be shown.
#include "tests/support/FakeLargeList.h"

namespace tvok::test {
namespace {

constexpr std::int32_t cShiftKey = 1, cShift = 4;

void AnswerSeek(FakeLargeList& f, std::int32_t answer) {
    f.list.KeySeek(true);
    f.list.events.KeySeek = [answer](std::int16_t, std::int32_t, std::int32_t& row) {
        EXPECT_EQ(row, 0);
        row = answer;
    };
}

TEST(LargeListSeek, ShiftAloneIsAKeyLikeOthersOnTheSinglePath) {
    FakeLargeList f({}, 10);
    f.list.KeySeek(true);
    f.Key(16, cShiftKey);
    f.Key(17);
    EXPECT_EQ(f.TakeEvents(), (Lines{"KeySeek 16 0", "KeySeek 17 0"}));
}

TEST(LargeListSeek, AnswersThatAreNoRowMoveNothing) {
    for (const std::int32_t multi : {0, 1}) {
        FakeLargeList f({.MultiSelect = multi}, 100);
        f.list.ListIndex(4);
        f.Forget();
        AnswerSeek(f, -3);
        f.Key(65);
        EXPECT_EQ(f.TakeEvents(), (Lines{}));
        AnswerSeek(f, 101); // the click names what the host said
        f.Key(65);
        EXPECT_EQ(f.list.ListIndex(), 4);
        EXPECT_EQ(f.TakeEvents(), multi == 0 ? (Lines{"Click 101"}) : (Lines{}));
        AnswerSeek(f, 4);
        f.Key(65);
        EXPECT_EQ(f.TakeEvents(), (Lines{}));
    }
}

TEST(LargeListSeek, AnAnswerExtendsARangeInSilence) {
    FakeLargeList f({.MultiSelect = 1}, 100);
    f.list.ListIndex(4);
    f.Forget();
    AnswerSeek(f, 70);
    f.Key(65, cShiftKey);
    EXPECT_EQ(f.list.ListIndex(), 70);
    EXPECT_EQ(f.list.StartSelected(), 4);
    EXPECT_EQ(f.list.EndSelected(), 70);
    EXPECT_EQ(f.TakeEvents(), (Lines{}));
}

TEST(LargeListSeek, TheSwitchIsLookedAtForOtherKeysAlone) {
    for (const std::int32_t multi : {0, 1}) {
        FakeLargeList f({.MultiSelect = multi}, 100);
        f.list.KeySeek(true);
        for (const std::int32_t key : {33, 34, 35, 36, 37, 38, 39, 40}) f.Key(key);
        for (const auto& line : f.TakeEvents()) EXPECT_FALSE(line.starts_with("KeySeek")) << line;
        f.Key(32);
        f.Key(41);
        EXPECT_EQ(f.TakeEvents().size(), 2u);
    }
}

TEST(LargeListKeyEdges, AKeyThatMovesNothingShowsTheCurrentRow) {
    for (const std::int32_t multi : {0, 1}) {
        FakeLargeList f({.MultiSelect = multi}, 100);
        f.list.ListIndex(1);
        f.hook().ScrollValue(50);
        f.Forget();
        f.Key(65);
        EXPECT_EQ(f.hook().ScrollValue(), multi == 0 ? 50 : 0); // the range path shows it on any key
        f.hook().ScrollValue(50);
        f.Key(38);
        EXPECT_EQ(f.hook().ScrollValue(), 0);
        EXPECT_EQ(f.TakeEvents(), (Lines{}));
    }
}

TEST(LargeListKeyEdges, ShiftMeansNothingOnTheSinglePath) {
    FakeLargeList f({}, 100);
    f.list.ListIndex(3);
    f.Forget();
    f.Key(40, cShiftKey);
    EXPECT_EQ(f.TakeEvents(), (Lines{"Change 4", "Click 4"}));
    EXPECT_EQ(f.list.StartSelected(), 4);
    f.PressSlot(2, cShift);
    EXPECT_EQ(f.TakeEvents(), (Lines{"Change 2"}));
    EXPECT_EQ(f.list.StartSelected(), 2);
}

TEST(LargeListKeyEdges, AHandlerCancelsAKeyOnTheRangePathAndTakesTheShiftAway) {
    FakeLargeList f({.MultiSelect = 1}, 100);
    f.list.ListIndex(3);
    f.list.events.KeyDown = [](std::int16_t& key, std::int16_t&) { key = 0; };
    f.Key(40, cShiftKey);
    EXPECT_EQ(f.list.ListIndex(), 3);
    f.list.events.KeyDown = [](std::int16_t&, std::int16_t& shift) { shift = 0; };
    f.Key(40, cShiftKey);
    EXPECT_EQ(f.list.StartSelected(), 4);
}

TEST(LargeListShow, AKeyOntoTheCutOffRowShowsItWholeInBothPaths) {
    for (const std::int32_t multi : {0, 1}) {
        FakeLargeList f({.height = 110, .MultiSelect = multi}, 100);
        f.list.ListIndex(5);
        EXPECT_EQ(f.hook().ScrollValue(), 0);
        f.Key(40);
        EXPECT_EQ(f.hook().ScrollValue(), 1);
    }
}

TEST(LargeListShow, AListWithoutAWholeRowDoesNotScroll) {
    FakeLargeList f({.height = 15}, 10);
    f.list.ListIndex(4);
    EXPECT_EQ(f.list.ListIndex(), 4);
    EXPECT_EQ(f.hook().ScrollValue(), 0);
    f.list.MultiSelect(1);
    f.Key(40, cShiftKey); // shows a row that may be cut off
    EXPECT_EQ(f.hook().ScrollValue(), 4);
}

TEST(LargeListShow, APositionThatTheBarDoesNotTakeIsWrittenTwice) {
    FakeLargeList f;
    f.list.BufAddItemOnly(true);
    for (int i = 0; i < 8; ++i) f.list.AddItemButtom();
    f.list.BufAddItemOnly(false);
    f.hook().events.EndScroll(0); // counts them without a bar
    f.Forget();
    f.list.ListIndex(8);
    EXPECT_EQ(f.TakeHookWrites(), (Lines{"ScrollValue 3", "ScrollValue 3"}));
    f.list.Refresh();
    f.Forget();
    f.list.ListIndex(8);
    EXPECT_EQ(f.TakeHookWrites(), (Lines{"ScrollValue 3"}));
}

TEST(LargeListShow, TheFarEndWithTheNewestAtTheTopIsRowOne) {
    FakeLargeList f({.height = 110}, 7);
    f.list.ViewMode(0);
    f.list.Refresh();
    f.PressSlot(6); // row 2, cut off
    EXPECT_EQ(f.list.ListIndex(), 2);
    EXPECT_EQ(f.hook().ScrollValue(), 0);
    f.Release(50, 105);
    EXPECT_EQ(f.hook().ScrollValue(), 1);
    f.PressSlot(6);
    EXPECT_EQ(f.list.ListIndex(), 1);
    EXPECT_EQ(f.hook().ScrollValue(), 2);
}

TEST(LargeListShow, ARangeAcceptsTheCutOffRowButAtTheFarEnd) {
    for (const std::int16_t mode : {std::int16_t{0}, std::int16_t{1}}) {
        FakeLargeList f({.height = 110, .MultiSelect = 1}, 7);
        f.list.ViewMode(mode);
        f.list.Refresh();
        f.PressSlot(5);
        f.Move(50, 105);
        EXPECT_EQ(f.list.ListIndex(), mode == 0 ? 2 : 6);
        EXPECT_EQ(f.hook().ScrollValue(), 0);
        f.MoveToSlot(5);
        f.hook().ScrollValue(1);
        f.Move(50, 105);
        EXPECT_EQ(f.list.ListIndex(), mode == 0 ? 1 : 7);
        EXPECT_EQ(f.hook().ScrollValue(), 2);
    }
}

TEST(LargeListShow, RowsAboveThePageComeToItsTopInBothModes) {
    for (const std::int16_t mode : {std::int16_t{0}, std::int16_t{1}}) {
        FakeLargeList f({}, 100);
        f.list.ViewMode(mode);
        f.list.Refresh();
        f.hook().ScrollValue(50);
        f.list.ListIndex(mode == 0 ? 80 : 21);
        EXPECT_EQ(f.hook().ScrollValue(), 20);
        f.list.ListIndex(mode == 0 ? 76 : 25); // on the page's last slot
        EXPECT_EQ(f.hook().ScrollValue(), 20);
        f.list.ListIndex(mode == 0 ? 75 : 26);
        EXPECT_EQ(f.hook().ScrollValue(), 21);
    }
}

TEST(LargeListHover, CrossingARowCountsAsAPressOnIt) {
    FakeLargeList f({.HotTrack = true}, 100);
    f.list.ListIndex(3);
    f.Forget();
    f.MoveToSlot(3, 0);
    f.Release(); // the pointer rests on the current row: nothing was pressed
    EXPECT_EQ(f.TakeEvents(), (Lines{}));
    f.MoveToSlot(2, 0);
    f.Release();
    EXPECT_EQ(f.TakeEvents(), (Lines{"Change 2", "Click 2"}));
}

TEST(LargeListHover, ThePointerIsTakenIntoTheListSidewaysAlone) {
    FakeLargeList f({.HotTrack = true}, 100);
    f.Move(-40, 30, 0);
    EXPECT_EQ(f.list.ListIndex(), 2);
    f.Move(900, 50, 0);
    EXPECT_EQ(f.list.ListIndex(), 3);
    f.Move(50, -1, 0);
    EXPECT_EQ(f.list.ListIndex(), 3);
    f.Move(50, 100, 0);
    EXPECT_EQ(f.list.ListIndex(), 3);
    f.list.HotTrack(false);
    f.Move(50, 70, 0);
    EXPECT_EQ(f.list.ListIndex(), 3);
}

TEST(LargeListHover, AnEmptyListHasNoRowUnderThePointer) {
    for (const std::int32_t multi : {0, 1}) {
        FakeLargeList f({.MultiSelect = multi, .HotTrack = true});
        f.MoveToSlot(1, 0);
        f.PressSlot(1);
        f.MoveToSlot(2);
        f.Move(50, 500);
        f.Move(50, -500);
        f.Release();
        EXPECT_EQ(f.list.ListIndex(), 0);
        EXPECT_EQ(f.list.EndSelected(), 0);
        EXPECT_EQ(f.TakeEvents(), (Lines{}));
    }
}

TEST(LargeListHover, OnTheRangePathItMovesNothingButLeavesThePress) {
    for (const bool hot : {false, true}) {
        FakeLargeList f({.MultiSelect = 1, .HotTrack = hot}, 100);
        f.list.ShowIcon(true);
        f.Press(5, 10);
        f.Release(5, 10);
        f.MoveToSlot(2, 0);
        EXPECT_EQ(f.list.MouseDownOnIcon(), !hot);
        EXPECT_EQ(f.list.ListIndex(), 1);
        f.Release();
        EXPECT_EQ(f.TakeEvents(),
                  hot ? (Lines{"Change 1", "Click 1"}) : (Lines{"Change 1", "Click 1", "Click 1"}));
    }
}

TEST(LargeListPress, AButtonThatComesInFromOutsideMovesTheCurrentRowOnTheSinglePath) {
    FakeLargeList f({}, 100);
    f.MoveToSlot(2);
    f.MoveToSlot(2);
    f.MoveToSlot(4);
    EXPECT_EQ(f.TakeEvents(), (Lines{"Change 2", "Change 4"}));
}

TEST(LargeListPress, BesideTheRowsForgetsThePressBefore) {
    for (const std::int32_t multi : {0, 1}) {
        FakeLargeList f({.MultiSelect = multi}, 2);
        f.list.ShowIcon(true);
        f.Press(5, 10);
        f.Press(5, 70); // in the icon column, but of no row
        EXPECT_FALSE(f.list.MouseDownOnIcon());
        f.TakeEvents();
        f.DoubleClick(50, 70);
        f.Release();
        EXPECT_EQ(f.TakeEvents(), (Lines{}));
        EXPECT_EQ(f.list.ListIndex(), 1);
    }
}

TEST(LargeListPress, ADoubleClickOnTheCurrentRowShowsItAndChangesNothing) {
    for (const std::int32_t multi : {0, 1}) {
        FakeLargeList f({.height = 110, .MultiSelect = multi}, 100);
        f.PressSlot(6);
        f.TakeEvents();
        std::int32_t at = -1;
        f.list.events.DblClick = [&](std::int32_t row) {
            EXPECT_EQ(row, 6);
            at = f.hook().ScrollValue();
        };
        f.DoubleClick(50, 105);
        EXPECT_EQ(at, 0);
        EXPECT_EQ(f.hook().ScrollValue(), 1);
        EXPECT_EQ(f.TakeEvents(), (Lines{}));
    }
}

TEST(LargeListPress, ADoubleClickOfTheRangePathGoesBackToThePressedRow) {
    FakeLargeList f({.MultiSelect = 1}, 100);
    f.PressSlot(2);
    f.Release();
    f.list.ListIndex(50);
    f.TakeEvents();
    f.DoubleClick(50, 30);
    EXPECT_EQ(f.TakeEvents(), (Lines{"Change 2", "DblClick 2"}));
    EXPECT_EQ(f.hook().ScrollValue(), 1);
}

TEST(LargeListPress, LosingTheCaptureForgetsTheIconOnTheRangePathToo) {
    FakeLargeList f({.MultiSelect = 1}, 100);
    f.list.ShowIcon(true);
    f.Press(5, 10);
    EXPECT_TRUE(f.list.MouseDownOnIcon());
    f.Send(533, 0, 0, 0);
    EXPECT_FALSE(f.list.MouseDownOnIcon());
    f.Press(5, 10, cShift);
    EXPECT_FALSE(f.list.MouseDownOnIcon()); // with Shift the icon is no target
    f.Press(20, 10);
    EXPECT_FALSE(f.list.MouseDownOnIcon());
}

TEST(LargeListPress, TheReleaseEndsADragAlsoForAButtonThatComesBack) {
    FakeLargeList f({.MultiSelect = 1}, 100);
    f.PressSlot(1);
    f.Release();
    f.MoveToSlot(3);
    EXPECT_EQ(f.list.ListIndex(), 1);
    EXPECT_EQ(f.list.EndSelected(), 1);
}

TEST(LargeListPress, TheReleaseOfADragEndsItsReplay) {
    FakeLargeList f({.MultiSelect = 1}, 100);
    f.PressSlot(1);
    f.MoveToSlot(3);
    f.Release();
    f.component.pointer = 5; // which a replay would write
    f.list.AddItemTop();
    EXPECT_EQ(f.component.pointer, 5);
}

TEST(LargeListPress, OnlyTheLeftButtonBesideTheClientAreaEndsADrag) {
    for (const std::int32_t message : {160, 164, 516}) {
        FakeLargeList f({.MultiSelect = 1}, 100);
        f.PressSlot(1);
        f.Send(message, 0, 0, 0);
        f.MoveToSlot(3);
        EXPECT_EQ(f.list.EndSelected(), 3);
    }
}

TEST(LargeListDivider, APressOnItLeavesEverythingElse) {
    for (const std::int32_t multi : {0, 1}) {
        FakeLargeList f({.MultiSelect = multi}, 4);
        f.list.HeaderHeight(20);
        f.list.ShowIcon(true);
        f.list.Refresh();
        f.Press(5, 50); // row 2, and the button comes up elsewhere
        f.TakeEvents();
        f.asked.clear();
        f.Press(100, 10);
        EXPECT_TRUE(f.list.MouseDownOnIcon());
        EXPECT_EQ(f.list.ListIndex(), 2);
        EXPECT_TRUE(f.asked.empty());
        f.Release(100, 10);
        EXPECT_EQ(f.TakeEvents(), (Lines{}));
        f.Release(100, 10); // the press on the row is still there
        EXPECT_EQ(f.TakeEvents(), (Lines{"Click 2"}));
    }
}

TEST(LargeListDivider, APressOnItKeepsARangeAndIsNotReplayed) {
    FakeLargeList f({.MultiSelect = 1}, 100);
    f.list.ListIndex(2);
    f.Key(40, cShiftKey);
    f.Press(100, 0); // without a header its top line has dividers
    EXPECT_EQ(f.list.StartSelected(), 2);
    EXPECT_EQ(f.list.EndSelected(), 3);
    f.list.AddItemTop();
    EXPECT_EQ(f.list.EndSelected(), 3);
    f.Release(100, 0);
}

TEST(LargeListDivider, ADragThatHasEndedIsNotReplayed) {
    FakeLargeList f({.MultiSelect = 1}, 100);
    f.list.ShowIcon(true);
    f.Press(5, 10);
    f.Release(5, 10);
    f.Press(100, 0);
    f.Release(100, 0);
    f.list.AddItemTop(); // a replay would find the pointer on another row and forget the icon
    EXPECT_TRUE(f.list.MouseDownOnIcon());
}

TEST(LargeListDivider, AMoveBelowTheHeaderShowsThePlainPointer) {
    FakeLargeList f({}, 4);
    f.list.HeaderHeight(20);
    f.list.Refresh();
    f.Move(100, 20, 0);
    EXPECT_EQ(f.component.pointer, 9);
    f.Move(100, 21, 0);
    EXPECT_EQ(f.component.pointer, 0);
    f.Press(100, 10);
    f.Move(500, 90);
    EXPECT_EQ(f.component.pointer, 0); // which a drag leaves as it is
}

TEST(LargeListDivider, ADragEndsQuietlyWhereTheColumnIsTakenAway) {
    FakeLargeList f({.columns = 2}, 4);
    f.Press(200, 0);
    f.list.HeaderCount(1);
    EXPECT_NO_THROW(f.Move(150, 0));
    EXPECT_EQ(f.list.HeaderWidths(), "100");
    f.list.HeaderClear();
    EXPECT_NO_THROW(f.Move(150, 0));
    f.Release(150, 0);
    EXPECT_EQ(f.list.HeaderWidths(), "");
}

TEST(LargeListDivider, ADragOutgrowsTheMaximumOfTheMethods) {
    FakeLargeList f({}, 4);
    f.list.HeaderHeight(20);
    f.list.Refresh();
    f.Press(100, 10);
    f.Move(20000, 10);
    EXPECT_EQ(f.list.HeaderWidths(), "20000");
    f.list.HeaderSet(1, f.list.HeaderGet(1));
    EXPECT_EQ(f.list.HeaderWidths(), "3840");
}

} // namespace
} // namespace tvok::test
