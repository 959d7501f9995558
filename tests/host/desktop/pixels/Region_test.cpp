#include "tvok/host/desktop/pixels/Region.h"

#include <bitset>
#include <random>

#include <gtest/gtest.h>

namespace tvok::soft {
namespace {

constexpr std::int32_t side = 16;
using Bits = std::bitset<side * side>;

Bits BitsOf(const Region& region) {
    Bits bits;
    for (std::int32_t y = 0; y < side; ++y)
        for (std::int32_t x = 0; x < side; ++x)
            bits[static_cast<std::size_t>(y * side + x)] = region.Contains(x, y);
    return bits;
}

TEST(Region, SubtractingAHoleLeavesFourRectangles) {
    Region region({0, 0, 10, 10});
    region.Subtract(tvok_Rect{3, 3, 6, 6});
    EXPECT_EQ(region.Boxes().size(), 4u);
    EXPECT_FALSE(region.Contains(3, 3));
    EXPECT_TRUE(region.Contains(6, 6));
    EXPECT_EQ(region.Bounds(), (tvok_Rect{0, 0, 10, 10}));
    EXPECT_FALSE(region.ContainsWhole({0, 0, 10, 10}));
    EXPECT_TRUE(region.ContainsWhole({0, 0, 10, 3}));
}

TEST(Region, EmptyOnesAreEqualWhereverTheyCameFrom) {
    Region emptied({5, 5, 9, 9});
    emptied.Intersect(tvok_Rect{5, 5, 5, 28}).Translate(3, 4);
    Region apart({1, 1, 3, 3});
    apart.Intersect(Region({20, 20, 30, 30}));
    EXPECT_EQ(emptied, Region());
    EXPECT_EQ(apart, emptied);
    EXPECT_FALSE(emptied == Region({5, 5, 9, 9}));
}

TEST(Region, EmptyRectanglesAddNothing) {
    Region region;
    region.Add(tvok_Rect{5, 5, 5, 9}).Add(tvok_Rect{5, 5, 2, 9}).Subtract(tvok_Rect{5, 5, 2, 9});
    EXPECT_TRUE(region.IsEmpty());
    EXPECT_TRUE(region.Boxes().empty());
    EXPECT_EQ(region.Bounds(), tvok_Rect{});
    EXPECT_EQ(region, Region(tvok_Rect{9, 9, 3, 3}));
    EXPECT_TRUE(region.ContainsWhole({4, 4, 4, 4}));
}

TEST(Region, IntersectingWithAnEmptyRectangleLeavesNothing) {
    Region region({0, 0, 4, 4});
    EXPECT_TRUE(region.Intersect(tvok_Rect{2, 2, 2, 3}).IsEmpty());
}

TEST(Region, CopiesAreValuesAndMovesLeaveAUsableRegion) {
    Region first({0, 0, 4, 4});
    first.Add(tvok_Rect{8, 0, 12, 4});
    Region second = first;
    second.Translate(1, 2);
    EXPECT_EQ(first.Bounds(), (tvok_Rect{0, 0, 12, 4}));
    EXPECT_EQ(second.Bounds(), (tvok_Rect{1, 2, 13, 6}));
    Region third = std::move(second);
    second = first;
    EXPECT_EQ(second, first);
    EXPECT_FALSE(third == first);
    third.Clear();
    EXPECT_TRUE(third.IsEmpty());
}

TEST(Region, AddingItselfChangesNothing) {
    Region region({0, 0, 4, 4});
    const Region before = region;
    region.Add(region).Intersect(region);
    EXPECT_EQ(region, before);
    EXPECT_TRUE(region.Subtract(region).IsEmpty());
}

TEST(Region, HugeRectanglesDoNotWrap) {
    Region region({INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX});
    EXPECT_TRUE(region.Contains(0, 0));
    region.Intersect(tvok_Rect{-5, -5, 5, 5});
    EXPECT_EQ(region.Bounds(), (tvok_Rect{-5, -5, 5, 5}));
}

TEST(Region, AgreesWithASetOfPixelsOnRandomRectangles) {
    std::mt19937 random(11);
    const auto coordinate = [&] { return static_cast<std::int32_t>(random() % (side + 1)); };
    Region region;
    Bits expected;
    for (int step = 0; step < 2000; ++step) {
        const tvok_Rect rect{coordinate(), coordinate(), coordinate(), coordinate()};
        const Bits bits = BitsOf(Region(rect));
        switch (random() % 6) {
        case 0: region.Intersect(rect), expected &= bits; break;
        case 1:
        case 2: region.Subtract(rect), expected &= ~bits; break;
        default: region.Add(rect), expected |= bits; break;
        }
        ASSERT_EQ(BitsOf(region), expected) << "step " << step;
        ASSERT_EQ(region.IsEmpty(), expected.none());
    }
}

} // namespace
} // namespace tvok::soft
