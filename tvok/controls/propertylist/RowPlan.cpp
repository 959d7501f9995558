#include "tvok/controls/propertylist/RowPlan.h"

#include <numeric>
#include <string_view>
#include <unordered_map>

#include "tvok/engine/mtvok.h"

namespace tvok::propertylist {

void RowPlan::Make(ItemStore& store, std::int32_t count, bool sorted) {
    const std::uint64_t version = store.Version();
    if (version == version_ && sorted == sorted_) return;
    version_ = 0;
    count_ = static_cast<std::size_t>(count);
    order_.Make(count);
    std::iota(order_.data(), order_.data() + count_ + 1, 0);
    if (sorted) Sort(store);
    MakeGroups(store);
    sorted_ = sorted;
    version_ = version;
}

void RowPlan::Sort(const ItemStore& store) {
    mtvok::SortIndexByText([&](std::int32_t slot) -> const std::string& { return store[slot].hItem.text; },
                           order_, 1, static_cast<std::int32_t>(count_), true, true);
}

// Each child goes to the parent key that it names, in one pass over all; a plain look through all items for
// each parent gives the same.
void RowPlan::MakeGroups(const ItemStore& store) {
    struct Members {
        std::size_t first = 0;
        std::size_t count = 0;
    };
    std::unordered_map<std::string_view, Members> members;
    for (const std::int32_t slot : Order())
        if (const elistdata& item = store[slot]; item.bParentItem && item.bVisible)
            members.try_emplace(item.hItem.key);
    std::vector<Members*> groupOf(count_);
    for (std::size_t i = 0; i < count_; ++i) {
        const elistdata& item = store[Order()[i]];
        const auto found = item.bParentItem ? members.end() : members.find(item.pKey);
        if (found == members.end()) continue;
        groupOf[i] = &found->second;
        ++found->second.count;
    }
    std::size_t next = 0;
    for (auto& [key, group] : members) {
        group.first = next;
        next += group.count;
        group.count = 0;
    }
    children_.resize(next);
    for (std::size_t i = 0; i < count_; ++i)
        if (Members* group = groupOf[i]) children_[group->first + group->count++] = Order()[i];
    groups_.clear();
    for (const std::int32_t slot : Order()) {
        const elistdata& item = store[slot];
        if (!item.bParentItem || !item.bVisible) continue;
        const Members& group = members.find(item.hItem.key)->second;
        groups_.push_back({slot, std::span(children_).subspan(group.first, group.count)});
    }
}

} // namespace tvok::propertylist
