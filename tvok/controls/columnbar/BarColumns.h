/// The columns of a column bar: their records, how they are fitted into the bar, which one a point hits, and
/// the drag of a divider, which shares the width of two columns between them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tvok/records/Array.h"
#include "tvok/records/tvok_declare.h"

namespace tvok {

/// Columns 1 to `Count`, side by side from x = 0. Widths are pixels, 10 or more save where `Count` made empty
/// columns or the last one of a bar that is too full was dragged: it gets what is left, which may be less
/// than nothing. Records beyond `Count` stay where they are until the array is made shorter: a greater
/// `Count` shows them again.
class BarColumns {
public:
    std::int32_t Count() const { return count_; }
    /// New columns are empty and 0 wide. A negative count is the subscript error after the count has changed;
    /// then there are no columns, and this does nothing more until `Clear`, or where it is -1 until an
    /// append.
    void Count(std::int32_t count);
    void Clear() { count_ = 0; } ///< The records stay, as above.

    qrosterheader Get(std::int32_t index) const; ///< An empty record outside 1 to `Count`.
    const qrosterheader& operator[](std::int32_t index) const { return columns_[index]; }

    /// `index` 0 appends, 1 to `Count` replaces, -1 to -`Count` inserts before that column, any other stores
    /// nothing. Then all columns are fitted into `barWidth` in any case: each gives the same, down to 10, and
    /// what does not fit at 10 is dropped from the end. Whether columns were dropped.
    bool Set(std::int32_t index, qrosterheader column, std::int32_t barWidth);
    void Remove(std::int32_t index); ///< The other widths stay. Outside 1 to `Count`: nothing.

    std::string Widths() const; ///< The widths joined by "-".
    /// Takes widths of 10 or more from such a text, past the bar's width, too. False for a blank text.
    bool Widths(std::string_view text);
    std::int64_t Sum() const;

    /// The column whose right edge lies within 2 pixels of the point; 0 for none.
    std::int32_t EdgeFromPoint(std::int32_t x, std::int32_t y, std::int32_t barHeight) const;
    /// The column at a point that is more than 3 pixels away from its dividers, 0 for the empty part of the
    /// bar, -1 for neither. Next to the divider of a lone column it is 0.
    std::int32_t ColumnFromPoint(std::int32_t x, std::int32_t y, std::int32_t barWidth,
                                 std::int32_t barHeight) const;

    // The drag of a right edge.
    bool IsSizing() const { return sizing_ > 0; }
    /// Starts with the divider of `column`; 0 stops. Whether it started.
    bool StartSizing(std::int32_t column, std::int32_t x, std::int32_t barWidth);
    /// Moves the divider under the pointer, as far as the minimum and the room let it. True where the bar has
    /// to be repainted, also where the limits gave the same widths again. A column that is gone is sized
    /// behind the others while its record is there.
    bool SizeTo(std::int32_t x);
    void StopSizing() { sizing_ = 0; }

private:
    std::int32_t PlaceFor(std::int32_t index);
    std::int32_t PlaceAtEnd();
    std::int32_t PlaceBefore(std::int64_t index);
    void MakeRoom();
    void Fit(std::int32_t barWidth);
    bool DropBeyond(std::int32_t barWidth);

    Array<qrosterheader> columns_{0}; ///< Entry 0 is not used.
    std::int32_t count_ = 0;
    std::int32_t sizing_ = 0; ///< The column whose divider is dragged.
    std::int32_t sizingStartX_ = 0;
    std::int32_t sizingStartWidth_ = 0;
    std::int32_t sizingRoom_ = 0; ///< What the drag may spend: two columns, or what the last one has.
};

} // namespace tvok
