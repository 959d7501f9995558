// The built-in types of a property list: the popups and the dialog that its strip of buttons opens, by real
// presses on the strip and real moves in the popup.
#include "tests/support/PropertyListPaint.h"

namespace tvok::test {
namespace {

using namespace host;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* cColor = "b|0|2|b|1|2|...|2|0;cs";

/// A list with one row "a" of this type and a further one "z", the focus, and row 1 current.
struct TypedRow : PropertyListDesktop {
    explicit TypedRow(const std::string& xbuttons, const Variant& value = {}, std::int32_t flags = 0,
                      const std::map<std::int32_t, std::string>& lists = {}) {
        popLists = lists;
        desktop.Focus(*list);
        elistdata item = Value("a", {}, xbuttons);
        item.nData = value;
        item.item.vflag = flags;
        Show({item, Value("z")});
        list->ListIndex(1);
        Forget();
    }

    Variant Now() const { return ByKey("a").nData; }
    std::string Display() const { return ByKey("a").item.text; }

    // The strip; buttons are counted from 1.
    void PressButton(std::int32_t button) {
        const tvok_Rect strip = Strip();
        const std::int32_t size = strip.bottom - strip.Top;
        desktop.clock().now += std::chrono::seconds(1);
        desktop.Press(*list, strip.Left + size * (button - 1) + size / 2, strip.Top + size / 2);
    }
    void ClickButton(std::int32_t button) {
        PressButton(button);
        desktop.Release();
    }

    // The popup.
    bool IsOpen() { return Floating() != 0; }
    tvok_Rect PopupRect() {
        tvok_Rect rect;
        platform().GetWindowRect(Floating(), rect);
        return rect;
    }
    tvok_Rect PopupClient() {
        tvok_Rect rect;
        platform().GetClientRect(Floating(), rect);
        return rect;
    }
    void MoveInPopup(std::int32_t x, std::int32_t y) {
        Point point{x, y};
        platform().ClientToScreen(Floating(), point);
        desktop.desktop().Input().MouseMove(point.x, point.y);
        desktop.Pump();
    }
    /// To a row of a popup of one column in which these many show.
    void MoveToEntry(std::int32_t row, std::int32_t shown) {
        MoveInPopup(20, PopupClient().bottom / shown * (row - 1) + 4);
    }
    void MoveToColor(std::int32_t column, std::int32_t row) {
        MoveInPopup(1 + (column - 1) * 11 + 5, 1 + (row - 1) * 11 + 5);
    }
    void ClickHere() {
        desktop.clock().now += std::chrono::seconds(1);
        desktop.desktop().Input().MouseDown(desktop::MouseButton::Left);
        desktop.Pump();
        desktop.Release();
    }
};

constexpr const char* cSizes = "998\r\n107=small\r\n106=1\r\n999\r\n107=middle\r\n106=2\r\n999\r\n"
                               "107=large\r\n106=3\r\n999\r\n";

// The strip.

TEST(gListPopups, AButtonTellsTheHostAtItsPressAndAtItsClick) {
    TypedRow at("0|left|2|...|right|0");
    at.PressButton(2);
    EXPECT_THAT(at.TakeLog(), ElementsAre("ButtonMouseDown(right, a)", "ButtonMouseDownEx(right, a)"));
    EXPECT_FALSE(at.IsOpen()) << "the host's type has no popup";
    at.desktop.Release();
    EXPECT_THAT(at.TakeLog(), ElementsAre("ButtonClick(right, a)"));
}

TEST(gListPopups, TheHandlersOfAPressShareOneCopyAndTheClickHasItsOwn) {
    TypedRow at("0|x|2");
    at.list->events.ButtonMouseDown = [](const std::string&, elistdata& x) { x.HelpStr = "noted"; };
    at.list->events.ButtonMouseDownEx = [&](const std::string&, elistdata& x) {
        at.log.push_back(x.HelpStr);
    };
    at.list->events.ButtonClick = [&](const std::string&, elistdata& x) { at.log.push_back(x.HelpStr); };
    at.ClickButton(1);
    EXPECT_THAT(at.TakeLog(), ElementsAre("noted", ""));
    EXPECT_EQ(at.ByKey("a").HelpStr, "");
}

TEST(gListPopups, KeysWorkOnWhileTheStripHasTheFocus) {
    TypedRow at("0|x|2");
    at.ClickButton(1);
    EXPECT_NE(platform().GetFocus(), at.desktop.WindowOf(*at.list));
    at.Forget();
    at.desktop.Key(VK_DOWN);
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(2, z)", "Click(2, z)", "ExEditorHide()"));
}

TEST(gListPopups, WithoutButtonsThereIsNoStripToPress) {
    TypedRow at("");
    const tvok_Rect strip = at.Strip();
    EXPECT_EQ(strip.Right - strip.Left, 0);
}

TEST(gListPopups, TheTypeWordMayStandInCapitalsAndAmongBlanks) {
    for (const char* xbuttons : {"v|0|2;CS", "v|0|2; cs ", "v|0|2;cs7", "v|0|2;Cs 7"}) {
        TypedRow at(xbuttons, 255);
        at.PressButton(1);
        EXPECT_TRUE(at.IsOpen()) << xbuttons;
    }
    TypedRow second("v|0|2;cs;li 7");
    second.PressButton(1);
    EXPECT_FALSE(second.IsOpen()) << "a second divider belongs to the word";
}

// Colours.

TEST(gListPopups, ButtonZeroOfAColorOpensThePaletteBeforeTheHostHears) {
    TypedRow at(cColor, 255);
    at.list->events.ButtonMouseDown = [&](const std::string& key, elistdata&) {
        at.log.push_back("ButtonMouseDown(" + key + (at.IsOpen() ? ") open" : ")"));
    };
    at.PressButton(1);
    EXPECT_THAT(at.TakeLog(), ElementsAre("ButtonMouseDown(0) open", "ButtonMouseDownEx(0, a)"));
    EXPECT_EQ(at.PopupClient(), (tvok_Rect{0, 0, 24 * 11 + 1, 10 * 11 + 1}));
    at.desktop.Release();
    EXPECT_THAT(at.TakeLog(), ElementsAre("ButtonClick(0, a)"));
    EXPECT_TRUE(at.IsOpen()) << "the release was the button's";
}

TEST(gListPopups, ThePopupHangsFromTheValuesCell) {
    TypedRow at(cColor, 255);
    tvok_Rect cell;
    at.list->GetItemRect(1, cell);
    at.ClickButton(1);
    EXPECT_EQ(at.PopupRect().Top, cell.bottom);
    EXPECT_EQ(at.PopupRect().Right, cell.Right);
}

TEST(gListPopups, EveryMoveInThePaletteIsStoredAndShownAtOnce) {
    TypedRow at(cColor, 255);
    at.ClickButton(1);
    at.Forget();
    at.MoveToColor(24, 1);
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumItems(a, 0)"));
    EXPECT_EQ(at.Now(), Variant(0xFFFFFF));
    EXPECT_EQ(at.Display(), "(&H00FFFFFF)");
    EXPECT_EQ(at.ByKey("a").item.IconBackColor, 0xFFFFFF);
    EXPECT_THAT(PaintedTexts(at.desktop, [&] { at.MoveToColor(24, 10); }), Contains("(&H00000000)"));
    EXPECT_EQ(at.Now(), Variant(0));
    at.Forget();
    at.ClickHere();
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumItems(a, 0)"));
    EXPECT_FALSE(at.IsOpen());
    EXPECT_EQ(at.Now(), Variant(0));
}

TEST(gListPopups, EscPutsTheOldColorBackAndTellsTheHost) {
    TypedRow at(cColor, 0x336699);
    at.ClickButton(1);
    at.MoveToColor(24, 1);
    EXPECT_EQ(at.Now(), Variant(0xFFFFFF));
    at.Forget();
    EXPECT_THAT(PaintedTexts(at.desktop, [&] { at.desktop.Key(VK_ESCAPE); }),
                ElementsAre("a", "(&H00336699)"));
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumItems(a, 0)"));
    EXPECT_EQ(at.Now(), Variant(0x336699));
    EXPECT_FALSE(at.IsOpen());
}

TEST(gListPopups, APressThatIsDraggedIntoThePaletteChoosesAtItsRelease) {
    TypedRow at(cColor, 255);
    at.PressButton(1);
    at.MoveToColor(24, 1);
    at.MoveToColor(24, 10);
    EXPECT_EQ(at.Now(), Variant(0)) << "a preview";
    at.desktop.Release();
    EXPECT_FALSE(at.IsOpen());
    EXPECT_EQ(at.Now(), Variant(0));
    EXPECT_THAT(at.TakeLog(), ElementsAre("ButtonMouseDown(0, a)", "ButtonMouseDownEx(0, a)",
                                          "EnumItems(a, 0)", "EnumItems(a, 0)", "EnumItems(a, 0)"))
        << "two previews and the choice; the button had no click";
}

TEST(gListPopups, ButtonOneOfAColorOpensTheSystemColors) {
    TypedRow at(cColor, 255);
    at.ClickButton(2);
    EXPECT_THAT(at.TakeLog(),
                ElementsAre("ButtonMouseDown(1, a)", "ButtonMouseDownEx(1, a)", "ButtonClick(1, a)"));
    at.MoveToEntry(6, 8);
    EXPECT_EQ(at.Now(), Variant(cWindowBackground));
    EXPECT_EQ(at.Display(), "(Window Background)");
    at.ClickHere();
    EXPECT_EQ(at.Now(), Variant(cWindowBackground));
    EXPECT_FALSE(at.IsOpen());
}

// A key that is no number counts as 0.
TEST(gListPopups, AColorButtonWithoutANumberOpensThePalette) {
    TypedRow at("v|pick|2;cs");
    at.PressButton(1);
    EXPECT_EQ(at.PopupClient(), (tvok_Rect{0, 0, 265, 111}));
}

TEST(gListPopups, OtherButtonsOfAColorOnlyTellTheHost) {
    TypedRow at("v|3|2|v|-1|2;cs");
    for (const std::int32_t button : {1, 2}) {
        at.PressButton(button);
        EXPECT_FALSE(at.IsOpen());
        EXPECT_EQ(at.TakeLog().size(), 2u);
        at.desktop.Release();
        EXPECT_EQ(at.TakeLog().size(), 1u);
    }
}

TEST(gListPopups, CancellingPutsAnEmptyValueBack) {
    TypedRow at(cColor);
    at.ClickButton(1);
    at.MoveToColor(24, 1);
    EXPECT_FALSE(at.Now().IsEmpty());
    at.Forget();
    at.desktop.Key(VK_ESCAPE);
    EXPECT_TRUE(at.Now().IsEmpty());
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumItems(a, 0)"));
    EXPECT_EQ(at.Display(), "(&H00000000)");
}

TEST(gListPopups, CancellingAtOnceStillTellsTheHost) {
    TypedRow at(cColor);
    at.ClickButton(1);
    at.Forget();
    at.desktop.Key(VK_ESCAPE);
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumItems(a, 0)"));
}

TEST(gListPopups, APressElsewhereCancels) {
    TypedRow at(cColor, 255);
    at.ClickButton(1);
    at.MoveToColor(24, 1);
    at.desktop.desktop().Input().MouseMove(1000, 900);
    at.desktop.Pump();
    at.ClickHere();
    EXPECT_FALSE(at.IsOpen());
    EXPECT_EQ(at.Now(), Variant(255));
}

// The dialog.

TEST(gListPopups, ButtonTwoOfAColorOpensTheDialogAtItsClick) {
    TypedRow at(cColor, 255);
    at.services.color = 0x123456;
    at.PressButton(3);
    EXPECT_EQ(at.services.dialogs, 0);
    EXPECT_FALSE(at.IsOpen());
    EXPECT_THAT(at.TakeLog(), ElementsAre("ButtonMouseDown(2, a)", "ButtonMouseDownEx(2, a)"));
    at.list->events.ButtonClick = [&](const std::string& key, elistdata& x) {
        at.log.push_back("ButtonClick(" + key + ") " + x.nData.AsText());
    };
    at.desktop.Release();
    EXPECT_EQ(at.services.dialogs, 1);
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumItems(a, 0)", "ButtonClick(2) " + std::to_string(0x123456)))
        << "read anew";
    EXPECT_EQ(at.Display(), "(&H00123456)");
}

TEST(gListPopups, ADialogThatIsCancelledChangesNothing) {
    TypedRow at(cColor, 255);
    at.ClickButton(3);
    EXPECT_EQ(at.services.dialogs, 1);
    EXPECT_THAT(at.TakeLog(),
                ElementsAre("ButtonMouseDown(2, a)", "ButtonMouseDownEx(2, a)", "ButtonClick(2, a)"));
    EXPECT_EQ(at.Now(), Variant(255));
}

TEST(gListPopups, AColorFromTheDialogLoadsTheEditorAgain) {
    TypedRow at(cColor, 255, vflag::Editor);
    at.services.color = 7;
    at.PressButton(3);
    at.Forget();
    at.desktop.Release();
    const auto log = at.TakeLog();
    ASSERT_EQ(log.size(), 5u) << testing::PrintToString(log);
    EXPECT_EQ(log[0], "ExEditorIni(a)");
    EXPECT_TRUE(log[1].starts_with("ExEditorSetPosition(a, "));
    EXPECT_THAT((std::vector<std::string>{log.begin() + 2, log.end()}),
                ElementsAre("ExEditorShow(a)", "EnumItems(a, 0)", "ButtonClick(2, a)"));
}

TEST(gListPopups, TheDialogIsForColorsOnly) {
    TypedRow at("...|2|0;ns", 4);
    at.services.color = 7;
    at.ClickButton(1);
    EXPECT_EQ(at.services.dialogs, 0);
    EXPECT_EQ(at.Now(), Variant(4));
}

// What only the dialog takes for no choice is a colour everywhere else.
TEST(gListPopups, MinusOneIsAColorAsAValue) {
    TypedRow at(cColor, -1);
    EXPECT_EQ(at.ByKey("a").item.IconBackColor, -1);
}

// Numbers.

TEST(gListPopups, ANumberIsChosenFromItsRange) {
    TypedRow at("v|3-6|2;ns", 5);
    at.ClickButton(1);
    EXPECT_THAT(at.TakeLog(),
                ElementsAre("ButtonMouseDown(3-6, a)", "ButtonMouseDownEx(3-6, a)", "ButtonClick(3-6, a)"));
    at.MoveToEntry(4, 4);
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumItems(a, 0)"));
    EXPECT_EQ(at.Now(), Variant(6));
    EXPECT_EQ(at.Display(), "6");
    at.MoveToEntry(1, 4);
    at.ClickHere();
    EXPECT_EQ(at.Now(), Variant(3));
    EXPECT_FALSE(at.IsOpen());
}

TEST(gListPopups, ARangeThatDoesNotRiseOpensNothingAndStillTellsTheHost) {
    for (const char* xbuttons : {"v|5|2;ns", "v|3-3|2;ns", "v|6-3|2;ns", "v|x|2;ns", "v|4-x|2;ns"}) {
        TypedRow at(xbuttons, 5);
        at.PressButton(1);
        EXPECT_FALSE(at.IsOpen()) << xbuttons;
        EXPECT_EQ(at.TakeLog().size(), 2u) << xbuttons;
        at.desktop.Release();
    }
}

// The first "-" divides, also where it is a sign.
TEST(gListPopups, ARangeThatBeginsBelowZeroEndsBehindItsFirstSign) {
    TypedRow at("v|-2-9|2;ns");
    at.ClickButton(1);
    at.MoveToEntry(1, 5);
    EXPECT_EQ(at.Now(), Variant(-2));
    at.MoveToEntry(5, 5);
    EXPECT_EQ(at.Now(), Variant(2));
}

TEST(gListPopups, AFractionOfABoundIsRounded) {
    TypedRow at("v|0.4-2.6|2;ns");
    at.ClickButton(1);
    at.MoveToEntry(1, 4);
    EXPECT_EQ(at.Now(), Variant(0));
    at.MoveToEntry(4, 4);
    EXPECT_EQ(at.Now(), Variant(3));
}

TEST(gListPopups, KeysChooseInThePopupAndNotInTheList) {
    TypedRow at("v|1-5|2;ns", 5);
    at.ClickButton(1);
    at.Forget();
    at.desktop.Key(VK_DOWN);
    at.desktop.Key(VK_DOWN);
    EXPECT_EQ(at.list->ListIndex(), 1);
    EXPECT_EQ(at.Now(), Variant(2));
    at.desktop.Key(VK_RETURN);
    EXPECT_FALSE(at.IsOpen());
    EXPECT_EQ(at.Now(), Variant(2));
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumItems(a, 0)", "EnumItems(a, 0)", "EnumItems(a, 0)"));
    at.desktop.Key(VK_DOWN);
    EXPECT_EQ(at.list->ListIndex(), 2);
}

TEST(gListPopups, TheHostMayChangeTheNewValueInEnumItems) {
    TypedRow at("v|1-5|2;ns", 5);
    at.list->events.EnumItems = [](elistdata& x, std::int32_t) { x.nData = x.nData.AsInteger() * 10; };
    at.ClickButton(1);
    at.MoveToEntry(3, 5);
    EXPECT_EQ(at.Display(), "30");
    at.ClickHere();
    EXPECT_EQ(at.Now(), Variant(30));
    EXPECT_EQ(at.Display(), "30");
}

// Lists.

TEST(gListPopups, AListEntryIsChosenByItsDataAndBecomesTheValueCell) {
    TypedRow at("v|x|2;li 7", 2, 0, {{7, cSizes}});
    EXPECT_EQ(at.Display(), "middle");
    at.ClickButton(1);
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumPopStr(7, )", "ButtonMouseDown(x, a)",
                                          "ButtonMouseDownEx(x, a)", "ButtonClick(x, a)"));
    at.MoveToEntry(3, 3);
    EXPECT_EQ(at.Now(), Variant(3));
    EXPECT_EQ(at.Display(), "large");
    at.ClickHere();
    EXPECT_EQ(at.Now(), Variant(3));
}

TEST(gListPopups, AListStandsInTheOrderOfItsDataAndATextListInThatOfItsTexts) {
    const std::string list =
        "998\r\n107=bee\r\n106=1\r\n999\r\n107=ant\r\n106=3\r\n999\r\n107=cat\r\n106=2\r\n999\r\n";
    TypedRow data("v|x|2;li 7", 0, 0, {{7, list}});
    data.ClickButton(1);
    data.MoveToEntry(2, 3);
    EXPECT_EQ(data.Now(), Variant(2));
    TypedRow text("v|x|2;lt 7", "", 0, {{7, list}});
    text.ClickButton(1);
    text.MoveToEntry(1, 3);
    EXPECT_EQ(text.Now(), Variant("ant"));
    EXPECT_EQ(text.Display(), "ant");
    text.MoveToEntry(3, 3);
    text.ClickHere();
    EXPECT_EQ(text.Now(), Variant("cat"));
}

TEST(gListPopups, TheNumberOfTheButtonNamesTheListBeforeThatOfTheType) {
    for (const auto& [key, asked] : {std::pair{"9", 9}, {"0", 7}, {"-3", 7}, {"x", 7}}) {
        TypedRow at(std::string("v|") + key + "|2;li 7", 1, 0, {{7, cSizes}, {9, cSizes}});
        at.PressButton(1);
        EXPECT_EQ(at.TakeLog().front(), "EnumPopStr(" + std::to_string(asked) + ", )") << key;
        EXPECT_TRUE(at.IsOpen());
    }
}

TEST(gListPopups, AListWithoutANumberIsAskedForByItsButtonAlone) {
    TypedRow at("v|9|2;li", 1, 0, {{9, cSizes}});
    at.PressButton(1);
    EXPECT_EQ(at.TakeLog().front(), "EnumPopStr(9, )");
    EXPECT_TRUE(at.IsOpen());
    at.desktop.Key(VK_ESCAPE);
    TypedRow none("v|x|2;li", 1);
    none.PressButton(1);
    EXPECT_THAT(none.TakeLog(),
                ElementsAre("EnumPopStr(0, )", "ButtonMouseDown(x, a)", "ButtonMouseDownEx(x, a)"));
    EXPECT_FALSE(none.IsOpen());
}

TEST(gListPopups, AListOfBlanksOpensNothingAndStillTellsTheHost) {
    TypedRow at("v|x|2;lt 7", "old", 0, {{7, "   "}});
    at.PressButton(1);
    EXPECT_THAT(at.TakeLog(),
                ElementsAre("EnumPopStr(7, )", "ButtonMouseDown(x, a)", "ButtonMouseDownEx(x, a)"));
    EXPECT_FALSE(at.IsOpen());
}

TEST(gListPopups, TheOpenListIsFetchedAfreshAndTheDisplayKnowsTheFirstOne) {
    TypedRow at("v|x|2;li 7", 1, 0, {{7, cSizes}});
    at.popLists[7] = "998\r\n107=tiny\r\n106=1\r\n999\r\n107=huge\r\n106=9\r\n999\r\n";
    at.ClickButton(1);
    at.MoveToEntry(1, 2);
    EXPECT_EQ(at.Display(), "small") << "as it was loaded";
    at.MoveToEntry(2, 2);
    EXPECT_EQ(at.Now(), Variant(9));
    EXPECT_EQ(at.Display(), "small") << "what is in no entry keeps the last display";
    at.desktop.Key(VK_ESCAPE);
    EXPECT_EQ(at.Now(), Variant(1));
}

TEST(gListPopups, AnEntryWithoutTheEditorFlagSwitchesTheEditorOffWhileItShows) {
    const std::string list =
        "998\r\n107=by hand\r\n106=1\r\n109=2\r\n999\r\n107=fixed\r\n106=2\r\n109=0\r\n999\r\n";
    TypedRow at("v|x|2;li 7", 1, 0, {{7, list}});
    at.list->PaintAll();
    EXPECT_EQ(at.TakeLog().back(), "ExEditorShow(a)");
    at.ClickButton(1);
    at.Forget();
    at.MoveToEntry(2, 2);
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumItems(a, 0)"));
    at.MoveToEntry(1, 2);
    EXPECT_EQ(at.TakeLog().back(), "ExEditorShow(a)");
}

TEST(gListPopups, AListTextWithoutEntriesOpensNothing) {
    TypedRow at("v|x|2;li 7", 1, 0, {{7, "no entries"}});
    at.PressButton(1);
    EXPECT_EQ(at.TakeLog().size(), 3u);
    EXPECT_FALSE(at.IsOpen());
}

// Endings.

TEST(gListPopups, EnterBeforeAnythingWasChosenCancels) {
    TypedRow at("v|1-5|2;ns", "as text");
    at.ClickButton(1);
    at.Forget();
    at.desktop.Key(VK_RETURN);
    EXPECT_FALSE(at.IsOpen());
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumItems(a, 0)"));
    EXPECT_EQ(at.Now(), Variant("as text"));
}

TEST(gListPopups, TheLossOfTheFocusCancels) {
    TypedRow at("v|1-5|2;ns", 5);
    at.ClickButton(1);
    at.MoveToEntry(2, 5);
    EXPECT_EQ(at.Now(), Variant(2));
    at.desktop.FocusAway();
    EXPECT_FALSE(at.IsOpen());
    EXPECT_EQ(at.Now(), Variant(5));
}

TEST(gListPopups, EachOpeningNotesTheValueOfThatMoment) {
    TypedRow at("v|1-5|2;ns", 5);
    at.ClickButton(1);
    at.MoveToEntry(3, 5);
    at.ClickHere();
    at.ClickButton(1);
    at.MoveToEntry(1, 5);
    EXPECT_EQ(at.Now(), Variant(1));
    at.desktop.Key(VK_ESCAPE);
    EXPECT_EQ(at.Now(), Variant(3));
}

// What a popup finds changed while it is open.

TEST(gListPopups, TheChoiceGoesToTheRowThatIsCurrentThenAndTheHostHearsOfTheItemThatOpenedIt) {
    TypedRow at("v|1-5|2;ns", 5);
    at.list->AddItem(PropertyListDesktop::Value("z", {}, ";ns"));
    at.ClickButton(1);
    at.list->ListIndex(2);
    at.Forget();
    at.desktop.Key(VK_DOWN);
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumItems(a, 0)"));
    EXPECT_EQ(at.Now(), Variant(5));
    EXPECT_EQ(at.list->GetData("z"), Variant(1));
}

TEST(gListPopups, AnItemWhoseTypeIsTheHostsByThenKeepsItsValue) {
    TypedRow at("v|1-5|2;ns", 5);
    at.ClickButton(1);
    elistdata item = at.ByKey("a");
    item.xbuttons = "v|1-5|2;date";
    at.list->AddItem(item);
    at.Forget();
    at.desktop.Key(VK_DOWN);
    EXPECT_EQ(at.Now(), Variant(5));
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumItems(a, 0)", "ExItemShowCov(a)"));
    at.list->SetData(8, "a");
    at.desktop.Key(VK_ESCAPE);
    EXPECT_EQ(at.Now(), Variant(5)) << "what was there before the popup, whatever the type";
}

TEST(gListPopups, TheHostsScratchValuesAreAnotherPair) {
    TypedRow at(cColor, 255);
    at.list->TmpKey("mine");
    at.list->TmpData("also mine");
    at.ClickButton(1);
    at.MoveToColor(24, 1);
    at.desktop.Key(VK_ESCAPE);
    EXPECT_EQ(at.list->TmpKey(), "mine");
    EXPECT_EQ(at.list->TmpData(), Variant("also mine"));
    EXPECT_EQ(at.Now(), Variant(255));
}

// Items without a key.

// The popup names its item by the key, and no key names them all.
TEST(gListPopups, AnItemWithoutAKeyShowsTheHostEveryItem) {
    PropertyListDesktop at;
    elistdata item = PropertyListDesktop::Value("", {}, "v|1-5|2;ns");
    at.Show({item, PropertyListDesktop::Value("z")});
    at.list->ListIndex(1);
    const tvok_Rect strip = at.Strip();
    at.desktop.Click(*at.list, strip.Left + 10, 5);
    at.Forget();
    at.desktop.Key(VK_DOWN);
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumItems(, 0)", "EnumItems(z, 0)"));
    EXPECT_EQ(at.Row(1).nData, Variant(1));
}

TEST(gListPopups, EditorAndRowArePaintedWithEveryPreview) {
    TypedRow at("v|1-5|2;ns", 5, vflag::Editor);
    at.ClickButton(1);
    at.Forget();
    at.MoveToEntry(2, 5);
    const auto log = at.TakeLog();
    ASSERT_EQ(log.size(), 3u) << testing::PrintToString(log);
    EXPECT_EQ(log[0], "EnumItems(a, 0)");
    EXPECT_TRUE(log[1].starts_with("ExEditorSetPosition(a, "));
    EXPECT_EQ(log[2], "ExEditorShow(a)");
}

} // namespace
} // namespace tvok::test
