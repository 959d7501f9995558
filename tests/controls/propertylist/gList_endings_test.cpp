// A property list that ends while something of it is open: its popup, its strip, its editor, a press.
#include "tests/support/PropertyListPaint.h"

namespace tvok::test {
namespace {

/// One row, current, whose texts the host draws, with a button that opens a popup.
struct HostDrawn : PropertyListDesktop {
    explicit HostDrawn(const std::string& xbuttons) {
        desktop.Focus(*list);
        elistdata item = Value("a", {}, xbuttons);
        item.hItem.vflag = vflag::HostText | vflag::HostHead;
        item.item.vflag = vflag::HostText | vflag::Editor;
        Show({item, Value("z")});
        list->ListIndex(1);
        Forget();
    }
    void PressButton() { desktop.Press(*list, Strip().Left + 9, 9); }
    /// Ends the list with its form, and gives what was raised by then.
    std::vector<std::string> End() {
        Forget();
        desktop.form().Close();
        desktop.Pump();
        return TakeLog();
    }
};

const auto kDrawsNothing = testing::Each(testing::Not(testing::StartsWith("ExDraw")));

TEST(gListEndings, AListThatEndsWithItsPopupOpenDrawsNothingMore) {
    for (const char* xbuttons : {"b|0|2;cs", "b|1|2;cs", "b|1-9|2;ns"}) {
        HostDrawn at(xbuttons);
        at.PressButton();
        at.desktop.Release();
        ASSERT_NE(at.Floating(), 0) << xbuttons;
        EXPECT_THAT(at.End(), kDrawsNothing) << xbuttons;
        EXPECT_EQ(at.Floating(), 0) << xbuttons;
        EXPECT_EQ(host::platform().GetCapture(), 0) << xbuttons;
    }
}

TEST(gListEndings, ADesktopThatEndsWithAPopupOpenDrawsNothingMoreInItsList) {
    for (const char* xbuttons : {"b|0|2;cs", "b|1-9|2;ns"}) {
        std::int32_t drawn = 0;
        {
            HostDrawn at(xbuttons);
            at.PressButton();
            at.desktop.Release();
            ASSERT_NE(at.Floating(), 0) << xbuttons;
            at.list->events.ExDraw = [&drawn](auto&&...) { ++drawn; };
        }
        EXPECT_EQ(drawn, 0) << xbuttons;
    }
}

TEST(gListEndings, AListThatIsRemovedWithItsPopupOpenTakesThePopupAlong) {
    HostDrawn at("b|1-9|2;ns");
    at.PressButton();
    at.desktop.Release();
    ASSERT_NE(at.Floating(), 0);
    at.desktop.form().Remove(*at.list);
    at.desktop.Pump();
    EXPECT_EQ(at.Floating(), 0);
    EXPECT_EQ(host::platform().GetCapture(), 0);
}

TEST(gListEndings, AListThatEndsWhileItsButtonIsHeldDrawsNothingMore) {
    HostDrawn at("b|x|2");
    at.PressButton();
    EXPECT_THAT(at.End(), kDrawsNothing);
    at.desktop.Release();
    EXPECT_EQ(host::platform().GetCapture(), 0);
}

TEST(gListEndings, AListThatEndsWhileARowIsHeldDrawsNothingMore) {
    HostDrawn at("");
    at.PressRow(2);
    EXPECT_THAT(at.End(), kDrawsNothing);
    at.desktop.Release();
    EXPECT_EQ(host::platform().GetCapture(), 0);
}

} // namespace
} // namespace tvok::test
