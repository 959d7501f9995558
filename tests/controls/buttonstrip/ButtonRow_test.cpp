#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tvok/controls/buttonstrip/ButtonRow.h"

namespace tvok {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// "text/key/kind/value" of each button.
std::vector<std::string> Buttons(const ButtonRow& row) {
    std::vector<std::string> lines;
    for (std::int32_t i = 1; i <= row.Count(); ++i)
        lines.push_back(row[i].text + "/" + row[i].key + "/" + std::to_string(row[i].kind) + "/" +
                        std::to_string(row[i].value));
    return lines;
}

std::vector<std::string> ButtonsOf(std::string_view settings) {
    ButtonRow row;
    row.Set(settings, 20);
    return Buttons(row);
}

TEST(ButtonRow, OneGroupIsOneSquare) {
    ButtonRow row;
    EXPECT_EQ(row.Set("x|k|0", 20), 20);
    EXPECT_THAT(Buttons(row), ElementsAre("x/k/0/0"));
    EXPECT_EQ(row[1].rect, (tvok_Rect{0, 0, 20, 20}));
    EXPECT_EQ(row[1].state, 0);
}

TEST(ButtonRow, SquaresStandSideBySideFromTheLeft) {
    ButtonRow row;
    EXPECT_EQ(row.Set("b|a|2|b|b|2|...|c|0", 17), 51);
    EXPECT_THAT(Buttons(row), ElementsAre("/a/2/0", "/b/2/0", ".../c/0/0"));
    EXPECT_EQ(row[2].rect, (tvok_Rect{17, 0, 34, 17}));
    EXPECT_EQ(row[3].rect, (tvok_Rect{34, 0, 51, 17}));
}

TEST(ButtonRow, FieldsThatAreNoWholeGroupAreIgnored) {
    EXPECT_THAT(ButtonsOf(""), IsEmpty());
    EXPECT_THAT(ButtonsOf("x"), IsEmpty());
    EXPECT_THAT(ButtonsOf("x|k"), IsEmpty());
    EXPECT_THAT(ButtonsOf("a|b|0|c|d"), ElementsAre("a/b/0/0"));
    EXPECT_THAT(ButtonsOf("a|b|0|"), ElementsAre("a/b/0/0"));
    EXPECT_THAT(ButtonsOf("||"), ElementsAre("//0/0")) << "three empty fields are a group";
    EXPECT_THAT(ButtonsOf("|||||"), ElementsAre("//0/0", "//0/0"));
}

TEST(ButtonRow, NoGroupIsNoWidth) {
    ButtonRow row;
    EXPECT_EQ(row.Set("x|k", 20), 0);
    EXPECT_EQ(row.Count(), 0);
}

TEST(ButtonRow, CaptionsAndKeysLoseTheBlanksAroundThem) {
    EXPECT_THAT(ButtonsOf("  a b | k  l |0"), ElementsAre("a b/k  l/0/0"));
    EXPECT_THAT(ButtonsOf("\ta|k\n|0"), ElementsAre("\ta/k\n/0/0")) << "blanks alone";
    EXPECT_THAT(ButtonsOf("3| k |1"), ElementsAre("/k/1/3")) << "the key of an image too";
}

TEST(ButtonRow, AKindThatIsNoNumberIsACaption) {
    EXPECT_THAT(ButtonsOf("a|k|image"), ElementsAre("a/k/0/0"));
    EXPECT_THAT(ButtonsOf("a|k|"), ElementsAre("a/k/0/0"));
    EXPECT_THAT(ButtonsOf("a|k| 1"), ElementsAre("a/k/0/0")) << "the scan knows no blanks in front";
}

TEST(ButtonRow, NumbersAreReadByTheScanAndRounded) {
    EXPECT_THAT(ButtonsOf("7|k|1x"), ElementsAre("/k/1/7"));
    EXPECT_THAT(ButtonsOf("&H10|k|&H1"), ElementsAre("/k/1/16"));
    EXPECT_THAT(ButtonsOf("2.5|k|1.5"), ElementsAre("/k/2/2")) << "half to even";
    EXPECT_THAT(ButtonsOf("-4|k|1"), ElementsAre("/k/1/-4"));
    EXPECT_THAT(ButtonsOf("b|k|2"), ElementsAre("/k/2/0")) << "what is no number is 0";
}

TEST(ButtonRow, OtherKindsHaveACaptionAndNoValue) {
    EXPECT_THAT(ButtonsOf(" 5 |k|3|6|l|-1|7|m|32767"), ElementsAre("5/k/3/0", "6/l/-1/0", "7/m/32767/0"));
}

TEST(ButtonRow, KeysNeedNotBeUnique) {
    EXPECT_THAT(ButtonsOf("a|k|0|b|k|0"), ElementsAre("a/k/0/0", "b/k/0/0"));
}

TEST(ButtonRow, ANumberThatDoesNotFitLeavesWhatWasThere) {
    EXPECT_THAT(ButtonsOf("a|k|40000"), ElementsAre("a/k/0/0"));
    EXPECT_THAT(ButtonsOf("9999999999|k|1"), ElementsAre("/k/1/0"));
    ButtonRow row;
    row.Set("5|k|1", 20);
    row.Set("99999999999|l|99999", 20);
    EXPECT_THAT(Buttons(row), ElementsAre("/l/1/5")) << "kind and value of before, and the new key";
}

TEST(ButtonRow, AHeldButtonStaysHeldWhileTheTextIsSet) {
    ButtonRow row;
    row.Set("a|a|0|b|b|0", 20);
    row[2].state = buttonstate::Pressed | buttonstate::DrawnDown;
    row.Set("c|c|0", 20);
    row.Set("d|d|0|e|e|0", 20);
    EXPECT_EQ(row[1].state, 0);
    EXPECT_EQ(row[2].state, 3) << "also through a text with fewer buttons";
}

TEST(ButtonRow, SettingATextClearsTheStateOfTheEntryThatIsNoButton) {
    ButtonRow row;
    row[0].state = 1;
    row.Set("a|a|0", 20);
    EXPECT_EQ(row[0].state, 0);
}

TEST(ButtonRow, ReleaseReachesTheWholeArray) {
    ButtonRow row;
    row.Set("a|a|0|b|b|0|c|c|0", 20);
    for (std::int32_t i = 0; i <= 3; ++i) row[i].state = 3;
    row.Set("a|a|0", 20);
    row.Release();
    for (std::int32_t i = 0; i <= 3; ++i) EXPECT_EQ(row[i].state, 0) << i;
}

TEST(ButtonRow, TheArrayNeverShrinks) {
    ButtonRow row;
    row.Set("a|a|0|b|b|0", 20);
    row.Set("", 20);
    EXPECT_EQ(row.Count(), 0);
    EXPECT_EQ(row[2].key, "b");
    EXPECT_THROW(row[3], SubscriptError);
    row.Clear();
    EXPECT_THROW(row[1], SubscriptError);
}

TEST(ButtonRow, APointBelongsToTheFirstButtonThatHasIt) {
    ButtonRow row;
    row.Set("a|a|0|b|b|0", 20);
    EXPECT_EQ(row.ButtonAt(0, 0), 1);
    EXPECT_EQ(row.ButtonAt(19, 19), 1);
    EXPECT_EQ(row.ButtonAt(20, 0), 2);
    EXPECT_EQ(row.ButtonAt(39, 19), 2);
    EXPECT_EQ(row.ButtonAt(40, 0), 0);
    EXPECT_EQ(row.ButtonAt(0, 20), 0);
    EXPECT_EQ(row.ButtonAt(-1, 0), 0);
    row[2].rect = row[1].rect;
    EXPECT_EQ(row.ButtonAt(5, 5), 1);
}

TEST(ButtonRow, ButtonsBeyondTheCountAreNotHit) {
    ButtonRow row;
    row.Set("a|a|0|b|b|0", 20);
    row.Set("a|a|0", 20);
    EXPECT_EQ(row.ButtonAt(30, 10), 0);
}

TEST(ButtonRow, ARowOfNoHeightIsHitNowhere) {
    ButtonRow row;
    EXPECT_EQ(row.Set("a|a|0|b|b|0", 0), 0);
    EXPECT_EQ(row.Count(), 2);
    EXPECT_EQ(row.ButtonAt(0, 0), 0);
}

TEST(ButtonRow, ThereAreAsManyButtonsAs16BitsCount) {
    std::string settings = "0|k0|0";
    for (int i = 1; i < 32769; ++i) settings += "|" + std::to_string(i) + "|k" + std::to_string(i) + "|0";
    ButtonRow row;
    EXPECT_EQ(row.Set(settings, 2), 2 * 32769) << "each group takes its width";
    EXPECT_EQ(row.Count(), 32767);
    EXPECT_EQ(row[32766].key, "k32765");
    EXPECT_EQ(row[32767].key, "k32768") << "the last group stands in the last place";
    EXPECT_EQ(row[32767].rect, (tvok_Rect{65536, 0, 65538, 2}));
}

TEST(ButtonRow, APlaceBeyond32BitsIsNotTaken) {
    ButtonRow row;
    EXPECT_EQ(row.Set("a|a|0|b|b|0|c|c|0", 1500000000), 1500000000);
    EXPECT_EQ(row.Count(), 3);
    EXPECT_EQ(row[2].rect, tvok_Rect{});
    EXPECT_EQ(row[3].key, "c");
}

TEST(ButtonRow, TextsOfAnyBytesAreKept) {
    const std::string settings("a\0b|\xff\xfe|0|日本|ключ|0", 27);
    ButtonRow row;
    row.Set(settings, 20);
    ASSERT_EQ(row.Count(), 2);
    EXPECT_EQ(row[1].text, std::string("a\0b", 3));
    EXPECT_EQ(row[1].key, "\xff\xfe");
    EXPECT_EQ(row[2].text, "日本");
    EXPECT_EQ(row[2].key, "ключ");
}

} // namespace
} // namespace tvok
