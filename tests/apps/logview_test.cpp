// The log viewer's parts that work without a window.

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "apps/logview/Columns.h"
#include "apps/logview/LineIndex.h"
#include "apps/logview/LogFile.h"
#include "apps/logview/Options.h"
#include "apps/logview/Search.h"
#include "apps/logview/Settings.h"
#include "tests/apps/LogviewFiles.h"
#include "tvok/records/Error.h"

namespace logview {
namespace {

TEST_F(LogviewFiles, LinesAreFoundWhereverTheyStand) {
    const auto file = LogFile::Open(Write("a", Numbered(3000)));
    LineIndex index(file, [] {});
    index.Wait();
    ASSERT_EQ(index.Lines(), 3000U);
    for (const std::uint64_t line : {0U, 1U, 255U, 256U, 257U, 2047U, 2048U, 100U, 2999U})
        EXPECT_EQ(index.TextOf(line, 100), "line " + std::to_string(line) + std::string(line % 7, 'x'));
    EXPECT_EQ(index.TextOf(3000, 100), "");
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
    EXPECT_EQ(index.TextOf(0, 100), "one");
    EXPECT_EQ(index.TextOf(1, 100), "two");
    Write("a", " and more\nthree\n", true);
    EXPECT_EQ(file->Look(), FileChange::Grown);
    index.Extend();
    index.Wait();
    EXPECT_EQ(index.Lines(), 3U);
    EXPECT_EQ(index.TextOf(1, 100), "two and more");
}

TEST_F(LogviewFiles, TheIndexTakesLessThanAByteForEightLines) {
    const auto file = LogFile::Open(Write("a", std::string(1000000, '\n')));
    LineIndex index(file, [] {});
    index.Wait();
    EXPECT_EQ(index.Lines(), 1000000U);
    EXPECT_LT(index.MemoryUsed(), 1000000U / 8);
}

TEST_F(LogviewFiles, LongLinesHaveMarksOfTheirOwn) {
    std::string bytes;
    for (int i = 0; i < 20; ++i) bytes += std::to_string(i) + ":" + std::string(400000, 'y') + "\n";
    const auto file = LogFile::Open(Write("a", bytes));
    LineIndex index(file, [] {});
    index.Wait();
    ASSERT_EQ(index.Lines(), 20U);
    EXPECT_GT(index.MemoryUsed(), 5 * sizeof(std::uint64_t) * 2); // not one mark alone for the 20 lines
    for (const std::uint64_t line : {19U, 0U, 7U, 12U}) {
        EXPECT_EQ(index.TextOf(line, 4), (std::to_string(line) + ":yyy").substr(0, 4));
        EXPECT_EQ(index.LineAt(index.OffsetOf(line) + 399999), line);
    }
    EXPECT_EQ(index.EndOf(19), bytes.size());
    EXPECT_EQ(index.EndOf(3), index.OffsetOf(4));
}

TEST_F(LogviewFiles, LineFeedsAreCountedInPiecesOfEverySize) {
    std::string bytes;
    for (std::size_t i = 0; i < 40000; ++i) bytes += i % 7 == 0 || i % 3 == 0 ? '\n' : 'x';
    for (const std::size_t size : {0U, 1U, 31U, 63U, 64U, 65U, 4096U, 16319U, 16320U, 16321U, 40000U})
        EXPECT_EQ(CountLineFeeds(bytes.data(), size),
                  static_cast<std::uint64_t>(
                      std::count(bytes.begin(), bytes.begin() + static_cast<int>(size), '\n')));
    const std::string feeds(40000, '\n');
    EXPECT_EQ(CountLineFeeds(feeds.data(), feeds.size()), 40000U);
}

TEST_F(LogviewFiles, AnEmptyFileHasNoLines) {
    const auto file = LogFile::Open(Write("a", ""));
    LineIndex index(file, [] {});
    index.WaitForFirstLines();
    EXPECT_EQ(index.Lines(), 0U);
    EXPECT_EQ(index.TextOf(0, 100), "");
    EXPECT_EQ(index.LineAt(0), 0U);
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

TEST_F(LogviewFiles, AFileThatIsCutAndGrowsPastItsOldSizeIsNoticed) {
    const std::string path = Write("a", "one\ntwo\n");
    const auto file = LogFile::Open(path);
    Write("a", "other lines, and more of them\n");
    EXPECT_EQ(file->Look(), FileChange::Truncated);
    Write("a", "grown\n", true);
    EXPECT_EQ(file->Look(), FileChange::Grown);
    EXPECT_EQ(file->Look(), FileChange::None);
}

std::string WordsOf(const std::string& path) {
    try {
        LogFile::Open(path);
    } catch (const tvok::FileError& error) {
        return error.what();
    }
    return {};
}

TEST_F(LogviewFiles, AFileThatCannotBeOpenedSaysWhy) {
    EXPECT_THAT(WordsOf(Path("none")), testing::HasSubstr("no such file"));
    EXPECT_THAT(WordsOf(std::filesystem::temp_directory_path().string()), testing::HasSubstr("a folder"));
    EXPECT_THAT(WordsOf("/dev/null"), testing::HasSubstr("a device"));
    if (::geteuid() == 0) return; // who may read everything
    ::chmod(Write("secret", "x").c_str(), 0);
    EXPECT_THAT(WordsOf(Path("secret")), testing::HasSubstr("may not be read"));
}

TEST_F(LogviewFiles, APipeIsReadAsItsBytesArrive) {
    ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
    const auto file = LogFile::Open(Path("pipe")); // before anyone writes to it
    EXPECT_EQ(file->Look(), FileChange::None);
    Write("pipe", "one\n");
    while (file->Size() < 4) std::this_thread::yield();
    EXPECT_EQ(file->Look(), FileChange::Grown);
    char bytes[8] = {};
    EXPECT_EQ(file->Read(0, bytes, sizeof bytes), 4U);
    EXPECT_STREQ(bytes, "one\n");
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
    EXPECT_EQ(find("n", 0, Search::Direction::Forward), across); // either case of a letter
    EXPECT_EQ(find("e", bytes.size(), Search::Direction::Backward), bytes.size() - 1);
}

TEST_F(LogviewFiles, WidthsAreRememberedForEachKindOfLog) {
    Settings first(Path("config/logview.toml"));
    first.Widths("delimiter , 3", "100-200-300");
    first.Save();
    EXPECT_EQ(Settings(Path("config/logview.toml")).Widths("delimiter , 3"), "100-200-300");
    Settings other(Path("config/logview.toml"));
    first.Widths("line", "7");
    first.Save();
    other.Widths("delimiter ; 2", "1-2");
    other.Save(); // which keeps what the first one wrote meanwhile
    EXPECT_EQ(Settings(Path("config/logview.toml")).Widths("line"), "7");
    EXPECT_EQ(Settings(Path("config/logview.toml")).Widths("delimiter ; 2"), "1-2");
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
