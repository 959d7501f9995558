// The pixels of qRoster in a window: covered, uncovered, scrolled, and the same after a full repaint.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "tests/controls/flatlist/RosterWindow.h"
#include "tests/support/TestDesktop.h"

namespace tvok::test {
namespace {

using namespace host;

TEST(qRosterDesktopPictures, WhatAnotherWindowCoveredComesBackAsItWas) {
    TestDesktop desktop;
    auto& list = desktop.Roster({.MultiSelect = 1}, Items(60));
    list.ListIndex(3);
    list.Selecteded(5, 7);
    const auto before = desktop.Pixels(list);
    auto& cover = desktop.Roster({.place = {40, 30, 100, 90}}, {"cover"});
    desktop.form().ComponentOf(cover).ZOrder(0);
    desktop.Pump();
    EXPECT_NE(desktop.Pixels(list), before);
    desktop.form().Remove(cover);
    desktop.Pump();
    EXPECT_EQ(desktop.Pixels(list), before);
}

TEST(qRosterDesktopPictures, ScrollingAPartlyCoveredListIsRightOnceTheCoverGoes) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, Items(60));
    auto& cover = desktop.Roster({.place = {40, 30, 100, 90}}, {"cover"});
    desktop.form().ComponentOf(cover).ZOrder(0);
    desktop.Pump();
    const auto bar = ClientWidth(desktop, list) + 8;
    for (int i = 0; i < 7; ++i) desktop.Click(list, bar, 195);
    desktop.Click(list, bar, 5);
    const auto covered = desktop.Pixels(list);
    list.PaintAll();
    EXPECT_EQ(desktop.Pixels(list), covered);
    desktop.form().Remove(cover);
    desktop.Pump();
    const auto uncovered = desktop.Pixels(list);
    list.PaintAll();
    EXPECT_EQ(desktop.Pixels(list), uncovered);
}

TEST(qRosterDesktopPictures, ScrollingBeforeAnUncoveredPartWasPaintedDoesNotSpreadWhatStoodThere) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, Items(60));
    auto& cover = desktop.Roster({.place = {40, 30, 100, 90}}, {"cover"});
    desktop.form().ComponentOf(cover).ZOrder(0);
    desktop.Pump();
    desktop.form().Remove(cover); // the part is invalid, and no message has run
    list.ListIndex(13);
    desktop.Pump();
    const auto scrolled = desktop.Pixels(list);
    list.PaintAll();
    EXPECT_EQ(desktop.Pixels(list), scrolled);
}

TEST(qRosterDesktopPictures, ScrollingAListThatReachesBeyondItsFormIsRightOnceTheFormGrows) {
    TestDesktop desktop;
    auto& list = desktop.Roster({.place = {500, 400, 300, 200}}, Items(60));
    list.ListIndex(25);
    list.ListIndex(3);
    list.ListIndex(31);
    desktop.form().Size(900, 700);
    desktop.Pump();
    const auto grown = desktop.Pixels(list);
    list.PaintAll();
    EXPECT_EQ(desktop.Pixels(list), grown);
}

struct Look {
    const char* name;
    std::int32_t xn;
    std::int32_t GridlineWidth;
    bool GridlineOnBorder;
    std::int32_t HeadWidthEx;
    const char* tabs;
};

void PrintTo(const Look& look, std::ostream* out) {
    *out << look.name;
}

class qRosterScrolledPicture : public ::testing::TestWithParam<Look> {};

TEST_P(qRosterScrolledPicture, EqualsAFullRepaintPixelForPixel) {
    const auto& look = GetParam();
    TestDesktop desktop;
    auto& list = desktop.Roster({.xn = look.xn,
                                 .MultiSelect = 1,
                                 .GridlineWidth = look.GridlineWidth,
                                 .GridlineOnBorder = look.GridlineOnBorder,
                                 .place = {10, 10, 331, 207}});
    list.HeadWidthEx(look.HeadWidthEx);
    list.TabStopSettingStr(look.tabs);
    std::mt19937 random(20240 + static_cast<unsigned>(look.xn));
    const auto below = [&](std::uint32_t limit) { return static_cast<std::int32_t>(random() % limit); };
    for (int i = 1; i <= 200; ++i) {
        const std::int32_t flags = (i % 3 == 0 ? vflag::IconBox | vflag::IconBorder : 0) |
                                   (i % 5 == 0 ? vflag::RightAligned : 0) | (i % 7 == 0 ? vflag::Bold : 0) |
                                   (i % 11 == 0 ? vflag::TextAtEdge : 0);
        list.AddItem(0, {.text = "item\t" + std::to_string(i) + "\tend",
                         .bColor = below(0x1000000),
                         .vflag = flags | (i % 4 == 0 ? vflag::Selected : 0)});
    }
    list.Refresh();
    desktop.Focus(list);
    const auto bar = ClientWidth(desktop, list) + 8;
    for (int step = 0; step < 60; ++step) {
        switch (below(6)) {
        case 0: desktop.Wheel(below(9) - 4); break;
        case 1: desktop.Click(list, bar, below(2) ? 5 : 202); break;
        case 2: desktop.Click(list, bar, 20 + below(160)); break;
        case 3: list.ListIndex(1 + below(200)); break;
        case 4: desktop.Key(below(2) ? VK_NEXT : VK_PRIOR); break;
        default: desktop.Drag(list, {bar, 20 + below(160)}, {bar, below(207)}, 3); break;
        }
        desktop.Pump();
        const auto scrolled = desktop.Pixels(list);
        list.PaintAll();
        ASSERT_EQ(desktop.Pixels(list) == scrolled, true) << "after step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Looks, qRosterScrolledPicture,
    ::testing::Values(Look{"Plain", 1, 0, false, 0, ""}, Look{"Lines", 1, 1, false, 0, ""},
                      Look{"Border", 1, 1, true, 0, "60,60"}, Look{"ThickBorder", 2, 3, true, 0, ""},
                      Look{"ThreeColumns", 3, 1, false, 0, "40"}, Look{"HeadBand", 2, 1, false, 30, ""},
                      Look{"HeadBandAndBorder", 1, 2, true, 12, "60,60"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(qRosterDesktopPictures, EveryPaintReachesTheWindowAndNothingBeyondIt) {
    TestDesktop desktop;
    desktop.form().BackColor(0x112233);
    auto& list = desktop.Roster({.xn = 5, .place = {50, 50, 200, 100}}, Items(60));
    auto& probe = desktop.Roster({.place = {260, 50, 50, 100}}, {"neighbour"});
    const auto neighbour = desktop.Pixels(probe);
    for (int i = 1; i <= 60; i += 7) list.ListIndex(i); // five columns of 100 in 200 pixels
    list.HeadWidthEx(300);
    list.Refresh();
    EXPECT_EQ(desktop.Pixels(probe), neighbour);
}

} // namespace
} // namespace tvok::test
