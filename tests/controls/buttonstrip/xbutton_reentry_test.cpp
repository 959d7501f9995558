// A handler that sets the text, ends its strip or throws inside any of the strip's events.
#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include "tests/support/TestDesktop.h"

namespace tvok::test {
namespace {

struct Deed {
    const char* name;
    std::function<void(TestDesktop&, xbutton&)> act;
    bool ends; ///< The control is gone afterwards.
};

std::string ManyButtons() {
    std::string settings = "0|key 0 that is too long to be short|0";
    for (int i = 1; i < 500; ++i) settings += "|" + std::to_string(i) + "|key of " + std::to_string(i) + "|0";
    return settings;
}

const std::vector<Deed> kDeeds = {
    {"RemovesTheControl", [](TestDesktop& desktop, xbutton& strip) { desktop.form().Remove(strip); }, true},
    {"ClosesTheForm", [](TestDesktop& desktop, xbutton&) { desktop.form().Close(); }, true},
    {"ClearsTheText", [](TestDesktop&, xbutton& strip) { strip.ButtonSettingsStr(""); }, false},
    {"SetsManyButtons", [](TestDesktop&, xbutton& strip) { strip.ButtonSettingsStr(ManyButtons()); }, false},
    {"ChangesTheHeight",
     [](TestDesktop& desktop, xbutton& strip) {
         desktop.form().Place(strip, {10, 10, 10, 33});
     },
     false},
    {"DropsItsHandlers",
     [](TestDesktop&, xbutton& strip) {
         strip.events.MouseDown = nullptr;
         strip.events.Click = nullptr;
         strip.events.KeyDown = nullptr;
     },
     false},
    {"GivesTheFocusAway",
     [](TestDesktop& desktop, xbutton&) { host::platform().SetFocus(desktop.form().hWnd()); }, false},
    {"RunsTheMessagesThatWait", [](TestDesktop& desktop, xbutton&) { desktop.Pump(); }, false},
    {"SetsTheTextAndRemovesTheControl",
     [](TestDesktop& desktop, xbutton& strip) {
         desktop.form().Remove(strip);
         strip.ButtonSettingsStr(ManyButtons());
         EXPECT_THROW(strip.ForeColor(255), ObjectError);
     },
     true},
};

struct EventUnderTest {
    const char* name;
    std::function<void(xbutton&, std::function<void()>)> connect;
};

const std::vector<EventUnderTest> kEvents = {
    {"MouseDown",
     [](xbutton& strip, std::function<void()> act) {
         strip.events.MouseDown = [act](const std::string& key) {
             const std::string before = key;
             act();
             EXPECT_EQ(key, before);
         };
     }},
    {"Click",
     [](xbutton& strip, std::function<void()> act) {
         strip.events.Click = [act](const std::string& key) {
             const std::string before = key;
             act();
             EXPECT_EQ(key, before);
         };
     }},
    {"KeyDown",
     [](xbutton& strip, std::function<void()> act) {
         strip.events.KeyDown = [act](std::int16_t& code, std::int16_t&) {
             act();
             code = 0;
         };
     }},
};

void PrintTo(const Deed& deed, std::ostream* out) {
    *out << deed.name;
}
void PrintTo(const EventUnderTest& event, std::ostream* out) {
    *out << event.name;
}

class xbuttonEndsInAnEvent : public testing::TestWithParam<std::tuple<EventUnderTest, Deed>> {};

TEST_P(xbuttonEndsInAnEvent, AndNothingDangles) {
    const auto& [event, deed] = GetParam();
    int calls = 0; // what handlers write to outlives the desktop
    bool gone = false;
    TestDesktop desktop;
    auto& strip = desktop.form().Add<xbutton>("strip", {10, 10, 10, 20});
    strip.ButtonSettingsStr("a|a key that is too long to be short|0|b|another key that is just as long|2");
    desktop.Focus(strip);
    event.connect(strip, [&, act = deed.act, ends = deed.ends, depth = 0]() mutable {
        ++calls;
        if (gone || depth > 0) return;
        ++depth;
        if (ends) gone = true;
        act(desktop, strip);
        --depth;
    });
    const std::vector<std::function<void()>> steps = {
        [&] { desktop.Key(host::VK_DOWN); },
        [&] { desktop.Press(strip, 10, 10); },
        [&] { desktop.MoveTo(strip, 200, 10); },
        [&] { desktop.MoveTo(strip, 10, 10); },
        [&] { desktop.Release(); },
        [&] { desktop.Pass(std::chrono::seconds(1)); },
    };
    for (const auto& step : steps)
        if (!gone) step();
    desktop.Pump();
    EXPECT_GT(calls, 0);
    EXPECT_EQ(gone, deed.ends);
    if (!gone) strip.Paint();
}

INSTANTIATE_TEST_SUITE_P(EachEventAndDeed, xbuttonEndsInAnEvent,
                         testing::Combine(testing::ValuesIn(kEvents), testing::ValuesIn(kDeeds)),
                         [](const auto& info) {
                             return std::string(std::get<0>(info.param).name) + std::get<1>(info.param).name;
                         });

TEST(xbuttonThrowsInAnEvent, TheErrorReachesWhoeverRunsTheMessagesAndTheNextInputWorks) {
    TestDesktop desktop;
    auto& strip = desktop.form().Add<xbutton>("strip", {10, 10, 10, 20});
    strip.ButtonSettingsStr("a|a|0|b|b|0");
    desktop.Pump();
    const auto atRest = desktop.Pixels(strip);
    strip.events.MouseDown = [](const std::string&) { throw std::runtime_error("thrown by a handler"); };
    EXPECT_THROW(desktop.Press(strip, 10, 10), std::runtime_error);
    strip.events.MouseDown = nullptr;
    strip.events.Click = [](const std::string&) { throw std::runtime_error("thrown by a handler"); };
    EXPECT_THROW(desktop.Release(), std::runtime_error);
    EXPECT_EQ(desktop.Pixels(strip), atRest);
    std::string clicked;
    strip.events.Click = [&](const std::string& key) { clicked = key; };
    desktop.Pass(std::chrono::seconds(1));
    desktop.Click(strip, 30, 10);
    EXPECT_EQ(clicked, "b");
}

} // namespace
} // namespace tvok::test
