// Single messages and hooks: what each does on its own, and what stays from one opening to the next.
#include "tests/support/NotedServices.h"
#include "tests/support/PopupTestDesktop.h"
#include "tvok/host/RecordingPlatform.h"
#include "tvok/host/desktop/windows/Message.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Six items in three rows beside a scroll bar, open.
struct MessagedPopup : PopupDesktop {
    MessagedPopup() : PopupDesktop(Lines(6)) {
        popup->yn(3);
        Open();
    }
    /// Straight to the floating window, which the mouse hook does not see.
    void Post(std::int32_t message, std::int32_t wParam, std::int32_t x, std::int32_t y) {
        host::platform().PostMessageA(Floating(), message, wParam, soft::PackWords(x, y));
        desktop.Pump();
    }
    /// Of the page, which a press on the bar scrolls by one.
    void PostDragTo(std::int32_t row) { Post(host::WM_MOUSEMOVE, host::MK_LBUTTON, 30, RowMiddle(row)); }
    void MoveToBar() { MoveTo(ClientRect().Right + 8, ClientRect().bottom - 5); }
    bool HasCapture() const { return host::platform().GetCapture() == Floating(); }
};

// The scroll bar.

TEST(xPopupMessages, APressOnTheBarThatTheMouseHookSeesKeepsMovesFromSelecting) {
    MessagedPopup at;
    at.MoveToBar();
    host::platform().ReleaseCapture();
    at.Down(); // 161, since nobody has the mouse
    at.PostDragTo(2);
    EXPECT_THAT(at.story, IsEmpty());
    at.Up();
    at.PostDragTo(2);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Change 3 item 3"));
    EXPECT_TRUE(at.IsOpen());
}

TEST(xPopupMessages, AReleaseOnTheBarThatTheMouseHookSeesEndsThePressAndTakesTheMouse) {
    MessagedPopup at;
    at.MoveToBar();
    at.Down();
    host::platform().ReleaseCapture();
    at.PostDragTo(2);
    EXPECT_THAT(at.story, IsEmpty());
    at.Up(); // 162, since nobody has the mouse
    EXPECT_TRUE(at.HasCapture());
    at.PostDragTo(2);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Change 3 item 3"));
}

TEST(xPopupMessages, AReleaseOnTheBarThatTheWindowAloneGetsEndsThePress) {
    MessagedPopup at;
    at.MoveToBar();
    at.Down();
    at.PostDragTo(2);
    EXPECT_THAT(at.story, IsEmpty());
    at.Post(host::WM_NCLBUTTONUP, host::HTVSCROLL, 0, 0);
    at.PostDragTo(2);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Change 3 item 3"));
}

TEST(xPopupMessages, AReleaseThatClosesNothingTakesTheMouse) {
    MessagedPopup at;
    host::platform().SetCapture(at.desktop.WindowOf(at.owner));
    at.Post(host::WM_LBUTTONUP, 0, 30, 9);
    EXPECT_TRUE(at.IsOpen());
    EXPECT_TRUE(at.HasCapture());
    EXPECT_THAT(at.story, IsEmpty());
}

// The flag of a press on the bar is not cleared by an opening. Where Esc closes the popup before the button
// comes up, the next opening starts with it, and a drag into that one selects nothing. That stays.
TEST(xPopupMessages, TheFlagOfAPressOnTheBarOutlivesTheClosing) {
    MessagedPopup at;
    at.MoveToBar();
    at.Down();
    at.desktop.Key(host::VK_ESCAPE);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 0  canceled"));
    at.Up(); // heard by nobody
    at.owner.onEvent = [&](const std::string& event) {
        if (event.starts_with("MouseDown")) at.popup->Popup(false, true);
    };
    at.desktop.Press(at.owner, 5, 5);
    ASSERT_TRUE(at.IsOpen());
    at.MoveToRow(1);
    at.MoveToRow(3);
    EXPECT_THAT(at.story, IsEmpty());
    at.Up();
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 0  canceled"));
    EXPECT_FALSE(at.IsOpen());
}

// The button that selects.

class SwappedButtons : public host::RecordingPlatform {
public:
    explicit SwappedButtons(host::Platform& next) : RecordingPlatform(next, [](std::string_view) {}) {}
    std::int32_t swapped = 1;
    std::int32_t GetSystemMetrics(std::int32_t index) override {
        return index == host::SM_SWAPBUTTON ? swapped : RecordingPlatform::GetSystemMetrics(index);
    }
};

TEST(xPopupMessages, WhereTheButtonsAreSwappedTheRightOneDraggedInArmsTheRelease) {
    for (const std::int32_t swapped : {0, 1}) {
        MessagedPopup at;
        SwappedButtons platform(at.desktop.desktop().OwnPlatform());
        platform.swapped = swapped;
        at.desktop.desktop().InterposePlatform(&platform);
        at.desktop.desktop().Input().MouseDown(desktop::MouseButton::Right);
        at.MoveToRow(1);
        at.Post(host::WM_LBUTTONUP, 0, 30, 9);
        EXPECT_EQ(at.IsOpen(), swapped == 0);
        at.desktop.desktop().InterposePlatform(nullptr);
    }
}

// Keys.

/// Services that remember the window hooks that they made.
class HeldHooks : public PassedServices {
public:
    std::vector<host::WindowHook*> made;
    std::unique_ptr<host::WindowHook> CreateWindowHook() override {
        auto hook = next_.CreateWindowHook();
        made.push_back(hook.get());
        return hook;
    }
};

TEST(xPopupMessages, AKeyActsOnlyWithAWordWhoseHighPartIsAboveZero) {
    PopupDesktop plain;
    HeldHooks services;
    auto& popup = plain.desktop.form().Add<xPopup>("popup2", {0, 0, 10, 10});
    ASSERT_EQ(services.made.size(), 3u);
    popup.AddItem({.text = "a"});
    popup.SetParentRect(PopupDesktop::cParent);
    popup.Popup();
    const auto isTaken = [&](std::int32_t word) {
        std::int32_t result = 0;
        bool callNext = true;
        services.made[1]->RtMsg(0, host::VK_ESCAPE, word, result, callNext);
        return !callNext;
    };
    for (const std::int32_t word : {0, 1, 0x7FFF, INT32_MIN, INT32_MIN + 0x10000, -1})
        EXPECT_FALSE(isTaken(word)) << word;
    EXPECT_TRUE(plain.IsOpen());
    EXPECT_TRUE(isTaken(0x8000));
    EXPECT_FALSE(plain.IsOpen());
    popup.Popup();
    EXPECT_TRUE(isTaken(0x10001));
    EXPECT_FALSE(plain.IsOpen());
}

// The focus.

/// What draws the focus when item `index` of a popup is drawn.
std::vector<std::string> FocusRects(TestDesktop& desktop, xPopup& popup, std::int32_t index) {
    std::vector<std::string> found;
    for (const std::string& line : desktop.Trace([&] { popup.DrawItem(index); }))
        if (line.starts_with("DrawFocusRect")) found.push_back(line.substr(line.rfind(" (") + 1));
    return found;
}

TEST(xPopupMessages, TheCurrentItemShowsTheFocusWhileTheWindowFromBeforeTheOpeningHasIt) {
    PopupDesktop plain;
    NotedServices services;
    services.book().refuse = 1; // the hook that closes it when the focus goes
    auto& popup = plain.desktop.form().Add<xPopup>("popup2", {0, 0, 10, 10});
    for (const std::string& text : Lines(3)) popup.AddItem({.text = text});
    popup.SetParentRect(PopupDesktop::cParent);
    popup.ListIndex(2);
    popup.Popup();
    EXPECT_THAT(FocusRects(plain.desktop, popup, 2), ElementsAre("(0,19)-(100,37)"));
    EXPECT_THAT(FocusRects(plain.desktop, popup, 1), IsEmpty());
    plain.desktop.FocusAway();
    ASSERT_TRUE(plain.IsOpen());
    EXPECT_THAT(FocusRects(plain.desktop, popup, 2), IsEmpty());
}

TEST(xPopupMessages, ACellOfAPaletteShowsTheFocusOnePixelLargerWhileItIsHeld) {
    PopupDesktop plain;
    NotedServices services;
    services.book().refuse = 1;
    auto& popup = plain.desktop.form().Add<xPopup>("popup2", {0, 0, 10, 10});
    popup.SetColorPal(PAL8x8);
    popup.SetParentRect(PopupDesktop::cParent);
    popup.ListIndex(1);
    popup.Popup();
    EXPECT_THAT(FocusRects(plain.desktop, popup, 1), ElementsAre("(0,0)-(16,16)"));
    plain.desktop.FocusAway();
    EXPECT_THAT(FocusRects(plain.desktop, popup, 1), ElementsAre("(1,1)-(15,15)"));
}

TEST(xPopupMessages, RemovingTheFocusedControlCancels) {
    MessagedPopup at;
    at.desktop.form().Remove(at.owner);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 0  canceled"));
    EXPECT_FALSE(at.IsOpen());
    EXPECT_EQ(host::platform().GetCapture(), 0);
    at.desktop.Pump();
    EXPECT_THAT(at.story, IsEmpty());
}

// The end.

TEST(xPopupMessages, AtTheEndTheHooksGoInTheirOrder) {
    PopupDesktop plain;
    NotedServices services;
    auto& popup = plain.desktop.form().Add<xPopup>("popup2", {0, 0, 10, 10});
    popup.AddItem({.text = "a"});
    popup.Popup();
    services.TakeLog();
    plain.desktop.form().Remove(popup);
    EXPECT_THAT(services.TakeLog(), ElementsAre("1 released", "2 released", "3 HookDetach", "4 released"));
}

} // namespace
} // namespace tvok::test
