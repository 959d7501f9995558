#include <algorithm>

#include "tvok/engine/dgi.h"
#include "tvok/engine/persistence.h"
#include "tvok/records/Error.h"
#include "tvok/records/numeric.h"
#include "tvok/records/text.h"

namespace tvok::mtvok {
namespace {

/// Line numbers of the text form.
enum Line : std::int32_t {
    BackColorLine = 1,
    IconAreaLine = 3,
    GridlineColorLine = 5,
    GridlineOnBorderLine = 6,
    GridlineWidthLine = 7,
    HeadBackColorLine = 8,
    HeadBorderColorLine = 9,
    HeadWidthLine = 10,
    IconBorderColorLine = 11,
    ListIconPosLine = 12,
    ItemHeightLine = 13,
    ItemWidthLine = 14,
    SelectedColorLine = 15,
    ColumnsLine = 18,
    RowsLine = 19,
    ColWidthsLine = 25,
    TabStopsLine = 26,
    FixedLastWidthLine = 27,
    CellColorLine = 101,
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

constexpr std::int32_t kGrowth = 5;

std::int32_t FontPixels(const ListState& state) {
    if (!state.FontObj) throw ObjectError("a list has no font before it is initialised");
    return dgi::PointsToPixels(state.FontObj->Size());
}

std::int32_t KeptFlags(const qrosterdata& item) {
    return item.vflag & ~vflag::Selected;
}

/// Appends lines to a text.
class LineWriter {
public:
    explicit LineWriter(std::string& text) : text_(text) {}

    void Hex(Line line, std::int32_t value) {
        Begin(line);
        AppendHex(text_, value);
        End();
    }
    void Decimal(Line line, std::int32_t value) {
        Begin(line);
        AppendDecimal(text_, value);
        End();
    }
    void Truth(Line line, bool value) { Decimal(line, value ? -1 : 0); }
    void Text(Line line, std::string_view value) {
        Begin(line);
        text_ += value;
        End();
    }
    void Alone(Line line) {
        AppendDecimal(text_, line);
        End();
    }

private:
    void Begin(Line line) {
        AppendDecimal(text_, line);
        text_ += '=';
    }
    void End() { text_ += "\r\n"; }

    std::string& text_;
};

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

/// Writes what differs between an item and the one before.
void WriteItem(LineWriter& lines, const qrosterdata& item, const qrosterdata& before) {
    if (item.bColor != before.bColor) lines.Hex(CellColorLine, item.bColor);
    if (item.fcolor != before.fcolor) lines.Hex(TextColorLine, item.fcolor);
    if (item.IconBackColor != before.IconBackColor) lines.Hex(IconColorLine, item.IconBackColor);
    if (item.IconPos != before.IconPos) lines.Hex(IconPosLine, item.IconPos);
    if (item.IconID != before.IconID) lines.Decimal(IconIDLine, item.IconID);
    if (item.ItemData != before.ItemData) lines.Decimal(ItemDataLine, item.ItemData);
    if (item.text != before.text) lines.Text(TextLine, item.text);
    if (item.key != before.key) lines.Text(KeyLine, item.key);
    if (KeptFlags(item) != KeptFlags(before)) lines.Hex(FlagsLine, KeptFlags(item));
    lines.Alone(EndOfItemLine);
}

/// Reads the lines of a text one after the other. A line's error ends that line.
class LineReader {
public:
    LineReader(ListState& state, ItemSlots& items, IndexArray& indexes)
        : state_(state), items_(items), indexes_(indexes) {}

    void Read(std::string_view line) {
        Divide(Trim(line));
        quietly([&] { number_ < CellColorLine ? ReadSetting() : ReadItemLine(); });
    }

private:
    // A line without "=" keeps the value of the line before, and one whose number does not fit keeps the
    // number of the line before.
    void Divide(std::string_view line) {
        const auto sign = line.find('=');
        const bool divided = sign != std::string_view::npos && sign > 0;
        number_ = TryRoundToInt32(ScanNumber(divided ? line.substr(0, sign) : line)).value_or(number_);
        if (divided) value_ = Trim(line.substr(sign + 1));
    }

    std::int32_t Number() const { return RoundToInt32(ScanNumber(value_)); }
    bool Truth() const { return ScanNumber(value_) != 0; }

    void ReadSetting() {
        switch (number_) {
        case BackColorLine: state_.BackColor = Number(); break;
        case IconAreaLine: state_.CX_TEXT = Number(); break;
        case GridlineColorLine: state_.GridlineColor = Number(); break;
        case GridlineOnBorderLine: state_.GridlineOnBorder = Truth(); break;
        case GridlineWidthLine: state_.GridlineWidth = Number(); break;
        case HeadBackColorLine: state_.HeadExBackColor = Number(); break;
        case HeadBorderColorLine: break; // Written and never read: texts of all ages agree on that.
        case HeadWidthLine: state_.HeadWidthEx = Number(); break;
        case IconBorderColorLine: state_.IconBorderColor = Number(); break;
        case ListIconPosLine: state_.IconPos = Number(); break;
        case ItemHeightLine: state_.ItemHeight = ToInt32(std::int64_t{Number()} + FontPixels(state_)); break;
        case ItemWidthLine: state_.ItemWidth = Number(); break;
        case SelectedColorLine: state_.SelectedColor = Number(); break;
        case ColumnsLine: state_.xn = Number(); break;
        case RowsLine: state_.yn = Number(); break;
        case ColWidthsLine: state_.ColWidthSettingStr = value_; break;
        case TabStopsLine: state_.TabStopSettingStr = value_; break;
        case FixedLastWidthLine: state_.FixedWidthForLastXn = Truth(); break;
        default: break;
        }
    }

    void ReadItemLine() {
        switch (number_) {
        case CellColorLine: item_.bColor = Number(); break;
        case TextColorLine: item_.fcolor = Number(); break;
        case IconColorLine: item_.IconBackColor = Number(); break;
        case IconPosLine: item_.IconPos = Number(); break;
        case IconIDLine: item_.IconID = Number(); break;
        case ItemDataLine: item_.ItemData = Number(); break;
        case TextLine: item_.text = value_; break;
        case KeyLine: item_.key = value_; break;
        case FlagsLine: item_.vflag = Number(); break;
        case FirstItemLine: GetDefaultItem(item_); break;
        case EndOfItemLine: AddItem(); break;
        default: break;
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
    std::int32_t number_ = 0;
    std::string_view value_;
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
        WriteItem(lines, item, *before);
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
