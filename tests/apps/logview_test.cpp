// The log viewer's parts that work without a window.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "apps/logview/Columns.h"
#include "apps/logview/LineIndex.h"
#include "apps/logview/LogFile.h"
#include "apps/logview/Options.h"
#include "apps/logview/Search.h"
#include "apps/logview/Settings.h"
#include "tvok/records/Error.h"

namespace logview {
namespace {

class LogviewFiles : public testing::Test {
protected:
    LogviewFiles() {
        folder_ = std::filesystem::temp_directory_path() / ("tvok-logview-" + std::to_string(::getpid()));
        std::filesystem::create_directories(folder_);
    }
    ~LogviewFiles() override { std::filesystem::remove_all(folder_); }

    std::string Path(const char* name) const { return (folder_ / name).string(); }
    std::string Write(const char* name, const std::string& bytes, bool append = false) const {
        std::ofstream(Path(name), append ? std::ios::app | std::ios::binary : std::ios::binary) << bytes;
        return Path(name);
    }

private:
    std::filesystem::path folder_;
};

std::string Numbered(int lines) {
    std::string bytes;
    for (int i = 0; i < lines; ++i) bytes += "line " + std::to_string(i) + std::string(i % 7, 'x') + "\n";
    return bytes;
}

TEST_F(LogviewFiles, LinesAreFoundWhereverTheyStand) {
    const auto file = LogFile::Open(Write("a", Numbered(3000)));
    LineIndex index(file, [] {});
    index.Wait();
    ASSERT_EQ(index.Lines(), 3000U);
    for (const std::uint64_t line : {0U, 1U, 255U, 256U, 257U, 2047U, 2048U, 100U, 2999U})
        EXPECT_EQ(index.TextOf(line), "line " + std::to_string(line) + std::string(line % 7, 'x'));
    EXPECT_EQ(index.TextOf(3000), "");
}

TEST_F(LogviewFiles, APlaceBelongsToTheLineThatItStandsIn) {
    const auto file = LogFile::Open(Write("a", Numbered(3000)));
    LineIndex index(file, [] {});
    index.Wait();
    for (std::uint64_t line = 0; line < 3000; line += 97) {
        EXPECT_EQ(index.LineAt(index.OffsetOf(line)), line);
        EXPECT_EQ(index.LineAt(index.OffsetOf(line) + 3), line);
    }
}

TEST_F(LogviewFiles, ALineWithoutAnEndCountsOnceItIsNotEmpty) {
    const std::string path = Write("a", "one\r\ntwo");
    const auto file = LogFile::Open(path);
    LineIndex index(file, [] {});
    index.Wait();
    EXPECT_EQ(index.Lines(), 2U);
    EXPECT_EQ(index.TextOf(0), "one");
    EXPECT_EQ(index.TextOf(1), "two");
    Write("a", " and more\nthree\n", true);
    EXPECT_EQ(file->Look(), FileChange::Grown);
    index.Extend();
    index.Wait();
    EXPECT_EQ(index.Lines(), 3U);
    EXPECT_EQ(index.TextOf(1), "two and more");
}

TEST_F(LogviewFiles, TheIndexTakesLessThanAByteForEightLines) {
    const auto file = LogFile::Open(Write("a", std::string(1000000, '\n')));
    LineIndex index(file, [] {});
    index.Wait();
    EXPECT_EQ(index.Lines(), 1000000U);
    EXPECT_LT(index.MemoryUsed(), 1000000U / 8);
}

TEST_F(LogviewFiles, WhatBecomesOfAFileIsNoticed) {
    const std::string path = Write("a", "one\ntwo\n");
    const auto file = LogFile::Open(path);
    EXPECT_EQ(file->Look(), FileChange::None);
    Write("a", "1\n");
    EXPECT_EQ(file->Look(), FileChange::Truncated);
    std::filesystem::remove(path);
    EXPECT_EQ(file->Look(), FileChange::Removed);
    Write("b", "new\n");
    std::filesystem::rename(Path("b"), path);
    EXPECT_EQ(file->Look(), FileChange::Rotated);
}

TEST_F(LogviewFiles, AFileThatCannotBeOpenedSaysWhy) {
    EXPECT_THROW(LogFile::Open(Path("none")), tvok::FileError);
    EXPECT_THROW(LogFile::Open(std::filesystem::temp_directory_path().string()), tvok::FileError);
}

TEST_F(LogviewFiles, FindsForwardsAndBackwardsAcrossBlocks) {
    std::string bytes(3 * 1024 * 1024, '.');
    const std::size_t across = 1024 * 1024 - 3;
    bytes.replace(across, 6, "Needle");
    bytes.replace(bytes.size() - 6, 6, "needle");
    const auto file = LogFile::Open(Write("a", bytes));
    const auto find = [&](const char* text, std::uint64_t from, Search::Direction direction) {
        std::optional<std::uint64_t> place;
        Search search(file);
        search.Start(text, from, direction, [&](std::optional<std::uint64_t> found) { place = found; });
        while (search.IsBusy()) std::this_thread::yield();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        search.Cancel();
        return place;
    };
    EXPECT_EQ(find("needle", 0, Search::Direction::Forward), across);
    EXPECT_EQ(find("needle", across + 1, Search::Direction::Forward), bytes.size() - 6);
    EXPECT_EQ(find("Needle", across + 1, Search::Direction::Forward), std::nullopt);
    EXPECT_EQ(find("needle", bytes.size() - 6, Search::Direction::Backward), across);
    EXPECT_EQ(find("needle", across, Search::Direction::Backward), std::nullopt);
    EXPECT_EQ(find("", 0, Search::Direction::Forward), std::nullopt);
}

TEST_F(LogviewFiles, WidthsAreRememberedForEachKindOfLog) {
    Settings first(Path("config/logview.toml"));
    first.Widths("delimiter , 3", "100-200-300");
    first.Save();
    EXPECT_EQ(Settings(Path("config/logview.toml")).Widths("delimiter , 3"), "100-200-300");
    Write("broken.toml", "[widths\n");
    EXPECT_EQ(Settings(Path("broken.toml")).Widths("delimiter , 3"), "");
}

TEST(LogviewColumns, ALineIsCutAtDelimitersOutsideQuotes) {
    const Columns columns = Columns::ByDelimiter(',', 3);
    EXPECT_EQ(columns.Cells("a,\"b,c\",d,e"), "a\tb,c\td,e");
    EXPECT_EQ(columns.Cells("a"), "a\t\t");
}

TEST(LogviewColumns, TheKindOfALogIsGuessedFromItsFirstLines) {
    const Columns table = Columns::Guess({"name,size,date", "a,1,2026-01-01", "b,2,2026-01-02"});
    EXPECT_TRUE(table.FirstLineIsHeader());
    EXPECT_THAT(table.Names(), testing::ElementsAre("name", "size", "date"));
    const Columns level =
        Columns::Guess({"2026-01-02T03:04:05.678 ERROR it broke", "2026-01-02 03:04:06 [INFO] up"});
    EXPECT_EQ(level.Cells("2026-01-02T03:04:05.678 ERROR it broke"),
              "2026-01-02T03:04:05.678\tERROR\tit broke");
    EXPECT_EQ(level.Cells("   at somewhere"), "\t\t   at somewhere");
    EXPECT_EQ(Columns::Guess({"just words", "and more of them"}).Count(), 1U);
}

TEST(LogviewColumns, APatternThatCannotBeUsedSaysSo) {
    EXPECT_THROW(Columns::ByPattern("("), tvok::Error);
    EXPECT_EQ(Columns::ByPattern("(a+)-(b+)").Cells("aa-b"), "aa\tb");
}

TEST(LogviewColumns, TheFirstLevelWordTellsTheSeverity) {
    EXPECT_EQ(SeverityOf("12:00 ERROR no info"), Severity::Error);
    EXPECT_EQ(SeverityOf("12:00 [warning] x"), Severity::Warning);
    EXPECT_EQ(SeverityOf("terrors and warnings_of"), Severity::None);
    EXPECT_EQ(SeverityOf("Debug: x"), Severity::Debug);
}

TEST(LogviewOptions, SwitchesThatContradictOrLackSomethingAreRefused) {
    Options options;
    std::string error;
    EXPECT_TRUE(ParseOptions({"--newest-first", "--line", "7", "a.log"}, options, error));
    EXPECT_TRUE(options.follow);
    EXPECT_EQ(options.line, 7);
    for (const std::vector<std::string>& bad : {std::vector<std::string>{},
                                                {"a", "b"},
                                                {"--line"},
                                                {"--line", "0", "a"},
                                                {"--x", "a"},
                                                {"--delimiter", ",", "--pattern", "x", "a"},
                                                {"--delimiter", "ab", "a"}}) {
        Options none;
        error.clear();
        EXPECT_FALSE(ParseOptions(bad, none, error));
        EXPECT_NE(error, "");
    }
}

} // namespace
} // namespace logview
