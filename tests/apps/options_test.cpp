#include "apps/gallery/options.h"

#include <gmock/gmock.h>

namespace gallery {
namespace {

TEST(GallerySwitches, AreReadInAnyOrder) {
    Options options;
    std::string error;
    ASSERT_TRUE(ParseOptions({"--theme", "dark", "--trace", "t", "--headless", "d", "--page", "lists"},
                             options, error));
    EXPECT_EQ(options.theme, "dark");
    EXPECT_EQ(options.traceFile, "t");
    EXPECT_EQ(options.headlessFolder, "d");
    EXPECT_EQ(options.page, "lists");
}

TEST(GallerySwitches, HelpWinsOverWhatFollows) {
    Options options;
    std::string error;
    EXPECT_TRUE(ParseOptions({"--help", "--nonsense"}, options, error));
    EXPECT_TRUE(options.help);
}

TEST(GallerySwitches, AThemeThatIsNotKnownIsRefusedWithTheNamesThatAre) {
    Options options;
    std::string error;
    EXPECT_FALSE(ParseOptions({"--theme", "plaid"}, options, error));
    EXPECT_THAT(error, testing::HasSubstr("contrast"));
}

TEST(GallerySwitches, AScaleIsANumberInItsRange) {
    Options options;
    std::string error;
    ASSERT_TRUE(ParseOptions({"--scale", "1.25"}, options, error));
    EXPECT_EQ(options.scale, 1.25F);
    for (const char* text : {"0.49", "4.1", "-1", "x", "2x", " 2", "nan", "inf", "1,5"}) {
        Options refused;
        EXPECT_FALSE(ParseOptions({"--scale", text}, refused, error)) << text;
        EXPECT_EQ(error, std::string("--scale has to be a number from 0.5 to 4, and is \"") + text + "\"");
    }
}

TEST(GallerySwitches, UsageNamesEverySwitchAndPageAndTheKeys) {
    for (const char* text : {"--scale", "Ctrl+Tab", "F6", "F9", "--headless", "--theme", "--trace", "--page",
                             "--help", "lists"}) {
        EXPECT_THAT(Usage(), testing::HasSubstr(text));
    }
}

} // namespace
} // namespace gallery
