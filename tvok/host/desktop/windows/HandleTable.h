/// Numbers that name objects and name nothing once the object is gone.
#pragma once

#include <cstdint>
#include <vector>

#include "tvok/host/constants.h"
#include "tvok/records/Error.h"

namespace tvok::soft {

/// A handle is a tag, a count of how often its slot was used, and the slot. Up to 65,535 objects live at a
/// time.
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

    static std::uint32_t SlotOf(host::Handle handle) { return static_cast<std::uint32_t>(handle) & 0xFFFF; }
    host::Handle HandleOf(std::uint32_t slot) const {
        return static_cast<host::Handle>(static_cast<std::uint32_t>(tag_) << 28 | slots_[slot].uses << 16 |
                                         slot);
    }
    std::uint32_t FreeSlot() {
        if (!free_.empty()) {
            const std::uint32_t slot = free_.back();
            free_.pop_back();
            return slot;
        }
        if (slots_.size() > 0xFFFF) throw ResourceError("too many windows: close some");
        slots_.emplace_back();
        return static_cast<std::uint32_t>(slots_.size() - 1);
    }

    std::int32_t tag_;
    std::vector<Slot> slots_;
    std::vector<std::uint32_t> free_;
};

} // namespace tvok::soft
