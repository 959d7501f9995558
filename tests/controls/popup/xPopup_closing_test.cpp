// How the popup ends: every row of the endings and of the mouse states, by real input alone, with exactly one
// Click.
#include "tests/support/PopupTestDesktop.h"

namespace tvok::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

/// Six items in a popup of three rows with a scroll bar, open.
struct OpenPopup : PopupDesktop {
    explicit OpenPopup(std::int32_t items = 6, std::int32_t rows = 3) : PopupDesktop(Lines(items)) {
        popup->yn(rows);
        Open();
    }
    void MoveToBar(std::int32_t fromBottom = 5) {
        MoveTo(ClientRect().Right + 8, ClientRect().bottom - fromBottom);
    }
    void PressOutside() {
        MoveToScreen(900, 700);
        Down();
    }
    std::int32_t ClickCount() {
        return static_cast<std::int32_t>(std::count_if(
            story.begin(), story.end(), [](const std::string& line) { return line.starts_with("Click"); }));
    }
};

// Endings.

TEST(xPopupClosing, AReleaseAfterAPressInsideAccepts) {
    OpenPopup at;
    at.PressRow(2);
    EXPECT_TRUE(at.IsOpen());
    EXPECT_THAT(at.TakeStory(), ElementsAre("Change 2 item 2"));
    at.Up();
    EXPECT_FALSE(at.IsOpen());
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 2 item 2"));
}

TEST(xPopupClosing, AReleaseInsideWithoutACurrentItemCancels) {
    PopupDesktop at({"a", "b", "c"});
    at.popup->xn(2);
    at.popup->yn(2);
    at.Open();
    at.Click(150, 28); // the fourth cell has no item
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 0  canceled"));
    EXPECT_FALSE(at.IsOpen());
}

TEST(xPopupClosing, EnterAcceptsTheCurrentItemAndCancelsWithoutOne) {
    OpenPopup at;
    at.desktop.Key(host::VK_RETURN);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 0  canceled"));
    at.Open();
    at.desktop.Key(host::VK_DOWN);
    at.desktop.Key(host::VK_DOWN);
    at.desktop.Key(host::VK_RETURN);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Change 1 item 1", "Change 2 item 2", "Click 2 item 2"));
    EXPECT_FALSE(at.IsOpen());
}

TEST(xPopupClosing, EscCancelsAndLeavesTheCurrentItemWhereItIs) {
    OpenPopup at;
    at.popup->ListIndex(3);
    at.TakeStory();
    at.desktop.Key(host::VK_ESCAPE);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 3 item 3 canceled"));
    EXPECT_EQ(at.popup->ListIndex(), 3);
}

TEST(xPopupClosing, APressOutsideCancelsWithTheCurrentItemNotWithIndexZero) {
    OpenPopup at;
    at.popup->ListIndex(4);
    at.TakeStory();
    at.PressOutside();
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 4 item 4 canceled"));
    at.Up();
    EXPECT_THAT(at.TakeStory(), IsEmpty());
}

TEST(xPopupClosing, ThePressThatClosesReachesNobodyElse) {
    OpenPopup at;
    at.owner.TakeLog();
    at.desktop.Press(at.owner, 5, 5);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 0  canceled"));
    EXPECT_THAT(at.owner.log, Not(Contains("MouseDown 1 0 75 75")));
    at.desktop.Release();
    at.desktop.Click(at.owner, 5, 5);
    EXPECT_THAT(at.owner.log, Contains("MouseDown 1 0 75 75")) << "the next one does";
}

TEST(xPopupClosing, TheLossOfTheFocusCancels) {
    OpenPopup at;
    at.popup->ListIndex(2);
    at.TakeStory();
    at.desktop.FocusAway();
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 2 item 2 canceled"));
}

TEST(xPopupClosing, TabMovesTheFocusAndSoCancels) {
    OpenPopup at;
    at.desktop.Key(host::VK_TAB);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 0  canceled"));
    EXPECT_NE(host::platform().GetFocus(), at.desktop.WindowOf(at.owner));
}

TEST(xPopupClosing, AnotherProgramThatComesToTheFrontCancels) {
    OpenPopup at;
    at.desktop.desktop().Input().Activate(0);
    at.desktop.Pump();
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 0  canceled"));
    EXPECT_FALSE(at.IsOpen());
    EXPECT_EQ(host::platform().GetCapture(), 0);
}

TEST(xPopupClosing, TheWindowIsGoneAndTheHooksAreReleasedBeforeTheEvent) {
    OpenPopup at;
    bool open = true;
    host::Handle capture = 1;
    at.popup->events.Click = [&](std::int32_t, qrosterdata&, bool) {
        open = at.IsOpen();
        capture = host::platform().GetCapture();
        at.desktop.desktop().Input().KeyDown('Q'); // would be taken by the key hook
        host::platform().DoEvents();
    };
    at.owner.TakeLog();
    at.desktop.HoldKey(host::VK_ESCAPE);
    EXPECT_FALSE(open);
    EXPECT_EQ(capture, 0);
    EXPECT_THAT(at.owner.TakeLog(), Contains("KeyDown 81 0"));
}

TEST(xPopupClosing, AfterTheEndNothingIsHeardOfTheMouseAndTheKeys) {
    OpenPopup at;
    at.desktop.Key(host::VK_ESCAPE);
    at.TakeStory();
    at.desktop.Key(host::VK_ESCAPE);
    at.desktop.Key(host::VK_RETURN);
    at.desktop.FocusAway();
    at.MoveToScreen(220, 310);
    at.Down();
    at.Up();
    EXPECT_THAT(at.story, IsEmpty());
}

TEST(xPopupClosing, SeveralEndsAtOnceGiveOneClick) {
    OpenPopup at;
    auto& input = at.desktop.desktop().Input();
    input.KeyDown(host::VK_ESCAPE);
    input.KeyDown(host::VK_RETURN);
    input.KeyUp(host::VK_RETURN);
    input.Activate(0);
    input.MouseMove(900, 700);
    input.MouseDown(desktop::MouseButton::Left);
    at.desktop.Pump();
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 0  canceled"));
}

TEST(xPopupClosing, AnEndThatWaitsWhileItOpensClosesItAndLeavesNoCapture) {
    PopupDesktop at(Lines(3));
    at.desktop.desktop().Input().KeyDown(host::VK_ESCAPE);
    at.popup->Popup(); // lets it run
    EXPECT_FALSE(at.IsOpen());
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 0  canceled"));
    EXPECT_EQ(host::platform().GetCapture(), 0);
}

TEST(xPopupClosing, WithoutACurrentItemTheSlotOfEntryZeroComes) {
    PopupDesktop at({"b", "a"});
    at.popup->SortedMode(bAscendingSorted); // the swap of the sort leaves a slot in entry 0
    at.Open();
    at.desktop.Key(host::VK_ESCAPE);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 0 b canceled"));
}

// The mouse states.

TEST(xPopupClosing, PressedOnAButtonDraggedInAndReleasedItAccepts) {
    OpenPopup at;
    at.desktop.Key(host::VK_ESCAPE);
    at.owner.onEvent = [&](const std::string& event) {
        if (event.starts_with("MouseDown")) at.popup->Popup(false, true);
    };
    at.desktop.Press(at.owner, 5, 5);
    EXPECT_TRUE(at.IsOpen());
    at.TakeStory();
    at.MoveToRow(1);
    EXPECT_EQ(host::platform().GetCapture(), at.Floating());
    at.MoveToRow(3);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Change 1 item 1", "Change 3 item 3"));
    at.Up();
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 3 item 3"));
    EXPECT_FALSE(at.IsOpen());
}

TEST(xPopupClosing, FromAButtonOfAStripItIsPressedDraggedAndReleased) {
    OpenPopup at;
    at.desktop.Key(host::VK_ESCAPE);
    auto& strip = at.desktop.form().Add<xbutton>("strip", {300, 20, 60, 20});
    strip.SetButtons("b|a|2");
    strip.events.MouseDown = [&](const std::string&) { at.popup->Popup(false, true); };
    at.desktop.Press(strip, 5, 5);
    ASSERT_TRUE(at.IsOpen());
    at.TakeStory();
    at.MoveToRow(2);
    at.Up();
    EXPECT_THAT(at.TakeStory(), ElementsAre("Change 2 item 2", "Click 2 item 2"));
    EXPECT_FALSE(at.IsOpen());
    EXPECT_EQ(host::platform().GetCapture(), 0);
    at.desktop.Click(strip, 5, 5);
    EXPECT_TRUE(at.IsOpen()) << "and once more";
    at.desktop.Key(host::VK_ESCAPE);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 2 item 2 canceled"));
}

TEST(xPopupClosing, PressedAndReleasedOnTheButtonItStaysOpen) {
    OpenPopup at;
    at.desktop.Key(host::VK_ESCAPE);
    at.TakeStory();
    at.owner.onEvent = [&](const std::string& event) {
        if (event.starts_with("MouseDown")) at.popup->Popup(false, true);
    };
    at.desktop.Click(at.owner, 5, 5);
    EXPECT_TRUE(at.IsOpen());
    at.MoveToRow(2); // without the button
    EXPECT_THAT(at.story, IsEmpty());
    at.ClickRow(2);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Change 2 item 2", "Click 2 item 2"));
}

TEST(xPopupClosing, TheReleaseOfAPressInsideClosesWhereverThePointerIsByThen) {
    OpenPopup at;
    at.PressRow(2);
    at.MoveToScreen(900, 310);
    at.Up();
    EXPECT_THAT(at.TakeStory(), ElementsAre("Change 2 item 2", "Click 2 item 2"));
}

TEST(xPopupClosing, APressOnTheScrollBarScrollsAndNeitherClosesNorSelects) {
    OpenPopup at;
    const auto before = at.Pixels();
    at.MoveToBar();
    at.Down();
    EXPECT_NE(at.Pixels(), before) << "the lower arrow scrolls";
    at.MoveToRow(2); // still pressed
    at.Up();
    EXPECT_TRUE(at.IsOpen());
    EXPECT_THAT(at.story, IsEmpty());
    at.MoveToRow(2);
    EXPECT_EQ(host::platform().GetCapture(), at.Floating()) << "the capture is taken back";
    at.ClickRow(2);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Change 3 item 3", "Click 3 item 3"));
}

TEST(xPopupClosing, AfterTheScrollBarAPressOutsideCancels) {
    OpenPopup at;
    at.MoveToBar();
    at.Down();
    at.Up();
    at.PressOutside();
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 0  canceled"));
    EXPECT_FALSE(at.IsOpen());
}

TEST(xPopupClosing, TheThumbCanBeDragged) {
    OpenPopup at(60, 5);
    at.MoveTo(at.ClientRect().Right + 8, 20);
    at.Down();
    at.MoveTo(at.ClientRect().Right + 8, 60);
    at.Up();
    EXPECT_TRUE(at.IsOpen());
    at.ClickRow(1);
    ASSERT_EQ(at.story.size(), 2u);
    EXPECT_NE(at.story[1], "Click 1 item 1");
}

TEST(xPopupClosing, TheWheelScrolls) {
    OpenPopup at;
    at.MoveToRow(1);
    at.desktop.Wheel(-1);
    at.ClickRow(1);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Change 4 item 4", "Click 4 item 4"));
}

TEST(xPopupClosing, OtherButtonsNeitherSelectNorClose) {
    OpenPopup at;
    for (const auto button : {desktop::MouseButton::Right, desktop::MouseButton::Middle}) {
        at.MoveToRow(1);
        at.desktop.desktop().Input().MouseDown(button);
        at.desktop.desktop().Input().MouseUp(button);
        at.MoveToScreen(900, 700);
        at.desktop.desktop().Input().MouseDown(button);
        at.desktop.desktop().Input().MouseUp(button);
        at.desktop.Pump();
    }
    EXPECT_TRUE(at.IsOpen());
    EXPECT_THAT(at.story, IsEmpty());
}

// Moving.

TEST(xPopupClosing, WithHotTrackMovesSelectWithoutAButton) {
    OpenPopup at;
    at.popup->HotTrack(true);
    at.MoveToRow(1);
    at.MoveToRow(2);
    at.MoveToRow(2);
    at.MoveToScreen(900, 700);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Change 1 item 1", "Change 2 item 2"));
    EXPECT_TRUE(at.IsOpen());
}

TEST(xPopupClosing, ADragPastAnEdgeStepsTheListOncePerMessage) {
    OpenPopup at;
    at.PressRow(3);
    at.TakeStory();
    const tvok_Rect rect = at.WindowRect();
    for (std::int32_t i = 0; i < 3; ++i) at.MoveToScreen(rect.Left + 30, rect.bottom + 20 + i);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Change 4 item 4", "Change 5 item 5", "Change 6 item 6"));
    for (std::int32_t i = 0; i < 2; ++i) at.MoveToScreen(rect.Left + 30, rect.Top - 20 - i);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Change 5 item 5", "Change 4 item 4"));
    at.Up();
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 4 item 4"));
}

TEST(xPopupClosing, ScrollingMovesThePixelsToWhatARepaintGives) {
    OpenPopup at(50, 7);
    for (const std::int32_t key : {host::VK_END, host::VK_UP, host::VK_PRIOR, host::VK_PRIOR, host::VK_HOME,
                                   host::VK_NEXT, host::VK_NEXT, host::VK_DOWN}) {
        at.desktop.Key(key);
        const auto moved = at.Pixels();
        host::platform().InvalidateRect(at.Floating(), nullptr, false);
        at.desktop.Pump();
        EXPECT_EQ(at.Pixels(), moved) << key;
    }
}

// Keys.

TEST(xPopupClosing, ArrowsMoveAndLettersJump) {
    PopupDesktop at({"ant", "bee", "Bug", "cat"});
    at.Open();
    for (const std::int32_t key : {std::int32_t{'B'}, std::int32_t{'B'}, std::int32_t{'B'}, host::VK_END,
                                   host::VK_UP, host::VK_HOME, host::VK_RIGHT, host::VK_LEFT})
        at.desktop.Key(key);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Change 2 bee", "Change 3 Bug", "Change 2 bee", "Change 4 cat",
                                            "Change 3 Bug", "Change 1 ant", "Change 2 bee", "Change 1 ant"));
}

TEST(xPopupClosing, ItsKeysDoNotReachTheFocusedWindowAndOthersDo) {
    OpenPopup at;
    at.owner.TakeLog();
    for (const std::int32_t key : {std::int32_t{'Z'}, host::VK_SPACE, host::VK_F1, host::VK_INSERT, 126})
        at.desktop.HoldKey(key);
    EXPECT_THAT(at.owner.TakeLog(), IsEmpty());
    for (const std::int32_t key : {host::VK_SHIFT, host::VK_CONTROL, host::VK_BACK, 127}) {
        at.desktop.HoldKey(key);
        EXPECT_THAT(at.owner.TakeLog(), Contains(testing::StartsWith("KeyDown " + std::to_string(key))))
            << key;
        at.desktop.LetGoKey(key);
        at.owner.TakeLog();
    }
    at.desktop.LetGoKey('Z');
    EXPECT_THAT(at.owner.TakeLog(), ElementsAre("KeyUp 90 0")) << "a key that goes up passes";
    EXPECT_TRUE(at.IsOpen());
    EXPECT_THAT(at.story, IsEmpty());
}

// The code of F1 is that of a small "p", and so it looks for one. That stays.
TEST(xPopupClosing, AFunctionKeyLooksForTheLetterOfItsCode) {
    PopupDesktop at({"ant", "pea"});
    at.Open();
    at.desktop.Key(host::VK_F1);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Change 2 pea"));
}

TEST(xPopupClosing, InAVirtualPopupALetterGoesByTheOneRecord) {
    PopupDesktop at;
    at.popup->events.EnumDATA = [](std::int32_t& index, qrosterdata& x) {
        x = {.text = "row " + std::to_string(index)};
    };
    at.popup->Count(1000000);
    at.popup->yn(5);
    at.Open();
    at.desktop.Key('X');
    EXPECT_EQ(at.popup->ListIndex(), 0);
    at.desktop.Key('R');
    EXPECT_EQ(at.popup->ListIndex(), 1);
    at.desktop.Key(host::VK_END);
    EXPECT_EQ(at.popup->ListIndex(), 1000000);
    at.desktop.Key('R');
    EXPECT_EQ(at.popup->ListIndex(), 1);
    at.desktop.Key('R');
    EXPECT_EQ(at.popup->ListIndex(), 2);
}

// The capture.

TEST(xPopupClosing, TheCaptureIsWonBackAfterItWasTakenAway) {
    OpenPopup at;
    EXPECT_EQ(host::platform().GetCapture(), at.Floating());
    host::platform().ReleaseCapture();
    at.MoveToScreen(900, 700);
    EXPECT_EQ(host::platform().GetCapture(), at.Floating());
    host::platform().SetCapture(at.desktop.WindowOf(at.owner)); // stolen
    at.MoveToRow(1);
    EXPECT_EQ(host::platform().GetCapture(), at.Floating()) << "the pointer came in for the first time";
    host::platform().SetCapture(at.desktop.WindowOf(at.owner));
    at.MoveToScreen(900, 700);
    EXPECT_EQ(host::platform().GetCapture(), at.desktop.WindowOf(at.owner));
    at.desktop.Key(host::VK_ESCAPE);
    EXPECT_EQ(host::platform().GetCapture(), at.desktop.WindowOf(at.owner))
        << "what is not its own is not released";
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 0  canceled"));
}

TEST(xPopupClosing, AnOutsidePressThatWasStolenClosesWithTheNextPress) {
    OpenPopup at;
    at.MoveToRow(1);
    host::platform().SetCapture(at.desktop.WindowOf(at.owner));
    at.PressOutside(); // goes to the thief
    at.Up();
    EXPECT_TRUE(at.IsOpen());
    host::platform().ReleaseCapture();
    at.PressRow(2); // the flag of the first press is still up
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 0  canceled"));
    EXPECT_FALSE(at.IsOpen());
}

} // namespace
} // namespace tvok::test
