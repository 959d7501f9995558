// A drop-down of colours: press the mouse on the field, drag into the palette, and let go. The window follows
// the colour under the pointer; Esc puts the old one back. With "--headless FILE" a user of its own does just
// that, and the picture shows the palette while it is open.

#include <chrono>
#include <cstdio>
#include <string_view>

#include <tvok/tvok.h>

int main(int argc, char** argv) {
    const bool headless = argc == 3 && std::string_view(argv[1]) == "--headless";
    tvok::DesktopOptions options;
    if (headless) options.display = tvok::DesktopOptions::Display::Headless;
    options.screenWidth = 400; // of the headless screen
    options.screenHeight = 300;
    tvok::Desktop desktop(options);

    auto& form = desktop.AddForm("Colour", 320, 200);
    auto& field = form.Add<tvok::qRoster>("field", {8, 8, 200, 22}); // one item that shows the colour
    field.yn(1);
    auto& palette = form.Add<tvok::xPopup>("palette", {0, 0, 18, 17});
    palette.HotTrack(true);
    tvok::OLE_COLOR chosen = 0x0000FF;
    const auto show = [&](tvok::OLE_COLOR color) {
        chosen = color;
        field.SetData(1, {.text = palette.GetColorDesc(color),
                          .IconBackColor = color,
                          .vflag = tvok::vflag::IconBox | tvok::vflag::IconBorder});
    };
    field.AddItem(0, {});
    field.Refresh();
    show(chosen);

    palette.events.Change = [&](std::int32_t, tvok::qrosterdata& item) { show(item.IconBackColor); };
    palette.events.Click = [&](std::int32_t, tvok::qrosterdata&, bool canceled) {
        if (canceled) show(palette.TmpData().AsInteger());
    };
    field.events.MouseDown = [&](std::int16_t&, std::int16_t&, float&, float&) {
        palette.TmpData(tvok::Variant(chosen));
        palette.SetColorPal(tvok::PAL24x10);
        palette.SetParentHwnd(form.ComponentOf(field).hWnd());
        palette.Popup(false, true); // below the field, left edges aligned
    };

    if (!headless) return desktop.Run();
    form.Move(40, 40);
    const auto process = [&] { desktop.ProcessEvents(std::chrono::milliseconds(0)); };
    desktop.Input().MouseMove(60, 80); // on the field
    desktop.Input().MouseDown(tvok::desktop::MouseButton::Left);
    desktop.Input().MouseMove(80, 150); // into the palette
    process();
    desktop.SaveScreen(argv[2]);
    desktop.Input().MouseUp(tvok::desktop::MouseButton::Left);
    process();
    std::printf("%s, picture in %s\n", palette.GetColorDesc(chosen).c_str(), argv[2]);
    return chosen == 0x0070E0 ? 0 : 1;
}
