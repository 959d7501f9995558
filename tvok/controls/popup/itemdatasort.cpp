#include "tvok/controls/popup/itemdatasort.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "tvok/engine/sortkeys.h"
#include "tvok/records/Error.h"

namespace tvok::popup {
namespace {

/// Its text and data, and the entry of the range that it belongs to, from 0.
struct Key : mtvok::TextKey {
    std::int32_t place = 0;
    std::int32_t data = 0;

    const mtvok::TextKey& text() const { return *this; }
    /// The ascending order. Among equal data the texts run against it, which is intended and stays.
    friend bool operator<(const Key& a, const Key& b) {
        return a.data != b.data ? a.data < b.data : b.text() < a.text();
    }
    friend bool operator==(const Key& a, const Key& b) { return a.data == b.data && a.text() == b.text(); }
};

struct Entry {
    std::int32_t rank = 0; ///< Place in the wanted order; equal items share one.
    std::int32_t slot = 0;
};

/// The entries of the range with their ranks; `distinct` tells whether no two ranks are equal.
std::vector<Entry> Ranked(const ItemSlots& items, const std::int32_t* slots, std::size_t count,
                          bool ascending, bool& distinct) {
    std::vector<Key> keys(count);
    for (std::size_t i = 0; i < count; ++i) {
        const qrosterdata& item = items[slots[i]];
        keys[i] = {mtvok::TextKey(item.text), static_cast<std::int32_t>(i), item.ItemData};
    }
    std::sort(keys.begin(), keys.end());
    std::vector<Entry> entries(count);
    std::int32_t last = 0;
    for (std::size_t i = 0; i < count; ++i) {
        if (i > 0 && !(keys[i] == keys[i - 1])) ++last;
        const auto place = static_cast<std::size_t>(keys[i].place);
        entries[place] = {last, slots[place]};
    }
    if (!ascending)
        for (Entry& entry : entries) entry.rank = last - entry.rank;
    distinct = static_cast<std::size_t>(last) + 1 == count;
    return entries;
}

/// The sort's own steps, which settle the order of equal items.
void Partition(Entry* entries, std::int32_t low, std::int32_t high) {
    while (low < high) {
        std::int32_t i = low;
        std::int32_t j = high;
        const std::int32_t pivot = entries[low + (high - low) / 2].rank;
        while (i <= j) {
            while (i < high && entries[i].rank < pivot) ++i;
            while (j > low && entries[j].rank > pivot) --j;
            if (i <= j) std::swap(entries[i++], entries[j--]);
        }
        // The parts do not touch each other, so the longer one may wait: the stack stays shallow.
        if (j - low < high - i) {
            Partition(entries, low, j);
            low = i;
        } else {
            Partition(entries, i, high);
            high = j;
        }
    }
}

} // namespace

void SortIndexByItemData(const ItemSlots& items, IndexArray& indexes, std::int32_t low, std::int32_t high,
                         bool ascending) {
    if (high <= low) return;
    for (const auto bound : {low, high})
        if (bound < 0 || bound > indexes.UpperBound()) throw SubscriptError(bound, indexes.UpperBound());
    std::int32_t* const slots = indexes.data() + low;
    bool distinct = false;
    auto entries = Ranked(items, slots, static_cast<std::size_t>(high - low) + 1, ascending, distinct);
    if (distinct) {
        for (const Entry& entry : entries) slots[entry.rank] = entry.slot;
        return;
    }
    Partition(entries.data(), 0, high - low);
    for (std::size_t i = 0; i < entries.size(); ++i) slots[i] = entries[i].slot;
}

} // namespace tvok::popup
