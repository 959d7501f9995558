// A feed from a thread of its own, newest row at the top. A reader who has scrolled away keeps the place.
// With "--headless FILE" a reader scrolls, a thousand rows come in, and the picture shows the place kept.

#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include <tvok/tvok.h>

int main(int argc, char** argv) {
    const bool headless = argc == 3; // --headless FILE
    tvok::DesktopOptions options;
    if (headless) options.display = tvok::DesktopOptions::Display::Headless;
    tvok::Desktop desktop(options);
    auto& form = desktop.AddForm("Feed", 320, 202);
    auto& list = form.Add<tvok::qRosterex>("feed", {8, 8, 304, 186});
    list.CX_TEXT(0);
    list.HeaderAdd(0, "", 100); // two columns; without a header band their captions do not show
    list.HeaderAdd(0, "", 180);

    std::vector<std::string> lines; // row 1 is lines[0]; the desktop's thread alone touches them
    int painted = 0;
    list.events.EnumDATA = [&](std::int32_t& row, tvok::qrosterdata& record) {
        ++painted;
        record = list.DefaultItem(); // its vflag is 0, which takes the highlight off
        record.IconPos = 0;
        record.text = lines[static_cast<std::size_t>(row) - 1];
    };
    const auto add = [&](const std::vector<std::string>& batch) {
        for (const std::string& line : batch) {
            lines.push_back(line);
            list.BufAddItemOnly(&line != &batch.back()); // all but the last wait, and come with it
            list.AddItemTop();
        }
        if (list.ListIndex() == 0) list.ListIndex(1); // else the focus would go to row 1 later
    };
    const auto produce = [&](const std::stop_token& stop, int batches, std::chrono::milliseconds pause) {
        for (int i = 0; i < batches && !stop.stop_requested(); ++i) {
            const std::string name = "batch " + std::to_string(i);
            desktop.Post([&add, name] { add({name + "\tfirst row", name + "\tsecond row"}); });
            std::this_thread::sleep_for(pause);
        }
    };
    if (!headless) {
        const std::jthread producer(produce, 1'000'000, std::chrono::milliseconds(200));
        return desktop.Run(); // the thread is stopped and joined before the desktop ends
    }
    std::jthread(produce, 50, std::chrono::milliseconds(0)).join();
    desktop.Run();
    desktop.Input().MouseMove(100, 100);
    desktop.Input().Wheel(-5); // towards older rows
    desktop.Run();
    painted = 0;
    std::jthread(produce, 500, std::chrono::milliseconds(0)).join();
    desktop.Run();
    desktop.SaveForm(form, argv[2]);
    return list.Count() == 1100 && painted == 0 ? 0 : 1;
}
