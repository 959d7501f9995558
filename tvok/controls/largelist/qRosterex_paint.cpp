// Layout and painting of `qRosterex`. Every routine works on the row slots of one geometry: `rowRects`.
#include "tvok/controls/largelist/qRosterex_impl.h"

#include <algorithm>
#include <optional>

#include "tvok/engine/dgi.h"
#include "tvok/engine/drawingscopes.h"
#include "tvok/engine/headertext.h"
#include "tvok/records/numeric.h"

namespace tvok {

namespace {

constexpr std::int32_t cSwatch = 0x00001000;  // the row shows a colour swatch in its icon column
constexpr std::int32_t cOneCell = 0x00002000; // the row's whole text is one cell
constexpr std::int32_t cRowCacheModulus = 128;
constexpr std::int32_t cHeaderMargin = 3;
constexpr std::int32_t cCellMargin = 1;
constexpr std::int32_t cHeaderOverrun = 25; // the empty button at the end of the band runs on past the edge

bool Meets(const tvok_Rect& a, const tvok_Rect& b) {
    tvok_Rect common;
    return host::Platform::IntersectRect(common, a, b);
}

void Shift(tvok_Rect& rect, std::int32_t dx) {
    host::Platform::OffsetRect(rect, dx, 0);
}

} // namespace

// Rows and slots.

std::int64_t qRosterex::Impl::RowOfSlot(std::int32_t slot, std::int32_t position) const {
    return viewMode != 0 ? std::int64_t{position} + slot : std::int64_t{state.Count} - position - slot + 1;
}

std::int64_t qRosterex::Impl::SlotOfRow(std::int32_t row, std::int32_t position) const {
    return viewMode != 0 ? std::int64_t{row} - position : std::int64_t{state.Count} - position - row + 1;
}

void qRosterex::Impl::BuildRowRects() {
    host::platform().GetWindowRect(state.hWnd, state.WindowRect);
    host::platform().GetClientRect(state.hWnd, state.ClientRect);
    const std::int64_t step = RowStep();
    if (step == 0) throw OverflowError("rows of height 0 have no number that fits the page");
    const std::int64_t whole = std::max<std::int64_t>((std::int64_t{viewHeight} - headerHeight) / step, 0);
    const std::int32_t slots = ToInt32(whole + 1);
    if (slots > rowRects.UpperBound()) rowRects.Resize(slots);
    state.yn = slots - 1;
    rowRects[0] = {0, 0, state.ClientRect.Right, headerHeight};
    for (std::int32_t slot = 1; slot <= slots; ++slot) {
        const std::int32_t top = ToInt32(headerHeight + (slot - 1) * step);
        rowRects[slot] = {0, top, viewWidth, ToInt32(std::int64_t{top} + state.ItemHeight)};
    }
}

void qRosterex::Impl::DecideBars() {
    host::Platform& platform = host::platform();
    platform.GetWindowRect(state.hWnd, state.WindowRect);
    host::Point origin;
    platform.ClientToScreen(state.hWnd, origin);
    const std::int32_t border = origin.x - state.WindowRect.Left; // serves both directions
    viewWidth = state.WindowRect.Right - state.WindowRect.Left - 2 * border;
    viewHeight = state.WindowRect.bottom - state.WindowRect.Top - 2 * border;
    const std::int64_t need = RowStep() * state.Count + headerHeight;
    const std::int32_t barHeight = platform.GetSystemMetrics(host::SM_CYHSCROLL);
    vBarShown = viewHeight < need;
    if (vBarShown) viewWidth -= platform.GetSystemMetrics(host::SM_CXVSCROLL);
    hBarShown = totalColumnWidth > viewWidth;
    if (hBarShown) viewHeight -= barHeight;
    if (hBarShown && !vBarShown) {
        vBarShown = need > viewHeight;
        // The height of the horizontal bar stands in for the width of the vertical one here, and stays so.
        if (vBarShown) viewWidth -= barHeight;
    }
}

void qRosterex::Impl::LayoutBars() {
    const auto bars = Hook();
    DecideBars();
    bars->ScrollHBarShown(hBarShown);
    bars->ScrollBarShown(vBarShown);
    BuildRowRects();
    if (hBarShown) { // a bar that goes off keeps its old maximum and value
        bars->ScrollHLarge(viewWidth);
        bars->ScrollHMax(ToInt32(std::int64_t{totalColumnWidth} - viewWidth));
    }
    if (vBarShown) {
        bars->ScrollLarge(state.yn);
        bars->ScrollMax(state.Count - state.yn);
    }
}

void qRosterex::Impl::Refresh() {
    totalColumnWidth = columns.Sum();
    if (pendingCount > 0) FlushPendingRows();
    if (ended) return; // by a handler of the rows that came
    LayoutBars();
    PaintAll();
}

// Painting.

void qRosterex::Impl::PaintAll() {
    if (lockedPaint || ended) return;
    shownTop.reset(); // until it is through: a handler may throw, or scroll and so come here again
    PaintRect(state.ClientRect);
    if (!ended) shownTop = RowOfSlot(1, Hook()->ScrollValue());
}

void qRosterex::Impl::PaintRect(const tvok_Rect& update) {
    if (lockedPaint || ended) return;
    const auto bars = Hook();
    if (Meets(update, rowRects[0])) PaintHeader();
    PaintPass pass(*this, update);
    for (; pass.slot <= std::int64_t{state.yn} + 1 && !ended; ++pass.slot) {
        pass.slot = std::max<std::int64_t>(pass.slot, 1); // a handler may have moved it off the page
        const auto slot = static_cast<std::int32_t>(pass.slot);
        const std::int64_t row = RowOfSlot(slot, bars->ScrollValue());
        if (!Meets(dgi::InflatedRect(rowRects[slot], state.GridlineWidth), pass.update)) continue;
        if (row < 1 || row > state.Count)
            PaintBlankSlot(slot);
        else
            PaintRow(static_cast<std::int32_t>(row));
    }
}

void qRosterex::Impl::PaintBlankSlot(std::int32_t slot) {
    state.CellRect = rowRects[slot];
    state.CurItem = 0;
    DrawRowContent(rowCache.front(), false);
    if (state.Count != 0 || slot != 1) return;
    // The colour goes out as it stands, untranslated, and the text is written also when it is empty.
    host::platform().SetTextColor(state.hDC, cWindowText);
    tvok_Rect rect = rowRects[1];
    host::platform().DrawTextA(state.hDC, clearText.data(), static_cast<std::int32_t>(clearText.size()), rect,
                               host::DT_VCENTER | host::DT_SINGLELINE);
}

bool qRosterex::Impl::PlaceRow(std::int32_t row) {
    if (row < 1 || row > state.Count) return false;
    const std::int64_t slot = SlotOfRow(row, Hook()->ScrollValue());
    if (slot < 1 || slot > std::int64_t{state.yn} + 1) return false;
    state.CurItem = row;
    state.CellRect = rowRects[static_cast<std::int32_t>(slot)];
    return true;
}

void qRosterex::Impl::PaintRow(std::int32_t row) {
    if (ended || !PlaceRow(row)) return;
    const bool wantFocus = row == state.ListIndex && dgi::IsFocusWindow(state.hWnd);
    qrosterdata& record = rowCache[static_cast<std::size_t>(row % cRowCacheModulus)];
    std::int32_t asked = row;
    events.EnumDATA(asked, record);
    record.ItemDataEx = asked;
    // The bit is only ever set here: a host that does not write `vflag` sees rows stay highlighted.
    if (asked == state.ListIndex) record.vflag |= vflag::Selected;
    if (rangeActive && asked >= std::min(selAnchor, selEnd) && asked <= std::max(selAnchor, selEnd))
        record.vflag |= vflag::Selected;
    // The handler may have added rows or painted others: the row is placed anew, and may have left the page.
    if (!ended && PlaceRow(row)) DrawRowContent(record, wantFocus);
}

void qRosterex::Impl::DrawItem(std::int32_t row) {
    if (!lockedPaint) PaintRow(row);
}

void qRosterex::Impl::PaintHeader() {
    if (columns.Count() < 0) return;
    host::Platform& platform = host::platform();
    const std::int32_t h = Hook()->ScrollHValue();
    mtvok::ApplyFontFlags(state.hDC, state.FontObj, headerFlag);
    platform.SetBkMode(state.hDC, host::TRANSPARENT_BK);
    tvok_Rect running{0, 0, 0, headerHeight};
    for (std::int32_t i = 1; i <= columns.Count(); ++i) {
        const qrosterheader& column = columns[i];
        running.Right = ToInt32(std::int64_t{running.Right} + column.hWidth);
        tvok_Rect button = running;
        Shift(button, -h);
        platform.DrawFrameControl(state.hDC, button, host::DFC_BUTTON, host::DFCS_BUTTONPUSH);
        const host::Point at =
            mtvok::PlaceCellText(state.hDC, column.Alignment, button, cHeaderMargin, state.TextHeight);
        platform.SetTextColor(state.hDC, dgi::TranslateColor(column.fcolor));
        platform.ExtTextOutA(state.hDC, at.x, at.y, host::ETO_CLIPPED, &button, column.text.data(),
                             static_cast<std::int32_t>(column.text.size()));
        running.Left = running.Right;
    }
    if (running.Left < viewWidth) {
        tvok_Rect rest{running.Left, 0, viewWidth + cHeaderOverrun, headerHeight};
        Shift(rest, -h);
        platform.DrawFrameControl(state.hDC, rest, host::DFC_BUTTON, host::DFCS_BUTTONPUSH);
    }
}

// One row.

void qRosterex::Impl::DrawRowContent(const qrosterdata& record, bool wantFocus) {
    host::Platform& platform = host::platform();
    if (state.CurItem == 0) {
        tvok_Rect blank = state.CellRect;
        blank.bottom = ToInt32(std::int64_t{blank.bottom} + 1);
        dgi::FillRectColor(state.hDC, blank, state.BackColor);
        return;
    }
    const std::int32_t h = Hook()->ScrollHValue();
    const bool selected = (record.vflag & vflag::Selected) != 0;
    const OLE_COLOR background = selected ? state.SelectedColor : record.bColor;
    platform.SetTextColor(state.hDC, selected ? platform.GetSysColor(host::COLOR_HIGHLIGHTTEXT)
                                              : dgi::TranslateColor(record.fcolor));
    const std::int32_t indent = record.IconPos & 0xFF;
    if (state.CX_TEXT > 0) DrawIconColumn(record, indent, h, background);
    platform.SetBkMode(state.hDC, host::OPAQUE_BK);
    mtvok::ApplyFontFlags(state.hDC, state.FontObj, record.vflag);
    platform.SetBkColor(state.hDC, dgi::TranslateColor(background));
    const std::int64_t right = DrawCells(record, indent, h);
    if (right <= viewWidth) {
        dgi::FillRectColor(state.hDC,
                           {static_cast<std::int32_t>(right), state.CellRect.Top, viewWidth,
                            ToInt32(std::int64_t{state.CellRect.bottom} + 1)},
                           state.BackColor);
    }
    platform.SetTextColor(state.hDC, platform.GetSysColor(host::COLOR_WINDOWTEXT));
    platform.SetBkColor(state.hDC, platform.GetSysColor(host::COLOR_HIGHLIGHTTEXT));
    if (state.CurItem == state.ListIndex && wantFocus) {
        tvok_Rect focus = state.CellRect;
        focus.Right = totalColumnWidth;
        Shift(focus, -h);
        platform.DrawFocusRect(state.hDC, focus);
    }
}

void qRosterex::Impl::DrawIconColumn(const qrosterdata& record, std::int32_t indent, std::int32_t shift,
                                     OLE_COLOR background) {
    tvok_Rect area = state.CellRect;
    area.Right = ToInt32(std::int64_t{state.CX_TEXT} + indent);
    Shift(area, -shift);
    dgi::FillRectColor(state.hDC, area, background);
    const std::int32_t left = ToInt32(std::int64_t{iconCX} + state.CellRect.Left - shift + indent);
    const std::int32_t top = ToInt32(std::int64_t{iconCY} + state.CellRect.Top);
    if (showIcon && record.IconID >= 0) {
        // Image 0 is the first one in this list.
        host::platform().ImageList_Draw(state.IconHandle, record.IconID, state.hDC, left, top,
                                        host::ILD_TRANSPARENT);
    } else if ((record.vflag & cSwatch) != 0) {
        // `IconCX` serves on both axes and the indent widens the swatch: both stay.
        const std::int64_t side = std::int64_t{state.ItemHeight} - 2 * std::int64_t{iconCX};
        const tvok_Rect swatch{left, top, ToInt32(left + side + indent), ToInt32(top + side)};
        dgi::DrawBoxRect(state.hDC, swatch, 1, state.IconBorderColor, record.IconBackColor, true);
    }
}

std::int64_t qRosterex::Impl::DrawCells(const qrosterdata& record, std::int32_t indent, std::int32_t shift) {
    host::Platform& platform = host::platform();
    const bool selected = (record.vflag & vflag::Selected) != 0;
    const bool oneCell = (record.vflag & cOneCell) != 0;
    const bool grid = state.GridlineWidth > 0;
    std::optional<dgi::Owned> pen;
    std::optional<dgi::Selected> penInUse;
    if (grid) {
        pen.emplace(platform.CreatePen(host::PS_SOLID, 1, platform.GetSysColor(host::COLOR_WINDOWTEXT)));
        penInUse.emplace(state.hDC, pen->handle());
    }

    std::string_view rest = record.text;
    std::int64_t right = 0;
    for (std::int32_t c = 1; c <= columns.Count(); ++c) {
        const qrosterheader& column = columns[c];
        const std::size_t tab = oneCell ? std::string_view::npos : rest.find('\t');
        const std::string_view text = rest.substr(0, tab);
        rest = tab == std::string_view::npos ? std::string_view{} : rest.substr(tab + 1);

        const std::int64_t left = c == 1 ? std::int64_t{state.CX_TEXT} + indent : right;
        right += oneCell ? columns.Sum() : column.hWidth;
        const tvok_Rect cell{ToInt32(left - shift), state.CellRect.Top, ToInt32(right - shift),
                             state.CellRect.bottom};
        const host::Point at =
            mtvok::PlaceCellText(state.hDC, column.Alignment, cell, cCellMargin, state.TextHeight);
        {
            std::optional<dgi::Selected> fontInUse;
            if (column.lFont != 0) fontInUse.emplace(state.hDC, column.lFont);
            platform.ExtTextOutA(state.hDC, at.x, at.y, host::ETO_OPAQUE | host::ETO_CLIPPED, &cell,
                                 text.data(), static_cast<std::int32_t>(text.size()));
        }
        if (grid) DrawGridLines(cell, c == 1 ? 0 : cell.Left, selected);
        if (oneCell) break;
    }
    return right - shift;
}

void qRosterex::Impl::DrawGridLines(const tvok_Rect& cell, std::int32_t lineLeft, bool selected) const {
    // `GridlineColor` plays no part, and only the first pixel line of a wider gap is drawn.
    host::Platform& platform = host::platform();
    platform.MoveToEx(state.hDC, lineLeft, cell.bottom, nullptr);
    platform.LineTo(state.hDC, cell.Right, cell.bottom);
    if (selected) return;
    platform.MoveToEx(state.hDC, cell.Right - 1, cell.Top, nullptr);
    platform.LineTo(state.hDC, cell.Right - 1, cell.bottom);
}

} // namespace tvok
