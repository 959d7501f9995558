// The text form of `gList`: its settings, and each live item as what differs from the one before.
#include <numeric>

#include "tvok/controls/propertylist/gList_impl.h"
#include "tvok/engine/numberedlines.h"
#include "tvok/records/numeric.h"
#include "tvok/records/text.h"

namespace tvok {

namespace {

using mtvok::LineWriter;
using mtvok::NumberedLine;

/// Line numbers that only this form has.
enum Line : std::int32_t {
    BorderStyleLine = 2,
    FixedHeightLine = 4,
    ParentLine = 20, ///< Here and to `ParentKeyLine` and `HelpLine`: fields of an item.
    VisibleLine = 21,
    ParentKeyLine = 22,
    ButtonsLine = 23,
    ListModeLine = 24,
    SortedLine = 28,
    HelpLine = 29,
};

constexpr std::int32_t cValueLines = 100;    ///< From a caption cell's line to the value cell's.
constexpr std::int32_t cLargestLine = 32767; ///< Line numbers are 16 bits wide.

/// `before` is what the reader has in hand. Values and value texts are not part of the form.
void WriteItem(LineWriter& lines, const elistdata& item, const elistdata& before) {
    if (item.bParentItem != before.bParentItem) lines.Truth(ParentLine, item.bParentItem);
    if (item.bVisible != before.bVisible) lines.Truth(VisibleLine, item.bVisible);
    if (item.pKey != before.pKey) lines.Text(ParentKeyLine, item.pKey);
    if (item.xbuttons != before.xbuttons) lines.Text(ButtonsLine, item.xbuttons);
    if (item.HelpStr != before.HelpStr) lines.Text(HelpLine, item.HelpStr);
    mtvok::WriteCellLines(lines, item.hItem, before.hItem, {.keptFlags = ~vflag::Selected});
    mtvok::WriteCellLines(lines, item.item, before.item, {.shift = cValueLines, .text = false});
    lines.Alone(mtvok::EndOfItemLine);
}

/// Rounded to a whole number first, unlike in the form of the other lists: 0.4 is false, and a number that
/// does not fit leaves the field as it was.
bool Truth(const NumberedLine& line) {
    return line.Number() != 0;
}

/// Takes an item's field. The text of the value cell has no line, while that of the caption has one.
void ReadItemLine(const NumberedLine& line, elistdata& item) {
    switch (line.number()) {
    case ParentLine: item.bParentItem = Truth(line); break;
    case VisibleLine: item.bVisible = Truth(line); break;
    case ParentKeyLine: item.pKey = line.text(); break;
    case ButtonsLine: item.xbuttons = line.text(); break;
    case HelpLine: item.HelpStr = line.text(); break;
    case mtvok::TextLine + cValueLines: break;
    default:
        mtvok::ReadCellLine(line.number(), line, item.hItem);
        mtvok::ReadCellLine(line.number() - cValueLines, line, item.item);
    }
}

} // namespace

std::string gList::Impl::WriteText() const {
    std::string text;
    LineWriter lines(text);
    lines.Hex(mtvok::BackColorLine, state.BackColor);
    lines.Decimal(BorderStyleLine, Base().BorderStyle());
    lines.Decimal(mtvok::IconAreaLine, state.CX_TEXT);
    lines.Truth(FixedHeightLine, state.FixedHeight);
    lines.Hex(mtvok::GridlineColorLine, state.GridlineColor);
    lines.Truth(mtvok::GridlineOnBorderLine, state.GridlineOnBorder);
    lines.Decimal(mtvok::GridlineWidthLine, state.GridlineWidth);
    lines.Hex(mtvok::HeadBackColorLine, state.HeadExBackColor);
    lines.Decimal(mtvok::HeadWidthLine, state.HeadWidthEx);
    lines.Hex(mtvok::IconBorderColorLine, state.IconBorderColor);
    lines.Hex(mtvok::ListIconPosLine, state.IconPos);
    lines.Decimal(mtvok::ItemHeightLine, ToInt32(std::int64_t{state.ItemHeight} - TextHeight()));
    lines.Hex(mtvok::SelectedColorLine, state.SelectedColor);
    lines.Decimal(ListModeLine, listMode);
    lines.Truth(SortedLine, sorted);

    // In the order of captions whatever `Sorted` says: a round trip loses the store's order.
    const std::int32_t last = items.UpperBound();
    Array<std::int32_t> order(last);
    std::iota(order.data(), order.data() + last + 1, 0);
    mtvok::SortIndexByText([this](std::int32_t slot) -> const std::string& { return items[slot].hItem.text; },
                           order, 1, last, true, true);
    lines.Alone(mtvok::FirstItemLine);
    const elistdata first = DefaultRecord();
    const elistdata* before = &first;
    for (std::int32_t k = 1; k <= last; ++k) {
        const elistdata& item = items[order[k]];
        if (item.bDelete) continue;
        WriteItem(lines, item, *before);
        before = &item;
    }
    return text;
}

void gList::Impl::ReadSetting(const NumberedLine& line) {
    switch (line.number()) {
    case BorderStyleLine: Base().BorderStyle(ToInt16(line.Number())); break;
    case FixedHeightLine: state.FixedHeight = Truth(line); break;
    case mtvok::GridlineOnBorderLine: state.GridlineOnBorder = Truth(line); break;
    case mtvok::ItemHeightLine:
        state.ItemHeight = RoundToInt32(ScanNumber(line.text()) + TextHeight());
        break;
    case ListModeLine: listMode = line.Number(); break;
    case SortedLine: sorted = Truth(line); break;
    default: mtvok::ReadSettingLine(line.number(), line, state);
    }
}

void gList::Impl::ReadText(std::string_view given) {
    const std::string text(given); // a handler may end what the view looks at
    elistdata item = DefaultRecord();
    NumberedLine line(cLargestLine);
    Lines lines(text);
    for (std::string_view next; IsAlive() && lines.Next(next);) {
        line.Read(next);
        switch (line.number()) {
        case mtvok::FirstItemLine: item = DefaultRecord(); break;
        case mtvok::EndOfItemLine: AddItem(item, 0); break;
        default: quietly([&] { ReadSetting(line); }, [&] { ReadItemLine(line, item); });
        }
    }
    if (IsAlive()) FitControl();
}

std::string gList::ItemsStr() const {
    return impl_->UserMode() ? impl_->WriteText() : std::string();
}

void gList::ItemsStr(std::string_view text) {
    if (impl_->UserMode()) impl_->ReadText(text);
}

} // namespace tvok
