/// The columns of a large list: their records, their widths as a text, the divider hit test and the drag of
/// one.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tvok/records/Array.h"
#include "tvok/records/tvok_declare.h"

namespace tvok {

/// Columns 1 to `Count`. Widths are pixels, 10 or more save where `Count` made empty columns.
class HeaderColumns {
public:
    std::int32_t Count() const { return count_; }
    /// New columns are empty and 0 wide. A negative count is the subscript error after the count has changed;
    /// then this does nothing more until `Clear`, or until appends, each by one, have lifted the count to 0.
    void Count(std::int32_t count);
    void Clear();

    /// `index` 0 appends, 1 to `Count` overwrites and keeps `lFont`, any other does nothing. `maxWidth`
    /// limits. Errors are ignored one by one. Column 32768 and later ones cannot be filled here and stay
    /// empty.
    void Add(std::int32_t index, const qrosterheader& column, std::int32_t maxWidth);
    bool Has(std::int32_t index) const { return index >= 1 && index <= count_; }
    qrosterheader Get(std::int32_t index) const; ///< An empty record outside 1 to `Count`.
    void Set(std::int32_t index, const qrosterheader& column, std::int32_t maxWidth); ///< Outside: nothing.
    const qrosterheader& operator[](std::int32_t index) const { return columns_[index]; }

    /// The widths joined by "-".
    std::string Widths() const;
    /// Takes widths of 10 or more from such a text; other parts leave their column. False for a blank text,
    /// which does nothing. Errors are ignored.
    bool Widths(std::string_view text);

    /// Sum of the widths. Throws `OverflowError` past 32 bits.
    std::int32_t Sum() const;

    /// The column whose right edge lies within 2 pixels of x, which is measured from the left edge of column
    /// 1; the lowest where several do. 0 for none, or where y is outside 0 to `headerHeight`.
    std::int32_t EdgeFromPoint(std::int64_t x, std::int32_t y, std::int32_t headerHeight) const;

    // The drag of a right edge.
    bool IsSizing() const { return sizing_ > 0; }
    /// Starts to drag the right edge of `column`, 1 to `Count`, from the pointer at x; 0 or less ends a drag.
    /// Whether one runs now.
    bool StartSizing(std::int32_t column, std::int32_t x);
    /// Stores the width under the pointer, 10 or more; whether it differs from the one before. Throws
    /// `OverflowError` past 32 bits.
    bool SizeTo(std::int32_t x);
    void StopSizing() { sizing_ = 0; }

private:
    static void Limit(qrosterheader& column, std::int32_t maxWidth);

    Array<qrosterheader> columns_{0}; ///< Entry 0 is not used.
    std::int32_t count_ = 0;
    std::int32_t sizing_ = 0;
    std::int32_t sizingStartX_ = 0;
    std::int32_t sizingStartWidth_ = 0;
};

} // namespace tvok
