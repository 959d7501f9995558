#include "tvok/engine/numberedlines.h"

#include "tvok/records/numeric.h"
#include "tvok/records/text.h"

namespace tvok::mtvok {

void LineWriter::Begin(std::int32_t line) {
    AppendDecimal(text_, line);
    text_ += '=';
}

void LineWriter::Hex(std::int32_t line, std::int32_t value) {
    Begin(line);
    AppendHex(text_, value);
    End();
}

void LineWriter::Decimal(std::int32_t line, std::int32_t value) {
    Begin(line);
    AppendDecimal(text_, value);
    End();
}

void LineWriter::Text(std::int32_t line, std::string_view value) {
    Begin(line);
    text_ += value;
    End();
}

void LineWriter::Alone(std::int32_t line) {
    AppendDecimal(text_, line);
    End();
}

void NumberedLine::Read(std::string_view line) {
    line = Trim(line);
    const auto sign = line.find('=');
    const bool divided = sign != std::string_view::npos && sign > 0;
    const auto number = TryRoundToInt32(ScanNumber(divided ? line.substr(0, sign) : line));
    if (number && *number <= largest_ && *number >= -largest_ - 1) number_ = *number;
    if (divided) value_ = Trim(line.substr(sign + 1));
}

std::int32_t NumberedLine::Number() const {
    return RoundToInt32(ScanNumber(value_));
}

bool NumberedLine::Truth() const {
    return ScanNumber(value_) != 0;
}

void ReadSettingLine(std::int32_t line, const NumberedLine& from, ListState& state) {
    switch (line) {
    case BackColorLine: state.BackColor = from.Number(); break;
    case IconAreaLine: state.CX_TEXT = from.Number(); break;
    case GridlineColorLine: state.GridlineColor = from.Number(); break;
    case GridlineOnBorderLine: state.GridlineOnBorder = from.Truth(); break;
    case GridlineWidthLine: state.GridlineWidth = from.Number(); break;
    case HeadBackColorLine: state.HeadExBackColor = from.Number(); break;
    case HeadWidthLine: state.HeadWidthEx = from.Number(); break;
    case IconBorderColorLine: state.IconBorderColor = from.Number(); break;
    case ListIconPosLine: state.IconPos = from.Number(); break;
    case SelectedColorLine: state.SelectedColor = from.Number(); break;
    default: break;
    }
}

void WriteCellLines(LineWriter& lines, const qrosterdata& cell, const qrosterdata& before,
                    const CellLines& how) {
    const auto at = [&](SharedLine line) { return line + how.shift; };
    const std::int32_t flags = cell.vflag & how.keptFlags;
    if (cell.bColor != before.bColor) lines.Hex(at(CellColorLine), cell.bColor);
    if (cell.fcolor != before.fcolor) lines.Hex(at(TextColorLine), cell.fcolor);
    if (cell.IconBackColor != before.IconBackColor) lines.Hex(at(IconColorLine), cell.IconBackColor);
    if (cell.IconPos != before.IconPos) lines.Hex(at(IconPosLine), cell.IconPos);
    if (cell.IconID != before.IconID) lines.Decimal(at(IconIDLine), cell.IconID);
    if (cell.ItemData != before.ItemData) lines.Decimal(at(ItemDataLine), cell.ItemData);
    if (how.text && cell.text != before.text) lines.Text(at(TextLine), cell.text);
    if (cell.key != before.key) lines.Text(at(KeyLine), cell.key);
    if (flags != (before.vflag & how.keptFlags)) lines.Hex(at(FlagsLine), flags);
}

void ReadCellLine(std::int32_t line, const NumberedLine& from, qrosterdata& cell) {
    switch (line) {
    case CellColorLine: cell.bColor = from.Number(); break;
    case TextColorLine: cell.fcolor = from.Number(); break;
    case IconColorLine: cell.IconBackColor = from.Number(); break;
    case IconPosLine: cell.IconPos = from.Number(); break;
    case IconIDLine: cell.IconID = from.Number(); break;
    case ItemDataLine: cell.ItemData = from.Number(); break;
    case TextLine: cell.text = from.text(); break;
    case KeyLine: cell.key = from.text(); break;
    case FlagsLine: cell.vflag = from.Number(); break;
    default: break;
    }
}

} // namespace tvok::mtvok
