// A column bar over a flat list: drag the dividers, and the list's tab columns follow.
// With "--headless FILE" it drags the first divider by itself and saves what that looks like.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <string_view>

#include <tvok/tvok.h>

int main(int argc, char** argv) {
    const bool headless = argc == 3 && std::string_view(argv[1]) == "--headless";
    tvok::DesktopOptions options;
    if (headless) options.display = tvok::DesktopOptions::Display::Headless;
    tvok::Desktop desktop(options);

    auto& form = desktop.AddForm("Planets", 336, 124);
    auto& bar = form.Add<tvok::pcols>("bar", {8, 8, 320, 24});
    bar.Add(0, "Planet", 120);
    bar.Add(0, "Diameter, km", 100);
    bar.Add(0, "Year, days", 90);
    bar.Refresh();
    bar.events.MouseDown = [&](std::int32_t column, std::int32_t) { form.Caption(bar.GetData(column).text); };

    auto& list = form.Add<tvok::qRoster>("list", {8, 32, 320, 84});
    list.CX_TEXT(4);
    for (const char* planet :
         {"Mercury\t4 879\t88", "Venus\t12 104\t225", "Earth\t12 756\t365", "Mars\t6 792\t687"})
        list.AddItem(0, {.text = planet});

    std::string widths; // a drag raises no event, so they are looked at after each turn of the loop
    const auto turn = [&](int milliseconds) {
        const bool goesOn = desktop.ProcessEvents(std::chrono::milliseconds(milliseconds));
        if (!goesOn || widths == bar.HeaderWidths()) return goesOn;
        widths = bar.HeaderWidths();
        std::string stops = widths;
        std::replace(stops.begin(), stops.end(), '-', ',');
        list.TabStopSettingStr(stops);
        list.Refresh();
        return true;
    };
    while (!headless)
        if (!turn(100)) return 0;

    tvok::host::Point divider{120, 10};
    tvok::host::platform().ClientToScreen(bar.hwnd(), divider);
    desktop.Input().MouseMove(divider.x, divider.y);
    desktop.Input().MouseDown(tvok::desktop::MouseButton::Left);
    desktop.Input().MouseMove(divider.x - 30, divider.y);
    desktop.Input().MouseUp(tvok::desktop::MouseButton::Left);
    turn(0);
    desktop.Run();
    desktop.SaveForm(form, argv[2]);
    std::printf("widths %s, picture in %s\n", bar.HeaderWidths().c_str(), argv[2]);
    return bar.HeaderWidths() == "90-130-90" ? 0 : 1;
}
