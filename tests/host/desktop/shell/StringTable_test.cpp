#include "tvok/host/desktop/shell/StringTable.h"

#include <string>

#include <gtest/gtest.h>

namespace tvok::soft {
namespace {

std::string Load(const std::string& language, std::int32_t number) {
    return MakeStringResources(language)->LoadResString(number);
}

TEST(StringTable, ColorValuesAreTheSameInAllLanguages) {
    for (const char* language : {"en", "zh_TW", "zh_CN"}) {
        EXPECT_EQ(Load(language, 100), "&H80000000&");
        EXPECT_EQ(Load(language, 110), "&H8000000A&");
        EXPECT_EQ(Load(language, 124), "&H80000018&");
    }
}

TEST(StringTable, ColorsHaveTheirNamesInThreeLanguages) {
    EXPECT_EQ(Load("en", 1000), "Scroll Bar");
    EXPECT_EQ(Load("en", 1004), "Menu Bar");
    EXPECT_EQ(Load("en", 1013), "Highlight");
    EXPECT_EQ(Load("en", 1017), "Disabled Text");
    EXPECT_EQ(Load("en", 1022), "Button Light Shadow");
    EXPECT_EQ(Load("en", 1024), "Tooltip Background");
    EXPECT_EQ(Load("zh_TW", 1000), "捲軸灰色區域的色彩");
    EXPECT_EQ(Load("zh_TW", 1004), "功能表背景色彩");
    EXPECT_EQ(Load("zh_TW", 1013), "控制項中選取項目的背景色彩");
    EXPECT_EQ(Load("zh_TW", 1017), "暫止狀態的文字色彩");
    EXPECT_EQ(Load("zh_TW", 1022), "視窗的陰影色彩");
    EXPECT_EQ(Load("zh_TW", 1024), "工具提示的背景色彩");
    EXPECT_EQ(Load("zh_CN", 1000), "卷轴灰色区域的色彩");
    EXPECT_EQ(Load("zh_CN", 1004), "功能表背景色彩");
    EXPECT_EQ(Load("zh_CN", 1013), "控制项中选取项目的背景色彩");
    EXPECT_EQ(Load("zh_CN", 1017), "暂止状态的文字色彩");
    EXPECT_EQ(Load("zh_CN", 1022), "视窗的阴影色彩");
    EXPECT_EQ(Load("zh_CN", 1024), "工具提示的背景色彩");
}

TEST(StringTable, TheNameOfTheButtonTextKeepsItsThreeT) {
    EXPECT_EQ(Load("en", 1018), "Buttton Text");
}

TEST(StringTable, EveryColorHasANameInEveryLanguage) {
    for (const char* language : {"en", "zh_TW", "zh_CN"})
        for (std::int32_t index = 0; index < 25; ++index)
            EXPECT_NE(Load(language, 1000 + index), "") << index;
}

TEST(StringTable, NumbersWithoutATextAreEmpty) {
    for (const std::int32_t number : {0, 99, 125, 999, 1025, -1, 2147483647, -2147483647 - 1})
        EXPECT_EQ(Load("en", number), "") << number;
}

TEST(StringTable, TheLanguageIsChosenByScriptAndPlace) {
    const std::string traditional = Load("zh_TW", 1005);
    const std::string simplified = Load("zh_CN", 1005);
    EXPECT_NE(traditional, simplified);
    EXPECT_EQ(Load("zh_HK.UTF-8", 1005), traditional);
    EXPECT_EQ(Load("zh-Hant", 1005), traditional);
    EXPECT_EQ(Load("zh", 1005), simplified);
    EXPECT_EQ(Load("zh_SG", 1005), simplified);
    EXPECT_EQ(Load("ja_JP", 1005), "Window Background");
    EXPECT_EQ(Load("C", 1005), "Window Background");
}

} // namespace
} // namespace tvok::soft
