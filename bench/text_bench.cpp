// A text cell - an opaque fill of 120 by 18 pixels and 8 to 16 letters - against the fill alone, and what it
// allocates once warm.

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "tvok/host/desktop/pixels/kernels.h"
#include "tvok/host/desktop/text/TextEngine.h"

namespace {

std::atomic<std::int64_t> allocations{0};

} // namespace

// Not inlined: a compiler that looks inside takes `free` for a slip.
[[gnu::noinline]] void* operator new(std::size_t size) {
    ++allocations;
    if (void* block = std::malloc(size)) return block;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* block) noexcept {
    std::free(block);
}
[[gnu::noinline]] void operator delete(void* block, std::size_t /*size*/) noexcept {
    std::free(block);
}

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
std::vector<std::string> Words(std::size_t count) {
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

void Finish(benchmark::State& state, std::int64_t before) {
    const auto drawn = state.iterations() * cells;
    state.SetItemsProcessed(drawn);
    state.counters["allocations/cell"] =
        static_cast<double>(allocations - before) / static_cast<double>(drawn);
}

void FillAlone(benchmark::State& state) {
    Page page;
    const std::int64_t before = allocations;
    for (auto _ : state)
        for (std::int32_t i = 0; i < cells; ++i) page.FillCell(i);
    Finish(state, before);
}

void DrawPages(benchmark::State& state, const std::vector<std::string>& words) {
    Page page;
    std::size_t next = std::min<std::size_t>(words.size(), 20'000) - 1;
    for (std::size_t i = 0; i <= next; ++i) page.engine.Measure(page.font, words[i]); // warms every cache
    const std::int64_t before = allocations;
    for (auto _ : state)
        for (std::int32_t i = 0; i < cells; ++i) {
            page.DrawCell(i, words[next]);
            if (++next == words.size()) next = 0;
        }
    Finish(state, before);
}

void RepeatedLatin(benchmark::State& state) {
    DrawPages(state, Words(cells));
}
void NewLatin(benchmark::State& state) {
    DrawPages(state, Words(200'000));
}
void RepeatedArabic(benchmark::State& state) {
    DrawPages(state, ArabicWords(cells));
}
void NewArabic(benchmark::State& state) {
    DrawPages(state, ArabicWords(200'000));
}

void MeasureLatin(benchmark::State& state) {
    Page page;
    const auto words = Words(cells);
    const std::int64_t before = allocations;
    for (auto _ : state)
        for (const std::string& word : words) benchmark::DoNotOptimize(page.engine.Measure(page.font, word));
    Finish(state, before);
}

BENCHMARK(FillAlone);
BENCHMARK(RepeatedLatin);
BENCHMARK(NewLatin);
BENCHMARK(RepeatedArabic);
BENCHMARK(NewArabic);
BENCHMARK(MeasureLatin);

} // namespace
} // namespace tvok::soft

BENCHMARK_MAIN();
