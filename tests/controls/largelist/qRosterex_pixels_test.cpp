/// Moving pixels has to give the picture that a full repaint gives; and the list on a desktop, by real input.
#include <random>

#include "tests/support/TestDesktop.h"

#include <gtest/gtest.h>

namespace tvok::test {
namespace {

struct PixelCase {
    std::int32_t gridline;
    std::int32_t columns;
    bool top;
    bool wide = false; ///< Nearly as wide as its form, where scrolling copies no pixels.
};

class LargeListPixels : public testing::TestWithParam<PixelCase> {};

/// A list of 200 x 133 whose handler writes every field of every row. A wide one stands at the form's other
/// end.
qRosterex& MakeList(TestDesktop& desktop, std::int32_t gridline, std::int32_t columns, bool wide = false) {
    const Placement place = wide ? Placement{9, 330, 620, 133} : Placement{0, 0, 200, 133};
    auto& list = desktop.form().Add<qRosterex>("list", place);
    list.BorderStyle(0);
    list.GridlineWidth(gridline);
    list.HeaderHeight(21);
    for (std::int32_t c = 0; c < columns; ++c) list.HeaderAdd(0, "column " + std::to_string(c), 70);
    list.events.EnumDATA = [](std::int32_t& row, qrosterdata& record) {
        record = {.text = std::to_string(row) + "\tsecond " + std::to_string(row * 7) + "\tthird",
                  .IconID = -1,
                  .IconPos = 0,
                  .bColor = row % 3 == 0 ? 0xEEDDCC : 0xFFFFFF,
                  .fcolor = row % 5 * 0x203010,
                  .vflag = row % 4 == 0 ? 0x1000 : 0};
    };
    list.Refresh();
    desktop.Pump();
    return list;
}

TEST_P(LargeListPixels, ScrollingAndAddingGiveThePictureOfAFullRepaint) {
    const auto& [gridline, columns, top, wide] = GetParam();
    TestDesktop desktop;
    auto& list = MakeList(desktop, gridline, columns, wide);
    std::mt19937 random(7);
    const auto pick = [&](std::int32_t below) {
        return static_cast<std::int32_t>(random() % static_cast<std::uint32_t>(below));
    };
    for (int step = 0; step < 240; ++step) {
        switch (pick(6)) {
        case 0:
        case 1: top ? list.AddItemTop() : list.AddItemButtom(); break;
        case 2: list.ListIndex(1 + pick(list.Count() + 1)); break;
        case 3:
            desktop.MoveTo(list, 60, 60);
            desktop.Wheel(pick(5) - 2);
            break;
        case 4: desktop.Click(list, 30 + pick(100), 25 + pick(100)); break;
        default:
            // Pending rows of a list without a bar move its few rows; only a refresh puts them right.
            if (list.Count() <= list.yn()) break;
            list.BufAddItemOnly(true);
            for (int i = pick(4); i >= 0; --i) top ? list.AddItemTop() : list.AddItemButtom();
            list.BufAddItemOnly(false);
        }
        desktop.Pump();
        const auto scrolled = desktop.Pixels(list);
        list.PaintAll();
        ASSERT_EQ(scrolled == desktop.Pixels(list), true) << "after step " << step;
    }
    EXPECT_GT(list.Count(), 20);
}

INSTANTIATE_TEST_SUITE_P(Lists, LargeListPixels,
                         testing::Values(PixelCase{0, 2, false}, PixelCase{0, 2, true},
                                         PixelCase{1, 2, false}, PixelCase{1, 2, true},
                                         PixelCase{1, 3, false}, PixelCase{1, 3, true}, PixelCase{3, 1, true},
                                         PixelCase{0, 2, false, true}, PixelCase{1, 9, true, true},
                                         PixelCase{1, 3, false, true}));

TEST(LargeListDesktop, AMillionRowsComeAtOnceAndTheEndKeyShowsTheLast) {
    TestDesktop desktop;
    auto& list = MakeList(desktop, 0, 2);
    list.ViewMode(1);
    list.Count(1000000);
    desktop.FocusAway();
    desktop.Focus(list);
    EXPECT_EQ(list.ListIndex(), 1);
    std::int32_t last = 0;
    int asked = 0;
    list.events.EnumDATA = [&](std::int32_t& row, qrosterdata& record) {
        record = {.text = "x"};
        last = std::max(last, row);
        ++asked;
    };
    desktop.Key(host::VK_END);
    EXPECT_EQ(list.ListIndex(), 1000000);
    EXPECT_EQ(last, 1000000);
    EXPECT_LE(asked, 2 * (list.yn() + 1) + 2);
}

TEST(LargeListDesktop, ThePressHasActedWhenTheHostHearsOfIt) {
    TestDesktop desktop;
    auto& list = MakeList(desktop, 0, 2);
    list.ViewMode(1);
    list.Count(3);
    desktop.FocusAway();
    desktop.Focus(list); // which makes row 1 the current one
    std::vector<std::string> story;
    list.events.Change = [&](std::int32_t row) { story.push_back("Change " + std::to_string(row)); };
    list.events.MouseDown = [&](std::int16_t&, std::int16_t&, float&, float&) {
        story.push_back("MouseDown at row " + std::to_string(list.ListIndex()));
    };
    list.events.MouseUp = [&](std::int16_t&, std::int16_t&, float&, float&) { story.push_back("MouseUp"); };
    list.events.Click = [&](std::int32_t row) { story.push_back("Click " + std::to_string(row)); };
    desktop.Click(list, 30, 21 + list.ItemHeight() + 5);
    EXPECT_EQ(story, (std::vector<std::string>{"Change 2", "MouseDown at row 2", "Click 2", "MouseUp"}));
}

TEST(LargeListDesktop, ADividerIsDraggedByTheMouse) {
    TestDesktop desktop;
    auto& list = MakeList(desktop, 0, 2);
    list.AddItemTop();
    desktop.Drag(list, {70, 10}, {95, 40});
    EXPECT_EQ(list.HeaderWidths(), "95-70");
}

TEST(LargeListDesktop, AHandlerMayRemoveTheControl) {
    for (const int which : {0, 1, 2, 3}) {
        TestDesktop desktop;
        auto& list = MakeList(desktop, 1, 2);
        list.Count(50);
        bool removed = false;
        const auto remove = [&] {
            if (removed) return;
            removed = true;
            desktop.form().Remove(list);
        };
        if (which == 0) list.events.EnumDATA = [&](std::int32_t&, qrosterdata&) { remove(); };
        if (which == 1) list.events.Change = [&](std::int32_t) { remove(); };
        if (which == 2) list.events.Click = [&](std::int32_t) { remove(); };
        if (which == 3) list.events.DblClick = [&](std::int32_t) { remove(); };
        if (which == 3) {
            desktop.DoubleClick(list, 60, 60);
        } else {
            desktop.Press(list, 60, 60);
            desktop.Release();
        }
        EXPECT_TRUE(removed) << which;
        desktop.Pump();
    }
}

} // namespace
} // namespace tvok::test
