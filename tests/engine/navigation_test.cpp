/// From a point or a key to an item, and from an item to a scroll position.
#include "tests/support/EngineList.h"

namespace tvok::test {
namespace {

using namespace mtvok;

/// 3 columns of 100 and 4 whole rows of 18 with lines of 1 pixel between; 30 items, the page starts with
/// row 3.
class HitTest : public EngineList {
protected:
    HitTest() {
        log.client = {0, 0, 330, 80};
        state.xn = 3;
        state.yn = 4;
        state.GridlineWidth = 1;
        state.FixedWidthForLastXn = true;
        state.Count = 30;
        state.TopRow = 2;
        BuildCellGrid(cells, state);
    }
    std::int32_t At(std::int32_t x, std::int32_t y) { return ItemFromPoint(cells, state, x, y); }
    std::int32_t Mouse(std::int32_t x, std::int32_t y, std::int32_t buttons) {
        return ItemFromMouseMsg(state, cells, dgi::LParamFromPoint(x, y), buttons);
    }
};

// Points.

TEST_F(HitTest, TheFirstCellOfThePageIsTheItemBehindTheScrolledRows) {
    EXPECT_EQ(At(0, 0), 7);
    EXPECT_EQ(At(101, 0), 8);
    EXPECT_EQ(At(250, 10), 9);
    EXPECT_EQ(At(50, 30), 10);
    EXPECT_EQ(At(250, 79), 21) << "the partial row counts";
}

TEST_F(HitTest, APointOnAGridLineBelongsToTheFirstCellThatReachesIt) {
    EXPECT_EQ(At(100, 5), 7);
    EXPECT_EQ(At(101, 5), 8);
    EXPECT_EQ(At(5, 18), 7);
    EXPECT_EQ(At(5, 19), 10);
    EXPECT_EQ(At(100, 18), 7);
    EXPECT_EQ(At(-1, -1), 7) << "cells are inflated to the left and above too";
    EXPECT_EQ(At(-2, 5), 0);
}

TEST_F(HitTest, APointInTheFillerColumnHitsNothing) {
    EXPECT_EQ(At(302, 5), 9) << "the line belongs to the last column";
    EXPECT_EQ(At(303, 5), 0);
    EXPECT_EQ(At(303, 40), 0);
}

TEST_F(HitTest, AFillerEndsItsRowsSearchAndTheRowsBelowAreStillTried) {
    state.xn = 1;
    state.TopRow = 0;
    state.GridCols = 2;
    state.GridRows = 2;
    state.GridlineWidth = 0;
    cells.Make(3, 3);
    cells(1, 1) = {0, 0, 10, 10};
    cells(2, 1) = {10, 0, 100, 50};
    cells(1, 2) = {0, 11, 50, 30};
    cells(2, 2) = {50, 11, 100, 30};
    EXPECT_EQ(At(30, 20), 2);
    EXPECT_EQ(At(60, 20), 0);
    EXPECT_EQ(At(5, 5), 1);
}

TEST_F(HitTest, AnItemBehindTheLastOneIsNone) {
    state.Count = 10;
    EXPECT_EQ(At(50, 30), 10);
    EXPECT_EQ(At(150, 30), 0);
    state.Count = 0;
    EXPECT_EQ(At(0, 0), 0);
}

// Mouse messages.

TEST_F(HitTest, AMouseMessageHitsOnlyWithTheLeftButtonOrHotTracking) {
    EXPECT_EQ(Mouse(150, 5, 0), 0);
    EXPECT_EQ(Mouse(150, 5, 2 | 4 | 8 | 16), 0) << "other buttons and keys";
    EXPECT_EQ(Mouse(150, 5, 1), 8);
    EXPECT_EQ(Mouse(150, 5, 1 | 8), 8);
    state.HotTrack = true;
    EXPECT_EQ(Mouse(150, 5, 0), 8);
}

TEST_F(HitTest, AMouseMessageBesideTheClientAreaIsNone) {
    state.ListIndex = 10;
    for (const std::int32_t y : {-5, 5, 500}) {
        EXPECT_EQ(Mouse(-1, y, 1), 0);
        EXPECT_EQ(Mouse(330, y, 1), 0);
    }
    EXPECT_EQ(Mouse(0, 5, 1), 7);
    EXPECT_EQ(Mouse(329, -1, 1), 7) << "inside the sides: one key step up from 10";
}

TEST_F(HitTest, ADragAboveOrBelowMovesOneKeyStep) {
    state.ListIndex = 10;
    EXPECT_EQ(Mouse(50, -1, 1), 7);
    EXPECT_EQ(Mouse(50, 80, 1), 13) << "the bottom edge is outside";
    EXPECT_EQ(Mouse(50, 79, 1), 19);
    EXPECT_EQ(Mouse(50, -300, 1), 7);
    EXPECT_EQ(Mouse(50, 3000, 1), 13);
}

TEST_F(HitTest, OutsideAboveAndBelowNothingMovesWithoutTheButton) {
    state.ListIndex = 10;
    state.HotTrack = true;
    EXPECT_EQ(Mouse(50, -1, 0), 0);
    EXPECT_EQ(Mouse(50, 80, 0), 0);
}

// Keys.

class NavigationKeys : public EngineList {
protected:
    NavigationKeys() {
        state.xn = 3;
        state.yn = 4;
        state.Count = 30;
    }
    std::int32_t From(std::int32_t current, std::int32_t key) {
        state.ListIndex = current;
        return IndexFromKey(key, state);
    }
};

TEST_F(NavigationKeys, PageUpGoesBackAPageOrToTheFirst) {
    EXPECT_EQ(From(13, 33), 1);
    EXPECT_EQ(From(20, 33), 8);
    EXPECT_EQ(From(12, 33), 1);
    EXPECT_EQ(From(0, 33), 1);
    state.xn = state.yn = 1;
    EXPECT_EQ(From(0, 33), 1);
}

TEST_F(NavigationKeys, PageDownGoesOnAPageOrToTheLast) {
    EXPECT_EQ(From(1, 34), 13);
    EXPECT_EQ(From(18, 34), 30);
    EXPECT_EQ(From(19, 34), 30);
    EXPECT_EQ(From(0, 34), 12);
}

TEST_F(NavigationKeys, EndAndHomeGoToTheEnds) {
    EXPECT_EQ(From(5, 35), 30);
    EXPECT_EQ(From(5, 36), 1);
    state.Count = 0;
    EXPECT_EQ(From(0, 35), 0);
    EXPECT_EQ(From(0, 36), 1);
}

TEST_F(NavigationKeys, LeftAndRightGoByOne) {
    EXPECT_EQ(From(5, 37), 4);
    EXPECT_EQ(From(1, 37), 1);
    EXPECT_EQ(From(0, 37), 1);
    EXPECT_EQ(From(5, 39), 6);
    EXPECT_EQ(From(30, 39), 30);
    EXPECT_EQ(From(0, 39), 1);
}

TEST_F(NavigationKeys, UpGoesByARowAndInTheFirstRowByOne) {
    EXPECT_EQ(From(5, 38), 2);
    EXPECT_EQ(From(4, 38), 1);
    EXPECT_EQ(From(3, 38), 2);
    EXPECT_EQ(From(1, 38), 1);
    EXPECT_EQ(From(0, 38), 1);
}

TEST_F(NavigationKeys, DownGoesByARowAndInTheLastRowByOneUpToTheLast) {
    EXPECT_EQ(From(5, 40), 8);
    EXPECT_EQ(From(27, 40), 30);
    EXPECT_EQ(From(28, 40), 29);
    EXPECT_EQ(From(29, 40), 30);
    EXPECT_EQ(From(30, 40), 30);
    EXPECT_EQ(From(0, 40), 3);
}

TEST_F(NavigationKeys, OtherKeysLeadNowhere) {
    for (const std::int32_t key : {0, 1, 8, 13, 27, 32, 41, 45, 46, 65, 112, -1}) EXPECT_EQ(From(5, key), 0);
}

TEST_F(NavigationKeys, PagesOfAnySizeLeadToTheEnds) {
    state.xn = state.yn = 1 << 20;
    EXPECT_EQ(From(5, 34), 30);
    EXPECT_EQ(From(5, 33), 1);
}

// The scroll range.

using Writes = std::vector<std::pair<std::string, std::int32_t>>;

class ScrollRange : public EngineList {
protected:
    FakeHook hook;
};

TEST_F(ScrollRange, RangeIsTheRowsBeyondThePage) {
    state.xn = 3;
    state.yn = 2;
    state.Count = 10; // 4 rows
    hook.value = 0;
    UpdateScrollRange(&hook, state);
    EXPECT_EQ(hook.writes, (Writes{{"ScrollLarge", 2}, {"ScrollMax", 2}}));
    hook.writes.clear();
    state.Count = 9;
    UpdateScrollRange(&hook, state);
    EXPECT_EQ(hook.writes, (Writes{{"ScrollLarge", 2}, {"ScrollMax", 1}}));
}

TEST_F(ScrollRange, AListThatFitsHasNoRangeAndGoesToTheTop) {
    state.xn = 3;
    state.yn = 2;
    state.Count = 6; // just the page
    hook.max = hook.value = 5;
    UpdateScrollRange(&hook, state);
    EXPECT_EQ(hook.writes, (Writes{{"ScrollLarge", 2}, {"ScrollMax", 0}, {"ScrollValue", 0}}));
    EXPECT_EQ(hook.value, 0);
    hook.writes.clear();
    state.Count = 0;
    UpdateScrollRange(&hook, state);
    EXPECT_EQ(hook.writes, (Writes{{"ScrollLarge", 2}, {"ScrollMax", 0}, {"ScrollValue", 0}}));
}

TEST_F(ScrollRange, WithoutColumnsTheRangeStays) {
    state.xn = 0;
    UpdateScrollRange(&hook, state);
    EXPECT_TRUE(hook.writes.empty());
}

TEST_F(ScrollRange, WithoutAHookIsAnObjectError) {
    EXPECT_THROW(UpdateScrollRange(nullptr, state), ObjectError);
    state.Count = 5;
    state.GridRows = 6;
    EXPECT_THROW(EnsureItemVisible(nullptr, state, 1, true), ObjectError);
}

// Bringing an item into view.

class IntoView : public ScrollRange {
protected:
    IntoView() {
        state.yn = 5;
        state.GridRows = 6;
        state.Count = 100;
        hook.max = 95;
    }
    /// What was written to the position.
    std::vector<std::int32_t> Moves(std::int32_t position, std::int32_t index, bool last,
                                    bool expected = false) {
        hook.value = position;
        hook.writes.clear();
        EXPECT_EQ(EnsureItemVisible(&hook, state, index, last), expected);
        std::vector<std::int32_t> moves;
        for (const auto& [name, value] : hook.writes) {
            EXPECT_EQ(name, "ScrollValue");
            moves.push_back(value);
        }
        return moves;
    }
    const std::vector<std::int32_t> none;
};

TEST_F(IntoView, AnItemOnThePageMovesNothing) {
    EXPECT_EQ(Moves(10, 11, true), none);
    EXPECT_EQ(Moves(10, 15, true), none);
}

TEST_F(IntoView, AnItemInThePartialRowMovesThePageOnlyWhenItHasToBeWhole) {
    EXPECT_EQ(Moves(0, 6, false), none);
    EXPECT_EQ(Moves(0, 6, true), std::vector<std::int32_t>{1});
    EXPECT_EQ(Moves(0, 7, false), std::vector<std::int32_t>{1});
}

TEST_F(IntoView, AnItemBelowBecomesTheLastRow) {
    EXPECT_EQ(Moves(10, 40, true), std::vector<std::int32_t>{35});
    EXPECT_EQ(Moves(10, 40, false), std::vector<std::int32_t>{34});
}

TEST_F(IntoView, AnItemAboveBecomesTheFirstRow) {
    EXPECT_EQ(Moves(10, 10, true), std::vector<std::int32_t>{9});
    EXPECT_EQ(Moves(10, 1, true), std::vector<std::int32_t>{0});
    EXPECT_EQ(Moves(10, 4, false), std::vector<std::int32_t>{3});
}

TEST_F(IntoView, RowsOfSeveralItemsAreCounted) {
    state.xn = 3;
    EXPECT_EQ(Moves(0, 15, true), none) << "row 5";
    EXPECT_EQ(Moves(0, 16, true), std::vector<std::int32_t>{1}) << "row 6";
}

// The index is compared with a row number, so with several columns an item above the page comes back only
// while its index is below the first row's number. Hosts rely on it.
TEST_F(IntoView, AboveThePageTheIndexAndNotTheRowIsCompared) {
    state.xn = 3;
    EXPECT_EQ(Moves(4, 9, true), none) << "row 3 is above the page, but 9 is not below 5";
    EXPECT_EQ(Moves(4, 5, true), none);
    EXPECT_EQ(Moves(4, 4, true), std::vector<std::int32_t>{1}) << "row 2";
    EXPECT_EQ(Moves(4, 1, true), std::vector<std::int32_t>{0});
}

TEST_F(IntoView, NoItemOrAnEmptyListMovesNothing) {
    EXPECT_EQ(Moves(10, 0, true), none);
    EXPECT_EQ(Moves(10, -1, true), none);
    state.Count = 0;
    EXPECT_EQ(Moves(10, 1, true), none);
}

TEST_F(IntoView, APageWithoutRowsMovesNothing) {
    state.yn = 0;
    EXPECT_EQ(Moves(0, 50, true), none);
    state.yn = 5;
    state.GridRows = 0;
    EXPECT_EQ(Moves(0, 50, false), none);
    state.GridRows = -1;
    EXPECT_EQ(Moves(0, 50, false), none);
}

TEST_F(IntoView, APositionThatDoesNotHoldIsWrittenOnceMoreAndTold) {
    hook.max = 3;
    EXPECT_EQ(Moves(0, 50, true, true), (std::vector<std::int32_t>{45, 45}));
    EXPECT_EQ(hook.value, 3);
}

TEST_F(IntoView, AHandlerThatMovesThePageAwayIsOverruledOnce) {
    bool moved = false;
    hook.events.Change = [&](std::int32_t, std::int32_t, std::int32_t) {
        if (std::exchange(moved, true)) return;
        hook.value = 7;
    };
    EXPECT_EQ(Moves(0, 50, true, true), (std::vector<std::int32_t>{45, 45}));
    EXPECT_EQ(hook.value, 45);
}

} // namespace
} // namespace tvok::test
