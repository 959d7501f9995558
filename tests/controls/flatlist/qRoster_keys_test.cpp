// Keys: KeySingle and KeyMulti, step by step.

#include "tests/support/FakeRoster.h"

namespace tvok::test {
namespace {

using namespace host;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::int32_t cShiftKey = 1, cControlKey = 2; // of KeyDown's Shift

// The event.

TEST(qRosterKeys, KeyDownIsRaisedFirstAndActsOnTheCodeThatTheHandlerLeaves) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.Key(VK_DOWN, 2);
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("KeyDown 40 2", "Change 1 ant", "Click 1 ant"));
    roster.list.events.KeyDown = [](std::int16_t& code, std::int16_t&) { code = VK_END; };
    roster.Key(VK_DOWN);
    EXPECT_EQ(roster.list.ListIndex(), 3);
}

TEST(qRosterKeys, AHandlerSwallowsAKeyByClearingTheCode) {
    FakeRoster roster({}, {"ant", ""});
    roster.list.events.KeyDown = [](std::int16_t& code, std::int16_t&) { code = 0; };
    roster.Key(VK_DOWN);
    EXPECT_EQ(roster.list.ListIndex(), 0); // also with an item whose text is empty
    EXPECT_THAT(roster.log().All(), IsEmpty());
}

TEST(qRosterKeys, WhatTheHandlerLeavesGoesBackToTheComponent) {
    FakeRoster roster({}, {"ant"});
    roster.list.events.KeyDown = [](std::int16_t& code, std::int16_t& shift) {
        code = 66;
        shift = 4;
    };
    std::int16_t code = 65, shift = 0;
    roster.list.KeyDown(code, shift);
    EXPECT_EQ(code, 66);
    EXPECT_EQ(shift, 4);
}

TEST(qRosterKeys, KeyUpAndKeyPressAreForwardedAndTakeNoPart) {
    FakeRoster roster({}, {"ant", "bee"});
    std::int16_t code = VK_DOWN, shift = 1, ascii = 'b';
    roster.list.KeyUp(code, shift);
    roster.list.KeyPress(ascii);
    EXPECT_THAT(roster.TakeStory(), ElementsAre("KeyUp 40 1", "KeyPress 98"));
    EXPECT_EQ(roster.list.ListIndex(), 0);
    roster.list.events.KeyUp = [](std::int16_t& c, std::int16_t& s) { c = s = 7; };
    roster.list.events.KeyPress = [](std::int16_t& c) { c = 8; };
    roster.list.KeyUp(code, shift);
    roster.list.KeyPress(ascii);
    EXPECT_EQ(code, 7);
    EXPECT_EQ(shift, 7);
    EXPECT_EQ(ascii, 8);
}

TEST(qRosterKeys, KeysOnAnEmptyListRaiseKeyDownAlone) {
    for (const std::int32_t mode : {0, 1}) {
        FakeRoster roster({.MultiSelect = mode});
        for (const auto code : {VK_DOWN, VK_UP, VK_HOME, VK_END, VK_PRIOR, VK_NEXT, 65}) roster.Key(code, 1);
        EXPECT_EQ(roster.TakeEvents().size(), 7u);
        EXPECT_EQ(roster.list.ListIndex(), 0);
    }
}

// Single selection.

TEST(qRosterKeys, AKeyThatMovesGivesChangeThenTheRepaintThenClick) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.list.ListIndex(1);
    roster.log().Clear();
    roster.Key(VK_DOWN);
    EXPECT_THAT(roster.TakeStory(),
                ElementsAre("KeyDown 40 0", "Change 2 bee", "draw ant", "draw bee", "Click 2 bee"));
}

TEST(qRosterKeys, AKeyThatStaysGivesNeitherChangeNorClick) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.ListIndex(2);
    roster.log().Clear();
    roster.Key(VK_DOWN);
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("KeyDown 40 0"));
    EXPECT_EQ(roster.list.ListIndex(), 2);
}

TEST(qRosterKeys, AKeyThatFindsNothingGivesNeither) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.ListIndex(1);
    roster.log().Clear();
    roster.Key('Z');
    EXPECT_THAT(roster.TakeStory(), ElementsAre("KeyDown 90 0"));
}

TEST(qRosterKeys, NavigationKeysInOneColumn) {
    FakeRoster roster({}, Numbered(20)); // five rows on the page
    const auto press = [&](std::int32_t from, std::int32_t key) {
        roster.list.ListIndex(from);
        roster.Key(key);
        return roster.list.ListIndex();
    };
    EXPECT_EQ(press(10, VK_UP), 9);
    EXPECT_EQ(press(1, VK_UP), 1);
    EXPECT_EQ(press(10, VK_DOWN), 11);
    EXPECT_EQ(press(20, VK_DOWN), 20);
    EXPECT_EQ(press(10, VK_LEFT), 9);
    EXPECT_EQ(press(1, VK_LEFT), 1);
    EXPECT_EQ(press(10, VK_RIGHT), 11);
    EXPECT_EQ(press(20, VK_RIGHT), 20);
    EXPECT_EQ(press(10, VK_PRIOR), 5);
    EXPECT_EQ(press(6, VK_PRIOR), 1);
    EXPECT_EQ(press(5, VK_PRIOR), 1);
    EXPECT_EQ(press(10, VK_NEXT), 15);
    EXPECT_EQ(press(18, VK_NEXT), 20);
    EXPECT_EQ(press(10, VK_HOME), 1);
    EXPECT_EQ(press(10, VK_END), 20);
}

TEST(qRosterKeys, NavigationKeysInThreeColumns) {
    FakeRoster roster({.xn = 3}, Numbered(20)); // seven rows, two items in the last
    const auto press = [&](std::int32_t from, std::int32_t key) {
        roster.list.ListIndex(from);
        roster.Key(key);
        return roster.list.ListIndex();
    };
    EXPECT_EQ(press(10, VK_UP), 7);
    EXPECT_EQ(press(3, VK_UP), 2); // no row above: one back
    EXPECT_EQ(press(1, VK_UP), 1);
    EXPECT_EQ(press(10, VK_DOWN), 13);
    EXPECT_EQ(press(18, VK_DOWN), 19); // no row below: one on
    EXPECT_EQ(press(20, VK_DOWN), 20);
    EXPECT_EQ(press(20, VK_PRIOR), 5);
    EXPECT_EQ(press(2, VK_NEXT), 17);
}

TEST(qRosterKeys, KeysWithoutACurrentItem) {
    const auto press = [](std::int32_t key) {
        FakeRoster roster({}, Numbered(20));
        roster.Key(key);
        return roster.list.ListIndex();
    };
    EXPECT_EQ(press(VK_UP), 1);
    EXPECT_EQ(press(VK_DOWN), 1);
    EXPECT_EQ(press(VK_LEFT), 1);
    EXPECT_EQ(press(VK_RIGHT), 1);
    EXPECT_EQ(press(VK_PRIOR), 1);
    EXPECT_EQ(press(VK_NEXT), 5);
    EXPECT_EQ(press(VK_HOME), 1);
    EXPECT_EQ(press(VK_END), 20);
}

TEST(qRosterKeys, ALetterGoesToTheNextItemThatStartsWithItAndWraps) {
    FakeRoster roster({}, {"Bat", "ant", "bee", "cat", "boa"});
    roster.Key('B');
    EXPECT_EQ(roster.list.ListIndex(), 1);
    roster.Key('B');
    EXPECT_EQ(roster.list.ListIndex(), 3);
    roster.Key('B');
    EXPECT_EQ(roster.list.ListIndex(), 5);
    roster.Key('B');
    EXPECT_EQ(roster.list.ListIndex(), 1);
}

TEST(qRosterKeys, ALetterOfTheCurrentItemAloneStaysThereWithoutEvents) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.ListIndex(2);
    roster.log().Clear();
    roster.Key('B');
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("KeyDown 66 0"));
    EXPECT_EQ(roster.list.ListIndex(), 2);
}

TEST(qRosterKeys, DigitsFindTextsThatStartWithThem) {
    FakeRoster roster({}, {"one", "2 two", "3 three"});
    roster.Key('3');
    EXPECT_EQ(roster.list.ListIndex(), 3);
}

TEST(qRosterKeys, AKeyCodeIsACharacterCodeWithoutTranslation) {
    FakeRoster roster({}, {"ant", "pear", "%off", "\ttab"});
    roster.Key(VK_F1); // 112 is "p"
    EXPECT_EQ(roster.list.ListIndex(), 2);
    roster.Key(VK_TAB); // 9 is the tab character
    EXPECT_EQ(roster.list.ListIndex(), 4);
    roster.Key(VK_LEFT); // a navigation key before it is "%"
    EXPECT_EQ(roster.list.ListIndex(), 3);
}

TEST(qRosterKeys, AnEmptyTextMatchesNoKey) {
    FakeRoster roster({}, {"", ""});
    for (std::int32_t code = 0; code < 256; ++code)
        if (code < VK_PRIOR || code > VK_DOWN) roster.Key(code);
    EXPECT_EQ(roster.list.ListIndex(), 0);
}

TEST(qRosterKeys, KeyCodesBeyondTheCharactersAreHarmless) {
    for (const std::int32_t mode : {0, 1}) {
        FakeRoster roster({.MultiSelect = mode}, {"ant", "bee"});
        for (const std::int32_t code : {-1, -32768, 32767, 256, 0xD8, 0x7FFF})
            EXPECT_NO_THROW(roster.Key(code, -1));
    }
}

TEST(qRosterKeys, AKeyScrollsTheItemIntoView) {
    FakeRoster roster({}, Numbered(20));
    roster.Key(VK_END);
    EXPECT_EQ(roster.hook().value, 15);
    roster.Key(VK_HOME);
    EXPECT_EQ(roster.hook().value, 0);
}

TEST(qRosterKeys, ShiftTakesNoPartInSingleMode) {
    FakeRoster roster({}, Numbered(5));
    roster.list.ListIndex(2);
    roster.Key(VK_DOWN, cShiftKey);
    EXPECT_THAT(roster.Selected(), ElementsAre(3));
}

// Multiple selection.

TEST(qRosterKeys, APlainKeyInMultiModeMovesLikeInSingleMode) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.list.ListIndex(1);
    roster.log().Clear();
    roster.Key(VK_DOWN);
    EXPECT_THAT(roster.TakeStory(), ElementsAre("KeyDown 40 0", "Change 2 item 2", "draw item 1",
                                                "draw item 2", "Click 2 item 2"));
    EXPECT_THAT(roster.Selected(), ElementsAre(2));
}

TEST(qRosterKeys, ShiftAndAnArrowExtendTheRangeFromTheAnchor) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(9));
    roster.Key(VK_DOWN);
    roster.Key(VK_DOWN); // a plain key sets the anchor: 2
    ASSERT_EQ(roster.list.ListIndex(), 2);
    roster.log().Clear();
    roster.Key(VK_DOWN, cShiftKey);
    EXPECT_THAT(roster.Selected(), ElementsAre(2, 3));
    EXPECT_THAT(roster.TakeStory(), ElementsAre("KeyDown 40 1", "draw item 2", "draw item 3")); // no events
    roster.Key(VK_DOWN, cShiftKey);
    EXPECT_THAT(roster.Selected(), ElementsAre(2, 3, 4));
    roster.Key(VK_UP, cShiftKey);
    roster.Key(VK_UP, cShiftKey);
    EXPECT_THAT(roster.Selected(), ElementsAre(2));
    roster.Key(VK_UP, cShiftKey);
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 2));
    EXPECT_EQ(roster.list.ListIndex(), 1);
}

TEST(qRosterKeys, ShiftAndPageKeysExtendByAPage) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(20));
    roster.list.ListIndex(9);
    roster.Key(VK_DOWN); // anchor 10
    roster.Key(VK_NEXT, cShiftKey);
    EXPECT_EQ(roster.Selected(), (std::vector{10, 11, 12, 13, 14, 15}));
    roster.Key(VK_HOME, cShiftKey);
    EXPECT_EQ(roster.Selected(), (std::vector{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    roster.Key(VK_END, cShiftKey);
    EXPECT_EQ(roster.Selected().size(), 11u);
    EXPECT_EQ(roster.Selected().front(), 10);
}

TEST(qRosterKeys, WithoutAnAnchorTheFirstRangeStartsAtTheFirstItem) {
    // The anchor's value on entry is 0 and the steps start there, at slot 0, although the stored anchor
    // becomes the current item.
    FakeRoster roster({.MultiSelect = 1}, Numbered(9));
    roster.list.ListIndex(3);
    roster.Key(VK_DOWN, cShiftKey);
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 2, 3, 4));
    EXPECT_EQ(roster.Data(0).vflag & vflag::Selected, vflag::Selected);
    roster.Key(VK_DOWN, cShiftKey); // from the anchor 4 on
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 2, 3, 4, 5));
    roster.Key(VK_UP, cShiftKey);
    roster.Key(VK_UP, cShiftKey);
    EXPECT_THAT(roster.Selected(),
                ElementsAre(1, 2, 3, 4)); // 3 to 4 is the range now, 1 and 2 were left behind
}

TEST(qRosterKeys, WithoutACurrentItemShiftAndAnArrowStartAtTheFirst) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(9));
    roster.Key(VK_DOWN, cShiftKey);
    EXPECT_EQ(roster.list.ListIndex(), 1);
    EXPECT_THAT(roster.Selected(), ElementsAre(1));
}

TEST(qRosterKeys, APlainKeyClearsTheSelectionAndMoves) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.list.ListIndex(2);
    roster.list.Selecteded();
    roster.log().Clear();
    roster.Key(VK_DOWN);
    EXPECT_THAT(roster.Selected(), ElementsAre(3));
    EXPECT_THAT(roster.TakeStory(), ElementsAre("KeyDown 40 0", "draw item 1", "draw item 2", "draw item 3",
                                                "draw item 4", "draw item 5", "Change 3 item 3",
                                                "draw item 2", "draw item 3", "Click 3 item 3"));
}

TEST(qRosterKeys, APlainKeyThatStaysClearsTheSelectionToTheLast) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.list.ListIndex(1);
    roster.list.Selecteded();
    roster.log().Clear();
    roster.Key(VK_HOME);
    EXPECT_THAT(roster.Selected(), IsEmpty()); // also of the current item
    EXPECT_EQ(roster.list.ListIndex(), 1);
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("KeyDown 36 0"));
}

TEST(qRosterKeys, APlainKeyThatFindsNothingClearsTheSelectionToo) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.list.Selecteded();
    roster.Key('Z');
    EXPECT_THAT(roster.Selected(), IsEmpty());
}

TEST(qRosterKeys, ControlAloneDoesNotHoldTheSelection) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.list.Selecteded();
    roster.Key(VK_DOWN, cControlKey);
    EXPECT_THAT(roster.Selected(), ElementsAre(1));
}

TEST(qRosterKeys, ShiftIsReadFromItsLowestBit) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.Key(VK_DOWN);
    roster.Key(VK_DOWN, cShiftKey | cControlKey | 4);
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 2));
}

TEST(qRosterKeys, TheShiftAndControlKeysThemselvesDoNothing) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.list.ListIndex(2);
    roster.list.Selecteded(4);
    roster.log().Clear();
    roster.Key(VK_SHIFT, cShiftKey);
    roster.Key(VK_CONTROL, cControlKey);
    EXPECT_THAT(roster.TakeStory(), ElementsAre("KeyDown 16 1", "KeyDown 17 2"));
    EXPECT_THAT(roster.Selected(), ElementsAre(2, 4));
}

TEST(qRosterKeys, ShiftWithAKeyThatFindsNothingEntersMultiSelectionState) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(5));
    roster.list.ListIndex(2);
    roster.Key('Z', cShiftKey);
    roster.list.ListIndex(4);
    EXPECT_THAT(roster.Selected(), ElementsAre(2)); // the bit does not follow any more
}

TEST(qRosterKeys, ALetterInMultiModeRaisesClickAndSetsTheAnchor) {
    FakeRoster roster({.MultiSelect = 1}, {"ant", "bee", "cat", "dog"});
    roster.Key('B');
    EXPECT_THAT(roster.TakeEvents(), ElementsAre("KeyDown 66 0", "Change 2 bee", "Click 2 bee"));
    roster.Key('D', cShiftKey);
    EXPECT_THAT(roster.Selected(), ElementsAre(2, 3, 4));
}

TEST(qRosterKeys, TheModeIsReadAfterTheKeyDownEvent) {
    FakeRoster roster({}, Numbered(5));
    roster.list.ListIndex(1);
    roster.list.events.KeyDown = [&](std::int16_t&, std::int16_t&) { roster.list.MultiSelect(1); };
    roster.Key(VK_DOWN, cShiftKey);
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 2));
}

TEST(qRosterKeys, AFarStepPaintsThePageOnceInsteadOfEachItem) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(50)); // six rows and two columns of the grid: 12
    roster.Key(VK_DOWN);
    roster.log().Clear();
    roster.Key(VK_END, cShiftKey);
    EXPECT_EQ(roster.hook().value, 45);
    EXPECT_EQ(roster.Selected().size(), 50u);
    EXPECT_THAT(roster.TakeStory(),
                ElementsAre("KeyDown 35 1", "draw item 1", "draw item 2", "draw item 3", "draw item 4",
                            "draw item 5", "ScrollValue 45", "ScrollDC -810", "draw item 46", "draw item 47",
                            "draw item 48", "draw item 49", "draw item 50"));
}

TEST(qRosterKeys, ExtendingBringsTheItemIntoThePartialRowAndTheLastOntoAWholeOne) {
    FakeRoster roster({.MultiSelect = 1}, Numbered(7));
    roster.list.ListIndex(4);
    roster.Key(VK_DOWN); // 5, anchor
    ASSERT_EQ(roster.hook().value, 0);
    roster.Key(VK_DOWN, cShiftKey); // 6: the partial row will do
    EXPECT_EQ(roster.hook().value, 0);
    roster.Key(VK_DOWN, cShiftKey); // 7 is the last
    EXPECT_EQ(roster.hook().value, 2);
}

} // namespace
} // namespace tvok::test
