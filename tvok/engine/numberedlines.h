/// The numbered lines of the text forms: "107=a caption", or a number alone. What lists, popups and property
/// lists share of writing and reading them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tvok/engine/ListState.h"

namespace tvok::mtvok {

/// Lines of the same meaning in every text form.
enum SharedLine : std::int32_t {
    BackColorLine = 1, ///< Here and to `SelectedColorLine`: settings of a list.
    IconAreaLine = 3,
    GridlineColorLine = 5,
    GridlineOnBorderLine = 6,
    GridlineWidthLine = 7,
    HeadBackColorLine = 8,
    HeadWidthLine = 10,
    IconBorderColorLine = 11,
    ListIconPosLine = 12,
    ItemHeightLine = 13, ///< Less the line height of the font, which differs from machine to machine.
    SelectedColorLine = 15,
    CellColorLine = 101, ///< Here and to `FlagsLine`: fields of a cell.
    TextColorLine = 102,
    IconColorLine = 103,
    IconPosLine = 104,
    IconIDLine = 105,
    ItemDataLine = 106,
    TextLine = 107,
    KeyLine = 108,
    FlagsLine = 109,
    FirstItemLine = 998,
    EndOfItemLine = 999,
};

/// Appends lines to a text. Each ends with carriage return and line feed.
class LineWriter {
public:
    explicit LineWriter(std::string& text) : text_(text) {}

    void Hex(std::int32_t line, std::int32_t value);
    void Decimal(std::int32_t line, std::int32_t value);
    void Truth(std::int32_t line, bool value) { Decimal(line, value ? -1 : 0); }
    void Text(std::int32_t line, std::string_view value);
    void Alone(std::int32_t line);

private:
    void Begin(std::int32_t line);
    void End() { text_ += "\r\n"; }

    std::string& text_;
};

/// One line after the other as number and value. A line without "=" keeps the value of the line before, and
/// one whose number does not fit keeps the number of the line before.
class NumberedLine {
public:
    /// The largest line number that fits; the smallest is as far below 0.
    explicit NumberedLine(std::int32_t largest = INT32_MAX) : largest_(largest) {}

    void Read(std::string_view line);

    std::int32_t number() const { return number_; }
    /// The trimmed value. Lives as long as the text of its line.
    std::string_view text() const { return value_; }
    std::int32_t Number() const; ///< The value as a number. `OverflowError` where 32 bits do not hold it.
    bool Truth() const;          ///< Whether the value as a number is not 0.

private:
    std::int32_t largest_;
    std::int32_t number_ = 0;
    std::string_view value_;
};

/// Takes the setting that `line` stands for, save the item height; other lines do nothing.
void ReadSettingLine(std::int32_t line, const NumberedLine& from, ListState& state);

/// How a cell's lines are written.
struct CellLines {
    std::int32_t shift = 0;      ///< Added to each line number.
    std::int32_t keptFlags = -1; ///< The bits of `vflag` that are written and compared.
    bool text = true;            ///< Whether the text has a line.
};
/// Writes a line for each field in which `cell` differs from `before`.
void WriteCellLines(LineWriter& lines, const qrosterdata& cell, const qrosterdata& before,
                    const CellLines& how = {});
/// Takes the field that `line`, from `CellColorLine` to `FlagsLine`, stands for; other lines do nothing.
void ReadCellLine(std::int32_t line, const NumberedLine& from, qrosterdata& cell);

} // namespace tvok::mtvok
