#include <algorithm>

#include "tvok/engine/dgi.h"
#include "tvok/engine/numberedlines.h"
#include "tvok/engine/persistence.h"
#include "tvok/records/Error.h"
#include "tvok/records/numeric.h"
#include "tvok/records/text.h"

namespace tvok::mtvok {
namespace {

/// Line numbers of the settings that only this form has.
enum Line : std::int32_t {
    HeadBorderColorLine = 9,
    ItemWidthLine = 14,
    ColumnsLine = 18,
    RowsLine = 19,
    ColWidthsLine = 25,
    TabStopsLine = 26,
    FixedLastWidthLine = 27,
};

constexpr std::int32_t kGrowth = 5;

std::int32_t FontPixels(const ListState& state) {
    if (!state.FontObj) throw ObjectError("a list has no font before it is initialised");
    return dgi::PointsToPixels(state.FontObj->Size());
}

void WriteSettings(LineWriter& lines, const ListState& state) {
    lines.Hex(BackColorLine, state.BackColor);
    lines.Decimal(IconAreaLine, state.CX_TEXT);
    lines.Hex(GridlineColorLine, state.GridlineColor);
    lines.Truth(GridlineOnBorderLine, state.GridlineOnBorder);
    lines.Decimal(GridlineWidthLine, state.GridlineWidth);
    lines.Hex(HeadBackColorLine, state.HeadExBackColor);
    lines.Hex(HeadBorderColorLine, state.HeadExBorderColor);
    lines.Decimal(HeadWidthLine, state.HeadWidthEx);
    lines.Hex(IconBorderColorLine, state.IconBorderColor);
    lines.Hex(ListIconPosLine, state.IconPos);
    lines.Decimal(ItemHeightLine, ToInt32(std::int64_t{state.ItemHeight} - FontPixels(state)));
    lines.Decimal(ItemWidthLine, state.ItemWidth);
    lines.Hex(SelectedColorLine, state.SelectedColor);
    lines.Decimal(ColumnsLine, state.xn);
    lines.Decimal(RowsLine, state.yn);
    lines.Text(ColWidthsLine, state.ColWidthSettingStr);
    lines.Text(TabStopsLine, state.TabStopSettingStr);
    lines.Truth(FixedLastWidthLine, state.FixedWidthForLastXn);
}

/// Reads the lines of a text one after the other. A line's error ends that line.
class LineReader {
public:
    LineReader(ListState& state, ItemSlots& items, IndexArray& indexes)
        : state_(state), items_(items), indexes_(indexes) {}

    void Read(std::string_view line) {
        line_.Read(line);
        quietly([&] { line_.number() < CellColorLine ? ReadSetting() : ReadItemLine(); });
    }

private:
    void ReadSetting() {
        switch (line_.number()) {
        case HeadBorderColorLine: break; // Written and never read: texts of all ages agree on that.
        case ItemHeightLine:
            state_.ItemHeight = ToInt32(std::int64_t{line_.Number()} + FontPixels(state_));
            break;
        case ItemWidthLine: state_.ItemWidth = line_.Number(); break;
        case ColumnsLine: state_.xn = line_.Number(); break;
        case RowsLine: state_.yn = line_.Number(); break;
        case ColWidthsLine: state_.ColWidthSettingStr = line_.text(); break;
        case TabStopsLine: state_.TabStopSettingStr = line_.text(); break;
        case FixedLastWidthLine: state_.FixedWidthForLastXn = line_.Truth(); break;
        default: ReadSettingLine(line_.number(), line_, state_); break;
        }
    }

    void ReadItemLine() {
        switch (line_.number()) {
        case FirstItemLine: GetDefaultItem(item_); break;
        case EndOfItemLine: AddItem(); break;
        default: ReadCellLine(line_.number(), line_, item_); break;
        }
    }

    void AddItem() {
        const auto slot = ToInt32(std::int64_t{state_.Count} + 1);
        const auto grown = ToInt32(std::int64_t{slot} + kGrowth);
        if (items_.UpperBound() < slot) items_.Resize(grown);
        if (indexes_.UpperBound() < slot) indexes_.Resize(grown);
        state_.Count = slot;
        items_.Put(slot, item_);
        items_.PutFlags(slot, item_.vflag | vflag::InUse);
        indexes_[slot] = slot;
    }

    ListState& state_;
    ItemSlots& items_;
    IndexArray& indexes_;
    qrosterdata item_;
    NumberedLine line_;
};

/// A size that the text of a list will seldom exceed, so that it grows once.
std::size_t ExpectedSize(const ListState& state, const ItemSlots& items, const IndexArray& indexes) {
    std::size_t size = 1024;
    for (std::int32_t i = 1; i <= state.Count; ++i) {
        const qrosterdata& item = items[indexes[i]];
        size += item.text.size() + item.key.size() + 48;
    }
    return size;
}

} // namespace

std::string BuildItemsStr(const ListState& state, const ItemSlots& items, const IndexArray& indexes) {
    std::string text;
    text.reserve(ExpectedSize(state, items, indexes));
    LineWriter lines(text);
    WriteSettings(lines, state);
    lines.Alone(FirstItemLine);
    const qrosterdata defaultItem;
    const qrosterdata* before = &defaultItem;
    for (std::int32_t i = 1; i <= state.Count; ++i) {
        const qrosterdata& item = items[indexes[i]];
        WriteCellLines(lines, item, *before, {.keptFlags = ~vflag::Selected});
        lines.Alone(EndOfItemLine);
        before = &item;
    }
    return text;
}

void ParseItemsStr(ListState& state, ItemSlots& items, IndexArray& indexes, std::string_view text) {
    LineReader reader(state, items, indexes);
    Lines lines(text);
    for (std::string_view line; lines.Next(line);) reader.Read(line);
}

} // namespace tvok::mtvok
