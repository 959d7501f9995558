// Property reads and writes of `gList`. A write with the value that is there does nothing, save where the
// header tells; repaints and rebuilds wait for run mode.
#include <utility>

#include "tvok/controls/propertylist/gList_impl.h"
#include "tvok/engine/dgi.h"
#include "tvok/records/numeric.h"

namespace tvok {

namespace {

/// Whether `place` took another value.
template<class T>
bool Changes(T& place, T value) {
    return std::exchange(place, value) != value;
}

} // namespace

// Structure.

std::int32_t gList::ListMode() const {
    return impl_->listMode;
}
void gList::ListMode(std::int32_t mode) {
    if (Changes(impl_->listMode, mode) && impl_->UserMode()) impl_->BuiltList();
}

bool gList::Sorted() const {
    return impl_->sorted;
}
// Turned off, the old order stays until the next rebuild.
void gList::Sorted(bool on) {
    impl_->sorted = on;
    if (on && impl_->UserMode()) impl_->BuiltList();
}

// Grid.

std::int32_t gList::ItemHeight() const {
    return impl_->state.ItemHeight;
}
void gList::ItemHeight(std::int32_t pixels) {
    if (pixels < 1 || !Changes(impl_->state.ItemHeight, pixels)) return;
    impl_->FitControl();
    impl_->RefreshInRunMode();
}

std::int32_t gList::GridlineWidth() const {
    return impl_->state.GridlineWidth;
}
void gList::GridlineWidth(std::int32_t pixels) {
    if (pixels < 0 || !Changes(impl_->state.GridlineWidth, pixels)) return;
    impl_->FitControl();
    impl_->RefreshInRunMode();
}

bool gList::GridlineOnBorder() const {
    return impl_->state.GridlineOnBorder;
}
void gList::GridlineOnBorder(bool on) {
    if (!Changes(impl_->state.GridlineOnBorder, on)) return;
    impl_->FitControl();
    impl_->RefreshInRunMode();
}

bool gList::FixedHeight() const {
    return impl_->state.FixedHeight;
}
void gList::FixedHeight(bool on) {
    if (!Changes(impl_->state.FixedHeight, on)) return;
    impl_->FitControl();
    impl_->RefreshInRunMode();
}

std::int32_t gList::HeadWidth() const {
    return impl_->headWidth;
}

// Looks.

std::int32_t gList::CX_TEXT() const {
    return impl_->state.CX_TEXT;
}
void gList::CX_TEXT(std::int32_t pixels) {
    if (Changes(impl_->state.CX_TEXT, pixels)) impl_->PaintInRunMode();
}

std::int32_t gList::HeadWidthEx() const {
    return impl_->state.HeadWidthEx;
}
void gList::HeadWidthEx(std::int32_t pixels) {
    if (Changes(impl_->state.HeadWidthEx, pixels)) impl_->PaintInRunMode();
}

OLE_COLOR gList::HeadExBackColor() const {
    return impl_->state.HeadExBackColor;
}
void gList::HeadExBackColor(OLE_COLOR color) {
    if (Changes(impl_->state.HeadExBackColor, color)) impl_->PaintInRunMode();
}

OLE_COLOR gList::HeadExBorderColor() const {
    return impl_->state.HeadExBorderColor;
}
void gList::HeadExBorderColor(OLE_COLOR color) {
    if (Changes(impl_->state.HeadExBorderColor, color)) impl_->PaintInRunMode();
}

std::int32_t gList::IconPos() const {
    return impl_->state.IconPos;
}
void gList::IconPos(std::int32_t packed) {
    if (!Changes(impl_->state.IconPos, packed) || !impl_->UserMode()) return;
    impl_->ApplyIconSize();
    impl_->PaintAll();
}

std::int32_t gList::IconHandle() const {
    return impl_->state.IconHandle;
}
void gList::IconHandle(std::int32_t imageList) {
    impl_->state.IconHandle = imageList;
    impl_->xbutton1.IconHandle(imageList);
}

OLE_COLOR gList::IconBorderColor() const {
    return impl_->state.IconBorderColor;
}
void gList::IconBorderColor(OLE_COLOR color) {
    if (Changes(impl_->state.IconBorderColor, color)) impl_->PaintInRunMode();
}

OLE_COLOR gList::BackColor() const {
    return impl_->state.BackColor;
}
void gList::BackColor(OLE_COLOR color) {
    if (!Changes(impl_->state.BackColor, color)) return;
    impl_->Base().BackColor(color);
    impl_->PaintInRunMode();
}

OLE_COLOR gList::SelectedColor() const {
    return impl_->state.SelectedColor;
}
void gList::SelectedColor(OLE_COLOR color) {
    if (Changes(impl_->state.SelectedColor, color)) impl_->PaintInRunMode();
}

OLE_COLOR gList::GridlineColor() const {
    return impl_->state.GridlineColor;
}
void gList::GridlineColor(OLE_COLOR color) {
    if (Changes(impl_->state.GridlineColor, color)) impl_->PaintInRunMode();
}

host::FontPtr gList::Font() const {
    return impl_->Base().Font();
}
void gList::Font(const host::Font& font) {
    impl_->Base().Font(font);
    impl_->state.FontObj = impl_->Base().Font();
}

void gList::SetToSystemfont(bool fSetFontSize) {
    dgi::ApplySystemFont(impl_->Base().Font(), fSetFontSize);
    impl_->state.FontObj = impl_->Base().Font();
}

bool gList::FontTransparent() const {
    return impl_->Base().FontTransparent();
}
void gList::FontTransparent(bool on) {
    impl_->Base().FontTransparent(on);
}

std::int32_t gList::TextHeight() const {
    return impl_->TextHeight();
}

std::int16_t gList::Appearance() const {
    return impl_->Base().Appearance();
}
void gList::Appearance(std::int16_t appearance) {
    quietly([&] { impl_->Base().Appearance(appearance); });
}

std::int32_t gList::BorderStyle() const {
    return impl_->Base().BorderStyle();
}
void gList::BorderStyle(std::int32_t style) {
    quietly([&] { impl_->Base().BorderStyle(ToInt16(style)); });
}

// The host's scratch values.

const std::string& gList::TmpKey() const {
    return impl_->state.TmpKey;
}
void gList::TmpKey(std::string_view key) {
    impl_->state.TmpKey = key;
}

const Variant& gList::TmpData() const {
    return impl_->state.TmpData;
}
void gList::TmpData(const Variant& value) {
    impl_->state.TmpData = value;
}

host::Handle gList::hwnd() const {
    return impl_->Base().hWnd();
}

} // namespace tvok
