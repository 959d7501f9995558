// Properties of `iLabel`: those that repaint and those that only store.
#include "tvok/controls/iconlabel/iLabel.h"

#include "tvok/records/numeric.h"

namespace tvok {

// Frame and background.

std::int32_t iLabel::GridlineWidth() const {
    return gridlineWidth_;
}
void iLabel::GridlineWidth(std::int32_t pixels) {
    if (pixels < 0) return;
    gridlineWidth_ = pixels;
    Refresh();
}

OLE_COLOR iLabel::BackColor() const {
    return Base().BackColor();
}
void iLabel::BackColor(OLE_COLOR color) {
    Base().BackColor(color);
    Refresh();
}

std::int32_t iLabel::BorderStyle() const {
    return Base().BorderStyle();
}
void iLabel::BorderStyle(std::int32_t style) {
    quietly([&] { Base().BorderStyle(ToInt16(style)); }, [&] { Refresh(); });
}

std::int32_t iLabel::hwnd() const {
    return Base().hWnd();
}

host::FontPtr iLabel::Font() const {
    return Base().Font();
}
void iLabel::Font(const host::Font& font) {
    Base().Font(font);
    Refresh();
}

bool iLabel::FontTransparent() const {
    return Base().FontTransparent();
}
void iLabel::FontTransparent(bool on) {
    Base().FontTransparent(on);
}

const std::string& iLabel::Caption() const {
    return caption_;
}
void iLabel::Caption(std::string_view text) {
    caption_ = text;
    Refresh();
}

// Values of the label's own.

OLE_COLOR iLabel::GridlineColor() const {
    return gridlineColor_;
}
void iLabel::GridlineColor(OLE_COLOR color) {
    gridlineColor_ = color;
    Refresh();
}

OLE_COLOR iLabel::ForeColor() const {
    return foreColor_;
}
void iLabel::ForeColor(OLE_COLOR color) {
    foreColor_ = color;
    Refresh();
}

std::int32_t iLabel::TextLeft() const {
    return textLeft_;
}
void iLabel::TextLeft(std::int32_t pixels) {
    textLeft_ = pixels;
    Refresh();
}

std::int32_t iLabel::TextRight() const {
    return textRight_;
}
void iLabel::TextRight(std::int32_t pixels) {
    textRight_ = pixels;
}

bool iLabel::MultiLine() const {
    return multiLine_;
}
void iLabel::MultiLine(bool on) {
    multiLine_ = on;
    Refresh();
}

bool iLabel::NOPREFIX() const {
    return noPrefix_;
}
void iLabel::NOPREFIX(bool on) {
    noPrefix_ = on;
}

bool iLabel::HideFocus() const {
    return hideFocus_;
}
void iLabel::HideFocus(bool on) {
    hideFocus_ = on;
    Refresh();
}

std::int32_t iLabel::IconHandle() const {
    return iconHandle_;
}
void iLabel::IconHandle(std::int32_t imageList) {
    iconHandle_ = imageList;
}

std::int32_t iLabel::IconID() const {
    return iconID_;
}
void iLabel::IconID(std::int32_t number) {
    iconID_ = number;
    Refresh();
}

std::int32_t iLabel::IconLeft() const {
    return iconLeft_;
}
void iLabel::IconLeft(std::int32_t pixels) {
    iconLeft_ = pixels;
    Refresh();
}

std::int32_t iLabel::IconTop() const {
    return iconTop_;
}
void iLabel::IconTop(std::int32_t pixels) {
    iconTop_ = pixels;
    Refresh();
}

std::int32_t iLabel::IconWidth() const {
    return iconWidth_;
}
void iLabel::IconWidth(std::int32_t pixels) {
    iconWidth_ = pixels;
}

std::int32_t iLabel::IconHeight() const {
    return iconHeight_;
}
void iLabel::IconHeight(std::int32_t pixels) {
    iconHeight_ = pixels;
}

bool iLabel::IconBorder() const {
    return iconBorder_;
}
void iLabel::IconBorder(bool on) {
    iconBorder_ = on;
}

OLE_COLOR iLabel::IconBorderColor() const {
    return iconBorderColor_;
}
void iLabel::IconBorderColor(OLE_COLOR color) {
    iconBorderColor_ = color;
}

OLE_COLOR iLabel::IconBackColor() const {
    return iconBackColor_;
}
void iLabel::IconBackColor(OLE_COLOR color) {
    iconBackColor_ = color;
}

bool iLabel::IconTransParent() const {
    return iconTransparent_;
}
void iLabel::IconTransParent(bool on) {
    iconTransparent_ = on;
}

} // namespace tvok
