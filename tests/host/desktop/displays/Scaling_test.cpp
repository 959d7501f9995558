#include "tvok/host/desktop/displays/Scaling.h"

#include <random>
#include <vector>

#include <gtest/gtest.h>

namespace tvok::soft {
namespace {

Surface RandomSurface(std::int32_t width, std::int32_t height) {
    std::mt19937 random(7);
    Surface surface(width, height);
    for (std::int32_t y = 0; y < height; ++y)
        for (std::int32_t x = 0; x < width; ++x) surface.Row(y)[x] = random() & 0xFFFFFFu;
    return surface;
}

std::vector<Pixel> Scaled(const Surface& surface, float scale, std::int32_t width, std::int32_t height) {
    std::vector<Pixel> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0x123456u);
    ScalePixels(surface, scale, {0, 0, width, height}, pixels.data(), static_cast<std::size_t>(width));
    return pixels;
}

TEST(Scaling, FactorOneIsACopyAndLeavesWhatLiesOutside) {
    const Surface surface = RandomSurface(3, 2);
    const std::vector<Pixel> pixels = Scaled(surface, 1, 4, 3);
    for (std::size_t y = 0; y < 2; ++y)
        for (std::size_t x = 0; x < 3; ++x)
            EXPECT_EQ(pixels[y * 4 + x], surface.Row(static_cast<std::int32_t>(y))[x]);
    EXPECT_EQ(pixels[3], 0x123456u);
    EXPECT_EQ(pixels[8], 0x123456u);
}

TEST(Scaling, AWholeFactorRepeatsPixels) {
    const Surface surface = RandomSurface(3, 3);
    const std::vector<Pixel> pixels = Scaled(surface, 3, 9, 9);
    for (std::size_t y = 0; y < 9; ++y)
        for (std::size_t x = 0; x < 9; ++x)
            EXPECT_EQ(pixels[y * 9 + x], surface.Row(static_cast<std::int32_t>(y / 3))[x / 3]);
}

TEST(Scaling, HalfSizeIsTheMeanOfFour) {
    Surface surface(2, 2);
    surface.Row(0)[0] = 0x000000u;
    surface.Row(0)[1] = 0x0000FFu;
    surface.Row(1)[0] = 0xFF0000u;
    surface.Row(1)[1] = 0xFF00FFu;
    EXPECT_EQ(Scaled(surface, 0.5f, 1, 1)[0], 0x7F007Fu);
}

TEST(Scaling, OneColorStaysThatColorAtEveryFactor) {
    Surface surface(5, 5);
    for (std::int32_t y = 0; y < 5; ++y)
        for (std::int32_t x = 0; x < 5; ++x) surface.Row(y)[x] = 0xFFFEFDu;
    for (const float scale : {0.5f, 0.75f, 1.25f, 1.5f, 2.5f, 4.0f}) {
        const std::int32_t size = ToScreen(5, scale);
        for (const Pixel pixel : Scaled(surface, scale, size, size)) EXPECT_EQ(pixel, 0xFFFEFDu) << scale;
    }
}

TEST(Scaling, DamagedPartsGiveTheSamePixelsAsTheWhole) {
    for (const float scale : {0.5f, 0.8f, 1.0f, 1.25f, 1.7f, 2.0f, 3.3f}) {
        Surface surface = RandomSurface(40, 30);
        const std::int32_t width = ToScreen(40, scale);
        const std::int32_t height = ToScreen(30, scale);
        std::vector<Pixel> pixels = Scaled(surface, scale, width, height);
        const tvok_Rect changed{11, 7, 19, 16};
        for (std::int32_t y = changed.Top; y < changed.bottom; ++y)
            for (std::int32_t x = changed.Left; x < changed.Right; ++x) surface.Row(y)[x] ^= 0xFFFFFFu;
        ScalePixels(surface, scale, ScaledRect(changed, scale, width, height), pixels.data(),
                    static_cast<std::size_t>(width));
        EXPECT_EQ(pixels, Scaled(surface, scale, width, height)) << scale;
    }
}

TEST(Scaling, PlacesComeBackFromTheScreen) {
    for (const float scale : {1.0f, 1.25f, 1.5f, 2.0f, 4.0f})
        for (std::int32_t place = -20; place < 20; ++place)
            EXPECT_NEAR(FromScreen(ToScreen(place, scale), scale), place, scale == 1 || scale >= 2 ? 0 : 1);
    EXPECT_EQ(FromScreen(-1, 2), -1);
    EXPECT_EQ(FromScreen(3, 2), 1);
}

} // namespace
} // namespace tvok::soft
