// Records of items: reading, writing, clearing, drawing.

#include "tests/support/FakeRoster.h"

#include <climits>

namespace tvok::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

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

} // namespace
} // namespace tvok::test
