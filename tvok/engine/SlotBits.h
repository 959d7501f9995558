/// A growing set of slot numbers that finds the next member at a cost that does not follow its size.
#pragma once

#include <cstdint>
#include <vector>

namespace tvok {

/// One bit per slot, and above it levels that tell which words of the level below hold a set bit.
class SlotBits {
public:
    /// Number of slots; every new one starts as a member.
    void Grow(std::int32_t size);
    void Set(std::int32_t slot, bool member);
    /// The first member from `start` on, or -1. `start` is 0 or more.
    std::int32_t Next(std::int32_t start) const;

private:
    using Word = std::uint64_t;
    static constexpr std::int32_t kShift = 6;
    static constexpr std::int32_t kBits = 1 << kShift;

    std::vector<std::vector<Word>> levels_;
    std::int32_t size_ = 0;
};

} // namespace tvok
