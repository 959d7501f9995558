#include "tvok/host/Hooks.h"

#include <gmock/gmock.h>

#include "tests/host/desktop/windows/Recorder.h"
#include "tests/support/TestDesktop.h"
#include "tvok/host/Services.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A desktop with one control and what its hooks heard.
class Hooks : public testing::Test {
protected:
    Hooks() : control(desktop.form().Add<Recorder>("a", {10, 10, 100, 50})) {
        desktop.Pump();
        control.TakeLog();
        hWnd = desktop.WindowOf(control);
    }

    std::unique_ptr<host::WindowHook> Listen(std::int32_t kind, std::int32_t target, const std::string& name,
                                             bool callNext = true) {
        auto hook = host::services().CreateWindowHook();
        hook->RtMsg = [this, name, callNext](std::int32_t message, std::int32_t wParam, std::int32_t,
                                             std::int32_t&, bool& next) {
            heard.push_back(name + " " + std::to_string(message) + " " + std::to_string(wParam));
            next = callNext;
        };
        bool flag = false;
        hook->HookSet(kind, target, flag);
        return hook;
    }
    std::unique_ptr<host::MessageHook> Attach(const std::string& name, bool process = true) {
        auto hook = host::services().CreateMessageHook();
        hook->events.RtMsg = [this, name, process](std::int32_t message, std::int32_t, std::int32_t,
                                                   std::int32_t&, bool& goOn) {
            heard.push_back(name + " " + std::to_string(message));
            goOn = process;
        };
        hook->HookMode(3);
        bool flag = false;
        hook->HookAttach(hWnd, flag);
        return hook;
    }
    std::vector<std::string> TakeHeard() { return std::exchange(heard, {}); }

    std::vector<std::string> heard; // outlives the control, which may write to it until it ends
    TestDesktop desktop;
    Recorder& control;
    host::Handle hWnd = 0;
};

TEST_F(Hooks, ThreadThenWindowThenMessageHookThenControlHearAPress) {
    const auto message = Attach("message");
    const auto window = Listen(1, hWnd, "window");
    const auto mouse = Listen(2, host::services().ThreadID(), "mouse");
    desktop.MoveTo(control, 5, 5);
    TakeHeard();
    desktop.desktop().Input().MouseDown(desktop::MouseButton::Left);
    control.onEvent = [this](const std::string& event) { heard.push_back(event); };
    desktop.Pump();
    EXPECT_THAT(TakeHeard(),
                ElementsAre("mouse 0 513", "window 513 1", "message 513", "MouseDown 1 0 75 75"));
}

TEST_F(Hooks, WhatAListenerTakesReachesNobodyElse) {
    const auto message = Attach("message");
    const auto first = Listen(0, hWnd, "first");
    const auto last = Listen(1, hWnd, "last", false);
    desktop.MoveTo(control, 5, 5);
    TakeHeard();
    desktop.Press(control, 5, 5);
    EXPECT_THAT(TakeHeard(), ElementsAre("last 512 0", "last 513 1"));
    EXPECT_THAT(control.log, IsEmpty());
}

TEST_F(Hooks, AMessageHookThatLeavesFalseSkipsTheControl) {
    const auto hook = Attach("hook", false);
    desktop.Click(control, 5, 5);
    EXPECT_THAT(control.log, IsEmpty());
    EXPECT_THAT(TakeHeard(), testing::Contains("hook 514"));
}

TEST_F(Hooks, TheMouseHookSeesTheScreenPointAndTheCodeOfTheFrame) {
    const auto message = Attach("message");
    message->ScrollMax(100);
    std::vector<std::string> records;
    const auto mouse = host::services().CreateWindowHook();
    mouse->RtMsg = [&](std::int32_t, std::int32_t number, std::int32_t, std::int32_t&, bool&) {
        const host::MouseHookRecord* record = mouse->Mouse();
        ASSERT_NE(record, nullptr);
        records.push_back(std::to_string(number) + " " + std::to_string(record->x) + " " +
                          std::to_string(record->y) + " " + std::to_string(record->HitTestCode) + " " +
                          std::to_string(record->hWnd == hWnd));
    };
    std::int32_t kind = 2;
    std::int32_t thread = host::services().ThreadID();
    bool flag = false;
    mouse->HookSet(kind, thread, flag);
    EXPECT_EQ(mouse->Mouse(), nullptr);
    host::Point point{90, 20}; // on the bar at the right
    desktop.desktop().OwnPlatform().ClientToScreen(hWnd, point);
    desktop.MoveTo(control, 90, 20);
    desktop.desktop().Input().MouseDown(desktop::MouseButton::Left);
    desktop.Pump();
    const std::string place = std::to_string(point.x) + " " + std::to_string(point.y);
    EXPECT_THAT(records, ElementsAre("160 " + place + " 7 1", "161 " + place + " 7 1"));
}

TEST_F(Hooks, KeyHooksGetTheCodeAndAWordWhoseSignTellsTheWay) {
    std::vector<std::string> words;
    const auto keys = host::services().CreateWindowHook();
    keys->RtMsg = [&](std::int32_t, std::int32_t key, std::int32_t word, std::int32_t&, bool&) {
        const bool goesDown = (word & ~0x7FFF) > 0;
        words.push_back(std::to_string(key) + (goesDown ? " down" : " not down") + (word < 0 ? " up" : ""));
    };
    std::int32_t kind = 3;
    std::int32_t thread = host::services().ThreadID();
    bool flag = false;
    keys->HookSet(kind, thread, flag);
    desktop.Key(host::VK_DOWN);
    EXPECT_THAT(words, ElementsAre("40 down", "40 not down up"));
}

TEST_F(Hooks, AKeyThatAHookTakesGivesNoCharacterEither) {
    auto keys = Listen(3, host::services().ThreadID(), "keys", false);
    desktop.Type("x");
    desktop.Key(host::VK_RETURN);
    EXPECT_THAT(control.log, IsEmpty());
    keys.reset();
    desktop.Type("x");
    EXPECT_THAT(control.log, ElementsAre("KeyDown 88 0", "KeyPress 120", "KeyUp 88 0"));
}

TEST_F(Hooks, AListenerMayDestroyItselfAndTheOthersStillHear) {
    const auto last = Attach("last");
    std::unique_ptr<host::MessageHook> first = Attach("first");
    first->events.RtMsg = [&](std::int32_t, std::int32_t, std::int32_t, std::int32_t&, bool&) {
        heard.emplace_back("destroys itself");
        first.reset();
    };
    desktop.Pump();
    TakeHeard();
    host::platform().PostMessageA(hWnd, host::WM_USER, 0, 0);
    desktop.Pump();
    EXPECT_EQ(TakeHeard(), (std::vector<std::string>{"destroys itself", "last 1024"}));
}

TEST_F(Hooks, AListenerMayDestroyTheNextOne) {
    auto next = Listen(1, hWnd, "next");
    const auto first = host::services().CreateWindowHook();
    first->RtMsg = [&](std::int32_t, std::int32_t, std::int32_t, std::int32_t&, bool&) { next.reset(); };
    std::int32_t kind = 1;
    bool flag = false;
    first->HookSet(kind, hWnd, flag);
    host::platform().PostMessageA(hWnd, host::WM_USER, 0, 0);
    desktop.Pump();
    EXPECT_THAT(TakeHeard(), IsEmpty());
}

TEST_F(Hooks, AListenerMayEndTheWindow) {
    const auto after = Listen(1, hWnd, "after");
    const auto first = host::services().CreateWindowHook();
    first->RtMsg = [&](std::int32_t message, std::int32_t, std::int32_t, std::int32_t&, bool&) {
        if (message == host::WM_LBUTTONDOWN) desktop.form().Remove(control);
    };
    std::int32_t kind = 1;
    bool flag = false;
    first->HookSet(kind, hWnd, flag);
    desktop.MoveTo(control, 5, 5);
    TakeHeard();
    desktop.desktop().Input().MouseDown(desktop::MouseButton::Left);
    desktop.Pump();
    EXPECT_THAT(TakeHeard(), ElementsAre("after 8 0")) << "the loss of the focus, but no press";
    EXPECT_TRUE(desktop.form().Names().empty());
    first->HookRelease(); // the window is gone: harmless
    desktop.Release();
}

TEST_F(Hooks, AnErrorOfAHandlerLeavesThroughTheLoopAndTheRestStaysQueued) {
    const auto hook = Listen(1, hWnd, "hook");
    hook->RtMsg = [](std::int32_t message, std::int32_t, std::int32_t, std::int32_t&, bool&) {
        if (message == host::WM_USER) throw Error("from a handler");
    };
    host::platform().PostMessageA(hWnd, host::WM_USER, 0, 0);
    desktop.desktop().Input().KeyDown(host::VK_DOWN);
    EXPECT_THROW(desktop.Pump(), Error);
    EXPECT_THAT(control.log, IsEmpty());
    desktop.Pump();
    EXPECT_THAT(control.log, ElementsAre("KeyDown 40 0"));
}

TEST_F(Hooks, AnErrorWhilePaintingLeavesTheWindowValidAndItsContextWhole) {
    bool fails = true;
    control.onEvent = [&](const std::string& event) {
        if (event == "Paint" && fails) throw Error("from a handler");
    };
    host::platform().InvalidateRect(hWnd, nullptr, false);
    EXPECT_THROW(desktop.Pump(), Error);
    EXPECT_NO_THROW(desktop.Pump());
    fails = false;
    const int before = control.paints;
    const tvok_Rect corner{0, 0, 1, 1};
    host::platform().InvalidateRect(hWnd, &corner, false);
    desktop.Pump();
    EXPECT_EQ(control.paints, before + 1);
    host::platform().FillRect(control.component->hDC(), {50, 25, 51, 26},
                              host::platform().GetStockObject(host::WHITE_BRUSH));
    EXPECT_EQ(desktop.PixelAt(control, 50, 25), 0xFFFFFFu);
}

TEST_F(Hooks, SettingAHookOnNothingIsAnObjectError) {
    auto window = host::services().CreateWindowHook();
    std::int32_t kind = 1;
    std::int32_t nothing = 12345;
    bool flag = false;
    EXPECT_THROW(window->HookSet(kind, nothing, flag), ObjectError);
    EXPECT_NO_THROW(window->HookRelease());
    auto message = host::services().CreateMessageHook();
    EXPECT_THROW(message->HookAttach(nothing, flag), ObjectError);
    EXPECT_EQ(message->HookCount(), 0);
    EXPECT_NO_THROW(message->HookDetach());
}

TEST_F(Hooks, AHookThatIsSetOnNothingIsReleasedAllTheSame) {
    for (const std::int32_t kind : {1, 2, 3, 4}) {
        auto hook = Listen(1, hWnd, "hook");
        std::int32_t wanted = kind;
        std::int32_t nothing = 12345;
        bool flag = false;
        EXPECT_THROW(hook->HookSet(wanted, nothing, flag), Error);
        desktop.Click(control, 5, 5);
        EXPECT_THAT(TakeHeard(), IsEmpty()) << kind;
    }
}

TEST_F(Hooks, ReleasedAndDetachedHooksHearNothingAndMayBeSetAgain) {
    auto window = Listen(1, hWnd, "window");
    auto message = Attach("message");
    EXPECT_EQ(message->HookCount(), 1);
    window->HookRelease();
    message->HookDetach();
    desktop.Click(control, 5, 5);
    EXPECT_THAT(TakeHeard(), IsEmpty());
    std::int32_t kind = 0;
    bool flag = false;
    window->HookSet(kind, hWnd, flag);
    message->HookAttach(hWnd, flag);
    EXPECT_EQ(message->HookCount(), 2);
    host::platform().PostMessageA(hWnd, host::WM_USER, 7, 0);
    desktop.Pump();
    EXPECT_THAT(TakeHeard(), testing::IsSupersetOf({"window 1024 7", "message 1024"}));
}

// Positions and bars.

struct Fired {
    std::vector<std::string> lines;
    void Note(const char* what, std::int32_t v, std::int32_t h, std::int32_t) {
        lines.push_back(std::string(what) + " " + std::to_string(v) + " " + std::to_string(h));
    }
    std::vector<std::string> Take() { return std::exchange(lines, {}); }
};

class Scrolling : public Hooks {
protected:
    Scrolling() : hook(host::services().CreateMessageHook()) {
        hook->events.Change = [this](auto v, auto h, auto x) { fired.Note("Change", v, h, x); };
        hook->events.Scroll = [this](auto v, auto h, auto x) { fired.Note("Scroll", v, h, x); };
        hook->events.EndScroll = [this](auto v) { fired.Note("EndScroll", v, 0, 0); };
        hook->HookMode(3);
        bool flag = false;
        hook->HookAttach(hWnd, flag);
    }
    std::int32_t ClientWidth() {
        tvok_Rect rect;
        host::platform().GetClientRect(hWnd, rect);
        return rect.Right;
    }
    std::unique_ptr<host::MessageHook> hook;
    Fired fired;
};

TEST_F(Scrolling, AWrittenPositionIsLimitedAndChangeComesExactlyWhenItMoved) {
    hook->ScrollMax(10);
    EXPECT_THAT(fired.Take(), IsEmpty());
    hook->ScrollValue(4);
    EXPECT_THAT(fired.Take(), ElementsAre("Change 4 0"));
    hook->ScrollValue(4);
    EXPECT_THAT(fired.Take(), IsEmpty());
    hook->ScrollValue(99);
    EXPECT_THAT(fired.Take(), ElementsAre("Change 10 0"));
    hook->ScrollValue(10);
    hook->ScrollValue(11);
    EXPECT_THAT(fired.Take(), IsEmpty());
    hook->ScrollValue(-5);
    EXPECT_THAT(fired.Take(), ElementsAre("Change 0 0"));
}

TEST_F(Scrolling, LoweringTheMaximumBelowThePositionMovesItAndFires) {
    hook->ScrollMax(10);
    hook->ScrollValue(8);
    fired.Take();
    hook->ScrollMax(9);
    EXPECT_THAT(fired.Take(), IsEmpty());
    hook->ScrollMax(3);
    EXPECT_THAT(fired.Take(), ElementsAre("Change 3 0"));
    hook->ScrollMax(-7);
    EXPECT_EQ(hook->ScrollMax(), 0);
    EXPECT_THAT(fired.Take(), ElementsAre("Change 0 0"));
}

TEST_F(Scrolling, GrowingRaisesNothingAndMovesThePositionOnlyWhenAskedTo) {
    hook->ScrollMax(10);
    hook->ScrollValue(4);
    fired.Take();
    std::int32_t count = 5;
    hook->ScrollGrow(count, true);
    EXPECT_EQ(hook->ScrollMax(), 15);
    EXPECT_EQ(hook->ScrollValue(), 4);
    hook->ScrollGrowValue(count, 0, true);
    EXPECT_EQ(hook->ScrollMax(), 20);
    EXPECT_EQ(hook->ScrollValue(), 9);
    EXPECT_THAT(fired.Take(), IsEmpty());
    count = 0x7FFFFFFF;
    EXPECT_THROW(hook->ScrollGrow(count, true), OverflowError);
    EXPECT_THROW(hook->ScrollGrowValue(count, 0, true), OverflowError);
    EXPECT_EQ(hook->ScrollMax(), 20);
    EXPECT_EQ(hook->ScrollValue(), 9);
}

TEST_F(Scrolling, InModeThreeTheBarIsThereExactlyWhileThereIsARange) {
    EXPECT_FALSE(hook->ScrollBarShown());
    EXPECT_EQ(ClientWidth(), 100);
    hook->ScrollMax(1);
    EXPECT_TRUE(hook->ScrollBarShown());
    EXPECT_EQ(ClientWidth(), 83);
    hook->ScrollMax(0);
    EXPECT_FALSE(hook->ScrollBarShown());
    EXPECT_EQ(ClientWidth(), 100);
    hook->ScrollHMax(50);
    hook->ScrollBarShown(true);
    EXPECT_FALSE(hook->ScrollBarShown());
    EXPECT_FALSE(hook->ScrollHBarShown());
}

TEST_F(Scrolling, ABarThatComesOrGoesResizesNothingAndUncoversItsBand) {
    hook->ScrollMax(1);
    desktop.Pump();
    const int before = control.paints;
    hook->ScrollMax(0);
    EXPECT_THAT(control.log, IsEmpty()); // no Resize
    desktop.Pump();
    EXPECT_EQ(control.paints, before + 1);
    EXPECT_EQ(desktop.PixelAt(control, 99, 20), 0x996633u);
}

TEST_F(Scrolling, InModeFiveBothBarsAreShownAsWritten) {
    hook->HookMode(5);
    hook->ScrollMax(10);
    EXPECT_FALSE(hook->ScrollBarShown());
    hook->ScrollBarShown(true);
    hook->ScrollHBarShown(true);
    tvok_Rect rect;
    host::platform().GetClientRect(hWnd, rect);
    EXPECT_EQ(rect, (tvok_Rect{0, 0, 83, 33}));
    hook->ScrollHMax(40);
    hook->ScrollHValue(30);
    EXPECT_THAT(fired.Take(), ElementsAre("Change 0 30"));
    hook->HookDetach();
    EXPECT_EQ(ClientWidth(), 100);
}

TEST_F(Scrolling, AHandlerOfChangeMayDestroyTheHook) {
    hook->ScrollMax(10);
    hook->events.Change = [this](auto, auto, auto) { hook.reset(); };
    hook->ScrollValue(3);
    EXPECT_EQ(hook, nullptr);
    EXPECT_EQ(ClientWidth(), 100);
}

TEST_F(Scrolling, AnErrorOfAHandlerReachesWhoMovedThePositionWhichIsMoved) {
    hook->ScrollMax(10);
    hook->events.Change = [](auto, auto, auto) { throw Error("from a handler"); };
    EXPECT_THROW(hook->ScrollValue(3), Error);
    EXPECT_EQ(hook->ScrollValue(), 3);
}

} // namespace
} // namespace tvok::test
