// The prepared contents: every colour of every grid, the system colours in three languages, number lists.

#include "tests/support/NotedServices.h"
#include "tests/support/PopupTestDesktop.h"
#include "tvok/engine/dgi.h"
#include "tvok/host/Services.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::int32_t> Colors(const PopupDesktop& at, std::int32_t first, std::int32_t count) {
    std::vector<std::int32_t> colors;
    for (std::int32_t i = first; i < first + count; ++i) colors.push_back(at.Data(i).IconBackColor);
    return colors;
}

/// 0xRRGGBB as a colour value.
std::int32_t Hex(std::uint32_t rgb) {
    return static_cast<std::int32_t>((rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16);
}

// An independent way to the colours, in whole numbers: a share is kept as a fraction over 240, and rounding
// half to even is done on the fraction.

std::int64_t RoundedQuotient(std::int64_t numerator, std::int64_t denominator) {
    const std::int64_t down =
        numerator >= 0 ? numerator / denominator : -((-numerator + denominator - 1) / denominator);
    const std::int64_t twice = 2 * (numerator - down * denominator);
    if (twice != denominator) return down + (twice > denominator ? 1 : 0);
    return down + (down % 2 != 0 ? 1 : 0);
}

std::int64_t Scaled(std::int64_t share) {
    return std::clamp<std::int64_t>(RoundedQuotient(share * 256, 240), 0, 255);
}

std::int32_t ExpectedColor(std::int64_t hue, std::int64_t saturation, std::int64_t lightness) {
    if (saturation == 0) return static_cast<std::int32_t>(Scaled(lightness) * 0x010101);
    const std::int64_t m2Over240 = lightness <= 120 ? lightness * (240 + saturation)
                                                    : 240 * (lightness + saturation) - lightness * saturation;
    const std::int64_t m2 = RoundedQuotient(m2Over240, 240);
    const std::int64_t m1 = RoundedQuotient(480 * lightness - m2Over240, 240);
    const auto share = [&](std::int64_t h) -> std::int64_t {
        h = (h + 240) % 240;
        if (h < 40) return RoundedQuotient(40 * m1 + (m2 - m1) * h, 40);
        if (h < 120) return m2;
        if (h < 160) return RoundedQuotient(40 * m1 + (m2 - m1) * (160 - h), 40);
        return m1;
    };
    return static_cast<std::int32_t>(Scaled(share(hue + 80)) | Scaled(share(hue)) << 8 |
                                     Scaled(share(hue + 160)) << 16);
}

struct GridCase {
    std::int32_t palette;
    std::int32_t xn, yn, cell;
    std::vector<int> hues, lightness, greys;
};

const std::vector<int> cA{225, 210, 180, 120, 105, 90, 60, 40};
const std::vector<int> cB{240, 210, 180, 150, 120, 90, 60, 0};
const std::vector<int> cC{0,   12,  20,  30,  35,  40,  50,  60,  80,  100, 110, 120,
                          125, 130, 140, 150, 160, 180, 190, 200, 210, 220, 230};

class xPopupGrid : public testing::TestWithParam<GridCase> {};

TEST_P(xPopupGrid, HasEveryColourOfItsListsInTheirOrder) {
    const GridCase& grid = GetParam();
    PopupDesktop at({"gone"});
    at.popup->SetColorPal(grid.palette);
    EXPECT_EQ(at.popup->xn(), grid.xn);
    EXPECT_EQ(at.popup->yn(), grid.yn);
    EXPECT_EQ(at.popup->ItemWidth(), grid.cell);
    EXPECT_EQ(at.popup->ItemHeight(), grid.cell);
    EXPECT_EQ(at.popup->CX_TEXT(), grid.cell);
    ASSERT_EQ(at.popup->Count(), grid.xn * grid.yn);
    std::int32_t index = 0;
    for (std::size_t row = 0; row < grid.lightness.size(); ++row) {
        for (const int hue : grid.hues)
            EXPECT_EQ(at.Data(++index).IconBackColor, ExpectedColor(hue, 240, grid.lightness[row])) << index;
        EXPECT_EQ(at.Data(++index).IconBackColor, ExpectedColor(0, 0, grid.greys[row])) << index;
    }
    EXPECT_EQ(index, at.popup->Count());
}

INSTANTIATE_TEST_SUITE_P(
    Each, xPopupGrid,
    testing::Values(
        GridCase{PAL8x8, 8, 8, 14, {0, 20, 40, 80, 120, 160, 200}, cA, cB},
        GridCase{
            PAL16x8, 16, 8, 12, {0, 12, 20, 30, 40, 60, 80, 110, 120, 130, 160, 180, 200, 210, 220}, cA, cB},
        GridCase{PAL24x8, 24, 8, 11, cC, cA, cB},
        GridCase{PAL24x10,
                 24,
                 10,
                 10,
                 cC,
                 {225, 210, 180, 150, 120, 105, 90, 75, 60, 40},
                 {240, 210, 180, 150, 120, 90, 80, 60, 30, 0}}),
    [](const auto& info) { return "Palette" + std::to_string(info.param.palette); });

TEST(xPopupPalettes, TwoRowsOfTheSmallGridInHexadecimal) {
    PopupDesktop at;
    at.popup->SetColorPal(PAL8x8);
    // The row of lightness 120 is the fourth, and its grey is the fourth of the greys.
    EXPECT_THAT(Colors(at, 25, 8), ElementsAre(Hex(0xFF0000), Hex(0xFF8000), Hex(0xFFFF00), Hex(0x00FF00),
                                               Hex(0x00FFFF), Hex(0x0000FF), Hex(0xFF00FF), Hex(0xA0A0A0)));
    EXPECT_EQ(at.Data(40).IconBackColor, Hex(0x808080)) << "the grey of row 5";
    EXPECT_THAT(Colors(at, 57, 8), ElementsAre(Hex(0x550000), Hex(0x552B00), Hex(0x555500), Hex(0x005500),
                                               Hex(0x005555), Hex(0x000055), Hex(0x550055), Hex(0x000000)));
}

TEST(xPopupPalettes, TheSixteenClassicColours) {
    PopupDesktop at;
    at.popup->SetColorPal(PAL8x2);
    EXPECT_EQ(at.popup->xn(), 8);
    EXPECT_EQ(at.popup->yn(), 2);
    EXPECT_EQ(at.popup->ItemWidth(), 16);
    EXPECT_EQ(at.popup->ItemHeight(), 16);
    EXPECT_EQ(at.popup->CX_TEXT(), 16);
    ASSERT_EQ(at.popup->Count(), 16);
    EXPECT_THAT(Colors(at, 1, 8), ElementsAre(Hex(0xFFFFFF), Hex(0xFFFF00), Hex(0xFF00FF), Hex(0xFF0000),
                                              Hex(0x00FFFF), Hex(0x00FF00), Hex(0x0000FF), Hex(0x808080)));
    EXPECT_THAT(Colors(at, 9, 8), ElementsAre(Hex(0xC0C0C0), Hex(0x808000), Hex(0x800080), Hex(0x800000),
                                              Hex(0x008080), Hex(0x008000), Hex(0x000080), Hex(0x000000)));
}

TEST(xPopupPalettes, TheLargestGridGoesFromWhiteToBlackAtItsRightEdge) {
    PopupDesktop at;
    at.popup->SetColorPal(PAL24x10);
    EXPECT_EQ(at.popup->Count(), 240);
    EXPECT_EQ(at.Data(24).IconBackColor, 0xFFFFFF);
    EXPECT_EQ(at.Data(240).IconBackColor, 0);
}

TEST(xPopupPalettes, AGridSetsItsLooksAndLeavesTheIconBorder) {
    for (const std::int32_t palette : {PAL8x2, PAL8x8, PAL16x8, PAL24x8, PAL24x10}) {
        PopupDesktop at;
        at.popup->HeadWidthEx(9);
        at.popup->GridlineWidth(5);
        at.popup->IconBorderColor(0x123456);
        at.popup->IconPos(0x05060708);
        at.popup->SetColorPal(palette);
        EXPECT_EQ(at.popup->HeadWidthEx(), 0);
        EXPECT_EQ(at.popup->GridlineWidth(), 1);
        EXPECT_TRUE(at.popup->GridlineOnBorder());
        EXPECT_EQ(at.popup->BackColor(), 0x808080);
        EXPECT_EQ(at.popup->SelectedColor(), 0x808080);
        EXPECT_EQ(at.popup->GridlineColor(), 0xC0C0C0);
        EXPECT_EQ(at.popup->IconBorderColor(), 0x123456);
        EXPECT_EQ(at.popup->IconPos(), 0x05060708);
        qrosterdata expected = ZeroItem();
        expected.vflag = 13 | vflag::InUse;
        expected.bColor = 0x808080;
        expected.IconPos = 0x1010;
        expected.IconBackColor = at.Data(3).IconBackColor;
        EXPECT_EQ(at.Data(3), expected) << palette;
    }
}

TEST(xPopupPalettes, ANumberThatIsNoPaletteGivesTheLooksOfAGridAndNoItem) {
    PopupDesktop at({"gone"});
    at.popup->xn(3);
    at.popup->SetColorPal(99);
    EXPECT_EQ(at.popup->Count(), 0);
    EXPECT_EQ(at.popup->xn(), 3);
    EXPECT_EQ(at.popup->BackColor(), 0x808080);
}

TEST(xPopupPalettes, ANewPaletteHasNoCurrentColourUntilTheUserMoves) {
    PopupDesktop at(Lines(9));
    at.popup->ListIndex(5);
    at.popup->SetColorPal(PAL8x8);
    EXPECT_EQ(at.popup->ListIndex(), 0);
    EXPECT_THAT(at.Selected(), IsEmpty());
    at.popup->Count(7);
    at.popup->SetColorPal(PAL8x8); // ends the virtual mode
    EXPECT_EQ(at.Data(64).IconBackColor, 0);
}

TEST(xPopupPalettes, TheOpenGridShowsItsColoursInBoxesWithALineAround) {
    PopupDesktop at;
    at.popup->SetColorPal(PAL8x2);
    at.Open();
    EXPECT_EQ(at.ClientRect(), (tvok_Rect{0, 0, 8 * 17 + 1, 2 * 17 + 1}));
    const std::vector<std::uint32_t> first{0xFFFFFF, 0xFFFF00, 0xFF00FF, 0xFF0000,
                                           0x00FFFF, 0x00FF00, 0x0000FF, 0x808080};
    for (std::size_t i = 0; i < first.size(); ++i)
        EXPECT_EQ(at.PixelAt(static_cast<std::int32_t>(i) * 17 + 9, 9), first[i]) << i;
    EXPECT_EQ(at.PixelAt(0, 0), 0xC0C0C0u);
    EXPECT_EQ(at.PixelAt(1, 1), 0x646464u) << "the box's border, in the colour of window frames";
}

// System colours.

const std::vector<const char*> cEnglish{"Scroll Bar",
                                        "DeskTop",
                                        "Active Title Bar",
                                        "Inactive Title Bar",
                                        "Menu Bar",
                                        "Window Background",
                                        "Window Frame",
                                        "Menu Text",
                                        "Window Text",
                                        "Active Title Bar Text",
                                        "Active Border",
                                        "Inactive Border",
                                        "Application Workspace",
                                        "Highlight",
                                        "Highlight Text",
                                        "Button Face",
                                        "Button Shadow",
                                        "Disabled Text",
                                        "Buttton Text",
                                        "Inactive Title Bar Text",
                                        "Button Highlight",
                                        "Button Dark Shadow",
                                        "Button Light Shadow",
                                        "ToolTip Text",
                                        "Tooltip Background"};

TEST(xPopupPalettes, TheSystemColoursStandWithTheirNamesInTheirOrder) {
    PopupDesktop at;
    at.popup->SetColorPal(PAL_SYSCOLOR);
    ASSERT_EQ(at.popup->Count(), 25);
    for (std::int32_t i = 1; i <= 25; ++i) {
        const qrosterdata expected{.text = cEnglish[static_cast<std::size_t>(i - 1)],
                                   .IconBackColor = SystemColor(i - 1),
                                   .IconPos = -62452,
                                   .bColor = 0xFFFFFF,
                                   .fcolor = 0,
                                   .vflag = static_cast<std::int32_t>(0x8000000C)};
        EXPECT_EQ(at.Data(i), expected) << i;
    }
}

TEST(xPopupPalettes, TheListOfSystemColoursSetsItsLooksAndLeavesTheGridLines) {
    PopupDesktop at;
    at.popup->GridlineOnBorder(true);
    at.popup->GridlineColor(0x111111);
    at.popup->HeadWidthEx(7);
    at.popup->xn(4);
    at.popup->Font()->Size(20);
    at.popup->SetColorPal(PAL_SYSCOLOR);
    EXPECT_EQ(at.popup->HeadWidthEx(), 0);
    EXPECT_EQ(at.popup->GridlineWidth(), 0);
    EXPECT_TRUE(at.popup->GridlineOnBorder());
    EXPECT_EQ(at.popup->GridlineColor(), 0x111111);
    EXPECT_EQ(at.popup->CX_TEXT(), 19);
    EXPECT_EQ(at.popup->BackColor(), 0xFFFFFF);
    EXPECT_EQ(at.popup->IconBorderColor(), 0);
    EXPECT_EQ(at.popup->xn(), 1);
    EXPECT_EQ(at.popup->yn(), 8);
    EXPECT_EQ(at.popup->SelectedColor(), cHighlight);
    EXPECT_EQ(at.popup->ItemHeight(), at.popup->TextHeight() + 4);
    EXPECT_EQ(at.popup->IconPos(), 0x2020000);
    at.popup->SetParentRect({100, 100, 110, 110});
    at.popup->ItemWidth(1);
    at.Open();
    EXPECT_GT(at.ClientRect().Right, 120) << "the texts have been measured";
}

std::string NameIn(const char* language, std::int32_t color) {
    DesktopOptions options;
    options.display = DesktopOptions::Display::Headless;
    options.language = language;
    tvok::Desktop desktop(options);
    auto& popup = desktop.AddForm("", 10, 10).Add<xPopup>("p", {0, 0, 1, 1});
    return popup.GetColorDesc(color);
}

TEST(xPopupPalettes, NamesComeInTheUsersLanguage) {
    EXPECT_EQ(NameIn("en", SystemColor(13)), "Highlight");
    EXPECT_EQ(NameIn("zh_TW", SystemColor(13)), "控制項中選取項目的背景色彩");
    EXPECT_EQ(NameIn("zh_CN", SystemColor(13)), "控制项中选取项目的背景色彩");
    EXPECT_EQ(NameIn("de", SystemColor(0)), "Scroll Bar");
}

TEST(xPopupPalettes, ThePaletteCarriesTheNamesOfTheLanguage) {
    DesktopOptions options;
    options.display = DesktopOptions::Display::Headless;
    options.language = "zh_TW";
    tvok::Desktop desktop(options);
    auto& popup = desktop.AddForm("", 10, 10).Add<xPopup>("p", {0, 0, 1, 1});
    popup.SetColorPal(PAL_SYSCOLOR);
    qrosterdata item;
    popup.GetData(2, item);
    EXPECT_EQ(item.text, "桌面色彩");
    EXPECT_EQ(item.IconBackColor, SystemColor(1));
}

/// Strings of its own: a list that ends after three values, one of which has no name.
class FewStrings : public PassedServices, host::StringResources {
public:
    const host::StringResources& StringResources() const override { return *this; }

private:
    std::string LoadResString(std::int32_t number) const override {
        switch (number) {
        case 100: return " &H80000003& ";
        case 101: return "&HFF&";
        case 102: return "12";
        case 103: return "   ";
        case 104: return "never read";
        case 1000: return "  trimmed ";
        case 1002: return "twelve";
        case 1003: return "never read";
        case 1255: return " as it stands ";
        default: return {};
        }
    }
};

TEST(xPopupPalettes, TheListEndsWithTheFirstEmptyValueAndLeavesOutWhatHasNoName) {
    PopupDesktop at;
    const FewStrings strings;
    at.popup->SetColorPal(PAL_SYSCOLOR);
    EXPECT_THAT(at.Texts(), ElementsAre("trimmed", "twelve"));
    EXPECT_THAT(Colors(at, 1, 2), ElementsAre(SystemColor(3), 12));
    EXPECT_EQ(at.popup->GetColorDesc(SystemColor(255)), " as it stands ");
}

TEST(xPopupPalettes, AColourIsDescribedByItsNameOrByEightDigits) {
    PopupDesktop at;
    EXPECT_EQ(at.popup->GetColorDesc(cWindowBackground), "Window Background");
    EXPECT_EQ(at.popup->GetColorDesc(SystemColor(18)), "Buttton Text");
    EXPECT_EQ(at.popup->GetColorDesc(SystemColor(24)), "Tooltip Background");
    EXPECT_EQ(at.popup->GetColorDesc(SystemColor(25)), "");
    EXPECT_EQ(at.popup->GetColorDesc(-1), "") << "index 255";
    EXPECT_EQ(at.popup->GetColorDesc(static_cast<std::int32_t>(0x80123405)), "Window Background");
    EXPECT_EQ(at.popup->GetColorDesc(255), "&H000000FF");
    EXPECT_EQ(at.popup->GetColorDesc(65535), "&H0000FFFF");
    EXPECT_EQ(at.popup->GetColorDesc(0), "&H00000000");
    EXPECT_EQ(at.popup->GetColorDesc(INT32_MAX), "&H7FFFFFFF");
}

// Numbers.

TEST(xPopupNumbers, AreListedWithTheirTextAndValue) {
    PopupDesktop at({"gone"});
    at.popup->SetNS(-2, 2);
    EXPECT_THAT(at.Texts(), ElementsAre("-2", "-1", "0", "1", "2"));
    for (std::int32_t i = 1; i <= 5; ++i) {
        EXPECT_EQ(at.Data(i).ItemData, i - 3);
        EXPECT_EQ(at.Data(i).bColor, 0xFFFFFF);
        EXPECT_EQ(at.Data(i).fcolor, 0);
        EXPECT_EQ(at.Data(i).IconPos, -62452);
        EXPECT_EQ(at.Data(i).vflag, vflag::InUse);
    }
}

TEST(xPopupNumbers, SetTheLooksOfAPlainList) {
    PopupDesktop at;
    at.popup->xn(5);
    at.popup->SetNS(1, 2);
    EXPECT_EQ(at.popup->CX_TEXT(), 2);
    EXPECT_EQ(at.popup->GridlineWidth(), 0);
    EXPECT_EQ(at.popup->BackColor(), 0xFFFFFF);
    EXPECT_EQ(at.popup->IconBorderColor(), 0);
    EXPECT_EQ(at.popup->xn(), 1);
    EXPECT_EQ(at.popup->yn(), 8);
    EXPECT_EQ(at.popup->SelectedColor(), cHighlight);
    EXPECT_EQ(at.popup->IconPos(), 0);
    EXPECT_EQ(at.popup->ItemHeight(), at.popup->TextHeight() + 4);
}

TEST(xPopupNumbers, TheWrongWayRoundTheListIsEmptyAndDoesNotOpen) {
    PopupDesktop at({"gone"});
    at.popup->SetNS(3, 1);
    EXPECT_EQ(at.popup->Count(), 0);
    at.popup->Popup();
    EXPECT_FALSE(at.IsOpen());
    EXPECT_THAT(at.story, IsEmpty());
}

TEST(xPopupNumbers, EndWithTheBoundAlsoAtTheEndOf16Bits) {
    PopupDesktop at;
    at.popup->SetNS(32765, 32767);
    EXPECT_THAT(at.Texts(), ElementsAre("32765", "32766", "32767"));
    at.popup->SetNS(-32768, -32767);
    EXPECT_THAT(at.Texts(), ElementsAre("-32768", "-32767"));
}

TEST(xPopupNumbers, ABoundBeyond16BitsGivesNone) {
    PopupDesktop at;
    at.popup->SetNS(1, 32768);
    EXPECT_EQ(at.popup->Count(), 0);
    at.popup->SetNS(-32769, 1);
    EXPECT_EQ(at.popup->Count(), 0);
    EXPECT_EQ(at.popup->CX_TEXT(), 2) << "the looks are set all the same";
}

/// The width that a popup of one column opens with when nothing but its texts asks for one.
std::int32_t WidthOfTexts(PopupDesktop& at) {
    at.popup->ItemWidth(1);
    at.popup->SetParentRect({100, 100, 101, 101});
    at.Open();
    const std::int32_t width = at.WindowRect().Right - at.WindowRect().Left;
    at.desktop.Key(host::VK_ESCAPE);
    return width;
}

TEST(xPopupNumbers, AreAsWideAsIfEachHadBeenMeasuredAfterAllBeforeIt) {
    for (const auto& [from, to] : {std::pair{-3, 4}, {9, 11}, {-1000, 12}, {32766, 32767}}) {
        PopupDesktop at;
        at.popup->SetNS(from, to);
        const std::int32_t width = WidthOfTexts(at);
        PopupDesktop plain;
        plain.popup->SetNS(from, from - 1); // the looks
        for (std::int32_t i = from; i <= to; ++i) {
            plain.popup->AddItem({.text = std::to_string(i)});
            plain.popup->CalTextWidth();
        }
        EXPECT_EQ(width, WidthOfTexts(plain)) << from << " to " << to;
    }
}

TEST(xPopupNumbers, MeasureEachNumberOnce) {
    PopupDesktop at;
    const auto trace = at.desktop.Trace([&] { at.popup->SetNS(1, 300); });
    EXPECT_EQ(std::count_if(trace.begin(), trace.end(),
                            [](const std::string& line) { return line.starts_with("DrawTextA"); }),
              300);
}

TEST(xPopupNumbers, AnEmptyListKeepsTheMeasuredWidth) {
    PopupDesktop at({"a text that is rather wide"});
    at.popup->CalTextWidth();
    at.popup->SetNS(2, 1);
    at.Add({"x"});
    EXPECT_GT(WidthOfTexts(at), 150);
}

} // namespace
} // namespace tvok::test
