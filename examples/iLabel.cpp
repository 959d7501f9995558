// Three labels to choose from: by Tab and Enter, or by the mouse.
// With "--headless FILE" it goes to the second by itself and saves what that looks like.

#include <cstdio>
#include <string>
#include <string_view>

#include <tvok/tvok.h>

int main(int argc, char** argv) {
    const bool headless = argc == 3 && std::string_view(argv[1]) == "--headless";
    tvok::DesktopOptions options;
    if (headless) options.display = tvok::DesktopOptions::Display::Headless;
    tvok::Desktop desktop(options);
    auto& form = desktop.AddForm("Choose", 240, 130);

    std::string chosen;
    std::int32_t top = 10;
    for (const char* caption : {"&Small", "&Medium", "&Large"}) {
        auto& label = form.Add<tvok::iLabel>(caption, {10, top, 220, 30});
        label.NOPREFIX(false); // the letter after "&" is underlined
        label.BorderStyle(0);
        label.GridlineWidth(1);
        label.Caption(caption);
        const auto choose = [&form, &chosen, text = std::string(caption + 1)] {
            form.Caption(chosen = text);
        };
        label.events.KeyDown = [choose](std::int16_t& code, std::int16_t&) {
            if (code == tvok::host::VK_RETURN) choose();
        };
        label.events.MouseUp = [choose](std::int16_t&, std::int16_t&, float&, float&) { choose(); };
        top += 38;
    }

    if (!headless) return desktop.Run();
    tvok::host::platform().SetFocus(form.Find<tvok::iLabel>("&Small")->hwnd());
    for (const std::int32_t key : {tvok::host::VK_TAB, tvok::host::VK_RETURN}) {
        desktop.Input().KeyDown(key);
        desktop.Input().KeyUp(key);
    }
    desktop.Run();
    desktop.SaveForm(form, argv[2]);
    std::printf("chosen: %s, picture in %s\n", chosen.c_str(), argv[2]);
    return chosen == "Medium" ? 0 : 1;
}
