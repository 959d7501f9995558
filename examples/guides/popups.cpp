// A popup of themes: each shows while the pointer is over it; Enter or a click keeps it, Esc takes it back.
// With "--headless FILE" a user of its own looks at one, goes back, and takes another.

#include <chrono>
#include <cstdio>
#include <string>

#include <tvok/tvok.h>

int main(int argc, char** argv) {
    const bool headless = argc == 3; // --headless FILE
    tvok::DesktopOptions options;
    if (headless) options.display = tvok::DesktopOptions::Display::Headless;
    options.screenWidth = 300; // of the headless screen
    options.screenHeight = 180;
    tvok::Desktop desktop(options);

    auto& form = desktop.AddForm("Theme", 220, 100);
    auto& label = form.Add<tvok::iLabel>("label", {12, 12, 160, 24});
    auto& popup = form.Add<tvok::xPopup>("popup", {0, 0, 18, 17});
    label.Caption("Choose a theme");
    for (const char* name : {"classic", "dark", "contrast"}) popup.AddItem({.text = name});
    popup.HotTrack(true); // the choice follows the pointer without a button

    const auto show = [&](const std::string& name) {
        if (name != desktop.CurrentTheme().name) desktop.SetTheme(tvok::Theme::ByName(name));
    };
    popup.events.Change = [&](std::int32_t, tvok::qrosterdata& item) { show(item.text); }; // the preview
    popup.events.Click = [&](std::int32_t, tvok::qrosterdata& item, bool canceled) {       // the end
        show(canceled ? popup.TmpData().AsText() : item.text);
    };
    const auto open = [&] {
        popup.TmpData(desktop.CurrentTheme().name); // what Esc puts back
        popup.SetParentHwnd(form.ComponentOf(label).hWnd());
        popup.Popup(false, true); // below the label, left edges aligned
    };
    label.events.MouseUp = [&](std::int16_t&, std::int16_t&, float&, float&) { open(); };
    if (!headless) return desktop.Run();

    form.Move(20, 20);
    const auto key = [&](std::int32_t code) {
        desktop.Input().KeyDown(code);
        desktop.Input().KeyUp(code);
        desktop.ProcessEvents(std::chrono::milliseconds(0));
    };
    open();
    key(tvok::host::VK_DOWN);
    key(tvok::host::VK_DOWN);
    const bool previewed = desktop.CurrentTheme().name == "dark";
    desktop.SaveScreen(argv[2]);
    key(tvok::host::VK_ESCAPE);
    const bool back = desktop.CurrentTheme().name == "classic";
    open();
    key(tvok::host::VK_DOWN);
    key(tvok::host::VK_RETURN);
    std::printf("%s in the end, picture in %s\n", desktop.CurrentTheme().name.c_str(), argv[2]);
    return previewed && back && desktop.CurrentTheme().name != "classic" ? 0 : 1;
}
