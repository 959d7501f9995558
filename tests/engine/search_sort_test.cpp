/// Searching items and sorting the display index.
#include <algorithm>
#include <numeric>

#include "tests/support/EngineList.h"

namespace tvok::test {
namespace {

using namespace mtvok;

// Search by a key's character.

class ItemSearch : public EngineList {
protected:
    std::int32_t Char(std::int32_t key, std::int32_t current = 0) {
        state.ListIndex = current;
        return SeekItemChar(key, state, items, indexes);
    }
    std::int32_t Prefix(std::string_view text) { return SeekItemPrefix(state, items, indexes, text); }
    std::int32_t Whole(std::string_view text) { return FindItemText(state, items, indexes, text); }
};

TEST_F(ItemSearch, AKeyFindsTheNextItemThatStartsWithItInEitherCase) {
    AddTexts({"ant", "bee", "Ape", "cat", "2x"});
    EXPECT_EQ(Char('A'), 1);
    EXPECT_EQ(Char('a'), 1);
    EXPECT_EQ(Char('A', 1), 3);
    EXPECT_EQ(Char('B', 1), 2);
    EXPECT_EQ(Char('2', 1), 5);
}

TEST_F(ItemSearch, AKeyWrapsAndTriesTheCurrentItemLast) {
    AddTexts({"ant", "bee", "ape", "cat"});
    EXPECT_EQ(Char('A', 3), 1);
    EXPECT_EQ(Char('A', 4), 1);
    EXPECT_EQ(Char('B', 2), 2) << "only the current item has it";
    EXPECT_EQ(Char('C', 4), 4);
}

TEST_F(ItemSearch, AKeyWithoutAMatchGivesZero) {
    EXPECT_EQ(Char('A'), 0) << "an empty list";
    AddTexts({"ant", "", "bee"});
    EXPECT_EQ(Char('X', 2), 0);
    EXPECT_EQ(Char(' ', 2), 0);
}

TEST_F(ItemSearch, AKeyComparesWholeCharacters) {
    AddTexts({"Äpfel", "Ananas"});
    EXPECT_EQ(Char('A'), 2);
    EXPECT_EQ(Char(0xC3), 0) << "the first byte of a character is not the character";
}

TEST_F(ItemSearch, AnyKeyCodeIsHarmless) {
    AddTexts({"ant", "\xFF\xFE", ""});
    for (const std::int32_t key : {-1, -2147483647 - 1, 2147483647, 0x110000, 0xD800}) {
        EXPECT_NO_THROW(Char(key)) << key;
    }
}

TEST_F(ItemSearch, GoesInDisplayOrder) {
    AddTexts({"b1", "a1", "b2", "a2"});
    std::swap(indexes[1], indexes[3]);
    std::swap(indexes[2], indexes[4]); // b2 a2 b1 a1
    EXPECT_EQ(Char('B'), 1);
    EXPECT_EQ(Char('B', 1), 3);
    EXPECT_EQ(Prefix("a"), 2);
    EXPECT_EQ(Prefix("a1"), 4);
    EXPECT_EQ(Whole("b1"), 3);
}

// Search by text.

TEST_F(ItemSearch, APrefixIsTrimmedAndItsCaseIgnored) {
    AddTexts({"ant hill", "Bee hive", "beetle"});
    EXPECT_EQ(Prefix("bee"), 2);
    EXPECT_EQ(Prefix("BEET"), 3);
    EXPECT_EQ(Prefix("  bee  "), 2);
    EXPECT_EQ(Prefix("ant hill"), 1);
}

TEST_F(ItemSearch, APrefixWithoutAMatchGivesOneMoreThanTheCount) {
    AddTexts({"ant", "bee"});
    EXPECT_EQ(Prefix("x"), 3);
    EXPECT_EQ(Prefix("ants"), 3) << "longer than the text";
}

TEST_F(ItemSearch, TheEmptyPrefixIsTheFirstItem) {
    AddTexts({"ant", "bee"});
    EXPECT_EQ(Prefix(""), 1);
    EXPECT_EQ(Prefix("   "), 1);
    state.Count = 0;
    EXPECT_EQ(Prefix(""), 1) << "which is the count and 1";
}

TEST_F(ItemSearch, APrefixMayHaveLettersBeyondAscii) {
    AddTexts({"Å", "äpfel", "birne"});
    EXPECT_EQ(Prefix("Äp"), 2);
    EXPECT_EQ(Prefix("Ä"), 2);
}

TEST_F(ItemSearch, TheItemsTextIsNotTrimmed) {
    AddTexts({" ant", "ant "});
    EXPECT_EQ(Prefix("ant"), 2);
    EXPECT_EQ(Whole("ant"), 3);
    EXPECT_EQ(Whole("ant "), 3) << "the searched text is trimmed, the item's is not";
}

TEST_F(ItemSearch, AWholeTextHasToMatchButForItsCase) {
    AddTexts({"ant", "Bee", "bee", "beetle", ""});
    EXPECT_EQ(Whole("bee"), 2);
    EXPECT_EQ(Whole(" BEETLE "), 4);
    EXPECT_EQ(Whole("be"), 6);
    EXPECT_EQ(Whole(""), 5);
}

TEST_F(ItemSearch, AWholeTextWithoutAMatchGivesOneMoreThanTheCountAndNeverZero) {
    EXPECT_EQ(Whole("x"), 1);
    AddTexts({"a", "b", "c", "d"});
    EXPECT_EQ(Whole("nothing"), 5);
}

TEST_F(ItemSearch, AnEntryBeyondTheIndexIsASubscriptError) {
    AddTexts({"ant"});
    state.Count = 5;
    EXPECT_THROW(Whole("x"), SubscriptError);
    EXPECT_THROW(Prefix("x"), SubscriptError);
    EXPECT_THROW(Char('X'), SubscriptError);
}

// Sorting.

/// The documented steps, one by one.
class PlainSort {
public:
    PlainSort(const std::vector<std::string>& texts, std::vector<std::int32_t>& index, bool ascending,
              bool caseSensitive)
        : texts_(texts), index_(index), direction_(ascending ? 1 : -1), caseSensitive_(caseSensitive) {}

    void Run(std::int32_t low, std::int32_t high) {
        if (high <= low) return;
        std::vector<std::int32_t> stack{low, high};
        while (!stack.empty()) {
            const auto right = Pop(stack), left = Pop(stack);
            if (right - left + 1 > 10)
                Partition(left, right, stack);
            else
                Select(left, right);
        }
    }

private:
    static std::int32_t Pop(std::vector<std::int32_t>& stack) {
        const auto top = stack.back();
        stack.pop_back();
        return top;
    }
    const std::string& At(std::int32_t i) const {
        return texts_[static_cast<std::size_t>(index_[static_cast<std::size_t>(i)])];
    }
    std::int32_t Compare(const std::string& a, const std::string& b) const {
        if (!caseSensitive_) return FakeLanguage().CompareText(a, b);
        return a < b ? -1 : a > b ? 1 : 0;
    }
    void Swap(std::int32_t i, std::int32_t j) {
        index_[0] = index_[static_cast<std::size_t>(i)];
        index_[static_cast<std::size_t>(i)] = index_[static_cast<std::size_t>(j)];
        index_[static_cast<std::size_t>(j)] = index_[0];
    }
    void Partition(std::int32_t left, std::int32_t right, std::vector<std::int32_t>& stack) {
        std::int32_t i = left, j = right;
        const std::string pivot = At(left + (right - left) / 2);
        while (true) {
            while (j > i && Compare(pivot, At(i)) == direction_) ++i;
            while (j >= i && Compare(At(j), pivot) == direction_) --j;
            if (i >= j) break;
            Swap(i, j);
            ++i;
            --j;
        }
        if (left < j) stack.insert(stack.end(), {left, j});
        if (i < right) stack.insert(stack.end(), {i, right});
    }
    void Select(std::int32_t left, std::int32_t right) {
        for (std::int32_t i = left; i < right; ++i) {
            std::int32_t m = i;
            for (std::int32_t j = i + 1; j <= right; ++j)
                if (Compare(At(j), At(m)) != direction_) m = j;
            if (m > i) Swap(i, m);
        }
    }

    const std::vector<std::string>& texts_;
    std::vector<std::int32_t>& index_;
    std::int32_t direction_;
    bool caseSensitive_;
};

class IndexSort : public EngineList {
protected:
    void SortAll(bool ascending = true, bool caseSensitive = false) {
        SortIndexByText(items, indexes, 1, state.Count, ascending, caseSensitive);
    }
    /// Sorts `texts` both ways and compares the index, its scratch entry 0 included.
    void ExpectSteps(const std::vector<std::string>& texts, bool ascending, bool caseSensitive) {
        items.Reset();
        indexes.Make(0);
        state.Count = 0;
        AddTexts(texts);
        std::vector<std::string> slots{""};
        slots.insert(slots.end(), texts.begin(), texts.end());
        std::vector<std::int32_t> expected(slots.size());
        std::iota(expected.begin(), expected.end(), 0);
        PlainSort(slots, expected, ascending, caseSensitive).Run(1, state.Count);
        SortAll(ascending, caseSensitive);
        std::vector<std::int32_t> actual{indexes[0]};
        for (const auto slot : Order()) actual.push_back(slot);
        EXPECT_EQ(actual, expected);
    }
};

TEST_F(IndexSort, AmongEqualTextsTheLastOneComesFirst) {
    AddTexts({"x", "x", "x"});
    SortAll();
    EXPECT_EQ(Order(), (std::vector<std::int32_t>{3, 1, 2}));
    EXPECT_EQ(indexes[0], 2) << "entry 0 keeps what the last swap moved through it";
}

TEST_F(IndexSort, DescendingTakesTheLastOfEqualTextsFirstToo) {
    AddTexts({"a", "b", "b", "a"});
    SortAll(false);
    EXPECT_EQ(Order(), (std::vector<std::int32_t>{3, 2, 4, 1}));
}

TEST_F(IndexSort, CaseIsIgnoredOrBinary) {
    AddTexts({"b", "A", "a", "B"});
    SortAll(true, true);
    EXPECT_EQ(Texts(), (std::vector<std::string>{"A", "B", "a", "b"}));
    items.Reset();
    indexes.Make(0);
    state.Count = 0;
    AddTexts({"b", "A", "C"});
    SortAll(true, false);
    EXPECT_EQ(Texts(), (std::vector<std::string>{"A", "b", "C"}));
    SortAll(false, false);
    EXPECT_EQ(Texts(), (std::vector<std::string>{"C", "b", "A"}));
}

TEST_F(IndexSort, OnlyTheGivenRangeIsSorted) {
    AddTexts({"e", "d", "c", "b", "a"});
    SortIndexByText(items, indexes, 2, 4, true, false);
    EXPECT_EQ(Texts(), (std::vector<std::string>{"e", "b", "c", "d", "a"}));
}

TEST_F(IndexSort, ARangeOfOneOrNoneTouchesNothing) {
    AddTexts({"b", "a"});
    indexes[0] = 99;
    SortIndexByText(items, indexes, 2, 2, true, false);
    SortIndexByText(items, indexes, 2, 1, true, false);
    EXPECT_EQ(Order(), (std::vector<std::int32_t>{1, 2}));
    EXPECT_EQ(indexes[0], 99);
}

TEST_F(IndexSort, MovesNoRecords) {
    AddTexts({"c", "b", "a"});
    SortAll();
    EXPECT_EQ(items[1].text, "c");
    EXPECT_EQ(items[2].text, "b");
    EXPECT_EQ(items[3].text, "a");
    EXPECT_EQ(Order(), (std::vector<std::int32_t>{3, 2, 1}));
}

TEST_F(IndexSort, FollowsItsStepsToTheLastSwapForFewItems) {
    for (const bool ascending : {true, false}) {
        for (const bool caseSensitive : {true, false}) {
            ExpectSteps({"b", "a", "B", "A", "c", "a", "C", "b", "A"}, ascending, caseSensitive);
            ExpectSteps({"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}, ascending, caseSensitive);
            ExpectSteps({"z", "y"}, ascending, caseSensitive);
        }
    }
}

TEST_F(IndexSort, FollowsItsStepsToTheLastSwapForManyItems) {
    std::uint32_t seed = 12345;
    for (const std::size_t count : {11u, 12u, 21u, 57u, 300u}) {
        for (const std::uint32_t kinds : {1u, 2u, 5u, 1000u}) {
            std::vector<std::string> texts;
            for (std::size_t i = 0; i < count; ++i) {
                seed = seed * 1664525u + 1013904223u;
                const std::string letter = (seed >> 8) % 2 ? "k" : "K";
                texts.push_back(letter + std::to_string((seed >> 16) % kinds));
            }
            for (const bool ascending : {true, false})
                for (const bool caseSensitive : {true, false}) ExpectSteps(texts, ascending, caseSensitive);
        }
    }
}

TEST_F(IndexSort, FollowsItsStepsForSortedAndReversedItems) {
    std::vector<std::string> texts;
    for (int i = 0; i < 64; ++i) texts.push_back(std::to_string(100 + i));
    for (const bool ascending : {true, false}) {
        ExpectSteps(texts, ascending, false);
        std::ranges::reverse(texts);
    }
}

// Sorting a list by its mode.

class Resorting : public EngineList {
protected:
    void Mode(std::int32_t mode) {
        log.Clear();
        state.SortedMode = mode;
        ResortItems(state, items, indexes);
    }
};

TEST_F(Resorting, ModeOneAscendsAndEveryOtherModeDescends) {
    AddTexts({"b", "C", "a"});
    Mode(1);
    EXPECT_EQ(Texts(), (std::vector<std::string>{"a", "b", "C"}));
    for (const std::int32_t mode : {2, 3, 4, -1, 99}) {
        Mode(1);
        Mode(mode);
        EXPECT_EQ(Texts(), (std::vector<std::string>{"C", "b", "a"})) << mode;
    }
}

TEST_F(Resorting, TheCurrentItemStaysCurrent) {
    AddTexts({"m", "l", "k", "j", "i", "h", "g", "f", "e", "d", "c", "b", "a"});
    state.ListIndex = 2;
    Mode(1);
    EXPECT_EQ(state.ListIndex, 12);
    EXPECT_EQ(items[indexes[state.ListIndex]].text, "l");
}

TEST_F(Resorting, WithoutACurrentItemThereIsNoneAfterwards) {
    AddTexts({"b", "a"});
    state.ListIndex = 0;
    Mode(1);
    EXPECT_EQ(state.ListIndex, 0);
}

TEST_F(Resorting, RepaintsTheClientAreaAtOnce) {
    AddTexts({"b", "a"});
    state.ClientRect = {0, 0, 300, 100};
    Mode(2);
    EXPECT_EQ(log.All(), (Calls{{"InvalidateRect", {0, 0, 300, 100}, {cWindow, 1, 0}},
                                PlainCall("UpdateWindow", {cWindow})}));
}

TEST_F(Resorting, WithoutAModeOrItemsDoesNothing) {
    AddTexts({"b", "a"});
    Mode(0);
    EXPECT_EQ(Texts(), (std::vector<std::string>{"b", "a"}));
    EXPECT_TRUE(log.All().empty());
    state.Count = 0;
    Mode(1);
    EXPECT_TRUE(log.All().empty());
}

} // namespace
} // namespace tvok::test
