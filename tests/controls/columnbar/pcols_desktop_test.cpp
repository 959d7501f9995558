// A column bar on a desktop, by real input; what it looks like; and handlers that end it.
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/TestDesktop.h"

namespace tvok::test {
namespace {

using desktop::MouseButton;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A bar of 300 x 22 with these columns, without a border.
pcols& MakeBar(TestDesktop& desktop, std::initializer_list<std::int32_t> widths) {
    auto& bar = desktop.form().Add<pcols>("bar", Placement{20, 20, 300, 22});
    bar.BorderStyle(0);
    for (const auto width : widths) bar.Add(0, "column " + std::to_string(bar.Count() + 1), width);
    bar.Refresh();
    desktop.Pump();
    return bar;
}

struct Presses {
    std::vector<std::int32_t> columns;
    explicit Presses(pcols& bar) {
        bar.events.MouseDown = [this](std::int32_t column, std::int32_t) { columns.push_back(column); };
    }
    std::vector<std::int32_t> Take() { return std::exchange(columns, {}); }
};

std::int16_t PointerOf(TestDesktop& desktop, const pcols& bar) {
    return desktop.form().ComponentOf(bar).MousePointer();
}

TEST(pcolsDesktop, EveryPixelOfTheBarIsADividerAColumnTheEmptyPartOrNothing) {
    TestDesktop desktop;
    auto& bar = MakeBar(desktop, {50, 60, 70});
    Presses presses(bar);
    for (std::int32_t x = 0; x < 300; ++x) {
        desktop.Click(bar, x, 11);
        const auto raised = presses.Take();
        const bool divider = (x >= 48 && x <= 52) || (x >= 108 && x <= 112) || (x >= 178 && x <= 182);
        EXPECT_EQ(PointerOf(desktop, bar), divider ? 9 : 0) << x;
        const std::int32_t column = x < 47 ? 1 : x > 53 && x < 107 ? 2 : x > 113 && x < 177 ? 3 : 0;
        if (column > 0 || x > 183) {
            EXPECT_THAT(raised, ElementsAre(column)) << x;
        } else {
            EXPECT_THAT(raised, IsEmpty()) << x;
        }
    }
    EXPECT_EQ(bar.HeaderWidths(), "50-60-70");
}

TEST(pcolsDesktop, ADraggedDividerSharesTheWidthOfTwoColumns) {
    TestDesktop desktop;
    auto& bar = MakeBar(desktop, {100, 80, 60});
    desktop.Drag(bar, {101, 10}, {121, 60});
    EXPECT_EQ(bar.HeaderWidths(), "120-60-60");
    desktop.Drag(bar, {178, 10}, {-200, 10});
    EXPECT_EQ(bar.HeaderWidths(), "120-10-110") << "the drag goes on outside of the bar";
    desktop.Drag(bar, {240, 10}, {620, 10});
    EXPECT_EQ(bar.HeaderWidths(), "120-10-170");
    desktop.MoveTo(bar, 150, 10);
    EXPECT_EQ(bar.HeaderWidths(), "120-10-170");
}

TEST(pcolsDesktop, ARightPressOnADividerStartsADragThatFollowsWithoutAButton) {
    TestDesktop desktop;
    auto& bar = MakeBar(desktop, {100, 80});
    desktop.RightClick(bar, 100, 10);
    desktop.MoveTo(bar, 110, 10);
    desktop.MoveTo(bar, 130, 10);
    EXPECT_EQ(bar.HeaderWidths(), "130-50");
    desktop.Click(bar, 20, 10);
    desktop.MoveTo(bar, 60, 10);
    EXPECT_EQ(bar.HeaderWidths(), "20-160") << "the click's move counted, its release ended the drag";
}

TEST(pcolsDesktop, ADragPaintsWhatARepaintWould) {
    TestDesktop desktop;
    auto& bar = MakeBar(desktop, {100, 80, 60});
    bar.Appearance(0);
    for (const std::int32_t to : {150, 30, 400, 101}) {
        desktop.Drag(bar, {bar.GetData(1).hWidth, 10}, {to, 10}, 3);
        const auto dragged = desktop.Pixels(bar);
        host::platform().InvalidateRect(bar.hwnd(), nullptr, true);
        desktop.Pump();
        EXPECT_EQ(desktop.Pixels(bar) == dragged, true) << to;
    }
}

TEST(pcolsDesktop, ADragStepMakesTheCallsOfOneRefresh) {
    TestDesktop desktop;
    auto& bar = MakeBar(desktop, {100, 80, 60});
    desktop.Press(bar, 100, 10);
    const auto drawing = [&](const std::function<void()>& action) {
        std::vector<std::string> calls = desktop.Trace(action);
        std::erase_if(calls, [](const std::string& call) {
            return !call.starts_with("DrawFrameControl") && !call.starts_with("ExtTextOutA");
        });
        return calls;
    };
    const auto step = drawing([&] { desktop.MoveTo(bar, 120, 10); });
    const auto refresh = drawing([&] { bar.Refresh(); });
    EXPECT_EQ(step, refresh);
    EXPECT_EQ(step.size(), 7u);
    desktop.Release();
}

TEST(pcolsDesktop, ANarrowerControlKeepsWidthsUntilTheNextColumn) {
    TestDesktop desktop;
    auto& bar = MakeBar(desktop, {100, 80, 60});
    desktop.form().Place(bar, {20, 20, 150, 22});
    EXPECT_EQ(bar.HeaderWidths(), "100-80-60");
    bar.Add(0, "new", 30);
    EXPECT_EQ(bar.HeaderWidths(), "66-46-26-10");
}

TEST(pcolsDesktop, KeysAndTheWheelDoNothing) {
    TestDesktop desktop;
    auto& bar = MakeBar(desktop, {100, 80});
    desktop.Focus(bar);
    const auto before = desktop.Pixels(bar);
    for (const std::int32_t key : {host::VK_LEFT, host::VK_RIGHT, host::VK_SPACE, host::VK_RETURN})
        desktop.Key(key);
    desktop.MoveTo(bar, 20, 10);
    desktop.Wheel(-2);
    EXPECT_EQ(desktop.Pixels(bar) == before, true);
}

// Handlers.

struct Deed {
    const char* name;
    std::function<void(TestDesktop&, pcols&)> act;
    bool ends;
};

class pcolsInMouseDown : public ::testing::TestWithParam<Deed> {};

TEST_P(pcolsInMouseDown, NothingDangles) {
    const Deed& deed = GetParam();
    int calls = 0;
    TestDesktop desktop;
    auto& bar = MakeBar(desktop, {100, 80, 60});
    bar.events.MouseDown = [&, act = deed.act](std::int32_t, std::int32_t) {
        if (++calls == 1) act(desktop, bar);
    };
    desktop.Press(bar, 20, 10);
    if (!deed.ends) {
        desktop.MoveTo(bar, 30, 10);
        desktop.Release();
        desktop.Drag(bar, {50, 10}, {70, 10});
        bar.Refresh();
    }
    desktop.Pump();
    EXPECT_GE(calls, 1);
}

INSTANTIATE_TEST_SUITE_P(
    EachDeed, pcolsInMouseDown,
    ::testing::Values(
        Deed{"RemovesTheControl", [](TestDesktop& d, pcols& bar) { d.form().Remove(bar); }, true},
        Deed{"ClosesTheForm", [](TestDesktop& d, pcols&) { d.form().Close(); }, true},
        Deed{"ClearsTheColumns", [](TestDesktop&, pcols& bar) { bar.Clear(); }, false},
        Deed{"AddsColumns",
             [](TestDesktop&, pcols& bar) {
                 for (int i = 0; i < 100; ++i) bar.Add(-1, "new", 40);
             },
             false},
        Deed{"SetsANegativeCount", [](TestDesktop&, pcols& bar) { quietly([&] { bar.Count(-2); }); }, false},
        Deed{"DropsTheHandler", [](TestDesktop&, pcols& bar) { bar.events.MouseDown = nullptr; }, false},
        Deed{"ResizesTheControl",
             [](TestDesktop& d, pcols& bar) {
                 d.form().Place(bar, {0, 0, 40, 10});
             },
             false},
        Deed{"RunsTheMessagesThatWait", [](TestDesktop& d, pcols&) { d.Pump(); }, false}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(pcolsDesktop, WhatAHandlerThrowsReachesWhoeverRunsTheMessages) {
    TestDesktop desktop;
    auto& bar = MakeBar(desktop, {100, 80});
    bar.events.MouseDown = [](std::int32_t, std::int32_t) { throw std::runtime_error("a host's own"); };
    EXPECT_THROW(desktop.Press(bar, 20, 10), std::runtime_error);
    bar.events.MouseDown = nullptr;
    desktop.Release();
    desktop.Drag(bar, {100, 10}, {120, 10});
    EXPECT_EQ(bar.HeaderWidths(), "120-60");
}

TEST(pcolsDesktop, AnEndInTheMiddleOfADragLeavesTheFormInOrder) {
    TestDesktop desktop;
    auto& bar = MakeBar(desktop, {100, 80});
    auto& other = desktop.Roster({.place = {20, 60, 100, 100}}, {"ant", "bee"});
    desktop.Press(bar, 100, 10);
    desktop.form().Remove(bar);
    desktop.MoveTo(other, 20, 28);
    desktop.Release();
    desktop.Click(other, 20, 28);
    EXPECT_EQ(other.ListIndex(), 2);
}

// Form files.

TEST(pcolsFormFile, KeepsTheSettingsAndNoColumns) {
    const std::string file = testing::TempDir() + "pcols.form";
    {
        TestDesktop desktop;
        auto& bar = MakeBar(desktop, {100, 80});
        bar.BackColor(0x123456);
        bar.Appearance(1);
        bar.FontTransparent(false);
        bar.Font()->Size(14);
        desktop.form().Save(file);
    }
    TestDesktop desktop;
    desktop.form().Load(file);
    auto* bar = desktop.form().Find<pcols>("bar");
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar->BackColor(), 0x123456);
    EXPECT_EQ(bar->Appearance(), 1);
    EXPECT_EQ(bar->BorderStyle(), 0);
    EXPECT_FALSE(bar->FontTransparent());
    EXPECT_EQ(bar->Font()->Size(), 14);
    EXPECT_EQ(bar->Count(), 0);
    EXPECT_EQ(desktop.form().PlacementOf(*bar).width, 300);
    bar->Add(0, "again", 70);
    bar->HeaderWidths("90");
    EXPECT_EQ(bar->HeaderWidths(), "90");
    std::filesystem::remove(file);
}

// Pictures.

pcols& FullBar(TestDesktop& desktop) {
    auto& bar = desktop.form().Add<pcols>("bar", Placement{0, 0, 260, 24});
    bar.Add(0, "Name", 90);
    bar.Add(0, "Size", 50, "", 1);
    bar.Add(0, "A caption that is cut", 60, "", 2, 0x0000C0);
    bar.Add(0, "日付", 36, "", 2);
    bar.Refresh();
    return bar;
}

void ExpectBar(const Theme& theme) {
    TestDesktop desktop(theme);
    auto& bar = FullBar(desktop);
    desktop.Drag(bar, {90, 10}, {80, 10});
    ExpectPictureWithFrame("columnbar/bar-" + theme.name, desktop, bar);
}

TEST(pcolsPictures, ABarInTheClassicTheme) {
    ExpectBar(Theme::Classic());
}
TEST(pcolsPictures, ABarInTheDarkTheme) {
    ExpectBar(Theme::Dark());
}
TEST(pcolsPictures, ABarInHighContrast) {
    ExpectBar(Theme::HighContrast());
}

TEST(pcolsPictures, StylesAreForAllCaptionsAndARemovedColumnLeavesItsRoomToTheEmptyButton) {
    TestDesktop desktop;
    auto& bar = FullBar(desktop);
    bar.lFlag(vflag::Bold | vflag::Italic | vflag::Underline);
    bar.Remove(2);
    bar.Refresh();
    ExpectPicture("columnbar/styles", desktop, bar);
}

TEST(pcolsPictures, AtDesignTimeItIsAFrameWithTheName) {
    TestDesktop desktop;
    desktop.form().UserMode(false);
    auto& bar = desktop.form().Add<pcols>("bar1", Placement{0, 0, 120, 24});
    desktop.Pump();
    EXPECT_EQ(desktop.PixelAt(bar, 60, 10), 0xFFFFFFu);
    ExpectPicture("columnbar/design", desktop, bar);
}

} // namespace
} // namespace tvok::test
