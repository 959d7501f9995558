/// `qRosterex`: the list for very many rows. Rows are numbers from 1 in order of arrival; the control keeps
/// none of them and asks the host, through `EnumDATA`, for each row that it paints.
///
/// Rows only come: at the top (`AddItemTop`, newest first) or at the bottom (`AddItemButtom`, oldest first).
/// The operation that was used last sets the direction of the whole display. A reader who has scrolled away
/// keeps the place.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tvok/controls/largelist/BufferFile.h"
#include "tvok/controls/largelist/HeaderColumns.h"
#include "tvok/engine/ListState.h"
#include "tvok/engine/callbacks.h"
#include "tvok/host/Component.h"
#include "tvok/host/Hooks.h"
#include "tvok/host/PropertyBag.h"

namespace tvok {

/// A property write repaints only in a running program. The methods that lay out or paint (`AddItemTop`,
/// `AddItemButtom`, `Clear`, `Refresh`, `PaintAll`, `DrawItem`, `ClearSelected`) throw `ObjectError` at
/// design time. Where rows, widths or positions do not fit 32 bits they throw `OverflowError`.
class qRosterex : public host::Control {
public:
    /// Handlers may do anything to the control, also add rows, clear it or throw.
    struct Events {
        Event<std::int32_t> Setup; ///< Message 1242 arrived: its first parameter.
        /// A key that is no navigation key, where the property `KeySeek` is set: code, current row, new row.
        Event<std::int16_t, std::int32_t, std::int32_t&> KeySeek;
        /// The current row changed: its number, or with the newest row at the top its place from 0 at the
        /// top.
        Event<std::int32_t> Change;
        Event<std::int32_t> Click;    ///< A release after a press on a row, or a key: the current row.
        Event<std::int32_t> DblClick; ///< The row of the first press.
        /// Button, Shift, x and y in twips.
        Event<std::int16_t&, std::int16_t&, float&, float&> MouseDown;
        Event<std::int16_t&, std::int16_t&, float&, float&> MouseMove; ///< As `MouseDown`.
        Event<std::int16_t&, std::int16_t&, float&, float&> MouseUp;   ///< As `MouseDown`.
        Event<std::int16_t&, std::int16_t&> KeyDown;                   ///< KeyCode 0 cancels the key.
        Event<std::int16_t&, std::int16_t&> KeyUp;                     ///< KeyCode and Shift.
        Event<std::int16_t&> KeyPress;                                 ///< The character.
        /// A row is painted: its number, and the record of its cache place. Leave the text (cells between tab
        /// characters), the colours and `vflag` of that row. The record still holds what the last row of that
        /// place left. A host that leaves a number other than 0 in `ItemData` finds this row's own record
        /// where `ItemDataEx` equals the row's number and `ItemData` is not 0, and may leave it as it is
        /// then, save `vflag`, which is to be written always. `Clear` does not empty the records:
        /// `ClearItemData` does.
        Event<std::int32_t&, qrosterdata&> EnumDATA;
        ExDrawEvent ExDraw; ///< For the shape of the interface; never raised.
    };
    Events events; ///< Assign a callable; `nullptr` drops it.

    qRosterex();
    ~qRosterex() override;

    // Rows.

    /// A new row, the newest, at the top. `lBufData` goes to its `FileBufValue`. Paints one row where the
    /// reader is at the top, and nothing elsewhere.
    void AddItemTop(std::int32_t lBufData = 0);
    void AddItemButtom(std::int32_t lBufData = 0); ///< The same at the bottom.
    std::int32_t Count() const;
    void Count(std::int32_t rows); ///< Sets the number of rows at once. Below 0: ignored.
    void Clear();                  ///< Rows that are still pending arrive in the emptied list.
    bool BufAddItemOnly() const;   ///< Default false.
    void BufAddItemOnly(bool on);  ///< While set, added rows wait. After it the next add, `Refresh` or end of
                                   ///< a drag of the thumb shows them.
    std::int16_t ViewMode() const;
    void ViewMode(std::int16_t mode); ///< 0 newest at the top. The next add sets it anew.
    qrosterdata DefaultItem() const;  ///< What a default-made record is. Its `IconPos` indents: write 0.
    std::int32_t FindItem(std::string_view text, bool bSelected = false); ///< Always 0: rows are the host's.

    // One value for each row, in a temporary file.

    void FileBufCreate(std::int32_t lBufSize = 1000); ///< A new file in place of the old. Quiet without one.
    /// 0 outside the rows, those that are pending included, and without a file. Throws `FileError`.
    std::int32_t FileBufValue(std::int32_t Index) const;
    void FileBufValue(std::int32_t Index, std::int32_t value); ///< Outside the same: nothing.

    // The records that painting reuses.

    std::int32_t CacheSize() const; ///< 128, whatever is written.
    void CacheSize(std::int32_t size);
    /// Sets `ItemData` to 0 in the records that hold `Index` there, and with `fUpdate` repaints the rows that
    /// used them last. `Index` 0: in all records, and the whole list is repainted.
    void ClearItemData(std::int32_t Index = 0, bool fUpdate = true);

    // Columns. They are not persisted. Widths are pixels, 10 or more, as wide as three screens at most. None
    // of these repaints, save a drag by the user and `HeaderWidths`.

    /// 0 appends; 1 to `HeaderCount` replaces that column and keeps its font. Alignment is 0 left, 1 right,
    /// any other centred. Errors are ignored.
    void HeaderAdd(std::int16_t Index, std::string_view lText, std::int32_t lWidth = 80,
                   std::string_view lKey = {}, std::int16_t lAlignment = 0, OLE_COLOR fcolor = cWindowText,
                   std::int32_t vflag = 0);
    void HeaderClear();                                ///< No column is left, and rows are blank.
    qrosterheader HeaderGet(std::int32_t Index) const; ///< An empty record outside 1 to `HeaderCount`.
    void HeaderSet(std::int32_t Index, const qrosterheader& nValue); ///< Outside the same: nothing.
    std::int32_t HeaderCount() const;
    void HeaderCount(std::int32_t count); ///< New columns are empty and 0 wide. `SubscriptError` below 0.
    std::string HeaderWidths() const;     ///< "120-80-200"
    /// Takes widths of 10 or more and refreshes; a part that is none leaves its column.
    void HeaderWidths(std::string_view text);
    std::int32_t HeaderHeight() const;
    void HeaderHeight(std::int32_t pixels); ///< 0, the default: no header band. Shows with `Refresh`.
    std::int32_t HeaderFlag() const;
    void HeaderFlag(std::int32_t flags); ///< The font style bits of `vflag`, for the whole band.

    // Painting.

    void Refresh();                    ///< Brings rows that wait, lays out and repaints.
    void PaintAll();                   ///< Repaints the page as it was laid out last.
    void DrawItem(std::int32_t Index); ///< A row off the screen costs nothing.
    bool LockedPaint() const;
    void LockedPaint(bool on); ///< Set, rows are not painted. Default false. Turning it off does not repaint.

    // Selection.

    std::int32_t ListIndex() const;   ///< The current row, 0 for none.
    void ListIndex(std::int32_t row); ///< Brings it into view. Raises `Change` where it differs.
    std::int32_t MultiSelect() const;
    void MultiSelect(std::int32_t mode);     ///< 0 one row, 1 a range; others are ignored.
    std::int32_t StartSelected() const;      ///< The smaller end of the range, or the current row.
    std::int32_t EndSelected() const;        ///< The larger one, or the current row.
    void ClearSelected(bool fUpdate = true); ///< Repaints whatever `fUpdate` says.
    bool HotTrack() const;                   ///< Whether the pointer selects without a button. Default false.
    void HotTrack(bool on);
    bool KeySeek() const; ///< Whether other keys raise `KeySeek`. Default false.
    void KeySeek(bool on);
    bool MouseDownOnIcon() const;        ///< The last press was on the icon, with `ShowIcon`. For `Click`.
    Const_SortedMode SortedMode() const; ///< Never sorted.

    // Looks.

    std::int32_t yn() const;      ///< Whole rows on the page.
    std::int32_t CX_TEXT() const; ///< Width of the icon column, pixels. Default 20. No repaint.
    void CX_TEXT(std::int32_t pixels);
    std::int32_t ItemHeight() const; ///< Of a row, pixels, 1 or more. Default 18.
    void ItemHeight(std::int32_t pixels);
    std::int32_t GridlineWidth() const; ///< Pixels, 0 or more. Default 1.
    void GridlineWidth(std::int32_t pixels);
    OLE_COLOR GridlineColor() const;
    void GridlineColor(OLE_COLOR color); ///< Kept; this list draws its grid in the window text colour.
    std::int32_t HeadWidthEx() const;
    void HeadWidthEx(std::int32_t pixels); ///< Kept and repainted with, without effect here.
    OLE_COLOR HeadExBackColor() const;     ///< Kept, without effect here, as the next.
    void HeadExBackColor(OLE_COLOR color);
    OLE_COLOR HeadExBorderColor() const;
    void HeadExBorderColor(OLE_COLOR color);
    bool FixedHeight() const;
    void FixedHeight(bool on); ///< Kept and refreshed with, without effect here.
    bool ShowIcon() const;     ///< Whether rows have an icon: `IconID` from 0. Default false.
    void ShowIcon(bool on);
    std::int32_t IconCX() const; ///< Place of the icon in its column, pixels. Default 0. No repaint.
    void IconCX(std::int32_t pixels);
    std::int32_t IconCY() const; ///< From the row's top, the same.
    void IconCY(std::int32_t pixels);
    std::int32_t
    IconHandle(); ///< Reading it gives 0 and ends the drawing of icons until it is written again.
    void IconHandle(std::int32_t imageList); ///< Shows with the next paint.
    OLE_COLOR BackColor() const;             ///< Where no row is. Default `cWindowBackground`.
    void BackColor(OLE_COLOR color);
    OLE_COLOR SelectedColor() const; ///< Behind selected rows. Default `cHighlight`.
    void SelectedColor(OLE_COLOR color);
    OLE_COLOR IconBorderColor() const; ///< Of swatches. Default `cWindowFrame`.
    void IconBorderColor(OLE_COLOR color);
    const std::string& ClearText() const;
    void ClearText(std::string_view text); ///< What an empty list shows.
    host::FontPtr Font() const;            ///< The component's own object.
    void Font(const host::Font& font);
    void SetToSystemfont(bool fSetFontSize = true); ///< Its face, with the flag its size. No repaint.
    std::int32_t TextHeight() const;                ///< Pixels of the font's size.
    bool FontTransparent() const;                   ///< The component's. Default true.
    void FontTransparent(bool on);
    std::int16_t Appearance() const;          ///< The component's: 0 flat, the default, 1 with depth.
    void Appearance(std::int16_t appearance); ///< A refused value is ignored, as with the next.
    std::int32_t BorderStyle() const;         ///< The component's: 0 none, 1 a border, the default.
    void BorderStyle(std::int32_t style);

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
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace tvok
