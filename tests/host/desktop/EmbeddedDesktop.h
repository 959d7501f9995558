/// An outer program around an embedded desktop, which notes what it is asked.
#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "tests/host/desktop/windows/Recorder.h"
#include "tests/support/TestDesktop.h"
#include "tvok/host/desktop/Embedding.h"

namespace tvok::test {

using namespace std::chrono_literals;
using desktop::MouseButton;
using host::Handle;
using Layout = Embedding::Layout;

inline constexpr std::uint32_t cRecorderPixel = 0x996633; // its 0x336699 is 0x00BBGGRR

inline std::int32_t AreaOf(const std::vector<tvok_Rect>& rects) {
    std::int32_t area = 0;
    for (const tvok_Rect& rect : rects) area += (rect.Right - rect.Left) * (rect.bottom - rect.Top);
    return area;
}

inline std::uint32_t PixelOf(const EmbeddedPixels& pixels, std::int32_t x, std::int32_t y) {
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
        calls.raised = [this](Handle id) {
            log.push_back("raised " + (windows[id].popup ? "popup" : windows[id].caption));
        };
        calls.closed = [this](Handle id) { log.push_back("closed " + windows[id].caption); };
        return calls;
    }
    std::vector<std::string> TakeLog() { return std::exchange(log, {}); }
    /// Turns until nothing is due, and forgets what changed and what was told.
    void Settle() {
        while (embedding.NextTurn() == 0ms && embedding.Turn()) embedding.TakeDamage();
        TakeLog();
    }
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

/// A square torn out of its component, at a place of the screen.
inline std::unique_ptr<host::PictureWindow> OpenPopup(host::Component& owner, std::int32_t x,
                                                      std::int32_t y) {
    auto picture = owner.CreatePicture();
    host::platform().SetParent(picture->hWnd(), 0);
    host::platform().SetWindowPos(picture->hWnd(), host::HWND_TOPMOST, x, y, 30, 20, 0);
    picture->Visible(true);
    return picture;
}

} // namespace tvok::test
