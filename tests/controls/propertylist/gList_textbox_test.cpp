// A property list whose values are edited in a real `TextBox` that stands on the same form: one box for all
// rows, as hosts have it.
#include "tests/support/PropertyListPaint.h"

namespace tvok::test {
namespace {

using namespace host;
using ::testing::ElementsAre;

/// Rows "a", "b", "c" with the texts "one", "two", "three"; the box is hidden until a row shows it.
class BoxedList : public PropertyListDesktop {
public:
    explicit BoxedList(const std::string& buttons = {})
        : box(desktop.form().Add<TextBox>("editor", {0, 0, 10, 10})) {
        desktop.form().ComponentOf(box).BorderStyle(0);
        desktop.form().ComponentOf(box).Visible(false);
        Connect();
        desktop.Focus(*list);
        std::vector<elistdata> items;
        for (const auto& [key, text] : {std::pair{"a", "one"}, {"b", "two"}, {"c", "three"}}) {
            items.push_back(Edited(key));
            items.back().nData = text;
            items.back().xbuttons = buttons;
        }
        Show(items);
    }

    TextBox& box;
    Widget& Base() { return desktop.form().ComponentOf(box); }
    std::string ValueOf(const std::string& key) const { return list->GetData(key).AsText(); }
    std::string DisplayOf(const std::string& key) const { return ByKey(key).item.text; }
    /// In pixels of the list.
    tvok_Rect BoxPlace() {
        const Placement own = desktop.form().PlacementOf(box), of = desktop.form().PlacementOf(*list);
        return {own.left - of.left, own.top - of.top, own.left - of.left + own.width,
                own.top - of.top + own.height};
    }
    /// A double click in a text box selects the word there.
    void TypeIntoBox(const std::string& text) {
        desktop.Focus(box);
        box.Select(0, 100);
        desktop.Type(text);
    }

private:
    void Connect() {
        list->events.ExItemShowCov = [](elistdata& x) { x.item.text = x.nData.AsText(); };
        list->events.ExEditorIni = [this](elistdata& x) { box.Text(x.nData.AsText()); };
        list->events.ExEditorSetPosition = [this](const std::string&, std::int32_t& x, std::int32_t& y,
                                                  std::int32_t& w, std::int32_t& h) {
            const Placement of = desktop.form().PlacementOf(*list);
            desktop.form().Place(box, {of.left + x / 15, of.top + y / 15, w / 15, h / 15});
        };
        list->events.ExEditorShow = [this](const std::string&) {
            Base().ZOrder(0);
            Base().Visible(true);
        };
        list->events.ExEditorHide = [this](const std::string&) { Base().Visible(false); };
        list->events.ExEditorDataRestore = [this](const std::string& key) { list->SetData(box.Text(), key); };
    }
};

TEST(gListTextBox, AClickedRowShowsItsValueInTheBoxOverItsText) {
    BoxedList at;
    at.ClickRow(2);
    EXPECT_TRUE(at.Base().Visible());
    EXPECT_EQ(at.box.Text(), "two");
    const std::int32_t left = 15 + at.list->HeadWidth() + 1 + 20;
    EXPECT_EQ(at.BoxPlace(), (tvok_Rect{left, 19, 300, 37}));
}

TEST(gListTextBox, WhatWasTypedIsTheValueOnceAnotherRowIsPressed) {
    BoxedList at;
    at.ClickRow(2);
    at.TypeIntoBox("new");
    EXPECT_EQ(at.ValueOf("b"), "two") << "the box has it alone so far";
    at.PressRow(1);
    EXPECT_EQ(at.ValueOf("b"), "new");
    EXPECT_EQ(at.DisplayOf("b"), "new");
    EXPECT_FALSE(at.Base().Visible());
    at.desktop.Release();
    EXPECT_EQ(at.box.Text(), "one");
    EXPECT_TRUE(at.Base().Visible());
    EXPECT_EQ(at.BoxPlace().Top, 0);
}

TEST(gListTextBox, AKeyTakesTheOneBoxFromRowToRow) {
    BoxedList at;
    at.ClickRow(1);
    at.TypeIntoBox("1");
    at.desktop.Focus(*at.list);
    at.desktop.Key(VK_DOWN);
    EXPECT_EQ(at.ValueOf("a"), "1");
    EXPECT_EQ(at.ValueOf("b"), "two");
    EXPECT_EQ(at.box.Text(), "two");
    EXPECT_TRUE(at.Base().Visible());
    EXPECT_EQ(at.BoxPlace().Top, 19);
    at.desktop.Key(VK_DOWN);
    at.desktop.Key(VK_UP);
    EXPECT_EQ(at.ValueOf("b"), "two");
    EXPECT_EQ(at.ValueOf("c"), "three");
}

TEST(gListTextBox, PressingTheSameRowTakesTheTextIn) {
    BoxedList at;
    at.ClickRow(3);
    at.TypeIntoBox("3");
    at.ClickRow(3);
    EXPECT_EQ(at.ValueOf("c"), "3");
    EXPECT_EQ(at.box.Text(), "3");
    EXPECT_TRUE(at.Base().Visible());
}

TEST(gListTextBox, ARebuildTakesTheTextInBeforeItSorts) {
    BoxedList at;
    at.ClickRow(2);
    at.TypeIntoBox("kept");
    at.list->Sorted(true);
    EXPECT_EQ(at.ValueOf("b"), "kept");
    EXPECT_EQ(at.box.Text(), "kept");
    EXPECT_TRUE(at.Base().Visible());
}

TEST(gListTextBox, ClearDropsWhatWasTyped) {
    BoxedList at;
    at.ClickRow(2);
    at.TypeIntoBox("lost");
    at.list->Clear();
    EXPECT_EQ(at.Slot(2).nData, Variant("two"));
    EXPECT_FALSE(at.Base().Visible());
}

TEST(gListTextBox, ScrolledOffThePageTheBoxKeepsWhatWasTyped) {
    BoxedList at;
    at.desktop.form().Place(*at.list, {10, 10, 300, 40});
    at.desktop.Pump();
    at.ClickRow(1);
    at.TypeIntoBox("typed");
    at.hook->ScrollValue(1);
    at.desktop.Pump();
    EXPECT_FALSE(at.Base().Visible());
    EXPECT_EQ(at.ValueOf("a"), "one");
    at.hook->ScrollValue(0);
    at.desktop.Pump();
    EXPECT_TRUE(at.Base().Visible());
    EXPECT_EQ(at.box.Text(), "typed");
    at.ClickRow(2, 30);
    EXPECT_EQ(at.ValueOf("a"), "typed");
}

TEST(gListTextBox, TheBoxLeavesTheStripFreeAndBothCoverTheList) {
    BoxedList at("0|x|2");
    at.ClickRow(2);
    EXPECT_EQ(at.BoxPlace().Right, 280);
    EXPECT_EQ(at.Strip(), (tvok_Rect{280, 18, 300, 38}));
    at.box.BackColor(0x00C0FF);
    at.desktop.Pump();
    const tvok_Rect box = at.BoxPlace();
    EXPECT_EQ(at.desktop.PixelAt(*at.list, box.Right - 1, box.Top), 0xFFC000u);
    EXPECT_NE(at.desktop.PixelAt(*at.list, box.Right, box.Top), 0xFFC000u);
    at.desktop.Click(*at.list, 290, 28);
    EXPECT_EQ(at.TakeLog({"Button"}).size(), 3u);
}

TEST(gListTextBox, APressOnARowBesideTheBoxReachesTheList) {
    BoxedList at;
    at.ClickRow(2);
    at.desktop.Click(*at.list, 200, at.RowMiddle(2));
    EXPECT_EQ(platform().GetFocus(), at.desktop.WindowOf(at.box)) << "over the value it is the box's";
    at.desktop.Click(*at.list, 30, at.RowMiddle(3));
    EXPECT_EQ(at.list->ListIndex(), 3);
    EXPECT_EQ(at.box.Text(), "three");
}

TEST(gListTextBox, TheFocusInTheBoxLeavesTheCurrentRowSelected) {
    BoxedList at;
    at.ClickRow(2);
    at.desktop.Focus(at.box);
    EXPECT_THAT(at.Selected(), ElementsAre(2));
    EXPECT_TRUE(at.Base().Visible());
}

} // namespace
} // namespace tvok::test
