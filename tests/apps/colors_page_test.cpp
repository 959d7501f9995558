// The gallery's colours on a desktop, by a user's mouse and keys.
#include "apps/gallery/ColorsPage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "apps/gallery/Window.h"
#include "tests/support/TestDesktop.h"

namespace gallery {
namespace {

using tvok::OLE_COLOR;

constexpr OLE_COLOR cRed = 0x0000FF, cGreen = 0x00FF00;

Collection Four() {
    return {{{"ant", "1.0", "libs", "optional", "", 10},
             {"bee", "2.0", "net", "optional", "", 20},
             {"cat", "3.0", "doc", "optional", "", 30},
             {"dog", "4.0", "games", "optional", "", 40}},
            "Four",
            ""};
}

class ColorsPageTest : public testing::Test {
protected:
    ColorsPageTest() {
        desktop_.form().Size(980, 640);
        page_.Layout({0, 0, 980, 640});
        desktop_.Pump();
    }
    /// On an arrow, and holds it; the client is 261 x 20, with the buttons from x 201.
    void Press(ColorsPage::Use use, std::int32_t button = 0) {
        desktop_.clock().now += std::chrono::seconds(1);
        desktop_.Press(page_.selector(use), 211 + 20 * button, 10);
        page_.Turn({});
    }
    /// Into the grid, which hangs below with its right edge on the selector's.
    void ToCell(ColorsPage::Use use, std::int32_t column, std::int32_t row) {
        desktop_.MoveTo(page_.selector(use), -2 + 11 * (column - 1) + 6, 22 + 11 * (row - 1) + 6);
        page_.Turn({});
    }
    void Key(std::int32_t key) {
        desktop_.Key(key);
        page_.Turn({});
    }
    tvok::qrosterdata Row(std::int32_t row) {
        tvok::qrosterdata data;
        page_.list().GetData(row, data);
        return data;
    }

    tvok::test::TestDesktop desktop_;
    ColorsPage page_{desktop_.desktop(), desktop_.form(), Four()};
};

TEST_F(ColorsPageTest, BeginsWithTheThemesColoursAndRealRows) {
    EXPECT_EQ(page_.selector(ColorsPage::Text).SelectColor(), tvok::cWindowText);
    EXPECT_EQ(page_.list().Count(), 4);
    EXPECT_EQ(Row(2).text, "bee\t2.0\t20 KiB");
    EXPECT_EQ(Row(2).fcolor, tvok::cWindowText);
    EXPECT_EQ(page_.Code(ColorsPage::GridLines), "list.GridlineColor(0x80000016);");
}

TEST_F(ColorsPageTest, TheListFollowsThePreviewAndKeepsWhatIsChosen) {
    Press(ColorsPage::Background);
    ToCell(ColorsPage::Background, 1, 5);
    EXPECT_EQ(page_.list().BackColor(), cRed);
    EXPECT_EQ(Row(1).bColor, cRed);
    EXPECT_EQ(desktop_.PixelAt(page_.list(), 300, 10), 0xFF0000U);
    ToCell(ColorsPage::Background, 9, 5);
    EXPECT_EQ(desktop_.PixelAt(page_.list(), 300, 10), 0x00FF00U);
    desktop_.Release();
    page_.Turn({});
    EXPECT_EQ(page_.selector(ColorsPage::Background).SelectColor(), cGreen);
    EXPECT_EQ(Row(3).bColor, cGreen);
    EXPECT_EQ(page_.Code(ColorsPage::Background), "item.bColor = 0x0000FF00;");
}

TEST_F(ColorsPageTest, EscTakesEveryColourBack) {
    for (const auto use : {ColorsPage::Text, ColorsPage::Background, ColorsPage::GridLines,
                           ColorsPage::SelectedRow, ColorsPage::Band}) {
        desktop_.FocusAway();
        const auto before = desktop_.Pixels(page_.list());
        Press(use);
        desktop_.Release();
        ToCell(use, 1, 5);
        EXPECT_NE(desktop_.Pixels(page_.list()), before) << use;
        Key(tvok::host::VK_ESCAPE);
        EXPECT_EQ(desktop_.Pixels(page_.list()), before) << use;
    }
}

TEST_F(ColorsPageTest, ASystemColourIsChosenByItsLetter) {
    Press(ColorsPage::SelectedRow, 1);
    desktop_.Release();
    Key('D');
    Key(tvok::host::VK_RETURN);
    EXPECT_EQ(page_.list().SelectedColor(), tvok::SystemColor(1)) << "the desktop's";
    EXPECT_EQ(page_.Code(ColorsPage::SelectedRow), "list.SelectedColor(0x80000001);");
}

TEST_F(ColorsPageTest, NothingIsPaintedWhileNoColourChanges) {
    desktop_.Pump();
    EXPECT_TRUE(desktop_.Trace([&] { page_.Turn({}); }).empty());
}

TEST_F(ColorsPageTest, TheScenesShowAPreviewAChoiceAndWhatEscPutsBack) {
    std::vector<OLE_COLOR> backgrounds, selected;
    for (const Scene& scene : page_.Scenes()) {
        scene.act();
        backgrounds.push_back(page_.list().BackColor());
        selected.push_back(page_.list().SelectedColor());
    }
    ASSERT_EQ(backgrounds.size(), 6U);
    EXPECT_EQ(backgrounds[1], tvok::cWindowBackground);
    EXPECT_GE(backgrounds[2], 0) << "a plain colour";
    EXPECT_EQ(backgrounds[3], backgrounds[2]);
    EXPECT_EQ(selected[3], tvok::cHighlight);
    EXPECT_NE(selected[4], tvok::cHighlight);
    EXPECT_EQ(selected[5], tvok::cHighlight);
}

} // namespace
} // namespace gallery
