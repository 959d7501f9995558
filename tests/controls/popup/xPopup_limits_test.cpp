// Sizes and numbers at their limits, and a grid that is written while the popup is open.
#include "tests/support/FakeComponent.h"
#include "tests/support/PopupTestDesktop.h"
#include "tvok/records/Error.h"

namespace tvok::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::int32_t kLargestSurface = 16384;

// Tall and wide ones.

TEST(xPopupLimits, ATallPopupIsLimitedAndStandsAtOnePlaceFromItsFirstOpeningOn) {
    PopupDesktop at;
    at.popup->Count(200000);
    at.popup->yn(200000);
    at.popup->Popup();
    const tvok_Rect first = at.WindowRect();
    EXPECT_LE(first.bottom - first.Top, kLargestSurface);
    EXPECT_EQ(first.bottom, PopupDesktop::cParent.Top) << "upward, with its bottom on its parent's top";
    at.desktop.Key(host::VK_ESCAPE);
    at.popup->yn(200000);
    at.popup->Popup();
    EXPECT_EQ(at.WindowRect(), first);
}

TEST(xPopupLimits, AWidePopupIsLimitedAndStandsAtOnePlaceFromItsFirstOpeningOn) {
    PopupDesktop at(Lines(9));
    at.popup->xn(3);
    at.popup->ColWidthSettingStr("0,3000000,3000000,3000000");
    at.Open();
    const tvok_Rect first = at.WindowRect();
    EXPECT_LE(first.Right - first.Left, kLargestSurface);
    at.desktop.Key(host::VK_ESCAPE);
    at.Open();
    EXPECT_EQ(at.WindowRect(), first);
}

// A grid written while it is open.

/// Sixty items in five rows, open, where moves select.
struct TrackedPopup : PopupDesktop {
    TrackedPopup() : PopupDesktop(Lines(60)) {
        popup->yn(5);
        popup->HotTrack(true);
        Open();
    }
    void PaintAnew() {
        host::platform().InvalidateRect(Floating(), nullptr, true);
        desktop.Pump();
    }
    /// All over the window, with the points that no cell holds.
    void MoveAbout() {
        for (std::int32_t y = -10; y <= ClientRect().bottom + 10; y += 5) MoveTo(50, y);
    }
};

TEST(xPopupLimits, ColumnsWrittenWhileItIsOpenCountFromTheNextOpeningOn) {
    for (const std::int32_t columns : {3, 20, 150, INT32_MAX}) {
        TrackedPopup at;
        const auto before = at.Pixels();
        at.popup->xn(columns);
        EXPECT_EQ(at.popup->xn(), columns);
        EXPECT_NO_THROW(at.PaintAnew());
        EXPECT_EQ(at.Pixels(), before) << columns;
        EXPECT_NO_THROW(at.MoveAbout());
        at.TakeStory();
        at.MoveToRow(3);
        EXPECT_THAT(at.TakeStory(), ElementsAre("Change 3 item 3"));
        at.desktop.Key(host::VK_DOWN);
        at.desktop.Key(host::VK_NEXT);
        EXPECT_THAT(at.TakeStory(), ElementsAre("Change 4 item 4", "Change 9 item 9"));
        at.MoveToRow(1);
        EXPECT_THAT(at.TakeStory(), ElementsAre("Change 5 item 5")) << "it scrolled by four rows";
        at.desktop.Key(host::VK_ESCAPE);
        at.popup->xn(3);
        at.Open();
        EXPECT_EQ(at.ClientRect().Right, 3 * 101 - 1);
    }
}

TEST(xPopupLimits, RowsWrittenWhileItIsOpenCountFromTheNextOpeningOn) {
    for (const std::int32_t rows : {1, 8, 100, INT32_MAX}) {
        TrackedPopup at;
        const auto before = at.Pixels();
        at.popup->yn(rows);
        EXPECT_NO_THROW(at.PaintAnew());
        EXPECT_EQ(at.Pixels(), before) << rows;
        EXPECT_NO_THROW(at.MoveAbout());
        at.MoveToRow(1);
        at.TakeStory();
        at.desktop.Key(host::VK_END);
        EXPECT_THAT(at.TakeStory(), ElementsAre("Change 60 item 60"));
        at.MoveToRow(5);
        EXPECT_THAT(at.story, IsEmpty()) << "the last item is on the last row";
    }
}

TEST(xPopupLimits, ContentsThatAreReplacedWhileItIsOpenPaintAndAnswerOnTheOldGrid) {
    TrackedPopup at;
    for (const std::int32_t palette : {PAL24x10, PAL_SYSCOLOR, PAL16x8}) {
        at.popup->SetColorPal(palette);
        EXPECT_NO_THROW(at.PaintAnew());
        EXPECT_NO_THROW(at.MoveAbout());
        at.MoveToRow(5);
        EXPECT_EQ(at.popup->ListIndex(), 5);
    }
    at.popup->ItemsStr("18=12\r\n998\r\n107=a\r\n999\r\n");
    EXPECT_NO_THROW(at.PaintAnew());
    EXPECT_NO_THROW(at.MoveAbout());
}

TEST(xPopupLimits, AGridThatCannotBeLaidOutPaintsNothingAndHasNoItemUnderThePointer) {
    PopupDesktop at(Lines(300));
    at.popup->HotTrack(true);
    at.popup->xn(150); // there are widths for 100 columns
    at.Open();
    ASSERT_TRUE(at.IsOpen());
    EXPECT_NO_THROW(at.MoveToRow(1));
    EXPECT_NO_THROW(at.MoveToRow(2));
    EXPECT_NO_THROW(at.desktop.Key(host::VK_DOWN));
    EXPECT_THAT(at.TakeStory(), ElementsAre("Change 150 item 150"));
    at.desktop.Key(host::VK_ESCAPE);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 150 item 150 canceled"));
}

// Numbers that do not fit.

TEST(xPopupLimits, AWidthThatDoesNotFitLeavesTheOneMeasuredBefore) {
    PopupDesktop at({"a text that is wide enough to be seen"});
    at.popup->ItemWidth(1);
    at.popup->SetParentRect({10, 10, 11, 11});
    at.popup->CalTextWidth();
    at.Open();
    const tvok_Rect before = at.WindowRect();
    EXPECT_GT(before.Right - before.Left, 100);
    at.desktop.Key(host::VK_ESCAPE);
    at.popup->CX_TEXT(INT32_MAX);
    EXPECT_THROW(at.popup->CalTextWidth(), OverflowError);
    at.Open();
    EXPECT_EQ(at.WindowRect(), before);
}

TEST(xPopupLimits, ACountWhoseIndexDoesNotFitLeavesThePopupAsItIs) {
    PopupDesktop at(Lines(3));
    at.popup->ListIndex(2);
    at.TakeStory();
    for (const std::int32_t count : {INT32_MAX, INT32_MAX - 4})
        EXPECT_THROW(at.popup->Count(count), OverflowError);
    EXPECT_EQ(at.popup->Count(), 3);
    EXPECT_EQ(at.popup->ListIndex(), 2);
    EXPECT_THAT(at.Texts(), ElementsAre("item 1", "item 2", "item 3"));
    bool asked = false;
    at.popup->events.EnumDATA = [&](std::int32_t&, qrosterdata&) { asked = true; };
    at.Open();
    EXPECT_FALSE(asked) << "it is still a list of stored items";
}

TEST(xPopupLimits, AScrollStepThatDoesNotFitIsAnErrorAndTheNextOneMakesUpForIt) {
    TrackedPopup at;
    at.popup->ItemHeight(INT32_MAX);
    at.MoveToRow(2);
    EXPECT_THROW(at.desktop.Wheel(-1), OverflowError);
    at.MoveToRow(1);
    EXPECT_EQ(at.popup->ListIndex(), 4) << "the first row is the fourth by now";
    at.popup->ItemHeight(18);
    const auto trace = at.desktop.Trace([&] { at.desktop.Wheel(-1); });
    EXPECT_THAT(trace,
                Contains(testing::AllOf(testing::StartsWith("ScrollDC"), HasSubstr(std::to_string(-6 * 19)))))
        << "the pixels moved by nothing before";
}

// An object that cannot tell where it is.

class HalfPlaced : public FakeComponent {
public:
    HalfPlaced() : FakeComponent(true, 120, 40) {}
    float Left() const override { throw Error("no left"); }
    float Height() const override { throw Error("no height"); }
};

TEST(xPopupLimits, WhatAWidgetCannotTellCountsAsZeroOrStays) {
    PopupDesktop at(Lines(3));
    host::Point corner;
    {
        const HalfPlaced object;
        host::platform().ClientToScreen(FakeComponent::cWindow, corner);
        EXPECT_NO_THROW(at.popup->SetParenpObject(object, FakeComponent::cWindow));
    }
    at.popup->ItemWidth(1);
    at.Open();
    const std::int32_t bottom = PopupDesktop::cParent.bottom;
    EXPECT_EQ(at.WindowRect(), (tvok_Rect{corner.x, bottom, corner.x + 120, bottom + 57}));
}

} // namespace
} // namespace tvok::test
