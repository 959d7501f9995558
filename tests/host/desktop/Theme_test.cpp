#include "tvok/host/desktop/Theme.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include <gtest/gtest.h>

#include "tvok/host/constants.h"
#include "tvok/records/Error.h"

namespace tvok {
namespace {

double Linear(std::int32_t channel) {
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(std::int32_t color) {
    return 0.2126 * Linear(color & 255) + 0.7152 * Linear(color >> 8 & 255) +
           0.0722 * Linear(color >> 16 & 255);
}

double Contrast(const Theme& theme, std::int32_t a, std::int32_t b) {
    const double x = Luminance(theme.colors[static_cast<std::size_t>(a)]);
    const double y = Luminance(theme.colors[static_cast<std::size_t>(b)]);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

const std::initializer_list<const Theme*> all{&Theme::Classic(), &Theme::Dark(), &Theme::HighContrast()};

TEST(Theme, TextIsReadableOnItsBackgroundInEveryTheme) {
    using namespace host;
    const std::pair<std::int32_t, std::int32_t> pairs[]{
        {COLOR_WINDOWTEXT, COLOR_WINDOW},         {COLOR_HIGHLIGHTTEXT, COLOR_HIGHLIGHT},
        {COLOR_BTNTEXT, COLOR_BTNFACE},           {COLOR_MENUTEXT, COLOR_MENU},
        {COLOR_CAPTIONTEXT, COLOR_ACTIVECAPTION}, {COLOR_INACTIVECAPTIONTEXT, COLOR_INACTIVECAPTION},
        {COLOR_INFOTEXT, COLOR_INFOBK},           {COLOR_WINDOWTEXT, COLOR_INFOBK}};
    for (const Theme* theme : all)
        for (const auto& [text, ground] : pairs)
            EXPECT_GE(Contrast(*theme, text, ground), 4.5) << theme->name << ' ' << text << " on " << ground;
    for (const Theme* theme : all) {
        EXPECT_GE(Contrast(*theme, COLOR_GRAYTEXT, COLOR_WINDOW), 3) << theme->name;
        EXPECT_GE(Contrast(*theme, COLOR_GRAYTEXT, COLOR_BTNFACE), 3) << theme->name;
    }
}

TEST(Theme, TheSelectionStandsOutFromTheWindow) {
    for (const Theme* theme : all)
        EXPECT_GE(Contrast(*theme, host::COLOR_HIGHLIGHT, host::COLOR_WINDOW), 2.5) << theme->name;
}

TEST(Theme, HighContrastReachesSevenToOne) {
    const Theme& theme = Theme::HighContrast();
    EXPECT_GE(Contrast(theme, host::COLOR_WINDOWTEXT, host::COLOR_WINDOW), 7);
    EXPECT_GE(Contrast(theme, host::COLOR_HIGHLIGHTTEXT, host::COLOR_HIGHLIGHT), 7);
    EXPECT_GE(Contrast(theme, host::COLOR_GRAYTEXT, host::COLOR_WINDOW), 7);
    EXPECT_GE(Contrast(theme, host::COLOR_3DDKSHADOW, host::COLOR_BTNFACE), 7);
}

TEST(Theme, ColoursAreBlueGreenRedWithoutAHighByte) {
    EXPECT_EQ(Theme::Classic().colors[host::COLOR_HIGHLIGHT], 0xC8640A);
    for (const Theme* theme : all)
        for (const std::int32_t color : theme->colors) EXPECT_EQ(color & ~0xFFFFFF, 0);
}

TEST(Theme, IsFoundByItsName) {
    EXPECT_EQ(&Theme::ByName("classic"), &Theme::Classic());
    EXPECT_EQ(&Theme::ByName("dark"), &Theme::Dark());
    EXPECT_EQ(&Theme::ByName("contrast"), &Theme::HighContrast());
    try {
        Theme::ByName("Dark");
        FAIL() << "names are exact";
    } catch (const Error& error) {
        const std::string message = error.what();
        for (const char* part : {"Dark", "classic", "dark", "contrast"})
            EXPECT_NE(message.find(part), std::string::npos) << message;
    }
}

} // namespace
} // namespace tvok
