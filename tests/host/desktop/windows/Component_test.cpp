#include <gmock/gmock.h>

#include "tests/host/desktop/windows/Recorder.h"
#include "tests/support/TestDesktop.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Component, ComesUpInOrderInRunMode) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    EXPECT_THAT(control.log, ElementsAre("Initialize", "ReadProperties", "Resize", "EnterFocus", "GotFocus"));
}

TEST(Component, IsNewlyPlacedAtDesignTime) {
    TestDesktop desktop;
    desktop.form().UserMode(false);
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    EXPECT_THAT(control.log, ElementsAre("Initialize", "InitProperties", "Resize", "EnterFocus", "GotFocus"));
    EXPECT_FALSE(control.component->Ambient().UserMode());
    EXPECT_EQ(control.component->Ambient().DisplayName(), "a");
}

TEST(Component, PaintsOnceAfterItCameUpAndItsPixelsAreThere) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    desktop.Pump();
    EXPECT_EQ(control.paints, 1);
    EXPECT_EQ(desktop.PixelAt(control, 0, 0), 0x996633u);
    EXPECT_EQ(desktop.PixelAt(control, 99, 49), 0x996633u);
}

TEST(Component, ClickComesAfterPressAndReleaseInTwips) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    control.TakeLog();
    desktop.Click(control, 20, 30);
    EXPECT_THAT(control.TakeLog(), ElementsAre("MouseDown 1 0 300 450", "MouseUp 1 0 300 450", "Click"));
    desktop.DoubleClick(control, 20, 30);
    EXPECT_THAT(control.TakeLog(), ElementsAre("MouseDown 1 0 300 450", "MouseUp 1 0 300 450", "Click",
                                               "DblClick", "MouseUp 1 0 300 450"));
}

TEST(Component, KeysComeAsDownPressAndUp) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    control.TakeLog();
    desktop.Type("b");
    EXPECT_THAT(control.TakeLog(), ElementsAre("KeyDown 66 0", "KeyPress 98", "KeyUp 66 0"));
    desktop.Key(host::VK_RETURN);
    EXPECT_THAT(control.TakeLog(), ElementsAre("KeyDown 13 0", "KeyPress 13", "KeyUp 13 0"));
}

} // namespace
} // namespace tvok::test
