// Input of `gList`: how the current row moves, when a row counts as activated, folding and scrolling.
#include "tvok/controls/propertylist/gList_impl.h"
#include "tvok/engine/dgi.h"
#include "tvok/records/numeric.h"

namespace tvok {

// The new row shows before the host hears of it. Moving to the current row repaints it and raises nothing.
void gList::Impl::MoveCurrentRow(std::int32_t row, bool last) {
    if (row < 1 || row > state.Count) return;
    const std::int32_t old = state.ListIndex;
    state.ListIndex = row;
    items.Contents(rowIndex[old]).hItem.vflag &= ~vflag::Selected;
    items.Contents(rowIndex[row]).hItem.vflag |= vflag::Selected;
    const auto hook = MS0HOOK;
    mtvok::EnsureItemVisible(hook.get(), state, row, last);
    DrawRow(row);
    if (!IsAlive() || old == state.ListIndex) return;
    DrawRow(old);
    if (!IsAlive()) return;
    elistdata copy = items[rowIndex[row]];
    events.Change(row, copy);
}

void gList::Impl::SetListIndex(std::int32_t row) {
    if (UserMode() && row >= 1 && row <= state.Count) MoveCurrentRow(row, true);
}

/// Activates the current row as it is at each step: a handler that moves it moves what follows along.
void gList::Impl::ActivateRow(bool raise) {
    if (raise) {
        elistdata copy = items[CurrentSlot()];
        events.Click(state.ListIndex, copy);
        if (!IsAlive()) return;
    }
    CloseEditor();
    if (!IsAlive()) return;
    editorRow = state.ListIndex;
    OpenEditor();
}

bool gList::Impl::OpenEditor() {
    if (state.ListIndex < 1 || state.ListIndex > state.Count) return false;
    const std::int32_t slot = CurrentSlot();
    if ((items[slot].item.vflag & vflag::Editor) != 0 && events.ExEditorIni.IsHeard()) {
        const auto loan = items.Lend(slot);
        events.ExEditorIni(loan.record());
    }
    DrawRow(state.ListIndex);
    return true;
}

void gList::Impl::KeyIn(std::int32_t key, std::int32_t shift) {
    if (shift >= 1) return;
    const std::int32_t row = mtvok::IndexFromKey(key, state);
    if (row == 0) return;
    const std::int32_t old = state.ListIndex;
    MoveCurrentRow(row, true);
    // In an empty list some keys lead to row 1, which is refused; the host hears of a click on row 0 all the
    // same.
    if (row != old && IsAlive()) ActivateRow(true);
}

void gList::Impl::FocusCame() {
    if (state.ListIndex >= 1 || state.Count < 1)
        DrawRow(state.ListIndex, hidings == 0);
    else if (hidings == 0)
        SetListIndex(1);
}

// Messages.

void gList::Impl::MS0HOOK_RtMsg(std::int32_t message, std::int32_t wParam, std::int32_t lParam,
                                bool& fMsgProcess) {
    switch (message) {
    case host::WM_PAINT:
        PaintUpdateRegion();
        fMsgProcess = false;
        return;
    case host::WM_MOUSEMOVE: return Drag(wParam, lParam);
    case host::WM_LBUTTONDOWN: return Press(lParam);
    case host::WM_LBUTTONUP: return Release();
    case host::WM_LBUTTONDBLCLK: return DoubleClick();
    default: return;
    }
}

void gList::Impl::Drag(std::int32_t wParam, std::int32_t lParam) {
    if (!buttonIsDown || state.Count == 0) return;
    const std::int32_t row = mtvok::ItemFromMouseMsg(state, cells, lParam, wParam);
    if (row <= 0 || row == state.ListIndex) return;
    pressedRow = row;
    MoveCurrentRow(row, row == state.Count);
}

void gList::Impl::Press(std::int32_t lParam) {
    const host::Point point = dgi::PointFromLParam(lParam);
    const std::int32_t row = mtvok::ItemFromPoint(cells, state, point.x, point.y);
    pressedRow = row;
    downRow = row;
    if (row == 0) return;
    buttonIsDown = true;
    MoveCurrentRow(row, row == state.Count);
    if (!IsAlive()) return;
    CloseEditor();
    editorRow = 0;
    if (!IsAlive() || row > state.Count) return; // a handler took the row away
    const std::int32_t slot = rowIndex[row];
    if (listMode == 1 && point.x < state.HeadWidthEx && items[slot].bParentItem) Fold(slot);
}

// `pressedRow` stays as it is: a release that no press on the control came before activates once more.
void gList::Impl::Release() {
    buttonIsDown = false;
    if (pressedRow <= 0) return;
    const auto hook = MS0HOOK;
    mtvok::EnsureItemVisible(hook.get(), state, state.ListIndex, true);
    if (IsAlive()) ActivateRow(true);
}

void gList::Impl::DoubleClick() {
    pressedRow = 0; // the release that follows is no click
    if (downRow <= 0) return;
    if (state.ListIndex != downRow) SetListIndex(downRow);
    if (!IsAlive()) return;
    const std::int32_t slot = CurrentSlot();
    if (listMode != 1) {
        elistdata copy = items[slot];
        events.DblClick(state.ListIndex, copy);
    } else if (items[slot].bParentItem) {
        Fold(slot);
    }
    if (!IsAlive()) return;
    const auto hook = MS0HOOK;
    mtvok::EnsureItemVisible(hook.get(), state, state.ListIndex, true);
}

void gList::Impl::Fold(std::int32_t slot) {
    items.Contents(slot).hItem.vflag ^= vflag::Collapsed;
    BuiltList();
}

void gList::Impl::MS0HOOK_Change(std::int32_t value) {
    state.TopRow = value;
    const std::int64_t pitch = std::int64_t{state.ItemHeight} + state.GridlineWidth;
    const std::int32_t distance = ToInt32((std::int64_t{state.LastTop} - value) * pitch);
    const tvok_Rect client = state.ClientRect;
    tvok_Rect uncovered;
    host::platform().ScrollDC(state.hDC, 0, distance, &client, &client, 0, &uncovered);
    // The pixels stand at `value` from here on, also where a handler scrolls again or throws during the
    // repaint.
    state.LastTop = value;
    host::platform().InvalidateRect(state.hWnd, &uncovered, false);
    host::platform().UpdateWindow(state.hWnd);
    if (state.Count > 0) DrawRow(state.ListIndex); // the strip and the editor go along, or hide
}

void gList::KeyIn(std::int16_t KeyCode, std::int16_t Shift) {
    impl_->KeyIn(KeyCode, Shift);
}

void gList::KeyDown(std::int16_t& keyCode, std::int16_t& shift) {
    impl_->KeyIn(keyCode, shift);
}

void gList::GotFocus() {
    impl_->FocusCame();
}

void gList::LostFocus() {
    impl_->FocusWent();
}

} // namespace tvok
