// The store of a property list: where items go, how they are found again, and what each operation does.
#include "tests/support/PropertyListDesktop.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using List = PropertyListDesktop;

/// Every field differs from that of a new record.
elistdata Full(const std::string& key) {
    elistdata item = List::Value(key, "parent", "b|1|2;own");
    item.hItem = {.text = "caption " + key,
                  .key = key,
                  .IconID = 3,
                  .IconBackColor = 4,
                  .IconPos = 5,
                  .ItemData = 6,
                  .ItemDataEx = 7,
                  .bColor = 8,
                  .fcolor = 9,
                  .vflag = vflag::Bold | vflag::Collapsed};
    item.item = item.hItem;
    item.item.text = "value";
    item.nData = "data";
    item.HelpStr = "help";
    return item;
}

elistdata Hidden(const std::string& key) {
    elistdata item = List::Value(key);
    item.bVisible = false;
    return item;
}

std::int32_t Found(const List& at, const std::string& key, std::int32_t index = 0) {
    elistdata item;
    return at.list->GetItem(item, key, index);
}

// DefaultItem.

TEST(gListItems, ADefaultItemIsAVisibleValueRowWithDefaultCells) {
    List at;
    elistdata item = at.list->DefaultItem();
    EXPECT_EQ(item.hItem, qrosterdata());
    EXPECT_EQ(item.item, qrosterdata());
    EXPECT_EQ(item.hItem.IconID, -1);
    EXPECT_EQ(item.pKey, "");
    EXPECT_EQ(item.xbuttons, "");
    EXPECT_EQ(item.HelpStr, "");
    EXPECT_FALSE(item.bDelete);
    EXPECT_TRUE(item.bVisible);
    EXPECT_FALSE(item.bParentItem);
    EXPECT_TRUE(item.nData.IsEmpty());
    item.hItem.text = "changed";
    EXPECT_EQ(at.list->DefaultItem().hItem.text, "") << "a new record each time";
}

// AddItem.

TEST(gListItems, AddItemGivesMinusTheSlotAndSlotsAreCountedFromOne) {
    List at;
    EXPECT_EQ(at.list->AddItem(List::Value("a")), -1);
    EXPECT_EQ(at.list->AddItem(List::Value("b"), 0), -2);
    EXPECT_EQ(at.list->AddItem(List::Value("c")), -3);
}

TEST(gListItems, AddItemTouchesNoRowsAndPaintsNothing) {
    List at;
    EXPECT_EQ(at.Effect([&] { at.list->AddItem(List::Value("a")); }), "");
    EXPECT_EQ(at.list->Count(), 0);
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExItemShowCov(a)"));
}

TEST(gListItems, AddItemStoresTheWholeRecord) {
    List at;
    elistdata item = Full("a");
    item.bVisible = false;
    item.bParentItem = true;
    EXPECT_EQ(at.list->AddItem(item), -1);
    EXPECT_EQ(at.Slot(1), item);
    item.bVisible = true;
    item.bParentItem = false;
    at.list->AddItem(item);
    EXPECT_EQ(at.Slot(1), item) << "the visible flag that counts is the caller's";
}

TEST(gListItems, AddItemOfADeletedRecordIsALiveItem) {
    List at;
    elistdata item = List::Value("a");
    item.bDelete = true;
    at.list->AddItem(item);
    EXPECT_FALSE(at.Slot(1).bDelete);
    at.list->BuiltList();
    EXPECT_EQ(at.list->Count(), 1);
}

TEST(gListItems, AddItemWithAKnownKeyReplacesThatItemWhateverTheCaseOfTheKey) {
    List at;
    at.Show({List::Value("one"), List::Value("two"), List::Value("three")});
    elistdata item = List::Value("TWO");
    item.HelpStr = "new";
    EXPECT_EQ(at.list->AddItem(item), -2);
    EXPECT_EQ(at.Slot(2).HelpStr, "new");
    EXPECT_EQ(at.Slot(2).hItem.key, "TWO");
    at.list->BuiltList();
    EXPECT_EQ(at.list->Count(), 3);
}

TEST(gListItems, AddItemWithAnEmptyKeyIsAlwaysNew) {
    List at;
    for (std::int32_t slot = 1; slot <= 4; ++slot) EXPECT_EQ(at.list->AddItem(List::Value("")), -slot);
}

TEST(gListItems, AddItemOnARowTakesItsSlotWhateverTheKey) {
    List at;
    at.Show({List::Value("c"), List::Value("a"), List::Value("b")});
    ASSERT_THAT(at.Slots(), ElementsAre(2, 3, 1));
    EXPECT_EQ(at.list->AddItem(List::Value("x"), 3), -1) << "the third row";
    EXPECT_EQ(at.Slot(1).hItem.key, "x");
    EXPECT_EQ(at.list->AddItem(List::Value("a"), 1), -2);
    EXPECT_EQ(at.list->AddItem(List::Value("a"), 2), -3) << "no key is refused for being there twice";
    EXPECT_EQ(at.Slot(2).hItem.key, "a");
    EXPECT_EQ(at.Slot(3).hItem.key, "a");
    EXPECT_EQ(Found(at, "a"), -2) << "the first of them";
}

TEST(gListItems, AddItemOnASlotTakesIt) {
    List at;
    at.Show({List::Value("a"), List::Value("b")});
    EXPECT_EQ(at.list->AddItem(List::Value("x"), -2), -2);
    EXPECT_EQ(at.list->AddItem(List::Value("a"), -2), -2) << "before the key is looked at";
    EXPECT_EQ(at.Slot(1).hItem.key, "a");
    EXPECT_EQ(at.Slot(2).hItem.key, "a");
}

TEST(gListItems, AddItemBeyondTheStoreGoesByTheKey) {
    List at;
    at.Show({List::Value("a"), List::Value("b")});
    EXPECT_EQ(at.list->AddItem(List::Value("b"), 9), -2);
    EXPECT_EQ(at.list->AddItem(List::Value("b"), -9), -2);
    EXPECT_EQ(at.list->AddItem(List::Value("c"), 9), -3);
    EXPECT_EQ(at.list->AddItem(List::Value("d"), INT32_MIN), -4);
}

TEST(gListItems, AddItemOnARowBeyondTheRowsIsANewItem) {
    List at;
    for (int i = 0; i < 9; ++i) at.list->AddItem(List::Value(""));
    EXPECT_EQ(at.list->AddItem(List::Value(""), 5), -10) << "there are no rows, only slots";
}

TEST(gListItems, AddItemReusesFreeSlotsFromTheFirst) {
    List at;
    at.Show({List::Value("a"), List::Value("b"), List::Value("c"), List::Value("d")});
    at.list->Clear();
    EXPECT_EQ(at.list->AddItem(List::Value("x")), -1);
    EXPECT_EQ(at.list->AddItem(List::Value("y")), -2);
    EXPECT_EQ(at.list->AddItem(List::Value("z")), -3);
    EXPECT_TRUE(at.Slot(4).bDelete);
    EXPECT_EQ(at.Slot(4).hItem.key, "d") << "a free slot keeps its old fields";
    EXPECT_EQ(Found(at, "", -5), 0) << "the store did not grow";
    EXPECT_EQ(at.list->AddItem(List::Value("u")), -4);
    EXPECT_EQ(at.list->AddItem(List::Value("v")), -5);
}

TEST(gListItems, AddItemWithTheKeyOfAFreeSlotTakesThatSlotAlthoughAnotherIsFreeBeforeIt) {
    List at;
    at.Show({List::Value("a"), List::Value("b"), List::Value("c")});
    at.list->Clear();
    EXPECT_EQ(at.list->AddItem(List::Value("C")), -3);
    EXPECT_EQ(at.list->AddItem(List::Value("new")), -1);
    EXPECT_EQ(at.list->AddItem(List::Value("")), -2);
}

TEST(gListItems, AddItemOnAFreeSlotBringsItToLife) {
    List at;
    at.Show({List::Value("a"), List::Value("b"), List::Value("c")});
    at.list->Clear();
    EXPECT_EQ(at.list->AddItem(List::Value("x"), -2), -2);
    at.list->BuiltList();
    EXPECT_THAT(at.Keys(), ElementsAre("x"));
}

// GetItem, GetData.

TEST(gListItems, GetItemFindsByRowBySlotAndByKey) {
    List at;
    at.Show({List::Value("c"), List::Value("a"), List::Value("b")});
    EXPECT_EQ(Found(at, "", 1), -2);
    EXPECT_EQ(Found(at, "", 3), -1);
    EXPECT_EQ(Found(at, "", -1), -1);
    EXPECT_EQ(Found(at, "b"), -3);
    EXPECT_EQ(Found(at, "B"), -3);
    EXPECT_EQ(Found(at, "b", 1), -3) << "a key counts before an index";
    EXPECT_EQ(at.Row(1).hItem.key, "a");
}

TEST(gListItems, GetItemFindsKeysOfAllAlphabetsWhateverTheirCase) {
    List at;
    at.list->AddItem(List::Value("\xC3\x84pfel"));
    EXPECT_EQ(Found(at, "\xC3\xA4PFEL"), -1);
}

TEST(gListItems, GetItemOfNothingGivesZeroAndLeavesTheRecord) {
    List at;
    at.Show({List::Value("a")});
    elistdata item = Full("kept");
    EXPECT_EQ(at.list->GetItem(item, "nobody"), 0);
    EXPECT_EQ(at.list->GetItem(item, "nobody", 1), 0) << "an unknown key hides the index";
    EXPECT_EQ(at.list->GetItem(item), 0);
    EXPECT_EQ(at.list->GetItem(item, {}, 2), 0);
    EXPECT_EQ(at.list->GetItem(item, {}, -2), 0);
    EXPECT_EQ(at.list->GetItem(item, {}, INT32_MAX), 0);
    EXPECT_EQ(at.list->GetItem(item, {}, INT32_MIN), 0);
    EXPECT_EQ(item, Full("kept"));
}

TEST(gListItems, GetItemOnARowBeyondTheRowsButWithinTheStoreFindsNothing) {
    List at;
    for (int i = 0; i < 9; ++i) at.list->AddItem(List::Value("k" + std::to_string(i)));
    EXPECT_EQ(Found(at, "", 5), 0) << "there are no rows yet";
    EXPECT_EQ(Found(at, "", -5), -5);
    EXPECT_TRUE(at.list->GetData({}, 5).IsEmpty());
}

TEST(gListItems, GetItemOfAChildOfAFoldedGroupFindsItBySlotThoughItHasNoRow) {
    List at({.ListMode = 1});
    elistdata group = List::Group("g");
    group.hItem.vflag = vflag::Collapsed;
    at.Show({group, List::Value("child", "g")});
    ASSERT_EQ(at.list->Count(), 1);
    EXPECT_EQ(at.Slot(2).hItem.key, "child");
}

TEST(gListItems, ARowBetweenTheCountAndTheEndOfTheRowArrayReadsWhatStoodThere) {
    List at;
    at.Show({List::Value("a"), List::Value("b"), List::Value("c"), List::Value("d")});
    at.list->events.EnumItems = [](elistdata& x, std::int32_t) { x.bVisible = x.hItem.key == "a"; };
    at.list->ReqEnumItems(0);
    at.list->BuiltList();
    ASSERT_EQ(at.list->Count(), 1);
    EXPECT_EQ(Found(at, "", 2), -2);
    EXPECT_EQ(Found(at, "", 4), -4);
    EXPECT_EQ(at.list->AddItem(List::Value("x"), 3), -3);
    at.list->SetData("new", {}, 4);
    EXPECT_EQ(at.Slot(4).nData, Variant("new"));
}

TEST(gListItems, GetDataGivesTheValueOrAnEmptyOne) {
    List at;
    elistdata item = List::Value("key");
    item.nData = 12.5;
    at.Show({item});
    EXPECT_EQ(at.list->GetData("KEY"), Variant(12.5));
    EXPECT_EQ(at.list->GetData({}, 1), Variant(12.5));
    EXPECT_EQ(at.list->GetData({}, -1), Variant(12.5));
    EXPECT_TRUE(at.list->GetData("none").IsEmpty());
    EXPECT_TRUE(at.list->GetData("none", 1).IsEmpty());
    EXPECT_TRUE(at.list->GetData().IsEmpty());
    EXPECT_TRUE(at.list->GetData({}, 2).IsEmpty());
}

TEST(gListItems, AFreeSlotIsFoundByItsKeyAndByItsNumber) {
    List at;
    at.Show({List::Value("a"), List::Value("b")});
    at.list->RemoveItem(-2);
    EXPECT_EQ(Found(at, "b"), -2);
    EXPECT_EQ(Found(at, "", -2), -2);
    EXPECT_TRUE(at.ByKey("b").bDelete);
    EXPECT_EQ(at.list->AddItem(List::Value("b")), -2);
}

TEST(gListItems, OfSeveralItemsWithAKeyTheFirstSlotIsFoundAlsoWhenItIsFree) {
    List at;
    at.Show({List::Value("a"), List::Value("b"), List::Value("c")});
    at.list->AddItem(List::Value("A"), -3);
    EXPECT_EQ(Found(at, "a"), -1);
    at.list->Clear();
    at.list->AddItem(List::Value("a"), -3);
    EXPECT_EQ(Found(at, "a"), -1);
    EXPECT_TRUE(at.ByKey("a").bDelete) << "the live one stands behind it";
}

TEST(gListItems, AKeyThatAHandlerChangesIsFoundFromThenOn) {
    List at;
    at.Show({List::Value("a"), List::Value("b")});
    at.list->events.EnumItems = [](elistdata& x, std::int32_t) {
        if (x.hItem.key == "b") x.hItem.key = "Z";
    };
    at.list->ReqEnumItems(0);
    EXPECT_EQ(Found(at, "z"), -2);
    EXPECT_EQ(Found(at, "b"), 0);
    at.list->events.ExItemShowCov = [](elistdata& x) { x.hItem.key = "made"; };
    EXPECT_EQ(at.list->AddItem(List::Value("c")), -3);
    EXPECT_EQ(Found(at, "made"), -3);
    EXPECT_EQ(Found(at, "c"), 0);
    EXPECT_EQ(at.list->AddItem(List::Value("c")), -4);
}

// RemoveItem.

TEST(gListItems, RemoveItemFreesTheSlotAndRebuilds) {
    List at;
    at.Show({List::Value("b"), List::Value("a"), List::Value("c")});
    at.list->RemoveItem(1);
    EXPECT_THAT(at.Keys(), ElementsAre("b", "c"));
    at.list->RemoveItem(-1);
    EXPECT_THAT(at.Keys(), ElementsAre("c"));
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide()", "ExEditorHide()"));
}

TEST(gListItems, RemoveItemOfNothingDoesNothing) {
    List at;
    at.Show({List::Value("a"), List::Value("b")});
    for (const std::int32_t index : {0, 3, 99, -3, INT32_MIN})
        EXPECT_EQ(at.Effect([&] { at.list->RemoveItem(index); }), "") << index;
    EXPECT_EQ(at.list->Count(), 2);
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

TEST(gListItems, RemoveItemOnARowBeyondTheRowsIsASubscriptErrorAndChangesNothing) {
    List at;
    for (int i = 0; i < 9; ++i) at.list->AddItem(List::Value(""));
    at.TakeLog();
    EXPECT_THROW(at.list->RemoveItem(5), SubscriptError);
    for (std::int32_t slot = 1; slot <= 9; ++slot) EXPECT_FALSE(at.Slot(slot).bDelete);
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

TEST(gListItems, RemoveItemOfAFreeSlotRebuildsAllTheSame) {
    List at;
    at.Show({List::Value("a"), List::Value("b")});
    at.list->RemoveItem(-2);
    at.list->AddItem(List::Value("c"), -2);
    at.list->RemoveItem(-1);
    ASSERT_THAT(at.Keys(), ElementsAre("c"));
    at.list->AddItem(List::Value("d"), -2);
    at.list->RemoveItem(-2);
    EXPECT_THAT(at.Keys(), ElementsAre("c"));
    at.TakeLog();
    at.list->RemoveItem(-2);
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide()"));
}

TEST(gListItems, AfterARemovalASlotNumberThatWasKeptMeansAnotherItem) {
    List at;
    at.Show({List::Value("a"), List::Value("b"), List::Value("c")});
    at.list->RemoveItem(1);
    EXPECT_EQ(at.Slot(1).hItem.key, "b");
    EXPECT_EQ(at.Slot(2).hItem.key, "c");
    EXPECT_TRUE(at.Slot(3).bDelete);
    EXPECT_EQ(at.Slot(3).hItem.key, "c") << "what moved away stays behind as well";
    EXPECT_EQ(Found(at, "c"), -2);
}

// SetData.

TEST(gListItems, SetDataSetsTheValueMakesTheDisplayAndRaisesNoChange) {
    List at;
    at.Show({List::Value("a", "", ";ns"), List::Value("b", "", ";lt")});
    at.list->SetData(12, "A");
    at.list->SetData(" text ", {}, 2);
    at.list->SetData("7x", {}, -1);
    EXPECT_EQ(at.Slot(1).nData, Variant("7x"));
    EXPECT_EQ(at.Slot(1).item.text, "7");
    EXPECT_EQ(at.Slot(2).nData, Variant(" text "));
    EXPECT_EQ(at.Slot(2).item.text, "text");
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

TEST(gListItems, SetDataRepaintsItsRowAlone) {
    List at;
    at.Show({List::Value("a"), List::Value("b"), List::Value("c")});
    const auto before = at.desktop.Pixels(*at.list);
    at.list->events.ExItemShowCov = [](elistdata& x) { x.item.text = "WWWW"; };
    EXPECT_EQ(at.Effect([&] { at.list->SetData(1, "b"); }), "paint");
    const auto after = at.desktop.Pixels(*at.list);
    ASSERT_EQ(before.size(), after.size());
    const std::size_t width = before.size() / 200;
    bool changed = false;
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (before[i] == after[i]) continue;
        changed = true;
        ASSERT_TRUE(i / width >= 19 && i / width < 38) << "line " << i / width;
    }
    EXPECT_TRUE(changed);
}

TEST(gListItems, SetDataOfAnItemWithoutARowPaintsNothing) {
    List at;
    at.Show({List::Value("a"), Hidden("h")});
    EXPECT_EQ(at.Effect([&] { at.list->SetData(1, "h"); }), "");
    EXPECT_EQ(at.ByKey("h").nData, Variant(1));
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExItemShowCov(h)"));
}

TEST(gListItems, SetDataOfNothingShowsTheBlankRecordToTheHost) {
    List at;
    at.Show({List::Value("a")});
    elistdata seen = Full("seen");
    at.list->events.ExItemShowCov = [&](elistdata& x) { seen = x; };
    at.list->SetData("lost", "nobody");
    elistdata blank;
    blank.hItem = blank.item = ZeroItem();
    EXPECT_EQ(seen, blank);
    for (const std::int32_t index : {0, 9, -9}) {
        seen = Full("seen");
        at.list->SetData("lost", {}, index);
        EXPECT_EQ(seen, blank) << index;
    }
}

TEST(gListItems, SetDataOnARowBeyondTheRowsShowsTheBlankRecord) {
    List at;
    for (int i = 0; i < 9; ++i) at.list->AddItem(List::Value("k" + std::to_string(i)));
    at.TakeLog();
    at.list->SetData(1, {}, 5);
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExItemShowCov()"));
    EXPECT_TRUE(at.Slot(5).nData.IsEmpty());
}

TEST(gListItems, WhatAHandlerWritesIntoTheBlankRecordStaysThere) {
    List at;
    at.list->events.ExItemShowCov = [](elistdata& x) { x.HelpStr += "."; };
    at.list->SetData(1, "nobody");
    at.list->SetData(1, "nobody");
    std::string seen;
    at.list->events.ExItemShowCov = [&](elistdata& x) { seen = x.HelpStr; };
    at.list->SetData(1, "nobody");
    EXPECT_EQ(seen, "..");
}

// ShowItem.

TEST(gListItems, ShowItemMakesTheItemCurrentByItsKey) {
    List at;
    at.Show({List::Value("a"), List::Value("b"), Hidden("h")});
    at.list->ShowItem("B");
    EXPECT_EQ(at.list->ListIndex(), 2);
    EXPECT_THAT(at.TakeLog({"Change", "Click", "ExEditorIni"}), ElementsAre("Change(2, b)"));
    for (const char* key : {"h", "nobody", ""}) {
        at.list->ShowItem(key);
        EXPECT_EQ(at.list->ListIndex(), 2) << key;
    }
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

TEST(gListItems, ShowItemKeepsErrorsToItself) {
    List at;
    at.Show({List::Value("a")});
    at.list->events.Change = [](std::int32_t, elistdata&) { throw Error("from a handler"); };
    EXPECT_NO_THROW(at.list->ShowItem("a"));
    EXPECT_EQ(at.list->ListIndex(), 1);
}

// Quiet regions.

TEST(gListItems, AddItemKeepsErrorsOfHandlersToItselfAndGoesOn) {
    List at;
    at.list->events.EnumPopStr = [](std::int32_t, std::string&) { throw Error("no list"); };
    at.list->events.ExItemShowCov = [](elistdata&) { throw Error("no text"); };
    elistdata item = List::Value("a", "", ";lt 3");
    item.nData = " x ";
    EXPECT_EQ(at.list->AddItem(item), -1);
    EXPECT_EQ(at.Slot(1).item.text, "x") << "made although the list could not be had";
    EXPECT_EQ(at.list->AddItem(List::Value("b")), -2);
}

TEST(gListItems, SetDataRepaintsTheRowAlsoWhenTheHandlerThrows) {
    List at;
    at.Show({List::Value("a")});
    at.list->events.ExItemShowCov = [](elistdata&) { throw Error("no text"); };
    EXPECT_EQ(at.Effect([&] { at.list->SetData(5, "a"); }), "paint");
    EXPECT_EQ(at.list->GetData("a"), Variant(5));
}

} // namespace
} // namespace tvok::test
