// The text engine by itself: a text cell - an opaque fill of 120 by 18 pixels and 8 to 16 letters - against
// the fill alone, and what it allocates once warm.

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "benchmarks/ratios.h"
#include "tvok/host/desktop/pixels/kernels.h"
#include "tvok/host/desktop/text/TextEngine.h"

namespace tvok::soft {
namespace {

constexpr const char* pinned = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
constexpr std::int32_t columns = 10, rows = 27, cells = columns * rows;

/// A page of cells on a surface of usual size.
struct Page {
    Surface surface{1280, 900};
    TextEngine engine{pinned};
    FontId font = engine.Find({"", 12});

    static tvok_Rect CellAt(std::int32_t index) {
        const std::int32_t left = index % columns * 120, top = index / columns * 18;
        return {left, top, left + 120, top + 18};
    }
    void FillCell(std::int32_t index) { Fill(surface, CellAt(index), index % 2 != 0 ? 0xFFFFFF : 0xF0F0F0); }
    void DrawCell(std::int32_t index, std::string_view text) {
        const tvok_Rect cell = CellAt(index);
        Fill(surface, cell, index % 2 != 0 ? 0xFFFFFF : 0xF0F0F0);
        engine.Draw(surface, cell, cell.Left + 2, cell.Top + 2, font, text, 0x202020);
    }
};

/// Texts of 8 to 16 letters, as many as asked for, all different.
std::vector<std::string> LatinWords(std::size_t count) {
    std::mt19937 random(1);
    std::vector<std::string> words(count);
    for (std::string& word : words)
        for (std::size_t i = 8 + random() % 9; i > 0; --i)
            word += static_cast<char>((random() % 6 == 0 ? 'A' : 'a') + static_cast<int>(random() % 26));
    return words;
}

std::vector<std::string> ArabicWords(std::size_t count) {
    std::mt19937 random(2);
    std::vector<std::string> words(count);
    for (std::string& word : words)
        for (std::size_t i = 8 + random() % 9; i > 0; --i) {
            word += '\xD8';
            word += static_cast<char>(0xA8 + random() % 16);
        }
    return words;
}

using Words = std::vector<std::string>;

/// Draws pages of `words`, the next ones on each page, against pages of fills alone.
void ReportCells(const char* what, const Words& words, double most) {
    Page page;
    std::size_t next = std::min<std::size_t>(words.size(), 20'000) - 1;
    for (std::size_t i = 0; i <= next; ++i) page.engine.Measure(page.font, words[i]); // warms every cache
    const auto fill = [&] {
        for (std::int32_t i = 0; i < cells; ++i) page.FillCell(i);
    };
    const auto draw = [&] {
        for (std::int32_t i = 0; i < cells; ++i) {
            page.DrawCell(i, words[next]);
            if (++next == words.size()) next = 0;
        }
    };
    const double ratio = bench::RatioOf(draw, fill);
    const double taken = bench::AllocationsOf([&] {
        for (int run = 0; run < 20; ++run) draw();
    });
    bench::Report((std::string("text engine, ") + what + " / filling its cell").c_str(), ratio,
                  bench::Wanted::AtMost, most);
    bench::Report((std::string("text engine, allocations per cell, ") + what).c_str(), taken / (20.0 * cells),
                  bench::Wanted::AtMost, 0.01, "");
}

void Run() {
    ReportCells("repeated Latin text", LatinWords(cells), 5);
    ReportCells("new Latin text", LatinWords(200'000), 5);
    ReportCells("repeated Arabic text", ArabicWords(cells), 5);
}

} // namespace
} // namespace tvok::soft

int main() {
    tvok::soft::Run();
    return tvok::bench::missed;
}
