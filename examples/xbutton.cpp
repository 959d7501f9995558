// A strip of three buttons beside a counter: down, up, and a caption that starts again.
// With "--headless FILE" it presses a few by itself and saves what that looks like.

#include <cstdio>
#include <string>
#include <string_view>

#include <tvok/tvok.h>

int main(int argc, char** argv) {
    const bool headless = argc == 3 && std::string_view(argv[1]) == "--headless";
    tvok::DesktopOptions options;
    if (headless) options.display = tvok::DesktopOptions::Display::Headless;
    tvok::Desktop desktop(options);

    auto& form = desktop.AddForm("Counter", 260, 48);
    auto& strip = form.Add<tvok::xbutton>("strip", {12, 12, 10, 24}); // it finds its width itself
    strip.ButtonSettingsStr("0|less|2|1|more|2|...|again|0");

    int count = 0;
    form.events.Paint = [&] {
        auto place = tvok::tvok_Rect{100, 12, 240, 36};
        const std::string text = "count: " + std::to_string(count);
        tvok::host::platform().SetBkMode(form.hDC(), tvok::host::TRANSPARENT_BK);
        tvok::host::platform().DrawTextA(form.hDC(), text.c_str(), -1, place, tvok::host::DT_VCENTER | 0x20);
    };
    strip.events.Click = [&](const std::string& key) {
        count = key == "again" ? 0 : count + (key == "more" ? 1 : -1);
        tvok::host::platform().InvalidateRect(form.hWnd(), nullptr, true);
    };
    if (!headless) return desktop.Run();

    const auto press = [&](int button) {
        tvok::host::Point point{24 * button - 12, 12};
        tvok::host::platform().ClientToScreen(strip.hwnd(), point);
        desktop.Input().MouseMove(point.x, point.y);
        desktop.Input().MouseDown(tvok::desktop::MouseButton::Left);
        desktop.Input().MouseUp(tvok::desktop::MouseButton::Left);
        desktop.Run();
    };
    for (const int button : {1, 3, 2}) press(button);
    desktop.SaveForm(form, argv[2]);
    std::printf("%d buttons wide %d, count %d, picture in %s\n", form.PlacementOf(strip).width / 24,
                form.PlacementOf(strip).width, count, argv[2]);
    return count == 1 && form.PlacementOf(strip).width == 72 ? 0 : 1;
}
