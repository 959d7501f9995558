/// Keeps the shaped runs that are in use.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "tvok/host/desktop/text/Shaper.h"

namespace tvok::soft {

/// A bounded map from font and text to a run. When it is full, a run that was not asked for lately makes
/// room, and its memory serves again: a full cache allocates next to nothing.
class RunCache {
public:
    /// `capacity`: the number of runs, 1 or more.
    explicit RunCache(std::size_t capacity);

    /// Null when it is not kept. Valid until the next `Add`.
    const ShapedRun* Find(FontId font, std::string_view text);
    /// Keeps `run`, which gets memory of a run that went in exchange. The pair must not be kept already.
    /// Valid until the next `Add`.
    const ShapedRun& Add(FontId font, std::string_view text, ShapedRun& run);

    std::size_t Count() const { return entries_.size(); }

private:
    static constexpr std::uint32_t none = UINT32_MAX;

    struct Entry {
        FontId font = 0;
        std::string text;
        ShapedRun run;
        bool wasUsed = false;      ///< Since the search for room came by.
        std::uint32_t next = none; ///< In the same bucket.
    };

    std::uint32_t& BucketOf(FontId font, std::string_view text);
    std::uint32_t TakeSlot();
    void LeaveBucket(std::uint32_t slot);

    std::size_t capacity_;
    std::deque<Entry> entries_;
    std::vector<std::uint32_t> buckets_; ///< The first slot of each, or none.
    std::uint32_t hand_ = 0;             ///< Where the search for room goes on.
};

} // namespace tvok::soft
