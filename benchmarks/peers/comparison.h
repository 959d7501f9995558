/// What the compared programs share, of this library and of other toolkits: the window, the texts, where a
/// run begins, how a step is measured, and the line that tells it. Standard library and POSIX only.
///
/// Each program is called as `PROGRAM CASE N [PICTURE]`, prints one line of JSON for each figure, and ends
/// with 0; with 1 where the steps did not do what they should have done; with 3 where it does not have the
/// case.
#pragma once

#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace tvok::comparison {

/// Client size of the window and of what is in it, in pixels. A page has 49 rows below the header.
constexpr int cWidth = 1280, cHeight = 900, cRowHeight = 18;
constexpr int cColumns = 6, cColumnWidth = 206;
constexpr int cFontPixels = 12;
constexpr const char* cFont = "DejaVu Sans";

/// How many groups a list of properties has where one is folded: the first has all that the case names, the
/// others have so many.
constexpr int cFoldGroups = 10, cFoldOthers = 100;

// Texts: each is computed when it is asked for.

/// Numbers without order, the same for everybody.
inline std::uint64_t Scattered(std::int64_t row) {
    std::uint64_t state = static_cast<std::uint64_t>(row) * 6364136223846793005U + 1442695040888963407U;
    state ^= state >> 33;
    state *= 0xff51afd7ed558ccdU;
    return state ^ (state >> 29);
}

/// Holds one text, of up to 31 characters, with a zero at its end.
class Text {
public:
    Text& Put(std::string_view text) {
        for (const char character : text.substr(0, static_cast<std::size_t>(cSize - 1 - length_)))
            characters_[length_++] = character;
        characters_[length_] = 0;
        return *this;
    }
    Text& Number(std::int64_t value, int base = 10) {
        char digits[24];
        char* const end = std::to_chars(digits, digits + sizeof digits, value, base).ptr;
        return Put({digits, static_cast<std::size_t>(end - digits)});
    }
    Text& TwoDigits(unsigned value) {
        const char digits[2] = {static_cast<char>('0' + value / 10 % 10),
                                static_cast<char>('0' + value % 10)};
        return Put({digits, 2});
    }
    const char* c_str() const { return characters_; }
    int size() const { return length_; }
    std::string_view View() const { return {characters_, static_cast<std::size_t>(length_)}; }

private:
    static constexpr int cSize = 32;
    char characters_[cSize] = {};
    int length_ = 0;
};

/// A cell of a row: a number, a name, a word, a code, a price, a time. Rows on top of row 0 are negative.
inline Text CellText(std::int64_t row, int column) {
    static constexpr std::string_view words[] = {"amber", "birch", "copper", "denim",  "ebony",  "flint",
                                                 "glass", "hazel", "indigo", "jasper", "linen",  "marble",
                                                 "olive", "pearl", "quartz", "russet", "silver", "timber"};
    const std::uint64_t any = Scattered(row);
    const auto second = static_cast<unsigned>(any >> 7) % 86400U;
    Text text;
    switch (column) {
    case 0: return text.Number(row);
    case 1: return text.Put("Part ").Number(static_cast<std::int64_t>(any % 10'000'000));
    case 2: return text.Put(words[any % std::size(words)]);
    case 3: return text.Number(static_cast<std::int64_t>(any >> 32), 16);
    case 4:
        return text.Number(static_cast<std::int64_t>((any >> 11) % 100'000))
            .Put(".")
            .TwoDigits(static_cast<unsigned>(any >> 41));
    default:
        return text.TwoDigits(second / 3600)
            .Put(":")
            .TwoDigits(second / 60 % 60)
            .Put(":")
            .TwoDigits(second % 60);
    }
}

/// What is sorted: 4 to 11 letters, every third text with a capital.
inline std::string SortText(std::int64_t number) {
    std::uint64_t any = Scattered(number);
    std::string text(4 + any % 8, ' ');
    any >>= 4;
    for (char& letter : text) {
        letter = static_cast<char>('a' + any % 26);
        any /= 26;
    }
    if (number % 3 == 0) text.front() = static_cast<char>(text.front() - 'a' + 'A');
    return text;
}

// Steps.

/// The row that is on top of the page before a scroll and where somebody reads: as far from both ends as a
/// thousand steps need.
inline std::int64_t StartRow(std::int64_t rows) {
    return rows / 4;
}

/// Steps of so many rows from there until the next jump back.
inline int StepsFromStart(std::int64_t rows, int rowsPerStep) {
    return static_cast<int>(std::clamp<std::int64_t>(rows / 2 / rowsPerStep, 4, 1000));
}

/// Steps within a page from its first row until the next jump back.
constexpr int cStepsOnPage = 40;

// Measuring.

/// Microseconds of processor time: this program's, and the X server's with it where TVOK_COMPARED_SERVER
/// names the server's process, since a program that draws through one has half of its work done there.
/// Waiting costs nothing, and what else runs on the machine does not count.
inline double ProcessorTime() {
    static const clockid_t server = [] {
        const char* const process = std::getenv("TVOK_COMPARED_SERVER");
        clockid_t clock = CLOCK_PROCESS_CPUTIME_ID;
        if (process == nullptr || clock_getcpuclockid(std::atoi(process), &clock) != 0)
            return CLOCK_PROCESS_CPUTIME_ID;
        return clock;
    }();
    const auto read = [](clockid_t clock) {
        timespec now{};
        clock_gettime(clock, &now);
        return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) * 1e-3;
    };
    const double own = read(CLOCK_PROCESS_CPUTIME_ID);
    return server == CLOCK_PROCESS_CPUTIME_ID ? own : own + read(server);
}

/// Seconds by the clock that a case may take, from TVOK_COMPARED_SECONDS; 1 by default.
inline double Allowed() {
    const char* const seconds = std::getenv("TVOK_COMPARED_SECONDS");
    return seconds != nullptr ? std::atof(seconds) : 1;
}

inline double Clock() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// Steps that are done before the first that counts.
constexpr int cWarmUp = 3;

/// Microseconds of each step. `before(i)` runs ahead of `step(i)` and is not measured; i counts from 0, the
/// first few being to warm up. At least `least` steps are counted, at most a thousand.
template<class Before, class Step>
std::vector<double> Measure(int least, Before&& before, Step&& step) {
    constexpr int most = 1000;
    std::vector<double> times;
    const double end = Clock() + Allowed();
    for (int i = 0; i < cWarmUp + most; ++i) {
        before(i);
        const double start = ProcessorTime();
        step(i);
        const double time = ProcessorTime() - start;
        if (i >= cWarmUp) times.push_back(time);
        if (static_cast<int>(times.size()) >= least && Clock() > end) break;
    }
    return times;
}

// The program.

enum class Unit { Microseconds, Milliseconds };

/// One run of one program: what it was asked for, and what it tells.
struct Run {
    const char* program; ///< The short name of the toolkit.
    std::string name;    ///< Of the case.
    std::int64_t n = 0;
    std::string picture; ///< A file for what was painted last; empty: none.
    bool right = true;   ///< Whether all steps did what they should have done.

    int rows() const { return static_cast<int>(n); }

    /// Prints the median as the figure of this case, or of another that was measured along.
    void Tell(std::vector<double> times, Unit unit = Unit::Microseconds, const char* of = nullptr) const {
        std::sort(times.begin(), times.end());
        const double scale = unit == Unit::Milliseconds ? 1e-3 : 1;
        std::printf(R"({"peer":"%s","case":"%s","n":%lld,"unit":"%s","value":%.3f,"runs":%zu,"p10":%.3f,)"
                    R"("p90":%.3f})"
                    "\n",
                    program, of != nullptr ? of : name.c_str(), static_cast<long long>(n),
                    unit == Unit::Milliseconds ? "ms" : "us", times.at(times.size() / 2) * scale,
                    times.size(), times.at(times.size() / 10) * scale,
                    times.at(times.size() * 9 / 10) * scale);
        std::fflush(stdout);
    }

    /// Says that something is not as it should be, unless it is.
    void Expect(bool holds, const char* what) {
        if (!holds) std::fprintf(stderr, "%s %s: not so: %s\n", program, name.c_str(), what);
        right = right && holds;
    }
};

struct Case {
    std::string_view name;
    void (*measure)(Run&);
};

/// Runs the case that the arguments name and ends the process at once: what a toolkit does on its way out is
/// not looked at.
[[noreturn]] inline void RunOne(const char* program, int count, char** arguments,
                                std::initializer_list<Case> cases) {
    if (count < 3) {
        std::fprintf(stderr, "usage: %s CASE N [PICTURE]\n", *arguments);
        std::_Exit(2);
    }
    Run run{program, arguments[1], std::atoll(arguments[2]), count > 3 ? arguments[3] : ""};
    for (const Case& one : cases) {
        if (one.name != run.name) continue;
        one.measure(run);
        std::_Exit(run.right ? 0 : 1);
    }
    std::_Exit(3);
}

/// Keeps the X server's whole screen as the picture, where TVOK_COMPARED_SCREEN names the file in which it is
/// (`Xvfb -fbdir`).
inline void SaveScreen(const Run& run) {
    const char* const screen = std::getenv("TVOK_COMPARED_SCREEN");
    if (run.picture.empty() || screen == nullptr) return;
    std::filesystem::copy_file(screen, run.picture, std::filesystem::copy_options::overwrite_existing);
}

} // namespace tvok::comparison
