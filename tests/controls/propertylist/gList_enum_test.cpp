// ReqEnumItems: which items a handler sees, and when their display is made anew.
#include "tests/support/PropertyListDesktop.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using List = PropertyListDesktop;

/// Items whose display the host makes: `ExItemShowCov` tells of each making.
struct ThreeItems : List {
    ThreeItems() { Show({Value("b"), Value("a"), Value("c")}); }
};

TEST(gListEnum, WithoutAKeyAllItemsComeInTheOrderOfSlots) {
    ThreeItems at;
    at.list->ReqEnumItems(7);
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumItems(b, 7)", "EnumItems(a, 7)", "EnumItems(c, 7)"));
}

TEST(gListEnum, TheActionIsHandedThroughAsItStands) {
    ThreeItems at;
    at.list->ReqEnumItems(INT32_MIN, "a");
    EXPECT_THAT(at.TakeLog({"EnumItems"}), ElementsAre("EnumItems(a, -2147483648)"));
}

TEST(gListEnum, ItemsWithoutARowComeAsWell) {
    List at({.ListMode = 1});
    elistdata group = List::Group("g");
    group.hItem.vflag = vflag::Collapsed;
    elistdata hidden = List::Value("h");
    hidden.bVisible = false;
    at.Show({group, List::Value("child", "g"), hidden});
    at.list->ReqEnumItems(1);
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumItems(g, 1)", "EnumItems(child, 1)", "EnumItems(h, 1)"));
}

TEST(gListEnum, FreeSlotsAreLeftOut) {
    ThreeItems at;
    at.list->RemoveItem(-3);
    at.TakeLog();
    at.list->ReqEnumItems(1);
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumItems(b, 1)", "EnumItems(a, 1)"));
    at.list->ReqEnumItems(1, "c");
    EXPECT_THAT(at.TakeLog(), IsEmpty());
    at.list->Clear(true);
    at.TakeLog();
    at.list->ReqEnumItems(1);
    at.list->ReqEnumItems(1, "a");
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

TEST(gListEnum, WithAKeyEachItemWithExactlyThisKeyComesAndIsMadeAnewInAnyCase) {
    ThreeItems at;
    at.list->AddItem(List::Value("b"), -3);
    at.TakeLog();
    at.list->ReqEnumItems(0, "b");
    EXPECT_THAT(at.TakeLog(),
                ElementsAre("EnumItems(b, 0)", "ExItemShowCov(b)", "EnumItems(b, 0)", "ExItemShowCov(b)"));
}

TEST(gListEnum, TheCaseOfTheKeyCountsUnlikeElsewhere) {
    ThreeItems at;
    at.list->ReqEnumItems(0, "B");
    at.list->ReqEnumItems(0, "nobody");
    EXPECT_THAT(at.TakeLog(), IsEmpty());
    elistdata item;
    EXPECT_EQ(at.list->GetItem(item, "B"), -1);
}

TEST(gListEnum, WithoutAKeyOnlyItemsWhoseValueChangedAreMadeAnew) {
    ThreeItems at;
    at.list->events.EnumItems = [&](elistdata& x, std::int32_t) {
        at.log.push_back("see " + x.hItem.key);
        if (x.hItem.key == "a") x.nData = 5;
        if (x.hItem.key == "c") x.item.text = "changed, but not its value";
    };
    at.list->ReqEnumItems(0);
    EXPECT_THAT(at.TakeLog(), ElementsAre("see b", "see a", "ExItemShowCov(a)", "see c"));
    EXPECT_EQ(at.ByKey("c").item.text, "changed, but not its value");
}

TEST(gListEnum, AValueOfAnotherKindOrAnotherTextHasChanged) {
    ThreeItems at;
    Variant next;
    at.list->events.EnumItems = [&](elistdata& x, std::int32_t) {
        if (x.hItem.key == "a") x.nData = next;
    };
    const auto made = [&](const Variant& value) {
        next = value;
        at.TakeLog();
        at.list->ReqEnumItems(0);
        return at.TakeLog().size();
    };
    EXPECT_EQ(made(Variant()), 0u);
    EXPECT_EQ(made(""), 1u) << "empty and the empty text";
    EXPECT_EQ(made(""), 0u);
    EXPECT_EQ(made(0), 1u) << "a text and a number";
    EXPECT_EQ(made(0), 0u);
    EXPECT_EQ(made(0.5), 1u);
    EXPECT_EQ(made("0.5"), 1u) << "the same reading of another kind";
    EXPECT_EQ(made("0.50"), 1u);
    EXPECT_EQ(made(Variant()), 1u);
}

TEST(gListEnum, TheDisplayIsMadeByTheTypeThatTheHandlerLeft) {
    ThreeItems at;
    at.list->events.EnumItems = [](elistdata& x, std::int32_t) {
        x.xbuttons = ";ns";
        x.nData = "12.50 and more";
    };
    at.list->ReqEnumItems(0, "a");
    EXPECT_EQ(at.ByKey("a").item.text, "12.5");
    at.list->ReqEnumItems(0);
    EXPECT_EQ(at.ByKey("b").item.text, "12.5");
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

TEST(gListEnum, AHandlersEditsOfAnyFieldStay) {
    ThreeItems at;
    at.list->events.EnumItems = [](elistdata& x, std::int32_t) {
        x.pKey = "p";
        x.hItem.text = "T";
        x.item.ItemDataEx = 9;
        x.bVisible = x.hItem.key != "b";
        x.HelpStr = "h";
    };
    at.list->ReqEnumItems(0);
    at.list->BuiltList();
    EXPECT_EQ(at.list->Count(), 2);
    EXPECT_EQ(at.ByKey("a").pKey, "p");
    EXPECT_EQ(at.ByKey("b").hItem.text, "T");
    EXPECT_EQ(at.ByKey("c").item.ItemDataEx, 9);
    EXPECT_EQ(at.ByKey("c").HelpStr, "h");
}

TEST(gListEnum, AnItemThatAHandlerFreesGoesWithTheNextRebuild) {
    ThreeItems at;
    at.list->events.EnumItems = [&](elistdata& x, std::int32_t) {
        at.log.push_back("see " + x.hItem.key);
        x.bDelete = x.hItem.key == "b";
    };
    at.list->ReqEnumItems(0);
    EXPECT_EQ(at.list->Count(), 3);
    at.list->BuiltList();
    EXPECT_THAT(at.Keys(), ElementsAre("a", "c"));
    EXPECT_EQ(at.Slot(1).hItem.key, "a");
    at.TakeLog();
    at.list->ReqEnumItems(0);
    EXPECT_THAT(at.TakeLog(), ElementsAre("see a", "see c"));
}

TEST(gListEnum, AFreedItemIsMadeAnewLikeAnyOther) {
    ThreeItems at;
    at.list->events.EnumItems = [](elistdata& x, std::int32_t) { x.bDelete = true; };
    at.list->ReqEnumItems(0, "a");
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExItemShowCov(a)"));
    EXPECT_EQ(at.list->AddItem(List::Value("new")), -2) << "and its slot is the first that is free";
}

TEST(gListEnum, WhatAHandlerDoesToALaterItemIsSeenWhenTheWalkComesToIt) {
    ThreeItems at;
    at.list->events.EnumItems = [&](elistdata& x, std::int32_t action) {
        at.log.push_back("see " + x.hItem.key);
        if (action == 1 && x.hItem.key == "b") at.list->ReqEnumItems(2, "a");
        if (action == 2) {
            x.hItem.key = "c";
            x.nData = 1;
        }
    };
    at.list->ReqEnumItems(1);
    EXPECT_THAT(at.TakeLog(), ElementsAre("see b", "see a", "ExItemShowCov(c)", "see c", "see c"));
}

TEST(gListEnum, AKeyThatALaterItemGetsDuringTheWalkMakesItPartOfTheWalk) {
    ThreeItems at;
    bool inside = false;
    at.list->events.EnumItems = [&](elistdata& x, std::int32_t action) {
        at.log.push_back("see " + std::to_string(action) + " " + x.hItem.key);
        if (action == 2) x.hItem.key = "b";
        if (action == 1 && !std::exchange(inside, true)) at.list->ReqEnumItems(2, "c");
    };
    at.list->ReqEnumItems(1, "b");
    EXPECT_THAT(at.TakeLog(), ElementsAre("see 1 b", "see 2 c", "ExItemShowCov(b)", "ExItemShowCov(b)",
                                          "see 1 b", "ExItemShowCov(b)"));
}

TEST(gListEnum, NothingIsRepaintedByTheWalk) {
    ThreeItems at;
    at.list->ListIndex(1);
    at.list->events.EnumItems = [](elistdata& x, std::int32_t) { x.nData = 5; };
    EXPECT_EQ(at.Effect([&] { at.list->ReqEnumItems(0); }), "");
    EXPECT_EQ(at.Effect([&] { at.list->ReqEnumItems(0, "a"); }), "");
}

TEST(gListEnum, ItemsThatAHandlerAddsAreNotPartOfTheWalk) {
    ThreeItems at;
    at.list->events.ExItemShowCov = nullptr;
    at.list->events.EnumItems = [&](elistdata& x, std::int32_t) {
        const std::string key = x.hItem.key;
        at.log.push_back("see " + key);
        at.list->AddItem(List::Value("new " + key));
    };
    at.list->ReqEnumItems(0);
    EXPECT_THAT(at.TakeLog(), ElementsAre("see b", "see a", "see c"));
    EXPECT_EQ(at.Slot(6).hItem.key, "new c");
}

TEST(gListEnum, AtDesignTimeTheWalkRunsAsWell) {
    List at({.userMode = false});
    at.list->AddItem(List::Value("a"));
    at.TakeLog();
    at.list->ReqEnumItems(3);
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumItems(a, 3)"));
}

} // namespace
} // namespace tvok::test
