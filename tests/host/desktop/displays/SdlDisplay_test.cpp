#ifdef TVOK_SDL

#include <chrono>
#include <cstdlib>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include <SDL.h>
#include <gmock/gmock.h>

#include "tvok/host/desktop/displays/Display.h"
#include "tvok/host/desktop/displays/SdlKeys.h"

namespace tvok::soft {
namespace {

using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// What the display tells, as lines.
class EventLog : public DisplayEvents {
public:
    void WindowMoved(host::Handle id, std::int32_t x, std::int32_t y) override { Add("moved", {id, x, y}); }
    void WindowResized(host::Handle id, std::int32_t width, std::int32_t height) override {
        Add("resized", {id, width, height});
    }
    void WindowExposed(host::Handle id) override { Add("exposed", {id}); }
    void CloseRequested(host::Handle id) override { Add("close", {id}); }
    void PointerLeft() override { Add("left", {}); }
    void Woken() override { Add("woken", {}); }
    void MouseMove(std::int32_t x, std::int32_t y) override { Add("move", {x, y}); }
    void MouseDown(desktop::MouseButton button) override { Add("down", {static_cast<int>(button)}); }
    void MouseUp(desktop::MouseButton button) override { Add("up", {static_cast<int>(button)}); }
    void Wheel(std::int32_t notches, bool horizontal) override { Add("wheel", {notches, horizontal}); }
    void KeyDown(std::int32_t key) override { Add("key", {key}); }
    void KeyUp(std::int32_t key) override { Add("keyup", {key}); }
    void Text(std::string_view text) override { lines.push_back("text " + std::string(text)); }
    void Activate(host::Handle form) override { Add("activate", {form}); }
    host::Point Pointer() const override { return {}; }

    std::vector<std::string> lines;

private:
    void Add(std::string line, std::initializer_list<int> numbers) {
        for (const int number : numbers) line += ' ' + std::to_string(number);
        lines.push_back(line);
    }
};

/// Sets an environment variable, and sets it back.
class Variable {
public:
    Variable(const char* name, const char* value) : name_(name) {
        if (const char* before = std::getenv(name)) before_ = before, had_ = true;
        value != nullptr ? setenv(name, value, 1) : unsetenv(name);
    }
    ~Variable() { had_ ? setenv(name_, before_.c_str(), 1) : unsetenv(name_); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    const char* name_;
    std::string before_;
    bool had_ = false;
};

/// SDL on its driver without a screen, one form of 200 x 100 at (50, 40).
class SdlDisplayTest : public testing::Test {
protected:
    SdlDisplayTest() { Start(1); }

    void Start(float scale) {
        display.reset();
        display = MakeSdlDisplay(scale, why);
        ASSERT_NE(display, nullptr) << why;
        display->Open(form);
        display->Wait(0ms, log);
        log.lines.clear();
    }
    std::uint32_t SdlId() const {
        for (std::uint32_t id = 1; id < 200; ++id)
            if (SDL_GetWindowFromID(id) != nullptr) return id;
        return 0;
    }
    SDL_Window* Window() const { return SDL_GetWindowFromID(SdlId()); }
    Pixel ScreenPixel(int x, int y) const {
        const SDL_Surface* screen = SDL_GetWindowSurface(Window());
        return static_cast<const Pixel*>(screen->pixels)[y * screen->pitch / 4 + x] & 0xFFFFFFu;
    }
    void Push(SDL_Event event) { SDL_PushEvent(&event); }
    void PushKey(std::uint32_t type, SDL_Scancode scancode, SDL_Keycode sym, std::uint16_t mod = 0) {
        SDL_Event event{};
        event.key.type = type;
        event.key.state = type == SDL_KEYDOWN ? SDL_PRESSED : SDL_RELEASED;
        event.key.keysym = {scancode, sym, mod, 0};
        Push(event);
    }
    void PushText(const char* text) {
        SDL_Event event{};
        event.text.type = SDL_TEXTINPUT;
        SDL_strlcpy(event.text.text, text, sizeof(event.text.text));
        Push(event);
    }
    void PushWindow(std::uint8_t kind, std::int32_t a = 0, std::int32_t b = 0) {
        SDL_Event event{};
        event.window = {SDL_WINDOWEVENT, 0, SdlId(), kind, 0, 0, 0, a, b};
        Push(event);
    }
    std::vector<std::string> Fed() {
        log.lines.clear();
        display->Wait(0ms, log);
        return log.lines;
    }

    Variable driver{"SDL_VIDEODRIVER", "dummy"};
    std::string why;
    EventLog log;
    DisplayWindow form{7, {50, 40, 250, 140}, "form", false, true, true};
    std::unique_ptr<Display> display;
};

TEST(SdlDisplay, WithoutADisplayThereIsNoneAndItSaysWhy) {
    const Variable noDriver("SDL_VIDEODRIVER", nullptr);
    const Variable noX("DISPLAY", nullptr);
    const Variable noWayland("WAYLAND_DISPLAY", "");
    std::string why;
    EXPECT_EQ(MakeSdlDisplay(1, why), nullptr);
    EXPECT_EQ(why, "no display: neither DISPLAY nor WAYLAND_DISPLAY is set");
}

TEST(SdlDisplay, ADisplayThatDoesNotAnswerIsNoneAndItSaysWhy) {
    const Variable driver("SDL_VIDEODRIVER", "x11");
    const Variable nobody("DISPLAY", ":9876");
    std::string why;
    EXPECT_EQ(MakeSdlDisplay(1, why), nullptr);
    EXPECT_THAT(why, testing::StartsWith("no display: "));
}

TEST_F(SdlDisplayTest, ShowsDamagedPixelsAndNoOthers) {
    Surface surface(200, 100);
    for (std::int32_t y = 0; y < 100; ++y)
        for (std::int32_t x = 0; x < 200; ++x) surface.Row(y)[x] = 0xC08040u;
    display->Present(7, surface, Region({10, 10, 20, 20}));
    EXPECT_EQ(ScreenPixel(10, 10), 0xC08040u);
    EXPECT_EQ(ScreenPixel(19, 19), 0xC08040u);
    EXPECT_NE(ScreenPixel(20, 20), 0xC08040u);
    EXPECT_NE(ScreenPixel(9, 10), 0xC08040u);
}

TEST_F(SdlDisplayTest, AScaledWindowIsLargerOnTheScreenAndItsPointerIsMappedBack) {
    Start(2);
    int width = 0;
    int height = 0;
    SDL_GetWindowSize(Window(), &width, &height);
    EXPECT_EQ(width, 400);
    EXPECT_EQ(height, 200);
    Surface surface(200, 100);
    surface.Row(3)[5] = 0xFFFFFFu;
    display->Present(7, surface, Region({0, 0, 200, 100}));
    EXPECT_EQ(ScreenPixel(10, 6), 0xFFFFFFu);
    EXPECT_EQ(ScreenPixel(11, 7), 0xFFFFFFu);
    EXPECT_EQ(ScreenPixel(12, 7), 0u);
    SDL_Event event{};
    event.motion.type = SDL_MOUSEMOTION;
    event.motion.windowID = SdlId();
    event.motion.x = 21;
    event.motion.y = -1;
    Push(event);
    EXPECT_THAT(Fed(), ElementsAre("move 60 39"));
}

TEST_F(SdlDisplayTest, AWindowTakesAnotherScaleAndKeepsItsCornerOnTheScreen) {
    int before[2];
    SDL_GetWindowPosition(Window(), &before[0], &before[1]);
    log.lines.clear();
    display->Scale(2, log);
    EXPECT_EQ(display->Scale(), 2);
    EXPECT_THAT(log.lines, ElementsAre("moved 7 25 20"));
    int now[2];
    SDL_GetWindowSize(Window(), &now[0], &now[1]);
    EXPECT_THAT(now, ElementsAre(400, 200));
    SDL_GetWindowPosition(Window(), &now[0], &now[1]);
    EXPECT_THAT(now, ElementsAre(before[0], before[1]));
    EXPECT_THAT(Fed(), testing::Not(Contains(testing::HasSubstr("resized"))))
        << "it has the size it is to have";

    form.rect = {25, 20, 225, 120};
    display->Change(form);
    SDL_GetWindowPosition(Window(), &now[0], &now[1]);
    EXPECT_THAT(now, ElementsAre(before[0], before[1])) << "what it was told back moves nothing";
    Surface surface(200, 100);
    surface.Row(3)[5] = 0xFFFFFFu;
    display->Present(7, surface, Region({0, 0, 200, 100}));
    EXPECT_EQ(ScreenPixel(11, 7), 0xFFFFFFu);

    display->Scale(0.5F, log);
    SDL_GetWindowSize(Window(), &now[0], &now[1]);
    EXPECT_THAT(now, ElementsAre(100, 50));
}

TEST_F(SdlDisplayTest, APressActivatesAWindowWithoutTheFocusAndComesAfterTheMoveToItsPlaceInScreenPixels) {
    SDL_Event event{};
    event.button.type = SDL_MOUSEBUTTONDOWN;
    event.button.windowID = SdlId();
    event.button.button = SDL_BUTTON_RIGHT;
    event.button.state = SDL_PRESSED;
    event.button.x = 3;
    event.button.y = 4;
    Push(event);
    event.button.type = SDL_MOUSEBUTTONUP;
    event.button.state = SDL_RELEASED;
    Push(event);
    EXPECT_THAT(Fed(), ElementsAre("activate 7", "move 53 44", "down 2", "move 53 44", "up 2"));
}

TEST_F(SdlDisplayTest, TheWheelTurnsAwayFromTheUserAsPositive) {
    SDL_Event event{};
    event.wheel.type = SDL_MOUSEWHEEL;
    event.wheel.y = 2;
    event.wheel.x = -1;
    Push(event);
    event.wheel.direction = SDL_MOUSEWHEEL_FLIPPED;
    Push(event);
    EXPECT_THAT(Fed(), ElementsAre("wheel 2 0", "wheel -1 1", "wheel -2 0", "wheel 1 1"));
}

TEST_F(SdlDisplayTest, KeysAndTheirTextComeInOrder) {
    PushKey(SDL_KEYDOWN, SDL_SCANCODE_A, SDLK_a);
    PushText("\xC3\xA4");
    PushKey(SDL_KEYUP, SDL_SCANCODE_A, SDLK_a);
    EXPECT_THAT(Fed(), ElementsAre("key 65", "text \xC3\xA4", "keyup 65"));
}

TEST_F(SdlDisplayTest, AKeyWithControlOrAltGivesNoText) {
    PushKey(SDL_KEYDOWN, SDL_SCANCODE_A, SDLK_a, KMOD_LCTRL);
    PushText("a");
    PushKey(SDL_KEYDOWN, SDL_SCANCODE_B, SDLK_b, KMOD_LALT);
    PushText("b");
    EXPECT_THAT(Fed(), ElementsAre("key 65", "key 66"));
}

TEST_F(SdlDisplayTest, AMoveOrASizeIsToldOnlyWhereItIsNew) {
    PushWindow(SDL_WINDOWEVENT_MOVED, 50, 40);
    PushWindow(SDL_WINDOWEVENT_SIZE_CHANGED, 200, 100);
    EXPECT_THAT(Fed(), IsEmpty());
    PushWindow(SDL_WINDOWEVENT_MOVED, 60, 30);
    PushWindow(SDL_WINDOWEVENT_SIZE_CHANGED, 300, 50);
    EXPECT_THAT(Fed(), ElementsAre("moved 7 60 30", "resized 7 300 50"));
}

TEST_F(SdlDisplayTest, TheDesktopsOldPlaceDoesNotPullBackAWindowThatTheUserMoved) {
    PushWindow(SDL_WINDOWEVENT_MOVED, 60, 30);
    Fed();
    SDL_SetWindowPosition(Window(), 60, 30);
    form.caption = "new caption";
    display->Change(form);
    int x = 0;
    int y = 0;
    SDL_GetWindowPosition(Window(), &x, &y);
    EXPECT_EQ(x, 60);
    EXPECT_STREQ(SDL_GetWindowTitle(Window()), "new caption");
    form.rect = {10, 20, 210, 120};
    display->Change(form);
    SDL_GetWindowPosition(Window(), &x, &y);
    EXPECT_EQ(x, 10);
    EXPECT_EQ(y, 20);
}

TEST_F(SdlDisplayTest, WindowEventsAreToldWithTheDesktopsHandle) {
    PushWindow(SDL_WINDOWEVENT_EXPOSED);
    PushWindow(SDL_WINDOWEVENT_CLOSE);
    PushWindow(SDL_WINDOWEVENT_LEAVE);
    EXPECT_THAT(Fed(), ElementsAre("exposed 7", "close 7", "left"));
}

TEST_F(SdlDisplayTest, TheFocusGoesFromFormToFormWithoutAnotherProgramBetween) {
    PushWindow(SDL_WINDOWEVENT_FOCUS_LOST);
    PushWindow(SDL_WINDOWEVENT_FOCUS_GAINED);
    EXPECT_THAT(Fed(), ElementsAre("activate 7"));
}

TEST_F(SdlDisplayTest, APopupIsBorderlessAndStaysOutOfTheTaskBar) {
    display->Close(7);
    display->Open({8, {0, 0, 30, 30}, "", true, false, false});
    const std::uint32_t flags = SDL_GetWindowFlags(Window());
    EXPECT_NE(flags & SDL_WINDOW_POPUP_MENU, 0u);
    EXPECT_NE(flags & SDL_WINDOW_BORDERLESS, 0u);
    EXPECT_NE(flags & SDL_WINDOW_SKIP_TASKBAR, 0u);
    PushWindow(SDL_WINDOWEVENT_FOCUS_GAINED);
    EXPECT_THAT(Fed(), testing::Not(Contains("activate 8")));
}

TEST_F(SdlDisplayTest, WakeEndsAWaitFromAnotherThread) {
    std::thread other([this] { display->Wake(); });
    while (log.lines.empty()) display->Wait(10s, log);
    other.join();
    EXPECT_THAT(log.lines, Contains("woken"));
}

TEST_F(SdlDisplayTest, TheClipboardKeepsText) {
    display->ClipboardText("gr\xC3\xBC\xC3\x9F dich");
    EXPECT_EQ(display->ClipboardText(), "gr\xC3\xBC\xC3\x9F dich");
}

TEST_F(SdlDisplayTest, AHandleThatNamesNothingDoesNothing) {
    display->Change({99, {0, 0, 5, 5}, "", false, true, true});
    display->Raise(99);
    display->Close(99);
    display->Present(99, Surface(5, 5), Region({0, 0, 5, 5}));
    EXPECT_NE(Window(), nullptr);
}

TEST(SdlKeys, LettersAndDigitsFollowTheLayoutAndElseThePlace) {
    EXPECT_EQ(VirtualKeyOf({SDL_SCANCODE_Q, SDLK_a, 0, 0}), 'A');
    EXPECT_EQ(VirtualKeyOf({SDL_SCANCODE_7, SDLK_7, 0, 0}), '7');
    EXPECT_EQ(VirtualKeyOf({SDL_SCANCODE_A, 0x444, 0, 0}), 'A');
    EXPECT_EQ(VirtualKeyOf({SDL_SCANCODE_0, 0xE0, 0, 0}), '0');
    EXPECT_EQ(VirtualKeyOf({SDL_SCANCODE_9, 0xE7, 0, 0}), '9');
}

TEST(SdlKeys, NamedKeysHaveTheirCodes) {
    const std::map<SDL_Scancode, std::int32_t> keys{{SDL_SCANCODE_LEFT, host::VK_LEFT},
                                                    {SDL_SCANCODE_UP, host::VK_UP},
                                                    {SDL_SCANCODE_RIGHT, host::VK_RIGHT},
                                                    {SDL_SCANCODE_DOWN, host::VK_DOWN},
                                                    {SDL_SCANCODE_PAGEUP, host::VK_PRIOR},
                                                    {SDL_SCANCODE_PAGEDOWN, host::VK_NEXT},
                                                    {SDL_SCANCODE_HOME, host::VK_HOME},
                                                    {SDL_SCANCODE_END, host::VK_END},
                                                    {SDL_SCANCODE_RETURN, host::VK_RETURN},
                                                    {SDL_SCANCODE_KP_ENTER, host::VK_RETURN},
                                                    {SDL_SCANCODE_F1, host::VK_F1},
                                                    {SDL_SCANCODE_F12, host::VK_F12},
                                                    {SDL_SCANCODE_F13, 124},
                                                    {SDL_SCANCODE_RSHIFT, host::VK_SHIFT},
                                                    {SDL_SCANCODE_LCTRL, host::VK_CONTROL},
                                                    {SDL_SCANCODE_LALT, host::VK_MENU},
                                                    {SDL_SCANCODE_AC_BACK, 0}};
    for (const auto& [scancode, virtualKey] : keys)
        EXPECT_EQ(VirtualKeyOf({scancode, SDL_SCANCODE_TO_KEYCODE(scancode), 0, 0}), virtualKey) << scancode;
}

TEST(SdlKeys, KeypadKeysAreDigitsWithTheNumberLockAndMoveWithoutIt) {
    EXPECT_EQ(VirtualKeyOf({SDL_SCANCODE_KP_7, SDLK_KP_7, KMOD_NUM, 0}), 103);
    EXPECT_EQ(VirtualKeyOf({SDL_SCANCODE_KP_7, SDLK_KP_7, 0, 0}), host::VK_HOME);
    EXPECT_EQ(VirtualKeyOf({SDL_SCANCODE_KP_PERIOD, SDLK_KP_PERIOD, 0, 0}), host::VK_DELETE);
}

} // namespace
} // namespace tvok::soft

#endif
