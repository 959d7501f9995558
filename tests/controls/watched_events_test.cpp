// Events that are watched and have no handler: they are seen wherever they are raised, also where a control
// prepares an event only when somebody hears it, and the control does what it does without the watcher.
#include <limits>

#include "tests/support/PropertyListDesktop.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using List = PropertyListDesktop;

/// A property list that nobody handles, and the events that are watched.
struct Unhandled : List {
    Unhandled() {
        Show({Value("a"), Edited("b")});
        list->events.EnumItems = nullptr;
        list->events.ExItemShowCov = nullptr;
        list->events.ExEditorIni = nullptr;
        Forget();
    }
    std::function<void(const elistdata&)> Noting(const char* name) {
        return [this, name](const elistdata& x) { seen.push_back(std::string(name) + " " + x.hItem.key); };
    }
    std::vector<std::string> seen;
};

TEST(WatchedEvents, AFlatListTellsTheRecordOfARowThatNobodyHandles) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, {"ant", "bee"});
    std::vector<std::string> seen;
    const auto note = [&seen](std::int32_t index, const qrosterdata& x) {
        seen.push_back(std::to_string(index) + " " + x.text);
    };
    const auto change = list.events.Change.Watch(note);
    const auto click = list.events.Click.Watch(note);
    desktop.Click(list, 20, 30);
    EXPECT_THAT(seen, ElementsAre("2 bee", "2 bee"));
}

TEST(WatchedEvents, APropertyListTellsTheItemsThatItEnumerates) {
    Unhandled at;
    const auto watch = at.list->events.EnumItems.Watch(
        [note = at.Noting("EnumItems")](const elistdata& x, std::int32_t) { note(x); });
    at.list->ReqEnumItems(1);
    at.list->ReqEnumItems(1, "b");
    EXPECT_THAT(at.seen, ElementsAre("EnumItems a", "EnumItems b", "EnumItems b"));
}

TEST(WatchedEvents, APropertyListTellsTheItemsWhoseDisplayItAsksFor) {
    Unhandled at;
    const auto watch = at.list->events.ExItemShowCov.Watch(at.Noting("ExItemShowCov"));
    at.list->SetData(5, "a");
    EXPECT_THAT(at.seen, ElementsAre("ExItemShowCov a"));
}

TEST(WatchedEvents, APropertyListTellsTheItemWhoseEditorItLoads) {
    Unhandled at;
    const auto watch = at.list->events.ExEditorIni.Watch(at.Noting("ExEditorIni"));
    at.ClickRow(2);
    EXPECT_THAT(at.seen, ElementsAre("ExEditorIni b"));
}

// What is not equal to itself looks like a value that a handler changed.
TEST(WatchedEvents, AWatchedEnumerationMakesNoDisplayAnewWithoutAHandler) {
    Unhandled at;
    at.list->AddItem(List::Value("n", "", ";ns"));
    at.list->SetData(std::numeric_limits<double>::quiet_NaN(), "n");
    ASSERT_NE(at.list->GetData("n"), at.list->GetData("n"));
    std::int32_t seen = 0;
    const auto watch = at.list->events.EnumItems.Watch([&seen](const elistdata&, std::int32_t) { ++seen; });
    EXPECT_NO_THROW(at.list->ReqEnumItems(1));
    EXPECT_EQ(seen, 3);
}

TEST(WatchedEvents, AControlThatItsHandlerRemovesIsStillToldOf) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, {"ant", "bee"});
    list.events.Change = [&](std::int32_t, qrosterdata&) { desktop.form().Remove(list); };
    std::vector<std::string> seen;
    auto watch = list.events.Change.Watch([&seen](std::int32_t index, const qrosterdata& x) {
        seen.push_back(std::to_string(index) + x.text);
    });
    list.ListIndex(2);
    desktop.Pump();
    EXPECT_THAT(seen, ElementsAre("2bee"));
    EXPECT_THAT(desktop.form().Names(), IsEmpty());
}

} // namespace
} // namespace tvok::test
