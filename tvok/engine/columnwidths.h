/// Widths of header columns: their text form, their sum, and the divider under a point. Columns are entries 1
/// to `count` of an array; entry 0 is not used. A count below 1 stands for no column.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tvok/records/Array.h"
#include "tvok/records/tvok_declare.h"

namespace tvok::mtvok {

/// In pixels.
inline constexpr std::int32_t cMinColumnWidth = 10;

/// The widths joined by "-": "120-80-200".
std::string WidthsText(const Array<qrosterheader>& columns, std::int32_t count);

/// Takes widths of 10 or more from such a text; a smaller one, a part that is no number and one that 32 bits
/// do not hold leave their column, and parts beyond the columns are ignored. False for a blank text, which
/// does nothing.
bool TakeWidths(Array<qrosterheader>& columns, std::int32_t count, std::string_view text);

std::int64_t SumOfWidths(const Array<qrosterheader>& columns, std::int32_t count);

/// The column whose right edge lies within 2 pixels of x, which is measured from the left edge of column 1;
/// the lowest where several do. 0 for none, or where y is outside 0 to `height`.
std::int32_t DividerAt(const Array<qrosterheader>& columns, std::int32_t count, std::int64_t x,
                       std::int32_t y, std::int32_t height);

} // namespace tvok::mtvok
