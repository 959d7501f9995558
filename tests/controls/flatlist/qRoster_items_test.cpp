// Items: slots and display index, adding, removing, compacting.

#include "tests/support/FakeRoster.h"

#include <climits>

namespace tvok::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Where the record of an item lives: two items with the same answer shared a slot, one after the other.
const qrosterdata* PlaceOf(FakeRoster& roster, std::int32_t index) {
    const qrosterdata* place = nullptr;
    if (roster.list.ListIndex() == index) roster.list.ListIndex(index == 1 ? 2 : 1);
    roster.list.events.Change = [&](std::int32_t, qrosterdata& x) { place = &x; };
    roster.list.ListIndex(index);
    roster.NoteEvents();
    return place;
}

// Adding.

TEST(qRosterItems, AddItemAppendsForAnIndexOfZero) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.AddItem(0, {.text = "cat"});
    EXPECT_THAT(roster.Texts(), ElementsAre("ant", "bee", "cat"));
}

TEST(qRosterItems, AddItemAppendsForNegativeIndexesAndForIndexesPastTheEnd) {
    FakeRoster roster({}, {"ant"});
    roster.list.AddItem(-1, {.text = "bee"});
    roster.list.AddItem(INT_MIN, {.text = "cat"});
    roster.list.AddItem(4, {.text = "dog"});
    roster.list.AddItem(INT_MAX, {.text = "eel"});
    EXPECT_THAT(roster.Texts(), ElementsAre("ant", "bee", "cat", "dog", "eel"));
}

TEST(qRosterItems, AddItemAtTheLastPositionInsertsBeforeTheLastItem) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.list.AddItem(3, {.text = "new"});
    EXPECT_THAT(roster.Texts(), ElementsAre("ant", "bee", "new", "cat"));
}

TEST(qRosterItems, AddItemAtOneInsertsInFront) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.list.AddItem(1, {.text = "new"});
    EXPECT_THAT(roster.Texts(), ElementsAre("new", "ant", "bee", "cat"));
}

TEST(qRosterItems, AddItemIsAlwaysFalse) {
    FakeRoster roster;
    EXPECT_FALSE(roster.list.AddItem(0, {.text = "ant"}));
    EXPECT_FALSE(roster.list.AddItem(1, {.text = "bee"}));
}

TEST(qRosterItems, InsertBeforeTheCurrentItemMovesTheCurrentItemAlong) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.list.ListIndex(2);
    roster.log().Clear();
    roster.list.AddItem(1, {.text = "new"});
    EXPECT_EQ(roster.list.ListIndex(), 3);
    EXPECT_TRUE(roster.list.IsSelected(3));
    EXPECT_THAT(roster.TakeEvents(), IsEmpty());
}

TEST(qRosterItems, InsertAtTheCurrentItemMovesItAlong) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.list.ListIndex(2);
    roster.list.AddItem(2, {.text = "new"});
    EXPECT_EQ(roster.list.ListIndex(), 3);
}

TEST(qRosterItems, InsertBehindTheCurrentItemLeavesIt) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.list.ListIndex(2);
    roster.list.AddItem(3, {.text = "new"});
    EXPECT_EQ(roster.list.ListIndex(), 2);
}

TEST(qRosterItems, AppendLeavesTheCurrentItem) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.list.ListIndex(3);
    roster.list.AddItem(0, {.text = "new"});
    EXPECT_EQ(roster.list.ListIndex(), 3);
}

TEST(qRosterItems, InsertWithoutACurrentItemLeavesNone) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.AddItem(1, {.text = "new"});
    EXPECT_EQ(roster.list.ListIndex(), 0);
}

TEST(qRosterItems, AddItemDrawsNothingAndLeavesTheScrollRange) {
    FakeRoster roster({}, Numbered(5));
    roster.list.AddItem(0, {.text = "new"});
    roster.list.AddItem(1, {.text = "new"});
    EXPECT_THAT(roster.log().All(), IsEmpty());
    roster.list.Refresh();
    EXPECT_EQ(roster.hook().max, 2);
}

TEST(qRosterItems, AddItemKeepsEveryFlagSoThatAnItemCanComeInSelected) {
    FakeRoster roster;
    roster.list.AddItem(0, {.text = "ant", .vflag = vflag::Selected | vflag::Bold | 0x20000000});
    EXPECT_TRUE(roster.list.IsSelected(1));
    EXPECT_EQ(roster.list.ListIndex(), 0);
    EXPECT_EQ(roster.Data(1).vflag, vflag::InUse | vflag::Selected | vflag::Bold | 0x20000000);
}

TEST(qRosterItems, EveryStoredItemIsInUse) {
    FakeRoster roster({}, {"ant"});
    EXPECT_EQ(roster.Data(1).vflag, vflag::InUse);
}

TEST(qRosterItems, AddItemKeepsEveryField) {
    FakeRoster roster;
    const qrosterdata item{.text = "a\tb",
                           .key = "k",
                           .IconID = 3,
                           .IconBackColor = 1,
                           .IconPos = 2,
                           .ItemData = 4,
                           .ItemDataEx = 5,
                           .bColor = 6,
                           .fcolor = 7,
                           .vflag = vflag::InUse | vflag::Italic};
    roster.list.AddItem(0, item);
    EXPECT_EQ(roster.Data(1), item);
}

TEST(qRosterItems, AddItemTakesNoHeedOfTheSortedMode) {
    FakeRoster roster({}, {"cat", "ant"});
    roster.list.SortedMode(bAscendingSorted);
    roster.list.AddItem(0, {.text = "aardvark"});
    roster.list.AddItem(1, {.text = "zebra"});
    EXPECT_THAT(roster.Texts(), ElementsAre("zebra", "ant", "cat", "aardvark"));
}

TEST(qRosterItems, AddItemTakesARecordOfTheListItself) {
    FakeRoster roster({}, {"a text long enough to live on the heap"});
    roster.list.events.Change = [&](std::int32_t, qrosterdata& x) {
        for (int i = 0; i < 1000; ++i) roster.list.AddItem(1, x);
    };
    roster.list.ListIndex(1);
    ASSERT_EQ(roster.list.Count(), 1001);
    for (const auto& text : roster.Texts()) ASSERT_EQ(text, "a text long enough to live on the heap");
}

TEST(qRosterItems, ManyItemsAddedAndRemovedKeepTheirOrder) {
    FakeRoster roster;
    std::vector<std::string> expected;
    for (int i = 1; i <= 300; ++i) {
        const auto at = i % 7 == 0 ? i / 7 : 0;
        const auto text = "item " + std::to_string(i);
        roster.list.AddItem(at, {.text = text});
        if (at == 0)
            expected.push_back(text);
        else
            expected.insert(expected.begin() + at - 1, text);
    }
    EXPECT_EQ(roster.Texts(), expected);
    for (int i = 300; i >= 1; i -= 3) {
        roster.list.RemoveItem(i);
        expected.erase(expected.begin() + i - 1);
    }
    roster.list.Refresh();
    EXPECT_EQ(roster.Texts(), expected);
}

// Removing.

TEST(qRosterItems, RemovedItemStaysInTheDisplayAsABlankUntilRefresh) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.list.RemoveItem(2);
    EXPECT_THAT(roster.log().All(), IsEmpty());
    EXPECT_EQ(roster.list.Count(), 3);
    qrosterdata data{.text = "before"};
    EXPECT_TRUE(roster.list.GetData(2, data));
    EXPECT_EQ(data, qrosterdata{});
    EXPECT_THAT(roster.Texts(), ElementsAre("ant", "", "cat"));
}

TEST(qRosterItems, RemovedItemPaintsAsSlotZeroUntilRefresh) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.list.RemoveItem(2);
    roster.list.PaintAll();
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre("ant", "", "cat"));
    roster.list.Refresh();
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre("ant", "cat"));
}

TEST(qRosterItems, SeveralItemsAreRemovedByTheirOldPositions) {
    FakeRoster roster({}, {"ant", "bee", "cat", "dog", "eel"});
    roster.list.RemoveItem(1);
    roster.list.RemoveItem(3);
    roster.list.RemoveItem(5);
    roster.list.Refresh();
    EXPECT_THAT(roster.Texts(), ElementsAre("bee", "dog"));
}

TEST(qRosterItems, RemovingLeavesTheCurrentIndexEvenThoughAnotherItemMovesThere) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.list.ListIndex(2);
    roster.log().Clear();
    roster.list.RemoveItem(1);
    roster.list.Refresh();
    EXPECT_EQ(roster.list.ListIndex(), 2);
    EXPECT_EQ(roster.Data(2).text, "cat");
    EXPECT_THAT(roster.Selected(), ElementsAre(1)); // "bee" keeps its bit where it went
    EXPECT_THAT(roster.TakeEvents(), IsEmpty());
}

TEST(qRosterItems, CompactionLimitsTheCurrentIndexToTheCount) {
    FakeRoster roster({}, {"ant", "bee", "cat", "dog"});
    roster.list.ListIndex(4);
    roster.list.RemoveItem(1);
    roster.list.RemoveItem(2);
    roster.list.Refresh();
    EXPECT_EQ(roster.list.ListIndex(), 2);
}

TEST(qRosterItems, RemovingEveryItemLeavesNoCurrentItem) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.ListIndex(1);
    roster.list.RemoveItem(1);
    roster.list.RemoveItem(2);
    roster.list.Refresh();
    EXPECT_EQ(roster.list.Count(), 0);
    EXPECT_EQ(roster.list.ListIndex(), 0);
}

TEST(qRosterItems, RemoveItemBeyondTheArrayIsASubscriptErrorAndTheListIsAsBefore) {
    FakeRoster roster({}, {"ant"}); // the index has room for six
    EXPECT_THROW(roster.list.RemoveItem(7), SubscriptError);
    EXPECT_THROW(roster.list.RemoveItem(-1), SubscriptError);
    EXPECT_THROW(roster.list.RemoveItem(INT_MAX), SubscriptError);
    EXPECT_THROW(roster.list.RemoveItem(INT_MIN), SubscriptError);
    roster.list.Refresh();
    EXPECT_THAT(roster.Texts(), ElementsAre("ant"));
}

TEST(qRosterItems, RemoveItemBehindTheCountButWithinTheArrayIsTaken) {
    FakeRoster roster({}, {"ant", "bee"});
    EXPECT_NO_THROW(roster.list.RemoveItem(3));
    EXPECT_NO_THROW(roster.list.RemoveItem(6));
    roster.list.Refresh();
    EXPECT_THAT(roster.Texts(), ElementsAre("ant", "bee"));
}

TEST(qRosterItems, RemoveItemZeroLeavesTheItems) {
    FakeRoster roster({}, {"ant", "bee"});
    EXPECT_NO_THROW(roster.list.RemoveItem(0));
    roster.list.Refresh();
    EXPECT_THAT(roster.Texts(), ElementsAre("ant", "bee"));
}

TEST(qRosterItems, RemoveItemZeroClearsTheFlagsOfSlotZero) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.RemoveItem(1);
    roster.list.SetData(1, {.text = "zero", .vflag = vflag::Bold}, false);
    ASSERT_EQ(roster.Data(0).vflag, vflag::InUse | vflag::Bold);
    roster.list.RemoveItem(0);
    EXPECT_EQ(roster.Data(0).vflag, 0);
    EXPECT_EQ(roster.Data(0).text, "zero"); // texts are not cleared
}

TEST(qRosterItems, EmptyListHasNoRoomBeyondEntryZero) {
    FakeRoster roster;
    EXPECT_NO_THROW(roster.list.RemoveItem(0));
    EXPECT_THROW(roster.list.RemoveItem(1), SubscriptError);
    qrosterdata data;
    EXPECT_TRUE(roster.list.GetData(0, data));
    EXPECT_THROW(roster.list.GetData(1, data), SubscriptError);
}

// Slots.

TEST(qRosterItems, TheSlotOfTheLastRemovalIsReusedFirst) {
    FakeRoster roster({}, {"ant", "bee", "cat", "dog", "eel"});
    const auto* fourth = PlaceOf(roster, 4);
    const auto* second = PlaceOf(roster, 2);
    roster.list.RemoveItem(4);
    roster.list.RemoveItem(2);
    roster.list.AddItem(0, {.text = "first new"});
    roster.list.AddItem(0, {.text = "second new"});
    roster.list.Refresh();
    ASSERT_THAT(roster.Texts(), ElementsAre("ant", "cat", "eel", "first new", "second new"));
    EXPECT_EQ(PlaceOf(roster, 4), second);
    EXPECT_EQ(PlaceOf(roster, 5), fourth); // the search goes on upwards from there
}

TEST(qRosterItems, AFreeSlotBelowTheStartOfTheSearchIsPassedOver) {
    FakeRoster roster({}, {"ant", "bee", "cat", "dog", "eel"});
    const auto* second = PlaceOf(roster, 2);
    const auto* fourth = PlaceOf(roster, 4);
    roster.list.RemoveItem(2);
    roster.list.RemoveItem(4);
    roster.list.AddItem(0, {.text = "new 1"});
    roster.list.AddItem(0, {.text = "new 2"});
    roster.list.Refresh();
    EXPECT_EQ(PlaceOf(roster, 4), fourth);
    EXPECT_NE(PlaceOf(roster, 5), second);
}

TEST(qRosterItems, ASlotIsReusedBeforeRefresh) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    const auto* second = PlaceOf(roster, 2);
    roster.list.RemoveItem(2);
    roster.list.AddItem(0, {.text = "new"});
    EXPECT_EQ(roster.list.Count(), 4);
    EXPECT_EQ(PlaceOf(roster, 4), second);
    EXPECT_THAT(roster.Texts(), ElementsAre("ant", "", "cat", "new"));
    roster.list.Refresh();
    EXPECT_THAT(roster.Texts(), ElementsAre("ant", "cat", "new"));
}

TEST(qRosterItems, AReusedSlotShowsNothingOfItsFormerItem) {
    FakeRoster roster;
    roster.list.AddItem(
        0, {.text = "old", .key = "old key", .ItemData = 7, .vflag = vflag::Selected | vflag::Bold});
    roster.list.RemoveItem(1);
    roster.list.AddItem(0, {});
    roster.list.Refresh();
    EXPECT_EQ(roster.Data(1), (qrosterdata{.vflag = vflag::InUse}));
}

TEST(qRosterItems, RemovingSlotZeroEndsTheSearchThereSoThatFreeSlotsAreNotReused) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    const auto* second = PlaceOf(roster, 2);
    roster.list.RemoveItem(2);
    roster.list.RemoveItem(2); // the entry is 0 by now: the search starts, and ends, at slot 0
    roster.list.AddItem(0, {.text = "new"});
    roster.list.Refresh();
    ASSERT_THAT(roster.Texts(), ElementsAre("ant", "cat", "new"));
    EXPECT_NE(PlaceOf(roster, 3), second);
}

TEST(qRosterItems, SlotZeroThatAHostMarkedAsInUseDoesNotEndTheSearch) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    const auto* second = PlaceOf(roster, 2);
    roster.list.RemoveItem(2);
    roster.list.RemoveItem(2);
    roster.list.SetData(2, {.text = "zero"}, false); // writes slot 0, with the bit for "in use"
    roster.list.AddItem(0, {.text = "new"});
    roster.list.Refresh();
    ASSERT_THAT(roster.Texts(), ElementsAre("ant", "cat", "new"));
    EXPECT_EQ(PlaceOf(roster, 3), second);
}

} // namespace
} // namespace tvok::test
