// Forms inside forms: their place, their ends, and the way of keys and focus.
#include <gmock/gmock.h>

#include "tests/host/desktop/windows/Recorder.h"
#include "tests/support/TestDesktop.h"
#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class InnerForm : public testing::Test {
protected:
    InnerForm() { desktop.Pump(); }

    tvok_Rect ScreenRectOf(host::Handle hWnd) {
        tvok_Rect rect;
        host::platform().GetWindowRect(hWnd, rect);
        return rect;
    }
    /// Clicks at this point of the inner form's client area.
    void ClickInner(std::int32_t x, std::int32_t y) {
        host::Point point{x, y};
        host::platform().ClientToScreen(inner.hWnd(), point);
        desktop.desktop().Input().MouseMove(point.x, point.y);
        desktop.desktop().Input().MouseDown(desktop::MouseButton::Left);
        desktop.desktop().Input().MouseUp(desktop::MouseButton::Left);
        desktop.Pump();
    }

    TestDesktop desktop;
    Recorder& area = desktop.form().Add<Recorder>("area", {20, 30, 300, 200});
    Recorder& beside = desktop.form().Add<Recorder>("beside", {400, 30, 100, 50});
    Form& inner = desktop.form().AddForm(area, "Inner", 150, 100);
};

TEST_F(InnerForm, StandsInsideAControlWithAFrameOfItsOwn) {
    inner.Move(10, 12);
    desktop.Pump();
    const tvok_Rect outer = ScreenRectOf(inner.hWnd());
    const tvok_Rect around = ScreenRectOf(desktop.WindowOf(area));
    EXPECT_EQ(outer.Left, around.Left + 10);
    EXPECT_EQ(outer.Top, around.Top + 12);
    EXPECT_GT(outer.Right - outer.Left, 150);
    EXPECT_GT(outer.bottom - outer.Top, 100 + 10); // a caption
    EXPECT_EQ(inner.Width(), 150);
    EXPECT_EQ(inner.Height(), 100);
    EXPECT_EQ(desktop.desktop().Forms().size(), 1u);
}

TEST_F(InnerForm, ItsCaptionDoesNotNameTheOuterWindow) {
    inner.Caption("Another");
    EXPECT_EQ(inner.Caption(), "Another");
    EXPECT_EQ(desktop.form().Caption(), "Test");
    EXPECT_EQ(desktop.form().window().window().top()->caption, "Test");
}

TEST_F(InnerForm, TakesTheMouseOfWhatIsBelowAndIsCutAtItsControl) {
    auto& control = inner.Add<Recorder>("a", {0, 0, 150, 100});
    inner.Move(200, 100); // reaches beyond the control around it
    desktop.Pump();
    control.TakeLog();
    desktop.Click(area, 210, 130);
    EXPECT_THAT(control.TakeLog(), testing::Contains(testing::StartsWith("MouseDown 1")));
    EXPECT_EQ(desktop.PixelAt(area, 250, 150), 0x996633u); // the recorder's colour, as red, green and blue
    desktop.Click(area, 20, 20);
    EXPECT_THAT(control.TakeLog(), testing::Not(testing::Contains(testing::StartsWith("MouseDown"))));
    desktop.Click(beside, 5, 5);
    EXPECT_THAT(control.TakeLog(), testing::Not(testing::Contains(testing::StartsWith("MouseDown"))));
}

TEST_F(InnerForm, KeysGoToTheOuterFormFirstThenToItThenToItsControl) {
    auto& control = inner.Add<Recorder>("a", {10, 10, 50, 30});
    inner.Add<Recorder>("b", {10, 50, 50, 30});
    std::vector<std::string> log;
    desktop.form().events.KeyDown = [&](std::int16_t& code, std::int16_t&) {
        log.push_back("outer " + std::to_string(code));
        if (code == 'X') code = 0;
    };
    inner.events.KeyDown = [&](std::int16_t& code, std::int16_t&) {
        log.push_back("inner " + std::to_string(code));
        if (code == 'Y') code = 0;
    };
    ClickInner(20, 20);
    control.TakeLog();
    for (const int key : {'X', 'Y', 'Z'}) desktop.HoldKey(key);
    EXPECT_THAT(log, ElementsAre("outer 88", "outer 89", "inner 89", "outer 90", "inner 90"));
    EXPECT_THAT(control.TakeLog(), ElementsAre("KeyDown 90 0"));
}

TEST_F(InnerForm, TabStaysAmongItsControlsAndTheOuterFormsTabPassesIt) {
    auto& first = inner.Add<Recorder>("a", {10, 10, 50, 30});
    auto& second = inner.Add<Recorder>("b", {10, 50, 50, 30});
    const auto hasFocus = [&](const Form& form, const Recorder& control) {
        return host::platform().GetFocus() == form.ComponentOf(control).hWnd();
    };
    ClickInner(20, 20);
    EXPECT_TRUE(hasFocus(inner, first));
    desktop.Key(host::VK_TAB);
    EXPECT_TRUE(hasFocus(inner, second));
    desktop.Key(host::VK_TAB);
    EXPECT_TRUE(hasFocus(inner, first));
    desktop.Focus(area);
    desktop.Key(host::VK_TAB);
    EXPECT_TRUE(hasFocus(desktop.form(), beside));
}

TEST_F(InnerForm, ItsControlsTellTheControlAroundItOfTheFocus) {
    inner.Add<Recorder>("a", {10, 10, 50, 30});
    desktop.Focus(beside);
    area.TakeLog();
    ClickInner(20, 20);
    EXPECT_THAT(area.TakeLog(), ElementsAre("EnterFocus"));
    desktop.Focus(beside);
    EXPECT_THAT(area.TakeLog(), ElementsAre("ExitFocus"));
}

TEST_F(InnerForm, ItsCloseButtonAsksItAlone) {
    std::vector<std::string> log;
    bool refuse = true;
    inner.events.Closing = [&](bool& keep) {
        log.emplace_back("Closing");
        keep = refuse;
    };
    inner.events.Closed = [&] { log.emplace_back("Closed"); };
    desktop.form().events.Closing = [&](bool&) { log.emplace_back("outer Closing"); };
    auto& control = inner.Add<Recorder>("a", {10, 10, 50, 30});
    control.onEvent = [&](const std::string& event) {
        if (event == "Terminate") log.push_back(event);
    };
    const host::Handle window = inner.hWnd();
    ClickInner(140, -10);
    EXPECT_THAT(log, ElementsAre("Closing"));
    refuse = false;
    desktop.Pass(std::chrono::seconds(1));
    ClickInner(140, -10);
    EXPECT_THAT(log, ElementsAre("Closing", "Closing", "Terminate", "Closed"));
    EXPECT_FALSE(desktop.desktop().world().windows.Find(window) != nullptr);
    EXPECT_EQ(desktop.desktop().Forms().size(), 1u);
}

TEST_F(InnerForm, ClosedInsideAnEventOfItsControlItGivesTheFocusBack) {
    auto& control = inner.Add<Recorder>("a", {10, 10, 50, 30});
    desktop.Focus(beside);
    control.onEvent = [&](const std::string& event) {
        if (event.starts_with("MouseDown")) inner.Close();
    };
    ClickInner(20, 20);
    EXPECT_NE(host::platform().GetFocus(), 0);
    EXPECT_TRUE(desktop.form().window().window().IsVisible());
}

TEST_F(InnerForm, EndsWithItsControlAndWithTheOuterForm) {
    std::vector<std::string> log;
    const auto join = [&](Recorder& control, const std::string& name) {
        control.onEvent = [&log, name](const std::string& event) {
            if (event == "Terminate") log.push_back(name);
        };
    };
    Form& second = desktop.form().AddForm("Second", 80, 60);
    join(inner.Add<Recorder>("a", {10, 10, 50, 30}), "a");
    join(second.Add<Recorder>("b", {10, 10, 50, 30}), "b");
    join(area, "area");
    desktop.form().Remove(area);
    EXPECT_THAT(log, ElementsAre("a", "area"));
    desktop.Pump();
    desktop.desktop().AddForm("Other", 50, 50);
    desktop.form().Close();
    EXPECT_THAT(log, ElementsAre("a", "area", "b"));
    desktop.Pump();
}

TEST_F(InnerForm, LooksActiveWhileTheFocusIsInIt) {
    inner.Add<Recorder>("a", {10, 10, 50, 30});
    inner.Move(10, 10);
    const auto caption = [&] { return desktop.PixelAt(area, 10 + 100, 10 + 5); };
    desktop.Focus(beside);
    const std::uint32_t quiet = caption();
    ClickInner(20, 20);
    EXPECT_NE(caption(), quiet);
    desktop.Focus(beside);
    EXPECT_EQ(caption(), quiet);
}

TEST_F(InnerForm, HoldsWhatAFormFileHolds) {
    inner.Add<qRoster>("list", {8, 8, 120, 60}).ItemHeight(20);
    inner.Size(160, 120);
    const FormFile content = inner.Content();
    EXPECT_EQ(content.caption, "Inner");
    EXPECT_EQ(content.width, 160);
    ASSERT_EQ(content.controls.size(), 1u);
    EXPECT_EQ(content.controls[0].type, "qRoster");
    Form& again = desktop.form().AddForm("", 10, 10);
    again.Content(content);
    EXPECT_EQ(again.Content(), content);
    EXPECT_EQ(again.Find<qRoster>("list")->ItemHeight(), 20);
    EXPECT_THROW(again.Content(content), Error); // it is not empty any more
    EXPECT_THROW(again.Add(FormFileControl{"NoSuchType", "x", {}, {}}), Error);
    EXPECT_THAT(again.Names(), ElementsAre("list"));
}

TEST_F(InnerForm, AnotherThemeFramesItAnew) {
    desktop.desktop().SetTheme(Theme::Dark());
    desktop.Pump();
    EXPECT_EQ(inner.Width(), 150);
    EXPECT_EQ(inner.Height(), 100);
}

} // namespace
} // namespace tvok::test
