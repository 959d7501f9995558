// Properties that divide the list: columns, rows, their sizes and lines, and what of it repaints.

#include "tests/support/FakeRoster.h"

#include <climits>

namespace tvok::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(qRosterGrid, xnStoresAndRefreshes) {
    FakeRoster roster({}, Numbered(4));
    roster.list.xn(2);
    EXPECT_EQ(roster.list.xn(), 2);
    EXPECT_EQ(roster.TakeEffect(), "refresh");
    roster.list.xn(2);
    EXPECT_EQ(roster.TakeEffect(), "refresh");
}

TEST(qRosterGrid, xnIgnoresValuesBelowOneAndAnyValueWhileXnAutoIsSet) {
    FakeRoster roster({}, Numbered(4));
    roster.list.xn(0);
    roster.list.xn(-3);
    EXPECT_EQ(roster.list.xn(), 1);
    roster.list.XnAuto(true); // 200 pixels hold two columns of 100
    ASSERT_EQ(roster.list.xn(), 2);
    roster.log().Clear();
    roster.list.xn(5);
    EXPECT_EQ(roster.list.xn(), 2);
    EXPECT_THAT(roster.log().All(), IsEmpty());
}

TEST(qRosterGrid, xnAtDesignTimeIsStoredAndEndsInTheObjectError) {
    FakeRoster roster({.UserMode = false});
    EXPECT_THROW(roster.list.xn(3), ObjectError);
    EXPECT_EQ(roster.list.xn(), 3);
    EXPECT_NO_THROW(roster.list.xn(0));
    EXPECT_EQ(roster.list.xn(), 3);
}

TEST(qRosterGrid, ynSetsTheControlsHeight) {
    FakeRoster roster({.border = 2}, Numbered(9));
    roster.list.yn(3);
    EXPECT_EQ(roster.component.PixelHeight(), 3 * 18 + 4);
    EXPECT_EQ(roster.list.yn(), 3);
    const auto story = roster.TakeStory();
    ASSERT_FALSE(story.empty());
    EXPECT_EQ(story.front(), "Height 870");
    EXPECT_EQ(roster.hook().max, 6);
}

TEST(qRosterGrid, ynCountsTheGridLines) {
    FakeRoster roster({.GridlineWidth = 2}, Numbered(9));
    roster.list.GridlineOnBorder(true);
    roster.list.yn(3);
    EXPECT_EQ(roster.component.PixelHeight(), 3 * 20 + 2);
    EXPECT_EQ(roster.list.yn(), 3);
}

TEST(qRosterGrid, ynIgnoresValuesBelowOneAndTheSameValue) {
    FakeRoster roster({}, Numbered(9));
    ASSERT_EQ(roster.list.yn(), 5);
    for (const std::int32_t value : {5, 0, -1, INT_MIN}) roster.list.yn(value);
    EXPECT_THAT(roster.log().All(), IsEmpty());
    EXPECT_EQ(roster.list.yn(), 5);
}

TEST(qRosterGrid, ynRefreshesAlsoWhereTheHeightIsRightAlready) {
    FakeRoster roster({}, Numbered(9));
    roster.list.ItemsStr("19=7\r\n107=ant\r\n999\r\n"); // a setting of a text form is stored, no more
    ASSERT_EQ(roster.list.yn(), 7);
    roster.log().Clear();
    roster.list.yn(5);
    EXPECT_TRUE(roster.log().Named("Height").empty());
    EXPECT_EQ(roster.list.yn(), 5);
    EXPECT_EQ(roster.TakeEffect(), "refresh");
}

TEST(qRosterGrid, ynAtDesignTimeSetsTheHeightAndEndsInTheObjectError) {
    FakeRoster roster({.UserMode = false});
    EXPECT_THROW(roster.list.yn(3), ObjectError);
    EXPECT_EQ(roster.list.yn(), 3);
    EXPECT_EQ(roster.component.PixelHeight(), 54);
}

TEST(qRosterGrid, XnAutoFollowsTheWidth) {
    FakeRoster roster({.width = 350}, Numbered(9));
    roster.list.XnAuto(true);
    EXPECT_EQ(roster.list.xn(), 3);
    EXPECT_EQ(roster.TakeEffect(), "refresh");
    roster.component.SetPixelSize(210, 90);
    EXPECT_EQ(roster.list.xn(), 2);
    roster.component.SetPixelSize(20, 90);
    EXPECT_EQ(roster.list.xn(), 1);
}

TEST(qRosterGrid, XnAutoOffStoresAlone) {
    FakeRoster roster({.width = 350}, Numbered(9));
    roster.list.XnAuto(true);
    roster.log().Clear();
    roster.list.XnAuto(false);
    EXPECT_FALSE(roster.list.XnAuto());
    EXPECT_EQ(roster.list.xn(), 3);
    EXPECT_THAT(roster.log().All(), IsEmpty());
}

TEST(qRosterGrid, XnAutoAtDesignTimeIsStoredAndEndsInTheObjectError) {
    FakeRoster roster({.UserMode = false, .width = 350});
    EXPECT_THROW(roster.list.XnAuto(true), ObjectError);
    EXPECT_TRUE(roster.list.XnAuto());
    EXPECT_EQ(roster.list.xn(), 3);
    EXPECT_NO_THROW(roster.list.XnAuto(false));
    EXPECT_FALSE(roster.list.XnAuto());
}

TEST(qRosterGrid, FixedWidthForLastXnRefreshesForBothValues) {
    FakeRoster roster({}, Numbered(2));
    roster.list.FixedWidthForLastXn(true);
    EXPECT_EQ(roster.TakeEffect(), "refresh");
    EXPECT_TRUE(roster.list.FixedWidthForLastXn());
    roster.list.FixedWidthForLastXn(false);
    EXPECT_EQ(roster.TakeEffect(), "refresh");
}

TEST(qRosterGrid, FixedWidthForLastXnAtDesignTimeIsStoredAndEndsInTheObjectError) {
    FakeRoster roster({.UserMode = false});
    EXPECT_THROW(roster.list.FixedWidthForLastXn(true), ObjectError);
    EXPECT_TRUE(roster.list.FixedWidthForLastXn());
    EXPECT_THROW(roster.list.FixedWidthForLastXn(false), ObjectError);
    EXPECT_FALSE(roster.list.FixedWidthForLastXn());
}

TEST(qRosterGrid, TheLastColumnStretchesUnlessItsWidthIsFixed) {
    FakeRoster roster({.xn = 1}, {"ant"});
    roster.list.PaintAll();
    EXPECT_EQ(roster.log().Named("ExtTextOutA").at(0).rect, (tvok_Rect{20, 0, 200, 18}));
    roster.log().Clear();
    roster.list.FixedWidthForLastXn(true);
    EXPECT_EQ(roster.log().Named("ExtTextOutA").at(0).rect, (tvok_Rect{20, 0, 100, 18}));
}

TEST(qRosterGrid, ItemHeightRecomputesTheRows) {
    FakeRoster roster({}, Numbered(9));
    roster.list.ItemHeight(30);
    EXPECT_EQ(roster.list.yn(), 3);
    EXPECT_EQ(roster.hook().max, 6);
    EXPECT_EQ(roster.component.PixelHeight(), 90);
}

TEST(qRosterGrid, ItemHeightSnapsTheControlWhereTheHeightIsFixed) {
    FakeRoster roster({.FixedHeight = true}, Numbered(9));
    roster.list.ItemHeight(40);
    EXPECT_EQ(roster.list.yn(), 2);
    EXPECT_EQ(roster.component.PixelHeight(), 80);
    FakeRoster design({.UserMode = false, .FixedHeight = true});
    design.list.ItemHeight(40);
    EXPECT_EQ(design.component.PixelHeight(), 80);
}

TEST(qRosterGrid, AnItemHigherThanTheControlLeavesOneRow) {
    FakeRoster roster({}, Numbered(9));
    roster.list.ItemHeight(1000);
    EXPECT_EQ(roster.list.yn(), 1);
}

TEST(qRosterGrid, ItemWidthUpdatesTheColumnsOfAnAutomaticList) {
    FakeRoster roster({.width = 350}, Numbered(9));
    roster.list.XnAuto(true);
    roster.list.ItemWidth(50);
    EXPECT_EQ(roster.list.xn(), 7);
    FakeRoster design({.UserMode = false, .width = 350});
    EXPECT_THROW(design.list.XnAuto(true), ObjectError);
    design.list.ItemWidth(50);
    EXPECT_EQ(design.list.xn(), 7);
}

TEST(qRosterGrid, GridlineWidthRecomputesTheRowsInRunModeOnly) {
    FakeRoster roster({}, Numbered(9));
    roster.list.GridlineWidth(12);
    EXPECT_EQ(roster.list.yn(), 3);
    FakeRoster design({.UserMode = false});
    design.list.GridlineWidth(12);
    EXPECT_EQ(design.list.yn(), 5);
}

TEST(qRosterGrid, GridlineOnBorderRecomputesTheRowsInRunModeOnly) {
    FakeRoster roster({.height = 95, .GridlineWidth = 1}, Numbered(9));
    ASSERT_EQ(roster.list.yn(), 5);
    roster.list.GridlineOnBorder(true);
    EXPECT_EQ(roster.list.yn(), 4); // one pixel of 95 goes to the border
    FakeRoster design({.UserMode = false, .height = 95, .GridlineWidth = 1});
    design.list.GridlineOnBorder(true);
    EXPECT_EQ(design.list.yn(), 5);
}

TEST(qRosterGrid, FixedHeightSnapsTheControlToWholeRowsAlsoAtDesignTime) {
    FakeRoster roster({.height = 100}, Numbered(9));
    roster.list.FixedHeight(true);
    EXPECT_EQ(roster.component.PixelHeight(), 90);
    FakeRoster design({.UserMode = false, .height = 100});
    design.list.FixedHeight(true);
    EXPECT_EQ(design.component.PixelHeight(), 90);
    design.list.FixedHeight(false);
    design.component.SetPixelSize(200, 100);
    EXPECT_EQ(design.component.PixelHeight(), 100);
}

TEST(qRosterGrid, ColWidthSettingStrSkipsItsFirstValue) {
    FakeRoster roster({.xn = 2, .FixedWidthForLastXn = true}, {"ant", "bee"});
    roster.list.ColWidthSettingStr("100,50");
    auto drawn = roster.log().Named("ExtTextOutA");
    ASSERT_EQ(drawn.size(), 2u);
    EXPECT_EQ(drawn[0].rect, (tvok_Rect{20, 0, 50, 18}));
    EXPECT_EQ(drawn[1].rect, (tvok_Rect{70, 0, 150, 18}));
    EXPECT_EQ(roster.list.ColWidthSettingStr(), "100,50");
    EXPECT_EQ(roster.TakeEffect(), "refresh");
    roster.list.ColWidthSettingStr("0,100,50");
    drawn = roster.log().Named("ExtTextOutA");
    EXPECT_EQ(drawn[0].rect, (tvok_Rect{20, 0, 100, 18}));
    EXPECT_EQ(drawn[1].rect, (tvok_Rect{120, 0, 150, 18}));
}

TEST(qRosterGrid, ColWidthSettingStrResizesAnAutomaticListAlsoAtDesignTime) {
    FakeRoster design({.UserMode = false, .width = 350});
    EXPECT_THROW(design.list.XnAuto(true), ObjectError);
    design.log().Clear();
    design.list.ColWidthSettingStr("0,200,120,100");
    EXPECT_EQ(design.list.xn(), 2);
    EXPECT_EQ(design.TakeEffect(), "");
}

TEST(qRosterGrid, TabStopSettingStrDividesTheTextAndRefreshesInRunMode) {
    FakeRoster roster({}, {"a\tb\tc"});
    roster.list.TabStopSettingStr("-40,60");
    EXPECT_EQ(roster.list.TabStopSettingStr(), "-40,60");
    EXPECT_THAT(roster.log().Named("ExtTextOutA").at(1).rect, (tvok_Rect{60, 0, 120, 18}));
    EXPECT_EQ(roster.TakeEffect(), "refresh");
    roster.list.TabStopSettingStr("");
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre("a\tb\tc"));
    FakeRoster design({.UserMode = false});
    design.list.TabStopSettingStr("40");
    EXPECT_EQ(design.list.TabStopSettingStr(), "40");
    EXPECT_EQ(design.TakeEffect(), "");
}

TEST(qRosterGrid, HeadWidthExPaintsTheBandAtOnceAndWidensTheColumnWithTheNextRefresh) {
    FakeRoster roster({.xn = 2, .FixedWidthForLastXn = true}, {"ant", "bee"});
    roster.list.HeadWidthEx(10);
    auto drawn = roster.log().Named("ExtTextOutA");
    EXPECT_EQ(drawn.at(0).rect, (tvok_Rect{30, 0, 100, 18}));
    roster.log().Clear();
    roster.list.Refresh();
    drawn = roster.log().Named("ExtTextOutA");
    EXPECT_EQ(drawn.at(0).rect, (tvok_Rect{30, 0, 110, 18}));
}

TEST(qRosterGrid, CX_TEXTShowsWithTheNextPaint) {
    FakeRoster roster({}, {"ant"});
    roster.list.CX_TEXT(50);
    roster.list.PaintAll();
    EXPECT_EQ(roster.log().Named("ExtTextOutA").at(0).rect.Left, 50);
}

TEST(qRosterGrid, HugeSizesEndInAnOverflowErrorAndNotInAWrap) {
    FakeRoster roster({}, Numbered(9));
    EXPECT_THROW(roster.list.ItemHeight(INT_MAX), OverflowError);
    EXPECT_EQ(roster.list.ItemHeight(), INT_MAX);
    FakeRoster wide({.xn = 3, .FixedWidthForLastXn = true}, Numbered(9));
    EXPECT_THROW(wide.list.ItemWidth(INT_MAX), OverflowError);
}

TEST(qRosterGrid, AColumnWidthThatDoesNotFitIsAnOverflowErrorToTheHost) {
    FakeRoster roster({}, {"ant"});
    EXPECT_THROW(roster.list.ColWidthSettingStr("0,99999999999"), OverflowError);
    EXPECT_EQ(roster.list.ColWidthSettingStr(), "0,99999999999");
    EXPECT_NO_THROW(roster.list.ColWidthSettingStr("0,50"));
}

} // namespace
} // namespace tvok::test
