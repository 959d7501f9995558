#include <atomic>
#include <chrono>
#include <map>
#include <stdexcept>
#include <thread>

#include <gmock/gmock.h>

#include "tests/host/desktop/windows/Recorder.h"
#include "tests/support/TestDesktop.h"
#include "tvok/host/Services.h"
#include "tvok/host/desktop/Embedding.h"

namespace tvok::test {
namespace {

using namespace std::chrono_literals;
using desktop::MouseButton;
using host::Handle;
using testing::ElementsAre;
using testing::IsEmpty;
using Layout = Embedding::Layout;

constexpr std::uint32_t cRecorderPixel = 0x996633; // its 0x336699 is 0x00BBGGRR

std::int32_t AreaOf(const std::vector<tvok_Rect>& rects) {
    std::int32_t area = 0;
    for (const tvok_Rect& rect : rects) area += (rect.Right - rect.Left) * (rect.bottom - rect.Top);
    return area;
}

std::uint32_t PixelOf(const EmbeddedPixels& pixels, std::int32_t x, std::int32_t y) {
    return pixels.data[y * pixels.stride + x];
}

/// An outer program that notes what it is asked.
class EmbeddedDesktop : public testing::Test {
protected:
    explicit EmbeddedDesktop(Layout layout = Layout::OneSurface, bool waits = false)
        : embedding(Options(), layout, Calls(waits)), form(embedding.desktop().AddForm("Form", 200, 100)) {
        embedding.Fill(form);
    }
    DesktopOptions Options() const {
        DesktopOptions options;
        options.screenWidth = 200;
        options.screenHeight = 100;
        options.fontFile = cDejaVuSans;
        options.language = "en";
        options.clock = &clock;
        return options;
    }
    EmbeddingCalls Calls(bool waits) {
        EmbeddingCalls calls;
        calls.wake = [this] { ++wakes; };
        if (waits) calls.wait = [this](std::chrono::milliseconds) { onWait(); };
        calls.pointer = [this](std::int16_t shape) { log.push_back("pointer " + std::to_string(shape)); };
        const auto note = [this](const char* what, const EmbeddedWindow& window) {
            windows[window.id] = window;
            log.push_back(what + (window.popup ? " popup" : " " + window.caption));
            if (onWindow) onWindow(window);
        };
        calls.opened = [note](const EmbeddedWindow& window) { note("opened", window); };
        calls.changed = [note](const EmbeddedWindow& window) { note("changed", window); };
        calls.closed = [this](Handle id) { log.push_back("closed " + windows[id].caption); };
        return calls;
    }
    std::vector<std::string> TakeLog() { return std::exchange(log, {}); }
    void Click(std::int32_t x, std::int32_t y, Handle window = 0) {
        embedding.MouseMove(x, y, window);
        embedding.desktop().Input().MouseDown(MouseButton::Left);
        embedding.desktop().Input().MouseUp(MouseButton::Left);
        embedding.Turn();
    }

    HeldClock clock;
    std::atomic<int> wakes = 0;
    std::vector<std::string> log;
    std::map<Handle, EmbeddedWindow> windows;
    std::function<void(const EmbeddedWindow&)> onWindow;
    std::function<void()> onWait;
    Embedding embedding;
    Form& form;
};

class EmbeddedWindows : public EmbeddedDesktop {
protected:
    EmbeddedWindows() : EmbeddedDesktop(Layout::Windows) {}
};

class WaitingProgram : public EmbeddedDesktop {
protected:
    WaitingProgram() : EmbeddedDesktop(Layout::OneSurface, true) {}
};

/// A square torn out of its component, at a place of the screen.
std::unique_ptr<host::PictureWindow> OpenPopup(host::Component& owner, std::int32_t x, std::int32_t y) {
    auto picture = owner.CreatePicture();
    host::platform().SetParent(picture->hWnd(), 0);
    host::platform().SetWindowPos(picture->hWnd(), host::HWND_TOPMOST, x, y, 30, 20, 0);
    picture->Visible(true);
    return picture;
}

TEST_F(EmbeddedDesktop, FillsTheSurfaceWithTheClientAreaOfAForm) {
    form.Add<Recorder>("control", {0, 0, 200, 100});
    EXPECT_EQ(embedding.NextTurn(), 0ms);
    EXPECT_TRUE(embedding.Turn());
    EXPECT_EQ(AreaOf(embedding.TakeDamage()), 200 * 100);
    const EmbeddedPixels pixels = embedding.Pixels();
    ASSERT_EQ(pixels.width, 200);
    ASSERT_EQ(pixels.height, 100);
    EXPECT_EQ(PixelOf(pixels, 0, 0), cRecorderPixel);
    EXPECT_EQ(PixelOf(pixels, 199, 99), cRecorderPixel);
    EXPECT_THAT(embedding.TakeDamage(), IsEmpty());
    EXPECT_EQ(embedding.NextTurn(), std::nullopt);
}

TEST_F(EmbeddedDesktop, FollowsTheSizeOfTheOuterWindow) {
    embedding.Turn();
    embedding.TakeDamage();
    embedding.Resize(300, 50);
    EXPECT_EQ(form.Width(), 300);
    EXPECT_EQ(form.Height(), 50);
    EXPECT_EQ(embedding.NextTurn(), 0ms);
    embedding.Turn();
    EXPECT_EQ(AreaOf(embedding.TakeDamage()), 300 * 50);
    embedding.Resize(-1, 20'000);
    embedding.Turn();
    EXPECT_THAT(embedding.TakeDamage(), IsEmpty());
    EXPECT_EQ(embedding.Pixels().data, nullptr);
}

TEST_F(EmbeddedDesktop, DamagesNoMoreThanWhatChanged) {
    auto& control = form.Add<Recorder>("control", {10, 20, 50, 30});
    embedding.Turn();
    embedding.TakeDamage();
    control.color = 0x0000FF;
    host::platform().InvalidateRect(control.component->hWnd(), nullptr, false);
    EXPECT_EQ(embedding.NextTurn(), 0ms);
    embedding.Turn();
    EXPECT_THAT(embedding.TakeDamage(), ElementsAre(tvok_Rect{10, 20, 60, 50}));
    EXPECT_EQ(PixelOf(embedding.Pixels(), 10, 20), 0xFF0000U);
}

TEST_F(EmbeddedDesktop, WantsATurnForWhatTheProgramDrewItself) {
    auto& control = form.Add<Recorder>("control", {0, 0, 50, 30});
    embedding.Turn();
    embedding.TakeDamage();
    control.Paint(); // at once, without a message
    EXPECT_EQ(embedding.NextTurn(), 0ms);
    embedding.Turn();
    EXPECT_EQ(AreaOf(embedding.TakeDamage()), 50 * 30);
    form.Caption("Other"); // of a frame that lies outside
    EXPECT_EQ(embedding.NextTurn(), 0ms);
    embedding.Turn();
    EXPECT_EQ(embedding.NextTurn(), std::nullopt);
}

TEST_F(EmbeddedDesktop, FeedsMouseAndKeysAsRealMessages) {
    auto& control = form.Add<Recorder>("control", {10, 20, 100, 50});
    embedding.Turn();
    control.TakeLog();
    Click(15, 27);
    EXPECT_THAT(control.TakeLog(), testing::IsSupersetOf({"MouseDown 1 0 75 105", "Click"}));
    embedding.desktop().Input().KeyDown('A');
    embedding.desktop().Input().Text("a");
    embedding.desktop().Input().KeyUp('A');
    EXPECT_THAT(control.TakeLog(), IsEmpty()) << "input waits for the turn";
    EXPECT_EQ(embedding.NextTurn(), 0ms);
    embedding.Turn();
    EXPECT_THAT(control.TakeLog(), ElementsAre("KeyDown 65 0", "KeyPress 97", "KeyUp 65 0"));
}

TEST_F(EmbeddedDesktop, HandsTheOuterFocusToTheFrontForm) {
    auto& control = form.Add<Recorder>("control", {10, 20, 100, 50});
    embedding.Turn();
    control.TakeLog();
    embedding.FocusOut();
    embedding.Turn();
    EXPECT_THAT(control.TakeLog(), testing::Contains("LostFocus"));
    embedding.FocusIn();
    embedding.Turn();
    EXPECT_THAT(control.TakeLog(), testing::Contains("GotFocus"));
}

TEST_F(EmbeddedDesktop, ShowsAPopupAboveAndWhatWasBelowAgain) {
    auto& control = form.Add<Recorder>("control", {0, 0, 200, 100});
    auto popup = OpenPopup(*control.component, 100, 40);
    embedding.Turn();
    embedding.TakeDamage();
    EXPECT_NE(PixelOf(embedding.Pixels(), 110, 50), cRecorderPixel);
    popup->Visible(false);
    embedding.Turn();
    EXPECT_THAT(embedding.TakeDamage(), ElementsAre(tvok_Rect{100, 40, 130, 60}));
    EXPECT_EQ(PixelOf(embedding.Pixels(), 110, 50), cRecorderPixel);
}

TEST_F(EmbeddedDesktop, SaysWhenAHeldScrollArrowIsDue) {
    auto& list = form.Add<qRoster>("list", {0, 0, 200, 100});
    for (int i = 0; i < 50; ++i) list.AddItem(0, {.text = std::to_string(i)});
    list.Refresh();
    embedding.Turn();
    const Placement place = form.PlacementOf(list);
    embedding.MouseMove(place.width - 8, place.height - 8);
    embedding.desktop().Input().MouseDown(MouseButton::Left);
    embedding.Turn();
    embedding.TakeDamage();
    const auto due = embedding.NextTurn();
    ASSERT_TRUE(due);
    EXPECT_GT(*due, 0ms);
    clock.now += *due - 1ms;
    EXPECT_EQ(embedding.NextTurn(), 1ms);
    embedding.Turn();
    EXPECT_THAT(embedding.TakeDamage(), IsEmpty());
    clock.now += 1ms;
    EXPECT_EQ(embedding.NextTurn(), 0ms);
    embedding.Turn();
    EXPECT_GT(AreaOf(embedding.TakeDamage()), 0);
    embedding.desktop().Input().MouseUp(MouseButton::Left);
    embedding.Turn();
    EXPECT_EQ(embedding.NextTurn(), std::nullopt);
}

TEST_F(EmbeddedDesktop, WakesOnceForWhatOtherThreadsPost) {
    embedding.Turn();
    int ran = 0;
    std::thread([&] {
        for (int i = 0; i < 3; ++i) embedding.desktop().Post([&] { ++ran; });
    }).join();
    EXPECT_EQ(wakes, 1);
    EXPECT_EQ(ran, 0);
    EXPECT_EQ(embedding.NextTurn(), 0ms);
    embedding.Turn();
    EXPECT_EQ(ran, 3);
    embedding.desktop().Post([&] { ++ran; });
    EXPECT_EQ(wakes, 2);
}

TEST_F(EmbeddedDesktop, LetsThroughWhatATaskThrows) {
    int ran = 0;
    embedding.desktop().Post([] { throw std::runtime_error("task"); });
    embedding.desktop().Post([&] { ++ran; });
    EXPECT_THROW(embedding.Turn(), std::runtime_error);
    EXPECT_EQ(embedding.NextTurn(), 0ms);
    embedding.Turn();
    EXPECT_EQ(ran, 1);
}

TEST_F(EmbeddedDesktop, MayTakeATurnInAHandler) {
    auto& control = form.Add<Recorder>("control", {0, 0, 200, 100});
    embedding.Turn();
    int turns = 0;
    control.onEvent = [&](const std::string& event) {
        if (event.starts_with("MouseDown")) turns += embedding.Turn() ? 1 : 0;
        if (event == "Click") form.Remove(control);
    };
    Click(5, 5);
    EXPECT_EQ(turns, 1);
    embedding.Turn();
    EXPECT_EQ(form.Find("control"), nullptr);
}

TEST_F(EmbeddedDesktop, IsOverWhenItsFormIsClosed) {
    embedding.Turn();
    bool keep = true;
    form.events.Closing = [&](bool& keeps) { keeps = keep; };
    embedding.CloseRequest();
    EXPECT_TRUE(embedding.Turn());
    keep = false;
    embedding.CloseRequest();
    EXPECT_FALSE(embedding.Turn());
    EXPECT_EQ(embedding.NextTurn(), std::nullopt);
    embedding.Resize(50, 50); // nothing fills it any more
    embedding.TakeDamage();
    EXPECT_EQ(embedding.Pixels().width, 50);
}

TEST_F(EmbeddedDesktop, EndsDialogsWhereNobodyCanAnswer) {
    EXPECT_TRUE(embedding.desktop().IsHeadless());
    EXPECT_EQ(embedding.desktop().Run(), 0);
}

TEST_F(WaitingProgram, RunsTheOuterLoopWhileAHandlerWaits) {
    EXPECT_FALSE(embedding.desktop().IsHeadless());
    int waits = 0, ran = 0;
    onWait = [&] {
        if (++waits == 1) embedding.desktop().Post([&] { ++ran; });
        embedding.Turn();
    };
    embedding.desktop().ProcessEvents(1h);
    EXPECT_EQ(waits, 0) << "what waits comes first";
    embedding.desktop().ProcessEvents(1h);
    EXPECT_EQ(waits, 1);
    EXPECT_EQ(ran, 1);
}

TEST_F(EmbeddedWindows, TellsOfFormsAndPopupsAsOuterWindows) {
    auto& control = form.Add<Recorder>("control", {0, 0, 200, 100});
    EXPECT_THAT(TakeLog(), IsEmpty());
    embedding.Turn();
    EXPECT_THAT(TakeLog(), ElementsAre("opened Form"));
    const Handle id = form.hWnd();
    EXPECT_EQ(windows[id].rect.Right - windows[id].rect.Left, 200) << "without a frame";
    EXPECT_EQ(AreaOf(embedding.TakeDamage(id)), 200 * 100);
    EXPECT_EQ(PixelOf(embedding.Pixels(id), 0, 0), cRecorderPixel);
    EXPECT_EQ(embedding.Pixels().data, nullptr);

    auto popup = OpenPopup(*control.component, 700, 50);
    embedding.Turn();
    EXPECT_THAT(TakeLog(), ElementsAre("opened popup"));
    EXPECT_EQ(windows[popup->hWnd()].rect, (tvok_Rect{700, 50, 730, 70}));
    form.Caption("Other");
    form.Close();
    embedding.Turn();
    EXPECT_THAT(TakeLog(), testing::Contains("closed Form"));
    EXPECT_THAT(embedding.TakeDamage(id), IsEmpty());
}

TEST_F(EmbeddedWindows, TakesWhereTheUserPutAWindow) {
    auto& control = form.Add<Recorder>("control", {0, 0, 500, 500});
    embedding.Turn();
    const Handle id = form.hWnd();
    embedding.Moved(1000, 700, id);
    embedding.Resize(250, 80, id);
    control.TakeLog();
    TakeLog();
    Click(245, 75, id);
    EXPECT_THAT(control.TakeLog(), testing::Contains("Click"));
    EXPECT_EQ(form.Width(), 250);
    EXPECT_THAT(TakeLog(), IsEmpty()) << "the program knows";
    EXPECT_EQ(AreaOf(embedding.TakeDamage(id)), 250 * 80);
    Click(245, 75, id + 1);
    EXPECT_THAT(control.TakeLog(), testing::Not(testing::Contains("MouseMove")));
}

TEST_F(EmbeddedWindows, LetsAWindowsCallCloseTheForm) {
    form.Add<Recorder>("control", {0, 0, 200, 100});
    onWindow = [&](const EmbeddedWindow&) {
        form.Close();
        embedding.Turn();
    };
    EXPECT_FALSE(embedding.Turn());
    EXPECT_THAT(log, ElementsAre("opened Form", "closed Form"));
}

} // namespace
} // namespace tvok::test
