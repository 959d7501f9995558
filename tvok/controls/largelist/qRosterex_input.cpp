// Selection, keyboard and mouse of `qRosterex`. A range is two row numbers and a flag: rows that the host was
// never asked for can be part of one, and a selection of a million rows costs nothing.
#include "tvok/controls/largelist/qRosterex_impl.h"

#include <algorithm>
#include <cstdlib>

#include "tvok/engine/dgi.h"
#include "tvok/records/numeric.h"

namespace tvok {

namespace {

constexpr std::int32_t cShiftKeyBit = 1;
constexpr std::int32_t cModifiers = host::MK_SHIFT | host::MK_CONTROL;

} // namespace

// From keys and points to rows.

std::int32_t qRosterex::Impl::RowFromKey(std::int32_t key) const {
    if (key < host::VK_PRIOR || key > host::VK_DOWN) return 0;
    const std::int64_t down = viewMode != 0 ? 1 : -1; // what "down on the screen" does to a row number
    const std::int64_t now = state.ListIndex;
    std::int64_t row = 0;
    switch (key) {
    case host::VK_PRIOR: row = now - down * state.yn; break;
    case host::VK_NEXT: row = now + down * state.yn; break;
    case host::VK_END: row = viewMode != 0 ? state.Count : 1; break;
    case host::VK_HOME: row = viewMode != 0 ? 1 : state.Count; break;
    case host::VK_LEFT:
    case host::VK_UP: row = now - down; break;
    default: row = now + down; break;
    }
    row = std::max<std::int64_t>(std::min<std::int64_t>(row, state.Count), 1);
    return static_cast<std::int32_t>(row);
}

std::int32_t qRosterex::Impl::RowFromPoint(std::int32_t x, std::int32_t y) const {
    const std::int32_t position = Hook()->ScrollValue();
    const std::int64_t slots = std::int64_t{state.yn} + 1;
    for (std::int32_t slot = 1; slot <= slots; ++slot) {
        if (!host::Platform::PtInRect(dgi::InflatedRect(rowRects[slot], state.GridlineWidth), {x, y}))
            continue;
        const std::int64_t row = RowOfSlot(slot, position);
        return row < 0 || row > state.Count ? 0 : static_cast<std::int32_t>(row);
    }
    return 0;
}

std::int32_t qRosterex::Impl::EdgeAt(std::int32_t x, std::int32_t y) const {
    if (columns.Count() < 1) return 0;
    return columns.EdgeFromPoint(std::int64_t{x} + Hook()->ScrollHValue(), y, headerHeight);
}

void qRosterex::Impl::ShowPointerAt(std::int32_t x, std::int32_t y) {
    Base().MousePointer(EdgeAt(x, y) > 0 ? host::ccSizeWE : host::ccDefault);
}

std::int32_t qRosterex::Impl::RowFromMouse(std::int32_t point, std::int32_t buttons) {
    host::Point at = dgi::PointFromLParam(point);
    ShowPointerAt(at.x, at.y);
    const tvok_Rect& client = state.ClientRect;
    if (at.x < client.Left) at.x = client.Left;
    if (at.x >= client.Right) at.x = client.Right - 1;
    const bool pressed = (buttons & host::MK_LBUTTON) != 0;
    if (host::Platform::PtInRect(client, at)) return pressed || state.HotTrack ? RowFromPoint(at.x, at.y) : 0;
    if (!pressed) return 0;
    if (at.y < client.Top) return RowFromKey(host::VK_UP); // the drag creeps one row for each message outside
    if (at.y >= client.bottom) return RowFromKey(host::VK_DOWN);
    return 0;
}

// The current row.

bool qRosterex::Impl::AtFarEnd(std::int32_t row) const {
    return row == (viewMode != 0 ? state.Count : 1);
}

bool qRosterex::Impl::ShowRow(std::int32_t row, bool exact) {
    if (ended || row < 1 || state.Count == 0) return false;
    const auto bars = Hook();
    const std::int64_t rows = exact ? state.yn : std::int64_t{state.yn} + 1;
    if (rows <= 0) return false;
    const std::int64_t position = bars->ScrollValue();
    const std::int64_t slot = SlotOfRow(row, bars->ScrollValue());
    if (slot >= 1 && slot <= rows) return false;
    const std::int32_t target = ToInt32(slot > rows ? position + slot - rows : position + slot - 1);
    bars->ScrollValue(target);
    if (bars->ScrollValue() == target) return false;
    bars->ScrollValue(target);
    return true;
}

void qRosterex::Impl::MoveToRow(std::int32_t row, bool exact, bool computeExact) {
    if (computeExact) exact = AtFarEnd(row);
    if (row < 1 || row > state.Count) return;
    const std::int32_t old = state.ListIndex;
    state.ListIndex = row;
    if (row != old) {
        // With the newest row at the top the argument counts from 0 at the top of the screen: hosts rely on
        // both.
        events.Change(viewMode != 0 ? row : state.Count - row);
    }
    if (!hook) return; // at design time there is nothing to show, and an ended control shows nothing either
    if (row != old) DrawItem(old);
    DrawItem(row);
    ShowRow(row, exact);
}

// Keyboard.

std::int32_t qRosterex::Impl::RowAskedForKey(std::int32_t key) {
    std::int32_t row = RowFromKey(key);
    if (row == 0 && keySeek) events.KeySeek(static_cast<std::int16_t>(key), state.ListIndex, row);
    return row;
}

void qRosterex::Impl::KeyDownSingle(std::int32_t key) {
    if (state.Count < 1) return;
    const std::int32_t row = RowAskedForKey(key);
    if (row <= 0 || ended) return;
    const std::int32_t old = state.ListIndex;
    MoveToRow(row, true, false);
    if (row != old && !ended) events.Click(row);
}

void qRosterex::Impl::KeyDownRange(std::int32_t key, std::int32_t shift) {
    if (key == host::VK_SHIFT || key == host::VK_CONTROL || state.Count < 1) return;
    const bool extend = (shift & cShiftKeyBit) != 0;
    if (extend && !rangeActive) {
        rangeActive = true;
        SetStartupSelected(state.ListIndex);
    } else if (!extend && rangeActive) {
        MS_OFF();
        if (ended) return;
    }
    const std::int32_t row = RowAskedForKey(key);
    if (ended) return;
    if (row <= 0 || row == state.ListIndex) {
        ShowRow(state.ListIndex, true);
    } else if (rangeActive) {
        state.ListIndex = row; // no Change and no Click while a range grows
        MS_ENDSELECTED();
    } else {
        MoveToRow(row, true, false);
    }
}

// The range.

void qRosterex::Impl::SetStartupSelected(std::int32_t row) {
    if (selAnchor == 0) selAnchor = row > 0 ? row : state.ListIndex;
}

void qRosterex::Impl::MS_OFF() {
    selAnchor = 0;
    selEnd = 0;
    rangeActive = false;
    PaintAll();
}

void qRosterex::Impl::MS_ENDSELECTED() {
    if (!rangeActive) return;
    std::int32_t oldEnd = selEnd;
    selEnd = state.ListIndex;
    if (oldEnd == 0) oldEnd = selAnchor;
    const std::int64_t distance = std::int64_t{state.ListIndex} - oldEnd;
    if (std::abs(distance) < std::int64_t{state.yn} + 1) {
        const std::int64_t step = distance < 0 ? -1 : 1;
        const std::int64_t last = std::int64_t{state.ListIndex} + step;
        for (std::int64_t row = oldEnd; row != last && !ended; row += step)
            DrawItem(static_cast<std::int32_t>(row));
    } else {
        PaintAll();
    }
    ShowRow(state.ListIndex, AtFarEnd(state.ListIndex));
}

// The divider.

bool qRosterex::Impl::StartSizing(std::int32_t point) {
    const host::Point at = dgi::PointFromLParam(point);
    return columns.StartSizing(EdgeAt(at.x, at.y), at.x);
}

void qRosterex::Impl::Size(std::int32_t point) {
    if (columns.SizeTo(dgi::PointFromLParam(point).x)) Refresh();
}

bool qRosterex::Impl::OnIcon(std::int32_t x) const {
    return showIcon && std::int64_t{x} + Hook()->ScrollHValue() < state.CX_TEXT;
}

// Mouse, one row.

void qRosterex::Impl::MouseSingle(std::int32_t message, std::int32_t buttons, std::int32_t point) {
    switch (message) {
    case host::WM_MOUSEMOVE: {
        if (columns.IsSizing()) return Size(point);
        const std::int32_t row = RowFromMouse(point, buttons);
        if (state.Count == 0 || row < 1 || row == state.ListIndex) return;
        pressedRow = row;
        MoveToRow(row, true, true);
        return;
    }
    case host::WM_LBUTTONDOWN: PressSingle(point); return;
    case host::WM_LBUTTONUP:
        if (columns.IsSizing()) return columns.StopSizing();
        if (pressedRow < 1) return;
        events.Click(state.ListIndex);
        mouseDownOnIcon = false; // after the event: its handler still sees it
        ShowRow(state.ListIndex, true);
        return;
    case host::WM_LBUTTONDBLCLK: ClickAgain(); return;
    case host::WM_CAPTURECHANGED: mouseDownOnIcon = false; return;
    default: return;
    }
}

void qRosterex::Impl::PressSingle(std::int32_t point) {
    if (StartSizing(point)) return;
    const host::Point at = dgi::PointFromLParam(point);
    const std::int32_t row = RowFromPoint(at.x, at.y);
    mouseDownOnIcon = false;
    downRow = row;
    pressedRow = row;
    if (row < 1) return;
    MoveToRow(row, true, true);
    if (!ended && OnIcon(at.x)) mouseDownOnIcon = true;
}

void qRosterex::Impl::ClickAgain() {
    const std::int32_t row = downRow;
    pressedRow = 0;
    if (row < 1) return;
    if (state.ListIndex != row) MoveToRow(row, true, false);
    if (ended) return;
    events.DblClick(state.ListIndex);
    ShowRow(state.ListIndex, true);
}

// Mouse, a range.

void qRosterex::Impl::MouseRange(std::int32_t message, std::int32_t buttons, std::int32_t point) {
    switch (message) {
    case host::WM_NCLBUTTONDOWN:
    case host::WM_NCLBUTTONUP:
    case host::WM_NCLBUTTONDBLCLK: dragArmed = false; return; // a press on a scroll bar is no drag
    case host::WM_MOUSEMOVE: DragRange(buttons, point); return;
    case host::WM_LBUTTONDOWN: PressRange(buttons, point); return;
    case host::WM_LBUTTONUP:
        dragArmed = false;
        if (columns.IsSizing()) return columns.StopSizing();
        lastButtons = buttons;
        lastPoint = point;
        if (pressedRow <= 0) return;
        ShowRow(state.ListIndex, true);
        if (!ended) events.Click(state.ListIndex); // and MouseDownOnIcon stays as it is, unlike with one row
        return;
    case host::WM_LBUTTONDBLCLK:
        if ((buttons & cModifiers) == 0) ClickAgain();
        return;
    case host::WM_CAPTURECHANGED: mouseDownOnIcon = false; return;
    default: return;
    }
}

void qRosterex::Impl::DragRange(std::int32_t buttons, std::int32_t point) {
    if (columns.IsSizing()) return Size(point);
    const std::int32_t row = RowFromMouse(point, buttons);
    if (row == 0) return;
    if (row != pressedRow) {
        pressedRow = 0;
        mouseDownOnIcon = false;
    }
    if (!dragArmed || (buttons & host::MK_LBUTTON) == 0 || state.Count == 0) return;
    lastButtons = buttons;
    lastPoint = point;
    const std::int32_t old = state.ListIndex;
    state.ListIndex = row;
    SetStartupSelected(old);
    if (row == selEnd) return;
    rangeActive = true;
    MS_ENDSELECTED();
}

void qRosterex::Impl::PressRange(std::int32_t buttons, std::int32_t point) {
    dragArmed = true;
    if (StartSizing(point)) return;
    const host::Point at = dgi::PointFromLParam(point);
    const std::int32_t row = RowFromPoint(at.x, at.y);
    const std::int32_t old = state.ListIndex;
    lastButtons = buttons;
    lastPoint = point;
    mouseDownOnIcon = false;
    if ((buttons & host::MK_SHIFT) == 0) {
        if (rangeActive) MS_OFF();
        if (ended) return;
        if (row > 0) MoveToRow(row, true, true);
        selAnchor = 0;
        selEnd = 0;
        if (row >= 1 && !ended && OnIcon(at.x)) mouseDownOnIcon = true;
    } else if (row > 0) {
        rangeActive = true;
        state.ListIndex = row;
        SetStartupSelected(old);
        MS_ENDSELECTED();
    }
    downRow = row;
    pressedRow = row > 0 ? row : 0;
}

} // namespace tvok
