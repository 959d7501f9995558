// Selection, keyboard and mouse of `qRoster`.
//
// The selected state is a bit of each item. While `MultiActive` is false it follows `ListIndex`; while it is
// true it is set for itself, and moving `ListIndex` leaves it alone.
#include "tvok/controls/flatlist/qRoster.h"

#include <cstdlib>

#include "tvok/engine/dgi.h"

namespace tvok {

namespace {

constexpr std::int16_t cShiftKeyBit = 1;

/// Calls `visit` for every index from `from` to `to`, in either direction, both included.
template<class Visit>
void Step(std::int32_t from, std::int32_t to, Visit visit) {
    const std::int64_t direction = from > to ? -1 : 1;
    for (std::int64_t i = from; i != to + direction; i += direction) visit(static_cast<std::int32_t>(i));
}

} // namespace

// Bits.

void qRoster::SetSelectedBit(std::int32_t index, bool on) {
    // An anchor from before the list was cleared may lie beyond the index. It names no item, so there is
    // nothing to mark: a Shift-click of the user is no place for an error that only a host could have caused.
    if (index > itemIndex_.UpperBound()) return;
    const std::int32_t slot = itemIndex_[index]; // index 0 is entry 0, and the slot that it names is written
    const std::int32_t flags = items_[slot].vflag;
    items_.PutFlags(slot, on ? flags | vflag::Selected : flags & ~vflag::Selected);
}

bool qRoster::IsSelected(std::int32_t Index) const {
    return Index >= 1 && Index <= state_.Count && (items_[itemIndex_[Index]].vflag & vflag::Selected) != 0;
}

void qRoster::ToggleSelectedBit(std::int32_t index) {
    SetSelectedBit(index, !IsSelected(index));
}

void qRoster::EnterMultiActive() {
    if (state_.MultiActive) return;
    if (state_.ListIndex > 0) SetSelectedBit(state_.ListIndex, true);
    state_.MultiActive = true;
}

void qRoster::ClearSelection(bool keep) {
    for (std::int32_t i = 1; i <= state_.Count; ++i) SetSelectedBit(i, false);
    state_.MultiActive = false;
    if (keep && state_.ListIndex > 0) SetSelectedBit(state_.ListIndex, true);
    PaintAll();
}

// The current item.

std::int32_t qRoster::ListIndex() const {
    return state_.ListIndex;
}
void qRoster::ListIndex(std::int32_t index) {
    SetCurrent(index, true);
}

void qRoster::SetCurrent(std::int32_t index, bool last) {
    if (index < 1 || index > state_.Count) return;
    const std::int32_t old = state_.ListIndex;
    state_.ListIndex = index;
    if (old != index) {
        const std::uint32_t listEnds = listEnds_;
        RaiseItemEvent(events.Change, index);
        if (listEnds != listEnds_) return;
        if (!state_.MultiActive) SetSelectedBit(old, false);
        DrawItem(old);
    }
    if (!state_.MultiActive) SetSelectedBit(index, true);
    DrawItem(index);
    ShowItem(index, last);
}

void qRoster::ShowItem(std::int32_t index, bool last) {
    if (!cbExDraw_) return; // a handler ended the control
    const auto hook = WMHOOK_;
    mtvok::EnsureItemVisible(hook.get(), state_, index, last);
}

void qRoster::RaiseItemEvent(Event<std::int32_t, qrosterdata&>& event, std::int32_t index) {
    if (!event.IsHeard()) return;
    auto loan = items_.Lend(itemIndex_[index]);
    event(index, loan.record());
}

void qRoster::GotFocus() {
    if (state_.ListIndex >= 1 || state_.Count < 1)
        DrawItem(state_.ListIndex);
    else
        ListIndex(1);
}

void qRoster::LostFocus() {
    DrawItem(state_.ListIndex);
}

// Ranges.

std::int32_t qRoster::MultiSelect() const {
    return multiSelect_;
}
void qRoster::MultiSelect(std::int32_t mode) {
    if (mode < 0 || mode > 1) return;
    if (state_.MultiActive && multiSelect_ == 1) ClearSelection(true);
    multiSelect_ = mode;
}

bool qRoster::HotTrack() const {
    return state_.HotTrack;
}
void qRoster::HotTrack(bool on) {
    state_.HotTrack = on;
}

void qRoster::ExtendSelection(std::int32_t& anchor, std::int32_t old) {
    const std::int32_t from = anchor; // keeps its value on entry, also where the stored anchor changes now
    const std::int32_t now = state_.ListIndex;
    if (anchor < 1) anchor = now;
    if (old < 1) old = now;
    Step(from, old, [&](std::int32_t i) { SetSelectedBit(i, false); });
    Step(from, now, [&](std::int32_t i) { SetSelectedBit(i, true); });
    if (std::abs(std::int64_t{old} - now) >= std::int64_t{state_.GridRows} * state_.GridCols)
        PaintAll();
    else
        Step(old, now, [&](std::int32_t i) { DrawItem(i); });
    ShowItem(state_.ListIndex, state_.ListIndex == state_.Count);
}

bool qRoster::RangeToSelect(std::int32_t& lstart, std::int32_t& lstop) const {
    if (state_.Count == 0 || lstart < 0 || lstop < 0 || lstart > state_.Count || lstop > state_.Count)
        return false;
    if (lstart == 0 && lstop == 0) {
        lstart = 1;
        lstop = state_.Count;
    } else if (lstop == 0) {
        lstop = lstart;
    } else if (lstart == 0) {
        lstart = lstop;
    }
    return true;
}

void qRoster::SelectRange(std::int32_t lstart, std::int32_t lstop, bool on) {
    for (std::int32_t i = lstart; i <= lstop; ++i)
        SetSelectedBit(i, on); // nothing where they are the wrong way round
    if (lstart == lstop)
        DrawItem(lstop);
    else
        PaintAll();
}

void qRoster::Selecteded(std::int32_t lstart, std::int32_t lstop) {
    if (multiSelect_ == 0 || !RangeToSelect(lstart, lstop)) return;
    EnterMultiActive();
    SelectRange(lstart, lstop, true);
}

void qRoster::UnSelecteded(std::int32_t lstart, std::int32_t lstop) {
    if (!state_.MultiActive || !RangeToSelect(lstart, lstop)) return;
    SelectRange(lstart, lstop, false);
}

void qRoster::EnumSelectedItem(std::int32_t& ActionID, bool ClearSelected) {
    EnterMultiActive();
    if (ClearSelected) state_.MultiActive = false;
    const std::uint32_t listEnds = listEnds_;
    const std::int32_t count = state_.Count;
    for (std::int32_t i = 1; i <= count && listEnds == listEnds_; ++i) {
        const std::int32_t slot = itemIndex_[i]; // 0 where a handler removed the item
        if ((items_[slot].vflag & vflag::Selected) == 0) continue;
        if (ClearSelected) SetSelectedBit(i, false);
        std::int32_t index = i;
        events.EnumSelectedItemCallBack(ActionID, index);
    }
    if (pendingRemove_) Refresh();
}

// Keyboard.

void qRoster::KeyDown(std::int16_t& keyCode, std::int16_t& shift) {
    events.KeyDown(keyCode, shift);
    if (!cbExDraw_) return; // the handler ended the control
    if (multiSelect_ == 1)
        KeyMulti(keyCode, shift);
    else
        KeySingle(keyCode);
}

void qRoster::KeyPress(std::int16_t& keyAscii) {
    events.KeyPress(keyAscii);
}
void qRoster::KeyUp(std::int16_t& keyCode, std::int16_t& shift) {
    events.KeyUp(keyCode, shift);
}

void qRoster::KeySingle(std::int32_t code) {
    if (state_.Count < 1) return;
    std::int32_t index = mtvok::IndexFromKey(code, state_);
    if (index == 0) index = mtvok::SeekItemChar(code, state_, items_, itemIndex_);
    if (index <= 0) return;
    const std::int32_t old = state_.ListIndex;
    const std::uint32_t listEnds = listEnds_;
    ListIndex(index);
    if (index != old && listEnds == listEnds_) RaiseItemEvent(events.Click, index);
}

void qRoster::KeyMulti(std::int32_t code, std::int32_t shift) {
    if (code == host::VK_SHIFT || code == host::VK_CONTROL || state_.Count < 1) return;
    const std::int32_t old = state_.ListIndex;
    const bool extend = (shift & cShiftKeyBit) != 0;
    if (!extend && state_.MultiActive) ClearSelection(false);
    if (extend) EnterMultiActive();

    std::int32_t index = mtvok::IndexFromKey(code, state_);
    if (index == 0) index = mtvok::SeekItemChar(code, state_, items_, itemIndex_);
    if (index >= 1 && index != state_.ListIndex) {
        if (state_.MultiActive) {
            state_.ListIndex = index; // stored as it is: a range that grows by key raises no Change
            ExtendSelection(anchor_, old);
            return;
        }
        const std::uint32_t listEnds = listEnds_;
        SetCurrent(index, true);
        if (listEnds != listEnds_) return;
        RaiseItemEvent(events.Click, state_.ListIndex);
        anchor_ = state_.ListIndex;
    }
    ShowItem(state_.ListIndex, true);
}

// Mouse. The host's own mouse events take no part in selection.

void qRoster::MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    events.MouseDown(button, shift, x, y);
}
void qRoster::MouseMove(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    events.MouseMove(button, shift, x, y);
}
void qRoster::MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    events.MouseUp(button, shift, x, y);
}

std::int32_t qRoster::ItemAt(std::int32_t lParam) const {
    const host::Point point = dgi::PointFromLParam(lParam);
    return mtvok::ItemFromPoint(cells_, state_, point.x, point.y);
}

void qRoster::MouseSingle(std::int32_t message, std::int32_t wParam, std::int32_t lParam) {
    switch (message) {
    case host::WM_MOUSEMOVE: {
        if (state_.Count == 0) return;
        const std::int32_t index = mtvok::ItemFromMouseMsg(state_, cells_, lParam, wParam);
        if (index == state_.ListIndex || index < 1) return;
        dragItem_ = index;
        SetCurrent(index, index == state_.Count);
        return;
    }
    case host::WM_LBUTTONDOWN: {
        const std::int32_t index = ItemAt(lParam);
        downItem_ = index;
        dragItem_ = index;
        if (index >= 1) SetCurrent(index, index == state_.Count);
        return;
    }
    case host::WM_LBUTTONUP:
        if (dragItem_ < 1) return;
        RaiseItemEvent(events.Click, state_.ListIndex);
        ShowItem(state_.ListIndex, true);
        return;
    case host::WM_LBUTTONDBLCLK: ClickAgain(); return;
    default: return;
    }
}

void qRoster::ClickAgain() {
    const std::int32_t index = downItem_;
    dragItem_ = 0; // so the release that follows raises no Click
    if (index < 1) return;
    const std::uint32_t listEnds = listEnds_;
    if (state_.ListIndex != index) ListIndex(index);
    if (listEnds != listEnds_) return;
    RaiseItemEvent(events.DblClick, state_.ListIndex);
    ShowItem(state_.ListIndex, true);
}

void qRoster::MouseMulti(std::int32_t message, std::int32_t wParam, std::int32_t lParam) {
    switch (message) {
    case host::WM_MOUSEMOVE: DragMulti(wParam, lParam); return;
    case host::WM_LBUTTONDOWN: PressMulti(wParam, lParam); return;
    case host::WM_LBUTTONUP:
        lastWParam_ = wParam;
        lastLParam_ = lParam;
        if (dragItem_ <= 0) return;
        if (!state_.MultiActive) RaiseItemEvent(events.Click, state_.ListIndex);
        ShowItem(state_.ListIndex, true);
        return;
    case host::WM_LBUTTONDBLCLK:
        if ((wParam & (host::MK_SHIFT | host::MK_CONTROL)) == 0) ClickAgain();
        return;
    default: return;
    }
}

void qRoster::DragMulti(std::int32_t wParam, std::int32_t lParam) {
    if ((wParam & host::MK_LBUTTON) == 0 || state_.Count == 0) return;
    const std::int32_t index = mtvok::ItemFromMouseMsg(state_, cells_, lParam, wParam);
    if (index == 0) return;
    lastWParam_ = wParam;
    lastLParam_ = lParam;
    const std::int32_t old = state_.ListIndex;
    const std::uint32_t listEnds = listEnds_;
    ListIndex(index);
    if (listEnds != listEnds_) return;
    if (anchor_ == 0) anchor_ = index;
    if (index == old) return;
    ExtendSelection(anchor_, old);
    state_.MultiActive = true;
}

void qRoster::PressMulti(std::int32_t wParam, std::int32_t lParam) {
    const std::int32_t index = ItemAt(lParam);
    const std::int32_t old = state_.ListIndex;
    lastWParam_ = wParam;
    lastLParam_ = lParam;
    const std::uint32_t listEnds = listEnds_;
    if ((wParam & host::MK_CONTROL) != 0) {
        if (index <= 0) return; // ends here: the item of the last press stays noted
        EnterMultiActive();
        ToggleSelectedBit(index);
        SetCurrent(index, index == state_.Count);
        anchor_ = index;
    } else if ((wParam & host::MK_SHIFT) != 0) {
        if (index > 0) {
            EnterMultiActive();
            ListIndex(index);
            if (listEnds != listEnds_) return;
            if (anchor_ == 0) anchor_ = index;
            ExtendSelection(anchor_, old);
        }
    } else {
        // A press on no item clears a multi-selection, leaves the current item and sets the anchor to none.
        if (state_.MultiActive) ClearSelection(false);
        SetCurrent(index, index == state_.Count);
        anchor_ = index;
        dragItem_ = index;
    }
    downItem_ = index;
    if (index >= 1) dragItem_ = index;
}

} // namespace tvok
