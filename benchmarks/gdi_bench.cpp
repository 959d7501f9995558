// What drawing through a device context has to reach: a text cell against the fill of the same cell, and a
// page that is scrolled by a row against the plain move of its bytes. Everything is clipped and noted as
// damage, as in a window.

#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "benchmarks/ratios.h"
#include "tvok/host/desktop/gdi/DeviceContext.h"

namespace tvok::bench {
namespace {

constexpr const char* pinnedFont = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
constexpr std::int32_t pageWidth = 1280, pageHeight = 900, cellWidth = 120, cellHeight = 18;
constexpr std::int32_t columns = 10, cells = 270;

struct Page {
    soft::GdiObjects objects{Theme::Classic()};
    soft::TextEngine text{pinnedFont};
    soft::Surface surface{pageWidth, pageHeight};
    soft::Damage damage;
    soft::DeviceContext dc{objects, text};
    host::Handle brush = objects.Add(soft::Brush{false, 0xF0F0F0});

    Page() {
        dc.Target(&surface, 0, 0, &damage);
        dc.Clip(soft::Region({0, 0, pageWidth, pageHeight}));
        dc.BkColor(0xF0F0F0);
    }
    static tvok_Rect CellAt(std::int32_t index) {
        const std::int32_t left = index % columns * cellWidth, top = index / columns * cellHeight;
        return {left, top, left + cellWidth, top + cellHeight};
    }
    void Fill() {
        for (std::int32_t i = 0; i < cells; ++i) dc.FillRect(CellAt(i), brush);
        damage.Take();
    }
    /// Draws each cell with the next of `words`.
    void Draw(const std::vector<std::string>& words, std::size_t& next) {
        for (std::int32_t i = 0; i < cells; ++i) {
            const tvok_Rect cell = CellAt(i);
            dc.TextOut(cell.Left + 2, cell.Top + 2, host::ETO_OPAQUE | host::ETO_CLIPPED, &cell, words[next],
                       nullptr);
            if (++next == words.size()) next = 0;
        }
        damage.Take();
    }
};

/// Different words of 8 to 16 letters.
std::vector<std::string> Words(std::size_t count, unsigned seed) {
    std::mt19937 random(seed);
    std::vector<std::string> words(count);
    for (std::string& word : words)
        for (std::size_t i = 8 + random() % 9; i > 0; --i)
            word += static_cast<char>((random() % 6 == 0 ? 'A' : 'a') + static_cast<int>(random() % 26));
    return words;
}

/// Against the fills of the same run, and heap blocks per cell.
void ReportCells(Page& page, const char* what, const std::vector<std::string>& words) {
    std::size_t next = 0;
    page.Draw(words, next);
    const double ratio = RatioOf([&] { page.Draw(words, next); }, [&] { page.Fill(); });
    page.Draw(words, next);
    const double taken = AllocationsOf([&] {
        for (int run = 0; run < 20; ++run) page.Draw(words, next);
    });
    Report((std::string("a cell of ") + what + " / its fill").c_str(), ratio, Wanted::AtMost, 5);
    Report((std::string("heap blocks of a cell of ") + what).c_str(), taken / (20.0 * cells), Wanted::AtMost,
           0, "");
}

void ReportText() {
    Page page;
    std::size_t next = 0;
    page.Draw(Words(cells, 1), next); // all letters are known then
    ReportCells(page, "repeated text", Words(cells, 2));
    ReportCells(page, "new text", Words(cells * 1000, 3));
}

void ReportScroll() {
    Page page;
    const tvok_Rect whole{0, 0, pageWidth, pageHeight};
    std::vector<soft::Pixel> pixels(std::size_t{pageWidth} * pageHeight);
    const std::size_t row = std::size_t{pageWidth} * cellHeight;
    soft::Region uncovered;
    const auto moveBytes = [&] {
        std::memmove(pixels.data(), pixels.data() + row, (pixels.size() - row) * sizeof pixels[0]);
    };
    const auto scroll = [&] {
        page.dc.Scroll(0, -cellHeight, whole, whole, uncovered);
        page.damage.Take();
    };
    moveBytes();
    scroll();
    const double ratio = RatioOf(scroll, moveBytes);
    Report("Scroll of a page by a row / memmove of the page", ratio, Wanted::AtMost, 1.3);
    const double taken = AllocationsOf([&] {
        for (int run = 0; run < 20; ++run) scroll();
    });
    Report("heap blocks of a Scroll", taken / 20, Wanted::AtMost, 0, "");
}

} // namespace
} // namespace tvok::bench

int main() {
    tvok::bench::ReportText();
    tvok::bench::ReportScroll();
    return tvok::bench::missed;
}
