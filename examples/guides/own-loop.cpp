// A program with a loop of its own: it steps a simulation, and gives the desktop a turn after each step.
// With "--headless FILE" it makes a hundred steps and saves what that looks like.

#include <chrono>
#include <cstdio>
#include <string>
#include <thread>

#include <tvok/tvok.h>

int main(int argc, char** argv) {
    const bool headless = argc == 3; // --headless FILE
    tvok::DesktopOptions options;
    if (headless) options.display = tvok::DesktopOptions::Display::Headless;
    tvok::Desktop desktop(options);
    auto& form = desktop.AddForm("Ball", 240, 98);
    auto& list = form.Add<tvok::qRoster>("list", {8, 8, 224, 82});
    list.TabStopSettingStr("100");
    for (const char* name : {"step", "height", "speed", "messages"}) list.AddItem(0, {.text = name});
    list.Refresh();

    double height = 10, speed = 0;
    int steps = 0, messages = 0;
    const auto show = [&](std::int32_t index, const char* name, double value) {
        char number[32];
        std::snprintf(number, sizeof number, "%.2f", value);
        list.SetData(index, {.text = std::string(name) + '\t' + number}); // repaints this item alone
    };
    const auto step = [&](double seconds) {
        speed -= 9.81 * seconds;
        height += speed * seconds;
        if (height < 0) height = -height, speed = -0.8 * speed;
        ++steps;
    };
    const std::jthread other([&](const std::stop_token& stop) { // any thread may post, at any time
        for (int i = 0; i < 20 && !stop.stop_requested(); ++i) desktop.Post([&] { ++messages; });
    });

    bool open = true;
    while (open && !(headless && steps == 100)) {
        step(0.01);
        show(1, "step", steps);
        show(2, "height", height);
        show(3, "speed", speed);
        show(4, "messages", messages);
        open = desktop.ProcessEvents(std::chrono::milliseconds(headless ? 0 : 10)); // false: it is over
    }
    if (!headless) return 0;
    while (messages < 20) desktop.ProcessEvents(std::chrono::milliseconds(10)); // waits for what is posted
    show(4, "messages", messages);
    desktop.ProcessEvents(std::chrono::milliseconds(0));
    desktop.SaveForm(form, argv[2]);
    return open && steps == 100 ? 0 : 1;
}
