/// The hook that carries scrolling, on the real desktop.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/Canvas.h"
#include "tests/support/TestDesktop.h"
#include "tvok/host/Services.h"

namespace tvok::test {
namespace {

using Lines = std::vector<std::string>;

class ScrollHook : public ::testing::Test {
protected:
    ScrollHook() : hook(host::services().CreateMessageHook()) {
        hook->events.Change = [this](std::int32_t vertical, std::int32_t horizontal, std::int32_t) {
            Tell("Change", vertical, horizontal);
        };
        hook->events.Scroll = [this](std::int32_t vertical, std::int32_t, std::int32_t) {
            Tell("Scroll", vertical, 0);
            busyWhileScrolling = busyWhileScrolling && hook->vBusy();
        };
        hook->events.EndScroll = [this](std::int32_t value) { Tell("EndScroll", value, 0); };
    }
    void Attach(std::int32_t mode = 3) {
        hook->HookMode(mode);
        bool flag = false;
        hook->HookAttach(window, flag);
        canvas.TakeStory();
    }
    void Tell(const std::string& name, std::int32_t vertical, std::int32_t horizontal) {
        told.push_back(name + " " + std::to_string(vertical) +
                       (horizontal ? "," + std::to_string(horizontal) : ""));
    }
    Lines Told() { return std::exchange(told, {}); }
    tvok_Rect Client() const {
        tvok_Rect rect;
        host::platform().GetClientRect(window, rect);
        return rect;
    }
    static std::int32_t Metric(std::int32_t index) { return host::platform().GetSystemMetrics(index); }
    /// The middle of the vertical bar.
    std::int32_t BarX() const { return Client().Right + Metric(host::SM_CXVSCROLL) / 2; }

    TestDesktop desktop;
    Canvas& canvas = desktop.form().Add<Canvas>("canvas", Placement{0, 0, 200, 150});
    host::Handle window = desktop.WindowOf(canvas);
    std::unique_ptr<host::MessageHook> hook;
    Lines told;
    bool busyWhileScrolling = true;
};

TEST_F(ScrollHook, CountsNoAttachmentBeforeTheFirst) {
    EXPECT_EQ(hook->HookCount(), 0);
    Attach();
    EXPECT_EQ(hook->HookCount(), 1);
}

TEST_F(ScrollHook, LimitsAWrittenPosition) {
    Attach();
    hook->ScrollMax(10);
    hook->ScrollValue(50);
    EXPECT_EQ(hook->ScrollValue(), 10);
    hook->ScrollValue(-5);
    EXPECT_EQ(hook->ScrollValue(), 0);
    hook->ScrollMax(0);
    hook->ScrollValue(3);
    EXPECT_EQ(hook->ScrollValue(), 0);
}

TEST_F(ScrollHook, RaisesChangeExactlyWhenThePositionReallyChanged) {
    Attach();
    hook->ScrollMax(10);
    hook->ScrollLarge(4);
    EXPECT_EQ(Told(), Lines{});
    hook->ScrollValue(3);
    EXPECT_EQ(Told(), Lines{"Change 3"});
    hook->ScrollValue(3);
    EXPECT_EQ(Told(), Lines{});
    hook->ScrollValue(50);
    EXPECT_EQ(Told(), Lines{"Change 10"});
    hook->ScrollValue(99);
    EXPECT_EQ(Told(), Lines{});
    hook->ScrollValue(-1);
    EXPECT_EQ(Told(), Lines{"Change 0"});
}

TEST_F(ScrollHook, LoweringTheMaximumBelowThePositionMovesItAndTells) {
    Attach();
    hook->ScrollMax(10);
    hook->ScrollValue(8);
    Told();
    hook->ScrollMax(8);
    EXPECT_EQ(Told(), Lines{});
    hook->ScrollMax(5);
    EXPECT_EQ(hook->ScrollValue(), 5);
    EXPECT_EQ(Told(), Lines{"Change 5"});
    hook->ScrollMax(-3);
    EXPECT_EQ(hook->ScrollMax(), 0);
    EXPECT_EQ(Told(), Lines{"Change 0"});
}

TEST_F(ScrollHook, GrowingTheRangeTellsNothing) {
    Attach();
    hook->ScrollMax(10);
    hook->ScrollValue(4);
    Told();
    std::int32_t count = 7;
    hook->ScrollGrow(count, true);
    EXPECT_EQ(hook->ScrollMax(), 17);
    EXPECT_EQ(hook->ScrollValue(), 4);
    hook->ScrollGrowValue(count, 0, true);
    EXPECT_EQ(hook->ScrollMax(), 24);
    EXPECT_EQ(hook->ScrollValue(), 11);
    EXPECT_EQ(Told(), Lines{});
}

TEST_F(ScrollHook, GrowingPastThirtyTwoBitsIsAnOverflowError) {
    Attach();
    hook->ScrollMax(2147483647);
    std::int32_t count = 1;
    EXPECT_THROW(hook->ScrollGrow(count, true), OverflowError);
    EXPECT_THROW(hook->ScrollGrowValue(count, 0, true), OverflowError);
    EXPECT_EQ(hook->ScrollMax(), 2147483647);
    EXPECT_EQ(hook->ScrollValue(), 0);
}

TEST_F(ScrollHook, ShowsItsBarExactlyWhileThereIsARange) {
    Attach();
    const std::int32_t width = Client().Right;
    EXPECT_FALSE(hook->ScrollBarShown());
    hook->ScrollMax(1);
    EXPECT_TRUE(hook->ScrollBarShown());
    EXPECT_EQ(Client().Right, width - Metric(host::SM_CXVSCROLL));
    hook->ScrollMax(0);
    EXPECT_FALSE(hook->ScrollBarShown());
    EXPECT_EQ(Client().Right, width);
    std::int32_t count = 2;
    hook->ScrollGrow(count, true);
    EXPECT_TRUE(hook->ScrollBarShown());
    EXPECT_FALSE(hook->ScrollHBarShown());
}

TEST_F(ScrollHook, ShowingAndHidingItsBarRaisesNoResize) {
    Attach();
    hook->ScrollMax(1);
    hook->ScrollMax(0);
    desktop.Pump();
    for (const auto& line : canvas.TakeStory()) EXPECT_NE(line, "Resize");
}

TEST_F(ScrollHook, InModeFiveTheBarsAreShownAsWritten) {
    Attach(5);
    const tvok_Rect client = Client();
    hook->ScrollMax(10);
    hook->ScrollHMax(10);
    hook->ScrollBarShown(true);
    EXPECT_TRUE(hook->ScrollBarShown());
    EXPECT_EQ(Client().Right, client.Right - Metric(host::SM_CXVSCROLL));
    hook->ScrollHBarShown(true);
    EXPECT_TRUE(hook->ScrollHBarShown());
    EXPECT_EQ(Client().bottom, client.bottom - Metric(host::SM_CYHSCROLL));
    hook->ScrollBarShown(false);
    hook->ScrollHBarShown(false);
    EXPECT_EQ(Client(), client);
}

TEST_F(ScrollHook, TellsTheHorizontalPositionToo) {
    Attach(5);
    hook->ScrollHMax(100);
    hook->ScrollHValue(40);
    EXPECT_EQ(hook->ScrollHValue(), 40);
    EXPECT_EQ(Told(), Lines{"Change 0,40"});
    hook->ScrollHValue(400);
    EXPECT_EQ(hook->ScrollHValue(), 100);
    hook->ScrollMax(9);
    Told();
    hook->ScrollValue(2);
    EXPECT_EQ(Told(), Lines{"Change 2,100"});
}

// Messages.

TEST_F(ScrollHook, SeesAMessageBeforeItsWindowDoes) {
    Attach();
    std::vector<std::int32_t> seen;
    const auto pressed = [](const Lines& story) {
        return std::ranges::any_of(story, [](const auto& line) { return line.starts_with("MouseDown 1 "); });
    };
    hook->events.RtMsg = [&](std::int32_t message, std::int32_t wParam, std::int32_t lParam, std::int32_t&,
                             bool& process) {
        if (message != host::WM_LBUTTONDOWN) return;
        seen = {message, wParam & host::MK_LBUTTON, lParam, process ? 1 : 0};
        EXPECT_FALSE(pressed(canvas.story));
    };
    desktop.Press(canvas, 10, 20);
    EXPECT_EQ(seen, (std::vector<std::int32_t>{513, 1, 20 * 65536 + 10, 1}));
    EXPECT_TRUE(pressed(canvas.story));
}

TEST_F(ScrollHook, KeepsAMessageFromItsWindow) {
    Attach();
    hook->events.RtMsg = [](std::int32_t message, std::int32_t, std::int32_t, std::int32_t&, bool& process) {
        if (message == host::WM_LBUTTONDOWN) process = false;
    };
    desktop.Click(canvas, 10, 20);
    for (const auto& line : canvas.TakeStory()) EXPECT_FALSE(line.starts_with("MouseDown")) << line;
}

TEST_F(ScrollHook, SeesNothingOnceItIsDetached) {
    Attach();
    bool seen = false;
    hook->events.RtMsg = [&](std::int32_t, std::int32_t, std::int32_t, std::int32_t&, bool&) { seen = true; };
    hook->HookDetach();
    desktop.Click(canvas, 10, 20);
    EXPECT_FALSE(seen);
    bool flag = false;
    hook->HookAttach(window, flag);
    desktop.Click(canvas, 10, 20);
    EXPECT_TRUE(seen);
}

TEST_F(ScrollHook, MayBeDestroyedByItsOwnHandlers) {
    Attach();
    hook->ScrollMax(10);
    hook->events.Change = [this](std::int32_t, std::int32_t, std::int32_t) { hook.reset(); };
    hook->ScrollValue(3);
    EXPECT_EQ(hook, nullptr);
    hook = host::services().CreateMessageHook();
    Attach();
    hook->events.RtMsg = [this](std::int32_t, std::int32_t, std::int32_t, std::int32_t&, bool&) {
        hook.reset();
    };
    desktop.Click(canvas, 10, 20);
    EXPECT_EQ(hook, nullptr);
}

// The bar under the mouse.

TEST_F(ScrollHook, DraggingTheThumbScrollsAndTellsTheEnd) {
    Attach();
    hook->ScrollMax(10);
    hook->ScrollLarge(5);
    EXPECT_FALSE(hook->vBusy());
    desktop.Press(canvas, BarX(), Metric(host::SM_CYVSCROLL) + 4);
    EXPECT_TRUE(hook->vBusy());
    desktop.MoveTo(canvas, BarX(), Client().bottom / 2);
    desktop.MoveTo(canvas, BarX(), Client().bottom);
    const Lines dragged = Told();
    ASSERT_FALSE(dragged.empty());
    for (const auto& line : dragged) EXPECT_TRUE(line.starts_with("Scroll ")) << line;
    EXPECT_EQ(dragged.back(), "Scroll 10");
    EXPECT_TRUE(busyWhileScrolling);
    EXPECT_EQ(hook->ScrollValue(), 10);
    desktop.Release();
    EXPECT_FALSE(hook->vBusy());
    EXPECT_EQ(Told(), Lines{"EndScroll 10"});
}

TEST_F(ScrollHook, ArrowsMoveByOneAndRepeatWhileTheyAreHeld) {
    Attach();
    hook->ScrollMax(1000);
    hook->ScrollLarge(5);
    desktop.Press(canvas, BarX(), Client().bottom - 3);
    EXPECT_EQ(hook->ScrollValue(), 1);
    EXPECT_EQ(Told(), Lines{"Change 1"});
    desktop.Pass(std::chrono::milliseconds(2000));
    EXPECT_GT(hook->ScrollValue(), 3);
    desktop.Release();
    const std::int32_t reached = hook->ScrollValue();
    desktop.Pass(std::chrono::milliseconds(2000));
    EXPECT_EQ(hook->ScrollValue(), reached);
    desktop.Click(canvas, BarX(), 3);
    EXPECT_EQ(hook->ScrollValue(), reached - 1);
}

TEST_F(ScrollHook, TheTroughMovesByThePageStep) {
    Attach();
    hook->ScrollMax(100);
    hook->ScrollLarge(7);
    desktop.Click(canvas, BarX(), Client().bottom - Metric(host::SM_CYVSCROLL) - 3);
    EXPECT_EQ(hook->ScrollValue(), 7);
    hook->ScrollValue(100);
    desktop.Click(canvas, BarX(), Metric(host::SM_CYVSCROLL) + 3);
    EXPECT_EQ(hook->ScrollValue(), 93);
}

// The hook without scrolling.

class ListeningHook : public ::testing::Test {
protected:
    static void Set(host::WindowHook& hook, std::int32_t kind, std::int32_t target) {
        bool flag = false;
        hook.HookSet(kind, target, flag);
    }
    TestDesktop desktop;
    Canvas& canvas = desktop.form().Add<Canvas>("canvas", Placement{20, 30, 200, 150});
    std::unique_ptr<host::WindowHook> hook = host::services().CreateWindowHook();
    std::unique_ptr<host::WindowHook> second = host::services().CreateWindowHook();
    std::vector<std::vector<std::int32_t>> seen;
};

TEST_F(ListeningHook, ReleaseIsHarmlessWhenNothingIsAttached) {
    EXPECT_NO_THROW(hook->HookRelease());
    EXPECT_NO_THROW(hook->HookRelease());
}

TEST_F(ListeningHook, HearsTheMessagesOfItsWindowUntilItIsReleased) {
    for (const std::int32_t kind : {0, 1}) {
        seen.clear();
        Set(*hook, kind, desktop.WindowOf(canvas));
        hook->RtMsg = [&](std::int32_t message, std::int32_t wParam, std::int32_t lParam, std::int32_t&,
                          bool& next) {
            EXPECT_TRUE(next);
            if (message == host::WM_LBUTTONDOWN) seen.push_back({wParam & 1, lParam});
        };
        desktop.Click(canvas, 10, 20);
        ASSERT_EQ(seen.size(), 1u) << kind;
        EXPECT_EQ(seen[0], (std::vector<std::int32_t>{1, 20 * 65536 + 10}));
        hook->HookRelease();
        desktop.Pass(std::chrono::seconds(2));
        desktop.Click(canvas, 10, 20);
        EXPECT_EQ(seen.size(), 1u);
    }
}

TEST_F(ListeningHook, TheLastOneSetIsAskedFirstAndMayKeepTheMessage) {
    const auto window = desktop.WindowOf(canvas);
    Set(*hook, 0, window);
    Set(*second, 0, window);
    bool firstHeard = false, keep = false;
    hook->RtMsg = [&](std::int32_t message, std::int32_t, std::int32_t, std::int32_t&, bool&) {
        if (message == host::WM_LBUTTONDOWN) firstHeard = true;
    };
    second->RtMsg = [&](std::int32_t message, std::int32_t, std::int32_t, std::int32_t&, bool& next) {
        if (message == host::WM_LBUTTONDOWN && keep) next = false;
    };
    desktop.Click(canvas, 10, 20);
    EXPECT_TRUE(firstHeard);
    firstHeard = false;
    keep = true;
    canvas.TakeStory();
    desktop.Pass(std::chrono::seconds(2));
    desktop.Click(canvas, 10, 20);
    EXPECT_FALSE(firstHeard);
    for (const auto& line : canvas.TakeStory()) EXPECT_FALSE(line.starts_with("MouseDown")) << line;
}

TEST_F(ListeningHook, HearsTheMouseOfItsThreadWithTheScreenPoint) {
    Set(*hook, 2, host::services().ThreadID());
    host::Point expected{10, 20};
    host::platform().ClientToScreen(desktop.WindowOf(canvas), expected);
    hook->RtMsg = [&](std::int32_t, std::int32_t wParam, std::int32_t, std::int32_t&, bool&) {
        if (wParam != host::WM_LBUTTONDOWN) return;
        ASSERT_NE(hook->Mouse(), nullptr);
        seen.push_back({hook->Mouse()->x, hook->Mouse()->y});
    };
    desktop.Click(canvas, 10, 20);
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_EQ(seen[0], (std::vector<std::int32_t>{expected.x, expected.y}));
    EXPECT_EQ(hook->Mouse(), nullptr);
}

TEST_F(ListeningHook, HearsTheKeysOfItsThreadDownAndUp) {
    desktop.Focus(canvas);
    Set(*hook, 3, host::services().ThreadID());
    hook->RtMsg = [&](std::int32_t, std::int32_t wParam, std::int32_t lParam, std::int32_t&, bool&) {
        seen.push_back({wParam, lParam < 0 ? 1 : 0});
    };
    desktop.Key(host::VK_DOWN);
    EXPECT_EQ(seen, (std::vector<std::vector<std::int32_t>>{{40, 0}, {40, 1}}));
}

TEST_F(ListeningHook, KeepsAKeyFromItsWindow) {
    desktop.Focus(canvas);
    Set(*hook, 3, host::services().ThreadID());
    hook->RtMsg = [](std::int32_t, std::int32_t, std::int32_t, std::int32_t&, bool& next) { next = false; };
    canvas.TakeStory();
    desktop.Key(host::VK_DOWN);
    for (const auto& line : canvas.TakeStory()) EXPECT_FALSE(line.starts_with("Key")) << line;
}

TEST_F(ListeningHook, CannotBeSetOnAWindowThatIsNotThere) {
    EXPECT_THROW(Set(*hook, 0, 987654), ObjectError);
}

} // namespace
} // namespace tvok::test
