/// Bars, bands and rows of a `qRosterex` that is scrolled sideways, too small, very tall or at the end of its
/// columns.
#include "tests/support/FakeLargeList.h"

namespace tvok::test {
namespace {

qrosterdata Plain(std::string text, std::int32_t flags = 0) {
    return {.text = std::move(text), .IconPos = 0, .bColor = 0xFFFFFF, .fcolor = 0x112233, .vflag = flags};
}

/// One row of one column of 250 pixels in a list of 200.
struct WideList : FakeLargeList {
    qrosterdata record = Plain("wide");

    explicit WideList(const LargeListSetup& setup = {.columns = 0}) : FakeLargeList(setup, 0) {
        list.HeaderAdd(0, "wide", 250);
        list.Count(1);
        fill = [this](std::int32_t&, qrosterdata& x) { x = record; };
    }
    void PaintAt(std::int32_t position) {
        hook().ScrollHValue(position);
        Forget();
        list.DrawItem(1);
    }
    std::vector<tvok_Rect> Fills() {
        std::vector<tvok_Rect> rects;
        for (const Call& call : log().Named("FillRect")) rects.push_back(call.rect);
        return rects;
    }
};

using Rects = std::vector<tvok_Rect>;

TEST(LargeListSideways, IconColumnIconAndTextMoveTogether) {
    WideList f;
    f.list.ShowIcon(true);
    f.list.IconHandle(55);
    f.list.IconCX(3);
    f.list.IconCY(4);
    f.record.IconID = 1;
    f.record.IconPos = 5;
    f.PaintAt(30);
    EXPECT_EQ(f.Fills(), (Rects{{-30, 0, -5, 20}}));
    EXPECT_EQ(f.log().Named("ImageList_Draw"), (Calls{ImageCall(55, 1, 3 - 30 + 5, 4)}));
    const auto text = f.log().Named("ExtTextOutA").front();
    EXPECT_EQ(text.rect, (tvok_Rect{-5, 0, 220, 20}));
    EXPECT_EQ(text.values[0], -4);
}

TEST(LargeListSideways, TheSwatchMovesWithThem) {
    WideList f;
    f.list.IconCX(3);
    f.list.IconCY(4);
    f.record.vflag = 0x1000;
    f.record.IconPos = 5;
    f.PaintAt(30);
    EXPECT_EQ(f.log().Named("Rectangle").front().rect, (tvok_Rect{-22, 4, -22 + 14 + 5, 4 + 14}));
}

TEST(LargeListSideways, TheFocusRectangleMovesWithTheColumns) {
    WideList f;
    f.log().focus = FakeComponent::cWindow;
    f.list.ListIndex(1);
    f.PaintAt(30);
    EXPECT_EQ(f.log().Named("DrawFocusRect").front().rect, (tvok_Rect{-30, 0, 220, 20}));
}

TEST(LargeListSideways, TheRestIsFilledUpToTheLastPixelOfTheColumns) {
    WideList f;
    f.list.CX_TEXT(0);
    f.PaintAt(49);
    EXPECT_EQ(f.Fills(), (Rects{})); // the cell ends one pixel beyond the edge
    f.PaintAt(50);
    EXPECT_EQ(f.Fills(), (Rects{{200, 0, 200, 21}})); // and here at the edge
}

TEST(LargeListSideways, BlankSlotsStayWhereTheyAre) {
    WideList f;
    f.hook().ScrollHValue(30);
    f.Forget();
    f.PaintMessage({0, 20, 200, 40});
    EXPECT_EQ(f.Fills(), (Rects{{0, 20, 200, 41}}));
}

TEST(LargeListSideways, LinesOfASecondColumnStartAtItsLeftEdge) {
    FakeLargeList f({.GridlineWidth = 1, .columns = 3}, 1);
    f.hook().ScrollHValue(30);
    f.Forget();
    f.list.DrawItem(1);
    EXPECT_EQ(f.log().Named("MoveToEx")[3].values, (Rows{8, 169, 0}));
    EXPECT_EQ(f.log().Named("LineTo")[3].values, (Rows{8, 169, 20}));
}

TEST(LargeListSideways, APressOnTheIconColumnIsMeasuredFromItsOwnEdge) {
    for (const std::int32_t multi : {0, 1}) {
        WideList f({.MultiSelect = multi, .columns = 0});
        f.list.ShowIcon(true);
        f.hook().ScrollHValue(15);
        f.Press(4, 10);
        EXPECT_TRUE(f.list.MouseDownOnIcon());
        f.Release(4, 10);
        f.Press(5, 10);
        EXPECT_FALSE(f.list.MouseDownOnIcon());
    }
}

TEST(LargeListSideways, ADividerIsMeasuredFromTheColumnsEdge) {
    for (const std::int32_t multi : {0, 1}) {
        WideList f({.MultiSelect = multi, .columns = 0});
        f.list.HeaderSet(1, {.hWidth = 100});
        f.list.HeaderAdd(0, "next", 200);
        f.list.HeaderHeight(20);
        f.list.Refresh();
        f.hook().ScrollHValue(30);
        f.Move(70, 10, 0);
        EXPECT_EQ(f.component.pointer, 9);
        f.Move(100, 10, 0);
        EXPECT_EQ(f.component.pointer, 0);
        f.Press(72, 10);
        f.Move(82, 10);
        EXPECT_EQ(f.list.HeaderWidths(), "110-200");
        f.Release(82, 10);
    }
}

TEST(LargeListSideways, AMoveIsFollowedByVerticalOnesThatMovePixels) {
    FakeLargeList f({.columns = 3}, 100);
    f.hook().ScrollValue(2);
    f.hook().ScrollHValue(10);
    f.Forget();
    f.hook().ScrollValue(3);
    EXPECT_EQ(f.TakeScrolls(), (Rows{-20}));
    f.Forget();
    f.hook().events.Scroll(3, 11, 0); // the other event of the bars does the same
    EXPECT_FALSE(f.TakeAsked().empty());
}

TEST(LargeListSideways, WithTheNewestAtTheTopOneFullRepaintComesFirst) {
    FakeLargeList f({.columns = 3}, 100);
    f.list.ViewMode(0);
    f.list.Refresh();
    f.hook().ScrollHValue(10);
    f.Forget();
    f.hook().ScrollValue(1);
    EXPECT_EQ(f.TakeScrolls(), (Rows{}));
    EXPECT_EQ(f.TakeAsked(), (Rows{99, 98, 97, 96, 95}));
    f.hook().ScrollValue(2);
    EXPECT_EQ(f.TakeScrolls(), (Rows{-20}));
}

TEST(LargeListSideways, CellsAreCentredTowardZero) {
    FakeLargeList f({.columns = 0});
    f.list.HeaderAdd(0, "a", 41, "", 2);
    f.list.HeaderAdd(0, "b", 300);
    f.list.HeaderHeight(5);
    f.list.Refresh();
    f.hook().ScrollHValue(100);
    f.Forget();
    f.PaintMessage({0, 0, 200, 5});
    const auto caption = f.log().Named("ExtTextOutA").front();
    EXPECT_EQ(caption.rect, (tvok_Rect{-100, 0, -59, 5}));
    EXPECT_EQ(caption.values[0], -79); // of -79.5
    EXPECT_EQ(caption.values[1], -5);  // of (5 - 16) / 2
}

TEST(LargeListBand, IsPaintedWhereTheRectangleMeetsItAndInTranslatedColours) {
    FakeLargeList f({.columns = 0}, 3);
    f.list.HeaderAdd(0, "a", 100, "", 0, SystemColor(18));
    f.list.HeaderHeight(24);
    f.list.Refresh();
    f.Forget();
    f.PaintMessage({0, 24, 200, 100});
    EXPECT_TRUE(f.log().Named("DrawFrameControl").empty());
    f.PaintMessage({0, 23, 200, 24});
    EXPECT_EQ(f.log().Named("DrawFrameControl").size(), 2u);
    const auto caption = f.log().Named("ExtTextOutA").back();
    EXPECT_EQ(caption.text, "a");
    EXPECT_EQ(caption.values[3], Sys(18));
}

TEST(LargeListBand, TheFillerEndsWhereTheColumnsReachTheEdge) {
    for (const std::int32_t last : {99, 100}) {
        FakeLargeList f({.columns = 1}, 0);
        f.list.HeaderAdd(0, "b", last);
        f.list.HeaderHeight(20);
        f.list.Refresh();
        f.Forget();
        f.PaintMessage({0, 0, 200, 20});
        const auto buttons = f.log().Named("DrawFrameControl");
        EXPECT_EQ(buttons.size(), last == 100 ? 2u : 3u);
        if (last == 99) {
            EXPECT_EQ(buttons.back().rect, (tvok_Rect{199, 0, 225, 20}));
        }
    }
}

TEST(LargeListBand, ItsFlagsAreTheFontBitsAlone) {
    FakeLargeList f({.columns = 1}, 0);
    f.list.HeaderHeight(20);
    f.list.HeaderFlag(0x00A00000);
    f.list.Refresh();
    EXPECT_TRUE(f.component.font->Underline());
    EXPECT_TRUE(f.component.font->Strikethrough());
    EXPECT_FALSE(f.component.font->Bold());
    EXPECT_FALSE(f.component.font->Italic());
    f.list.HeaderFlag(~0x00F00000);
    f.list.Refresh();
    EXPECT_FALSE(f.component.font->Underline());
    EXPECT_FALSE(f.component.font->Strikethrough());
    EXPECT_FALSE(f.component.font->Bold());
    EXPECT_FALSE(f.component.font->Italic());
}

TEST(LargeListBand, IsDroppedFromThePageAndMayLeaveNoRow) {
    FakeLargeList f({}, 100);
    f.list.HeaderHeight(21);
    f.list.Refresh();
    EXPECT_EQ(f.list.yn(), 3); // of 79 pixels
    f.Forget();
    f.list.PaintAll();
    EXPECT_EQ(f.log().Named("ExtTextOutA")[1].rect.Top, 21);
    f.list.HeaderHeight(150);
    f.list.Refresh();
    EXPECT_EQ(f.list.yn(), 0);
    f.Forget();
    f.list.PaintAll();
    EXPECT_TRUE(f.asked.empty());
}

TEST(LargeListFlags, NoOtherBitHasAnEffect) {
    FakeLargeList f({.GridlineWidth = 1, .columns = 2}, 1);
    const auto paint = [&](std::int32_t flags) {
        f.fill = [flags](std::int32_t&, qrosterdata& x) { x = Plain("a\tb", flags); };
        f.Forget();
        f.list.DrawItem(1);
        return f.log().Drawing();
    };
    const auto plain = paint(0);
    EXPECT_EQ(paint(~(0x00F00000 | 0x40000000 | 0x3000)), plain);
    EXPECT_NE(paint(0x40000000), plain);
    EXPECT_NE(paint(0x1000), plain);
    EXPECT_NE(paint(0x2000), plain);
}

TEST(LargeListFlags, ASelectedRowFillsItsRestWithTheControlsColour) {
    FakeLargeList f({}, 1);
    f.list.SelectedColor(0x0000AA);
    f.list.BackColor(0x00BB00);
    f.fill = [](std::int32_t&, qrosterdata& x) { x = Plain("a", 0x40000000); };
    f.Forget();
    f.list.DrawItem(1);
    EXPECT_EQ(f.log().Named("FillRect"),
              (Calls{FillRectCall({0, 0, 20, 20}, 0x0000AA), FillRectCall({100, 0, 200, 21}, 0x00BB00)}));
    EXPECT_EQ(f.log().Named("ExtTextOutA").front().values[4], 0x0000AA);
}

TEST(LargeListFlags, AnIconGoesBeforeASwatchAndNoIconLeavesIt) {
    FakeLargeList f({}, 1);
    auto record = Plain("a", 0x1000);
    f.fill = [&](std::int32_t&, qrosterdata& x) { x = record; };
    f.list.ShowIcon(true);
    record.IconID = 3;
    f.Forget();
    f.list.DrawItem(1);
    EXPECT_EQ(f.log().Named("ImageList_Draw").size(), 1u);
    EXPECT_TRUE(f.log().Named("Rectangle").empty());
    record.IconID = -1;
    f.Forget();
    f.list.DrawItem(1);
    EXPECT_EQ(f.log().Named("Rectangle").size(), 1u);
}

TEST(LargeListFlags, ARowOfOneCellHasTheLinesOfOneCell) {
    FakeLargeList f({.GridlineWidth = 1, .columns = 2}, 1);
    f.list.GridlineColor(0x0000FF);
    f.fill = [](std::int32_t&, qrosterdata& x) { x = Plain("a\tb", 0x2000); };
    f.Forget();
    f.list.DrawItem(1);
    ASSERT_EQ(f.log().Named("LineTo").size(), 2u);
    EXPECT_EQ(f.log().Named("LineTo")[0].values, (Rows{8, 200, 20}));
    EXPECT_EQ(f.log().Named("MoveToEx")[1].values, (Rows{8, 199, 0}));
    EXPECT_EQ(f.log().Named("CreatePen"), (Calls{PlainCall("CreatePen", {0, 1, Sys(8)})}));
}

TEST(LargeListFlags, AColumnFontIsAnyHandleButZero) {
    FakeLargeList f({}, 1);
    f.list.HeaderSet(1, {.hWidth = 100, .lFont = -5});
    f.list.DrawItem(1);
    EXPECT_TRUE(std::ranges::any_of(f.log().Named("SelectObject"),
                                    [](const Call& call) { return call.values[1] == -5; }));
}

TEST(LargeListFlags, RowsWithoutAGapHaveNoLines) {
    FakeLargeList f({}, 1);
    f.list.DrawItem(1);
    EXPECT_TRUE(f.log().NamedOneOf({"CreatePen", "MoveToEx", "LineTo"}).empty());
}

TEST(LargeListSlots, AGapBelongsToTheSlotsOnBothSides) {
    FakeLargeList f({.height = 120, .GridlineWidth = 4}, 100);
    f.PaintMessage({0, 21, 200, 22});
    EXPECT_EQ(f.TakeAsked(), (Rows{1, 2}));
    f.PaintMessage({0, 19, 200, 20});
    EXPECT_EQ(f.TakeAsked(), (Rows{1}));
}

TEST(LargeListSlots, APageMayHaveMoreThanAHundred) {
    FakeLargeList f({.height = 2430}, 200);
    EXPECT_EQ(f.list.yn(), 121);
    f.Forget();
    f.list.PaintAll();
    ASSERT_EQ(f.asked.size(), 122u);
    EXPECT_EQ(f.asked.back(), 122);
    EXPECT_EQ(f.log().Named("ExtTextOutA").back().rect.Top, 2420);
}

TEST(LargeListSlots, AnEmptyListWritesItsTextAlsoWhenItIsEmpty) {
    FakeLargeList f;
    f.list.PaintAll();
    ASSERT_EQ(f.log().Named("DrawTextA").size(), 1u); // in the first slot alone
    EXPECT_EQ(f.log().Named("DrawTextA").front().text, "");
    f.Forget();
    f.list.ClearText("seen");
    EXPECT_EQ(f.log().Named("FillRect"), (Calls{FillRectCall({0, 0, 200, 21}, Sys(5))}));
    f.list.LockedPaint(true);
    f.Forget();
    f.list.ClearText("unseen");
    EXPECT_TRUE(f.log().Drawing().empty());
    EXPECT_EQ(f.list.ClearText(), "unseen");
}

TEST(LargeListSlots, TheFocusRectangleIsTheCurrentRowsAlone) {
    FakeLargeList f({}, 3);
    f.log().focus = FakeComponent::cWindow;
    f.list.ListIndex(2);
    f.Forget();
    f.list.DrawItem(1);
    EXPECT_TRUE(f.log().Named("DrawFocusRect").empty());
    f.list.DrawItem(2);
    EXPECT_EQ(f.log().Named("DrawFocusRect").size(), 1u);
    f.log().focus = FakeComponent::cWindow + 1;
    f.Forget();
    f.list.DrawItem(2);
    EXPECT_TRUE(f.log().Named("DrawFocusRect").empty());
}

TEST(LargeListSlots, ARowIsSelectedByTheNumberThatItsHandlerLeaves) {
    FakeLargeList f({}, 5);
    f.list.ListIndex(2);
    f.fill = [](std::int32_t& row, qrosterdata& x) {
        x = Plain("x");
        if (row == 4) row = 2;
    };
    EXPECT_TRUE(f.SelectedWhenPainted(4));
    EXPECT_TRUE(f.SelectedWhenPainted(2));
    EXPECT_FALSE(f.SelectedWhenPainted(3));
}

TEST(LargeListSlots, TheFirstRecordsThatAHandlerSeesAreAllZero) {
    FakeLargeList f;
    std::vector<qrosterdata> seen;
    f.fill = [&](std::int32_t&, qrosterdata& x) { seen.push_back(x); };
    f.list.LockedPaint(true);
    f.list.Count(3);
    f.list.LockedPaint(false);
    f.list.PaintAll();
    EXPECT_EQ(seen, std::vector<qrosterdata>(3, ZeroItem()));
}

TEST(LargeListLayout, ToldToTheBarsInOrder) {
    FakeLargeList f({.columns = 3}, 100);
    f.Forget();
    f.list.Refresh();
    EXPECT_EQ(f.TakeHookWrites(), (Lines{"ScrollHBarShown 1", "ScrollBarShown 1", "ScrollHLarge 184",
                                         "ScrollHMax 116", "ScrollLarge 4", "ScrollMax 96"}));
    f.list.HeaderWidths("10-10-10");
    EXPECT_EQ(f.TakeHookWrites(),
              (Lines{"ScrollHBarShown 0", "ScrollBarShown 1", "ScrollLarge 5", "ScrollMax 95"}));
}

TEST(LargeListLayout, SlotsReachTheEdgeThatTheBarsHeightGives) {
    FakeLargeList f({.columns = 0});
    f.list.HeaderAdd(0, "wide", 201);
    f.list.Count(5); // the horizontal bar hides a row and so brings the vertical one
    f.hook().ScrollValue(1);
    f.Forget();
    f.PaintMessage({0, 80, 184, 88});
    EXPECT_EQ(f.log().Drawing(), (Calls{FillRectCall({0, 80, 188, 101}, Sys(5))}));
}

TEST(LargeListLayout, APageIsMovedByPixelsAndMoreIsRepainted) {
    for (const std::int32_t by : {5, -5}) {
        FakeLargeList f({}, 100);
        f.hook().ScrollValue(50);
        f.Forget();
        f.hook().ScrollValue(50 + by);
        EXPECT_EQ(f.TakeScrolls(), (Rows{-20 * by}));
        f.hook().ScrollValue(50);
        f.Forget();
        f.hook().ScrollValue(50 + by + by / 5);
        EXPECT_EQ(f.TakeScrolls(), (Rows{}));
        EXPECT_EQ(f.TakeAsked().size(), 5u);
    }
}

TEST(LargeListLayout, ASmallerWindowLaysOutAnew) {
    FakeLargeList f({}, 5);
    EXPECT_FALSE(f.hook().ScrollBarShown());
    f.component.SetPixelSize(204, 84);
    EXPECT_TRUE(f.hook().ScrollBarShown());
    EXPECT_EQ(f.list.yn(), 4);
    EXPECT_EQ(f.hook().ScrollMax(), 1);
}

} // namespace
} // namespace tvok::test
