#include <algorithm>
#include <functional>
#include <random>

#include "tests/support/EngineList.h"

namespace tvok::test {
namespace {

/// The sort as its steps are told, one by one: what `SortIndexByText` has to give, however it gets there.
class PlainSteps {
public:
    PlainSteps(const ItemSlots& items, IndexArray& index, bool ascending, bool caseSensitive)
        : items_(items), index_(index), direction_(ascending ? 1 : -1), caseSensitive_(caseSensitive) {}

    void Sort(std::int32_t low, std::int32_t high) {
        if (high <= low) return;
        std::vector<std::int32_t> stack{low, high};
        while (!stack.empty()) {
            const auto right = stack.back();
            stack.pop_back();
            const auto left = stack.back();
            stack.pop_back();
            if (right - left + 1 > 10)
                Partition(left, right, stack);
            else
                Select(left, right);
        }
    }

private:
    const std::string& Text(std::int32_t i) const { return items_[index_[i]].text; }
    int Compare(const std::string& a, const std::string& b) const {
        if (!caseSensitive_) return host::services().Language().CompareText(a, b);
        const int order = a.compare(b);
        return order < 0 ? -1 : order > 0 ? 1 : 0;
    }
    void Swap(std::int32_t i, std::int32_t j) {
        index_[0] = index_[i];
        index_[i] = index_[j];
        index_[j] = index_[0];
    }
    void Partition(std::int32_t left, std::int32_t right, std::vector<std::int32_t>& stack) {
        auto i = left;
        auto j = right;
        const std::string pivot = Text(left + (right - left) / 2);
        for (;;) {
            while (j > i && Compare(pivot, Text(i)) == direction_) i += 1;
            while (j >= i && Compare(Text(j), pivot) == direction_) j -= 1;
            if (i >= j) break;
            Swap(i, j);
            i += 1;
            j -= 1;
        }
        if (left < j) stack.insert(stack.end(), {left, j});
        if (i < right) stack.insert(stack.end(), {i, right});
    }
    void Select(std::int32_t left, std::int32_t right) {
        for (auto i = left; i < right; ++i) {
            auto m = i;
            for (auto j = i + 1; j <= right; ++j)
                if (Compare(Text(j), Text(m)) != direction_) m = j;
            if (m > i) Swap(i, m);
        }
    }

    const ItemSlots& items_;
    IndexArray& index_;
    int direction_;
    bool caseSensitive_;
};

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
                PlainSteps(items, expected, ascending, caseSensitive).Sort(low, high);
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
