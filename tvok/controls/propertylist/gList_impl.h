/// The insides of `gList`: its state and what its files share. Not installed.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tvok/controls/buttonstrip/xbutton.h"
#include "tvok/controls/popup/xPopup.h"
#include "tvok/controls/propertylist/CaptionWidths.h"
#include "tvok/controls/propertylist/ItemStore.h"
#include "tvok/controls/propertylist/PopLists.h"
#include "tvok/controls/propertylist/RowPlan.h"
#include "tvok/controls/propertylist/gList.h"
#include "tvok/engine/mtvok.h"
#include "tvok/engine/numberedlines.h"
#include "tvok/host/Services.h"

namespace tvok {

struct gList::Impl {
    explicit Impl(gList& control) : events(control.events) {}

    /// What an `Index` means: a slot, and its row or 0.
    struct Resolved {
        std::int32_t slot = 0;
        std::int32_t row = 0;
    };

    /// While it lives, strip and editor are being hidden: the focus that falls to the list then repaints its
    /// row without bringing them back.
    struct Hiding {
        explicit Hiding(Impl& list) : list(list) { ++list.hidings; }
        Hiding(const Hiding&) = delete;
        Hiding& operator=(const Hiding&) = delete;
        ~Hiding() { --list.hidings; }
        Impl& list;
    };

    Events& events;
    host::Component* component = nullptr; ///< Null before the start and after the end.
    host::Component* strip = nullptr;     ///< That of `xbutton1`, while it is a child.
    ListState state;
    propertylist::ItemStore items;
    propertylist::RowPlan plan;
    propertylist::CaptionWidths widths{items};
    propertylist::PopLists popLists;
    IndexArray rowIndex{0}; ///< The slot of each row; beyond `Count` what was there before.
    /// The first row of each slot, 0 for none. Made when it is first asked for after the rows were made.
    mutable std::vector<std::int32_t> rowOf{};
    CellTable cells;
    std::shared_ptr<host::MessageHook> MS0HOOK; ///< Run mode only.
    std::shared_ptr<cExdrawCallback> cbExDraw;
    xbutton xbutton1;
    xPopup xPopup1;
    std::int32_t headWidth = 120;
    std::int32_t listMode = 0;
    bool sorted = true;
    std::int32_t pressedRow = 0; ///< Row of a press whose release is awaited; a release leaves it as it is.
    std::int32_t downRow = 0;    ///< Row of the last press, for the double click.
    bool buttonIsDown = false;
    std::int32_t hidings = 0;   ///< `Hiding`s that live.
    std::int32_t editorRow = 0; ///< Row whose editor has to be read back, 0 for none.

    // Life cycle (gList.cpp).
    host::Component& Base() const;
    bool UserMode() const;
    bool IsAlive() const { return component != nullptr; } ///< A handler may end the control.
    std::shared_ptr<host::MessageHook> Hook() const;      ///< Throws `ObjectError` at design time.
    [[noreturn]] static void ThrowNoHook();
    void Start(host::Component& base);
    void Read(host::PropertyBag& bag);
    void AttachHook();
    void End();
    std::int32_t TextHeight() const;
    void ApplyIconSize();
    void FitControl();
    void RefreshInRunMode();
    void PaintInRunMode();

    // Items (gList_items.cpp).
    static elistdata DefaultRecord() { return {.bVisible = true}; }
    Resolved Resolve(std::int32_t index) const;
    std::int32_t RowOf(std::int32_t slot) const;
    /// Minus the slot of the first item with this key, 0 for none.
    std::int32_t FindSlotByKey(std::string_view key) { return -items.NextWithKey(key); }
    std::int32_t SlotOf(std::string_view key, std::int32_t index);
    std::int32_t AddItem(const elistdata& record, std::int32_t index);
    void SetData(const Variant& value, std::string_view key, std::int32_t index);
    void VarData(const Variant& value);
    void Clear(bool noRefresh);
    void ReqEnumItems(std::int32_t action, std::string_view key);
    bool EnumItem(std::int32_t slot, std::int32_t action);
    std::int32_t CurrentSlot() const { return rowIndex[state.ListIndex]; }

    // Values (gList_values.cpp).
    void ApplyItemValue(std::int32_t slot);
    void LoadPopList(const std::string& xbuttons);

    // Rows (gList_rows.cpp).
    void BuiltList();
    std::int32_t MakeRows(std::int32_t kept);
    void AddRows(std::span<const std::int32_t> slots);
    void FitHeadWidth(std::int32_t widest);
    void CloseEditor();

    // Painting (gList_paint.cpp).
    void Refresh();
    void PaintAll() { PaintRect(state.ClientRect); }
    void PaintRect(const tvok_Rect& rect);
    void PaintUpdateRegion();
    void DrawRow(std::int32_t row, bool place = true); ///< `place` false leaves strip and editor alone.
    bool DrawCell(std::int32_t row, std::int32_t slot, const tvok_Rect& cell, bool value);
    void DrawExpander(std::int32_t slot, const tvok_Rect& cell);
    void PlaceStrip(std::int32_t slot, tvok_Rect& rect);
    void PlaceEditor(std::int32_t slot, const tvok_Rect& rect);
    void LeavePage(std::int32_t row);
    void HideStrip();
    bool GetItemRect(std::int32_t row, tvok_Rect& rect) const;

    // Input (gList_input.cpp).
    void MoveCurrentRow(std::int32_t row, bool last);
    void SetListIndex(std::int32_t row);
    void ActivateRow(bool raise);
    bool OpenEditor();
    void KeyIn(std::int32_t key, std::int32_t shift);
    void FocusCame();
    void FocusWent() { DrawRow(state.ListIndex, hidings == 0); }
    void MS0HOOK_RtMsg(std::int32_t message, std::int32_t wParam, std::int32_t lParam, bool& fMsgProcess);
    void Drag(std::int32_t wParam, std::int32_t lParam);
    void Press(std::int32_t lParam);
    void Release();
    void DoubleClick();
    void Fold(std::int32_t slot);
    void MS0HOOK_Change(std::int32_t value);

    // The strip and the popup (gList_popups.cpp).
    void ConnectChildren();
    void StripMouseDown(std::string_view key);
    void OpenColors(const std::string& key, const elistdata& record);
    void OpenNumbers(const std::string& key, const elistdata& record);
    void OpenList(const std::string& key, const elistdata& record, std::int32_t number, bool byNumber);
    void PlacePopup();
    void StripClick(std::string_view key);
    void PopupClick(const qrosterdata& entry, bool canceled);

    // Text form (gList_text.cpp).
    std::string WriteText() const;
    void ReadText(std::string_view text);
    void ReadSetting(const mtvok::NumberedLine& line);
};

} // namespace tvok
