/// `qRoster`: the flat list. A page of `xn` by `yn` cells over items held in memory.
///
/// Items are never moved: a display index maps positions to slots. Adding and removing draw nothing and take
/// effect on screen with `Refresh`. Indexes are 1-based display positions, and 0 means none.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "tvok/engine/mtvok.h"
#include "tvok/host/Component.h"
#include "tvok/host/Hooks.h"
#include "tvok/host/PropertyBag.h"

namespace tvok {

class qRoster : public host::Control {
public:
    /// Handlers may do anything to the control, also clear it, replace themselves or throw.
    struct Events {
        Event<std::int32_t, qrosterdata&> Change;   ///< The current item changed; raised before the repaint.
        Event<std::int32_t, qrosterdata&> Click;    ///< By mouse on release, by key after each move.
        Event<std::int32_t, qrosterdata&> DblClick; ///< By mouse, on an item.
        /// Button, Shift, x and y in twips.
        Event<std::int16_t&, std::int16_t&, float&, float&> MouseDown;
        Event<std::int16_t&, std::int16_t&> KeyDown; ///< KeyCode and Shift; what is left in them is acted on.
        Event<std::int16_t&, std::int16_t&, float&, float&> MouseMove; ///< As `MouseDown`.
        Event<std::int16_t&, std::int16_t&, float&, float&> MouseUp;   ///< As `MouseDown`.
        Event<std::int16_t&, std::int16_t&> KeyUp;                     ///< KeyCode and Shift.
        Event<std::int16_t&> KeyPress;                                 ///< The character.
        Event<std::int32_t&, std::int32_t&> EnumSelectedItemCallBack;  ///< ActionID and index.
        ExDrawEvent ExDraw; ///< The host's share of the painting, as the item's `vflag` asks for it.
    };
    Events events; ///< Assign a callable; `nullptr` drops it.

    qRoster();
    ~qRoster() override;

    // Items.

    /// Appends for an index below 1 or beyond the list, else inserts before it. The item is stored with all
    /// its `vflag` bits, so it can come in selected. Always false. Draws nothing.
    bool AddItem(std::int32_t Index, const qrosterdata& ItemValue);
    /// Marks the item removed; `Refresh` closes the gap. Until then positions stay. `SubscriptError` beyond
    /// the index.
    void RemoveItem(std::int32_t Index);
    /// Copies the item out. True, or `SubscriptError` beyond the index.
    bool GetData(std::int32_t Index, qrosterdata& ItemValue) const;
    /// Replaces the item but for its selection. An index out of range does nothing. Errors are ignored.
    void SetData(std::int32_t Index, const qrosterdata& x, bool lupdate = true);
    void Clear(); ///< Removes all and repaints. `ObjectError` at design time, when all are gone.
    std::int32_t Count() const;      ///< With those that await `Refresh` to be gone.
    qrosterdata DefaultItem() const; ///< What a default-made record is.

    /// The whole list as text; empty at design time. Writing replaces the list; call `Refresh` afterwards.
    std::string ItemsStr() const;
    void ItemsStr(std::string_view text);

    // Painting.

    /// Closes the gaps of removed items, takes on the settings and repaints. `ObjectError` at design time.
    void Refresh();
    void PaintAll();                   ///< Repaints the page as it was laid out last.
    void DrawItem(std::int32_t Index); ///< An item off the page draws nothing.
    void ResetSize();                  ///< Snaps the height to whole rows where `FixedHeight` is set. Quiet.

    // Search and order.

    /// The first item with this text, case ignored; 0 in an empty list, `Count` + 1 when there is none.
    std::int32_t FindItem(std::string_view text, bool bSelected = false);
    void StrSeekItem(std::string_view text); ///< Makes the first item with this beginning the current one.
    std::int32_t SortedMode() const;         ///< As written last. Default 0.
    /// Sorts at once by text: 1 up, 2 to 4 down, 0 not at all. Items added later are not inserted in order.
    void SortedMode(std::int32_t mode);

    // Selection.

    std::int32_t ListIndex() const;            ///< The current item, 0 for none.
    void ListIndex(std::int32_t index);        ///< Out of range: ignored. Raises `Change` where it differs.
    bool IsSelected(std::int32_t Index) const; ///< False out of range.
    /// Raises `EnumSelectedItemCallBack` for each selected item. Handlers may remove items on the way. What a
    /// handler leaves in `ActionID` goes to the next call and comes back to the caller.
    void EnumSelectedItem(std::int32_t& ActionID, bool ClearSelected = true);
    void EnumSelectedItem(const std::int32_t& ActionID = 0, bool ClearSelected = true) {
        std::int32_t action = ActionID;
        EnumSelectedItem(action, ClearSelected);
    }
    /// Selects a range, both ends included. Both 0: all items; one 0: the other alone. In multiple selection
    /// only. No event.
    void Selecteded(std::int32_t lstart = 0, std::int32_t lstop = 0);
    /// The opposite, while a multiple selection is there.
    void UnSelecteded(std::int32_t lstart = 0, std::int32_t lstop = 0);
    std::int32_t MultiSelect() const;
    void MultiSelect(std::int32_t mode); ///< 0 single, 1 multiple; others are ignored.
    bool HotTrack() const;               ///< Whether the pointer selects without a button. Default false.
    void HotTrack(bool on);

    // Grid. Lengths are pixels. Writes repaint at once and raise no event. Those of `xn`, `yn`, `XnAuto` and
    // `FixedWidthForLastXn` throw `ObjectError` at design time, and keep the value.

    std::int32_t xn() const;       ///< Columns of items. Default 1.
    void xn(std::int32_t columns); ///< Below 1, or with `XnAuto` set: ignored.
    std::int32_t yn() const;       ///< Whole rows on the page. Default 5.
    void yn(std::int32_t rows);    ///< Below 1, or the same: ignored. Sets the control's height.
    bool XnAuto() const;           ///< As many columns as fit. Default false.
    void XnAuto(bool on);
    std::int32_t ItemHeight() const;         ///< Of a cell. Default 18.
    void ItemHeight(std::int32_t pixels);    ///< 0 or less: ignored.
    std::int32_t ItemWidth() const;          ///< Of a column without a width of its own. Default 100.
    void ItemWidth(std::int32_t pixels);     ///< Below 0: ignored.
    std::int32_t GridlineWidth() const;      ///< Default 1; in a designer a new list has 0.
    void GridlineWidth(std::int32_t pixels); ///< Below 0: ignored.
    OLE_COLOR GridlineColor() const;         ///< Default `c3DLight`.
    void GridlineColor(OLE_COLOR color);
    bool GridlineOnBorder() const; ///< Lines also along the outer edges. Default false.
    void GridlineOnBorder(bool on);
    bool FixedHeight() const; ///< The control's height snaps to whole rows. Default true.
    void FixedHeight(bool on);
    bool FixedWidthForLastXn() const; ///< Else the last column takes what is left. Default false.
    void FixedWidthForLastXn(bool on);
    std::string ColWidthSettingStr() const;         ///< Default empty: `ItemWidth` for all.
    void ColWidthSettingStr(std::string_view text); ///< "0,100,50": the first value has no effect.
    std::string TabStopSettingStr() const;          ///< Default empty: one column.
    void TabStopSettingStr(std::string_view text);  ///< "40,60": two stops, three tab columns.

    // Looks.

    std::int32_t CX_TEXT() const;      ///< Width of the icon area left of the text. Default 20.
    void CX_TEXT(std::int32_t pixels); ///< Below 0: ignored. Shows with the next paint.
    std::int32_t IconPos() const;      ///< A packed `tvok_IconPos`. Default `cDefaultIconPos`.
    void IconPos(std::int32_t packed);
    /// Reading it gives 0 and ends the drawing of icons until it is written again: whoever sets it must not
    /// read it.
    std::int32_t IconHandle();
    void IconHandle(std::int32_t imageList); ///< Shows with the next paint.
    OLE_COLOR BackColor() const;             ///< Of cells without an item. Default `cWindowBackground`.
    void BackColor(OLE_COLOR color);
    OLE_COLOR SelectedColor() const; ///< Behind selected items. Default `cHighlight`.
    void SelectedColor(OLE_COLOR color);
    OLE_COLOR IconBorderColor() const; ///< Of icon boxes. Default `cWindowFrame`.
    void IconBorderColor(OLE_COLOR color);
    std::int32_t HeadWidthEx() const;      ///< Of the band left of the first column. Default 0: none.
    void HeadWidthEx(std::int32_t pixels); ///< The first column's width follows with the next `Refresh`.
    OLE_COLOR HeadExBackColor() const;     ///< Of that band. Default `c3DLight`. No repaint.
    void HeadExBackColor(OLE_COLOR color);
    OLE_COLOR HeadExBorderColor() const; ///< Its right edge. Default `cButtonFace`. No repaint.
    void HeadExBorderColor(OLE_COLOR color);
    host::FontPtr Font() const;        ///< The component's own object.
    void Font(const host::Font& font); ///< The line height follows with `SetToSystemfont` or the next load.
    void SetToSystemfont(bool fSetFontSize = true); ///< Its face, with the flag its size. No repaint.
    std::int32_t TextHeight() const;                ///< Pixels of the font's size.
    bool FontTransparent() const;                   ///< The component's. Default true.
    void FontTransparent(bool on);
    std::int16_t Appearance() const;          ///< The component's: 0 flat, the default, 1 with depth.
    void Appearance(std::int16_t appearance); ///< A refused value is ignored.
    std::int32_t BorderStyle() const;         ///< The component's: 0 none, 1 a border, the default.
    void BorderStyle(std::int32_t style);     ///< A refused value is ignored.

    // The host's scratch values. The control keeps them, and nothing more.

    const std::string& TmpKey() const;
    void TmpKey(std::string_view key);
    const Variant& TmpData() const;
    void TmpData(const Variant& value);

    // Life cycle and input, called by the component.

    void Initialize(host::Component& component) override;
    void InitProperties() override;
    void ReadProperties(host::PropertyBag& bag) override;
    void WriteProperties(host::PropertyBag& bag) override;
    void Resize() override;
    void Paint() override;
    void Terminate() override;
    void GotFocus() override;
    void LostFocus() override;
    void KeyDown(std::int16_t& keyCode, std::int16_t& shift) override;
    void KeyPress(std::int16_t& keyAscii) override;
    void KeyUp(std::int16_t& keyCode, std::int16_t& shift) override;
    void MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void MouseMove(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;

private:
    // Items (qRoster.cpp).
    void ResetItems();
    void Compact();
    std::int32_t FreeSlotForNewItem();
    void PaintInRunMode();
    void RefreshInRunMode();
    void ResizeInRunMode();
    host::Component& Base() const;
    bool UserMode() const;

    // Selection and input (qRoster_input.cpp).
    void SetCurrent(std::int32_t index, bool last);
    void SetSelectedBit(std::int32_t index, bool on);
    void EnterMultiActive();
    void ClearSelection(bool keep);
    void ToggleSelectedBit(std::int32_t index);
    void ExtendSelection(std::int32_t& anchor, std::int32_t old);
    void ShowItem(std::int32_t index, bool last);
    bool RangeToSelect(std::int32_t& lstart, std::int32_t& lstop) const;
    void SelectRange(std::int32_t lstart, std::int32_t lstop, bool on);
    void RaiseItemEvent(Event<std::int32_t, qrosterdata&>& event, std::int32_t index);
    void KeySingle(std::int32_t code);
    void KeyMulti(std::int32_t code, std::int32_t shift);
    void MouseSingle(std::int32_t message, std::int32_t wParam, std::int32_t lParam);
    void MouseMulti(std::int32_t message, std::int32_t wParam, std::int32_t lParam);
    void DragMulti(std::int32_t wParam, std::int32_t lParam);
    void PressMulti(std::int32_t wParam, std::int32_t lParam);
    void ClickAgain();
    std::int32_t ItemAt(std::int32_t lParam) const;

    // Messages (qRoster.cpp).
    void AttachHook();
    void WMHOOK_RtMsg(std::int32_t message, std::int32_t wParam, std::int32_t lParam, bool& fMsgProcess);
    void WMHOOK_Change(std::int32_t value);
    void PaintUpdateRegion();

    host::Component* component_ = nullptr;
    ListState state_;
    ItemSlots items_;
    IndexArray itemIndex_{0};
    CellTable cells_;
    std::shared_ptr<host::MessageHook> WMHOOK_; ///< Run mode only.
    std::shared_ptr<cExdrawCallback> cbExDraw_;
    std::int32_t multiSelect_ = 0;
    std::int32_t anchor_ = 0;    ///< Anchor of a range selection.
    bool pendingRemove_ = false; ///< Items are marked removed and await `Refresh`.
    std::int32_t freeSlot_ = 0;  ///< Where the search for a free slot starts.
    std::int32_t dragItem_ = 0;  ///< Item under the last press, for the release and the double click.
    std::int32_t downItem_ = 0;
    std::int32_t lastLParam_ = 0;
    std::int32_t lastWParam_ = 0;
    /// Counts the ends of whole lists (a clear, the end of the control). A routine that raised an event
    /// compares it: when the handler ended the list, the positions that the routine still holds mean nothing
    /// any more.
    std::uint32_t listEnds_ = 0;
};

} // namespace tvok
