// Painting and scrolling of `xPopup`, all of it on the floating window.
#include "tvok/controls/popup/xPopup.h"
#include "tvok/records/numeric.h"

namespace tvok {

/// The callback of the open popup. While it is closed there is none, and an item that asks its host to draw
/// is the object error; the others paint on a window that nobody sees.
std::shared_ptr<cExdrawCallback> xPopup::CallbackNow() const {
    if (cbExDraw_) return cbExDraw_;
    auto none = std::make_shared<cExdrawCallback>();
    none->ExDrawCallback = [](std::int32_t&, std::int32_t, const std::string&, std::int32_t, std::int32_t,
                              std::int32_t, std::int32_t, std::int32_t, std::int32_t) {
        throw ObjectError("xPopup: only an open popup lets its host draw");
    };
    return none;
}

void xPopup::DrawItem(std::int32_t& Index) {
    const bool open = IsOpen();
    if (virtualMode_) {
        constexpr std::int32_t kSlot = 1;
        {
            auto loan = items_.Lend(kSlot);
            events.EnumDATA(Index, loan.record());
        }
        // The bit is set here and cleared by nobody: a handler that leaves `vflag` as it comes gives the
        // selected look to all later rows. That stays; handlers write the whole record.
        if (state_.ListIndex == Index) items_.PutFlags(kSlot, items_[kSlot].vflag | vflag::Selected);
    }
    if (open && !IsOpen()) return; // the handler closed it
    const auto callback = CallbackNow();
    std::int32_t column = 0;
    std::int32_t row = 0;
    if (IsOpen() &&
        !OnShownGrid([&](const ListState& state) { return mtvok::IndexToCell(Index, state, column, row); }))
        return;
    mtvok::DrawItemAt(state_, Index, items_, itemIndex_, cells_, *callback, column, row, false);
}

void xPopup::PaintPopupRect(const tvok_Rect& rect) {
    const auto hook = WndHook_;
    if (!hook) throw ObjectError("xPopup: no message hook at design time");
    const auto callback = CallbackNow();
    // The position is the hook's. TopRow follows it in the same moment, but painting asks the hook.
    OnShownGrid([&](ListState& state) {
        mtvok::DrawCells(
            state, rect, cells_, std::int64_t{hook->ScrollValue()} * state.xn + 1,
            [&](std::int32_t& index) {
                if (IsOpen()) DrawItem(index); // a handler of an item before may have closed it
            },
            [&] { mtvok::DrawBlank(state, items_, *callback); });
    });
}

void xPopup::WndHook_Change(std::int32_t value) {
    const std::int64_t pitch = std::int64_t{state_.ItemHeight} + state_.GridlineWidth;
    const tvok_Rect client = state_.ClientRect;
    state_.TopRow = value;
    const std::int32_t distance = ToInt32((std::int64_t{state_.LastTop} - value) * pitch);
    tvok_Rect uncovered;
    host::platform().ScrollDC(Picture().hDC(), 0, distance, &client, &client, 0, &uncovered);
    // The pixels stand at `value` from here on, also where a handler scrolls again or throws during the
    // repaint.
    state_.LastTop = value;
    host::platform().InvalidateRect(state_.hWnd, &uncovered, false);
    host::platform().UpdateWindow(state_.hWnd);
}

} // namespace tvok
