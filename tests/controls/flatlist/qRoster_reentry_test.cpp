// Handlers that call back into the control: nothing dangles, and the list is in order afterwards.

#include "tests/support/FakeRoster.h"

#include <functional>
#include <ostream>

namespace tvok::test {
namespace {

using namespace host;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

void DropHandlers(qRoster& list) {
    list.events.Change = nullptr;
    list.events.Click = nullptr;
    list.events.DblClick = nullptr;
    list.events.KeyDown = nullptr;
    list.events.EnumSelectedItemCallBack = nullptr;
    list.events.ExDraw = nullptr;
}

/// What a handler does, by name.
struct Deed {
    const char* name;
    std::function<void(FakeRoster&, qrosterdata*)> act;
};

const std::vector<Deed> cDeeds = {
    {"Nothing", [](FakeRoster&, qrosterdata*) {}},
    {"Clears", [](FakeRoster& roster, qrosterdata*) { roster.list.Clear(); }},
    {"ClearsAndEditsTheRecord",
     [](FakeRoster& roster, qrosterdata* x) {
         roster.list.Clear();
         if (x) x->text = "a text long enough to live on the heap, after the list was cleared";
         if (x) x->vflag = 0;
     }},
    {"ClearsAndFillsAgain",
     [](FakeRoster& roster, qrosterdata*) {
         roster.list.Clear();
         for (int i = 0; i < 3; ++i) roster.list.AddItem(0, {.text = "other"});
         roster.list.Refresh();
     }},
    {"Refreshes", [](FakeRoster& roster, qrosterdata*) { roster.list.Refresh(); }},
    {"AddsAThousandItems",
     [](FakeRoster& roster, qrosterdata* x) {
         if (roster.list.Count() > 3000) return;
         for (int i = 0; i < 1000; ++i) roster.list.AddItem(i % 2, x ? *x : qrosterdata{.text = "new"});
         if (x) x->text += " edited";
     }},
    {"RemovesTheFirstItemAndRefreshes",
     [](FakeRoster& roster, qrosterdata* x) {
         if (roster.list.Count() > 0) roster.list.RemoveItem(1);
         roster.list.Refresh();
         if (x) x->text = "removed, or not";
     }},
    {"RemovesEveryItemAndRefreshes",
     [](FakeRoster& roster, qrosterdata*) {
         for (int i = roster.list.Count(); i > 0; --i) roster.list.RemoveItem(i);
         roster.list.Refresh();
     }},
    {"Sorts",
     [](FakeRoster& roster, qrosterdata*) {
         roster.list.SortedMode(roster.list.SortedMode() == 1 ? bDescendingSorted : bAscendingSorted);
     }},
    {"Moves",
     [](FakeRoster& roster, qrosterdata*) {
         static int depth = 0;
         if (depth >= 3) return;
         ++depth;
         try {
             roster.list.ListIndex(roster.list.ListIndex() % 5 + 1);
         } catch (...) {
             --depth;
             throw;
         }
         --depth;
     }},
    {"Throws", [](FakeRoster&, qrosterdata*) { throw std::runtime_error("thrown by a handler"); }},
    {"DropsEveryHandler", [](FakeRoster& roster, qrosterdata*) { DropHandlers(roster.list); }},
    {"ReplacesTheText",
     [](FakeRoster& roster, qrosterdata*) {
         roster.list.ItemsStr("18=2\r\n107=ant\r\n999\r\n107=bee\r\n999\r\n");
     }},
    {"ChangesTheGrid",
     [](FakeRoster& roster, qrosterdata*) {
         roster.list.xn(roster.list.xn() % 3 + 1);
         roster.list.ItemHeight(roster.list.ItemHeight() % 30 + 1);
     }},
    {"ChangesTheMode",
     [](FakeRoster& roster, qrosterdata*) { roster.list.MultiSelect(1 - roster.list.MultiSelect()); }},
    {"Enumerates",
     [](FakeRoster& roster, qrosterdata*) {
         static bool inside = false;
         if (inside) return;
         inside = true;
         roster.list.EnumSelectedItem(9);
         inside = false;
     }},
    {"Resizes",
     [](FakeRoster& roster, qrosterdata*) {
         roster.component.SetPixelSize(150, roster.component.PixelHeight() == 90 ? 60 : 90);
     }},
    {"Terminates", [](FakeRoster& roster, qrosterdata*) { roster.list.Terminate(); }},
    {"PaintsAll",
     [](FakeRoster& roster, qrosterdata*) {
         static int depth = 0;
         if (depth >= 2) return;
         ++depth;
         roster.list.PaintAll();
         --depth;
     }},
};

struct EventUnderTest {
    const char* name;
    std::function<void(FakeRoster&, const Deed&)> connect;
};

void Count(int& calls) {
    ++calls;
}

int calls = 0;

auto OnItem(FakeRoster& roster, const Deed& deed) {
    return [&roster, act = deed.act](std::int32_t, qrosterdata& x) {
        Count(calls);
        act(roster, &x);
    };
}
auto OnKey(FakeRoster& roster, const Deed& deed) {
    return [&roster, act = deed.act](std::int16_t&, std::int16_t&) {
        Count(calls);
        act(roster, nullptr);
    };
}

const std::vector<EventUnderTest> cEvents = {
    {"Change",
     [](FakeRoster& roster, const Deed& deed) { roster.list.events.Change = OnItem(roster, deed); }},
    {"Click", [](FakeRoster& roster, const Deed& deed) { roster.list.events.Click = OnItem(roster, deed); }},
    {"DblClick",
     [](FakeRoster& roster, const Deed& deed) { roster.list.events.DblClick = OnItem(roster, deed); }},
    {"KeyDown",
     [](FakeRoster& roster, const Deed& deed) { roster.list.events.KeyDown = OnKey(roster, deed); }},
    {"EnumSelectedItemCallBack",
     [](FakeRoster& roster, const Deed& deed) {
         roster.list.events.EnumSelectedItemCallBack = [&roster, act = deed.act](std::int32_t&,
                                                                                 std::int32_t&) {
             Count(calls);
             act(roster, nullptr);
         };
     }},
    {"ExDraw",
     [](FakeRoster& roster, const Deed& deed) {
         roster.list.events.ExDraw =
             [&roster, act = deed.act](std::int32_t&, std::int32_t, const std::string&, std::int32_t,
                                       std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t) {
                 static int depth = 0;
                 if (depth > 0) return; // painting inside painting is the other handlers' part
                 ++depth;
                 Count(calls);
                 try {
                     act(roster, nullptr);
                 } catch (...) {
                     --depth;
                     throw;
                 }
                 --depth;
             };
     }},
};

/// Every way by which a user or a host makes events, each over a fresh list.
const std::vector<std::pair<const char*, std::function<void(FakeRoster&)>>> cActions = {
    {"click", [](FakeRoster& roster) { roster.ClickRow(3); }},
    {"double click",
     [](FakeRoster& roster) {
         roster.ClickRow(3);
         roster.DoubleClick(50, 40);
         roster.Release();
     }},
    {"drag",
     [](FakeRoster& roster) {
         roster.PressRow(2);
         roster.MoveToRow(4);
         roster.Move(50, 300);
         roster.MoveToRow(1);
         roster.Release();
     }},
    {"shift press",
     [](FakeRoster& roster) {
         roster.PressRow(2);
         roster.PressRow(4, cShift);
         roster.PressRow(1, cShift);
     }},
    {"control press",
     [](FakeRoster& roster) {
         roster.PressRow(2, cControl);
         roster.PressRow(4, cControl);
     }},
    {"keys",
     [](FakeRoster& roster) {
         roster.Key(VK_DOWN);
         roster.Key(VK_DOWN, 1);
         roster.Key(VK_END, 1);
         roster.Key(VK_HOME);
         roster.Key('I');
     }},
    {"property", [](FakeRoster& roster) { roster.list.ListIndex(3); }},
    {"find", [](FakeRoster& roster) { roster.list.FindItem("item 4", true); }},
    {"seek", [](FakeRoster& roster) { roster.list.StrSeekItem("item 5"); }},
    {"focus", [](FakeRoster& roster) { roster.list.GotFocus(); }},
    {"enumerate", [](FakeRoster& roster) { roster.list.EnumSelectedItem(1); }},
    {"enumerate and keep", [](FakeRoster& roster) { roster.list.EnumSelectedItem(1, false); }},
    {"select all", [](FakeRoster& roster) { roster.list.Selecteded(); }},
    {"draw", [](FakeRoster& roster) { roster.list.DrawItem(2); }},
    {"set data",
     [](FakeRoster& roster) { roster.list.SetData(2, {.text = "set", .vflag = vflag::HostText}); }},
    {"paint", [](FakeRoster& roster) { roster.list.PaintAll(); }},
    {"refresh", [](FakeRoster& roster) { roster.list.Refresh(); }},
    {"scroll",
     [](FakeRoster& roster) {
         if (roster.component.services.hook) roster.hook().ScrollValue(3);
     }},
    {"paint message",
     [](FakeRoster& roster) {
         roster.component.log.InvalidateRect(FakeComponent::cWindow, nullptr, false);
         roster.component.log.UpdateWindow(FakeComponent::cWindow);
     }},
};

void PrintTo(const Deed& deed, std::ostream* out) {
    *out << deed.name;
}
void PrintTo(const EventUnderTest& event, std::ostream* out) {
    *out << event.name;
}

class qRosterReentry : public ::testing::TestWithParam<std::tuple<EventUnderTest, Deed, std::int32_t>> {};

TEST_P(qRosterReentry, LeavesTheListInOrder) {
    const auto& [event, deed, mode] = GetParam();
    calls = 0;
    for (const auto& [name, action] : cActions) {
        SCOPED_TRACE(name);
        FakeRoster roster({.MultiSelect = mode});
        for (const auto& text : Numbered(12))
            roster.list.AddItem(0, {.text = text + ", with a text that is not short",
                                    .vflag = vflag::HostText | vflag::HostIcon | vflag::IconBox});
        DropHandlers(roster.list);
        roster.list.Refresh();
        roster.list.ListIndex(1);
        event.connect(roster, deed);
        try {
            action(roster);
        } catch (const std::exception&) { // a handler's error, or an index that a handler took away
        }
        EXPECT_GE(roster.list.ListIndex(), 0);
        EXPECT_GE(roster.list.Count(), 0);
        EXPECT_NO_THROW(roster.Texts());
        if (std::string_view(deed.name) == "Terminates") continue;
        // Whatever happened, the list can be used again.
        DropHandlers(roster.list);
        roster.list.Clear();
        roster.list.MultiSelect(0);
        roster.list.xn(1);
        roster.Add({"ant", "bee"});
        EXPECT_THAT(roster.Texts(), ElementsAre("ant", "bee"));
        roster.list.PaintAll();
        EXPECT_THAT(roster.TakeDrawn(), ElementsAre("ant", "bee"));
        roster.list.ListIndex(2);
        EXPECT_EQ(roster.list.ListIndex(), 2);
    }
    EXPECT_GT(calls, 0); // the event was raised at all
}

INSTANTIATE_TEST_SUITE_P(EachEventAndDeed, qRosterReentry,
                         ::testing::Combine(::testing::ValuesIn(cEvents), ::testing::ValuesIn(cDeeds),
                                            ::testing::Values(0, 1)),
                         [](const auto& info) {
                             return std::string(std::get<0>(info.param).name) + std::get<1>(info.param).name +
                                    (std::get<2>(info.param) ? "Multi" : "Single");
                         });

// Outcomes that are said.

TEST(qRosterReentryOutcome, AHandlerMayReplaceItself) {
    FakeRoster roster({}, {"ant", "bee"});
    std::vector<std::string> seen;
    roster.list.events.Change = [&roster, &seen, big = std::string(100, 'x')](std::int32_t, qrosterdata&) {
        roster.list.events.Change = [&seen](std::int32_t, qrosterdata&) { seen.emplace_back("second"); };
        seen.push_back(big.substr(0, 5)); // this one still lives
    };
    roster.list.ListIndex(1);
    roster.list.ListIndex(2);
    EXPECT_THAT(seen, ElementsAre("xxxxx", "second"));
}

TEST(qRosterReentryOutcome, AHandlerMayMoveOnFromChange) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.list.events.Change = [&](std::int32_t index, qrosterdata&) {
        if (index == 2) roster.list.ListIndex(3);
    };
    roster.list.ListIndex(2);
    EXPECT_EQ(roster.list.ListIndex(), 3);
    // The outer statement goes on with its own index: its item gets the bit too.
    EXPECT_THAT(roster.Selected(), ElementsAre(2, 3));
}

/// Makes `Change` clear the list and fill it with three other items.
void ReplaceOnChange(FakeRoster& roster) {
    roster.list.events.Change = [&](std::int32_t, qrosterdata&) {
        roster.list.events.Change = nullptr;
        roster.list.Clear();
        roster.Add({"other 1", "other 2", "other 3"});
    };
}

TEST(qRosterReentryOutcome, AStatementEndsWhereItsHandlerReplacedTheList) {
    const std::vector<std::pair<const char*, std::function<void(FakeRoster&)>>> statements = {
        {"property", [](FakeRoster& roster) { roster.list.ListIndex(2); }},
        {"find", [](FakeRoster& roster) { roster.list.FindItem("item 2", true); }},
        {"key", [](FakeRoster& roster) { roster.Key(VK_DOWN); }},
        {"letter", [](FakeRoster& roster) { roster.Key('I'); }},
        {"press", [](FakeRoster& roster) { roster.PressRow(2); }},
        {"shift press", [](FakeRoster& roster) { roster.PressRow(2, cShift); }},
        {"drag", [](FakeRoster& roster) { roster.MoveToRow(2); }},
        {"focus", [](FakeRoster& roster) { roster.list.GotFocus(); }},
    };
    for (const std::int32_t mode : {0, 1}) {
        for (const auto& [name, statement] : statements) {
            SCOPED_TRACE(name);
            FakeRoster roster({.MultiSelect = mode}, Numbered(30));
            ReplaceOnChange(roster);
            EXPECT_NO_THROW(statement(roster));
            EXPECT_THAT(roster.Texts(), ElementsAre("other 1", "other 2", "other 3"));
            EXPECT_THAT(roster.Selected(), IsEmpty()); // the new items have nothing to do with it
            EXPECT_EQ(roster.list.ListIndex(), 0);
            EXPECT_THAT(roster.TakeEvents(), IsEmpty()); // and no Click is raised for one of them
        }
    }
}

TEST(qRosterReentryOutcome, ADoubleClickEndsWhereChangeReplacedTheList) {
    for (const std::int32_t mode : {0, 1}) {
        FakeRoster roster({.MultiSelect = mode}, Numbered(30));
        roster.ClickRow(2);
        roster.list.ListIndex(3);
        ReplaceOnChange(roster);
        roster.log().Clear();
        EXPECT_NO_THROW(roster.DoubleClick(50, 20));
        EXPECT_THAT(roster.TakeEvents(), IsEmpty());
    }
}

TEST(qRosterReentryOutcome, TheWalkEndsWhereItsHandlerReplacedTheList) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(30));
    roster.list.Selecteded();
    int raised = 0;
    roster.list.events.EnumSelectedItemCallBack = [&](std::int32_t&, std::int32_t&) {
        ++raised;
        roster.list.Clear();
        for (int i = 0; i < 3; ++i) roster.list.AddItem(0, {.vflag = vflag::Selected});
    };
    EXPECT_NO_THROW(roster.list.EnumSelectedItem());
    EXPECT_EQ(raised, 1);
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 2, 3));
}

TEST(qRosterReentryOutcome, AnErrorInChangeEndsTheStatementAndKeepsTheNewIndex) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.ListIndex(1);
    roster.log().Clear();
    roster.list.events.Change = [](std::int32_t, qrosterdata&) { throw std::runtime_error("no"); };
    EXPECT_THROW(roster.list.ListIndex(2), std::runtime_error);
    EXPECT_EQ(roster.list.ListIndex(), 2);
    EXPECT_THAT(roster.Selected(), ElementsAre(1)); // the bits were not reached
    EXPECT_THAT(roster.TakeDrawn(), IsEmpty());
}

TEST(qRosterReentryOutcome, AnErrorInTheWalkEndsItAndKeepsAPendingRemoval) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(3));
    roster.list.Selecteded();
    roster.list.events.EnumSelectedItemCallBack = [&](std::int32_t&, std::int32_t& index) {
        roster.list.RemoveItem(index);
        if (index == 2) throw std::runtime_error("no");
    };
    EXPECT_THROW(roster.list.EnumSelectedItem(), std::runtime_error);
    EXPECT_EQ(roster.list.Count(), 3);
    roster.list.Refresh();
    EXPECT_THAT(roster.Texts(), ElementsAre("item 3"));
}

TEST(qRosterReentryOutcome, ARecordStaysGoodWhileTheHandlerClearsTheList) {
    FakeRoster roster({}, {"a text long enough to live on the heap", "bee"});
    std::string after;
    roster.list.events.Click = [&](std::int32_t, qrosterdata& x) {
        roster.list.Clear();
        roster.Add({"other"});
        after = x.text;
        x.text = "written to nobody";
    };
    roster.ClickRow(1);
    EXPECT_EQ(after, "a text long enough to live on the heap");
    EXPECT_THAT(roster.Texts(), ElementsAre("other"));
}

TEST(qRosterReentryOutcome, ItemsAddedInChangeShiftTheIndexThatTheStatementGoesOnWith) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.events.Change = [&](std::int32_t, qrosterdata&) { roster.list.AddItem(1, {.text = "new"}); };
    roster.list.ListIndex(2);
    EXPECT_THAT(roster.Texts(), ElementsAre("new", "ant", "bee"));
    EXPECT_EQ(roster.list.ListIndex(), 3);
    EXPECT_THAT(roster.Selected(), ElementsAre(2)); // the statement's own index is still 2
}

} // namespace
} // namespace tvok::test
