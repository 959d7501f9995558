// The mouse: MouseSingle and MouseMulti, row by row of their tables.

#include "tests/support/FakeRoster.h"

namespace tvok::test {
namespace {

using namespace host;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::int32_t cNowhere = 80; // a point below the last item of a short list

// Forwarding.

TEST(qRosterMouse, MouseEventsAreForwardedByReferenceAndTakeNoPartInSelection) {
    FakeRoster roster({}, {"ant", "bee"});
    std::int16_t button = 1, shift = 2;
    float x = 150, y = 75;
    roster.list.MouseDown(button, shift, x, y);
    roster.list.MouseMove(button, shift, x, y);
    roster.list.MouseUp(button, shift, x, y);
    EXPECT_THAT(roster.TakeStory(),
                ElementsAre("MouseDown 1 2 150 75", "MouseMove 1 2 150 75", "MouseUp 1 2 150 75"));
    EXPECT_EQ(roster.list.ListIndex(), 0);
    roster.list.events.MouseDown = [](std::int16_t& b, std::int16_t& s, float& px, float& py) {
        b = s = 9;
        px = py = 9;
    };
    roster.list.MouseDown(button, shift, x, y);
    EXPECT_EQ(button, 9);
    EXPECT_EQ(shift, 9);
    EXPECT_EQ(x, 9);
    EXPECT_EQ(y, 9);
}

TEST(qRosterMouse, MessagesGoOnToTheWindowAsTheyCame) {
    for (const std::int32_t mode : {0, 1}) {
        FakeRoster roster({.MultiSelect = mode}, {"ant"});
        const auto point = dgi::LParamFromPoint(50, 5);
        for (const auto message :
             {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_KEYDOWN}) {
            EXPECT_TRUE(roster.component.Send(message, 1, point, true)) << message;
            EXPECT_FALSE(roster.component.Send(message, 1, point, false)) << message;
        }
    }
}

TEST(qRosterMouse, OtherMessagesAreIgnored) {
    for (const std::int32_t mode : {0, 1}) {
        FakeRoster roster({.MultiSelect = mode}, {"ant", "bee"});
        const auto point = dgi::LParamFromPoint(50, 5);
        for (const auto message :
             {WM_RBUTTONDOWN, WM_RBUTTONUP, WM_RBUTTONDBLCLK, WM_MBUTTONDOWN, WM_MBUTTONUP, WM_MOUSEWHEEL,
              WM_KEYDOWN, WM_CHAR, WM_SETFOCUS, 0, -1, 511, 516})
            roster.component.Send(message, 1, point);
        EXPECT_THAT(roster.log().All(), IsEmpty()) << mode;
        EXPECT_EQ(roster.list.ListIndex(), 0);
    }
}

// Single: press and release.

TEST(qRosterMouse, PressMakesTheItemCurrentAndReleaseRaisesClick) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.PressRow(2);
    EXPECT_THAT(roster.TakeStory(), ElementsAre("Change 2 bee", "draw bee"));
    roster.Release(50, 20);
    EXPECT_THAT(roster.TakeStory(), ElementsAre("Click 2 bee"));
}

TEST(qRosterMouse, PressOnTheCurrentItemRaisesNoChange) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.ListIndex(2);
    roster.log().Clear();
    roster.ClickRow(2);
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("Click 2 bee"));
}

TEST(qRosterMouse, ReleaseOffTheItemStillRaisesClick) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.PressRow(2);
    roster.log().Clear();
    roster.Release(-500, 900);
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("Click 2 bee"));
}

TEST(qRosterMouse, PressOnNoItemRaisesNothingAndNeitherDoesItsRelease) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.ListIndex(1);
    roster.ClickRow(2);
    roster.log().Clear();
    roster.Press(50, cNowhere);
    roster.Release(50, cNowhere);
    EXPECT_THAT(roster.log().All(), IsEmpty());
    EXPECT_EQ(roster.list.ListIndex(), 2);
}

TEST(qRosterMouse, ReleaseWithoutAPressRaisesNothing) {
    FakeRoster roster({}, {"ant"});
    roster.list.ListIndex(1);
    roster.log().Clear();
    roster.Release(50, 5);
    EXPECT_THAT(roster.log().All(), IsEmpty());
}

TEST(qRosterMouse, ASecondReleaseRaisesClickOnceMore) {
    // A release leaves the pressed item noted; only a double click and a press on no item clear it.
    FakeRoster roster({}, {"ant"});
    roster.ClickRow(1);
    roster.log().Clear();
    roster.Release(50, 5);
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("Click 1 ant"));
}

TEST(qRosterMouse, PressInTheFillerColumnHitsNothing) {
    FakeRoster roster({.FixedWidthForLastXn = true}, {"ant"});
    roster.Press(150, 5);
    EXPECT_EQ(roster.list.ListIndex(), 0);
    roster.Press(99, 5);
    EXPECT_EQ(roster.list.ListIndex(), 1);
}

TEST(qRosterMouse, PressOutsideTheClientAreaHitsNothing) {
    FakeRoster roster({}, Numbered(9));
    roster.Press(-1, 5);
    roster.Press(50, -1);
    roster.Press(200, 5);
    EXPECT_EQ(roster.list.ListIndex(), 0);
}

TEST(qRosterMouse, APointOnAGridLineBelongsToTheFirstCellThatReachesIt) {
    FakeRoster roster({.GridlineWidth = 2}, {"ant", "bee"}); // rows at 0 to 18 and 20 to 38
    roster.Press(50, 19);
    EXPECT_EQ(roster.list.ListIndex(), 1);
    roster.Press(50, 20);
    EXPECT_EQ(roster.list.ListIndex(), 2);
}

TEST(qRosterMouse, PressFollowsTheScrolledPageInSeveralColumns) {
    FakeRoster roster({.xn = 3}, Numbered(60));
    roster.hook().ScrollValue(2);
    roster.Press(5, 5);
    EXPECT_EQ(roster.list.ListIndex(), 7);
    roster.Press(150, 25);
    EXPECT_EQ(roster.list.ListIndex(), 11);
}

TEST(qRosterMouse, PressOnThePartialRowKeepsThePageUntilTheRelease) {
    FakeRoster roster({.height = 100}, Numbered(9));
    roster.PressRow(6);
    EXPECT_EQ(roster.list.ListIndex(), 6);
    EXPECT_EQ(roster.hook().value, 0);
    roster.Release();
    EXPECT_EQ(roster.hook().value, 1);
}

TEST(qRosterMouse, PressOnTheLastItemInThePartialRowScrollsAtOnce) {
    FakeRoster roster({.height = 100}, Numbered(6));
    roster.PressRow(6);
    EXPECT_EQ(roster.hook().value, 1);
}

// Single: move.

TEST(qRosterMouse, DraggingMovesTheCurrentItemWithoutClicks) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.PressRow(1);
    roster.MoveToRow(2);
    roster.MoveToRow(2);
    roster.MoveToRow(3);
    roster.Release();
    EXPECT_THAT(roster.TakeEvents(),
                ElementsAre("Change 1 ant", "Change 2 bee", "Change 3 cat", "Click 3 cat"));
    EXPECT_THAT(roster.Selected(), ElementsAre(3));
}

TEST(qRosterMouse, APlainMoveDoesNothingWithoutHotTrack) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.MoveToRow(2, 0);
    roster.MoveToRow(1, MK_RBUTTON);
    EXPECT_THAT(roster.log().Drawing(), IsEmpty());
    EXPECT_EQ(roster.list.ListIndex(), 0);
}

TEST(qRosterMouse, APlainMoveSelectsWithHotTrack) {
    FakeRoster roster({.HotTrack = true}, {"ant", "bee"});
    roster.MoveToRow(2, 0);
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("Change 2 bee"));
    roster.MoveToRow(2, 0);
    EXPECT_THAT(roster.TakeEvents(), IsEmpty());
    roster.Move(50, cNowhere, 0);
    EXPECT_EQ(roster.list.ListIndex(), 2);
    roster.Move(50, -5, 0); // outside it takes a button
    EXPECT_EQ(roster.list.ListIndex(), 2);
}

TEST(qRosterMouse, HotTrackNotesTheItemSoThatAReleaseThereRaisesClick) {
    FakeRoster roster({.HotTrack = true}, {"ant", "bee"});
    roster.MoveToRow(2, 0);
    roster.log().Clear();
    roster.Release();
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("Click 2 bee"));
}

TEST(qRosterMouse, DraggingAboveAndBelowMovesOneKeyStepForEachMessage) {
    FakeRoster roster({}, Numbered(9));
    roster.PressRow(4);
    roster.Move(50, 90);
    EXPECT_EQ(roster.list.ListIndex(), 5);
    roster.Move(50, 500);
    roster.Move(50, 500);
    EXPECT_EQ(roster.list.ListIndex(), 7);
    EXPECT_EQ(roster.hook().value, 1); // 7 is not the last: the partial row will do
    roster.Move(50, -1);
    roster.Move(50, -30000);
    EXPECT_EQ(roster.list.ListIndex(), 5);
    for (int i = 0; i < 9; ++i) roster.Move(50, -1);
    EXPECT_EQ(roster.list.ListIndex(), 1);
    EXPECT_EQ(roster.hook().value, 0);
}

TEST(qRosterMouse, DraggingLeftOrRightOfTheListDoesNothing) {
    FakeRoster roster({}, Numbered(9));
    roster.PressRow(4);
    roster.Move(-1, 20);
    roster.Move(200, 20);
    roster.Move(-1, -20);
    roster.Move(200, 500);
    EXPECT_EQ(roster.list.ListIndex(), 4);
    roster.Move(199, 20);
    EXPECT_EQ(roster.list.ListIndex(), 2);
}

TEST(qRosterMouse, MovesOverAnEmptyListDoNothing) {
    for (const std::int32_t mode : {0, 1}) {
        FakeRoster roster({.MultiSelect = mode, .HotTrack = true});
        roster.Press(50, 5);
        roster.Move(50, 5);
        roster.Move(50, -5);
        roster.Move(50, 500);
        roster.Release(50, 5);
        roster.DoubleClick(50, 5);
        EXPECT_THAT(roster.TakeEvents(), IsEmpty());
    }
}

// Single: double click.

TEST(qRosterMouse, DoubleClickRaisesDblClickBetweenTheClickAndASilentRelease) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.ClickRow(2);
    roster.DoubleClick(50, 20);
    roster.Release(50, 20);
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("Change 2 bee", "Click 2 bee", "DblClick 2 bee"));
}

TEST(qRosterMouse, DoubleClickGoesToTheItemOfTheLastPress) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.ClickRow(2);
    roster.list.ListIndex(3);
    roster.log().Clear();
    roster.DoubleClick(50, 5); // the point does not matter
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("Change 2 bee", "DblClick 2 bee"));
}

TEST(qRosterMouse, DoubleClickOnNoItemRaisesNothing) {
    FakeRoster roster({}, {"ant"});
    roster.Press(50, cNowhere);
    roster.DoubleClick(50, cNowhere);
    EXPECT_THAT(roster.TakeEvents(), IsEmpty());
}

TEST(qRosterMouse, DoubleClickInSingleModeTakesNoHeedOfShiftAndControl) {
    FakeRoster roster({}, {"ant"});
    roster.PressRow(1, cShift);
    roster.DoubleClick(50, 5, cShift | cControl);
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("Change 1 ant", "DblClick 1 ant"));
}

TEST(qRosterMouse, DoubleClickOnThePartialRowBringsTheItemOntoAWholeOne) {
    FakeRoster roster({.height = 100}, Numbered(9));
    roster.PressRow(6);
    ASSERT_EQ(roster.hook().value, 0);
    roster.DoubleClick(50, 95);
    EXPECT_EQ(roster.hook().value, 1);
}

// Multiple: press.

TEST(qRosterMouse, PlainPressInMultiModeSelectsThatItemAlone) {
    FakeRoster roster({.MultiSelect = 1}, {"ant", "bee", "cat"});
    roster.ClickRow(1);
    roster.ClickRow(3);
    EXPECT_THAT(roster.TakeEvents(),
                ElementsAre("Change 1 ant", "Click 1 ant", "Change 3 cat", "Click 3 cat"));
    EXPECT_THAT(roster.Selected(), ElementsAre(3));
}

TEST(qRosterMouse, PlainPressClearsAMultiSelectionWithARepaint) {
    FakeRoster roster({.MultiSelect = 1}, {"ant", "bee", "cat"});
    roster.list.Selecteded();
    roster.log().Clear();
    roster.PressRow(2);
    EXPECT_THAT(roster.TakeStory(),
                ElementsAre("draw ant", "draw bee", "draw cat", "Change 2 bee", "draw bee"));
    EXPECT_THAT(roster.Selected(), ElementsAre(2));
    roster.Release();
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("Click 2 bee"));
}

TEST(qRosterMouse, ClickOnNoItemClearsAMultiSelectionAndKeepsTheCurrentItem) {
    FakeRoster roster({.MultiSelect = 1}, {"ant", "bee", "cat"});
    roster.list.ListIndex(2);
    roster.list.Selecteded(1, 3);
    roster.log().Clear();
    roster.Press(50, cNowhere);
    roster.Release(50, cNowhere);
    EXPECT_THAT(roster.Selected(), IsEmpty());
    EXPECT_EQ(roster.list.ListIndex(), 2);
    EXPECT_THAT(roster.TakeEvents(), IsEmpty());
}

TEST(qRosterMouse, ClickOnNoItemClearsTheAnchor) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(4));
    roster.ClickRow(2);
    roster.Press(50, cNowhere);
    roster.PressRow(4, cShift); // the anchor is set there
    EXPECT_THAT(roster.Selected(), ElementsAre(4));
}

TEST(qRosterMouse, ClickOnNoItemInSingleSelectionStateKeepsTheSelection) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(3));
    roster.ClickRow(2);
    roster.Press(50, cNowhere);
    EXPECT_THAT(roster.Selected(), ElementsAre(2));
}

TEST(qRosterMouse, ControlPressTogglesItems) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.ClickRow(1);
    roster.log().Clear();
    roster.PressRow(3, cControl);
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 3));
    EXPECT_EQ(roster.list.ListIndex(), 3);
    EXPECT_THAT(roster.TakeStory(), ElementsAre("Change 3 item 3", "draw item 1", "draw item 3"));
    roster.Release(50, 40, cControl);
    EXPECT_THAT(roster.TakeEvents(), IsEmpty()); // no Click in multi-selection state
    roster.ClickRow(1, cControl);
    EXPECT_THAT(roster.Selected(), ElementsAre(3));
    EXPECT_EQ(roster.list.ListIndex(), 1);
}

TEST(qRosterMouse, ControlPressOnTheCurrentItemTogglesItWithoutChange) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(3));
    roster.ClickRow(2);
    roster.log().Clear();
    roster.PressRow(2, cControl);
    EXPECT_THAT(roster.TakeStory(), ElementsAre("draw item 2"));
    EXPECT_THAT(roster.Selected(), IsEmpty());
    roster.PressRow(2, cControl);
    EXPECT_THAT(roster.Selected(), ElementsAre(2));
}

TEST(qRosterMouse, ControlPressOnNoItemEndsTheMessage) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(3));
    roster.ClickRow(2);
    roster.log().Clear();
    roster.Press(50, cNowhere, cControl);
    EXPECT_THAT(roster.log().All(), IsEmpty());
    EXPECT_THAT(roster.Selected(), ElementsAre(2));
    roster.DoubleClick(50, cNowhere); // the item of the last press is still the second
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("DblClick 2 item 2"));
}

TEST(qRosterMouse, ControlPressSetsTheAnchor) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.PressRow(2, cControl);
    roster.PressRow(4, cShift);
    EXPECT_THAT(roster.Selected(), ElementsAre(2, 3, 4));
}

TEST(qRosterMouse, ControlWinsOverShift) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.ClickRow(1);
    roster.PressRow(4, cControl | cShift);
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 4));
}

TEST(qRosterMouse, ShiftPressSelectsFromTheAnchor) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.ClickRow(2);
    roster.log().Clear();
    roster.PressRow(4, cShift);
    EXPECT_THAT(roster.Selected(), ElementsAre(2, 3, 4));
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("Change 4 item 4"));
    roster.Release();
    EXPECT_THAT(roster.TakeEvents(), IsEmpty());
    roster.PressRow(1, cShift); // the range turns over the anchor
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 2));
    roster.PressRow(2, cShift);
    EXPECT_THAT(roster.Selected(), ElementsAre(2));
}

TEST(qRosterMouse, ShiftPressDrawsEachItemFromTheOldToTheNew) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.ClickRow(2);
    roster.log().Clear();
    roster.PressRow(4, cShift);
    // First the current item moves, then the range is drawn from the old one to the new.
    EXPECT_THAT(roster.TakeStory(), ElementsAre("Change 4 item 4", "draw item 2", "draw item 4",
                                                "draw item 2", "draw item 3", "draw item 4"));
    roster.PressRow(3, cShift);
    EXPECT_THAT(roster.TakeStory(),
                ElementsAre("Change 3 item 3", "draw item 4", "draw item 3", "draw item 4", "draw item 3"));
}

TEST(qRosterMouse, ShiftPressWithoutAnAnchorStartsThere) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.PressRow(3, cShift);
    EXPECT_THAT(roster.Selected(), ElementsAre(3));
    roster.PressRow(5, cShift);
    EXPECT_THAT(roster.Selected(), ElementsAre(3, 4, 5));
}

TEST(qRosterMouse, ShiftPressKeepsSelectionsOutsideItsRange) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.ClickRow(1);
    roster.PressRow(3, cControl);
    roster.PressRow(4, cShift);
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 3, 4));
}

TEST(qRosterMouse, ShiftPressOnNoItemForgetsThePressedItemForTheDoubleClick) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(3));
    roster.ClickRow(2);
    roster.Press(50, cNowhere, cShift);
    roster.log().Clear();
    roster.DoubleClick(50, cNowhere);
    EXPECT_THAT(roster.TakeEvents(), IsEmpty());
    EXPECT_THAT(roster.Selected(), ElementsAre(2));
}

TEST(qRosterMouse, ShiftPressOnNoItemKeepsThePressedItemForTheRelease) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(3));
    roster.ClickRow(2);
    roster.Press(50, cNowhere, cShift);
    roster.log().Clear();
    roster.Release(50, cNowhere, cShift);
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("Click 2 item 2"));
}

TEST(qRosterMouse, ShiftPressFarAwayPaintsThePageOnce) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(60)); // the grid has 6 rows and 2 columns
    roster.ClickRow(1);
    roster.hook().ScrollValue(12);
    roster.log().Clear();
    roster.PressRow(1, cShift); // item 13: 12 away
    const auto far = roster.TakeDrawn();
    EXPECT_THAT(far, ElementsAre("item 13", "item 13", "item 14", "item 15", "item 16", "item 17"));
    roster.PressRow(2, cShift);
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre("item 13", "item 14", "item 13", "item 14"));
}

// Multiple: move.

TEST(qRosterMouse, DraggingInMultiModeSelectsTheRange) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.PressRow(2);
    roster.MoveToRow(3);
    roster.MoveToRow(4);
    EXPECT_THAT(roster.Selected(), ElementsAre(2, 3, 4));
    roster.MoveToRow(3);
    EXPECT_THAT(roster.Selected(), ElementsAre(2, 3));
    roster.MoveToRow(1);
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 2));
    roster.Release();
    EXPECT_THAT(roster.TakeEvents(),
                ElementsAre("Change 2 item 2", "Change 3 item 3", "Change 4 item 4", "Change 3 item 3",
                            "Change 1 item 1")); // and no Click
}

TEST(qRosterMouse, ADragThatStaysOnItsItemIsAClick) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.PressRow(2);
    roster.MoveToRow(2);
    roster.Release();
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("Change 2 item 2", "Click 2 item 2"));
}

TEST(qRosterMouse, AMoveWithoutTheButtonDoesNothingInMultiModeEvenWithHotTrack) {
    FakeRoster roster({.MultiSelect = 1, .HotTrack = true}, Numbered(5));
    roster.MoveToRow(2, 0);
    roster.MoveToRow(3, cShift | cControl);
    EXPECT_EQ(roster.list.ListIndex(), 0);
    EXPECT_THAT(roster.TakeEvents(), IsEmpty());
}

TEST(qRosterMouse, ADragFromNoItemStartsTheRangeAtTheFirstItemItMeets) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(4));
    roster.Press(50, cNowhere);
    roster.MoveToRow(4);
    roster.MoveToRow(2);
    EXPECT_THAT(roster.Selected(), ElementsAre(2, 3, 4));
}

TEST(qRosterMouse, DraggingOutsideInMultiModeExtendsByOneKeyStepForEachMessage) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(20));
    roster.PressRow(4);
    for (int i = 0; i < 4; ++i) roster.Move(50, 95);
    EXPECT_EQ(roster.list.ListIndex(), 8);
    EXPECT_EQ(roster.Selected(), (std::vector{4, 5, 6, 7, 8}));
    EXPECT_EQ(roster.hook().value, 3);
    for (int i = 0; i < 7; ++i) roster.Move(50, -1);
    EXPECT_EQ(roster.list.ListIndex(), 1);
    EXPECT_EQ(roster.Selected(), (std::vector{1, 2, 3, 4}));
    EXPECT_EQ(roster.hook().value, 0);
    roster.Move(50, -1); // at the first item already
    EXPECT_EQ(roster.Selected(), (std::vector{1, 2, 3, 4}));
}

// Multiple: double click.

TEST(qRosterMouse, DoubleClickInMultiMode) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(3));
    roster.ClickRow(2);
    roster.list.ListIndex(1);
    roster.log().Clear();
    roster.DoubleClick(50, 20);
    roster.Release();
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("Change 2 item 2", "DblClick 2 item 2"));
}

TEST(qRosterMouse, DoubleClickInMultiModeWithShiftOrControlDoesNothing) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(3));
    roster.ClickRow(2);
    roster.log().Clear();
    roster.DoubleClick(50, 20, cShift);
    roster.DoubleClick(50, 20, cControl);
    EXPECT_THAT(roster.log().All(), IsEmpty());
    roster.Release();
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("Click 2 item 2")); // the press is still noted
}

TEST(qRosterMouse, ReleaseInMultiSelectionStateBringsTheItemOntoAWholeRow) {
    FakeRoster roster({.height = 100, .MultiSelect = 1}, Numbered(9));
    roster.list.ListIndex(1);
    roster.PressRow(6, cControl);
    ASSERT_EQ(roster.hook().value, 0);
    roster.Release();
    EXPECT_EQ(roster.hook().value, 1);
}

// Odd input.

TEST(qRosterMouse, ReleaseAfterTheListWasClearedRaisesClickForNoItem) {
    FakeRoster roster({}, Numbered(3));
    roster.PressRow(2);
    roster.list.Clear();
    roster.log().Clear();
    roster.Release();
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("Click 0"));
}

TEST(qRosterMouse, DoubleClickAfterTheListWasClearedRaisesDblClickForNoItem) {
    FakeRoster roster({}, Numbered(3));
    roster.PressRow(2);
    roster.list.Clear();
    roster.log().Clear();
    roster.DoubleClick(50, 20);
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("DblClick 0"));
}

TEST(qRosterMouse, AModeFromABagThatThePropertyRefusesLeavesSingleSelection) {
    FakeRoster roster({.MultiSelect = 5}, Numbered(5));
    EXPECT_EQ(roster.list.MultiSelect(), 0);
    roster.PressRow(2);
    roster.MoveToRow(4);
    EXPECT_THAT(roster.Selected(), ElementsAre(4));
}

} // namespace
} // namespace tvok::test
