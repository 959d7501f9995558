// What a host has to do for two controls: every platform operation that a label asks for while it comes up,
// paints and gets the focus, and a list while it comes up, paints and scrolls, counted. With
// "--headless FILE" it runs by itself and saves a picture of the list.

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <string_view>

#include <tvok/host/RecordingPlatform.h>
#include <tvok/tvok.h>

int main(int argc, char** argv) {
    const bool headless = argc == 3; // --headless FILE
    tvok::DesktopOptions options;
    options.display = tvok::DesktopOptions::Display::Headless; // nobody has to look on
    tvok::Desktop desktop(options);
    auto& form = desktop.AddForm("Counted", 240, 120);

    std::map<std::string, int, std::less<>> calls;
    tvok::host::RecordingPlatform recorder(desktop.OwnPlatform(), [&](std::string_view line) {
        ++calls[std::string(line.substr(0, line.find(' ')))];
    });
    desktop.InterposePlatform(&recorder); // a host's own `Platform` would stand here

    auto& label = form.Add<tvok::iLabel>("label", {8, 8, 224, 24});
    label.Caption("a label");
    desktop.Run();
    form.ComponentOf(label).SetFocus();
    desktop.Run();
    const std::size_t simple = calls.size();
    form.Remove(label);
    desktop.Run();
    calls.clear();

    auto& list = form.Add<tvok::qRoster>("list", {8, 8, 224, 104});
    for (int i = 1; i <= 100; ++i) list.AddItem(0, {.text = "item " + std::to_string(i)});
    list.Refresh();
    desktop.Run();
    desktop.Input().MouseMove(60, 60);
    desktop.Input().Wheel(-3);
    desktop.Run();
    list.ListIndex(60);
    desktop.Run();

    desktop.InterposePlatform(nullptr); // the recorder ends before the desktop
    std::printf("%zu operations for a label, %zu for a list\n", simple, calls.size());
    for (const auto& [name, count] : calls) std::printf("%6d %s\n", count, name.c_str());
    if (headless) desktop.SaveForm(form, argv[2]);
    return simple == 10 && calls.size() == 26 ? 0 : 1; // one more or less, and the guide is wrong
}
