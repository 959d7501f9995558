#include "tvok/controls/largelist/HeaderColumns.h"

#include "tests/support/FakeLargeList.h"

namespace tvok::test {
namespace {

constexpr std::int32_t cMax = 3840;

HeaderColumns WithWidths(std::initializer_list<std::int32_t> widths) {
    HeaderColumns columns;
    for (const auto width : widths) columns.Add(0, {.hWidth = width}, cMax);
    return columns;
}

TEST(HeaderColumns, AnAppendRaisesANarrowColumnToTenAndLimitsAWideOne) {
    const auto columns = WithWidths({5, 10, 100000, -7});
    EXPECT_EQ(columns.Widths(), "10-10-3840-10");
}

TEST(HeaderColumns, OverwritingAColumnKeepsItsFontHandle) {
    auto columns = WithWidths({50, 60});
    columns.Set(2, {.text = "b", .hWidth = 60, .lFont = 77}, cMax);
    columns.Add(2,
                {.text = "c", .hWidth = 70, .key = "k", .fcolor = 3, .Alignment = 1, .vflag = 4, .lFont = 9},
                cMax);
    EXPECT_EQ(columns.Get(2), (qrosterheader{"c", 70, "k", 3, 1, 4, 77}));
    EXPECT_EQ(columns.Count(), 2);
}

TEST(HeaderColumns, AnIndexOutsideTheColumnsChangesNothing) {
    auto columns = WithWidths({50, 60});
    columns.Add(9, {.hWidth = 70}, cMax);
    columns.Add(-1, {.hWidth = 70}, cMax);
    columns.Set(0, {.hWidth = 70}, cMax);
    columns.Set(3, {.hWidth = 70}, cMax);
    EXPECT_EQ(columns.Widths(), "50-60");
    EXPECT_EQ(columns.Get(0), qrosterheader{});
    EXPECT_EQ(columns.Get(3), qrosterheader{});
}

TEST(HeaderColumns, SettingAColumnCopiesTheWholeRecordWithinTheLimits) {
    auto columns = WithWidths({50});
    columns.Set(1, {.text = "t", .hWidth = 3, .lFont = 5}, cMax);
    EXPECT_EQ(columns.Get(1), (qrosterheader{.text = "t", .hWidth = 10, .lFont = 5}));
    columns.Set(1, {.hWidth = 99999}, cMax);
    EXPECT_EQ(columns.Get(1).hWidth, cMax);
}

TEST(HeaderColumns, AGrownCountMakesColumnsOfNoWidthAndKeepsTheOthers) {
    auto columns = WithWidths({50, 60});
    columns.Count(4);
    EXPECT_EQ(columns.Widths(), "50-60-0-0");
    columns.Count(1);
    EXPECT_EQ(columns.Widths(), "50");
    columns.Count(0);
    EXPECT_EQ(columns.Widths(), "");
}

TEST(HeaderColumns, ANegativeCountIsAnErrorAfterTheCountHasChanged) {
    auto columns = WithWidths({50});
    EXPECT_THROW(columns.Count(-3), SubscriptError);
    EXPECT_EQ(columns.Count(), -3);
    columns.Count(2);
    EXPECT_EQ(columns.Count(), -3);
    EXPECT_EQ(columns.Widths(), "");
    EXPECT_EQ(columns.EdgeFromPoint(0, 0, 10), 0);
    columns.Clear();
    EXPECT_EQ(columns.Count(), 0);
    columns.Count(2);
    EXPECT_EQ(columns.Widths(), "0-0");
}

TEST(HeaderColumns, AnAppendLiftsANegativeCount) {
    auto columns = WithWidths({});
    EXPECT_THROW(columns.Count(-1), SubscriptError);
    columns.Add(0, {.hWidth = 50}, cMax);
    EXPECT_EQ(columns.Count(), 0);
    columns.Count(1);
    EXPECT_EQ(columns.Count(), 1);
}

TEST(HeaderColumns, AWidthsTextKeepsColumnsWhosePartIsTooSmallOrNoNumber) {
    auto columns = WithWidths({50, 60, 70});
    EXPECT_TRUE(columns.Widths("5-300"));
    EXPECT_EQ(columns.Widths(), "50-300-70");
    EXPECT_TRUE(columns.Widths("abc--20"));
    EXPECT_EQ(columns.Widths(), "50-300-20");
    EXPECT_TRUE(columns.Widths("33px-10.5-11.5"));
    EXPECT_EQ(columns.Widths(), "33-10-12");
    EXPECT_TRUE(columns.Widths("9.5-9.4-100"));
    EXPECT_EQ(columns.Widths(), "10-10-100");
}

TEST(HeaderColumns, SurplusPartsAreIgnoredAndThereIsNoMaximum) {
    auto columns = WithWidths({50, 60});
    EXPECT_TRUE(columns.Widths("100-200-300"));
    EXPECT_EQ(columns.Widths(), "100-200");
    EXPECT_TRUE(columns.Widths("1000000"));
    EXPECT_EQ(columns.Widths(), "1000000-200");
    EXPECT_TRUE(columns.Widths("99999999999-80"));
    EXPECT_EQ(columns.Widths().substr(0, 8), "1000000-");
}

TEST(HeaderColumns, ABlankWidthsTextDoesNothing) {
    auto columns = WithWidths({50});
    EXPECT_FALSE(columns.Widths(""));
    EXPECT_FALSE(columns.Widths("   "));
    EXPECT_EQ(columns.Widths(), "50");
}

TEST(HeaderColumns, TheDividerZoneIsFivePixelsWide) {
    const auto columns = WithWidths({50, 60});
    for (const auto& [x, column] : std::vector<std::pair<int, int>>{
             {47, 0}, {48, 1}, {50, 1}, {52, 1}, {53, 0}, {107, 0}, {108, 2}, {112, 2}, {113, 0}})
        EXPECT_EQ(columns.EdgeFromPoint(x, 5, 20), column) << x;
    EXPECT_EQ(columns.EdgeFromPoint(50, -1, 20), 0);
    EXPECT_EQ(columns.EdgeFromPoint(50, 20, 20), 1);
    EXPECT_EQ(columns.EdgeFromPoint(50, 21, 20), 0);
}

TEST(HeaderColumns, WithNoHeaderTheTopLineStillHitsDividers) {
    const auto columns = WithWidths({50});
    EXPECT_EQ(columns.EdgeFromPoint(50, 0, 0), 1);
    EXPECT_EQ(columns.EdgeFromPoint(50, 1, 0), 0);
}

TEST(HeaderColumns, TheLowerColumnWinsWhereDividersCoincide) {
    auto columns = WithWidths({50});
    columns.Count(2);
    EXPECT_EQ(columns.EdgeFromPoint(50, 0, 20), 1);
}

TEST(HeaderColumns, ADragStopsAtTenAndHasNoLimitToTheRight) {
    auto columns = WithWidths({50, 60});
    EXPECT_FALSE(columns.StartSizing(0, 50));
    EXPECT_FALSE(columns.IsSizing());
    ASSERT_TRUE(columns.StartSizing(1, 51));
    EXPECT_FALSE(columns.SizeTo(51));
    EXPECT_TRUE(columns.SizeTo(-500));
    EXPECT_FALSE(columns.SizeTo(-501));
    EXPECT_EQ(columns.Widths(), "10-60");
    EXPECT_TRUE(columns.SizeTo(30000));
    EXPECT_EQ(columns.Widths(), "29999-60");
    columns.StopSizing();
    EXPECT_FALSE(columns.IsSizing());
}

TEST(HeaderColumns, TheSumOverflowsAsAnError) {
    auto columns = WithWidths({10, 10});
    EXPECT_EQ(columns.Sum(), 20);
    columns.Widths("2000000000-2000000000");
    EXPECT_THROW(columns.Sum(), OverflowError);
}

// In the control.

TEST(LargeListHeader, TheMaximumWidthIsThreeScreens) {
    FakeLargeList f({.columns = 0});
    f.list.HeaderAdd(0, "a", 100000);
    f.list.HeaderAdd(0, "b", 5);
    f.list.HeaderAdd(0, "c");
    EXPECT_EQ(f.list.HeaderWidths(), "3840-10-80");
    EXPECT_EQ(f.list.HeaderGet(3), (qrosterheader{.text = "c", .hWidth = 80, .fcolor = cWindowText}));
}

TEST(LargeListHeader, ChangesOfColumnsPaintNothing) {
    FakeLargeList f({.columns = 2}, 10);
    f.list.HeaderAdd(0, "a");
    f.list.HeaderAdd(9, "a");
    f.list.HeaderSet(1, {.hWidth = 33});
    f.list.HeaderCount(4);
    f.list.HeaderWidths("");
    f.list.HeaderWidths("  ");
    f.list.HeaderFlag(0x100000);
    f.list.HeaderHeight(20);
    f.list.HeaderClear();
    EXPECT_EQ(f.list.HeaderCount(), 0);
    EXPECT_TRUE(f.log().All().empty()) << f.log().All().front();
}

TEST(LargeListHeader, AWidthsTextRefreshes) {
    FakeLargeList f({.columns = 2}, 3);
    f.list.HeaderWidths("120-80");
    EXPECT_EQ(f.TakeAsked(), (Rows{1, 2, 3}));
    EXPECT_EQ(f.list.HeaderWidths(), "120-80");
}

TEST(LargeListHeader, PaintsButtonsCaptionsAndTheFiller) {
    FakeLargeList f({.columns = 0}, 1);
    f.list.HeaderHeight(24);
    f.list.HeaderAdd(0, "left", 50, "", 0, 0x11);
    f.list.HeaderAdd(0, "right", 60, "", 1, 0x22);
    f.list.HeaderAdd(0, "centred", 41, "", 2, 0x33);
    f.list.HeaderFlag(0x00500000);
    f.list.LockedPaint(true);
    f.list.Refresh();
    f.list.LockedPaint(false);
    f.Forget();
    f.PaintMessage({0, 0, 200, 24});
    const auto buttons = f.log().Named("DrawFrameControl");
    ASSERT_EQ(buttons.size(), 4u);
    EXPECT_EQ(buttons[0], (Call{"DrawFrameControl", {0, 0, 50, 24}, {4, 16}}));
    EXPECT_EQ(buttons[1], (Call{"DrawFrameControl", {50, 0, 110, 24}, {4, 16}}));
    EXPECT_EQ(buttons[2], (Call{"DrawFrameControl", {110, 0, 151, 24}, {4, 16}}));
    EXPECT_EQ(buttons[3], (Call{"DrawFrameControl", {151, 0, 225, 24}, {4, 16}}));
    const auto texts = f.log().Named("ExtTextOutA");
    ASSERT_EQ(texts.size(), 3u);
    const std::int32_t y = (24 - f.list.TextHeight()) / 2;
    const std::vector<std::tuple<std::int32_t, std::int32_t, std::int32_t>> expected{
        {3, 0, 0x11}, {107, 2, 0x22}, {130, 6, 0x33}};
    for (std::size_t i = 0; i < 3; ++i) {
        const auto& [x, align, color] = expected[i];
        EXPECT_EQ(texts[i].values[0], x);
        EXPECT_EQ(texts[i].values[1], y);
        EXPECT_EQ(texts[i].values[2], 4);
        EXPECT_EQ(texts[i].values[3], color);
        EXPECT_EQ(texts[i].values[5], align);
        EXPECT_EQ(texts[i].values[6], 1);
        EXPECT_EQ(texts[i].rect, buttons[i].rect);
    }
    EXPECT_TRUE(f.component.font->Bold());
    EXPECT_TRUE(f.component.font->Italic());
    EXPECT_FALSE(f.component.font->Underline());
    EXPECT_TRUE(f.asked.empty());
}

TEST(LargeListHeader, WideColumnsScrollSidewaysAndLeaveNoFiller) {
    FakeLargeList f({.columns = 3}, 1);
    f.list.HeaderHeight(20);
    f.list.Refresh();
    EXPECT_TRUE(f.hook().ScrollHBarShown());
    EXPECT_EQ(f.hook().ScrollHMax(), 100);
    EXPECT_EQ(f.hook().ScrollHLarge(), 200);
    f.hook().ScrollHValue(30);
    f.Forget();
    f.PaintMessage({0, 0, 200, 20});
    const auto buttons = f.log().Named("DrawFrameControl");
    ASSERT_EQ(buttons.size(), 3u);
    EXPECT_EQ(buttons[0].rect, (tvok_Rect{-30, 0, 70, 20}));
    EXPECT_EQ(buttons[2].rect, (tvok_Rect{170, 0, 270, 20}));
}

TEST(LargeListHeader, ANegativeCountPaintsNoHeader) {
    FakeLargeList f({.columns = 1}, 0);
    f.list.HeaderHeight(20);
    f.list.Refresh();
    EXPECT_THROW(f.list.HeaderCount(-1), SubscriptError);
    EXPECT_EQ(f.list.HeaderCount(), -1);
    f.Forget();
    f.PaintMessage({0, 0, 200, 20});
    EXPECT_TRUE(f.log().Named("DrawFrameControl").empty());
}

class DividerDrag : public testing::TestWithParam<std::int32_t> {};

TEST_P(DividerDrag, ResizesLiveAndGivesNoClick) {
    FakeLargeList f({.MultiSelect = GetParam(), .columns = 2}, 3);
    f.list.HeaderHeight(20);
    f.list.Refresh();
    f.list.ListIndex(2);
    f.Forget();
    f.Move(100, 10, 0);
    EXPECT_EQ(f.component.pointer, 9);
    f.Move(90, 10, 0);
    EXPECT_EQ(f.component.pointer, 0);
    f.Press(101, 10);
    f.Move(121, 60);
    EXPECT_EQ(f.list.HeaderWidths(), "120-100");
    EXPECT_EQ(f.TakeAsked(), (Rows{1, 2, 3}));
    f.Move(121, 90);
    EXPECT_TRUE(f.asked.empty());
    f.Move(-300, 90);
    EXPECT_EQ(f.list.HeaderWidths(), "10-100");
    f.Release(0, 10);
    f.Move(50, 30, 0);
    EXPECT_EQ(f.list.HeaderWidths(), "10-100");
    for (const auto& line : f.TakeEvents()) EXPECT_FALSE(line.starts_with("Click")) << line;
}

INSTANTIATE_TEST_SUITE_P(BothPaths, DividerDrag, testing::Values(0, 1));

} // namespace
} // namespace tvok::test
