/// The insides of `qRosterex`: its state and what its files share. Not installed.
#pragma once

#include <optional>

#include "tvok/controls/largelist/qRosterex.h"

namespace tvok {

struct qRosterex::Impl {
    /// A repaint on its way over the slots. Where a handler moves the pixels meanwhile, what is still to be
    /// painted moves along.
    struct PaintPass {
        PaintPass(Impl& list, const tvok_Rect& update) : list(list), outer(list.painting), update(update) {
            list.painting = this;
        }
        PaintPass(const PaintPass&) = delete;
        PaintPass& operator=(const PaintPass&) = delete;
        ~PaintPass() { list.painting = outer; }
        void Move(std::int64_t rows, std::int64_t pixels);

        Impl& list;
        PaintPass* outer;
        tvok_Rect update;
        std::int64_t slot = 1; ///< Being painted.
    };

    explicit Impl(qRosterex& control) : control(control), events(control.events) {}

    qRosterex& control;
    Events& events;
    host::Component* component = nullptr;
    ListState state;
    HeaderColumns columns;
    BufferFile buffer;
    std::vector<qrosterdata> rowCache;       ///< Of one size for good: handlers hold records of it.
    std::shared_ptr<host::MessageHook> hook; ///< Run mode only.
    Array<tvok_Rect> rowRects{100};          ///< Entry 0 is the header band, entry s is slot s.

    std::int32_t pendingCount = 0; ///< Rows added but not yet counted.
    std::int32_t headerFlag = 0;
    std::int32_t headerHeight = 0;
    std::int32_t totalColumnWidth = 0;
    std::int32_t multiSelect = 0;
    std::int32_t selAnchor = 0; ///< Ends of the range, 0 for not set. Either may be the larger.
    std::int32_t selEnd = 0;
    std::int32_t pressedRow = 0; ///< Row that a press went down on and that the pointer has not left.
    std::int32_t downRow = 0;    ///< Row of the last press, for the double click.
    std::int32_t lastButtons = 0;
    std::int32_t lastPoint = 0;
    std::int32_t iconCX = 0;
    std::int32_t iconCY = 0;
    /// What the next vertical move is measured from: the scroll position, with the newest row at the top
    /// `Count` less it; some steps note the position as it stands in both modes. And the horizontal one.
    std::int32_t lastV = 0;
    std::int32_t lastH = 0;
    /// The row of slot 1 in what is on screen; none where that is not known to be what a repaint would show.
    std::optional<std::int64_t> shownTop;
    std::int32_t viewWidth = 0; ///< Inner size of the control less the bars.
    std::int32_t viewHeight = 0;
    std::int16_t viewMode = 0;
    bool vBarShown = false;
    bool hBarShown = false;
    bool bufAddItemOnly = false;
    bool lockedPaint = false;
    bool rangeActive = false;
    bool dragArmed = false; ///< Range path only: the left button went down inside and has not come up.
    bool mouseDownOnIcon = false;
    bool keySeek = false;
    bool showIcon = false;
    bool layoutBusy = false;       ///< Hook events only note their values while an add lays out anew.
    PaintPass* painting = nullptr; ///< The innermost one, null while none runs.
    std::uint64_t moveCount = 0;   ///< How often pixels were moved.
    bool ended = false; ///< After Terminate: a handler may end the control while one of its routines runs.
    std::string clearText;

    // Surroundings (qRosterex.cpp).
    host::Component& Base() const;
    bool UserMode() const;
    std::shared_ptr<host::MessageHook> Hook() const; ///< Throws `ObjectError` at design time.
    void ResetRows();
    void AttachHook();
    std::int32_t MaxColumnWidth() const;
    bool HasBufferedRow(std::int32_t row) const;

    // Layout and painting (qRosterex_paint.cpp).
    std::int64_t RowStep() const { return std::int64_t{state.ItemHeight} + state.GridlineWidth; }
    std::int64_t RowOfSlot(std::int32_t slot, std::int32_t position) const;
    std::int64_t SlotOfRow(std::int32_t row, std::int32_t position) const;
    /// A scroll position as `lastV` keeps it.
    std::int64_t PositionOf(std::int32_t scrollValue) const {
        return viewMode != 0 ? std::int64_t{scrollValue} : std::int64_t{state.Count} - scrollValue;
    }
    void BuildRowRects();
    void DecideBars();
    void LayoutBars();
    void Refresh();
    void PaintAll();
    void PaintRect(const tvok_Rect& update);
    void PaintBlankSlot(std::int32_t slot);
    bool PlaceRow(std::int32_t row);
    void PaintRow(std::int32_t row);
    void DrawItem(std::int32_t row);
    void PaintHeader();
    void DrawRowContent(const qrosterdata& record, bool wantFocus);
    void DrawIconColumn(const qrosterdata& record, std::int32_t indent, std::int32_t shift,
                        OLE_COLOR background);
    std::int64_t DrawCells(const qrosterdata& record, std::int32_t indent, std::int32_t shift);
    void DrawGridLines(const tvok_Rect& cell, std::int32_t lineLeft, bool selected) const;

    // Scrolling and adding (qRosterex_rows.cpp).
    void Turn(std::int16_t mode);
    bool MovesTo(std::int64_t top, std::int64_t rows) const;
    void MovePixels(std::int64_t rows);
    void ScrollRows(bool up, std::int32_t rows);
    void HookChange(std::int32_t v, std::int32_t hv);
    void PaintWindow();
    void HookMessage(std::int32_t message, std::int32_t wParam, std::int32_t lParam, bool& fMsgProcess);
    void AddRow(std::int16_t mode, std::int32_t value);
    void ShowAddedAtTop(host::MessageHook& bars);
    void ShowAddedAtBottom(host::MessageHook& bars);
    void LayoutForAdd();
    void FlushPendingRows();

    // Selection and input (qRosterex_input.cpp).
    std::int32_t RowFromKey(std::int32_t key) const;
    std::int32_t RowFromPoint(std::int32_t x, std::int32_t y) const;
    std::int32_t RowFromMouse(std::int32_t point, std::int32_t buttons);
    std::int32_t EdgeAt(std::int32_t x, std::int32_t y) const;
    void ShowPointerAt(std::int32_t x, std::int32_t y);
    bool ShowRow(std::int32_t row, bool exact);
    bool AtFarEnd(std::int32_t row) const;
    void MoveToRow(std::int32_t row, bool exact, bool computeExact);
    std::int32_t RowAskedForKey(std::int32_t key);
    void KeyDownSingle(std::int32_t key);
    void KeyDownRange(std::int32_t key, std::int32_t shift);
    void SetStartupSelected(std::int32_t row);
    void MS_OFF();
    void MS_ENDSELECTED();
    void MouseSingle(std::int32_t message, std::int32_t buttons, std::int32_t point);
    void MouseRange(std::int32_t message, std::int32_t buttons, std::int32_t point);
    bool StartSizing(std::int32_t point);
    void Size(std::int32_t point);
    bool OnIcon(std::int32_t x) const;
    void PressSingle(std::int32_t point);
    void PressRange(std::int32_t buttons, std::int32_t point);
    void DragRange(std::int32_t buttons, std::int32_t point);
    void ClickAgain();
};

} // namespace tvok
