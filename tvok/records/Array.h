/// An array from 0 to an upper bound that answers an index outside it with `SubscriptError`.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "tvok/records/Error.h"

namespace tvok {

template<class T>
class Array {
public:
    Array() : items_(1) {}
    explicit Array(std::int32_t upperBound) : items_(Size(upperBound)) {}

    /// The highest index. The lowest is 0.
    std::int32_t UpperBound() const { return static_cast<std::int32_t>(items_.size()) - 1; }

    /// Makes the array anew: old entries are lost. A bound below 0 is a subscript error, and nothing changes.
    void Make(std::int32_t upperBound) { items_.assign(Size(upperBound), T{}); }

    /// Changes the upper bound and keeps the entries that fit. Growing step by step is linear in all.
    void Resize(std::int32_t upperBound) { items_.resize(Size(upperBound)); }

    T& operator[](std::int32_t index) { return items_[Checked(index)]; }
    const T& operator[](std::int32_t index) const { return items_[Checked(index)]; }

    /// Direct access to the entries for a whole-array pass. Valid until the bound changes.
    T* data() { return items_.data(); }
    const T* data() const { return items_.data(); }

    void swap(Array& other) noexcept { items_.swap(other.items_); }

private:
    static std::size_t Size(std::int32_t upperBound) {
        if (upperBound < 0) throw SubscriptError(upperBound, 0);
        return static_cast<std::size_t>(upperBound) + 1;
    }
    std::size_t Checked(std::int32_t index) const {
        const auto place = static_cast<std::size_t>(static_cast<std::uint32_t>(index));
        if (place >= items_.size()) [[unlikely]]
            throw SubscriptError(index, UpperBound());
        return place;
    }

    std::vector<T> items_;
};

} // namespace tvok
