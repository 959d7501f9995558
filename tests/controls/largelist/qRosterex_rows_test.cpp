#include "tests/support/FakeLargeList.h"

namespace tvok::test {
namespace {

TEST(LargeListRows, AShortListGrowsFromTheTopWithTheNewestFirst) {
    FakeLargeList f;
    f.list.AddItemTop();
    f.list.AddItemTop();
    EXPECT_EQ(f.list.Count(), 2);
    EXPECT_EQ(f.list.ViewMode(), 0);
    f.Forget();
    f.list.PaintAll();
    EXPECT_EQ(f.TakeAsked(), (Rows{2, 1}));
    const auto texts = f.log().Named("ExtTextOutA");
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_EQ(texts[0].text, "row 2");
    EXPECT_EQ(texts[0].rect.Top, 0);
    EXPECT_EQ(texts[1].rect.Top, 20);
}

TEST(LargeListRows, AnAddToAShortListScrollsOnlyAtTheTop) {
    FakeLargeList f;
    f.list.AddItemTop();
    f.Forget();
    f.list.AddItemTop();
    EXPECT_EQ(f.TakeScrolls(), (Rows{20}));
    f.asked.clear();
    f.list.AddItemButtom();
    EXPECT_EQ(f.TakeScrolls(), (Rows{}));
    EXPECT_EQ(f.TakeAsked(), (Rows{3}));
    EXPECT_EQ(f.list.ViewMode(), 1);
}

TEST(LargeListRows, TheLastAddSetsTheOrientation) {
    FakeLargeList f({}, 3);
    f.list.ViewMode(7);
    EXPECT_EQ(f.list.ViewMode(), 7);
    f.list.AddItemTop();
    EXPECT_EQ(f.list.ViewMode(), 0);
    f.list.ViewMode(9);
    f.list.AddItemButtom();
    EXPECT_EQ(f.list.ViewMode(), 1);
}

TEST(LargeListRows, ARowAtTheVisibleTopCostsOneScrollAndOneRow) {
    FakeLargeList f({}, 1000000);
    f.list.ViewMode(0);
    f.list.Refresh();
    f.Forget();
    f.list.AddItemTop();
    EXPECT_EQ(f.TakeAsked(), (Rows{1000001}));
    EXPECT_EQ(f.TakeScrolls(), (Rows{20}));
    EXPECT_EQ(f.hook().ScrollValue(), 0);
    EXPECT_EQ(f.hook().ScrollMax(), 1000001 - 5);
}

TEST(LargeListRows, ARowAtTheVisibleBottomCostsOneScrollAndOneRow) {
    FakeLargeList f({.height = 110}, 1000000); // one row is cut off
    f.hook().ScrollValue(f.hook().ScrollMax());
    f.Forget();
    f.list.AddItemButtom();
    EXPECT_EQ(f.TakeScrolls(), (Rows{-20}));
    EXPECT_EQ(f.hook().ScrollValue(), 1000001 - 5);
    EXPECT_EQ(f.hook().ScrollMax(), 1000001 - 5);
    EXPECT_EQ(f.TakeAsked(), (Rows{1000001}));
}

TEST(LargeListRows, GridLinesMakeAnAddAtTheTopPaintTwoRows) {
    FakeLargeList f({.height = 105, .GridlineWidth = 1}, 100);
    f.list.ViewMode(0);
    f.list.Refresh();
    f.Forget();
    f.list.AddItemTop();
    EXPECT_EQ(f.TakeAsked(), (Rows{101, 100}));
    EXPECT_EQ(f.TakeScrolls(), (Rows{21}));
}

TEST(LargeListRows, AReaderWhoScrolledAwayKeepsThePlaceWithTheNewestAtTheTop) {
    FakeLargeList f({}, 100);
    f.list.ViewMode(0);
    f.list.Refresh();
    f.hook().ScrollValue(7);
    f.Forget();
    for (int i = 0; i < 300; ++i) f.list.AddItemTop();
    EXPECT_TRUE(f.asked.empty());
    EXPECT_TRUE(f.log().Drawing().empty());
    EXPECT_EQ(f.hook().ScrollValue(), 307);
    EXPECT_EQ(f.hook().ScrollMax(), 395);
    f.list.PaintAll();
    EXPECT_EQ(f.TakeAsked(), (Rows{93, 92, 91, 90, 89}));
}

TEST(LargeListRows, AReaderWhoScrolledAwayKeepsThePlaceWithTheNewestAtTheBottom) {
    FakeLargeList f({}, 100);
    f.hook().ScrollValue(7);
    f.Forget();
    for (int i = 0; i < 300; ++i) f.list.AddItemButtom();
    EXPECT_TRUE(f.asked.empty());
    EXPECT_TRUE(f.log().Drawing().empty());
    EXPECT_EQ(f.hook().ScrollValue(), 7);
    EXPECT_EQ(f.hook().ScrollMax(), 395);
}

TEST(LargeListRows, TheRowThatFillsThePageBringsTheBarAndStaysVisible) {
    FakeLargeList f;
    for (int i = 0; i < 5; ++i) f.list.AddItemButtom();
    EXPECT_FALSE(f.hook().ScrollBarShown());
    f.list.AddItemButtom();
    EXPECT_TRUE(f.hook().ScrollBarShown());
    EXPECT_EQ(f.hook().ScrollMax(), 1);
    EXPECT_EQ(f.hook().ScrollValue(), 1);
    FakeLargeList top;
    for (int i = 0; i < 6; ++i) top.list.AddItemTop();
    EXPECT_TRUE(top.hook().ScrollBarShown());
    EXPECT_EQ(top.hook().ScrollValue(), 0);
}

TEST(LargeListRows, RowsThatComeDuringAThumbDragWaitForItsEnd) {
    FakeLargeList f({}, 100);
    f.list.FileBufCreate();
    f.hook().ScrollValue(f.hook().ScrollMax());
    f.hook().busy = true;
    f.Forget();
    for (int i = 1; i <= 3; ++i) f.list.AddItemButtom(i * 11);
    EXPECT_EQ(f.list.Count(), 100);
    EXPECT_EQ(f.list.FileBufValue(102), 22);
    EXPECT_EQ(f.list.FileBufValue(104), 0);
    EXPECT_TRUE(f.log().All().empty());
    f.hook().busy = false;
    f.hook().events.EndScroll(95);
    EXPECT_EQ(f.list.Count(), 103);
    EXPECT_EQ(f.hook().ScrollValue(), 98);
    EXPECT_EQ(f.TakeScrolls(), (Rows{-60}));
    EXPECT_EQ(f.TakeAsked(), (Rows{101, 102, 103}));
}

TEST(LargeListRows, PendingRowsAwayFromTheVisibleEndShowNothing) {
    FakeLargeList f({}, 100);
    f.hook().ScrollValue(3);
    f.list.BufAddItemOnly(true);
    f.list.AddItemButtom();
    f.list.AddItemButtom();
    f.list.BufAddItemOnly(false);
    EXPECT_EQ(f.list.Count(), 100);
    f.Forget();
    f.list.AddItemButtom();
    EXPECT_EQ(f.list.Count(), 103);
    EXPECT_EQ(f.TakeHookWrites(), (Lines{"ScrollGrow 2", "ScrollGrow 1"}));
    EXPECT_TRUE(f.asked.empty());
}

TEST(LargeListRows, PendingRowsAtTheTopScrollInTogether) {
    FakeLargeList f({}, 100);
    f.list.ViewMode(0);
    f.list.Refresh();
    f.list.BufAddItemOnly(true);
    f.list.AddItemTop();
    f.list.AddItemTop();
    f.list.BufAddItemOnly(false);
    f.Forget();
    f.hook().events.EndScroll(0);
    EXPECT_EQ(f.TakeAsked(), (Rows{102, 101}));
    EXPECT_EQ(f.hook().ScrollMax(), 97);
    EXPECT_EQ(f.TakeScrolls(), (Rows{40}));
    f.hook().ScrollValue(1);
    f.hook().busy = true;
    f.list.AddItemTop();
    f.hook().busy = false;
    f.Forget();
    f.hook().events.EndScroll(1);
    EXPECT_EQ(f.TakeHookWrites(), (Lines{"ScrollGrowValue 1"}));
    EXPECT_TRUE(f.asked.empty());
}

TEST(LargeListRows, BufferedRowsAppearOnlyAfterTheSwitchIsOffAndTheListRefreshes) {
    FakeLargeList f;
    f.list.BufAddItemOnly(true);
    f.list.AddItemButtom();
    f.list.AddItemButtom();
    f.list.Refresh();
    EXPECT_EQ(f.list.Count(), 0);
    f.Forget();
    f.list.BufAddItemOnly(false);
    EXPECT_TRUE(f.log().All().empty());
    EXPECT_EQ(f.list.Count(), 0);
    f.list.Refresh();
    EXPECT_EQ(f.list.Count(), 2);
}

TEST(LargeListRows, AFlushWithoutABarLeavesItsRangeAlone) {
    FakeLargeList f;
    f.list.BufAddItemOnly(true);
    f.list.AddItemButtom();
    f.list.BufAddItemOnly(false);
    f.Forget();
    f.hook().events.EndScroll(0);
    EXPECT_EQ(f.list.Count(), 1);
    EXPECT_TRUE(f.log().NamedOneOf({"hook.ScrollGrow", "hook.ScrollGrowValue"}).empty());
    EXPECT_EQ(f.TakeScrolls(), (Rows{-20}));
}

TEST(LargeListRows, ClearResetsTheBarsInOrderAndForgetsTheCurrentRow) {
    FakeLargeList f({}, 100);
    f.list.ListIndex(50);
    f.Forget();
    f.list.Clear();
    EXPECT_EQ(f.list.Count(), 0);
    EXPECT_EQ(f.list.ListIndex(), 0);
    auto writes = f.TakeHookWrites();
    ASSERT_GE(writes.size(), 6u);
    writes.resize(6);
    EXPECT_EQ(writes, (Lines{"ScrollMax 0", "ScrollValue 0", "ScrollHMax 0", "ScrollHValue 0",
                             "ScrollHBarShown 0", "ScrollBarShown 0"}));
    EXPECT_TRUE(f.asked.empty());
}

TEST(LargeListRows, PendingRowsArriveInTheEmptiedList) {
    FakeLargeList f({}, 10);
    f.list.BufAddItemOnly(true);
    for (int i = 0; i < 3; ++i) f.list.AddItemButtom();
    f.list.Clear();
    EXPECT_EQ(f.list.Count(), 0);
    f.list.BufAddItemOnly(false);
    f.list.Clear();
    EXPECT_EQ(f.list.Count(), 3);
}

TEST(LargeListRows, ANegativeCountIsIgnored) {
    FakeLargeList f({}, 10);
    f.list.Count(-1);
    EXPECT_EQ(f.list.Count(), 10);
    EXPECT_TRUE(f.log().All().empty());
}

TEST(LargeListRows, ASmallerCountTakesTheCurrentRowAlongWithoutAnEvent) {
    FakeLargeList f({}, 100);
    f.list.ListIndex(90);
    f.Forget();
    f.list.Count(40);
    EXPECT_EQ(f.list.ListIndex(), 40);
    EXPECT_EQ(f.hook().ScrollMax(), 35);
    EXPECT_EQ(f.hook().ScrollValue(), 35);
    EXPECT_EQ(f.TakeEvents(), (Lines{}));
}

TEST(LargeListRows, TheLargestCountWorksAndOneMoreIsAnOverflow) {
    FakeLargeList f({.height = 1}, 0);
    constexpr std::int32_t most = 2147483647;
    f.list.ItemHeight(1);
    f.list.GridlineWidth(0);
    f.list.Count(most);
    EXPECT_EQ(f.list.Count(), most);
    EXPECT_THROW(f.list.AddItemButtom(), OverflowError);
    EXPECT_EQ(f.list.Count(), most);
}

TEST(LargeListRows, ValuesFollowTheRowNumbersInBothDirections) {
    FakeLargeList f;
    f.list.FileBufCreate();
    EXPECT_EQ(f.services.files.asked, "|tvokex|tmp");
    f.list.AddItemTop(10);
    f.list.AddItemButtom(20);
    f.list.AddItemTop(-30);
    EXPECT_EQ(f.list.FileBufValue(1), 10);
    EXPECT_EQ(f.list.FileBufValue(2), 20);
    EXPECT_EQ(f.list.FileBufValue(3), -30);
    f.list.FileBufValue(0, 5);
    f.list.FileBufValue(4, 5);
    EXPECT_EQ(f.list.FileBufValue(0), 0);
    EXPECT_EQ(f.list.FileBufValue(4), 0);
    f.list.AddItemTop();
    EXPECT_EQ(f.list.FileBufValue(4), 0);
    const std::string path = f.services.files.paths.back();
    EXPECT_EQ(std::filesystem::file_size(path), 16u);
    f.list.Terminate();
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(LargeListRows, WithoutAFileValuesReadZeroAndWritesAreIgnored) {
    FakeLargeList f({}, 5);
    f.list.FileBufValue(1, 9);
    EXPECT_EQ(f.list.FileBufValue(1), 0);
    f.services.files.refuses = true;
    f.list.FileBufCreate();
    f.list.FileBufValue(1, 9);
    EXPECT_EQ(f.list.FileBufValue(1), 0);
}

TEST(LargeListRows, ANewFileDeletesTheOldAndMayAnswerFromItsPairs) {
    FakeLargeList f({}, 5);
    f.list.FileBufCreate(100);
    f.list.FileBufValue(3, 33);
    const std::string old = f.services.files.paths.back();
    f.list.FileBufCreate(50);
    EXPECT_FALSE(std::filesystem::exists(old));
    EXPECT_EQ(f.list.FileBufValue(3), 33);
    f.list.FileBufCreate(200);
    EXPECT_EQ(f.list.FileBufValue(3), 0);
}

TEST(LargeListRows, ClearEmptiesThePairsAndKeepsTheFile) {
    FakeLargeList f({}, 2);
    f.list.FileBufCreate();
    f.list.FileBufValue(2, 22);
    const std::string path = f.services.files.paths.back();
    f.list.Clear();
    EXPECT_TRUE(std::filesystem::exists(path));
    EXPECT_EQ(f.list.FileBufValue(2), 0);
    f.list.Count(2);
    EXPECT_EQ(f.list.FileBufValue(2), 22);
}

TEST(LargeListCache, TheModulusStaysButAllRecordsOfAGrownCacheAreCleared) {
    FakeLargeList f({}, 3);
    f.fill = [](std::int32_t&, qrosterdata& record) { record.ItemData = 7; };
    f.list.PaintAll();
    f.list.CacheSize(1000);
    EXPECT_EQ(f.list.CacheSize(), 128);
    f.Forget();
    std::vector<std::int32_t> seen;
    f.list.CacheSize(100);
    EXPECT_TRUE(f.log().All().empty());
    f.fill = [&](std::int32_t&, qrosterdata& record) { seen.push_back(record.ItemData); };
    f.list.ClearItemData(0, false);
    EXPECT_TRUE(f.log().All().empty());
    f.list.PaintAll();
    EXPECT_EQ(seen, (Rows{0, 0, 0}));
}

TEST(LargeListCache, RowsOfOnePlaceSeeEachOthersRecord) {
    FakeLargeList f({}, 300);
    f.hook().ScrollValue(127);
    std::string before;
    f.list.DrawItem(128);
    f.fill = [&](std::int32_t& row, qrosterdata& record) {
        if (row == 256) before = record.text + "/" + std::to_string(record.ItemDataEx);
    };
    f.hook().ScrollValue(255);
    EXPECT_EQ(before, "row 128/128");
}

TEST(LargeListCache, ClearingOneDataItemRepaintsItsVisibleRows) {
    FakeLargeList f({}, 100);
    f.fill = [](std::int32_t& row, qrosterdata& record) {
        record.text = "x";
        if (record.ItemDataEx != row || record.ItemData == 0) record.ItemData = row % 2 == 0 ? 7 : 8;
    };
    f.list.PaintAll();       // rows 1 to 5
    f.hook().ScrollValue(3); // rows 4 to 8
    f.Forget();
    f.list.ClearItemData(7, true);
    EXPECT_EQ(f.TakeAsked(), (Rows{4, 6, 8})); // row 2 is off the screen
    f.list.ClearItemData(8, false);
    EXPECT_TRUE(f.asked.empty());
}

TEST(LargeListCache, AHostThatLeavesTheFlagsSeesRowsStaySelected) {
    FakeLargeList f({}, 5);
    f.fill = [](std::int32_t&, qrosterdata& record) { record.text = "x"; };
    f.list.ListIndex(2);
    EXPECT_TRUE(f.SelectedWhenPainted(2));
    f.list.ListIndex(3);
    EXPECT_TRUE(f.SelectedWhenPainted(2));
    EXPECT_FALSE(f.SelectedWhenPainted(4));
}

TEST(LargeListCache, AHandlerMayRenumberTheRow) {
    FakeLargeList f({}, 5);
    std::int32_t kept = 0;
    f.fill = [](std::int32_t& row, qrosterdata& record) {
        record = {.text = "x"};
        row = 77;
    };
    f.list.DrawItem(3);
    f.fill = [&](std::int32_t&, qrosterdata& record) { kept = record.ItemDataEx; };
    f.list.DrawItem(3);
    EXPECT_EQ(kept, 77);
}

TEST(LargeListReentry, AHandlerMayAddRowsAndClearWhileARowIsPainted) {
    FakeLargeList f({}, 100);
    int left = 3;
    f.fill = [&](std::int32_t&, qrosterdata& record) {
        record = {.text = "x"};
        if (left-- > 0) f.list.AddItemTop();
    };
    f.list.PaintAll();
    EXPECT_EQ(f.list.Count(), 103);
    f.fill = [&](std::int32_t&, qrosterdata&) {
        f.fill = nullptr;
        f.list.Clear();
        f.list.HeaderClear();
        f.list.CacheSize(5000);
    };
    f.list.PaintAll();
    EXPECT_EQ(f.list.Count(), 0);
    f.list.HeaderAdd(0, "again", 50);
    f.list.Count(3);
    EXPECT_EQ(f.list.Count(), 3);
    EXPECT_EQ(f.log().LiveObjects(), 0u);
    EXPECT_EQ(f.log().Slips(), 0);
}

TEST(LargeListReentry, AThrowingHandlerLeavesAListThatGoesOn) {
    FakeLargeList f({.height = 105, .GridlineWidth = 1});
    f.fill = [](std::int32_t&, qrosterdata&) { throw Error("no data"); };
    EXPECT_THROW(f.list.AddItemTop(), Error);
    EXPECT_EQ(f.list.Count(), 1);
    f.fill = [](std::int32_t&, qrosterdata& record) { record = {.text = "x"}; };
    for (int i = 0; i < 9; ++i) f.list.AddItemTop();
    EXPECT_EQ(f.list.Count(), 10);
    EXPECT_TRUE(f.hook().ScrollBarShown());
    f.Forget();
    f.hook().ScrollValue(1);
    EXPECT_FALSE(f.asked.empty());
    EXPECT_EQ(f.log().LiveObjects(), 0u);
    EXPECT_EQ(f.log().Slips(), 0);
}

TEST(LargeListReentry, AThrowDuringAPaintMessageEndsThePaint) {
    FakeLargeList f({}, 3);
    f.fill = [](std::int32_t&, qrosterdata&) { throw Error("no data"); };
    EXPECT_THROW(f.PaintMessage({0, 0, 200, 100}), Error);
    EXPECT_EQ(f.log().Named("BeginPaint").size(), 1u);
    EXPECT_EQ(f.log().Named("EndPaint").size(), 1u);
}

TEST(LargeListReentry, AnEventHandlerMayRemoveTheControl) {
    for (const char* which : {"EnumDATA", "Change", "Click"}) {
        FakeLargeList f({}, 20);
        bool ended = false;
        // As a form does it: the control ends at once and is freed when its events have returned.
        const auto end = [&] {
            if (!ended) f.owner->Terminate();
            ended = true;
        };
        const std::string name = which;
        if (name == "EnumDATA")
            f.list.events.EnumDATA = [&](std::int32_t&, qrosterdata&) { end(); };
        else if (name == "Change")
            f.list.events.Change = [&](std::int32_t) { end(); };
        else
            f.list.events.Click = [&](std::int32_t) { end(); };
        f.PressSlot(2);
        if (!ended) f.Release(50, 30);
        EXPECT_TRUE(ended) << name;
    }
}

} // namespace
} // namespace tvok::test
