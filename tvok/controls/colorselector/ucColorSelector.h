/// `ucColorSelector`: a swatch of a colour, a description of it, and a strip of three buttons at the right
/// edge: an arrow for a grid of colours, an arrow for the list of system colours, and "..." for the system's
/// colour dialog.
///
/// The popups open on the press, so that one drag goes from the arrow into the colours. What is under the
/// pointer or the keys becomes `SelectColor` at once, as a preview; a popup that is cancelled puts the colour
/// back from before it opened. There are no events: a host reads `SelectColor` when it needs it. Nothing is
/// persisted. At design time the buttons do nothing.
#pragma once

#include <cstdint>
#include <string>

#include "tvok/controls/buttonstrip/xbutton.h"
#include "tvok/controls/popup/xPopup.h"
#include "tvok/host/Component.h"
#include "tvok/records/tvok_declare.h"

namespace tvok {

class ucColorSelector : public host::Control {
public:
    struct Events {};
    Events events; ///< None.

    // Colour. Writes that repaint do so at once, also at design time, and throw `ObjectError` without a form.

    OLE_COLOR SelectColor() const; ///< Default 0, black.
    /// Describes the colour and repaints. One from the dialog comes without: the description is still that of
    /// the colour before, until one is written or comes from a popup.
    void SelectColor(OLE_COLOR color);
    OLE_COLOR borderColor() const;     ///< Of the swatch's edge, default 0.
    void borderColor(OLE_COLOR color); ///< Shows with the next paint.

    // Looks.

    OLE_COLOR ForeColor() const;
    /// Of the description without the focus: a plain colour, default black. A system colour is not translated
    /// here and gives another one than it names. Shows with the next paint.
    void ForeColor(OLE_COLOR color);
    OLE_COLOR BackColor() const;
    void BackColor(OLE_COLOR color); ///< The component's. Default window background. Repaints.
    std::int32_t BorderStyle() const;
    /// The component's. Default 1. What it refuses is ignored. Repaints.
    void BorderStyle(std::int32_t style);
    host::FontPtr Font() const;        ///< Of the description: the component's own object.
    void Font(const host::Font& font); ///< Repaints.
    bool FontTransparent() const;
    void FontTransparent(bool on); ///< Repaints.

    // Life cycle and input, called by the component.

    void Initialize(host::Component& component) override;
    void Resize() override;
    void Paint() override;
    void Terminate() override;
    void GotFocus() override;
    void LostFocus() override;
    void EnterFocus() override;
    void ExitFocus() override;

private:
    host::Component& Base() const;
    bool IsUp() const { return strip_ != nullptr; }

    void ApplyColor(OLE_COLOR color);
    void PaintSelector();
    void PaintDescription(const tvok_Rect& area);
    void PaintWhileUp();
    bool HasFocus() const;

    // The children.
    void AddChildren();
    void ConnectChildren();
    void xbutton1_MouseDown(const std::string& key);
    void xbutton1_Click(const std::string& key);
    void xPopup1_Click(bool canceled);
    void FillWithGrid();
    void FillWithSystemColors();

    host::Component* component_ = nullptr;
    host::Component* strip_ = nullptr; ///< Of `xbutton1_`; there while the control is up.
    xbutton xbutton1_;
    xPopup xPopup1_;
    std::string description_;
    OLE_COLOR selectColor_ = 0;
    OLE_COLOR borderColor_ = 0;
    OLE_COLOR foreColor_ = 0;
    bool popupOpen_ = false; ///< A popup or the dialog is up: the focus does not show.
};

} // namespace tvok
