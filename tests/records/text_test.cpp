#include "tvok/records/text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <string>

namespace tvok {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string_view> LinesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    Lines walk(text);
    for (std::string_view line; walk.Next(line);) lines.push_back(line);
    return lines;
}

std::vector<char32_t> CharactersOf(std::string_view text) {
    std::vector<char32_t> characters;
    for (std::size_t place = 0; place < text.size();) characters.push_back(NextCharacter(text, place));
    return characters;
}

TEST(Trim, TakesBlanksAndNoOtherSpace) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("\t a \n"), "\t a \n");
    EXPECT_EQ(Trim("\u00A0a"), "\u00A0a");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim(""), "");
}

TEST(Split, OfAnEmptyTextHasNoPart) {
    EXPECT_THAT(Split("", ','), IsEmpty());
}

TEST(Split, KeepsEmptyParts) {
    EXPECT_THAT(Split("a", ','), ElementsAre("a"));
    EXPECT_THAT(Split("a,", ','), ElementsAre("a", ""));
    EXPECT_THAT(Split(",,b", ','), ElementsAre("", "", "b"));
}

TEST(Lines, DropWhatStandsBehindTheLastLineEnd) {
    EXPECT_THAT(LinesOf("a\r\nb\r\nc"), ElementsAre("a", "b"));
    EXPECT_THAT(LinesOf("a"), IsEmpty());
    EXPECT_THAT(LinesOf("\r\n"), ElementsAre(""));
}

TEST(Lines, EndOnlyAtBothCharactersTogether) {
    EXPECT_THAT(LinesOf("a\nb\rc\n\rd\r\r\n"), ElementsAre("a\nb\rc\n\rd\r"));
}

TEST(NextCharacter, ReadsOneToFourBytes) {
    EXPECT_THAT(CharactersOf("a\u00E9\u20AC\U0001F600"),
                ElementsAre(U'a', U'\u00E9', U'\u20AC', U'\U0001F600'));
}

TEST(NextCharacter, GivesAReplacementForEachByteThatIsNoText) {
    EXPECT_THAT(CharactersOf("\x80"), ElementsAre(0xFFFD));
    EXPECT_THAT(CharactersOf("a\xFFz"), ElementsAre(U'a', 0xFFFD, U'z'));
    EXPECT_THAT(CharactersOf("\xC0\xAF"), ElementsAre(0xFFFD, 0xFFFD));
    EXPECT_THAT(CharactersOf("\xE0\x80\xAF"), ElementsAre(0xFFFD, 0xFFFD, 0xFFFD));
    EXPECT_THAT(CharactersOf("\xED\xA0\x80"), ElementsAre(0xFFFD, 0xFFFD, 0xFFFD));
    EXPECT_THAT(CharactersOf("\xF4\x90\x80\x80"), ElementsAre(0xFFFD, 0xFFFD, 0xFFFD, 0xFFFD));
}

TEST(NextCharacter, DoesNotTakeTheCharacterBehindACutOne) {
    EXPECT_THAT(CharactersOf("\xE2\x82z"), ElementsAre(0xFFFD, 0xFFFD, U'z'));
    EXPECT_THAT(CharactersOf("\xE2\x82"), ElementsAre(0xFFFD, 0xFFFD));
}

TEST(AppendCharacter, WritesOneToFourBytesThatReadBackAsTheSame) {
    for (const char32_t character : {U'\0', U'a', U'\x7F', U'\x80', U'\u07FF', U'\u0800', U'\uD7FF',
                                     U'\uE000', U'\uFFFF', U'\U00010000', U'\U0010FFFF'}) {
        std::string text;
        AppendCharacter(text, character);
        EXPECT_THAT(CharactersOf(text), ElementsAre(character));
    }
    std::string text = "a";
    AppendCharacter(text, U'\U0001F600');
    EXPECT_EQ(text, "a\xF0\x9F\x98\x80");
}

TEST(AppendCharacter, WritesAReplacementForWhatIsNoCharacter) {
    for (const char32_t number : {0xD800u, 0xDFFFu, 0x110000u, 0xFFFFFFFFu}) {
        std::string text;
        AppendCharacter(text, number);
        EXPECT_EQ(text, "\xEF\xBF\xBD");
    }
}

TEST(NextCharacter, WalksThroughAnyBytesToTheEnd) {
    std::mt19937 random(2);
    for (int round = 0; round < 2000; ++round) {
        std::string bytes(random() % 20, '\0');
        for (char& byte : bytes) byte = static_cast<char>(random());
        std::size_t count = 0;
        for (std::size_t place = 0; place < bytes.size(); ++count) {
            const auto before = place;
            NextCharacter(bytes, place);
            ASSERT_GT(place, before);
            ASSERT_LE(place, bytes.size());
        }
        ASSERT_EQ(CharacterCount(bytes), count);
    }
}

TEST(FirstCharacters, CutsAtACharactersEdge) {
    EXPECT_EQ(FirstCharacters("a\u00E9b", 2), "a\u00E9");
    EXPECT_EQ(FirstCharacters("ab", 5), "ab");
    EXPECT_EQ(FirstCharacters("ab", 0), "");
}

} // namespace
} // namespace tvok
