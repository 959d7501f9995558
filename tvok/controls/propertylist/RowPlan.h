/// The order of a `gList`'s items and which of them belong to which group: what rows are made from. Made anew
/// only when the store has changed, so folding a group costs no sort.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "tvok/controls/propertylist/ItemStore.h"
#include "tvok/records/Array.h"

namespace tvok::propertylist {

class RowPlan {
public:
    /// A group row with the slots of its children, in order. Groups of one key share their children. A flat
    /// list is one group without a row of its own: `parent` 0.
    struct Group {
        std::int32_t parent = 0;
        std::int32_t key = 0; ///< Number of the group's key, from 0.
        std::span<const std::int32_t> children{};
    };

    /// Follows the store, whose items have to fill the slots 1 to `count`. False where nothing has changed.
    bool Make(ItemStore& store, std::int32_t count, bool sorted, bool grouped);

    /// The visible groups in order; their spans are good until the next `Make`.
    const std::vector<Group>& Groups() const { return groups_; }
    std::size_t KeyCount() const { return keys_.size(); }

    /// The largest of what `measure` gives for the children of the keys that are open. Asks once for each
    /// child, until `ForgetWidths` or a change.
    std::int32_t Widest(const std::vector<bool>& isOpen,
                        const std::function<std::int32_t(std::int32_t)>& measure);
    void ForgetWidths();

private:
    struct Key {
        std::size_t first = 0; ///< Of its children.
        std::size_t count = 0;
        std::int32_t widest = cUnknown;
    };
    static constexpr std::int32_t cUnknown = -1;
    static constexpr std::int32_t cNone = -1;

    void Sort(const ItemStore& store, std::int32_t last);
    void FindFlat(const ItemStore& store);
    void FindParents(const ItemStore& store);
    void FindChildren(const ItemStore& store);
    void CollectRows();
    static std::size_t At(std::int32_t place) { return static_cast<std::size_t>(place); }

    std::uint64_t version_ = 0; ///< Of the store; 0 for none.
    bool sorted_ = false;
    bool grouped_ = false;
    std::int32_t count_ = 0;
    Array<std::int32_t> order_{0};
    std::vector<std::int32_t> childOf_;  ///< For each slot the key that it is a child of, or none.
    std::vector<std::int32_t> parentOf_; ///< For each slot the key that it is a visible group of, or none.
    std::unordered_map<std::string_view, std::int32_t> numbers_; ///< While the plan is made.
    std::vector<Key> keys_;
    std::vector<std::int32_t> children_;
    std::vector<Group> groups_;
};

} // namespace tvok::propertylist
