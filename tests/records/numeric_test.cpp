#include "tvok/records/numeric.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "tvok/records/Error.h"

namespace tvok {
namespace {

struct Scanned {
    std::string_view text;
    double value;
};

class ScanNumberTable : public ::testing::TestWithParam<Scanned> {};

TEST_P(ScanNumberTable, ReadsTheNumberAtTheFront) {
    EXPECT_EQ(ScanNumber(GetParam().text), GetParam().value) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Decimal, ScanNumberTable,
    ::testing::Values(Scanned{"", 0}, Scanned{"0", 0}, Scanned{"12", 12}, Scanned{"-12", -12},
                      Scanned{"+12", 12}, Scanned{"12ab", 12}, Scanned{"ab12", 0}, Scanned{" 12", 0},
                      Scanned{"1 2", 1}, Scanned{"007", 7}, Scanned{"1.5", 1.5}, Scanned{".5", .5},
                      Scanned{"-.5", -.5}, Scanned{"5.", 5}, Scanned{".", 0}, Scanned{"-", 0},
                      Scanned{"+-1", 0}, Scanned{"--1", 0}, Scanned{"1.5.5", 1.5}, Scanned{"1e3", 1},
                      Scanned{"1,5", 1}, Scanned{"inf", 0}, Scanned{"nan", 0}, Scanned{"0x10", 0},
                      Scanned{std::string_view("1\0002", 3), 1}, Scanned{"4294967296", 4294967296.0},
                      Scanned{"123456789012345", 123456789012345.0},
                      Scanned{"12345678901234567890", 12345678901234567890.0}));

INSTANTIATE_TEST_SUITE_P(Hexadecimal, ScanNumberTable,
                         ::testing::Values(Scanned{"&H10", 16}, Scanned{"&h10", 16}, Scanned{"&HfF&", 255},
                                           Scanned{"&H80000005&", -2147483643.0},
                                           Scanned{"&H80000005", -2147483643.0}, Scanned{"&HFFFFFFFF&", -1},
                                           Scanned{"&H0000000000FF", 255}, Scanned{"&H7FFFFFFF&", 2147483647},
                                           Scanned{"&H100000000&", 4294967296.0}, Scanned{"&H", 0},
                                           Scanned{"&HG", 0}, Scanned{"&H1G", 1}, Scanned{"&H1.8", 1},
                                           Scanned{"&", 0}, Scanned{"&O17", 0}, Scanned{"H10", 0},
                                           Scanned{"-&H10", 0}, Scanned{" &H10", 0}));

TEST(ScanNumber, OfMoreDigitsThanADoubleHoldsIsBeyondEveryNumber) {
    EXPECT_EQ(ScanNumber(std::string(400, '9')), std::numeric_limits<double>::infinity());
    EXPECT_EQ(ScanNumber("-" + std::string(400, '9') + ".5"), -std::numeric_limits<double>::infinity());
}

TEST(ScanNumber, OfAFractionTooSmallForADoubleIsNothing) {
    EXPECT_EQ(ScanNumber("0." + std::string(400, '0') + "1"), 0);
}

TEST(ScanNumber, GivesNoNegativeZero) {
    EXPECT_FALSE(std::signbit(ScanNumber("-0")));
}

TEST(RoundToInt32, TakesTheEvenNeighbourOfAHalf) {
    EXPECT_EQ(RoundToInt32(0.5), 0);
    EXPECT_EQ(RoundToInt32(1.5), 2);
    EXPECT_EQ(RoundToInt32(2.5), 2);
    EXPECT_EQ(RoundToInt32(-0.5), 0);
    EXPECT_EQ(RoundToInt32(-1.5), -2);
    EXPECT_EQ(RoundToInt32(-2.5), -2);
    EXPECT_EQ(RoundToInt32(2.5000001), 3);
}

TEST(RoundToInt32, HoldsTheWholeRangeAndNothingBeyond) {
    EXPECT_EQ(RoundToInt32(2147483647.49), 2147483647);
    EXPECT_EQ(RoundToInt32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    EXPECT_THROW(RoundToInt32(2147483647.5), OverflowError);
    EXPECT_THROW(RoundToInt32(-2147483649.0), OverflowError);
    EXPECT_THROW(RoundToInt32(std::nan("")), OverflowError);
    EXPECT_THROW(RoundToInt32(std::numeric_limits<double>::infinity()), OverflowError);
}

TEST(TruncateToInt32, DropsTheFraction) {
    EXPECT_EQ(TruncateToInt32(2.9), 2);
    EXPECT_EQ(TruncateToInt32(-2.9), -2);
    EXPECT_EQ(TruncateToInt32(2147483647.9), 2147483647);
    EXPECT_THROW(TruncateToInt32(2147483648.0), OverflowError);
}

TEST(ToInt32, ThrowsWhereTheResultDoesNotFit) {
    EXPECT_EQ(ToInt32(2147483647), 2147483647);
    EXPECT_EQ(ToInt32(-2147483648LL), std::numeric_limits<std::int32_t>::min());
    EXPECT_THROW(ToInt32(2147483648LL), OverflowError);
    EXPECT_THROW(ToInt32(-2147483649LL), OverflowError);
}

TEST(HexText, HasUpperCaseDigitsWithoutLeadingZeros) {
    EXPECT_EQ(HexText(0), "&H0&");
    EXPECT_EQ(HexText(10), "&HA&");
    EXPECT_EQ(HexText(0x1ABCDEF), "&H1ABCDEF&");
    EXPECT_EQ(HexText(-1), "&HFFFFFFFF&");
    EXPECT_EQ(HexText(std::numeric_limits<std::int32_t>::min()), "&H80000000&");
}

TEST(AppendDecimal, KeepsWhatStandsBefore) {
    std::string text = "x";
    AppendDecimal(text, std::numeric_limits<std::int32_t>::min());
    AppendHex(text, 16);
    EXPECT_EQ(text, "x-2147483648&H10&");
}

TEST(NumberTexts, AreReadBackAsTheyWere) {
    std::mt19937 random(1);
    for (int i = 0; i < 10000; ++i) {
        const auto value = static_cast<std::int32_t>(random());
        std::string decimal;
        AppendDecimal(decimal, value);
        ASSERT_EQ(RoundToInt32(ScanNumber(decimal)), value);
        ASSERT_EQ(RoundToInt32(ScanNumber(HexText(value))), value);
    }
}

} // namespace
} // namespace tvok
