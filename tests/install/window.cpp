// A program that shows a list on a desktop in memory, and saves what it looks like.

#include <cstdio>

#include <tvok/tvok.h>

int main() {
    tvok::DesktopOptions options;
    options.display = tvok::DesktopOptions::Display::Headless;
    tvok::Desktop desktop(options);
    auto& form = desktop.AddForm("Stock", 240, 120);
    auto& list = form.Add<tvok::qRoster>("list1", {8, 8, 224, 104});

    for (const char* name : {"ant", "bee", "cat"}) list.AddItem(0, {.text = name});
    list.Refresh();
    list.ListIndex(2);
    desktop.Run();
    desktop.SaveForm(form, "window.png");
    std::printf("%d items, number %d is current\n", list.Count(), list.ListIndex());
    return list.Count() == 3 && list.IsSelected(2) ? 0 : 1;
}
