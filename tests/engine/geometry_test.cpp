/// Column widths, tab stops, fit sizes and the grid of cells.
#include "tests/support/EngineList.h"

namespace tvok::test {
namespace {

using Geometry = EngineList;
using namespace mtvok;

// Column widths.

TEST_F(Geometry, FirstColumnWidthIsAPlaceholderWithoutEffect) {
    state.ColWidthSettingStr = "100,50";
    ParseColWidths(state);
    EXPECT_EQ(state.ColWidths[1], 50);
    EXPECT_EQ(state.ColWidths[2], state.ItemWidth);
    state.ColWidthSettingStr = "0,100,50";
    ParseColWidths(state);
    EXPECT_EQ(state.ColWidths[1], 100);
    EXPECT_EQ(state.ColWidths[2], 50);
    EXPECT_EQ(state.ColWidths[3], state.ItemWidth);
    EXPECT_EQ(state.ColWidths[0], 0);
}

TEST_F(Geometry, WithoutASettingEveryColumnHasTheItemWidth) {
    state.ItemWidth = 73;
    ParseColWidths(state);
    EXPECT_EQ(state.ColWidths.UpperBound(), 100);
    EXPECT_EQ(state.ColWidths[0], 0);
    for (std::int32_t i = 1; i <= 100; ++i) EXPECT_EQ(state.ColWidths[i], 73) << i;
}

TEST_F(Geometry, AColumnWidthBelowOneMeansTheItemWidth) {
    state.ColWidthSettingStr = "0,0,-5,abc,,1, 7";
    ParseColWidths(state);
    for (const std::int32_t i : {1, 2, 3, 4}) EXPECT_EQ(state.ColWidths[i], 100) << i;
    EXPECT_EQ(state.ColWidths[5], 1);
    EXPECT_EQ(state.ColWidths[6], 100) << "a blank in front is not numeric";
}

TEST_F(Geometry, ColumnWidthsAreScannedAndRoundedHalfToEven) {
    state.ColWidthSettingStr = "0,12ab,2.5,3.5,0.5,&H10&,1e2";
    ParseColWidths(state);
    EXPECT_EQ(state.ColWidths[1], 12);
    EXPECT_EQ(state.ColWidths[2], 2);
    EXPECT_EQ(state.ColWidths[3], 4);
    EXPECT_EQ(state.ColWidths[4], 100) << "0.5 rounds to 0";
    EXPECT_EQ(state.ColWidths[5], 16);
    EXPECT_EQ(state.ColWidths[6], 1) << "no exponent is read";
}

TEST_F(Geometry, HeadBandWidensTheFirstColumn) {
    state.HeadWidthEx = 15;
    ParseColWidths(state);
    EXPECT_EQ(state.ColWidths[1], 115);
    EXPECT_EQ(state.ColWidths[2], 100);
    state.ColWidthSettingStr = "0,40";
    ParseColWidths(state);
    EXPECT_EQ(state.ColWidths[1], 55);
}

TEST_F(Geometry, OnlyAHundredColumnWidthsAreRead) {
    state.ColWidthSettingStr = "0";
    for (int i = 1; i <= 120; ++i) state.ColWidthSettingStr += "," + std::to_string(i + 200);
    ParseColWidths(state);
    EXPECT_EQ(state.ColWidths[1], 201);
    EXPECT_EQ(state.ColWidths[100], 300);
    EXPECT_EQ(state.ColWidths.UpperBound(), 100);
}

TEST_F(Geometry, AColumnWidthPastThirtyTwoBitsIsAnOverflowError) {
    state.ColWidthSettingStr = "0,99999999999";
    EXPECT_THROW(ParseColWidths(state), OverflowError);
}

TEST_F(Geometry, AHeadBandThatOverflowsTheFirstColumnIsAnOverflowError) {
    state.ColWidthSettingStr = "0,2147483647";
    state.HeadWidthEx = 1;
    EXPECT_THROW(ParseColWidths(state), OverflowError);
}

// Tab stops.

std::vector<std::int32_t> Stops(const ListState& state) {
    std::vector<std::int32_t> stops;
    for (std::int32_t i = 0; i < state.TabCount; ++i) stops.push_back(state.TabStops[i]);
    return stops;
}

TEST_F(Geometry, TabStopsLoseTheirSign) {
    state.TabStopSettingStr = "-40,60";
    ParseTabStops(state);
    EXPECT_EQ(Stops(state), (std::vector<std::int32_t>{40, 60}));
}

TEST_F(Geometry, AnEmptySettingClearsTheTabStops) {
    state.TabStopSettingStr = "40,60";
    ParseTabStops(state);
    state.TabStopSettingStr = "";
    ParseTabStops(state);
    EXPECT_EQ(state.TabCount, 0);
}

TEST_F(Geometry, TabStopsAreScannedAndRoundedHalfToEven) {
    state.TabStopSettingStr = "2.5,3.5,12px,x,,";
    ParseTabStops(state);
    EXPECT_EQ(Stops(state), (std::vector<std::int32_t>{2, 4, 12, 0, 0, 0}));
}

TEST_F(Geometry, TabStopsGrowAndNeverShrink) {
    state.TabStopSettingStr = "1,2,3,4";
    ParseTabStops(state);
    EXPECT_EQ(state.TabStops.UpperBound(), 3);
    state.TabStopSettingStr = "9";
    ParseTabStops(state);
    EXPECT_EQ(state.TabCount, 1);
    EXPECT_EQ(state.TabStops.UpperBound(), 3);
    EXPECT_EQ(state.TabStops[0], 9);
    EXPECT_EQ(state.TabStops[1], 2) << "what is beyond the count keeps its content";
}

TEST_F(Geometry, ATabStopPastThirtyTwoBitsKeepsItsOldEntryAndIsCounted) {
    state.TabStopSettingStr = "1,77,3";
    ParseTabStops(state);
    state.TabStopSettingStr = "10,99999999999,30";
    EXPECT_NO_THROW(ParseTabStops(state));
    EXPECT_EQ(Stops(state), (std::vector<std::int32_t>{10, 77, 30}));
}

// Fitting height.

class FitHeight : public EngineList {
protected:
    FitHeight() {
        state.GridlineWidth = 1;
        state.FixedHeight = true;
    }
};

TEST_F(FitHeight, WholeRowsOfTheClientAreaDecideTheWantedHeight) {
    EXPECT_EQ(ComputeFitHeight(state, 0), 99 * 15); // 5 rows of 19, and 4 pixels of border
    EXPECT_EQ(state.yn, 5);
    EXPECT_EQ(state.GridRows, 5);
}

TEST_F(FitHeight, TheBorderLineCountsOnceInFrontAndOncePerRow) {
    state.GridlineWidth = 2;
    state.GridlineOnBorder = true;
    EXPECT_EQ(ComputeFitHeight(state, 0), 86 * 15); // (100 - 2) / 20 = 4 rows; 80 + 2 and 4 of border
    EXPECT_EQ(state.yn, 4);
}

TEST_F(FitHeight, RowsAreAtLeastOne) {
    log.client.bottom = 5;
    ComputeFitHeight(state, -3);
    EXPECT_EQ(state.yn, 1);
    log.client.bottom = 0;
    state.GridlineOnBorder = true;
    ComputeFitHeight(state, 0);
    EXPECT_EQ(state.yn, 1);
}

TEST_F(FitHeight, GivenRowsAreTakenAsTheyAre) {
    EXPECT_EQ(ComputeFitHeight(state, 3), (3 * 19 + 4) * 15);
    EXPECT_EQ(state.yn, 3);
    EXPECT_EQ(state.GridRows, 3);
}

TEST_F(FitHeight, WithoutFixedHeightOnlyGivenRowsChangeTheHeight) {
    state.FixedHeight = false;
    EXPECT_EQ(ComputeFitHeight(state, 0), 0);
    EXPECT_EQ(state.yn, 5) << "the rows are computed all the same";
    EXPECT_EQ(ComputeFitHeight(state, 3), (3 * 19 + 4) * 15);
}

TEST_F(FitHeight, AHeightThatFitsAlreadyIsZero) {
    log.client.bottom = 95;
    log.window.bottom = log.window.Top + 99;
    EXPECT_EQ(ComputeFitHeight(state, 0), 0);
    EXPECT_EQ(ComputeFitHeight(state, 5), 0);
}

TEST_F(FitHeight, AnItemHeightOfZeroIsZeroAndTouchesNothing) {
    state.ItemHeight = 0;
    state.yn = 42;
    state.GridRows = 43;
    EXPECT_EQ(ComputeFitHeight(state, 0), 0);
    EXPECT_EQ(ComputeFitHeight(state, 7), 0);
    EXPECT_EQ(state.yn, 42);
    EXPECT_EQ(state.GridRows, 43);
}

TEST_F(FitHeight, TwipsAreTruncated) {
    services.twipsY = 14.4f; // 99 pixels are 1425.6 twips
    EXPECT_EQ(ComputeFitHeight(state, 0), 1425);
}

TEST_F(FitHeight, TheStateKeepsItsRectangles) {
    state.WindowRect = {1, 2, 3, 4};
    state.ClientRect = {5, 6, 7, 8};
    ComputeFitHeight(state, 0);
    ComputeFitWidth(state);
    EXPECT_EQ(state.WindowRect, (tvok_Rect{1, 2, 3, 4}));
    EXPECT_EQ(state.ClientRect, (tvok_Rect{5, 6, 7, 8}));
}

TEST_F(FitHeight, ThePageOfTooManyRowsIsAnOverflowError) {
    EXPECT_THROW(ComputeFitHeight(state, 2147483647), OverflowError);
}

// Fitting width.

class FitWidth : public EngineList {
protected:
    FitWidth() { state.GridlineWidth = 1; }
};

TEST_F(FitWidth, ASingleColumnNeedsNoWidth) {
    EXPECT_EQ(ComputeFitWidth(state), 0);
    EXPECT_EQ(state.ColWidths[1], 100) << "the widths are parsed first";
}

TEST_F(FitWidth, ColumnsAndTheLinesBetweenThemDecideTheWantedWidth) {
    state.xn = 2;
    EXPECT_EQ(ComputeFitWidth(state), (201 + 4) * 15);
    state.GridlineOnBorder = true;
    EXPECT_EQ(ComputeFitWidth(state), (203 + 4) * 15);
    state.ColWidthSettingStr = "0,30,40";
    EXPECT_EQ(ComputeFitWidth(state), (73 + 4) * 15);
    state.HeadWidthEx = 10;
    EXPECT_EQ(ComputeFitWidth(state), (83 + 4) * 15);
}

TEST_F(FitWidth, AWidthThatFitsAlreadyIsZero) {
    state.xn = 2;
    log.client.Right = 201;
    log.window.Right = log.window.Left + 205;
    EXPECT_EQ(ComputeFitWidth(state), 0);
}

TEST_F(FitWidth, AutomaticColumnsAreAsManyAsFitWhole) {
    state.XnAuto = true;
    state.xn = 9;
    EXPECT_EQ(ComputeFitWidth(state), 0);
    EXPECT_EQ(state.xn, 2); // 100, 201, and 302 is beyond 300
}

TEST_F(FitWidth, AutomaticColumnsMayTouchTheEdge) {
    state.XnAuto = true;
    state.GridlineWidth = 0;
    ComputeFitWidth(state);
    EXPECT_EQ(state.xn, 3);
    state.GridlineWidth = 1;
    log.client.Right = 302;
    ComputeFitWidth(state);
    EXPECT_EQ(state.xn, 3);
}

TEST_F(FitWidth, AutomaticColumnsLeaveRoomForTheBorderLinesOnBothSides) {
    state.XnAuto = true;
    state.GridlineOnBorder = true;
    log.client.Right = 303;
    ComputeFitWidth(state);
    EXPECT_EQ(state.xn, 2) << "1 + 302 + 1 does not fit into 303";
    log.client.Right = 304;
    ComputeFitWidth(state);
    EXPECT_EQ(state.xn, 3);
}

TEST_F(FitWidth, AutomaticColumnsAreAtLeastOne) {
    state.XnAuto = true;
    log.client.Right = 50;
    ComputeFitWidth(state);
    EXPECT_EQ(state.xn, 1);
}

TEST_F(FitWidth, AutomaticColumnsStayWhereAHundredFit) {
    state.XnAuto = true;
    state.ItemWidth = 1;
    state.GridlineWidth = 0;
    state.xn = 7;
    EXPECT_EQ(ComputeFitWidth(state), 0);
    EXPECT_EQ(state.xn, 7);
}

// The grid.

TEST_F(Geometry, GridWithoutColumnsOrRowsDoesNothing) {
    state.GridCols = 33;
    cells(1, 1) = {1, 2, 3, 4};
    state.xn = 0;
    BuildCellGrid(cells, state);
    state.xn = 1;
    state.yn = 0;
    BuildCellGrid(cells, state);
    EXPECT_EQ(state.GridCols, 33);
    EXPECT_EQ(cells(1, 1), (tvok_Rect{1, 2, 3, 4}));
    EXPECT_TRUE(log.All().empty());
}

TEST_F(Geometry, GridReadsTheWindowAndParsesBothSettings) {
    state.ColWidthSettingStr = "0,30";
    state.TabStopSettingStr = "5,6,7";
    BuildCellGrid(cells, state);
    EXPECT_EQ(state.WindowRect, log.window);
    EXPECT_EQ(state.ClientRect, log.client);
    EXPECT_EQ(state.ColWidths[1], 30);
    EXPECT_EQ(state.TabCount, 3);
    EXPECT_EQ(state.GridCols, 2);
    EXPECT_EQ(state.GridRows, 6);
}

TEST_F(Geometry, TheSingleColumnSpansTheClientAreaWhateverItsWidth) {
    state.ColWidthSettingStr = "0,30";
    BuildCellGrid(cells, state);
    EXPECT_EQ(cells(1, 1), (tvok_Rect{0, 0, 300, 18}));
    EXPECT_EQ(cells(1, 2), (tvok_Rect{0, 18, 300, 36}));
    EXPECT_EQ(cells(2, 1), (tvok_Rect{300, 0, 300, 18})) << "an empty filler";
}

TEST_F(Geometry, TheFirstCellStartsBehindTheBorderLine) {
    state.GridlineWidth = 2;
    BuildCellGrid(cells, state);
    EXPECT_EQ(cells(1, 1), (tvok_Rect{0, 0, 300, 18}));
    state.GridlineOnBorder = true;
    BuildCellGrid(cells, state);
    EXPECT_EQ(cells(1, 1), (tvok_Rect{2, 2, 298, 20}));
    EXPECT_EQ(cells(1, 2), (tvok_Rect{2, 22, 298, 40}));
    EXPECT_EQ(cells(2, 1), (tvok_Rect{300, 2, 298, 20})) << "the filler has a negative width";
}

TEST_F(Geometry, ColumnsStandSideBySideWithALineBetweenAndTheLastOneStretches) {
    state.xn = 3;
    state.GridlineWidth = 1;
    state.ColWidthSettingStr = "0,40,50,60";
    BuildCellGrid(cells, state);
    EXPECT_EQ(cells(1, 1), (tvok_Rect{0, 0, 40, 18}));
    EXPECT_EQ(cells(2, 1), (tvok_Rect{41, 0, 91, 18}));
    EXPECT_EQ(cells(3, 1), (tvok_Rect{92, 0, 300, 18}));
    EXPECT_EQ(cells(4, 1), (tvok_Rect{301, 0, 300, 18}));
    EXPECT_EQ(cells(1, 6), (tvok_Rect{0, 95, 40, 113})) << "the partial row runs past the client's bottom";
}

TEST_F(Geometry, AFixedLastColumnLeavesTheRestToTheFiller) {
    state.xn = 3;
    state.GridlineWidth = 1;
    state.FixedWidthForLastXn = true;
    state.ColWidthSettingStr = "0,40,50,60";
    BuildCellGrid(cells, state);
    EXPECT_EQ(cells(3, 1), (tvok_Rect{92, 0, 152, 18}));
    EXPECT_EQ(cells(4, 1), (tvok_Rect{153, 0, 300, 18}));
}

TEST_F(Geometry, ColumnsThatDoNotFitRunBeyondTheClientArea) {
    state.xn = 5;
    state.FixedWidthForLastXn = true;
    BuildCellGrid(cells, state);
    EXPECT_EQ(cells(4, 1), (tvok_Rect{300, 0, 400, 18}));
    EXPECT_EQ(cells(5, 1), (tvok_Rect{400, 0, 500, 18}));
    EXPECT_EQ(cells(6, 1), (tvok_Rect{500, 0, 300, 18}));
}

TEST_F(Geometry, TheTableOfCellsIsMadeAnewAndGrowsByOneMoreThanNeeded) {
    cells(20, 20) = {1, 2, 3, 4};
    cells(0, 0) = {1, 2, 3, 4};
    state.xn = 19;
    state.yn = 19;
    BuildCellGrid(cells, state);
    EXPECT_EQ(cells.UpperColumn(), 20) << "20 columns of the grid just fit";
    EXPECT_EQ(cells.UpperRow(), 20);
    EXPECT_EQ(cells(0, 0), tvok_Rect{});
    state.xn = 20;
    state.yn = 30;
    BuildCellGrid(cells, state);
    EXPECT_EQ(cells.UpperColumn(), 22);
    EXPECT_EQ(cells.UpperRow(), 32);
    EXPECT_EQ(cells(1, 32), tvok_Rect{});
    state.xn = 1;
    state.yn = 5;
    cells(20, 20) = {1, 2, 3, 4};
    BuildCellGrid(cells, state);
    EXPECT_EQ(cells(20, 20), tvok_Rect{}) << "old entries are lost in every case";
    EXPECT_EQ(cells.UpperColumn(), 22) << "it never gets smaller";
    EXPECT_EQ(cells.UpperRow(), 32);
}

TEST_F(Geometry, MoreColumnsThanThereAreWidthsIsASubscriptError) {
    state.xn = 101;
    EXPECT_NO_THROW(BuildCellGrid(cells, state)) << "the last one stretches and needs no width";
    state.xn = 102;
    EXPECT_THROW(BuildCellGrid(cells, state), SubscriptError);
}

TEST_F(Geometry, AGridPastThirtyTwoBitsIsAnOverflowError) {
    state.ItemHeight = 1 << 30;
    EXPECT_THROW(BuildCellGrid(cells, state), OverflowError);
}

// From an index to its cell.

class CellOfIndex : public EngineList {
protected:
    CellOfIndex() {
        state.xn = 3;
        state.yn = 2;
        state.Count = 20;
        state.TopRow = 2;
        BuildCellGrid(cells, state);
    }
    bool Ask(std::int32_t index) { return IndexToCell(index, state, column, row); }
    std::int32_t column = -7, row = -7;
};

TEST_F(CellOfIndex, ItemsRunAlongTheRows) {
    EXPECT_TRUE(Ask(7));
    EXPECT_EQ(column, 1);
    EXPECT_EQ(row, 1);
    EXPECT_TRUE(Ask(9));
    EXPECT_EQ(column, 3);
    EXPECT_EQ(row, 1);
    EXPECT_TRUE(Ask(11));
    EXPECT_EQ(column, 2);
    EXPECT_EQ(row, 2);
}

TEST_F(CellOfIndex, ThePartialRowBelongsToThePage) {
    EXPECT_TRUE(Ask(13));
    EXPECT_EQ(row, 3);
    EXPECT_FALSE(Ask(16));
    EXPECT_EQ(row, 4) << "written all the same";
    EXPECT_EQ(column, 1);
}

TEST_F(CellOfIndex, AnItemAboveThePageIsOffItAndItsCellIsWrittenAllTheSame) {
    EXPECT_FALSE(Ask(6));
    EXPECT_EQ(row, 0);
    EXPECT_EQ(column, 3);
}

TEST_F(CellOfIndex, AnIndexOutsideTheListWritesNothing) {
    EXPECT_FALSE(Ask(0));
    EXPECT_FALSE(Ask(-1));
    EXPECT_FALSE(Ask(21));
    EXPECT_EQ(column, -7);
    EXPECT_EQ(row, -7);
}

// The default state.

TEST(ListStateDefaults, AreThoseOfItsFields) {
    const ListState state;
    EXPECT_EQ(state.xn, 1);
    EXPECT_FALSE(state.XnAuto);
    EXPECT_EQ(state.yn, 5);
    EXPECT_EQ(state.CX_TEXT, 20);
    EXPECT_EQ(state.IconPos, 16846864);
    EXPECT_EQ(state.ItemWidth, 100);
    EXPECT_EQ(state.ItemHeight, 18);
    EXPECT_FALSE(state.FixedHeight);
    EXPECT_FALSE(state.FixedWidthForLastXn);
    EXPECT_EQ(state.HeadWidthEx, 0);
    EXPECT_EQ(state.HeadExBackColor, SystemColor(0x16));
    EXPECT_EQ(state.HeadExBorderColor, SystemColor(0x0F));
    EXPECT_EQ(state.SortedMode, 0);
    EXPECT_FALSE(state.HotTrack);
    EXPECT_EQ(state.IconBorderColor, SystemColor(6));
    EXPECT_EQ(state.BackColor, SystemColor(5));
    EXPECT_EQ(state.SelectedColor, SystemColor(0x0D));
    EXPECT_EQ(state.GridlineWidth, 0);
    EXPECT_EQ(state.GridlineColor, SystemColor(0x16));
    EXPECT_FALSE(state.GridlineOnBorder);
    EXPECT_EQ(state.ColWidths.UpperBound(), 100);
    EXPECT_TRUE(state.TmpData.IsEmpty());
}

TEST(CellTableBounds, AreASubscriptErrorToPass) {
    CellTable table(2, 3);
    EXPECT_NO_THROW(table(2, 3));
    EXPECT_THROW(table(3, 0), SubscriptError);
    EXPECT_THROW(table(0, 4), SubscriptError);
    EXPECT_THROW(table(-1, 0), SubscriptError);
    EXPECT_THROW(table(0, -1), SubscriptError);
}

} // namespace
} // namespace tvok::test
