// Handlers that end, remove, close or throw in the middle of what the desktop does.

#include <gmock/gmock.h>

#include "tests/host/desktop/windows/Recorder.h"
#include "tests/support/TestDesktop.h"
#include "tvok/host/Services.h"
#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

struct HandlersError {};

/// Runs `act` when the control notes `event`.
void When(Recorder& control, const std::string& event, std::function<void()> act) {
    control.onEvent = [event, act = std::move(act)](const std::string& noted) {
        if (noted == event) act();
    };
}

/// A control with an event of its own, that says when it is freed.
class Asking : public Recorder {
public:
    explicit Asking(bool& freed) : freed_(freed) {}
    ~Asking() override { freed_ = true; }

    void Raise() {
        Change();
        log.emplace_back("raised");
    }
    Event<> Change;

private:
    bool& freed_;
};

TEST(Lifetime, AMouseListenerMayFreeTheWindowUnderThePointer) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    auto picture = control.component->CreatePicture();
    picture->Size(600, 600);
    picture->Visible(true);
    desktop.Pump();
    control.logMoves = true;
    control.TakeLog();
    auto listener = host::services().CreateWindowHook();
    listener->RtMsg = [&](auto, auto, auto, auto&, auto&) { picture.reset(); };
    std::int32_t kind = 2;
    std::int32_t thread = host::services().ThreadID();
    bool flag = false;
    listener->HookSet(kind, thread, flag);
    desktop.MoveTo(control, 5, 5);
    EXPECT_EQ(picture, nullptr);
    EXPECT_THAT(control.TakeLog(), ElementsAre("MouseMove 0 0 75 75"));
}

TEST(Lifetime, AControlThatAHandlerRemovedLivesUntilTheEventReturnsAlsoWhenTheHandlerPumps) {
    TestDesktop desktop;
    bool freed = false;
    auto& control = desktop.form().Add<Asking>("a", Placement{10, 10, 100, 50}, freed);
    control.Change = [&] {
        desktop.form().Remove(control);
        desktop.Pump();
    };
    control.Raise();
    ASSERT_FALSE(freed);
    EXPECT_EQ(control.log.back(), "raised");
    desktop.Pump();
    EXPECT_TRUE(freed);
}

TEST(Lifetime, AControlThatIsRemovedWhileItIsResizedLivesUntilThatReturns) {
    TestDesktop desktop;
    bool freed = false;
    auto& control = desktop.form().Add<Asking>("a", Placement{10, 10, 100, 50}, freed);
    When(control, "Resize", [&] {
        desktop.form().Remove(control);
        desktop.Pump();
        EXPECT_FALSE(freed);
    });
    control.component->Width(300);
    desktop.Pump();
    EXPECT_TRUE(freed);
}

TEST(Lifetime, AListMayBeRemovedByTheChangeThatItsHostCaused) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, {"ant", "bee", "cat"});
    int changes = 0;
    list.events.Change = [&](auto&&...) {
        if (++changes > 1) return;
        desktop.form().Remove(list);
        desktop.Pump();
    };
    list.ListIndex(2);
    EXPECT_EQ(changes, 1);
    desktop.Pump();
    EXPECT_THAT(desktop.form().Names(), IsEmpty());
}

TEST(Lifetime, AnEndedComponentTakesNoChildAndMakesNoPicture) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    host::Component& component = *control.component;
    desktop.form().Remove(control);
    Recorder child;
    EXPECT_THROW(component.AddChild(child, "inner", {0, 0, 5, 5}, nullptr), ObjectError);
    EXPECT_THROW(component.CreatePicture(), ObjectError);
    EXPECT_THAT(child.log, IsEmpty());
}

TEST(Lifetime, AChildThatFailedToComeUpIsNoChildAndMayTryAgain) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    Recorder child;
    When(child, "ReadProperties", [] { throw HandlersError(); });
    EXPECT_THROW(control.component->AddChild(child, "inner", {0, 0, 5, 5}, nullptr), HandlersError);
    EXPECT_THAT(child.TakeLog(), ElementsAre("Initialize", "ReadProperties", "Terminate"));
    child.onEvent = nullptr;
    control.component->AddChild(child, "inner", {0, 0, 5, 5}, nullptr);
    child.TakeLog();
    control.component->RemoveChild(child);
    EXPECT_THAT(child.TakeLog(), ElementsAre("Terminate"));
}

TEST(Lifetime, AChildWithoutSettingsReadsDefaultsInRunModeAndIsNewlyPlacedAtDesignTime) {
    TestDesktop desktop;
    Recorder running;
    Recorder designed;
    auto& first = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    first.component->AddChild(running, "inner", {0, 0, 5, 5}, nullptr);
    EXPECT_THAT(running.TakeLog(), ElementsAre("Initialize", "ReadProperties", "Resize"));
    desktop.form().UserMode(false);
    auto& second = desktop.form().Add<Recorder>("b", {10, 70, 100, 50});
    second.component->AddChild(designed, "inner", {0, 0, 5, 5}, nullptr);
    EXPECT_THAT(designed.TakeLog(), ElementsAre("Initialize", "InitProperties", "Resize"));
    first.component->RemoveChild(running);
    second.component->RemoveChild(designed);
}

TEST(Lifetime, AControlsEndMayRemoveTheOthersOfItsForm) {
    TestDesktop desktop;
    auto& form = desktop.desktop().AddForm("Second", 200, 200);
    std::vector<Recorder*> all;
    std::vector<std::string> ended;
    for (const char* name : {"a", "b", "c"}) {
        all.push_back(&form.Add<Recorder>(name, {0, 0, 50, 50}));
        When(*all.back(), "Terminate", [&, name] {
            ended.emplace_back(name);
            for (Recorder* other : all) form.Remove(*other);
        });
    }
    form.Close();
    EXPECT_THAT(ended, ElementsAre("a", "b", "c"));
}

TEST(Lifetime, AChildsEndMayRemoveTheOtherChildren) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    host::Component& component = *control.component;
    std::vector<Recorder> children(3);
    int ended = 0;
    for (Recorder& child : children) {
        component.AddChild(child, "inner", {0, 0, 5, 5}, nullptr);
        When(child, "Terminate", [&] {
            ++ended;
            for (Recorder& other : children) component.RemoveChild(other);
        });
    }
    desktop.form().Remove(control);
    EXPECT_EQ(ended, 3);
}

TEST(Lifetime, AControlsEndMayCloseAnotherFormWhileTheDesktopEnds) {
    int closed = 0;
    int ended = 0;
    {
        TestDesktop desktop;
        auto& second = desktop.desktop().AddForm("Second", 100, 80);
        auto& third = desktop.desktop().AddForm("Third", 100, 80);
        second.events.Closed = [&] { ++closed; };
        When(desktop.form().Add<Recorder>("a", {0, 0, 50, 50}), "Terminate", [&] { second.Close(); });
        When(second.Add<Recorder>("a", {0, 0, 50, 50}), "Terminate", [&] { ++ended; });
        When(third.Add<Recorder>("a", {0, 0, 50, 50}), "Terminate", [&] { ++ended; });
    }
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(ended, 2);
}

TEST(Lifetime, AFocusHandlerThatThrowsKeepsNobodyFromHearingOfTheFocus) {
    TestDesktop desktop;
    auto& first = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    auto& second = desktop.form().Add<Recorder>("b", {10, 70, 100, 50});
    desktop.Pump();
    first.TakeLog();
    second.TakeLog();
    When(first, "LostFocus", [] { throw HandlersError(); });
    EXPECT_THROW(second.component->SetFocus(), HandlersError);
    EXPECT_THAT(first.TakeLog(), ElementsAre("LostFocus", "ExitFocus"));
    EXPECT_THAT(second.TakeLog(), ElementsAre("EnterFocus", "GotFocus"));

    When(second, "ExitFocus", [] { throw HandlersError(); });
    EXPECT_THROW(first.component->SetFocus(), HandlersError);
    EXPECT_THAT(second.TakeLog(), ElementsAre("LostFocus", "ExitFocus"));
    EXPECT_THAT(first.TakeLog(), ElementsAre("EnterFocus", "GotFocus"));
}

/// A control of 100 x 134 pixels with a scroll bar at its right edge.
class BarLifetime : public testing::Test {
protected:
    static constexpr std::int32_t kBarX = 90;

    BarLifetime() : control(desktop.form().Add<Recorder>("a", {10, 10, 100, 134})) {
        hook = host::services().CreateMessageHook();
        hook->HookMode(3);
        bool flag = false;
        hook->HookAttach(desktop.WindowOf(control), flag);
        hook->ScrollLarge(10);
        hook->ScrollMax(30);
        desktop.Pump();
    }

    TestDesktop desktop;
    Recorder& control;
    std::unique_ptr<host::MessageHook> hook;
};

TEST_F(BarLifetime, ADragEndsAlsoWhereAHandlerThrowsAtTheLossOfTheCapture) {
    std::int32_t ends = 0;
    hook->events.EndScroll = [&](auto) { ++ends; };
    desktop.Press(control, kBarX, 20);
    ASSERT_TRUE(hook->vBusy());
    hook->events.RtMsg = [](std::int32_t message, auto, auto, auto&, auto&) {
        if (message == host::WM_CAPTURECHANGED) throw HandlersError();
    };
    EXPECT_THROW(desktop.Release(), HandlersError);
    EXPECT_FALSE(hook->vBusy());
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(host::platform().GetCapture(), 0);
}

TEST_F(BarLifetime, WhoLosesTheCaptureToAPressOnABarMayFreeTheBar) {
    auto& other = desktop.form().Add<Recorder>("b", {10, 200, 100, 50});
    const host::Handle hWnd = desktop.WindowOf(control);
    auto listener = host::services().CreateMessageHook();
    bool flag = false;
    listener->HookAttach(desktop.WindowOf(other), flag);
    listener->events.RtMsg = [&](std::int32_t message, auto, auto, auto&, auto&) {
        if (message != host::WM_CAPTURECHANGED) return;
        hook.reset();
        desktop.form().Remove(control);
    };
    host::Point bar{kBarX, 125};
    host::platform().ClientToScreen(hWnd, bar);
    host::platform().SetCapture(desktop.WindowOf(other));
    host::platform().PostMessageA(hWnd, host::WM_NCLBUTTONDOWN, host::HTVSCROLL,
                                  soft::PackWords(bar.x, bar.y));
    desktop.Pump();
    EXPECT_EQ(hook, nullptr);
    EXPECT_FALSE(desktop.desktop().world().tracker.Active());
    EXPECT_EQ(host::platform().GetCapture(), 0);
}

TEST_F(BarLifetime, AThemeWithWiderBarsResizesWhatHasABarAndNothingElse) {
    auto& plain = desktop.form().Add<Recorder>("b", {10, 200, 100, 50});
    control.TakeLog();
    plain.TakeLog();
    Theme wider = desktop.desktop().CurrentTheme();
    wider.scrollBarSize += 5;
    desktop.desktop().SetTheme(wider);
    EXPECT_THAT(control.TakeLog(), ElementsAre("Resize"));
    EXPECT_THAT(plain.TakeLog(), IsEmpty());
    desktop.desktop().SetTheme(wider);
    EXPECT_THAT(control.TakeLog(), IsEmpty());
}

TEST(ThemeChange, FontsKeepTheirSizeInPointsAtAnotherResolution) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    const float before = control.component->TextWidth("Apples and pears");
    Theme finer = desktop.desktop().CurrentTheme();
    finer.dotsPerInch *= 2;
    desktop.desktop().SetTheme(finer);
    EXPECT_NEAR(control.component->TextWidth("Apples and pears"), before, before / 10);
}

TEST(Tab, LeavesAListWithoutLookingForATextThatBeginsWithIt) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, {"apple", "\tx"});
    desktop.FocusAway();
    desktop.Focus(list);
    list.ListIndex(1);
    int changes = 0;
    list.events.Change = [&](auto&&...) { ++changes; };
    list.events.Click = [&](auto&&...) { ++changes; };
    desktop.Key(host::VK_TAB);
    EXPECT_NE(host::platform().GetFocus(), desktop.WindowOf(list));
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(changes, 0);
}

TEST(Tab, IsTheControlsOwnKeyWhereThereIsNowhereToGo) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    control.TakeLog();
    desktop.HoldKey(host::VK_TAB);
    EXPECT_THAT(control.TakeLog(), ElementsAre("KeyDown 9 0", "KeyPress 9"));
}

TEST(Tab, MovesNothingTogetherWithControlOrAltAlsoFromTheFormItself) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    control.component->Visible(false);
    ASSERT_EQ(host::platform().GetFocus(), desktop.form().hWnd());
    control.component->Visible(true);
    desktop.HoldKey(host::VK_CONTROL);
    desktop.Key(host::VK_TAB);
    EXPECT_EQ(host::platform().GetFocus(), desktop.form().hWnd());
    desktop.LetGoKey(host::VK_CONTROL);
    desktop.Key(host::VK_TAB);
    EXPECT_EQ(host::platform().GetFocus(), desktop.WindowOf(control));
}

TEST(WindowContext, ComesFreshWhateverItsLastUserLeftInIt) {
    TestDesktop desktop;
    host::Platform& platform = host::platform();
    const host::Handle hWnd = desktop.form().hWnd();
    const host::Handle pen = platform.CreatePen(host::PS_SOLID, 3, 0x112233);
    const host::Handle first = platform.GetWindowDC(hWnd);
    platform.SelectObject(first, pen);
    platform.SetTextColor(first, 0x445566);
    platform.SetROP2(first, host::R2_XORPEN);
    platform.ReleaseDC(hWnd, first);
    EXPECT_TRUE(platform.DeleteObject(pen));
    const host::Handle second = platform.GetWindowDC(hWnd);
    const host::Handle black = platform.GetStockObject(host::BLACK_PEN);
    EXPECT_EQ(platform.SelectObject(second, black), black);
    EXPECT_EQ(platform.SetTextColor(second, 0), 0);
    EXPECT_EQ(platform.SetROP2(second, host::R2_COPYPEN), host::R2_COPYPEN);
    platform.ReleaseDC(hWnd, second);
}

TEST(Resizable, IsWhatTheDisplayIsToldOfAForm) {
    TestDesktop desktop;
    desktop.Pump();
    const soft::TopLevel& top = *desktop.form().window().window().top();
    EXPECT_TRUE(desktop.form().Resizable());
    EXPECT_TRUE(top.told.resizable);
    desktop.form().Resizable(false);
    desktop.Pump();
    EXPECT_FALSE(top.told.resizable);
}

} // namespace
} // namespace tvok::test
