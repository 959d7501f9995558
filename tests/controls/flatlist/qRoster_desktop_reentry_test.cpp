// A handler that ends its own control, or closes its form, inside any of the control's events.

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>

#include "tests/support/TestDesktop.h"

namespace tvok::test {
namespace {

using namespace host;

/// What a handler does to the control that raises its event.
struct Deed {
    const char* name;
    std::function<void(TestDesktop&, qRoster&)> act;
    bool ends; ///< The control is gone afterwards.
};

const std::vector<Deed> kDeeds = {
    {"RemovesTheControl", [](TestDesktop& desktop, qRoster& list) { desktop.form().Remove(list); }, true},
    {"ClosesTheForm", [](TestDesktop& desktop, qRoster&) { desktop.form().Close(); }, true},
    {"ClearsTheList", [](TestDesktop&, qRoster& list) { list.Clear(); }, false},
    {"AddsAThousandItems",
     [](TestDesktop&, qRoster& list) {
         if (list.Count() > 3000) return;
         for (int i = 0; i < 1000; ++i) list.AddItem(1, {.text = "new"});
         list.Refresh();
     },
     false},
    {"GivesTheFocusAway",
     [](TestDesktop& desktop, qRoster&) { host::platform().SetFocus(desktop.form().hWnd()); }, false},
    {"RunsTheMessagesThatWait", [](TestDesktop& desktop, qRoster&) { desktop.Pump(); }, false},
};

struct EventUnderTest {
    const char* name;
    std::function<void(qRoster&, std::function<void()>)> connect;
};

const std::vector<EventUnderTest> kEvents = {
    {"Change",
     [](qRoster& list, std::function<void()> act) {
         list.events.Change = [act](std::int32_t, qrosterdata& x) {
             act();
             x.text = "edited after the deed, in a text that is not short";
         };
     }},
    {"Click",
     [](qRoster& list, std::function<void()> act) {
         list.events.Click = [act](std::int32_t, qrosterdata& x) {
             act();
             x.text = "edited after the deed, in a text that is not short";
         };
     }},
    {"DblClick",
     [](qRoster& list, std::function<void()> act) {
         list.events.DblClick = [act](std::int32_t, qrosterdata&) { act(); };
     }},
    {"MouseDown",
     [](qRoster& list, std::function<void()> act) {
         list.events.MouseDown = [act](std::int16_t&, std::int16_t&, float&, float&) { act(); };
     }},
    {"MouseMove",
     [](qRoster& list, std::function<void()> act) {
         list.events.MouseMove = [act](std::int16_t&, std::int16_t&, float&, float&) { act(); };
     }},
    {"MouseUp",
     [](qRoster& list, std::function<void()> act) {
         list.events.MouseUp = [act](std::int16_t&, std::int16_t&, float&, float&) { act(); };
     }},
    {"KeyDown",
     [](qRoster& list, std::function<void()> act) {
         list.events.KeyDown = [act](std::int16_t&, std::int16_t&) { act(); };
     }},
    {"KeyPress", [](qRoster& list,
                    std::function<void()> act) { list.events.KeyPress = [act](std::int16_t&) { act(); }; }},
    {"KeyUp",
     [](qRoster& list, std::function<void()> act) {
         list.events.KeyUp = [act](std::int16_t&, std::int16_t&) { act(); };
     }},
    {"ExDraw",
     [](qRoster& list, std::function<void()> act) {
         list.events.ExDraw = [act](std::int32_t&, std::int32_t, const std::string&, std::int32_t,
                                    std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                                    std::int32_t) { act(); };
     }},
};

/// A user's way through every event. It stops once the control is gone.
void UseEverything(TestDesktop& desktop, qRoster& list, const bool& gone) {
    const std::vector<std::function<void()>> steps = {
        [&] { desktop.MoveTo(list, 50, 30); },
        [&] { desktop.Press(list, 50, 47); },
        [&] { desktop.MoveTo(list, 50, 66); },
        [&] { desktop.Release(); },
        [&] { desktop.Pass(std::chrono::seconds(1)); },
        [&] { desktop.Press(list, 50, 28); },
        [&] { desktop.Release(); },
        [&] { desktop.Press(list, 50, 28); },
        [&] { desktop.Release(); },
        [&] { desktop.Focus(list); },
        [&] { desktop.Key(VK_DOWN); },
        [&] { desktop.Type("i"); },
        [&] { desktop.Wheel(-2); },
        [&] { host::platform().InvalidateRect(desktop.WindowOf(list), nullptr, false); },
        [&] { desktop.Pump(); },
    };
    for (const auto& step : steps) {
        if (gone) break;
        step();
    }
    desktop.Pump();
}

void PrintTo(const Deed& deed, std::ostream* out) {
    *out << deed.name;
}
void PrintTo(const EventUnderTest& event, std::ostream* out) {
    *out << event.name;
}

class qRosterEndsInAnEvent : public ::testing::TestWithParam<std::tuple<EventUnderTest, Deed, std::int32_t>> {
};

TEST_P(qRosterEndsInAnEvent, AndNothingDangles) {
    const auto& [event, deed, mode] = GetParam();
    int calls = 0; // what handlers write to outlives the desktop
    bool gone = false;
    TestDesktop desktop;
    auto& list = desktop.Roster({.MultiSelect = mode});
    for (int i = 1; i <= 30; ++i)
        list.AddItem(0, {.text = "item " + std::to_string(i),
                         .vflag = vflag::HostText | vflag::HostIcon | vflag::IconBox});
    list.Refresh();
    desktop.Focus(list);
    event.connect(list, [&, act = deed.act, ends = deed.ends, depth = 0]() mutable {
        ++calls;
        if (gone || depth > 0) return;
        ++depth;
        if (ends) gone = true;
        act(desktop, list);
        --depth;
    });
    UseEverything(desktop, list, gone);
    EXPECT_GT(calls, 0);
    EXPECT_EQ(gone, deed.ends);
    if (!deed.ends) {
        list.PaintAll();
        EXPECT_GE(list.Count(), 0);
    }
}

INSTANTIATE_TEST_SUITE_P(EachEventAndDeed, qRosterEndsInAnEvent,
                         ::testing::Combine(::testing::ValuesIn(kEvents), ::testing::ValuesIn(kDeeds),
                                            ::testing::Values(0, 1)),
                         [](const auto& info) {
                             return std::string(std::get<0>(info.param).name) + std::get<1>(info.param).name +
                                    (std::get<2>(info.param) ? "Multi" : "Single");
                         });

TEST(qRosterEndsInItsWalk, ARemovalByTheCallBackOfTheWalkLeavesTheFormInOrder) {
    int calls = 0;
    TestDesktop desktop;
    auto& list = desktop.Roster({.MultiSelect = 1}, {"ant", "bee", "cat"});
    auto& other = desktop.Roster({.place = {320, 0, 100, 100}}, {"other"});
    list.Selecteded();
    // Inside an event of the control, so that the control lives until it has returned.
    list.events.Click = [&](std::int32_t, qrosterdata&) { list.EnumSelectedItem(); };
    list.events.EnumSelectedItemCallBack = [&](std::int32_t&, std::int32_t&) {
        if (++calls == 1) desktop.form().Remove(list);
    };
    desktop.Click(list, 50, 28);
    desktop.Pump();
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(desktop.form().Names().size(), 1u);
    desktop.Click(other, 50, 9);
    EXPECT_EQ(other.ListIndex(), 1);
}

TEST(qRosterEndsInAnEventOnce, ARemovedControlIsNoLongerOnItsForm) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, {"ant", "bee"});
    list.events.Change = [&](std::int32_t, qrosterdata&) { desktop.form().Remove(list); };
    desktop.Click(list, 50, 28);
    EXPECT_TRUE(desktop.form().Names().empty());
    EXPECT_EQ(desktop.form().Find("list1"), nullptr);
}

TEST(qRosterThrowsInAnEvent, TheErrorReachesWhoeverRunsTheMessagesAndTheNextInputWorks) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, {"ant", "bee", "cat"});
    desktop.Focus(list);
    list.events.Change = [](std::int32_t, qrosterdata&) { throw std::runtime_error("thrown by a handler"); };
    EXPECT_THROW(desktop.Press(list, 50, 28), std::runtime_error);
    list.events.Change = nullptr;
    desktop.Release();
    desktop.Click(list, 50, 47);
    EXPECT_EQ(list.ListIndex(), 3);
}

} // namespace
} // namespace tvok::test
