// Painting, children and life cycle of `ucColorSelector`.
//
// A child's event may let messages run and come back here, and whoever runs in one may end the control. It is
// not up any more then, and the rest of what was going on is left out.
#include "tvok/controls/colorselector/ucColorSelector.h"

#include <utility>

#include "tvok/engine/caption.h"
#include "tvok/engine/dgi.h"
#include "tvok/host/MemoryBag.h"
#include "tvok/host/Services.h"
#include "tvok/records/numeric.h"

namespace tvok {

namespace {

constexpr const char* cButtons = "b|a|2|b|b|2|...|c|0"; // two drop-down arrows and "..."
constexpr const char* cGridKey = "a";
constexpr const char* cSystemColorsKey = "b";
constexpr const char* cDialogKey = "c";
constexpr std::int32_t cMargin = 3; // around the swatch
constexpr std::int32_t cStripGap = 2;
constexpr OLE_COLOR cNoColor = -1; // of a dialog that was cancelled

} // namespace

host::Component& ucColorSelector::Base() const {
    if (component_ == nullptr) throw ObjectError("ucColorSelector: the control is not on a form");
    return *component_;
}

// Colour.

OLE_COLOR ucColorSelector::SelectColor() const {
    return selectColor_;
}
void ucColorSelector::SelectColor(OLE_COLOR color) {
    ApplyColor(color);
}

void ucColorSelector::ApplyColor(OLE_COLOR color) {
    selectColor_ = color;
    description_ = "(" + xPopup1_.GetColorDesc(color) + ")";
    PaintSelector();
}

OLE_COLOR ucColorSelector::borderColor() const {
    return borderColor_;
}
void ucColorSelector::borderColor(OLE_COLOR color) {
    borderColor_ = color;
}

// Looks.

OLE_COLOR ucColorSelector::ForeColor() const {
    return foreColor_;
}
void ucColorSelector::ForeColor(OLE_COLOR color) {
    foreColor_ = color;
}

OLE_COLOR ucColorSelector::BackColor() const {
    return Base().BackColor();
}
void ucColorSelector::BackColor(OLE_COLOR color) {
    Base().BackColor(color);
    PaintSelector();
}

std::int32_t ucColorSelector::BorderStyle() const {
    return Base().BorderStyle();
}
void ucColorSelector::BorderStyle(std::int32_t style) {
    quietly([&] { Base().BorderStyle(ToInt16(style)); });
    PaintSelector();
}

host::FontPtr ucColorSelector::Font() const {
    return Base().Font();
}
void ucColorSelector::Font(const host::Font& font) {
    Base().Font(font);
    PaintSelector();
}

bool ucColorSelector::FontTransparent() const {
    return Base().FontTransparent();
}
void ucColorSelector::FontTransparent(bool on) {
    Base().FontTransparent(on);
    PaintSelector();
}

// Painting.

void ucColorSelector::PaintSelector() {
    const host::Handle hDC = Base().hDC();
    tvok_Rect client;
    host::platform().GetClientRect(Base().hWnd(), client);
    dgi::FillRectColor(hDC, client, Base().BackColor());
    const std::int32_t swatchEnd = client.bottom - cMargin; // to the right as well: it is a square
    dgi::DrawBoxRect(hDC, {cMargin, cMargin, swatchEnd, swatchEnd}, 1, borderColor_, selectColor_, true);
    const float perPixel = host::services().Screen().TwipsPerPixelX();
    const std::int32_t textEnd = dgi::TwipsToPixels(strip_->Left(), perPixel) - cStripGap;
    PaintDescription({swatchEnd + cMargin, client.Top, textEnd, client.bottom});
}

/// The text goes with the marks of "&" underlined as in a menu, so a plain colour reads "(H000000FF)" with a
/// line under its H. That stays: the text is the value's, and hosts that want it plain read `SelectColor`.
void ucColorSelector::PaintDescription(const tvok_Rect& area) {
    std::int32_t color = foreColor_; // as it stands, untranslated
    if (HasFocus()) {
        color = mtvok::DrawFocusBand(Base().hDC(), area);
    } else {
        Base().ForeColor(foreColor_);
    }
    mtvok::DrawCaption(Base().hDC(), area, description_, color, host::DT_VCENTER | host::DT_SINGLELINE);
}

bool ucColorSelector::HasFocus() const {
    return !popupOpen_ && (dgi::IsFocusWindow(Base().hWnd()) || dgi::IsFocusWindow(xbutton1_.hwnd()));
}

void ucColorSelector::PaintWhileUp() {
    if (IsUp()) PaintSelector();
}

void ucColorSelector::Paint() {
    if (!IsUp()) return;
    if (!Base().Ambient().UserMode()) return Base().Cls();
    PaintSelector();
}

void ucColorSelector::Resize() {
    if (!IsUp()) return;
    const host::Screen& screen = host::services().Screen();
    tvok_Rect client;
    host::platform().GetClientRect(Base().hWnd(), client);
    strip_->Height(screen.TwipsPerPixelY() * static_cast<float>(client.bottom)); // its width follows
    strip_->Move(screen.TwipsPerPixelX() * static_cast<float>(client.Right) - strip_->Width(), 0);
    PaintSelector();
}

// The focus. It also shows while the strip has it, which goes in and out without the enter and exit events.

void ucColorSelector::GotFocus() {
    PaintWhileUp();
}

void ucColorSelector::LostFocus() {
    PaintWhileUp();
}

void ucColorSelector::EnterFocus() {
    popupOpen_ = false;
    PaintWhileUp();
}

void ucColorSelector::ExitFocus() {
    PaintWhileUp();
}

// The popups.

/// On the press, with the button still down: the pointer can be dragged into the popup and let go there.
void ucColorSelector::xbutton1_MouseDown(const std::string& key) {
    xPopup1_.HotTrack(true); // also where the key opens nothing
    const bool grid = key == cGridKey;
    if (!grid && key != cSystemColorsKey) return;
    popupOpen_ = true;
    PaintSelector();
    if (grid)
        FillWithGrid();
    else
        FillWithSystemColors();
    if (!IsUp()) return;
    xPopup1_.ListIndex(0); // without effect: the popup takes no index below 1
    xPopup1_.Popup();
}

void ucColorSelector::FillWithGrid() {
    xPopup1_.SetColorPal(PAL24x10);
    xPopup1_.TmpData(selectColor_);
    xPopup1_.SetParentHwnd(Base().hWnd());
}

void ucColorSelector::FillWithSystemColors() {
    xPopup1_.TmpData(selectColor_);
    xPopup1_.SetParentHwnd(Base().hWnd());
    xPopup1_.SetColorPal(PAL_SYSCOLOR);
    if (IsUp()) xPopup1_.CalTextWidth();
}

/// What was accepted is applied already, by the last `Change`. A colour that a host wrote since then stays.
void ucColorSelector::xPopup1_Click(bool canceled) {
    quietly([&] { popupOpen_ = false; }, [&] { Base().SetFocus(); },
            [&] {
                if (canceled && IsUp()) ApplyColor(xPopup1_.TmpData().AsInteger());
            },
            [&] { PaintWhileUp(); });
}

// The dialog.

void ucColorSelector::xbutton1_Click(const std::string& key) {
    if (key != cDialogKey) return;
    OLE_COLOR picked = cNoColor;
    quietly(
        [&] {
            popupOpen_ = true;
            PaintSelector();
        },
        [&] { picked = host::services().ColorPicker().PickColor(Base().hWnd()); },
        [&] {
            // The description goes on to name the colour from before, while the swatch shows this one, until
            // a colour is written or comes from a popup. That stays.
            if (picked != cNoColor) selectColor_ = picked;
        },
        [&] { popupOpen_ = false; }, [&] { Base().SetFocus(); }, [&] { PaintWhileUp(); });
}

// Life cycle.

void ucColorSelector::Initialize(host::Component& component) {
    component_ = &component;
    selectColor_ = 0;
    borderColor_ = 0;
    foreColor_ = 0;
    description_.clear();
    popupOpen_ = false;
    component.BackColor(cWindowBackground);
    component.BorderStyle(1);
    component.ForeColor(cWindowText); // until the first paint without the focus, which writes `ForeColor`
    AddChildren();
}

/// The children load fixed settings, also at design time: the strip has its three buttons there, too. The
/// size follows with the first `Resize`. Only at run time they are listened to: a popup without hooks would
/// stay open.
void ucColorSelector::AddChildren() {
    host::MemoryBag settings;
    Base().AddChild(xPopup1_, "xPopup1", {}, &settings).Visible(false); // no placeholder, also in a designer
    settings.Put("ButtonSettingsStr", std::string(cButtons));
    strip_ = &Base().AddChild(xbutton1_, "xbutton1", {}, &settings);
    if (Base().Ambient().UserMode()) ConnectChildren();
}

void ucColorSelector::ConnectChildren() {
    xbutton1_.events.MouseDown = [this](const std::string& key) { xbutton1_MouseDown(key); };
    xbutton1_.events.Click = [this](const std::string& key) { xbutton1_Click(key); };
    xPopup1_.events.Change = [this](std::int32_t, qrosterdata& item) { ApplyColor(item.IconBackColor); };
    xPopup1_.events.Click = [this](std::int32_t, qrosterdata&, bool canceled) { xPopup1_Click(canceled); };
}

void ucColorSelector::Terminate() {
    host::Component* const base = std::exchange(component_, nullptr); // it may go before this object does
    strip_ = nullptr;
    if (base == nullptr) return;
    quietly([&] { base->RemoveChild(xbutton1_); }, [&] { base->RemoveChild(xPopup1_); });
    xbutton1_.events.MouseDown = nullptr; // the next start may be in a designer
    xbutton1_.events.Click = nullptr;
    xPopup1_.events.Change = nullptr;
    xPopup1_.events.Click = nullptr;
}

} // namespace tvok
