// BuiltList: which rows there are, in which order, how wide the captions get, and which row is current.
#include "tests/support/PlainSort.h"
#include "tests/support/PropertyListDesktop.h"

#include <random>

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using List = PropertyListDesktop;

elistdata Hidden(elistdata item) {
    item.bVisible = false;
    return item;
}

elistdata Folded(elistdata item) {
    item.hItem.vflag |= vflag::Collapsed;
    return item;
}

elistdata Captioned(elistdata item, const std::string& caption) {
    item.hItem.text = caption;
    return item;
}

/// Two groups with children, in an order that no sort would give.
std::vector<elistdata> TwoGroups() {
    return {List::Value("z1", "b"), List::Group("b"), List::Value("y2", "a"),
            List::Value("c3", "b"), List::Group("a"), List::Value("x4", "a")};
}

// Which rows.

TEST(gListRows, AnEmptyStoreHasNoRowsTheLeastCaptionWidthAndIsRefreshed) {
    List at;
    EXPECT_EQ(at.Effect([&] { at.list->BuiltList(); }), "refresh");
    EXPECT_EQ(at.list->Count(), 0);
    EXPECT_EQ(at.list->HeadWidth(), 30);
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide()"));
}

TEST(gListRows, AFlatListShowsVisibleItemsThatAreNoGroups) {
    List at;
    at.Show({List::Group("g"), List::Value("b", "g"), Hidden(List::Value("h")), List::Value("a", "none")});
    EXPECT_THAT(at.Keys(), ElementsAre("a", "b"));
}

TEST(gListRows, AFlatListOfGroupsOnlyIsEmpty) {
    List at;
    at.Show({List::Group("g"), List::Group("f")});
    EXPECT_EQ(at.list->Count(), 0);
}

TEST(gListRows, AFlatListShowsTheChildrenOfFoldedGroups) {
    List at;
    at.Show({Folded(List::Group("g")), List::Value("child", "g")});
    EXPECT_THAT(at.Keys(), ElementsAre("child"));
}

TEST(gListRows, AnyOtherListModeIsAFlatList) {
    for (const std::int32_t mode : {0, 2, -1, 257}) {
        List at({.ListMode = mode});
        at.Show({List::Group("g"), List::Value("b", "g")});
        EXPECT_THAT(at.Keys(), ElementsAre("b")) << mode;
    }
}

TEST(gListRows, GroupsStandInOrderOfCaptionsAndTheirChildrenBelowThemInOrderOfTheirs) {
    List at({.ListMode = 1});
    at.Show(TwoGroups());
    EXPECT_THAT(at.Keys(), ElementsAre("a", "x4", "y2", "b", "c3", "z1"));
}

TEST(gListRows, WithoutSortingGroupsAndChildrenKeepTheOrderOfTheStore) {
    List at({.ListMode = 1, .Sorted = false});
    at.Show(TwoGroups());
    EXPECT_THAT(at.Keys(), ElementsAre("b", "z1", "c3", "a", "y2", "x4"));
    List flat({.Sorted = false});
    flat.Show(TwoGroups());
    EXPECT_THAT(flat.Keys(), ElementsAre("z1", "y2", "c3", "x4"));
}

TEST(gListRows, SortingGoesByTheCaptionAndNotByTheKey) {
    List at;
    at.Show({Captioned(List::Value("1"), "b"), Captioned(List::Value("2"), "a")});
    EXPECT_THAT(at.Keys(), ElementsAre("2", "1"));
}

TEST(gListRows, UpperCaseStandsBeforeLowerCase) {
    List at;
    at.Show({List::Value("able"), List::Value("Zed")});
    EXPECT_THAT(at.Keys(), ElementsAre("Zed", "able"));
}

TEST(gListRows, AFoldedGroupLeavesItsChildrenOut) {
    List at({.ListMode = 1});
    auto items = TwoGroups();
    items[1] = Folded(items[1]);
    at.Show(items);
    EXPECT_THAT(at.Keys(), ElementsAre("a", "x4", "y2", "b"));
}

TEST(gListRows, AHiddenGroupVanishesWithItsChildren) {
    List at({.ListMode = 1});
    auto items = TwoGroups();
    items[1] = Hidden(items[1]);
    at.Show(items);
    EXPECT_THAT(at.Keys(), ElementsAre("a", "x4", "y2"));
}

TEST(gListRows, AChildsOwnVisibilityCountsInAFlatListOnly) {
    List at({.ListMode = 1});
    at.Show({List::Group("g"), Hidden(List::Value("child", "g"))});
    EXPECT_THAT(at.Keys(), ElementsAre("g", "child"));
    at.list->ListMode(0);
    EXPECT_EQ(at.list->Count(), 0);
}

TEST(gListRows, AChildWhoseParentIsNotThereHasNoRow) {
    List at({.ListMode = 1});
    at.Show({List::Group("g"), List::Value("a", "other"), List::Value("b", "G"), List::Value("c"),
             List::Value("d", "v"), List::Value("v", "g")});
    EXPECT_THAT(at.Keys(), ElementsAre("g", "v")) << "the case counts, and a value row is nobody's parent";
}

TEST(gListRows, AGroupIsNobodysChild) {
    List at({.ListMode = 1});
    elistdata inner = List::Group("inner");
    inner.pKey = "outer";
    elistdata own = List::Group("own");
    own.pKey = "own";
    at.Show({List::Group("outer"), inner, own});
    EXPECT_THAT(at.Keys(), ElementsAre("inner", "outer", "own"));
}

TEST(gListRows, AnEmptyParentKeyMeansAGroupWithAnEmptyKey) {
    List at({.ListMode = 1});
    at.Show({Captioned(List::Group(""), "group"), List::Value("a"), List::Value("b", "x")});
    EXPECT_THAT(at.Keys(), ElementsAre("", "a"));
}

TEST(gListRows, AChildOfTwoGroupsWithTheSameKeyHasTwoRows) {
    List at({.ListMode = 1});
    at.list->AddItem(List::Group("g"));
    at.list->AddItem(List::Group("f"));
    at.list->AddItem(List::Group("g"), -2);
    at.Show({List::Value("child", "g")});
    EXPECT_EQ(at.list->Count(), 4);
    EXPECT_EQ(at.SlotOfRow(2), 3);
    EXPECT_EQ(at.SlotOfRow(4), 0) << "a number beyond the store is no index, be it a row's";
    at.Show({List::Value("x", "nobody")});
    EXPECT_THAT(at.Keys(), ElementsAre("g", "child", "g", "child"));
    EXPECT_EQ(at.SlotOfRow(4), 3);
}

TEST(gListRows, OperationsOnItemsMakeNoRows) {
    List at;
    at.Show({List::Value("a")});
    at.list->AddItem(List::Value("b"));
    at.list->ItemsStr("107=c\r\n999\r\n");
    at.list->SetData(5, "b");
    EXPECT_EQ(at.list->Count(), 1);
    at.list->BuiltList();
    EXPECT_EQ(at.list->Count(), 3);
}

TEST(gListRows, EqualCaptionsStandInTheOrderThatTheStepsOfTheSortGive) {
    std::mt19937 random{8};
    for (const std::int32_t size : {2, 9, 10, 11, 12, 35, 120}) {
        List at;
        std::vector<std::string> captions(1);
        std::vector<std::int32_t> order(1);
        for (std::int32_t slot = 1; slot <= size; ++slot) {
            captions.push_back(std::string(1, static_cast<char>('a' + random() % 3)));
            order.push_back(slot);
            at.list->AddItem(Captioned(List::Value(""), captions.back()));
        }
        PlainSort plain(
            order, true,
            [&](std::int32_t slot) -> const std::string& { return captions[static_cast<std::size_t>(slot)]; },
            CompareBytes);
        plain.Sort(1, size);
        at.list->BuiltList();
        order.erase(order.begin());
        EXPECT_EQ(at.Slots(), order);
        EXPECT_EQ(plain.partitions > 0, size > 10) << size;
    }
}

// The row array.

TEST(gListRows, TheRowArrayGrowsInStepsOfSixAndDoesNotShrink) {
    List at;
    for (int i = 0; i < 30; ++i) at.list->AddItem(Hidden(List::Value("k" + std::to_string(100 + i))));
    const auto show = [&](int count) {
        int left = count;
        at.list->events.EnumItems = [&](elistdata& x, std::int32_t) { x.bVisible = left-- > 0; };
        at.list->ReqEnumItems(0);
        at.list->BuiltList();
        ASSERT_EQ(at.list->Count(), count);
    };
    const auto rows = [&] { // up to where an index is no row at all
        std::int32_t row = 1;
        for (; row <= 30; ++row) {
            try {
                at.list->RemoveItem(row > at.list->Count() ? row : 0);
            } catch (const SubscriptError&) {
                break;
            }
        }
        return row - 1;
    };
    EXPECT_EQ(rows(), 0);
    show(1);
    EXPECT_EQ(rows(), 6);
    show(6);
    EXPECT_EQ(rows(), 6);
    show(7);
    EXPECT_EQ(rows(), 12);
    show(12);
    EXPECT_EQ(rows(), 12);
    show(13);
    EXPECT_EQ(rows(), 18);
}

TEST(gListRows, TheRowArrayKeepsItsSizeWhenRowsGo) {
    List at;
    for (int i = 0; i < 13; ++i) at.list->AddItem(List::Value("k" + std::to_string(100 + i)));
    at.list->BuiltList();
    at.list->Clear();
    elistdata item;
    EXPECT_EQ(at.list->GetItem(item, {}, 13), -13) << "the entry of a row that is gone";
    EXPECT_EQ(at.list->Count(), 0);
}

// Squeezing.

TEST(gListRows, RebuildingClosesTheGapsInTheOrderOfTheSlots) {
    List at({.Sorted = false});
    at.Show({List::Value("a"), List::Value("b"), List::Value("c"), List::Value("d"), List::Value("e")});
    at.list->events.EnumItems = [](elistdata& x, std::int32_t) {
        x.bDelete = x.hItem.key == "a" || x.hItem.key == "c";
    };
    at.list->ReqEnumItems(0);
    at.list->BuiltList();
    EXPECT_THAT(at.Keys(), ElementsAre("b", "d", "e"));
    EXPECT_THAT(at.Slots(), ElementsAre(1, 2, 3));
    EXPECT_TRUE(at.Slot(4).bDelete);
    EXPECT_TRUE(at.Slot(5).bDelete);
    EXPECT_EQ(at.Slot(4).hItem.key, "d") << "old contents stay in what is free now";
    EXPECT_EQ(at.Slot(5).hItem.key, "e");
    EXPECT_EQ(at.list->AddItem(List::Value("x")), -4);
}

TEST(gListRows, RebuildingWithoutGapsMovesNothing) {
    List at;
    at.Show({List::Value("c"), List::Value("a"), List::Value("b")});
    at.list->BuiltList();
    EXPECT_THAT(at.Slots(), ElementsAre(2, 3, 1));
}

// The caption column.

std::int32_t FittedWidth(const List& at, const std::string& caption) {
    const float twips = at.desktop.form().ComponentOf(*at.list).TextWidth(caption);
    return std::max(RoundToInt32(twips) / 15 + 5, 30);
}

TEST(gListRows, TheCaptionColumnFitsTheWidestCaptionAndShrinksAgain) {
    List at;
    const std::string wide = "a caption of some width", wider = wide + " and more of it";
    at.Show({List::Value("x"), Captioned(List::Value("1"), wide), Captioned(List::Value("2"), wider)});
    EXPECT_EQ(at.list->HeadWidth(), FittedWidth(at, wider));
    at.list->RemoveItem(-3);
    EXPECT_EQ(at.list->HeadWidth(), FittedWidth(at, wide));
    at.list->RemoveItem(-2);
    EXPECT_EQ(at.list->HeadWidth(), 30);
    EXPECT_LT(FittedWidth(at, wide), FittedWidth(at, wider));
}

TEST(gListRows, TheCaptionColumnDividesByTheTwipsOfAPixel) {
    List at;
    const std::string wide = "a caption of some width";
    const float twips = at.desktop.form().ComponentOf(*at.list).TextWidth(wide);
    const TwipsOf twelve(11.6f, 15);
    at.Show({Captioned(List::Value("1"), wide)});
    const float now = at.desktop.form().ComponentOf(*at.list).TextWidth(wide);
    EXPECT_EQ(at.list->HeadWidth(), RoundToInt32(now) / 12 + 5) << twips;
}

TEST(gListRows, CaptionsOfGroupsAndOfFoldedChildrenDoNotCount) {
    List at({.ListMode = 1});
    at.Show({Captioned(List::Group("g"), "a very long caption of a group"), Folded(List::Group("f")),
             Captioned(List::Value("1", "f"), "a very long caption of a child"),
             Captioned(List::Value("2", "g"), "not so long")});
    EXPECT_EQ(at.list->HeadWidth(), FittedWidth(at, "not so long"));
    at.list->events.EnumItems = [](elistdata& x, std::int32_t) { x.hItem.vflag = 0; };
    at.list->ReqEnumItems(0);
    at.list->BuiltList();
    EXPECT_EQ(at.list->HeadWidth(), FittedWidth(at, "a very long caption of a child"));
}

TEST(gListRows, TheCaptionColumnFollowsTheFontWithTheNextRebuild) {
    List at;
    at.Show({List::Value("a caption of some width")});
    const std::int32_t before = at.list->HeadWidth();
    at.list->Font()->Size(20);
    EXPECT_EQ(at.list->HeadWidth(), before);
    at.list->BuiltList();
    EXPECT_GT(at.list->HeadWidth(), before);
    EXPECT_EQ(at.list->HeadWidth(), FittedWidth(at, "a caption of some width"));
}

// The current row.

TEST(gListRows, WithoutACurrentRowThereIsNoneAfterwardsAndNoEvent) {
    List at;
    at.Show({List::Value("a"), List::Value("b")});
    at.list->BuiltList();
    EXPECT_EQ(at.list->ListIndex(), 0);
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide()"));
}

TEST(gListRows, TheCurrentItemStaysCurrentWhichRaisesChangeOnceAndNoClick) {
    List at;
    at.Show({List::Value("b"), List::Value("c")});
    at.list->ListIndex(1);
    at.TakeLog();
    at.list->BuiltList();
    EXPECT_EQ(at.list->ListIndex(), 1);
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide()", "Change(1, b)", "ExEditorHide()"));
    at.Show({List::Value("a")});
    EXPECT_EQ(at.list->ListIndex(), 2);
    EXPECT_THAT(at.Selected(), ElementsAre(2));
    EXPECT_EQ(at.Row(2).hItem.key, "b");
}

TEST(gListRows, AnOpenEditorIsReadBackHiddenAndOpenedAgain) {
    List at;
    at.Show({List::Edited("a"), List::Edited("b")});
    at.ClickRow(2);
    at.Forget();
    at.list->BuiltList();
    auto log = at.TakeLog();
    for (std::string& line : log)
        if (line.starts_with("ExEditorSetPosition(b")) line = "ExEditorSetPosition(b)";
    EXPECT_THAT(log, ElementsAre("ExEditorDataRestore(b)", "ExEditorHide(b)", "ExEditorSetPosition(b)",
                                 "ExEditorShow(b)", "Change(2, b)", "ExEditorHide()", "ExEditorIni(b)",
                                 "ExEditorSetPosition(b)", "ExEditorShow(b)"));
    at.list->BuiltList();
    EXPECT_EQ(at.TakeLog().front(), "ExEditorDataRestore(b)") << "and counts as open";
}

TEST(gListRows, AnEditorWhoseItemLostTheFlagIsNotReadBack) {
    List at;
    at.Show({List::Edited("a")});
    at.ClickRow(1);
    at.list->events.EnumItems = [](elistdata& x, std::int32_t) { x.item.vflag = 0; };
    at.list->ReqEnumItems(0);
    at.Forget();
    at.list->BuiltList();
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide()", "Change(1, a)", "ExEditorHide()"));
}

TEST(gListRows, RebuildingHidesTheStrip) {
    List at;
    at.Show({List::Value("a", "", "b|1|2;x")});
    at.ClickRow(1);
    ASSERT_NE(at.Strip(), tvok_Rect());
    at.list->events.EnumItems = [](elistdata& x, std::int32_t) { x.bVisible = false; };
    at.list->ReqEnumItems(0);
    at.list->BuiltList();
    EXPECT_EQ(at.Strip(), tvok_Rect());
}

TEST(gListRows, RemovingTheCurrentItemMakesTheOneThatMovesIntoItsSlotCurrent) {
    List at;
    at.Show({List::Value("a"), List::Value("b"), List::Value("c")});
    at.list->ListIndex(2);
    at.TakeLog();
    at.list->RemoveItem(2);
    EXPECT_EQ(at.Row(2).hItem.key, "c");
    EXPECT_EQ(at.list->ListIndex(), 2);
    EXPECT_THAT(at.TakeLog({"Change"}), ElementsAre("Change(2, c)"));
    EXPECT_THAT(at.Selected(), ElementsAre(2));
    at.list->RemoveItem(2);
    EXPECT_EQ(at.list->ListIndex(), 0) << "nothing moves into the last slot";
    EXPECT_THAT(at.TakeLog({"Change"}), IsEmpty());
    EXPECT_THAT(at.Selected(), IsEmpty());
}

TEST(gListRows, RemovingAnItemBeforeTheCurrentOneMakesTheCurrentRowJump) {
    List at({.Sorted = false});
    at.Show({List::Value("a"), List::Value("b"), List::Value("c"), List::Value("d")});
    at.list->ListIndex(3);
    at.list->RemoveItem(1);
    EXPECT_EQ(at.Row(at.list->ListIndex()).hItem.key, "d") << "in the slot of c stands d now";
    EXPECT_THAT(at.Selected(), ElementsAre(3));
    at.list->RemoveItem(1);
    EXPECT_EQ(at.list->ListIndex(), 0) << "in slot 3 stands nothing";
    EXPECT_THAT(at.Selected(), IsEmpty());
}

TEST(gListRows, RemovingAnItemBehindTheCurrentOneKeepsIt) {
    List at;
    at.Show({List::Value("c"), List::Value("b"), List::Value("a")});
    at.list->ListIndex(3);
    at.list->RemoveItem(-3);
    EXPECT_EQ(at.list->ListIndex(), 2);
    EXPECT_EQ(at.Row(2).hItem.key, "c");
}

TEST(gListRows, WhereTheItemThatMovedInHasNoRowThereIsNoCurrentRow) {
    List at;
    at.Show({List::Value("a"), List::Value("b"), Hidden(List::Value("h"))});
    at.list->ListIndex(2);
    at.TakeLog();
    at.list->RemoveItem(2);
    EXPECT_EQ(at.list->ListIndex(), 0);
    EXPECT_THAT(at.TakeLog({"Change"}), IsEmpty());
    EXPECT_EQ(at.Slot(2).hItem.key, "h");
    EXPECT_EQ(at.Slot(2).hItem.vflag & vflag::Selected, 0);
}

TEST(gListRows, ACurrentChildThatIsFoldedAwayLeavesNoCurrentRow) {
    List at({.ListMode = 1});
    at.Show({List::Group("g"), List::Value("child", "g")});
    at.list->ListIndex(2);
    at.list->events.EnumItems = [](elistdata& x, std::int32_t) { x.hItem.vflag |= vflag::Collapsed; };
    at.list->ReqEnumItems(0, "g");
    at.TakeLog();
    at.list->BuiltList();
    EXPECT_EQ(at.list->ListIndex(), 0);
    EXPECT_THAT(at.TakeLog({"Change", "Click"}), IsEmpty());
    EXPECT_EQ(at.ByKey("child").hItem.vflag & vflag::Selected, 0);
}

TEST(gListRows, OfTwoRowsOfTheCurrentItemTheFirstBecomesCurrent) {
    List at({.ListMode = 1});
    at.list->AddItem(List::Group("g"));
    at.list->AddItem(List::Group("f"));
    at.list->AddItem(List::Group("g"), -2);
    at.Show({List::Value("child", "g")});
    at.list->ListIndex(4);
    EXPECT_EQ(at.list->ListIndex(), 4);
    at.list->BuiltList();
    EXPECT_EQ(at.list->ListIndex(), 2);
}

TEST(gListRows, AtDesignTimeTheRowsAreMadeBeforeTheMissingHookIsAnObjectError) {
    List at({.userMode = false});
    at.list->AddItem(List::Value("a rather long caption"));
    EXPECT_THROW(at.list->BuiltList(), ObjectError);
    EXPECT_EQ(at.list->Count(), 1);
    EXPECT_EQ(at.list->HeadWidth(), FittedWidth(at, "a rather long caption"));
}

} // namespace
} // namespace tvok::test
