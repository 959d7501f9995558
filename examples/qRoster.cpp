// A stock list: three tab columns, a head band that the program draws itself, and an answer to every choice.
// With "--headless FILE" it chooses the second item by itself and saves what that looks like.

#include <cstdio>
#include <string>
#include <string_view>

#include <tvok/engine/dgi.h>
#include <tvok/tvok.h>

int main(int argc, char** argv) {
    const bool headless = argc == 3 && std::string_view(argv[1]) == "--headless";
    tvok::DesktopOptions options;
    if (headless) options.display = tvok::DesktopOptions::Display::Headless;
    tvok::Desktop desktop(options);

    auto& form = desktop.AddForm("Stock", 360, 200);
    auto& list = form.Add<tvok::qRoster>("list1", {8, 8, 344, 184});
    list.FixedHeight(false);
    list.CX_TEXT(4);
    list.TabStopSettingStr("150,60"); // name, pieces, and the shelf in what is left
    list.HeadWidthEx(24);

    const auto hostHead = tvok::vflag::HostHead; // asks for ExDraw 512 after the band is filled
    for (const char* text : {"Apples\t120\tA 1", "Bananas\t64\tA 2", "Cherries\t7\tB 1", "Dates\t0\tB 2"}) {
        list.AddItem(0, {.text = text, .vflag = hostHead});
    }

    list.events.ExDraw = [](std::int32_t& message, std::int32_t index, const std::string&, std::int32_t hDC,
                            std::int32_t, std::int32_t left, std::int32_t top, std::int32_t right,
                            std::int32_t bottom) {
        if (message != tvok::bExDrawHead) return;
        auto rect = tvok::dgi::MakeRect(left, top, right, bottom);
        const std::string number = std::to_string(index);
        auto& platform = tvok::host::platform();
        platform.SetTextColor(hDC, tvok::dgi::TranslateColor(tvok::cButtonText));
        platform.SetTextAlign(hDC, tvok::host::TA_LEFT);
        platform.SetBkMode(hDC, tvok::host::TRANSPARENT_BK);
        platform.DrawTextA(hDC, number.data(), static_cast<std::int32_t>(number.size()), rect,
                           tvok::host::DT_CENTER | tvok::host::DT_VCENTER | tvok::host::DT_SINGLELINE);
    };
    list.events.Change = [&](std::int32_t, tvok::qrosterdata& item) {
        form.Caption("Stock: " + item.text.substr(0, item.text.find('\t')));
    };
    list.Refresh();

    if (!headless) return desktop.Run();
    list.ListIndex(2);
    desktop.Run();
    desktop.SaveForm(form, argv[2]);
    std::printf("%s, picture in %s\n", form.Caption().c_str(), argv[2]);
    return form.Caption() == "Stock: Bananas" ? 0 : 1;
}
