// Scrolling and adding rows of `qRosterex`: what a new row costs does not depend on how many there are.
#include "tvok/controls/largelist/qRosterex_impl.h"

#include <algorithm>
#include <cstdlib>

#include "tvok/engine/WindowPaint.h"
#include "tvok/records/numeric.h"

namespace tvok {

namespace {

std::int32_t Within32Bits(std::int64_t value) {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, INT32_MIN, INT32_MAX));
}

} // namespace

// Pixels.

void qRosterex::Impl::PaintPass::Move(std::int64_t rows, std::int64_t pixels) {
    slot += rows;
    update.Top = Within32Bits(update.Top + pixels);
    update.bottom =
        Within32Bits(std::min(update.bottom + pixels, std::int64_t{list.state.ClientRect.bottom}));
    if (outer != nullptr) outer->Move(rows, pixels);
}

/// Sets the direction of the display; what is on screen shows the other one until a repaint.
void qRosterex::Impl::Turn(std::int16_t mode) {
    const bool turned = (mode != 0) != (viewMode != 0);
    viewMode = mode;
    if (!turned || !shownTop) return;
    shownTop.reset();
    if (state.Count == 0 && hook) shownTop = RowOfSlot(1, hook->ScrollValue()); // empty looks the same
}

/// Whether moving what is on screen down by so many rows puts it where slot 1 has the row `top`.
bool qRosterex::Impl::MovesTo(std::int64_t top, std::int64_t rows) const {
    return shownTop && (viewMode != 0 ? *shownTop - top : top - *shownTop) == rows;
}

/// Moves what is on screen down by so many rows (up where negative) and paints what that uncovers.
void qRosterex::Impl::MovePixels(std::int64_t rows) {
    tvok_Rect area = state.ClientRect;
    area.Top = headerHeight; // the header never moves with the rows
    const std::int32_t pixels = ToInt32(rows * RowStep());
    // The pixels stand at the new position from here on, also where a handler scrolls again or throws.
    const std::int32_t position = Hook()->ScrollValue();
    const std::int64_t top = RowOfSlot(1, position);
    lastV = ToInt32(PositionOf(position));
    shownTop = MovesTo(top, rows) ? std::optional(top) : std::nullopt;
    if (painting != nullptr) painting->Move(rows, pixels);
    ++moveCount;
    tvok_Rect uncovered;
    host::platform().ScrollDC(state.hDC, 0, pixels, &area, &area, 0, &uncovered);
    PaintRect(uncovered);
}

void qRosterex::Impl::ScrollRows(bool up, std::int32_t rows) {
    if (rows >= 1 && !ended) MovePixels(up ? -std::int64_t{rows} : std::int64_t{rows});
}

// Hook events.

void qRosterex::Impl::HookChange(std::int32_t v, std::int32_t hv) {
    if (layoutBusy || hv != lastH) {
        const bool repaint = !layoutBusy;
        lastH = hv;
        lastV = v; // also with the newest row at the top, where the next vertical move then repaints in full
        if (repaint) PaintAll();
        return;
    }
    const std::int64_t position = PositionOf(v);
    const std::int64_t rows = viewMode != 0 ? lastV - position : position - lastV;
    lastV = ToInt32(position);
    // `lastV` may lie by chance within a page of the new position although the pixels stand elsewhere.
    if (MovesTo(RowOfSlot(1, v), rows) && std::abs(rows * RowStep()) <= state.ClientRect.bottom)
        MovePixels(rows);
    else
        PaintAll();
}

void qRosterex::Impl::HookMessage(std::int32_t message, std::int32_t wParam, std::int32_t lParam,
                                  bool& fMsgProcess) {
    if (message == host::WM_PAINT) {
        PaintWindow();
        fMsgProcess = false;
    } else if (message == host::WM_SETUP) {
        events.Setup(wParam);
    } else if (multiSelect != 0) {
        MouseRange(message, wParam, lParam);
    } else {
        MouseSingle(message, wParam, lParam);
    }
}

void qRosterex::Impl::PaintWindow() {
    const std::uint64_t moves = moveCount;
    {
        const WindowPaint paint(state.hWnd);
        PaintRect(paint.rect());
    }
    // What a handler moved meanwhile has moved within the invalid part alone.
    if (moves != moveCount) PaintAll();
}

// Adding.

void qRosterex::Impl::AddRow(std::int16_t mode, std::int32_t value) {
    Turn(mode);
    const auto bars = Hook();
    if (bars->vBusy() || bufAddItemOnly) {
        const std::int32_t row = ToInt32(std::int64_t{state.Count} + pendingCount + 1);
        pendingCount += 1;
        if (buffer.IsOpen()) buffer.Write(row, value);
        return;
    }
    if (pendingCount > 0) FlushPendingRows();
    if (ended) return;
    state.Count = ToInt32(std::int64_t{state.Count} + 1);
    if (buffer.IsOpen()) buffer.Write(state.Count, value);
    if (mode == 0)
        ShowAddedAtTop(*bars);
    else
        ShowAddedAtBottom(*bars);
    // A selection that is being dragged follows the rows that moved under the pointer.
    if (!ended && (lastButtons & host::MK_LBUTTON) != 0)
        MouseRange(host::WM_MOUSEMOVE, lastButtons, lastPoint);
}

void qRosterex::Impl::ShowAddedAtTop(host::MessageHook& bars) {
    std::int32_t one = 1;
    if (!bars.ScrollBarShown()) {
        ScrollRows(false, 1);
        // The text of the empty list has slid down with the rows.
        if (state.Count == 1 && !clearText.empty()) PaintRect(rowRects[2]);
        LayoutForAdd();
        DrawItem(state.Count);
    } else if (bars.ScrollValue() == 0) {
        bars.ScrollGrow(one, true);
        ScrollRows(false, 1); // the page slides down, and the new row is painted in the freed slot
    } else {
        bars.ScrollGrowValue(one, 0, true); // the reader has scrolled away and sees the same rows
    }
}

void qRosterex::Impl::ShowAddedAtBottom(host::MessageHook& bars) {
    std::int32_t one = 1;
    if (!bars.ScrollBarShown()) {
        LayoutForAdd();
        DrawItem(state.Count);
        if (!ended && bars.ScrollBarShown()) ShowRow(state.Count, true);
    } else if (bars.ScrollValue() == bars.ScrollMax()) {
        bars.ScrollGrowValue(one, 0, true);
        ScrollRows(true, 1);
    } else {
        bars.ScrollGrow(one, true);
    }
}

void qRosterex::Impl::LayoutForAdd() {
    if (ended) return;
    struct Busy {
        explicit Busy(bool& flag) : flag(flag) { flag = true; }
        Busy(const Busy&) = delete;
        Busy& operator=(const Busy&) = delete;
        ~Busy() { flag = false; }
        bool& flag;
    };
    const std::int32_t sideways = lastH;
    {
        const Busy busy(layoutBusy);
        LayoutBars();
    }
    if (ended) return;
    // A position that was kept while there was no bar may have been limited, and was only noted.
    const bool moved = shownTop && *shownTop != RowOfSlot(1, Hook()->ScrollValue());
    if (moved || lastH != sideways) PaintAll();
}

void qRosterex::Impl::FlushPendingRows() {
    const auto bars = Hook();
    if (bufAddItemOnly || pendingCount == 0 || bars->vBusy()) return;
    state.Count = ToInt32(std::int64_t{state.Count} + pendingCount);
    std::int32_t rows = pendingCount;
    pendingCount = 0; // counted now; a handler that adds rows during the repaint starts from none pending
    const bool shown = bars->ScrollBarShown(); // a bar that is not shown is left to the layout that follows
    const bool oldestFirst = viewMode != 0;
    const bool atNewest = oldestFirst ? bars->ScrollValue() == bars->ScrollMax() : bars->ScrollValue() == 0;
    if (shown && atNewest == oldestFirst) bars->ScrollGrowValue(rows, 0, true);
    if (shown && atNewest != oldestFirst) bars->ScrollGrow(rows, true);
    if (atNewest) ScrollRows(oldestFirst, rows);
}

} // namespace tvok
