// How mouse, keys, focus and scrolling move the current row of a property list, by real messages.
#include "tests/support/PropertyListPaint.h"

namespace tvok::test {
namespace {

using namespace host;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<elistdata> Letters(std::int32_t count) {
    std::vector<elistdata> items;
    for (std::int32_t i = 0; i < count; ++i)
        items.push_back(PropertyListDesktop::Value(std::string(1, static_cast<char>('a' + i))));
    return items;
}

/// A flat list of these many rows "a", "b" and so on, with the focus and without a current row.
struct FocusedList : PropertyListDesktop {
    explicit FocusedList(std::int32_t rows, const PropertyListSetup& setup = {})
        : PropertyListDesktop(setup) {
        desktop.Focus(*list);
        Show(Letters(rows));
    }
    void Send(std::int32_t message, std::int32_t x, std::int32_t y, std::int32_t keys = 0) {
        platform().PostMessageA(desktop.WindowOf(*list), message, keys,
                                static_cast<std::int32_t>(static_cast<std::uint32_t>(y) << 16 |
                                                          (static_cast<std::uint32_t>(x) & 0xFFFF)));
        desktop.Pump();
    }
};

// Press and release.

TEST(gListInput, APressMovesTheCurrentRowAndItsReleaseClicks) {
    FocusedList at(5);
    at.PressRow(2);
    EXPECT_EQ(at.list->ListIndex(), 2);
    EXPECT_THAT(at.Selected(), ElementsAre(2));
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(2, b)", "ExEditorHide()"));
    at.desktop.Release();
    EXPECT_THAT(at.TakeLog(), ElementsAre("Click(2, b)", "ExEditorHide()"));
}

TEST(gListInput, APressOnTheCurrentRowRaisesNoChange) {
    FocusedList at(5);
    at.ClickRow(2);
    at.Forget();
    at.PressRow(2);
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide()"));
    at.desktop.Release();
    EXPECT_THAT(at.TakeLog(), ElementsAre("Click(2, b)", "ExEditorHide()"));
}

TEST(gListInput, ThePointOnALineBelongsToTheRowAboveIt) {
    FocusedList at(5);
    at.desktop.Click(*at.list, 60, 18);
    EXPECT_EQ(at.list->ListIndex(), 1);
    at.desktop.Click(*at.list, 60, 19);
    EXPECT_EQ(at.list->ListIndex(), 2);
    at.desktop.Click(*at.list, 60, 37);
    EXPECT_EQ(at.list->ListIndex(), 2);
}

TEST(gListInput, EveryPartOfARowIsTheRow) {
    for (const std::int32_t x : {0, 14, 15, 60, 150, 299}) {
        FocusedList at(5);
        at.ClickRow(3, x);
        EXPECT_EQ(at.list->ListIndex(), 3) << x;
    }
}

TEST(gListInput, APressOnTheEmptyPartLeavesTheCurrentRowAndHoldsNothing) {
    FocusedList at(3);
    at.ClickRow(2);
    at.Forget();
    at.PressRow(5);
    EXPECT_THAT(at.TakeLog(), IsEmpty());
    at.desktop.MoveTo(*at.list, 60, at.RowMiddle(1));
    EXPECT_EQ(at.list->ListIndex(), 2) << "it is no drag";
    at.desktop.Release();
    EXPECT_THAT(at.TakeLog(), IsEmpty());
    EXPECT_THAT(at.Selected(), ElementsAre(2));
}

TEST(gListInput, APressInAListWithoutRowsDoesNothing) {
    FocusedList at(0);
    at.ClickRow(1);
    at.DoubleClickRow(1);
    EXPECT_THAT(at.TakeLog(), IsEmpty());
    EXPECT_EQ(at.list->ListIndex(), 0);
}

TEST(gListInput, OtherButtonsDoNothing) {
    FocusedList at(3);
    at.desktop.RightClick(*at.list, 60, at.RowMiddle(2));
    EXPECT_THAT(at.TakeLog(), IsEmpty());
    EXPECT_EQ(at.list->ListIndex(), 0);
}

// The row of the last press is kept: a release that belongs to no press here activates once more.
TEST(gListInput, ALaterReleaseWithoutAPressClicksOnceMore) {
    FocusedList at(3);
    at.ClickRow(2);
    at.Forget();
    at.Send(WM_LBUTTONUP, 60, 9);
    EXPECT_THAT(at.TakeLog(), ElementsAre("Click(2, b)", "ExEditorHide()"))
        << "the current row, not the one below";
    at.Send(WM_LBUTTONUP, 60, 9);
    EXPECT_THAT(at.TakeLog({"Click"}), ElementsAre("Click(2, b)"));
}

TEST(gListInput, AReleaseThatBelongsToNoPressAtAllDoesNothing) {
    FocusedList at(3);
    at.list->ListIndex(1);
    at.Forget();
    at.Send(WM_LBUTTONUP, 60, 9);
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

TEST(gListInput, AReleaseActivatesTheRowThatIsCurrentThen) {
    FocusedList at(3);
    at.PressRow(2);
    at.list->ListIndex(3);
    at.Forget();
    at.desktop.Release();
    EXPECT_THAT(at.TakeLog(), ElementsAre("Click(3, c)", "ExEditorHide()"));
}

TEST(gListInput, HandlersGetACopyAndTheRowThatItIs) {
    FocusedList at(3);
    at.list->events.Change = [&](std::int32_t row, elistdata& x) {
        EXPECT_EQ(row, at.list->ListIndex());
        x.hItem.key = "lost";
    };
    at.list->events.Click = [](std::int32_t, elistdata& x) { x.nData = 7; };
    at.ClickRow(2);
    EXPECT_EQ(at.Row(2).hItem.key, "b");
    EXPECT_TRUE(at.Row(2).nData.IsEmpty());
}

TEST(gListInput, TheNewRowShowsBeforeTheHostHearsOfIt) {
    FocusedList at(3);
    at.list->ListIndex(1);
    at.Forget();
    const PaintsInLog paints(at);
    at.list->ListIndex(3);
    EXPECT_THAT(at.TakeLog(), ElementsAre("paint(c)", "paint()", "paint(a)", "paint()", "Change(3, c)"));
}

// Drags.

TEST(gListInput, ADragMovesTheCurrentRowAlongAndClicksAtItsEnd) {
    FocusedList at(9);
    at.PressRow(2);
    at.Forget();
    at.desktop.MoveTo(*at.list, 60, at.RowMiddle(3));
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(3, c)"));
    at.desktop.MoveTo(*at.list, 70, at.RowMiddle(3));
    EXPECT_THAT(at.TakeLog(), IsEmpty()) << "the same row";
    at.desktop.MoveTo(*at.list, 70, at.RowMiddle(6));
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(6, f)"));
    at.desktop.Release();
    EXPECT_THAT(at.TakeLog(), ElementsAre("Click(6, f)", "ExEditorHide()"));
    at.desktop.MoveTo(*at.list, 70, at.RowMiddle(1));
    EXPECT_EQ(at.list->ListIndex(), 6) << "no row follows the mouse without the button";
}

TEST(gListInput, ADragOverTheEmptyPartOrBesideTheListStaysWhereItWas) {
    FocusedList at(4);
    at.PressRow(2);
    at.desktop.MoveTo(*at.list, 60, at.RowMiddle(7));
    EXPECT_EQ(at.list->ListIndex(), 2);
    at.desktop.MoveTo(*at.list, -3, at.RowMiddle(3));
    at.desktop.MoveTo(*at.list, 300, at.RowMiddle(3));
    EXPECT_EQ(at.list->ListIndex(), 2);
    at.desktop.Release();
    EXPECT_THAT(at.TakeLog({"Click"}), ElementsAre("Click(2, b)"));
}

TEST(gListInput, ADragBeyondTheEdgesStepsOneRowForEachMessage) {
    FocusedList at(20);
    at.PressRow(9);
    at.desktop.MoveTo(*at.list, 60, 205);
    EXPECT_EQ(at.list->ListIndex(), 10);
    at.desktop.MoveTo(*at.list, 61, 205);
    at.desktop.MoveTo(*at.list, 60, 206);
    EXPECT_EQ(at.list->ListIndex(), 12);
    EXPECT_EQ(at.hook->ScrollValue(), 1) << "the row stands in the part row at the bottom";
    at.desktop.MoveTo(*at.list, 60, -1);
    at.desktop.MoveTo(*at.list, 61, -4);
    EXPECT_EQ(at.list->ListIndex(), 10);
    at.desktop.Release();
    EXPECT_THAT(at.TakeLog({"Click"}), ElementsAre("Click(10, j)"));
}

TEST(gListInput, ADragStopsAtTheLastRowOnAWholeRow) {
    FocusedList at(12);
    at.PressRow(10);
    for (std::int32_t x = 60; x < 70; ++x) at.desktop.MoveTo(*at.list, x, 205);
    EXPECT_EQ(at.list->ListIndex(), 12);
    EXPECT_EQ(at.hook->ScrollValue(), 2);
    at.desktop.Release();
}

TEST(gListInput, MovesWithTheButtonDownThatBeganElsewhereDoNothing) {
    FocusedList at(5);
    at.list->ListIndex(1);
    at.Forget();
    at.Send(WM_MOUSEMOVE, 60, at.RowMiddle(3), MK_LBUTTON);
    EXPECT_THAT(at.TakeLog(), IsEmpty());
    EXPECT_EQ(at.list->ListIndex(), 1);
}

TEST(gListInput, AnyReleaseEndsADrag) {
    FocusedList at(5);
    at.PressRow(1);
    at.Send(WM_LBUTTONUP, 60, 9);
    at.Forget();
    at.Send(WM_MOUSEMOVE, 60, at.RowMiddle(3), MK_LBUTTON);
    EXPECT_EQ(at.list->ListIndex(), 1);
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

TEST(gListInput, ADragThatFindsTheListClearedDoesNothing) {
    FocusedList at(5);
    at.PressRow(2);
    at.list->Clear();
    at.Forget();
    at.desktop.MoveTo(*at.list, 60, at.RowMiddle(3));
    EXPECT_THAT(at.TakeLog(), IsEmpty());
    at.desktop.Release();
    EXPECT_THAT(at.TakeLog(), ElementsAre("Click(0, )", "ExEditorHide()")) << "the blank record";
}

// The part row at the bottom.

TEST(gListInput, APressInThePartRowScrollsAtTheReleaseOnly) {
    FocusedList at(20);
    at.desktop.Press(*at.list, 60, 195);
    EXPECT_EQ(at.list->ListIndex(), 11);
    EXPECT_EQ(at.hook->ScrollValue(), 0);
    at.desktop.Release();
    EXPECT_EQ(at.hook->ScrollValue(), 1);
    EXPECT_THAT(at.TakeLog({"Change", "Click"}), ElementsAre("Change(11, k)", "Click(11, k)"));
}

TEST(gListInput, ThePressOnTheLastRowScrollsAtOnce) {
    FocusedList at(11);
    at.desktop.Press(*at.list, 60, 195);
    EXPECT_EQ(at.list->ListIndex(), 11);
    EXPECT_EQ(at.hook->ScrollValue(), 1);
    at.desktop.Release();
}

TEST(gListInput, WritingListIndexPutsTheRowOnAWholeRow) {
    FocusedList at(20);
    at.list->ListIndex(11);
    EXPECT_EQ(at.hook->ScrollValue(), 1);
    at.list->ListIndex(20);
    EXPECT_EQ(at.hook->ScrollValue(), 10);
    at.list->ListIndex(5);
    EXPECT_EQ(at.hook->ScrollValue(), 4);
}

TEST(gListInput, WritingListIndexRaisesChangeAloneAndRefusesWhatIsNoRow) {
    FocusedList at(5);
    at.list->ListIndex(3);
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(3, c)"));
    at.list->ListIndex(3);
    for (const std::int32_t row : {0, -1, 6}) at.list->ListIndex(row);
    EXPECT_THAT(at.TakeLog(), IsEmpty());
    EXPECT_EQ(at.list->ListIndex(), 3);
    at.list->ShowItem("e");
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(5, e)"));
}

// Double clicks.

TEST(gListInput, ADoubleClickInAFlatListIsOneClickAndOneDblClick) {
    FocusedList at(5);
    at.DoubleClickRow(2);
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(2, b)", "ExEditorHide()", "Click(2, b)", "ExEditorHide()",
                                          "DblClick(2, b)"));
}

TEST(gListInput, ADoubleClickGoesToTheRowOfThePressBefore) {
    FocusedList at(9);
    at.PressRow(2);
    at.desktop.MoveTo(*at.list, 60, at.RowMiddle(6));
    at.desktop.Release();
    at.Forget();
    at.Send(WM_LBUTTONDBLCLK, 60, at.RowMiddle(8));
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(2, b)", "DblClick(2, b)"));
    at.Send(WM_LBUTTONUP, 60, at.RowMiddle(8));
    EXPECT_THAT(at.TakeLog(), IsEmpty()) << "its release finds no press";
}

TEST(gListInput, ADoubleClickAfterAPressOnNoRowOnlyForgetsThePress) {
    FocusedList at(3);
    at.ClickRow(2);
    at.ClickRow(8);
    at.Forget();
    at.Send(WM_LBUTTONDBLCLK, 60, at.RowMiddle(2));
    at.Send(WM_LBUTTONUP, 60, at.RowMiddle(2));
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

TEST(gListInput, ADoubleClickInThePartRowScrollsItIn) {
    FocusedList at(20);
    at.list->events.Click = [&](std::int32_t, elistdata&) { at.hook->ScrollValue(0); };
    at.desktop.DoubleClick(*at.list, 60, 195);
    EXPECT_EQ(at.list->ListIndex(), 11);
    EXPECT_EQ(at.hook->ScrollValue(), 1);
}

// Keys.

TEST(gListInput, KeysMoveAlongTheOneColumn) {
    FocusedList at(30 - 4);
    at.list->ListIndex(12);
    const auto after = [&](std::int32_t key) {
        at.desktop.Key(key);
        return at.list->ListIndex();
    };
    EXPECT_EQ(after(VK_DOWN), 13);
    EXPECT_EQ(after(VK_RIGHT), 14);
    EXPECT_EQ(after(VK_UP), 13);
    EXPECT_EQ(after(VK_LEFT), 12);
    EXPECT_EQ(after(VK_NEXT), 22);
    EXPECT_EQ(after(VK_NEXT), 26);
    EXPECT_EQ(after(VK_PRIOR), 16);
    EXPECT_EQ(after(VK_PRIOR), 6);
    EXPECT_EQ(after(VK_PRIOR), 1);
    EXPECT_EQ(after(VK_END), 26);
    EXPECT_EQ(after(VK_HOME), 1);
}

TEST(gListInput, AKeyThatMovesRaisesChangeAndClick) {
    FocusedList at(5);
    at.list->ListIndex(1);
    at.Forget();
    at.desktop.Key(VK_DOWN);
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(2, b)", "Click(2, b)", "ExEditorHide()"));
}

TEST(gListInput, AKeyAtTheEndPaintsTheRowAndClicksNothing) {
    FocusedList at(5);
    at.list->ListIndex(5);
    at.Forget();
    for (const std::int32_t key : {VK_DOWN, VK_RIGHT, VK_END, VK_NEXT}) {
        EXPECT_THAT(PaintedTexts(at.desktop, [&] { at.desktop.Key(key); }), ElementsAre("e", "")) << key;
        EXPECT_THAT(at.TakeLog(), IsEmpty()) << key;
    }
}

TEST(gListInput, KeysWithAModifierAndOtherKeysDoNothing) {
    FocusedList at(5);
    at.list->ListIndex(2);
    at.Forget();
    for (const std::int32_t modifier : {VK_SHIFT, VK_CONTROL, VK_MENU}) {
        at.desktop.HoldKey(modifier);
        at.desktop.Key(VK_DOWN);
        at.desktop.LetGoKey(modifier);
    }
    at.desktop.Key('C');
    at.desktop.Key(VK_RETURN);
    at.desktop.Key(VK_ESCAPE);
    EXPECT_THAT(at.TakeLog(), IsEmpty());
    EXPECT_EQ(at.list->ListIndex(), 2);
}

TEST(gListInput, KeyInIsAKeyWithItsShiftAndBelowZeroPasses) {
    FocusedList at(5);
    at.list->ListIndex(2);
    at.list->KeyIn(40, 1);
    at.list->KeyIn(40, 4);
    EXPECT_EQ(at.list->ListIndex(), 2);
    at.list->KeyIn(40);
    EXPECT_EQ(at.list->ListIndex(), 3);
    at.list->KeyIn(40, -1);
    EXPECT_EQ(at.list->ListIndex(), 4);
    at.list->KeyIn(41);
    at.list->KeyIn(0);
    at.list->KeyIn(-40);
    EXPECT_EQ(at.list->ListIndex(), 4);
}

TEST(gListInput, KeysLeaveTheirCodeAsItWas) {
    FocusedList at(5);
    std::int16_t code = 40, shift = 0;
    at.list->KeyDown(code, shift);
    EXPECT_EQ(code, 40);
    EXPECT_EQ(shift, 0);
    EXPECT_EQ(at.list->ListIndex(), 1);
}

// The way back to row 1 differs from row 0, so the blank record is activated.
TEST(gListInput, InAListWithoutRowsTheKeysBackClickRowZero) {
    for (const std::int32_t key : {VK_PRIOR, VK_HOME, VK_LEFT, VK_UP}) {
        FocusedList at(0);
        at.desktop.Key(key);
        EXPECT_THAT(at.TakeLog(), ElementsAre("Click(0, )", "ExEditorHide()")) << key;
        EXPECT_EQ(at.list->ListIndex(), 0);
    }
    for (const std::int32_t key : {VK_NEXT, VK_END, VK_RIGHT, VK_DOWN}) {
        FocusedList at(0);
        at.desktop.Key(key);
        EXPECT_THAT(at.TakeLog(), IsEmpty()) << key;
    }
}

// Focus.

TEST(gListInput, TheFocusMakesTheFirstRowCurrentWhereThereIsNone) {
    PropertyListDesktop at;
    at.desktop.FocusAway();
    at.Show(Letters(5));
    at.desktop.Focus(*at.list);
    EXPECT_EQ(at.list->ListIndex(), 1);
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(1, a)"));
}

TEST(gListInput, ComingAndGoingTheFocusPaintsTheCurrentRow) {
    FocusedList at(5);
    at.list->ListIndex(3);
    at.Forget();
    EXPECT_THAT(PaintedTexts(at.desktop, [&] { at.desktop.FocusAway(); }), ElementsAre("c", ""));
    EXPECT_THAT(PaintedTexts(at.desktop, [&] { at.desktop.Focus(*at.list); }), ElementsAre("c", ""));
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

TEST(gListInput, TheFocusOfAListWithoutRowsPaintsNothing) {
    FocusedList at(0);
    EXPECT_THAT(Drawing(at.desktop.Trace([&] { at.desktop.FocusAway(); })), IsEmpty());
    EXPECT_THAT(Drawing(at.desktop.Trace([&] { at.desktop.Focus(*at.list); })), IsEmpty());
    EXPECT_THAT(at.TakeLog(), IsEmpty());
    EXPECT_EQ(at.list->ListIndex(), 0);
}

} // namespace
} // namespace tvok::test
