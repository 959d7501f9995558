// A window in the colour of one's choice: press an arrow, drag into the colours, and let go. The window
// follows what is under the pointer; Esc takes it back. With "--headless FILE" a user of its own drags into
// the grid, and the picture shows it while it is open.

#include <chrono>
#include <cstdio>
#include <string_view>

#include <tvok/tvok.h>

int main(int argc, char** argv) {
    const bool headless = argc == 3 && std::string_view(argv[1]) == "--headless";
    tvok::DesktopOptions options;
    if (headless) options.display = tvok::DesktopOptions::Display::Headless;
    options.screenWidth = 420; // of the headless screen
    options.screenHeight = 300;
    tvok::Desktop desktop(options);

    auto& form = desktop.AddForm("Background", 320, 180);
    auto& selector = form.Add<tvok::ucColorSelector>("selector", {12, 12, 265, 24});
    selector.SelectColor(tvok::cButtonFace); // "(Button Face)"

    // The selector has no events: its colour is read when it is needed, here after each turn of the loop.
    const auto turn = [&](int milliseconds) {
        const bool goesOn = desktop.ProcessEvents(std::chrono::milliseconds(milliseconds));
        if (goesOn && form.BackColor() != selector.SelectColor()) form.BackColor(selector.SelectColor());
        return goesOn;
    };
    if (!headless) {
        while (turn(25)) {
        }
        return 0;
    }

    form.Move(40, 40);
    const auto moveTo = [&](std::int32_t x, std::int32_t y) { // in the selector's client area
        tvok::host::Point point{x, y};
        tvok::host::platform().ClientToScreen(form.ComponentOf(selector).hWnd(), point);
        desktop.Input().MouseMove(point.x, point.y);
    };
    moveTo(211, 10); // the first arrow
    desktop.Input().MouseDown(tvok::desktop::MouseButton::Left);
    moveTo(60, 60); // into the grid
    turn(0);
    desktop.SaveScreen(argv[2]);
    desktop.Input().MouseUp(tvok::desktop::MouseButton::Left);
    turn(0);
    const bool followed = form.BackColor() == selector.SelectColor();
    std::printf("0x%08X, picture in %s\n", static_cast<unsigned>(selector.SelectColor()), argv[2]);
    return followed && selector.SelectColor() == 0x40FFFF ? 0 : 1;
}
