#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <utility>
#include <vector>

#include <SDL.h>

#include "tvok/host/desktop/displays/Display.h"
#include "tvok/host/desktop/displays/Scaling.h"
#include "tvok/host/desktop/displays/SdlKeys.h"
#include "tvok/host/desktop/displays/SdlWait.h"

namespace tvok::soft {

namespace {

using desktop::MouseButton;
using host::Handle;

struct SdlWindow {
    SDL_Window* window = nullptr;
    DisplayWindow asked; ///< What the desktop asked for last.
    tvok_Rect actual;    ///< Where the window is, in desktop pixels.
};

struct CursorShape {
    std::int16_t mousePointer;
    SDL_SystemCursor shape;
};

constexpr CursorShape CursorShapes[] = {
    {host::ccCross, SDL_SYSTEM_CURSOR_CROSSHAIR}, {host::ccIBeam, SDL_SYSTEM_CURSOR_IBEAM},
    {host::ccSize, SDL_SYSTEM_CURSOR_SIZEALL},    {host::ccSizeNESW, SDL_SYSTEM_CURSOR_SIZENESW},
    {host::ccSizeNS, SDL_SYSTEM_CURSOR_SIZENS},   {host::ccSizeNWSE, SDL_SYSTEM_CURSOR_SIZENWSE},
    {host::ccSizeWE, SDL_SYSTEM_CURSOR_SIZEWE},
};

constexpr std::int64_t LookEvery = 25; // milliseconds

std::int32_t WidthOf(const tvok_Rect& rect) {
    return rect.Right - rect.Left;
}
std::int32_t HeightOf(const tvok_Rect& rect) {
    return rect.bottom - rect.Top;
}

class SdlDisplay : public Display {
public:
    explicit SdlDisplay(float scale);
    ~SdlDisplay() override;
    SdlDisplay(const SdlDisplay&) = delete;
    SdlDisplay& operator=(const SdlDisplay&) = delete;

    bool IsHeadless() const override { return false; }
    bool DecoratesWindows() const override { return true; }
    tvok_Rect Screen() const override;
    float Scale() const override { return scale_; }
    void Scale(float scale, DisplayEvents& events) override;

    void Open(const DisplayWindow& window) override;
    void Change(const DisplayWindow& window) override;
    void Raise(Handle id) override;
    void Close(Handle id) override;
    void Present(Handle id, const Surface& surface, const Region& damage) override;
    void Wait(std::chrono::milliseconds timeout, DisplayEvents& events) override;
    void Wake() override;
    void Pointer(std::int16_t mousePointer) override;
    void Capture(Handle id) override;
    std::string ClipboardText() override;
    void ClipboardText(std::string_view utf8) override;
    std::size_t ClipboardCapacity() const override;

private:
    SdlWindow* Find(Handle id);
    SdlWindow* FindSdl(std::uint32_t sdlID);
    void PlaceWindow(SdlWindow& entry, const tvok_Rect& rect);
    std::vector<SDL_Rect> ScreenRects(const Region& damage, const SDL_Surface& screen) const;
    void Draw(const Surface& surface, const std::vector<SDL_Rect>& rects, SDL_Surface& target) const;
    void DrawConverted(const Surface& surface, const std::vector<SDL_Rect>& rects, SDL_Surface& screen) const;

    void Feed(const SDL_Event& event, DisplayEvents& events);
    void FeedWindow(const SDL_WindowEvent& event, DisplayEvents& events);
    void FeedMove(SdlWindow& entry, const SDL_WindowEvent& event, DisplayEvents& events) const;
    void FeedResize(SdlWindow& entry, const SDL_WindowEvent& event, DisplayEvents& events) const;
    void FeedPointer(std::uint32_t sdlID, std::int32_t x, std::int32_t y, DisplayEvents& events);
    void FeedButton(const SDL_MouseButtonEvent& event, DisplayEvents& events);
    void FeedWheel(const SDL_MouseWheelEvent& event, DisplayEvents& events) const;
    void FeedKey(const SDL_KeyboardEvent& event, DisplayEvents& events);
    void FeedText(const SDL_TextInputEvent& event, DisplayEvents& events) const;
    void FeedFocusLost(DisplayEvents& events);
    void FollowCapture() const;
    bool LooksElsewhere() const;
    void FeedPressElsewhere(DisplayEvents& events);

    float scale_;
    SdlWait wait_;
    SDL_Rect screen_{}; ///< Around all monitors, in screen pixels.
    std::map<Handle, SdlWindow> windows_;
    std::map<std::int16_t, SDL_Cursor*> cursors_;
    std::uint16_t modifiers_ = 0; ///< While the last key event was made.
    bool focusLost_ = false;      ///< Not told yet: another window of ours may get it.
    bool captured_ = false;
    bool pressedElsewhere_ = false; ///< While it was last looked for.
};

SdlDisplay::SdlDisplay(float scale) : scale_(scale) {
    for (int display = 0; display < SDL_GetNumVideoDisplays(); ++display) {
        SDL_Rect bounds;
        if (SDL_GetDisplayBounds(display, &bounds) == 0) SDL_UnionRect(&screen_, &bounds, &screen_);
    }
    SDL_StartTextInput();
}

SdlDisplay::~SdlDisplay() {
    for (auto& [id, entry] : windows_) SDL_DestroyWindow(entry.window);
    for (auto& [pointer, cursor] : cursors_) SDL_FreeCursor(cursor);
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
}

tvok_Rect SdlDisplay::Screen() const {
    return {0, 0, FromScreen(screen_.w, scale_), FromScreen(screen_.h, scale_)};
}

/// The sizes that windows have from now on are those that `FeedResize` expects.
void SdlDisplay::Scale(float scale, DisplayEvents& events) {
    const float before = std::exchange(scale_, scale);
    for (auto& [id, entry] : windows_) {
        tvok_Rect& actual = entry.actual;
        const std::int32_t width = WidthOf(actual);
        const std::int32_t height = HeightOf(actual);
        const std::int32_t left = FromScreen(ToScreen(actual.Left, before), scale);
        const std::int32_t top = FromScreen(ToScreen(actual.Top, before), scale);
        actual = {left, top, left + width, top + height};
        SDL_SetWindowSize(entry.window, std::max(ToScreen(width, scale), 1),
                          std::max(ToScreen(height, scale), 1));
        events.WindowMoved(id, left, top);
    }
}

SdlWindow* SdlDisplay::Find(Handle id) {
    const auto found = windows_.find(id);
    return found != windows_.end() ? &found->second : nullptr;
}

SdlWindow* SdlDisplay::FindSdl(std::uint32_t sdlID) {
    for (auto& [id, entry] : windows_)
        if (SDL_GetWindowID(entry.window) == sdlID) return &entry;
    return nullptr;
}

// Windows.

void SdlDisplay::Open(const DisplayWindow& window) {
    Close(window.id);
    constexpr std::uint32_t popupFlags =
        SDL_WINDOW_POPUP_MENU | SDL_WINDOW_BORDERLESS | SDL_WINDOW_ALWAYS_ON_TOP | SDL_WINDOW_SKIP_TASKBAR;
    const std::uint32_t formFlags = window.resizable ? SDL_WINDOW_RESIZABLE : 0;
    const tvok_Rect& rect = window.rect;
    SDL_Window* made =
        SDL_CreateWindow(window.caption.c_str(), screen_.x + ToScreen(rect.Left, scale_),
                         screen_.y + ToScreen(rect.Top, scale_), std::max(ToScreen(WidthOf(rect), scale_), 1),
                         std::max(ToScreen(HeightOf(rect), scale_), 1),
                         SDL_WINDOW_HIDDEN | (window.popup ? popupFlags : formFlags));
    if (made == nullptr) return;
    wait_.Watch(made);
    windows_[window.id] = {made, window, rect};
    if (window.visible) SDL_ShowWindow(made);
}

void SdlDisplay::Change(const DisplayWindow& window) {
    SdlWindow* entry = Find(window.id);
    if (entry == nullptr) return;
    const DisplayWindow before = std::exchange(entry->asked, window);
    if (window.caption != before.caption) SDL_SetWindowTitle(entry->window, window.caption.c_str());
    if (window.resizable != before.resizable)
        SDL_SetWindowResizable(entry->window, window.resizable ? SDL_TRUE : SDL_FALSE);
    // Compared with what was asked before too: while the user drags a frame, the desktop lags behind it and
    // must not pull it back.
    if (window.rect != before.rect && window.rect != entry->actual) PlaceWindow(*entry, window.rect);
    if (window.visible == before.visible) return;
    window.visible ? SDL_ShowWindow(entry->window) : SDL_HideWindow(entry->window);
}

void SdlDisplay::PlaceWindow(SdlWindow& entry, const tvok_Rect& rect) {
    const tvok_Rect before = std::exchange(entry.actual, rect);
    if (rect.Left != before.Left || rect.Top != before.Top)
        SDL_SetWindowPosition(entry.window, screen_.x + ToScreen(rect.Left, scale_),
                              screen_.y + ToScreen(rect.Top, scale_));
    if (WidthOf(rect) != WidthOf(before) || HeightOf(rect) != HeightOf(before))
        SDL_SetWindowSize(entry.window, std::max(ToScreen(WidthOf(rect), scale_), 1),
                          std::max(ToScreen(HeightOf(rect), scale_), 1));
}

void SdlDisplay::Raise(Handle id) {
    if (SdlWindow* entry = Find(id)) SDL_RaiseWindow(entry->window);
}

void SdlDisplay::Close(Handle id) {
    SdlWindow* entry = Find(id);
    if (entry == nullptr) return;
    SDL_DestroyWindow(entry->window);
    windows_.erase(id);
}

std::vector<SDL_Rect> SdlDisplay::ScreenRects(const Region& damage, const SDL_Surface& screen) const {
    std::vector<SDL_Rect> rects;
    for (const pixman_box32_t& box : damage.Boxes()) {
        const tvok_Rect rect = ScaledRect({box.x1, box.y1, box.x2, box.y2}, scale_, screen.w, screen.h);
        if (rect.Left < rect.Right && rect.Top < rect.bottom)
            rects.push_back({rect.Left, rect.Top, WidthOf(rect), HeightOf(rect)});
    }
    return rects;
}

void SdlDisplay::Draw(const Surface& surface, const std::vector<SDL_Rect>& rects, SDL_Surface& target) const {
    const auto pitch = static_cast<std::size_t>(target.pitch) / sizeof(Pixel);
    for (const SDL_Rect& rect : rects)
        ScalePixels(surface, scale_, {rect.x, rect.y, rect.x + rect.w, rect.y + rect.h},
                    static_cast<Pixel*>(target.pixels), pitch);
}

void SdlDisplay::DrawConverted(const Surface& surface, const std::vector<SDL_Rect>& rects,
                               SDL_Surface& screen) const {
    SDL_Surface* copy = SDL_CreateRGBSurfaceWithFormat(0, screen.w, screen.h, 32, SDL_PIXELFORMAT_RGB888);
    if (copy == nullptr) return;
    Draw(surface, rects, *copy);
    for (SDL_Rect rect : rects) {
        SDL_Rect place = rect;
        SDL_BlitSurface(copy, &rect, &screen, &place);
    }
    SDL_FreeSurface(copy);
}

void SdlDisplay::Present(Handle id, const Surface& surface, const Region& damage) {
    SdlWindow* entry = Find(id);
    SDL_Surface* screen = entry != nullptr ? SDL_GetWindowSurface(entry->window) : nullptr;
    if (screen == nullptr) return;
    const std::vector<SDL_Rect> rects = ScreenRects(damage, *screen);
    if (rects.empty()) return;
    const bool sameFormat = screen->format->format == SDL_PIXELFORMAT_RGB888;
    sameFormat ? Draw(surface, rects, *screen) : DrawConverted(surface, rects, *screen);
    SDL_UpdateWindowSurfaceRects(entry->window, rects.data(), static_cast<int>(rects.size()));
}

// Input.

void SdlDisplay::Wait(std::chrono::milliseconds timeout, DisplayEvents& events) {
    const std::int64_t longest = LooksElsewhere() ? LookEvery : 3'600'000;
    const auto limit = std::clamp<std::int64_t>(timeout.count(), 0, longest);
    SDL_Event event;
    bool more = wait_.Next(event, std::chrono::milliseconds(limit));
    for (; more; more = SDL_PollEvent(&event) != 0) Feed(event, events);
    FeedFocusLost(events);
    FeedPressElsewhere(events);
    if (wait_.TakeWoken()) events.Woken();
}

void SdlDisplay::Wake() {
    wait_.Wake();
}

void SdlDisplay::Feed(const SDL_Event& event, DisplayEvents& events) {
    switch (event.type) {
    case SDL_WINDOWEVENT: return FeedWindow(event.window, events);
    case SDL_MOUSEMOTION: return FeedPointer(event.motion.windowID, event.motion.x, event.motion.y, events);
    case SDL_MOUSEBUTTONDOWN: return FeedButton(event.button, events);
    case SDL_MOUSEBUTTONUP: FeedButton(event.button, events); return FollowCapture();
    case SDL_MOUSEWHEEL: return FeedWheel(event.wheel, events);
    case SDL_KEYDOWN:
    case SDL_KEYUP: return FeedKey(event.key, events);
    case SDL_TEXTINPUT: return FeedText(event.text, events);
    default: return;
    }
}

void SdlDisplay::FeedWindow(const SDL_WindowEvent& event, DisplayEvents& events) {
    SdlWindow* entry = FindSdl(event.windowID);
    if (entry == nullptr) return;
    const Handle id = entry->asked.id;
    switch (event.event) {
    case SDL_WINDOWEVENT_MOVED: return FeedMove(*entry, event, events);
    case SDL_WINDOWEVENT_SIZE_CHANGED: return FeedResize(*entry, event, events);
    case SDL_WINDOWEVENT_EXPOSED: return events.WindowExposed(id);
    case SDL_WINDOWEVENT_CLOSE: return events.CloseRequested(id);
    case SDL_WINDOWEVENT_LEAVE:
        if (!captured_) events.PointerLeft();
        return;
    case SDL_WINDOWEVENT_FOCUS_GAINED:
        focusLost_ = false;
        if (!entry->asked.popup) events.Activate(id);
        return;
    case SDL_WINDOWEVENT_FOCUS_LOST: focusLost_ = true; return;
    default: return;
    }
}

void SdlDisplay::FeedMove(SdlWindow& entry, const SDL_WindowEvent& event, DisplayEvents& events) const {
    tvok_Rect& actual = entry.actual;
    const std::int32_t x = event.data1 - screen_.x;
    const std::int32_t y = event.data2 - screen_.y;
    if (x == ToScreen(actual.Left, scale_) && y == ToScreen(actual.Top, scale_)) return;
    const std::int32_t left = FromScreen(x, scale_);
    const std::int32_t top = FromScreen(y, scale_);
    actual = {left, top, left + WidthOf(actual), top + HeightOf(actual)};
    events.WindowMoved(entry.asked.id, left, top);
}

void SdlDisplay::FeedResize(SdlWindow& entry, const SDL_WindowEvent& event, DisplayEvents& events) const {
    tvok_Rect& actual = entry.actual;
    if (event.data1 == ToScreen(WidthOf(actual), scale_) && event.data2 == ToScreen(HeightOf(actual), scale_))
        return;
    // Rounded up, so that the surface covers the window to its last pixel.
    const std::int32_t width = -FromScreen(-event.data1, scale_);
    const std::int32_t height = -FromScreen(-event.data2, scale_);
    actual.Right = actual.Left + width;
    actual.bottom = actual.Top + height;
    events.WindowResized(entry.asked.id, width, height);
}

void SdlDisplay::FeedPointer(std::uint32_t sdlID, std::int32_t x, std::int32_t y, DisplayEvents& events) {
    const SdlWindow* entry = FindSdl(sdlID);
    if (entry == nullptr) return;
    events.MouseMove(entry->actual.Left + FromScreen(x, scale_), entry->actual.Top + FromScreen(y, scale_));
}

void SdlDisplay::FeedButton(const SDL_MouseButtonEvent& event, DisplayEvents& events) {
    MouseButton button{};
    switch (event.button) {
    case SDL_BUTTON_LEFT: button = MouseButton::Left; break;
    case SDL_BUTTON_RIGHT: button = MouseButton::Right; break;
    case SDL_BUTTON_MIDDLE: button = MouseButton::Middle; break;
    default: return;
    }
    // A press may come before the focus that it brings. It has to find its form in front, as on any desktop.
    const SdlWindow* entry = FindSdl(event.windowID);
    if (event.state == SDL_PRESSED && entry != nullptr && !entry->asked.popup &&
        SDL_GetWindowFromID(event.windowID) != SDL_GetKeyboardFocus())
        events.Activate(entry->asked.id);
    FeedPointer(event.windowID, event.x, event.y, events);
    event.state == SDL_PRESSED ? events.MouseDown(button) : events.MouseUp(button);
}

void SdlDisplay::FeedWheel(const SDL_MouseWheelEvent& event, DisplayEvents& events) const {
    const std::int32_t sign = event.direction == SDL_MOUSEWHEEL_FLIPPED ? -1 : 1;
    if (event.y != 0) events.Wheel(sign * event.y);
    if (event.x != 0) events.Wheel(sign * event.x, true);
}

void SdlDisplay::FeedKey(const SDL_KeyboardEvent& event, DisplayEvents& events) {
    modifiers_ = event.keysym.mod;
    const std::int32_t key = VirtualKeyOf(event.keysym);
    if (key == 0) return;
    event.state == SDL_PRESSED ? events.KeyDown(key) : events.KeyUp(key);
}

void SdlDisplay::FeedText(const SDL_TextInputEvent& event, DisplayEvents& events) const {
    // A key with Control or Alt is a command. Where a layout makes characters with both, it is text.
    const bool control = (modifiers_ & KMOD_CTRL) != 0;
    const bool alt = (modifiers_ & KMOD_LALT) != 0;
    if (control == alt) events.Text(event.text);
}

void SdlDisplay::FeedFocusLost(DisplayEvents& events) {
    if (!focusLost_) return;
    focusLost_ = false;
    if (SDL_GetKeyboardFocus() == nullptr) events.Activate(0);
}

/// Whether a popup is open and the pointer is in no window of the program: SDL ends a capture as soon as the
/// pointer goes from one window to another, so that a press there is not told.
bool SdlDisplay::LooksElsewhere() const {
    const auto isOpen = [](const auto& entry) {
        return entry.second.asked.popup && entry.second.asked.visible;
    };
    return SDL_GetMouseFocus() == nullptr && std::ranges::any_of(windows_, isOpen);
}

/// A press on another program's window, on the desktop or on the frame of a window of ours closes a popup. It
/// is fed as one far off, so that its release does not come to a control of ours that lies behind.
void SdlDisplay::FeedPressElsewhere(DisplayEvents& events) {
    constexpr std::int32_t FarOff = -20'000;
    if (!LooksElsewhere()) {
        pressedElsewhere_ = false;
        return;
    }
    const std::uint32_t pressed =
        SDL_GetGlobalMouseState(nullptr, nullptr) & ~SDL_GetMouseState(nullptr, nullptr);
    const bool before = std::exchange(pressedElsewhere_, (pressed & SDL_BUTTON_LMASK) != 0);
    if (before || !pressedElsewhere_) return;
    events.MouseMove(FarOff, FarOff);
    events.MouseDown(MouseButton::Left);
    events.MouseUp(MouseButton::Left);
}

void SdlDisplay::Pointer(std::int16_t mousePointer) {
    const auto shape = std::ranges::find(CursorShapes, mousePointer, &CursorShape::mousePointer);
    const bool known = shape != std::end(CursorShapes);
    SDL_Cursor*& cursor = cursors_[known ? mousePointer : host::ccDefault];
    if (cursor == nullptr) cursor = SDL_CreateSystemCursor(known ? shape->shape : SDL_SYSTEM_CURSOR_ARROW);
    if (cursor != nullptr) SDL_SetCursor(cursor);
}

void SdlDisplay::Capture(Handle id) {
    captured_ = id != 0;
    FollowCapture();
}

// SDL captures only while a button is down, and then until all are up. Without a button its capture would
// bring a pointer that is elsewhere into a window of ours, which ends it again: a press in between comes
// without its release, so that the next press is no change to SDL and is left out. Presses elsewhere are
// looked for instead.
void SdlDisplay::FollowCapture() const {
    const bool pressed = SDL_GetMouseState(nullptr, nullptr) != 0;
    if (captured_ || !pressed) SDL_CaptureMouse(captured_ && pressed ? SDL_TRUE : SDL_FALSE);
}

std::string SdlDisplay::ClipboardText() {
    char* text = SDL_GetClipboardText();
    if (text == nullptr) return {};
    std::string result(text);
    SDL_free(text);
    return result;
}

void SdlDisplay::ClipboardText(std::string_view utf8) {
    SDL_SetClipboardText(std::string(utf8).c_str());
}

// SDL hands the text to the X server in one request. A larger one than the server takes would end the
// program.
std::size_t SdlDisplay::ClipboardCapacity() const {
    constexpr std::size_t cLargestRequest = 16'000'000;
    const char* const driver = SDL_GetCurrentVideoDriver();
    return driver != nullptr && std::string_view(driver) == "x11" ? cLargestRequest
                                                                  : Display::ClipboardCapacity();
}

bool IsSet(const char* variable) {
    const char* value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

void SetHints() {
    SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0"); // plain memory: some ten times faster to present
    SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1"); // the click that activates a window counts
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0");
    SDL_SetHint(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1");
    SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
}

} // namespace

std::unique_ptr<Display> MakeSdlDisplay(float scale, std::string& why) {
    if (!IsSet("DISPLAY") && !IsSet("WAYLAND_DISPLAY") && !IsSet("SDL_VIDEODRIVER")) {
        why = "no display: neither DISPLAY nor WAYLAND_DISPLAY is set";
        return nullptr;
    }
    SetHints();
    SDL_SetMainReady();
    if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0) {
        why = std::string("no display: ") + SDL_GetError();
        return nullptr;
    }
    return std::make_unique<SdlDisplay>(std::clamp(scale, 0.5f, 4.0f));
}

} // namespace tvok::soft
