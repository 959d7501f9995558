#include "tvok/host/desktop/Desktop.h"

#include <filesystem>
#include <limits>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>

#include "tests/host/desktop/windows/Recorder.h"
#include "tests/support/TestDesktop.h"
#include "tvok/host/Services.h"
#include "tvok/host/desktop/displays/Display.h"
#include "tvok/host/desktop/pixels/Png.h"
#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok::test {
namespace {

using std::chrono::milliseconds;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Desktop, RunOfAHeadlessOneProcessesWhatWaitsAndReturns) {
    TestDesktop desktop;
    int ran = 0;
    desktop.desktop().Post([&] {
        ++ran;
        desktop.desktop().Post([&] { ++ran; });
    });
    EXPECT_EQ(desktop.desktop().Run(), 0);
    EXPECT_EQ(ran, 2);
    desktop.desktop().Post([&] { desktop.desktop().Quit(7); });
    EXPECT_EQ(desktop.desktop().Run(), 7);
}

TEST(Desktop, ATaskFromAnotherThreadWakesAWaitAndRunsHere) {
    TestDesktop desktop;
    const auto here = std::this_thread::get_id();
    std::thread::id ranIn;
    std::thread other([&] { desktop.desktop().Post([&] { ranIn = std::this_thread::get_id(); }); });
    while (ranIn == std::thread::id()) desktop.desktop().ProcessEvents(milliseconds(60000));
    other.join();
    EXPECT_EQ(ranIn, here);
}

TEST(Desktop, ATaskThatPostsItselfLeavesTheOthersTheirTurn) {
    TestDesktop desktop;
    int ran = 0;
    std::function<void()> again = [&] {
        ++ran;
        desktop.desktop().Post(again);
    };
    desktop.desktop().Post(again);
    for (int i = 0; i < 3; ++i) desktop.Pump();
    EXPECT_EQ(ran, 3);
}

TEST(Desktop, PostedMessagesComeBeforeInputAndPaintsLast) {
    std::vector<std::string> order; // outlives the control, which writes to it until it ends
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    desktop.Pump();
    control.onEvent = [&](const std::string& event) { order.push_back(event); };
    auto hook = host::services().CreateWindowHook();
    hook->RtMsg = [&](std::int32_t message, auto, auto, auto&, bool&) {
        if (message == host::WM_USER) order.emplace_back("posted");
    };
    std::int32_t kind = 1;
    std::int32_t target = desktop.WindowOf(control);
    bool flag = false;
    hook->HookSet(kind, target, flag);
    host::platform().InvalidateRect(target, nullptr, false);
    desktop.desktop().Input().KeyDown('A');
    host::platform().PostMessageA(target, host::WM_USER, 0, 0);
    desktop.Pump();
    EXPECT_THAT(order, ElementsAre("posted", "KeyDown 65 0", "Paint"));
}

TEST(Desktop, AMessageThatPostsItselfForEverDoesNotKeepThePaintsAway) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    desktop.Pump();
    auto hook = host::services().CreateWindowHook();
    hook->RtMsg = [&](std::int32_t message, auto, auto, auto&, bool&) {
        if (message == host::WM_USER) host::platform().PostMessageA(desktop.WindowOf(control), message, 0, 0);
    };
    std::int32_t kind = 1;
    std::int32_t target = desktop.WindowOf(control);
    bool flag = false;
    hook->HookSet(kind, target, flag);
    const int before = control.paints;
    host::platform().InvalidateRect(target, nullptr, false);
    host::platform().PostMessageA(target, host::WM_USER, 0, 0);
    desktop.Pump();
    EXPECT_GT(control.paints, before);
}

TEST(Desktop, DoEventsRunsWhatWaitsInTheMiddleOfAHandler) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    auto& other = desktop.form().Add<Recorder>("b", {200, 10, 100, 50});
    desktop.Pump();
    std::vector<std::string> order;
    control.onEvent = [&](const std::string& event) {
        if (event != "KeyDown 65 0") return;
        order.emplace_back("before");
        desktop.form().Remove(other);
        host::platform().DoEvents();
        order.emplace_back("after");
    };
    bool ran = false;
    desktop.desktop().Input().KeyDown('A');
    desktop.desktop().Post([&] { ran = true; });
    desktop.desktop().Input().KeyDown('B');
    desktop.Pump();
    EXPECT_TRUE(ran);
    EXPECT_THAT(order, ElementsAre("before", "after"));
    EXPECT_THAT(control.log, Contains("KeyDown 66 0"));
}

TEST(Desktop, SetsTheThreadsPlatformAndServicesAndTakesThemBack) {
    {
        TestDesktop desktop;
        EXPECT_EQ(&host::platform(), &desktop.desktop().OwnPlatform());
        EXPECT_EQ(host::services().Screen().TwipsPerPixelX(), 15);
        EXPECT_EQ(host::services().Screen().Width(), 1280 * 15);
        EXPECT_EQ(host::services().Screen().Height(), 1024 * 15);
        EXPECT_EQ(host::platform().GetSystemMetrics(host::SM_CXVSCROLL), 17);
        EXPECT_EQ(host::platform().GetSystemMetrics(host::SM_SWAPBUTTON), 0);
        EXPECT_EQ(host::platform().GetSysColor(host::COLOR_WINDOW), Theme::Classic().colors[5]);
        EXPECT_EQ(host::platform().GetSysColor(25), 0);
        EXPECT_EQ(host::platform().GetSysColor(-1), 0);
    }
    EXPECT_THROW(host::platform(), ObjectError);
    EXPECT_THROW(host::services(), ObjectError);
}

TEST(Desktop, AThemeRepaintsEverythingAndMayChangeTheBars) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    auto hook = host::services().CreateMessageHook();
    hook->HookMode(3);
    bool flag = false;
    hook->HookAttach(desktop.WindowOf(control), flag);
    hook->ScrollMax(5);
    desktop.Pump();
    const int before = control.paints;
    Theme theme = Theme::Dark();
    theme.scrollBarSize = 30;
    desktop.desktop().SetTheme(theme);
    desktop.Pump();
    EXPECT_EQ(control.paints, before + 1);
    tvok_Rect rect;
    host::platform().GetClientRect(desktop.WindowOf(control), rect);
    EXPECT_EQ(rect.Right, 70);
    const soft::Window& window = desktop.form().window().window();
    const auto face = soft::PixelOf(theme.colors[host::COLOR_BTNFACE]);
    EXPECT_EQ(window.top()->surface.Row(window.clientArea().Top + 300)[window.clientArea().Left + 300], face);
}

TEST(Desktop, SavesAFormWithItsFrameAndTheWholeScreen) {
    TestDesktop desktop;
    const auto folder = std::filesystem::path(testing::TempDir()) / "tvok_desktop_test";
    std::filesystem::create_directories(folder);
    desktop.desktop().SaveForm(desktop.form(), (folder / "form.png").string());
    desktop.desktop().SaveScreen((folder / "screen.png").string());
    const soft::Image form = soft::ReadPng((folder / "form.png").string());
    const soft::Image screen = soft::ReadPng((folder / "screen.png").string());
    EXPECT_EQ(screen.width, 1280);
    EXPECT_EQ(screen.height, 1024);
    EXPECT_GT(form.width, 640);
    const std::size_t inside = 110 * 1280 + 110;
    EXPECT_EQ(screen.pixels[inside], form.pixels[static_cast<std::size_t>(10 * form.width + 10)]);
    EXPECT_EQ(screen.pixels[0] & 0xFFFFFF, soft::PixelOf(Theme::Classic().colors[host::COLOR_BACKGROUND]));
    EXPECT_THROW(desktop.desktop().SaveScreen("/no/such/folder/x.png"), FileError);

    desktop.desktop().SaveScreen((folder / "part.png").string(), {90, 80, 110, 130});
    const soft::Image part = soft::ReadPng((folder / "part.png").string());
    ASSERT_EQ(part.width, 20);
    ASSERT_EQ(part.height, 50);
    for (std::size_t y = 0; y < 50; ++y)
        for (std::size_t x = 0; x < 20; ++x)
            ASSERT_EQ(part.pixels[y * 20 + x], screen.pixels[(80 + y) * 1280 + 90 + x]) << x << ", " << y;
    std::filesystem::remove_all(folder);
}

/// A display that decorates windows and notes what it is told.
class NotingDisplay : public soft::Display {
public:
    bool IsHeadless() const override { return false; }
    bool DecoratesWindows() const override { return true; }
    tvok_Rect Screen() const override { return {0, 0, 800, 600}; }
    float Scale() const override { return scale; }
    void Scale(float wanted, soft::DisplayEvents& events) override {
        scale = wanted;
        notes.push_back("scale " + std::to_string(static_cast<int>(wanted * 100)));
        if (last != 0) events.WindowMoved(last, 20, 30);
    }
    void Open(const soft::DisplayWindow& window) override { Note("open", window); }
    void Change(const soft::DisplayWindow& window) override { Note("change", window); }
    void Raise(host::Handle) override {}
    void Close(host::Handle) override { notes.emplace_back("close"); }
    void Present(host::Handle id, const soft::Surface&, const soft::Region& damage) override {
        last = id;
        for (const auto& box : damage.Boxes()) presented.push_back(soft::RectOf(box));
    }
    void Wait(milliseconds timeout, soft::DisplayEvents& events) override {
        waited = timeout;
        if (feed) std::exchange(feed, nullptr)(events);
    }
    void Wake() override {}
    void Pointer(std::int16_t pointer) override { notes.push_back("pointer " + std::to_string(pointer)); }
    void Capture(host::Handle) override {}
    std::string ClipboardText() override { return {}; }
    void ClipboardText(std::string_view) override {}

    std::vector<std::string> notes;
    std::vector<tvok_Rect> presented;
    std::function<void(soft::DisplayEvents&)> feed;
    host::Handle last = 0;
    float scale = 1;
    milliseconds waited{0};

private:
    void Note(const char* what, const soft::DisplayWindow& window) {
        notes.push_back(std::string(what) + (window.popup ? " popup " : " ") + window.caption + " " +
                        std::to_string(window.rect.Left) + " " + std::to_string(soft::WidthOf(window.rect)) +
                        (window.visible ? "" : " hidden"));
    }
};

class OnDisplay : public testing::Test {
protected:
    OnDisplay() {
        auto made = std::make_unique<NotingDisplay>();
        display = made.get();
        desktop = std::make_unique<Desktop>(DesktopOptions{}, std::move(made));
        form = &desktop->AddForm("Main", 300, 200);
        Pump();
    }
    void Pump() { desktop->ProcessEvents(milliseconds(0)); }
    void Feed(std::function<void(soft::DisplayEvents&)> feed) {
        display->feed = std::move(feed);
        Pump();
    }
    std::vector<std::string> Notes() { return std::exchange(display->notes, {}); }

    NotingDisplay* display = nullptr;
    std::unique_ptr<Desktop> desktop;
    Form* form = nullptr;
};

TEST_F(OnDisplay, IsToldOfWindowsOnceAndOfEachChangeOnceATurn) {
    EXPECT_THAT(Notes(), ElementsAre("open Main 40 300"));
    form->Caption("Other");
    form->Move(50, 60);
    form->Size(310, 200);
    EXPECT_THAT(Notes(), IsEmpty());
    Pump();
    EXPECT_THAT(Notes(), ElementsAre("change Other 50 310"));
    Pump();
    EXPECT_THAT(Notes(), IsEmpty());
    form->Close();
    EXPECT_THAT(Notes(), ElementsAre("close"));
}

TEST_F(OnDisplay, IsGivenTheDamageAndNothingElse) {
    auto& control = form->Add<Recorder>("a", {10, 10, 100, 50});
    Pump();
    display->presented.clear();
    Pump();
    EXPECT_THAT(display->presented, IsEmpty());
    const tvok_Rect part{5, 5, 25, 15};
    host::platform().InvalidateRect(form->ComponentOf(control).hWnd(), &part, false);
    Pump();
    EXPECT_THAT(display->presented, ElementsAre(tvok_Rect{15, 15, 35, 25}));
}

TEST_F(OnDisplay, ResizesAndMovesTheFormWithoutAnEcho) {
    int resizes = 0;
    form->events.Resize = [&] { ++resizes; };
    Notes();
    const host::Handle id = form->hWnd();
    Feed([&](soft::DisplayEvents& events) {
        events.WindowMoved(id, 70, 80);
        events.WindowResized(id, 320, 240);
        events.WindowResized(id, 400, 300);
    });
    EXPECT_EQ(form->Width(), 400);
    EXPECT_EQ(form->Height(), 300);
    EXPECT_EQ(resizes, 1);
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(OnDisplay, AnExposedWindowIsPresentedWhole) {
    display->presented.clear();
    Feed([&](soft::DisplayEvents& events) { events.WindowExposed(form->hWnd()); });
    EXPECT_THAT(display->presented, ElementsAre(tvok_Rect{0, 0, 300, 200}));
}

TEST_F(OnDisplay, WhatIsDrawnBetweenTwoTurnsIsShownWithoutAWait) {
    auto& list = form->Add<qRoster>("list", {10, 10, 100, 50});
    list.AddItem(0, {.text = "before"});
    list.Refresh();
    Pump();
    EXPECT_EQ(display->waited, milliseconds(0));
    list.SetData(1, {.text = "after"}); // drawn at once
    desktop->ProcessEvents(milliseconds(5000));
    EXPECT_EQ(display->waited, milliseconds(0));
    desktop->ProcessEvents(milliseconds(5000));
    EXPECT_EQ(display->waited, milliseconds(5000));
}

TEST_F(OnDisplay, AScaleIsToldOnceAndEverythingIsPresentedAgainAtThePlaceThatFollows) {
    Notes();
    display->presented.clear();
    int resizes = 0;
    form->events.Resize = [&] { ++resizes; };
    desktop->Scale(1.5F);
    EXPECT_EQ(desktop->Scale(), 1.5F);
    desktop->Scale(1.5F);
    EXPECT_THAT(Notes(), ElementsAre("scale 150"));
    Pump();
    EXPECT_THAT(Notes(), IsEmpty()) << "the display knows where the form is";
    tvok_Rect place;
    host::platform().GetWindowRect(form->hWnd(), place);
    EXPECT_EQ(place, (tvok_Rect{20, 30, 320, 230})) << "with the size that it had";
    EXPECT_THAT(display->presented, ElementsAre(tvok_Rect{0, 0, 300, 200}));
    EXPECT_EQ(resizes, 0);
}

TEST_F(OnDisplay, AFormThatIsSizedInTheSameTurnAsTheScaleKeepsItsPlaceOnTheScreen) {
    Notes();
    desktop->Scale(2);
    form->Size(350, 220);
    Pump();
    EXPECT_THAT(Notes(), ElementsAre("scale 200", "change Main 20 350"));
}

TEST_F(OnDisplay, AFormThatIsSizedBeforeTheScaleHasThatSizeOnTheScreenFirst) {
    Notes();
    form->Size(200, 100);
    desktop->Scale(2);
    EXPECT_THAT(Notes(), ElementsAre("change Main 40 200", "scale 200"));
}

TEST_F(OnDisplay, AScaleOutOfRangeIsRefusedInWordsAndTheOldOneStays) {
    Notes();
    for (const float scale : {0.0F, 0.49F, 4.01F, -1.0F, std::numeric_limits<float>::quiet_NaN(),
                              std::numeric_limits<float>::infinity()})
        EXPECT_THROW(desktop->Scale(scale), Error) << scale;
    try {
        desktop->Scale(5);
        ADD_FAILURE() << "5 was taken";
    } catch (const Error& refused) {
        EXPECT_STREQ(refused.what(), "the scale has to be from 0.5 to 4, and is 5");
    }
    EXPECT_EQ(desktop->Scale(), 1);
    EXPECT_THAT(Notes(), IsEmpty());
    desktop->Scale(0.5F);
    desktop->Scale(4);
    EXPECT_EQ(desktop->Scale(), 4);
}

TEST(Desktop, InMemoryTheScaleIsANumberAndPicturesStayAsTheyAre) {
    DesktopOptions options;
    options.display = DesktopOptions::Display::Headless;
    options.scale = 9;
    Desktop desktop(options);
    EXPECT_EQ(desktop.Scale(), 4) << "an option is limited";
    Form& form = desktop.AddForm("Main", 60, 40);
    const auto width = [&] {
        const auto file = std::filesystem::path(TVOK_TEST_OUTPUT) / "scale.png";
        desktop.SaveForm(form, file.string());
        return soft::ReadPng(file.string()).width;
    };
    const std::int32_t before = width();
    desktop.Scale(2);
    EXPECT_EQ(desktop.Scale(), 2);
    EXPECT_EQ(width(), before);
    EXPECT_EQ(form.Width(), 60);
}

TEST_F(OnDisplay, AskedToCloseTheFormMayObject) {
    form->events.Closing = [](bool& keep) { keep = true; };
    Feed([&](soft::DisplayEvents& events) { events.CloseRequested(form->hWnd()); });
    EXPECT_EQ(desktop->Forms().size(), 1u);
    form->events.Closing = nullptr;
    Feed([&](soft::DisplayEvents& events) { events.CloseRequested(form->hWnd()); });
    EXPECT_TRUE(desktop->Forms().empty());
}

TEST_F(OnDisplay, ShowsThePointerOfTheControlUnderIt) {
    auto& control = form->Add<Recorder>("a", {10, 10, 100, 50});
    form->ComponentOf(control).MousePointer(host::ccIBeam);
    Notes();
    Feed([](soft::DisplayEvents& events) { events.MouseMove(60, 70); });
    EXPECT_THAT(Notes(), ElementsAre("pointer 3"));
    form->ComponentOf(control).MousePointer(host::ccSizeWE);
    EXPECT_THAT(Notes(), ElementsAre("pointer 9"));
    Feed([](soft::DisplayEvents& events) { events.MouseMove(240, 140); });
    EXPECT_THAT(Notes(), ElementsAre("pointer 0"));
}

TEST_F(OnDisplay, APopupIsAWindowOfItsOwn) {
    auto& control = form->Add<Recorder>("a", {10, 10, 100, 50});
    auto picture = control.component->CreatePicture();
    Pump();
    Notes();
    host::platform().SetParent(picture->hWnd(), 0);
    host::platform().SetWindowPos(picture->hWnd(), host::HWND_TOPMOST, 90, 90, 60, 40, 0);
    picture->Visible(true);
    Pump();
    EXPECT_THAT(Notes(), ElementsAre("open popup  90 60"));
    picture->Visible(false);
    Pump();
    EXPECT_THAT(Notes(), ElementsAre("change popup  90 60 hidden"));
    picture.reset();
    EXPECT_THAT(Notes(), ElementsAre("close"));
}

// The golden files.

TEST(Goldens, AMissingReferenceFails) {
    if (std::getenv("TVOK_UPDATE_GOLDENS")) GTEST_SKIP() << "would write the file that has to be missing";
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    EXPECT_NONFATAL_FAILURE(ExpectTrace("no such trace", {"line"}), "there is no");
    EXPECT_NONFATAL_FAILURE(ExpectPicture("no such picture", desktop, control), "there is no");
}

TEST(Goldens, ATraceIsWhatThePlatformWasCalledWith) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    desktop.Pump();
    ExpectTrace("windows/paint", desktop.Trace([&] { control.component->Refresh(); }));
    EXPECT_EQ(&host::platform(), &desktop.desktop().OwnPlatform());
}

TEST(Goldens, ADifferenceFailsAndSaysWhere) {
    if (std::getenv("TVOK_UPDATE_GOLDENS")) GTEST_SKIP() << "would write a wrong reference";
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    EXPECT_NONFATAL_FAILURE(ExpectTrace("windows/paint", {"GetClientRect   hWnd=1 -> something else"}),
                            "line 1");
    control.color = 0x336698;
    EXPECT_NONFATAL_FAILURE(ExpectPicture("windows/plain", desktop, control),
                            "in 5000 pixels, first at (0, 0)");
}

TEST(Goldens, APictureIsTheClientArea) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    ExpectPicture("windows/plain", desktop, control);
}

} // namespace
} // namespace tvok::test
