// Painting, life cycle and events of `iLabel`.
#include "tvok/controls/iconlabel/iLabel.h"

#include "tvok/engine/caption.h"
#include "tvok/engine/dgi.h"
#include "tvok/records/numeric.h"

namespace tvok {

host::Component& iLabel::Base() const {
    if (component_ == nullptr) throw ObjectError("iLabel: the control is not on a form");
    return *component_;
}

// Painting.

void iLabel::Refresh() {
    tvok_Rect client;
    host::platform().GetClientRect(Base().hWnd(), client);
    PaintBackground(client);
    PaintIcon(client);
    PaintCaption(FocusArea(client));
}

void iLabel::PaintBackground(const tvok_Rect& client) {
    const OLE_COLOR back = Base().BackColor();
    if (gridlineWidth_ < 1) {
        dgi::FillRectColor(Base().hDC(), client, back);
    } else {
        dgi::DrawBoxRect(Base().hDC(), client, gridlineWidth_, gridlineColor_, back, true);
    }
}

void iLabel::PaintIcon(const tvok_Rect& client) {
    const host::Handle hDC = Base().hDC();
    if (iconBorder_) {
        // The box begins left above the image, but its right and lower edges are the icon's width and height
        // alone, without its place, so the image reaches past them. Hosts set the four numbers by what they
        // see; it stays.
        const tvok_Rect box{ToInt32(std::int64_t{iconLeft_} - 1), ToInt32(std::int64_t{iconTop_} - 1),
                            ToInt32(std::int64_t{iconWidth_} + client.Top),
                            ToInt32(std::int64_t{iconHeight_} + client.Top)};
        dgi::DrawBoxRect(hDC, box, 1, iconBorderColor_, iconBackColor_, !iconTransparent_);
    }
    if (iconID_ > 0)
        host::platform().ImageList_Draw(iconHandle_, iconID_ - 1, hDC, iconLeft_, iconTop_,
                                        host::ILD_TRANSPARENT);
}

/// The area of the caption, a pixel wider on the left and on the right.
tvok_Rect iLabel::FocusArea(const tvok_Rect& client) const {
    const std::int64_t margin = std::int64_t{gridlineWidth_} + 1;
    return {ToInt32(textLeft_ + margin - 1), ToInt32(client.Top + margin), ToInt32(textRight_ - margin + 1),
            ToInt32(client.bottom - margin)};
}

void iLabel::PaintCaption(const tvok_Rect& area) {
    const bool focused = dgi::IsFocusWindow(Base().hWnd()) && !hideFocus_;
    // The label's own colour as it stands, untranslated.
    const std::int32_t color = focused ? mtvok::DrawFocusBand(Base().hDC(), area) : foreColor_;
    const std::int32_t lines = multiLine_ ? host::DT_WORDBREAK : host::DT_VCENTER | host::DT_SINGLELINE;
    mtvok::DrawCaption(Base().hDC(), area, caption_, color, lines | (noPrefix_ ? host::DT_NOPREFIX : 0));
}

// Life cycle.

void iLabel::Initialize(host::Component& component) {
    component_ = &component;
    component.BackColor(cWindowBackground);
    component.BorderStyle(1);
    component.ForeColor(cWindowText); // of the component alone: `ForeColor` is the caption's own
    tvok_Rect client;
    host::platform().GetClientRect(component.hWnd(), client);
    textRight_ = client.Right;
}

void iLabel::Terminate() {
    component_ = nullptr; // it may go before this object does
}

void iLabel::RefreshWhileUp() {
    if (component_ != nullptr) Refresh();
}

void iLabel::Resize() {
    RefreshWhileUp();
}

void iLabel::Paint() {
    RefreshWhileUp();
}

// Input.

void iLabel::GotFocus() {
    RefreshWhileUp();
}

void iLabel::LostFocus() {
    RefreshWhileUp();
}

void iLabel::KeyDown(std::int16_t& keyCode, std::int16_t& shift) {
    events.KeyDown(keyCode, shift);
}

void iLabel::KeyUp(std::int16_t& keyCode, std::int16_t& shift) {
    events.KeyUp(keyCode, shift);
}

void iLabel::MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    events.MouseDown(button, shift, x, y);
}

void iLabel::MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    events.MouseUp(button, shift, x, y);
}

} // namespace tvok
