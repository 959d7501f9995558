#include "tvok/host/desktop/text/RunCache.h"

#include <bit>
#include <functional>
#include <utility>

namespace tvok::soft {

namespace {

constexpr std::size_t usualText = 64; // bytes

} // namespace

RunCache::RunCache(std::size_t capacity) : capacity_(capacity), buckets_(std::bit_ceil(capacity), none) {}

const ShapedRun* RunCache::Find(FontId font, std::string_view text) {
    for (std::uint32_t slot = BucketOf(font, text); slot != none; slot = entries_[slot].next) {
        Entry& entry = entries_[slot];
        if (entry.font != font || entry.text != text) continue;
        entry.wasUsed = true;
        return &entry.run;
    }
    return nullptr;
}

const ShapedRun& RunCache::Add(FontId font, std::string_view text, ShapedRun& run) {
    const std::uint32_t slot = TakeSlot();
    Entry& entry = entries_[slot];
    entry.text = text;
    entry.font = font;
    std::swap(entry.run, run);
    entry.wasUsed = false; // texts that are drawn once do not drive out those in use
    entry.next = std::exchange(BucketOf(font, text), slot);
    return entry.run;
}

std::uint32_t& RunCache::BucketOf(FontId font, std::string_view text) {
    const std::size_t hash =
        std::hash<std::string_view>{}(text) + static_cast<std::size_t>(font) * 0x9E3779B97F4A7C15U;
    return buckets_[hash & (buckets_.size() - 1)];
}

/// A slot that stands in no bucket. Slots are looked at in turn; one that was used since the last look is
/// passed over once.
std::uint32_t RunCache::TakeSlot() {
    if (entries_.size() < capacity_) {
        entries_.emplace_back().text.reserve(usualText);
        return static_cast<std::uint32_t>(entries_.size() - 1);
    }
    const auto advance = [&] { hand_ = (hand_ + 1) % static_cast<std::uint32_t>(entries_.size()); };
    for (advance(); std::exchange(entries_[hand_].wasUsed, false);) advance();
    LeaveBucket(hand_);
    return hand_;
}

void RunCache::LeaveBucket(std::uint32_t slot) {
    std::uint32_t* link = &BucketOf(entries_[slot].font, entries_[slot].text);
    while (*link != slot && *link != none) link = &entries_[*link].next;
    if (*link == slot) *link = entries_[slot].next;
}

} // namespace tvok::soft
