#include <algorithm>
#include <string_view>

#include "tvok/engine/dgi.h"
#include "tvok/engine/headertext.h"
#include "tvok/engine/mtvok.h"
#include "tvok/host/Platform.h"
#include "tvok/records/numeric.h"

namespace tvok::mtvok {
namespace {

using host::platform;

constexpr std::int32_t kAnyHostDrawing = vflag::HostIcon | vflag::HostText | vflag::HostHead;
constexpr std::int32_t kInherited = 255;

/// What the steps of painting one cell share. `rc` is what is left of the cell right of the head band.
struct Cell {
    ListState& state;
    const qrosterdata& item;
    cExdrawCallback& callback;
    host::Handle hDC;
    std::int32_t index;
    tvok_Rect rc;
    tvok_Rect text{};
    OLE_COLOR background = 0;

    bool Has(std::int32_t bits) const { return (item.vflag & bits) != 0; }
    void HostDraws(std::int32_t message, const tvok_Rect& rect) {
        callback.RaiseExDraw(message, index, item.key, hDC, 0, rect.Left, rect.Top, rect.Right, rect.bottom);
    }
};

void DrawHeadBand(Cell& cell) {
    const ListState& state = cell.state;
    const auto width = state.HeadWidthEx;
    if (width < 1 || cell.rc.Left > std::int64_t{state.GridlineWidth} + 1) return;
    tvok_Rect band = dgi::InflatedRect(cell.rc, state.GridlineWidth);
    band.Right = width - 1;
    dgi::FillRectColor(cell.hDC, band, state.HeadExBackColor);
    dgi::FillRectColor(cell.hDC, {width - 1, band.Top, width, band.bottom}, state.HeadExBorderColor);
    if (cell.Has(vflag::HostHead)) cell.HostDraws(bExDrawHead, band);
    cell.rc.Left = ToInt32(std::int64_t{cell.rc.Left} + width);
}

void FillBlankCell(Cell& cell) {
    const ListState& state = cell.state;
    const std::int64_t line = state.GridlineWidth;
    cell.rc.Right = ToInt32(cell.rc.Right + line);
    cell.rc.bottom = ToInt32(cell.rc.bottom + line);
    if (state.GridlineOnBorder && state.CurCol == 1) cell.rc.Left = ToInt32(cell.rc.Left - line);
    if (state.GridlineOnBorder && state.CurRow == 1) cell.rc.Top = ToInt32(cell.rc.Top - line);
    dgi::FillRectColor(cell.hDC, cell.rc, state.BackColor);
}

void ChooseColors(Cell& cell) {
    const bool selected = cell.Has(vflag::Selected);
    cell.background = selected ? cell.state.SelectedColor : cell.item.bColor;
    platform().SetTextColor(cell.hDC, selected ? platform().GetSysColor(host::COLOR_HIGHLIGHTTEXT)
                                               : dgi::TranslateColor(cell.item.fcolor));
}

void DrawGridLines(const Cell& cell) {
    const ListState& state = cell.state;
    if (state.GridlineWidth <= 0) return;
    tvok_Rect lines = dgi::InflatedRect(cell.rc, state.GridlineWidth);
    if (!state.GridlineOnBorder) {
        lines.Left = cell.rc.Left;
        lines.Top = cell.rc.Top;
    }
    dgi::DrawBoxRect(cell.hDC, lines, state.GridlineWidth, state.GridlineColor, cell.background, false);
}

// The two orders differ: `TextRect` tells the 1-pixel margin of a text at the edge as part of the text area,
// and leaves the icon area out of it. Hosts that lay an editor over the text rely on both.
void PlaceText(Cell& cell) {
    ListState& state = cell.state;
    cell.text = cell.rc;
    if (cell.Has(vflag::TextAtEdge)) {
        state.TextRect = cell.text;
        cell.text.Left = ToInt32(std::int64_t{cell.text.Left} + 1);
    } else {
        cell.text.Left = ToInt32(std::int64_t{cell.text.Left} + state.CX_TEXT);
        state.TextRect = cell.text;
    }
}

tvok_Rect IconBox(const Cell& cell) {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
    const tvok_Rect& rc = cell.rc;
    ResolveIconPos(cell.item.IconPos, left, top, width, height, ToInt32(std::int64_t{rc.bottom} - rc.Top),
                   cell.state.CX_TEXT, cell.state.IconPos);
    return {ToInt32(std::int64_t{rc.Left} + left), ToInt32(std::int64_t{rc.Top} + top),
            ToInt32(std::int64_t{rc.Left} + left + width), ToInt32(std::int64_t{rc.Top} + top + height)};
}

/// Fills the icon area and gives what is left inside the box.
tvok_Rect FillIconArea(const Cell& cell, const tvok_Rect& area) {
    const tvok_Rect box = IconBox(cell);
    if (cell.Has(vflag::IconOnBackground)) {
        dgi::FillRectColor(cell.hDC, area, cell.background);
        return box;
    }
    dgi::FillRectFrame(cell.hDC, area, box, cell.background);
    if (!cell.Has(vflag::IconBorder)) {
        dgi::FillRectColor(cell.hDC, box, cell.item.IconBackColor);
        return box;
    }
    dgi::DrawBoxRect(cell.hDC, box, 1, cell.state.IconBorderColor, cell.item.IconBackColor, true);
    return dgi::InflatedRect(box, -1);
}

void DrawIconArea(Cell& cell) {
    const tvok_Rect area{cell.rc.Left, cell.rc.Top, cell.text.Left, cell.rc.bottom};
    if (!cell.Has(vflag::IconBox)) return dgi::FillRectColor(cell.hDC, area, cell.background);
    const tvok_Rect box = FillIconArea(cell, area);
    if (cell.Has(vflag::HostIcon)) return cell.HostDraws(bExDrawIcon, box);
    if (cell.item.IconID > 0)
        platform().ImageList_Draw(cell.state.IconHandle, cell.item.IconID - 1, cell.hDC, box.Left, box.Top,
                                  host::ILD_TRANSPARENT);
}

/// Writes texts of one cell, each into a rectangle that it also fills.
class TextWriter {
public:
    explicit TextWriter(const Cell& cell)
        : hDC_(cell.hDC), right_(cell.Has(vflag::RightAligned)),
          y_(ToInt32(cell.text.Top +
                     (std::int64_t{cell.text.bottom} - cell.text.Top - cell.state.TextHeight) / 2)) {
        platform().SetTextAlign(hDC_, right_ ? host::TA_RIGHT : host::TA_LEFT);
        platform().SetBkColor(hDC_, dgi::TranslateColor(cell.background));
    }

    void Write(const tvok_Rect& rect, std::string_view text) const {
        platform().ExtTextOutA(hDC_, right_ ? rect.Right : rect.Left, y_,
                               host::ETO_OPAQUE | host::ETO_CLIPPED, &rect, text.data(),
                               ToInt32(static_cast<std::int64_t>(text.size())));
    }

private:
    host::Handle hDC_;
    bool right_;
    std::int32_t y_;
};

/// Takes the part before the next tab character off the front of `rest`.
std::string_view TakePart(std::string_view& rest) {
    const auto tab = rest.find('\t');
    const auto part = rest.substr(0, tab);
    rest.remove_prefix(tab == std::string_view::npos ? rest.size() : tab + 1);
    return part;
}

void WriteTabColumns(const Cell& cell, const TextWriter& writer) {
    const ListState& state = cell.state;
    std::string_view rest = cell.item.text;
    tvok_Rect column = cell.text;
    for (std::int32_t k = 0; k < state.TabCount; ++k) {
        const auto next = std::int64_t{column.Left} + state.TabStops[k];
        column.Right = static_cast<std::int32_t>(std::min<std::int64_t>(next, cell.text.Right));
        writer.Write(column, TakePart(rest));
        if (next > cell.text.Right) return;
        column.Left = static_cast<std::int32_t>(next);
    }
    column.Right = cell.text.Right;
    writer.Write(column, TakePart(rest));
}

void DrawText(Cell& cell) {
    platform().SetBkMode(cell.hDC, host::OPAQUE_BK);
    if (cell.Has(vflag::HostText)) return cell.HostDraws(bExDrawText, cell.text);
    if (cell.state.FontObj) ApplyFontStyle(*cell.state.FontObj, cell.item.vflag);
    const TextWriter writer(cell);
    if (cell.state.TabCount == 0) return writer.Write(cell.text, cell.item.text);
    WriteTabColumns(cell, writer);
}

void DrawFocus(const Cell& cell, bool focus) {
    platform().SetTextColor(cell.hDC, platform().GetSysColor(host::COLOR_WINDOWTEXT));
    platform().SetBkColor(cell.hDC, platform().GetSysColor(host::COLOR_HIGHLIGHTTEXT));
    if (cell.index != cell.state.ListIndex) return;
    const bool always = cell.Has(vflag::FocusAlways);
    if (always || focus)
        platform().DrawFocusRect(cell.hDC, always && focus ? dgi::InflatedRect(cell.rc, 1) : cell.rc);
}

/// Paints the record of a slot. One that raises an event is lent, so that a handler may do anything to the
/// list.
void DrawSlot(ListState& state, std::int32_t slot, ItemSlots& items, cExdrawCallback& callback, bool focus) {
    const qrosterdata& item = items[slot];
    if ((item.vflag & kAnyHostDrawing) == 0) return DrawListItem(state, item, callback, focus);
    auto loan = items.Lend(slot);
    DrawListItem(state, loan.record(), callback, focus);
}

bool Meets(const tvok_Rect& cell, std::int32_t line, const tvok_Rect& rect) {
    tvok_Rect common;
    return host::Platform::IntersectRect(common, dgi::InflatedRect(cell, line), rect);
}

/// Goes through the cells of the page from the item `index` on; `paintItem` may change the index it is given.
template<class PaintItem, class PaintBlank>
void WalkCells(ListState& state, const tvok_Rect& rect, const CellTable& cells, std::int64_t index,
               const PaintItem& paintItem, const PaintBlank& paintBlank) {
    // True is 1 here, so this never ends the painting, and nothing else asks for an empty rectangle: the
    // filler cells are painted for one as well. That stays.
    if (host::Platform::IsRectEmpty(rect) == -1) return;
    const auto columns = state.GridCols;
    const auto rows = state.GridRows;
    if (columns > cells.UpperColumn() || rows > cells.UpperRow()) return;
    for (std::int32_t row = 1; row <= rows; ++row) {
        for (std::int32_t column = 1; column <= columns; ++column) {
            state.CurCol = column;
            state.CurRow = row;
            state.CellRect = cells(column, row);
            if (column == columns) {
                state.CurItem = 0;
                paintBlank();
                continue;
            }
            const auto present = index++;
            if (!Meets(state.CellRect, state.GridlineWidth, rect)) continue;
            if (present > state.Count) {
                state.CurItem = 0;
                paintBlank();
                continue;
            }
            auto painted = static_cast<std::int32_t>(present);
            paintItem(painted);
            index += std::int64_t{painted} - present;
        }
    }
}

} // namespace

void DrawListItem(ListState& state, const qrosterdata& item, cExdrawCallback& callback, bool focus) {
    Cell cell{state, item, callback, state.hDC, state.CurItem, state.CellRect};
    DrawHeadBand(cell);
    if (cell.index == 0) return FillBlankCell(cell);
    ChooseColors(cell);
    DrawGridLines(cell);
    PlaceText(cell);
    DrawIconArea(cell);
    DrawText(cell);
    DrawFocus(cell, focus);
}

void DrawItemAt(ListState& state, std::int32_t index, ItemSlots& items, IndexArray& indexes,
                const CellTable& cells, cExdrawCallback& callback, std::int32_t column, std::int32_t row,
                bool focus) {
    if (column < 1 && !IndexToCell(index, state, column, row)) return;
    state.CurItem = index;
    if (index == state.ListIndex && !focus) focus = dgi::IsFocusWindow(state.FocusHwnd);
    state.CellRect = cells(column, row);
    DrawSlot(state, indexes[index], items, callback, focus);
}

void DrawItems(ListState& state, const tvok_Rect& rect, ItemSlots& items, IndexArray& indexes,
               const CellTable& cells, cExdrawCallback& callback, bool focus) {
    WalkCells(
        state, rect, cells, std::int64_t{state.TopRow} * state.xn + 1,
        [&](std::int32_t& index) {
            state.CurItem = index;
            DrawItemAt(state, index, items, indexes, cells, callback, state.CurCol, state.CurRow, focus);
        },
        [&] { DrawSlot(state, 0, items, callback, false); });
}

void DrawCells(ListState& state, const tvok_Rect& rect, const CellTable& cells, std::int64_t first,
               const std::function<void(std::int32_t&)>& paintItem, const std::function<void()>& paintBlank) {
    WalkCells(state, rect, cells, first, paintItem, paintBlank);
}

void DrawBlank(ListState& state, ItemSlots& items, cExdrawCallback& callback) {
    DrawSlot(state, 0, items, callback, false);
}

void ResolveIconPos(std::int32_t itemIconPos, std::int32_t& left, std::int32_t& top, std::int32_t& width,
                    std::int32_t& height, std::int32_t cellHeight, std::int32_t areaWidth,
                    std::int32_t listIconPos) {
    const tvok_IconPos own = UnpackIconPos(itemIconPos);
    const tvok_IconPos list = UnpackIconPos(listIconPos);
    const auto resolve = [](std::uint8_t item, std::uint8_t inherited) {
        return std::int32_t{item == kInherited ? inherited : item};
    };
    const auto place = [](std::int32_t offset, std::int32_t area, std::int32_t size) {
        return offset == kInherited ? std::max((area - size) / 2, 0) : offset;
    };
    height = std::min(resolve(own.Height, list.Height), cellHeight);
    width = std::min(resolve(own.width, list.width), areaWidth);
    left = place(resolve(own.Left, list.Left), areaWidth, width);
    top = place(resolve(own.Top, list.Top), cellHeight, height);
}

} // namespace tvok::mtvok
