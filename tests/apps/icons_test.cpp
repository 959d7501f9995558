#include "apps/gallery/icons.h"

#include <set>

#include <gtest/gtest.h>

namespace gallery {
namespace {

constexpr std::size_t PixelsPerIcon = std::size_t{IconSize} * IconSize;

std::vector<std::uint32_t> IconPixels(const std::vector<std::uint32_t>& all, std::size_t number) {
    const auto first = all.begin() + static_cast<std::ptrdiff_t>((number - 1) * PixelsPerIcon);
    return {first, first + PixelsPerIcon};
}

TEST(Icons, EachIsDifferentAndHasOpaqueAndTransparentPixels) {
    const auto all = DrawIcons();
    ASSERT_EQ(all.size(), PixelsPerIcon * IconCount);
    std::set<std::vector<std::uint32_t>> different;
    for (std::size_t number = 1; number <= IconCount; ++number) {
        const auto pixels = IconPixels(all, number);
        std::set<std::uint32_t> alphas;
        for (const auto pixel : pixels) alphas.insert(pixel >> 24);
        EXPECT_TRUE(alphas.contains(0) && alphas.contains(255)) << "icon " << number;
        different.insert(pixels);
    }
    EXPECT_EQ(different.size(), std::size_t{IconCount});
}

TEST(Icons, FollowTheSectionWhateverAreaStandsInFront) {
    EXPECT_EQ(IconOfSection("libs"), Icon::Books);
    EXPECT_EQ(IconOfSection("contrib/net"), Icon::Globe);
    EXPECT_EQ(IconOfSection("something"), Icon::Box);
    EXPECT_EQ(IconOfSection(""), Icon::Box);
}

} // namespace
} // namespace gallery
