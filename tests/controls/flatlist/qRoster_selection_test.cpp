// The current item and the selection, through the public members.

#include "tests/support/FakeRoster.h"

#include <climits>

namespace tvok::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The current item.

TEST(qRosterSelection, MakingAnItemCurrentRaisesChangeBeforeTheRepaint) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.list.ListIndex(2);
    EXPECT_THAT(roster.TakeStory(), ElementsAre("Change 2 bee", "draw bee"));
    roster.list.ListIndex(3);
    EXPECT_THAT(roster.TakeStory(), ElementsAre("Change 3 cat", "draw bee", "draw cat"));
}

TEST(qRosterSelection, TheIndexIsTheNewOneInsideChange) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.ListIndex(1);
    std::int32_t seen = 0;
    bool oldIsStillSelected = false;
    roster.list.events.Change = [&](std::int32_t, qrosterdata&) {
        seen = roster.list.ListIndex();
        oldIsStillSelected = roster.list.IsSelected(1);
    };
    roster.list.ListIndex(2);
    EXPECT_EQ(seen, 2);
    EXPECT_TRUE(oldIsStillSelected); // the bits follow after the event
}

TEST(qRosterSelection, TheCurrentItemOnceMoreIsRedrawnWithoutChange) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.ListIndex(2);
    roster.log().Clear();
    roster.list.ListIndex(2);
    EXPECT_THAT(roster.TakeStory(), ElementsAre("draw bee"));
}

TEST(qRosterSelection, IndexesOutOfRangeAreIgnored) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.ListIndex(2);
    roster.log().Clear();
    for (const std::int32_t index : {0, -1, 3, INT_MAX, INT_MIN}) roster.list.ListIndex(index);
    EXPECT_EQ(roster.list.ListIndex(), 2);
    EXPECT_THAT(roster.log().All(), IsEmpty());
}

TEST(qRosterSelection, ExactlyTheCurrentItemIsSelectedInSingleMode) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    EXPECT_THAT(roster.Selected(), IsEmpty());
    roster.list.ListIndex(2);
    EXPECT_THAT(roster.Selected(), ElementsAre(2));
    EXPECT_TRUE(roster.list.IsSelected(roster.list.ListIndex()));
    roster.list.ListIndex(3);
    EXPECT_THAT(roster.Selected(), ElementsAre(3));
}

TEST(qRosterSelection, IsSelectedIsFalseOutOfRange) {
    FakeRoster roster({}, {"ant"});
    roster.list.ListIndex(1);
    for (const std::int32_t index : {0, -1, 2, 6, 7, INT_MAX, INT_MIN})
        EXPECT_FALSE(roster.list.IsSelected(index)) << index;
}

TEST(qRosterSelection, AnItemThatLostItsBitGetsItBackWhenMadeCurrentAgain) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.ListIndex(2);
    roster.list.EnumSelectedItem(); // clears the bit and leaves the current item
    ASSERT_THAT(roster.Selected(), IsEmpty());
    roster.list.ListIndex(2);
    EXPECT_THAT(roster.Selected(), ElementsAre(2));
}

TEST(qRosterSelection, MakingAnItemCurrentBringsItOntoAWholeRow) {
    FakeRoster roster({}, Numbered(9));
    roster.list.ListIndex(6); // in the partial row: with the last-item flag that is off the page
    EXPECT_EQ(roster.hook().value, 1);
    roster.list.ListIndex(9);
    EXPECT_EQ(roster.hook().value, 4);
    roster.list.ListIndex(2);
    EXPECT_EQ(roster.hook().value, 1);
    roster.list.ListIndex(6);
    EXPECT_EQ(roster.hook().value, 1);
}

TEST(qRosterSelection, ScrollingComesBehindTheRepaintOfTheItems) {
    FakeRoster roster({}, Numbered(9));
    roster.list.ListIndex(5);
    roster.log().Clear();
    roster.list.ListIndex(6);
    // The new one is drawn in the partial row, then the page moves by one row.
    EXPECT_THAT(roster.TakeStory(), ElementsAre("Change 6 item 6", "draw item 5", "draw item 6",
                                                "ScrollValue 1", "ScrollDC -18", "draw item 6"));
}

TEST(qRosterSelection, AtDesignTimeTheIndexIsTakenAndTheScrollingEndsInTheObjectError) {
    FakeRoster design({.UserMode = false});
    design.list.AddItem(0, {.text = "ant"});
    EXPECT_THROW(design.list.ListIndex(1), ObjectError);
    EXPECT_EQ(design.list.ListIndex(), 1);
}

TEST(qRosterSelection, InAListOfSeveralColumnsAnItemAboveThePageComesBackOnlyByItsIndex) {
    FakeRoster roster({.xn = 3}, Numbered(60));
    roster.list.ListIndex(60);
    ASSERT_EQ(roster.hook().value, 15);
    roster.list.ListIndex(20); // row 7, but index 20 is not below 16, the number of the first row
    EXPECT_EQ(roster.hook().value, 15);
    roster.list.ListIndex(15);
    EXPECT_EQ(roster.hook().value, 4);
}

// Selecteded.

TEST(qRosterSelection, SelectededWithoutArgumentsSelectsAllAndPaints) {
    FakeRoster roster({.MultiSelect = 1}, {"ant", "bee", "cat"});
    roster.list.Selecteded();
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 2, 3));
    EXPECT_EQ(roster.list.ListIndex(), 0);
    EXPECT_THAT(roster.TakeStory(), ElementsAre("draw ant", "draw bee", "draw cat"));
}

TEST(qRosterSelection, SelectededTakesARangeWithBothEnds) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.list.Selecteded(2, 4);
    EXPECT_THAT(roster.Selected(), ElementsAre(2, 3, 4));
}

TEST(qRosterSelection, SelectededOfOneItemDrawsThatItemAlone) {
    FakeRoster roster({.MultiSelect = 1}, {"ant", "bee", "cat"});
    roster.list.Selecteded(2);
    EXPECT_THAT(roster.TakeStory(), ElementsAre("draw bee"));
    roster.list.Selecteded(0, 3);
    EXPECT_THAT(roster.TakeStory(), ElementsAre("draw cat"));
    roster.list.Selecteded(1, 1);
    EXPECT_THAT(roster.TakeStory(), ElementsAre("draw ant"));
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 2, 3));
}

TEST(qRosterSelection, SelectededOfABackwardRangeSelectsNothingAndPaintsAll) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.list.Selecteded(5, 3);
    EXPECT_THAT(roster.Selected(), IsEmpty());
    EXPECT_EQ(roster.TakeDrawn().size(), 5u);
}

TEST(qRosterSelection, SelectededRefusesWhatIsOutOfRange) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.list.Selecteded(-1, 3);
    roster.list.Selecteded(1, -1);
    roster.list.Selecteded(6, 0);
    roster.list.Selecteded(0, 6);
    roster.list.Selecteded(1, 6);
    roster.list.Selecteded(INT_MIN, INT_MAX);
    EXPECT_THAT(roster.Selected(), IsEmpty());
    EXPECT_THAT(roster.log().All(), IsEmpty());
}

TEST(qRosterSelection, SelectededInSingleModeOrAnEmptyListDoesNothing) {
    FakeRoster single({}, {"ant", "bee"});
    single.list.Selecteded(0, 0);
    EXPECT_THAT(single.Selected(), IsEmpty());
    FakeRoster empty({.MultiSelect = 1});
    empty.list.Selecteded(0, 0);
    EXPECT_THAT(empty.log().All(), IsEmpty());
}

TEST(qRosterSelection, SelectededAddsToTheCurrentItemsSelection) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.list.ListIndex(1);
    roster.list.Selecteded(4, 5);
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 4, 5));
    roster.list.ListIndex(3); // moves the current item and leaves the selection alone
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 4, 5));
}

TEST(qRosterSelection, SelectededBringsBackTheBitOfTheCurrentItem) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.list.ListIndex(1);
    roster.list.EnumSelectedItem();
    ASSERT_THAT(roster.Selected(), IsEmpty());
    roster.list.Selecteded(4);
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 4));
}

// UnSelecteded.

TEST(qRosterSelection, UnSelectededTakesARangeAway) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.list.Selecteded();
    roster.log().Clear();
    roster.list.UnSelecteded(2, 3);
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 4, 5));
    EXPECT_EQ(roster.TakeDrawn().size(), 5u);
    roster.list.UnSelecteded(4);
    EXPECT_THAT(roster.TakeStory(), ElementsAre("draw item 4"));
    roster.list.UnSelecteded(0, 5);
    EXPECT_THAT(roster.TakeStory(), ElementsAre("draw item 5"));
    roster.list.UnSelecteded();
    EXPECT_THAT(roster.Selected(), IsEmpty());
}

TEST(qRosterSelection, UnSelectededRefusesWhatIsOutOfRange) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(3));
    roster.list.Selecteded();
    roster.log().Clear();
    roster.list.UnSelecteded(-1, 3);
    roster.list.UnSelecteded(1, 4);
    roster.list.UnSelecteded(4, 0);
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 2, 3));
    EXPECT_THAT(roster.log().All(), IsEmpty());
    roster.list.UnSelecteded(3, 1);
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 2, 3));
    EXPECT_EQ(roster.TakeDrawn().size(), 3u);
}

TEST(qRosterSelection, UnSelectededOutsideMultiSelectionDoesNothingEvenWithItemsSelected) {
    FakeRoster roster({.MultiSelect = 1});
    roster.list.AddItem(0, {.text = "ant", .vflag = vflag::Selected});
    roster.list.AddItem(0, {.text = "bee"});
    roster.list.Refresh();
    roster.list.ListIndex(2);
    roster.log().Clear();
    roster.list.UnSelecteded();
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 2));
    EXPECT_THAT(roster.log().All(), IsEmpty());
}

TEST(qRosterSelection, UnSelectededAsksForTheStateAndNotForTheMode) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.ListIndex(2);
    roster.list.EnumSelectedItem(0, false); // multi-selection state in single mode
    roster.list.UnSelecteded();
    EXPECT_THAT(roster.Selected(), IsEmpty());
}

// EnumSelectedItem.

TEST(qRosterSelection, EnumSelectedItemReportsEachSelectedItemInOrderWithTheAction) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.list.Selecteded(2, 3);
    roster.list.Selecteded(5);
    roster.log().Clear();
    roster.list.EnumSelectedItem(42);
    EXPECT_THAT(roster.TakeStory(),
                ElementsAre("EnumSelectedItemCallBack 42 2", "EnumSelectedItemCallBack 42 3",
                            "EnumSelectedItemCallBack 42 5"));
}

TEST(qRosterSelection, EnumSelectedItemClearsTheSelectionWithoutARepaint) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(3));
    roster.list.ListIndex(3);
    roster.list.Selecteded(1, 2);
    roster.log().Clear();
    roster.list.EnumSelectedItem();
    EXPECT_THAT(roster.Selected(), IsEmpty()); // the current item included
    EXPECT_EQ(roster.list.ListIndex(), 3);
    EXPECT_THAT(roster.log().Drawing(), IsEmpty());
    roster.list.ListIndex(2); // out of multi-selection state: the bit follows the current item
    EXPECT_THAT(roster.Selected(), ElementsAre(2));
}

TEST(qRosterSelection, EnumSelectedItemWithoutClearingKeepsTheSelectionAndTheState) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(3));
    roster.list.Selecteded(1, 2);
    roster.list.EnumSelectedItem(0, false);
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 2));
    roster.list.ListIndex(3);
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 2));
}

TEST(qRosterSelection, EnumSelectedItemInSingleModeReportsTheCurrentItem) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.ListIndex(2);
    roster.list.EnumSelectedItem(1);
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("Change 2 bee", "EnumSelectedItemCallBack 1 2"));
    roster.list.EnumSelectedItem(1); // its bit is gone, and the walk sets it again first
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("EnumSelectedItemCallBack 1 2"));
}

TEST(qRosterSelection, EnumSelectedItemDoesNotSetTheCurrentItemsBitInMultiSelectionState) {
    FakeRoster roster({.MultiSelect = 1}, {"ant", "bee", "cat"});
    roster.list.Selecteded(1);
    roster.list.ListIndex(2);
    roster.log().Clear();
    roster.list.EnumSelectedItem(1);
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("EnumSelectedItemCallBack 1 1"));
}

TEST(qRosterSelection, AHandlerRemovesTheSelectedItemsByTheirPositionsDuringTheWalk) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(6));
    roster.list.Selecteded(2, 4);
    roster.list.Selecteded(6);
    std::vector<std::int32_t> seen;
    roster.list.events.EnumSelectedItemCallBack = [&](std::int32_t&, std::int32_t& index) {
        seen.push_back(index);
        roster.list.RemoveItem(index);
        EXPECT_EQ(roster.list.Count(), 6);
    };
    roster.log().Clear();
    roster.list.EnumSelectedItem();
    EXPECT_THAT(seen, ElementsAre(2, 3, 4, 6));
    EXPECT_THAT(roster.Texts(), ElementsAre("item 1", "item 5"));
    EXPECT_EQ(roster.TakeEffect(), "refresh");
}

TEST(qRosterSelection, ARemovalPendingFromBeforeIsTakenOnAtTheEndOfTheWalk) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(3));
    roster.list.RemoveItem(1);
    roster.list.EnumSelectedItem();
    EXPECT_THAT(roster.Texts(), ElementsAre("item 2", "item 3"));
}

TEST(qRosterSelection, TheBitIsClearedBeforeTheCallBack) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(2));
    roster.list.Selecteded();
    std::vector<bool> seen;
    roster.list.events.EnumSelectedItemCallBack = [&](std::int32_t&, std::int32_t& index) {
        seen.push_back(roster.list.IsSelected(index));
    };
    roster.list.EnumSelectedItem();
    EXPECT_THAT(seen, ElementsAre(false, false));
}

TEST(qRosterSelection, ItemsAddedDuringTheWalkAreNotVisited) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(2));
    roster.list.Selecteded();
    int calls = 0;
    roster.list.events.EnumSelectedItemCallBack = [&](std::int32_t&, std::int32_t&) {
        if (++calls < 100) roster.list.AddItem(0, {.text = "new", .vflag = vflag::Selected});
    };
    roster.list.EnumSelectedItem();
    EXPECT_EQ(calls, 2);
    EXPECT_THAT(roster.Selected(), ElementsAre(3, 4));
}

TEST(qRosterSelection, EnumSelectedItemOfAnEmptyListRaisesNothing) {
    FakeRoster roster;
    roster.list.EnumSelectedItem();
    EXPECT_THAT(roster.log().All(), IsEmpty());
}

// Life of the selection.

TEST(qRosterSelection, ClearKeepsTheMultiSelectionState) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(3));
    roster.list.Selecteded();
    roster.list.Clear();
    roster.Add({"ant", "bee"});
    roster.list.ListIndex(1);
    EXPECT_THAT(roster.Selected(), IsEmpty()); // still multi-selection: the bit does not follow
}

TEST(qRosterSelection, SelectionTravelsWithItsItemThroughInsertAndSort) {
    FakeRoster roster({.MultiSelect = 1}, {"dog", "cat", "bee"});
    roster.list.Selecteded(2);
    roster.list.AddItem(1, {.text = "ant"});
    EXPECT_THAT(roster.Selected(), ElementsAre(3));
    roster.list.SortedMode(bAscendingSorted);
    EXPECT_EQ(roster.Data(3).text, "cat");
    EXPECT_THAT(roster.Selected(), ElementsAre(3));
}

} // namespace
} // namespace tvok::test
