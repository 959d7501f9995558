// The gallery's live feed on a desktop, by a user's mouse and keys.
#include "apps/gallery/FeedPage.h"

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/TestDesktop.h"

namespace gallery {
namespace {

using std::chrono::milliseconds;
using testing::HasSubstr;
using tvok::qRosterex;

constexpr std::int32_t CellsOfARow = 7;
constexpr std::int32_t HeaderHeight = 23, RowHeight = 20;

class FeedPageTest : public testing::Test {
protected:
    FeedPageTest() {
        form().Size(980, 640);
        page_.Layout({0, 0, 980, 640});
        form().events.Paint = [this] { page_.Paint(form().hDC()); };
        desktop_.Pump();
    }

    tvok::Form& form() { return desktop_.form(); }
    qRosterex& left() { return page_.left(); }
    qRosterex& right() { return page_.right(); }

    void Play(std::int32_t turns) {
        for (; turns > 0; --turns) page_.Turn(milliseconds(25));
        desktop_.Pump();
    }
    void Flip(FeedPage::Switch which) {
        const auto place = static_cast<std::int32_t>(which);
        desktop_.Click(page_.switches().list(), place % 2 * 478 + 60, place / 2 * SwitchPanel::RowHeight + 8);
    }
    std::string WordsOf(FeedPage::Switch which) {
        tvok::qrosterdata item;
        page_.switches().list().GetData(static_cast<std::int32_t>(which) + 1, item);
        return item.text.substr(item.text.find('\t') + 1);
    }
    void ScrollAway() {
        desktop_.MoveTo(left(), 100, 100);
        desktop_.Wheel(-8);
        desktop_.MoveTo(right(), 100, 100);
        desktop_.Wheel(8);
    }
    /// A click on a row of the page, 1 at the top; the row number that is current then.
    std::int32_t ClickSlot(qRosterex& list, std::int32_t slot) {
        desktop_.Click(list, 200, HeaderHeight + (slot - 1) * RowHeight + 8);
        return list.ListIndex();
    }
    /// A thumb of a list, from its bar's arrow on: where it begins on the whole control.
    void PressBar(qRosterex& list, std::int32_t y) {
        tvok::tvok_Rect client;
        tvok::host::platform().GetClientRect(desktop_.WindowOf(list), client);
        desktop_.Press(list, client.Right + 8, y);
    }
    /// Cells are written with option 6; labels and captions are not.
    std::ptrdiff_t CellsPaintedBy(milliseconds turn) {
        const auto lines = desktop_.Trace([&] { page_.Turn(turn); });
        return std::count_if(lines.begin(), lines.end(), [](const std::string& line) {
            return line.starts_with("ExtTextOutA") && line.find("flags=6") != std::string::npos;
        });
    }
    void ExpectTrueToARepaint(qRosterex& list) {
        const auto shown = desktop_.Pixels(list);
        list.PaintAll();
        EXPECT_TRUE(shown == desktop_.Pixels(list));
    }

    tvok::test::TestDesktop desktop_;
    FeedPage page_{desktop_.desktop(), desktop_.form()};
};

TEST_F(FeedPageTest, NewRowsArriveAtTheTopOnTheLeftAndAtTheBottomOnTheRight) {
    Play(40);
    EXPECT_GT(page_.Fed(), 300);
    EXPECT_EQ(left().Count(), page_.Fed());
    EXPECT_EQ(right().Count(), page_.Fed());
    EXPECT_EQ(ClickSlot(left(), 1), page_.Fed());
    EXPECT_EQ(ClickSlot(left(), 4), page_.Fed() - 3);
    EXPECT_EQ(ClickSlot(right(), right().yn()), page_.Fed());
    EXPECT_EQ(ClickSlot(right(), right().yn() - 3), page_.Fed() - 3);
    EXPECT_EQ(page_.News(left()), "following");
    EXPECT_EQ(page_.News(right()), "following");
}

TEST_F(FeedPageTest, ANewRowIsAskedForOnceAndPaintedOnceInEachList) {
    Play(40);
    const std::int32_t before = page_.Fed();
    const std::ptrdiff_t cells = CellsPaintedBy(milliseconds(25));
    EXPECT_GT(page_.Fed(), before);
    EXPECT_EQ(cells, (page_.Fed() - before) * 2 * CellsOfARow);
    Play(40);
    EXPECT_THAT(page_.Figures(), HasSubstr("1.00 at the left, 1.00 at the right"));
    ExpectTrueToARepaint(left());
    ExpectTrueToARepaint(right());
}

TEST_F(FeedPageTest, ThousandsOfRowsInOneTurnCostAPage) {
    Play(40);
    Flip(FeedPage::Rate);
    Flip(FeedPage::Rate);
    const std::int32_t before = page_.Fed();
    const std::ptrdiff_t cells = CellsPaintedBy(milliseconds(250));
    EXPECT_GT(page_.Fed(), before + 1'000);
    EXPECT_LE(cells, 2 * CellsOfARow * (left().yn() + 2));
    EXPECT_EQ(left().Count(), page_.Fed());
    EXPECT_EQ(page_.News(right()), "following");
    ExpectTrueToARepaint(left());
    ExpectTrueToARepaint(right());
}

TEST_F(FeedPageTest, AReaderWhoScrolledAwayKeepsThePlaceInBothLists) {
    Play(40);
    ScrollAway();
    const auto leftRows = desktop_.Pixels(left());
    const auto rightRows = desktop_.Pixels(right());
    const std::int32_t before = page_.Fed();
    Play(80);
    EXPECT_GT(page_.Fed(), before + 500);
    EXPECT_TRUE(leftRows == desktop_.Pixels(left()));
    EXPECT_TRUE(rightRows == desktop_.Pixels(right()));
    EXPECT_EQ(left().Count(), page_.Fed());
    const std::string newer = std::to_string(page_.Fed() - before) + " newer rows";
    EXPECT_EQ(page_.News(left()), newer + " above");
    EXPECT_EQ(page_.News(right()), newer + " below");
    EXPECT_THAT(page_.Figures(), HasSubstr("0.00 at the left, 0.00 at the right"));
}

TEST_F(FeedPageTest, TheNewestRowBringsBothListsBack) {
    Play(40);
    ScrollAway();
    Play(10);
    Flip(FeedPage::Newest);
    EXPECT_EQ(page_.News(left()), "following");
    EXPECT_EQ(page_.News(right()), "following");
    Play(10);
    EXPECT_EQ(page_.News(left()), "following");
    EXPECT_EQ(page_.News(right()), "following");
}

TEST_F(FeedPageTest, BufAddItemOnlyLetsNewRowsWait) {
    Play(40);
    const std::int32_t before = page_.Fed();
    Flip(FeedPage::BufAddItemOnly);
    EXPECT_THAT(WordsOf(FeedPage::BufAddItemOnly), HasSubstr("on:"));
    Play(10);
    EXPECT_EQ(left().Count(), before);
    EXPECT_EQ(right().Count(), before);
    EXPECT_EQ(page_.News(left()), std::to_string(page_.Fed() - before) + " rows wait");
    Flip(FeedPage::BufAddItemOnly);
    EXPECT_THAT(WordsOf(FeedPage::BufAddItemOnly), HasSubstr("off:"));
    EXPECT_EQ(left().Count(), page_.Fed());
    EXPECT_EQ(right().Count(), page_.Fed());
    ExpectTrueToARepaint(left());
    ExpectTrueToARepaint(right());
}

TEST_F(FeedPageTest, LockedPaintPaintsNothingUntilItIsOff) {
    Play(40);
    Flip(FeedPage::LockedPaint);
    EXPECT_THAT(WordsOf(FeedPage::LockedPaint), HasSubstr("on:"));
    EXPECT_EQ(CellsPaintedBy(milliseconds(100)), 0);
    EXPECT_EQ(left().Count(), page_.Fed());
    EXPECT_THAT(page_.News(left()), HasSubstr("rows not painted"));
    Flip(FeedPage::LockedPaint);
    EXPECT_EQ(page_.News(left()), "following");
    ExpectTrueToARepaint(left());
    ExpectTrueToARepaint(right());
}

TEST_F(FeedPageTest, ViewModeTurnsBothListsRoundForGood) {
    Play(40);
    EXPECT_EQ(WordsOf(FeedPage::ViewMode), "0 newest first, 1 newest last");
    Flip(FeedPage::ViewMode);
    Play(10);
    EXPECT_EQ(WordsOf(FeedPage::ViewMode), "1 newest last, 0 newest first");
    EXPECT_EQ(page_.Heading(left()), "Newest at the bottom");
    EXPECT_EQ(page_.Heading(right()), "Newest at the top");
    EXPECT_EQ(ClickSlot(left(), left().yn()), page_.Fed());
    EXPECT_EQ(ClickSlot(right(), 1), page_.Fed());
    EXPECT_EQ(page_.News(left()), "following");
}

TEST_F(FeedPageTest, APausedFeedAddsNothing) {
    Play(10);
    Flip(FeedPage::Feed);
    const std::int32_t before = page_.Fed();
    Play(40);
    EXPECT_EQ(page_.Fed(), before);
    EXPECT_THAT(page_.Figures(), HasSubstr(" 0 rows a second"));
    EXPECT_EQ(WordsOf(FeedPage::Feed), "off: paused");
    Flip(FeedPage::Feed);
    Play(1);
    EXPECT_GT(page_.Fed(), before);
}

TEST_F(FeedPageTest, TheRateGoesRoundThroughFour) {
    const std::string first = WordsOf(FeedPage::Rate);
    EXPECT_EQ(first, "400 a second, bursts of 2,400");
    Flip(FeedPage::Rate);
    EXPECT_EQ(WordsOf(FeedPage::Rate), "1,000 a second, bursts of 6,000");
    const std::int32_t before = page_.Fed();
    Play(40);
    EXPECT_NEAR(page_.Fed() - before, 1'000, 2);
    for (int i = 0; i < 3; ++i) Flip(FeedPage::Rate);
    EXPECT_EQ(WordsOf(FeedPage::Rate), first);
}

TEST_F(FeedPageTest, ALongGapCountsAsAQuarterOfASecond) {
    page_.Turn(std::chrono::hours(1));
    EXPECT_NEAR(page_.Fed(), 110, 20);
}

TEST_F(FeedPageTest, SpaceFlipsTheCurrentSwitchAndArrowKeysFlipNone) {
    desktop_.Focus(page_.switches().list());
    desktop_.Key(tvok::host::VK_DOWN);
    desktop_.Key(tvok::host::VK_RIGHT);
    const std::int32_t current = page_.switches().list().ListIndex();
    ASSERT_EQ(current, static_cast<std::int32_t>(FeedPage::ViewMode) + 1);
    EXPECT_EQ(left().ViewMode(), 0);
    desktop_.Key(tvok::host::VK_SPACE);
    EXPECT_EQ(left().ViewMode(), 1);
    desktop_.Key(tvok::host::VK_RETURN);
    EXPECT_EQ(left().ViewMode(), 0);
}

TEST_F(FeedPageTest, TwoQuickClicksFlipASwitchTwice) {
    tvok::qRoster& list = page_.switches().list();
    desktop_.DoubleClick(list, 60, SwitchPanel::RowHeight + 8);
    EXPECT_FALSE(left().LockedPaint());
    desktop_.Click(list, 60, SwitchPanel::RowHeight + 8);
    EXPECT_TRUE(left().LockedPaint());
}

TEST_F(FeedPageTest, AHeldThumbLetsRowsWaitAndTheyComeWithItsRelease) {
    Play(40);
    const std::int32_t before = page_.Fed();
    PressBar(left(), 20);
    Play(10);
    EXPECT_EQ(left().Count(), before);
    EXPECT_EQ(right().Count(), page_.Fed());
    EXPECT_THAT(page_.News(left()), HasSubstr("rows wait"));
    desktop_.Release();
    EXPECT_EQ(left().Count(), page_.Fed());
    ExpectTrueToARepaint(left());
}

TEST_F(FeedPageTest, ADividerIsDraggedWhileRowsArrive) {
    Play(40);
    const std::string before = right().HeaderWidths();
    desktop_.Press(right(), 22 + 94, 10);
    for (std::int32_t x = 118; x <= 150; x += 4) {
        desktop_.MoveTo(right(), x, 10);
        Play(1);
    }
    desktop_.Release();
    EXPECT_EQ(before.substr(0, 6), "22-94-");
    EXPECT_EQ(right().HeaderWidths().substr(0, 7), "22-128-");
    EXPECT_EQ(left().HeaderWidths(), before);
    ExpectTrueToARepaint(right());
}

TEST_F(FeedPageTest, AListThatFollowsGoesOnWhenItGetsLower) {
    Play(40);
    page_.Layout({0, 0, 980, 420});
    Play(4);
    EXPECT_EQ(page_.News(left()), "following");
    EXPECT_EQ(page_.News(right()), "following");
}

} // namespace
} // namespace gallery
