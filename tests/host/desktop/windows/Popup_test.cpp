#include <gmock/gmock.h>

#include "tests/host/desktop/windows/Recorder.h"
#include "tests/support/TestDesktop.h"
#include "tvok/host/Services.h"
#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok::test {
namespace {

using namespace host;
using testing::ElementsAre;
using testing::IsEmpty;

/// A list that floats: a picture torn out of its component, with a scroll bar, that has the mouse to itself.
class Popup : public testing::Test {
protected:
    static constexpr std::int32_t kWidth = 100, kHeight = 80;

    Popup() : owner(desktop.form().Add<Recorder>("owner", {20, 20, 100, 30})) {
        desktop.form().Add<Recorder>("other", {20, 200, 100, 30});
        picture = owner.component->CreatePicture();
        hook = services().CreateMessageHook();
        hook->HookMode(3);
        bool flag = false;
        hook->HookAttach(picture->hWnd(), flag);
        hook->events.RtMsg = [this](std::int32_t message, std::int32_t w, std::int32_t l, std::int32_t&,
                                    bool& goOn) {
            if (message == WM_PAINT) return Paint(goOn);
            heard.push_back(std::to_string(message));
            if (message == WM_LBUTTONDOWN && passPressToBar) PassPressToBar(w, l, goOn);
        };
        hook->events.Change = [this](auto v, auto, auto) { heard.push_back("Change " + std::to_string(v)); };
        desktop.Pump();
    }
    void Paint(bool& goOn) {
        PaintStruct paint;
        platform().BeginPaint(picture->hWnd(), paint);
        const Handle brush = platform().CreateSolidBrush(0x0000FF);
        platform().FillRect(picture->hDC(), paint.rcPaint, brush);
        platform().DeleteObject(brush);
        platform().EndPaint(picture->hWnd(), paint);
        goOn = false;
    }
    /// The press came here because of the capture, but it is on the bar.
    void PassPressToBar(std::int32_t, std::int32_t lParam, bool& goOn) {
        platform().ReleaseCapture();
        Point point{soft::LowWord(lParam), soft::HighWord(lParam)};
        platform().ClientToScreen(picture->hWnd(), point);
        platform().PostMessageA(picture->hWnd(), WM_NCLBUTTONDOWN, HTVSCROLL,
                                soft::PackWords(point.x, point.y));
        goOn = false;
    }
    void Open() {
        platform().SetParent(picture->hWnd(), 0);
        platform().SetWindowPos(picture->hWnd(), HWND_TOPMOST, 700, 50, kWidth, kHeight, 0);
        picture->Visible(true);
        desktop.Pump();
        heard.clear();
    }
    void MoveTo(std::int32_t x, std::int32_t y) {
        desktop.desktop().Input().MouseMove(700 + x, 50 + y);
        desktop.Pump();
    }
    void Down() {
        desktop.desktop().Input().MouseDown(desktop::MouseButton::Left);
        desktop.Pump();
    }
    std::vector<std::string> Take() { return std::exchange(heard, {}); }

    std::vector<std::string> heard;
    bool passPressToBar = false;
    TestDesktop desktop;
    Recorder& owner;
    std::unique_ptr<PictureWindow> picture;
    std::unique_ptr<MessageHook> hook;
};

TEST_F(Popup, APictureStartsHiddenAndOfNoSizeInsideItsComponent) {
    EXPECT_FALSE(picture->Visible());
    EXPECT_EQ(picture->Width(), 0);
    EXPECT_EQ(platform().GetParent(picture->hWnd()), desktop.WindowOf(owner));
    picture->Size(300, 150);
    picture->Move(75, 30);
    EXPECT_EQ(picture->Width(), 300);
    tvok_Rect rect;
    platform().GetClientRect(picture->hWnd(), rect);
    EXPECT_EQ(rect, (tvok_Rect{0, 0, 20, 10}));
    Point corner;
    platform().ClientToScreen(picture->hWnd(), corner);
    Point base;
    platform().ClientToScreen(desktop.WindowOf(owner), base);
    EXPECT_EQ(corner, (Point{base.x + 5, base.y + 2}));
}

TEST_F(Popup, TornOutItStandsOnTheScreenAboveTheForms) {
    Open();
    tvok_Rect rect;
    platform().GetWindowRect(picture->hWnd(), rect);
    EXPECT_EQ(rect, (tvok_Rect{700, 50, 800, 130}));
    EXPECT_EQ(platform().GetParent(picture->hWnd()), 0);
    EXPECT_TRUE(platform().IsWindowVisible(picture->hWnd()));
    EXPECT_EQ(platform().GetWindowExStyle(picture->hWnd()) & WS_EX_TOPMOST, WS_EX_TOPMOST);
    soft::WindowTree& windows = desktop.desktop().world().windows;
    const soft::Window* window = windows.Find(picture->hWnd());
    EXPECT_EQ(windows.tops().front(), window);
    EXPECT_EQ(window->top()->surface.Row(40)[50], 0xFF0000u);
    desktop.desktop().Input().Activate(desktop.form().hWnd());
    desktop.Pump();
    EXPECT_EQ(windows.tops().front(), window);
}

TEST_F(Popup, APressOnItLeavesTheFocusWhereItIs) {
    Open();
    const Handle focus = platform().GetFocus();
    EXPECT_NE(focus, 0);
    MoveTo(10, 10);
    Down();
    desktop.Release();
    EXPECT_EQ(platform().GetFocus(), focus);
    EXPECT_THAT(Take(), ElementsAre("512", "513", "514"));
}

TEST_F(Popup, AHookThatTakesTheCaptureGetsTheVeryPressItWasAskedAbout) {
    Open();
    const auto mouse = services().CreateWindowHook();
    mouse->RtMsg = [this](auto, std::int32_t message, auto, auto&, bool&) {
        if (message == WM_LBUTTONDOWN && platform().GetCapture() == 0) platform().SetCapture(picture->hWnd());
    };
    std::int32_t kind = 2;
    std::int32_t thread = services().ThreadID();
    bool flag = false;
    mouse->HookSet(kind, thread, flag);
    owner.TakeLog();
    desktop.Press(owner, 5, 5);
    EXPECT_THAT(Take(), ElementsAre("513"));
    EXPECT_THAT(owner.log, IsEmpty());
    platform().ReleaseCapture();
}

TEST_F(Popup, APressHeldOnItsOwnerCanBeDraggedIntoIt) {
    Open();
    desktop.Press(owner, 5, 5);
    EXPECT_EQ(platform().GetCapture(), desktop.WindowOf(owner));
    platform().SetCapture(picture->hWnd());
    Take();
    MoveTo(10, 10);
    desktop.Release();
    EXPECT_THAT(Take(), ElementsAre("512", "514"));
    EXPECT_EQ(platform().GetCapture(), picture->hWnd()); // asked for, so it stays
    platform().ReleaseCapture();
}

TEST_F(Popup, ACapturedPressCanBeSentOnToTheScrollBar) {
    Open();
    hook->ScrollMax(20);
    passPressToBar = true;
    platform().SetCapture(picture->hWnd());
    MoveTo(kWidth - 5, kHeight - 5);
    Take();
    Down();
    EXPECT_THAT(Take(), ElementsAre("513", "533", "161", "Change 1")); // 533: the capture is given up
    EXPECT_EQ(platform().GetCapture(), picture->hWnd()); // the bar has the mouse while it is pressed
    desktop.Release();
    EXPECT_EQ(platform().GetCapture(), 0);
    EXPECT_THAT(Take(), ElementsAre("533"));
}

TEST_F(Popup, HiddenAndShownAgainItIsPaintedAgain) {
    Open();
    picture->Visible(false);
    EXPECT_FALSE(platform().IsWindowVisible(picture->hWnd()));
    MoveTo(10, 10);
    EXPECT_THAT(Take(), IsEmpty());
    Open();
    const soft::Window* window = desktop.desktop().world().windows.Find(picture->hWnd());
    EXPECT_EQ(window->top()->surface.Row(40)[50], 0xFF0000u);
}

TEST_F(Popup, CanGoBackIntoAWindow) {
    Open();
    EXPECT_EQ(platform().SetParent(picture->hWnd(), desktop.WindowOf(owner)), 0);
    platform().SetWindowPos(picture->hWnd(), HWND_TOP, 0, 0, 50, 20, 0);
    desktop.Pump();
    EXPECT_EQ(desktop.PixelAt(owner, 49, 19), 0xFF0000u);
    EXPECT_EQ(desktop.PixelAt(owner, 50, 19), 0x996633u);
    EXPECT_EQ(platform().SetParent(desktop.WindowOf(owner), picture->hWnd()), 0); // not into its own child
    EXPECT_EQ(platform().GetParent(desktop.WindowOf(owner)), desktop.form().hWnd());
}

TEST_F(Popup, APictureThatWasMadeTooLargeInItsPlaceFloatsAtTheSameSize) {
    picture->Size(1e9F, 1500);
    const float width = picture->Width();
    Open();
    platform().SetParent(picture->hWnd(), desktop.WindowOf(owner));
    picture->Size(1e9F, 1500);
    platform().SetParent(picture->hWnd(), 0);
    EXPECT_EQ(picture->Width(), width);
    const soft::Window* window = desktop.desktop().world().windows.Find(picture->hWnd());
    EXPECT_LE(window->top()->surface.Width(), soft::kMaxSurface);
}

TEST_F(Popup, AComponentThatIsLargerThanASurfaceIsCutWhenItLeavesItsForm) {
    owner.component->Size(1e9F, 3000);
    const Handle hWnd = desktop.WindowOf(owner);
    platform().SetParent(hWnd, 0);
    tvok_Rect rect;
    platform().GetWindowRect(hWnd, rect);
    EXPECT_EQ(rect.Right - rect.Left, soft::kMaxSurface);
    EXPECT_EQ(rect.bottom - rect.Top, 200);
    EXPECT_EQ(desktop.desktop().world().windows.Find(hWnd)->top()->surface.Width(), soft::kMaxSurface);
}

TEST_F(Popup, PointsBeyondTheCoordinatesStayAtTheirEnds) {
    Point point{INT32_MAX, INT32_MAX - 1};
    EXPECT_TRUE(platform().ClientToScreen(picture->hWnd(), point));
    EXPECT_EQ(point, (Point{INT32_MAX, INT32_MAX}));
    point = {INT32_MIN, INT32_MIN + 1};
    EXPECT_TRUE(platform().ScreenToClient(picture->hWnd(), point));
    EXPECT_EQ(point, (Point{INT32_MIN, INT32_MIN}));
}

TEST_F(Popup, GoesWhenItsComponentGoesHoweverLongItIsHeld) {
    Open();
    const Handle hWnd = picture->hWnd();
    desktop.form().Remove(owner);
    EXPECT_FALSE(platform().IsWindowVisible(hWnd));
    EXPECT_EQ(picture->hWnd(), hWnd);
    picture->Visible(true);
    picture->Width(100);
    picture->Cls();
    picture->Font()->Bold(true);
    desktop.Pump();
    EXPECT_EQ(desktop.desktop().world().windows.tops().size(), 1u);
    picture.reset();
}

} // namespace
} // namespace tvok::test
