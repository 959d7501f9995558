#include "tvok/controls/propertylist/RowPlan.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "tvok/engine/mtvok.h"

namespace tvok::propertylist {

bool RowPlan::Make(ItemStore& store, std::int32_t count, bool sorted, bool grouped) {
    const std::uint64_t version = store.Version();
    if (version == version_ && sorted == sorted_ && grouped == grouped_) return false;
    version_ = 0;
    sorted_ = sorted;
    grouped_ = grouped;
    count_ = count;
    Sort(store, sorted ? count : 0);
    childOf_.assign(At(count) + 1, cNone);
    parentOf_.assign(At(count) + 1, cNone);
    keys_.clear();
    if (grouped) {
        FindParents(store);
        FindChildren(store);
    } else {
        FindFlat(store);
    }
    CollectRows();
    version_ = version;
    return true;
}

/// Puts the slots 1 to `last` in order; those beyond it stay as they lie.
void RowPlan::Sort(const ItemStore& store, std::int32_t last) {
    order_.Make(count_);
    std::iota(order_.data(), order_.data() + At(count_) + 1, 0);
    mtvok::SortIndexByText([&](std::int32_t slot) -> const std::string& { return store[slot].hItem.text; },
                           order_, 1, last, true, true);
}

void RowPlan::FindFlat(const ItemStore& store) {
    keys_.emplace_back();
    for (std::int32_t slot = 1; slot <= count_; ++slot) {
        const elistdata& item = store[slot];
        if (!item.bVisible || item.bParentItem) continue;
        childOf_[At(slot)] = 0;
        ++keys_[0].count;
    }
}

void RowPlan::FindParents(const ItemStore& store) {
    numbers_.clear();
    for (std::int32_t slot = 1; slot <= count_; ++slot) {
        const elistdata& item = store[slot];
        if (!item.bVisible || !item.bParentItem) continue;
        const auto number = static_cast<std::int32_t>(keys_.size());
        const auto [entry, isNew] = numbers_.try_emplace(item.hItem.key, number);
        if (isNew) keys_.emplace_back();
        parentOf_[At(slot)] = entry->second;
    }
}

// Each child is led to the key that it names, in one pass over the records as they lie in memory; a look
// through all items for each parent gives the same.
void RowPlan::FindChildren(const ItemStore& store) {
    std::string_view lastName;
    std::int32_t last = cNone; // neighbours often belong together
    for (std::int32_t slot = 1; slot <= count_; ++slot) {
        const elistdata& item = store[slot];
        if (item.bParentItem) continue;
        if (last == cNone || item.pKey != lastName) {
            const auto found = numbers_.find(item.pKey);
            last = found == numbers_.end() ? cNone : found->second;
            lastName = item.pKey;
        }
        childOf_[At(slot)] = last;
        if (last != cNone) ++keys_[At(last)].count;
    }
    numbers_.clear(); // it looks at texts of the store
}

void RowPlan::CollectRows() {
    std::size_t next = 0;
    for (Key& key : keys_) {
        key.first = next;
        next += std::exchange(key.count, 0);
    }
    children_.resize(next);
    for (std::int32_t i = 1; i <= count_; ++i) {
        const std::int32_t number = childOf_[At(order_[i])];
        if (number == cNone) continue;
        Key& key = keys_[At(number)];
        children_[key.first + key.count++] = order_[i];
    }
    groups_.clear();
    const auto add = [&](std::int32_t parent, std::int32_t number) {
        const Key& key = keys_[At(number)];
        groups_.push_back({parent, number, std::span(children_).subspan(key.first, key.count)});
    };
    if (!grouped_) return add(0, 0);
    for (std::int32_t i = 1; i <= count_; ++i)
        if (const std::int32_t number = parentOf_[At(order_[i])]; number != cNone) add(order_[i], number);
}

void RowPlan::ForgetWidths() {
    for (Key& key : keys_) key.widest = cUnknown;
}

std::int32_t RowPlan::Widest(const std::vector<bool>& isOpen,
                             const std::function<std::int32_t(std::int32_t)>& measure) {
    std::vector<bool> isWanted(keys_.size());
    bool isAny = false;
    for (std::size_t key = 0; key < keys_.size(); ++key) {
        isWanted[key] = isOpen[key] && keys_[key].widest == cUnknown;
        isAny |= isWanted[key];
    }
    std::vector<std::int32_t> found(isAny ? keys_.size() : 0);
    // In the order of memory and not of rows: many captions then cost no wait for it.
    for (std::int32_t slot = 1; isAny && slot <= count_; ++slot) {
        const std::int32_t key = childOf_[At(slot)];
        if (key == cNone || !isWanted[At(key)]) continue;
        found[At(key)] = std::max(found[At(key)], measure(slot));
    }
    // All at once: a measure that throws leaves nothing half known.
    for (std::size_t key = 0; key < found.size(); ++key)
        if (isWanted[key]) keys_[key].widest = found[key];
    std::int32_t widest = 0;
    for (std::size_t key = 0; key < keys_.size(); ++key)
        if (isOpen[key]) widest = std::max(widest, keys_[key].widest);
    return widest;
}

} // namespace tvok::propertylist
