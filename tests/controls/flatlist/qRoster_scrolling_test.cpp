// Scrolling: rows move by ScrollDC and only the uncovered band is painted.

#include "tests/support/FakeRoster.h"

namespace tvok::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(qRosterScrolling, ScrollingDownMovesTheRowsUpAndPaintsTheBandBelow) {
    FakeRoster roster({}, Numbered(20));
    roster.hook().ScrollValue(2);
    const auto calls = roster.log().NamedOneOf({"ScrollDC", "InvalidateRect", "UpdateWindow", "BeginPaint"});
    EXPECT_EQ(calls, (Calls{{"ScrollDC", {0, 0, 200, 90}, {FakeComponent::cContext, 0, -36, 1, 1}},
                            {"InvalidateRect", {0, 54, 200, 90}, {FakeComponent::cWindow, 1, 0}},
                            {"UpdateWindow", {}, {FakeComponent::cWindow}},
                            {"BeginPaint", {}, {FakeComponent::cWindow}}}));
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre("item 6", "item 7"));
}

TEST(qRosterScrolling, ScrollingUpMovesTheRowsDownAndPaintsTheBandAbove) {
    FakeRoster roster({}, Numbered(20));
    roster.hook().ScrollValue(10);
    roster.log().Clear();
    roster.hook().ScrollValue(9);
    EXPECT_EQ(roster.log().Named("ScrollDC").at(0).values[2], 18);
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre("item 10"));
}

TEST(qRosterScrolling, AFarJumpPaintsThePage) {
    FakeRoster roster({}, Numbered(20));
    roster.hook().ScrollValue(15);
    EXPECT_EQ(roster.log().Named("ScrollDC").at(0).values[2], -270);
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre("item 16", "item 17", "item 18", "item 19", "item 20"));
}

TEST(qRosterScrolling, GridLinesCountAsPartOfARow) {
    FakeRoster roster({.GridlineWidth = 3}, Numbered(20));
    roster.hook().ScrollValue(2);
    EXPECT_EQ(roster.log().Named("ScrollDC").at(0).values[2], -42);
}

TEST(qRosterScrolling, ARowOfSeveralColumnsMovesAsOne) {
    FakeRoster roster({.width = 300, .xn = 3}, Numbered(60));
    roster.hook().ScrollValue(1);
    EXPECT_EQ(roster.log().Named("ScrollDC").at(0).values[2], -18);
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre("item 16", "item 17", "item 18"));
}

TEST(qRosterScrolling, ADraggedThumbScrollsLiveLikeAChange) {
    FakeRoster roster({}, Numbered(20));
    roster.hook().events.Scroll(3, 0, 0);
    EXPECT_EQ(roster.log().Named("ScrollDC").at(0).values[2], -54);
    roster.hook().events.Scroll(1, 0, 0); // from where the last one left it
    EXPECT_EQ(roster.log().Named("ScrollDC").at(1).values[2], 36);
    roster.PressRow(1);
    EXPECT_EQ(roster.list.ListIndex(), 2);
}

TEST(qRosterScrolling, TheEndOfADragDoesNothing) {
    FakeRoster roster({}, Numbered(20));
    roster.hook().events.EndScroll(3);
    EXPECT_THAT(roster.log().All(), IsEmpty());
}

TEST(qRosterScrolling, ScrollingRaisesNoEventOfTheControl) {
    FakeRoster roster({}, Numbered(20));
    roster.list.ListIndex(2);
    roster.log().Clear();
    roster.hook().ScrollValue(9);
    EXPECT_THAT(roster.TakeEvents(), IsEmpty());
    EXPECT_EQ(roster.list.ListIndex(), 2);
}

TEST(qRosterScrolling, TheScrolledPageIsWhatLaterPaintsShow) {
    FakeRoster roster({}, Numbered(20));
    roster.hook().ScrollValue(4);
    roster.log().Clear();
    roster.list.PaintAll();
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre("item 5", "item 6", "item 7", "item 8", "item 9"));
    roster.list.DrawItem(4);
    EXPECT_THAT(roster.TakeDrawn(), IsEmpty());
    roster.list.DrawItem(5);
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre("item 5"));
}

TEST(qRosterScrolling, TheRangeCountsWholeRows) {
    FakeRoster roster({.xn = 3}, Numbered(15));
    roster.list.Refresh();
    EXPECT_EQ(roster.hook().max, 0); // five rows fit
    roster.Add({"one more"});
    EXPECT_EQ(roster.hook().max, 1);
    EXPECT_EQ(roster.hook().large, 5);
}

TEST(qRosterScrolling, TheCallsOfAPaintDoNotDependOnTheNumberOfItems) {
    const auto calls = [](std::int32_t count) {
        FakeRoster roster;
        for (std::int32_t i = 0; i < count; ++i) roster.list.AddItem(0, {.text = "item"});
        roster.list.Refresh();
        roster.log().Clear();
        roster.hook().ScrollValue(1);
        roster.list.PaintAll();
        roster.ClickRow(3);
        roster.Key(host::VK_DOWN);
        return roster.log().All().size();
    };
    EXPECT_EQ(calls(1000), calls(20000));
}

TEST(qRosterScrolling, ManyColumnsAndRowsGrowTheGrid) {
    FakeRoster roster({.width = 4000, .height = 18 * 60}, Numbered(3000));
    roster.list.xn(40);
    EXPECT_EQ(roster.list.yn(), 60);
    EXPECT_EQ(roster.hook().max, 15);
    roster.Press(100 * 39 + 5, 18 * 59 + 5);
    EXPECT_EQ(roster.list.ListIndex(), 2400);
    roster.list.xn(1);
    roster.Press(5, 5);
    EXPECT_EQ(roster.list.ListIndex(), 1);
}

} // namespace
} // namespace tvok::test
