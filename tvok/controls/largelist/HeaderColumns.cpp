#include "tvok/controls/largelist/HeaderColumns.h"

#include <algorithm>

#include "tvok/records/numeric.h"
#include "tvok/records/text.h"

namespace tvok {

void HeaderColumns::Limit(qrosterheader& column, std::int32_t maxWidth) {
    column.hWidth = std::min(std::max(column.hWidth, cMinWidth), maxWidth);
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
    quietly([&] {
        if (index == 0) {
            const std::int32_t grown = ToInt32(std::int64_t{count_} + 1);
            columns_.Resize(grown);
            count_ = grown;
            index = grown;
        }
        qrosterheader& place = columns_[index];
        const std::int32_t font = place.lFont;
        place = column;
        place.lFont = font;
        Limit(place, maxWidth);
    });
}

qrosterheader HeaderColumns::Get(std::int32_t index) const {
    return index >= 1 && index <= count_ ? columns_[index] : qrosterheader{};
}

void HeaderColumns::Set(std::int32_t index, const qrosterheader& column, std::int32_t maxWidth) {
    if (index < 1 || index > count_) return;
    columns_[index] = column;
    Limit(columns_[index], maxWidth);
}

std::string HeaderColumns::Widths() const {
    std::string text;
    for (std::int32_t i = 1; i <= count_; ++i) {
        if (i > 1) text += '-';
        AppendDecimal(text, columns_[i].hWidth);
    }
    return text;
}

bool HeaderColumns::Widths(std::string_view text) {
    if (Trim(text).empty()) return false;
    std::int32_t column = 0;
    for (const std::string_view part : Split(text, '-')) {
        if (++column > count_) break;
        quietly([&] {
            const std::int32_t width = RoundToInt32(ScanNumber(part));
            if (width >= cMinWidth) columns_[column].hWidth = width;
        });
    }
    return true;
}

std::int32_t HeaderColumns::Sum() const {
    std::int64_t sum = 0;
    for (std::int32_t i = 1; i <= count_; ++i) sum += columns_[i].hWidth;
    return ToInt32(sum);
}

std::int32_t HeaderColumns::EdgeFromPoint(std::int64_t x, std::int32_t y, std::int32_t headerHeight) const {
    if (count_ < 1 || y < 0 || y > headerHeight) return 0;
    std::int64_t edge = 0;
    for (std::int32_t i = 1; i <= count_; ++i) {
        edge += columns_[i].hWidth;
        if (x > edge - 3 && x < edge + 3) return i;
    }
    return 0;
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
    const std::int32_t width = ToInt32(std::max<std::int64_t>(wanted, cMinWidth));
    if (width == columns_[sizing_].hWidth) return false;
    columns_[sizing_].hWidth = width;
    return true;
}

} // namespace tvok
