#include "tvok/host/desktop/text/LineBreaker.h"

#include <random>
#include <string>

#include <gmock/gmock.h>

namespace tvok::soft {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LineBreakerTest : public testing::Test {
protected:
    std::vector<std::string> Break(std::string_view text, std::int32_t width) {
        std::vector<std::string> lines;
        for (const Line& line : BreakLines(engine, font, text, width))
            lines.emplace_back(text.substr(line.begin, line.end - line.begin));
        return lines;
    }
    std::int32_t Width(std::string_view text) { return engine.Measure(font, text); }

    TextEngine engine{"/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"};
    FontId font = engine.Find({"", 12});
};

TEST_F(LineBreakerTest, WordsStayWholeAndTheBlankAtABreakGoes) {
    EXPECT_THAT(Break("one two three", Width("one two")), ElementsAre("one two", "three"));
    EXPECT_THAT(Break("one two three", Width("one two") - 1), ElementsAre("one", "two", "three"));
    EXPECT_THAT(Break("one two three", 10000), ElementsAre("one two three"));
    EXPECT_THAT(Break("one   two ", Width("one")), ElementsAre("one", "two"));
    EXPECT_THAT(Break("one\ttwo", Width("one")), ElementsAre("one", "two"));
}

TEST_F(LineBreakerTest, AWordThatIsTooWideStandsAlone) {
    EXPECT_THAT(Break("a incomprehensible b", Width("a b")), ElementsAre("a", "incomprehensible", "b"));
    EXPECT_THAT(Break("ab cd", 0), ElementsAre("ab", "cd"));
    EXPECT_THAT(Break("ab cd", -7), ElementsAre("ab", "cd"));
}

TEST_F(LineBreakerTest, EveryKindOfLineEndEndsALine) {
    EXPECT_THAT(Break("a\r\nb\nc\rd", 1000), ElementsAre("a", "b", "c", "d"));
    EXPECT_THAT(Break("a\n\nb", 1000), ElementsAre("a", "", "b"));
    EXPECT_THAT(Break("a\r\n", 1000), ElementsAre("a"));
    EXPECT_THAT(Break("\n", 1000), ElementsAre(""));
    EXPECT_THAT(Break("", 1000), IsEmpty());
}

TEST_F(LineBreakerTest, BlanksAtTheStartOfAParagraphStay) {
    EXPECT_THAT(Break("  a b", Width("  a")), ElementsAre("  a", "b"));
    EXPECT_THAT(Break("   ", 1000), ElementsAre(""));
}

TEST_F(LineBreakerTest, EastAsianTextBreaksBetweenAnyTwoCharacters) {
    EXPECT_THAT(Break("中文字符", Width("中文")), ElementsAre("中文", "字符"));
    EXPECT_THAT(Break("ab中文", Width("ab中")), ElementsAre("ab中", "文"));
}

TEST_F(LineBreakerTest, PunctuationStaysWithWhatItBelongsTo) {
    EXPECT_THAT(Break("中文。字", Width("中文")), ElementsAre("中", "文。", "字"));
    EXPECT_THAT(Break("中「文」", Width("中「")), ElementsAre("中", "「文」"));
}

TEST_F(LineBreakerTest, LinesOfLongTextsAreAsFullAsTheyCanBe) {
    std::mt19937 random(4);
    std::string text;
    for (int i = 0; i < 2000; ++i)
        text += std::string(1 + random() % 9, 'm') + (i % 7 == 0 ? " e\u0301 " : " ");
    const auto lines = BreakLines(engine, font, text, 300);
    for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
        EXPECT_LE(lines[i].width, 300);
        EXPECT_EQ(lines[i].width,
                  Width(std::string_view(text).substr(lines[i].begin, lines[i].end - lines[i].begin)));
        const std::size_t nextEnd = text.find(' ', lines[i + 1].begin);
        EXPECT_GT(Width(std::string_view(text).substr(lines[i].begin, nextEnd - lines[i].begin)), 300);
    }
}

TEST_F(LineBreakerTest, BytesThatAreNoCharactersBreakToo) {
    std::mt19937 random(6);
    for (int round = 0; round < 300; ++round) {
        std::string text;
        for (std::size_t i = random() % 40; i > 0; --i)
            text += "ab \r\n\xE4\xB8\xAD\xFF\xCC\x81"[random() % 11];
        std::size_t behind = 0;
        for (const Line& line : BreakLines(engine, font, text, 40)) {
            EXPECT_GE(line.begin, behind);
            EXPECT_GE(line.end, line.begin);
            behind = line.end;
        }
        EXPECT_LE(behind, text.size());
    }
}

} // namespace
} // namespace tvok::soft
