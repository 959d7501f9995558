/// The base component that a control sees: its window, its looks, its surroundings and its children; and what
/// a component sees of a control.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "tvok/host/Font.h"
#include "tvok/host/Platform.h"

namespace tvok::host {

class PropertyBag;

/// What components and picture windows have in common. Sizes and places are twips unless said otherwise; the
/// screen object gives the twips of a pixel.
class Widget {
public:
    virtual ~Widget() = default;

    virtual Handle hWnd() const = 0; ///< The same for the whole life.
    /// The one persistent device context, valid for the whole life. Used outside and inside paint messages.
    virtual Handle hDC() const = 0;

    virtual float Left() const = 0; ///< Inside the container's client area.
    virtual float Top() const = 0;
    virtual float Width() const = 0; ///< Outer size, with borders and scroll bars.
    virtual float Height() const = 0;
    virtual void Width(float twips) = 0; ///< A real change leads to `Control::Resize` before this returns.
    virtual void Height(float twips) = 0;
    virtual void Size(float width, float height) = 0; ///< Both at once, with one `Resize`.
    virtual void Move(float left, float top) = 0;     ///< The size stays.
    virtual bool Visible() const = 0;                 ///< Its own state, whether its form is visible or not.
    virtual void Visible(bool show) = 0;
    virtual void ZOrder(std::int32_t position) = 0; ///< 0 front, 1 back.

    virtual OLE_COLOR BackColor() const = 0; ///< Also a system colour. A write repaints.
    virtual void BackColor(OLE_COLOR color) = 0;
    virtual OLE_COLOR ForeColor() const = 0;     ///< Default button text.
    virtual void ForeColor(OLE_COLOR color) = 0; ///< Also the text colour of `hDC`, until that is set anew.
    /// The component's own font object. It stays the same object; a write copies the given font's properties.
    virtual FontPtr Font() const = 0;
    virtual void Font(const host::Font& font) = 0;
    virtual bool FontTransparent() const = 0; ///< The background mode that text outside opaque calls gets.
    virtual void FontTransparent(bool transparent) = 0;
    virtual std::int16_t Appearance() const = 0; ///< 0 flat, 1 three-dimensional; others throw `Error`.
    virtual void Appearance(std::int16_t appearance) = 0;
    virtual std::int16_t BorderStyle() const = 0; ///< 0 none, 1 single; others throw `Error`.
    virtual void BorderStyle(std::int16_t style) = 0;
    virtual std::int16_t MousePointer() const = 0; ///< 0 default, 3 text, 9 horizontal size.
    virtual void MousePointer(std::int16_t pointer) = 0;

    virtual float TextWidth(std::string_view text) const = 0; ///< In twips, in the current font.
    virtual void SetFocus() = 0; ///< Raises the focus events at once, if it moves.
    virtual void Refresh() = 0;  ///< Repaints now.
    virtual void Cls() = 0;      ///< Fills the client area with `BackColor`.
};

/// A plain child window that a control owns and draws on.
class PictureWindow : public Widget {};

/// What the surroundings tell a control.
class Ambient {
public:
    virtual ~Ambient() = default;
    virtual bool UserMode() const = 0;           ///< False at design time in a form designer.
    virtual FontValue Font() const = 0;          ///< What a new control starts with.
    virtual std::string DisplayName() const = 0; ///< The control's name on its form.
};

class Component;

/// What a component sees of its control. Mouse points come in twips of the component's client area; arguments
/// by reference go to the control's own events, where a host may change them.
class Control {
public:
    virtual ~Control() = default;

    virtual void Initialize(Component& component) = 0; ///< Once, first. The component outlives `Terminate`.
    virtual void InitProperties() {}                   ///< At design time, for a new control.
    virtual void ReadProperties(PropertyBag&) {}       ///< Else: from saved settings or an empty bag.
    virtual void WriteProperties(PropertyBag&) {}      ///< The form is saved.
    virtual void Resize() {}    ///< After `ReadProperties`, and after each change of the size.
    virtual void Paint() {}     ///< A part is to be drawn on `hDC`, which is clipped to it.
    virtual void Terminate() {} ///< Once, last.

    virtual void GotFocus() {}   ///< The component's own window received the focus.
    virtual void LostFocus() {}  ///< The component's own window lost it.
    virtual void EnterFocus() {} ///< The focus came into the component or one of its children from elsewhere.
    virtual void ExitFocus() {}  ///< It left them.
    /// A virtual key code and the bits of the modifiers: 1 Shift, 2 Control, 4 Alt.
    virtual void KeyDown(std::int16_t& /*keyCode*/, std::int16_t& /*shift*/) {}
    /// A character that was typed.
    virtual void KeyPress(std::int16_t& /*keyAscii*/) {}
    virtual void KeyUp(std::int16_t& /*keyCode*/, std::int16_t& /*shift*/) {}
    /// Button 1 left, 2 right, 4 middle, and the bits of the modifiers.
    virtual void MouseDown(std::int16_t& /*button*/, std::int16_t& /*shift*/, float& /*x*/, float& /*y*/) {}
    virtual void MouseMove(std::int16_t& /*button*/, std::int16_t& /*shift*/, float& /*x*/, float& /*y*/) {}
    virtual void MouseUp(std::int16_t& /*button*/, std::int16_t& /*shift*/, float& /*x*/, float& /*y*/) {}
    virtual void Click() {}    ///< After a press and a release of the left button inside.
    virtual void DblClick() {} ///< In place of the second press.
};

/// The base component of one control. It lives from before `Control::Initialize` until after
/// `Control::Terminate`.
class Component : public Widget {
public:
    virtual const host::Ambient& Ambient() const = 0;

    /// A hidden child window of no size for the control to draw on. The owner may destroy it at any time, at
    /// the latest in `Terminate`. Throws `ObjectError` where this component has ended.
    virtual std::unique_ptr<PictureWindow> CreatePicture() = 0;

    /// Hosts `child` inside this component, in pixels of its client area. Runs the child's `Initialize` and
    /// then its `ReadProperties` from `settings`; without, from an empty bag, which gives every key's
    /// default, or at design time its `InitProperties`. The child control stays the caller's and has to
    /// outlive `RemoveChild`, which runs its `Terminate`; `Terminate` of this component's control is the last
    /// moment for that. Where the child throws while it comes up, it has been ended and is no child. Throws
    /// `ObjectError` where this component has ended.
    virtual Component& AddChild(Control& child, std::string_view name, const tvok_Rect& place,
                                PropertyBag* settings) = 0;
    virtual void RemoveChild(Control& child) = 0; ///< No child of this component: nothing.
};

} // namespace tvok::host
