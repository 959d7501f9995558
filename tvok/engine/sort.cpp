#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "tvok/engine/mtvok.h"
#include "tvok/engine/sortkeys.h"
#include "tvok/host/Platform.h"
#include "tvok/host/Services.h"
#include "tvok/records/Error.h"

namespace tvok::mtvok {
namespace {

constexpr std::int32_t kShortRun = 10;

/// The key of an entry of the range.
struct Key : TextKey {
    std::uint32_t place = 0; ///< From 0.
};

/// The keys of a range of entries, made once each.
class Keys {
public:
    Keys(const TextOfEntry& textOfEntry, const IndexArray& indexes, std::int32_t low, std::int32_t high,
         bool caseSensitive)
        : keys_(static_cast<std::size_t>(high - low) + 1) {
        const auto textOf = [&](std::size_t place) -> const std::string& {
            return textOfEntry(indexes[low + static_cast<std::int32_t>(place)]);
        };
        if (caseSensitive) {
            std::vector<std::string_view> texts(keys_.size());
            for (std::size_t i = 0; i < keys_.size(); ++i) texts[i] = textOf(i);
            Set(texts);
        } else {
            Fold(textOf);
        }
    }

    /// Numbers from 0 in the wanted order, one for each entry of the range; equal keys share one. `distinct`
    /// tells whether no two do. Uses the keys up.
    std::vector<std::int32_t> Ranks(bool ascending, bool& distinct) {
        std::sort(keys_.begin(), keys_.end());
        std::vector<std::int32_t> ranks(keys_.size());
        std::int32_t last = 0;
        for (std::size_t i = 0; i < keys_.size(); ++i) {
            if (i > 0 && !(keys_[i] == keys_[i - 1])) ++last;
            ranks[keys_[i].place] = last;
        }
        if (!ascending)
            for (auto& rank : ranks) rank = last - rank;
        distinct = static_cast<std::size_t>(last) + 1 == keys_.size();
        return ranks;
    }

private:
    /// What all texts begin with tells nothing. Without it the front of a key mostly decides.
    static std::size_t SharedFront(const std::vector<std::string_view>& texts) {
        std::string_view shared = texts.front();
        for (const std::string_view text : texts) {
            const auto end = std::ranges::mismatch(shared, text).in1;
            shared = shared.substr(0, static_cast<std::size_t>(end - shared.begin()));
            if (shared.empty()) break;
        }
        return shared.size();
    }

    void Set(const std::vector<std::string_view>& texts) {
        const std::size_t shared = SharedFront(texts);
        for (std::size_t i = 0; i < texts.size(); ++i)
            keys_[i] = {TextKey(texts[i].substr(shared)), static_cast<std::uint32_t>(i)};
    }

    template<class TextOf>
    void Fold(const TextOf& textOf) {
        const host::Language& language = host::services().Language();
        std::vector<std::size_t> starts(keys_.size() + 1);
        std::string key;
        for (std::size_t i = 0; i < keys_.size(); ++i) {
            language.SortKey(textOf(i), key);
            folded_ += key;
            starts[i + 1] = folded_.size();
        }
        const std::string_view all = folded_;
        std::vector<std::string_view> texts(keys_.size());
        for (std::size_t i = 0; i < keys_.size(); ++i)
            texts[i] = all.substr(starts[i], starts[i + 1] - starts[i]);
        Set(texts);
    }

    std::vector<Key> keys_;
    std::string folded_;
};

struct Entry {
    std::int32_t rank;
    std::int32_t slot;
};

struct Range {
    std::int32_t left;
    std::int32_t right;
};

/// The sort's own steps. What order they give among equal texts, and what they leave in `scratch`, is part of
/// what hosts see.
class Steps {
public:
    Steps(Entry* entries, std::int32_t& scratch) : entries_(entries), scratch_(scratch) {}

    void Run(Range whole) {
        std::vector<Range> waiting{whole};
        while (!waiting.empty()) {
            const Range range = waiting.back();
            waiting.pop_back();
            if (IsShort(range)) {
                Select(range);
                continue;
            }
            const auto [below, above] = Partition(range);
            if (below.left < below.right) waiting.push_back(below);
            if (above.left < above.right) waiting.push_back(above);
        }
    }

    // Where no two texts are equal, the order is known without the steps, and only the last swap is wanted.
    // The parts below are worked on last: a part that is in order already swaps nothing.
    void FindLastSwap(Range range) {
        while (!IsShort(range)) {
            const auto [below, above] = Partition(range);
            if (!InOrder(below))
                range = below;
            else if (!InOrder(above))
                range = above;
            else
                return;
        }
        Select(range);
    }

private:
    struct Parts {
        Range below;
        Range above;
    };

    static bool IsShort(Range range) { return range.right - range.left + 1 <= kShortRun; }

    bool InOrder(Range range) const {
        for (auto i = range.left; i < range.right; ++i)
            if (entries_[i].rank > entries_[i + 1].rank) return false;
        return true;
    }

    void Swap(std::int32_t i, std::int32_t j) {
        scratch_ = entries_[i].slot;
        std::swap(entries_[i], entries_[j]);
    }

    Parts Partition(Range range) {
        auto i = range.left;
        auto j = range.right;
        const auto pivot = entries_[i + (j - i) / 2].rank;
        for (;; ++i, --j) {
            while (j > i && entries_[i].rank < pivot) ++i;
            while (j >= i && entries_[j].rank > pivot) --j;
            if (i >= j) break;
            Swap(i, j);
        }
        return {{range.left, j}, {i, range.right}};
    }

    // Takes the last one among equal texts. That stays.
    void Select(Range range) {
        for (auto i = range.left; i < range.right; ++i) {
            auto least = i;
            for (auto j = i + 1; j <= range.right; ++j)
                if (entries_[j].rank <= entries_[least].rank) least = j;
            if (least > i) Swap(i, least);
        }
    }

    Entry* entries_;
    std::int32_t& scratch_;
};

void SortEntries(std::vector<Entry>& entries, bool distinct, std::int32_t& scratch) {
    const Range whole{0, static_cast<std::int32_t>(entries.size()) - 1};
    if (!distinct) return Steps(entries.data(), scratch).Run(whole);
    std::vector<Entry> ordered(entries.size());
    for (const Entry& entry : entries) ordered[static_cast<std::size_t>(entry.rank)] = entry;
    Steps(entries.data(), scratch).FindLastSwap(whole);
    entries.swap(ordered);
}

} // namespace

std::int32_t PositionOfSlot(std::int32_t slot, const IndexArray& indexes, std::int32_t count) {
    for (std::int32_t i = 1; i <= count; ++i)
        if (indexes[i] == slot) return i;
    return 0;
}

void SortIndexByText(const TextOfEntry& textOf, IndexArray& indexes, std::int32_t low, std::int32_t high,
                     bool ascending, bool caseSensitive) {
    if (high <= low) return;
    for (const auto bound : {low, high})
        if (bound < 0 || bound > indexes.UpperBound()) throw SubscriptError(bound, indexes.UpperBound());
    bool distinct = false;
    const auto ranks = Keys(textOf, indexes, low, high, caseSensitive).Ranks(ascending, distinct);
    std::vector<Entry> entries(ranks.size());
    for (std::size_t i = 0; i < entries.size(); ++i)
        entries[i] = {ranks[i], indexes[low + static_cast<std::int32_t>(i)]};
    auto scratch = indexes[0];
    SortEntries(entries, distinct, scratch);
    for (std::size_t i = 0; i < entries.size(); ++i)
        indexes[low + static_cast<std::int32_t>(i)] = entries[i].slot;
    if (low > 0) indexes[0] = scratch;
}

void SortIndexByText(const ItemSlots& items, IndexArray& indexes, std::int32_t low, std::int32_t high,
                     bool ascending, bool caseSensitive) {
    SortIndexByText([&](std::int32_t slot) -> const std::string& { return items[slot].text; }, indexes, low,
                    high, ascending, caseSensitive);
}

void ResortItems(ListState& state, const ItemSlots& items, IndexArray& indexes) {
    if (state.SortedMode == bNoneSorted || state.Count < 1) return;
    const auto current = state.ListIndex == 0 ? 0 : indexes[state.ListIndex];
    // Every order but 1 is descending by text here, those named for `ItemData` too. That stays.
    SortIndexByText(items, indexes, 1, state.Count, state.SortedMode == bAscendingSorted, false);
    state.ListIndex = state.ListIndex == 0 ? 0 : PositionOfSlot(current, indexes, state.Count);
    host::platform().InvalidateRect(state.hWnd, &state.ClientRect, false);
    host::platform().UpdateWindow(state.hWnd);
}

} // namespace tvok::mtvok
