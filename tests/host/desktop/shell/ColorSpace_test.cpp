#include "tvok/host/desktop/shell/ColorSpace.h"

#include <gtest/gtest.h>

namespace tvok::soft {
namespace {

TEST(ColorSpace, KnownColorsHaveTheirHues) {
    EXPECT_DOUBLE_EQ(ToHsl(FromRgb(255, 0, 0)).hue, 0);
    EXPECT_DOUBLE_EQ(ToHsl(FromRgb(255, 255, 0)).hue, 1.0 / 6);
    EXPECT_DOUBLE_EQ(ToHsl(FromRgb(0, 255, 0)).hue, 2.0 / 6);
    EXPECT_DOUBLE_EQ(ToHsl(FromRgb(0, 255, 255)).hue, 3.0 / 6);
    EXPECT_DOUBLE_EQ(ToHsl(FromRgb(0, 0, 255)).hue, 4.0 / 6);
    EXPECT_DOUBLE_EQ(ToHsl(FromRgb(255, 0, 255)).hue, 5.0 / 6);
}

TEST(ColorSpace, GreysHaveNoSaturation) {
    for (const std::int32_t grey : {0, 1, 128, 255}) {
        const HslColor color = ToHsl(FromRgb(grey, grey, grey));
        EXPECT_EQ(color.saturation, 0);
        EXPECT_DOUBLE_EQ(color.lightness, grey / 255.0);
    }
}

TEST(ColorSpace, EveryColorComesBackAsItWas) {
    for (std::int32_t red = 0; red < 256; red += 5)
        for (std::int32_t green = 0; green < 256; green += 5)
            for (std::int32_t blue = 0; blue < 256; blue += 5) {
                const OLE_COLOR color = FromRgb(red, green, blue);
                ASSERT_EQ(FromHsl(ToHsl(color)), color) << red << ' ' << green << ' ' << blue;
            }
}

TEST(ColorSpace, ValuesOutOfRangeAreLimited) {
    EXPECT_EQ(FromHsl({2, 3, 0.5}), FromRgb(255, 0, 0));
    EXPECT_EQ(FromHsl({0, 0, 7}), FromRgb(255, 255, 255));
    EXPECT_EQ(FromHsl({0, 0, -1}), 0);
}

} // namespace
} // namespace tvok::soft
