// What a column bar has to reach, as ratios that hold on any machine. The exit code is the number of targets
// missed.

#include <chrono>
#include <string>

#include "benchmarks/ratios.h"
#include "tvok/tvok.h"

namespace tvok {
namespace {

using bench::AllocationsOf;
using bench::RatioOf;
using bench::Report;
using bench::Wanted;

constexpr std::int32_t cWidth = 1200, cColumns = 24;

struct Bar {
    Desktop desktop{{.display = DesktopOptions::Display::Headless,
                     .fontFile = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf",
                     .language = "en"}};
    Form& form = desktop.AddForm("bench", cWidth, 24);
    pcols& bar = form.Add<pcols>("bar", {0, 0, cWidth, 24});
    host::Point origin{};

    Bar() {
        bar.BorderStyle(0);
        for (std::int32_t i = 1; i <= cColumns; ++i)
            bar.Add(0, "column " + std::to_string(i), cWidth / cColumns);
        bar.Refresh();
        host::platform().ClientToScreen(bar.hwnd(), origin);
        Run();
    }
    void Run() { desktop.ProcessEvents(std::chrono::milliseconds(0)); }
    void MoveTo(std::int32_t x) {
        desktop.Input().MouseMove(origin.x + x, origin.y + 10);
        Run();
    }
};

void DragSteps(Bar& page) {
    constexpr std::int32_t first = cWidth / cColumns;
    page.MoveTo(first);
    page.desktop.Input().MouseDown(desktop::MouseButton::Left);
    page.Run();
    std::int32_t x = first;
    const auto step = [&] { page.MoveTo(x = x == first ? first + 7 : first); };
    // Both are shown, so that the display takes the same from each.
    const auto paint = [&] {
        page.bar.Refresh();
        page.Run();
    };
    const double ratio = RatioOf(step, paint, 5);
    Report("a drag step of a bar of 24 columns / a paint of the bar", ratio, Wanted::AtMost, 1.25);
    Report("allocations of a paint of the bar", AllocationsOf([&] { page.bar.Refresh(); }), Wanted::AtMost, 0,
           "");
    page.desktop.Input().MouseUp(desktop::MouseButton::Left);
    page.Run();
    Report("  width of the first column after the last step", page.bar.GetData(1).hWidth, Wanted::AtLeast, 50,
           "");
}

} // namespace
} // namespace tvok

int main() {
    tvok::Bar page;
    tvok::DragSteps(page);
    return tvok::bench::missed;
}
