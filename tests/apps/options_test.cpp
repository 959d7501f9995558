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

TEST(GallerySwitches, UsageNamesEverySwitchAndPage) {
    for (const char* text : {"--headless", "--theme", "--trace", "--page", "--help", "lists"}) {
        EXPECT_THAT(Usage(), testing::HasSubstr(text));
    }
}

} // namespace
} // namespace gallery
