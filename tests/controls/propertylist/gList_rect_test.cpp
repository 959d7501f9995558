// `GetItemRect`: where on the screen the value of a row stands, which is what a popup opens under.
#include "tests/support/PropertyListPaint.h"

namespace tvok::test {
namespace {

std::vector<elistdata> Rows(std::int32_t count) {
    std::vector<elistdata> items;
    for (std::int32_t i = 0; i < count; ++i)
        items.push_back(PropertyListDesktop::Value(std::string(1, static_cast<char>('a' + i))));
    return items;
}

constexpr tvok_Rect cUntouched{1, 2, 3, 4};

tvok_Rect RectOf(const PropertyListDesktop& at, std::int32_t row) {
    tvok_Rect rect = cUntouched;
    at.list->GetItemRect(row, rect);
    return rect;
}

/// Client pixels of the list as screen pixels.
tvok_Rect OnScreen(const PropertyListDesktop& at, const tvok_Rect& rect) {
    host::Point origin;
    host::platform().ClientToScreen(at.desktop.WindowOf(*at.list), origin);
    return {rect.Left + origin.x, rect.Top + origin.y, rect.Right + origin.x, rect.bottom + origin.y};
}

TEST(gListRect, IsTheValuesCellOnTheScreen) {
    PropertyListDesktop at;
    at.Show(Rows(3));
    const std::int32_t left = 15 + at.list->HeadWidth() + 1;
    EXPECT_EQ(RectOf(at, 1), OnScreen(at, {left, 0, 300, 18}));
    EXPECT_EQ(RectOf(at, 3), OnScreen(at, {left, 38, 300, 56}));
    at.desktop.form().Move(300, 200);
    at.desktop.Pump();
    EXPECT_EQ(RectOf(at, 3), OnScreen(at, {left, 38, 300, 56})) << "where the form stands now";
}

TEST(gListRect, TheRecordIsFilledAndTrueIsGiven) {
    PropertyListDesktop at;
    at.Show(Rows(3));
    tvok_Rect rect = cUntouched;
    EXPECT_TRUE(at.list->GetItemRect(2, rect));
    EXPECT_NE(rect, cUntouched);
}

TEST(gListRect, RowsThatAreNoneGiveFalseAndLeaveTheRectangle) {
    PropertyListDesktop at;
    at.Show(Rows(3));
    for (const std::int32_t row : {0, -1, 4, 5, 1000000, -1000000}) {
        tvok_Rect rect = cUntouched;
        EXPECT_FALSE(at.list->GetItemRect(row, rect)) << row;
        EXPECT_EQ(rect, cUntouched) << row;
    }
}

TEST(gListRect, ARowAboveOrBelowThePageGivesFalseAndTheOneBegunAtTheBottomTrue) {
    PropertyListDesktop at;
    at.Show(Rows(26));
    at.hook->ScrollValue(3);
    at.desktop.Pump();
    tvok_Rect rect = cUntouched;
    EXPECT_FALSE(at.list->GetItemRect(3, rect));
    EXPECT_FALSE(at.list->GetItemRect(15, rect));
    EXPECT_EQ(rect, cUntouched);
    const std::int32_t left = 15 + at.list->HeadWidth() + 1;
    EXPECT_EQ(RectOf(at, 4), OnScreen(at, {left, 0, 283, 18})) << "the bar takes its width";
    EXPECT_TRUE(at.list->GetItemRect(14, rect));
    EXPECT_EQ(rect, OnScreen(at, {left, 190, 283, 208})) << "beyond the client's end";
}

TEST(gListRect, TheRowThatIsBegunIsNoneAfterAFitUntilTheNextRefresh) {
    PropertyListDesktop at;
    at.Show(Rows(26));
    tvok_Rect rect;
    EXPECT_TRUE(at.list->GetItemRect(11, rect));
    at.list->ItemsStr(""); // fits the control
    EXPECT_FALSE(at.list->GetItemRect(11, rect));
    EXPECT_TRUE(at.list->GetItemRect(10, rect));
    at.list->Refresh();
    EXPECT_TRUE(at.list->GetItemRect(11, rect));
}

TEST(gListRect, AGroupHasTheRectangleOfAValue) {
    PropertyListDesktop at({.ListMode = 1});
    at.Show({PropertyListDesktop::Group("g"), PropertyListDesktop::Value("a", "g")});
    const std::int32_t left = 15 + at.list->HeadWidth() + 1;
    EXPECT_EQ(RectOf(at, 1), OnScreen(at, {left, 0, 300, 18}));
}

// One pixel more than where the value is painted; popups of such lists stand there.
TEST(gListRect, LinesOnTheBorderMoveItByAFurtherPixel) {
    PropertyListDesktop at;
    at.list->GridlineOnBorder(true);
    at.Show(Rows(3));
    const std::int32_t painted = 1 + 15 + at.list->HeadWidth() + 1;
    EXPECT_EQ(RectOf(at, 1), OnScreen(at, {painted + 1, 1, 299, 19}));
    const auto calls = Drawing(at.desktop.Trace([&] { at.list->SetData(0, "a"); }));
    EXPECT_THAT(calls, testing::Contains("Rectangle " + RectText({painted - 1, 0, 300, 20})));
}

TEST(gListRect, LinesAndBandsOfOtherWidthsMoveIt) {
    PropertyListDesktop at;
    at.list->GridlineWidth(0);
    at.list->HeadWidthEx(0);
    at.Show(Rows(3));
    EXPECT_EQ(RectOf(at, 2), OnScreen(at, {at.list->HeadWidth(), 18, 300, 36}));
    at.list->GridlineWidth(4);
    at.list->HeadWidthEx(30);
    EXPECT_EQ(RectOf(at, 2), OnScreen(at, {at.list->HeadWidth() + 34, 22, 300, 40}));
    at.list->GridlineOnBorder(true);
    EXPECT_EQ(RectOf(at, 2), OnScreen(at, {at.list->HeadWidth() + 4 + 34 + 1, 26, 296, 44}))
        << "lines of 4 on the border, and one pixel more whatever their width";
}

TEST(gListRect, AFrameMovesItWithTheClientArea) {
    PropertyListDesktop at;
    at.Show(Rows(3));
    const tvok_Rect bare = RectOf(at, 2);
    at.list->BorderStyle(1);
    at.desktop.Pump();
    const tvok_Rect framed = RectOf(at, 2);
    EXPECT_GT(framed.Left, bare.Left);
    EXPECT_GT(framed.Top, bare.Top);
    EXPECT_LT(framed.Right, bare.Right);
}

} // namespace
} // namespace tvok::test
