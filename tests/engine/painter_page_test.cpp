/// Painting items by their index and whole pages of cells.
#include "tests/support/EngineList.h"

namespace tvok::test {
namespace {

using namespace mtvok;

constexpr std::int32_t cBack = 0x102030, cList = 0x223344;

// Items by their index.

/// A list of 2 columns and 3 rows of 100 by 18, lines of 1 pixel.
class PaintedList : public EngineList {
protected:
    PaintedList() {
        state.xn = 2;
        state.yn = 3;
        state.GridlineWidth = 1;
        state.FixedWidthForLastXn = true;
        state.BackColor = cList;
        for (std::int32_t i = 1; i <= 9; ++i) Add({.text = std::to_string(i), .bColor = cBack});
        BuildCellGrid(cells, state);
        log.Clear();
    }
    void PaintItem(std::int32_t index, std::int32_t column = 0, std::int32_t row = 0, bool focus = false) {
        log.Clear();
        DrawItemAt(state, index, items, indexes, cells, callback, column, row, focus);
    }
    void Paint(const tvok_Rect& rect, bool focus = false) {
        log.Clear();
        DrawItems(state, rect, items, indexes, cells, callback, focus);
    }
    std::vector<std::string> DrawnTexts() const {
        std::vector<std::string> texts;
        for (const auto& call : log.Named("ExtTextOutA")) texts.push_back(call.text);
        return texts;
    }
    std::vector<tvok_Rect> BlankFills() const {
        std::vector<tvok_Rect> rects;
        for (const auto& call : log.Named("FillRect"))
            if (call.values[0] == cList) rects.push_back(call.rect);
        return rects;
    }
    std::vector<tvok_Rect> Fillers() const {
        std::vector<tvok_Rect> rects;
        for (std::int32_t row = 1; row <= 4; ++row) {
            tvok_Rect rect = cells(3, row);
            rects.push_back({rect.Left, rect.Top, rect.Right + 1, rect.bottom + 1});
        }
        return rects;
    }
};

TEST_F(PaintedList, AnItemIsPaintedWhereItsIndexSays) {
    PaintItem(4);
    EXPECT_EQ(DrawnTexts(), std::vector<std::string>{"4"});
    EXPECT_EQ(state.CellRect, cells(2, 2));
    EXPECT_EQ(state.CurItem, 4);
}

TEST_F(PaintedList, AnItemOffThePageDrawsNothing) {
    state.CurItem = 77;
    PaintItem(9);
    PaintItem(0);
    PaintItem(-1);
    PaintItem(10);
    EXPECT_TRUE(log.Drawing().empty());
    EXPECT_EQ(state.CurItem, 77);
    state.TopRow = 1;
    PaintItem(2);
    EXPECT_TRUE(log.Drawing().empty());
    PaintItem(9);
    EXPECT_EQ(DrawnTexts(), std::vector<std::string>{"9"}) << "the partial row is on the page";
}

TEST_F(PaintedList, AGivenCellIsTakenWithoutAsking) {
    PaintItem(9, 1, 2);
    EXPECT_EQ(DrawnTexts(), std::vector<std::string>{"9"});
    EXPECT_EQ(state.CellRect, cells(1, 2));
}

TEST_F(PaintedList, TheCurrentItemGetsItsFocusRectangleWhileTheControlHasTheFocus) {
    state.ListIndex = 2;
    PaintItem(2);
    EXPECT_TRUE(log.Named("DrawFocusRect").empty());
    log.focus = cWindow;
    PaintItem(2);
    EXPECT_EQ(log.Named("DrawFocusRect"), Calls{FocusCall(cells(2, 1), Sys(8), Sys(14))});
    PaintItem(3);
    EXPECT_TRUE(log.Named("DrawFocusRect").empty());
}

TEST_F(PaintedList, AFocusFlagHoldsWithoutTheFocus) {
    state.ListIndex = 2;
    PaintItem(2, 0, 0, true);
    EXPECT_EQ(log.Named("DrawFocusRect").size(), 1u);
}

TEST_F(PaintedList, FocusIsThatOfTheFocusWindowAndNotOfTheControlsOwn) {
    state.ListIndex = 2;
    state.FocusHwnd = 99;
    log.focus = cWindow;
    PaintItem(2);
    EXPECT_TRUE(log.Named("DrawFocusRect").empty());
    log.focus = 99;
    PaintItem(2);
    EXPECT_EQ(log.Named("DrawFocusRect").size(), 1u);
}

// The page.

TEST_F(PaintedList, APageShowsItsItemsInOrder) {
    Paint(log.client);
    EXPECT_EQ(DrawnTexts(), (std::vector<std::string>{"1", "2", "3", "4", "5", "6", "7", "8"}));
    EXPECT_EQ(BlankFills(), Fillers());
}

TEST_F(PaintedList, AScrolledPageStartsWithItsFirstRow) {
    state.TopRow = 2;
    Paint(log.client);
    EXPECT_EQ(DrawnTexts(), (std::vector<std::string>{"5", "6", "7", "8", "9"}));
}

TEST_F(PaintedList, ItemsAreCountedWhetherOrNotTheirCellMeetsTheRectangle) {
    Paint({101, 38, 102, 39}); // inside the second column of the third row
    EXPECT_EQ(DrawnTexts(), std::vector<std::string>{"6"});
}

TEST_F(PaintedList, CellsThatReachTheRectangleWithTheirGridLinesArePainted) {
    Paint({100, 0, 101, 17}); // the line between the columns belongs to both
    EXPECT_EQ(DrawnTexts(), (std::vector<std::string>{"1", "2"}));
    Paint({101, 0, 102, 17});
    EXPECT_EQ(DrawnTexts(), std::vector<std::string>{"2"});
    Paint({0, 18, 50, 19}); // the line between the rows
    EXPECT_EQ(DrawnTexts(), (std::vector<std::string>{"1", "3"}));
}

TEST_F(PaintedList, FillerCellsArePaintedWhateverTheRectangle) {
    Paint({0, 0, 10, 10});
    EXPECT_EQ(DrawnTexts(), std::vector<std::string>{"1"});
    EXPECT_EQ(BlankFills(), Fillers());
}

// The test for an empty rectangle compares with a value that it never has. Fillers rely on nothing else.
TEST_F(PaintedList, AnEmptyRectangleStillPaintsTheFillers) {
    Paint({0, 0, 0, 0});
    EXPECT_TRUE(DrawnTexts().empty());
    EXPECT_EQ(BlankFills(), Fillers());
    EXPECT_EQ(log.Drawing().size(), 4u);
}

TEST_F(PaintedList, CellsPastTheLastItemAreBlank) {
    state.TopRow = 3; // items 7 to 9, then blanks
    Paint(log.client);
    EXPECT_EQ(DrawnTexts(), (std::vector<std::string>{"7", "8", "9"}));
    const std::vector<tvok_Rect> expected{Fillers()[0],     {101, 19, 202, 38}, Fillers()[1],
                                          {0, 38, 101, 57}, {101, 38, 202, 57}, Fillers()[2],
                                          {0, 57, 101, 76}, {101, 57, 202, 76}, Fillers()[3]};
    EXPECT_EQ(BlankFills(), expected);
}

TEST_F(PaintedList, BlankCellsOnTheBorderReachOutToTheEdge) {
    state.Count = 0;
    state.GridlineOnBorder = true;
    BuildCellGrid(cells, state);
    Paint(log.client);
    ASSERT_EQ(BlankFills().size(), 12u);
    EXPECT_EQ(BlankFills()[0], (tvok_Rect{0, 0, 102, 20}));
    EXPECT_EQ(BlankFills()[1], (tvok_Rect{102, 0, 203, 20}));
    EXPECT_EQ(BlankFills()[3], (tvok_Rect{0, 20, 102, 39}));
}

TEST_F(PaintedList, BlankCellsUseSlotZero) {
    state.Count = 0;
    state.HeadWidthEx = 10;
    items.Put(0, {.key = "blank", .vflag = vflag::HostHead});
    Paint(log.client);
    const Calls calls = log.Named("ExDraw");
    ASSERT_EQ(calls.size(), 4u) << "one for each row of the first column";
    EXPECT_EQ(calls[0], ExDrawCall(512, 0, "blank", {-1, -1, 9, 19}));
}

TEST_F(PaintedList, AnEntryOfARemovedItemPaintsSlotZeroAsAnItem) {
    indexes[3] = 0;
    items.Put(0, {.text = "gone"});
    Paint(log.client);
    EXPECT_EQ(DrawnTexts(), (std::vector<std::string>{"1", "2", "gone", "4", "5", "6", "7", "8"}));
}

TEST_F(PaintedList, FocusFlagGoesToTheItems) {
    state.ListIndex = 3;
    Paint(log.client);
    EXPECT_TRUE(log.Named("DrawFocusRect").empty());
    Paint(log.client, true);
    EXPECT_EQ(log.Named("DrawFocusRect"), Calls{FocusCall(cells(1, 2), Sys(8), Sys(14))});
    Paint(log.client, false);
    log.focus = cWindow;
    Paint(log.client, false);
    EXPECT_EQ(log.Named("DrawFocusRect").size(), 1u);
}

TEST_F(PaintedList, WithoutACurrentItemNoBlankCellShowsTheFocus) {
    state.Count = 0;
    state.ListIndex = 0;
    Paint(log.client, true);
    EXPECT_TRUE(log.Named("DrawFocusRect").empty());
}

TEST_F(PaintedList, EveryCellIsNotedAlsoOneThatIsNotPainted) {
    Paint({0, 0, 1, 1});
    EXPECT_EQ(state.CurCol, 3);
    EXPECT_EQ(state.CurRow, 4);
    EXPECT_EQ(state.CellRect, cells(3, 4));
    EXPECT_EQ(state.CurItem, 0) << "the filler of the last row is blank";
}

TEST_F(PaintedList, NothingIsPaintedWhereTheGridIsLargerThanTheTableOfCells) {
    state.GridCols = 21;
    Paint(log.client);
    EXPECT_TRUE(log.All().empty());
    state.GridCols = 3;
    state.GridRows = 21;
    Paint(log.client);
    EXPECT_TRUE(log.All().empty());
}

TEST_F(PaintedList, AHandlerMayClearTheListWhileItsItemIsPainted) {
    auto item = items[1];
    item.vflag |= vflag::IconBox | vflag::HostIcon;
    item.text = std::string(100, 'x');
    items.Put(1, item);
    onExDraw = [this](std::int32_t&) {
        items.Reset();
        indexes.Make(0);
        state.Count = 0;
    };
    EXPECT_NO_THROW(Paint(log.client));
    EXPECT_EQ(DrawnTexts(), std::vector<std::string>{std::string(100, 'x')}) << "the rest of it, then blanks";
}

} // namespace
} // namespace tvok::test
