#include "tvok/controls/columnbar/BarColumns.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "tvok/engine/columnwidths.h"
#include "tvok/records/numeric.h"

namespace tvok {

using mtvok::cMinColumnWidth;

namespace {

constexpr std::int32_t cDividerMargin = 3; // a press nearer to a divider is none on a column

std::int32_t AtLeastMinimum(std::int64_t width) {
    return ToInt32(std::max<std::int64_t>(width, cMinColumnWidth));
}

} // namespace

// The store.

void BarColumns::Count(std::int32_t count) {
    if (count_ < 0) return;
    count_ = count; // changes before a negative one turns out to be an error
    columns_.Resize(count);
}

qrosterheader BarColumns::Get(std::int32_t index) const {
    return index >= 1 && index <= count_ ? columns_[index] : qrosterheader{};
}

bool BarColumns::Set(std::int32_t index, qrosterheader column, std::int32_t barWidth) {
    if (const std::int32_t target = PlaceFor(index); target >= 0) columns_[target] = std::move(column);
    if (count_ == 0) return false;
    Fit(barWidth);
    return DropBeyond(barWidth);
}

/// Where a record is stored, -1 for nowhere.
std::int32_t BarColumns::PlaceFor(std::int32_t index) {
    if (index == 0) return PlaceAtEnd();
    if (index < 0) return PlaceBefore(-std::int64_t{index});
    return index <= count_ ? index : -1;
}

/// Room for one more. After `Clear` this makes the array shorter, and the old records behind it are lost.
void BarColumns::MakeRoom() {
    if (count_ <= columns_.UpperBound()) columns_.Resize(ToInt32(std::int64_t{count_} + 1));
}

std::int32_t BarColumns::PlaceAtEnd() {
    MakeRoom();
    return count_ = ToInt32(std::int64_t{count_} + 1);
}

std::int32_t BarColumns::PlaceBefore(std::int64_t index) {
    if (index > count_) return -1;
    MakeRoom();
    const auto place = static_cast<std::int32_t>(index);
    for (std::int32_t i = count_; i >= place; --i)
        columns_[ToInt32(std::int64_t{i} + 1)] = std::move(columns_[i]);
    count_ = ToInt32(std::int64_t{count_} + 1);
    return place;
}

void BarColumns::Remove(std::int32_t index) {
    std::int32_t kept = 0;
    for (std::int32_t i = 1; i <= count_; ++i) {
        if (i == index) continue;
        if (++kept != i) columns_[kept] = columns_[i]; // the last record stays behind as it was
    }
    count_ = kept;
}

// Widths.

/// Rounds in which every column gives the same, until they fit or all are 10 wide. A column that has come
/// down to 10 stays there, so the rounds look only at those that have not: the same widths as from rounds
/// over all.
void BarColumns::Fit(std::int32_t barWidth) {
    std::int64_t sum = 0;
    std::vector<std::int32_t> wider; // columns above 10
    for (std::int32_t i = 1; i <= count_; ++i) {
        std::int32_t& width = columns_[i].hWidth;
        width = std::max(width, cMinColumnWidth);
        sum += width;
        if (width > cMinColumnWidth) wider.push_back(i);
    }
    while (sum > barWidth && !wider.empty()) {
        const std::int64_t excess = sum - barWidth;
        const std::int64_t cut = (excess + count_ - 1) / count_; // rounded up, so 1 or more
        std::erase_if(wider, [&](std::int32_t i) {
            std::int32_t& width = columns_[i].hWidth;
            const std::int32_t left = AtLeastMinimum(width - cut);
            sum -= std::int64_t{width} - left;
            width = left;
            return left == cMinColumnWidth;
        });
    }
}

bool BarColumns::DropBeyond(std::int32_t barWidth) {
    std::int64_t edge = 0;
    for (std::int32_t i = 1; i <= count_; ++i) {
        edge += columns_[i].hWidth;
        if (edge <= barWidth) continue;
        count_ = i - 1;
        return true;
    }
    return false;
}

std::string BarColumns::Widths() const {
    return mtvok::WidthsText(columns_, count_);
}

bool BarColumns::Widths(std::string_view text) {
    return mtvok::TakeWidths(columns_, count_, text);
}

std::int64_t BarColumns::Sum() const {
    return mtvok::SumOfWidths(columns_, count_);
}

// Points.

std::int32_t BarColumns::EdgeFromPoint(std::int32_t x, std::int32_t y, std::int32_t barHeight) const {
    return mtvok::DividerAt(columns_, count_, x, y, barHeight);
}

std::int32_t BarColumns::ColumnFromPoint(std::int32_t x, std::int32_t y, std::int32_t barWidth,
                                         std::int32_t barHeight) const {
    if (x < 0 || y < 0 || x > barWidth || y > barHeight) return -1;
    if (count_ <= 0) return 0;
    std::int64_t right = columns_[1].hWidth;
    if (x < right - cDividerMargin) return 1;
    for (std::int32_t i = 2; i <= count_; ++i) {
        const std::int64_t left = std::exchange(right, right + columns_[i].hWidth);
        if (x > left + cDividerMargin && x < right - cDividerMargin) return i;
    }
    // The edge of a lone column counts as 0 here and not as its width, so near its divider a press is one on
    // the empty part. Hosts rely on it; do not mend it.
    if (count_ == 1) right = 0;
    return x > right + cDividerMargin ? 0 : -1;
}

// The drag.

bool BarColumns::StartSizing(std::int32_t column, std::int32_t x, std::int32_t barWidth) {
    sizing_ = column;
    if (column <= 0) return false;
    sizingStartX_ = x;
    sizingStartWidth_ = columns_[column].hWidth;
    sizingRoom_ = column < count_ ? ToInt32(std::int64_t{sizingStartWidth_} + columns_[column + 1].hWidth)
                                  : ToInt32(barWidth - mtvok::SumOfWidths(columns_, column - 1));
    return true;
}

bool BarColumns::SizeTo(std::int32_t x) {
    // A column that a host took away meanwhile keeps its record behind the others, and the drag goes on with
    // that.
    if (sizing_ < 1 || sizing_ > columns_.UpperBound()) return false;
    std::int32_t& width = columns_[sizing_].hWidth;
    const std::int32_t wanted = AtLeastMinimum(std::int64_t{sizingStartWidth_} - sizingStartX_ + x);
    if (wanted == width) return false;
    width = wanted;
    if (sizing_ == count_) {
        width = std::min(width, sizingRoom_);
        return true;
    }
    if (sizing_ == columns_.UpperBound()) return true; // a column that is gone may have no neighbour
    std::int32_t& next = columns_[sizing_ + 1].hWidth;
    next = ToInt32(std::int64_t{sizingRoom_} - width);
    if (next < cMinColumnWidth) {
        next = cMinColumnWidth;
        width = ToInt32(std::int64_t{sizingRoom_} - cMinColumnWidth);
    }
    return true;
}

} // namespace tvok
