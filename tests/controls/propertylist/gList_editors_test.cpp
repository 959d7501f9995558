// The life of a host's editor in a property list: loaded, placed, shown, read back and hidden, as whole logs;
// and where strip and editor stand, in pixels.
#include "tests/support/PropertyListPaint.h"

namespace tvok::test {
namespace {

using namespace host;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* cTwoButtons = "0|x|2|...|y|0";

elistdata Field(const std::string& key, const std::string& buttons = {}) {
    elistdata item = PropertyListDesktop::Edited(key);
    item.item.text = key + "=";
    item.xbuttons = buttons;
    return item;
}

/// Three rows "a", "b" and "c" with editors, and the focus.
struct EditedRows : PropertyListDesktop {
    explicit EditedRows(const std::string& buttons = {}) {
        desktop.Focus(*list);
        Show({Field("a", buttons), Field("b", buttons), Field("c", buttons)});
    }
    /// The current row's value text of these pixels, in a list of 300 without a scroll bar.
    std::string Position(const std::string& key, std::int32_t row, std::int32_t strip = 0) const {
        const std::int32_t left = TextLeft();
        return "ExEditorSetPosition(" + key + ", " + std::to_string(left * 15) + "," +
               std::to_string((row - 1) * cPitch * 15) + "," + std::to_string((300 - strip - left) * 15) +
               ",270)";
    }
    std::int32_t TextLeft() const { return 15 + list->HeadWidth() + 1 + 20; }
    /// Makes row 1 current with its editor open.
    void OpenFirst() {
        ClickRow(1);
        Forget();
    }
    /// As wide as it takes to leave this much for text and strip of a value.
    void NarrowTo(std::int32_t pixels) {
        desktop.form().Place(*list, {10, 10, TextLeft() + pixels, 200});
        Forget();
        list->SetData(0, list->ListIndex() > 0 ? Row(list->ListIndex()).hItem.key : "");
        std::erase_if(log, [](const std::string& line) { return line.starts_with("ExItemShowCov"); });
    }
};

// The two sequences.

TEST(gListEditors, AClickOnAnotherRowReadsTheOldEditorAtThePressAndLoadsTheNewOneAtTheRelease) {
    EditedRows at;
    at.OpenFirst();
    const PaintsInLog paints(at);
    at.PressRow(2);
    EXPECT_THAT(at.TakeLog(), ElementsAre("paint(b)", "paint(b=)", "paint(a)", "paint(a=)", "Change(2, b)",
                                          "ExEditorDataRestore(a)", "ExEditorHide(a)"));
    at.desktop.Release();
    EXPECT_THAT(at.TakeLog(), ElementsAre("Click(2, b)", "ExEditorHide()", "ExEditorIni(b)", "paint(b)",
                                          "paint(b=)", at.Position("b", 2), "ExEditorShow(b)"));
}

// The new row's editor shows once before the old one is hidden and before it is loaded: the row is painted as
// soon as it is the current one. A host with one editor for all rows gets the right end all the same.
TEST(gListEditors, AKeyShowsTheNewEditorOnceBeforeItIsLoaded) {
    EditedRows at;
    at.OpenFirst();
    const PaintsInLog paints(at);
    at.desktop.Key(VK_DOWN);
    EXPECT_THAT(at.TakeLog(), ElementsAre("paint(b)", "paint(b=)", at.Position("b", 2), "ExEditorShow(b)",
                                          "paint(a)", "paint(a=)", "Change(2, b)", "Click(2, b)",
                                          "ExEditorDataRestore(a)", "ExEditorHide(a)", "ExEditorIni(b)",
                                          "paint(b)", "paint(b=)", at.Position("b", 2), "ExEditorShow(b)"));
}

TEST(gListEditors, AClickPaintsTwoRowsAtThePressAndOneAtTheRelease) {
    EditedRows at;
    at.OpenFirst();
    const RowCalls rows(at);
    EXPECT_EQ(Drawing(at.desktop.Trace([&] { at.PressRow(2); })),
              Join({rows.Value(2, "b", "b=", true), rows.Value(1, "a", "a=")}));
    EXPECT_EQ(Drawing(at.desktop.Trace([&] { at.desktop.Release(); })), rows.Value(2, "b", "b=", true));
}

TEST(gListEditors, AKeyPaintsTheNewRowTheOldOneAndTheNewOneAgain) {
    EditedRows at;
    at.OpenFirst();
    const RowCalls rows(at);
    EXPECT_EQ(
        Drawing(at.desktop.Trace([&] { at.desktop.Key(VK_DOWN); })),
        Join({rows.Value(2, "b", "b=", true), rows.Value(1, "a", "a="), rows.Value(2, "b", "b=", true)}));
}

/// The log with "+" at each event that finds the strip on the screen.
std::vector<std::string> WithStrip(EditedRows& at, const std::function<void()>& action) {
    std::vector<std::string> lines;
    NoteEvents(
        at.list->events,
        [&](const std::string& line) {
            lines.push_back(line.substr(0, line.find('(')) + (at.Strip() == tvok_Rect{} ? "" : "+"));
        },
        [](std::int32_t) { return nullptr; });
    action();
    at.NoteEvents();
    return lines;
}

TEST(gListEditors, TheStripGoesWithTheOldEditorAndComesBeforeTheNewOne) {
    EditedRows at(cTwoButtons);
    at.OpenFirst();
    EXPECT_THAT(WithStrip(at, [&] { at.PressRow(2); }),
                ElementsAre("Change+", "ExEditorDataRestore+", "ExEditorHide+"));
    EXPECT_EQ(at.Strip(), (tvok_Rect{}));
    EXPECT_THAT(WithStrip(at, [&] { at.desktop.Release(); }),
                ElementsAre("Click", "ExEditorHide", "ExEditorIni", "ExEditorSetPosition+", "ExEditorShow+"));
    EXPECT_THAT(WithStrip(at, [&] { at.list->KeyIn(40); }),
                ElementsAre("ExEditorSetPosition+", "ExEditorShow+", "Change+", "Click+",
                            "ExEditorDataRestore+", "ExEditorHide+", "ExEditorIni", "ExEditorSetPosition+",
                            "ExEditorShow+"));
}

// Other ways.

TEST(gListEditors, AClickOnTheCurrentRowClosesItsEditorAndOpensItAgain) {
    EditedRows at;
    at.OpenFirst();
    at.PressRow(1);
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorDataRestore(a)", "ExEditorHide(a)"));
    at.desktop.Release();
    EXPECT_THAT(at.TakeLog(), ElementsAre("Click(1, a)", "ExEditorHide()", "ExEditorIni(a)",
                                          at.Position("a", 1), "ExEditorShow(a)"));
}

TEST(gListEditors, ADragPlacesNothingUntilItsEnd) {
    EditedRows at(cTwoButtons);
    at.OpenFirst();
    at.PressRow(2);
    at.Forget();
    at.desktop.MoveTo(*at.list, 60, at.RowMiddle(3));
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(3, c)"));
    at.list->PaintAll();
    at.list->ListIndex(2);
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(2, b)"));
    EXPECT_EQ(at.Strip(), (tvok_Rect{}));
    at.desktop.Release();
    EXPECT_EQ(at.TakeLog().back(), "ExEditorShow(b)");
    EXPECT_EQ(at.Strip(), (tvok_Rect{260, 18, 300, 38}));
}

TEST(gListEditors, WritingListIndexShowsAnEditorThatWasNeverLoadedAndKeepsTheOldOneOpen) {
    EditedRows at;
    at.OpenFirst();
    at.list->ListIndex(2);
    EXPECT_THAT(at.TakeLog(), ElementsAre(at.Position("b", 2), "ExEditorShow(b)", "Change(2, b)"));
    at.PressRow(3);
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(3, c)", "ExEditorDataRestore(a)", "ExEditorHide(a)"))
        << "what is read back is the one that was loaded";
    at.desktop.Release();
}

TEST(gListEditors, AnEditorThatOnlyWasShownIsNotReadBack) {
    EditedRows at;
    at.list->ListIndex(2);
    at.Forget();
    at.PressRow(3);
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(3, c)", "ExEditorHide()"));
    at.desktop.Release();
}

TEST(gListEditors, ARowWithoutAnEditorIsActivatedWithoutOne) {
    EditedRows at;
    at.Show({PropertyListDesktop::Value("d")});
    at.OpenFirst();
    at.ClickRow(4);
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(4, d)", "ExEditorDataRestore(a)", "ExEditorHide(a)",
                                          "Click(4, d)", "ExEditorHide()"));
    at.ClickRow(1);
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(1, a)", "ExEditorHide()", "Click(1, a)", "ExEditorHide()",
                                          "ExEditorIni(a)", at.Position("a", 1), "ExEditorShow(a)"));
}

TEST(gListEditors, ARebuildReadsTheEditorBackAndOpensItAgainWithoutAClick) {
    EditedRows at;
    at.OpenFirst();
    at.list->BuiltList();
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorDataRestore(a)", "ExEditorHide(a)", at.Position("a", 1),
                                          "ExEditorShow(a)", "Change(1, a)", "ExEditorHide()",
                                          "ExEditorIni(a)", at.Position("a", 1), "ExEditorShow(a)"));
}

TEST(gListEditors, ClearHidesWithoutReadingBack) {
    EditedRows at(cTwoButtons);
    at.OpenFirst();
    at.list->Clear();
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide()"));
    EXPECT_EQ(at.Strip(), (tvok_Rect{}));
    at.Show({Field("z")});
    at.ClickRow(1);
    EXPECT_THAT(at.TakeLog({"ExEditorDataRestore"}), IsEmpty());
}

TEST(gListEditors, EveryPaintOfTheCurrentRowPlacesAndShowsItsEditor) {
    EditedRows at;
    at.OpenFirst();
    const auto once = ElementsAre(at.Position("a", 1), "ExEditorShow(a)");
    at.list->PaintAll();
    EXPECT_THAT(at.TakeLog(), once);
    at.desktop.FocusAway();
    EXPECT_THAT(at.TakeLog(), once);
    at.desktop.Focus(*at.list);
    EXPECT_THAT(at.TakeLog(), once);
    at.list->ListIndex(1);
    EXPECT_THAT(at.TakeLog(), once);
    at.desktop.Key(VK_UP);
    EXPECT_THAT(at.TakeLog(), once);
    platform().InvalidateRect(at.desktop.WindowOf(*at.list), nullptr, false);
    at.desktop.Pump();
    EXPECT_THAT(at.TakeLog(), once);
    at.list->SetData(1, "b");
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExItemShowCov(b)")) << "another row is another matter";
    at.list->SetData(1, "a");
    EXPECT_EQ(at.TakeLog().size(), 3u);
}

TEST(gListEditors, VarDataLoadsTheEditorAgain) {
    EditedRows at;
    at.OpenFirst();
    at.list->VarData(5);
    EXPECT_THAT(at.TakeLog(),
                ElementsAre("ExItemShowCov(a)", "ExEditorIni(a)", at.Position("a", 1), "ExEditorShow(a)"));
    at.PressRow(1); // while the button is held there is no placing, but the loading comes
    at.Forget();
    at.list->VarData(6);
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExItemShowCov(a)", "ExEditorIni(a)"));
    at.desktop.Release();
}

TEST(gListEditors, WhatTheLoadingHandlerChangesInTheRecordStaysAndShows) {
    EditedRows at;
    at.list->events.ExEditorIni = [](elistdata& x) {
        x.item.text = "loaded";
        x.nData = 3;
    };
    const auto texts = PaintedTexts(at.desktop, [&] { at.ClickRow(2); });
    EXPECT_EQ(texts.back(), "loaded");
    EXPECT_EQ(at.Row(2).nData, Variant(3));
}

TEST(gListEditors, WhatAHandlerWritesIntoThePositionIsIgnored) {
    EditedRows at;
    at.list->events.ExEditorSetPosition = [&](const std::string&, std::int32_t& x, std::int32_t& y,
                                              std::int32_t& w, std::int32_t& h) {
        at.log.push_back(std::to_string(x) + " " + std::to_string(w));
        x = y = w = h = -1;
    };
    at.OpenFirst();
    at.list->PaintAll();
    const auto first = at.TakeLog();
    at.list->PaintAll();
    EXPECT_EQ(at.TakeLog(), first);
}

// Handlers that move the current row on.

TEST(gListEditors, ARowThatIsMovedOnWhileItIsPaintedTellsOfBoth) {
    EditedRows at;
    at.list->ListIndex(1);
    at.Forget();
    at.list->events.ExEditorShow = [&](const std::string& key) {
        at.log.push_back("ExEditorShow(" + key + ")");
        if (key == "b") at.list->ListIndex(3);
    };
    at.list->ListIndex(2);
    EXPECT_THAT(at.TakeLog({"ExEditorShow", "Change"}),
                ElementsAre("ExEditorShow(b)", "ExEditorShow(c)", "Change(3, c)", "Change(2, b)"));
    EXPECT_EQ(at.list->ListIndex(), 3);
    EXPECT_THAT(at.Selected(), ElementsAre(3));
}

// What was current before is compared with what is current after the painting.
TEST(gListEditors, ARowThatIsMovedBackWhileItIsPaintedTellsOfTheWayBackOnly) {
    EditedRows at;
    at.list->ListIndex(1);
    at.Forget();
    at.list->events.ExEditorShow = [&](const std::string& key) {
        at.log.push_back("ExEditorShow(" + key + ")");
        if (key == "b") at.list->ListIndex(1);
    };
    at.list->ListIndex(2);
    EXPECT_THAT(at.TakeLog({"ExEditorShow", "Change"}),
                ElementsAre("ExEditorShow(b)", "ExEditorShow(a)", "Change(1, a)"));
    EXPECT_EQ(at.list->ListIndex(), 1);
}

TEST(gListEditors, AClickHandlerThatMovesTheCurrentRowMovesTheActivationAlong) {
    EditedRows at;
    at.list->events.Click = [&](std::int32_t row, elistdata&) {
        at.log.push_back("Click(" + std::to_string(row) + ")");
        at.list->ListIndex(3);
    };
    at.ClickRow(2);
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(2, b)", "ExEditorHide()", "Click(2)", at.Position("c", 3),
                                          "ExEditorShow(c)", "Change(3, c)", "ExEditorHide()",
                                          "ExEditorIni(c)", at.Position("c", 3), "ExEditorShow(c)"));
    at.PressRow(1);
    EXPECT_THAT(at.TakeLog({"ExEditorDataRestore"}), ElementsAre("ExEditorDataRestore(c)"));
    at.desktop.Release();
}

TEST(gListEditors, AChangeHandlerThatMovesTheCurrentRowOnAtAKeyActivatesWhereItEnds) {
    EditedRows at;
    at.list->ListIndex(1);
    at.Forget();
    at.list->events.Change = [&](std::int32_t row, elistdata&) {
        at.log.push_back("Change(" + std::to_string(row) + ")");
        if (row == 2) at.list->ListIndex(3);
    };
    at.desktop.Key(VK_DOWN);
    EXPECT_THAT(at.TakeLog({"Change", "Click", "ExEditorIni"}),
                ElementsAre("Change(2)", "Change(3)", "Click(3, c)", "ExEditorIni(c)"));
}

// The flag.

TEST(gListEditors, TheFlagIsThatOfTheValueNotOfTheCaption) {
    PropertyListDesktop at;
    elistdata item = PropertyListDesktop::Value("a");
    item.hItem.vflag = vflag::Editor;
    at.Show({item});
    at.ClickRow(1);
    EXPECT_THAT(at.TakeLog({"ExEditorIni", "ExEditorShow", "ExEditorSetPosition"}), IsEmpty());
}

TEST(gListEditors, AGroupIsLoadedButNeverPlaced) {
    PropertyListDesktop at({.ListMode = 1});
    at.desktop.Focus(*at.list);
    elistdata group = PropertyListDesktop::Group("g");
    group.item.vflag = vflag::Editor;
    at.Show({group});
    at.ClickRow(1);
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(1, g)", "ExEditorHide()", "Click(1, g)", "ExEditorHide()",
                                          "ExEditorIni(g)"));
    at.ClickRow(1);
    EXPECT_THAT(at.TakeLog({"ExEditorDataRestore"}), ElementsAre("ExEditorDataRestore(g)"));
}

TEST(gListEditors, AFlagThatGoesWhileTheEditorIsOpenLeavesItUnread) {
    EditedRows at;
    at.OpenFirst();
    at.list->events.EnumItems = [](elistdata& x, std::int32_t) { x.item.vflag = 0; };
    at.list->ReqEnumItems(0, "a");
    at.Forget();
    at.PressRow(2);
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(2, b)", "ExEditorHide()"));
    at.desktop.Release();
}

// Places.

TEST(gListEditors, TheEditorTakesTheTextOfTheValueAndTheStripItsEnd) {
    EditedRows at(cTwoButtons);
    at.ClickRow(2);
    EXPECT_EQ(at.Strip(), (tvok_Rect{260, 18, 300, 38})) << "a pixel over the row at both ends";
    EXPECT_EQ(at.TakeLog({"ExEditorSetPosition"}).back(), at.Position("b", 2, 40));
    at.list->ListIndex(1);
    EXPECT_EQ(at.Strip(), (tvok_Rect{260, -1, 300, 19}));
}

TEST(gListEditors, ATextAtTheEdgeGivesItsEditorTheWholeCell) {
    EditedRows at;
    elistdata item = Field("b");
    item.item.vflag |= vflag::TextAtEdge;
    at.list->AddItem(item);
    at.list->ListIndex(2);
    const std::int32_t left = at.TextLeft() - 20;
    EXPECT_EQ(at.TakeLog({"ExEditorSetPosition"}).back(), "ExEditorSetPosition(b, " +
                                                              std::to_string(left * 15) + ",285," +
                                                              std::to_string((300 - left) * 15) + ",270)");
}

TEST(gListEditors, WithoutLinesTheStripStandsLevelWithTheRow) {
    EditedRows at(cTwoButtons);
    at.list->GridlineWidth(0);
    at.list->ListIndex(2);
    EXPECT_EQ(at.Strip(), (tvok_Rect{264, 18, 300, 36}));
}

TEST(gListEditors, WideLinesRaiseTheStripByOnePixelOnly) {
    EditedRows at(cTwoButtons);
    at.list->GridlineWidth(4);
    at.list->ListIndex(2);
    EXPECT_EQ(at.Strip(), (tvok_Rect{260, 21, 300, 41}));
}

TEST(gListEditors, LinesOnTheBorderMoveTheStripIn) {
    EditedRows at(cTwoButtons);
    at.list->GridlineOnBorder(true);
    at.list->ListIndex(1);
    EXPECT_EQ(at.Strip(), (tvok_Rect{259, 0, 299, 20}));
    const std::int32_t left = at.TextLeft() + 1;
    EXPECT_EQ(at.TakeLog({"ExEditorSetPosition"}).back(), "ExEditorSetPosition(a, " +
                                                              std::to_string(left * 15) + ",15," +
                                                              std::to_string((259 - left) * 15) + ",270)");
}

TEST(gListEditors, TheStripIsAsHighAsItsRows) {
    EditedRows at(cTwoButtons);
    at.list->ItemHeight(30);
    at.list->ListIndex(2);
    EXPECT_EQ(at.Strip(), (tvok_Rect{300 - 64, 30, 300, 62}));
}

TEST(gListEditors, TheStripOfAGroupStandsAtTheEndOfItsRow) {
    PropertyListDesktop at({.ListMode = 1});
    elistdata group = PropertyListDesktop::Group("g");
    group.xbuttons = cTwoButtons;
    at.Show({group});
    at.list->ListIndex(1);
    EXPECT_EQ(at.Strip(), (tvok_Rect{260, -1, 300, 19}));
    at.desktop.form().Place(*at.list, {10, 10, 40, 200});
    at.desktop.Pump();
    EXPECT_EQ(at.Strip(), (tvok_Rect{0, -1, 40, 19})) << "over band and caption, where it just fits";
    at.desktop.form().Place(*at.list, {10, 10, 39, 200});
    at.desktop.Pump();
    EXPECT_EQ(at.Strip(), (tvok_Rect{}));
}

TEST(gListEditors, AnEditorNeedsSixPixels) {
    EditedRows at;
    at.list->ListIndex(1);
    at.NarrowTo(6);
    EXPECT_THAT(at.TakeLog(),
                ElementsAre("ExEditorSetPosition(a, " + std::to_string(at.TextLeft() * 15) + ",0,90,270)",
                            "ExEditorShow(a)"));
    at.NarrowTo(5);
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide(a)"));
}

TEST(gListEditors, AStripThatLeavesTooLittleHidesTheEditorAndStays) {
    EditedRows at(cTwoButtons);
    at.list->ListIndex(1);
    at.NarrowTo(46);
    EXPECT_THAT(at.TakeLog(),
                ElementsAre("ExEditorSetPosition(a, " + std::to_string(at.TextLeft() * 15) + ",0,90,270)",
                            "ExEditorShow(a)"));
    for (const std::int32_t pixels : {45, 40}) {
        at.NarrowTo(pixels);
        EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide(a)")) << pixels;
        EXPECT_EQ(at.Strip(), (tvok_Rect{at.TextLeft() + pixels - 40, -1, at.TextLeft() + pixels, 19}))
            << pixels;
    }
}

TEST(gListEditors, AStripThatDoesNotFitHidesAndTakesTheEditorAlong) {
    EditedRows at(cTwoButtons);
    at.list->ListIndex(1);
    at.NarrowTo(39);
    EXPECT_EQ(at.Strip(), (tvok_Rect{}));
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide(a)")) << "there was room for it alone";
}

TEST(gListEditors, TwipsAreRoundedToTheNearestAndHalvesToTheEvenOne) {
    EditedRows at;
    at.list->ListIndex(2);
    at.Forget();
    const TwipsOf twips(13.5F, 14.5F);
    at.list->PaintAll();
    const auto x = [](std::int32_t pixels) { return std::to_string(RoundToInt32(pixels * 13.5)); };
    const std::int32_t left = at.TextLeft();
    EXPECT_THAT(at.TakeLog({"ExEditorSetPosition"}),
                ElementsAre("ExEditorSetPosition(b, " + x(left) + "," +
                            std::to_string(RoundToInt32(19 * 14.5)) + "," + x(300 - left) + ",261)"));
}

// The strip is hidden where an editor closes, and nowhere else: a row without buttons leaves it there, empty.
TEST(gListEditors, AStripLeftFromAnotherRowStaysUntilTheEditorCloses) {
    EditedRows at(cTwoButtons);
    elistdata plain = Field("b");
    at.list->AddItem(plain);
    at.list->ListIndex(1);
    at.list->ListIndex(2);
    const soft::Window* own = at.desktop.desktop().world().windows.Find(at.desktop.WindowOf(*at.list));
    const auto shown = [&] {
        return std::ranges::count_if(own->children(),
                                     [](const soft::Window* child) { return child->shown(); });
    };
    EXPECT_EQ(shown(), 1);
    EXPECT_EQ(at.Strip().Right - at.Strip().Left, 0);
    at.ClickRow(2);
    EXPECT_EQ(shown(), 0);
}

} // namespace
} // namespace tvok::test
