#include <algorithm>
#include <functional>
#include <random>

#include "tests/support/EngineList.h"
#include "tests/support/PlainSort.h"

namespace tvok::test {
namespace {

int CompareLanguage(const std::string& a, const std::string& b) {
    return host::services().Language().CompareText(a, b);
}

class SortIndexByText : public EngineList {
protected:
    using TextAt = std::function<std::string(int)>;

    void Fill(int size, const TextAt& textAt) {
        items.Reset();
        indexes.Make(size);
        state.Count = 0;
        for (int i = 0; i < size; ++i) Add({.text = textAt(i)});
        std::shuffle(indexes.data() + 1, indexes.data() + size + 1, random);
        indexes[0] = 77;
    }
    /// Positions in the order of their texts' places, for inputs of a known shape.
    void InOrderOfSlots() {
        for (std::int32_t i = 1; i <= state.Count; ++i) indexes[i] = i;
    }

    void ExpectThePlainSteps(std::int32_t low, std::int32_t high) {
        for (const bool ascending : {true, false})
            for (const bool caseSensitive : {true, false}) {
                IndexArray expected = indexes;
                IndexArray actual = indexes;
                const auto textOf = [this](std::int32_t slot) -> const std::string& {
                    return items[slot].text;
                };
                PlainSort(expected, ascending, textOf, caseSensitive ? CompareBytes : CompareLanguage)
                    .Sort(low, high);
                mtvok::SortIndexByText(items, actual, low, high, ascending, caseSensitive);
                for (std::int32_t i = 0; i <= indexes.UpperBound(); ++i)
                    ASSERT_EQ(actual[i], expected[i]) << "entry " << i << " of " << state.Count << ", "
                                                      << (ascending ? "ascending" : "descending");
            }
    }
    void ExpectThePlainSteps() { ExpectThePlainSteps(1, state.Count); }

    std::string Letters(std::size_t length, int alphabet) {
        std::string text(length, ' ');
        for (char& c : text) {
            const auto letter = static_cast<int>(random() % static_cast<unsigned>(alphabet));
            c = static_cast<char>((random() % 2 == 0 ? 'a' : 'A') + letter);
        }
        return text;
    }

    std::mt19937 random{11};
    static constexpr int cSizes[] = {0, 1, 2, 3, 9, 10, 11, 12, 20, 21, 22, 50, 100, 331, 1000, 3000};
};

TEST_F(SortIndexByText, OfRandomTextsGivesTheOrderOfThePlainSteps) {
    for (const int size : cSizes) {
        Fill(size, [&](int) { return Letters(random() % 12, 26); });
        ExpectThePlainSteps();
    }
}

TEST_F(SortIndexByText, OfFewDistinctTextsGivesTheOrderOfThePlainSteps) {
    for (const int kinds : {1, 2, 3, 7})
        for (const int size : cSizes) {
            Fill(size, [&](int) { return Letters(1, kinds); });
            ExpectThePlainSteps();
        }
}

TEST_F(SortIndexByText, OfSortedTextsGivesTheOrderOfThePlainSteps) {
    for (const int size : cSizes) {
        Fill(size, [](int i) { return std::to_string(100000 + i); });
        InOrderOfSlots();
        ExpectThePlainSteps();
        std::reverse(indexes.data() + 1, indexes.data() + size + 1);
        ExpectThePlainSteps();
    }
}

TEST_F(SortIndexByText, OfTextsThatRiseAndFallGivesTheOrderOfThePlainSteps) {
    for (const int size : cSizes) {
        Fill(size, [&](int i) { return std::to_string(100000 + std::min(i, size - i)); });
        InOrderOfSlots();
        ExpectThePlainSteps();
        Fill(size, [&](int i) { return std::to_string(100000 + std::min(2 * i, 2 * (size - i) + 1)); });
        InOrderOfSlots();
        ExpectThePlainSteps();
    }
}

TEST_F(SortIndexByText, OfNearlySortedDistinctTextsLeavesTheScratchEntryOfThePlainSteps) {
    for (int round = 0; round < 200; ++round) {
        const int size = 2 + static_cast<int>(random() % 80);
        Fill(size, [](int i) { return std::to_string(100000 + i); });
        InOrderOfSlots();
        for (auto swaps = random() % 4; swaps > 0; --swaps) {
            const auto last = static_cast<unsigned>(size);
            std::swap(indexes[static_cast<std::int32_t>(1 + random() % last)],
                      indexes[static_cast<std::int32_t>(1 + random() % last)]);
        }
        ExpectThePlainSteps();
    }
}

TEST_F(SortIndexByText, OfTextsWithLongCommonBeginningsGivesTheOrderOfThePlainSteps) {
    for (const int size : cSizes) {
        Fill(size, [&](int) { return "a beginning that all share " + Letters(random() % 4, 3); });
        ExpectThePlainSteps();
        Fill(size, [&](int) { return std::string(random() % 4, '\0') + Letters(random() % 2, 2); });
        ExpectThePlainSteps();
    }
}

TEST_F(SortIndexByText, OfAPartLeavesTheOtherEntries) {
    Fill(500, [&](int) { return Letters(random() % 3, 4); });
    ExpectThePlainSteps(100, 130);
    ExpectThePlainSteps(2, 499);
    ExpectThePlainSteps(7, 7);
    ExpectThePlainSteps(9, 3);
}

TEST_F(SortIndexByText, OfSlotsThatAppearTwiceGivesTheOrderOfThePlainSteps) {
    Fill(300, [&](int) { return Letters(2, 6); });
    for (std::int32_t i = 1; i <= 300; i += 3) indexes[i] = 0;
    ExpectThePlainSteps();
}

TEST_F(SortIndexByText, BeyondTheIndexIsASubscriptErrorAndChangesNothing) {
    Fill(30, [&](int) { return Letters(2, 6); });
    const auto before = Order();
    EXPECT_THROW(mtvok::SortIndexByText(items, indexes, 1, 31, true, true), SubscriptError);
    EXPECT_THROW(mtvok::SortIndexByText(items, indexes, -1, 30, true, true), SubscriptError);
    EXPECT_EQ(Order(), before);
}

} // namespace
} // namespace tvok::test
