#include "tvok/engine/ItemSlots.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "tvok/engine/SlotBits.h"
#include "tvok/records/numeric.h"

namespace tvok {
namespace {

constexpr std::int32_t kChunkShift = 10;
constexpr std::int32_t kChunkRecords = 1 << kChunkShift;

/// Room for a fixed number of records, of which the first ones exist.
class Chunk {
public:
    Chunk() : records_(std::allocator<qrosterdata>().allocate(kChunkRecords)) {}
    Chunk(const Chunk&) = delete;
    Chunk& operator=(const Chunk&) = delete;
    Chunk(Chunk&& other) noexcept
        : records_(std::exchange(other.records_, nullptr)), count_(std::exchange(other.count_, 0)) {}
    Chunk& operator=(Chunk&&) = delete;
    ~Chunk() {
        Shrink(0);
        if (records_ != nullptr) std::allocator<qrosterdata>().deallocate(records_, kChunkRecords);
    }

    qrosterdata& operator[](std::int32_t place) const { return records_[place]; }
    bool Full() const { return count_ == kChunkRecords; }
    void Add() { std::construct_at(records_ + count_++); }
    void Shrink(std::int32_t count) {
        while (count_ > count) std::destroy_at(records_ + --count_);
    }

private:
    qrosterdata* records_;
    std::int32_t count_ = 0;
};

} // namespace

struct ItemSlots::Store {
    std::vector<Chunk> chunks;
    std::int32_t count = 0;
    SlotBits free;
    Loan* loans = nullptr;

    Store() { Grow(1); }

    qrosterdata& operator[](std::int32_t slot) const {
        return chunks[static_cast<std::size_t>(slot >> kChunkShift)][slot & (kChunkRecords - 1)];
    }
    void Grow(std::int32_t size) {
        for (; count < size; ++count) {
            if (chunks.empty() || chunks.back().Full()) chunks.emplace_back();
            chunks.back().Add();
        }
        free.Grow(size);
    }
    void NoteFlags(std::int32_t slot) { free.Set(slot, (*this)[slot].vflag >= 0); }
    void NoteLoans() {
        for (const Loan* loan = loans; loan != nullptr; loan = loan->next_) NoteFlags(loan->slot_);
    }
};

ItemSlots::ItemSlots() : store_(std::make_shared<Store>()) {}

ItemSlots::~ItemSlots() = default;

qrosterdata& ItemSlots::Checked(std::int32_t slot) const {
    if (slot < 0 || slot > upper_) [[unlikely]]
        throw SubscriptError(slot, upper_);
    return (*store_)[slot];
}

const qrosterdata& ItemSlots::operator[](std::int32_t slot) const {
    return Checked(slot);
}

void ItemSlots::Put(std::int32_t slot, const qrosterdata& record) {
    Checked(slot) = record;
    store_->NoteFlags(slot);
}

void ItemSlots::PutFlags(std::int32_t slot, std::int32_t vflag) {
    Checked(slot).vflag = vflag;
    store_->NoteFlags(slot);
}

std::int32_t ItemSlots::FirstFree(std::int32_t start) {
    store_->NoteLoans();
    return store_->free.Next(std::max(start, 0));
}

void ItemSlots::Resize(std::int32_t upperBound) {
    if (upperBound <= upper_) return;
    store_->Grow(ToInt32(std::int64_t{upperBound} + 1));
    upper_ = upperBound;
}

void ItemSlots::Reset() {
    store_ = std::make_shared<Store>();
    upper_ = 0;
}

ItemSlots::Loan::Loan(ItemSlots& owner, std::int32_t slot)
    : store_(owner.store_), record_(&owner.Checked(slot)), slot_(slot), next_(store_->loans) {
    if (next_ != nullptr) next_->previous_ = this;
    store_->loans = this;
}

ItemSlots::Loan::~Loan() {
    if (next_ != nullptr) next_->previous_ = previous_;
    (previous_ != nullptr ? previous_->next_ : store_->loans) = next_;
    store_->NoteFlags(slot_);
}

} // namespace tvok
