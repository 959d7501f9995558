#include "apps/gallery/CheckBox.h"

#include "apps/gallery/drawing.h"
#include "tvok/engine/dgi.h"

namespace gallery {

using namespace tvok::host;

namespace {

constexpr std::int32_t BoxSize = 13, Gap = 3, WordWidth = 26;

tvok::tvok_Rect BoxIn(const tvok::tvok_Rect& rect) {
    const std::int32_t top = rect.Top + (rect.bottom - rect.Top - BoxSize) / 2;
    return {rect.Left + Gap, top, rect.Left + Gap + BoxSize, top + BoxSize};
}

tvok::tvok_Rect WordIn(const tvok::tvok_Rect& rect) {
    const std::int32_t left = BoxIn(rect).Right + Gap;
    return {left, rect.Top, left + WordWidth, rect.bottom};
}

} // namespace

void CheckBox::Draw(Handle hDC, const tvok::tvok_Rect& rect, bool on) {
    tvok::dgi::FillRectColor(hDC, rect, tvok::cWindowBackground);
    tvok::tvok_Rect box = BoxIn(rect);
    platform().DrawFrameControl(hDC, box, DFC_BUTTON, DFCS_BUTTONCHECK | (on ? DFCS_CHECKED : 0));
    tvok::tvok_Rect word = WordIn(rect);
    word.Left += Gap;
    word.Top += 2; // where the texts of cells stand
    DrawLabel(hDC, word, on ? "yes" : "no", 0, tvok::cWindowText);
}

void CheckBox::Value(bool on) {
    value_ = on;
    Repaint();
}

void CheckBox::Toggle() {
    Value(!value_);
    events.Change();
}

void CheckBox::Initialize(Component& component) {
    component_ = &component;
    component.BorderStyle(0);
    component.BackColor(tvok::cWindowBackground);
}

void CheckBox::Paint() {
    if (component_ == nullptr) return;
    tvok::tvok_Rect client;
    platform().GetClientRect(component_->hWnd(), client);
    Draw(component_->hDC(), client, value_);
    if (tvok::dgi::IsFocusWindow(component_->hWnd())) {
        platform().SetTextColor(component_->hDC(), tvok::dgi::TranslateColor(tvok::cWindowText));
        platform().SetBkColor(component_->hDC(), tvok::dgi::TranslateColor(tvok::cWindowBackground));
        platform().DrawFocusRect(component_->hDC(), WordIn(client));
    }
}

void CheckBox::Repaint() const {
    if (component_ != nullptr) platform().InvalidateRect(component_->hWnd(), nullptr, false);
}

void CheckBox::KeyDown(std::int16_t& keyCode, std::int16_t& shift) {
    events.KeyDown(keyCode, shift);
    if (component_ != nullptr && keyCode == VK_SPACE) Toggle();
}

void CheckBox::MouseDown(std::int16_t& button, std::int16_t&, float&, float&) {
    if (button == 1) Toggle();
}

} // namespace gallery
