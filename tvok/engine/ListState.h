/// The one record per list control that nearly every engine routine works on.
#pragma once

#include <cstdint>
#include <string>

#include "tvok/host/Font.h"
#include "tvok/records/Array.h"
#include "tvok/records/tvok_declare.h"

namespace tvok {

/// Pixels throughout. A list is a grid of `xn` columns and `yn` whole rows; items run along the rows.
/// A default-made state is all zero, `InitListProperties` and `ReadListProperties` give it a list's defaults.
struct ListState {
    std::int32_t hWnd = 0;
    std::int32_t hDC = 0;       ///< The persistent device context.
    std::int32_t TopRow = 0;    ///< First row on the page, from 0; equals the scroll position.
    std::int32_t LastTop = 0;   ///< Position of the last `ScrollDC`.
    std::int32_t Count = 0;     ///< Number of items.
    std::int32_t xn = 1;        ///< Columns of items.
    std::int32_t GridCols = 0;  ///< `xn` + 1: the item columns and one filler. Set by `BuildCellGrid`.
    bool XnAuto = false;        ///< `xn` follows the control's width.
    std::int32_t yn = 5;        ///< Whole rows on the page.
    std::int32_t GridRows = 0;  ///< `yn` + 1: the whole rows and a partial one. Set by `BuildCellGrid`.
    std::int32_t CurItem = 0;   ///< Item now being painted, 0 for a blank cell.
    std::int32_t ListIndex = 0; ///< The current item, 0 for none.
    std::int32_t CurCol = 0;    ///< Grid column and row of the cell being painted, from 1.
    std::int32_t CurRow = 0;
    host::FontPtr FontObj;       ///< The control's font, used by the painter and the text form.
    std::int32_t TextHeight = 0; ///< Line height: `PointsToPixels` of the font size.
    tvok_Rect WindowRect;        ///< Read in `BuildCellGrid`.
    tvok_Rect ClientRect;        ///< Read in `BuildCellGrid`.
    tvok_Rect TextRect;          ///< Text area of the last cell painted.
    std::int32_t CX_TEXT = 20;   ///< Width of the icon area left of the text.
    std::int32_t IconPos = cDefaultIconPos;
    std::int32_t ItemWidth = 100; ///< Width of columns without a width of their own.
    std::int32_t ItemHeight = 18;
    bool FixedHeight = false;         ///< The control's height snaps to whole rows.
    bool FixedWidthForLastXn = false; ///< The last item column keeps its set width instead of stretching.
    std::int32_t HeadWidthEx = 0;     ///< Width of the head band in the first column.
    OLE_COLOR HeadExBackColor = c3DLight;
    OLE_COLOR HeadExBorderColor = cButtonFace;
    std::int32_t SortedMode = 0; ///< A `Const_SortedMode`; kept as written.
    bool HotTrack = false;       ///< Mouse moves select without a button.
    bool MultiActive = false;    ///< The list is in multi-selection state.
    std::int32_t IconHandle = 0; ///< Image list.
    OLE_COLOR IconBorderColor = cWindowFrame;
    OLE_COLOR BackColor = cWindowBackground;
    OLE_COLOR SelectedColor = cHighlight;
    tvok_Rect CellRect; ///< The cell being painted.
    std::int32_t GridlineWidth = 0;
    OLE_COLOR GridlineColor = c3DLight;
    bool GridlineOnBorder = false; ///< Grid lines also run along the outer edges.
    std::int32_t FocusHwnd = 0;    ///< Window compared with `GetFocus`: the control's own, but of a popup
                                   ///< the one that had the focus when it opened.
    Variant TmpData;               ///< The host's.
    std::string TmpKey;            ///< The host's.
    std::string TabStopSettingStr; ///< Comma-separated widths of tab columns.
    Array<std::int32_t> TabStops{0};
    std::int32_t TabCount = 0;          ///< Entries of `TabStops` in use.
    std::string ColWidthSettingStr;     ///< Comma-separated column widths, from the second value on.
    Array<std::int32_t> ColWidths{100}; ///< Width of column i at i.
};

/// The cells of a list's grid, indexed (column, row) from 0 in both dimensions. Grows, never shrinks.
class CellTable {
public:
    /// The most cells of a table, far beyond any screen: what asks for more throws `OverflowError`.
    static constexpr std::int64_t kMostCells = 1 << 24;

    CellTable() : CellTable(0, 0) {}
    CellTable(std::int32_t columns, std::int32_t rows) { Make(columns, rows); }

    std::int32_t UpperColumn() const { return columns_; }
    std::int32_t UpperRow() const { return rows_; }
    /// Makes the table anew with these upper bounds: all old entries are lost. A bound below 0 is a
    /// subscript error, and the table stays.
    void Make(std::int32_t columns, std::int32_t rows);

    tvok_Rect& operator()(std::int32_t column, std::int32_t row) { return cells_[Place(column, row)]; }
    const tvok_Rect& operator()(std::int32_t column, std::int32_t row) const {
        return cells_[Place(column, row)];
    }

private:
    std::int32_t Place(std::int32_t column, std::int32_t row) const;

    std::int32_t columns_ = 0;
    std::int32_t rows_ = 0;
    Array<tvok_Rect> cells_;
};

} // namespace tvok
