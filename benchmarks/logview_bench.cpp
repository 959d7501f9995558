// usage: logview_bench [LOG]
// The log viewer on a large log: its first page, its index against `wc -l` on the same file, and copying.
// Without a log it writes one of 1 GB to the folder for temporary files and removes it at the end.

#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <random>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "apps/logview/Viewer.h"
#include "benchmarks/LargeListPage.h"
#include "benchmarks/ratios.h"

namespace logview {
namespace {

constexpr std::uint64_t cSize = 1'000'000'000;
constexpr int cRuns = 5;

struct Spent {
    double processor = 1e9; ///< Seconds; the least of several runs, as the next.
    double clock = 1e9;
    void Take(double processorSeconds, double clockSeconds) {
        processor = std::min(processor, processorSeconds);
        clock = std::min(clock, clockSeconds);
    }
};

double Clock() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

double ThreadTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double ChildrenTime() {
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval& t) {
        return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) * 1e-6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// Lines of 60 to 160 bytes as a service writes them. A block of 16 MB is varied and written again and again.
std::string Block() {
    const char* const levels[] = {"INFO", "INFO", "INFO", "DEBUG", "DEBUG", "WARN", "ERROR"};
    const char* const events[] = {"request finished in", "connection accepted from peer",
                                  "cache miss for key", "retrying the upload of part", "queue length is"};
    std::mt19937 random(1);
    std::string block;
    char text[160];
    for (unsigned line = 0; block.size() < std::size_t{16} * 1024 * 1024; ++line) {
        std::snprintf(text, sizeof text, "2026-03-04 05:%02u:%02u.%03u %s worker-%u %s %u", line / 60000 % 60,
                      line / 1000 % 60, line % 1000, levels[random() % 7],
                      static_cast<unsigned>(random() % 32), events[random() % 5],
                      static_cast<unsigned>(random()));
        block += text;
        for (auto field = random() % 6; field > 0; --field) {
            std::snprintf(text, sizeof text, " field%u=%08x", static_cast<unsigned>(field),
                          static_cast<unsigned>(random()));
            block += text;
        }
        block += '\n';
    }
    return block;
}

void WriteLog(const std::string& path) {
    const std::string block = Block();
    std::ofstream file(path, std::ios::binary);
    for (std::uint64_t size = 0; size < cSize && file; size += block.size()) file << block;
    if (!file.flush()) throw tvok::FileError(path + ": the log cannot be written");
}

std::uint64_t CountWith(const std::string& path, Spent& spent) {
    const double processor = ChildrenTime();
    const double start = Clock();
    const std::string command = "wc -l < '" + path + "'";
    FILE* const pipe = popen(command.c_str(), "r");
    unsigned long long lines = 0;
    if (pipe == nullptr || std::fscanf(pipe, "%llu", &lines) != 1) throw tvok::Error("wc -l does not run");
    pclose(pipe);
    spent.Take(ChildrenTime() - processor, Clock() - start);
    return lines;
}

std::uint64_t Index(const std::string& path, Spent& spent, std::size_t& memory) {
    const double processor = tvok::bench::Now();
    const double start = Clock();
    LineIndex index(LogFile::Open(path), [] {});
    index.Wait();
    spent.Take(tvok::bench::Now() - processor, Clock() - start);
    memory = index.MemoryUsed();
    return index.Lines();
}

void ReportIndex(const std::string& path) {
    Spent counting;
    Spent indexing;
    std::size_t memory = 0;
    std::uint64_t lines = 0;
    for (int run = 0; run < cRuns; ++run) { // in turn, so that both meet the same neighbours
        const std::uint64_t counted = CountWith(path, counting);
        lines = Index(path, indexing, memory);
        const bool unfinished = lines == counted + 1; // a last line without an end
        if (lines != counted && !unfinished)
            throw tvok::Error("the index and wc -l do not count the same lines");
    }
    const auto bytes = static_cast<double>(std::filesystem::file_size(path));
    std::printf("  %.1f GB, %llu lines; wc -l %.2f s (%.2f s of processor), index %.2f s (%.2f s)\n",
                bytes / 1e9, static_cast<unsigned long long>(lines), counting.clock, counting.processor,
                indexing.clock, indexing.processor);
    tvok::bench::Report("log viewer, speed of the index / speed of wc -l",
                        counting.processor / indexing.processor, tvok::bench::Wanted::AtLeast, 0.6);
    tvok::bench::Report("log viewer, memory of the index, bytes for 8 lines",
                        static_cast<double>(memory) * 8 / static_cast<double>(lines),
                        tvok::bench::Wanted::AtMost, 1, "bytes");
}

/// Processor time of opening a window with a list that is there.
double OpeningOfAList() {
    tvok::bench::LargeListPage page;
    double seconds = 1e9;
    for (int run = 0; run < 10 * cRuns; ++run) {
        seconds = std::min(seconds, tvok::bench::Seconds(1, [&] {
                               page.Open(1'000'000, [](std::int32_t row, std::string& text) {
                                   for (int column = 0; column < tvok::bench::cListColumns; ++column) {
                                       tvok::bench::AppendNumber(text, row);
                                       text += '\t';
                                   }
                               });
                           }));
        page.Close();
    }
    return seconds;
}

/// From opening the log to the painted page, without the desktop's own start. The index works beside it.
void ReportFirstPage(const std::string& path) {
    const double list = OpeningOfAList();
    tvok::DesktopOptions screen;
    screen.display = tvok::DesktopOptions::Display::Headless;
    tvok::Desktop desktop(screen);
    Settings settings({});
    Options options;
    options.file = path;
    Spent spent;
    for (int run = 0; run < cRuns; ++run) {
        const double processor = ThreadTime();
        const double start = Clock();
        Viewer viewer(desktop, options, settings);
        desktop.ProcessEvents(std::chrono::milliseconds(0));
        spent.Take(ThreadTime() - processor, Clock() - start);
        desktop.Forms().back()->Close();
        desktop.ProcessEvents(std::chrono::milliseconds(0));
    }
    std::printf("  first page after %.1f ms by the clock, %.1f ms of processor\n", spent.clock * 1e3,
                spent.processor * 1e3);
    tvok::bench::Report("log viewer, work for the first page / opening a window with a list",
                        spent.processor / list, tvok::bench::Wanted::AtMost, 20);
}

/// Copies the first `lines` lines and gives the bytes of the copy.
std::size_t Copy(const CopyRange& range, std::uint64_t lines) {
    std::mutex guard;
    std::condition_variable ready;
    Copied result;
    bool done = false;
    Copier copier;
    copier.Start(range, [&](Copied&& copied) {
        const std::lock_guard lock(guard);
        result = std::move(copied);
        done = true;
        ready.notify_one();
    });
    std::unique_lock lock(guard);
    ready.wait(lock, [&] { return done; });
    if (result.lines != lines) throw tvok::Error("not all lines were copied: " + result.refusal);
    return result.text.size();
}

/// Seconds of processor that this takes.
double TimeOfCopy(const CopyRange& range, std::uint64_t lines) {
    std::size_t bytes = 0;
    const double seconds = tvok::bench::Seconds(1, [&] { bytes = Copy(range, lines); });
    std::printf("  %llu lines, %.1f MB, copied as %s in %.0f ms\n", static_cast<unsigned long long>(lines),
                static_cast<double>(bytes) / 1e6, range.asColumns ? "columns" : "text", seconds * 1e3);
    return seconds;
}

/// The floor: the same bytes read and put together as they are.
double TimeOfReading(const CopyRange& range) {
    return tvok::bench::Seconds(1, [&] {
        std::string text;
        std::string block(std::size_t{1024} * 1024, ' ');
        for (std::uint64_t at = range.from; at < range.to; at += block.size()) {
            const auto wanted =
                static_cast<std::size_t>(std::min<std::uint64_t>(block.size(), range.to - at));
            text.append(block.data(), range.file->Read(at, block.data(), wanted));
        }
        if (text.size() != range.to - range.from) throw tvok::Error("not all bytes were read");
    });
}

void ReportCopying(const std::string& path) {
    const auto file = LogFile::Open(path);
    LineIndex index(file, [] {});
    index.Wait();
    for (const bool asColumns : {false, true}) {
        CopyRange range{file, 0, 0, asColumns, Columns::ByDelimiter(' ', 6)};
        double few = 1e9, many = 1e9, fewRead = 1e9, manyRead = 1e9;
        for (int run = 0; run < 3 * cRuns; ++run) { // in turn, so that a busy moment does not hit one alone
            range.to = index.OffsetOf(100'000);
            few = std::min(few, TimeOfCopy(range, 100'000));
            fewRead = std::min(fewRead, TimeOfReading(range));
            range.to = index.OffsetOf(1'000'000);
            many = std::min(many, TimeOfCopy(range, 1'000'000));
            manyRead = std::min(manyRead, TimeOfReading(range));
        }
        tvok::bench::Report(
            asColumns ? "log viewer, copying 1,000,000 lines as columns / reading them into one text"
                      : "log viewer, copying 1,000,000 lines as text / reading them into one text",
            many / manyRead, tvok::bench::Wanted::AtMost, asColumns ? 10 : 5);
        tvok::bench::Report("  the same / that of 100,000 lines", many / manyRead / (few / fewRead),
                            tvok::bench::Wanted::AtMost, 1.5);
    }
}

void Run(const std::string& path) {
    ReportIndex(path);
    ReportFirstPage(path);
    ReportCopying(path);
}

} // namespace
} // namespace logview

int main(int argc, char** argv) {
    const auto own =
        std::filesystem::temp_directory_path() / ("logview-bench-" + std::to_string(getpid()) + ".log");
    try {
        if (argc < 2) logview::WriteLog(own.string());
        logview::Run(argc < 2 ? own.string() : argv[1]);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "logview_bench: %s\n", failure.what());
        ++tvok::bench::missed;
    }
    std::error_code ignored; // there is none where a log was given
    std::filesystem::remove(own, ignored);
    return tvok::bench::missed;
}
