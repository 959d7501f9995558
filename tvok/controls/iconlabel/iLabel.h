/// `iLabel`: a label that can take the focus. A frame or a plain background, an icon with a box of its own,
/// and a caption between two margins, of one line or wrapped. With the focus the caption stands on a
/// highlighted band.
///
/// Every write repaints the whole label at once unless its comment says otherwise. Nothing is persisted: the
/// values are those of a new label and what the host writes at run time.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tvok/host/Component.h"
#include "tvok/records/Event.h"
#include "tvok/records/tvok_declare.h"

namespace tvok {

class iLabel : public host::Control {
public:
    /// Arguments as the component gives them: mouse points are twips. Handlers may do anything to the
    /// control, also end it or throw.
    struct Events {
        Event<> Click; ///< For the shape of the interface; never raised. Use `MouseUp`.
        Event<std::int16_t&, std::int16_t&> KeyDown;                   ///< KeyCode, Shift.
        Event<std::int16_t&, std::int16_t&, float&, float&> MouseDown; ///< Button, Shift, x, Y.
        Event<std::int16_t&, std::int16_t&, float&, float&> MouseUp;   ///< The same.
        Event<std::int16_t&, std::int16_t&> KeyUp;                     ///< KeyCode, Shift.
    };
    Events events; ///< Assign a callable; `nullptr` drops it.

    void
    Refresh(); ///< Paints the label now. Throws `OverflowError` where a rectangle has no place in 32 bits.

    // Frame and background.

    std::int32_t GridlineWidth() const;
    void GridlineWidth(std::int32_t pixels); ///< Of the frame. 0, the default: none. Below 0: ignored.
    OLE_COLOR GridlineColor() const;
    void GridlineColor(OLE_COLOR color); ///< Of the frame. Default window frame.
    OLE_COLOR BackColor() const;
    void BackColor(OLE_COLOR color); ///< The component's. Default window background.
    std::int32_t BorderStyle() const;
    void BorderStyle(std::int32_t style); ///< The component's. Default 1. What it refuses is ignored.
    std::int32_t hwnd() const;            ///< The control's window.

    // Caption.

    const std::string& Caption() const; ///< Default empty.
    void Caption(std::string_view text);
    OLE_COLOR ForeColor() const;
    /// A plain colour, default black. A system colour is not translated here and gives another one than it
    /// names.
    void ForeColor(OLE_COLOR color);
    std::int32_t TextLeft() const;
    void TextLeft(std::int32_t pixels); ///< Left edge of the caption's area, a margin of `GridlineWidth` + 1
                                        ///< included. Default 22.
    std::int32_t TextRight() const;
    /// Right edge of that area, with the same margin. Default: the first client width; it does not follow the
    /// size. Only stored.
    void TextRight(std::int32_t pixels);
    bool MultiLine() const;
    void MultiLine(bool on); ///< Wraps the caption from the top. Default false: one line in the middle.
    bool NOPREFIX() const;
    void NOPREFIX(bool on); ///< Default true: "&" shows. False: it underlines what follows. Only stored.
    bool HideFocus() const;
    void HideFocus(bool on);    ///< No band with the focus. Default false.
    host::FontPtr Font() const; ///< The component's own object.
    void Font(const host::Font& font);
    bool FontTransparent() const;
    void FontTransparent(bool on); ///< Whether the caption has no background of its own. Does not repaint.

    // Icon. What is only stored shows with the next repaint.

    std::int32_t IconHandle() const;
    void IconHandle(std::int32_t imageList); ///< Only stored.
    std::int32_t IconID() const;
    void IconID(std::int32_t number); ///< Of the image, from 1. Below 1, the default: none.
    std::int32_t IconLeft() const;
    void IconLeft(std::int32_t pixels); ///< Place of the image. Default 3, as the next.
    std::int32_t IconTop() const;
    void IconTop(std::int32_t pixels);
    std::int32_t IconWidth() const;
    void IconWidth(std::int32_t pixels); ///< Right edge of the icon's box, from 0. Default 16. Only stored.
    std::int32_t IconHeight() const;
    void IconHeight(std::int32_t pixels); ///< Its lower edge. Default 16. Only stored.
    bool IconBorder() const;
    void IconBorder(bool on); ///< Draws the box. Default false. Only stored, as the next three.
    OLE_COLOR IconBorderColor() const;
    void IconBorderColor(OLE_COLOR color); ///< Default black.
    OLE_COLOR IconBackColor() const;
    void IconBackColor(OLE_COLOR color); ///< Of the box. Default black.
    bool IconTransParent() const;
    void IconTransParent(bool on); ///< Default true: the box is not filled.

    // Life cycle and input, called by the component.

    void Initialize(host::Component& component) override;
    void Resize() override;
    void Paint() override;
    void Terminate() override;
    void GotFocus() override;
    void LostFocus() override;
    void KeyDown(std::int16_t& keyCode, std::int16_t& shift) override;
    void KeyUp(std::int16_t& keyCode, std::int16_t& shift) override;
    void MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;

private:
    host::Component& Base() const;
    void RefreshWhileUp();
    void PaintBackground(const tvok_Rect& client);
    void PaintIcon(const tvok_Rect& client);
    tvok_Rect FocusArea(const tvok_Rect& client) const;
    void PaintCaption(const tvok_Rect& area);

    host::Component* component_ = nullptr;
    std::int32_t gridlineWidth_ = 0;
    OLE_COLOR gridlineColor_ = cWindowFrame;
    std::string caption_;
    OLE_COLOR foreColor_ = 0;
    std::int32_t iconHandle_ = 0;
    std::int32_t iconID_ = 0;
    std::int32_t iconLeft_ = 3;
    std::int32_t iconTop_ = 3;
    std::int32_t iconWidth_ = 16;
    std::int32_t iconHeight_ = 16;
    bool iconBorder_ = false;
    OLE_COLOR iconBorderColor_ = 0;
    OLE_COLOR iconBackColor_ = 0;
    bool iconTransparent_ = true;
    std::int32_t textLeft_ = 22;
    std::int32_t textRight_ = 0;
    bool multiLine_ = false;
    bool hideFocus_ = false;
    bool noPrefix_ = true;
};

} // namespace tvok
