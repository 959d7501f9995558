/// Every member of `qRosterex` that is written: what it keeps, what it refuses, and whether it repaints.
#include <cstring>

#include "tests/support/FakeLargeList.h"

namespace tvok::test {
namespace {

void SetSystemFont(CallLog& log, const char* face, std::int32_t pixels) {
    log.guiFont.lfHeight = -pixels;
    std::memset(log.guiFont.lfFaceName, 0, sizeof log.guiFont.lfFaceName);
    std::memcpy(log.guiFont.lfFaceName, face, std::strlen(face));
}

std::int32_t TopOfRowText(FakeLargeList& f) {
    f.Forget();
    f.list.DrawItem(1);
    return f.log().Named("ExtTextOutA").front().values[1];
}

TEST(LargeListSettings, AFontLeavesTheRowsTextHeightAsItIs) {
    FakeLargeList f({}, 1);
    FakeFont other(f.log());
    other.value = {"Other Sans", 6, false, false, false, false};
    f.Forget();
    f.list.Font(other);
    EXPECT_TRUE(f.log().Drawing().empty());
    EXPECT_EQ(f.list.Font()->Name(), "Other Sans");
    EXPECT_EQ(f.list.TextHeight(), 8);
    EXPECT_EQ(TopOfRowText(f), 2); // of the 16 pixels that the former font has
}

TEST(LargeListSettings, TheSystemFontTakesTheRowsTextHeightAlong) {
    FakeLargeList f({}, 1);
    SetSystemFont(f.log(), "Gui Sans", 4);
    f.Forget();
    f.list.SetToSystemfont(false); // the face alone
    EXPECT_TRUE(f.log().Drawing().empty());
    EXPECT_EQ(f.component.font->Name(), "Gui Sans");
    EXPECT_EQ(f.component.font->Size(), 12);
    EXPECT_EQ(TopOfRowText(f), 2);
    f.list.SetToSystemfont();
    EXPECT_EQ(f.component.font->Size(), 3);
    EXPECT_EQ(f.list.TextHeight(), 4);
    EXPECT_EQ(TopOfRowText(f), 8);
}

TEST(LargeListSettings, TheSystemFontTakesAFormerFontsTextHeightAlongToo) {
    FakeLargeList f({}, 1);
    FakeFont other(f.log());
    other.value.Size = 6;
    f.list.Font(other);
    f.log().guiFontReadable = false; // so that nothing else changes
    f.list.SetToSystemfont(false);
    EXPECT_EQ(TopOfRowText(f), 6);
}

TEST(LargeListSettings, RowsUseTheFontThatTheComponentReportsAfterAWrite) {
    FakeLargeList f({}, 1);
    const auto former = f.component.font;
    f.component.font = std::make_shared<FakeFont>(f.log());
    f.list.Font(*former);
    f.fill = [](std::int32_t&, qrosterdata& record) { record = {.text = "x", .vflag = 0x00100000}; };
    f.list.DrawItem(1);
    EXPECT_TRUE(f.component.font->Bold());
    EXPECT_FALSE(former->Bold());
}

TEST(LargeListSettings, FrameAndAppearanceGoToTheComponentWhichMayRefuseThem) {
    FakeLargeList f;
    f.list.Appearance(1);
    f.list.BorderStyle(1);
    EXPECT_EQ(f.component.Appearance(), 1);
    EXPECT_EQ(f.component.BorderStyle(), 1);
    EXPECT_EQ(f.list.Appearance(), 1);
    EXPECT_EQ(f.list.BorderStyle(), 1);
    EXPECT_NO_THROW(f.list.Appearance(7));
    EXPECT_NO_THROW(f.list.BorderStyle(9));
    EXPECT_NO_THROW(f.list.BorderStyle(65536)); // no 16-bit number: not 0
    EXPECT_EQ(f.list.Appearance(), 1);
    EXPECT_EQ(f.list.BorderStyle(), 1);
    f.list.FontTransparent(false);
    EXPECT_FALSE(f.component.FontTransparent());
    f.list.FontTransparent(true);
    EXPECT_TRUE(f.list.FontTransparent());
}

TEST(LargeListSettings, PlainStoresReadBackAndTouchNothing) {
    FakeLargeList f({}, 5);
    f.list.HotTrack(true);
    EXPECT_TRUE(f.list.HotTrack());
    f.list.HeadExBackColor(11);
    EXPECT_EQ(f.list.HeadExBackColor(), 11);
    f.list.HeadExBorderColor(12);
    EXPECT_EQ(f.list.HeadExBorderColor(), 12);
    f.list.HeaderHeight(20);
    EXPECT_EQ(f.list.HeaderHeight(), 20);
    f.list.HeaderHeight(-20);
    EXPECT_EQ(f.list.HeaderHeight(), -20);
    f.list.HeaderFlag(4);
    EXPECT_EQ(f.list.HeaderFlag(), 4);
    f.list.IconCX(-2);
    EXPECT_EQ(f.list.IconCX(), -2);
    f.list.IconCY(-3);
    EXPECT_EQ(f.list.IconCY(), -3);
    f.list.ShowIcon(true);
    EXPECT_TRUE(f.list.ShowIcon());
    f.list.KeySeek(true);
    EXPECT_TRUE(f.list.KeySeek());
    f.list.CX_TEXT(0);
    EXPECT_EQ(f.list.CX_TEXT(), 0);
    f.list.IconHandle(5);
    f.list.TmpData("kept");
    EXPECT_EQ(f.list.TmpData().AsText(), "kept");
    f.list.BufAddItemOnly(true);
    EXPECT_TRUE(f.list.BufAddItemOnly());
    f.list.BufAddItemOnly(false);
    f.list.LockedPaint(true);
    EXPECT_TRUE(f.list.LockedPaint());
    f.list.LockedPaint(false);
    f.list.MultiSelect(1);
    EXPECT_EQ(f.list.MultiSelect(), 1);
    EXPECT_TRUE(f.log().All().empty());
}

TEST(LargeListSettings, LooksReadBackAndRepaintOnce) {
    FakeLargeList f({}, 2);
    const auto repaintsOnce = [&](const char* what, const std::function<void()>& write) {
        f.Forget();
        write();
        EXPECT_EQ(f.asked, (Rows{1, 2})) << what;
    };
    repaintsOnce("SelectedColor", [&] { f.list.SelectedColor(21); });
    repaintsOnce("IconBorderColor", [&] { f.list.IconBorderColor(22); });
    repaintsOnce("BackColor", [&] { f.list.BackColor(23); });
    repaintsOnce("GridlineColor", [&] { f.list.GridlineColor(24); });
    repaintsOnce("HeadWidthEx", [&] { f.list.HeadWidthEx(25); });
    repaintsOnce("FixedHeight", [&] { f.list.FixedHeight(false); });
    repaintsOnce("ClearItemData", [&] { f.list.ClearItemData(); });
    repaintsOnce("ClearSelected", [&] { f.list.ClearSelected(); });
    repaintsOnce("Refresh", [&] { f.list.Refresh(); });
    EXPECT_EQ(f.list.SelectedColor(), 21);
    EXPECT_EQ(f.list.IconBorderColor(), 22);
    EXPECT_EQ(f.list.BackColor(), 23);
    EXPECT_EQ(f.list.GridlineColor(), 24);
    EXPECT_EQ(f.list.HeadWidthEx(), 25);
    EXPECT_FALSE(f.list.FixedHeight());
    f.list.GridlineWidth(3);
    repaintsOnce("GridlineWidth", [&] { f.list.GridlineWidth(0); });
    EXPECT_EQ(f.list.GridlineWidth(), 0);
    f.Forget();
    f.list.ItemHeight(-5);
    EXPECT_EQ(f.list.ItemHeight(), 20);
    EXPECT_TRUE(f.log().All().empty());
}

TEST(LargeListSettings, HeightsAndGapsLayOutAnewAndColoursDoNot) {
    FakeLargeList f({}, 100);
    const auto laysOut = [&](bool expected, const char* what, const std::function<void()>& write) {
        f.Forget();
        write();
        EXPECT_EQ(!f.TakeHookWrites().empty(), expected) << what;
    };
    laysOut(true, "ItemHeight", [&] { f.list.ItemHeight(25); });
    EXPECT_EQ(f.list.yn(), 4);
    laysOut(true, "GridlineWidth", [&] { f.list.GridlineWidth(8); });
    EXPECT_EQ(f.list.yn(), 3);
    laysOut(true, "FixedHeight", [&] { f.list.FixedHeight(true); });
    laysOut(true, "HeaderWidths", [&] { f.list.HeaderWidths("90"); });
    laysOut(false, "HeadWidthEx", [&] { f.list.HeadWidthEx(4); });
    laysOut(false, "BackColor", [&] { f.list.BackColor(4); });
    laysOut(false, "GridlineColor", [&] { f.list.GridlineColor(4); });
    laysOut(false, "CacheSize", [&] { f.list.CacheSize(400); });
}

TEST(LargeListSettings, ACacheSizeClearsOnlyWhereItIsLargerThan128) {
    FakeLargeList f({}, 2);
    f.list.CacheSize(128);
    f.list.CacheSize(-1);
    EXPECT_TRUE(f.log().All().empty());
    f.list.CacheSize(129);
    EXPECT_EQ(f.TakeAsked(), (Rows{1, 2}));
    EXPECT_EQ(f.list.CacheSize(), 128);
}

TEST(LargeListSettings, AtDesignTimeNoWriteRepaints) {
    FakeLargeList f({.UserMode = false});
    f.Forget();
    f.list.Count(5);
    f.list.ListIndex(3);
    f.list.ItemHeight(30);
    f.list.GridlineWidth(3);
    f.list.FixedHeight(false);
    f.list.HeadWidthEx(4);
    f.list.GridlineColor(5);
    f.list.BackColor(6);
    f.list.SelectedColor(7);
    f.list.IconBorderColor(8);
    f.list.CacheSize(500);
    f.list.HeaderWidths("50");
    f.list.MultiSelect(1);
    f.list.Count(0);
    f.list.ClearText("empty");
    EXPECT_TRUE(f.log().Drawing().empty());
    EXPECT_TRUE(f.asked.empty());
    EXPECT_EQ(f.list.ListIndex(), 0); // follows the count
    EXPECT_EQ(f.list.GridlineWidth(), 3);
    EXPECT_EQ(f.list.HeaderWidths(), "50");
    EXPECT_EQ(f.list.ClearText(), "empty");
    EXPECT_EQ(f.component.BackColor(), 6);
}

TEST(LargeListSettings, AtDesignTimeTheMethodsThatPaintEndInTheObjectError) {
    FakeLargeList f({.UserMode = false});
    f.list.Count(5);
    EXPECT_THROW(f.list.AddItemTop(), ObjectError);
    EXPECT_THROW(f.list.AddItemButtom(), ObjectError);
    EXPECT_THROW(f.list.Refresh(), ObjectError);
    EXPECT_THROW(f.list.PaintAll(), ObjectError);
    EXPECT_THROW(f.list.DrawItem(1), ObjectError);
    EXPECT_THROW(f.list.ClearSelected(), ObjectError);
    EXPECT_THROW(f.list.ClearItemData(), ObjectError);
    EXPECT_THROW(f.list.Clear(), ObjectError);
    EXPECT_NO_THROW(f.list.ClearItemData(0, false));
    EXPECT_EQ(f.list.FindItem("x"), 0);
}

TEST(LargeListSettings, EveryBaseEventIsForwardedAndKeysFirst) {
    FakeLargeList f({}, 10);
    Lines seen;
    f.list.events.MouseMove = [&](std::int16_t& button, std::int16_t& shift, float& x, float& y) {
        seen.push_back("move");
        button = 5, shift = 6, x = 7, y = 8;
    };
    f.list.events.MouseUp = [&](std::int16_t& button, std::int16_t&, float&, float&) {
        seen.push_back("up " + std::to_string(button));
    };
    f.list.events.KeyUp = [&](std::int16_t& key, std::int16_t& shift) {
        seen.push_back("key up " + std::to_string(key) + " " + std::to_string(shift));
        key = 1;
    };
    f.list.events.KeyDown = [&](std::int16_t&, std::int16_t& shift) {
        seen.push_back("key down " + std::to_string(shift) + " at " + std::to_string(f.list.ListIndex()));
    };
    std::int16_t button = 2, shift = 4, key = 40;
    float x = 1, y = 1;
    f.list.MouseMove(button, shift, x, y);
    EXPECT_EQ(button, 5);
    EXPECT_EQ(shift, 6);
    EXPECT_EQ(x, 7);
    EXPECT_EQ(y, 8);
    f.list.MouseUp(button, shift, x, y);
    f.list.KeyDown(key, shift);
    EXPECT_EQ(f.list.ListIndex(), 1);
    f.list.KeyUp(key, shift);
    EXPECT_EQ(key, 1);
    EXPECT_EQ(seen, (Lines{"move", "up 5", "key down 6 at 0", "key up 40 6"}));
    EXPECT_EQ(f.TakeEvents(), (Lines{"Change 1", "Click 1"})); // and the mouse did nothing here
}

TEST(LargeListSettings, NothingRaisesTheDrawingEventOfOtherLists) {
    FakeLargeList f({.GridlineWidth = 1, .columns = 2}, 10);
    int raised = 0;
    f.list.events.ExDraw = [&](auto&&...) { ++raised; };
    f.list.HeaderHeight(20);
    f.list.ShowIcon(true);
    f.list.Refresh();
    f.list.ListIndex(2);
    EXPECT_EQ(raised, 0);
}

} // namespace
} // namespace tvok::test
