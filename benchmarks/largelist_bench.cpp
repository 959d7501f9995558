// What qRosterex has to reach: its cost must not depend on how many rows there are, and a row that comes must
// cost one move of pixels and one row of painting. The exit code is the number of targets missed.

#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "benchmarks/LargeListPage.h"
#include "benchmarks/ratios.h"

namespace tvok::bench {
namespace {

constexpr std::array<std::int32_t, 3> cCounts{1000, 1000000, 100000000};
constexpr double cSame = 1.2; ///< The dearest of several counts against the cheapest.
constexpr int cRounds = 5;    ///< The counts take turns, so that a busy moment does not hit one alone.
constexpr int cMostRounds = 25;
constexpr int cSettledRounds = 3; ///< Rounds in which no step has become faster.

void FillCells(std::int32_t row, std::string& text) {
    for (int column = 0; column < cListColumns; ++column) {
        if (column > 0) text += '\t';
        text += "cell ";
        AppendNumber(text, (std::int64_t{row} * 7919 + column * 104729) % 1000000);
    }
}

void OpenList(LargeListPage& page, std::int32_t count, std::int16_t viewMode = 1) {
    page.Open(count, FillCells, viewMode);
}

/// Bytes of the heap in use, also those in maps of their own.
double HeapBytes() {
    const auto info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

double Spread(const std::vector<double>& values) {
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    return *most / *least;
}

void Open(LargeListPage& page) {
    std::vector<double> seconds(cCounts.size(), 1e9), bytes(cCounts.size(), 1e9);
    for (int round = 0; round < 3 * cRounds; ++round)
        for (std::size_t i = 0; i < cCounts.size(); ++i) {
            const double before = HeapBytes();
            seconds[i] = std::min(seconds[i], Seconds(1, [&] { OpenList(page, cCounts[i]); }));
            bytes[i] = std::min(bytes[i], HeapBytes() - before); // once all is there that outlives a list
            page.Close();
        }
    const auto [least, most] = std::minmax_element(bytes.begin(), bytes.end());
    std::printf("  open and first paint: %.1f us\n", seconds.back() * 1e6);
    Report("open and first paint: slowest of 1e3, 1e6, 1e8 rows / fastest", Spread(seconds), Wanted::AtMost,
           cSame);
    Report("  memory of an open list: the most / the least of them, difference", *most - *least,
           Wanted::AtMost, 1024, "bytes");
}

// Steps of a user, at each count.

enum Step { cRowScroll, cPageScroll, cKeyDown, cRepaint, cAddedAtEnd, cAddedOnTop, cSteps };
constexpr std::array<const char*, cSteps> cNames{
    "scroll by a row", "scroll by a page",          "key down",
    "repaint",         "a row added at the bottom", "a row added on top"};

struct StepCosts {
    std::array<double, cSteps> seconds;
    std::array<double, cSteps> asked; ///< Rows that one step asked for.
};

template<class Action>
void Measure(LargeListPage& page, StepCosts& costs, Step step, Action&& action) {
    constexpr int runs = 50, each = 2; // short enough to be left alone by others now and then
    const std::int64_t before = page.asked;
    costs.seconds[step] = Seconds(runs, action, each);
    costs.asked[step] = static_cast<double>(page.asked - before) / (runs * each);
}

/// There and back again, so that a short list does not come to its end.
StepCosts CostsAt(LargeListPage& page, std::int32_t count) {
    StepCosts costs{};
    OpenList(page, count);
    page.ScrollTo(count / 4);
    page.MoveToArrow();
    Measure(page, costs, cRowScroll, [&] { page.Click(); });
    page.ScrollTo(count / 4);
    bool down = false;
    Measure(page, costs, cPageScroll, [&] {
        down = !down;
        page.ScrollTo(count / 4 + (down ? page.list().yn() : 0));
    });
    page.ClickAt(100, 100);
    Measure(page, costs, cKeyDown, [&] {
        page.Key(down ? host::VK_DOWN : host::VK_UP);
        down = !down;
    });
    Measure(page, costs, cRepaint, [&] { page.list().PaintAll(); });
    page.ScrollTo(page.Bars().ScrollMax());
    Measure(page, costs, cAddedAtEnd, [&] {
        page.list().AddItemButtom();
        page.Pump();
    });
    page.Close();
    OpenList(page, count, 0);
    Measure(page, costs, cAddedOnTop, [&] {
        page.list().AddItemTop();
        page.Pump();
    });
    page.Close();
    return costs;
}

/// The least of all rounds for each count.
std::vector<StepCosts> CostsOfSteps(LargeListPage& page) {
    std::vector<StepCosts> least(cCounts.size());
    for (auto& costs : least) costs.seconds.fill(1e9);
    int settled = 0;
    for (int round = 0; round < cMostRounds && (round < cRounds || settled < cSettledRounds); ++round) {
        ++settled;
        for (std::size_t i = 0; i < cCounts.size(); ++i) {
            const StepCosts now = CostsAt(page, cCounts[i]);
            least[i].asked = now.asked;
            for (std::size_t step = 0; step < cSteps; ++step) {
                if (now.seconds[step] < least[i].seconds[step] * 0.99) settled = 0;
                least[i].seconds[step] = std::min(least[i].seconds[step], now.seconds[step]);
            }
        }
    }
    return least;
}

/// Moves the bytes of a page by a row and draws the cells of one row, without a list.
double SecondsOfMemmoveAndARow(LargeListPage& page) {
    OpenList(page, cCounts.front());
    std::vector<std::uint32_t> pixels(std::size_t{cListWidth} * cListHeight);
    const std::size_t row = std::size_t{cListWidth} * cListStep;
    const host::Handle hDC = page.form().ComponentOf(page.list()).hDC();
    std::string text;
    FillCells(1, text);
    const double seconds = Seconds(200, [&] {
        std::memmove(pixels.data(), pixels.data() + row, (pixels.size() - row) * sizeof pixels[0]);
        std::string_view rest = text;
        for (std::int32_t column = 0; column < cListColumns; ++column) {
            const std::string_view cell = rest.substr(0, rest.find('\t'));
            rest.remove_prefix(std::min(cell.size() + 1, rest.size()));
            const tvok_Rect rect{column * cListColumnWidth, 400, (column + 1) * cListColumnWidth,
                                 400 + cListStep - 1};
            host::platform().ExtTextOutA(hDC, rect.Left + 1, rect.Top + 3,
                                         host::ETO_OPAQUE | host::ETO_CLIPPED, &rect, cell.data(),
                                         static_cast<std::int32_t>(cell.size()));
        }
    });
    page.Close();
    return seconds;
}

void Steps(LargeListPage& page) {
    const double floor = SecondsOfMemmoveAndARow(page);
    const auto costs = CostsOfSteps(page);
    std::printf("  memmove of the page and the cells of one row: %.1f us\n", floor * 1e6);
    for (std::size_t step = 0; step < cSteps; ++step) {
        std::vector<double> seconds;
        seconds.reserve(costs.size());
        for (const auto& cost : costs) seconds.push_back(cost.seconds[step]);
        std::printf("  %s: %.1f us, %.1f rows asked for\n", cNames[step], costs.back().seconds[step] * 1e6,
                    costs.back().asked[step]);
        Report((std::string(cNames[step]) + ": slowest of 1e3, 1e6, 1e8 rows / fastest").c_str(),
               Spread(seconds), Wanted::AtMost, cSame);
    }
    const auto& many = costs.back();
    Report("scroll by a row at 1e8 rows / memmove of the page and one row", many.seconds[cRowScroll] / floor,
           Wanted::AtMost, 3);
    Report("a row added at the bottom at 1e8 rows / the same", many.seconds[cAddedAtEnd] / floor,
           Wanted::AtMost, 3);
    Report("a row added on top at 1e8 rows / the same", many.seconds[cAddedOnTop] / floor, Wanted::AtMost, 3);
    Report("rows asked for where a row is added at the bottom", many.asked[cAddedAtEnd], Wanted::AtMost, 1,
           "");
}

// Rows that come while the reader is elsewhere.

constexpr int cAway = 2000; ///< Rows of a run: the clock's own cost is lost in so many.

double SecondsOfAddingAway(LargeListPage& page) {
    page.ScrollTo(page.list().Count() / 4);
    return Seconds(
        60, [&] { page.list().AddItemButtom(7); }, cAway);
}

/// Four bytes at the end of a file, by the plainest call there is.
double SecondsOfPlainWrite() {
    std::string path;
    if (!host::services().TemporaryFiles().CreateTemporaryFile("", "tvokbench", "tmp", path)) return 0;
    std::FILE* file = std::fopen(path.c_str(), "r+b");
    const int descriptor = fileno(file);
    const std::int32_t value = 7;
    off_t place = 0;
    ssize_t written = 0;
    const double seconds = Seconds(
        60,
        [&] {
            written += pwrite(descriptor, &value, sizeof value, place);
            place += static_cast<off_t>(sizeof value);
        },
        cAway);
    std::fclose(file);
    std::remove(path.c_str());
    return written > 0 ? seconds : 0;
}

void AddAway(LargeListPage& page) {
    OpenList(page, cCounts.back());
    const std::int64_t before = page.asked;
    const double without = SecondsOfAddingAway(page);
    const double painted =
        static_cast<double>(page.asked - before - page.list().yn() - 1); // what the jump showed
    std::int32_t none = 0;
    const double bar = Seconds(
        60, [&] { page.Bars().ScrollGrow(none, true); }, cAway);
    page.list().FileBufCreate();
    const double with = SecondsOfAddingAway(page);
    const double plain = SecondsOfPlainWrite();
    page.Close();
    Report("rows asked for by 120,000 rows added elsewhere", painted, Wanted::AtMost, 0, "");
    std::printf("  a row added elsewhere: %.2f us, with a buffer file %.2f us\n", without * 1e6, with * 1e6);
    Report("a row added elsewhere / telling the scroll bar its range", without / bar, Wanted::AtMost, 5);
    Report("the same with a buffer file / a write of four bytes", with / plain, Wanted::AtMost, 3);
}

// Heap blocks.

/// What the list and its drawing take. The turn of the message loop that shows it is not counted: it takes as
/// much for a page as for a row.
template<class Action>
void ReportBlocks(LargeListPage& page, const char* what, Action&& action) {
    constexpr int warm = 300, counted = 100; // every place of the row cache, and every letter
    double made = 0;
    for (int i = 0; i < warm + counted; ++i) {
        const double now = AllocationsOf(action);
        made += i < warm ? 0 : now;
        page.Pump();
    }
    Report((std::string("heap blocks of 100 times: ") + what).c_str(), made, Wanted::AtMost, 0, "");
}

void Allocations(LargeListPage& page) {
    OpenList(page, cCounts.back());
    const std::int32_t start = cCounts.back() / 4;
    std::int32_t position = start;
    page.ScrollTo(start);
    ReportBlocks(page, "scroll by a row", [&] { page.Bars().ScrollValue(++position); });
    ReportBlocks(page, "scroll by a page", [&] { page.Bars().ScrollValue(position += page.list().yn()); });
    ReportBlocks(page, "repaint", [&] { page.list().PaintAll(); });
    ReportBlocks(page, "key down", [&] {
        std::int16_t key = host::VK_DOWN, shift = 0;
        page.list().KeyDown(key, shift);
    });
    page.ScrollTo(start);
    ReportBlocks(page, "a row added elsewhere", [&] { page.list().AddItemButtom(); });
    page.ScrollTo(page.Bars().ScrollMax());
    ReportBlocks(page, "a row added at the bottom", [&] { page.list().AddItemButtom(); });
    page.Close();
    OpenList(page, cCounts.back(), 0);
    ReportBlocks(page, "a row added on top", [&] { page.list().AddItemTop(); });
    page.Close();
}

void Run() {
    LargeListPage page;
    Open(page);
    Steps(page);
    AddAway(page);
    Allocations(page);
}

} // namespace
} // namespace tvok::bench

int main() {
    tvok::bench::Run();
    return tvok::bench::missed;
}
