// How a property list paints its rows: captions, values, group rows with their fold boxes, blank rows, and
// which rows are painted when.
#include "tests/support/PropertyListPaint.h"
#include "tvok/host/MemoryBag.h"

namespace tvok::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

elistdata Shown(const std::string& key, const std::string& value, const std::string& parent = {}) {
    elistdata item = PropertyListDesktop::Value(key, parent);
    item.item.text = value;
    return item;
}

/// "a", "b" and so on, with the values "a=", "b=".
std::vector<elistdata> Letters(std::int32_t count) {
    std::vector<elistdata> items;
    for (std::int32_t i = 0; i < count; ++i) {
        const std::string key(1, static_cast<char>('a' + i));
        items.push_back(Shown(key, key + "="));
    }
    return items;
}

DrawnCalls DrawnBy(PropertyListDesktop& at, const std::function<void()>& action) {
    return Drawing(at.desktop.Trace(action));
}

/// Blank rows with their fillers, from one row of the page to another.
DrawnCalls BlankRows(const RowCalls& rows, std::int32_t first, std::int32_t last) {
    DrawnCalls calls;
    for (std::int32_t row = first; row <= last; ++row)
        calls = Join({calls, rows.Blank(row), rows.Filler(row)});
    return calls;
}

DrawnCalls Fillers(const RowCalls& rows, std::int32_t count) {
    DrawnCalls calls;
    for (std::int32_t row = 1; row <= count; ++row) calls = Join({calls, rows.Filler(row)});
    return calls;
}

// Rows.

TEST(gListPaint, AValueRowIsACaptionAndAValueSideBySide) {
    PropertyListDesktop at;
    at.Show({Shown("Width", "12")});
    const RowCalls rows(at);
    EXPECT_EQ(DrawnBy(at, [&] { at.list->SetData(1, "Width"); }), rows.Value(1, "Width", "12"));
}

TEST(gListPaint, APageIsPaintedRowByRowEachWithTheFillerAtItsRight) {
    PropertyListDesktop at({.ListMode = 1, .Sorted = false});
    at.Show({PropertyListDesktop::Group("Size"), Shown("Width", "12", "Size"),
             PropertyListDesktop::Group("Look"), Shown("Color", "red", "Look")});
    at.PressHead(3);
    at.desktop.Release();
    const RowCalls rows(at);
    EXPECT_EQ(
        DrawnBy(at, [&] { at.list->PaintAll(); }),
        Join({rows.Group(1, "Size", false), rows.Filler(1), rows.Value(2, "Width", "12"), rows.Filler(2),
              rows.Group(3, "Look", true, true), rows.Filler(3), BlankRows(rows, 4, 11)}));
}

TEST(gListPaint, TheValueOfAGroupIsNotShown) {
    PropertyListDesktop at({.ListMode = 1});
    elistdata group = PropertyListDesktop::Group("Size");
    group.item.text = "hidden";
    at.Show({group});
    EXPECT_THAT(PaintedTexts(at.desktop, [&] { at.list->PaintAll(); }), ElementsAre("Size"));
}

TEST(gListPaint, OnlyTheCaptionShowsThatItsRowIsTheCurrentOne) {
    PropertyListDesktop at;
    at.Show({Shown("Width", "12")});
    at.list->ListIndex(1);
    const auto trace = at.desktop.Trace([&] { at.list->PaintAll(); });
    std::vector<std::string> looks;
    for (const std::string& line : trace)
        if (line.starts_with("SetTextColor") || line.starts_with("SetBkColor") ||
            line.starts_with("ExtTextOutA"))
            looks.push_back(ShortCall(line));
    looks.resize(3 + 2 + 3);
    EXPECT_EQ(looks[0], "SetTextColor " + ColorText(SystemColor(14)));
    EXPECT_EQ(looks[1], "SetBkColor " + ColorText(cHighlight));
    EXPECT_THAT(looks[2], HasSubstr("\"Width\""));
    EXPECT_EQ(looks[5], "SetTextColor " + ColorText(cWindowText));
    EXPECT_EQ(looks[6], "SetBkColor " + ColorText(cWindowBackground));
    EXPECT_THAT(looks[7], HasSubstr("\"12\""));
}

TEST(gListPaint, TheFocusRectangleIsForCellsThatAskForItAlone) {
    PropertyListDesktop at;
    elistdata both = Shown("a", "x");
    both.hItem.vflag = both.item.vflag = vflag::FocusAlways;
    at.Show({both, Shown("b", "y")});
    at.desktop.Focus(*at.list);
    at.list->ListIndex(2);
    const auto boxes = [&] {
        std::vector<std::string> calls = DrawnBy(at, [&] { at.list->PaintAll(); });
        std::erase_if(calls, [](const std::string& call) { return !call.starts_with("DrawFocusRect"); });
        return calls;
    };
    EXPECT_THAT(boxes(), IsEmpty()) << "the focus alone draws none";
    at.list->ListIndex(1);
    const std::int32_t middle = 15 + at.list->HeadWidth();
    EXPECT_THAT(boxes(), ElementsAre("DrawFocusRect " + RectText({15, 0, middle, 18}),
                                     "DrawFocusRect " + RectText({middle + 1, 0, 300, 18})))
        << "on the cells themselves: the painter's focus flag is never set";
}

TEST(gListPaint, ACaptionWiderThanItsCellIsClippedByIt) {
    PropertyListDesktop at({.ListMode = 1});
    at.Show({PropertyListDesktop::Group("g"), Shown("w", "1", "g")});
    const std::int32_t middle = 15 + at.list->HeadWidth();
    elistdata wide = Shown("a caption that nobody has measured", "2", "g");
    at.list->AddItem(wide, 2);
    EXPECT_THAT(DrawnBy(at, [&] { at.list->PaintAll(); }),
                Contains(AllOf(HasSubstr("flags=6 " + RectText({35, 19, middle, 37})), HasSubstr("nobody"))));
}

TEST(gListPaint, TextsCloseToTheEdgeIconsAndStylesArePaintedAsInAnyList) {
    PropertyListDesktop at;
    elistdata item = Shown("a", "x");
    item.item.vflag = vflag::TextAtEdge | vflag::RightAligned;
    at.Show({item});
    const std::int32_t value = 15 + at.list->HeadWidth() + 1;
    EXPECT_THAT(DrawnBy(at, [&] { at.list->PaintAll(); }),
                Contains(HasSubstr("ExtTextOutA at (300,")).Times(1));
    EXPECT_THAT(DrawnBy(at, [&] { at.list->PaintAll(); }),
                Contains(HasSubstr(RectText({value + 1, 0, 300, 18}) + " \"x\"")));
}

TEST(gListPaint, WithoutLinesTheValueFollowsDirectlyOnTheCaption) {
    PropertyListDesktop at;
    at.list->GridlineWidth(0);
    at.Show({Shown("a", "x"), Shown("b", "y")});
    const std::int32_t middle = 15 + at.list->HeadWidth();
    const auto calls = DrawnBy(at, [&] { at.list->SetData(0, "b"); });
    EXPECT_THAT(calls, Not(Contains(HasSubstr("Rectangle"))));
    EXPECT_THAT(calls, Contains(HasSubstr(RectText({35, 18, middle, 36}) + " \"b\"")));
    EXPECT_THAT(calls, Contains(HasSubstr(RectText({middle + 20, 18, 300, 36}) + " \"y\"")));
}

TEST(gListPaint, WideLinesStandBetweenCaptionAndValueAndBetweenRows) {
    PropertyListDesktop at;
    at.list->GridlineWidth(3);
    at.Show({Shown("a", "x"), Shown("b", "y")});
    const std::int32_t middle = 15 + at.list->HeadWidth();
    const auto calls = DrawnBy(at, [&] { at.list->SetData(0, "b"); });
    EXPECT_THAT(calls, Contains("Rectangle " + RectText({15, 21, middle + 3, 42})));
    EXPECT_THAT(calls, Contains("Rectangle " + RectText({middle + 3, 21, 303, 42})));
}

TEST(gListPaint, LinesOnTheBorderMoveTheCellsInAndLeaveTheFoldBoxWhereItIs) {
    PropertyListDesktop at({.ListMode = 1});
    at.list->GridlineOnBorder(true);
    at.Show({PropertyListDesktop::Group("g"), Shown("a", "x", "g")});
    const std::int32_t middle = 1 + 15 + at.list->HeadWidth();
    const auto calls = DrawnBy(at, [&] { at.list->PaintAll(); });
    EXPECT_THAT(calls, Contains(FillCall({0, 0, 14, 20}, at.list->HeadExBackColor())));
    EXPECT_THAT(calls, Contains(FillCall({14, 0, 15, 20}, at.list->HeadExBorderColor())));
    EXPECT_THAT(calls, Contains("FrameRect (3,5)-(12,14) brush=" + ColorText(SystemColor(16))));
    EXPECT_THAT(calls, Contains("Rectangle " + RectText({15, 0, 300, 20}))) << "the group's cell";
    EXPECT_THAT(calls, Contains("Rectangle " + RectText({15, 19, middle + 1, 39}))) << "the caption's";
    EXPECT_THAT(calls, Contains("Rectangle " + RectText({middle, 19, 300, 39}))) << "the value's";
}

// The fold box.

TEST(gListPaint, TheFoldBoxIsDrawnWithAPenOfItsOwnThatIsGivenBack) {
    PropertyListDesktop at({.ListMode = 1});
    elistdata group = PropertyListDesktop::Group("g");
    group.hItem.vflag = vflag::Collapsed;
    at.Show({group});
    std::vector<std::string> calls;
    for (const std::string& line : at.desktop.Trace([&] { at.list->SetData(0, "g"); }))
        calls.push_back(ShortCall(line));
    const auto frame =
        std::ranges::find_if(calls, [](const auto& call) { return call.starts_with("FrameRect"); });
    ASSERT_GE(frame - calls.begin(), 2);
    calls.erase(calls.begin(), frame);
    const std::string pen = "pen=" + ColorText(cWindowText) + " width=1 style=0";
    ASSERT_EQ(calls.size(), 11u) << testing::PrintToString(calls);
    EXPECT_EQ(calls[0], "FrameRect (3,4)-(12,13) brush=" + ColorText(SystemColor(16)));
    EXPECT_THAT(calls[1], HasSubstr("DeleteObject"));
    EXPECT_EQ(calls[2], "GetSysColor index=8 -> " + ColorText(cWindowText));
    EXPECT_EQ(calls[3], "CreatePen " + pen);
    EXPECT_THAT(calls[4], HasSubstr("SelectObject " + pen + " -> "));
    const std::string before = calls[4].substr(calls[4].find("-> ") + 3);
    EXPECT_EQ(calls[5], "MoveToEx (5,8)");
    EXPECT_EQ(calls[6], "LineTo (10,8)");
    EXPECT_EQ(calls[7], "MoveToEx (7,6)");
    EXPECT_EQ(calls[8], "LineTo (7,11)");
    EXPECT_EQ(calls[9], "SelectObject " + before + " -> " + pen);
    EXPECT_EQ(calls[10], "DeleteObject " + pen);
}

struct BoxCase {
    std::int32_t headWidth, itemHeight, x, y;
};

class gListFoldBox : public testing::TestWithParam<BoxCase> {};

TEST_P(gListFoldBox, StandsInTheMiddleOfTheBandWithHalvesCutTowardZero) {
    PropertyListDesktop at({.ListMode = 1});
    at.list->HeadWidthEx(GetParam().headWidth);
    at.list->ItemHeight(GetParam().itemHeight);
    at.Show({PropertyListDesktop::Group("g")});
    const auto [width, height, x, y] = GetParam();
    EXPECT_THAT(
        DrawnBy(at, [&] { at.list->PaintAll(); }),
        Contains("FrameRect " + RectText({x, y, x + 9, y + 9}) + " brush=" + ColorText(SystemColor(16))));
}

INSTANTIATE_TEST_SUITE_P(Bands, gListFoldBox,
                         testing::Values(BoxCase{15, 18, 3, 4}, BoxCase{16, 18, 3, 4}, BoxCase{17, 19, 4, 5},
                                         BoxCase{0, 18, -4, 4}, BoxCase{8, 18, 0, 4}, BoxCase{10, 18, 0, 4},
                                         BoxCase{15, 8, 3, 0}, BoxCase{15, 4, 3, -2}));

TEST(gListPaint, WithoutABandTheFoldBoxIsCutByTheEdgeAndStillDrawn) {
    PropertyListDesktop at({.ListMode = 1});
    at.list->HeadWidthEx(0);
    at.Show({PropertyListDesktop::Group("g")});
    EXPECT_NE(at.desktop.PixelAt(*at.list, 4, 8), 0xFFFFFFu) << "the right edge of the box, at x = -4 + 8";
    EXPECT_EQ(at.desktop.PixelAt(*at.list, 4, 8), at.desktop.PixelAt(*at.list, 4, 4));
    EXPECT_EQ(at.desktop.PixelAt(*at.list, 5, 8), 0xFFFFFFu);
}

TEST(gListPaint, AParentInAFlatListHasNoRowAndNoBox) {
    PropertyListDesktop at;
    at.Show({PropertyListDesktop::Group("g"), Shown("a", "x", "g")});
    const auto calls = DrawnBy(at, [&] { at.list->PaintAll(); });
    EXPECT_THAT(calls, Not(Contains(HasSubstr("FrameRect"))));
    EXPECT_THAT(calls, Not(Contains(HasSubstr("\"g\""))));
}

// Blank rows.

TEST(gListPaint, AnEmptyListPaintsBlankRowsWithTheBandAtTheirLeft) {
    PropertyListDesktop at;
    at.Show({});
    at.list->BackColor(0xC0FFFF);
    const RowCalls rows(at);
    EXPECT_EQ(DrawnBy(at, [&] { at.list->PaintAll(); }), BlankRows(rows, 1, 11));
    EXPECT_EQ(at.desktop.PixelAt(*at.list, 100, 5), 0xFFFFC0u);
    EXPECT_NE(at.desktop.PixelAt(*at.list, 5, 5), 0xFFFFC0u);
    EXPECT_EQ(at.Strip(), (tvok_Rect{}));
}

TEST(gListPaint, BlankRowsOfAListWithLinesOnTheBorderReachTheEdges) {
    PropertyListDesktop at;
    at.list->GridlineOnBorder(true);
    at.Show({});
    const auto calls = DrawnBy(at, [&] { at.list->PaintAll(); });
    ASSERT_GE(calls.size(), 8u);
    EXPECT_EQ(calls[0], FillCall({0, 0, 14, 20}, at.list->HeadExBackColor()));
    EXPECT_EQ(calls[1], FillCall({14, 0, 15, 20}, at.list->HeadExBorderColor()));
    EXPECT_EQ(calls[2], FillCall({15, 0, 300, 20}, at.list->BackColor()));
    EXPECT_EQ(calls[3], FillCall({300, 0, 300, 20}, at.list->BackColor())) << "the filler";
    EXPECT_EQ(calls[6], FillCall({15, 20, 300, 39}, at.list->BackColor())) << "the second row";
}

// Which rows.

TEST(gListPaint, APaintMessagePaintsTheRowsThatItMeetsAndEveryFiller) {
    PropertyListDesktop at;
    at.Show(Letters(20));
    const RowCalls rows(at);
    const tvok_Rect third{0, 40, 300, 41};
    const auto trace = at.desktop.Trace([&] {
        host::platform().InvalidateRect(at.desktop.WindowOf(*at.list), &third, false);
        at.desktop.Pump();
    });
    EXPECT_EQ(Drawing(trace),
              Join({rows.Filler(1), rows.Filler(2), rows.Value(3, "c", "c="), rows.Filler(3), [&] {
                        DrawnCalls rest = Fillers(rows, 11);
                        return DrawnCalls(rest.begin() + 3, rest.end());
                    }()}));
    const auto count = [&](const char* name) {
        return std::ranges::count_if(trace, [&](const std::string& line) { return line.starts_with(name); });
    };
    EXPECT_EQ(count("BeginPaint"), 1) << "nothing is left for the window's own processing";
    EXPECT_EQ(count("EndPaint"), 1);
}

TEST(gListPaint, ALineBetweenTwoRowsPaintsBoth) {
    PropertyListDesktop at;
    at.Show(Letters(20));
    const tvok_Rect line{100, 37, 101, 38};
    EXPECT_THAT(PaintedTexts(at.desktop,
                             [&] {
                                 host::platform().InvalidateRect(at.desktop.WindowOf(*at.list), &line, false);
                                 at.desktop.Pump();
                             }),
                ElementsAre("b", "b=", "c", "c="));
}

// The test for an empty rectangle asks for another value than true is, so it never stops the painting.
TEST(gListPaint, APaintMessageWithNothingToPaintStillPaintsTheFillers) {
    PropertyListDesktop at;
    at.Show(Letters(20));
    const RowCalls rows(at);
    EXPECT_EQ(DrawnBy(at,
                      [&] {
                          host::platform().PostMessageA(at.desktop.WindowOf(*at.list), host::WM_PAINT, 0, 0);
                          at.desktop.Pump();
                      }),
              Fillers(rows, 11));
}

TEST(gListPaint, TheHostsPaintEventDrawsNothingInRunMode) {
    PropertyListDesktop at;
    at.Show(Letters(3));
    EXPECT_THAT(at.desktop.Trace([&] { at.list->Paint(); }), IsEmpty());
}

TEST(gListPaint, AScrolledPageBeginsWithTheRowAtItsTop) {
    PropertyListDesktop at;
    at.Show(Letters(20));
    at.hook->ScrollValue(4);
    at.desktop.Pump();
    const auto texts = PaintedTexts(at.desktop, [&] { at.list->PaintAll(); });
    ASSERT_EQ(texts.size(), 22u) << "ten whole rows and the one begun";
    EXPECT_EQ(texts.front(), "e");
    EXPECT_EQ(texts.back(), "o=");
}

TEST(gListPaint, SetDataOfAVisibleItemPaintsItsRowAndNothingElse) {
    PropertyListDesktop at;
    at.Show(Letters(20));
    at.hook->ScrollValue(2);
    at.desktop.Pump();
    const RowCalls rows(at);
    EXPECT_EQ(DrawnBy(at, [&] { at.list->SetData(1, "d"); }), rows.Value(2, "d", "d="));
    EXPECT_EQ(DrawnBy(at, [&] { at.list->SetData(1, "m"); }), rows.Value(11, "m", "m="))
        << "the row that is begun at the bottom";
    EXPECT_THAT(DrawnBy(at, [&] { at.list->SetData(1, "b"); }), IsEmpty()) << "above the page";
    EXPECT_THAT(DrawnBy(at, [&] { at.list->SetData(1, "n"); }), IsEmpty()) << "below it";
}

TEST(gListPaint, MovingTheCurrentRowPaintsTheNewRowAndThenTheOldOne) {
    PropertyListDesktop at;
    at.Show(Letters(20));
    at.list->ListIndex(2);
    const RowCalls rows(at);
    EXPECT_EQ(DrawnBy(at, [&] { at.list->ListIndex(5); }),
              Join({rows.Value(5, "e", "e=", true), rows.Value(2, "b", "b=")}));
    EXPECT_EQ(DrawnBy(at, [&] { at.list->ListIndex(5); }), rows.Value(5, "e", "e=", true))
        << "already there: itself alone";
}

TEST(gListPaint, TheFirstCurrentRowPaintsItselfAlone) {
    PropertyListDesktop at;
    at.Show(Letters(3));
    const RowCalls rows(at);
    EXPECT_EQ(DrawnBy(at, [&] { at.list->ListIndex(2); }), rows.Value(2, "b", "b=", true));
}

TEST(gListPaint, AGroupIsPaintedAgainWithItsBox) {
    PropertyListDesktop at({.ListMode = 1});
    at.Show({PropertyListDesktop::Group("g"), Shown("a", "x", "g")});
    const RowCalls rows(at);
    EXPECT_EQ(DrawnBy(at, [&] { at.list->ListIndex(1); }), rows.Group(1, "g", false, true));
    EXPECT_EQ(DrawnBy(at, [&] { at.list->ListIndex(2); }),
              Join({rows.Value(2, "a", "x", true), rows.Group(1, "g", false)}));
}

TEST(gListPaint, MoreRowsThanTheCellsWereMadeForArePaintedToTheLast) {
    PropertyListDesktop at({.place = {0, 0, 200, 300}});
    at.list->GridlineWidth(0);
    at.list->ItemHeight(1);
    std::vector<elistdata> items;
    for (std::int32_t i = 1; i <= 400; ++i) items.push_back(Shown(std::to_string(1000 + i), "v"));
    at.Show(items);
    EXPECT_EQ(PaintedTexts(at.desktop, [&] { at.list->PaintAll(); }).size(), 2u * 300);
}

// The cells are made by `Refresh` alone; until then rows beyond them are not painted at all.
TEST(gListPaint, ARowCountThatHasNoCellsYetPaintsNothing) {
    PropertyListDesktop at({.place = {0, 0, 200, 300}});
    at.Show(Letters(3));
    at.list->ItemsStr("7=0\r\n13=" + std::to_string(1 - at.list->TextHeight()) + "\r\n");
    ASSERT_EQ(at.list->ItemHeight(), 1);
    EXPECT_THAT(DrawnBy(at, [&] { at.list->PaintAll(); }), IsEmpty());
    at.list->Refresh();
    EXPECT_THAT(DrawnBy(at, [&] { at.list->PaintAll(); }), Not(IsEmpty()));
}

// Metrics.

// Fitting the height leaves out the row that is begun at the bottom, until the cells are made anew.
TEST(gListPaint, FittingLeavesTheRowThatIsBegunOutUntilTheNextRefresh) {
    PropertyListDesktop at;
    at.Show(Letters(20));
    EXPECT_EQ(PaintedTexts(at.desktop, [&] { at.list->PaintAll(); }).size(), 22u);
    at.list->ItemsStr("");
    EXPECT_EQ(PaintedTexts(at.desktop, [&] { at.list->PaintAll(); }).size(), 20u);
    at.list->Refresh();
    EXPECT_EQ(PaintedTexts(at.desktop, [&] { at.list->PaintAll(); }).size(), 22u);
}

TEST(gListPaint, AFixedHeightSnapsToWholeRows) {
    PropertyListDesktop at;
    at.Show(Letters(3));
    at.list->FixedHeight(true);
    EXPECT_EQ(at.desktop.form().PlacementOf(*at.list).height, 190);
    at.list->GridlineOnBorder(true);
    EXPECT_EQ(at.desktop.form().PlacementOf(*at.list).height, 9 * 19 + 1);
    at.desktop.form().Place(*at.list, {10, 10, 300, 100});
    EXPECT_EQ(at.desktop.form().PlacementOf(*at.list).height, 5 * 19 + 1);
    at.list->FixedHeight(false);
    at.desktop.form().Place(*at.list, {10, 10, 300, 100});
    EXPECT_EQ(at.desktop.form().PlacementOf(*at.list).height, 100);
}

TEST(gListPaint, AnotherSizeMakesTheCellsAnewAndPaintsThem) {
    PropertyListDesktop at;
    at.Show(Letters(20));
    const auto calls = DrawnBy(at, [&] {
        at.desktop.form().Place(*at.list, {10, 10, 200, 60});
        at.desktop.Pump();
    });
    const RowCalls rows(at);
    ASSERT_EQ(rows.Width(), 200 - 17) << "with its scroll bar";
    const auto page =
        Join({rows.Value(1, "a", "a="), rows.Filler(1), rows.Value(2, "b", "b="), rows.Filler(2),
              rows.Value(3, "c", "c="), rows.Filler(3), rows.Value(4, "d", "d="), rows.Filler(4)});
    EXPECT_EQ(DrawnBy(at, [&] { at.list->PaintAll(); }), page);
    EXPECT_THAT(calls, Contains(page.at(8)));
}

TEST(gListPaint, RefreshMakesTheScrollRangeTheCellsAndThePage) {
    PropertyListDesktop at;
    at.Show(Letters(20));
    at.services.TakeLog();
    const auto texts = PaintedTexts(at.desktop, [&] { at.list->Refresh(); });
    EXPECT_THAT(at.TakeHookLog(), ElementsAre("ScrollLarge 10", "ScrollMax 10"));
    EXPECT_EQ(texts.size(), 22u);
    at.list->Clear(true);
    at.services.TakeLog();
    at.list->Refresh();
    EXPECT_THAT(at.TakeHookLog(), ElementsAre("ScrollLarge 10", "ScrollMax 0", "ScrollValue 0"));
}

TEST(gListPaint, AListThatWasSavedWithoutRowsIsNotRefreshedBeforeItIsFitted) {
    const auto pages = [](std::int32_t yn) {
        PropertyListDesktop at;
        host::MemoryBag bag;
        bag.WriteProperty("yn", yn, 5);
        at.desktop.form().Adopt("loaded", {0, 300, 100, 100}, std::make_unique<gList>(), &bag);
        std::vector<std::string> calls;
        for (const std::string& line : at.services.TakeLog())
            if (const auto name = line.find("ScrollLarge "); name != std::string::npos)
                calls.push_back(line.substr(name));
        return calls;
    };
    EXPECT_EQ(pages(7).front(), "ScrollLarge 7") << "what was saved counts until the fit";
    EXPECT_NE(pages(0).front(), "ScrollLarge 0");
    EXPECT_EQ(pages(0).size() + 1, pages(7).size());
}

// The host's share.

TEST(gListPaint, TheKeyOfExDrawIsThatOfTheCellThatIsDrawn) {
    PropertyListDesktop at;
    elistdata item = Shown("a", "x");
    item.item.key = "value key";
    item.hItem.vflag = vflag::HostText | vflag::HostHead;
    item.item.vflag = vflag::HostText | vflag::HostHead;
    at.Show({Shown("0", "0"), item});
    const std::int32_t middle = 15 + at.list->HeadWidth();
    at.list->SetData(0, "a");
    const auto text = [](std::int32_t left, std::int32_t right) {
        return std::to_string(left) + ",19," + std::to_string(right) + ",37)";
    };
    EXPECT_THAT(at.TakeLog({"ExDraw"}),
                ElementsAre("ExDraw(512, 2, a, -1,18,14,38)", "ExDraw(256, 2, a, " + text(35, middle),
                            "ExDraw(256, 2, value key, " + text(middle + 21, 300)))
        << "the value has no head band";
}

TEST(gListPaint, ExDrawGetsTheContextAndAHeightOfZero) {
    PropertyListDesktop at;
    elistdata item = Shown("a", "x");
    item.item.vflag = vflag::IconBox | vflag::HostIcon;
    at.Show({item});
    std::int32_t calls = 0;
    at.list->events.ExDraw = [&](std::int32_t& message, std::int32_t, const std::string&,
                                 std::int32_t context, std::int32_t cy, std::int32_t, std::int32_t,
                                 std::int32_t, std::int32_t) {
        ++calls;
        EXPECT_EQ(message, 128);
        EXPECT_EQ(context, at.desktop.form().ComponentOf(*at.list).hDC());
        EXPECT_EQ(cy, 0);
    };
    at.list->PaintAll();
    EXPECT_EQ(calls, 1);
}

TEST(gListPaint, BlankRowsAskTheHostForNothing) {
    PropertyListDesktop at;
    at.Show({});
    at.list->PaintAll();
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

// Design time.

TEST(gListPaint, AtDesignTimeItShowsAFrameWithItsName) {
    PropertyListDesktop at({.userMode = false});
    at.list->AddItem(Shown("a", "x"));
    std::vector<std::string> calls;
    for (const std::string& line : at.desktop.Trace([&] { at.list->Paint(); }))
        calls.push_back(ShortCall(line));
    EXPECT_EQ(calls.front(), "GetClientRect hwnd=1 -> (0,0)-(300,200)");
    EXPECT_THAT(calls, Contains("CreatePen pen=" + ColorText(cWindowFrame) + " width=1 style=6"));
    EXPECT_THAT(calls, Contains("CreateSolidBrush brush=" + ColorText(cWindowBackground)));
    EXPECT_THAT(calls, Contains("SetTextColor #000000"));
    EXPECT_THAT(Drawing(at.desktop.Trace([&] { at.list->Paint(); })),
                ElementsAre("Rectangle (0,0)-(300,200)", "DrawTextA (1,1)-(299,199) flags=32 \"list1\""));
    EXPECT_THAT(Drawing(at.desktop.Trace([&] {
                    host::platform().InvalidateRect(at.desktop.WindowOf(*at.list), nullptr, false);
                    at.desktop.Pump();
                })),
                Contains(HasSubstr("\"list1\"")));
    at.desktop.Click(*at.list, 60, 9);
    EXPECT_EQ(at.list->ListIndex(), 0);
}

} // namespace
} // namespace tvok::test
