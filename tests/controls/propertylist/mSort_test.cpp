// SortKeyIndex: the order that its steps give, with ties and with the scratch entry.
#include "tvok/controls/propertylist/mSort.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>
#include <vector>

#include "tests/support/FakeHost.h"
#include "tests/support/PlainSort.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;

using Numbers = Array<std::int32_t>;
using Texts = Array<std::string>;

int CompareWithoutCase(const std::string& a, const std::string& b) {
    return host::services().Language().CompareText(a, b);
}

class SortKeyIndex : public testing::Test {
protected:
    SortKeyIndex() : before_(host::SetServices(&services_)) {}
    ~SortKeyIndex() override { host::SetServices(before_); }

    /// Texts 1 to n with the order 1 to n; entry 0 tells whether anything was swapped.
    void Fill(const std::vector<std::string>& some) {
        const auto upper = static_cast<std::int32_t>(some.size());
        texts.Make(upper);
        order.Make(upper);
        order[0] = -7;
        for (std::int32_t i = 1; i <= upper; ++i) {
            texts[i] = some[static_cast<std::size_t>(i) - 1];
            order[i] = i;
        }
    }
    void FillRandomly(std::int32_t size, std::int32_t alphabet, std::int32_t longest) {
        std::vector<std::string> some;
        for (std::int32_t i = 0; i < size; ++i) {
            std::string text(static_cast<std::size_t>(Below(longest + 1)), ' ');
            for (char& c : text) c = static_cast<char>((Below(2) == 0 ? 'a' : 'A') + Below(alphabet));
            some.push_back(text);
        }
        Fill(some);
        std::shuffle(order.data() + 1, order.data() + size + 1, random_);
    }
    std::int32_t Below(std::int32_t limit) {
        return static_cast<std::int32_t>(random_() % static_cast<std::uint32_t>(limit));
    }
    std::vector<std::int32_t> Sorted(std::int32_t low, std::int32_t high, bool ascending, bool binary) const {
        Numbers sorted = order;
        mSort::SortKeyIndex(texts, sorted, low, high, ascending, binary);
        return {sorted.data(), sorted.data() + sorted.UpperBound() + 1};
    }
    std::vector<std::int32_t> ByTheSteps(std::int32_t low, std::int32_t high, bool ascending, bool binary) {
        Numbers sorted = order;
        PlainSort plain(
            sorted, ascending, [this](std::int32_t entry) -> const std::string& { return texts[entry]; },
            binary ? CompareBytes : CompareWithoutCase);
        plain.Sort(low, high);
        partitions = plain.partitions;
        return {sorted.data(), sorted.data() + sorted.UpperBound() + 1};
    }
    void ExpectTheSteps(std::int32_t low, std::int32_t high) {
        for (const bool ascending : {true, false})
            for (const bool binary : {true, false})
                ASSERT_EQ(Sorted(low, high, ascending, binary), ByTheSteps(low, high, ascending, binary))
                    << order.UpperBound() << " entries, " << (ascending ? "ascending" : "descending")
                    << (binary ? ", by bytes" : ", without case");
    }
    void ExpectTheSteps() { ExpectTheSteps(1, order.UpperBound()); }

    Texts texts;
    Numbers order;
    std::int32_t partitions = 0;

private:
    FakeServices services_;
    host::Services* before_;
    std::mt19937 random_{4};
};

TEST_F(SortKeyIndex, PutsTheTextsInOrderAndLeavesThemWhereTheyAre) {
    Fill({"pear", "apple", "Fig"});
    const std::vector<std::string> before(texts.data(), texts.data() + 4);
    EXPECT_THAT(Sorted(1, 3, true, true), ElementsAre(testing::_, 3, 2, 1));
    EXPECT_THAT(Sorted(1, 3, false, true), ElementsAre(testing::_, 1, 2, 3));
    EXPECT_EQ(std::vector<std::string>(texts.data(), texts.data() + 4), before);
}

TEST_F(SortKeyIndex, ByBytesUpperCaseStandsBeforeLowerCaseAndWithoutCaseItDoesNot) {
    Fill({"able", "Zed", "Bat"});
    EXPECT_THAT(Sorted(1, 3, true, true), ElementsAre(testing::_, 3, 2, 1));
    EXPECT_THAT(Sorted(1, 3, true, false), ElementsAre(testing::_, 1, 3, 2));
    EXPECT_THAT(Sorted(1, 3, false, false), ElementsAre(testing::_, 2, 3, 1));
}

TEST_F(SortKeyIndex, BytesBeyondAsciiStandBehindAscii) {
    Fill({"\xC3\xA4", "z"});
    EXPECT_THAT(Sorted(1, 2, true, true), ElementsAre(testing::_, 2, 1));
}

TEST_F(SortKeyIndex, OfOneEntryOrNoneDoesNothing) {
    Fill({"b", "a"});
    EXPECT_THAT(Sorted(1, 1, true, true), ElementsAre(-7, 1, 2));
    EXPECT_THAT(Sorted(2, 1, true, true), ElementsAre(-7, 1, 2));
    EXPECT_THAT(Sorted(1, 0, true, true), ElementsAre(-7, 1, 2));
    EXPECT_THAT(Sorted(9, 8, true, true), ElementsAre(-7, 1, 2)) << "nor are bounds looked at";
}

TEST_F(SortKeyIndex, TakesTheLastOfEqualTextsFirst) {
    Fill({"a", "a", "a"});
    // The third goes to the front in exchange for the first; then second and first are equal once more.
    EXPECT_THAT(Sorted(1, 3, true, true), ElementsAre(2, 3, 1, 2));
    EXPECT_THAT(Sorted(1, 3, false, true), ElementsAre(2, 3, 1, 2));
    Fill({"x", "a", "x", "a"});
    EXPECT_THAT(Sorted(1, 4, true, true), ElementsAre(testing::_, 4, 2, 1, 3));
}

TEST_F(SortKeyIndex, SwapsThroughEntryZeroOfTheOrder) {
    Fill({"b", "a"});
    EXPECT_THAT(Sorted(1, 2, true, true), ElementsAre(1, 2, 1)) << "the entry in front waits there";
    Fill({"a", "b"});
    EXPECT_THAT(Sorted(1, 2, true, true), ElementsAre(-7, 1, 2)) << "nothing is swapped";
}

TEST_F(SortKeyIndex, TenEntriesAreSelectedAndElevenDivided) {
    const std::vector<std::string> ten(10, "same");
    Fill(ten);
    const auto selected = Sorted(1, 10, true, true);
    EXPECT_EQ(selected, ByTheSteps(1, 10, true, true));
    EXPECT_EQ(partitions, 0);
    EXPECT_EQ(selected[1], 10) << "selection takes the last one first";

    const std::vector<std::string> eleven(11, "same");
    Fill(eleven);
    const auto divided = Sorted(1, 11, true, true);
    EXPECT_EQ(divided, ByTheSteps(1, 11, true, true));
    EXPECT_GE(partitions, 1);
    EXPECT_NE(divided[1], 11) << "the parts are turned round on their own";
}

TEST_F(SortKeyIndex, GivesTheOrderOfTheStepsForFewDistinctTexts) {
    for (std::int32_t size = 0; size <= 60; ++size)
        for (const std::int32_t alphabet : {1, 2, 5})
            for (const std::int32_t longest : {1, 2}) {
                FillRandomly(size, alphabet, longest);
                ExpectTheSteps();
            }
}

TEST_F(SortKeyIndex, GivesTheOrderOfTheStepsForManyTexts) {
    for (const std::int32_t size : {100, 333, 1000, 3000}) {
        FillRandomly(size, 26, 8);
        ExpectTheSteps();
        FillRandomly(size, 2, 3);
        ExpectTheSteps();
    }
}

TEST_F(SortKeyIndex, OfAPartLeavesTheOtherEntries) {
    FillRandomly(200, 3, 2);
    ExpectTheSteps(50, 120);
    ExpectTheSteps(2, 199);
    const auto part = Sorted(50, 120, true, true);
    for (std::int32_t i = 1; i <= 200; ++i)
        if (i < 50 || i > 120) {
            ASSERT_EQ(part[static_cast<std::size_t>(i)], order[i]);
        }
}

TEST_F(SortKeyIndex, SortsTextsThatAreMeantMoreThanOnce) {
    FillRandomly(100, 3, 2);
    for (std::int32_t i = 1; i <= 100; i += 3) order[i] = 5;
    ExpectTheSteps();
}

TEST_F(SortKeyIndex, BeyondAnArrayIsASubscriptErrorAndMovesNothing) {
    FillRandomly(30, 3, 2);
    const std::vector<std::int32_t> before(order.data(), order.data() + 31);
    const auto same = [&] { return std::vector<std::int32_t>(order.data(), order.data() + 31) == before; };
    EXPECT_THROW(mSort::SortKeyIndex(texts, order, 1, 31, true, true), SubscriptError);
    EXPECT_TRUE(same());
    EXPECT_THROW(mSort::SortKeyIndex(texts, order, -2, 30, true, true), SubscriptError);
    EXPECT_TRUE(same());
    Texts few(5);
    EXPECT_THROW(mSort::SortKeyIndex(few, order, 1, 30, true, true), SubscriptError);
    EXPECT_TRUE(same());
}

} // namespace
} // namespace tvok::test
