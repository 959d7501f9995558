/// `gList`: a property list. Each row shows a caption and a value, rows fold away under group rows, and the
/// current row carries a strip of buttons, a popup and an editor of the host's.
///
/// Items live in a store; rows are made from it by `BuiltList`, which the host calls once after it has added
/// or changed items. An item's `xbuttons` is "buttons;type": the setting text of its button strip (see
/// `xbutton`) and a type word, which says how the value `nData` becomes the display `item`:
///
///     cs    a colour. Buttons "0" palette, "1" system colours, "2" colour dialog
///     ns    a number. A button "1-12" opens the numbers 1 to 12
///     li 7  a number: the `ItemData` of an entry of popup list 7, which then is the whole value cell
///     lt 7  a text from popup list 7
///     else  the host's: `ExItemShowCov` fills in `item`
///
/// An item is meant by an `Index`: above 0 a row, below 0 minus its slot in the store, 0 none. Slots stay
/// where they are until `BuiltList` closes the gaps that removed items left. Lengths are pixels, editor
/// places twips. Writing a property with the value that it has does nothing unless told; repaints happen in
/// run mode only.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "tvok/engine/callbacks.h"
#include "tvok/host/Component.h"
#include "tvok/host/PropertyBag.h"
#include "tvok/records/tvok_declare.h"

namespace tvok {

class gList : public host::Control {
public:
    /// Handlers may do anything to the control, also clear it, rebuild it, throw or end it. A record is the
    /// stored one where that is told, so that changes stay; else a copy of the moment.
    struct Events {
        /// A built-in type changed the value, with `ActionID` 0, or `ReqEnumItems` comes by with its own. The
        /// stored record.
        Event<elistdata&, std::int32_t> EnumItems;
        Event<std::int32_t, elistdata&> Change;   ///< The current row moved to this row.
        Event<std::int32_t, elistdata&> Click;    ///< A row was activated: the button was let go, or a key.
        Event<std::int32_t, elistdata&> DblClick; ///< Flat list only: a double click in a grouped one folds.
        /// A button of the strip was clicked: its key. With type cs and key 2 after the colour dialog.
        Event<const std::string&, elistdata&> ButtonClick;
        Event<const std::string&, elistdata&> ButtonMouseDown;   ///< It went down; a popup is open by now.
        Event<const std::string&, elistdata&> ButtonMouseDownEx; ///< Directly after, with the same copy.
        ExDrawEvent ExDraw; ///< The host's share of the painting. The key is that of the cell's own record.
        Event<elistdata&> ExItemShowCov;               ///< Make `item` of the stored record from its `nData`.
        Event<const std::string&> ExEditorDataRestore; ///< The item key: take the value out of the editor.
        Event<elistdata&> ExEditorIni;                 ///< Load the editor from the stored record.
        /// Place the editor of this item: left, top, width, height in twips of the control. What a handler
        /// writes there is ignored. Comes at every repaint of the current row, followed by `ExEditorShow`.
        Event<const std::string&, std::int32_t&, std::int32_t&, std::int32_t&, std::int32_t&>
            ExEditorSetPosition;
        Event<const std::string&> ExEditorHide; ///< The item key, empty where no editor was open.
        Event<const std::string&> ExEditorShow; ///< The item key: show its editor.
        /// Give the text of this popup list, in the form that `xPopup::ItemsStr` takes; every line needs its
        /// end. Asked for what cells show until it gave an entry, and anew each time the popup opens.
        Event<std::int32_t, std::string&> EnumPopStr;
    };
    Events events; ///< Assign a callable; `nullptr` drops it.

    gList();
    ~gList() override;

    // Items.

    /// Stores an item and gives minus its slot. It replaces the item meant by `Index`, or else the one with
    /// the same key; otherwise it takes the first free slot or a new one. Rows change with the next
    /// `BuiltList`. Errors end the step in which they happen.
    std::int32_t AddItem(const elistdata& NewValue, std::int32_t Index = 0);
    /// Frees the slot and rebuilds the rows. An index beyond `Count` may still mean an item that had this
    /// row, or is the `SubscriptError`; then nothing changes.
    void RemoveItem(std::int32_t Index);
    /// Copies an item out, by its key or, with an empty one, by its index. Minus its slot; 0 when there is
    /// none, and the record is left alone.
    std::int32_t GetItem(elistdata& ItemValue, std::string_view key = {}, std::int32_t Index = 0) const;
    /// Sets an item's value, makes its display anew and repaints its row. Raises no `Change`. An item that is
    /// not there: `ExItemShowCov` with the blank record. Errors are ignored.
    void SetData(const Variant& NewValue, std::string_view key = {}, std::int32_t Index = 0);
    Variant GetData(std::string_view key = {}, std::int32_t Index = 0) const; ///< Empty when there is none.
    void ShowItem(std::string_view key); ///< Makes it the current row, where it has a row.
    /// Frees all slots and drops the rows; popup lists stay. In run mode raises `ExEditorHide` with no key
    /// and repaints, unless `NoRefresh`. `ObjectError` without a hook.
    void Clear(bool NoRefresh = false);
    /// Raises `EnumItems` for each item in the order of slots, with a key only for those with exactly that
    /// key (case counts), and makes the display anew: with a key of each, without of those whose value the
    /// handler changed. Paints nothing.
    void ReqEnumItems(std::int32_t ActionID, std::string_view key = {});
    /// Makes the rows: closes gaps, sorts, groups, fits the caption column, repaints. The current slot stays
    /// current, which raises `Change` and opens its editor again, but no `Click`.
    void BuiltList();
    elistdata DefaultItem() const; ///< A visible item with default cells.
    /// Settings and items as text; empty at design time. Values and value texts are not part of it.
    std::string ItemsStr() const;
    /// Reads such a text: adds its items as `AddItem` does. Clears nothing and makes no rows. Ignored at
    /// design time. Errors end the line in which they happen.
    void ItemsStr(std::string_view text);

    std::int32_t Count() const;     ///< Number of rows.
    std::int32_t ListIndex() const; ///< The current row, 0 for none.
    void
    ListIndex(std::int32_t row); ///< Ignored at design time and out of range. Raises `Change` if it differs.
    Variant VarData() const;     ///< The current row's value, empty when there is none.
    /// Sets it, makes its display anew and loads its editor again. Without a current row it lands in the
    /// blank record.
    void VarData(const Variant& value);

    // Screen.

    void Refresh();  ///< Scroll range, cells and repaint.
    void PaintAll(); ///< Repaints.
    /// The screen rectangle of a row's value area; false, and `rct` as it was, when the row is off the page.
    bool GetItemRect(std::int32_t Index, tvok_Rect& rct) const;
    /// A navigation key as if it were pressed here. With a modifier in `Shift` nothing happens.
    void KeyIn(std::int16_t KeyCode, std::int16_t Shift = 0);

    // Structure. In run mode these rebuild the rows.

    std::int32_t ListMode() const;
    void ListMode(std::int32_t mode); ///< 1 groups; any other value is a flat list, the default.
    bool Sorted() const;
    void
    Sorted(bool on); ///< By caption, case matters; default. Rebuilds at each write of true, never of false.

    // Grid. Values out of the range in the comment are ignored.

    std::int32_t ItemHeight() const;         ///< Of a row, pixels. Default 18.
    void ItemHeight(std::int32_t pixels);    ///< 1 or more.
    std::int32_t GridlineWidth() const;      ///< Pixels. Default 1.
    void GridlineWidth(std::int32_t pixels); ///< 0 or more.
    bool GridlineOnBorder() const;           ///< Lines also along the outer edges. Default false.
    void GridlineOnBorder(bool on);
    bool FixedHeight() const;
    void FixedHeight(bool on);      ///< The control's height snaps to whole rows.
    std::int32_t HeadWidth() const; ///< Of the caption column; `BuiltList` fits it.

    // Looks.

    std::int32_t CX_TEXT() const; ///< Width of the icon area of both cells, pixels. Default 20.
    void CX_TEXT(std::int32_t pixels);
    std::int32_t HeadWidthEx() const;
    void HeadWidthEx(std::int32_t pixels); ///< Of the band at the left with the fold boxes.
    OLE_COLOR HeadExBackColor() const;     ///< Of that band.
    void HeadExBackColor(OLE_COLOR color);
    OLE_COLOR HeadExBorderColor() const; ///< Its right edge.
    void HeadExBorderColor(OLE_COLOR color);
    std::int32_t IconPos() const;      ///< A packed `tvok_IconPos`. Default `cDefaultIconPos`.
    void IconPos(std::int32_t packed); ///< In run mode the strip's icon size follows.
    std::int32_t IconHandle() const;
    void IconHandle(std::int32_t imageList); ///< Also the strip's. No repaint.
    OLE_COLOR IconBorderColor() const;       ///< Of icon boxes. Default `cWindowFrame`.
    void IconBorderColor(OLE_COLOR color);
    OLE_COLOR BackColor() const; ///< Where no row is. Default `cWindowBackground`.
    void BackColor(OLE_COLOR color);
    OLE_COLOR SelectedColor() const; ///< Behind the current row. Default `cHighlight`.
    void SelectedColor(OLE_COLOR color);
    OLE_COLOR GridlineColor() const; ///< Default `c3DLight`.
    void GridlineColor(OLE_COLOR color);
    host::FontPtr Font() const;
    void Font(const host::Font& font); ///< No repaint; the caption column follows with `BuiltList`.
    void SetToSystemfont(bool fSetFontSize = true); ///< Its face, with the flag its size. No repaint.
    bool FontTransparent() const;                   ///< The component's. Default true.
    void FontTransparent(bool on);
    std::int32_t TextHeight() const; ///< Pixels of the font's size.
    std::int16_t Appearance() const;
    void Appearance(std::int16_t appearance); ///< A refused value is ignored.
    std::int32_t BorderStyle() const;
    void BorderStyle(std::int32_t style); ///< A refused value is ignored.

    // The host's scratch values. The control keeps them, and nothing more.

    const std::string& TmpKey() const;
    void TmpKey(std::string_view key);
    const Variant& TmpData() const;
    void TmpData(const Variant& value);

    host::Handle hwnd() const; ///< The control's window.

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

private:
    struct Impl; ///< In gList_impl.h.
    std::unique_ptr<Impl> impl_;
};

} // namespace tvok
