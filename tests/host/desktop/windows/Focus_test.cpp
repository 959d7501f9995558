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
using testing::Not;

/// Three controls that write to one log with their names in front.
class Focus : public testing::Test {
protected:
    Focus() {
        for (const char* name : {"a", "b", "c"}) {
            auto& control =
                desktop.form().Add<Recorder>(name, {10 + 110 * static_cast<int>(all.size()), 10, 100, 50});
            Join(control, name);
            all.push_back(&control);
        }
        desktop.Pump();
        log.clear();
    }
    void Join(Recorder& control, std::string name) {
        control.onEvent = [this, name](const std::string& event) {
            if (event != "Paint") log.push_back(name + " " + event);
        };
    }
    std::vector<std::string> TakeLog() { return std::exchange(log, {}); }
    bool HasFocus(const Recorder& control) {
        return host::platform().GetFocus() == desktop.WindowOf(control);
    }

    std::vector<std::string> log; // outlives the controls, which write to it until they end
    std::vector<Recorder*> all;
    TestDesktop desktop;
};

TEST_F(Focus, TheFirstControlOfAnActiveFormHasIt) {
    EXPECT_TRUE(HasFocus(*all[0]));
}

TEST_F(Focus, MovesInTheOrderLostExitEnterGot) {
    desktop.Focus(*all[1]);
    EXPECT_THAT(TakeLog(), ElementsAre("a LostFocus", "a ExitFocus", "b EnterFocus", "b GotFocus"));
    desktop.Focus(*all[1]);
    EXPECT_THAT(TakeLog(), IsEmpty());
}

TEST_F(Focus, WhoLosesItAsksAndFindsTheNewOwner) {
    host::Handle seen = 0;
    all[0]->onEvent = [&](const std::string& event) {
        if (event == "LostFocus") seen = host::platform().GetFocus();
    };
    desktop.Focus(*all[2]);
    EXPECT_EQ(seen, desktop.WindowOf(*all[2]));
}

TEST_F(Focus, AMousePressMovesItBeforeTheControlHearsOfThePress) {
    desktop.MoveTo(*all[1], 5, 5);
    desktop.desktop().Input().MouseDown(desktop::MouseButton::Left);
    desktop.Pump();
    EXPECT_THAT(TakeLog(), ElementsAre("a LostFocus", "a ExitFocus", "b EnterFocus", "b GotFocus",
                                       "b MouseDown 1 0 75 75"));
}

TEST_F(Focus, TabGoesRoundInTheOrderOfAddingAndShiftTabBack) {
    std::vector<int> order;
    const auto note = [&] {
        for (int i = 0; i < 3; ++i)
            if (HasFocus(*all[static_cast<std::size_t>(i)])) order.push_back(i);
    };
    for (int i = 0; i < 3; ++i) {
        desktop.Key(host::VK_TAB);
        note();
    }
    desktop.HoldKey(host::VK_SHIFT);
    for (int i = 0; i < 3; ++i) {
        desktop.Key(host::VK_TAB);
        note();
    }
    EXPECT_THAT(order, ElementsAre(1, 2, 0, 2, 1, 0));
}

TEST_F(Focus, TabGivesNoCharacterAndPassesHiddenControlsBy) {
    desktop.form().ComponentOf(*all[1]).Visible(false);
    desktop.Key(host::VK_TAB);
    EXPECT_TRUE(HasFocus(*all[2]));
    EXPECT_THAT(TakeLog(), Not(Contains("a KeyPress 9")));
}

TEST_F(Focus, TabStaysWhereTheFormOrAHookTakesIt) {
    desktop.form().events.KeyDown = [](std::int16_t& code, std::int16_t&) { code = 0; };
    desktop.Key(host::VK_TAB);
    EXPECT_TRUE(HasFocus(*all[0]));
    EXPECT_THAT(TakeLog(), Not(Contains("a KeyDown 9 0")));
}

TEST_F(Focus, TheFormHearsOfAKeyBeforeTheControlAndMayChangeIt) {
    desktop.form().events.KeyDown = [this](std::int16_t& code, std::int16_t& shift) {
        log.push_back("form " + std::to_string(code));
        code = 'X';
        shift = 1;
    };
    desktop.HoldKey('B');
    EXPECT_THAT(TakeLog(), ElementsAre("form 66", "a KeyDown 88 1"));
}

TEST_F(Focus, AHandlerThatMovesItOnWins) {
    all[1]->onEvent = [this](const std::string& event) {
        log.push_back("b " + event);
        if (event == "EnterFocus") desktop.form().ComponentOf(*all[2]).SetFocus();
    };
    desktop.Focus(*all[1]);
    EXPECT_TRUE(HasFocus(*all[2]));
    EXPECT_THAT(TakeLog(), ElementsAre("a LostFocus", "a ExitFocus", "b EnterFocus", "b LostFocus",
                                       "b ExitFocus", "c EnterFocus", "c GotFocus"));
}

TEST_F(Focus, GoesOnWhenItsOwnerIsHiddenOrRemoved) {
    desktop.Focus(*all[2]);
    desktop.form().ComponentOf(*all[2]).Visible(false);
    EXPECT_TRUE(HasFocus(*all[0]));
    desktop.form().Remove(*all[0]);
    EXPECT_TRUE(HasFocus(*all[1]));
}

TEST_F(Focus, GoesToTheOwnerOfAPartThatIsHidden) {
    Recorder child;
    Join(child, "child");
    host::Component& part = all[1]->component->AddChild(child, "inner", {5, 5, 30, 30}, nullptr);
    part.SetFocus();
    TakeLog();
    part.Visible(false);
    EXPECT_TRUE(HasFocus(*all[1]));
    EXPECT_THAT(TakeLog(), ElementsAre("child LostFocus", "child ExitFocus", "b GotFocus"));
    part.Visible(true);
    part.SetFocus();
    desktop.form().ComponentOf(*all[1]).Visible(false);
    EXPECT_TRUE(HasFocus(*all[0])) << "one that is hidden with its part has none";
    all[1]->component->RemoveChild(child);
}

TEST_F(Focus, IsLostLikeAnyOtherTimeByAControlThatIsRemoved) {
    const auto hook = host::services().CreateWindowHook();
    hook->RtMsg = [&](std::int32_t message, auto&&...) { log.push_back("hook " + std::to_string(message)); };
    std::int32_t kind = 1;
    std::int32_t owner = desktop.WindowOf(*all[0]);
    bool flag = false;
    hook->HookSet(kind, owner, flag);
    desktop.form().Remove(*all[0]);
    EXPECT_THAT(TakeLog(), ElementsAre("hook 8", "a LostFocus", "a ExitFocus", "a Terminate", "b EnterFocus",
                                       "b GotFocus"));
    desktop.form().Remove(*all[2]);
    EXPECT_THAT(TakeLog(), ElementsAre("c Terminate"));
    desktop.form().Close();
    EXPECT_THAT(TakeLog(), ElementsAre("b Terminate")) << "a form ends with all of them at once";
}

TEST_F(Focus, AChildThatIsRemovedLosesItFirst) {
    Recorder child;
    Join(child, "child");
    all[0]->component->AddChild(child, "inner", {5, 5, 30, 30}, nullptr).SetFocus();
    TakeLog();
    all[0]->component->RemoveChild(child);
    EXPECT_THAT(TakeLog(),
                ElementsAre("child LostFocus", "child ExitFocus", "a ExitFocus", "child Terminate"));
}

TEST_F(Focus, AHandlerOfTheLossMayRemoveTheControlItself) {
    all[0]->onEvent = [&](const std::string& event) {
        log.push_back(event);
        if (event == "LostFocus") desktop.form().Remove(*all[0]);
    };
    desktop.form().Remove(*all[0]);
    EXPECT_THAT(TakeLog(), ElementsAre("LostFocus", "Terminate", "b EnterFocus", "b GotFocus"));
    EXPECT_EQ(desktop.form().Names().size(), 2u);
    desktop.Pump();
}

TEST_F(Focus, AChildTakesItWithoutAnExitOfItsParent) {
    Recorder child;
    Join(child, "child");
    host::Component& made = all[0]->component->AddChild(child, "inner", {5, 5, 30, 30}, nullptr);
    EXPECT_THAT(TakeLog(), ElementsAre("child Initialize", "child ReadProperties", "child Resize"));
    made.SetFocus();
    EXPECT_THAT(TakeLog(), ElementsAre("a LostFocus", "child EnterFocus", "child GotFocus"));
    desktop.Focus(*all[1]);
    EXPECT_THAT(TakeLog(), ElementsAre("child LostFocus", "child ExitFocus", "a ExitFocus", "b EnterFocus",
                                       "b GotFocus"));
    made.SetFocus();
    EXPECT_THAT(TakeLog(), ElementsAre("b LostFocus", "b ExitFocus", "a EnterFocus", "child EnterFocus",
                                       "child GotFocus"));
    desktop.Key(host::VK_TAB); // from inside a control it goes to the next control of the form
    EXPECT_TRUE(HasFocus(*all[1]));
    all[0]->component->RemoveChild(child);
    EXPECT_THAT(TakeLog(), Contains("child Terminate"));
}

TEST_F(Focus, AnotherProgramTakesItAndTheFormGivesItBack) {
    desktop.Focus(*all[1]);
    TakeLog();
    desktop.desktop().Input().Activate(0);
    desktop.Pump();
    EXPECT_EQ(host::platform().GetFocus(), 0);
    EXPECT_THAT(TakeLog(), ElementsAre("b LostFocus", "b ExitFocus"));
    desktop.Type("x");
    EXPECT_THAT(TakeLog(), IsEmpty());
    desktop.desktop().Input().Activate(desktop.form().hWnd());
    desktop.Pump();
    EXPECT_THAT(TakeLog(), ElementsAre("b EnterFocus", "b GotFocus"));
}

TEST_F(Focus, GivenWhileAnotherProgramIsInFrontItComesWithTheReturn) {
    desktop.Focus(*all[1]);
    desktop.desktop().Input().Activate(0);
    desktop.Pump();
    TakeLog();
    desktop.Focus(*all[2]);
    EXPECT_EQ(host::platform().GetFocus(), 0);
    EXPECT_THAT(TakeLog(), IsEmpty());
    desktop.desktop().Input().Activate(desktop.form().hWnd());
    desktop.Pump();
    EXPECT_THAT(TakeLog(), ElementsAre("c EnterFocus", "c GotFocus"));
}

TEST_F(Focus, EachFormRemembersItsOwn) {
    desktop.Focus(*all[2]);
    auto& other = desktop.desktop().AddForm("Other", 100, 100);
    EXPECT_EQ(host::platform().GetFocus(), other.hWnd());
    EXPECT_THAT(TakeLog(), testing::IsSupersetOf({"c LostFocus", "c ExitFocus"}));
    desktop.MoveTo(*all[0], 5, 5);
    desktop.desktop().Input().Activate(desktop.form().hWnd());
    desktop.Pump();
    EXPECT_TRUE(HasFocus(*all[2]));
    other.Close();
    EXPECT_TRUE(HasFocus(*all[2]));
}

TEST_F(Focus, AFormWithoutControlsHearsTheKeysItself) {
    auto& other = desktop.desktop().AddForm("Other", 100, 100);
    std::vector<int> codes;
    other.events.KeyDown = [&](std::int16_t& code, std::int16_t&) { codes.push_back(code); };
    desktop.HoldKey(host::VK_F1);
    EXPECT_THAT(codes, ElementsAre(112));
}

// The mouse.

TEST_F(Focus, AComponentHasTheMouseWhileAButtonIsDown) {
    desktop.Press(*all[0], 5, 5);
    EXPECT_EQ(host::platform().GetCapture(), desktop.WindowOf(*all[0]));
    TakeLog();
    desktop.MoveTo(*all[1], 5, 5);
    desktop.Release();
    EXPECT_THAT(TakeLog(), ElementsAre("a MouseUp 1 0 1725 75")); // and no Click: the release was elsewhere
    EXPECT_EQ(host::platform().GetCapture(), 0);
}

TEST_F(Focus, TheMouseStaysUntilTheLastButtonIsUp) {
    desktop.Press(*all[0], 5, 5);
    desktop.desktop().Input().MouseDown(desktop::MouseButton::Right);
    desktop.desktop().Input().MouseUp(desktop::MouseButton::Left);
    desktop.Pump();
    EXPECT_EQ(host::platform().GetCapture(), desktop.WindowOf(*all[0]));
    desktop.desktop().Input().MouseUp(desktop::MouseButton::Right);
    desktop.Pump();
    EXPECT_EQ(host::platform().GetCapture(), 0);
}

TEST_F(Focus, ACaptureThatWasAskedForOutlastsAButton) {
    host::platform().SetCapture(desktop.WindowOf(*all[1]));
    desktop.Click(*all[0], 5, 5);
    EXPECT_EQ(host::platform().GetCapture(), desktop.WindowOf(*all[1]));
    EXPECT_THAT(TakeLog(), ElementsAre("b MouseDown 1 0 -1575 75", "b MouseUp 1 0 -1575 75"));
    EXPECT_TRUE(HasFocus(*all[0])); // a captured press moves no focus
    EXPECT_TRUE(host::platform().ReleaseCapture());
}

TEST_F(Focus, WhoLosesTheCaptureIsTold) {
    std::vector<std::string> told;
    const auto hook = host::services().CreateWindowHook();
    hook->RtMsg = [&](std::int32_t message, std::int32_t, std::int32_t lParam, std::int32_t&, bool&) {
        if (message == host::WM_CAPTURECHANGED) told.push_back(std::to_string(lParam));
    };
    std::int32_t kind = 1;
    std::int32_t target = desktop.WindowOf(*all[0]);
    bool flag = false;
    hook->HookSet(kind, target, flag);
    EXPECT_EQ(host::platform().SetCapture(target), 0);
    EXPECT_EQ(host::platform().SetCapture(target), target);
    EXPECT_EQ(host::platform().SetCapture(desktop.WindowOf(*all[1])), target);
    EXPECT_THAT(told, ElementsAre(std::to_string(desktop.WindowOf(*all[1]))));
    EXPECT_EQ(host::platform().SetCapture(4711), 0);
    host::platform().ReleaseCapture();
}

TEST_F(Focus, AMoveCarriesButtonsAndKeysAndTheStateOfTheKeysCanBeAsked) {
    all[0]->logMoves = true;
    desktop.HoldKey(host::VK_CONTROL);
    desktop.Press(*all[0], 4, 4);
    desktop.desktop().Input().MouseDown(desktop::MouseButton::Right);
    desktop.Pump();
    TakeLog();
    desktop.MoveTo(*all[0], 6, 8);
    EXPECT_THAT(TakeLog(), ElementsAre("a MouseMove 3 2 90 120"));
    host::Platform& platform = host::platform();
    EXPECT_NE(platform.GetAsyncKeyState(host::VK_LBUTTON), 0);
    EXPECT_NE(platform.GetAsyncKeyState(host::VK_CONTROL), 0);
    EXPECT_EQ(platform.GetAsyncKeyState(host::VK_MBUTTON), 0);
    EXPECT_EQ(platform.GetAsyncKeyState(-1), 0);
}

TEST_F(Focus, ASecondPressIsADoubleOnlySoonAndNear) {
    desktop.DoubleClick(*all[0], 5, 5);
    EXPECT_THAT(TakeLog(), Contains("a DblClick"));
    desktop.Click(*all[0], 5, 5);
    desktop.Pass(std::chrono::milliseconds(600));
    desktop.Press(*all[0], 5, 5);
    desktop.Release();
    EXPECT_THAT(TakeLog(), Not(Contains("a DblClick")));
    desktop.Pass(std::chrono::seconds(1));
    desktop.Press(*all[0], 5, 5);
    desktop.Release();
    desktop.Press(*all[0], 9, 5);
    desktop.Release();
    EXPECT_THAT(TakeLog(), Not(Contains("a DblClick")));
}

TEST_F(Focus, AFormThatIsModalTakesTheInputAlone) {
    auto& dialog = desktop.desktop().AddForm("Dialog", 100, 100);
    soft::World& world = desktop.desktop().world();
    soft::FormWindow* before = world.Modal(&dialog.window());
    TakeLog();
    desktop.Click(*all[1], 5, 90);
    desktop.Click(*all[1], 80, 40);
    desktop.desktop().Input().Activate(desktop.form().hWnd());
    desktop.Pump();
    EXPECT_THAT(TakeLog(), IsEmpty());
    EXPECT_EQ(host::platform().GetFocus(), dialog.hWnd());
    world.Modal(before);
    dialog.Close();
    desktop.Click(*all[1], 80, 40);
    EXPECT_TRUE(HasFocus(*all[1]));
}

} // namespace
} // namespace tvok::test
