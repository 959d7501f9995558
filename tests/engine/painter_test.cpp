/// The item painter: what each cell draws, in which order and with what.
#include "tests/support/EngineList.h"

namespace tvok::test {
namespace {

using namespace mtvok;

constexpr std::int32_t cBack = 0x102030, cFore = 0x405060, cIconBack = 0x708090, cList = 0x223344,
                       cLine = 0x556677, cBox = 0x99AABB, cHead = 0x0A0B0C, cHeadEdge = 0x0D0E0F,
                       cMarked = 0x771177;

/// One cell of 120 by 18 at (0, 0) that shows item 1 of a list whose colours are all different.
class Painter : public EngineList {
protected:
    Painter() {
        state.CurItem = 1;
        state.Count = 1;
        state.CurCol = state.CurRow = 1;
        state.CellRect = {0, 0, 120, 18};
        state.BackColor = cList;
        state.GridlineColor = cLine;
        state.IconBorderColor = cBox;
        state.HeadExBackColor = cHead;
        state.HeadExBorderColor = cHeadEdge;
        state.SelectedColor = cMarked;
    }
    qrosterdata Item(std::int32_t flags, const std::string& text = "ant") const {
        return {.text = text,
                .key = "key",
                .IconBackColor = cIconBack,
                .bColor = cBack,
                .fcolor = cFore,
                .vflag = flags | vflag::InUse};
    }
    Calls Paint(const qrosterdata& item, bool focus = false) {
        log.Clear();
        DrawListItem(state, item, callback, focus);
        EXPECT_EQ(log.LiveObjects(), 0u) << "drawing objects are freed";
        EXPECT_EQ(log.Slips(), 0);
        EXPECT_EQ(log.pen, CallLog::cFirstPen);
        EXPECT_EQ(log.brush, CallLog::cFirstBrush);
        return log.Drawing();
    }
    Calls Paint(std::int32_t flags, bool focus = false) { return Paint(Item(flags), focus); }

    /// The text of a cell as most tests have it: in (20,0)-(120,18).
    static Call Text(const std::string& text = "ant", const tvok_Rect& rect = {20, 0, 120, 18}) {
        return TextCall(rect.Left, rect.Top + 3, rect, text, {.textColor = cFore, .backColor = cBack});
    }
    static Call Area(const tvok_Rect& rect = {0, 0, 20, 18}) { return FillRectCall(rect, cBack); }
    /// The bands of the background around the icon box (1,1)-(17,17).
    static Calls Bands() {
        return {Area({0, 0, 1, 18}), Area({17, 0, 20, 18}), Area({0, 0, 20, 1}), Area({0, 17, 20, 18})};
    }
    static Calls Joined(Calls first, const Calls& second) {
        first.insert(first.end(), second.begin(), second.end());
        return first;
    }
    /// The place of the first call with this name among all calls.
    std::ptrdiff_t PlaceOf(const std::string& name) const {
        const auto& all = log.All();
        const auto found =
            std::find_if(all.begin(), all.end(), [&](const Call& call) { return call.name == name; });
        EXPECT_NE(found, all.end()) << name;
        return found - all.begin();
    }
};

// A plain cell.

TEST_F(Painter, PlainCellFillsTheIconAreaAndDrawsItsTextBehind) {
    EXPECT_EQ(Paint(0), (Calls{Area(), Text()}));
    EXPECT_EQ(state.TextRect, (tvok_Rect{20, 0, 120, 18}));
}

TEST_F(Painter, TextIsOpaqueAndClippedAndVerticallyCentredWithTruncation) {
    state.TextHeight = 13;
    ASSERT_EQ(Paint(0).size(), 2u);
    EXPECT_EQ(log.Drawing()[1].values[1], 2) << "5 / 2";
    EXPECT_EQ(log.Drawing()[1].values[2], 6);
    state.TextHeight = 25;
    EXPECT_EQ(Paint(0)[1].values[1], -3) << "-7 / 2 is truncated towards 0";
}

TEST_F(Painter, ContextIsOpaqueBeforeTheTextAndAfterTheIcon) {
    Paint(0);
    EXPECT_LT(PlaceOf("FillRect"), PlaceOf("SetBkMode"));
    EXPECT_LT(PlaceOf("SetBkMode"), PlaceOf("ExtTextOutA"));
    EXPECT_EQ(log.backMode, 2);
}

TEST_F(Painter, ContextIsLeftWithTheColoursOfTheFocusRectangle) {
    Paint(0);
    EXPECT_EQ(log.textColor, Sys(8));
    EXPECT_EQ(log.backColor, Sys(14));
    Paint(vflag::HostText);
    EXPECT_EQ(log.textColor, Sys(8));
    EXPECT_EQ(log.backColor, Sys(14));
}

TEST_F(Painter, ColoursOfTheItemAreTranslated) {
    auto item = Item(0);
    item.bColor = cButtonFace;
    item.fcolor = cHighlight;
    EXPECT_EQ(Paint(item), (Calls{FillRectCall({0, 0, 20, 18}, Sys(15)),
                                  TextCall(20, 3, {20, 0, 120, 18}, "ant",
                                           {.textColor = Sys(13), .backColor = Sys(15)})}));
}

TEST_F(Painter, TextGoesOutAsItsBytes) {
    EXPECT_EQ(Paint(Item(0, "Äpfel")), (Calls{Area(), Text("Äpfel")}));
}

TEST_F(Painter, EmptyTextStillPaintsItsRectangle) {
    EXPECT_EQ(Paint(Item(0, "")), (Calls{Area(), Text("")}));
}

TEST_F(Painter, NoTextIsMeasured) {
    Paint(Item(vflag::RightAligned, "a long text\twith tabs"));
    EXPECT_TRUE(log.Named("DrawTextA").empty());
}

// Text at the edge.

TEST_F(Painter, TextAtTheEdgeStartsOnePixelIn) {
    EXPECT_EQ(Paint(vflag::TextAtEdge), (Calls{Area({0, 0, 1, 18}), Text("ant", {1, 0, 120, 18})}));
}

// The two orders differ on purpose: here the text rectangle is kept before its one-pixel margin is taken off.
TEST_F(Painter, TextRectOfTextAtTheEdgeStartsAtTheCellItself) {
    Paint(vflag::TextAtEdge);
    EXPECT_EQ(state.TextRect, (tvok_Rect{0, 0, 120, 18}));
}

// The icon box.

TEST_F(Painter, IconBoxIsFilledAndFramedByTheBackground) {
    EXPECT_EQ(Paint(vflag::IconBox), Joined(Bands(), {FillRectCall({1, 1, 17, 17}, cIconBack), Text()}));
}

TEST_F(Painter, IconBoxDrawsItsImageTransparentWithTheNumberBeforeItsId) {
    auto item = Item(vflag::IconBox);
    item.IconID = 5;
    EXPECT_EQ(Paint(item), Joined(Bands(), {FillRectCall({1, 1, 17, 17}, cIconBack),
                                            ImageCall(cImages, 4, 1, 1), Text()}));
}

TEST_F(Painter, AnImageNumberOfZeroOrLessFillsTheBoxAndDrawsNoImage) {
    for (const std::int32_t id : {0, -1, -2147483647 - 1}) {
        auto item = Item(vflag::IconBox);
        item.IconID = id;
        EXPECT_EQ(Paint(item), Joined(Bands(), {FillRectCall({1, 1, 17, 17}, cIconBack), Text()})) << id;
    }
}

TEST_F(Painter, WithoutAnIconBoxNoImageIsDrawn) {
    auto item = Item(vflag::IconBorder | vflag::IconOnBackground | vflag::HostIcon);
    item.IconID = 5;
    EXPECT_EQ(Paint(item), (Calls{Area(), Text()}));
}

TEST_F(Painter, IconBorderIsABoxAndTheImageStandsInsideIt) {
    auto item = Item(vflag::IconBox | vflag::IconBorder);
    item.IconID = 1;
    EXPECT_EQ(Paint(item), Joined(Bands(), {RectangleCall({1, 1, 17, 17}, 6, 1, cBox, cIconBack, 13),
                                            ImageCall(cImages, 0, 2, 2), Text()}));
}

TEST_F(Painter, IconOnTheBackgroundHasNoFillAndNoBorderOfItsOwn) {
    for (const std::int32_t border : {0, vflag::IconBorder}) {
        auto item = Item(vflag::IconBox | vflag::IconOnBackground | border);
        item.IconID = 2;
        EXPECT_EQ(Paint(item), (Calls{Area(), ImageCall(cImages, 1, 1, 1), Text()}));
    }
}

TEST_F(Painter, TheHostDrawsTheIconInsteadOfTheImage) {
    auto item = Item(vflag::IconBox | vflag::HostIcon);
    item.IconID = 5;
    EXPECT_EQ(Paint(item), Joined(Bands(), {FillRectCall({1, 1, 17, 17}, cIconBack),
                                            ExDrawCall(128, 1, "key", {1, 1, 17, 17}), Text()}));
}

TEST_F(Painter, TheHostDrawsTheIconInsideTheBorder) {
    EXPECT_EQ(Paint(vflag::IconBox | vflag::IconBorder | vflag::HostIcon),
              Joined(Bands(), {RectangleCall({1, 1, 17, 17}, 6, 1, cBox, cIconBack, 13),
                               ExDrawCall(128, 1, "key", {2, 2, 16, 16}), Text()}));
}

TEST_F(Painter, TheHostDrawsTheIconOnTheBackground) {
    EXPECT_EQ(Paint(vflag::IconBox | vflag::IconOnBackground | vflag::HostIcon),
              (Calls{Area(), ExDrawCall(128, 1, "key", {1, 1, 17, 17}), Text()}));
}

TEST_F(Painter, ExDrawGivesEdgesAndNotExtents) {
    state.CellRect = {100, 200, 220, 218};
    const Calls calls = Paint(vflag::IconBox | vflag::HostIcon);
    EXPECT_THAT(calls, testing::Contains(ExDrawCall(128, 1, "key", {101, 201, 117, 217})));
}

TEST_F(Painter, IconAreaOfTextAtTheEdgeEndsAtTheText) {
    const Calls calls = Paint(vflag::IconBox | vflag::TextAtEdge);
    EXPECT_EQ(calls,
              (Calls{Area({0, 0, 1, 18}), Area({17, 0, 1, 18}), Area({0, 0, 1, 1}), Area({0, 17, 1, 18}),
                     FillRectCall({1, 1, 17, 17}, cIconBack), Text("ant", {1, 0, 120, 18})}));
}

// Where the icon stands.

struct IconPlace {
    std::int32_t left = -9, top = -9, width = -9, height = -9;
    friend bool operator==(const IconPlace&, const IconPlace&) = default;
};
std::ostream& operator<<(std::ostream& out, const IconPlace& place) {
    return out << place.left << "," << place.top << " " << place.width << "x" << place.height;
}

IconPlace Resolve(tvok_IconPos item, tvok_IconPos list, std::int32_t cellHeight = 18,
                  std::int32_t areaWidth = 20) {
    IconPlace place;
    ResolveIconPos(PackIconPos(item), place.left, place.top, place.width, place.height, cellHeight, areaWidth,
                   PackIconPos(list));
    return place;
}
constexpr tvok_IconPos cInherit{255, 255, 255, 255};

TEST(IconPosition, OfMinusOneTakesAllFourBytesFromTheList) {
    EXPECT_EQ(Resolve(cInherit, {.Height = 11, .width = 12, .Top = 3, .Left = 4}), (IconPlace{4, 3, 12, 11}));
}

TEST(IconPosition, TakesEachByteOf255FromTheListAlone) {
    constexpr tvok_IconPos list{11, 12, 3, 4};
    EXPECT_EQ(Resolve({5, 255, 255, 255}, list), (IconPlace{4, 3, 12, 5}));
    EXPECT_EQ(Resolve({255, 5, 255, 255}, list), (IconPlace{4, 3, 5, 11}));
    EXPECT_EQ(Resolve({255, 255, 5, 255}, list), (IconPlace{4, 5, 12, 11}));
    EXPECT_EQ(Resolve({255, 255, 255, 5}, list), (IconPlace{5, 3, 12, 11}));
    EXPECT_EQ(Resolve({1, 2, 0, 0}, list), (IconPlace{0, 0, 2, 1}));
}

TEST(IconPosition, LimitsTheHeightToTheCellAndTheWidthToTheIconArea) {
    EXPECT_EQ(Resolve({200, 200, 1, 1}, {}), (IconPlace{1, 1, 20, 18}));
    EXPECT_EQ(Resolve({254, 254, 1, 1}, {}, 300, 9), (IconPlace{1, 1, 9, 254}));
}

TEST(IconPosition, OfAListByteOf255IsCentredWithTruncation) {
    EXPECT_EQ(Resolve(cInherit, {16, 16, 255, 255}), (IconPlace{2, 1, 16, 16}));
    EXPECT_EQ(Resolve(cInherit, {16, 15, 255, 255}, 19, 20), (IconPlace{2, 1, 15, 16}));
    EXPECT_EQ(Resolve(cInherit, {16, 16, 7, 255}), (IconPlace{2, 7, 16, 16}));
}

TEST(IconPosition, CentresWhatWasLimitedAtZero) {
    EXPECT_EQ(Resolve(cInherit, {255, 255, 255, 255}), (IconPlace{0, 0, 20, 18}));
}

TEST_F(Painter, IconPositionUsesTheListsAreaAndTheCellsHeight) {
    state.IconPos = PackIconPos({255, 10, 255, 255});
    const Calls calls = Paint(vflag::IconBox | vflag::HostIcon);
    EXPECT_THAT(calls, testing::Contains(ExDrawCall(128, 1, "key", {5, 0, 15, 18})));
}

// The head band.

TEST_F(Painter, HeadBandIsFilledThenItsEdgeThenTheCellFollows) {
    state.HeadWidthEx = 10;
    EXPECT_EQ(Paint(0), (Calls{FillRectCall({0, 0, 9, 18}, cHead), FillRectCall({9, 0, 10, 18}, cHeadEdge),
                               Area({10, 0, 30, 18}), Text("ant", {30, 0, 120, 18})}));
}

TEST_F(Painter, HeadBandCoversTheGridLinesAroundIt) {
    state.HeadWidthEx = 10;
    state.GridlineWidth = 2;
    const Calls calls = Paint(0);
    ASSERT_GE(calls.size(), 3u);
    EXPECT_EQ(calls[0], FillRectCall({-2, -2, 9, 20}, cHead));
    EXPECT_EQ(calls[1], FillRectCall({9, -2, 10, 20}, cHeadEdge));
    EXPECT_EQ(calls[2], RectangleCall({10, 0, 122, 20}, 6, 2, cLine, -1, 13)) << "the lines follow the band";
}

TEST_F(Painter, TheHostDrawsOnTheHeadBandOnceItIsComplete) {
    state.HeadWidthEx = 10;
    state.GridlineWidth = 1;
    const Calls calls = Paint(vflag::HostHead);
    ASSERT_GE(calls.size(), 4u);
    EXPECT_EQ(calls[0], FillRectCall({-1, -1, 9, 19}, cHead));
    EXPECT_EQ(calls[1], FillRectCall({9, -1, 10, 19}, cHeadEdge));
    EXPECT_EQ(calls[2], ExDrawCall(512, 1, "key", {-1, -1, 9, 19})) << "the band without its edge";
    EXPECT_EQ(calls[3].name, "Rectangle");
}

TEST_F(Painter, WithoutAHeadBandTheHostIsNotAskedForIt) {
    EXPECT_EQ(Paint(vflag::HostHead), (Calls{Area(), Text()}));
}

TEST_F(Painter, HeadBandStandsInTheFirstColumnOnly) {
    state.HeadWidthEx = 10;
    state.GridlineWidth = 1;
    state.CellRect = {2, 0, 122, 18};
    EXPECT_EQ(Paint(0)[0], FillRectCall({1, -1, 9, 19}, cHead)) << "not above the line width and 1";
    state.CellRect = {3, 0, 123, 18};
    EXPECT_EQ(Paint(0)[0].name, "Rectangle");
}

TEST_F(Painter, BlankCellHasItsHeadBandToo) {
    state.HeadWidthEx = 10;
    state.CurItem = 0;
    EXPECT_EQ(Paint(vflag::HostHead),
              (Calls{FillRectCall({0, 0, 9, 18}, cHead), FillRectCall({9, 0, 10, 18}, cHeadEdge),
                     ExDrawCall(512, 0, "key", {0, 0, 9, 18}), FillRectCall({10, 0, 120, 18}, cList)}));
}

// Grid lines.

TEST_F(Painter, GridLinesWithoutABorderShowRightAndBelow) {
    state.GridlineWidth = 2;
    EXPECT_EQ(Paint(0), (Calls{RectangleCall({0, 0, 122, 20}, 6, 2, cLine, -1, 13), Area(), Text()}));
}

TEST_F(Painter, GridLinesOnTheBorderGoAllAround) {
    state.GridlineWidth = 2;
    state.GridlineOnBorder = true;
    EXPECT_EQ(Paint(0), (Calls{RectangleCall({-2, -2, 122, 20}, 6, 2, cLine, -1, 13), Area(), Text()}));
}

// Selection.

TEST_F(Painter, SelectedCellHasTheSelectedColourAndHighlightedTextWithoutTheFocusToo) {
    log.focus = 0;
    EXPECT_EQ(Paint(vflag::Selected), (Calls{FillRectCall({0, 0, 20, 18}, cMarked),
                                             TextCall(20, 3, {20, 0, 120, 18}, "ant",
                                                      {.textColor = Sys(14), .backColor = cMarked})}));
}

TEST_F(Painter, SelectionLeavesTheIconBoxItsColour) {
    const Calls calls = Paint(vflag::Selected | vflag::IconBox);
    EXPECT_THAT(calls, testing::Contains(FillRectCall({1, 1, 17, 17}, cIconBack)));
    EXPECT_EQ(calls[0], FillRectCall({0, 0, 1, 18}, cMarked));
}

// The host's text.

TEST_F(Painter, TheHostDrawsTheTextInsteadOfTheControl) {
    font->value.Bold = true;
    EXPECT_EQ(Paint(vflag::HostText), (Calls{Area(), ExDrawCall(256, 1, "key", {20, 0, 120, 18})}));
    EXPECT_TRUE(font->value.Bold) << "the font is left alone";
    EXPECT_LT(PlaceOf("SetBkMode"), PlaceOf("ExDraw"));
}

TEST_F(Painter, TheHostsTextRectangleAtTheEdgeHasTheMargin) {
    EXPECT_THAT(Paint(vflag::HostText | vflag::TextAtEdge),
                testing::Contains(ExDrawCall(256, 1, "key", {1, 0, 120, 18})));
}

TEST_F(Painter, FocusIsDrawnAfterTheHostsText) {
    state.ListIndex = 1;
    EXPECT_EQ(Paint(vflag::HostText, true), (Calls{Area(), ExDrawCall(256, 1, "key", {20, 0, 120, 18}),
                                                   FocusCall({0, 0, 120, 18}, Sys(8), Sys(14))}));
}

TEST_F(Painter, AllThreeCallOutsComeInTheOrderHeadIconText) {
    state.HeadWidthEx = 10;
    Paint(vflag::HostHead | vflag::IconBox | vflag::HostIcon | vflag::HostText);
    std::vector<std::int32_t> messages;
    for (const auto& call : log.Named("ExDraw")) messages.push_back(call.values[0]);
    EXPECT_EQ(messages, (std::vector<std::int32_t>{512, 128, 256}));
}

TEST_F(Painter, AHandlersErrorEndsThePainting) {
    onExDraw = [](std::int32_t&) { throw Error("from a handler"); };
    EXPECT_THROW(DrawListItem(state, Item(vflag::HostText), callback, false), Error);
}

// Font styles.

constexpr std::int32_t cAllStyles = vflag::Bold | vflag::Italic | vflag::Strikethrough | vflag::Underline;

TEST_F(Painter, FontStylesAreSetInOrderAndOnlyOnADifference) {
    const std::set<std::string> writes{"Font.Bold", "Font.Italic", "Font.Strikethrough", "Font.Underline"};
    Paint(0);
    EXPECT_TRUE(log.NamedOneOf(writes).empty());
    Paint(cAllStyles);
    EXPECT_EQ(log.NamedOneOf(writes),
              (Calls{PlainCall("Font.Bold", {1}), PlainCall("Font.Italic", {1}),
                     PlainCall("Font.Strikethrough", {1}), PlainCall("Font.Underline", {1})}));
    Paint(cAllStyles);
    EXPECT_TRUE(log.NamedOneOf(writes).empty());
    Paint(vflag::Italic);
    EXPECT_EQ(log.NamedOneOf(writes),
              (Calls{PlainCall("Font.Bold", {0}), PlainCall("Font.Strikethrough", {0}),
                     PlainCall("Font.Underline", {0})}));
}

TEST_F(Painter, EachStyleBitSetsItsOwnProperty) {
    const auto styled = [&](std::int32_t flags) {
        Paint(flags);
        return font->value;
    };
    EXPECT_EQ(styled(vflag::Bold), (host::FontValue{"Test Sans", 9, true, false, false, false}));
    EXPECT_EQ(styled(vflag::Italic), (host::FontValue{"Test Sans", 9, false, true, false, false}));
    EXPECT_EQ(styled(vflag::Underline), (host::FontValue{"Test Sans", 9, false, false, true, false}));
    EXPECT_EQ(styled(vflag::Strikethrough), (host::FontValue{"Test Sans", 9, false, false, false, true}));
}

TEST_F(Painter, FontIsSetBeforeTheTextIsDrawn) {
    Paint(vflag::Bold);
    EXPECT_LT(PlaceOf("SetBkMode"), PlaceOf("Font.Bold"));
    EXPECT_LT(PlaceOf("Font.Bold"), PlaceOf("ExtTextOutA"));
}

// Alignment and tab columns.

TEST_F(Painter, RightAlignedTextHangsAtTheRightEdge) {
    EXPECT_EQ(Paint(vflag::RightAligned),
              (Calls{Area(), TextCall(120, 3, {20, 0, 120, 18}, "ant",
                                      {.textColor = cFore, .backColor = cBack, .align = 2})}));
    EXPECT_EQ(Paint(0)[1].values[5], 0) << "and the next cell is left aligned again";
}

class TabColumns : public Painter {
protected:
    Calls PaintTabs(const std::string& stops, const std::string& text, std::int32_t flags = 0) {
        state.TabStopSettingStr = stops;
        ParseTabStops(state);
        return Paint(Item(flags, text));
    }
    static Call Part(std::int32_t left, std::int32_t right, const std::string& text) {
        return Text(text, {left, 0, right, 18});
    }
};

TEST_F(TabColumns, WithoutStopsTheTabsStayInTheText) {
    EXPECT_EQ(PaintTabs("", "a\tb"), (Calls{Area(), Text("a\tb")}));
}

TEST_F(TabColumns, NStopsMakeOneColumnMore) {
    EXPECT_EQ(PaintTabs("30,40", "a\tb\tc"),
              (Calls{Area(), Part(20, 50, "a"), Part(50, 90, "b"), Part(90, 120, "c")}));
}

TEST_F(TabColumns, ATextWithFewerTabsPaintsEmptyParts) {
    EXPECT_EQ(PaintTabs("30,40", "a"),
              (Calls{Area(), Part(20, 50, "a"), Part(50, 90, ""), Part(90, 120, "")}));
    EXPECT_EQ(PaintTabs("30,40", ""), (Calls{Area(), Part(20, 50, ""), Part(50, 90, ""), Part(90, 120, "")}));
    EXPECT_EQ(PaintTabs("30", "a\t"), (Calls{Area(), Part(20, 50, "a"), Part(50, 120, "")}));
}

TEST_F(TabColumns, PartsBehindTheLastStopsColumnAreDropped) {
    EXPECT_EQ(PaintTabs("30", "a\tb\tc"), (Calls{Area(), Part(20, 50, "a"), Part(50, 120, "b")}));
}

TEST_F(TabColumns, EmptyPartsBetweenTabsKeepTheirColumns) {
    EXPECT_EQ(PaintTabs("30,40", "\t\tc"),
              (Calls{Area(), Part(20, 50, ""), Part(50, 90, ""), Part(90, 120, "c")}));
}

TEST_F(TabColumns, AStopOfWidthZeroGivesAnEmptyRectangleAndTheNextPartStartsThere) {
    EXPECT_EQ(PaintTabs("30,0", "a\tb\tc"),
              (Calls{Area(), Part(20, 50, "a"), Part(50, 50, "b"), Part(50, 120, "c")}));
}

TEST_F(TabColumns, AColumnEndsAtTheTextsRightEdgeAndWhatLiesBeyondIsNotDrawn) {
    EXPECT_EQ(PaintTabs("30,400,10", "a\tb\tc\td"), (Calls{Area(), Part(20, 50, "a"), Part(50, 120, "b")}));
}

TEST_F(TabColumns, AColumnThatStartsJustAtTheRightEdgeIsDrawnEmpty) {
    EXPECT_EQ(PaintTabs("100", "a\tb"), (Calls{Area(), Part(20, 120, "a"), Part(120, 120, "b")}));
    EXPECT_EQ(PaintTabs("101", "a\tb"), (Calls{Area(), Part(20, 120, "a")}));
}

TEST_F(TabColumns, RightAlignedPartsHangAtTheirOwnRightEdges) {
    const TextLook look{.textColor = cFore, .backColor = cBack, .align = 2};
    EXPECT_EQ(PaintTabs("30", "a\tb", vflag::RightAligned),
              (Calls{Area(), TextCall(50, 3, {20, 0, 50, 18}, "a", look),
                     TextCall(120, 3, {50, 0, 120, 18}, "b", look)}));
}

TEST_F(TabColumns, AStopOfTheLargestNumberIsJustAStopBeyondTheEdge) {
    EXPECT_EQ(PaintTabs("2147483647,5", "a\tb\tc"), (Calls{Area(), Part(20, 120, "a")}));
}

// Focus.

TEST_F(Painter, FocusRectangleDependsOnTheFocusUnlessTheItemAlwaysShowsIt) {
    state.ListIndex = 1;
    const Calls cell{Area(), Text()};
    EXPECT_EQ(Paint(0, false), cell);
    EXPECT_EQ(Paint(0, true), Joined(cell, {FocusCall({0, 0, 120, 18}, Sys(8), Sys(14))}));
    EXPECT_EQ(Paint(vflag::FocusAlways, false), Joined(cell, {FocusCall({0, 0, 120, 18}, Sys(8), Sys(14))}));
    EXPECT_EQ(Paint(vflag::FocusAlways, true), Joined(cell, {FocusCall({-1, -1, 121, 19}, Sys(8), Sys(14))}));
}

TEST_F(Painter, OnlyTheCurrentItemHasAFocusRectangle) {
    for (const std::int32_t current : {0, 2}) {
        state.ListIndex = current;
        EXPECT_EQ(Paint(0, true), (Calls{Area(), Text()}));
        EXPECT_EQ(Paint(vflag::FocusAlways, true), (Calls{Area(), Text()}));
    }
}

TEST_F(Painter, FocusRectangleLeavesTheHeadBandOut) {
    state.ListIndex = 1;
    state.HeadWidthEx = 10;
    EXPECT_EQ(Paint(0, true).back(), FocusCall({10, 0, 120, 18}, Sys(8), Sys(14)));
}

TEST_F(Painter, TheUnusedBitTwoChangesNothing) {
    state.ListIndex = 1;
    EXPECT_EQ(Paint(2, true), Paint(0, true));
}

// Blank cells.

TEST_F(Painter, BlankCellIsTheListsBackgroundOverItsGridLines) {
    state.CurItem = 0;
    EXPECT_EQ(Paint(0), Calls{FillRectCall({0, 0, 120, 18}, cList)});
    state.GridlineWidth = 2;
    EXPECT_EQ(Paint(0), Calls{FillRectCall({0, 0, 122, 20}, cList)});
}

TEST_F(Painter, BlankCellsOfTheFirstColumnAndRowCoverTheBorderLines) {
    state.CurItem = 0;
    state.GridlineWidth = 2;
    state.GridlineOnBorder = true;
    state.CellRect = {50, 60, 120, 78};
    EXPECT_EQ(Paint(0), Calls{FillRectCall({48, 58, 122, 80}, cList)});
    state.CurCol = 2;
    EXPECT_EQ(Paint(0), Calls{FillRectCall({50, 58, 122, 80}, cList)});
    state.CurRow = 2;
    EXPECT_EQ(Paint(0), Calls{FillRectCall({50, 60, 122, 80}, cList)});
    state.CurCol = 1;
    EXPECT_EQ(Paint(0), Calls{FillRectCall({48, 60, 122, 80}, cList)});
}

TEST_F(Painter, BlankCellLeavesFontFocusAndTextRectangleAlone) {
    Paint(vflag::Bold);
    const auto kept = state.TextRect;
    state.CurItem = 0;
    state.CellRect = {5, 5, 50, 20};
    Paint(0, true);
    EXPECT_EQ(state.TextRect, kept);
    EXPECT_TRUE(font->value.Bold);
    EXPECT_TRUE(log.Named("DrawFocusRect").empty());
}

TEST_F(Painter, ACellBeyondThirtyTwoBitsIsAnOverflowError) {
    state.GridlineWidth = 1;
    state.CellRect = {0, 0, 2147483647, 18};
    EXPECT_THROW(DrawListItem(state, Item(0), callback, false), OverflowError);
}

} // namespace
} // namespace tvok::test
