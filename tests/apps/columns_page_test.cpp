// The gallery's column bar on a desktop, by a user's mouse.
#include "apps/gallery/ColumnsPage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/TestDesktop.h"

namespace gallery {
namespace {

using testing::EndsWith;
using testing::StartsWith;

class ColumnsPageTest : public testing::Test {
protected:
    ColumnsPageTest() {
        desktop_.form().Size(980, 640);
        page_.Layout({0, 0, 980, 640});
        desktop_.Pump();
    }
    void Flip(ColumnsPage::Switch which) {
        const auto place = static_cast<std::int32_t>(which);
        desktop_.Click(page_.switches().list(), place % 2 * 478 + 60, place / 2 * SwitchPanel::RowHeight + 8);
    }
    std::string FirstRow() {
        tvok::qrosterdata item;
        page_.list().GetData(1, item);
        return item.text;
    }

    tvok::test::TestDesktop desktop_;
    ColumnsPage page_{desktop_.desktop(), desktop_.form()};
};

TEST_F(ColumnsPageTest, TheListsTabColumnsFollowTheBar) {
    EXPECT_EQ(page_.bar().HeaderWidths(), "230-230-110-130");
    EXPECT_EQ(page_.list().TabStopSettingStr(), "226,230,110,130");
    desktop_.Drag(page_.bar(), {230, 10}, {200, 10});
    page_.Turn(std::chrono::milliseconds(25));
    EXPECT_EQ(page_.list().TabStopSettingStr(), "196,260,110,130");
}

TEST_F(ColumnsPageTest, APressOrdersByItsColumn) {
    const std::string before = FirstRow();
    desktop_.Click(page_.bar(), 500, 10); // the sizes, the greatest first
    EXPECT_NE(FirstRow(), before);
    desktop_.Click(page_.bar(), 100, 10);
    EXPECT_EQ(FirstRow(), before);
    desktop_.Click(page_.bar(), 900, 10);
    EXPECT_EQ(FirstRow(), before);
}

TEST_F(ColumnsPageTest, AddedColumnsAreInFrontAndTheOthersPay) {
    Flip(ColumnsPage::Add);
    EXPECT_EQ(page_.bar().GetData(1).text, "Summary");
    Flip(ColumnsPage::Add);
    EXPECT_EQ(page_.bar().Count(), 6);
    EXPECT_THAT(page_.bar().HeaderWidths(), StartsWith("92-272-"));
    Flip(ColumnsPage::Remove);
    EXPECT_EQ(page_.bar().Count(), 5);
    Flip(ColumnsPage::Reset);
    EXPECT_EQ(page_.bar().HeaderWidths(), "230-230-110-130");
    EXPECT_THAT(page_.list().TabStopSettingStr(), EndsWith(",130"));
}

TEST_F(ColumnsPageTest, ANarrowerFormFitsTheColumns) {
    page_.Layout({0, 0, 500, 400});
    std::int32_t sum = 0;
    for (std::int32_t i = 1; i <= page_.bar().Count(); ++i) sum += page_.bar().GetData(i).hWidth;
    EXPECT_LE(sum, 476);
    EXPECT_EQ(page_.bar().Count(), 4);
}

TEST_F(ColumnsPageTest, AllColumnsCanBeRemovedAndOneAdded) {
    for (int i = 0; i < 6; ++i) Flip(ColumnsPage::Remove);
    EXPECT_EQ(page_.bar().Count(), 0);
    desktop_.Click(page_.bar(), 100, 10);
    Flip(ColumnsPage::Add);
    EXPECT_EQ(page_.bar().GetData(1).text, "Package");
}

} // namespace
} // namespace gallery
