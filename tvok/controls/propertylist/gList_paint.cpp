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
constexpr std::int32_t cShadowColor = 16; // system colours of the fold box
constexpr std::int32_t cTextColor = 8;

std::int32_t Twips(std::int64_t pixels, float twipsPerPixel) {
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

void gList::Impl::DrawRow(std::int32_t row) {
    if (!IsAlive()) return;
    std::int32_t column = 0;
    std::int32_t gridRow = 0;
    if (!mtvok::IndexToCell(row, state, column, gridRow)) return LeavePage(row);
    const std::int32_t slot = rowIndex[row];
    const tvok_Rect cell = cells(column, gridRow);
    state.CurItem = row;
    state.CellRect = cell;
    if (items[slot].bParentItem) {
        DrawCell(slot, false);
        DrawExpander(row, column, gridRow);
        tvok_Rect rect = cell;
        if (IsAlive() && row == state.ListIndex && !buttonIsDown) PlaceStrip(slot, rect);
        return;
    }
    const std::int64_t head = std::int64_t{cell.Left} + headWidth + state.HeadWidthEx;
    state.CellRect.Right = ToInt32(head);
    DrawCell(slot, false);
    if (!IsAlive()) return;
    state.CellRect = cell;
    state.CellRect.Left = ToInt32(head + state.GridlineWidth);
    DrawCell(slot, true);
    // While the button is held neither is touched, so that a drag over the rows does not flicker.
    if (!IsAlive() || row != state.ListIndex || buttonIsDown) return;
    tvok_Rect rect = state.TextRect;
    PlaceStrip(slot, rect);
    PlaceEditor(slot, rect);
}

/// The caption or the value into `CellRect`, as the same row that is being painted.
void gList::Impl::DrawCell(std::int32_t slot, bool value) {
    const auto callback = cbExDraw; // a handler may end the control
    const std::int32_t row = state.CurItem;
    mtvok::DrawListItem(state, value ? items[slot].item : items[slot].hItem, *callback, false);
    state.CurItem = row;
}

void gList::Impl::DrawExpander(std::int32_t row, std::int32_t column, std::int32_t gridRow) {
    quietly([&] {
        const elistdata& record = items[rowIndex[row]];
        if (!record.bParentItem) return;
        const tvok_Rect cell = cells(column, gridRow);
        // From the client's edge and not from the cell's: with a narrow band the box is cut off there.
        const std::int32_t x = (state.HeadWidthEx - cFoldBox) / 2;
        const std::int32_t y = cell.Top + (cell.bottom - cell.Top - cFoldBox) / 2;
        host::Platform& platform = host::platform();
        dgi::FrameRectColor(state.hDC, {x, y, x + cFoldBox, y + cFoldBox},
                            platform.GetSysColor(cShadowColor));
        const dgi::Owned pen(platform.CreatePen(0, 1, platform.GetSysColor(cTextColor)));
        const dgi::Selected inUse(state.hDC, pen.handle());
        platform.MoveToEx(state.hDC, x + 2, y + 4, nullptr);
        platform.LineTo(state.hDC, x + 7, y + 4);
        if ((record.hItem.vflag & vflag::Collapsed) == 0) return;
        platform.MoveToEx(state.hDC, x + 4, y + 2, nullptr);
        platform.LineTo(state.hDC, x + 4, y + 7);
    });
}

void gList::Impl::ShowStrip(bool show) {
    if (strip != nullptr) strip->Visible(show);
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
        ShowStrip(false);
        return;
    }
    place = dgi::RectToWindowDC(state.hDC, state.hWnd, place);
    const host::Screen& screen = host::services().Screen();
    strip->Move(static_cast<float>(place.Left) * screen.TwipsPerPixelX(),
                static_cast<float>(place.Top) * screen.TwipsPerPixelY());
    ShowStrip(true);
    if (strip != nullptr) strip->ZOrder(0);
}

void gList::Impl::PlaceEditor(std::int32_t slot, const tvok_Rect& rect) {
    const elistdata& record = items[slot];
    if (!IsAlive() || (record.item.vflag & vflag::Editor) == 0) return;
    const std::string key = record.hItem.key; // of the moment, whatever a handler does to the record
    if (std::int64_t{rect.Right} - rect.Left < cLeastEditor) return events.ExEditorHide(key);
    const tvok_Rect place = dgi::RectToWindowDC(state.hDC, state.hWnd, rect);
    const host::Screen& screen = host::services().Screen();
    const float x = screen.TwipsPerPixelX();
    const float y = screen.TwipsPerPixelY();
    std::int32_t left = Twips(place.Left, x);
    std::int32_t top = Twips(place.Top, y);
    std::int32_t width = Twips(std::int64_t{place.Right} - place.Left, x);
    std::int32_t height = Twips(std::int64_t{place.bottom} - place.Top, y);
    events.ExEditorSetPosition(key, left, top, width, height);
    if (IsAlive()) events.ExEditorShow(key);
}

/// The current row is off the page: its editor hides and keeps what is in it.
void gList::Impl::LeavePage(std::int32_t row) {
    if (row != state.ListIndex || row < 1) return;
    const std::string key = items[rowIndex[row]].hItem.key;
    events.ExEditorHide(key);
    ShowStrip(false);
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
