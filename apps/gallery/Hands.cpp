#include "apps/gallery/Hands.h"

namespace gallery {

using tvok::desktop::MouseButton;

void Hands::MoveTo(const tvok::host::Control& control, tvok::host::Point point) {
    tvok::host::platform().ClientToScreen(form_.ComponentOf(control).hWnd(), point);
    desktop_.Input().MouseMove(point.x, point.y);
}

void Hands::Click(const tvok::host::Control& control, tvok::host::Point point, std::int32_t heldKey) {
    tvok::desktop::Input& input = desktop_.Input();
    if (heldKey != 0) input.KeyDown(heldKey);
    MoveTo(control, point);
    input.MouseDown(MouseButton::Left);
    input.MouseUp(MouseButton::Left);
    if (heldKey != 0) input.KeyUp(heldKey);
}

void Hands::Drag(const tvok::host::Control& control, tvok::host::Point from, tvok::host::Point to) {
    MoveTo(control, from);
    desktop_.Input().MouseDown(MouseButton::Left);
    MoveTo(control, to);
    desktop_.Input().MouseUp(MouseButton::Left);
}

void Hands::Wheel(const tvok::host::Control& control, std::int32_t notches) {
    MoveTo(control, {40, 40});
    desktop_.Input().Wheel(notches);
}

void Hands::Press(std::int32_t key) {
    desktop_.Input().KeyDown(key);
    desktop_.Input().KeyUp(key);
}

void Hands::Type(std::string_view ascii) {
    for (const char letter : ascii) {
        constexpr std::int32_t AnyKey = 0xE7;
        desktop_.Input().KeyDown(AnyKey);
        desktop_.Input().Text(std::string_view(&letter, 1));
        desktop_.Input().KeyUp(AnyKey);
    }
}

} // namespace gallery
