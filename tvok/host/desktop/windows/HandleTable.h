/// Numbers that name objects and name nothing once the object is gone.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <vector>

#include "tvok/host/constants.h"
#include "tvok/records/Error.h"

namespace tvok::soft {

/// A handle is a tag, a count of how often its slot was used, and the slot. The slot that was freed longest
/// ago is used first, and some always lie free in between: a stale handle names nothing for half a million
/// uses. Up to 65,535 objects live at a time.
template<class T>
class HandleTable {
public:
    /// `tag` from 1 to 7 keeps the handles of several tables apart.
    explicit HandleTable(std::int32_t tag) : tag_(tag) { slots_.resize(1); }

    host::Handle Add(T* object) {
        const std::uint32_t slot = FreeSlot();
        slots_[slot].object = object;
        return HandleOf(slot);
    }
    void Remove(host::Handle handle) {
        if (!Find(handle)) return;
        const std::uint32_t slot = SlotOf(handle);
        slots_[slot].object = nullptr;
        slots_[slot].uses = (slots_[slot].uses + 1) & kUseMask;
        free_.push_back(slot);
    }
    T* Find(host::Handle handle) const {
        const std::uint32_t slot = SlotOf(handle);
        return slot < slots_.size() && HandleOf(slot) == handle ? slots_[slot].object : nullptr;
    }

private:
    struct Slot {
        T* object = nullptr;
        std::uint32_t uses = 0;
    };
    static constexpr std::uint32_t kUseMask = 0xFFF;
    static constexpr std::size_t kFewestFree = 128; ///< Before one is used again.

    static std::uint32_t SlotOf(host::Handle handle) { return static_cast<std::uint32_t>(handle) & 0xFFFF; }
    host::Handle HandleOf(std::uint32_t slot) const {
        return static_cast<host::Handle>(static_cast<std::uint32_t>(tag_) << 28 | slots_[slot].uses << 16 |
                                         slot);
    }
    std::uint32_t FreeSlot() {
        const bool full = slots_.size() > 0xFFFF;
        if (free_.size() >= kFewestFree || (full && !free_.empty())) {
            const std::uint32_t slot = free_.front();
            free_.pop_front();
            return slot;
        }
        if (full) throw ResourceError("too many windows: close some");
        slots_.emplace_back();
        return static_cast<std::uint32_t>(slots_.size() - 1);
    }

    std::int32_t tag_;
    std::vector<Slot> slots_;
    std::deque<std::uint32_t> free_; ///< The one that was freed longest ago first.
};

} // namespace tvok::soft
