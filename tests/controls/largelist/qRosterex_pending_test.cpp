/// Rows of a `qRosterex` that wait, that come while the pointer drags, and that are as many as there are
/// numbers.
#include <limits>

#include "tests/support/FakeLargeList.h"

namespace tvok::test {
namespace {

constexpr std::int32_t cMost = std::numeric_limits<std::int32_t>::max();

TEST(LargeListPending, RowsWaitAsLongAsTheSwitchOrTheThumbIsHeld) {
    FakeLargeList f({}, 100);
    f.list.BufAddItemOnly(true);
    f.list.AddItemButtom();
    f.Forget();
    f.hook().events.EndScroll(0);
    EXPECT_EQ(f.list.Count(), 100);
    EXPECT_TRUE(f.log().All().empty());
    f.list.BufAddItemOnly(false);
    f.hook().busy = true;
    f.hook().events.EndScroll(0);
    f.list.Refresh();
    EXPECT_EQ(f.list.Count(), 100);
    EXPECT_TRUE(f.log().NamedOneOf({"hook.ScrollGrow", "hook.ScrollGrowValue"}).empty());
    f.hook().busy = false;
    f.list.Refresh();
    EXPECT_EQ(f.list.Count(), 101);
    f.Forget();
    f.hook().events.EndScroll(0); // none is left
    EXPECT_EQ(f.list.Count(), 101);
    EXPECT_TRUE(f.log().All().empty());
}

TEST(LargeListPending, ARowThatWaitsTurnsTheListAtOnce) {
    FakeLargeList f({}, 100);
    f.hook().busy = true;
    f.list.AddItemTop();
    EXPECT_EQ(f.list.ViewMode(), 0);
    f.asked.clear();
    f.list.PaintAll();
    EXPECT_EQ(f.TakeAsked(), (Rows{100, 99, 98, 97, 96}));
}

TEST(LargeListPending, TheAddAfterThemComesLast) {
    FakeLargeList f;
    f.list.FileBufCreate();
    f.list.BufAddItemOnly(true);
    f.list.AddItemButtom(11);
    f.list.AddItemButtom(22);
    EXPECT_EQ(f.list.FileBufValue(2), 22);
    EXPECT_EQ(f.list.FileBufValue(3), 0);
    f.list.FileBufValue(2, 23); // a row that waits may be written as well
    f.list.FileBufValue(3, 99); // the one behind it may not
    f.list.BufAddItemOnly(false);
    f.list.AddItemButtom(33);
    EXPECT_EQ(f.list.Count(), 3);
    EXPECT_EQ(f.list.FileBufValue(1), 11);
    EXPECT_EQ(f.list.FileBufValue(2), 23);
    EXPECT_EQ(f.list.FileBufValue(3), 33);
    EXPECT_EQ(f.list.FileBufValue(-1), 0);
}

TEST(LargeListPending, WithoutAFileTheValuesAreLost) {
    FakeLargeList f;
    f.list.BufAddItemOnly(true);
    EXPECT_NO_THROW(f.list.AddItemTop(5));
    f.list.BufAddItemOnly(false);
    EXPECT_NO_THROW(f.list.AddItemTop(6));
    EXPECT_EQ(f.list.Count(), 2);
    f.list.FileBufCreate();
    EXPECT_EQ(f.list.FileBufValue(1), 0);
}

TEST(LargeListPending, NoRowWaitsBeyondTheLargestNumber) {
    FakeLargeList f({}, cMost - 1);
    f.list.BufAddItemOnly(true);
    f.list.AddItemButtom();
    EXPECT_THROW(f.list.AddItemButtom(), OverflowError);
    EXPECT_THROW(f.list.AddItemTop(), OverflowError);
    f.list.BufAddItemOnly(false);
    f.list.Refresh();
    EXPECT_EQ(f.list.Count(), cMost);
    EXPECT_THROW(f.list.AddItemTop(), OverflowError);
    EXPECT_THROW(f.list.AddItemButtom(), OverflowError);
    EXPECT_EQ(f.list.Count(), cMost);
}

TEST(LargeListPending, ACountThatLeavesThemNoRoomIsAnOverflow) {
    FakeLargeList f({}, 10);
    f.list.BufAddItemOnly(true);
    f.list.AddItemButtom();
    f.list.BufAddItemOnly(false);
    EXPECT_THROW(f.list.Count(cMost), OverflowError);
    EXPECT_EQ(f.list.Count(), cMost);
    f.list.Count(5);
    EXPECT_EQ(f.list.Count(), 6);
}

TEST(LargeListMost, KeysAndThePointerReachTheLastRow) {
    for (const std::int16_t mode : {std::int16_t{0}, std::int16_t{1}}) {
        FakeLargeList f({}, cMost);
        f.list.ViewMode(mode);
        f.list.Refresh();
        f.list.ListIndex(cMost);
        EXPECT_EQ(f.hook().ScrollValue(), mode == 0 ? 0 : cMost - 5);
        for (const std::int32_t key : {33, 34, 38, 40, 35, 36, 34, 33}) EXPECT_NO_THROW(f.Key(key));
        EXPECT_EQ(f.list.ListIndex(), mode == 0 ? cMost : 1);
        f.list.ListIndex(mode == 0 ? 1 : cMost);
        EXPECT_EQ(f.hook().ScrollValue(), cMost - 5);
        f.PressSlot(5);
        EXPECT_EQ(f.list.ListIndex(), mode == 0 ? 1 : cMost);
        f.PressSlot(1);
        EXPECT_EQ(f.list.ListIndex(), mode == 0 ? 5 : cMost - 4);
    }
}

TEST(LargeListMost, ARangeMayHoldEveryRow) {
    FakeLargeList f({.MultiSelect = 1}, cMost);
    f.list.ListIndex(1);
    f.Key(35, 1);
    EXPECT_EQ(f.list.StartSelected(), 1);
    EXPECT_EQ(f.list.EndSelected(), cMost);
    EXPECT_TRUE(f.SelectedWhenPainted(cMost));
    f.Forget();
    f.Key(36, 1);
    EXPECT_LE(f.asked.size(), 12u);
    EXPECT_EQ(f.list.EndSelected(), 1);
}

TEST(LargeListMost, ValuesOfTheLastRowsAreKept) {
    FakeLargeList f({}, cMost);
    f.list.FileBufCreate(10);
    f.list.FileBufValue(cMost, 77);
    EXPECT_EQ(f.list.FileBufValue(cMost), 77);
    EXPECT_EQ(f.list.FileBufValue(cMost - 10), 0); // of the same place
    EXPECT_EQ(f.list.FileBufValue(cMost), 77);
    EXPECT_EQ(std::filesystem::file_size(f.services.files.paths.back()), std::uintmax_t{cMost} * 4);
}

TEST(LargeListValues, ANewFileOfTheSameSizeStillAnswersFromTheOldPairs) {
    FakeLargeList f({}, 5);
    f.list.FileBufCreate(100);
    f.list.FileBufValue(3, 33);
    f.list.FileBufCreate(100);
    EXPECT_EQ(f.list.FileBufValue(3), 33);
    f.list.FileBufCreate(101);
    EXPECT_EQ(f.list.FileBufValue(3), 0);
}

TEST(LargeListValues, TheFirstCacheHasTenPlaces) {
    FakeLargeList f({}, 30);
    f.list.FileBufCreate(10);
    for (const std::int32_t row : {7, 8, 17}) f.list.FileBufValue(row, row * 10);
    std::filesystem::resize_file(f.services.files.paths.back(), 0);
    EXPECT_EQ(f.list.FileBufValue(8), 80);
    EXPECT_EQ(f.list.FileBufValue(17), 170);
    EXPECT_EQ(f.list.FileBufValue(7), 0); // row 17 has taken its place
}

TEST(LargeListValues, AFileThatWasRefusedIsNotTheLists) {
    struct RefusesAndNames : host::TemporaryFiles {
        std::string named = testing::TempDir() + "large_list_of_another";
        bool CreateTemporaryFile(std::string_view, std::string_view, std::string_view,
                                 std::string& path) override {
            path = named;
            return false;
        }
    } service;
    std::ofstream(service.named) << "kept";
    FakeLargeList f({}, 3);
    f.services.other = &service;
    f.list.FileBufCreate();
    f.list.FileBufValue(1, 5);
    EXPECT_EQ(f.list.FileBufValue(1), 0);
    f.list.Terminate();
    EXPECT_EQ(std::filesystem::file_size(service.named), 4u);
    std::filesystem::remove(service.named);
}

TEST(LargeListCount, AHandlerOfTheRepaintDoesNotChangeWhatIsWritten) {
    FakeLargeList f({}, 10);
    bool added = false;
    f.fill = [&](std::int32_t&, qrosterdata&) {
        if (!std::exchange(added, true)) f.list.AddItemButtom();
    };
    f.list.Count(20);
    EXPECT_TRUE(added);
    EXPECT_EQ(f.list.Count(), 20);
}

TEST(LargeListCount, ClearsTheItemDataOfTheRecordsAndClearDoesNot) {
    FakeLargeList f({}, 3);
    f.fill = [](std::int32_t&, qrosterdata& record) { record.ItemData = 7; };
    f.list.PaintAll();
    Rows seen;
    f.fill = [&](std::int32_t&, qrosterdata& record) { seen.push_back(record.ItemData); };
    f.list.Clear();
    f.list.AddItemButtom();
    EXPECT_EQ(seen, (Rows{7}));
    seen.clear();
    f.list.LockedPaint(true);
    f.list.Count(3);
    f.list.LockedPaint(false);
    f.list.PaintAll();
    EXPECT_EQ(seen, (Rows{0, 0, 0}));
}

TEST(LargeListCount, ASmallerOneTakesAlongACurrentRowBeyondItAlone) {
    FakeLargeList f({}, 100);
    f.list.ListIndex(40);
    f.list.Count(40);
    EXPECT_EQ(f.list.ListIndex(), 40);
    f.list.Count(200);
    EXPECT_EQ(f.list.ListIndex(), 40);
    f.list.Count(0);
    EXPECT_EQ(f.list.ListIndex(), 0);
}

TEST(LargeListAdd, AReaderOneRowFromTheVisibleEndHasScrolledAway) {
    FakeLargeList f({}, 100);
    f.hook().ScrollValue(94);
    f.Forget();
    f.list.AddItemButtom();
    EXPECT_EQ(f.TakeHookWrites(), (Lines{"ScrollGrow 1"}));
    f.hook().ScrollValue(1);
    f.Forget();
    f.list.AddItemTop();
    EXPECT_EQ(f.TakeHookWrites(), (Lines{"ScrollGrowValue 1"}));
    EXPECT_TRUE(f.asked.empty());
}

TEST(LargeListAdd, WithoutABarARowAtTheTopIsDrawnOnceMoreAfterTheLayout) {
    FakeLargeList f;
    f.list.AddItemTop();
    f.asked.clear();
    f.list.AddItemTop();
    EXPECT_EQ(f.TakeAsked(), (Rows{2, 2}));
    f.list.AddItemButtom();
    EXPECT_EQ(f.TakeAsked(), (Rows{3}));
}

TEST(LargeListAdd, ASidewaysPositionThatTheLayoutLimitsIsRepaintedAfterIt) {
    for (const bool top : {false, true}) {
        FakeLargeList f({.columns = 0}, 4);
        f.list.HeaderAdd(0, "wide", 300);
        f.list.ViewMode(top ? std::int16_t{0} : std::int16_t{1});
        f.list.Refresh();
        f.hook().ScrollHValue(50);
        f.list.HeaderWidths("190"); // no bar, and the position is kept
        ASSERT_EQ(f.hook().ScrollHValue(), 50);
        f.list.Count(5);
        f.Forget();
        top ? f.list.AddItemTop() : f.list.AddItemButtom(); // brings both bars
        EXPECT_EQ(f.hook().ScrollHValue(), 6);
        std::set<std::string> atNewPlace;
        bool laidOut = false;
        for (const Call& call : f.log().NamedOneOf({"hook.ScrollMax", "ExtTextOutA"})) {
            if (call.name == "hook.ScrollMax") laidOut = true;
            const bool here = call.rect.Left == 20 - 6 && call.rect.Right == 190 - 6;
            if (here) atNewPlace.insert(call.text);
            EXPECT_TRUE(laidOut || !here); // nothing is painted while the bars change
        }
        const std::set<std::string> page = top ? std::set<std::string>{"row 6", "row 5", "row 4", "row 3"}
                                               : std::set<std::string>{"row 3", "row 4", "row 5", "row 6"};
        EXPECT_TRUE(std::ranges::includes(atNewPlace, page));
    }
}

TEST(LargeListAdd, APositionThatTheLayoutLimitsByAFewRowsMovesNoPixels) {
    FakeLargeList f;
    for (int i = 0; i < 40; ++i) f.list.AddItemTop();
    f.hook().ScrollValue(3);
    f.list.Count(5);
    ASSERT_EQ(f.hook().ScrollValue(), 3); // kept without a bar
    f.Forget();
    f.list.AddItemTop();
    EXPECT_EQ(f.hook().ScrollValue(), 1);
    EXPECT_EQ(f.TakeScrolls(), (Rows{20})); // the add's own; what the bar tells meanwhile is only noted
}

TEST(LargeListAdd, PaintMessagesGoNoFurtherAndOthersDo) {
    FakeLargeList f({}, 3);
    for (const std::int32_t message : {15, 512, 513, 514, 1242}) {
        std::int32_t result = 0;
        bool process = true;
        f.hook().events.RtMsg(message, 0, 0, result, process);
        EXPECT_EQ(process, message != 15) << message;
    }
}

TEST(LargeListReplay, ADragThatTheRangePathBeganIsReplayedInBothModes) {
    FakeLargeList f({.MultiSelect = 1}, 100);
    f.list.ViewMode(0);
    f.list.Refresh();
    f.PressSlot(2);
    EXPECT_EQ(f.list.ListIndex(), 99);
    f.list.MultiSelect(0);
    f.list.AddItemTop();
    EXPECT_EQ(f.list.ListIndex(), 100);
}

TEST(LargeListReplay, AReleaseAndClearEndIt) {
    for (const bool release : {false, true}) {
        FakeLargeList f({.MultiSelect = 1}, 100);
        f.PressSlot(2);
        release ? f.Release() : f.list.Clear();
        f.list.Count(100);
        f.list.ViewMode(0);
        f.list.Refresh();
        const std::int32_t before = f.list.ListIndex();
        f.list.AddItemTop();
        EXPECT_EQ(f.list.ListIndex(), before);
    }
}

TEST(LargeListReplay, TheSinglePathAndARowThatWaitsHaveNone) {
    FakeLargeList f({}, 100);
    f.list.ViewMode(0);
    f.list.Refresh();
    f.PressSlot(2);
    f.list.AddItemTop();
    EXPECT_EQ(f.list.ListIndex(), 99);
    f.list.MultiSelect(1);
    f.PressSlot(2);
    EXPECT_EQ(f.list.ListIndex(), 100);
    f.hook().busy = true;
    f.list.AddItemTop();
    EXPECT_EQ(f.list.ListIndex(), 100);
}

TEST(LargeListReplay, ALockedListScrollsForARowAndPaintsNothing) {
    FakeLargeList f({}, 100);
    f.hook().ScrollValue(95);
    f.list.LockedPaint(true);
    f.Forget();
    f.list.AddItemButtom();
    EXPECT_EQ(f.TakeScrolls(), (Rows{-20}));
    EXPECT_TRUE(f.asked.empty());
    EXPECT_EQ(f.list.Count(), 101);
}

} // namespace
} // namespace tvok::test
