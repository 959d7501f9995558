// The popup's sort by ItemData, against the steps as they are told one by one.
#include "tvok/controls/popup/itemdatasort.h"

#include <random>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tvok/records/Error.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;

/// The partition sort down to single entries, each comparison made on the items.
class PlainSteps {
public:
    PlainSteps(const ItemSlots& items, IndexArray& index, bool ascending)
        : items_(items), index_(index), ascending_(ascending) {}

    void Sort(std::int32_t low, std::int32_t high) {
        std::int32_t i = low;
        std::int32_t j = high;
        const std::int32_t m = (low + high) / 2;
        const std::int32_t p = Item(m).ItemData;
        const std::string t = Item(m).text;
        while (i <= j) {
            while (i < high && !(ascending_ ? AtLeast(i, p, t) : AtMost(i, p, t))) i += 1;
            while (j > low && !(ascending_ ? AtMost(j, p, t) : AtLeast(j, p, t))) j -= 1;
            if (i <= j) {
                std::swap(index_[i], index_[j]);
                i += 1;
                j -= 1;
            }
        }
        if (low < j) Sort(low, j);
        if (i < high) Sort(i, high);
    }

private:
    const qrosterdata& Item(std::int32_t i) const { return items_[index_[i]]; }
    bool AtLeast(std::int32_t i, std::int32_t p, const std::string& t) const {
        return Item(i).ItemData > p || (Item(i).ItemData == p && t >= Item(i).text);
    }
    bool AtMost(std::int32_t i, std::int32_t p, const std::string& t) const {
        return Item(i).ItemData < p || (Item(i).ItemData == p && t <= Item(i).text);
    }

    const ItemSlots& items_;
    IndexArray& index_;
    bool ascending_;
};

struct List {
    ItemSlots items;
    IndexArray index{0};
    std::int32_t count = 0;

    void Add(std::int32_t data, const std::string& text) {
        ++count;
        items.Resize(count);
        items.Put(count, {.text = text, .ItemData = data});
        index.Resize(count);
        index[count] = count;
    }
    std::vector<std::int32_t> Order() const { return {index.data(), index.data() + count + 1}; }
};

TEST(ItemDataSort, SortsByTheNumberAndEqualNumbersByTextAgainstTheDirection) {
    List list;
    list.Add(2, "x");
    list.Add(1, "a");
    list.Add(1, "b");
    list.Add(-5, "z");
    popup::SortIndexByItemData(list.items, list.index, 1, 4, true);
    EXPECT_THAT(list.Order(), ElementsAre(0, 4, 3, 2, 1));
    popup::SortIndexByItemData(list.items, list.index, 1, 4, false);
    EXPECT_THAT(list.Order(), ElementsAre(0, 1, 2, 3, 4));
}

TEST(ItemDataSort, ComparesTextsByteByByte) {
    List list;
    list.Add(0, "b");
    list.Add(0, "B");
    list.Add(0, "\xC3\xA4");
    popup::SortIndexByItemData(list.items, list.index, 1, 3, false);
    EXPECT_THAT(list.Order(), ElementsAre(0, 2, 1, 3));
}

TEST(ItemDataSort, TakesTheWholeRangeOf32Bits) {
    List list;
    list.Add(INT32_MAX, "");
    list.Add(INT32_MIN, "");
    list.Add(0, "");
    popup::SortIndexByItemData(list.items, list.index, 1, 3, true);
    EXPECT_THAT(list.Order(), ElementsAre(0, 2, 3, 1));
}

TEST(ItemDataSort, LeavesEntryZeroAndWhatIsOutsideTheRange) {
    List list;
    for (std::int32_t i = 1; i <= 20; ++i) list.Add(-i, "");
    list.index[0] = 77;
    popup::SortIndexByItemData(list.items, list.index, 3, 18, true);
    const auto order = list.Order();
    EXPECT_EQ(order[0], 77);
    EXPECT_EQ(order[1], 1);
    EXPECT_EQ(order[3], 18);
    EXPECT_EQ(order[18], 3);
    EXPECT_EQ(order[20], 20);
    popup::SortIndexByItemData(list.items, list.index, 5, 5, false);
    EXPECT_EQ(list.Order(), order);
    EXPECT_THROW(popup::SortIndexByItemData(list.items, list.index, 1, 21, true), SubscriptError);
    EXPECT_EQ(list.Order(), order);
}

TEST(ItemDataSort, GivesTheVeryOrderOfItsPlainStepsAlsoAmongEqualItems) {
    std::mt19937 random(20261121);
    const auto upTo = [&](std::int32_t most) {
        return static_cast<std::int32_t>(random() % static_cast<unsigned>(most));
    };
    for (int round = 0; round < 400; ++round) {
        List list;
        const std::int32_t count = 1 + upTo(round < 300 ? 40 : 700);
        const std::int32_t numbers = 1 + upTo(round % 3 == 0 ? 3 : 50);
        const std::int32_t texts = 1 + upTo(4);
        for (std::int32_t i = 0; i < count; ++i)
            list.Add(upTo(numbers) - numbers / 2, std::string(static_cast<std::size_t>(upTo(texts)), 'a'));
        const bool ascending = round % 2 == 0;
        IndexArray plain(count);
        for (std::int32_t i = 0; i <= count; ++i) plain[i] = list.index[i];
        PlainSteps(list.items, plain, ascending).Sort(1, count);
        popup::SortIndexByItemData(list.items, list.index, 1, count, ascending);
        for (std::int32_t i = 0; i <= count; ++i) ASSERT_EQ(list.index[i], plain[i]) << round << " " << i;
    }
}

TEST(ItemDataSort, ManyEqualItemsNeedNoDeepStack) {
    List list;
    for (std::int32_t i = 0; i < 200000; ++i) list.Add(i < 100000 ? 1 : 2, "");
    popup::SortIndexByItemData(list.items, list.index, 1, list.count, false);
    EXPECT_EQ(list.items[list.index[1]].ItemData, 2);
    EXPECT_EQ(list.items[list.index[list.count]].ItemData, 1);
}

} // namespace
} // namespace tvok::test
