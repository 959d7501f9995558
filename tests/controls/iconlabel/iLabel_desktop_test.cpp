// Labels on a desktop: the focus by key and mouse, forwarded events, what they look like.
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/TestDesktop.h"

namespace tvok::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The highlight as a pixel.
std::uint32_t FocusBand() {
    const auto color = static_cast<std::uint32_t>(host::platform().GetSysColor(host::COLOR_HIGHLIGHT));
    return (color & 0xFF) << 16 | (color & 0xFF00) | color >> 16;
}

iLabel& MakeLabel(TestDesktop& desktop, const std::string& caption, std::int32_t top = 10,
                  std::int32_t width = 160, std::int32_t height = 28) {
    auto& label = desktop.form().Add<iLabel>(caption, Placement{10, top, width, height});
    label.Caption(caption);
    desktop.Pump();
    return label;
}

/// Whether the band of the focus is there: at the left end of the caption's area, above the text.
bool HasBand(TestDesktop& desktop, const iLabel& label) {
    return desktop.PixelAt(label, label.TextLeft() + 2, 2) == FocusBand();
}

TEST(iLabelDesktop, TabGoesFromLabelToLabelAndShiftTabBack) {
    TestDesktop desktop;
    std::vector<iLabel*> labels;
    for (std::int32_t i = 0; i < 3; ++i)
        labels.push_back(&MakeLabel(desktop, "label " + std::to_string(i), 10 + 40 * i));
    const auto focused = [&] {
        std::vector<bool> bands;
        for (const iLabel* label : labels) bands.push_back(HasBand(desktop, *label));
        return bands;
    };
    desktop.Focus(*labels[0]);
    EXPECT_THAT(focused(), ElementsAre(true, false, false));
    desktop.Key(host::VK_TAB);
    EXPECT_THAT(focused(), ElementsAre(false, true, false));
    desktop.Key(host::VK_TAB);
    EXPECT_THAT(focused(), ElementsAre(false, false, true));
    desktop.Key(host::VK_TAB);
    EXPECT_THAT(focused(), ElementsAre(true, false, false));
    desktop.HoldKey(host::VK_SHIFT);
    desktop.Key(host::VK_TAB);
    desktop.LetGoKey(host::VK_SHIFT);
    EXPECT_THAT(focused(), ElementsAre(false, false, true));
}

TEST(iLabelDesktop, AClickTakesTheFocusAndRaisesNoClick) {
    TestDesktop desktop;
    auto& label = MakeLabel(desktop, "press me");
    desktop.FocusAway();
    EXPECT_FALSE(HasBand(desktop, label));
    std::vector<std::string> story;
    const auto note = [&](const char* name) {
        return [&story, name](std::int16_t& button, std::int16_t&, float& x, float& y) {
            story.push_back(std::string(name) + " " + std::to_string(button) + " " +
                            std::to_string(static_cast<int>(x)) + " " + std::to_string(static_cast<int>(y)));
        };
    };
    label.events.Click = [&] { story.emplace_back("Click"); };
    label.events.MouseDown = note("MouseDown");
    label.events.MouseUp = note("MouseUp");
    desktop.Click(label, 40, 10);
    EXPECT_THAT(story, ElementsAre("MouseDown 1 600 150", "MouseUp 1 600 150")); // twips
    EXPECT_TRUE(HasBand(desktop, label));
    desktop.DoubleClick(label, 40, 10);
    EXPECT_THAT(story, testing::Not(testing::Contains("Click")));
    desktop.FocusAway();
    EXPECT_FALSE(HasBand(desktop, label));
}

TEST(iLabelDesktop, KeysComeWhileItHasTheFocus) {
    TestDesktop desktop;
    auto& label = MakeLabel(desktop, "keys");
    std::vector<std::int16_t> codes;
    label.events.KeyDown = [&](std::int16_t& code, std::int16_t&) { codes.push_back(code); };
    label.events.KeyUp = [&](std::int16_t& code, std::int16_t&) {
        codes.push_back(static_cast<std::int16_t>(-code));
    };
    desktop.FocusAway();
    desktop.Key('A');
    EXPECT_THAT(codes, IsEmpty());
    desktop.Focus(label);
    desktop.Key('A');
    desktop.Key(host::VK_RETURN);
    EXPECT_THAT(codes, ElementsAre('A', -'A', host::VK_RETURN, -host::VK_RETURN));
}

TEST(iLabelDesktop, HideFocusKeepsTheBandAway) {
    TestDesktop desktop;
    auto& label = MakeLabel(desktop, "quiet");
    desktop.Focus(label);
    EXPECT_TRUE(HasBand(desktop, label));
    label.HideFocus(true);
    EXPECT_FALSE(HasBand(desktop, label));
}

TEST(iLabelDesktop, AWiderLabelKeepsItsBandUntilTextRightIsWritten) {
    TestDesktop desktop;
    auto& label = MakeLabel(desktop, "wide");
    EXPECT_EQ(label.TextRight(), 156) << "the client width inside the sunken border";
    desktop.Focus(label);
    desktop.form().Place(label, {10, 10, 300, 28});
    desktop.Pump();
    EXPECT_EQ(label.TextRight(), 156);
    EXPECT_EQ(desktop.PixelAt(label, 150, 2), FocusBand());
    EXPECT_EQ(desktop.PixelAt(label, 160, 2), 0xFFFFFFu);
    label.TextRight(296);
    EXPECT_EQ(desktop.PixelAt(label, 160, 2), 0xFFFFFFu) << "only stored";
    label.Refresh();
    EXPECT_EQ(desktop.PixelAt(label, 290, 2), FocusBand());
}

TEST(iLabelDesktop, AnAmpersandUnderlinesTheNextLetterWithoutNoprefixOnly) {
    TestDesktop desktop;
    auto& marked = MakeLabel(desktop, "&Save", 10);
    auto& plain = MakeLabel(desktop, "Save", 50);
    desktop.FocusAway();
    marked.NOPREFIX(false);
    marked.Refresh();
    const auto withLine = desktop.Pixels(marked), without = desktop.Pixels(plain);
    int differing = 0;
    for (std::size_t i = 0; i < withLine.size(); ++i) differing += withLine[i] != without[i] ? 1 : 0;
    EXPECT_GE(differing, 4) << "a line under one letter";
    EXPECT_LE(differing, 20);
    marked.NOPREFIX(true);
    marked.Refresh();
    EXPECT_EQ(desktop.Pixels(marked) == withLine, false);
}

TEST(iLabelDesktop, AnImageThatIsNotThereLeavesTheRestPainted) {
    TestDesktop desktop;
    auto& label = MakeLabel(desktop, "no image");
    const auto before = desktop.Pixels(label);
    label.IconID(1);
    EXPECT_EQ(desktop.Pixels(label) == before, true);
    label.IconHandle(12345);
    label.IconID(99);
    EXPECT_EQ(desktop.Pixels(label) == before, true);
}

TEST(iLabelDesktop, AnUncoveredLabelPaintsItself) {
    TestDesktop desktop;
    auto& label = MakeLabel(desktop, "covered");
    const auto before = desktop.Pixels(label);
    host::platform().InvalidateRect(label.hwnd(), nullptr, true);
    desktop.Pump();
    EXPECT_EQ(desktop.Pixels(label) == before, true);
}

// Handlers.

TEST(iLabelHandlers, MayEndTheLabelInEachEvent) {
    for (int which = 0; which < 4; ++which) {
        bool gone = false; // what a handler writes to outlives the desktop
        TestDesktop desktop;
        auto& label = MakeLabel(desktop, "ends");
        const auto end = [&] {
            if (!std::exchange(gone, true)) desktop.form().Remove(label);
        };
        const auto key = [&](std::int16_t&, std::int16_t&) { end(); };
        const auto button = [&](std::int16_t&, std::int16_t&, float&, float&) { end(); };
        if (which == 0) label.events.KeyDown = key;
        if (which == 1) label.events.KeyUp = key;
        if (which == 2) label.events.MouseDown = button;
        if (which == 3) label.events.MouseUp = button;
        desktop.Focus(label);
        if (which < 2) {
            desktop.Key('A');
        } else {
            desktop.Press(label, 20, 10);
            desktop.Release();
        }
        desktop.Pump();
        EXPECT_TRUE(gone) << which;
        EXPECT_THAT(desktop.form().Names(), IsEmpty());
    }
}

TEST(iLabelHandlers, MayCloseTheFormMoveTheFocusAndRewriteTheLabel) {
    const std::vector<std::function<void(TestDesktop&, iLabel&)>> deeds = {
        [](TestDesktop& desktop, iLabel&) { desktop.form().Close(); },
        [](TestDesktop& desktop, iLabel&) { desktop.FocusAway(); },
        [](TestDesktop&, iLabel& label) {
            label.events.MouseDown = nullptr;
            label.Caption("another");
            label.BorderStyle(0);
        },
        [](TestDesktop& desktop, iLabel& label) {
            desktop.form().Place(label, {0, 0, 20, 5});
        },
        [](TestDesktop& desktop, iLabel&) { desktop.Pump(); },
    };
    for (const auto& deed : deeds) {
        int calls = 0;
        TestDesktop desktop;
        auto& label = MakeLabel(desktop, "deeds");
        label.events.MouseDown = [&](std::int16_t&, std::int16_t&, float&, float&) {
            ++calls;
            deed(desktop, label);
        };
        desktop.Press(label, 20, 10);
        desktop.Pump();
        EXPECT_EQ(calls, 1);
    }
}

// Form files.

TEST(iLabelFormFile, KeepsTheLabelItsPlaceAndNoSettings) {
    const std::string file = testing::TempDir() + "iLabel.form";
    {
        TestDesktop desktop;
        auto& label = MakeLabel(desktop, "title");
        label.ForeColor(0x0000FF);
        label.GridlineWidth(3);
        desktop.form().Save(file);
    }
    TestDesktop desktop;
    desktop.form().Load(file);
    auto* label = desktop.form().Find<iLabel>("title");
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(desktop.form().PlacementOf(*label).width, 160);
    EXPECT_EQ(label->Caption(), "");
    EXPECT_EQ(label->ForeColor(), 0);
    EXPECT_EQ(label->GridlineWidth(), 0);
    EXPECT_EQ(label->TextRight(), 156);
    std::filesystem::remove(file);
}

// Pictures.

/// One image of 16 x 16: a blue disc.
std::vector<std::uint32_t> Disc() {
    std::vector<std::uint32_t> pixels(256, 0);
    for (std::int32_t y = 0; y < 16; ++y)
        for (std::int32_t x = 0; x < 16; ++x)
            if ((2 * x - 15) * (2 * x - 15) + (2 * y - 15) * (2 * y - 15) <= 200)
                pixels[static_cast<std::size_t>(16 * y + x)] = 0xFF3366CC;
    return pixels;
}

iLabel& IconLabel(TestDesktop& desktop, const std::string& caption, std::int32_t height) {
    auto& label = MakeLabel(desktop, caption, 10, 180, height);
    label.IconHandle(desktop.desktop().AddImageList(Disc(), 16));
    label.IconBorder(true);
    label.GridlineWidth(1);
    label.TextLeft(24);
    label.IconID(1);
    return label;
}

void ExpectFocusedLabel(const Theme& theme) {
    TestDesktop desktop(theme);
    auto& label = IconLabel(desktop, "&Open the file", 26);
    label.NOPREFIX(false);
    label.Refresh();
    desktop.Focus(label);
    ExpectPictureWithFrame("iconlabel/focused-" + theme.name, desktop, label);
}

TEST(iLabelPictures, TheFocusInTheClassicTheme) {
    ExpectFocusedLabel(Theme::Classic());
}
TEST(iLabelPictures, TheFocusInTheDarkTheme) {
    ExpectFocusedLabel(Theme::Dark());
}
TEST(iLabelPictures, TheFocusInHighContrast) {
    ExpectFocusedLabel(Theme::HighContrast());
}

TEST(iLabelPictures, AFilledBoxUnderTheImageAndAWrappedCaption) {
    TestDesktop desktop;
    auto& label = IconLabel(desktop, "A caption of more words than one line holds & an ampersand", 60);
    desktop.FocusAway();
    label.IconTransParent(false);
    label.IconBackColor(0xC0FFFF);
    label.IconBorderColor(0x0000C0);
    label.ForeColor(0x800000);
    label.GridlineWidth(3);
    label.GridlineColor(0x00A000);
    label.MultiLine(true);
    ExpectPictureWithFrame("iconlabel/wrapped", desktop, label);
}

} // namespace
} // namespace tvok::test
