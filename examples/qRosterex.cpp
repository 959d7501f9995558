// A hundred million rows: the squares of their numbers, each asked for as it is painted.
// With "--headless FILE" it goes to the last row by itself and saves what that looks like.

#include <cstdio>
#include <string>
#include <string_view>

#include <tvok/tvok.h>

int main(int argc, char** argv) {
    const bool headless = argc == 3 && std::string_view(argv[1]) == "--headless";
    tvok::DesktopOptions options;
    if (headless) options.display = tvok::DesktopOptions::Display::Headless;
    tvok::Desktop desktop(options);

    auto& form = desktop.AddForm("Squares", 420, 260);
    auto& list = form.Add<tvok::qRosterex>("list1", {8, 8, 404, 244});
    list.CX_TEXT(0);
    list.HeaderHeight(22);
    list.HeaderAdd(0, "Number", 140, {}, 1);
    list.HeaderAdd(0, "Square", 220, {}, 1);

    int asked = 0;
    list.events.EnumDATA = [&](std::int32_t& row, tvok::qrosterdata& record) {
        ++asked;
        record = list.DefaultItem();
        record.IconPos = 0; // its low byte indents the row here, and the default item's is 255
        record.text = std::to_string(row) + '\t' + std::to_string(std::int64_t{row} * row);
    };
    list.events.Change = [&](std::int32_t row) { form.Caption("Squares: " + std::to_string(row)); };
    list.ViewMode(1); // oldest at the top
    list.Count(100'000'000);

    if (!headless) return desktop.Run();
    desktop.Run();
    asked = 0;
    list.ListIndex(list.Count());
    desktop.Run();
    desktop.SaveForm(form, argv[2]);
    std::printf("%d rows asked for, picture in %s\n", asked, argv[2]);
    return asked > 0 && asked < 40 ? 0 : 1;
}
