#include <optional>
#include <random>

#include <gtest/gtest.h>

#include "tests/host/desktop/gdi/DrawnSurface.h"

namespace tvok::test {
namespace {

constexpr std::int32_t width = 40, height = 30;
constexpr tvok_Rect whole{0, 0, width, height};

/// Gives each pixel a colour of its own.
void Number(soft::Surface& surface) {
    for (std::int32_t y = 0; y < surface.Height(); ++y)
        for (std::int32_t x = 0; x < surface.Width(); ++x)
            surface.Row(y)[x] = static_cast<soft::Pixel>(y << 8 | x);
}

TEST(DeviceContextScroll, MovesAPageUpAndUncoversTheBand) {
    DrawnSurface canvas(width, height);
    Number(canvas.surface);
    soft::Region uncovered;
    EXPECT_TRUE(canvas.dc.Scroll(0, -7, whole, whole, uncovered));
    EXPECT_EQ(uncovered, soft::Region({0, height - 7, width, height}));
    EXPECT_EQ(canvas.At(3, 0), 7u << 8 | 3u);
    EXPECT_EQ(canvas.At(3, height - 8), static_cast<soft::Pixel>((height - 1) << 8 | 3));
    EXPECT_EQ(canvas.damage.Take(), soft::Region({0, 0, width, height - 7}));
}

TEST(DeviceContextScroll, UncoversAnLOnASlant) {
    DrawnSurface canvas(width, height);
    Number(canvas.surface);
    soft::Region uncovered, expected(whole);
    canvas.dc.Scroll(5, 4, whole, whole, uncovered);
    expected.Subtract(tvok_Rect{5, 4, width, height});
    EXPECT_EQ(uncovered, expected);
    EXPECT_EQ(canvas.At(5, 4), 0u);
    EXPECT_EQ(canvas.At(width - 1, height - 1), static_cast<soft::Pixel>((height - 5) << 8 | (width - 6)));
}

TEST(DeviceContextScroll, TouchesNothingOutsideTheScrollRectangle) {
    DrawnSurface canvas(width, height);
    Number(canvas.surface);
    soft::Region uncovered;
    canvas.dc.Scroll(0, 3, {10, 10, 20, 20}, whole, uncovered);
    EXPECT_EQ(uncovered, soft::Region({10, 10, 20, 13}));
    EXPECT_EQ(canvas.At(10, 9), 9u << 8 | 10u);
    EXPECT_EQ(canvas.At(10, 20), 20u << 8 | 10u);
    EXPECT_EQ(canvas.At(10, 13), 10u << 8 | 10u);
}

TEST(DeviceContextScroll, NoWayLeavesNothingUncovered) {
    DrawnSurface canvas(width, height);
    soft::Region uncovered({1, 1, 2, 2});
    canvas.dc.Scroll(0, 0, whole, whole, uncovered);
    EXPECT_TRUE(uncovered.IsEmpty());
    canvas.dc.Scroll(3, 3, {5, 5, 5, 5}, whole, uncovered);
    EXPECT_TRUE(uncovered.IsEmpty());
}

TEST(DeviceContextScroll, AWayLongerThanTheAreaUncoversAll) {
    DrawnSurface canvas(width, height);
    for (const std::int32_t way : {height, 10'000, INT32_MAX, INT32_MIN, -height}) {
        soft::Region uncovered;
        canvas.dc.Scroll(0, way, whole, whole, uncovered);
        EXPECT_EQ(uncovered, soft::Region(whole)) << way;
    }
}

TEST(DeviceContextScroll, WhatIsHiddenIsNeitherMovedNorCopied) {
    DrawnSurface canvas(width, height);
    Number(canvas.surface);
    soft::Region visible(whole);
    visible.Subtract(tvok_Rect{10, 10, 20, 20});
    canvas.dc.Clip(visible);
    soft::Region uncovered;
    canvas.dc.Scroll(0, -4, whole, whole, uncovered);
    soft::Region expected({0, height - 4, width, height});
    expected.Add({10, 6, 20, 10}); // its pixels would have come from below the hidden part
    EXPECT_EQ(uncovered, expected);
    EXPECT_EQ(canvas.At(15, 15), 15u << 8 | 15u);
    EXPECT_EQ(canvas.At(15, 7), 7u << 8 | 15u);
    EXPECT_EQ(canvas.At(15, 20), 24u << 8 | 15u);
}

TEST(DeviceContextScroll, TheAreaIsInTheContextsCoordinates) {
    DrawnSurface canvas(width, height);
    Number(canvas.surface);
    canvas.dc.Target(&canvas.surface, 10, 5, &canvas.damage);
    soft::Region uncovered;
    canvas.dc.Scroll(-2, 0, {0, 0, 10, 10}, {0, 0, 10, 10}, uncovered);
    EXPECT_EQ(uncovered, soft::Region({8, 0, 10, 10}));
    EXPECT_EQ(canvas.At(10, 5), 5u << 8 | 12u);
    EXPECT_EQ(canvas.damage.Take(), soft::Region({10, 5, 18, 15}));
}

/// The plain way: each pixel of the area that comes from a pixel of the area gets it, the others are
/// uncovered.
struct Expected {
    std::vector<soft::Pixel> pixels;
    soft::Region uncovered;
};

Expected ScrolledPlainly(const soft::Surface& surface, const soft::Region& area, std::int32_t dx,
                         std::int32_t dy) {
    Expected expected;
    for (std::int32_t y = 0; y < height; ++y)
        for (std::int32_t x = 0; x < width; ++x) {
            const bool comes = area.Contains(x, y) && area.Contains(x - dx, y - dy);
            expected.pixels.push_back(comes ? surface.Row(y - dy)[x - dx] : surface.Row(y)[x]);
            if (area.Contains(x, y) && !comes) expected.uncovered.Add({x, y, x + 1, y + 1});
        }
    return expected;
}

TEST(DeviceContextScroll, AgreesWithThePlainWayUnderRandomWindows) {
    std::mt19937 random(11);
    const auto upTo = [&](std::int32_t limit) {
        return static_cast<std::int32_t>(random() % static_cast<unsigned>(limit));
    };
    const auto anyRect = [&] {
        const std::int32_t x = upTo(width), y = upTo(height);
        return tvok_Rect{x, y, x + upTo(width), y + upTo(height)};
    };
    for (int round = 0; round < 600; ++round) {
        DrawnSurface canvas(width, height);
        Number(canvas.surface);
        soft::Region visible(whole);
        for (std::int32_t hidden = upTo(6); hidden > 0; --hidden) {
            const std::int32_t x = upTo(width), y = upTo(height);
            visible.Subtract(tvok_Rect{x, y, x + 1 + upTo(12), y + 1 + upTo(9)});
        }
        canvas.dc.Clip(visible);
        const tvok_Rect scroll = round % 3 ? whole : anyRect(), clip = round % 4 ? whole : anyRect();
        const std::int32_t dx = round % 2 ? upTo(31) - 15 : 0, dy = round % 5 ? upTo(23) - 11 : 0;
        soft::Region area = visible;
        area.Intersect(scroll).Intersect(clip);
        const Expected expected = ScrolledPlainly(canvas.surface, area, dx, dy);

        soft::Region uncovered;
        canvas.dc.Scroll(dx, dy, scroll, clip, uncovered);
        ASSERT_EQ(uncovered, expected.uncovered) << "round " << round << " by " << dx << ", " << dy;
        std::size_t i = 0;
        for (std::int32_t y = 0; y < height; ++y)
            for (std::int32_t x = 0; x < width; ++x, ++i)
                ASSERT_EQ(canvas.At(x, y), expected.pixels[i])
                    << "round " << round << " by " << dx << ", " << dy << " at " << x << ", " << y;
        ASSERT_EQ(canvas.damage.Take(), area.Subtract(uncovered));
    }
}

} // namespace
} // namespace tvok::test
