#include "tests/support/TestDesktop.h"

#include <cctype>
#include <stdexcept>

#include "tvok/host/RecordingPlatform.h"
#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/World.h"
#include "tvok/records/text.h"

namespace tvok::test {

namespace {

using desktop::MouseButton;

constexpr std::int32_t kPacketKey = 0xE7; ///< Stands for a key that has no code of its own.

/// Takes the focus and does nothing with it.
class Elsewhere : public host::Control {
public:
    void Initialize(host::Component&) override {}
};

std::int32_t KeyOf(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return std::isalnum(byte) || byte == ' ' ? std::toupper(byte) : kPacketKey;
}

soft::Window& Inside(const tvok::Form& form, const host::Control& control) {
    return form.window().EntryOf(control).component->window();
}

/// Of a rectangle on the window's surface, as far as it is on it.
std::vector<std::uint32_t> PixelsOf(const soft::Window& window, const tvok_Rect& rect) {
    const soft::Surface& surface = window.top()->surface;
    const tvok_Rect area = soft::Intersection(rect, soft::BoundsOf(surface));
    std::vector<std::uint32_t> pixels;
    for (std::int32_t y = area.Top; y < area.bottom; ++y)
        pixels.insert(pixels.end(), surface.Row(y) + area.Left, surface.Row(y) + area.Right);
    return pixels;
}

} // namespace

TestDesktop::TestDesktop(const Theme& theme, const char* fontFile) {
    DesktopOptions options;
    options.display = DesktopOptions::Display::Headless;
    options.theme = theme;
    options.fontFile = fontFile;
    options.language = "en";
    options.clock = &clock_;
    desktop_ = std::make_unique<tvok::Desktop>(options);
    form_ = &desktop_->AddForm("Test", 640, 480);
    form_->Move(100, 100);
    Pump();
}

TestDesktop::~TestDesktop() = default;

host::Handle TestDesktop::WindowOf(const host::Control& control) const {
    return form_->ComponentOf(control).hWnd();
}

void TestDesktop::MoveTo(const host::Control& control, std::int32_t x, std::int32_t y) {
    host::Point point{x, y};
    desktop_->OwnPlatform().ClientToScreen(WindowOf(control), point);
    desktop_->Input().MouseMove(point.x, point.y);
    Pump();
}

void TestDesktop::Press(const host::Control& control, std::int32_t x, std::int32_t y) {
    MoveTo(control, x, y);
    desktop_->Input().MouseDown(MouseButton::Left);
    Pump();
}

void TestDesktop::Release() {
    desktop_->Input().MouseUp(MouseButton::Left);
    Pump();
}

void TestDesktop::Click(const host::Control& control, std::int32_t x, std::int32_t y) {
    clock_.now += std::chrono::seconds(1); // so that two clicks are no double click
    Press(control, x, y);
    Release();
}

void TestDesktop::DoubleClick(const host::Control& control, std::int32_t x, std::int32_t y) {
    Click(control, x, y);
    Press(control, x, y);
    Release();
}

void TestDesktop::RightClick(const host::Control& control, std::int32_t x, std::int32_t y) {
    MoveTo(control, x, y);
    desktop_->Input().MouseDown(MouseButton::Right);
    Pump();
    desktop_->Input().MouseUp(MouseButton::Right);
    Pump();
}

void TestDesktop::Drag(const host::Control& control, host::Point from, host::Point to, std::int32_t steps) {
    clock_.now += std::chrono::seconds(1);
    Press(control, from.x, from.y);
    for (std::int32_t step = 1; step <= steps; ++step)
        MoveTo(control, from.x + (to.x - from.x) * step / steps, from.y + (to.y - from.y) * step / steps);
    Release();
}

void TestDesktop::Wheel(std::int32_t notches) {
    desktop_->Input().Wheel(notches);
    Pump();
}

void TestDesktop::Key(std::int32_t virtualKey) {
    const bool letter = virtualKey >= 'A' && virtualKey <= 'Z';
    const bool shift = desktop_->OwnPlatform().GetAsyncKeyState(host::VK_SHIFT) != 0;
    const bool control = desktop_->OwnPlatform().GetAsyncKeyState(host::VK_CONTROL) != 0;
    desktop_->Input().KeyDown(virtualKey);
    if (!control && (letter || virtualKey == ' ' || (virtualKey >= '0' && virtualKey <= '9'))) {
        const auto character = static_cast<char>(letter && !shift ? virtualKey + ('a' - 'A') : virtualKey);
        desktop_->Input().Text(std::string_view(&character, 1));
    }
    desktop_->Input().KeyUp(virtualKey);
    Pump();
}

void TestDesktop::HoldKey(std::int32_t virtualKey) {
    desktop_->Input().KeyDown(virtualKey);
    Pump();
}

void TestDesktop::LetGoKey(std::int32_t virtualKey) {
    desktop_->Input().KeyUp(virtualKey);
    Pump();
}

void TestDesktop::Type(std::string_view text) {
    for (std::size_t place = 0; place < text.size();) {
        const std::size_t start = place;
        NextCharacter(text, place);
        const std::int32_t key = KeyOf(text[start]);
        desktop_->Input().KeyDown(key);
        desktop_->Input().Text(text.substr(start, place - start));
        desktop_->Input().KeyUp(key);
        Pump();
    }
}

void TestDesktop::Focus(const host::Control& control) {
    desktop_->OwnPlatform().SetFocus(WindowOf(control));
    Pump();
}

void TestDesktop::FocusAway() {
    if (!elsewhere_) elsewhere_ = &form_->Add<Elsewhere>("elsewhere", {632, 472, 8, 8});
    Focus(*elsewhere_);
}

void TestDesktop::Pass(std::chrono::milliseconds time) {
    clock_.now += time;
    Pump();
}

void TestDesktop::Pump() {
    desktop_->ProcessEvents(std::chrono::milliseconds{0});
}

std::uint32_t TestDesktop::PixelAt(const host::Control& control, std::int32_t x, std::int32_t y) {
    desktop_->world().Present();
    const soft::Window& window = Inside(*form_, control);
    const tvok_Rect& area = window.clientArea();
    const host::Point point{area.Left + x, area.Top + y};
    if (x < 0 || y < 0 || !soft::Contains(area, point))
        throw std::out_of_range("the pixel is not on the control");
    return window.top()->surface.Row(point.y)[point.x];
}

std::vector<std::uint32_t> TestDesktop::Pixels(const host::Control& control) {
    desktop_->world().Present();
    const soft::Window& window = Inside(*form_, control);
    return PixelsOf(window, window.clientArea());
}

std::vector<std::uint32_t> TestDesktop::PixelsWithFrame(const host::Control& control) {
    desktop_->world().Present();
    const soft::Window& window = Inside(*form_, control);
    return PixelsOf(window, window.outer());
}

std::vector<std::string> TestDesktop::Trace(const std::function<void()>& action) {
    std::vector<std::string> lines;
    host::RecordingPlatform recorder(desktop_->OwnPlatform(),
                                     [&](std::string_view line) { lines.emplace_back(line); });
    struct Restore {
        tvok::Desktop& desktop;
        ~Restore() { desktop.InterposePlatform(nullptr); }
    } restore{*desktop_};
    desktop_->InterposePlatform(&recorder);
    action();
    return lines;
}

} // namespace tvok::test
