#include "tvok/host/desktop/windows/ScrollBars.h"

#include <gmock/gmock.h>

#include "tests/host/desktop/windows/Recorder.h"
#include "tests/support/TestDesktop.h"
#include "tvok/host/Services.h"
#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok::test {
namespace {

using soft::BarPart;
using soft::BarState;
using soft::Divide;
using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(BarLayout, TheThumbIsToTheTrackAsThePageIsToTheWhole) {
    const soft::BarLayout layout = Divide({.value = 0, .max = 30, .large = 10}, 134, 17);
    EXPECT_EQ(layout.thumbStart, 17);
    EXPECT_EQ(layout.thumbLength, 25); // 100 * 10 / 40
    EXPECT_EQ(Divide({.value = 30, .max = 30, .large = 10}, 134, 17).thumbStart, 92);
}

TEST(BarLayout, AThumbHasAtLeastEightPixelsAndNoneWithoutRangeOrRoom) {
    EXPECT_EQ(Divide({.value = 5, .max = 1000000000, .large = 1}, 134, 17).thumbLength, 8);
    EXPECT_EQ(Divide({.value = 0, .max = 0, .large = 1}, 134, 17).thumbLength, 0);
    EXPECT_EQ(Divide({.value = 0, .max = 9, .large = 1}, 40, 17).thumbLength, 0);
    EXPECT_EQ(Divide({.value = 0, .max = 9, .large = 1}, 20, 17).arrow, 10);
    EXPECT_EQ(Divide({.value = 0, .max = 9, .large = 0}, 134, 17).thumbLength, 10);
}

TEST(BarLayout, EveryPartIsFoundAndThePositionOfAThumbGoesThereAndBack) {
    const BarState state{.value = 12, .max = 30, .large = 10};
    const soft::BarLayout layout = Divide(state, 134, 17);
    EXPECT_EQ(layout.PartAt(-1), BarPart::None);
    EXPECT_EQ(layout.PartAt(0), BarPart::LineBack);
    EXPECT_EQ(layout.PartAt(17), BarPart::PageBack);
    EXPECT_EQ(layout.PartAt(layout.thumbStart), BarPart::Thumb);
    EXPECT_EQ(layout.PartAt(layout.thumbStart + 25), BarPart::PageForward);
    EXPECT_EQ(layout.PartAt(117), BarPart::LineForward);
    EXPECT_EQ(layout.PartAt(134), BarPart::None);
    EXPECT_EQ(layout.ValueAt(layout.thumbStart, state.max), 12);
    EXPECT_EQ(layout.ValueAt(-500, state.max), 0);
    EXPECT_EQ(layout.ValueAt(5000, state.max), 30);
    EXPECT_EQ(layout.ValueAt(92, 2000000000), 2000000000);
}

/// A control of 100 x 134 pixels with a bar of 30 positions and a page of 10 at its right edge.
class ScrollBarMouse : public testing::Test {
protected:
    static constexpr std::int32_t kBarX = 90;

    ScrollBarMouse() : control(desktop.form().Add<Recorder>("a", {10, 10, 100, 134})) {
        hook = host::services().CreateMessageHook();
        hook->events.Change = [this](auto v, auto h, auto) { Note("Change", v, h); };
        hook->events.Scroll = [this](auto v, auto h, auto) {
            Note(hook->vBusy() ? "Scroll" : "Scroll?", v, h);
        };
        hook->events.EndScroll = [this](auto v) { Note("EndScroll", v, hook->vBusy()); };
        hook->HookMode(3);
        bool flag = false;
        hook->HookAttach(desktop.WindowOf(control), flag);
        hook->ScrollLarge(10);
        hook->ScrollMax(30);
        desktop.Pump();
        control.TakeLog();
    }
    void Note(const char* what, std::int32_t a, std::int32_t b) {
        fired.push_back(std::string(what) + " " + std::to_string(a) + " " + std::to_string(b));
    }
    std::vector<std::string> Take() { return std::exchange(fired, {}); }
    std::uint32_t FramePixel(std::int32_t x, std::int32_t y) {
        desktop.desktop().world().Present();
        const soft::Window& window = desktop.form().window().EntryOf(control).component->window();
        return window.top()->surface.Row(window.outer().Top + y)[window.outer().Left + x];
    }

    TestDesktop desktop;
    Recorder& control;
    std::unique_ptr<host::MessageHook> hook;
    std::vector<std::string> fired;
};

TEST_F(ScrollBarMouse, AnArrowIsOneLineThenAfter400MillisecondsOneMoreEach50) {
    desktop.Press(control, kBarX, 125);
    EXPECT_THAT(Take(), ElementsAre("Change 1 0"));
    desktop.Pass(milliseconds(399));
    EXPECT_THAT(Take(), IsEmpty());
    desktop.Pass(milliseconds(1));
    EXPECT_THAT(Take(), ElementsAre("Change 2 0"));
    desktop.Pass(milliseconds(100));
    EXPECT_THAT(Take(), ElementsAre("Change 3 0", "Change 4 0"));
    desktop.Release();
    desktop.Pass(milliseconds(1000));
    EXPECT_THAT(Take(), IsEmpty());
    desktop.Click(control, kBarX, 5);
    EXPECT_THAT(Take(), ElementsAre("Change 3 0"));
    EXPECT_THAT(control.log, ElementsAre()); // the control hears nothing of it
}

TEST_F(ScrollBarMouse, AnArrowLooksPressedWhileThePointerIsOverItAndRepeatsOnlyThen) {
    desktop.MoveTo(control, kBarX, 5);
    const std::uint32_t up = FramePixel(84, 1);
    desktop.Press(control, kBarX, 125);
    desktop.Press(control, kBarX, 125);
    desktop.Release();
    Take();
    desktop.Press(control, kBarX, 5);
    EXPECT_NE(FramePixel(84, 1), up);
    desktop.MoveTo(control, kBarX, 60);
    EXPECT_EQ(FramePixel(84, 1), up);
    Take();
    desktop.Pass(milliseconds(1000));
    EXPECT_THAT(Take(), IsEmpty());
}

TEST_F(ScrollBarMouse, PageClicksRepeatAndStopAtThePointer) {
    desktop.Press(control, kBarX, 80);
    EXPECT_THAT(Take(), ElementsAre("Change 10 0"));
    desktop.Pass(milliseconds(2000));
    EXPECT_THAT(Take(), ElementsAre("Change 20 0")); // the thumb lies under the pointer now
    desktop.Release();
    desktop.Click(control, kBarX, 20);
    EXPECT_THAT(Take(), ElementsAre("Change 10 0"));
}

TEST_F(ScrollBarMouse, ADraggedThumbScrollsAndEndsWithEndScroll) {
    desktop.Press(control, kBarX, 20);
    EXPECT_TRUE(hook->vBusy());
    EXPECT_THAT(Take(), IsEmpty());
    desktop.MoveTo(control, kBarX, 45); // a third of the way of 75 pixels
    EXPECT_THAT(Take(), ElementsAre("Scroll 10 0"));
    desktop.MoveTo(control, kBarX, 45);
    EXPECT_THAT(Take(), IsEmpty());
    desktop.MoveTo(control, kBarX, 500);
    EXPECT_THAT(Take(), ElementsAre("Scroll 0 0")); // too far away: back to where it began
    desktop.MoveTo(control, kBarX + 100, 130);
    EXPECT_THAT(Take(), ElementsAre("Scroll 30 0"));
    desktop.Release();
    EXPECT_THAT(Take(), ElementsAre("EndScroll 30 0"));
    EXPECT_FALSE(hook->vBusy());
    EXPECT_EQ(host::platform().GetCapture(), 0);
}

TEST_F(ScrollBarMouse, LosingTheCaptureEndsADrag) {
    desktop.Press(control, kBarX, 20);
    desktop.MoveTo(control, kBarX, 45);
    Take();
    host::platform().SetCapture(desktop.form().hWnd());
    EXPECT_THAT(Take(), ElementsAre("EndScroll 10 0"));
    desktop.MoveTo(control, kBarX, 80);
    EXPECT_THAT(Take(), IsEmpty());
    host::platform().ReleaseCapture();
}

TEST_F(ScrollBarMouse, TheWheelIsThreeLinesANotch) {
    desktop.MoveTo(control, 10, 10);
    desktop.Wheel(-1);
    EXPECT_THAT(Take(), ElementsAre("Change 3 0"));
    desktop.Wheel(-2);
    desktop.Wheel(1);
    EXPECT_THAT(Take(), ElementsAre("Change 9 0", "Change 6 0"));
    desktop.Wheel(9);
    EXPECT_THAT(Take(), ElementsAre("Change 0 0"));
    desktop.Wheel(1);
    EXPECT_THAT(Take(), IsEmpty());
}

TEST_F(ScrollBarMouse, ShiftAndTheSidewaysWheelMoveTheHorizontalBar) {
    hook->HookMode(5);
    hook->ScrollHMax(200);
    hook->ScrollHLarge(100);
    hook->ScrollHBarShown(true);
    desktop.MoveTo(control, 10, 10);
    desktop.HoldKey(host::VK_SHIFT);
    desktop.Wheel(-1);
    desktop.LetGoKey(host::VK_SHIFT);
    EXPECT_THAT(Take(), ElementsAre("Change 0 48"));
    desktop.desktop().Input().Wheel(1, true);
    desktop.Pump();
    EXPECT_THAT(Take(), ElementsAre("Change 0 96"));
    desktop.Click(control, 95, 125); // its right arrow
    EXPECT_THAT(Take(), ElementsAre("Change 0 112"));
}

TEST_F(ScrollBarMouse, APostedPressOnTheFrameReachesTheBar) {
    host::Point point{kBarX, 125};
    host::platform().ClientToScreen(desktop.WindowOf(control), point);
    host::platform().PostMessageA(desktop.WindowOf(control), host::WM_NCLBUTTONDOWN, host::HTVSCROLL,
                                  soft::PackWords(point.x, point.y));
    desktop.Pump();
    EXPECT_THAT(Take(), ElementsAre("Change 1 0"));
    desktop.Release();
    EXPECT_EQ(host::platform().GetCapture(), 0);
}

TEST_F(ScrollBarMouse, AHandlerMayRemoveTheControlWhileItsBarIsPressed) {
    hook->events.Change = [this](auto, auto, auto) {
        desktop.form().Remove(control);
        hook.reset();
    };
    desktop.Press(control, kBarX, 125);
    EXPECT_EQ(hook, nullptr);
    desktop.Pass(milliseconds(1000));
    desktop.Release();
    EXPECT_EQ(host::platform().GetCapture(), 0);
}

TEST_F(ScrollBarMouse, AHandlerMayDestroyTheHookWhileItsThumbIsDragged) {
    hook->events.Scroll = [this](auto, auto, auto) { hook.reset(); };
    desktop.Press(control, kBarX, 20);
    desktop.MoveTo(control, kBarX, 45);
    EXPECT_EQ(hook, nullptr);
    desktop.Release();
    EXPECT_EQ(host::platform().GetCapture(), 0);
}

TEST_F(ScrollBarMouse, WhileTheButtonRepeatsTheDesktopWakesForIt) {
    desktop.Press(control, kBarX, 125);
    EXPECT_EQ(desktop.desktop().world().loop.Idle(), milliseconds(400));
    desktop.Release();
    EXPECT_FALSE(desktop.desktop().world().loop.Idle().has_value());
}

} // namespace
} // namespace tvok::test
