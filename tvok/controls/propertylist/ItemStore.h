/// The items of a `gList`: records in places that never move, found by key, by group and by being free at a
/// cost that does not follow their number.
///
/// Handlers get stored records by reference and may change all of them. A lent record is looked at anew
/// whenever a question is asked meanwhile, and once more when the loan ends. The store never shrinks, so a
/// record that a handler holds stays good whatever it does to the list.
#pragma once

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "tvok/engine/SlotBits.h"
#include "tvok/records/tvok_declare.h"

namespace tvok::propertylist {

class ItemStore {
public:
    ItemStore();
    ItemStore(const ItemStore&) = delete;
    ItemStore& operator=(const ItemStore&) = delete;
    ~ItemStore();

    std::int32_t UpperBound() const { return upper_; }

    /// A record; a slot outside 0 to `UpperBound` throws `SubscriptError`. Slot 0 is the blank one.
    const elistdata& operator[](std::int32_t slot) const { return At(slot); }
    /// A record to change in what nothing is found or ordered by: the value, the value cell and the flags.
    elistdata& Contents(std::int32_t slot) { return At(slot); }

    std::int32_t Grow(); ///< One slot more: its number.
    /// Replaces a record. The slot is in use afterwards, whatever the record says.
    void Put(std::int32_t slot, const elistdata& record);
    void Free(std::int32_t slot);
    void FreeAll();
    void Reset(); ///< Back to a blank slot 0 alone.

    /// The first free slot from 1 on, or 0.
    std::int32_t FirstFree();
    /// The first slot from `from` on whose key equals `key` when both are put in lower case, free ones too. 0
    /// for none, and for an empty key.
    std::int32_t NextWithKey(std::string_view key, std::int32_t from = 1);

    /// Moves the records in use down over the free slots before them, in their order, and gives their number.
    /// The slots above are free then and keep what was in them.
    std::int32_t Squeeze();

    /// Changes with every change of what rows are made from: caption, key, parent's key, kind, visibility,
    /// use.
    std::uint64_t Version();
    /// Changes with the caption of a slot, and goes with its record. 0 before the slot's first record.
    std::uint64_t CaptionStamp(std::int32_t slot) const { return places_[Index(slot)].caption; }

    /// A record in a handler's hands.
    class Loan {
    public:
        Loan(ItemStore& owner, std::int32_t slot);
        Loan(const Loan&) = delete;
        Loan& operator=(const Loan&) = delete;
        ~Loan();
        elistdata& record() const { return *record_; }

    private:
        friend class ItemStore;
        /// What is found or ordered by, as it was when it was last looked at.
        struct Facts {
            std::string caption, key, parentKey;
            bool isFree = false, isVisible = false, isParent = false;
            void Note(const elistdata& record);
            bool Hold(const elistdata& record) const;
        };
        ItemStore& owner_;
        std::int32_t
            slot_; ///< 0 where nothing is found by it: the blank record, and one of before a `Reset`.
        elistdata* record_;
        Facts seen_;
    };
    Loan Lend(std::int32_t slot) { return Loan(*this, slot); }

private:
    /// The slots that share a key: the first, and where there are more, all of them.
    struct SlotsOfKey {
        std::int32_t first = 0;
        std::unique_ptr<std::set<std::int32_t>> all;
        void Add(std::int32_t slot);
        bool Remove(std::int32_t slot); ///< Whether none is left.
        std::int32_t Next(std::int32_t from) const;
    };
    using KeyMap = std::unordered_map<std::string, SlotsOfKey>;
    struct Place {
        KeyMap::value_type* key = nullptr; ///< The slot's entry, null without a key.
        std::uint64_t caption = 0;
        bool isFree = false;
    };
    static constexpr std::int32_t cChunk = 64;
    using Chunk = std::unique_ptr<elistdata[]>;

    static std::size_t Index(std::int32_t slot) { return static_cast<std::size_t>(slot); }
    elistdata& At(std::int32_t slot) const;
    bool IsFree(std::int32_t slot) const { return places_[Index(slot)].isFree; }
    void LookAt(Loan& loan);
    void LookAtLoans();
    void NoteLoans();
    void SetKey(std::int32_t slot);
    void LinkKey(std::int32_t slot, KeyMap::value_type* entry);
    void SetFree(std::int32_t slot, bool isFree);
    void MoveDown(std::int32_t from, std::int32_t to, bool keep);

    std::vector<Chunk> chunks_;
    std::vector<Chunk> retired_; ///< Records of before a `Reset` that handlers may still hold.
    std::int32_t upper_ = 0;
    std::vector<Place> places_;
    KeyMap keys_;
    SlotBits free_;
    std::int32_t inUse_ = 0;
    std::vector<Loan*> loans_;
    std::uint64_t version_ = 1;
    std::uint64_t lastCaption_ = 0;
};

} // namespace tvok::propertylist
