#include "tvok/records/Variant.h"

#include <gtest/gtest.h>

#include <limits>

#include "tvok/records/Error.h"

namespace tvok {
namespace {

TEST(Variant, StartsEmptyAndReadsAsNothing) {
    const Variant value;
    EXPECT_TRUE(value.IsEmpty());
    EXPECT_EQ(value.AsText(), "");
    EXPECT_EQ(value.AsNumber(), 0);
    EXPECT_EQ(value.AsInteger(), 0);
}

TEST(Variant, KeepsWhatItWasGiven) {
    EXPECT_EQ(Variant(3).kind(), Variant::Kind::Number);
    EXPECT_EQ(Variant("3").kind(), Variant::Kind::Text);
    EXPECT_EQ(Variant(3), Variant(3.0));
    EXPECT_NE(Variant("3"), Variant(3));
    EXPECT_NE(Variant(""), Variant());
}

TEST(Variant, ReadsANumberAsItsShortestDecimalText) {
    EXPECT_EQ(Variant(3).AsText(), "3");
    EXPECT_EQ(Variant(-0.5).AsText(), "-0.5");
    EXPECT_EQ(Variant(0.1).AsText(), "0.1");
    EXPECT_EQ(Variant(-0.0).AsText(), "0");
    EXPECT_EQ(Variant(1e20).AsText(), "100000000000000000000");
}

TEST(Variant, ReadsItsOwnNumberTextsBack) {
    for (const double number : {1e20, 1e-20, 123456.789, 1e308, std::numeric_limits<double>::denorm_min()})
        EXPECT_EQ(Variant(Variant(number).AsText()).AsNumber(), number);
}

TEST(Variant, ReadsATextByTheNumericScan) {
    EXPECT_EQ(Variant("12 apples").AsNumber(), 12);
    EXPECT_EQ(Variant("&HFF&").AsInteger(), 255);
    EXPECT_EQ(Variant("apples").AsNumber(), 0);
}

TEST(Variant, RoundsHalfToEvenAndRefusesWhatDoesNotFit) {
    EXPECT_EQ(Variant(2.5).AsInteger(), 2);
    EXPECT_EQ(Variant("3.5").AsInteger(), 4);
    EXPECT_THROW(Variant(3e9).AsInteger(), OverflowError);
}

} // namespace
} // namespace tvok
