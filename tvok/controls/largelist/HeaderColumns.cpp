#include "tvok/controls/largelist/HeaderColumns.h"

#include <algorithm>

#include "tvok/engine/columnwidths.h"
#include "tvok/records/numeric.h"

namespace tvok {

void HeaderColumns::Limit(qrosterheader& column, std::int32_t maxWidth) {
    column.hWidth = std::min(std::max(column.hWidth, mtvok::cMinColumnWidth), maxWidth);
}

void HeaderColumns::Count(std::int32_t count) {
    if (count_ < 0) return;
    count_ = count; // changes before a negative one turns out to be an error
    columns_.Resize(count);
}

void HeaderColumns::Clear() {
    columns_.Make(0);
    count_ = 0;
}

void HeaderColumns::Add(std::int32_t index, const qrosterheader& column, std::int32_t maxWidth) {
    if (index == 0) {
        const std::int64_t grown = std::int64_t{count_} + 1;
        // One by one: an append after a negative count lifts the count though there is no room for the
        // column. The index is a 16-bit place; beyond it the column stays empty.
        quietly([&] { columns_.Resize(ToInt32(grown)); }, [&] { count_ = ToInt32(grown); },
                [&] { index = ToInt16(grown); });
    }
    quietly([&] {
        qrosterheader& place = columns_[index];
        const std::int32_t font = place.lFont;
        place = column;
        place.lFont = font;
        Limit(place, maxWidth);
    });
}

qrosterheader HeaderColumns::Get(std::int32_t index) const {
    return Has(index) ? columns_[index] : qrosterheader{};
}

void HeaderColumns::Set(std::int32_t index, const qrosterheader& column, std::int32_t maxWidth) {
    if (!Has(index)) return;
    columns_[index] = column;
    Limit(columns_[index], maxWidth);
}

std::string HeaderColumns::Widths() const {
    return mtvok::WidthsText(columns_, count_);
}

bool HeaderColumns::Widths(std::string_view text) {
    return mtvok::TakeWidths(columns_, count_, text);
}

std::int32_t HeaderColumns::Sum() const {
    return ToInt32(mtvok::SumOfWidths(columns_, count_));
}

std::int32_t HeaderColumns::EdgeFromPoint(std::int64_t x, std::int32_t y, std::int32_t headerHeight) const {
    return mtvok::DividerAt(columns_, count_, x, y, headerHeight);
}

bool HeaderColumns::StartSizing(std::int32_t column, std::int32_t x) {
    sizing_ = column;
    if (column <= 0) return false;
    sizingStartX_ = x;
    sizingStartWidth_ = columns_[column].hWidth;
    return true;
}

bool HeaderColumns::SizeTo(std::int32_t x) {
    if (sizing_ < 1 || sizing_ > count_) return false; // a handler took the column away meanwhile
    const std::int64_t wanted = std::int64_t{sizingStartWidth_} - sizingStartX_ + x;
    const std::int32_t width = ToInt32(std::max<std::int64_t>(wanted, mtvok::cMinColumnWidth));
    if (width == columns_[sizing_].hWidth) return false;
    columns_[sizing_].hWidth = width;
    return true;
}

} // namespace tvok
