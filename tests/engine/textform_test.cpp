/// A list's settings and items as text, and the numeric scan that reads them.
#include "tests/support/EngineList.h"
#include "tvok/records/numeric.h"
#include "tvok/records/text.h"

namespace tvok::test {
namespace {

using namespace mtvok;

// The text form, written.

class ItemsText : public EngineList {
protected:
    static std::string Lines(const std::vector<std::string>& lines) {
        std::string text;
        for (const auto& line : lines) text += line + "\r\n";
        return text;
    }
    std::string Build() { return BuildItemsStr(state, items, indexes); }
    /// The item part of the text.
    std::string BuildItems() {
        const std::string text = Build();
        const auto place = text.find("998\r\n");
        EXPECT_NE(place, std::string::npos);
        return text.substr(place);
    }
    void Parse(std::string_view text) { ParseItemsStr(state, items, indexes, text); }
    void ParseLines(const std::vector<std::string>& lines) { Parse(Lines(lines)); }
    qrosterdata At(std::int32_t index) const { return items[indexes[index]]; }
    void ForgetItems() {
        items.Reset();
        indexes.Make(0);
        state.Count = 0;
    }
};

TEST_F(ItemsText, SettingsAreWrittenLineByLine) {
    state.BackColor = 0x00ABCDEF;
    state.CX_TEXT = 21;
    state.GridlineOnBorder = true;
    state.GridlineWidth = 2;
    state.HeadExBackColor = 255;
    state.HeadWidthEx = 3;
    state.ItemWidth = 99;
    state.xn = 4;
    state.yn = 6;
    state.ColWidthSettingStr = " 0,10 ";
    state.TabStopSettingStr = "20,30";
    EXPECT_EQ(Build(), Lines({"1=&HABCDEF&", "3=21", "5=&H80000016&", "6=-1", "7=2", "8=&HFF&",
                              "9=&H8000000F&", "10=3", "11=&H80000006&", "12=&H1011010&", "13=6", "14=99",
                              "15=&H8000000D&", "18=4", "19=6", "25= 0,10 ", "26=20,30", "27=0", "998"}));
}

TEST_F(ItemsText, BooleansAreMinusOneAndZero) {
    state.FixedWidthForLastXn = true;
    EXPECT_NE(Build().find("\r\n27=-1\r\n"), std::string::npos);
    EXPECT_NE(Build().find("\r\n6=0\r\n"), std::string::npos);
}

TEST_F(ItemsText, ItemHeightIsWrittenLessTheHeightOfTheFontAsItIsNow) {
    state.TextHeight = 99; // not asked
    font->value.Size = 12;
    EXPECT_NE(Build().find("\r\n13=2\r\n"), std::string::npos);
    font->value.Size = 18;
    EXPECT_NE(Build().find("\r\n13=-6\r\n"), std::string::npos);
}

TEST_F(ItemsText, ItemsAreWrittenAsDifferencesFromTheOneBefore) {
    Add({.text = "ant",
         .key = "k",
         .IconID = 3,
         .IconBackColor = 1,
         .IconPos = 0x01020304,
         .ItemData = -5,
         .ItemDataEx = 77,
         .bColor = 2,
         .fcolor = 4,
         .vflag = vflag::IconBox});
    Add({.text = "ant"});
    EXPECT_EQ(BuildItems(), Lines({"998",
                                   "101=&H2&",
                                   "102=&H4&",
                                   "103=&H1&",
                                   "104=&H1020304&",
                                   "105=3",
                                   "106=-5",
                                   "107=ant",
                                   "108=k",
                                   "109=&H80000008&",
                                   "999",
                                   "101=&H80000005&",
                                   "102=&H80000008&",
                                   "103=&H80000005&",
                                   "104=&HFFFFFFFF&",
                                   "105=-1",
                                   "106=0",
                                   "108=",
                                   "109=&H80000000&",
                                   "999"}));
}

TEST_F(ItemsText, TheFirstItemIsTheDifferenceFromTheDefaults) {
    Add({});
    EXPECT_EQ(BuildItems(), Lines({"998", "109=&H80000000&", "999"}));
}

TEST_F(ItemsText, TwoItemsWithTheSameTextWriteItOnce) {
    AddTexts({"same", "same", "other", "same"});
    EXPECT_EQ(BuildItems(), Lines({"998", "107=same", "109=&H80000000&", "999", "999", "107=other", "999",
                                   "107=same", "999"}));
}

TEST_F(ItemsText, ASelectionLeavesNoTrace) {
    Add({.text = "a"});
    Add({.text = "b", .vflag = vflag::Selected});
    Add({.text = "c"});
    EXPECT_EQ(BuildItems(),
              Lines({"998", "107=a", "109=&H80000000&", "999", "107=b", "999", "107=c", "999"}));
    ForgetItems();
    Add({.text = "a", .vflag = vflag::Selected | vflag::Bold});
    EXPECT_EQ(BuildItems(), Lines({"998", "107=a", "109=&H80100000&", "999"}));
}

TEST_F(ItemsText, ItemsAreWrittenInDisplayOrder) {
    AddTexts({"a", "b"});
    std::swap(indexes[1], indexes[2]);
    EXPECT_EQ(BuildItems(), Lines({"998", "107=b", "109=&H80000000&", "999", "107=a", "999"}));
}

TEST_F(ItemsText, TextsAreWrittenAsTheyStand) {
    Add({.text = " a=b ", .key = "\tx"});
    EXPECT_EQ(BuildItems(), Lines({"998", "107= a=b ", "108=\tx", "109=&H80000000&", "999"}));
}

// The text form, read.

TEST_F(ItemsText, SettingsAreReadLineByLine) {
    ParseLines({"1=&HABCDEF&", "3=21", "5=&H80000001&", "6=-1", "7=2", "8=&HFF&", "10=3", "11=&H7&",
                "12=&H1011011&", "13=6", "14=99", "15=&H8000000E&", "18=4", "19=6", "25=0,10", "26=20,30",
                "27=1"});
    EXPECT_EQ(state.BackColor, 0x00ABCDEF);
    EXPECT_EQ(state.CX_TEXT, 21);
    EXPECT_EQ(state.GridlineColor, SystemColor(1));
    EXPECT_TRUE(state.GridlineOnBorder);
    EXPECT_EQ(state.GridlineWidth, 2);
    EXPECT_EQ(state.HeadExBackColor, 255);
    EXPECT_EQ(state.HeadWidthEx, 3);
    EXPECT_EQ(state.IconBorderColor, 7);
    EXPECT_EQ(state.IconPos, 0x01011011);
    EXPECT_EQ(state.ItemHeight, 6 + 12);
    EXPECT_EQ(state.ItemWidth, 99);
    EXPECT_EQ(state.SelectedColor, SystemColor(14));
    EXPECT_EQ(state.xn, 4);
    EXPECT_EQ(state.yn, 6);
    EXPECT_EQ(state.ColWidthSettingStr, "0,10");
    EXPECT_EQ(state.TabStopSettingStr, "20,30");
    EXPECT_TRUE(state.FixedWidthForLastXn);
    EXPECT_EQ(state.Count, 0);
}

// The border of the head band is written and skipped on reading. It stays so.
TEST_F(ItemsText, TheHeadBandsBorderIsSkipped) {
    ParseLines({"9=&H123456&"});
    EXPECT_EQ(state.HeadExBorderColor, cButtonFace);
}

TEST_F(ItemsText, AnyNumberButZeroIsTrue) {
    ParseLines({"6=5", "27=-7"});
    EXPECT_TRUE(state.GridlineOnBorder);
    EXPECT_TRUE(state.FixedWidthForLastXn);
    ParseLines({"6=0", "27=no"});
    EXPECT_FALSE(state.GridlineOnBorder);
    EXPECT_FALSE(state.FixedWidthForLastXn);
}

TEST_F(ItemsText, ItemHeightGetsTheHeightOfTheFontAsItIsNow) {
    state.TextHeight = 99; // not asked
    const std::string saved = Build();
    font->value.Size = 18;
    Parse(saved);
    EXPECT_EQ(state.ItemHeight, 30) << "6 pixels of padding around 24 of text";
}

TEST_F(ItemsText, SettingsAreStoredDirectlyAndNothingIsRebuilt) {
    log.Clear();
    ParseLines({"18=0", "14=-5"});
    EXPECT_EQ(state.xn, 0);
    EXPECT_EQ(state.ItemWidth, -5);
    EXPECT_EQ(state.GridCols, 0);
    EXPECT_TRUE(log.NamedOneOf({"InvalidateRect", "UpdateWindow", "GetClientRect"}).empty());
    EXPECT_TRUE(log.Drawing().empty());
}

TEST_F(ItemsText, ItemLinesFillTheWorkingRecord) {
    ParseLines({"998", "101=&H2&", "102=&H4&", "103=&H1&", "104=&H1020304&", "105=3", "106=-5", "107=ant",
                "108=k", "109=&H8&", "999"});
    ASSERT_EQ(state.Count, 1);
    EXPECT_EQ(At(1), (qrosterdata{.text = "ant",
                                  .key = "k",
                                  .IconID = 3,
                                  .IconBackColor = 1,
                                  .IconPos = 0x01020304,
                                  .ItemData = -5,
                                  .bColor = 2,
                                  .fcolor = 4,
                                  .vflag = vflag::IconBox | vflag::InUse}));
}

TEST_F(ItemsText, TheWorkingRecordGoesOnFromItemToItemUntil998) {
    ParseLines({"107=a", "105=2", "999", "107=b", "999", "998", "107=c", "999"});
    ASSERT_EQ(state.Count, 3);
    EXPECT_EQ(At(2), (qrosterdata{.text = "b", .IconID = 2, .vflag = vflag::InUse}));
    EXPECT_EQ(At(3), (qrosterdata{.text = "c", .vflag = vflag::InUse}));
}

TEST_F(ItemsText, AnItemLineAloneAddsTheWorkingRecord) {
    ParseLines({"999"});
    ASSERT_EQ(state.Count, 1);
    EXPECT_EQ(At(1), (qrosterdata{.vflag = vflag::InUse}));
    ParseLines({"107=x", "999", "999"});
    EXPECT_EQ(Texts(), (std::vector<std::string>{"", "x", "x"}));
}

TEST_F(ItemsText, TheLastLineWithoutAnEndIsNotRead) {
    Parse("107=a\r\n999\r\n107=b\r\n999");
    EXPECT_EQ(Texts(), std::vector<std::string>{"a"});
    Parse("");
    Parse("999");
    Parse("107=x\n999\n");
    Parse("107=x\r999\r");
    EXPECT_EQ(state.Count, 1) << "other line ends end no line";
}

TEST_F(ItemsText, LinesAndValuesAreTrimmedOfBlanksAlone) {
    ParseLines({"  107 =  some text  ", "108=\tkey\t", " 999 "});
    ASSERT_EQ(state.Count, 1);
    EXPECT_EQ(At(1).text, "some text");
    EXPECT_EQ(At(1).key, "\tkey\t");
}

TEST_F(ItemsText, TheFirstEqualSignDivides) {
    ParseLines({"107=a=b=c", "108==", "999"});
    EXPECT_EQ(At(1).text, "a=b=c");
    EXPECT_EQ(At(1).key, "=");
}

TEST_F(ItemsText, AnEqualSignInFrontDividesNothing) {
    ParseLines({"107=x", "=107", "=107=y", "108", "999"});
    EXPECT_EQ(At(1).text, "x") << "such a line is the number 0";
    EXPECT_EQ(At(1).key, "x") << "and it leaves the value of the line before";
}

TEST_F(ItemsText, ALineWithoutAnEqualSignKeepsTheValueOfTheLineBefore) {
    ParseLines({"107=abc", "108", "999"});
    EXPECT_EQ(At(1).text, "abc");
    EXPECT_EQ(At(1).key, "abc");
}

TEST_F(ItemsText, UnknownLinesAreSkipped) {
    ParseLines({"2=1", "4=1", "16=5", "100=5", "110=x", "500", "words", "", "-1=3", "999"});
    EXPECT_EQ(state.Count, 1);
    EXPECT_EQ(At(1), (qrosterdata{.vflag = vflag::InUse}));
}

TEST_F(ItemsText, ATextWithALineBreakLosesWhatFollowsIt) {
    Add({.text = "one\r\ntwo"});
    Add({.text = "three"});
    const std::string saved = Build();
    ForgetItems();
    Parse(saved);
    EXPECT_EQ(Texts(), (std::vector<std::string>{"one", "three"}));
}

TEST_F(ItemsText, ANumberThatDoesNotFitLeavesTheNumberOfTheLineBefore) {
    ParseLines({"107=x", "99999999999=foo", "999"});
    EXPECT_EQ(At(1).text, "foo");
}

TEST_F(ItemsText, AValueThatDoesNotFitLeavesItsField) {
    state.CX_TEXT = 33;
    ParseLines({"3=99999999999", "105=7", "105=99999999999", "999"});
    EXPECT_EQ(state.CX_TEXT, 33);
    EXPECT_EQ(At(1).IconID, 7);
}

TEST_F(ItemsText, ValuesAreScannedAndRoundedHalfToEven) {
    ParseLines({"3=12ab", "7=2.5", "10=3.5", "14=abc", "18=&h1F"});
    EXPECT_EQ(state.CX_TEXT, 12);
    EXPECT_EQ(state.GridlineWidth, 2);
    EXPECT_EQ(state.HeadWidthEx, 4);
    EXPECT_EQ(state.ItemWidth, 0);
    EXPECT_EQ(state.xn, 31);
}

TEST_F(ItemsText, ItemsComeBehindThoseThatAreThere) {
    AddTexts({"a", "b"});
    ParseLines({"107=c", "999"});
    EXPECT_EQ(Texts(), (std::vector<std::string>{"a", "b", "c"}));
    EXPECT_EQ(indexes[3], 3) << "in the slot of its number";
}

TEST_F(ItemsText, BothArraysGrowToFiveMoreThanTheCount) {
    ParseLines({"999"});
    EXPECT_EQ(items.UpperBound(), 6);
    EXPECT_EQ(indexes.UpperBound(), 6);
    ParseLines({"999", "999", "999", "999", "999"});
    EXPECT_EQ(state.Count, 6);
    EXPECT_EQ(items.UpperBound(), 6);
    ParseLines({"999"});
    EXPECT_EQ(items.UpperBound(), 12);
    EXPECT_EQ(indexes.UpperBound(), 12);
}

TEST_F(ItemsText, ComesBackButForWhatItDoesNotKeep) {
    state.HeadExBorderColor = 0x123456;
    state.GridlineOnBorder = true;
    state.ColWidthSettingStr = "0,10,20";
    Add({.text = " blanks ", .key = " k ", .ItemDataEx = 5, .vflag = vflag::Selected | vflag::Italic});
    Add({.text = "ant\tbee", .IconID = 4, .IconPos = 0x10203, .ItemData = -1, .bColor = 3});
    Add({.text = "Ärger 日本", .IconBackColor = 9, .fcolor = cHighlight, .vflag = vflag::IconBox});
    const std::string saved = Build();
    ForgetItems();
    InitListProperties(state);
    Parse(saved);
    ASSERT_EQ(state.Count, 3);
    EXPECT_EQ(At(1), (qrosterdata{.text = "blanks", .key = "k", .vflag = vflag::Italic | vflag::InUse}));
    EXPECT_EQ(At(2), (qrosterdata{.text = "ant\tbee",
                                  .IconID = 4,
                                  .IconPos = 0x10203,
                                  .ItemData = -1,
                                  .bColor = 3,
                                  .vflag = vflag::InUse}));
    EXPECT_EQ(At(3), (qrosterdata{.text = "Ärger 日本",
                                  .IconBackColor = 9,
                                  .fcolor = cHighlight,
                                  .vflag = vflag::IconBox | vflag::InUse}));
    EXPECT_EQ(state.HeadExBorderColor, cButtonFace);
    EXPECT_TRUE(state.GridlineOnBorder);
    EXPECT_EQ(state.ColWidthSettingStr, "0,10,20");
    state.HeadExBorderColor = 0x123456;
    items.Put(indexes[1], {.text = " blanks ", .key = " k ", .vflag = vflag::Italic | vflag::InUse});
    EXPECT_EQ(Build(), saved);
}

TEST_F(ItemsText, StrangeBytesAreReadAsTheyAre) {
    using namespace std::string_literals;
    Parse("107=a\0b\xFF\xFE\r\n999\r\n"s);
    ASSERT_EQ(state.Count, 1);
    EXPECT_EQ(At(1).text, "a\0b\xFF\xFE"s);
}

TEST_F(ItemsText, AnErrorOfTheFontEndsOnlyItsLine) {
    state.FontObj = nullptr;
    EXPECT_NO_THROW(ParseLines({"13=6", "3=5"}));
    EXPECT_EQ(state.CX_TEXT, 5);
}

// The numeric scan and the text helpers that every form relies on.

TEST(NumericScan, ReadsSignDigitsAndPointUpToWhatDoesNotBelong) {
    EXPECT_EQ(ScanNumber("12ab"), 12);
    EXPECT_EQ(ScanNumber("-3.25x"), -3.25);
    EXPECT_EQ(ScanNumber("+7"), 7);
    EXPECT_EQ(ScanNumber(".5"), 0.5);
    EXPECT_EQ(ScanNumber("1.2.3"), 1.2);
    EXPECT_EQ(ScanNumber(""), 0);
    EXPECT_EQ(ScanNumber("x1"), 0);
    EXPECT_EQ(ScanNumber("-"), 0);
    EXPECT_EQ(ScanNumber("--1"), 0);
}

TEST(NumericScan, KnowsNoBlanksInFrontAndNoExponent) {
    EXPECT_EQ(ScanNumber(" 5"), 0);
    EXPECT_EQ(ScanNumber("1e3"), 1);
    EXPECT_EQ(ScanNumber("inf"), 0);
    EXPECT_EQ(ScanNumber("0x10"), 0);
}

TEST(NumericScan, ReadsHexadecimalInEitherCaseWithOrWithoutItsEnd) {
    EXPECT_EQ(ScanNumber("&HFF&"), 255);
    EXPECT_EQ(ScanNumber("&hff"), 255);
    EXPECT_EQ(ScanNumber("&H80000005&"), -2147483643.0);
    EXPECT_EQ(ScanNumber("&HFFFFFFFF&"), -1);
    EXPECT_EQ(ScanNumber("&H10 20"), 16);
    EXPECT_EQ(ScanNumber("&"), 0);
    EXPECT_EQ(ScanNumber("&H"), 0);
}

TEST(NumericScan, RoundingIsHalfToEven) {
    EXPECT_EQ(RoundToInt32(0.5), 0);
    EXPECT_EQ(RoundToInt32(1.5), 2);
    EXPECT_EQ(RoundToInt32(2.5), 2);
    EXPECT_EQ(RoundToInt32(-0.5), 0);
    EXPECT_EQ(RoundToInt32(-1.5), -2);
    EXPECT_EQ(RoundToInt32(2147483647.4), 2147483647);
    EXPECT_THROW(RoundToInt32(2147483647.5), OverflowError);
    EXPECT_THROW(RoundToInt32(-2147483649.0), OverflowError);
    EXPECT_EQ(TruncateToInt32(-3.9), -3);
    EXPECT_EQ(TruncateToInt32(3.9), 3);
}

TEST(TextHelpers, TrimTakesBlanksOnly) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("\t a \t"), "\t a \t");
    EXPECT_EQ(Trim("   "), "");
}

TEST(TextHelpers, AnEmptyTextSplitsIntoNoParts) {
    EXPECT_TRUE(Split("", ',').empty());
    EXPECT_EQ(Split(",", ','), (std::vector<std::string_view>{"", ""}));
    EXPECT_EQ(Split("a,b", ','), (std::vector<std::string_view>{"a", "b"}));
}

} // namespace
} // namespace tvok::test
