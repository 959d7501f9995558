// What a strip looks like, pixel by pixel: the pictures in tests/golden/buttonstrip.
#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/support/TestDesktop.h"

namespace tvok::test {
namespace {

/// A green ring of 16 x 16.
std::vector<std::uint32_t> Ring() {
    std::vector<std::uint32_t> pixels(256, 0);
    for (std::int32_t y = 0; y < 16; ++y)
        for (std::int32_t x = 0; x < 16; ++x) {
            const std::int32_t across = 2 * x - 15, down = 2 * y - 15;
            const std::int32_t far = across * across + down * down;
            if (far <= 200 && far >= 60) pixels[static_cast<std::size_t>(16 * y + x)] = 0xFF30A030;
        }
    return pixels;
}

/// Every kind: captions, an image, the three symbols, an unknown symbol and an unknown kind.
xbutton& FullStrip(TestDesktop& desktop, std::int32_t height) {
    auto& strip = desktop.form().Add<xbutton>("strip", {0, 0, 10, height});
    strip.IconHandle(desktop.desktop().AddImageList(Ring(), 16));
    strip.ButtonSettingsStr("...|c|0|&B|u|0|0|i|1|0|a|2|1|r|2|2|x|2|3|n|2|k|k|3");
    return strip;
}

void ExpectFullStrip(const Theme& theme) {
    TestDesktop desktop(theme);
    FullStrip(desktop, 22);
    auto& down = desktop.form().Add<xbutton>("down", {0, 22, 10, 22});
    desktop.Pump();
    ExpectPicture("buttonstrip/up-" + theme.name, desktop, *desktop.form().Find("strip"));
    down.IconHandle(desktop.desktop().AddImageList(Ring(), 16));
    // A new text leaves the first place held, so each kind is pressed in a place of its own.
    std::string settings;
    for (const char* button : {"...|c|0", "&B|u|0", "0|i|1", "0|a|2", "1|r|2", "2|x|2", "3|n|2", "k|k|3"}) {
        settings += settings.empty() ? button : std::string("|") + button;
        down.ButtonSettingsStr(settings);
        std::int16_t left = 1, shift = 0;
        auto x = static_cast<float>(desktop.form().PlacementOf(down).width - 10) * 15;
        float y = 150;
        down.MouseDown(left, shift, x, y);
    }
    ExpectPicture("buttonstrip/down-" + theme.name, desktop, down);
}

TEST(xbuttonPictures, EveryKindUpAndDownInTheClassicTheme) {
    ExpectFullStrip(Theme::Classic());
}

TEST(xbuttonPictures, EveryKindUpAndDownInTheDarkTheme) {
    ExpectFullStrip(Theme::Dark());
}

TEST(xbuttonPictures, EveryKindUpAndDownInHighContrast) {
    ExpectFullStrip(Theme::HighContrast());
}

TEST(xbuttonPictures, ALargeStripHasLargeSymbols) {
    TestDesktop desktop;
    ExpectPicture("buttonstrip/large", desktop, FullStrip(desktop, 40));
}

} // namespace
} // namespace tvok::test
