// Searching and sorting.

#include "tests/support/FakeRoster.h"

namespace tvok::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Searching.

TEST(qRosterItems, FindItemInAnEmptyListGivesZero) {
    FakeRoster roster;
    EXPECT_EQ(roster.list.FindItem("x"), 0);
    EXPECT_EQ(roster.list.FindItem(""), 0);
}

TEST(qRosterItems, FindItemWithoutAMatchGivesOneMoreThanTheCount) {
    FakeRoster roster({}, {"ant", "bee", "cat", "dog"});
    EXPECT_EQ(roster.list.FindItem("nothing"), 5);
    EXPECT_EQ(roster.list.FindItem("be"), 5);
}

TEST(qRosterItems, FindItemIgnoresCaseAndTrimsTheSearchedTextAlone) {
    FakeRoster roster({}, {"Ant", " bee", "bee"});
    EXPECT_EQ(roster.list.FindItem("  aNT "), 1);
    EXPECT_EQ(roster.list.FindItem(" bee"), 3);
}

TEST(qRosterItems, FindItemMakesTheItemCurrentOnlyWhenAsked) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.FindItem("bee");
    EXPECT_EQ(roster.list.ListIndex(), 0);
    EXPECT_EQ(roster.list.FindItem("bee", true), 2);
    EXPECT_EQ(roster.list.ListIndex(), 2);
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("Change 2 bee"));
}

TEST(qRosterItems, FailedFindLeavesTheCurrentItem) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.ListIndex(1);
    roster.log().Clear();
    EXPECT_EQ(roster.list.FindItem("nothing", true), 3);
    EXPECT_EQ(roster.list.ListIndex(), 1);
    EXPECT_THAT(roster.TakeEvents(), IsEmpty());
}

TEST(qRosterItems, StrSeekItemMakesTheFirstItemWithTheBeginningCurrent) {
    FakeRoster roster({}, {"Ant", "Bee", "beetle"});
    roster.list.StrSeekItem(" beE ");
    EXPECT_EQ(roster.list.ListIndex(), 2);
    roster.list.StrSeekItem("beet");
    EXPECT_EQ(roster.list.ListIndex(), 3);
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("Change 2 Bee", "Change 3 beetle"));
}

TEST(qRosterItems, StrSeekItemWithoutAMatchLeavesTheCurrentItem) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.ListIndex(2);
    roster.list.StrSeekItem("c");
    EXPECT_EQ(roster.list.ListIndex(), 2);
}

TEST(qRosterItems, StrSeekItemWithAnEmptyTextGoesToTheFirstItem) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.ListIndex(2);
    roster.list.StrSeekItem("");
    EXPECT_EQ(roster.list.ListIndex(), 1);
    FakeRoster empty;
    EXPECT_NO_THROW(empty.list.StrSeekItem(""));
    EXPECT_EQ(empty.list.ListIndex(), 0);
}

TEST(qRosterItems, SearchesFollowTheDisplayOrder) {
    FakeRoster roster({}, {"bee", "ant 1", "bee"});
    roster.list.AddItem(1, {.text = "ant 2"});
    EXPECT_EQ(roster.list.FindItem("bee"), 2);
    roster.list.StrSeekItem("ant");
    EXPECT_EQ(roster.list.ListIndex(), 1);
}

// Sorting.

TEST(qRosterItems, SortedModeSortsAtOnceAndKeepsItsValue) {
    FakeRoster roster({}, {"cat", "Ant", "bee"});
    roster.list.SortedMode(bAscendingSorted);
    EXPECT_THAT(roster.Texts(), ElementsAre("Ant", "bee", "cat"));
    EXPECT_EQ(roster.list.SortedMode(), bAscendingSorted);
}

TEST(qRosterItems, EveryModeButAscendingSortsDescendingByText) {
    for (const std::int32_t mode : {2, 3, 4, 7, -1}) {
        FakeRoster roster;
        roster.list.AddItem(0, {.text = "bee", .ItemData = 1});
        roster.list.AddItem(0, {.text = "cat", .ItemData = 3});
        roster.list.AddItem(0, {.text = "ant", .ItemData = 2});
        roster.list.SortedMode(mode);
        EXPECT_THAT(roster.Texts(), ElementsAre("cat", "bee", "ant")) << mode;
        EXPECT_EQ(roster.list.SortedMode(), mode);
    }
}

TEST(qRosterItems, SortedModeZeroLeavesTheOrderAndDrawsNothing) {
    FakeRoster roster({}, {"cat", "ant"});
    roster.list.SortedMode(bNoneSorted);
    EXPECT_THAT(roster.Texts(), ElementsAre("cat", "ant"));
    EXPECT_THAT(roster.log().All(), IsEmpty());
}

TEST(qRosterItems, TheCurrentItemStaysCurrentThroughASortWithoutAnEvent) {
    FakeRoster roster({}, {"m", "c", "x", "a", "k", "b", "z", "f", "e", "d", "h", "g"});
    roster.list.ListIndex(5);
    roster.log().Clear();
    roster.list.SortedMode(bAscendingSorted);
    EXPECT_THAT(roster.Texts(), ElementsAre("a", "b", "c", "d", "e", "f", "g", "h", "k", "m", "x", "z"));
    EXPECT_EQ(roster.list.ListIndex(), 9);
    EXPECT_THAT(roster.Selected(), ElementsAre(9));
    EXPECT_THAT(roster.TakeEvents(), IsEmpty());
}

TEST(qRosterItems, SortingWithoutACurrentItemLeavesNone) {
    FakeRoster roster({}, {"cat", "ant"});
    roster.list.SortedMode(bAscendingSorted);
    EXPECT_EQ(roster.list.ListIndex(), 0);
}

TEST(qRosterItems, SortingInvalidatesTheClientAreaAndPaintsItAtOnce) {
    FakeRoster roster({}, {"cat", "ant"});
    roster.list.SortedMode(bAscendingSorted);
    const auto calls = roster.log().NamedOneOf({"InvalidateRect", "UpdateWindow", "BeginPaint", "EndPaint"});
    ASSERT_EQ(calls.size(), 4u);
    EXPECT_EQ(calls[0], (Call{"InvalidateRect", {0, 0, 200, 90}, {FakeComponent::cWindow, 1, 0}}));
    EXPECT_EQ(calls[1].name, "UpdateWindow");
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre("ant", "cat"));
}

TEST(qRosterItems, SortingSwapsThroughEntryZeroWhichThenStandsForAnItem) {
    FakeRoster roster;
    roster.list.AddItem(0, {.text = "bee", .vflag = vflag::Selected});
    roster.list.AddItem(0, {.text = "ant"});
    roster.list.Refresh();
    EXPECT_EQ(roster.Data(0).text, "");
    roster.list.SortedMode(bAscendingSorted);
    EXPECT_EQ(roster.Data(0).text, "bee");
    // No item is current, so making one current clears the selection of entry 0, which is "bee" now.
    roster.list.ListIndex(1);
    EXPECT_THAT(roster.Selected(), ElementsAre(1));
}

TEST(qRosterItems, WithoutASortAnItemThatCameInSelectedStaysSelectedWhenAnotherBecomesCurrent) {
    FakeRoster roster;
    roster.list.AddItem(0, {.text = "ant"});
    roster.list.AddItem(0, {.text = "bee", .vflag = vflag::Selected});
    roster.list.ListIndex(1);
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 2));
}

} // namespace
} // namespace tvok::test
