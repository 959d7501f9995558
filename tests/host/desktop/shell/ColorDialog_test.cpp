#include "tvok/host/desktop/shell/ColorDialog.h"

#include <functional>

#include <gtest/gtest.h>

#include "tests/support/TestDesktop.h"
#include "tvok/host/desktop/shell/ColorSpace.h"
#include "tvok/host/desktop/windows/FormWindow.h"

namespace tvok::soft {
namespace {

using namespace host;
using test::TestDesktop;

class ColorDialogTest : public testing::Test {
protected:
    /// Shows the dialog; `act` is what the user does in it.
    std::int32_t Pick(const std::function<void()>& act) {
        desktop.desktop().Post(act);
        return services().ColorPicker().PickColor(desktop.form().hWnd());
    }
    Form& Dialog() { return *desktop.desktop().Forms().back(); }
    void ClickAt(std::string_view control, std::int32_t x, std::int32_t y) {
        Point point{x, y};
        platform().ClientToScreen(Dialog().ComponentOf(*Dialog().Find(control)).hWnd(), point);
        Click(point);
    }
    void Click(Point screen) {
        input.MouseMove(screen.x, screen.y);
        input.MouseDown(desktop::MouseButton::Left);
        input.MouseUp(desktop::MouseButton::Left);
    }
    void Key(std::int32_t key) {
        input.KeyDown(key);
        input.KeyUp(key);
    }

    TestDesktop desktop;
    desktop::Input& input = desktop.desktop().Input();
};

TEST_F(ColorDialogTest, AClickOnABasicColorAndOnOkGivesThatColor) {
    EXPECT_EQ(Pick([&] {
                  ClickAt("basic", 5 * 24 + 12, 2 * 22 + 11);
                  ClickAt("accept", 10, 10);
              }),
              FromRgb(0, 0, 255));
}

TEST_F(ColorDialogTest, KeepsItsSizeForItsControlsKeepTheirPlaces) {
    bool resizable = true;
    Pick([&] {
        resizable = Dialog().Resizable();
        Key(VK_ESCAPE);
    });
    EXPECT_FALSE(resizable);
}

TEST_F(ColorDialogTest, CancelEscapeAndClosingGiveNoColor) {
    EXPECT_EQ(Pick([&] {
                  ClickAt("basic", 12, 11);
                  ClickAt("cancel", 10, 10);
              }),
              -1);
    EXPECT_EQ(Pick([&] { Key(VK_ESCAPE); }), -1);
    EXPECT_EQ(Pick([&] { Dialog().Close(); }), -1);
    EXPECT_EQ(desktop.desktop().Forms().size(), 1u);
}

TEST_F(ColorDialogTest, EnterAcceptsAndTheNextDialogBeginsWithThatColor) {
    EXPECT_EQ(Pick([&] {
                  ClickAt("basic", 12, 2 * 22 + 11);
                  Key(VK_RETURN);
              }),
              FromRgb(255, 0, 0));
    EXPECT_EQ(Pick([&] { Key(VK_RETURN); }), FromRgb(255, 0, 0));
}

TEST_F(ColorDialogTest, TypedComponentsMakeAColor) {
    EXPECT_EQ(
        Pick([&] {
            for (const auto& [name, text] : {std::pair{"red", "18"}, {"green", "52"}, {"blue", "999"}}) {
                ClickAt(name, 10, 10);
                input.KeyDown(VK_CONTROL);
                Key('A');
                input.KeyUp(VK_CONTROL);
                input.Text(text);
            }
            Key(VK_RETURN);
        }),
        FromRgb(18, 52, 255));
}

TEST_F(ColorDialogTest, TheFieldChoosesAHueAndTheBarALightness) {
    const std::int32_t green = Pick([&] {
        ClickAt("hue", 60, 0); // a third of the way, full saturation
        ClickAt("accept", 10, 10);
    });
    EXPECT_GT(GreenOf(green), 240);
    EXPECT_LT(RedOf(green), 15);
    EXPECT_LT(BlueOf(green), 15);
    EXPECT_EQ(Pick([&] {
                  ClickAt("lightness", 10, 123);
                  ClickAt("accept", 10, 10);
              }),
              0);
}

TEST_F(ColorDialogTest, OtherFormsTakeNoInputWhileItIsOpen) {
    int presses = 0;
    auto& list = desktop.Roster({}, {"ant", "bee"});
    list.ListIndex(1);
    list.events.MouseDown = [&](std::int16_t&, std::int16_t&, float&, float&) { ++presses; };
    Pick([&] {
        Point point{20, 5};
        platform().ClientToScreen(desktop.WindowOf(list), point);
        Dialog().Move(700, 500);
        Click(point);
        input.Activate(desktop.form().hWnd());
        Key(VK_DOWN);
        Key(VK_ESCAPE);
    });
    EXPECT_EQ(presses, 0);
    EXPECT_EQ(list.ListIndex(), 1);
    desktop.Click(list, 20, 5);
    EXPECT_EQ(presses, 1);
}

TEST_F(ColorDialogTest, TheFocusGoesBackToTheOwner) {
    auto& list = desktop.Roster({}, {"ant", "bee"});
    desktop.Focus(list);
    Pick([&] { Key(VK_ESCAPE); });
    EXPECT_EQ(platform().GetFocus(), desktop.WindowOf(list));
}

TEST_F(ColorDialogTest, WithoutAUserNobodyChooses) {
    EXPECT_EQ(services().ColorPicker().PickColor(desktop.form().hWnd()), -1);
}

TEST_F(ColorDialogTest, AnErrorInAHandlerLeavesNoDialogBehind) {
    EXPECT_THROW(Pick([] { throw Error("a handler's"); }), Error);
    EXPECT_EQ(desktop.desktop().Forms().size(), 1u);
    EXPECT_EQ(Pick([&] { Key(VK_ESCAPE); }), -1);
}

} // namespace
} // namespace tvok::soft
