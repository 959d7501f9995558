// What the log viewer shows of a line's bytes, and what it copies.

#include <condition_variable>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <mutex>
#include <random>

#include "apps/logview/Copier.h"
#include "apps/logview/Search.h"
#include "apps/logview/texts.h"
#include "tests/apps/LogviewFiles.h"

namespace logview {
namespace {

TEST(LogviewTexts, ControlCharactersAreShownAsTheirPictures) {
    EXPECT_EQ(Shown("a\tb"), "a\tb");
    EXPECT_EQ(Shown(std::string_view("a\0b\x07", 4)), "a\xE2\x90\x80"
                                                      "b\xE2\x90\x87");
    EXPECT_EQ(Shown("\x7F\r"), "\xE2\x90\xA1\xE2\x90\x8D");
}

TEST(LogviewTexts, ColourSequencesAreLeftOut) {
    EXPECT_EQ(Shown("\x1B[1;31mERROR\x1B[0m it broke"), "ERROR it broke");
    EXPECT_EQ(Shown("\x1B[12"), "\xE2\x90\x9B[12"); // an unfinished one is no sequence
}

TEST(LogviewTexts, BytesThatAreNoTextBecomeReplacementCharacters) {
    const std::string no = "\xEF\xBF\xBD";
    EXPECT_EQ(Shown("\xFF"
                    "a"),
              no + "a");
    EXPECT_EQ(Shown("\xC3("), no + "(");
    EXPECT_EQ(Shown("\xE2\x82"), no + no);
    EXPECT_EQ(Shown("\xC0\xAF"), no + no);
    EXPECT_EQ(Shown("\xED\xA0\x80"), no + no + no);
    EXPECT_EQ(Shown("\xF4\x90\x80\x80"), no + no + no + no);
    EXPECT_EQ(Shown("\xE2\x82\xAC \xF0\x9F\x98\x80"), "\xE2\x82\xAC \xF0\x9F\x98\x80");
}

TEST(LogviewTexts, ALongLineEndsInAnEllipsisAndNeverInHalfACharacter) {
    EXPECT_EQ(Shown("abcdef", 3), "abc\xE2\x80\xA6");
    EXPECT_EQ(Shown("ab\xE2\x82\xAC"
                    "f",
                    3),
              "ab\xE2\x82\xAC\xE2\x80\xA6");
    EXPECT_EQ(Shown("abc", 3), "abc");
}

TEST(LogviewTexts, TheClipboardGetsTextAlone) {
    EXPECT_EQ(ForClipboard("a\r\nb\rc\x1B[0m\xFF"), "a\nb\rc\x1B[0m\xEF\xBF\xBD");
    EXPECT_EQ(ForClipboard(std::string_view("\0", 1)), "\xE2\x90\x80");
}

TEST(LogviewTexts, NumbersAreWrittenForPeople) {
    EXPECT_EQ(Grouped(0), "0");
    EXPECT_EQ(Grouped(999), "999");
    EXPECT_EQ(Grouped(1234567), "1,234,567");
    EXPECT_EQ(Bytes(999), "999 bytes");
    EXPECT_EQ(Bytes(10000000000), "10.0 GB");
    EXPECT_EQ(Lines(1), "1 line");
}

TEST(LogviewSearch, FindsWhatAPlainLookFinds) {
    std::mt19937 random(7);
    for (int run = 0; run < 2000; ++run) {
        std::string bytes;
        std::string text;
        for (auto i = random() % 60; i > 0; --i) bytes += "abAB "[random() % 5];
        for (auto i = 1 + random() % 3; i > 0; --i) text += "abA"[random() % (run % 2 == 0 ? 2 : 3)];
        std::string folded = bytes;
        if (text.find('A') == std::string::npos)
            for (char& c : folded) c = c == 'A' ? 'a' : c == 'B' ? 'b' : c;
        ASSERT_EQ(FindIn(bytes, text), folded.find(text)) << bytes << " | " << text;
        ASSERT_EQ(FindLastIn(bytes, text), folded.rfind(text)) << bytes << " | " << text;
    }
}

TEST(LogviewSearch, TheLastPlaceIsFoundInALongText) {
    std::string bytes(100000, 'x');
    bytes.replace(16383, 3, "abc");
    EXPECT_EQ(FindLastIn(bytes, "abc"), 16383U);
    bytes.replace(70000, 3, "aBc");
    EXPECT_EQ(FindLastIn(bytes, "abc"), 70000U);
    EXPECT_EQ(FindIn(bytes, "abc"), 16383U);
    EXPECT_EQ(FindLastIn(bytes, "aBC"), std::string::npos);
}

class LogviewCopies : public LogviewFiles {
protected:
    static Copied Copy(const CopyRange& range) {
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
        return result;
    }
};

TEST_F(LogviewCopies, LinesAreCopiedAsTheyStand) {
    const std::string bytes = "first\r\na,b,c\nlast";
    const auto file = LogFile::Open(Write("a", bytes));
    const Copied all = Copy({file, 0, bytes.size(), false, {}});
    EXPECT_EQ(all.text, "first\na,b,c\nlast\n");
    EXPECT_EQ(all.lines, 3U);
    EXPECT_EQ(Copy({file, 7, 13, false, {}}).text, "a,b,c\n");
}

TEST_F(LogviewCopies, ColumnsAreCopiedBetweenTabs) {
    const std::string bytes = "a,b,c\n\x1B[31mx,y\n";
    const auto file = LogFile::Open(Write("a", bytes));
    EXPECT_EQ(Copy({file, 0, bytes.size(), true, Columns::ByDelimiter(',', 3)}).text, "a\tb\tc\nx\ty\t\n");
}

TEST_F(LogviewCopies, LinesLongerThanABlockStayWhole) {
    const std::string bytes = std::string(3000000, 'x') + "\nshort\n";
    const auto file = LogFile::Open(Write("a", bytes));
    EXPECT_EQ(Copy({file, 0, bytes.size(), false, {}}).text, bytes);
}

TEST_F(LogviewCopies, ASelectionThatIsTooLargeIsRefusedInWords) {
    const auto file = LogFile::Open(Write("a", "x"));
    std::filesystem::resize_file(Path("a"), Copier::cMost + 1); // a hole: nothing is written
    const Copied copied = Copy({file, 0, Copier::cMost + 1, false, {}});
    EXPECT_THAT(copied.refusal, testing::HasSubstr("Nothing was copied"));
    EXPECT_EQ(copied.text, "");
}

TEST_F(LogviewCopies, AFileThatWasCutShortGivesWhatThereIs) {
    const auto file = LogFile::Open(Write("a", "one\ntwo\n"));
    EXPECT_EQ(Copy({file, 4, 4000, false, {}}).text, "two\n");
}

} // namespace
} // namespace logview
