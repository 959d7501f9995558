#include "tvok/host/desktop/Form.h"

#include <gmock/gmock.h>

#include "tests/host/desktop/windows/Recorder.h"
#include "tests/support/TestDesktop.h"
#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Form, HasTheClientSizeThatWasAskedForAndStandsWhereItWasMoved) {
    TestDesktop desktop;
    EXPECT_EQ(desktop.form().Width(), 640);
    EXPECT_EQ(desktop.form().Height(), 480);
    tvok_Rect rect;
    host::platform().GetWindowRect(desktop.form().hWnd(), rect);
    EXPECT_EQ(rect.Left, 100);
    EXPECT_EQ(rect.Top, 100);
    EXPECT_GT(rect.Right, 740);
}

TEST(Form, AControlsSizeIsRoundedToPixelsAndAChangeOfItResizesAtOnce) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 20, 100, 50});
    host::Component& component = desktop.form().ComponentOf(control);
    EXPECT_EQ(component.Left(), 150);
    EXPECT_EQ(component.Top(), 300);
    EXPECT_EQ(component.Width(), 1500);
    control.TakeLog();
    component.Height(607);
    EXPECT_EQ(component.Height(), 600);
    EXPECT_THAT(control.TakeLog(), ElementsAre("Resize"));
    component.Height(600);
    component.Move(0, 0);
    EXPECT_THAT(control.TakeLog(), IsEmpty());
    EXPECT_EQ(desktop.form().PlacementOf(control).height, 40);
    component.Width(-50);
    EXPECT_EQ(component.Width(), 0);
    component.Width(1e30F);
    EXPECT_GT(component.Width(), 1e6F);
}

TEST(Form, BordersTakeClientAreaByStyleAndAppearance) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 20, 100, 50});
    host::Component& component = desktop.form().ComponentOf(control);
    const auto width = [&] {
        tvok_Rect rect;
        host::platform().GetClientRect(component.hWnd(), rect);
        return rect.Right;
    };
    component.BorderStyle(1);
    EXPECT_EQ(width(), 96);
    component.Appearance(0);
    EXPECT_EQ(width(), 98);
    component.BorderStyle(0);
    EXPECT_EQ(width(), 100);
    EXPECT_THROW(component.BorderStyle(2), Error);
    EXPECT_THROW(component.Appearance(-1), Error);
    EXPECT_EQ(component.Appearance(), 0);
}

TEST(Form, RemovingAControlInsideItsOwnEventFreesItLater) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 20, 100, 50});
    desktop.Pump();
    std::vector<std::string> log;
    control.onEvent = [&](const std::string& event) {
        log.push_back(event);
        if (event == "MouseDown 1 0 75 75") {
            desktop.form().Remove(control);
            control.color = 0; // still there
            log.push_back("removed");
        }
    };
    desktop.Click(control, 5, 5);
    EXPECT_THAT(log, ElementsAre("MouseDown 1 0 75 75", "LostFocus", "ExitFocus", "Terminate", "removed"));
    EXPECT_EQ(desktop.form().Find("a"), nullptr);
}

TEST(Form, RemovingAControlThatAHostCalledDirectlyIsSafeToo) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 20, 100, 50});
    host::Component& component = desktop.form().ComponentOf(control);
    control.onEvent = [&](const std::string& event) {
        if (event == "Resize") desktop.form().Remove(control);
    };
    component.Width(300);
    EXPECT_TRUE(desktop.form().Names().empty());
    EXPECT_EQ(component.Width(), 300);
}

TEST(Form, AControlThatFailsToComeUpLeavesNothing) {
    class Failing : public Recorder {
        void ReadProperties(host::PropertyBag&) override { throw Error("broken settings"); }
    };
    TestDesktop desktop;
    EXPECT_THROW(desktop.form().Add<Failing>("a", Placement{10, 20, 100, 50}), Error);
    EXPECT_THAT(desktop.form().Names(), IsEmpty());
    EXPECT_NO_THROW(desktop.form().Add<Recorder>("a", Placement{10, 20, 100, 50}));
    EXPECT_THROW(desktop.form().Add<Recorder>("a", Placement{10, 20, 100, 50}), Error); // the name is taken
}

TEST(Form, ClosingAsksRaisesClosedAndEndsTheControls) {
    TestDesktop desktop;
    auto& second = desktop.desktop().AddForm("Second", 100, 80);
    auto& control = second.Add<Recorder>("a", {0, 0, 50, 50});
    std::vector<std::string> log;
    bool refuse = true;
    second.events.Closing = [&](bool& keep) {
        log.emplace_back("Closing");
        keep = refuse;
    };
    second.events.Closed = [&] { log.emplace_back("Closed"); };
    control.onEvent = [&](const std::string& event) {
        if (event == "Terminate") log.push_back(event);
    };
    second.Close();
    EXPECT_EQ(desktop.desktop().Forms().size(), 2u);
    refuse = false;
    second.Close();
    EXPECT_THAT(log, ElementsAre("Closing", "Closing", "Terminate", "Closed"));
    EXPECT_EQ(desktop.desktop().Forms().size(), 1u);
    EXPECT_TRUE(desktop.desktop().ProcessEvents(std::chrono::milliseconds(0)));
    desktop.form().Close();
    EXPECT_FALSE(desktop.desktop().ProcessEvents(std::chrono::milliseconds(0)));
}

TEST(Form, MayBeClosedByAnEventOfItsControl) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {0, 0, 50, 50});
    control.onEvent = [&](const std::string& event) {
        if (event == "MouseDown 1 0 75 75") desktop.form().Close();
    };
    desktop.MoveTo(control, 5, 5);
    desktop.desktop().Input().MouseDown(desktop::MouseButton::Left);
    desktop.desktop().Input().MouseUp(desktop::MouseButton::Left);
    EXPECT_FALSE(desktop.desktop().ProcessEvents(std::chrono::milliseconds(0)));
    EXPECT_TRUE(desktop.desktop().Forms().empty());
}

TEST(Form, TheCloseButtonOfADrawnFrameCloses) {
    TestDesktop desktop;
    tvok_Rect rect;
    host::platform().GetWindowRect(desktop.form().hWnd(), rect);
    desktop.desktop().Input().MouseMove(rect.Right - 12, rect.Top + 12);
    desktop.desktop().Input().MouseDown(desktop::MouseButton::Left);
    EXPECT_FALSE(desktop.desktop().ProcessEvents(std::chrono::milliseconds(0)));
}

TEST(Form, ResizingRaisesResizeAndPaintsWhatIsNewWithItsBackColor) {
    TestDesktop desktop;
    int resizes = 0;
    desktop.form().events.Resize = [&] { ++resizes; };
    desktop.form().BackColor(0x112233);
    desktop.Pump();
    desktop.form().Size(700, 480);
    desktop.Pump();
    EXPECT_EQ(resizes, 1);
    const soft::Window& window = desktop.form().window().window();
    const soft::Surface& surface = window.top()->surface;
    EXPECT_EQ(surface.Row(window.clientArea().Top + 5)[window.clientArea().Left + 695], 0x332211u);
}

TEST(Form, PaintEventDrawsOverTheBackground) {
    TestDesktop desktop;
    desktop.form().events.Paint = [&] {
        host::Platform& platform = host::platform();
        platform.FillRect(desktop.form().hDC(), {0, 0, 10, 10}, platform.GetStockObject(host::BLACK_BRUSH));
    };
    host::platform().InvalidateRect(desktop.form().hWnd(), nullptr, true);
    desktop.Pump();
    const soft::Window& window = desktop.form().window().window();
    EXPECT_EQ(window.top()->surface.Row(window.clientArea().Top)[window.clientArea().Left], 0u);
}

TEST(Form, ChildComponentsAreHostedInPixelsOfTheirParent) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 20, 100, 50});
    Recorder child;
    child.color = 0x00FF00;
    host::Component& made = control.component->AddChild(child, "inner", {5, 6, 25, 26}, nullptr);
    desktop.Pump();
    EXPECT_EQ(made.Left(), 75);
    EXPECT_EQ(made.Width(), 300);
    EXPECT_EQ(desktop.PixelAt(control, 5, 6), 0x00FF00u);
    EXPECT_EQ(desktop.PixelAt(control, 4, 6), 0x996633u);
    made.Visible(false);
    desktop.Pump();
    EXPECT_EQ(desktop.PixelAt(control, 5, 6), 0x996633u);
    control.component->RemoveChild(child);
    control.component->RemoveChild(child); // harmless
    EXPECT_THAT(child.log, Contains("Terminate"));
}

TEST(Form, AFontPropertyChangesWhatIsDrawnNextAndTheObjectStaysTheSame) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 20, 100, 50});
    host::Component& component = *control.component;
    const host::FontPtr font = component.Font();
    EXPECT_EQ(font, component.Font());
    EXPECT_EQ(font->Name(), "DejaVu Sans");
    const float width = component.TextWidth("Apples");
    EXPECT_GT(width, 0);
    font->Size(24);
    EXPECT_GT(component.TextWidth("Apples"), 2 * width);
    font->Size(-3);
    font->Size(1e30F);
    EXPECT_EQ(font->Size(), 24);
    font->Bold(true);
    host::FontValue value = host::ValueOf(*font);
    EXPECT_TRUE(value.Bold);
    desktop.form().Remove(control);
    desktop.Pump();
    font->Bold(false); // outlives its component: kept, without effect
    EXPECT_FALSE(font->Bold());
}

TEST(Form, AClosedFormsMembersAnswerAndDoNothing) {
    TestDesktop desktop;
    auto& second = desktop.desktop().AddForm("Second", 100, 80);
    second.Close();
    EXPECT_EQ(second.Caption(), "Second");
    second.Caption("x");
    second.Size(5, 5);
    second.Move(1, 1);
    second.Close();
    EXPECT_THROW(second.Add<Recorder>("a", Placement{}), ObjectError);
    EXPECT_THROW(desktop.desktop().SaveForm(second, "unused.png"), ObjectError);
}

} // namespace
} // namespace tvok::test
