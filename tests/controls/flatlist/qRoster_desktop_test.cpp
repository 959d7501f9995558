// qRoster in a window of the desktop: real messages, focus, capture and scroll bar.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/controls/flatlist/RosterWindow.h"
#include "tests/support/TestDesktop.h"

namespace tvok::test {
namespace {

using namespace host;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// Keeps every input event of a list as one line.
class EventLog {
public:
    explicit EventLog(qRoster& list) {
        const auto item = [this](const char* name) {
            return [this, name](std::int32_t index, qrosterdata& x) {
                lines_.push_back(std::string(name) + " " + std::to_string(index) + " " + x.text);
            };
        };
        const auto plain = [this](const char* name) {
            return [this, name](auto& first, auto&...) {
                lines_.push_back(std::string(name) + " " + std::to_string(first));
            };
        };
        list.events.Change = item("Change");
        list.events.Click = item("Click");
        list.events.DblClick = item("DblClick");
        list.events.MouseDown = plain("MouseDown");
        list.events.MouseUp = plain("MouseUp");
        list.events.KeyDown = plain("KeyDown");
        list.events.KeyUp = plain("KeyUp");
        list.events.KeyPress = plain("KeyPress");
    }
    std::vector<std::string> Take() { return std::exchange(lines_, {}); }

private:
    std::vector<std::string> lines_;
};

constexpr std::int32_t kRow = 19; // a row and its grid line

std::int32_t MiddleOf(std::int32_t row) {
    return (row - 1) * kRow + 9;
}

/// Texts painted by `action`, in order.
std::vector<std::string> Painted(TestDesktop& desktop, const std::function<void()>& action) {
    std::vector<std::string> texts;
    for (const auto& line : desktop.Trace(action)) {
        if (!line.starts_with("ExtTextOutA")) continue;
        const auto open = line.find('"');
        texts.push_back(line.substr(open + 1, line.rfind('"') - open - 1));
    }
    return texts;
}

/// Number of the item at the top of the page.
std::int32_t TopItem(TestDesktop& desktop, qRoster& list) {
    const auto texts = Painted(desktop, [&] { list.PaintAll(); });
    return texts.empty() ? 0 : std::stoi(texts.front().substr(texts.front().find(' ') + 1));
}

// Mouse.

TEST(qRosterDesktop, AClickRaisesChangeOnThePressAndClickOnTheRelease) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, {"ant", "bee", "cat"});
    desktop.Focus(list);
    list.ListIndex(1);
    EventLog log(list);
    desktop.Press(list, 50, MiddleOf(2));
    EXPECT_THAT(log.Take(), ElementsAre("Change 2 bee", "MouseDown 1"));
    desktop.Release();
    EXPECT_THAT(log.Take(), ElementsAre("Click 2 bee", "MouseUp 1"));
}

TEST(qRosterDesktop, MousePointsAreTwips) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, {"ant"});
    float x = 0, y = 0;
    list.events.MouseDown = [&](std::int16_t&, std::int16_t&, float& px, float& py) {
        x = px;
        y = py;
    };
    desktop.Press(list, 50, 9);
    EXPECT_FLOAT_EQ(x, 50 * services().Screen().TwipsPerPixelX());
    EXPECT_FLOAT_EQ(y, 9 * services().Screen().TwipsPerPixelY());
}

TEST(qRosterDesktop, ADoubleClickRaisesDblClickAndOneClick) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, {"ant", "bee"});
    desktop.Focus(list);
    EventLog log(list);
    desktop.DoubleClick(list, 50, MiddleOf(2));
    std::vector<std::string> lines = log.Take();
    std::erase_if(lines, [](const auto& line) { return line.starts_with("Mouse"); });
    EXPECT_THAT(lines, ElementsAre("Change 2 bee", "Click 2 bee", "DblClick 2 bee"));
}

TEST(qRosterDesktop, ARightClickTakesNoPartInSelection) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, {"ant", "bee"});
    list.ListIndex(1);
    EventLog log(list);
    desktop.RightClick(list, 50, MiddleOf(2));
    EXPECT_THAT(log.Take(), ElementsAre("MouseDown 2", "MouseUp 2"));
    EXPECT_EQ(list.ListIndex(), 1);
}

TEST(qRosterDesktop, TheMouseSelectsByHoveringWithHotTrackOnly) {
    TestDesktop desktop;
    auto& list = desktop.Roster({.HotTrack = true}, {"ant", "bee", "cat"});
    desktop.MoveTo(list, 50, MiddleOf(3));
    EXPECT_EQ(list.ListIndex(), 3);
    list.HotTrack(false);
    desktop.MoveTo(list, 50, MiddleOf(1));
    EXPECT_EQ(list.ListIndex(), 3);
}

TEST(qRosterDesktop, PressOnNoItemClearsAMultiSelection) {
    TestDesktop desktop;
    auto& list = desktop.Roster({.MultiSelect = 1}, {"ant", "bee", "cat"});
    desktop.Click(list, 50, MiddleOf(2));
    list.Selecteded();
    desktop.Click(list, 50, MiddleOf(7));
    EXPECT_THAT(SelectedItems(list), IsEmpty());
    EXPECT_EQ(list.ListIndex(), 2);
}

TEST(qRosterDesktop, ControlClickTogglesAndShiftClickSelectsARange) {
    TestDesktop desktop;
    auto& list = desktop.Roster({.MultiSelect = 1}, Items(9));
    desktop.Click(list, 50, MiddleOf(2));
    desktop.HoldKey(VK_CONTROL);
    desktop.Click(list, 50, MiddleOf(4));
    desktop.Click(list, 50, MiddleOf(6));
    EXPECT_THAT(SelectedItems(list), ElementsAre(2, 4, 6));
    desktop.Click(list, 50, MiddleOf(2));
    EXPECT_THAT(SelectedItems(list), ElementsAre(4, 6));
    desktop.LetGoKey(VK_CONTROL);
    desktop.HoldKey(VK_SHIFT);
    desktop.Click(list, 50, MiddleOf(3));
    EXPECT_THAT(SelectedItems(list), ElementsAre(2, 3, 4, 6));
    desktop.LetGoKey(VK_SHIFT);
    desktop.Click(list, 50, MiddleOf(5));
    EXPECT_THAT(SelectedItems(list), ElementsAre(5));
}

TEST(qRosterDesktop, ADragSelectsARangeInMultiModeAndScrollsOutside) {
    TestDesktop desktop;
    auto& list = desktop.Roster({.MultiSelect = 1, .place = {0, 50, 300, 200}}, Items(30));
    desktop.Press(list, 50, MiddleOf(9));
    desktop.MoveTo(list, 50, MiddleOf(10));
    EXPECT_THAT(SelectedItems(list), ElementsAre(9, 10));
    desktop.MoveTo(list, 50, 210);
    desktop.MoveTo(list, 51, 210);
    desktop.MoveTo(list, 50, 210);
    EXPECT_THAT(SelectedItems(list), ElementsAre(9, 10, 11, 12, 13));
    EXPECT_EQ(TopItem(desktop, list), 4);
    desktop.Release();
    EXPECT_EQ(TopItem(desktop, list), 4);
}

TEST(qRosterDesktop, ADragAboveTheListMovesUpOneStepForEachMessage) {
    TestDesktop desktop;
    auto& list = desktop.Roster({.place = {0, 50, 300, 200}}, Items(30));
    list.ListIndex(30);
    desktop.Press(list, 50, MiddleOf(1));
    const auto pressed = list.ListIndex();
    desktop.MoveTo(list, 50, -5);
    desktop.MoveTo(list, 51, -5);
    EXPECT_EQ(list.ListIndex(), pressed - 2);
    desktop.Release();
}

// Keys.

TEST(qRosterDesktop, KeysArriveWithTheFocusAndMoveTheCurrentItem) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, {"ant", "bee", "cat"});
    desktop.Focus(list);
    list.ListIndex(1);
    EventLog log(list);
    desktop.Key(VK_DOWN);
    EXPECT_THAT(log.Take(), ElementsAre("KeyDown 40", "Change 2 bee", "Click 2 bee", "KeyUp 40"));
    desktop.FocusAway();
    desktop.Key(VK_DOWN);
    EXPECT_THAT(log.Take(), IsEmpty());
}

TEST(qRosterDesktop, ALetterJumps) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, {"ant", "bee", "cat", "boa"});
    desktop.Focus(list);
    EventLog log(list);
    desktop.Type("b");
    EXPECT_THAT(log.Take(),
                ElementsAre("KeyDown 66", "Change 2 bee", "Click 2 bee", "KeyPress 98", "KeyUp 66"));
    desktop.Type("b");
    EXPECT_EQ(list.ListIndex(), 4);
}

TEST(qRosterDesktop, ShiftAndArrowsExtendARange) {
    TestDesktop desktop;
    auto& list = desktop.Roster({.MultiSelect = 1}, Items(9));
    desktop.Click(list, 50, MiddleOf(3));
    desktop.HoldKey(VK_SHIFT);
    desktop.Key(VK_DOWN);
    desktop.Key(VK_DOWN);
    desktop.LetGoKey(VK_SHIFT);
    EXPECT_THAT(SelectedItems(list), ElementsAre(3, 4, 5));
    desktop.Key(VK_DOWN);
    EXPECT_THAT(SelectedItems(list), ElementsAre(6));
}

// Focus.

TEST(qRosterDesktop, TheFocusMakesTheFirstItemCurrentAndDrawsItsRectangle) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, {"ant", "bee"});
    desktop.FocusAway();
    ASSERT_EQ(list.ListIndex(), 0);
    EXPECT_THAT(desktop.Trace([&] { desktop.Focus(list); }), Contains(HasSubstr("DrawFocusRect")));
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_THAT(desktop.Trace([&] { desktop.FocusAway(); }), Not(Contains(HasSubstr("DrawFocusRect"))));
}

TEST(qRosterDesktop, ThePictureWithoutTheFocusIsTheSameBeforeAndAfter) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, {"ant", "bee"});
    list.ListIndex(2);
    desktop.FocusAway();
    const auto before = desktop.Pixels(list);
    desktop.Focus(list);
    EXPECT_NE(desktop.Pixels(list), before);
    desktop.FocusAway();
    EXPECT_EQ(desktop.Pixels(list), before);
}

TEST(qRosterDesktop, SelectionStaysVisibleWithoutTheFocus) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, {"ant", "bee"});
    desktop.FocusAway();
    list.SelectedColor(0x00FF00);
    list.ListIndex(2);
    EXPECT_EQ(desktop.PixelAt(list, 250, MiddleOf(2)), 0x00FF00u);
    EXPECT_NE(desktop.PixelAt(list, 250, MiddleOf(1)), 0x00FF00u);
}

// Scroll bar.

TEST(qRosterDesktop, TheBarShowsExactlyWhileTheListIsLongerThanThePage) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, Items(10));
    EXPECT_EQ(ClientWidth(desktop, list), 300);
    list.AddItem(0, {.text = "item 11"});
    list.Refresh();
    EXPECT_EQ(ClientWidth(desktop, list), 300 - host::platform().GetSystemMetrics(SM_CXVSCROLL));
    list.Clear();
    EXPECT_EQ(ClientWidth(desktop, list), 300);
}

TEST(qRosterDesktop, CellsEndAtTheBar) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, Items(30));
    const auto lines = desktop.Trace([&] { list.DrawItem(1); });
    EXPECT_THAT(lines, Contains(HasSubstr(")-(" + std::to_string(ClientWidth(desktop, list)) + ",18)")));
}

TEST(qRosterDesktop, ArrowsOfTheBarScrollByARowAndItsTrackByAPage) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, Items(60));
    const auto bar = ClientWidth(desktop, list) + 8;
    desktop.Click(list, bar, 195);
    EXPECT_EQ(TopItem(desktop, list), 2);
    desktop.Click(list, bar, 170);
    EXPECT_EQ(TopItem(desktop, list), 12);
    desktop.Click(list, bar, 5);
    EXPECT_EQ(TopItem(desktop, list), 11);
    EXPECT_EQ(list.ListIndex(), 0);
}

TEST(qRosterDesktop, AHeldArrowRepeats) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, Items(60));
    desktop.Press(list, ClientWidth(desktop, list) + 8, 195);
    for (int i = 0; i < 20; ++i) desktop.Pass(std::chrono::milliseconds(100));
    desktop.Release();
    EXPECT_GT(TopItem(desktop, list), 5);
}

TEST(qRosterDesktop, TheThumbScrollsLiveWhileItIsDragged) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, Items(60));
    const auto bar = ClientWidth(desktop, list) + 8;
    desktop.Press(list, bar, host::platform().GetSystemMetrics(SM_CYVSCROLL) + 4);
    std::int32_t last = TopItem(desktop, list);
    EXPECT_EQ(last, 1);
    for (std::int32_t y = 50; y <= 230; y += 45) {
        const auto lines = desktop.Trace([&] { desktop.MoveTo(list, bar, y); });
        const auto top = TopItem(desktop, list);
        if (top != last) {
            EXPECT_THAT(lines, Contains(HasSubstr("ScrollDC")));
        }
        EXPECT_GE(top, last);
        last = top;
    }
    EXPECT_EQ(last, 51); // 60 items, ten rows
    desktop.Release();
    EXPECT_EQ(TopItem(desktop, list), 51);
    const auto scrolled = desktop.Pixels(list);
    list.PaintAll();
    EXPECT_EQ(desktop.Pixels(list), scrolled);
}

TEST(qRosterDesktop, TheWheelScrolls) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, Items(60));
    desktop.Focus(list);
    list.ListIndex(1);
    desktop.MoveTo(list, 50, 50);
    desktop.Wheel(-1);
    const auto top = TopItem(desktop, list);
    EXPECT_GT(top, 1);
    desktop.Wheel(1);
    EXPECT_EQ(TopItem(desktop, list), 1);
    EXPECT_EQ(list.ListIndex(), 1);
}

TEST(qRosterDesktop, ScrollingByOneRowPaintsTheUncoveredRowsAlone) {
    TestDesktop desktop;
    auto& list = desktop.Roster({.place = {0, 0, 300, 190}}, Items(60));
    const auto bar = ClientWidth(desktop, list) + 8;
    // With its neighbour, whose grid line reaches into the band.
    EXPECT_THAT(Painted(desktop, [&] { desktop.Click(list, bar, 185); }), ElementsAre("item 11", "item 12"));
    EXPECT_THAT(Painted(desktop, [&] { desktop.Click(list, bar, 5); }), ElementsAre("item 1", "item 2"));
}

TEST(qRosterDesktop, ScrollingAHiddenListShowsTheRightPageLater) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, Items(60));
    auto& component = desktop.form().ComponentOf(list);
    component.Visible(false);
    desktop.Pump();
    list.ListIndex(40);
    component.Visible(true);
    desktop.Pump();
    const auto shown = desktop.Pixels(list);
    list.PaintAll();
    EXPECT_EQ(desktop.Pixels(list), shown);
    EXPECT_EQ(TopItem(desktop, list), 31);
}

// Resizing.

TEST(qRosterDesktop, APlacedControlWithAFixedHeightSnapsToWholeRows) {
    TestDesktop desktop;
    auto& list = desktop.Roster({.FixedHeight = true}, Items(60));
    EXPECT_EQ(desktop.form().PlacementOf(list).height, 190);
    desktop.form().Place(list, {0, 0, 300, 100});
    EXPECT_EQ(desktop.form().PlacementOf(list).height, 95);
    EXPECT_EQ(list.yn(), 5);
}

TEST(qRosterDesktop, AWindowThatGrowsShowsMoreRows) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, Items(60));
    desktop.form().Place(list, {0, 0, 300, 400});
    desktop.Pump();
    EXPECT_EQ(list.yn(), 21);
    const auto shown = desktop.Pixels(list);
    list.PaintAll();
    EXPECT_EQ(desktop.Pixels(list), shown);
}

TEST(qRosterDesktop, AListAtItsEndThatGrowsStaysWithinItsRange) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, Items(60));
    list.ListIndex(60);
    EXPECT_EQ(TopItem(desktop, list), 51);
    desktop.form().Place(list, {0, 0, 300, 400});
    EXPECT_EQ(TopItem(desktop, list), 40);
    const auto shown = desktop.Pixels(list);
    list.PaintAll();
    EXPECT_EQ(desktop.Pixels(list), shown);
}

TEST(qRosterDesktop, AListThatHasBecomeShortShowsItsTop) {
    TestDesktop desktop;
    auto& list = desktop.Roster({}, Items(60));
    list.ListIndex(60);
    for (int i = 4; i <= 60; ++i) list.RemoveItem(i);
    list.Refresh();
    EXPECT_EQ(ClientWidth(desktop, list), 300);
    EXPECT_EQ(TopItem(desktop, list), 1);
    EXPECT_EQ(list.ListIndex(), 3);
    const auto shown = desktop.Pixels(list);
    list.PaintAll();
    EXPECT_EQ(desktop.Pixels(list), shown);
}

// Odd texts.

TEST(qRosterDesktop, TextsWithZeroBytesInvalidUtf8AndEveryScriptArePainted) {
    TestDesktop desktop;
    auto& list = desktop.Roster();
    const std::vector<std::string> texts = {std::string("a\0b", 3),
                                            "\xFF\xFE\xC3",
                                            "\xED\xA0\x80 half",
                                            "\r\n\t\x01",
                                            "Ελλάδα Россия",
                                            "שלום مرحبا",
                                            "日本 한국",
                                            "😀👩‍👩‍👧",
                                            std::string(100000, 'x'),
                                            "e\xCC\x81\xCC\x81\xCC\x81"};
    for (const auto& text : texts) list.AddItem(0, {.text = text});
    EXPECT_NO_THROW(list.Refresh());
    EXPECT_NO_THROW(list.TabStopSettingStr("30,30"));
    qrosterdata back;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        list.GetData(static_cast<std::int32_t>(i + 1), back);
        EXPECT_EQ(back.text, texts[i]);
    }
    // Something is to be seen of a text that is not UTF-8.
    list.Clear();
    list.AddItem(0, {.text = "\xFF"});
    list.Refresh();
    const auto odd = desktop.Pixels(list);
    list.SetData(1, {});
    EXPECT_NE(desktop.Pixels(list), odd);
}

// Design time.

TEST(qRosterDesktop, AtDesignTimeTheControlShowsAFrameWithItsNameAndTakesNoInput) {
    TestDesktop desktop;
    desktop.form().UserMode(false);
    auto& list = desktop.form().Add<qRoster>("stock", {0, 0, 100, 60});
    const auto lines = desktop.Trace([&] {
        host::platform().InvalidateRect(desktop.WindowOf(list), nullptr, false);
        desktop.Pump();
    });
    EXPECT_THAT(lines, Contains(HasSubstr("Rectangle")));
    EXPECT_THAT(lines, Contains(HasSubstr("\"stock\"")));
    EXPECT_THAT(lines, Not(Contains(HasSubstr("ExtTextOutA"))));
    list.AddItem(0, {.text = "ant"});
    desktop.Click(list, 20, 5);
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_EQ(list.ItemsStr(), "");
}

} // namespace
} // namespace tvok::test
