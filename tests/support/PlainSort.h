/// The sort of an index by texts as its steps are told, one by one: what the library's sorts have to give,
/// however they get there.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tvok::test {

/// `Order` is any array of slots with an entry 0, which is the scratch of every swap. `TextOf` gives a
/// reference to the text of a slot, and `Comparison` is -1, 0 or 1.
template<class Order, class TextOf, class Comparison>
class PlainSort {
public:
    PlainSort(Order& order, bool ascending, TextOf textOf, Comparison compare)
        : order_(order), direction_(ascending ? 1 : -1), textOf_(std::move(textOf)),
          compare_(std::move(compare)) {}

    void Sort(std::int32_t low, std::int32_t high) {
        if (high <= low) return;
        std::vector<std::int32_t> stack{low, high};
        while (!stack.empty()) {
            const auto right = stack.back();
            stack.pop_back();
            const auto left = stack.back();
            stack.pop_back();
            if (right - left + 1 > 10)
                Partition(left, right, stack);
            else
                Select(left, right);
        }
    }

    std::int32_t partitions = 0; ///< How often a run was divided.

private:
    std::int32_t& At(std::int32_t i) { return order_[static_cast<Place>(i)]; }
    const std::string& Text(std::int32_t i) { return textOf_(At(i)); }
    void Swap(std::int32_t i, std::int32_t j) {
        At(0) = At(i);
        At(i) = At(j);
        At(j) = At(0);
    }
    void Partition(std::int32_t left, std::int32_t right, std::vector<std::int32_t>& stack) {
        ++partitions;
        auto i = left;
        auto j = right;
        const std::string pivot = Text(left + (right - left) / 2);
        for (;;) {
            while (j > i && compare_(pivot, Text(i)) == direction_) i += 1;
            while (j >= i && compare_(Text(j), pivot) == direction_) j -= 1;
            if (i >= j) break;
            Swap(i, j);
            i += 1;
            j -= 1;
        }
        if (left < j) stack.insert(stack.end(), {left, j});
        if (i < right) stack.insert(stack.end(), {i, right});
    }
    void Select(std::int32_t left, std::int32_t right) {
        for (auto i = left; i < right; ++i) {
            auto m = i;
            for (auto j = i + 1; j <= right; ++j)
                if (compare_(Text(j), Text(m)) != direction_) m = j;
            if (m > i) Swap(i, m);
        }
    }

    template<class T>
    struct PlaceOf {
        using Type = std::int32_t;
    };
    template<class T>
    struct PlaceOf<std::vector<T>> {
        using Type = std::size_t;
    };
    using Place = typename PlaceOf<Order>::Type;

    Order& order_;
    int direction_;
    TextOf textOf_;
    Comparison compare_;
};

/// Orders texts by their bytes.
inline int CompareBytes(const std::string& a, const std::string& b) {
    const int order = a.compare(b);
    return order < 0 ? -1 : order > 0 ? 1 : 0;
}

} // namespace tvok::test
