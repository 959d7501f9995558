// Plain property reads and writes of `qRosterex`. Those that repaint do so in run mode alone.
#include "tvok/controls/largelist/qRosterex_impl.h"

#include "tvok/engine/dgi.h"
#include "tvok/records/numeric.h"

namespace tvok {

// Geometry.

std::int32_t qRosterex::yn() const {
    return impl_->state.yn;
}

std::int32_t qRosterex::CX_TEXT() const {
    return impl_->state.CX_TEXT;
}
void qRosterex::CX_TEXT(std::int32_t pixels) {
    if (pixels >= 0) impl_->state.CX_TEXT = pixels;
}

std::int32_t qRosterex::ItemHeight() const {
    return impl_->state.ItemHeight;
}
void qRosterex::ItemHeight(std::int32_t pixels) {
    if (pixels <= 0) return;
    impl_->state.ItemHeight = pixels;
    if (impl_->UserMode()) Refresh();
}

std::int32_t qRosterex::GridlineWidth() const {
    return impl_->state.GridlineWidth;
}
void qRosterex::GridlineWidth(std::int32_t pixels) {
    if (pixels < 0) return;
    impl_->state.GridlineWidth = pixels;
    if (impl_->UserMode()) Refresh();
}

bool qRosterex::FixedHeight() const {
    return impl_->state.FixedHeight;
}
void qRosterex::FixedHeight(bool on) {
    impl_->state.FixedHeight = on;
    if (impl_->UserMode()) Refresh();
}

std::int32_t qRosterex::HeadWidthEx() const {
    return impl_->state.HeadWidthEx;
}
void qRosterex::HeadWidthEx(std::int32_t pixels) {
    impl_->state.HeadWidthEx = pixels;
    if (impl_->UserMode()) PaintAll();
}

// Icons.

bool qRosterex::ShowIcon() const {
    return impl_->showIcon;
}
void qRosterex::ShowIcon(bool on) {
    impl_->showIcon = on;
}

std::int32_t qRosterex::IconCX() const {
    return impl_->iconCX;
}
void qRosterex::IconCX(std::int32_t pixels) {
    impl_->iconCX = pixels;
}

std::int32_t qRosterex::IconCY() const {
    return impl_->iconCY;
}
void qRosterex::IconCY(std::int32_t pixels) {
    impl_->iconCY = pixels;
}

// A read clears the handle and gives 0, so the icons are gone from the next paint on. Hosts have to live with
// it.
std::int32_t qRosterex::IconHandle() {
    impl_->state.IconHandle = 0;
    return impl_->state.IconHandle;
}
void qRosterex::IconHandle(std::int32_t imageList) {
    impl_->state.IconHandle = imageList;
}

// Colours and texts.

OLE_COLOR qRosterex::GridlineColor() const {
    return impl_->state.GridlineColor;
}
void qRosterex::GridlineColor(OLE_COLOR color) {
    impl_->state.GridlineColor = color;
    if (impl_->UserMode()) PaintAll();
}

OLE_COLOR qRosterex::HeadExBackColor() const {
    return impl_->state.HeadExBackColor;
}
void qRosterex::HeadExBackColor(OLE_COLOR color) {
    impl_->state.HeadExBackColor = color;
}

OLE_COLOR qRosterex::HeadExBorderColor() const {
    return impl_->state.HeadExBorderColor;
}
void qRosterex::HeadExBorderColor(OLE_COLOR color) {
    impl_->state.HeadExBorderColor = color;
}

OLE_COLOR qRosterex::BackColor() const {
    return impl_->state.BackColor;
}
void qRosterex::BackColor(OLE_COLOR color) {
    impl_->state.BackColor = color;
    impl_->Base().BackColor(color);
    if (impl_->UserMode()) PaintAll();
}

OLE_COLOR qRosterex::SelectedColor() const {
    return impl_->state.SelectedColor;
}
void qRosterex::SelectedColor(OLE_COLOR color) {
    impl_->state.SelectedColor = color;
    if (impl_->UserMode()) PaintAll();
}

OLE_COLOR qRosterex::IconBorderColor() const {
    return impl_->state.IconBorderColor;
}
void qRosterex::IconBorderColor(OLE_COLOR color) {
    impl_->state.IconBorderColor = color;
    if (impl_->UserMode()) PaintAll();
}

const std::string& qRosterex::ClearText() const {
    return impl_->clearText;
}
void qRosterex::ClearText(std::string_view text) {
    impl_->clearText = text;
    if (impl_->state.Count == 0 && impl_->UserMode()) impl_->PaintRect(impl_->rowRects[1]);
}

// The base component.

host::FontPtr qRosterex::Font() const {
    return impl_->Base().Font();
}
void qRosterex::Font(const host::Font& font) {
    impl_->Base().Font(font);
    impl_->state.FontObj = impl_->Base().Font();
}

void qRosterex::SetToSystemfont(bool fSetFontSize) {
    dgi::ApplySystemFont(impl_->Base().Font(), fSetFontSize);
    impl_->state.TextHeight = TextHeight();
}

std::int32_t qRosterex::TextHeight() const {
    return dgi::PointsToPixels(impl_->Base().Font()->Size());
}

bool qRosterex::FontTransparent() const {
    return impl_->Base().FontTransparent();
}
void qRosterex::FontTransparent(bool on) {
    impl_->Base().FontTransparent(on);
}

std::int16_t qRosterex::Appearance() const {
    return impl_->Base().Appearance();
}
void qRosterex::Appearance(std::int16_t appearance) {
    quietly([&] { impl_->Base().Appearance(appearance); });
}

std::int32_t qRosterex::BorderStyle() const {
    return impl_->Base().BorderStyle();
}
void qRosterex::BorderStyle(std::int32_t style) {
    quietly([&] { impl_->Base().BorderStyle(ToInt16(style)); });
}

// The host's scratch values.

const std::string& qRosterex::TmpKey() const {
    return impl_->state.TmpKey;
}
void qRosterex::TmpKey(std::string_view key) {
    impl_->state.TmpKey = key;
}

const Variant& qRosterex::TmpData() const {
    return impl_->state.TmpData;
}
void qRosterex::TmpData(const Variant& value) {
    impl_->state.TmpData = value;
}

} // namespace tvok
