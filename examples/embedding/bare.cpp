// The desktop inside a program that has nothing but memory: the program owns the pixels, feeds the input and
// sleeps between the turns. It plays the user itself, checks what changes, and with "--headless FILE" saves a
// picture.

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include <tvok/host/desktop/Embedding.h>
#include <tvok/tvok.h>

int main(int argc, char** argv) {
    constexpr std::int32_t width = 320, height = 200;
    std::vector<std::uint32_t> screen(width * height); // 0x00RRGGBB: what the program shows, in its own way
    std::atomic<bool> woken = false;

    tvok::DesktopOptions options;
    options.screenWidth = width;
    options.screenHeight = height;
    tvok::Embedding embedding(options, tvok::Embedding::Layout::OneSurface, {.wake = [&] {
                                  woken = true; // from any thread: only says that a turn is due
                                  woken.notify_one();
                              }});
    auto& desktop = embedding.desktop();
    auto& form = desktop.AddForm("Stock", width, height);
    embedding.Fill(form); // its client area is the surface, whatever size that gets
    auto& list = form.Add<tvok::qRoster>("list", {8, 8, 304, 184});
    for (int i = 1; i <= 40; ++i) list.AddItem(0, {.text = "Item " + std::to_string(i)});
    list.Refresh();
    std::int32_t chosen = 0;
    list.events.Change = [&](std::int32_t index, tvok::qrosterdata&) { chosen = index; };

    // One round of the program's loop. Gives how many pixels changed.
    const auto turn = [&] {
        std::int32_t changed = 0;
        do embedding.Turn();
        while (embedding.NextTurn() == std::chrono::milliseconds(0));
        const auto damage = embedding.TakeDamage(); // also brings the pixels up to date
        const tvok::EmbeddedPixels pixels = embedding.Pixels();
        for (const tvok::tvok_Rect& rect : damage) {
            for (std::int32_t y = rect.Top; y < rect.bottom; ++y)
                std::copy_n(pixels.data + y * pixels.stride + rect.Left, rect.Right - rect.Left,
                            screen.data() + y * width + rect.Left);
            changed += (rect.Right - rect.Left) * (rect.bottom - rect.Top);
        }
        return changed;
    };
    bool good = true;
    const auto check = [&](bool holds, const char* what) {
        if (!holds) std::printf("not so: %s\n", what);
        good = good && holds;
    };

    check(turn() == width * height, "the first turn shows everything");
    check(turn() == 0, "the second shows nothing");
    check(!embedding.NextTurn(), "nothing has to be done until there is input");

    embedding.MouseMove(30, 40); // on the second item
    desktop.Input().MouseDown(tvok::desktop::MouseButton::Left);
    desktop.Input().MouseUp(tvok::desktop::MouseButton::Left);
    const std::int32_t changed = turn();
    check(chosen == 2, "the click chooses the second item");
    check(changed > 0 && changed < width * height / 2, "it changes a part of the surface");

    embedding.MouseMove(302, 171); // on the lower arrow of the scroll bar
    desktop.Input().MouseDown(tvok::desktop::MouseButton::Left);
    turn();
    const auto next = embedding.NextTurn();
    check(next && *next > std::chrono::milliseconds(0), "a held arrow wants a turn in a while");
    if (next) std::this_thread::sleep_for(*next); // a real program waits for its input as well
    check(turn() > 0, "and then scrolls on");
    desktop.Input().MouseUp(tvok::desktop::MouseButton::Left);
    turn();
    check(!embedding.NextTurn(), "until it is let go");

    woken = false;
    const std::jthread other([&] { desktop.Post([&] { list.ListIndex(3); }); });
    woken.wait(false); // this is where the program sleeps
    check(turn() > 0 && list.ListIndex() == 3, "another thread's task runs in the turn that it asked for");

    embedding.Resize(200, 120); // the outer window has become smaller; `screen` would follow
    embedding.Turn();
    check(form.Width() == 200 && form.Height() == 120, "the form fills the new size");
    embedding.Resize(width, height);
    check(turn() == width * height, "a new size shows everything");

    desktop.Quit();
    check(!embedding.Turn(), "after Quit it is over");
    if (argc == 3) desktop.SaveScreen(argv[2]);
    return good ? 0 : 1;
}
