// Property reads and writes of `qRoster`. Several writes only store and wait for `Refresh`; those that
// repaint do so in run mode alone, save the four that end in the object error at design time (`xn`, `yn`,
// `XnAuto`, `FixedWidthForLastXn`), where the value is kept all the same.
#include "tvok/controls/flatlist/qRoster.h"

#include "tvok/engine/dgi.h"
#include "tvok/records/numeric.h"

namespace tvok {

// Grid.

std::int32_t qRoster::xn() const {
    return state_.xn;
}
void qRoster::xn(std::int32_t columns) {
    if (columns < 1 || state_.XnAuto) return;
    state_.xn = columns;
    Refresh();
}

std::int32_t qRoster::yn() const {
    return state_.yn;
}
void qRoster::yn(std::int32_t rows) {
    if (rows < 1 || rows == state_.yn) return;
    const std::int32_t height = mtvok::ComputeFitHeight(state_, rows);
    if (height > 0) Base().Height(static_cast<float>(height));
    Refresh();
}

bool qRoster::XnAuto() const {
    return state_.XnAuto;
}
void qRoster::XnAuto(bool on) {
    state_.XnAuto = on;
    if (!on) return;
    ResetSize();
    Refresh();
}

std::int32_t qRoster::ItemHeight() const {
    return state_.ItemHeight;
}
void qRoster::ItemHeight(std::int32_t pixels) {
    if (pixels <= 0) return;
    state_.ItemHeight = pixels;
    ResetSize();
    RefreshInRunMode();
}

std::int32_t qRoster::ItemWidth() const {
    return state_.ItemWidth;
}
void qRoster::ItemWidth(std::int32_t pixels) {
    if (pixels < 0) return;
    state_.ItemWidth = pixels;
    mtvok::ComputeFitWidth(state_);
    RefreshInRunMode();
}

std::int32_t qRoster::GridlineWidth() const {
    return state_.GridlineWidth;
}
void qRoster::GridlineWidth(std::int32_t pixels) {
    if (pixels < 0) return;
    state_.GridlineWidth = pixels;
    ResizeInRunMode();
}

OLE_COLOR qRoster::GridlineColor() const {
    return state_.GridlineColor;
}
void qRoster::GridlineColor(OLE_COLOR color) {
    state_.GridlineColor = color;
    PaintInRunMode();
}

bool qRoster::GridlineOnBorder() const {
    return state_.GridlineOnBorder;
}
void qRoster::GridlineOnBorder(bool on) {
    state_.GridlineOnBorder = on;
    ResizeInRunMode();
}

bool qRoster::FixedHeight() const {
    return state_.FixedHeight;
}
void qRoster::FixedHeight(bool on) {
    state_.FixedHeight = on;
    ResetSize();
    RefreshInRunMode();
}

bool qRoster::FixedWidthForLastXn() const {
    return state_.FixedWidthForLastXn;
}
void qRoster::FixedWidthForLastXn(bool on) {
    state_.FixedWidthForLastXn = on;
    Refresh();
}

std::string qRoster::ColWidthSettingStr() const {
    return state_.ColWidthSettingStr;
}
void qRoster::ColWidthSettingStr(std::string_view text) {
    state_.ColWidthSettingStr = text;
    ResetSize();
    RefreshInRunMode();
}

std::string qRoster::TabStopSettingStr() const {
    return state_.TabStopSettingStr;
}
void qRoster::TabStopSettingStr(std::string_view text) {
    state_.TabStopSettingStr = text;
    RefreshInRunMode();
}

// Looks.

std::int32_t qRoster::CX_TEXT() const {
    return state_.CX_TEXT;
}
void qRoster::CX_TEXT(std::int32_t pixels) {
    if (pixels >= 0) state_.CX_TEXT = pixels;
}

std::int32_t qRoster::IconPos() const {
    return state_.IconPos;
}
void qRoster::IconPos(std::int32_t packed) {
    state_.IconPos = packed;
    PaintInRunMode();
}

// A read clears the handle and gives 0, so the images are gone from the next paint on. Hosts have to live
// with it.
std::int32_t qRoster::IconHandle() {
    state_.IconHandle = 0;
    return state_.IconHandle;
}
void qRoster::IconHandle(std::int32_t imageList) {
    state_.IconHandle = imageList;
}

OLE_COLOR qRoster::BackColor() const {
    return state_.BackColor;
}
void qRoster::BackColor(OLE_COLOR color) {
    state_.BackColor = color;
    Base().BackColor(color);
    PaintInRunMode();
}

OLE_COLOR qRoster::SelectedColor() const {
    return state_.SelectedColor;
}
void qRoster::SelectedColor(OLE_COLOR color) {
    state_.SelectedColor = color;
    PaintInRunMode();
}

OLE_COLOR qRoster::IconBorderColor() const {
    return state_.IconBorderColor;
}
void qRoster::IconBorderColor(OLE_COLOR color) {
    state_.IconBorderColor = color;
    PaintInRunMode();
}

std::int32_t qRoster::HeadWidthEx() const {
    return state_.HeadWidthEx;
}
void qRoster::HeadWidthEx(std::int32_t pixels) {
    state_.HeadWidthEx = pixels;
    PaintInRunMode();
}

OLE_COLOR qRoster::HeadExBackColor() const {
    return state_.HeadExBackColor;
}
void qRoster::HeadExBackColor(OLE_COLOR color) {
    state_.HeadExBackColor = color;
}

OLE_COLOR qRoster::HeadExBorderColor() const {
    return state_.HeadExBorderColor;
}
void qRoster::HeadExBorderColor(OLE_COLOR color) {
    state_.HeadExBorderColor = color;
}

host::FontPtr qRoster::Font() const {
    return Base().Font();
}
void qRoster::Font(const host::Font& font) {
    Base().Font(font);
    state_.FontObj = Base().Font();
}

void qRoster::SetToSystemfont(bool fSetFontSize) {
    dgi::ApplySystemFont(Base().Font(), fSetFontSize);
    state_.TextHeight = TextHeight();
}

std::int32_t qRoster::TextHeight() const {
    return dgi::PointsToPixels(Base().Font()->Size());
}

bool qRoster::FontTransparent() const {
    return Base().FontTransparent();
}
void qRoster::FontTransparent(bool on) {
    Base().FontTransparent(on);
}

std::int16_t qRoster::Appearance() const {
    return Base().Appearance();
}
void qRoster::Appearance(std::int16_t appearance) {
    quietly([&] { Base().Appearance(appearance); });
}

std::int32_t qRoster::BorderStyle() const {
    return Base().BorderStyle();
}
void qRoster::BorderStyle(std::int32_t style) {
    quietly([&] { Base().BorderStyle(ToInt16(style)); });
}

// The host's scratch values.

const std::string& qRoster::TmpKey() const {
    return state_.TmpKey;
}
void qRoster::TmpKey(std::string_view key) {
    state_.TmpKey = key;
}

const Variant& qRoster::TmpData() const {
    return state_.TmpData;
}
void qRoster::TmpData(const Variant& value) {
    state_.TmpData = value;
}

} // namespace tvok
