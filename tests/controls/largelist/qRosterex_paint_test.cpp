#include "tests/support/FakeLargeList.h"

namespace tvok::test {
namespace {

/// Paints this one row with what the host leaves in the record; the calls are in the log.
void Paint(FakeLargeList& f, const qrosterdata& record) {
    f.fill = [record](std::int32_t&, qrosterdata& x) { x = record; };
    f.Forget();
    f.list.DrawItem(1);
}

qrosterdata Plain(std::string text, std::int32_t flags = 0) {
    return {.text = std::move(text), .IconPos = 0, .bColor = 0xFFFFFF, .fcolor = 0x112233, .vflag = flags};
}

TEST(LargeListPaint, ARowIsItsIconColumnItsCellsAndTheRest) {
    FakeLargeList f({.width = 200, .columns = 0}, 1);
    f.list.HeaderAdd(0, "", 60, "", 0);
    f.list.HeaderAdd(0, "", 50, "", 1);
    f.list.HeaderAdd(0, "", 41, "", 2);
    Paint(f, Plain("a\tbb\tccc\tsurplus"));
    const std::int32_t y = (20 - f.list.TextHeight()) / 2;
    const auto look = [](std::int32_t align) { return TextLook{0x112233, 0xFFFFFF, align, 2}; };
    EXPECT_EQ(f.log().Drawing(),
              (Calls{FillRectCall({0, 0, 20, 20}, 0xFFFFFF), TextCall(21, y, {20, 0, 60, 20}, "a", look(0)),
                     TextCall(109, y, {60, 0, 110, 20}, "bb", look(2)),
                     TextCall(130, y, {110, 0, 151, 20}, "ccc", look(6)),
                     FillRectCall({151, 0, 200, 21}, Sys(5))}));
    EXPECT_EQ(f.asked, (Rows{1}));
}

TEST(LargeListPaint, MissingCellsArePaintedEmpty) {
    FakeLargeList f({.columns = 2}, 1);
    Paint(f, Plain("only"));
    const auto texts = f.log().Named("ExtTextOutA");
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_EQ(texts[1].text, "");
    EXPECT_EQ(texts[1].rect, (tvok_Rect{100, 0, 200, 20}));
    EXPECT_EQ(texts[1].values[2], 6);
}

TEST(LargeListPaint, WithoutColumnsThereIsNoText) {
    FakeLargeList f({.columns = 0}, 1);
    Paint(f, Plain("unseen"));
    EXPECT_TRUE(f.log().Named("ExtTextOutA").empty());
    EXPECT_TRUE(f.log().Named("DrawFrameControl").empty());
    EXPECT_EQ(f.asked, (Rows{1}));
}

TEST(LargeListPaint, ARowOfOneCellSpansAllColumnsAndKeepsItsTabs) {
    FakeLargeList f({.width = 300, .columns = 2}, 1);
    f.list.HeaderSet(1, {.hWidth = 100, .Alignment = 1});
    Paint(f, Plain("a\tb", 0x2000));
    const auto texts = f.log().Named("ExtTextOutA");
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].text, "a\tb");
    EXPECT_EQ(texts[0].rect, (tvok_Rect{20, 0, 200, 20}));
    EXPECT_EQ(texts[0].values[0], 199);
}

TEST(LargeListPaint, TheIndentIsTheLowByteOfIconPos) {
    FakeLargeList f({}, 1);
    auto record = Plain("a");
    record.IconPos = 0x7F7F7F05;
    Paint(f, record);
    EXPECT_EQ(f.log().Named("FillRect").front(), FillRectCall({0, 0, 25, 20}, 0xFFFFFF));
    EXPECT_EQ(f.log().Named("ExtTextOutA").front().rect.Left, 25);
}

TEST(LargeListPaint, SelectedRowsUseTheSelectionColours) {
    FakeLargeList f({}, 1);
    Paint(f, Plain("a", 0x40000000));
    EXPECT_EQ(f.log().Named("FillRect").front().values[0], Sys(13));
    const auto text = f.log().Named("ExtTextOutA").front();
    EXPECT_EQ(text.values[3], Sys(14));
    EXPECT_EQ(text.values[4], Sys(13));
}

TEST(LargeListPaint, SystemColoursOfARowAreTranslated) {
    FakeLargeList f({}, 1);
    auto record = Plain("a");
    record.bColor = SystemColor(24);
    record.fcolor = SystemColor(23);
    Paint(f, record);
    const auto text = f.log().Named("ExtTextOutA").front();
    EXPECT_EQ(text.values[3], Sys(23));
    EXPECT_EQ(text.values[4], Sys(24));
}

TEST(LargeListPaint, FontBitsAreWrittenOnlyWhereTheyDiffer) {
    FakeLargeList f({}, 1);
    Paint(f, Plain("a", 0x00900000));
    EXPECT_EQ(f.log().NamedOneOf({"Font.Bold", "Font.Italic", "Font.Underline", "Font.Strikethrough"}),
              (Calls{PlainCall("Font.Bold", {1}), PlainCall("Font.Strikethrough", {1})}));
    Paint(f, Plain("a", 0x00600000));
    EXPECT_EQ(f.log().NamedOneOf({"Font.Bold", "Font.Italic", "Font.Underline", "Font.Strikethrough"}),
              (Calls{PlainCall("Font.Bold", {0}), PlainCall("Font.Italic", {1}),
                     PlainCall("Font.Strikethrough", {0}), PlainCall("Font.Underline", {1})}));
}

TEST(LargeListPaint, IconsCountFromZeroAndNeedTheColumnTheSwitchAndANumber) {
    FakeLargeList f({}, 1);
    f.list.IconHandle(55);
    f.list.IconCX(3);
    f.list.IconCY(4);
    auto record = Plain("a");
    record.IconID = 0;
    record.IconPos = 2;
    Paint(f, record);
    EXPECT_TRUE(f.log().Named("ImageList_Draw").empty());
    f.list.ShowIcon(true);
    Paint(f, record);
    EXPECT_EQ(f.log().Named("ImageList_Draw"), (Calls{ImageCall(55, 0, 5, 4)}));
    record.IconID = -1;
    Paint(f, record);
    EXPECT_TRUE(f.log().Named("ImageList_Draw").empty());
    EXPECT_EQ(f.log().Named("FillRect").front().rect, (tvok_Rect{0, 0, 22, 20}));
    record.IconID = 0;
    record.vflag = 0x1000;
    f.list.CX_TEXT(0);
    Paint(f, record);
    EXPECT_TRUE(f.log().Named("ImageList_Draw").empty());
    EXPECT_TRUE(f.log().Named("Rectangle").empty());
    EXPECT_EQ(f.log().Named("ExtTextOutA").front().rect.Left, 2);
}

TEST(LargeListPaint, ReadingTheImageListEndsTheIcons) {
    FakeLargeList f({}, 1);
    f.list.ShowIcon(true);
    f.list.IconHandle(55);
    EXPECT_EQ(f.list.IconHandle(), 0);
    EXPECT_EQ(f.list.IconHandle(), 0);
    auto record = Plain("a");
    record.IconID = 0;
    Paint(f, record);
    for (const auto& call : f.log().Named("ImageList_Draw")) EXPECT_EQ(call.values[0], 0);
}

TEST(LargeListPaint, TheSwatchUsesTheHorizontalOffsetOnBothAxes) {
    FakeLargeList f({}, 1);
    f.list.IconCX(3);
    f.list.IconCY(5);
    f.list.IconBorderColor(0x010203);
    auto record = Plain("a", 0x1000);
    record.IconBackColor = 0x445566;
    record.IconPos = 2;
    Paint(f, record);
    EXPECT_EQ(f.log().Named("Rectangle"),
              (Calls{RectangleCall({5, 5, 5 + 20 - 6 + 2, 5 + 20 - 6}, 6, 1, 0x010203, 0x445566, 13)}));
}

TEST(LargeListPaint, GridLinesAreOnePixelBelowAndAtTheRightOfEachCell) {
    FakeLargeList f({.height = 120, .GridlineWidth = 4}, 1);
    Paint(f, Plain("a"));
    EXPECT_EQ(f.log().Named("CreatePen"), (Calls{PlainCall("CreatePen", {0, 1, Sys(8)})}));
    const auto moves = f.log().Named("MoveToEx"), lines = f.log().Named("LineTo");
    ASSERT_EQ(moves.size(), 2u);
    EXPECT_EQ(moves[0].values, (Rows{8, 0, 20}));
    EXPECT_EQ(lines[0].values, (Rows{8, 100, 20}));
    EXPECT_EQ(moves[1].values, (Rows{8, 99, 0}));
    EXPECT_EQ(lines[1].values, (Rows{8, 99, 20}));
    EXPECT_EQ(f.log().LiveObjects(), 0u);
    EXPECT_EQ(f.log().Slips(), 0);
    Paint(f, Plain("a", 0x40000000));
    EXPECT_EQ(f.log().Named("LineTo").size(), 1u);
}

TEST(LargeListPaint, TheLineUnderTheFirstColumnStartsAtTheWindowsEdgeWhenScrolled) {
    FakeLargeList f({.height = 120, .GridlineWidth = 1, .columns = 3}, 1);
    f.hook().ScrollHValue(30);
    Paint(f, Plain("a\tb\tc"));
    const auto moves = f.log().Named("MoveToEx"), lines = f.log().Named("LineTo");
    ASSERT_EQ(moves.size(), 6u);
    EXPECT_EQ(moves[0].values, (Rows{8, 0, 20}));
    EXPECT_EQ(lines[0].values, (Rows{8, 70, 20}));
    EXPECT_EQ(moves[2].values, (Rows{8, 70, 20}));
    EXPECT_EQ(f.log().Named("ExtTextOutA")[0].rect, (tvok_Rect{-10, 0, 70, 20}));
    EXPECT_EQ(f.log().Named("FillRect")[0].rect, (tvok_Rect{-30, 0, -10, 20}));
}

TEST(LargeListPaint, AColumnFontIsSelectedForItsCellsAlone) {
    FakeLargeList f({.columns = 2}, 1);
    f.list.HeaderSet(2, {.hWidth = 80, .lFont = 4321});
    Paint(f, Plain("a\tb"));
    const auto calls = f.log().NamedOneOf({"SelectObject", "ExtTextOutA"});
    ASSERT_EQ(calls.size(), 4u);
    EXPECT_EQ(calls[0].name, "ExtTextOutA");
    EXPECT_EQ(calls[1].values[1], 4321);
    EXPECT_EQ(calls[2].text, "b");
    EXPECT_NE(calls[3].values[1], 4321);
}

TEST(LargeListPaint, TheFocusRectangleSpansTheColumns) {
    FakeLargeList f({.columns = 1}, 3);
    f.list.Refresh();
    f.component.log.focus = FakeComponent::cWindow;
    f.list.ListIndex(1);
    f.Forget();
    f.list.PaintAll();
    EXPECT_EQ(f.log().Named("DrawFocusRect"), (Calls{FocusCall({0, 0, 100, 20}, Sys(8), Sys(14))}));
}

TEST(LargeListPaint, BlankSlotsAreFilledOnePixelLower) {
    FakeLargeList f({}, 3);
    f.list.BackColor(0x0A0B0C);
    f.Forget();
    f.PaintMessage({0, 60, 200, 80});
    EXPECT_EQ(f.log().Drawing(), (Calls{FillRectCall({0, 60, 200, 81}, 0x0A0B0C)}));
    EXPECT_TRUE(f.asked.empty());
}

TEST(LargeListPaint, AnEmptyListShowsItsTextInTheFirstSlotUntranslated) {
    FakeLargeList f({}, 0);
    f.list.ClearText("nothing here");
    const auto texts = f.log().Named("DrawTextA");
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].text, "nothing here");
    EXPECT_EQ(texts[0].rect, (tvok_Rect{0, 0, 200, 20}));
    EXPECT_EQ(texts[0].values[0], 36);
    EXPECT_EQ(texts[0].values[1], SystemColor(8));
    EXPECT_TRUE(f.asked.empty());
    f.list.Count(1);
    f.Forget();
    f.list.ClearText("more");
    EXPECT_TRUE(f.log().Drawing().empty());
    EXPECT_EQ(f.list.ClearText(), "more");
}

TEST(LargeListPaint, OnlyTheSlotsThatMeetTheRectangleAreAsked) {
    FakeLargeList f({.height = 110}, 100);
    f.PaintMessage({0, 25, 200, 55});
    EXPECT_EQ(f.TakeAsked(), (Rows{2, 3}));
    f.list.PaintAll();
    EXPECT_EQ(f.TakeAsked(), (Rows{1, 2, 3, 4, 5, 6}));
    f.PaintMessage({0, 20, 200, 20});
    EXPECT_EQ(f.TakeAsked(), (Rows{}));
    f.list.DrawItem(0);
    f.list.DrawItem(7);
    f.list.DrawItem(101);
    EXPECT_TRUE(f.asked.empty());
}

TEST(LargeListPaint, ALockedListScrollsPixelsAndPaintsNothing) {
    FakeLargeList f({}, 100);
    f.list.LockedPaint(true);
    f.Forget();
    f.list.PaintAll();
    f.list.DrawItem(1);
    f.list.ListIndex(2);
    f.hook().ScrollValue(1);
    EXPECT_TRUE(f.asked.empty());
    EXPECT_EQ(f.TakeScrolls(), (Rows{-20}));
    f.list.LockedPaint(false);
    EXPECT_TRUE(f.log().All().empty());
}

TEST(LargeListScroll, LessThanAPageMovesPixelsInBothDirectionsAndModes) {
    FakeLargeList f({}, 100);
    f.hook().ScrollValue(2);
    EXPECT_EQ(f.TakeAsked(), (Rows{6, 7}));
    EXPECT_EQ(f.TakeScrolls(), (Rows{-40}));
    f.hook().ScrollValue(1);
    EXPECT_EQ(f.TakeAsked(), (Rows{2}));
    EXPECT_EQ(f.TakeScrolls(), (Rows{20}));
    f.hook().ScrollValue(60);
    EXPECT_EQ(f.TakeScrolls(), (Rows{}));
    EXPECT_EQ(f.TakeAsked(), (Rows{61, 62, 63, 64, 65}));
    FakeLargeList top;
    for (int i = 0; i < 20; ++i) top.list.AddItemTop();
    top.Forget();
    top.hook().ScrollValue(2);
    EXPECT_EQ(top.TakeAsked(), (Rows{15, 14}));
    EXPECT_EQ(top.TakeScrolls(), (Rows{-40}));
}

TEST(LargeListScroll, TheHeaderStaysAndASidewaysMoveRepaintsAll) {
    FakeLargeList f({.height = 132, .columns = 3}, 100);
    f.list.HeaderHeight(20);
    f.list.Refresh();
    f.Forget();
    f.hook().ScrollValue(1);
    const auto scrolls = f.log().Named("ScrollDC");
    ASSERT_EQ(scrolls.size(), 1u);
    EXPECT_EQ(scrolls[0].rect, (tvok_Rect{0, 20, 184, 120}));
    EXPECT_EQ(scrolls[0].values, (Rows{8, 0, -20, 1, 1}));
    EXPECT_TRUE(f.log().Named("DrawFrameControl").empty());
    f.Forget();
    f.hook().ScrollHValue(10);
    EXPECT_EQ(f.asked, (Rows{2, 3, 4, 5, 6}));
    EXPECT_EQ(f.log().Named("DrawFrameControl").size(), 3u);
}

struct BarCase {
    std::int32_t rows, column;
    bool vertical, horizontal;
    std::int32_t yn, hMax;
};
class LargeListBars : public testing::TestWithParam<BarCase> {};

TEST_P(LargeListBars, AreShownAsTheRowsAndColumnsNeed) {
    const auto& [rows, column, vertical, horizontal, yn, hMax] = GetParam();
    FakeLargeList f({.columns = 0}, 0);
    f.list.HeaderAdd(0, "", column);
    f.list.Count(rows);
    EXPECT_EQ(f.hook().ScrollBarShown(), vertical);
    EXPECT_EQ(f.hook().ScrollHBarShown(), horizontal);
    EXPECT_EQ(f.list.yn(), yn);
    if (horizontal) {
        EXPECT_EQ(f.hook().ScrollHMax(), hMax);
    }
    if (vertical) {
        EXPECT_EQ(f.hook().ScrollMax(), rows - yn);
        EXPECT_EQ(f.hook().ScrollLarge(), yn);
    }
}

INSTANTIATE_TEST_SUITE_P(AllSides, LargeListBars,
                         testing::Values(BarCase{5, 200, false, false, 5, 0},
                                         BarCase{6, 184, true, false, 5, 0},
                                         BarCase{6, 185, true, true, 4, 1},
                                         BarCase{4, 201, false, true, 4, 1},
                                         // The horizontal bar's height stands for the vertical bar's width.
                                         BarCase{5, 201, true, true, 4, 13}));

TEST(LargeListBarsAlone, ABarThatGoesKeepsItsMaximum) {
    FakeLargeList f({}, 100);
    f.list.Count(3);
    EXPECT_FALSE(f.hook().ScrollBarShown());
    EXPECT_EQ(f.hook().ScrollMax(), 95);
}

} // namespace
} // namespace tvok::test
