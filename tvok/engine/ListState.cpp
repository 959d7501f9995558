#include "tvok/engine/ListState.h"

#include "tvok/records/numeric.h"

namespace tvok {

void CellTable::Make(std::int32_t columns, std::int32_t rows) {
    const auto cells = (std::int64_t{columns} + 1) * (std::int64_t{rows} + 1);
    if (cells > kMostCells) ThrowOverflow(cells);
    Array<tvok_Rect> made(columns < 0 || rows < 0 ? -1 : static_cast<std::int32_t>(cells - 1));
    cells_.swap(made);
    columns_ = columns;
    rows_ = rows;
}

std::int32_t CellTable::Place(std::int32_t column, std::int32_t row) const {
    if (column < 0 || column > columns_) throw SubscriptError(column, columns_);
    if (row < 0 || row > rows_) throw SubscriptError(row, rows_);
    return row * (columns_ + 1) + column;
}

} // namespace tvok
