/// `xbutton`: a strip of small square buttons in one row, described by one setting text.
///
/// There are no child windows. Every button is as wide as the control is high, and the control makes itself
/// as wide as its buttons: a host sets the height and the text, and reads the width.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "tvok/controls/buttonstrip/ButtonRow.h"
#include "tvok/host/Component.h"
#include "tvok/host/Hooks.h"
#include "tvok/host/PropertyBag.h"
#include "tvok/records/Event.h"

namespace tvok {

class xbutton : public host::Control {
public:
    /// Handlers may do anything to the control, also set its text, replace themselves, remove it or throw.
    struct Events {
        /// The left button went down on a button, which is drawn down by now. Its key. The mouse is still
        /// down, so a popup that opens here can be dragged into.
        Event<const std::string&> MouseDown;
        /// The left button went down and up inside the control. The key of the button that was pressed last,
        /// also where the release was over another one, or press and release over none; empty where none was
        /// pressed yet.
        Event<const std::string&> Click;
        /// KeyCode and Shift as they come. The control handles no key itself.
        Event<std::int16_t&, std::int16_t&> KeyDown;
    };
    Events events; ///< Assign a callable; `nullptr` drops it.

    xbutton();
    ~xbutton() override;

    // Buttons.

    /// Three fields between "|" for each button: caption or number, key, kind. Kinds: 0 a push button with
    /// the caption; 1 one with the image of that number, from 0; 2 the symbol of that number, 0 drop-down
    /// arrow, 1 right arrow, 2 close cross.  Sets the control's size: its height in
    /// whole pixels, and the width of all buttons. Repaints, also at design time, and gives the width in
    /// pixels. A button that is held stays held. Errors are ignored.
    std::int32_t SetButtons(std::string_view vNewValue);
    const std::string& ButtonSettingsStr() const; ///< The last setting text.
    void ButtonSettingsStr(std::string_view text);

    // Looks.

    std::int32_t IconHandle() const; ///< Image list of kind 1, default 0. This and the size: no repaint.
    void IconHandle(std::int32_t imageList);
    std::int32_t IconWidth() const; ///< Pixels, for centring; default 16, as the height.
    void IconWidth(std::int32_t pixels);
    std::int32_t IconHeight() const;
    void IconHeight(std::int32_t pixels);
    OLE_COLOR ForeColor() const; ///< Of captions. Default button text. Repaints, as the next two.
    void ForeColor(OLE_COLOR color);
    host::FontPtr Font() const; ///< The component's own object.
    void Font(const host::Font& font);
    bool FontTransparent() const;
    void FontTransparent(bool on);
    void SetToSystemfont(bool fSetFontSize = true); ///< Shows with the next paint.

    host::Handle hwnd() const; ///< The control's window.

    // Life cycle and input, called by the component.

    void Initialize(host::Component& component) override;
    void InitProperties() override;
    void ReadProperties(host::PropertyBag& bag) override;
    void WriteProperties(host::PropertyBag& bag) override;
    void Resize() override;
    void Paint() override;
    void Terminate() override;
    void KeyDown(std::int16_t& keyCode, std::int16_t& shift) override;
    void MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void MouseMove(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void Click() override;

private:
    host::Component& Base() const;
    void PaintInRunMode();
    std::int32_t ButtonSize() const;
    void FitWidth(std::int32_t width, std::int32_t height);
    void DrawButton(std::int32_t index, std::int32_t state);
    void DrawFace(const StripButton& button, bool down);
    void DrawContent(const StripButton& button, bool down);

    // Input (xbutton_input.cpp).
    std::int32_t ButtonAt(float x, float y) const;
    void ReleaseButtons();
    void AttachHook();

    host::Component* component_ = nullptr;
    std::shared_ptr<host::WindowHook> WSHOOK_; ///< Run mode only.
    ButtonRow row_;
    std::string settings_;
    std::string lastKey_; ///< Of the button that was pressed last; nothing clears it.
    std::int32_t iconHandle_ = 0;
    std::int32_t iconWidth_ = 16;
    std::int32_t iconHeight_ = 16;
    bool fitting_ = false; ///< The control is setting its own size.
};

} // namespace tvok
