/// Who listens to the messages of the windows and of the thread.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

#include "tvok/host/constants.h"

namespace tvok::soft {

class SoftMessageHook;
class SoftWindowHook;

/// Listeners of targets, asked from the last one set to the first. Listeners may come and go while they are
/// asked: one that came is not asked, one that went is not either.
template<class Listener>
class ListenerList {
public:
    void Add(host::Handle target, Listener& listener) { entries_.push_back({target, ++order_, &listener}); }
    void Remove(const Listener& listener) {
        std::erase_if(entries_, [&](const Entry& entry) { return entry.listener == &listener; });
    }
    Listener* Newest(host::Handle target) const { return Before(target, kNewest).listener; }

    /// Calls `ask(listener)` for each until one answers false; that is the answer then.
    template<class Ask>
    bool All(host::Handle target, const Ask& ask) const {
        for (Entry entry = Before(target, kNewest); entry.listener; entry = Before(target, entry.order))
            if (!ask(*entry.listener)) return false;
        return true;
    }

private:
    struct Entry {
        host::Handle target = 0;
        std::uint64_t order = 0;
        Listener* listener = nullptr;
    };
    static constexpr std::uint64_t kNewest = std::numeric_limits<std::uint64_t>::max();

    Entry Before(host::Handle target, std::uint64_t order) const {
        for (auto entry = entries_.rbegin(); entry != entries_.rend(); ++entry) // in the order of adding
            if (entry->target == target && entry->order < order) return *entry;
        return {};
    }

    std::vector<Entry> entries_;
    std::uint64_t order_ = 0;
};

struct Hooks {
    ListenerList<SoftWindowHook> windows;
    ListenerList<SoftMessageHook> messages;
    ListenerList<SoftWindowHook> mouse; ///< The target is the thread, as below.
    ListenerList<SoftWindowHook> keys;
    const host::MouseHookRecord* record = nullptr; ///< While the mouse listeners are being asked.
};

} // namespace tvok::soft
