// Items: the stored and the virtual mode, the current item, the text form, and the width of the texts.
#include "tests/support/PopupTestDesktop.h"
#include "tvok/records/Error.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Answers `EnumDATA` with a fresh record "row N", and notes it.
void FillRows(PopupDesktop& at) {
    at.popup->events.EnumDATA = [&at](std::int32_t& index, qrosterdata& x) {
        at.story.push_back("EnumDATA " + std::to_string(index));
        x = {.text = "row " + std::to_string(index)};
    };
}

// Stored items.

TEST(xPopupItems, AddedItemsStandInTheOrderOfAddingAndAreMarkedInUse) {
    PopupDesktop at({"bee", "ant"});
    EXPECT_THAT(at.Texts(), ElementsAre("bee", "ant"));
    EXPECT_EQ(at.Data(2).vflag, vflag::InUse);
    at.popup->AddItem({.text = "cat", .vflag = vflag::Bold | vflag::Selected});
    EXPECT_EQ(at.Data(3).vflag, vflag::Bold | vflag::Selected | vflag::InUse);
    EXPECT_EQ(at.popup->Count(), 3);
    EXPECT_EQ(at.popup->ListIndex(), 0);
}

TEST(xPopupItems, AddingSortsNothingAndRaisesNothing) {
    PopupDesktop at({"bee", "ant"});
    at.popup->SortedMode(bAscendingSorted);
    at.Add({"aardvark"});
    EXPECT_THAT(at.Texts(), ElementsAre("ant", "bee", "aardvark"));
    EXPECT_THAT(at.story, IsEmpty());
}

TEST(xPopupItems, ClearKeepsGridAndLooks) {
    PopupDesktop at({"a", "b"});
    at.popup->xn(3);
    at.popup->yn(4);
    at.popup->BackColor(0x112233);
    at.popup->SortedMode(bAscendingSorted);
    at.popup->ListIndex(2);
    at.popup->Clear();
    EXPECT_EQ(at.popup->Count(), 0);
    EXPECT_EQ(at.popup->ListIndex(), 0);
    EXPECT_EQ(at.popup->xn(), 3);
    EXPECT_EQ(at.popup->yn(), 4);
    EXPECT_EQ(at.popup->BackColor(), 0x112233);
    EXPECT_EQ(at.popup->SortedMode(), bAscendingSorted);
}

TEST(xPopupItems, IndexZeroGivesTheBlankSlotAndTrueOnAnyPopup) {
    PopupDesktop at;
    qrosterdata item{.text = "x"};
    EXPECT_TRUE(at.popup->GetData(0, item));
    EXPECT_EQ(item, qrosterdata{});
    at.Add({"b", "a", "c"});
    at.popup->SortedMode(bAscendingSorted); // leaves a slot in entry 0
    EXPECT_TRUE(at.popup->GetData(0, item));
    EXPECT_EQ(item, qrosterdata{});
    at.popup->Count(4);
    EXPECT_TRUE(at.popup->GetData(0, item));
    EXPECT_EQ(item, qrosterdata{});
}

TEST(xPopupItems, AnIndexBeyondTheArraysIsTheSubscriptError) {
    PopupDesktop at({"a", "b"});
    qrosterdata item;
    EXPECT_TRUE(at.popup->GetData(5, item)); // within the array, which grows by some more than it needs
    EXPECT_EQ(item, qrosterdata{});
    EXPECT_THROW(at.popup->GetData(1000, item), SubscriptError);
    EXPECT_THROW(at.popup->GetData(-1, item), SubscriptError);
}

TEST(xPopupItems, TheDefaultItemIsTheDocumentedOne) {
    PopupDesktop at;
    EXPECT_EQ(at.popup->DefaultItem(), qrosterdata{});
}

// The current item.

TEST(xPopupItems, ListIndexOutOfRangeAndZeroChangeNothingAndRaiseNothing) {
    PopupDesktop at({"a", "b"});
    at.popup->ListIndex(2);
    at.TakeStory();
    for (const std::int32_t index : {0, -1, 3, 1000}) at.popup->ListIndex(index);
    EXPECT_EQ(at.popup->ListIndex(), 2);
    EXPECT_THAT(at.story, IsEmpty());
}

TEST(xPopupItems, ChangeSeesTheNewIndexWhileTheOldItemIsStillSelected) {
    PopupDesktop at({"a", "b"});
    at.popup->ListIndex(1);
    std::vector<std::int32_t> selected;
    std::int32_t current = 0;
    at.popup->events.Change = [&](std::int32_t, qrosterdata&) {
        selected = at.Selected();
        current = at.popup->ListIndex();
    };
    at.popup->ListIndex(2);
    EXPECT_EQ(current, 2);
    EXPECT_THAT(selected, ElementsAre(1));
    EXPECT_THAT(at.Selected(), ElementsAre(2));
}

TEST(xPopupItems, ChangeGivesTheStoredItemToEditInPlace) {
    PopupDesktop at({"a", "b"});
    at.popup->events.Change = [](std::int32_t, qrosterdata& item) { item.text += "!"; };
    at.popup->ListIndex(2);
    EXPECT_THAT(at.Texts(), ElementsAre("a", "b!"));
}

TEST(xPopupItems, TheCurrentIndexWrittenAgainRaisesNothingButSelectsAndScrollsIntoView) {
    PopupDesktop at(Lines(20));
    at.popup->yn(5);
    at.Open();
    at.popup->ListIndex(20);
    at.desktop.Wheel(5); // back to the top
    at.TakeStory();
    const std::uint32_t before = at.PixelAt(80, PopupDesktop::RowMiddle(5));
    EXPECT_EQ(before, 0xFFFFFFu) << "item 5 stands there";
    at.popup->ListIndex(20);
    EXPECT_THAT(at.story, IsEmpty());
    EXPECT_THAT(at.Selected(), ElementsAre(20));
    EXPECT_NE(at.PixelAt(80, PopupDesktop::RowMiddle(5)), before);
}

TEST(xPopupItems, TheCurrentIndexWrittenAgainSetsTheSelectionBitAnew) {
    PopupDesktop at({"a", "b"});
    at.popup->events.Change = [](std::int32_t, qrosterdata&) {};
    at.popup->ListIndex(2);
    at.Open();
    at.popup->events.Click = [](std::int32_t, qrosterdata& item, bool) { item.vflag &= ~vflag::Selected; };
    at.desktop.Key(host::VK_RETURN);
    EXPECT_THAT(at.Selected(), IsEmpty());
    at.popup->ListIndex(2);
    EXPECT_THAT(at.Selected(), ElementsAre(2));
}

TEST(xPopupItems, ListIndexFromNoneRunsTheStepsForTheOldItemWithEntryZero) {
    PopupDesktop at({"b", "a"});
    at.popup->SortedMode(bAscendingSorted); // entry 0 names slot 1 or 2 now
    at.popup->events.Change = nullptr;
    at.popup->AddItem({.text = "c", .vflag = vflag::Selected});
    at.popup->Count(3);
    FillRows(at);
    at.popup->ListIndex(2);
    EXPECT_THAT(at.TakeStory(), ElementsAre("EnumDATA 0", "EnumDATA 2"));
}

TEST(xPopupItems, AHandlerThatClearsDuringChangeLeavesAnEmptyPopup) {
    PopupDesktop at({"a", "b"});
    at.Open();
    at.popup->events.Change = [&](std::int32_t, qrosterdata& item) {
        at.popup->Clear();
        item.text = "the record is still good";
    };
    at.popup->ListIndex(2);
    EXPECT_EQ(at.popup->Count(), 0);
    EXPECT_EQ(at.popup->ListIndex(), 0);
    EXPECT_EQ(at.Data(0), qrosterdata{});
}

TEST(xPopupItems, AnErrorInChangeIsIgnoredAndTheStepsGoOn) {
    PopupDesktop at({"a", "b"});
    at.popup->ListIndex(1);
    at.popup->events.Change = [](std::int32_t, qrosterdata&) { throw Error("from a handler"); };
    EXPECT_NO_THROW(at.popup->ListIndex(2));
    EXPECT_THAT(at.Selected(), ElementsAre(2));
}

TEST(xPopupItems, WrittenOnceMoreInChangeBothItemsKeepTheSelectionBit) {
    PopupDesktop at(Lines(4));
    at.popup->events.Change = [&](std::int32_t index, qrosterdata&) {
        if (index == 2) at.popup->ListIndex(3);
    };
    at.popup->ListIndex(2);
    EXPECT_EQ(at.popup->ListIndex(), 3);
    EXPECT_THAT(at.Selected(), ElementsAre(2, 3)) << "the outer write goes on with its own item";
}

// Without a hook nothing can be scrolled into view. That step fails, and with it the drawing that follows.
TEST(xPopupItems, WhereNothingCanScrollTheNewItemIsNotDrawn) {
    TestDesktop desktop;
    desktop.form().UserMode(false);
    auto& popup = desktop.form().Add<xPopup>("popup1", {0, 0, 10, 10});
    std::vector<std::int32_t> asked;
    popup.events.EnumDATA = [&](std::int32_t& index, qrosterdata&) { asked.push_back(index); };
    popup.Count(3);
    popup.ListIndex(2);
    EXPECT_THAT(asked, ElementsAre(0));
    EXPECT_EQ(popup.ListIndex(), 2);
}

// The virtual mode.

TEST(xPopupItems, CountBelowZeroIsIgnored) {
    PopupDesktop at({"a"});
    at.popup->Count(-1);
    EXPECT_EQ(at.popup->Count(), 1);
    EXPECT_THAT(at.Texts(), ElementsAre("a"));
}

TEST(xPopupItems, CountStartsTheVirtualModeAndLowersTheCurrentItemWithoutChange) {
    PopupDesktop at(Lines(10));
    at.popup->ListIndex(8);
    at.TakeStory();
    FillRows(at);
    at.popup->Count(5);
    EXPECT_EQ(at.popup->ListIndex(), 5);
    EXPECT_THAT(at.story, IsEmpty());
    at.popup->Popup();
    EXPECT_THAT(at.TakeStory(),
                ElementsAre("EnumDATA 1", "EnumDATA 2", "EnumDATA 3", "EnumDATA 4", "EnumDATA 5"));
    EXPECT_EQ(at.Data(3).text, "row 5") << "every index gives the one record";
}

TEST(xPopupItems, AnItemAddedInVirtualModeIsStoredAndStillPaintedThroughEnumDATA) {
    PopupDesktop at;
    at.popup->Count(3);
    at.Add({"stored"});
    EXPECT_EQ(at.popup->Count(), 4);
    EXPECT_EQ(at.Data(4).text, "stored");
    FillRows(at);
    at.popup->Popup();
    EXPECT_THAT(at.TakeStory(), ElementsAre("EnumDATA 1", "EnumDATA 2", "EnumDATA 3", "EnumDATA 4"));
}

TEST(xPopupItems, ClearEndsTheVirtualMode) {
    PopupDesktop at;
    FillRows(at);
    at.popup->Count(3);
    at.popup->Clear();
    at.Add({"a"});
    at.Open();
    EXPECT_THAT(at.story, IsEmpty());
}

TEST(xPopupItems, InVirtualModeTheCurrentRowAloneIsSelectedWhereTheHostWritesWholeRecords) {
    PopupDesktop at;
    at.popup->Count(5);
    FillRows(at);
    at.Open();
    at.popup->ListIndex(3);
    const auto selected = [&](std::int32_t row) {
        return at.PixelAt(95, PopupDesktop::RowMiddle(row)) != 0xFFFFFF;
    };
    EXPECT_TRUE(selected(3));
    for (const std::int32_t row : {1, 2, 4, 5}) EXPECT_FALSE(selected(row)) << row;
    EXPECT_THAT(at.TakeStory(), ElementsAre("Change 3 row 5", "EnumDATA 0", "EnumDATA 3"));
}

TEST(xPopupItems, AHandlerThatLeavesTheFlagsGivesAllLaterRowsTheSelectedLook) {
    PopupDesktop at;
    at.popup->Count(5);
    at.popup->events.EnumDATA = [](std::int32_t& index, qrosterdata& x) { x.text = std::to_string(index); };
    at.Open();
    at.popup->ListIndex(3);
    at.desktop.Key(host::VK_ESCAPE);
    at.Open(); // row 1 comes with the bit that was set last
    for (const std::int32_t row : {1, 2, 3, 4, 5})
        EXPECT_NE(at.PixelAt(95, PopupDesktop::RowMiddle(row)), 0xFFFFFFu) << row;
}

TEST(xPopupItems, AnIndexChangedByEnumDATAIsComparedAndPaintedAndComesBack) {
    PopupDesktop at;
    at.popup->Count(5);
    FillRows(at);
    at.Open();
    at.popup->events.EnumDATA = [](std::int32_t& index, qrosterdata& x) {
        index = 4;
        x = {.text = "four", .bColor = 0x0000FF};
    };
    std::int32_t index = 2;
    at.popup->DrawItem(index);
    EXPECT_EQ(index, 4);
    EXPECT_EQ(at.PixelAt(95, PopupDesktop::RowMiddle(4)), 0xFF0000u);
    EXPECT_EQ(at.PixelAt(95, PopupDesktop::RowMiddle(2)), 0xFFFFFFu);
}

TEST(xPopupItems, AVirtualPopupHoldsOneRecordHoweverManyItemsItHas) {
    PopupDesktop at;
    FillRows(at);
    at.popup->Count(1000000);
    at.Open();
    at.popup->ListIndex(500000);
    EXPECT_THAT(at.TakeStory(), testing::Contains("EnumDATA 500000"));
    EXPECT_THROW(at.popup->CalTextWidth(), SubscriptError) << "there are texts of slots 1 and 2 alone";
}

TEST(xPopupItems, CountKeepsWhatItNeedsNotToWrite) {
    PopupDesktop at(Lines(3));
    at.popup->Count(2);
    EXPECT_EQ(at.Data(1).text, "item 1");
    EXPECT_EQ(at.Data(2).text, "item 1");
    at.popup->Count(0);
    EXPECT_EQ(at.popup->Count(), 0);
    at.popup->Popup();
    EXPECT_FALSE(at.IsOpen());
}

// Drawing an item.

TEST(xPopupItems, DrawItemOfAClosedPopupAsksForDataAndIsAnErrorWhereTheHostWouldDraw) {
    PopupDesktop at({"a"});
    EXPECT_NO_THROW(at.popup->DrawItem(1));
    EXPECT_NO_THROW(at.popup->DrawItem(99));
    at.popup->AddItem({.text = "b", .vflag = vflag::HostText});
    at.Open();
    std::vector<std::int32_t> drawn;
    at.popup->events.ExDraw = [&](std::int32_t& message, std::int32_t index, const std::string&, std::int32_t,
                                  std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t) {
        drawn.insert(drawn.end(), {message, index});
    };
    at.popup->DrawItem(2);
    EXPECT_THAT(drawn, ElementsAre(256, 2));
    at.desktop.Key(host::VK_ESCAPE);
    EXPECT_THROW(at.popup->DrawItem(2), ObjectError);
    EXPECT_NO_THROW(at.popup->ListIndex(2));
}

// The text form.

TEST(xPopupItems, TheTextFormReadsBackAsItself) {
    PopupDesktop at({"a", "b\tc"});
    at.popup->xn(2);
    const std::string text = at.popup->ItemsStr();
    PopupDesktop other({"gone"});
    other.popup->Count(7);
    other.popup->ItemsStr(text);
    EXPECT_THAT(other.Texts(), ElementsAre("a", "b\tc"));
    EXPECT_EQ(other.popup->xn(), 2);
    EXPECT_EQ(other.popup->ItemsStr(), text);
    EXPECT_NE(other.Data(1).vflag & vflag::InUse, 0);
    other.Open(); // in stored mode again
    EXPECT_TRUE(other.IsOpen());
}

TEST(xPopupItems, AtDesignTimeTheTextFormIsEmptyAndWritesAreIgnored) {
    TestDesktop desktop;
    desktop.form().UserMode(false);
    auto& popup = desktop.form().Add<xPopup>("popup1", {0, 0, 10, 10});
    popup.AddItem({.text = "a"});
    EXPECT_EQ(popup.ItemsStr(), "");
    popup.ItemsStr("107=b\r\n999\r\n");
    EXPECT_EQ(popup.Count(), 1);
}

// The width of the texts.

TEST(xPopupItems, TheTextsAreMeasuredWithTheFontOfTheBaseComponent) {
    PopupDesktop at({"w", "wwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwww", "ww"});
    at.popup->ItemWidth(1);
    const auto widthOpen = [&] {
        at.popup->CalTextWidth();
        at.Open();
        const tvok_Rect rect = at.WindowRect();
        at.desktop.Key(host::VK_ESCAPE);
        return rect.Right - rect.Left;
    };
    const std::int32_t before = widthOpen();
    EXPECT_GT(before, 300);
    at.popup->Font()->Size(30);
    EXPECT_EQ(widthOpen(), before) << "the popup's own font takes no part";
    at.desktop.form().ComponentOf(*at.popup).Font()->Size(18);
    EXPECT_GT(widthOpen(), before * 3 / 2);
    at.popup->CX_TEXT(120); // the margin left of the texts
    EXPECT_GT(widthOpen(), before * 3 / 2 + 90);
}

TEST(xPopupItems, TheTextsAreMeasuredInSlotOrderWithOneCallEach) {
    PopupDesktop at({"bb", "a"});
    at.popup->SortedMode(bAscendingSorted);
    const auto trace = at.desktop.Trace([&] { at.popup->CalTextWidth(); });
    ASSERT_EQ(trace.size(), 2u);
    EXPECT_THAT(trace[0], testing::AllOf(testing::StartsWith("DrawTextA"), testing::HasSubstr("\"bb\""),
                                         testing::HasSubstr("1056")));
    EXPECT_THAT(trace[1], testing::HasSubstr("\"a\""));
}

} // namespace
} // namespace tvok::test
