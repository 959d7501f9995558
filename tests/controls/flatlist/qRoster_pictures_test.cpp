// What a list looks like, pixel by pixel: the pictures in tests/golden/lists.
#include <cstdlib>

#include <gtest/gtest.h>

#include "tests/support/TestDesktop.h"
#include "tvok/engine/dgi.h"

namespace tvok::test {
namespace {

/// Two images of 16 x 16: a blue disc, and a red diamond that fades to its corners.
std::vector<std::uint32_t> Icons() {
    std::vector<std::uint32_t> pixels(512, 0);
    for (std::int32_t y = 0; y < 16; ++y)
        for (std::int32_t x = 0; x < 16; ++x) {
            const std::int32_t across = 2 * x - 15, down = 2 * y - 15;
            const auto place = static_cast<std::size_t>(16 * y + x);
            const std::int32_t far = std::abs(across) + std::abs(down);
            if (across * across + down * down <= 200) pixels[place] = 0xFF3366CC;
            if (far < 16) pixels[256 + place] = static_cast<std::uint32_t>(255 - 12 * far) << 24 | 0xCC2020;
        }
    return pixels;
}

/// The context is left as it was found.
void DrawNumber(std::int32_t hDC, std::int32_t number, tvok_Rect place) {
    host::Platform& platform = host::platform();
    const auto font = platform.SelectObject(hDC, platform.GetStockObject(host::DEFAULT_GUI_FONT));
    const auto mode = platform.SetBkMode(hDC, host::TRANSPARENT_BK);
    const auto color = platform.SetTextColor(hDC, platform.GetSysColor(host::COLOR_BTNTEXT));
    platform.DrawTextA(hDC, std::to_string(number).c_str(), -1, place,
                       host::DT_RIGHT | host::DT_VCENTER | host::DT_SINGLELINE);
    platform.SetTextColor(hDC, color);
    platform.SetBkMode(hDC, mode);
    platform.SelectObject(hDC, font);
}

/// A list with everything that a cell can have: icons, head band with a number, grid lines, tab columns,
/// font styles, colours of its own, alignment.
qRoster& FullList(TestDesktop& desktop) {
    auto& list = desktop.Roster({.MultiSelect = 1, .GridlineOnBorder = true, .place = {0, 0, 300, 156}});
    list.BorderStyle(1);
    list.IconHandle(desktop.desktop().AddImageList(Icons(), 16));
    list.CX_TEXT(22);
    list.HeadWidthEx(24);
    list.HeadExBackColor(cButtonFace);
    list.TabStopSettingStr("110,60");
    list.events.ExDraw = [](std::int32_t&, std::int32_t index, const std::string&, std::int32_t hDC,
                            std::int32_t, std::int32_t left, std::int32_t top, std::int32_t right,
                            std::int32_t bottom) {
        DrawNumber(hDC, index, {left, top, right - 4, bottom});
    };
    constexpr std::int32_t icon = vflag::IconBox | vflag::IconOnBackground | vflag::HostHead;
    list.AddItem(0, {.text = "Apples\t120\tA 1", .IconID = 1, .vflag = icon});
    list.AddItem(0, {.text = "Bananas and more\t7\tA 2", .IconID = 2, .vflag = icon});
    list.AddItem(0, {.text = "Cherries\t3000\tB", .IconID = 1, .vflag = icon | vflag::Bold});
    list.AddItem(0, {.text = "Dates\t0\tB 2",
                     .IconID = 2,
                     .IconBackColor = 0xC0FFC0,
                     .vflag = vflag::IconBox | vflag::IconBorder | vflag::HostHead});
    list.AddItem(0, {.text = "Elder\t1\tC", .bColor = 0xC0FFFF, .fcolor = 0x0000C0});
    list.AddItem(0, {.text = "right", .vflag = vflag::RightAligned | vflag::Underline});
    for (const char* text : {"Grapes", "Hazelnuts\t9", "Icaco", "Jujubes", "Kiwis"})
        list.AddItem(0, {.text = text, .vflag = vflag::Italic});
    list.Refresh();
    return list;
}

void ExpectFullList(const Theme& theme) {
    TestDesktop desktop(theme);
    auto& list = FullList(desktop);
    desktop.Focus(list);
    list.Selecteded(2, 4);
    list.ListIndex(3);
    desktop.Pump();
    ExpectPictureWithFrame("lists/full-" + theme.name, desktop, list);
}

TEST(qRosterPictures, EveryPartOfACellInTheClassicTheme) {
    ExpectFullList(Theme::Classic());
}

TEST(qRosterPictures, EveryPartOfACellInTheDarkTheme) {
    ExpectFullList(Theme::Dark());
}

TEST(qRosterPictures, EveryPartOfACellInHighContrast) {
    ExpectFullList(Theme::HighContrast());
}

TEST(qRosterPictures, ASelectionWithoutTheFocusHasNoFocusRectangle) {
    TestDesktop desktop;
    auto& list =
        desktop.Roster({.xn = 2, .GridlineWidth = 2, .place = {0, 0, 200, 96}}, {"ant", "bee", "cat"});
    list.ListIndex(2);
    desktop.FocusAway();
    ExpectPicture("lists/unfocused", desktop, list);
}

/// Forty items of which six fit, and the middle of them in view.
qRoster& ScrolledList(TestDesktop& desktop) {
    auto& list = desktop.Roster({.GridlineWidth = 0, .place = {0, 0, 180, 120}});
    list.BorderStyle(1);
    for (int item = 1; item <= 40; ++item) list.AddItem(0, {.text = "item " + std::to_string(item)});
    list.Refresh();
    list.ListIndex(20);
    desktop.Pump();
    return list;
}

TEST(qRosterPictures, TheThumbStandsWhereThePageIs) {
    TestDesktop desktop;
    ExpectPictureWithFrame("lists/scrolled", desktop, ScrolledList(desktop));
}

TEST(qRosterPictures, AHeldArrowOfTheBarIsSunk) {
    TestDesktop desktop(Theme::Dark());
    auto& list = ScrolledList(desktop);
    desktop.Press(list, 170, 110);
    const auto held = desktop.PixelsWithFrame(list);
    ExpectPictureWithFrame("lists/arrow-held", desktop, list);
    desktop.Release();
    EXPECT_NE(desktop.PixelsWithFrame(list), held);
}

TEST(qRosterPictures, LatinGreekCyrillicHebrewAndArabicInOneList) {
    TestDesktop desktop;
    auto& list = desktop.Roster({.place = {0, 0, 300, 171}},
                                {"Ångström naïve Žižek ñandú", "Zalgo: a\u0301 e\u0308 o\u0302\u0323",
                                 "Ξεσκεπάζω την ψυχοφθόρα", "Съешь ещё этих мягких", "שלום עולם",
                                 "מחיר 1,250 ש״ח (abc)", "السلام عليكم", "left السعر ١٢٣ right", "a\tb"});
    qrosterdata item;
    list.GetData(7, item);
    item.vflag |= vflag::RightAligned;
    list.SetData(7, item);
    list.ListIndex(5);
    ExpectPicture("lists/scripts", desktop, list);
}

TEST(qRosterPictures, ChineseJapaneseAndKorean) {
    TestDesktop desktop(Theme::Classic(), cNotoSansCjk);
    auto& list = desktop.Roster({.place = {0, 0, 200, 76}}, {"永和九年，岁在癸丑", "いろはにほへと カタカナ",
                                                             "다람쥐 헌 쳇바퀴", "mixed 漢字 text"});
    list.ListIndex(2);
    ExpectPicture("lists/cjk", desktop, list);
}

} // namespace
} // namespace tvok::test
