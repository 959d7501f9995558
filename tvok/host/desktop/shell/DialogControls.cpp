#include "tvok/host/desktop/shell/DialogControls.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "tvok/engine/dgi.h"
#include "tvok/host/Services.h"
#include "tvok/records/numeric.h"

namespace tvok::soft {

using namespace host;

namespace {

constexpr std::int32_t FieldCell = 3; ///< Pixels of the field that share a colour.
constexpr double KeyStep = 1.0 / 60;

std::int32_t WidthOf(const tvok_Rect& rect) {
    return rect.Right - rect.Left;
}
std::int32_t HeightOf(const tvok_Rect& rect) {
    return rect.bottom - rect.Top;
}

/// `place` of `size` pixels as a share from 0 to 1.
double Share(std::int32_t place, std::int32_t size) {
    return size < 2 ? 0 : std::clamp(static_cast<double>(place) / (size - 1), 0.0, 1.0);
}

std::int32_t PlaceOf(double share, std::int32_t size) {
    return static_cast<std::int32_t>(std::lround(share * std::max(size - 1, 0)));
}

void DrawFrame(Handle hDC, const tvok_Rect& rect, bool focused) {
    dgi::FrameRectColor(hDC, rect, focused ? SystemColor(COLOR_HIGHLIGHT) : SystemColor(COLOR_BTNSHADOW));
}

} // namespace

// DialogControl

host::Point DialogControl::Pixels(float x, float y) const {
    const Screen& screen = services().Screen();
    return {TruncateToInt32(static_cast<double>(x / screen.TwipsPerPixelX())),
            TruncateToInt32(static_cast<double>(y / screen.TwipsPerPixelY()))};
}

tvok_Rect DialogControl::Client() const {
    tvok_Rect client;
    platform().GetClientRect(component_->hWnd(), client);
    return client;
}

void DialogControl::Paint() {
    if (component_ != nullptr) Draw(Client());
}

void DialogControl::Repaint() const {
    if (component_ != nullptr) platform().InvalidateRect(component_->hWnd(), nullptr, false);
}

void DialogControl::SetFocused(bool focused) {
    focused_ = focused;
    Repaint();
}

void DialogControl::MouseDown(std::int16_t& button, std::int16_t&, float& x, float& y) {
    if (button != 1 || component_ == nullptr) return;
    pressed_ = true;
    last_ = Pixels(x, y);
    Point(last_);
}

void DialogControl::MouseMove(std::int16_t&, std::int16_t&, float& x, float& y) {
    if (!pressed_ || component_ == nullptr) return;
    last_ = Pixels(x, y);
    Point(last_);
}

void DialogControl::MouseUp(std::int16_t& button, std::int16_t&, float& x, float& y) {
    if (button != 1 || !pressed_ || component_ == nullptr) return;
    pressed_ = false;
    Release(Pixels(x, y));
}

// PushButton

void PushButton::Draw(const tvok_Rect& client) {
    tvok_Rect rect = client;
    platform().DrawFrameControl(hDC(), rect, DFC_BUTTON, DFCS_BUTTONPUSH | (under_ ? DFCS_PUSHED : 0));
    tvok_Rect text = client;
    if (under_) Platform::OffsetRect(text, 1, 1);
    const std::int32_t color = platform().SetTextColor(hDC(), dgi::TranslateColor(cButtonText));
    const std::int32_t mode = platform().SetBkMode(hDC(), TRANSPARENT_BK);
    platform().DrawTextA(hDC(), caption_.data(), static_cast<std::int32_t>(caption_.size()), text,
                         DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    platform().SetBkMode(hDC(), mode);
    platform().SetTextColor(hDC(), color);
    if (IsFocused()) platform().DrawFocusRect(hDC(), dgi::InflatedRect(client, -4));
}

void PushButton::Point(host::Point point) {
    const bool under = Platform::PtInRect(Client(), point);
    if (std::exchange(under_, under) != under) Repaint();
}

void PushButton::Release(host::Point point) {
    under_ = false;
    Repaint();
    if (Platform::PtInRect(Client(), point)) Click();
}

void PushButton::KeyDown(std::int16_t& keyCode, std::int16_t&) {
    if (keyCode == VK_SPACE || keyCode == VK_RETURN) Click();
}

// SwatchGrid

tvok_Rect SwatchGrid::CellOf(std::int32_t index) const {
    const tvok_Rect client = Client();
    const std::int32_t rows = (Count() + columns_ - 1) / columns_;
    const std::int32_t width = WidthOf(client) / columns_;
    const std::int32_t height = HeightOf(client) / rows;
    const std::int32_t left = index % columns_ * width;
    const std::int32_t top = index / columns_ * height;
    return {left, top, left + width, top + height};
}

void SwatchGrid::Draw(const tvok_Rect& client) {
    dgi::FillRectColor(hDC(), client, cButtonFace);
    for (std::int32_t index = 0; index < Count(); ++index) {
        const tvok_Rect cell = CellOf(index);
        const tvok_Rect swatch = dgi::InflatedRect(cell, -3);
        dgi::FillRectColor(hDC(), swatch, colors_[static_cast<std::size_t>(index)]);
        dgi::FrameRectColor(hDC(), swatch, SystemColor(COLOR_BTNSHADOW));
        if (index != current_) continue;
        dgi::FrameRectColor(hDC(), dgi::InflatedRect(cell, -1), cButtonText);
        if (IsFocused()) platform().DrawFocusRect(hDC(), cell);
    }
}

void SwatchGrid::Choose(std::int32_t index) {
    if (index < 0 || index >= Count()) return;
    current_ = index;
    Repaint();
    Pick(colors_[static_cast<std::size_t>(index)]);
}

void SwatchGrid::Point(host::Point point) {
    for (std::int32_t index = 0; index < Count(); ++index)
        if (Platform::PtInRect(CellOf(index), point)) return Choose(index);
}

void SwatchGrid::KeyDown(std::int16_t& keyCode, std::int16_t&) {
    switch (keyCode) {
    case VK_LEFT: return Choose(current_ - 1);
    case VK_RIGHT: return Choose(current_ + 1);
    case VK_UP: return Choose(current_ - columns_);
    case VK_DOWN: return Choose(current_ < 0 ? 0 : current_ + columns_);
    case VK_SPACE: return Choose(std::max(current_, 0));
    default: return;
    }
}

// HueField

void HueField::Show(double hue, double saturation) {
    if (hue == hue_ && saturation == saturation_) return;
    hue_ = hue;
    saturation_ = saturation;
    Repaint();
}

void HueField::Draw(const tvok_Rect& client) {
    for (std::int32_t y = 0; y < client.bottom; y += FieldCell)
        for (std::int32_t x = 0; x < client.Right; x += FieldCell) {
            const OLE_COLOR color = FromHsl({Share(x, client.Right), 1 - Share(y, client.bottom), 0.5});
            dgi::FillRectColor(hDC(), {x, y, x + FieldCell, y + FieldCell}, color);
        }
    DrawMark(client);
    DrawFrame(hDC(), client, IsFocused());
}

void HueField::DrawMark(const tvok_Rect& client) const {
    const std::int32_t x = PlaceOf(hue_, client.Right);
    const std::int32_t y = PlaceOf(1 - saturation_, client.bottom);
    constexpr std::int32_t black = 0;
    dgi::FillRectColor(hDC(), {x - 8, y - 1, x - 2, y + 1}, black);
    dgi::FillRectColor(hDC(), {x + 2, y - 1, x + 8, y + 1}, black);
    dgi::FillRectColor(hDC(), {x - 1, y - 8, x + 1, y - 2}, black);
    dgi::FillRectColor(hDC(), {x - 1, y + 2, x + 1, y + 8}, black);
}

void HueField::Point(host::Point point) {
    const tvok_Rect client = Client();
    Show(Share(point.x, client.Right), 1 - Share(point.y, client.bottom));
    Pick(hue_, saturation_);
}

void HueField::KeyDown(std::int16_t& keyCode, std::int16_t&) {
    double hue = hue_;
    double saturation = saturation_;
    switch (keyCode) {
    case VK_LEFT: hue -= KeyStep; break;
    case VK_RIGHT: hue += KeyStep; break;
    case VK_UP: saturation += KeyStep; break;
    case VK_DOWN: saturation -= KeyStep; break;
    default: return;
    }
    Show(std::clamp(hue, 0.0, 1.0), std::clamp(saturation, 0.0, 1.0));
    Pick(hue_, saturation_);
}

// LightnessBar

void LightnessBar::Show(HslColor color) {
    color_ = color;
    Repaint();
}

void LightnessBar::Draw(const tvok_Rect& client) {
    for (std::int32_t y = 0; y < client.bottom; ++y) {
        const OLE_COLOR color = FromHsl({color_.hue, color_.saturation, 1 - Share(y, client.bottom)});
        dgi::FillRectColor(hDC(), {0, y, client.Right, y + 1}, color);
    }
    const std::int32_t y = PlaceOf(1 - color_.lightness, client.bottom);
    const tvok_Rect mark{0, y - 2, client.Right, y + 3};
    dgi::FrameRectColor(hDC(), mark, 0x00FFFFFF);
    dgi::FrameRectColor(hDC(), dgi::InflatedRect(mark, 1), 0);
    DrawFrame(hDC(), client, IsFocused());
}

void LightnessBar::Point(host::Point point) {
    color_.lightness = 1 - Share(point.y, Client().bottom);
    Repaint();
    Pick(color_.lightness);
}

void LightnessBar::KeyDown(std::int16_t& keyCode, std::int16_t&) {
    if (keyCode != VK_UP && keyCode != VK_DOWN) return;
    const double step = keyCode == VK_UP ? KeyStep : -KeyStep;
    color_.lightness = std::clamp(color_.lightness + step, 0.0, 1.0);
    Repaint();
    Pick(color_.lightness);
}

// ColorSample

void ColorSample::Show(OLE_COLOR color) {
    color_ = color;
    Repaint();
}

void ColorSample::Draw(const tvok_Rect& client) {
    dgi::FillRectColor(hDC(), client, color_);
    dgi::FrameRectColor(hDC(), client, SystemColor(COLOR_BTNSHADOW));
}

} // namespace tvok::soft
