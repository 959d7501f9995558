#include <stdexcept>
#include <thread>

#include <gmock/gmock.h>

#include "tests/host/desktop/EmbeddedDesktop.h"
#include "tvok/host/Services.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class WaitingProgram : public EmbeddedDesktop {
protected:
    WaitingProgram() : EmbeddedDesktop(Layout::OneSurface, true) {}
};

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

TEST_F(EmbeddedDesktop, DamagesTheWholeSurfaceWhenTheThemeChanges) {
    Settle();
    const std::uint32_t before = PixelOf(embedding.Pixels(), 100, 50);
    embedding.desktop().SetTheme(Theme::Dark());
    embedding.Turn();
    EXPECT_EQ(AreaOf(embedding.TakeDamage()), 200 * 100);
    EXPECT_NE(PixelOf(embedding.Pixels(), 100, 50), before);
}

// The clipboard.

TEST_F(EmbeddedDesktop, KeepsAClipboardOfItsOwnWhereTheProgramHasNone) {
    embedding.desktop().ClipboardText("kept");
    EXPECT_EQ(embedding.desktop().ClipboardText(), "kept");
}

/// With `readClipboard` and `writeClipboard` where they are asked for.
EmbeddingCalls ClipboardCalls(std::string& outer, bool reads, bool writes) {
    EmbeddingCalls calls;
    if (reads) calls.readClipboard = [&] { return outer; };
    if (writes) calls.writeClipboard = [&](std::string_view text) { outer = text; };
    return calls;
}

DesktopOptions PlainOptions() {
    DesktopOptions options;
    options.fontFile = cDejaVuSans;
    options.language = "en";
    return options;
}

TEST(Embedding, CopiesToAndPastesFromTheProgramsClipboard) {
    std::string outer = "Grüße";
    Embedding embedding(PlainOptions(), Layout::OneSurface, ClipboardCalls(outer, true, true));
    Form& form = embedding.desktop().AddForm("Form", 200, 100);
    embedding.Fill(form);
    auto& box = form.Add<TextBox>("box", {10, 10, 100, 20});
    embedding.Turn();
    embedding.MouseMove(20, 20);
    embedding.desktop().Input().MouseDown(MouseButton::Left);
    embedding.desktop().Input().MouseUp(MouseButton::Left);
    const auto withControl = [&](std::int32_t key) {
        embedding.desktop().Input().KeyDown(host::VK_CONTROL);
        embedding.desktop().Input().KeyDown(key);
        embedding.desktop().Input().KeyUp(key);
        embedding.desktop().Input().KeyUp(host::VK_CONTROL);
        embedding.Turn();
    };
    withControl('V');
    EXPECT_EQ(box.Text(), "Grüße");
    outer.clear();
    withControl('A');
    withControl('X');
    EXPECT_EQ(outer, "Grüße");
    EXPECT_EQ(box.Text(), "");
}

TEST(Embedding, UsesTheProgramsClipboardOnlyWhereItBothReadsAndWrites) {
    for (const bool reads : {false, true}) {
        std::string outer = "outer";
        Embedding embedding(PlainOptions(), Layout::OneSurface, ClipboardCalls(outer, reads, !reads));
        embedding.desktop().ClipboardText("inner");
        EXPECT_EQ(outer, "outer");
        EXPECT_EQ(embedding.desktop().ClipboardText(), "inner");
    }
}

// Errors.

TEST_F(EmbeddedDesktop, GoesOnAfterAClickWhoseHandlerThrew) {
    auto& control = form.Add<Recorder>("control", {0, 0, 200, 100});
    Settle();
    control.onEvent = [&](const std::string& event) {
        if (event.starts_with("MouseDown")) throw std::runtime_error("handler");
    };
    EXPECT_THROW(Click(5, 5), std::runtime_error);
    control.onEvent = nullptr;
    control.TakeLog();
    embedding.Turn();
    EXPECT_THAT(control.TakeLog(), testing::Contains("MouseUp 1 0 75 75")) << "the rest of the input";
}

TEST_F(WaitingProgram, LetsThroughWhatTheOuterLoopThrows) {
    Settle();
    onWait = [] { throw std::runtime_error("loop"); };
    EXPECT_THROW(embedding.desktop().ProcessEvents(1h), std::runtime_error);
    onWait = [] {};
    EXPECT_TRUE(embedding.Turn());
}

TEST_F(EmbeddedDesktop, IgnoresAWindowThatNamesNothing) {
    Settle();
    const Handle nothing = form.hWnd() + 1000;
    embedding.Resize(50, 50, nothing);
    embedding.Moved(5, 5, nothing);
    embedding.MouseMove(5, 5, nothing);
    embedding.FocusIn(nothing);
    embedding.CloseRequest(nothing);
    EXPECT_TRUE(embedding.Turn());
    EXPECT_THAT(embedding.TakeDamage(nothing), IsEmpty());
    EXPECT_EQ(embedding.Pixels(nothing).data, nullptr);
    EXPECT_EQ(form.Width(), 200);
}

} // namespace
} // namespace tvok::test
