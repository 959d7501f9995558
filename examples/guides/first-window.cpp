// A list in a window; its caption follows the choice. "--headless FILE" saves a picture of it instead.

#include <tvok/tvok.h>

int main(int argc, char** argv) {
    const bool headless = argc == 3; // --headless FILE
    tvok::DesktopOptions options;
    if (headless) options.display = tvok::DesktopOptions::Display::Headless;
    tvok::Desktop desktop(options);

    auto& form = desktop.AddForm("Stock", 320, 200); // client size in pixels
    auto& list = form.Add<tvok::qRoster>("list1", {8, 8, 304, 184});
    list.events.Change = [&](std::int32_t, tvok::qrosterdata& item) { form.Caption(item.text); };
    for (const char* name : {"Apples", "Bananas", "Cherries", "Dates"}) list.AddItem(0, {.text = name});
    list.Refresh(); // what was added shows now
    list.ListIndex(2);

    const int code = desktop.Run(); // until the window is closed; headless, until nothing waits
    if (headless) desktop.SaveForm(form, argv[2]);
    return code;
}
