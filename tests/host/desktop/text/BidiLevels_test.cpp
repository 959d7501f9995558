#include "tvok/host/desktop/text/BidiLevels.h"

#include <array>
#include <random>

#include <gmock/gmock.h>

#include "tests/support/Allocations.h"

namespace tvok::soft {
namespace {

using testing::ElementsAre;

std::vector<int> LevelsOf(const std::vector<std::uint32_t>& characters) {
    BidiLevels levels;
    const auto& found = levels.Of(characters);
    return {found.begin(), found.end()};
}

std::vector<int> PlainLevels(const std::vector<std::uint32_t>& characters) {
    const auto length = static_cast<FriBidiStrIndex>(characters.size());
    std::vector<FriBidiCharType> types(characters.size());
    std::vector<FriBidiBracketType> brackets(characters.size());
    std::vector<FriBidiLevel> levels(characters.size());
    fribidi_get_bidi_types(characters.data(), length, types.data());
    fribidi_get_bracket_types(characters.data(), length, types.data(), brackets.data());
    FriBidiParType direction = FRIBIDI_PAR_LTR;
    EXPECT_NE(
        fribidi_get_par_embedding_levels_ex(types.data(), brackets.data(), length, &direction, levels.data()),
        0);
    return {levels.begin(), levels.end()};
}

TEST(BidiLevels, LeftToRightTextHasLevelZero) {
    EXPECT_THAT(LevelsOf({'a', ' ', 0x4E2D}), ElementsAre(0, 0, 0));
    EXPECT_THAT(LevelsOf({}), ElementsAre());
}

TEST(BidiLevels, ARightToLeftPartHasAnOddLevelAndItsNumbersTheNextEvenOne) {
    EXPECT_THAT(LevelsOf({'a', 0x5D0, '1', 0x5D1, 'b'}), ElementsAre(0, 1, 2, 1, 0));
}

TEST(BidiLevels, BlanksAroundRightToLeftWordsRunToTheRight) {
    EXPECT_THAT(LevelsOf({' ', 0x5D0, ' ', 0x5D1, ' '}), ElementsAre(0, 1, 1, 1, 0));
}

TEST(BidiLevels, TheRulesForPlainTextsAgreeWithTheWholeAlgorithm) {
    constexpr std::array<std::uint32_t, 24> kinds = {0x5D0, 0x628, 0x5B0, 0x301, ' ', 0x2003, 0x64B, '(',
                                                     ')',   '1',   'a',   0x661, ',', '+',    '$',   '[',
                                                     ']',   '-',   '!',   0x66A, '.', '2',    '\t',  0x200F};
    std::mt19937 random(8);
    for (int round = 0; round < 50000; ++round) {
        const std::size_t known = 5 + random() % (kinds.size() - 4);
        std::vector<std::uint32_t> characters(1 + random() % 14);
        for (auto& character : characters) character = kinds[random() % known];
        ASSERT_EQ(LevelsOf(characters), PlainLevels(characters)) << testing::PrintToString(characters);
    }
}

TEST(BidiLevels, ABracketWithMarksAndNestedBracketsAgree) {
    constexpr std::array<std::uint32_t, 8> kinds = {0x5D0, 'a', '(', ')', 0x5B0, '[', ']', '1'};
    std::mt19937 random(9);
    for (int round = 0; round < 50000; ++round) {
        std::vector<std::uint32_t> characters(1 + random() % 20);
        for (auto& character : characters) character = kinds[random() % kinds.size()];
        ASSERT_EQ(LevelsOf(characters), PlainLevels(characters)) << testing::PrintToString(characters);
    }
}

TEST(BidiLevels, MakingThemForMixedTextAllocatesNothingOnceWarm) {
    if (!test::CanCountAllocations()) GTEST_SKIP() << "the sanitizer has a heap of its own";
    const std::vector<std::uint32_t> characters = {'a', ' ', '(', 0x5D0, ' ', '1', ',', '2', ')', 0x628, '3'};
    BidiLevels levels;
    levels.Of(characters);
    const auto before = test::Allocations();
    levels.Of(characters);
    EXPECT_EQ(test::Allocations(), before);
}

} // namespace
} // namespace tvok::soft
