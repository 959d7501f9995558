/// The order of a `gList`'s items and which of them belong to which group: what rows are made from. Made anew
/// only when the store has changed, so folding a group costs no sort.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "tvok/controls/propertylist/ItemStore.h"
#include "tvok/records/Array.h"

namespace tvok::propertylist {

class RowPlan {
public:
    /// A group row with the slots of its children, in order. Several groups with one key share them.
    struct Group {
        std::int32_t parent = 0;
        std::span<const std::int32_t> children;
    };

    /// Follows the store, whose items have to fill the slots 1 to `count`.
    void Make(ItemStore& store, std::int32_t count, bool sorted);

    /// All slots in order.
    std::span<const std::int32_t> Order() const { return {order_.data() + 1, count_}; }
    /// The visible groups in order. Their spans are good until the next `Make`.
    const std::vector<Group>& Groups() const { return groups_; }

private:
    void Sort(const ItemStore& store);
    void MakeGroups(const ItemStore& store);

    std::uint64_t version_ = 0; ///< Of the store; 0 for none.
    bool sorted_ = false;
    std::size_t count_ = 0;
    Array<std::int32_t> order_{0};
    std::vector<std::int32_t> children_;
    std::vector<Group> groups_;
};

} // namespace tvok::propertylist
