/// What the records and the host contract promise, seen through a control.
#include "tests/support/FakeRoster.h"

namespace tvok::test {
namespace {

using testing::IsEmpty;

TEST(RecordsInAControl, TheHostCannotSelectAnItemThroughItsFlags) {
    FakeRoster roster({.MultiSelect = 1}, {"ant", "bee"});
    auto item = roster.Data(1);
    item.vflag |= vflag::Selected | vflag::Bold;
    roster.list.SetData(1, item);
    EXPECT_FALSE(roster.list.IsSelected(1));
    EXPECT_NE(roster.Data(1).vflag & vflag::Bold, 0);
}

TEST(RecordsInAControl, TheHostCannotUnselectAnItemThroughItsFlags) {
    FakeRoster roster({.MultiSelect = 1}, {"ant", "bee"});
    roster.list.Selecteded(2, 2);
    ASSERT_TRUE(roster.list.IsSelected(2));
    roster.list.SetData(2, {.text = "new"});
    EXPECT_TRUE(roster.list.IsSelected(2));
    EXPECT_EQ(roster.Data(2).text, "new");
    EXPECT_LT(roster.Data(2).vflag, 0) << "the slot stays in use";
}

TEST(RecordsInAControl, AHandlerEditsTheStoredItemAndItShowsAtTheNextPaint) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.list.events.Click = [](std::int32_t, qrosterdata& item) { item.text = "changed"; };
    roster.ClickRow(2);
    EXPECT_EQ(roster.Texts(), (std::vector<std::string>{"ant", "changed", "cat"}));
    roster.TakeDrawn();
    roster.list.PaintAll();
    EXPECT_THAT(roster.TakeDrawn(), testing::Contains("changed"));
}

TEST(RecordsInAControl, AnItemHeightOfZeroIsRefused) {
    FakeRoster roster;
    roster.list.ItemHeight(0);
    EXPECT_EQ(roster.list.ItemHeight(), 18);
    roster.list.ItemHeight(-4);
    EXPECT_EQ(roster.list.ItemHeight(), 18);
}

TEST(AtDesignTime, AControlHasNoHook) {
    FakeRoster design({.UserMode = false});
    EXPECT_EQ(design.component.services.hook, nullptr);
    EXPECT_THROW(design.list.Refresh(), ObjectError);
    FakeRoster running;
    EXPECT_NE(running.component.services.hook, nullptr);
}

TEST(AtDesignTime, APropertyIsKeptWithoutARepaint) {
    FakeRoster design({.UserMode = false});
    design.log().Clear();
    design.list.GridlineColor(0x123456);
    design.list.SelectedColor(0x654321);
    EXPECT_EQ(design.list.GridlineColor(), 0x123456);
    EXPECT_EQ(design.list.SelectedColor(), 0x654321);
    EXPECT_THAT(design.log().Drawing(), IsEmpty());
    FakeRoster running;
    running.log().Clear();
    running.list.GridlineColor(0x123456);
    EXPECT_THAT(running.log().Drawing(), testing::Not(IsEmpty()));
}

TEST(AtDesignTime, TheItemTextIsNeitherProducedNorTaken) {
    FakeRoster running({}, {"ant"});
    const std::string saved = running.list.ItemsStr();
    ASSERT_NE(saved, "");
    running.End();
    FakeRoster design({.UserMode = false});
    EXPECT_EQ(design.list.ItemsStr(), "");
    design.list.ItemsStr(saved);
    EXPECT_EQ(design.list.Count(), 0);
}

TEST(InRunMode, TheHookIsSetToOneVerticalBarBeforeItIsAttachedToTheWindow) {
    FakeComponent component(true, 200, 90);
    qRoster list;
    FakeBag bag;
    list.Initialize(component);
    EXPECT_EQ(component.services.hook, nullptr) << "not before the properties are read";
    list.ReadProperties(bag);
    const Calls calls = component.log.NamedOneOf({"hook created", "hook.HookMode", "hook.HookAttach"});
    EXPECT_EQ(calls, (Calls{PlainCall("hook created"), PlainCall("hook.HookMode", {3}),
                            PlainCall("hook.HookAttach", {FakeComponent::cWindow, 0})}));
    list.Terminate();
}

TEST(InRunMode, TheHookIsDetachedBeforeItIsReleased) {
    FakeRoster roster;
    roster.log().Clear();
    roster.owner->Terminate();
    const Calls calls = roster.log().NamedOneOf({"hook.HookDetach", "hook released"});
    ASSERT_FALSE(calls.empty());
    EXPECT_EQ(calls[0], PlainCall("hook.HookDetach"));
    roster.owner.reset();
    EXPECT_THAT(roster.log().All(), testing::Contains(PlainCall("hook released")));
}

} // namespace
} // namespace tvok::test
