#include <tvok/tvok.h>

int main() {
    tvok::Desktop desktop;                           // a window on the screen, or headless
    auto& form = desktop.AddForm("Stock", 480, 360); // client size in pixels
    auto& list = form.Add<tvok::qRoster>("list1", {8, 8, 464, 344});

    list.xn(3); // a property write: three columns of items
    list.events.Change = [&](std::int32_t, tvok::qrosterdata& x) { form.Caption(x.text); };
    for (const char* name : {"Apples", "Bananas", "Cherries", "Dates"}) list.AddItem(0, {.text = name});
    list.Refresh();
    return desktop.Run();
}
