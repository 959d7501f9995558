#include "tvok/host/desktop/pixels/kernels.h"

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
    const auto words = RandomWords(surface.Pitch() * static_cast<std::size_t>(height), 7);
    std::copy(words.begin(), words.end(), surface.Row(0));
    return surface;
}

std::vector<Pixel> PixelsOf(const Surface& surface) {
    return {surface.Row(0), surface.Row(0) + surface.Pitch() * static_cast<std::size_t>(surface.Height())};
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
        auto fast = RandomWords(64 * 5, 1), plain = fast;
        const auto color = static_cast<Pixel>(random());
        BlendCoverage(fast.data(), 64, block, color);
        scalar::BlendCoverage(plain.data(), 64, block, color);
        EXPECT_EQ(fast, plain) << "width " << width;
    }
}

TEST(Kernels, BlendIsTheExactMixToWithinOne) {
    for (std::uint32_t under = 0; under < 256; under += 5)
        for (std::uint32_t over = 0; over < 256; over += 5) {
            std::vector<std::uint8_t> bytes(256);
            for (std::size_t i = 0; i < 256; ++i) bytes[i] = static_cast<std::uint8_t>(i);
            std::vector<Pixel> pixels(256, under);
            BlendCoverage(pixels.data(), 256, {bytes.data(), 256, 256, 1}, over);
            for (std::uint32_t amount = 0; amount < 256; ++amount)
                ASSERT_NEAR(pixels[amount], (under * (255 - amount) + over * amount) / 255.0, 1);
        }
}

TEST(Kernels, NoCoverageKeepsAndFullCoverageReplaces) {
    const std::uint8_t bytes[] = {0, 255, 0, 255, 255};
    std::vector<Pixel> pixels(5, 0x102030);
    BlendCoverage(pixels.data(), 5, {bytes, 5, 5, 1}, 0xFEDCBA);
    EXPECT_EQ(pixels, (std::vector<Pixel>{0x102030, 0xFEDCBA, 0x102030, 0xFEDCBA, 0xFEDCBA}));
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
