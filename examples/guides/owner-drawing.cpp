// Disks with a bar for what is used: the program draws the text area of each row itself.
// With "--headless FILE" it chooses a row by itself and saves what that looks like.

#include <string>

#include <tvok/engine/dgi.h>
#include <tvok/tvok.h>

int main(int argc, char** argv) {
    const bool headless = argc == 3; // --headless FILE
    tvok::DesktopOptions options;
    if (headless) options.display = tvok::DesktopOptions::Display::Headless;
    tvok::Desktop desktop(options);

    auto& form = desktop.AddForm("Disks", 320, 116);
    auto& list = form.Add<tvok::qRoster>("list", {8, 8, 304, 100});
    list.ItemHeight(22);
    list.CX_TEXT(0);
    const auto add = [&](const char* name, std::int32_t percent) {
        list.AddItem(0, {.text = name, .ItemData = percent, .vflag = tvok::vflag::HostText});
    };
    add("system", 62);
    add("home", 34);
    add("archive", 97);
    add("scratch", 8);

    int drawn = 0;
    list.events.ExDraw = [&](std::int32_t& message, std::int32_t index, const std::string&, std::int32_t hDC,
                             std::int32_t, std::int32_t left, std::int32_t top, std::int32_t right,
                             std::int32_t bottom) {
        if (message != tvok::bExDrawText) return;
        ++drawn;
        tvok::qrosterdata item;
        list.GetData(index, item);
        const tvok::tvok_Rect area{left, top, right, bottom};
        const auto middle = left + (right - left) / 3;
        const auto length = (right - middle - 8) * item.ItemData / 100;
        const auto text = [&](std::int32_t from, const std::string& words) {
            tvok::tvok_Rect rect{from + 4, top, right, bottom};
            tvok::host::platform().DrawTextA(hDC, words.data(), static_cast<std::int32_t>(words.size()), rect,
                                             tvok::host::DT_VCENTER | tvok::host::DT_SINGLELINE);
        };
        tvok::dgi::FillRectColor(hDC, area, list.IsSelected(index) ? list.SelectedColor() : item.bColor);
        tvok::host::platform().SetTextAlign(hDC, tvok::host::TA_LEFT);
        tvok::host::platform().SetBkMode(hDC, tvok::host::TRANSPARENT_BK);
        text(left, item.text); // in the colour that the list has set: selected or not
        tvok::dgi::FillRectColor(hDC, {middle, top + 4, middle + length, bottom - 4},
                                 item.ItemData > 90 ? 0x4040E0 : 0x60B060);
        text(middle, std::to_string(item.ItemData) + " %");
    };
    list.Refresh();
    if (!headless) return desktop.Run();
    list.ListIndex(2);
    desktop.Run();
    desktop.SaveForm(form, argv[2]);
    return drawn >= 4 ? 0 : 1;
}
