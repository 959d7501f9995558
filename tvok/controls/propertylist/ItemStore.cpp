#include "tvok/controls/propertylist/ItemStore.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "tvok/host/Services.h"
#include "tvok/records/Error.h"
#include "tvok/records/Event.h"
#include "tvok/records/numeric.h"

namespace tvok::propertylist {

namespace {

/// A record with every number 0, every text empty and nothing set: what slot 0 and unused memory hold.
elistdata ZeroRecord() {
    elistdata record;
    record.hItem = ZeroItem();
    record.item = ZeroItem();
    return record;
}

std::string LowerCase(std::string_view text) {
    return host::services().Language().LowerCase(text);
}

} // namespace

// Keys.

void ItemStore::SlotsOfKey::Add(std::int32_t slot) {
    if (first == 0) {
        first = slot;
        return;
    }
    if (!all) all = std::make_unique<std::set<std::int32_t>>(std::set{first});
    all->insert(slot);
    first = *all->begin();
}

bool ItemStore::SlotsOfKey::Remove(std::int32_t slot) {
    if (!all) {
        first = 0;
        return true;
    }
    all->erase(slot);
    first = *all->begin();
    if (all->size() == 1) all.reset();
    return false;
}

std::int32_t ItemStore::SlotsOfKey::Next(std::int32_t from) const {
    if (from <= first) return first;
    if (!all) return 0;
    const auto next = all->lower_bound(from);
    return next == all->end() ? 0 : *next;
}

// Notes the key that the record has now.
void ItemStore::SetKey(std::int32_t slot) {
    const KeyMap::value_type* noted = places_[Index(slot)].key;
    const std::string& key = At(slot).hItem.key;
    std::string lower = key.empty() ? std::string() : LowerCase(key);
    if (noted != nullptr && noted->first == lower) return;
    LinkKey(slot, lower.empty() ? nullptr : &*keys_.try_emplace(std::move(lower)).first);
}

void ItemStore::LinkKey(std::int32_t slot, KeyMap::value_type* entry) {
    KeyMap::value_type*& noted = places_[Index(slot)].key;
    if (noted == entry) return;
    if (noted != nullptr && noted->second.Remove(slot)) keys_.erase(keys_.find(noted->first));
    noted = entry;
    if (entry != nullptr) entry->second.Add(slot);
}

std::int32_t ItemStore::NextWithKey(std::string_view key, std::int32_t from) {
    LookAtLoans();
    if (key.empty()) return 0;
    const auto found = keys_.find(LowerCase(key));
    return found == keys_.end() ? 0 : found->second.Next(from);
}

// Slots.

ItemStore::ItemStore() {
    Reset();
}
ItemStore::~ItemStore() = default;

elistdata& ItemStore::At(std::int32_t slot) const {
    if (slot < 0 || slot > upper_) throw SubscriptError(slot, upper_);
    return chunks_[Index(slot / cChunk)][Index(slot % cChunk)];
}

void ItemStore::Reset() {
    std::ranges::move(chunks_, std::back_inserter(retired_));
    if (RunningEvent::Count() == 0) retired_.clear();
    for (Loan* loan : loans_) loan->slot_ = 0;
    chunks_.clear();
    places_.clear();
    keys_.clear();
    free_ = SlotBits();
    inUse_ = 0;
    ++version_;
    upper_ = -1;
    Grow();
}

std::int32_t ItemStore::Grow() {
    const std::int32_t slot = ToInt32(std::int64_t{upper_} + 1);
    if (slot / cChunk >= static_cast<std::int32_t>(chunks_.size()))
        chunks_.push_back(std::make_unique<elistdata[]>(cChunk));
    places_.resize(Index(slot) + 1);
    free_.Grow(slot + 1); // new slots come in as free ones
    upper_ = slot;
    if (slot == 0) {
        At(slot) = ZeroRecord();
        free_.Set(slot, false); // the blank record is never given out
    } else {
        At(slot).bDelete = true;
        places_[Index(slot)].isFree = true;
    }
    return slot;
}

void ItemStore::SetFree(std::int32_t slot, bool isFree) {
    if (IsFree(slot) == isFree) return;
    places_[Index(slot)].isFree = isFree;
    free_.Set(slot, isFree);
    inUse_ += isFree ? -1 : 1;
}

std::int32_t ItemStore::FirstFree() {
    LookAtLoans();
    return std::max(free_.Next(1), 0);
}

void ItemStore::Put(std::int32_t slot, const elistdata& record) {
    LookAtLoans();
    elistdata& stored = At(slot);
    std::uint64_t& caption = places_[Index(slot)].caption;
    if (caption == 0 || stored.hItem.text != record.hItem.text) caption = ++lastCaption_;
    stored = record;
    stored.bDelete = false;
    ++version_;
    SetFree(slot, false);
    SetKey(slot);
    NoteLoans();
}

void ItemStore::Free(std::int32_t slot) {
    LookAtLoans();
    At(slot).bDelete = true;
    SetFree(slot, true);
    ++version_;
    NoteLoans();
}

void ItemStore::FreeAll() {
    LookAtLoans();
    for (std::int32_t slot = 1; slot <= upper_; ++slot) {
        At(slot).bDelete = true;
        SetFree(slot, true);
    }
    ++version_;
    NoteLoans();
}

std::int32_t ItemStore::Squeeze() {
    const std::int32_t firstFree = FirstFree();
    if (firstFree == 0 || firstFree > inUse_) return inUse_;
    const std::int32_t last = inUse_;
    std::int32_t to = firstFree - 1;
    for (std::int32_t from = firstFree; from <= upper_; ++from)
        // What lies beyond the last record stays readable there; a record below it is written over anyway.
        if (!IsFree(from)) MoveDown(from, ++to, from > last);
    ++version_;
    NoteLoans();
    return last;
}

void ItemStore::MoveDown(std::int32_t from, std::int32_t to, bool keep) {
    if (keep)
        At(to) = At(from);
    else
        At(to) = std::move(At(from));
    At(from).bDelete = true;
    places_[Index(to)].caption = places_[Index(from)].caption;
    LinkKey(to, places_[Index(from)].key);
    SetFree(to, false);
    SetFree(from, true);
}

std::uint64_t ItemStore::Version() {
    LookAtLoans();
    return version_;
}

// Loans.

void ItemStore::Loan::Facts::Note(const elistdata& record) {
    caption = record.hItem.text;
    key = record.hItem.key;
    parentKey = record.pKey;
    isFree = record.bDelete;
    isVisible = record.bVisible;
    isParent = record.bParentItem;
}

bool ItemStore::Loan::Facts::Hold(const elistdata& record) const {
    return caption == record.hItem.text && key == record.hItem.key && parentKey == record.pKey &&
           isFree == record.bDelete && isVisible == record.bVisible && isParent == record.bParentItem;
}

ItemStore::Loan::Loan(ItemStore& owner, std::int32_t slot)
    : owner_(owner), slot_(slot), record_(&owner.At(slot)) {
    if (slot != 0) seen_.Note(*record_);
    owner.loans_.push_back(this);
}

ItemStore::Loan::~Loan() {
    quietly([this] { owner_.LookAt(*this); });
    std::erase(owner_.loans_, this);
}

void ItemStore::LookAt(Loan& loan) {
    const elistdata& record = *loan.record_;
    if (loan.slot_ == 0 || loan.seen_.Hold(record)) return;
    if (loan.seen_.caption != record.hItem.text) places_[Index(loan.slot_)].caption = ++lastCaption_;
    SetKey(loan.slot_);
    SetFree(loan.slot_, record.bDelete);
    ++version_;
    loan.seen_.Note(record);
}

void ItemStore::LookAtLoans() {
    for (Loan* loan : loans_) LookAt(*loan);
}

// The store itself changed records: what they are now is no change by a handler.
void ItemStore::NoteLoans() {
    for (Loan* loan : loans_)
        if (loan->slot_ != 0) loan->seen_.Note(*loan->record_);
}

} // namespace tvok::propertylist
