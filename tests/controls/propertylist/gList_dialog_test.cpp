// A colour of a property list that is picked in the real colour dialog.
#include "tests/support/PropertyListPaint.h"

namespace tvok::test {
namespace {

using namespace host;

/// One colour "a", current, with a button for the dialog at the end of its row.
class gListDialog : public testing::Test {
protected:
    gListDialog() {
        list.BorderStyle(0);
        list.FixedHeight(false);
        elistdata item = PropertyListDesktop::Value("a", {}, "...|2|0;cs");
        item.nData = 255;
        list.AddItem(item);
        list.BuiltList();
        list.ListIndex(1);
        desktop.Pump();
    }
    /// Clicks the button; `act` is what the user does in the dialog.
    void ClickButton(const std::function<void(Form&)>& act) {
        desktop.Press(list, 290, 9);
        WhenItIsOpen(act, 100);
        desktop.Release();
    }
    desktop::Input& Input() { return desktop.desktop().Input(); }
    void Key(std::int32_t key) {
        Input().KeyDown(key);
        Input().KeyUp(key);
    }

    TestDesktop desktop;
    gList& list = desktop.form().Add<gList>("list1", {10, 10, 300, 200});

private:
    void WhenItIsOpen(const std::function<void(Form&)>& act, int turns) {
        desktop.desktop().Post([this, act, turns] {
            if (desktop.desktop().Forms().size() > 1) return act(*desktop.desktop().Forms().back());
            if (turns > 0) WhenItIsOpen(act, turns - 1);
        });
    }
};

TEST_F(gListDialog, TakesTheColorThatIsAcceptedInTheDialog) {
    ClickButton([&](Form& dialog) {
        Point blue{5 * 24 + 12, 2 * 22 + 11};
        platform().ClientToScreen(dialog.ComponentOf(*dialog.Find("basic")).hWnd(), blue);
        Input().MouseMove(blue.x, blue.y);
        Input().MouseDown(desktop::MouseButton::Left);
        Input().MouseUp(desktop::MouseButton::Left);
        Key(VK_RETURN);
    });
    EXPECT_EQ(list.GetData("a"), Variant(0xFF0000));
    elistdata item;
    list.GetItem(item, "a");
    EXPECT_EQ(item.item.text, "(&H00FF0000)");
    EXPECT_EQ(desktop.desktop().Forms().size(), 1u);
}

TEST_F(gListDialog, KeepsItsColorWhereTheDialogIsLeftByEsc) {
    bool opened = false;
    int clicks = 0;
    list.events.ButtonClick = [&](const std::string&, elistdata& x) {
        ++clicks;
        EXPECT_TRUE(opened) << "the dialog comes first";
        EXPECT_EQ(x.nData, Variant(255));
    };
    ClickButton([&](Form&) {
        opened = true;
        Key(VK_ESCAPE);
    });
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(list.GetData("a"), Variant(255));
    EXPECT_EQ(desktop.desktop().Forms().size(), 1u);
}

} // namespace
} // namespace tvok::test
