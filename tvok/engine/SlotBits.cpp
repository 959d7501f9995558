#include "tvok/engine/SlotBits.h"

#include <bit>
#include <cstddef>

namespace tvok {
namespace {

std::size_t WordsFor(std::size_t bits) {
    return (bits + 63) / 64;
}

} // namespace

void SlotBits::Grow(std::int32_t size) {
    std::size_t words = WordsFor(static_cast<std::size_t>(size));
    for (std::size_t level = 0;; ++level, words = WordsFor(words)) {
        if (level == levels_.size()) {
            levels_.emplace_back();
            if (level > 0 && levels_[level - 1][0] != 0) levels_[level].push_back(1);
        }
        levels_[level].resize(words);
        if (words <= 1) break;
    }
    for (; size_ < size; ++size_) Set(size_, true);
}

void SlotBits::Set(std::int32_t slot, bool member) {
    auto place = static_cast<std::size_t>(slot);
    for (auto& level : levels_) {
        Word& word = level[place >> kShift];
        const Word before = word;
        const Word bit = Word{1} << (place & (kBits - 1));
        word = member ? before | bit : before & ~bit;
        if ((before != 0) == (word != 0)) return;
        place >>= kShift;
    }
}

std::int32_t SlotBits::Next(std::int32_t start) const {
    auto place = static_cast<std::size_t>(start);
    std::size_t level = 0;
    for (; level < levels_.size(); ++level) {
        const std::size_t index = place >> kShift;
        if (index >= levels_[level].size()) return -1;
        const Word rest = levels_[level][index] & (~Word{0} << (place & (kBits - 1)));
        if (rest != 0) {
            place = index << kShift | static_cast<std::size_t>(std::countr_zero(rest));
            break;
        }
        place = index + 1;
    }
    if (level == levels_.size()) return -1;
    while (level-- > 0)
        place = place << kShift | static_cast<std::size_t>(std::countr_zero(levels_[level][place]));
    return static_cast<std::int32_t>(place);
}

} // namespace tvok
