// Property reads and writes of `xPopup`. A write stores the value and nothing else.
#include "tvok/controls/popup/xPopup.h"

#include "tvok/engine/dgi.h"
#include "tvok/records/text.h"

namespace tvok {

// Grid.

std::int32_t xPopup::xn() const {
    return state_.xn;
}
void xPopup::xn(std::int32_t columns) {
    if (columns > 0) state_.xn = columns;
}

std::int32_t xPopup::yn() const {
    return state_.yn;
}
void xPopup::yn(std::int32_t rows) {
    if (rows <= 0) return;
    state_.yn = rows;
    state_.GridRows = rows;
}

std::int32_t xPopup::ItemHeight() const {
    return state_.ItemHeight;
}
void xPopup::ItemHeight(std::int32_t pixels) {
    if (pixels > 0) state_.ItemHeight = pixels;
}

std::int32_t xPopup::ItemWidth() const {
    return state_.ItemWidth;
}
void xPopup::ItemWidth(std::int32_t pixels) {
    if (pixels > 0) state_.ItemWidth = pixels;
}

std::int32_t xPopup::GridlineWidth() const {
    return state_.GridlineWidth;
}
void xPopup::GridlineWidth(std::int32_t pixels) {
    if (pixels >= 0) state_.GridlineWidth = pixels;
}

OLE_COLOR xPopup::GridlineColor() const {
    return state_.GridlineColor;
}
void xPopup::GridlineColor(OLE_COLOR color) {
    state_.GridlineColor = color;
}

bool xPopup::GridlineOnBorder() const {
    return state_.GridlineOnBorder;
}
void xPopup::GridlineOnBorder(bool on) {
    state_.GridlineOnBorder = on;
}

bool xPopup::FixedWidthForLastXn() const {
    return state_.FixedWidthForLastXn;
}
void xPopup::FixedWidthForLastXn(bool on) {
    state_.FixedWidthForLastXn = on;
}

std::string xPopup::ColWidthSettingStr() const {
    return state_.ColWidthSettingStr;
}
void xPopup::ColWidthSettingStr(std::string_view text) {
    state_.ColWidthSettingStr = Trim(text);
}

std::string xPopup::TabStopSettingStr() const {
    return state_.TabStopSettingStr;
}
void xPopup::TabStopSettingStr(std::string_view text) {
    state_.TabStopSettingStr = Trim(text);
}

// Looks.

std::int32_t xPopup::CX_TEXT() const {
    return state_.CX_TEXT;
}
void xPopup::CX_TEXT(std::int32_t pixels) {
    if (pixels >= 0) state_.CX_TEXT = pixels;
}

std::int32_t xPopup::IconPos() const {
    return state_.IconPos;
}
void xPopup::IconPos(std::int32_t packed) {
    state_.IconPos = packed;
}

std::int32_t xPopup::IconHandle() const {
    return state_.IconHandle;
}
void xPopup::IconHandle(std::int32_t imageList) {
    state_.IconHandle = imageList;
}

OLE_COLOR xPopup::BackColor() const {
    return state_.BackColor;
}
void xPopup::BackColor(OLE_COLOR color) {
    state_.BackColor = color;
}

OLE_COLOR xPopup::SelectedColor() const {
    return state_.SelectedColor;
}
void xPopup::SelectedColor(OLE_COLOR color) {
    state_.SelectedColor = color;
}

OLE_COLOR xPopup::IconBorderColor() const {
    return state_.IconBorderColor;
}
void xPopup::IconBorderColor(OLE_COLOR color) {
    state_.IconBorderColor = color;
}

std::int32_t xPopup::HeadWidthEx() const {
    return state_.HeadWidthEx;
}
void xPopup::HeadWidthEx(std::int32_t pixels) {
    state_.HeadWidthEx = pixels;
}

OLE_COLOR xPopup::HeadExBackColor() const {
    return state_.HeadExBackColor;
}
void xPopup::HeadExBackColor(OLE_COLOR color) {
    state_.HeadExBackColor = color;
}

OLE_COLOR xPopup::HeadExBorderColor() const {
    return state_.HeadExBorderColor;
}
void xPopup::HeadExBorderColor(OLE_COLOR color) {
    state_.HeadExBorderColor = color;
}

bool xPopup::HotTrack() const {
    return state_.HotTrack;
}
void xPopup::HotTrack(bool on) {
    state_.HotTrack = on;
}

host::FontPtr xPopup::Font() const {
    return Picture().Font();
}
void xPopup::Font(const host::Font& font) {
    Picture().Font(font);
    state_.FontObj = Picture().Font();
}

void xPopup::SetToSystemfont(bool fSetFontSize) {
    dgi::ApplySystemFont(Picture().Font(), fSetFontSize);
}

std::int32_t xPopup::TextHeight() const {
    return dgi::PointsToPixels(Picture().Font()->Size());
}

bool xPopup::FontTransparent() const {
    return Picture().FontTransparent();
}
void xPopup::FontTransparent(bool on) {
    Picture().FontTransparent(on);
}

// The host's scratch values.

const std::string& xPopup::TmpKey() const {
    return state_.TmpKey;
}
void xPopup::TmpKey(std::string_view key) {
    state_.TmpKey = key;
}

const Variant& xPopup::TmpData() const {
    return state_.TmpData;
}
void xPopup::TmpData(const Variant& value) {
    state_.TmpData = value;
}

std::int32_t xPopup::hwnd() const {
    return Base().hWnd();
}

} // namespace tvok
