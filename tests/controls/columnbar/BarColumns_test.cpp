#include "tvok/controls/columnbar/BarColumns.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tvok {
namespace {

constexpr std::int32_t cMost = INT32_MAX;

qrosterheader Wide(std::int32_t width, std::string text = {}) {
    return {.text = std::move(text), .hWidth = width};
}

BarColumns WithWidths(std::initializer_list<std::int32_t> widths, std::int32_t barWidth = 300) {
    BarColumns columns;
    for (const auto width : widths) columns.Set(0, Wide(width), barWidth);
    return columns;
}

std::string Texts(const BarColumns& columns) {
    std::string all;
    for (std::int32_t i = 1; i <= columns.Count(); ++i) all += columns.Get(i).text;
    return all;
}

// The store.

TEST(BarColumns, AnEmptyRecordComesFromOutsideTheColumns) {
    BarColumns columns;
    EXPECT_EQ(columns.Get(0), qrosterheader{});
    EXPECT_EQ(columns.Get(1), qrosterheader{});
    columns.Set(0, Wide(50, "a"), 300);
    EXPECT_EQ(columns.Get(-1), qrosterheader{});
    EXPECT_EQ(columns.Get(1).text, "a");
    EXPECT_EQ(columns.Get(2), qrosterheader{});
}

TEST(BarColumns, ARecordIsStoredWhole) {
    BarColumns columns;
    const qrosterheader all{"text", 50, "key", 0x123456, 2, 77, 88};
    columns.Set(0, all, 300);
    EXPECT_EQ(columns.Get(1), all);
    columns.Set(1, {}, 300);
    EXPECT_EQ(columns.Get(1), Wide(10));
}

TEST(BarColumns, InsertionMovesTheColumnsBehindUp) {
    BarColumns columns;
    for (const char* text : {"a", "b", "c"}) columns.Set(0, Wide(20, text), 300);
    columns.Set(-1, Wide(20, "x"), 300);
    EXPECT_EQ(Texts(columns), "xabc");
    columns.Set(-4, Wide(20, "y"), 300);
    EXPECT_EQ(Texts(columns), "xabyc");
    columns.Set(-2, Wide(20, "z"), 300);
    EXPECT_EQ(Texts(columns), "xzabyc");
}

TEST(BarColumns, AnIndexBeyondTheColumnsStoresNothing) {
    BarColumns columns;
    for (const char* text : {"a", "b", "c"}) columns.Set(0, Wide(20, text), 300);
    for (const std::int32_t index : {7, 4, -4, -7, cMost, INT32_MIN}) columns.Set(index, Wide(20, "x"), 300);
    EXPECT_EQ(Texts(columns), "abc");
    BarColumns none;
    none.Set(-1, Wide(20), 300);
    none.Set(1, Wide(20), 300);
    EXPECT_EQ(none.Count(), 0);
}

TEST(BarColumns, AnIndexBeyondTheColumnsFitsThemAllTheSame) {
    auto columns = WithWidths({100, 100});
    columns.Set(7, {}, 120);
    EXPECT_EQ(columns.Widths(), "60-60");
    columns.Set(-7, {}, 90);
    EXPECT_EQ(columns.Widths(), "45-45");
}

TEST(BarColumns, ARecordOfTheSameColumnsCanBeStored) {
    auto columns = WithWidths({20, 30, 40});
    columns.Set(-1, columns[3], 300);
    columns.Set(0, columns[2], 300);
    EXPECT_EQ(columns.Widths(), "40-20-30-40-20");
}

TEST(BarColumns, RemovingKeepsTheOtherWidths) {
    auto columns = WithWidths({20, 30, 40});
    columns.Remove(2);
    EXPECT_EQ(columns.Widths(), "20-40");
    for (const std::int32_t index : {0, 3, -1, cMost, INT32_MIN}) columns.Remove(index);
    EXPECT_EQ(columns.Widths(), "20-40");
    columns.Remove(2);
    columns.Remove(1);
    EXPECT_EQ(columns.Count(), 0);
    columns.Remove(1);
    EXPECT_EQ(columns.Count(), 0);
}

// The array keeps what is behind the last column until it is made shorter; a host sees that by a greater
// count.

TEST(BarColumns, TheRecordBehindARemovedOneStaysInTheArray) {
    auto columns = WithWidths({20, 30, 40});
    columns.Remove(1);
    columns.Count(3);
    EXPECT_EQ(columns.Widths(), "30-40-40");
}

TEST(BarColumns, ClearedColumnsComeBackWithTheCount) {
    auto columns = WithWidths({20, 30, 40});
    columns.Clear();
    EXPECT_EQ(columns.Count(), 0);
    EXPECT_EQ(columns.Widths(), "");
    columns.Count(2);
    EXPECT_EQ(columns.Widths(), "20-30");
}

TEST(BarColumns, AnAppendAfterClearMakesTheArrayShorter) {
    auto columns = WithWidths({20, 30, 40});
    columns.Clear();
    columns.Set(0, Wide(50), 300);
    columns.Count(3);
    EXPECT_EQ(columns.Widths(), "50-0-0");
}

TEST(BarColumns, DroppedColumnsStayInTheArray) {
    auto columns = WithWidths({50, 50, 50});
    columns.Set(1, Wide(50, "a"), 25);
    EXPECT_EQ(columns.Widths(), "10-10");
    columns.Count(3);
    EXPECT_EQ(columns.Widths(), "10-10-10");
}

TEST(BarColumns, AGreaterCountMakesEmptyColumns) {
    auto columns = WithWidths({20});
    columns.Count(3);
    EXPECT_EQ(columns.Widths(), "20-0-0");
    EXPECT_EQ(columns.Get(3), qrosterheader{});
    columns.Count(1);
    columns.Count(2);
    EXPECT_EQ(columns.Widths(), "20-0");
}

TEST(BarColumns, ANegativeCountIsAnErrorAfterItHasChanged) {
    auto columns = WithWidths({20, 30});
    EXPECT_THROW(columns.Count(-3), SubscriptError);
    EXPECT_EQ(columns.Count(), -3);
    EXPECT_EQ(columns.Widths(), "");
    EXPECT_EQ(columns.Sum(), 0);
    EXPECT_EQ(columns.Get(1), qrosterheader{});
    EXPECT_EQ(columns.EdgeFromPoint(20, 5, 20), 0);
    EXPECT_EQ(columns.ColumnFromPoint(20, 5, 300, 20), 0);
    columns.Count(2); // the count before is below 0
    EXPECT_EQ(columns.Count(), -3);
    EXPECT_FALSE(columns.Set(-1, Wide(20), 300));
    EXPECT_FALSE(columns.Set(1, Wide(20), 300));
    EXPECT_THROW(columns.Set(0, Wide(20), 300), SubscriptError);
    EXPECT_EQ(columns.Count(), -3);
    columns.Clear();
    columns.Count(2);
    EXPECT_EQ(columns.Widths(), "20-30");
}

TEST(BarColumns, AnAppendToACountOfMinusOneFillsTheEntryThatIsNotUsed) {
    BarColumns columns;
    EXPECT_THROW(columns.Count(-1), SubscriptError);
    columns.Set(0, Wide(20), 300);
    EXPECT_EQ(columns.Count(), 0);
    columns.Set(0, Wide(30), 300);
    EXPECT_EQ(columns.Widths(), "30");
}

// Fitting.

TEST(BarColumns, OlderColumnsPayForEachNewOne) {
    BarColumns columns;
    columns.Set(0, Wide(200), 300);
    EXPECT_EQ(columns.Widths(), "200");
    columns.Set(0, Wide(200), 300);
    EXPECT_EQ(columns.Widths(), "150-150");
    columns.Set(0, Wide(200), 300);
    EXPECT_EQ(columns.Widths(), "83-83-133");
}

TEST(BarColumns, ColumnsThatFitStayAsTheyAre) {
    EXPECT_EQ(WithWidths({100, 100, 100}).Widths(), "100-100-100");
    EXPECT_EQ(WithWidths({100, 100, 101}).Widths(), "99-99-100");
    EXPECT_EQ(WithWidths({5, -7, 0}).Widths(), "10-10-10");
}

TEST(BarColumns, AWideColumnPaysOnWhenTheOthersAreAtTen) {
    EXPECT_EQ(WithWidths({12, 12, 400}, 100).Widths(), "10-10-80"); // 108 each, then 71 each, and so on
    EXPECT_EQ(WithWidths({cMost, cMost, cMost}, 300).Sum() <= 300, true);
}

TEST(BarColumns, WhatDoesNotFitAtTenIsDropped) {
    BarColumns columns;
    for (int i = 0; i < 40; ++i) EXPECT_EQ(columns.Set(0, Wide(10), 300), i >= 30);
    EXPECT_EQ(columns.Count(), 30);
    EXPECT_EQ(WithWidths({50}, 9).Count(), 0);
    EXPECT_EQ(WithWidths({50}, 10).Count(), 1);
    EXPECT_EQ(WithWidths({80, 80}, 0).Count(), 0);
}

TEST(BarColumns, AnInsertionMayDropTheLastColumnInItsPlace) {
    BarColumns columns;
    for (const char* text : {"a", "b", "c"}) columns.Set(0, Wide(10, text), 30);
    EXPECT_TRUE(columns.Set(-1, Wide(10, "x"), 30));
    EXPECT_EQ(Texts(columns), "xab");
}

/// The fit as it is told: rounds over all columns.
std::vector<std::int32_t> FittedPlainly(std::vector<std::int32_t> widths, std::int32_t barWidth) {
    const auto count = static_cast<std::int64_t>(widths.size());
    for (bool more = true; more;) {
        std::int64_t sum = 0;
        for (auto& width : widths) sum += width = std::max(width, 10);
        if (sum <= barWidth) break;
        const std::int64_t excess = sum - barWidth;
        const std::int64_t cut = excess / count + (excess % count != 0 ? 1 : 0);
        more = false;
        for (auto& width : widths) {
            width = static_cast<std::int32_t>(std::max<std::int64_t>(width - cut, 10));
            more = more || width != 10;
        }
    }
    std::int64_t edge = 0;
    for (std::size_t i = 0; i < widths.size(); ++i)
        if ((edge += widths[i]) > barWidth) widths.resize(i);
    return widths;
}

TEST(BarColumns, FitAsRoundsOverAllColumnsWould) {
    std::mt19937 random(3);
    const auto pick = [&](std::int32_t low, std::int32_t high) {
        return std::uniform_int_distribution<std::int32_t>(low, high)(random);
    };
    for (int run = 0; run < 3000; ++run) {
        const std::int32_t barWidth = pick(0, pick(0, 3) == 0 ? 2000 : 200);
        std::vector<std::int32_t> widths(static_cast<std::size_t>(pick(1, 12)));
        for (auto& width : widths) width = pick(0, 9) == 0 ? pick(0, cMost) : pick(-5, 90);
        BarColumns columns;
        columns.Count(static_cast<std::int32_t>(widths.size()));
        for (std::size_t i = 0; i < widths.size(); ++i) // into a bar where everything fits
            columns.Set(static_cast<std::int32_t>(i + 1), Wide(std::min(widths[i], 100'000'000)), cMost);
        for (auto& width : widths) width = std::min(width, 100'000'000);
        columns.Set(cMost, {}, barWidth);
        std::vector<std::int32_t> fitted;
        for (std::int32_t i = 1; i <= columns.Count(); ++i) fitted.push_back(columns[i].hWidth);
        ASSERT_EQ(fitted, FittedPlainly(widths, barWidth)) << "run " << run << ", bar " << barWidth;
    }
}

TEST(BarColumns, AHundredThousandColumnsAreFittedInOneBreath) {
    BarColumns columns; // rounds over all of them would be some 10^11 steps
    columns.Count(100'000);
    columns.Set(1, Wide(cMost), 1'000'000);
    EXPECT_EQ(columns.Count(), 100'000);
    EXPECT_EQ(columns.Sum(), 1'000'000);
    EXPECT_EQ(columns.Get(1).hWidth, 10);
}

// The text of widths.

TEST(BarColumns, WidthsGoToAndComeFromAText) {
    auto columns = WithWidths({20, 30, 40});
    EXPECT_EQ(columns.Widths(), "20-30-40");
    EXPECT_TRUE(columns.Widths("11-9-x-77"));
    EXPECT_EQ(columns.Widths(), "11-30-40");
    EXPECT_TRUE(columns.Widths("-400"));
    EXPECT_EQ(columns.Widths(), "11-400-40");
    EXPECT_TRUE(columns.Widths("99999999999-25.5-26.5"));
    EXPECT_EQ(columns.Widths(), "11-26-26");
    EXPECT_FALSE(columns.Widths(""));
    EXPECT_FALSE(columns.Widths("   "));
    EXPECT_EQ(columns.Widths(), "11-26-26");
}

// Points.

TEST(BarColumns, ADividerIsFivePixelsWide) {
    const auto columns = WithWidths({50, 60, 70});
    for (std::int32_t x = -5; x <= 310; ++x) {
        const std::int32_t expected = x >= 48 && x <= 52     ? 1
                                      : x >= 108 && x <= 112 ? 2
                                      : x >= 178 && x <= 182 ? 3
                                                             : 0;
        EXPECT_EQ(columns.EdgeFromPoint(x, 10, 20), expected) << x;
    }
    EXPECT_EQ(columns.EdgeFromPoint(50, -1, 20), 0);
    EXPECT_EQ(columns.EdgeFromPoint(50, 0, 20), 1);
    EXPECT_EQ(columns.EdgeFromPoint(50, 20, 20), 1);
    EXPECT_EQ(columns.EdgeFromPoint(50, 21, 20), 0);
}

TEST(BarColumns, TheLowerColumnWinsWhereDividersLieTogether) {
    auto columns = WithWidths({50});
    columns.Count(3); // two of width 0
    EXPECT_EQ(columns.EdgeFromPoint(50, 10, 20), 1);
    columns.Remove(1);
    EXPECT_EQ(columns.EdgeFromPoint(0, 10, 20), 1);
}

TEST(BarColumns, AColumnIsHitThreePixelsAwayFromItsDividers) {
    const auto columns = WithWidths({50, 60, 70});
    for (std::int32_t x = 0; x <= 300; ++x) {
        const std::int32_t expected = x < 47               ? 1
                                      : x > 53 && x < 107  ? 2
                                      : x > 113 && x < 177 ? 3
                                      : x > 183            ? 0
                                                           : -1;
        EXPECT_EQ(columns.ColumnFromPoint(x, 10, 300, 20), expected) << x;
    }
}

TEST(BarColumns, APointOutsideTheBarHitsNothing) {
    const auto columns = WithWidths({50, 60});
    for (const auto& [x, y] : {std::pair{-1, 10}, {10, -1}, {301, 10}, {10, 21}})
        EXPECT_EQ(columns.ColumnFromPoint(x, y, 300, 20), -1) << x << ", " << y;
    EXPECT_EQ(columns.ColumnFromPoint(0, 0, 300, 20), 1);
    EXPECT_EQ(columns.ColumnFromPoint(300, 20, 300, 20), 0);
    EXPECT_EQ(BarColumns().ColumnFromPoint(5, 5, 300, 20), 0);
    EXPECT_EQ(BarColumns().ColumnFromPoint(-5, 5, 300, 20), -1);
}

TEST(BarColumns, NearTheDividerOfALoneColumnIsTheEmptyPart) {
    const auto columns = WithWidths({50});
    EXPECT_EQ(columns.ColumnFromPoint(46, 10, 300, 20), 1);
    for (std::int32_t x = 47; x <= 300; ++x) EXPECT_EQ(columns.ColumnFromPoint(x, 10, 300, 20), 0) << x;
    auto narrow = WithWidths({10});
    narrow.Count(0);
    narrow.Count(1); // one empty column of width 0
    EXPECT_EQ(narrow.Get(1).hWidth, 0);
    EXPECT_EQ(narrow.ColumnFromPoint(3, 10, 300, 20), -1);
    EXPECT_EQ(narrow.ColumnFromPoint(4, 10, 300, 20), 0);
}

// The drag.

TEST(BarColumns, ADividerMovesTwoColumnsAndKeepsTheirSum) {
    auto columns = WithWidths({50, 60, 70});
    EXPECT_TRUE(columns.StartSizing(1, 51, 300));
    EXPECT_TRUE(columns.IsSizing());
    EXPECT_FALSE(columns.SizeTo(51));
    EXPECT_TRUE(columns.SizeTo(71));
    EXPECT_EQ(columns.Widths(), "70-40-70");
    EXPECT_TRUE(columns.SizeTo(-400));
    EXPECT_EQ(columns.Widths(), "10-100-70");
    EXPECT_FALSE(columns.SizeTo(-401));
    EXPECT_TRUE(columns.SizeTo(400));
    EXPECT_EQ(columns.Widths(), "100-10-70");
    EXPECT_TRUE(columns.SizeTo(401)); // more than there is room for, again
    EXPECT_EQ(columns.Widths(), "100-10-70");
    columns.StopSizing();
    EXPECT_FALSE(columns.SizeTo(60));
    EXPECT_EQ(columns.Widths(), "100-10-70");
}

TEST(BarColumns, TheLastDividerMovesFreelyUpToTheBarsEdge) {
    auto columns = WithWidths({50, 60, 70});
    columns.StartSizing(3, 180, 300);
    columns.SizeTo(230);
    EXPECT_EQ(columns.Widths(), "50-60-120");
    columns.SizeTo(900);
    EXPECT_EQ(columns.Widths(), "50-60-190");
    columns.SizeTo(0);
    EXPECT_EQ(columns.Widths(), "50-60-10");
}

TEST(BarColumns, TheLastColumnOfABarThatIsTooFullGetsWhatIsLeft) {
    auto columns = WithWidths({100, 100});
    columns.StartSizing(2, 200, 95); // the bar has become narrower than the first column
    EXPECT_TRUE(columns.SizeTo(201));
    EXPECT_EQ(columns.Widths(), "100--5");
}

TEST(BarColumns, TwoColumnsTooNarrowForTheMinimumLeaveTheFirstTheRest) {
    BarColumns columns;
    columns.Count(2);
    columns.StartSizing(1, 0, 300);
    EXPECT_TRUE(columns.SizeTo(0));
    EXPECT_EQ(columns.Widths(), "-10-10");
}

TEST(BarColumns, StartingAtNoDividerStopsADrag) {
    auto columns = WithWidths({50, 60});
    columns.StartSizing(1, 50, 300);
    EXPECT_FALSE(columns.StartSizing(0, 50, 300));
    EXPECT_FALSE(columns.IsSizing());
}

TEST(BarColumns, AColumnThatIsGoneIsSizedBehindTheOthersWhileItsRecordIsThere) {
    auto columns = WithWidths({50, 60, 70});
    columns.StartSizing(1, 50, 300);
    columns.Clear();
    EXPECT_TRUE(columns.SizeTo(70));
    columns.Count(3);
    EXPECT_EQ(columns.Widths(), "70-40-70");

    columns.StartSizing(3, 180, 300);
    columns.Clear();
    EXPECT_TRUE(columns.SizeTo(200)); // it has no neighbour to share with
    columns.Count(3);
    EXPECT_EQ(columns.Widths(), "70-40-90");
    columns.Count(2);
    EXPECT_FALSE(columns.SizeTo(100));
    EXPECT_EQ(columns.Widths(), "70-40");
}

TEST(BarColumns, WhichColumnIsTheLastIsDecidedAtEachStepAndTheRoomAtThePress) {
    auto columns = WithWidths({50, 60});
    columns.StartSizing(1, 50, 300);
    columns.Remove(2);
    EXPECT_TRUE(columns.SizeTo(400));
    EXPECT_EQ(columns.Widths(), "110");

    auto grown = WithWidths({50, 60});
    grown.StartSizing(2, 110, 300);
    grown.Count(3);
    EXPECT_TRUE(grown.SizeTo(130));
    EXPECT_EQ(grown.Widths(), "50-80-170");
}

TEST(BarColumns, AWidthThatHasNoPlaceIsAnError) {
    auto columns = WithWidths({50, 60});
    columns.Widths("2147483647-2147483647");
    EXPECT_EQ(columns.Sum(), 2 * std::int64_t{cMost});
    EXPECT_THROW(columns.StartSizing(1, 0, 300), OverflowError);
    EXPECT_TRUE(columns.IsSizing()) << "the divider was noted before";
    EXPECT_TRUE(columns.StartSizing(2, -5, 300));
    EXPECT_THROW(columns.SizeTo(5), OverflowError);
    EXPECT_EQ(columns.Widths(), "2147483647-2147483647");
}

} // namespace
} // namespace tvok
