/// The item slots of a list: records that never move, and a fast answer to "which slot is free".
#pragma once

#include <cstdint>
#include <memory>

#include "tvok/records/Array.h"
#include "tvok/records/tvok_declare.h"

namespace tvok {

/// Display order: entry i, for i from 1 to the count, is the slot of the item at position i. Entry 0 is
/// scratch.
using IndexArray = Array<std::int32_t>;

/// Slots 0 to `UpperBound`. Slot 0 starts as the default item and is what blank cells paint with.
///
/// Records live in chunks that are never moved, so a reference stays good while the array grows. `Lend` keeps
/// one good even while a handler clears the whole array.
class ItemSlots {
    struct Store;

public:
    ItemSlots();
    ItemSlots(const ItemSlots&) = delete;
    ItemSlots& operator=(const ItemSlots&) = delete;
    ItemSlots(ItemSlots&&) = delete;
    ItemSlots& operator=(ItemSlots&&) = delete;
    ~ItemSlots();

    std::int32_t UpperBound() const { return upper_; }

    /// Reading a record; an index outside 0 to `UpperBound` throws `SubscriptError`.
    const qrosterdata& operator[](std::int32_t slot) const;

    /// Writing a record. `InUse` of the new `vflag` decides whether the slot counts as free.
    void Put(std::int32_t slot, const qrosterdata& record);
    void PutFlags(std::int32_t slot, std::int32_t vflag);

    /// The first slot from `start` to `UpperBound` whose `vflag` lacks `InUse`, or -1.
    std::int32_t FirstFree(std::int32_t start);

    /// Grows to `upperBound`, keeping contents; new records are default items. A lower bound changes nothing.
    void Resize(std::int32_t upperBound);

    /// Back to slot 0 alone, holding the default item. Lent records live on until they are given back.
    void Reset();

    /// A record lent to a handler, by reference. Whatever the handler does to the list, the reference stays
    /// good until the loan ends; then, and whenever a free slot is looked for meanwhile, its flags are looked
    /// at anew. Lending allocates nothing.
    class Loan {
    public:
        Loan(ItemSlots& owner, std::int32_t slot);
        Loan(const Loan&) = delete;
        Loan& operator=(const Loan&) = delete;
        ~Loan();
        qrosterdata& record() { return *record_; }

    private:
        friend class ItemSlots;
        std::shared_ptr<Store> store_; ///< The records of the time of lending, whatever the owner has now.
        qrosterdata* record_;
        std::int32_t slot_;
        Loan* previous_ = nullptr; ///< The loans of a store form a list.
        Loan* next_ = nullptr;
    };
    Loan Lend(std::int32_t slot) { return Loan(*this, slot); }

private:
    qrosterdata& Checked(std::int32_t slot) const;

    std::shared_ptr<Store> store_;
    std::int32_t upper_ = 0;
};

} // namespace tvok
