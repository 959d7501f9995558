// The colour maths of the palettes.
#include "tvok/controls/popup/colormath.h"

#include <gtest/gtest.h>

namespace tvok::test {
namespace {

using popup::HslToRgb;
using popup::HueToValue;
using popup::Rgb;

TEST(ColorMath, WithoutSaturationTheHueHasNoEffect) {
    for (const std::int32_t hue : {0, 30, 120, 240}) EXPECT_EQ(HslToRgb(hue, 0, 120), 0x808080);
    EXPECT_EQ(HslToRgb(0, 0, 0), 0x000000);
    EXPECT_EQ(HslToRgb(0, 0, 240), 0xFFFFFF);
    EXPECT_EQ(HslToRgb(0, 0, 239), 0xFFFFFF) << "254.9 becomes 255";
    EXPECT_EQ(HslToRgb(0, 0, 150), 0xA0A0A0);
}

TEST(ColorMath, FullColoursAtHalfLightness) {
    EXPECT_EQ(HslToRgb(0, 240, 120), Rgb(255, 0, 0));
    EXPECT_EQ(HslToRgb(40, 240, 120), Rgb(255, 255, 0));
    EXPECT_EQ(HslToRgb(80, 240, 120), Rgb(0, 255, 0));
    EXPECT_EQ(HslToRgb(120, 240, 120), Rgb(0, 255, 255));
    EXPECT_EQ(HslToRgb(160, 240, 120), Rgb(0, 0, 255));
    EXPECT_EQ(HslToRgb(200, 240, 120), Rgb(255, 0, 255));
    EXPECT_EQ(HslToRgb(240, 240, 120), Rgb(255, 0, 0));
}

TEST(ColorMath, PartialSaturationLiesBetweenColourAndGrey) {
    // m2 = 90 x 360 / 240 = 135, m1 = 45; red 135 x 256 / 240 = 144, green 45 x 256 / 240 = 48.
    EXPECT_EQ(HslToRgb(0, 120, 90), Rgb(144, 48, 48));
    // m2 = 180 + 120 - 90 = 210, m1 = 150; 210 x 256 / 240 = 224, 150 x 256 / 240 = 160.
    EXPECT_EQ(HslToRgb(80, 120, 180), Rgb(160, 224, 160));
}

TEST(ColorMath, TheBoundsOfM1AndM2AreRoundedHalfToEven) {
    // L 1, S 120: m2 = 1.5 becomes 2, m1 = 0.5 becomes 0. 2 x 256 / 240 = 2.13.
    EXPECT_EQ(HslToRgb(0, 120, 1), Rgb(2, 0, 0));
    // L 3, S 120: m2 = 4.5 becomes 4, m1 = 1.5 becomes 2.
    EXPECT_EQ(HslToRgb(0, 120, 3), Rgb(4, 2, 2));
}

TEST(ColorMath, AShareRisesOverTheFirstSixthAndFallsOverTheFourth) {
    EXPECT_EQ(HueToValue(10, 250, 0), 10);
    EXPECT_EQ(HueToValue(10, 250, 20), 130);
    EXPECT_EQ(HueToValue(10, 250, 39), 244);
    EXPECT_EQ(HueToValue(10, 250, 40), 250);
    EXPECT_EQ(HueToValue(10, 250, 119), 250);
    EXPECT_EQ(HueToValue(10, 250, 120), 250);
    EXPECT_EQ(HueToValue(10, 250, 140), 130);
    EXPECT_EQ(HueToValue(10, 250, 159), 16);
    EXPECT_EQ(HueToValue(10, 250, 160), 10);
    EXPECT_EQ(HueToValue(10, 250, 240), 10);
}

TEST(ColorMath, AHueOutsideTheCircleIsTakenRoundOnce) {
    EXPECT_EQ(HueToValue(0, 240, -80), HueToValue(0, 240, 160));
    EXPECT_EQ(HueToValue(0, 240, -220), HueToValue(0, 240, 20));
    EXPECT_EQ(HueToValue(0, 240, 241), HueToValue(0, 240, 1));
    EXPECT_EQ(HueToValue(0, 240, 310), HueToValue(0, 240, 70));
}

} // namespace
} // namespace tvok::test
