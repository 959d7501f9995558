// SortedMode: which order each value gives, and what happens to the current item.
#include "tests/support/PopupTestDesktop.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

PopupDesktop& Numbered(PopupDesktop& at, std::initializer_list<qrosterdata> items) {
    for (const qrosterdata& item : items) at.popup->AddItem(item);
    return at;
}

TEST(xPopupSort, TextsAreSortedWithTheirCase) {
    PopupDesktop at({"b", "A", "a", "B"});
    at.popup->SortedMode(bAscendingSorted);
    EXPECT_THAT(at.Texts(), ElementsAre("A", "B", "a", "b"));
    at.popup->SortedMode(bDescendingSorted);
    EXPECT_THAT(at.Texts(), ElementsAre("b", "a", "B", "A"));
    EXPECT_EQ(at.popup->SortedMode(), 2);
}

TEST(xPopupSort, AmongEqualItemDataTheTextsRunAgainstTheDirection) {
    PopupDesktop at;
    Numbered(at, {{.text = "a", .ItemData = 7}, {.text = "b", .ItemData = 7}, {.text = "c", .ItemData = 3}});
    at.popup->SortedMode(bItemDataAscendingSorted);
    EXPECT_THAT(at.Texts(), ElementsAre("c", "b", "a"));
    at.popup->SortedMode(bItemDataDescendingSorted);
    EXPECT_THAT(at.Texts(), ElementsAre("a", "b", "c"));
}

TEST(xPopupSort, ZeroAfterASortedStateLeavesTheOrderAndPaintsNothing) {
    PopupDesktop at({"b", "a"});
    at.popup->SortedMode(bAscendingSorted);
    at.Open();
    EXPECT_THAT(at.desktop.Trace([&] { at.popup->SortedMode(bNoneSorted); }), IsEmpty());
    EXPECT_THAT(at.Texts(), ElementsAre("a", "b"));
    EXPECT_EQ(at.popup->SortedMode(), 0);
}

TEST(xPopupSort, OtherValuesSortNothingAndRepaint) {
    PopupDesktop at({"b", "a"});
    at.Open();
    const auto trace = at.desktop.Trace([&] { at.popup->SortedMode(5); });
    EXPECT_THAT(at.Texts(), ElementsAre("b", "a"));
    EXPECT_EQ(at.popup->SortedMode(), 5);
    ASSERT_FALSE(trace.empty());
    EXPECT_THAT(trace.front(), HasSubstr("InvalidateRect"));
}

TEST(xPopupSort, TheCurrentItemStaysCurrentWithoutAnEvent) {
    PopupDesktop at({"c", "b", "a"});
    at.popup->ListIndex(1);
    at.TakeStory();
    at.popup->SortedMode(bAscendingSorted);
    EXPECT_EQ(at.popup->ListIndex(), 3);
    EXPECT_THAT(at.Selected(), ElementsAre(3));
    EXPECT_THAT(at.story, IsEmpty());
}

TEST(xPopupSort, WithoutACurrentItemThereIsNoneAfterwards) {
    PopupDesktop at({"c", "b", "a"});
    for (const std::int32_t mode : {1, 2, 3, 4}) {
        at.popup->SortedMode(mode);
        EXPECT_EQ(at.popup->ListIndex(), 0) << mode;
    }
}

TEST(xPopupSort, InVirtualModeTheFirstItemBecomesTheCurrentOneSinceAllShowOneRecord) {
    PopupDesktop at;
    at.popup->Count(9);
    at.popup->ListIndex(5);
    at.popup->SortedMode(bAscendingSorted);
    EXPECT_EQ(at.popup->ListIndex(), 1);
}

TEST(xPopupSort, AnEmptyPopupKeepsTheMode) {
    PopupDesktop at;
    EXPECT_THAT(at.desktop.Trace([&] { at.popup->SortedMode(3); }), IsEmpty());
    EXPECT_EQ(at.popup->SortedMode(), 3);
}

TEST(xPopupSort, TheOpenPopupShowsTheNewOrderAtOnce) {
    PopupDesktop at;
    Numbered(at, {{.text = "b", .bColor = 0x0000FF}, {.text = "a", .bColor = 0x00FF00}});
    at.Open();
    EXPECT_EQ(at.PixelAt(95, 9), 0xFF0000u);
    at.popup->SortedMode(bAscendingSorted);
    EXPECT_EQ(at.PixelAt(95, 9), 0x00FF00u);
}

// The flat list's sort of equal texts, which the popup shares: the last one comes first among short runs.
TEST(xPopupSort, EqualTextsOfAShortListAreTurnedRound) {
    PopupDesktop at;
    Numbered(at, {{.text = "x", .key = "1"}, {.text = "x", .key = "2"}, {.text = "x", .key = "3"}});
    at.popup->SortedMode(bAscendingSorted);
    EXPECT_EQ(at.Data(1).key + at.Data(2).key + at.Data(3).key, "312");
}

} // namespace
} // namespace tvok::test
