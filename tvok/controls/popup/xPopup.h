/// `xPopup`: a list, a palette of colours or a list of numbers that drops out of its form.
///
/// On the form it is a small placeholder that shows nothing at run time. What the user sees is a window of
/// its own that floats above everything while it is open. `Popup` returns as soon as that window is up; its
/// end comes as one `Click`. Filled by `AddItem` or `ItemsStr`, by `SetColorPal` or `SetNS`, or by `Count`,
/// after which the host gives each item at paint time through `EnumDATA`. Indexes are 1-based display
/// positions, and 0 means none. All lengths are pixels. Writes of properties neither repaint nor resize: grid
/// and sizes are laid out anew by the next `Popup`. In an open popup, looks show wherever it is repainted,
/// and `HotTrack` counts at once.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "tvok/controls/popup/ShownGrid.h"
#include "tvok/engine/mtvok.h"
#include "tvok/host/Component.h"
#include "tvok/host/Hooks.h"
#include "tvok/host/PropertyBag.h"

namespace tvok {

/// The place of an object in a window's client area, in twips. A member that the object does not have stays
/// empty.
struct PlacedObject {
    std::optional<float> Left{};
    std::optional<float> Top{};
    std::optional<float> width{};
    std::optional<float> Height{};
};

class xPopup : public host::Control {
public:
    /// Handlers may do anything to the control, also clear it, close it, open it again or end it.
    struct Events {
        Event<std::int32_t, qrosterdata&> Change; ///< The current item moved; raised before the repaint.
        /// Once for each closing, when the window is gone: index, item and whether the user cancelled. With
        /// no current item the index is 0. What a handler throws is ignored.
        Event<std::int32_t, qrosterdata&, bool> Click;
        /// The item with this index is about to be painted: fill in all of the record. Its flags too, since
        /// the one record serves every item. A changed index is the one that is painted.
        Event<std::int32_t&, qrosterdata&> EnumDATA;
        ExDrawEvent ExDraw; ///< The host's share of the painting, as the item's `vflag` asks for it.
    };
    Events events; ///< Assign a callable; `nullptr` drops it.

    xPopup();
    ~xPopup() override;

    // Opening.

    /// Opens at the parent rectangle: below it, or above where the screen ends; right edges aligned, or left
    /// ones with `AlignLeft`. With `AlignCursor` at the pointer instead. Lowers `yn` to the rows that there
    /// are. Nothing happens while there is no item, or `xn` or `yn` is below 1. Lets waiting messages run.
    /// Errors are ignored step by step.
    void Popup(bool AlignCursor = false, bool AlignLeft = false);
    void SetParentRect(const tvok_Rect& pRct); ///< In screen coordinates.
    void SetParentHwnd(std::int32_t tmpHwnd);  ///< The window's rectangle. 0: ignored.
    /// The place of an object in the client area of the window `pHwnd`. What is missing counts as 0 for its
    /// left top, and leaves the parent rectangle's edge as it was for its extent.
    void SetParenpObject(const PlacedObject& pObj, std::int32_t pHwnd);
    void SetParenpObject(const host::Widget& pObj, std::int32_t pHwnd);
    /// Fits the window to `yn` rows, and to its columns where there are several. Quiet.
    void ResetSize();

    // Items.

    void AddItem(const qrosterdata& x); ///< Appends. Draws nothing, sorts nothing.
    void Clear();                       ///< Also ends the virtual mode. Grid and looks stay.
    std::int32_t Count() const;         ///< Of stored or virtual items.
    /// Starts the virtual mode with this number of items; below 0: ignored. Costs 4 bytes per item. A
    /// `ListIndex` beyond it is lowered without an event.
    void Count(std::int32_t items);
    /// Copies the item out; 0 gives the blank item. Always true, or `SubscriptError` beyond the arrays. In
    /// virtual mode what `EnumDATA` filled in last.
    bool GetData(std::int32_t Index, qrosterdata& ItemValue) const;
    qrosterdata DefaultItem() const; ///< What a default-made record is.
    /// The list as text; empty at design time, where writes are ignored.
    std::string ItemsStr() const;
    void ItemsStr(std::string_view text);
    std::int32_t ListIndex() const; ///< The current item, 0 for none.
    /// Out of range, also 0: ignored. Raises `Change` where it differs. Errors are ignored.
    void ListIndex(std::int32_t index);
    /// In virtual mode raises `EnumDATA`, which may change the index. On a closed popup an item that its host
    /// draws is the `ObjectError`.
    void DrawItem(std::int32_t& Index);
    void DrawItem(const std::int32_t& Index) {
        std::int32_t index = Index;
        DrawItem(index);
    }
    /// Measures the stored texts for the width of a popup of one column, with the font of the control's own
    /// base component, not with `Font`. `SubscriptError` where `Count` is beyond the stored items,
    /// `OverflowError` where 32 bits do not hold the width; the width measured before stays.
    void CalTextWidth();
    std::int32_t SortedMode() const; ///< As written last. Default 0.
    /// Sorts at once: 1 and 2 by text, case matters; 3 and 4 by `ItemData`, where equal ones stand by text in
    /// the opposite direction. 0 leaves the order as it is. Items added later are not inserted in order.
    void SortedMode(std::int32_t mode);

    // Prepared contents. Each clears the popup and sets its looks. Errors are ignored.

    void SetColorPal(std::int32_t Index); ///< A `PAL_SIZEXY`. The colour is the item's `IconBackColor`.
    /// The whole numbers from `i1` to `i2`, each in its item's `text` and `ItemData`. None where a bound is
    /// beyond 16 bits.
    void SetNS(std::int32_t i1, std::int32_t i2);
    /// The name of a system colour in the user's language, empty where it has none; else "&H0000FFFF".
    std::string GetColorDesc(std::int32_t iColor) const;

    // Grid. Values out of the range in the comment are ignored.

    std::int32_t xn() const;                 ///< Columns. Default 1.
    void xn(std::int32_t columns);           ///< 1 or more.
    std::int32_t yn() const;                 ///< Rows of an opened popup. Default 5.
    void yn(std::int32_t rows);              ///< 1 or more.
    std::int32_t ItemHeight() const;         ///< Default 18.
    void ItemHeight(std::int32_t pixels);    ///< 1 or more.
    std::int32_t ItemWidth() const;          ///< Of a column. Default 100.
    void ItemWidth(std::int32_t pixels);     ///< 1 or more.
    std::int32_t GridlineWidth() const;      ///< Default 1.
    void GridlineWidth(std::int32_t pixels); ///< 0 or more.
    OLE_COLOR GridlineColor() const;         ///< Default `c3DLight`.
    void GridlineColor(OLE_COLOR color);
    bool GridlineOnBorder() const; ///< Lines also along the outer edges. Default false.
    void GridlineOnBorder(bool on);
    bool FixedWidthForLastXn() const;
    void FixedWidthForLastXn(bool on); ///< False after each load.
    std::string ColWidthSettingStr() const;
    void ColWidthSettingStr(std::string_view text); ///< "0,100,50": the first value has no effect.
    std::string TabStopSettingStr() const;
    void TabStopSettingStr(std::string_view text); ///< "40,60": two stops, three tab columns.

    // Looks.

    std::int32_t CX_TEXT() const;      ///< Width of the icon area left of the text. Default 20.
    void CX_TEXT(std::int32_t pixels); ///< 0 or more.
    std::int32_t IconPos() const;      ///< A packed `tvok_IconPos`. Default `cDefaultIconPos`.
    void IconPos(std::int32_t packed);
    std::int32_t IconHandle() const; ///< Image list of the items' icons. Default 0.
    void IconHandle(std::int32_t imageList);
    OLE_COLOR BackColor() const; ///< Of cells without an item. Default `cWindowBackground`.
    void BackColor(OLE_COLOR color);
    OLE_COLOR SelectedColor() const; ///< Behind the current item. Default `cHighlight`.
    void SelectedColor(OLE_COLOR color);
    OLE_COLOR IconBorderColor() const; ///< Of icon boxes. Default `cWindowFrame`.
    void IconBorderColor(OLE_COLOR color);
    std::int32_t HeadWidthEx() const; ///< Of the band left of the first column. Default 0: none.
    void HeadWidthEx(std::int32_t pixels);
    OLE_COLOR HeadExBackColor() const; ///< Of that band. Default `c3DLight`.
    void HeadExBackColor(OLE_COLOR color);
    OLE_COLOR HeadExBorderColor() const; ///< Its right edge. Default `cButtonFace`.
    void HeadExBorderColor(OLE_COLOR color);
    bool HotTrack() const;
    void HotTrack(bool on);     ///< Mouse moves select without a button.
    host::FontPtr Font() const; ///< Of the popup window: its own object.
    void Font(const host::Font& font);
    void SetToSystemfont(bool fSetFontSize = true); ///< Its face, and with the flag its size.
    std::int32_t TextHeight() const;                ///< Of `Font`.
    bool FontTransparent() const;                   ///< Of the popup window. Default true.
    void FontTransparent(bool on);

    // The host's scratch values, for what a cancelled popup has to put back.

    const std::string& TmpKey() const;
    void TmpKey(std::string_view key);
    const Variant& TmpData() const;
    void TmpData(const Variant& value);

    std::int32_t hwnd() const; ///< The placeholder's window, not the floating one.

    // Life cycle, called by the component.

    void Initialize(host::Component& component) override;
    void InitProperties() override;
    void ReadProperties(host::PropertyBag& bag) override;
    void WriteProperties(host::PropertyBag& bag) override;
    void Resize() override;
    void Paint() override;
    void Terminate() override;

private:
    host::Component& Base() const;
    host::PictureWindow& Picture() const;
    bool UserMode() const;

    // Items (xPopup.cpp).
    void SetSelectedBit(std::int32_t index, bool on);
    void SortNow(std::int32_t mode);

    // Palettes (xPopup_palettes.cpp).
    void SetColorGrid(std::int32_t palette);
    void SetSystemColors();
    void AddSystemColors();

    // Painting (xPopup_paint.cpp).
    std::shared_ptr<cExdrawCallback> CallbackNow() const;
    void PaintPopupRect(const tvok_Rect& rect);
    void WndHook_Change(std::int32_t value);

    // Opening and closing (xPopup_open.cpp).
    void NoteSurroundings();
    void AttachHooks();
    void StartScrolling();
    std::int32_t WantedWidth() const;
    void FitWindow();
    void NoteGrid();
    void PlaceWindow(const tvok_Rect& anchor);
    void ShowWindow();
    host::Point ComputePopupPosition(const tvok_Rect& anchor, std::int32_t width, std::int32_t height,
                                     bool alignLeft) const;
    bool IsOpen() const { return picPopup_ && picPopup_->Visible(); }
    template<class Question>
    auto OnShownGrid(Question question) {
        return IsOpen() ? shown_.Ask(state_, question) : question(state_);
    }
    void HidePopUp(bool accept);

    // Hooks (xPopup_input.cpp).
    void CreateHooks();
    void HookFocus_RtMsg(std::int32_t message);
    void HookKeyboard_RtMsg(std::int32_t key, std::int32_t word, bool& fCallNext);
    void HandlePopupKey(std::int32_t key);
    void HookMouse_RtMsg(std::int32_t message, host::Point point);
    void ClassifyPress(host::Point point);
    void WndHook_RtMsg(std::int32_t message, std::int32_t wParam, std::int32_t lParam, bool& fMsgProcess);
    void PressInWindow(std::int32_t wParam, std::int32_t lParam, bool& fMsgProcess);
    void PassPressToScrollBar(std::int32_t lParam);
    void SelectUnderMouse(std::int32_t wParam, std::int32_t lParam);

    host::Component* component_ = nullptr;
    std::unique_ptr<host::PictureWindow>
        picPopup_; ///< The floating window, from `Initialize` to `Terminate`.
    ListState state_;
    ItemSlots items_;
    IndexArray itemIndex_{0};
    CellTable cells_;
    popup::ShownGrid shown_;
    std::shared_ptr<host::MessageHook> WndHook_; ///< The four hooks: run mode only.
    std::shared_ptr<host::WindowHook> HookFocus_;
    std::shared_ptr<host::WindowHook> HookKeyboard_;
    std::shared_ptr<host::WindowHook> HookMouse_;
    std::shared_ptr<cExdrawCallback> cbExDraw_; ///< While it is open.
    bool virtualMode_ = false;
    tvok_Rect parentRect_;       ///< Screen rectangle that the popup hangs from.
    tvok_Rect clientScreenRect_; ///< Client area on the screen at the opening.
    std::int32_t textWidth_ = 0; ///< By `CalTextWidth`.
    std::int32_t popupHwnd_ = 0;
    std::int32_t popupWidth_ = 0;
    std::int32_t popupHeight_ = 0;
    bool alignLeft_ = false;
    bool entered_ = false;          ///< The pointer has been inside since the opening.
    bool mouseupHidepopup_ = false; ///< The next release of the button closes with acceptance.
    bool hideOnDown_ = false;       ///< The press that is on its way was outside and closes.
    bool msDownNC_ = false;         ///< The press was on the scroll bar: moves do not select.
};

} // namespace tvok
