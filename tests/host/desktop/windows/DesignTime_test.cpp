// A form at design time: it hears the mouse in place of its controls, and shows marks above them.
#include <random>

#include <gmock/gmock.h>

#include "tests/host/desktop/windows/Recorder.h"
#include "tests/support/RandomRuns.h"
#include "tests/support/TestDesktop.h"
#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok::test {
namespace {

using desktop::MouseButton;
using testing::ElementsAre;
using testing::IsEmpty;

class DesignTime : public testing::Test {
protected:
    DesignTime() {
        form.UserMode(false);
        const auto log_as = [this](Form::MouseEvent& event, const std::string& name) {
            event = [this, name](std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y) {
                log.push_back(name + " " + std::to_string(button) + " " + std::to_string(shift) + " " +
                              std::to_string(x) + " " + std::to_string(y));
            };
        };
        log_as(form.events.MouseDown, "Down");
        log_as(form.events.MouseMove, "Move");
        log_as(form.events.MouseUp, "Up");
        log_as(form.events.DblClick, "DblClick");
        form.Move(8, 8);
        desktop.Pump();
    }
    void MoveTo(std::int32_t x, std::int32_t y) {
        host::Point point{x, y};
        host::platform().ClientToScreen(form.hWnd(), point);
        desktop.desktop().Input().MouseMove(point.x, point.y);
        desktop.Pump();
    }
    void Press(std::int32_t x, std::int32_t y, MouseButton button = MouseButton::Left) {
        MoveTo(x, y);
        log.clear();
        desktop.desktop().Input().MouseDown(button);
        desktop.Pump();
    }
    void Release(MouseButton button = MouseButton::Left) {
        desktop.desktop().Input().MouseUp(button);
        desktop.Pump();
    }
    std::vector<std::string> TakeLog() { return std::exchange(log, {}); }

    std::vector<std::string> log;
    TestDesktop desktop;
    Recorder& area = desktop.form().Add<Recorder>("area", {20, 30, 400, 300});
    Form& form = desktop.form().AddForm(area, "Designed", 300, 200);
};

TEST_F(DesignTime, TheFormHearsThePressesThatItsControlsWouldGet) {
    auto& control = form.Add<Recorder>("a", {10, 20, 100, 50});
    form.Add<qRoster>("list", {120, 20, 100, 100});
    control.TakeLog();
    Press(15, 30);
    Release();
    EXPECT_THAT(TakeLog(), ElementsAre("Down 1 0 15 30", "Up 1 0 15 30"));
    desktop.Pass(std::chrono::seconds(1));
    Press(150, 40, MouseButton::Right);
    Release(MouseButton::Right);
    EXPECT_THAT(TakeLog(), ElementsAre("Down 2 0 150 40", "Up 2 0 150 40"));
    EXPECT_THAT(control.TakeLog(), IsEmpty());
}

TEST_F(DesignTime, AMoveTellsTheButtonsThatAreDownAndGoesOnOutsideTheForm) {
    form.Add<Recorder>("a", {10, 20, 100, 50});
    MoveTo(12, 22);
    EXPECT_EQ(log.back(), "Move 0 0 12 22");
    Press(12, 22);
    desktop.HoldKey(host::VK_CONTROL);
    log.clear();
    MoveTo(-50, 600);
    EXPECT_THAT(TakeLog(), ElementsAre("Move 1 2 -50 600"));
    Release();
    desktop.LetGoKey(host::VK_CONTROL);
    EXPECT_THAT(TakeLog(), ElementsAre("Up 1 2 -50 600"));
    MoveTo(-50, 600);
    EXPECT_THAT(TakeLog(), IsEmpty()); // it has the mouse no longer
}

TEST_F(DesignTime, TheMouseStaysUntilTheLastButtonIsUp) {
    Press(12, 22);
    desktop.desktop().Input().MouseDown(MouseButton::Right);
    Release();
    MoveTo(-80, -80);
    EXPECT_EQ(log.back(), "Move 2 0 -80 -80");
    Release(MouseButton::Right);
    log.clear();
    MoveTo(-90, -80);
    EXPECT_THAT(TakeLog(), IsEmpty());
}

TEST_F(DesignTime, TheSecondPressOfADoubleClickIsADblClick) {
    form.Add<Recorder>("a", {10, 20, 100, 50});
    Press(15, 30);
    Release();
    desktop.desktop().Input().MouseDown(MouseButton::Left);
    Release();
    EXPECT_THAT(TakeLog(),
                ElementsAre("Down 1 0 15 30", "Up 1 0 15 30", "DblClick 1 0 15 30", "Up 1 0 15 30"));
}

TEST_F(DesignTime, TheFrameOfAnInnerFormIsHeardTooAndClosesNothing) {
    Press(290, -10); // where its close button is
    Release();
    EXPECT_THAT(TakeLog(), ElementsAre("Down 1 0 290 -10", "Up 1 0 290 -10"));
    EXPECT_TRUE(desktop.desktop().world().windows.Find(form.hWnd()) != nullptr);
}

TEST_F(DesignTime, ATopLevelFormKeepsItsCloseButton) {
    Form& top = desktop.desktop().AddForm("Top", 100, 80);
    top.UserMode(false);
    top.Move(700, 100);
    bool asked = false;
    top.events.Closing = [&](bool& keep) { asked = keep = true; };
    desktop.Pump();
    host::Point point{90, -10};
    host::platform().ClientToScreen(top.hWnd(), point);
    desktop.desktop().Input().MouseMove(point.x, point.y);
    desktop.desktop().Input().MouseDown(MouseButton::Left);
    desktop.desktop().Input().MouseUp(MouseButton::Left);
    desktop.Pump();
    EXPECT_TRUE(asked);
}

TEST_F(DesignTime, WithoutAHandlerForItsPressesTheControlsHaveTheMouse) {
    auto& control = form.Add<Recorder>("a", {10, 20, 100, 50});
    form.events.MouseDown = nullptr;
    control.TakeLog();
    Press(15, 30);
    Release();
    EXPECT_THAT(TakeLog(), IsEmpty());
    EXPECT_THAT(control.TakeLog(), testing::Contains("MouseDown 1 0 75 150"));
}

TEST_F(DesignTime, InRunModeItHearsNoMouse) {
    form.UserMode(true);
    auto& control = form.Add<Recorder>("a", {10, 20, 100, 50});
    control.TakeLog();
    Press(15, 30);
    Release();
    EXPECT_THAT(TakeLog(), IsEmpty());
    EXPECT_THAT(control.TakeLog(), testing::Contains("MouseDown 1 0 75 150"));
}

TEST_F(DesignTime, APressGivesTheFormTheFocusAndKeysAndTabPassesItsControls) {
    auto& control = form.Add<Recorder>("a", {10, 20, 100, 50});
    form.Add<Recorder>("b", {10, 90, 100, 50});
    auto& beside = desktop.form().Add<Recorder>("beside", {450, 30, 50, 50});
    std::vector<int> keys;
    form.events.KeyDown = [&](std::int16_t& code, std::int16_t&) { keys.push_back(code); };
    Press(15, 30);
    Release();
    EXPECT_EQ(host::platform().GetFocus(), form.hWnd());
    desktop.Key(host::VK_DELETE);
    desktop.Key(host::VK_TAB);
    EXPECT_THAT(keys, ElementsAre(host::VK_DELETE, host::VK_TAB));
    EXPECT_EQ(host::platform().GetFocus(), desktop.WindowOf(beside));
    form.SetFocus();
    EXPECT_EQ(host::platform().GetFocus(), form.hWnd());
    form.Remove(control);
    EXPECT_EQ(host::platform().GetFocus(), form.hWnd());
    EXPECT_THAT(control.log, testing::Not(testing::Contains("GotFocus")));
}

TEST_F(DesignTime, AHandlerMayRemoveTheControlUnderThePointerAndCloseTheForm) {
    form.Add<qRoster>("list", {10, 20, 100, 100});
    form.events.MouseDown = [&](std::int16_t, std::int16_t, std::int32_t, std::int32_t) {
        form.Remove(*form.Find("list"));
        form.Close();
    };
    const host::Handle window = form.hWnd();
    Press(15, 30);
    Release();
    EXPECT_FALSE(desktop.desktop().world().windows.Find(window) != nullptr);
}

TEST_F(DesignTime, ReorderChangesTheOrderOfTabOfFilesAndOfWhatIsInFront) {
    std::vector<Recorder*> all;
    for (const int number : {1, 2, 3}) {
        all.push_back(&form.Add<Recorder>(std::string(1, static_cast<char>('a' + number - 1)),
                                          {10 * number, 10 * number, 60, 60}));
        all.back()->color = number;
    }
    const auto colorAt = [&](std::int32_t x, std::int32_t y) {
        desktop.Pump();
        const auto& window = form.window().window();
        const tvok_Rect& client = window.clientArea();
        return window.top()->surface.Row(client.Top + y)[client.Left + x];
    };
    const std::uint32_t first = colorAt(15, 15), second = colorAt(75, 35), third = colorAt(85, 85);
    EXPECT_EQ(colorAt(40, 40), first);
    form.Marks({{{200, 100, 210, 110}}});
    form.Reorder(*all[2], 0);
    EXPECT_THAT(form.Names(), ElementsAre("c", "a", "b"));
    EXPECT_EQ(colorAt(40, 40), third);
    EXPECT_EQ(colorAt(65, 65), third);
    form.Reorder(*all[0], 9);
    EXPECT_THAT(form.Names(), ElementsAre("c", "b", "a"));
    EXPECT_EQ(colorAt(25, 25), second);
    form.Reorder(*all[2], 1);
    EXPECT_THAT(form.Names(), ElementsAre("b", "c", "a"));
    EXPECT_EQ(colorAt(40, 40), second);
    EXPECT_THROW(form.Reorder(area, 0), ObjectError);
}

TEST_F(DesignTime, ThePointerIsTheFormsAlsoOverControls) {
    auto& text = form.Add<TextBox>("text", {10, 20, 100, 24});
    form.ComponentOf(text).MousePointer(host::ccIBeam);
    form.MousePointer(host::ccSizeNWSE);
    EXPECT_EQ(form.MousePointer(), host::ccSizeNWSE);
    EXPECT_EQ(form.window().Pointer(), host::ccSizeNWSE);
}

// Marks.

class Marks : public DesignTime {
protected:
    std::uint32_t At(std::int32_t x, std::int32_t y) {
        desktop.Pump();
        const auto& window = form.window().window();
        return window.top()->surface.Row(window.clientArea().Top + y)[window.clientArea().Left + x];
    }
    std::vector<std::uint32_t> All() {
        desktop.Pump();
        return desktop.PixelsWithFrame(area);
    }
};

TEST_F(Marks, StandAboveControlsWithAnEdgeOfAPixel) {
    form.Add<Recorder>("a", {10, 20, 100, 50});
    form.Marks({{{15, 25, 22, 32}, 0x0000FF, 0x00FF00}});
    EXPECT_EQ(At(15, 25), 0x00FF00u);
    EXPECT_EQ(At(16, 26), 0xFF0000u);
    EXPECT_EQ(At(21, 31), 0x00FF00u);
    EXPECT_EQ(At(22, 32), 0x996633u);
    form.Marks({{{15, 25, 22, 32}, 0xFF0000, 0x00FF00}});
    EXPECT_EQ(At(16, 26), 0x0000FFu);
    form.Marks({});
    EXPECT_EQ(At(16, 26), 0x996633u);
}

TEST_F(Marks, ALaterOneStandsAboveAnEarlierAlsoAfterAControlCameToTheFront) {
    auto& control = form.Add<Recorder>("a", {10, 20, 100, 50});
    const std::vector<FormMark> marks{{{15, 25, 25, 35}, 1, 1}, {{20, 30, 30, 40}, 2, 2}};
    form.Marks(marks);
    EXPECT_EQ(At(22, 32), 0x020000u);
    form.ComponentOf(control).ZOrder(0);
    EXPECT_EQ(At(22, 32), 0x996633u);
    form.Marks(marks);
    EXPECT_EQ(At(22, 32), 0x020000u);
    EXPECT_EQ(At(16, 26), 0x010000u);
}

TEST_F(Marks, LetTheFormHearTheMouse) {
    form.Marks({{{15, 25, 22, 32}}});
    Press(16, 26);
    Release();
    EXPECT_THAT(TakeLog(), ElementsAre("Down 1 0 16 26", "Up 1 0 16 26"));
}

TEST_F(Marks, AControlBelowPaintsOnlyWhatTheyUncover) {
    auto& control = form.Add<Recorder>("a", {10, 20, 100, 50});
    form.Marks({{{15, 25, 22, 32}}, {{40, 40, 47, 47}}});
    desktop.Pump();
    control.paints = 0;
    form.Marks({{{15, 25, 22, 32}}, {{40, 40, 47, 47}}});
    desktop.Pump();
    EXPECT_EQ(control.paints, 0);
    form.Marks({{{15, 25, 22, 32}}, {{50, 40, 57, 47}}});
    const auto& window = form.window().EntryOf(control).component->window();
    const tvok_Rect stale = window.update().Bounds();
    EXPECT_EQ(stale.Left - window.outer().Left, 30); // (40, 40) of the form
    EXPECT_EQ(stale.Right - stale.Left, 7);
    EXPECT_EQ(stale.bottom - stale.Top, 7);
    desktop.Pump();
    EXPECT_EQ(control.paints, 1);
}

/// Whatever moves, comes and goes: the pixels are those that a complete new paint gives.
TEST_F(Marks, LeaveNoPixelsBehind) {
    std::mt19937 random(FromEnvironment("TVOK_RANDOM_SEED", 20261122));
    const auto below = [&](int limit) {
        return static_cast<std::int32_t>(random() % static_cast<unsigned>(limit));
    };
    std::vector<Recorder*> controls;
    for (int i = 0; i < 4; ++i)
        controls.push_back(&form.Add<Recorder>("c" + std::to_string(i), {below(200), below(150), 60, 40}));
    for (int step = 0; step < 200; ++step) {
        std::vector<FormMark> marks(static_cast<std::size_t>(below(20)));
        for (FormMark& mark : marks) {
            mark.rect = {below(300), below(200), 0, 0};
            mark.rect.Right = mark.rect.Left + below(40);
            mark.rect.bottom = mark.rect.Top + below(40);
            mark.fill = below(0x1000000);
        }
        Recorder& moved = *controls[static_cast<std::size_t>(below(4))];
        if (below(2) == 0) form.Place(moved, {below(250), below(180), below(90), below(90)});
        if (below(4) == 0) form.Reorder(moved, static_cast<std::size_t>(below(5)));
        form.Marks(marks);
        const auto seen = All();
        desktop.desktop().world().windows.InvalidateAll();
        ASSERT_EQ(seen, All()) << "step " << step;
    }
}

} // namespace
} // namespace tvok::test
