// Painting of `gList`: two cells per value row, the fold box, and the places of the strip and the editor,
// which are known only while a row is painted.
#include "tvok/controls/propertylist/gList_impl.h"
#include "tvok/controls/propertylist/typeword.h"
#include "tvok/engine/WindowPaint.h"
#include "tvok/engine/dgi.h"
#include "tvok/engine/drawingscopes.h"
#include "tvok/records/numeric.h"

namespace tvok {

namespace {

constexpr std::int32_t cFoldBox = 9;
constexpr std::int32_t cLeastEditor = 6;

std::int32_t RoundedTwips(std::int64_t pixels, float twipsPerPixel) {
    return RoundToInt32(static_cast<double>(pixels) * static_cast<double>(twipsPerPixel));
}

} // namespace

void gList::Impl::Refresh() {
    if (state.yn == 0) return;
    const auto hook = MS0HOOK;
    mtvok::UpdateScrollRange(hook.get(), state);
    if (!IsAlive()) return;
    mtvok::BuildCellGrid(cells, state);
    PaintAll();
}

void gList::Impl::PaintRect(const tvok_Rect& rect) {
    const auto hook = Hook();
    const auto callback = cbExDraw;
    mtvok::DrawCells(
        state, rect, cells, std::int64_t{hook->ScrollValue()} + 1,
        [&](std::int32_t& row) {
            if (!IsAlive()) return; // a handler of a row before ended it
            state.CurItem = row;
            DrawRow(row);
        },
        [&] {
            if (IsAlive()) mtvok::DrawListItem(state, items[0].hItem, *callback, false);
        });
}

void gList::Impl::PaintUpdateRegion() {
    const WindowPaint paint(state.hWnd);
    PaintRect(paint.rect());
}

void gList::Impl::DrawRow(std::int32_t row, bool place) {
    if (!IsAlive()) return;
    std::int32_t column = 0;
    std::int32_t gridRow = 0;
    if (!mtvok::IndexToCell(row, state, column, gridRow)) {
        if (place) LeavePage(row);
        return;
    }
    const std::int32_t slot = rowIndex[row];
    const tvok_Rect cell = cells(column, gridRow);
    tvok_Rect caption = cell;
    const bool isParent = items[slot].bParentItem;
    const std::int64_t head = std::int64_t{cell.Left} + headWidth + state.HeadWidthEx;
    if (!isParent) caption.Right = ToInt32(head);
    if (!DrawCell(row, slot, caption, false)) return;
    tvok_Rect rect = cell;
    if (isParent) {
        DrawExpander(slot, cell);
    } else {
        rect.Left = ToInt32(head + state.GridlineWidth);
        if (!DrawCell(row, slot, rect, true)) return;
        rect = state.TextRect;
    }
    // While the button is held neither is touched, so that a drag over the rows does not flicker.
    if (!place || row != state.ListIndex || buttonIsDown) return;
    PlaceStrip(slot, rect);
    if (!isParent) PlaceEditor(slot, rect);
}

/// The caption or the value of a row. False where a handler ended the control or gave the row to another
/// item, which has been painted then.
bool gList::Impl::DrawCell(std::int32_t row, std::int32_t slot, const tvok_Rect& cell, bool value) {
    const auto callback = cbExDraw; // a handler may end the control
    state.CurItem = row;
    state.CellRect = cell;
    mtvok::DrawListItem(state, value ? items[slot].item : items[slot].hItem, *callback, false);
    return IsAlive() && row <= state.Count && rowIndex[row] == slot;
}

/// The fold box of a group row: a minus, or a plus while the group is folded.
void gList::Impl::DrawExpander(std::int32_t slot, const tvok_Rect& cell) {
    quietly([&] {
        // From the client's edge and not from the cell's: with a narrow band the box is cut off there.
        const std::int32_t x = ToInt32((std::int64_t{state.HeadWidthEx} - cFoldBox) / 2);
        const std::int32_t y = ToInt32(cell.Top + (std::int64_t{cell.bottom} - cell.Top - cFoldBox) / 2);
        const tvok_Rect box{x, y, ToInt32(std::int64_t{x} + cFoldBox), ToInt32(std::int64_t{y} + cFoldBox)};
        host::Platform& platform = host::platform();
        dgi::FrameRectColor(state.hDC, box, platform.GetSysColor(host::COLOR_BTNSHADOW));
        const dgi::Owned pen(platform.CreatePen(0, 1, platform.GetSysColor(host::COLOR_WINDOWTEXT)));
        const dgi::Selected inUse(state.hDC, pen.handle());
        platform.MoveToEx(state.hDC, x + 2, y + 4, nullptr);
        platform.LineTo(state.hDC, x + 7, y + 4);
        if ((items[slot].hItem.vflag & vflag::Collapsed) == 0) return;
        platform.MoveToEx(state.hDC, x + 4, y + 2, nullptr);
        platform.LineTo(state.hDC, x + 4, y + 7);
    });
}

/// A strip with the focus would take it along, to whatever the form has first: the list takes it back, so
/// that the arrow keys go on. That repaints the row and must not place what is being hidden.
void gList::Impl::HideStrip() {
    if (strip == nullptr) return;
    const Hiding hiding(*this);
    if (host::platform().GetFocus() == strip->hWnd()) Base().SetFocus();
    if (strip != nullptr) strip->Visible(false);
}

/// Puts the buttons at the right end of `rect`, which loses their width.
void gList::Impl::PlaceStrip(std::int32_t slot, tvok_Rect& rect) {
    const std::int32_t width =
        xbutton1.SetButtons(std::string(propertylist::ButtonsOf(items[slot].xbuttons)));
    if (width <= 0 || strip == nullptr) return; // a strip of another row stays until the editor closes
    tvok_Rect place = rect;
    place.Left = ToInt32(std::int64_t{place.Right} - width);
    rect.Right = place.Left;
    place.Top -= state.GridlineWidth >= 1 ? 1 : 0;
    if (place.Left < rect.Left) {
        rect.Left = rect.Right; // no room: neither for the strip nor for an editor
        HideStrip();
        return;
    }
    place = dgi::RectToWindowDC(state.hDC, state.hWnd, place);
    const host::Screen& screen = host::services().Screen();
    strip->Move(static_cast<float>(place.Left) * screen.TwipsPerPixelX(),
                static_cast<float>(place.Top) * screen.TwipsPerPixelY());
    strip->Visible(true);
    if (strip != nullptr) strip->ZOrder(0);
}

void gList::Impl::PlaceEditor(std::int32_t slot, const tvok_Rect& rect) {
    const elistdata& record = items[slot];
    if (!IsAlive() || (record.item.vflag & vflag::Editor) == 0) return;
    const std::string key = record.hItem.key; // of the moment, whatever a handler does to the record
    if (std::int64_t{rect.Right} - rect.Left < cLeastEditor) {
        const Hiding hiding(*this);
        return events.ExEditorHide(key);
    }
    const tvok_Rect place = dgi::RectToWindowDC(state.hDC, state.hWnd, rect);
    const host::Screen& screen = host::services().Screen();
    const float x = screen.TwipsPerPixelX();
    const float y = screen.TwipsPerPixelY();
    std::int32_t left = RoundedTwips(place.Left, x);
    std::int32_t top = RoundedTwips(place.Top, y);
    std::int32_t width = RoundedTwips(std::int64_t{place.Right} - place.Left, x);
    std::int32_t height = RoundedTwips(std::int64_t{place.bottom} - place.Top, y);
    events.ExEditorSetPosition(key, left, top, width, height);
    if (IsAlive()) events.ExEditorShow(key);
}

/// The current row is off the page: its editor hides and keeps what is in it.
void gList::Impl::LeavePage(std::int32_t row) {
    if (row != state.ListIndex || row < 1) return;
    const Hiding hiding(*this);
    const std::string key = items[rowIndex[row]].hItem.key;
    events.ExEditorHide(key);
    HideStrip();
}

// The pixel that grid lines on the border add is added here alone and not where rows are painted. That stays.
bool gList::Impl::GetItemRect(std::int32_t row, tvok_Rect& rect) const {
    std::int32_t column = 0;
    std::int32_t gridRow = 0;
    if (!mtvok::IndexToCell(row, state, column, gridRow)) return false;
    const tvok_Rect& cell = cells(column, gridRow);
    const std::int64_t left = std::int64_t{cell.Left} + headWidth + state.GridlineWidth + state.HeadWidthEx +
                              (state.GridlineOnBorder ? 1 : 0);
    host::Point topLeft{ToInt32(left), cell.Top};
    host::Point bottomRight{cell.Right, cell.bottom};
    host::platform().ClientToScreen(state.hWnd, topLeft);
    host::platform().ClientToScreen(state.hWnd, bottomRight);
    rect = {topLeft.x, topLeft.y, bottomRight.x, bottomRight.y};
    return true;
}

void gList::Refresh() {
    impl_->Refresh();
}

void gList::PaintAll() {
    impl_->PaintAll();
}

bool gList::GetItemRect(std::int32_t Index, tvok_Rect& rct) const {
    return impl_->GetItemRect(Index, rct);
}

} // namespace tvok
