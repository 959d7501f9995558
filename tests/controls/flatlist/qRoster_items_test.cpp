// Items: slots and display index, adding, removing, compacting, reading and writing.

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

// Reading.

TEST(qRosterItems, GetDataCopiesTheItemOut) {
    FakeRoster roster({}, {"ant"});
    qrosterdata data;
    EXPECT_TRUE(roster.list.GetData(1, data));
    EXPECT_EQ(data.text, "ant");
    data.text = "changed";
    EXPECT_EQ(roster.Data(1).text, "ant");
}

TEST(qRosterItems, GetDataOfZeroAndOfRoomBehindTheCountGivesSlotZero) {
    FakeRoster roster({}, {"ant"});
    for (const std::int32_t index : {0, 2, 6}) {
        qrosterdata data{.text = "before"};
        EXPECT_TRUE(roster.list.GetData(index, data)) << index;
        EXPECT_EQ(data, qrosterdata{}) << index;
    }
}

TEST(qRosterItems, GetDataBeyondTheArrayIsASubscriptErrorAndLeavesTheRecord) {
    FakeRoster roster({}, {"ant"});
    for (const std::int32_t index : {7, -1, INT_MAX, INT_MIN}) {
        qrosterdata data{.text = "before"};
        EXPECT_THROW(roster.list.GetData(index, data), SubscriptError) << index;
        EXPECT_EQ(data.text, "before") << index;
    }
}

TEST(qRosterItems, DefaultItemHasTheDocumentedDefaults) {
    FakeRoster roster;
    const auto item = roster.list.DefaultItem();
    EXPECT_EQ(item.text, "");
    EXPECT_EQ(item.key, "");
    EXPECT_EQ(item.IconID, -1);
    EXPECT_EQ(item.IconBackColor, SystemColor(5));
    EXPECT_EQ(item.IconPos, -1);
    EXPECT_EQ(item.ItemData, 0);
    EXPECT_EQ(item.ItemDataEx, 0);
    EXPECT_EQ(item.bColor, SystemColor(5));
    EXPECT_EQ(item.fcolor, SystemColor(8));
    EXPECT_EQ(item.vflag, 0);
}

// Writing.

TEST(qRosterItems, SetDataReplacesTheItemAndDrawsIt) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.SetData(2, {.text = "new", .key = "k", .ItemDataEx = 9});
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre("new"));
    EXPECT_EQ(roster.Data(2),
              (qrosterdata{.text = "new", .key = "k", .ItemDataEx = 9, .vflag = vflag::InUse}));
}

TEST(qRosterItems, SetDataWithoutUpdateDrawsNothing) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.SetData(2, {.text = "new"}, false);
    EXPECT_THAT(roster.log().All(), IsEmpty());
    EXPECT_EQ(roster.Data(2).text, "new");
}

TEST(qRosterItems, SetDataOfAnItemOffThePageDrawsNothing) {
    FakeRoster roster({}, Numbered(9));
    roster.list.SetData(7, {.text = "new"});
    EXPECT_THAT(roster.TakeDrawn(), IsEmpty());
    EXPECT_EQ(roster.Data(7).text, "new");
}

TEST(qRosterItems, SetDataCannotSelectAnItem) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.SetData(2, {.vflag = -1});
    EXPECT_FALSE(roster.list.IsSelected(2));
    EXPECT_EQ(roster.Data(2).vflag, vflag::InUse | 0x1FFFFFFF);
}

TEST(qRosterItems, SetDataKeepsTheTopThreeFlagsAndTakesTheOthers) {
    FakeRoster roster;
    roster.list.AddItem(0, {.vflag = vflag::Selected | 0x20000000 | vflag::Bold});
    roster.list.SetData(1, {.vflag = vflag::Italic});
    EXPECT_EQ(roster.Data(1).vflag, vflag::InUse | vflag::Selected | 0x20000000 | vflag::Italic);
}

TEST(qRosterItems, SetDataOutOfRangeDoesNothing) {
    FakeRoster roster({}, {"ant"});
    for (const std::int32_t index : {0, -1, 2, 6, 7, INT_MAX, INT_MIN})
        EXPECT_NO_THROW(roster.list.SetData(index, {.text = "new"}));
    EXPECT_THAT(roster.log().All(), IsEmpty());
    EXPECT_EQ(roster.Data(0), qrosterdata{});
    EXPECT_EQ(roster.Data(2), qrosterdata{});
    EXPECT_EQ(roster.Data(1).text, "ant");
}

TEST(qRosterItems, SetDataOnARemovedItemWritesSlotZero) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.list.RemoveItem(2);
    roster.list.SetData(2, {.text = "zero"}, false);
    EXPECT_EQ(roster.Data(2).text, "zero");
    EXPECT_EQ(roster.Data(0).text, "zero");
    roster.list.Refresh();
    EXPECT_THAT(roster.Texts(), ElementsAre("ant", "cat"));
    roster.list.RemoveItem(1);
    EXPECT_EQ(roster.Data(1).text, "zero"); // every blank shows it from now on
    roster.list.Clear();
    EXPECT_EQ(roster.Data(0), qrosterdata{});
}

TEST(qRosterItems, SetDataIgnoresWhatAHandlerThrowsWhileTheItemIsDrawn) {
    FakeRoster roster({}, {"ant"});
    roster.list.events.ExDraw = [](std::int32_t&, std::int32_t, const std::string&, std::int32_t,
                                   std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                                   std::int32_t) { throw std::runtime_error("no"); };
    EXPECT_NO_THROW(roster.list.SetData(1, {.text = "new", .vflag = vflag::HostText}));
    EXPECT_EQ(roster.Data(1).text, "new");
    EXPECT_THROW(roster.list.DrawItem(1), std::runtime_error);
}

TEST(qRosterItems, AHandlerEditsTheStoredRecordInPlaceAndTheNextPaintShowsIt) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.events.Change = [](std::int32_t, qrosterdata& x) { x.text = "changed"; };
    roster.list.ListIndex(2);
    EXPECT_EQ(roster.Data(2).text, "changed");
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre("changed")); // the repaint comes behind the event
}

TEST(qRosterItems, AHandlerThatTakesTheInUseFlagAwayFreesTheSlotForTheNextItem) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.list.RemoveItem(1); // the search starts at the first slot
    roster.list.events.Change = [](std::int32_t, qrosterdata& x) { x.vflag &= ~vflag::InUse; };
    roster.list.ListIndex(2);
    roster.NoteEvents();
    roster.list.AddItem(0, {.text = "in the first slot"});
    roster.list.AddItem(0, {.text = "in the second"});
    EXPECT_EQ(roster.Data(2).text, "in the second"); // two positions, one slot
    EXPECT_EQ(roster.Data(5).text, "in the second");
}

// Clearing.

TEST(qRosterItems, ClearEmptiesTheListAndWritesTheHookInOrderBeforeTheRefresh) {
    FakeRoster roster({}, Numbered(9));
    roster.list.ListIndex(9);
    roster.log().Clear();
    roster.list.Clear();
    EXPECT_EQ(roster.list.Count(), 0);
    EXPECT_EQ(roster.list.ListIndex(), 0);
    EXPECT_THAT(roster.TakeHookWrites(),
                ElementsAre("ScrollMax 0", "ScrollValue 0", "ScrollHMax 0", "ScrollHValue 0", "ScrollLarge 5",
                            "ScrollMax 0", "ScrollValue 0"));
}

TEST(qRosterItems, ClearPaintsBlankCells) {
    FakeRoster roster({}, Numbered(9));
    roster.list.Clear();
    EXPECT_THAT(roster.log().Named("ExtTextOutA"), IsEmpty());
    EXPECT_FALSE(roster.log().Named("FillRect").empty());
}

TEST(qRosterItems, ClearForgetsAPendingRemoval) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.RemoveItem(1);
    roster.list.Clear();
    roster.Add({"cat", "dog"});
    EXPECT_THAT(roster.Texts(), ElementsAre("cat", "dog"));
}

TEST(qRosterItems, ClearKeepsTheAnchorAlsoWhereTheListHasBecomeShorter) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(20));
    roster.list.ListIndex(20);
    roster.PressRow(5); // row 5 of the last page: item 20
    roster.list.Clear();
    roster.Add({"ant", "bee", "cat"});
    EXPECT_NO_THROW(roster.PressRow(2, cShift)); // positions beyond the list have nothing to mark
    EXPECT_THAT(roster.Selected(), ElementsAre(2, 3));
}

TEST(qRosterItems, ItemsAddedAfterClearAreThere) {
    FakeRoster roster({}, Numbered(9));
    roster.list.RemoveItem(9);
    roster.list.Clear();
    roster.Add({"ant", "bee"});
    EXPECT_THAT(roster.Texts(), ElementsAre("ant", "bee"));
}

// Drawing.

TEST(qRosterItems, DrawItemDrawsThatItemAlone) {
    FakeRoster roster({}, Numbered(9));
    roster.list.DrawItem(3);
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre("item 3"));
}

TEST(qRosterItems, DrawItemDrawsTheItemInThePartialRowAndNoneBehindIt) {
    FakeRoster roster({}, Numbered(9));
    roster.list.DrawItem(6);
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre("item 6"));
    roster.list.DrawItem(7);
    EXPECT_THAT(roster.log().Drawing(), IsEmpty());
}

TEST(qRosterItems, DrawItemOutOfRangeDrawsNothing) {
    FakeRoster roster({}, {"ant"});
    for (const std::int32_t index : {0, -1, 2, INT_MAX, INT_MIN}) roster.list.DrawItem(index);
    EXPECT_THAT(roster.log().Drawing(), IsEmpty());
}

TEST(qRosterItems, PaintAllDrawsThePageWithoutTouchingTheScrollRange) {
    FakeRoster roster({.height = 100}, Numbered(9));
    roster.list.PaintAll();
    EXPECT_TRUE(roster.log().Named("hook.ScrollLarge").empty());
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre("item 1", "item 2", "item 3", "item 4", "item 5", "item 6"));
}

TEST(qRosterItems, RefreshWritesTheRangeAndThenPaintsThePage) {
    FakeRoster roster({}, Numbered(3));
    roster.list.AddItem(0, {.text = "item 4"});
    roster.list.Refresh();
    EXPECT_THAT(roster.TakeStory(), ElementsAre("ScrollLarge 5", "ScrollMax 0", "ScrollValue 0",
                                                "draw item 1", "draw item 2", "draw item 3", "draw item 4"));
    roster.Add({"item 5", "item 6", "item 7"});
    roster.list.Refresh();
    EXPECT_THAT(roster.TakeHookWrites(), ElementsAre("ScrollLarge 5", "ScrollMax 2"));
}

TEST(qRosterItems, RefreshReadsTheClientAreaAfterTheRangeWhichMayShowTheBar) {
    FakeRoster roster({}, Numbered(3));
    roster.list.Refresh();
    const auto calls = roster.log().NamedOneOf({"hook.ScrollMax", "GetClientRect"});
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_EQ(calls[0].name, "hook.ScrollMax");
    EXPECT_EQ(calls[1].name, "GetClientRect");
}

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

// The text form.

TEST(qRosterItems, ItemsStrRoundTripKeepsOrderAndFieldsButNotSelectionAndItemDataEx) {
    FakeRoster from({.xn = 2});
    from.list.AddItem(
        0, {.text = "bee", .key = "k", .IconID = 4, .ItemData = 1, .ItemDataEx = 2, .vflag = 0x18});
    from.list.AddItem(1, {.text = "ant", .bColor = 0x123456, .vflag = vflag::Selected});
    from.list.Refresh();
    from.list.HeadWidthEx(12);
    const auto text = from.list.ItemsStr();
    FakeRoster to({}, {"gone"});
    to.list.ItemsStr(text);
    EXPECT_THAT(to.Texts(), ElementsAre("ant", "bee"));
    EXPECT_THAT(to.Selected(), IsEmpty());
    EXPECT_EQ(to.Data(2), (qrosterdata{.text = "bee",
                                       .key = "k",
                                       .IconID = 4,
                                       .ItemData = 1,
                                       .ItemDataEx = 0,
                                       .vflag = vflag::InUse | 0x18}));
    EXPECT_EQ(to.Data(1).bColor, 0x123456);
    EXPECT_EQ(to.list.xn(), 2);
    EXPECT_EQ(to.list.HeadWidthEx(), 12);
    EXPECT_EQ(to.list.ItemsStr(), text);
}

TEST(qRosterItems, SelectionLeavesNoTraceInTheTextForm) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    const auto before = roster.list.ItemsStr();
    roster.list.ListIndex(2);
    EXPECT_EQ(roster.list.ItemsStr(), before);
}

TEST(qRosterItems, WritingItemsStrClearsTheListAndLeavesTheRefreshToTheHost) {
    FakeRoster roster({}, Numbered(9));
    roster.list.ListIndex(3);
    roster.log().Clear();
    roster.list.ItemsStr("107=ant\r\n999\r\n107=bee\r\n999\r\n");
    EXPECT_THAT(roster.Texts(), ElementsAre("ant", "bee"));
    EXPECT_EQ(roster.list.ListIndex(), 0);
    EXPECT_THAT(roster.TakeDrawn(), IsEmpty()); // Clear painted blanks, and nothing was painted since
    roster.list.Refresh();
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre("ant", "bee"));
}

TEST(qRosterItems, AnEmptyTextEmptiesTheList) {
    FakeRoster roster({}, {"ant"});
    roster.list.ItemsStr("");
    EXPECT_EQ(roster.list.Count(), 0);
}

TEST(qRosterItems, ItemsReadFromATextAreTakenOnByAddAndRemove) {
    FakeRoster roster;
    roster.list.ItemsStr("107=ant\r\n999\r\n107=bee\r\n999\r\n107=cat\r\n999\r\n");
    roster.list.RemoveItem(2);
    roster.list.AddItem(0, {.text = "dog"});
    roster.list.AddItem(1, {.text = "new"});
    roster.list.Refresh();
    EXPECT_THAT(roster.Texts(), ElementsAre("new", "ant", "cat", "dog"));
}

TEST(qRosterItems, BrokenTextFormsAreReadByTheRulesAndNeverEndInAnError) {
    const std::vector<std::string> texts = {
        "999",
        "999\r\n999\r\n",
        "=\r\n==\r\n\r\n999\r\n",
        "107=no end",
        "107=ant\n999\n",
        "18=99999999999999999999\r\n999\r\n",
        "18=-5\r\n19=-5\r\n13=-4000000000\r\n999\r\n",
        "107=a\r\n99999999999999999999=b\r\n999\r\n",
        std::string("107=a\0b\r\n999\r\n\0\r\n", 17),
        "107=\xFF\xFE\xC3\r\n999\r\n",
        "109=&HFFFFFFFF&\r\n999\r\n",
        "104=&HZZ&\r\n105=abc\r\n999\r\n",
        std::string(100000, '='),
        std::string(100000, '9') + "\r\n",
    };
    for (const auto& text : texts) {
        FakeRoster roster({}, {"ant"});
        EXPECT_NO_THROW(roster.list.ItemsStr(text)) << text.substr(0, 40);
        try {
            roster.list.Refresh();
        } catch (const Error&) { // settings that do not fit may end in an overflow
        }
        roster.list.Clear();
    }
}

TEST(qRosterItems, AGridOfAnAbsurdSizeFromATextEndsInAnErrorAndTheListCanBeUsedAgain) {
    for (const char* grid : {"18=2000000000\r\n", "19=2000000000\r\n", "18=100000\r\n19=100000\r\n"}) {
        FakeRoster roster;
        roster.list.ItemsStr(std::string(grid) + "107=ant\r\n999\r\n");
        EXPECT_EQ(roster.list.Count(), 1);
        EXPECT_THROW(roster.list.Refresh(), Error) << grid;
        try {
            roster.list.xn(1);
        } catch (const Error&) { // the rows are still too many
        }
        roster.list.yn(5);
        roster.log().Clear();
        roster.list.Refresh();
        EXPECT_THAT(roster.TakeDrawn(), ElementsAre("ant"));
    }
}

TEST(qRosterItems, ALineNineHundredNinetyNineAloneAddsTheWorkingRecord) {
    FakeRoster roster;
    roster.list.ItemsStr("999\r\n107=ant\r\n999\r\n999\r\n");
    EXPECT_THAT(roster.Texts(), ElementsAre("", "ant", "ant"));
}

TEST(qRosterItems, TextsWithZeroBytesAndInvalidUtf8AreKeptAndPainted) {
    FakeRoster roster;
    const std::string odd("a\0b\xFF\xC3", 5);
    roster.list.AddItem(0, {.text = odd});
    roster.list.Refresh();
    EXPECT_EQ(roster.Data(1).text, odd);
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre(odd));
    EXPECT_EQ(roster.list.FindItem(odd), 1);
    roster.list.StrSeekItem("\xFF");
    EXPECT_EQ(roster.list.ListIndex(), 0);
}

} // namespace
} // namespace tvok::test
