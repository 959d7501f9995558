/// The edges of the arithmetic and of a list's life: what does not fit is an error and no wrap, and what a
/// handler does in the middle of a repaint leaves no row behind.
#include <cstdint>
#include <limits>

#include "tests/support/FakeLargeList.h"

namespace tvok::test {
namespace {

constexpr std::int32_t cMost = std::numeric_limits<std::int32_t>::max();

struct HandlersOwn : std::exception {};

TEST(LargeListEdges, RowsOfHeightZeroAreAnOverflowErrorAndAQuietResize) {
    FakeLargeList f;
    f.bag.stored["ItemHeight"] = 0;
    EXPECT_THROW(f.list.ReadProperties(f.bag), OverflowError);
    EXPECT_NO_THROW(f.list.Resize());
    f.bag.stored["ItemHeight"] = 18;
    f.bag.stored["GridlineWidth"] = -18;
    EXPECT_THROW(f.list.ReadProperties(f.bag), OverflowError);
}

TEST(LargeListEdges, ARowThatEndsAtTheLastPixelIsAnOverflowError) {
    FakeLargeList f({}, 3);
    EXPECT_THROW(f.list.ItemHeight(cMost), OverflowError);
    f.list.ItemHeight(20);
    EXPECT_EQ(f.list.yn(), 5);
}

TEST(LargeListEdges, MoreSlotsThanThereAreNumbersAreAnOverflowErrorAndLeaveThePage) {
    FakeLargeList f({}, 3);
    f.bag.stored["ItemHeight"] = 1;
    f.list.HeaderHeight(-(cMost - 100));
    EXPECT_THROW(f.list.ReadProperties(f.bag), OverflowError);
    EXPECT_EQ(f.list.yn(), 5);
    f.list.HeaderHeight(0);
    f.list.ItemHeight(20);
    f.Forget();
    f.list.PaintAll();
    EXPECT_EQ(f.TakeAsked(), (Rows{1, 2, 3}));
}

TEST(LargeListEdges, ColumnsPastTheLastPixelLeaveNoDrawingObjectBehind) {
    FakeLargeList f({.GridlineWidth = 1, .columns = 2}, 3);
    EXPECT_NO_THROW(f.list.HeaderWidths(std::to_string(cMost) + "-" + std::to_string(cMost)));
    EXPECT_THROW(f.list.PaintAll(), OverflowError);
    EXPECT_EQ(f.log().LiveObjects(), 0u);
    EXPECT_EQ(f.log().Slips(), 0);
    EXPECT_EQ(f.log().pen, CallLog::cFirstPen);
}

TEST(LargeListEdges, TheLargestCachesTakeNoMoreThanTheirRowsDo) {
    FakeLargeList f({}, 3);
    f.list.CacheSize(cMost);
    EXPECT_EQ(f.list.CacheSize(), 128);
    f.list.FileBufCreate(cMost);
    f.list.FileBufValue(3, 7);
    EXPECT_EQ(f.list.FileBufValue(3), 7);
}

TEST(LargeListEdges, ARowThatCannotBeShownLeavesThePixelsWhereTheyWereMoved) {
    FakeLargeList f({}, 100);
    f.hook().ScrollValue(95);
    f.fill = [](std::int32_t&, qrosterdata&) { throw HandlersOwn(); };
    EXPECT_THROW(f.list.AddItemButtom(), HandlersOwn);
    EXPECT_EQ(f.list.Count(), 101);
    f.fill = nullptr;
    f.Forget();
    f.hook().ScrollValue(95);
    EXPECT_EQ(f.TakeScrolls(), (Rows{20}));
}

TEST(LargeListEdges, AHandlerThatScrollsDuringAnAddMovesFromThatAdd) {
    FakeLargeList f({}, 100);
    f.hook().ScrollValue(95);
    f.Forget();
    f.fill = [&](std::int32_t& row, qrosterdata&) {
        if (row == 101) f.hook().ScrollValue(92);
    };
    f.list.AddItemButtom();
    EXPECT_EQ(f.TakeScrolls(), (Rows{-20, 80}));
    EXPECT_EQ(f.TakeAsked(), (Rows{101, 93, 94, 95, 96}));
}

TEST(LargeListEdges, RowsThatMoveDuringARepaintAreStillPainted) {
    FakeLargeList f({}, 100);
    f.hook().ScrollValue(92);
    f.Forget();
    bool added = false;
    f.fill = [&](std::int32_t& row, qrosterdata&) {
        if (row == 98 && !std::exchange(added, true)) f.list.AddItemButtom();
    };
    f.hook().ScrollValue(95); // uncovers rows 98, 99 and 100; the add moves the last two up unpainted
    EXPECT_EQ(f.TakeAsked(), (Rows{98, 101, 99, 100}));
}

TEST(LargeListEdges, RowsThatMoveDownDuringARepaintAreNotPaintedTwice) {
    FakeLargeList f({}, 100);
    f.list.ViewMode(0);
    f.list.Refresh();
    f.Forget();
    bool added = false;
    f.fill = [&](std::int32_t& row, qrosterdata&) {
        if (row == 99 && !std::exchange(added, true)) f.list.AddItemTop();
    };
    f.list.PaintAll();
    EXPECT_EQ(f.TakeAsked(), (Rows{100, 99, 101, 98, 97}));
}

TEST(LargeListEdges, RowsThatMoveDuringAPaintMessageAreRepaintedAfterIt) {
    FakeLargeList f({}, 100);
    f.hook().ScrollValue(95);
    f.Forget();
    bool added = false;
    f.fill = [&](std::int32_t& row, qrosterdata&) {
        if (row == 98 && !std::exchange(added, true)) f.list.AddItemButtom();
    };
    f.PaintMessage({0, 40, 200, 60});
    EXPECT_EQ(f.TakeAsked(), (Rows{98, 101, 97, 98, 99, 100, 101}));
}

TEST(LargeListEdges, AHandlerThatAddsAThousandRowsAtOnceEnds) {
    FakeLargeList f({}, 100);
    f.hook().ScrollValue(95);
    bool added = false;
    f.fill = [&](std::int32_t&, qrosterdata&) {
        if (std::exchange(added, true)) return;
        for (int i = 0; i < 1000; ++i) f.list.AddItemButtom();
    };
    f.list.PaintAll();
    EXPECT_EQ(f.list.Count(), 1100);
    EXPECT_EQ(f.hook().ScrollValue(), 1095);
}

TEST(LargeListEdges, TheCurrentRowIsWrittenAtDesignTimeWithoutARepaint) {
    FakeLargeList f({.UserMode = false});
    f.list.Count(5);
    f.Forget();
    EXPECT_NO_THROW(f.list.ListIndex(2));
    EXPECT_EQ(f.list.ListIndex(), 2);
    EXPECT_TRUE(f.log().Drawing().empty());
}

TEST(LargeListEdges, AListThatWasRemovedMayComeBack) {
    FakeLargeList f({}, 3);
    f.list.FileBufCreate(2000);
    f.list.Terminate();
    EXPECT_THROW(f.list.Font(), ObjectError);
    EXPECT_THROW(f.list.BackColor(0), ObjectError);
    f.list.Initialize(f.component);
    f.list.ReadProperties(f.bag);
    EXPECT_EQ(f.list.Count(), 0);
    EXPECT_EQ(f.list.HeaderCount(), 0);
    f.Forget();
    f.list.Count(3);
    f.list.PaintAll();
    EXPECT_GE(f.TakeAsked().size(), 3u);
}

TEST(LargeListEdges, AHandlerThatEndsTheListGetsNoFurtherEvents) {
    for (const bool byKey : {false, true}) {
        FakeLargeList f({.MultiSelect = 1}, 20);
        f.PressSlot(1);
        f.MoveToSlot(3);
        f.Release();
        f.list.KeySeek(true);
        f.fill = [&](std::int32_t&, qrosterdata&) { f.list.Terminate(); };
        f.TakeEvents();
        EXPECT_NO_THROW(byKey ? f.Key(65) : f.PressSlot(4));
        EXPECT_EQ(f.TakeEvents(), Lines{});
    }
}

TEST(LargeListEdges, AppendsLiftANegativeCountOneByOne) {
    FakeLargeList f({.columns = 0});
    EXPECT_THROW(f.list.HeaderCount(-3), SubscriptError);
    for (int i = 0; i < 3; ++i) f.list.HeaderAdd(0, "lost");
    EXPECT_EQ(f.list.HeaderCount(), 0);
    f.list.HeaderAdd(0, "first");
    EXPECT_EQ(f.list.HeaderCount(), 1);
    EXPECT_EQ(f.list.HeaderGet(1).text, "first");
}

TEST(LargeListEdges, AColumnBeyondSixteenBitsIsThereAndEmpty) {
    FakeLargeList f({.columns = 0});
    f.list.HeaderCount(32766);
    f.list.HeaderAdd(0, "last");
    f.list.HeaderAdd(0, "beyond");
    EXPECT_EQ(f.list.HeaderCount(), 32768);
    EXPECT_EQ(f.list.HeaderGet(32767).text, "last");
    EXPECT_EQ(f.list.HeaderGet(32768).hWidth, 0);
}

TEST(LargeListEdges, ARecordThatTheFileHoldsInPartReadsAsZero) {
    FakeLargeList f({}, 3);
    f.list.FileBufCreate(10);
    f.list.FileBufValue(1, 11);
    f.list.FileBufValue(2, 0x01010101);
    f.list.Clear(); // which forgets what was read
    f.list.Count(3);
    std::filesystem::resize_file(f.services.files.paths.back(), 6);
    EXPECT_EQ(f.list.FileBufValue(1), 11);
    EXPECT_EQ(f.list.FileBufValue(2), 0);
    EXPECT_EQ(f.list.FileBufValue(3), 0);
}

} // namespace
} // namespace tvok::test
