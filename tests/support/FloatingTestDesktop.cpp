#include "tests/support/FloatingTestDesktop.h"

#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok::test {

host::Handle FloatingDesktop::Floating() const {
    auto& world = const_cast<FloatingDesktop*>(this)->desktop.desktop().world();
    for (const soft::Window* window : world.windows.tops())
        if (window->top()->popup && window->IsVisible()) return window->handle();
    return 0;
}

tvok_Rect FloatingDesktop::WindowRect() const {
    tvok_Rect rect;
    host::platform().GetWindowRect(Floating(), rect);
    return rect;
}

tvok_Rect FloatingDesktop::ClientRect() const {
    tvok_Rect rect;
    host::platform().GetClientRect(Floating(), rect);
    return rect;
}

std::uint32_t FloatingDesktop::PixelAt(std::int32_t x, std::int32_t y) const {
    auto& world = const_cast<FloatingDesktop*>(this)->desktop.desktop().world();
    const soft::Window* window = world.windows.Find(Floating());
    return window->top()->surface.Row(window->clientArea().Top + y)[window->clientArea().Left + x];
}

std::vector<std::uint32_t> FloatingDesktop::Pixels() const {
    std::vector<std::uint32_t> pixels;
    const tvok_Rect client = ClientRect();
    for (std::int32_t y = 0; y < client.bottom; ++y)
        for (std::int32_t x = 0; x < client.Right; ++x) pixels.push_back(PixelAt(x, y));
    return pixels;
}

void FloatingDesktop::MoveTo(std::int32_t x, std::int32_t y) {
    host::Point point{x, y};
    host::platform().ClientToScreen(Floating(), point);
    MoveToScreen(point.x, point.y);
}

void FloatingDesktop::MoveToScreen(std::int32_t x, std::int32_t y) {
    desktop.desktop().Input().MouseMove(x, y);
    desktop.Pump();
}

void FloatingDesktop::Down() {
    desktop.clock().now += std::chrono::seconds(1);
    desktop.desktop().Input().MouseDown(desktop::MouseButton::Left);
    desktop.Pump();
}

void FloatingDesktop::Press(std::int32_t x, std::int32_t y) {
    MoveTo(x, y);
    Down();
}

void FloatingDesktop::Click(std::int32_t x, std::int32_t y) {
    Press(x, y);
    Up();
}

} // namespace tvok::test
