/// `pcols`: a bar of column headers over anything column-like of the host's. The user drags the divider
/// between two columns, which share their width then, so that the bar keeps its own. It holds no rows.
///
/// The bar never scrolls: `SetData` makes all columns narrower until they fit, and drops what does not fit at
/// 10 pixels each. So add columns when the control has its size, and call `Refresh` at the end.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "tvok/controls/columnbar/BarColumns.h"
#include "tvok/engine/ListState.h"
#include "tvok/host/Component.h"
#include "tvok/host/Hooks.h"
#include "tvok/host/PropertyBag.h"

namespace tvok {

class pcols : public host::Control {
public:
    /// Handlers may do anything to the control, also clear it, end it or throw.
    struct Events {
        Event<std::int32_t> Click; ///< For the shape of the interface; never raised.
        /// A left or right press on column xIndex, or 0 on the empty part of the bar; lButton is 1 for both.
        /// In a bar of two columns and more there is none within 3 pixels of a divider.
        Event<std::int32_t, std::int32_t> MouseDown;
    };
    Events events; ///< Assign a callable; `nullptr` drops it.

    pcols();
    ~pcols() override;

    // Columns. They are not persisted. None of these repaints, save `HeaderWidths`, and `SetData` where it
    // drops columns.

    /// `SetData` with a record of these values and no font.
    void Add(std::int32_t Index, std::string_view lText, std::int32_t lWidth = 80, std::string_view lKey = {},
             std::int16_t lAlignment = 0, OLE_COLOR fcolor = cWindowText, std::int32_t vflag = 0);
    /// `Index` 0 appends, 1 to `Count` replaces, -1 to -`Count` inserts before that column; any other stores
    /// nothing. Fits the columns into the bar in any case. The bar uses text, hWidth, fcolor and Alignment.
    void SetData(std::int32_t Index, const qrosterheader& nValue);
    qrosterheader GetData(std::int32_t Index) const; ///< A copy; an empty record outside 1 to `Count`.
    void Remove(std::int32_t Index); ///< The other widths stay. Outside 1 to `Count`: nothing.
    void Clear();                    ///< `Count` becomes 0.
    std::int32_t Count() const;      ///< Of columns.
    /// New columns are empty and 0 wide. Negative: the subscript error, after the count has changed; later
    /// writes are ignored until `Clear`, or where it is -1 until an append.
    void Count(std::int32_t columns);

    /// "120-80-200": the widths of columns 1 to `Count`.
    std::string HeaderWidths() const;
    /// Takes widths of 10 or more, without fitting them, and refreshes; a part that is none leaves its
    /// column. A blank text does nothing. Errors are ignored.
    void HeaderWidths(std::string_view text);

    // Looks.

    void
    Refresh(); ///< Repaints the whole bar now. Throws `OverflowError` where the widths' sum has no place.
    std::int32_t lFlag() const;
    void
    lFlag(std::int32_t flags); ///< The font style bits of `vflag`, for all captions. Shows with `Refresh`.
    OLE_COLOR BackColor() const;
    void BackColor(OLE_COLOR color); ///< Repaints in run mode.
    host::FontPtr Font() const;      ///< The component's own object. Writes do not repaint.
    void Font(const host::Font& font);
    void SetToSystemfont(bool fSetFontSize = true); ///< Its face, and with the flag its size.
    bool FontTransparent() const;                   ///< The component's. Default true.
    void FontTransparent(bool on);
    std::int16_t Appearance() const;
    void Appearance(std::int16_t appearance); ///< What the component refuses is ignored, as with the next.
    std::int32_t BorderStyle() const;
    void BorderStyle(std::int32_t style);
    std::int32_t hwnd() const; ///< The control's window.

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
    bool UserMode() const;
    void Recalculate();
    void PaintBar();
    void PaintCaption(const qrosterheader& column, const tvok_Rect& button);
    void AttachHook();
    void WMHOOK_RtMsg(std::int32_t message, std::int32_t lParam, bool& fCallNext);
    void Press(std::int32_t x, std::int32_t y);
    void MoveTo(std::int32_t x, std::int32_t y);

    host::Component* component_ = nullptr;
    ListState state_; ///< Serves the shared settings: besides window, context and `BackColor` without effect.
    BarColumns columns_;
    std::int32_t lFlag_ = 0;
    std::int32_t clientWidth_ = 0;
    std::int32_t clientHeight_ = 0;
    std::int32_t totalWidth_ = 0; ///< As of the last `Refresh`; nothing reads it.
    std::int32_t textHeight_ = 0; ///< As of the last `Refresh`.
    std::unique_ptr<host::WindowHook> WMHOOK_;
};

} // namespace tvok
