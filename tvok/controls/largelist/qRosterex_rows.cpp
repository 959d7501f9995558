// Scrolling and adding rows of `qRosterex`: what a new row costs does not depend on how many there are.
#include "tvok/controls/largelist/qRosterex_impl.h"

#include <cstdlib>

#include "tvok/engine/WindowPaint.h"
#include "tvok/records/numeric.h"

namespace tvok {

tvok_Rect qRosterex::Impl::RowArea() const {
    tvok_Rect area = state.ClientRect;
    area.Top = headerHeight;
    return area;
}

void qRosterex::Impl::ScrollRows(bool up, std::int32_t rows) {
    if (rows < 1) return;
    const auto bars = Hook();
    const tvok_Rect area = RowArea();
    const std::int64_t distance = RowStep() * rows;
    tvok_Rect uncovered;
    host::platform().ScrollDC(state.hDC, 0, ToInt32(up ? -distance : distance), &area, &area, 0, &uncovered);
    PaintRect(uncovered);
    lastV = viewMode != 0 ? bars->ScrollValue() : state.Count - bars->ScrollValue();
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
    const std::int64_t position = viewMode != 0 ? std::int64_t{v} : std::int64_t{state.Count} - v;
    const std::int64_t rows = viewMode != 0 ? lastV - position : position - lastV;
    const std::int64_t pixels = rows * RowStep();
    // The pixels stand at the new position from here on, also where a handler scrolls again or throws.
    lastV = ToInt32(position);
    if (std::abs(pixels) > state.ClientRect.bottom) {
        PaintAll();
        return;
    }
    const tvok_Rect area = RowArea();
    tvok_Rect uncovered;
    host::platform().ScrollDC(state.hDC, 0, static_cast<std::int32_t>(pixels), &area, &area, 0, &uncovered);
    PaintRect(uncovered);
}

void qRosterex::Impl::HookMessage(std::int32_t message, std::int32_t wParam, std::int32_t lParam,
                                  bool& fMsgProcess) {
    if (message == host::WM_PAINT) {
        const WindowPaint paint(state.hWnd);
        PaintRect(paint.rect());
        fMsgProcess = false;
    } else if (message == host::WM_SETUP) {
        events.Setup(wParam);
    } else if (multiSelect != 0) {
        MouseRange(message, wParam, lParam);
    } else {
        MouseSingle(message, wParam, lParam);
    }
}

// Adding.

void qRosterex::Impl::AddRow(std::int16_t mode, std::int32_t value) {
    viewMode = mode;
    const auto bars = Hook();
    if (bars->vBusy() || bufAddItemOnly) {
        const std::int32_t row = ToInt32(std::int64_t{state.Count} + pendingCount + 1);
        pendingCount += 1;
        if (buffer.IsOpen()) buffer.Write(row, value);
        return;
    }
    if (pendingCount > 0) FlushPendingRows();
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
    const Busy busy(layoutBusy);
    LayoutBars();
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
