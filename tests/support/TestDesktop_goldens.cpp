/// Traces and pictures that were looked at before.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>

#include <gtest/gtest.h>

#include "tests/support/TestDesktop.h"
#include "tvok/host/desktop/pixels/Png.h"
#include "tvok/host/desktop/windows/FormWindow.h"

namespace tvok::test {

namespace {

namespace fs = std::filesystem;

bool Updating() {
    const char* update = std::getenv("TVOK_UPDATE_GOLDENS");
    return update && std::string_view(update) == "1";
}

fs::path GoldenFile(std::string_view name, const char* extension) {
    return fs::path(TVOK_TEST_DATA) / "golden" / (std::string(name) + extension);
}

fs::path OutputFile(std::string_view name, const char* extension) {
    const fs::path file = fs::path(TVOK_TEST_OUTPUT) / "golden" / (std::string(name) + extension);
    fs::create_directories(file.parent_path());
    return file;
}

std::optional<std::vector<std::string>> ReadLines(const fs::path& file) {
    std::ifstream in(file);
    if (!in) return {};
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

void WriteLines(const fs::path& file, const std::vector<std::string>& lines) {
    fs::create_directories(file.parent_path());
    std::ofstream out(file);
    for (const std::string& line : lines) out << line << '\n';
    if (!out) FAIL() << file << " cannot be written";
}

/// The lines from the first that differs on, with their numbers.
std::string FirstDifference(const std::vector<std::string>& expected,
                            const std::vector<std::string>& actual) {
    std::size_t at = 0;
    while (at < expected.size() && at < actual.size() && expected[at] == actual[at]) ++at;
    const auto line = [at](const std::vector<std::string>& lines) {
        return at < lines.size() ? lines[at] : std::string("(end)");
    };
    return "line " + std::to_string(at + 1) + "\n  expected: " + line(expected) +
           "\n  actual:   " + line(actual);
}

const soft::Window& WindowOf(TestDesktop& desktop, const host::Control& control) {
    return desktop.form().window().EntryOf(control).component->window();
}

soft::Surface SurfaceOf(const std::vector<std::uint32_t>& pixels, std::int32_t width) {
    const auto height = static_cast<std::int32_t>(pixels.size()) / std::max(width, 1);
    soft::Surface surface(width, height);
    for (std::int32_t y = 0; y < height; ++y)
        std::copy_n(pixels.begin() + std::ptrdiff_t{y} * width, width, surface.Row(y));
    return surface;
}

/// Differing pixels in red on a pale copy; the number of them.
int Compare(const soft::Image& expected, const soft::Surface& actual, soft::Surface& difference,
            host::Point& first) {
    int count = 0;
    for (std::int32_t y = 0; y < actual.Height(); ++y)
        for (std::int32_t x = 0; x < actual.Width(); ++x) {
            const std::size_t place = static_cast<std::size_t>(y) * static_cast<std::size_t>(expected.width) +
                                      static_cast<std::size_t>(x);
            const bool inside = x < expected.width && y < expected.height;
            const std::uint32_t is = actual.Row(y)[x];
            if (inside && (expected.pixels[place] & 0xFFFFFF) == is) {
                difference.Row(y)[x] = 0xC0C0C0 | (is >> 2 & 0x3F3F3F);
                continue;
            }
            if (count++ == 0) first = {x, y};
            difference.Row(y)[x] = 0xFF0000;
        }
    return count;
}

void ExpectSurface(std::string_view name, const soft::Surface& actual) {
    const fs::path golden = GoldenFile(name, ".png");
    if (Updating()) {
        fs::create_directories(golden.parent_path());
        return soft::WritePng(golden.string(), actual);
    }
    const fs::path actualFile = OutputFile(name, ".actual.png");
    if (!fs::exists(golden)) {
        soft::WritePng(actualFile.string(), actual);
        ADD_FAILURE() << "there is no " << golden << "\nactual: " << actualFile;
        return;
    }
    const soft::Image expected = soft::ReadPng(golden.string());
    soft::Surface difference(actual.Width(), actual.Height());
    host::Point first;
    const int count = Compare(expected, actual, difference, first);
    if (count == 0 && expected.width == actual.Width() && expected.height == actual.Height()) return;
    const fs::path differenceFile = OutputFile(name, ".difference.png");
    soft::WritePng(actualFile.string(), actual);
    soft::WritePng(differenceFile.string(), difference);
    ADD_FAILURE() << "the picture differs from " << golden << " in " << count << " pixels, first at ("
                  << first.x << ", " << first.y << "); sizes " << expected.width << " x " << expected.height
                  << " and " << actual.Width() << " x " << actual.Height() << "\nactual: " << actualFile
                  << "\ndifference: " << differenceFile;
}

} // namespace

void ExpectTrace(std::string_view name, const std::vector<std::string>& lines) {
    const fs::path golden = GoldenFile(name, ".trace");
    if (Updating()) return WriteLines(golden, lines);
    const auto expected = ReadLines(golden);
    if (expected && *expected == lines) return;
    const fs::path actual = OutputFile(name, ".actual.trace");
    WriteLines(actual, lines);
    ADD_FAILURE() << (expected ? "the trace differs from " : "there is no ") << golden
                  << "\nactual: " << actual << '\n'
                  << (expected ? FirstDifference(*expected, lines) : std::string());
}

void ExpectPicture(std::string_view name, TestDesktop& desktop, const host::Control& control) {
    const auto width = soft::WidthOf(WindowOf(desktop, control).clientArea());
    ExpectSurface(name, SurfaceOf(desktop.Pixels(control), width));
}

void ExpectPictureWithFrame(std::string_view name, TestDesktop& desktop, const host::Control& control) {
    const auto width = soft::WidthOf(WindowOf(desktop, control).outer());
    ExpectSurface(name, SurfaceOf(desktop.PixelsWithFrame(control), width));
}

} // namespace tvok::test
