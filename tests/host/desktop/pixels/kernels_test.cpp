#include "tvok/host/desktop/pixels/kernels.h"

#include <algorithm>
#include <random>
#include <vector>

#include <gtest/gtest.h>

namespace tvok::soft {
namespace {

std::vector<std::uint32_t> RandomWords(std::size_t count, std::uint32_t seed) {
    std::mt19937 random(seed);
    std::vector<std::uint32_t> words(count);
    for (auto& word : words) word = static_cast<std::uint32_t>(random());
    return words;
}

Surface RandomSurface(std::int32_t width, std::int32_t height) {
    Surface surface(width, height);
    const auto words = RandomWords(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 7);
    for (std::int32_t y = 0; y < height; ++y)
        std::copy_n(words.begin() + std::ptrdiff_t{y} * width, width, surface.Row(y));
    return surface;
}

std::vector<Pixel> PixelsOf(const Surface& surface) {
    std::vector<Pixel> pixels;
    for (std::int32_t y = 0; y < surface.Height(); ++y)
        pixels.insert(pixels.end(), surface.Row(y), surface.Row(y) + surface.Width());
    return pixels;
}

TEST(Kernels, RowsOfEveryLengthGiveTheBitsOfThePlainLoops) {
    for (std::size_t count = 0; count < 70; ++count) {
        const auto start = RandomWords(count + 1, static_cast<std::uint32_t>(count));
        const auto image = RandomWords(count + 1, static_cast<std::uint32_t>(count) + 100);
        auto fast = start, plain = start;
        BlendImageRow(fast.data(), image.data(), count);
        scalar::BlendImageRow(plain.data(), image.data(), count);
        EXPECT_EQ(fast, plain) << "image of " << count;
        InvertRow(fast.data(), count);
        scalar::InvertRow(plain.data(), count);
        EXPECT_EQ(fast, plain) << "invert of " << count;
        FillRow(fast.data(), count, 0x123456);
        scalar::FillRow(plain.data(), count, 0x123456);
        EXPECT_EQ(fast, plain) << "fill of " << count;
        EXPECT_EQ(fast[count], start[count]) << "the pixel behind " << count;
    }
}

TEST(Kernels, CoverageOfEverySizeGivesTheBitsOfThePlainLoop) {
    std::mt19937 random(3);
    for (std::int32_t width = 0; width < 40; ++width) {
        const std::size_t pitch = 48;
        std::vector<std::uint8_t> bytes(pitch * 5);
        for (auto& byte : bytes) byte = static_cast<std::uint8_t>(random());
        const Coverage block{bytes.data(), pitch, width, 5};
        Surface fast = RandomSurface(64, 7), plain = fast;
        const auto color = static_cast<Pixel>(random());
        BlendCoverage(fast, 3, 1, block, color);
        scalar::BlendCoverage(plain, 3, 1, block, color);
        EXPECT_EQ(PixelsOf(fast), PixelsOf(plain)) << "width " << width;
    }
}

TEST(Kernels, BlendIsTheExactMixToWithinOne) {
    for (std::uint32_t under = 0; under < 256; under += 5)
        for (std::uint32_t over = 0; over < 256; over += 5) {
            std::vector<std::uint8_t> bytes(256);
            for (std::size_t i = 0; i < 256; ++i) bytes[i] = static_cast<std::uint8_t>(i);
            Surface pixels(256, 1);
            Fill(pixels, {0, 0, 256, 1}, under);
            BlendCoverage(pixels, 0, 0, {bytes.data(), 256, 256, 1}, over);
            for (std::uint32_t amount = 0; amount < 256; ++amount)
                ASSERT_NEAR(pixels.Row(0)[amount], (under * (255 - amount) + over * amount) / 255.0, 1);
        }
}

TEST(Kernels, NoCoverageKeepsAndFullCoverageReplaces) {
    const std::uint8_t bytes[] = {0, 255, 0, 255, 255};
    Surface pixels(5, 1);
    Fill(pixels, {0, 0, 5, 1}, 0x102030);
    BlendCoverage(pixels, 0, 0, {bytes, 5, 5, 1}, 0xFEDCBA);
    EXPECT_EQ(PixelsOf(pixels), (std::vector<Pixel>{0x102030, 0xFEDCBA, 0x102030, 0xFEDCBA, 0xFEDCBA}));
}

TEST(Kernels, FillTouchesTheRectangleInsideTheSurfaceAlone) {
    Surface surface(10, 4);
    Fill(surface, {7, 2, 100, 100}, 0xFF0000);
    Fill(surface, {-5, -5, 0, 100}, 0x00FF00);
    Fill(surface, {5, 3, 5, 4}, 0x0000FF);
    for (std::int32_t y = 0; y < 4; ++y)
        for (std::int32_t x = 0; x < 10; ++x)
            EXPECT_EQ(surface.Row(y)[x], x >= 7 && y >= 2 ? 0xFF0000u : 0u) << x << "," << y;
}

TEST(Kernels, InvertTwiceGivesTheFirstPicture) {
    Surface surface(13, 3);
    Fill(surface, {0, 0, 13, 3}, 0x123456);
    Invert(surface, {1, 1, 12, 2});
    EXPECT_EQ(surface.Row(1)[1], 0xEDCBA9u);
    EXPECT_EQ(surface.Row(1)[0], 0x123456u);
    Invert(surface, {1, 1, 12, 2});
    EXPECT_EQ(surface.Row(1)[1], 0x123456u);
}

TEST(Kernels, MoveCopiesAsIfFromAPictureTakenBefore) {
    for (std::int32_t dy = -4; dy <= 4; ++dy)
        for (std::int32_t dx = -4; dx <= 4; ++dx) {
            Surface surface = RandomSurface(12, 9);
            const Surface before = surface;
            const tvok_Rect source{2, 3, 15, 8};
            Move(surface, source, dx, dy);
            for (std::int32_t y = 0; y < 9; ++y)
                for (std::int32_t x = 0; x < 12; ++x) {
                    const std::int32_t fromX = x - dx, fromY = y - dy;
                    const bool moved = fromX >= 2 && fromX < 12 && fromY >= 3 && fromY < 8;
                    EXPECT_EQ(surface.Row(y)[x], moved ? before.Row(fromY)[fromX] : before.Row(y)[x]);
                }
        }
}

/// Wide rectangles, where moving up and down changes where rows lie in memory, again and again on one
/// surface.
TEST(Kernels, MovesOfWideRectanglesAddUpToWhatSingleMovesGive) {
    std::mt19937 random(11);
    const auto pick = [&](std::int32_t below) {
        return static_cast<std::int32_t>(random() % static_cast<std::uint32_t>(below));
    };
    Surface surface = RandomSurface(300, 60);
    std::vector<Pixel> expected = PixelsOf(surface);
    for (int step = 0; step < 400; ++step) {
        const std::int32_t left = pick(6) - 2, right = 303 - pick(6), top = pick(20) - 3,
                           bottom = 63 - pick(25);
        const std::int32_t dx = pick(8) == 0 ? pick(9) - 4 : 0,
                           dy = pick(2) == 0 ? pick(60) - 30 : pick(7) - 3;
        const std::vector<Pixel> before = expected;
        for (std::int32_t y = std::max(top, 0); y < std::min(bottom, 60); ++y)
            for (std::int32_t x = std::max(left, 0); x < std::min(right, 300); ++x) {
                const std::int32_t toX = x + dx, toY = y + dy;
                if (toX < 0 || toX >= 300 || toY < 0 || toY >= 60) continue;
                expected[static_cast<std::size_t>(toY * 300 + toX)] =
                    before[static_cast<std::size_t>(y * 300 + x)];
            }
        Move(surface, {left, top, right, bottom}, dx, dy);
        ASSERT_EQ(PixelsOf(surface) == expected, true) << "after step " << step;
    }
}

TEST(Surface, RollMovesTheColumnsAndKeepsWhatIsBesideThem) {
    for (const std::int32_t dy : {-3, -2, -1, 1, 2, 3}) {
        Surface surface = RandomSurface(9, 10);
        const Surface before = surface;
        surface.Roll(2, 7, 1, 9, dy);
        for (std::int32_t y = 0; y < 10; ++y)
            for (std::int32_t x = 0; x < 9; ++x) {
                const bool arrives = x >= 2 && x < 7 && y >= 1 && y < 9 && y - dy >= 1 && y - dy < 9;
                EXPECT_EQ(surface.Row(y)[x], before.Row(arrives ? y - dy : y)[x])
                    << dy << ": " << x << "," << y;
            }
    }
}

TEST(Surface, AResizeAfterARollKeepsThePicture) {
    Surface surface = RandomSurface(9, 10);
    surface.Roll(0, 9, 0, 10, -4);
    const Surface before = surface;
    surface.Resize(7, 12);
    for (std::int32_t y = 0; y < 10; ++y)
        for (std::int32_t x = 0; x < 7; ++x) EXPECT_EQ(surface.Row(y)[x], before.Row(y)[x]);
    EXPECT_EQ(surface.Row(11)[0], 0u);
}

TEST(Kernels, MoveByHugeStepsMovesNothing) {
    Surface surface = RandomSurface(5, 5);
    const auto before = PixelsOf(surface);
    Move(surface, {0, 0, 5, 5}, INT32_MAX, 0);
    Move(surface, {0, 0, 5, 5}, 0, INT32_MIN);
    Move(surface, {INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX}, INT32_MIN, INT32_MAX);
    EXPECT_EQ(PixelsOf(surface), before);
}

TEST(Surface, ResizeKeepsThePixelsThatFitAndTheNewOnesAreBlack) {
    Surface surface(3, 2);
    Fill(surface, {0, 0, 3, 2}, 0xABCDEF);
    surface.Resize(2, 3);
    EXPECT_EQ(PixelsOf(surface), (std::vector<Pixel>{0xABCDEF, 0xABCDEF, 0xABCDEF, 0xABCDEF, 0, 0}));
    surface.Resize(-1, 5);
    EXPECT_EQ(surface.Width(), 0);
    EXPECT_EQ(surface.Height(), 5);
}

TEST(Surface, PixelOfSwapsRedAndBlue) {
    EXPECT_EQ(PixelOf(0x00112233), 0x332211u);
}

} // namespace
} // namespace tvok::soft
