#include "tests/support/FakeLargeList.h"

namespace tvok::test {
namespace {

/// From a current row in a list of 100 rows with pages of 5.
struct KeyCase {
    std::int16_t viewMode;
    std::int32_t from, key, to;
};

class LargeListKeys : public testing::TestWithParam<KeyCase> {};

TEST_P(LargeListKeys, MoveTheCurrentRowInBothPaths) {
    for (const std::int32_t multi : {0, 1}) {
        FakeLargeList f({.MultiSelect = multi}, 100);
        const auto& [viewMode, from, key, to] = GetParam();
        f.list.ViewMode(viewMode);
        f.list.ListIndex(from);
        f.Forget();
        f.Key(key);
        EXPECT_EQ(f.list.ListIndex(), to) << "MultiSelect " << multi;
        Lines expected;
        if (from != to) {
            expected.push_back("Change " + std::to_string(viewMode ? to : 100 - to));
            if (multi == 0) expected.push_back("Click " + std::to_string(to));
        }
        EXPECT_EQ(f.TakeEvents(), expected);
    }
}

INSTANTIATE_TEST_SUITE_P(OldestFirst, LargeListKeys,
                         testing::Values(KeyCase{1, 50, 33, 45}, KeyCase{1, 3, 33, 1}, KeyCase{1, 50, 34, 55},
                                         KeyCase{1, 98, 34, 100}, KeyCase{1, 50, 35, 100},
                                         KeyCase{1, 50, 36, 1}, KeyCase{1, 50, 37, 49},
                                         KeyCase{1, 50, 38, 49}, KeyCase{1, 1, 38, 1}, KeyCase{1, 50, 39, 51},
                                         KeyCase{1, 50, 40, 51}, KeyCase{1, 100, 40, 100},
                                         KeyCase{1, 50, 32, 50}, KeyCase{1, 50, 41, 50}));
INSTANTIATE_TEST_SUITE_P(NewestFirst, LargeListKeys,
                         testing::Values(KeyCase{0, 50, 33, 55}, KeyCase{0, 98, 33, 100},
                                         KeyCase{0, 50, 34, 45}, KeyCase{0, 3, 34, 1}, KeyCase{0, 50, 35, 1},
                                         KeyCase{0, 50, 36, 100}, KeyCase{0, 50, 37, 51},
                                         KeyCase{0, 50, 38, 51}, KeyCase{0, 100, 38, 100},
                                         KeyCase{0, 50, 39, 49}, KeyCase{0, 50, 40, 49},
                                         KeyCase{0, 1, 40, 1}));

TEST(LargeListKeysAlone, AnEmptyListTakesNoKey) {
    for (const std::int32_t multi : {0, 1}) {
        FakeLargeList f({.MultiSelect = multi});
        f.list.KeySeek(true);
        for (const std::int32_t key : {33, 36, 40, 65}) f.Key(key);
        EXPECT_EQ(f.TakeEvents(), (Lines{}));
    }
}

TEST(LargeListKeysAlone, PageKeysStayWhereNoWholeRowFits) {
    for (const std::int16_t mode : {std::int16_t{0}, std::int16_t{1}}) {
        FakeLargeList f({.height = 15}, 10);
        EXPECT_EQ(f.list.yn(), 0);
        f.list.ViewMode(mode);
        f.list.ListIndex(4);
        f.Forget();
        f.Key(34);
        f.Key(33);
        EXPECT_EQ(f.list.ListIndex(), 4);
        EXPECT_EQ(f.TakeEvents(), (Lines{}));
    }
}

TEST(LargeListKeysAlone, AHandlerCancelsAKey) {
    FakeLargeList f({}, 10);
    f.list.ListIndex(4);
    f.list.events.KeyDown = [](std::int16_t& key, std::int16_t&) { key = 0; };
    f.Key(40);
    EXPECT_EQ(f.list.ListIndex(), 4);
    f.list.events.KeyDown = [](std::int16_t& key, std::int16_t&) { key = 36; };
    f.Key(40);
    EXPECT_EQ(f.list.ListIndex(), 1);
}

TEST(LargeListKeysAlone, OtherKeysAskTheHostOnlyWhereItWants) {
    for (const std::int32_t multi : {0, 1}) {
        FakeLargeList f({.MultiSelect = multi}, 100);
        f.list.ListIndex(4);
        f.Forget();
        f.Key(65);
        EXPECT_EQ(f.TakeEvents(), (Lines{}));
        f.list.KeySeek(true);
        f.Key(65);
        f.Key(40);
        EXPECT_EQ(f.TakeEvents(), multi ? (Lines{"KeySeek 65 4", "Change 5"})
                                        : (Lines{"KeySeek 65 4", "Change 5", "Click 5"}));
        f.list.events.KeySeek = [](std::int16_t, std::int32_t, std::int32_t& row) { row = 70; };
        f.Key(66);
        EXPECT_EQ(f.list.ListIndex(), 70);
        EXPECT_EQ(f.TakeEvents(), multi ? (Lines{"Change 70"}) : (Lines{"Change 70", "Click 70"}));
    }
}

TEST(LargeListKeysAlone, ShiftAndControlAloneDoNothingOnTheRangePath) {
    FakeLargeList f({.MultiSelect = 1}, 10);
    f.list.KeySeek(true);
    f.list.ListIndex(4);
    f.Forget();
    f.Key(16, 1);
    f.Key(17, 2);
    EXPECT_EQ(f.TakeEvents(), (Lines{}));
    f.list.ListIndex(6);
    EXPECT_EQ(f.list.StartSelected(), 6);
}

TEST(LargeListRow, WritingTheCurrentRowChangesBetweenStoreAndRepaint) {
    FakeLargeList f({}, 100);
    f.list.ListIndex(2);
    f.Forget();
    std::int32_t seen = 0;
    std::size_t painted = 99;
    f.list.events.Change = [&](std::int32_t) {
        seen = f.list.ListIndex();
        painted = f.asked.size();
    };
    f.list.ListIndex(4);
    EXPECT_EQ(seen, 4);
    EXPECT_EQ(painted, 0u);
    EXPECT_EQ(f.TakeAsked(), (Rows{2, 4}));
    f.list.ListIndex(4);
    EXPECT_EQ(f.TakeAsked(), (Rows{4}));
    f.list.ListIndex(0);
    f.list.ListIndex(101);
    EXPECT_EQ(f.list.ListIndex(), 4);
    EXPECT_TRUE(f.asked.empty());
}

TEST(LargeListRow, WritingTheCurrentRowShowsItWhole) {
    FakeLargeList f({.height = 110}, 100);
    f.list.ListIndex(6); // the row that is cut off
    EXPECT_EQ(f.hook().ScrollValue(), 1);
    f.list.ListIndex(50);
    EXPECT_EQ(f.hook().ScrollValue(), 45);
    f.list.ListIndex(20);
    EXPECT_EQ(f.hook().ScrollValue(), 19);
    f.list.ViewMode(0);
    f.list.Refresh();
    f.list.ListIndex(100);
    EXPECT_EQ(f.hook().ScrollValue(), 0);
    f.list.ListIndex(90);
    EXPECT_EQ(f.hook().ScrollValue(), 6);
}

TEST(LargeListSingle, APressOnTheCutOffRowScrollsOnlyAtTheFarEnd) {
    FakeLargeList f({.height = 110}, 7);
    f.PressSlot(6);
    EXPECT_EQ(f.list.ListIndex(), 6);
    EXPECT_EQ(f.hook().ScrollValue(), 0);
    f.Release(50, 105);
    EXPECT_EQ(f.hook().ScrollValue(), 1);
    f.PressSlot(6);
    EXPECT_EQ(f.list.ListIndex(), 7);
    EXPECT_EQ(f.hook().ScrollValue(), 2);
}

TEST(LargeListSingle, PressAndReleaseChangeAndClick) {
    FakeLargeList f({}, 100);
    f.PressSlot(3);
    EXPECT_EQ(f.TakeEvents(), (Lines{"Change 3"}));
    f.Release(50, 50);
    EXPECT_EQ(f.TakeEvents(), (Lines{"Click 3"}));
    f.list.ViewMode(0);
    f.PressSlot(3);
    EXPECT_EQ(f.TakeEvents(), (Lines{"Change 2"}));
    EXPECT_EQ(f.list.ListIndex(), 98);
}

TEST(LargeListSingle, APressBelowTheLastRowKeepsTheRowAndGivesNoClick) {
    for (const std::int32_t multi : {0, 1}) {
        FakeLargeList f({.MultiSelect = multi}, 2);
        f.list.ListIndex(1);
        f.Forget();
        f.PressSlot(4);
        f.Release(50, 70);
        EXPECT_EQ(f.list.ListIndex(), 1);
        EXPECT_EQ(f.TakeEvents(), (Lines{}));
    }
}

TEST(LargeListSingle, ADragMovesTheCurrentRowAndClicksThere) {
    FakeLargeList f({}, 100);
    f.PressSlot(2);
    f.MoveToSlot(2);
    f.MoveToSlot(4);
    f.Release(50, 70);
    EXPECT_EQ(f.TakeEvents(), (Lines{"Change 2", "Change 4", "Click 4"}));
}

TEST(LargeListSingle, AMoveWithoutAButtonActsOnlyWithHotTrack) {
    FakeLargeList f({}, 100);
    f.MoveToSlot(2, 0);
    EXPECT_EQ(f.TakeEvents(), (Lines{}));
    f.list.HotTrack(true);
    f.MoveToSlot(2, 0);
    f.MoveToSlot(3, 0);
    EXPECT_EQ(f.TakeEvents(), (Lines{"Change 2", "Change 3"}));
    f.PressSlot(3);
    f.Release(50, 50);
    EXPECT_EQ(f.TakeEvents(), (Lines{"Click 3"}));
}

TEST(LargeListSingle, ADragOutsideCreepsOneRowForEachMessage) {
    FakeLargeList f({}, 100);
    f.hook().ScrollValue(50);
    f.PressSlot(1);
    for (int i = 1; i <= 3; ++i) {
        f.Move(50, -5);
        EXPECT_EQ(f.list.ListIndex(), 51 - i);
        EXPECT_EQ(f.hook().ScrollValue(), 50 - i);
    }
    f.Move(50, 200);
    EXPECT_EQ(f.list.ListIndex(), 49);
    f.Move(500, 50);
    EXPECT_EQ(f.list.ListIndex(), 50);
    f.Move(50, 200, 0);
    EXPECT_EQ(f.list.ListIndex(), 50);
}

TEST(LargeListSingle, TheGapBetweenRowsBelongsToTheUpperRow) {
    FakeLargeList f({.height = 120, .GridlineWidth = 4}, 100);
    f.Press(50, 20);
    EXPECT_EQ(f.list.ListIndex(), 1);
    f.Press(50, 23);
    EXPECT_EQ(f.list.ListIndex(), 1);
    f.Press(50, 24);
    EXPECT_EQ(f.list.ListIndex(), 2);
}

TEST(LargeListSingle, TheIconColumnIsSeenByTheClickHandlerAndNoLonger) {
    FakeLargeList f({}, 100);
    f.list.ShowIcon(true);
    bool atClick = false;
    f.list.events.Click = [&](std::int32_t) { atClick = f.list.MouseDownOnIcon(); };
    f.Press(19, 10);
    EXPECT_TRUE(f.list.MouseDownOnIcon());
    f.Release(19, 10);
    EXPECT_TRUE(atClick);
    EXPECT_FALSE(f.list.MouseDownOnIcon());
    f.Press(20, 10);
    EXPECT_FALSE(f.list.MouseDownOnIcon());
    f.Press(19, 10);
    f.Send(533, 0, 0, 0);
    EXPECT_FALSE(f.list.MouseDownOnIcon());
    f.list.ShowIcon(false);
    f.Press(19, 10);
    EXPECT_FALSE(f.list.MouseDownOnIcon());
}

TEST(LargeListSingle, ADoubleClickNamesThePressedRowAndSwallowsTheSecondClick) {
    FakeLargeList f({}, 100);
    f.PressSlot(2);
    f.Release(50, 30);
    f.list.ListIndex(4);
    f.TakeEvents();
    f.DoubleClick(50, 30, 8);
    f.Release(50, 30);
    EXPECT_EQ(f.TakeEvents(), (Lines{"Change 2", "DblClick 2"}));
}

TEST(LargeListSingle, OtherMessagesDoNothing) {
    FakeLargeList f({}, 100);
    for (const std::int32_t message : {511, 516, 517, 534, 161}) f.Send(message, 50, 30, 1);
    EXPECT_EQ(f.list.ListIndex(), 0);
    EXPECT_EQ(f.TakeEvents(), (Lines{}));
}

TEST(LargeListSingle, MessageSetupRaisesItsEvent) {
    FakeLargeList f;
    std::int32_t result = 0;
    bool process = true;
    f.hook().events.RtMsg(1242, 55, 66, result, process);
    EXPECT_EQ(f.TakeEvents(), (Lines{"Setup 55"}));
}

TEST(LargeListFocus, EnteringSelectsTheFirstRowOrRepaintsTheCurrentOne) {
    FakeLargeList f({}, 10);
    f.component.log.focus = FakeComponent::cWindow;
    f.list.GotFocus();
    EXPECT_EQ(f.list.ListIndex(), 1);
    EXPECT_EQ(f.log().Named("DrawFocusRect").size(), 1u);
    EXPECT_EQ(f.TakeEvents(), (Lines{"Change 1"}));
    f.asked.clear();
    f.component.log.focus = 0;
    f.list.LostFocus();
    EXPECT_EQ(f.TakeAsked(), (Rows{1}));
    EXPECT_TRUE(f.log().Named("DrawFocusRect").empty());
    f.list.GotFocus();
    EXPECT_EQ(f.TakeAsked(), (Rows{1}));
    EXPECT_EQ(f.TakeEvents(), (Lines{}));
}

TEST(LargeListFocus, EnteringAListOfOneRowSelectsIt) {
    FakeLargeList f({}, 1);
    f.list.GotFocus();
    EXPECT_EQ(f.TakeEvents(), (Lines{"Change 1"}));
}

TEST(LargeListFocus, EnteringAnEmptyListSelectsNothing) {
    FakeLargeList f;
    f.list.GotFocus();
    EXPECT_EQ(f.list.ListIndex(), 0);
    EXPECT_EQ(f.TakeEvents(), (Lines{}));
}

} // namespace
} // namespace tvok::test
