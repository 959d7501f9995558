#include "tvok/controls/columnbar/pcols.h"

#include "tvok/engine/WindowPaint.h"
#include "tvok/engine/designframe.h"
#include "tvok/engine/dgi.h"
#include "tvok/engine/headertext.h"
#include "tvok/engine/persistence.h"
#include "tvok/host/ComponentSettings.h"
#include "tvok/host/Services.h"
#include "tvok/records/numeric.h"

namespace tvok {

namespace {

constexpr std::int32_t cCaptionInset = 2; // of the caption's rectangle inside its button
constexpr std::int32_t cCaptionMargin = 3;
constexpr std::int32_t cAnyButton = 1; // what MouseDown tells of either button

void DrawButton(std::int32_t hDC, const tvok_Rect& rect) {
    tvok_Rect button = rect; // the operation may change its rectangle
    host::platform().DrawFrameControl(hDC, button, host::DFC_BUTTON, host::DFCS_BUTTONPUSH);
}

} // namespace

pcols::pcols() = default;
pcols::~pcols() = default;

host::Component& pcols::Base() const {
    if (component_ == nullptr) throw ObjectError("pcols: the control is not on a form");
    return *component_;
}

bool pcols::UserMode() const {
    return Base().Ambient().UserMode();
}

// Columns.

void pcols::Add(std::int32_t Index, std::string_view lText, std::int32_t lWidth, std::string_view lKey,
                std::int16_t lAlignment, OLE_COLOR fcolor, std::int32_t vflag) {
    SetData(Index, {.text = std::string(lText),
                    .hWidth = lWidth,
                    .key = std::string(lKey),
                    .fcolor = fcolor,
                    .Alignment = lAlignment,
                    .vflag = vflag});
}

void pcols::SetData(std::int32_t Index, const qrosterheader& nValue) {
    if (columns_.Set(Index, nValue, clientWidth_)) Refresh();
}

qrosterheader pcols::GetData(std::int32_t Index) const {
    return columns_.Get(Index);
}

void pcols::Remove(std::int32_t Index) {
    quietly([&] { columns_.Remove(Index); });
}

void pcols::Clear() {
    columns_.Clear();
}

std::int32_t pcols::Count() const {
    return columns_.Count();
}
void pcols::Count(std::int32_t columns) {
    columns_.Count(columns);
}

std::string pcols::HeaderWidths() const {
    return columns_.Widths();
}
void pcols::HeaderWidths(std::string_view text) {
    quietly([&] {
        if (columns_.Widths(text)) Refresh();
    });
}

// Painting.

void pcols::Refresh() {
    Recalculate();
    PaintBar();
}

void pcols::Recalculate() {
    totalWidth_ = ToInt32(columns_.Sum());
    textHeight_ = dgi::PointsToPixels(Base().Font()->Size());
}

void pcols::PaintBar() {
    if (columns_.Count() < 0) return;
    tvok_Rect button{0, 0, 0, clientHeight_};
    mtvok::ApplyFontFlags(state_.hDC, Base().Font(), lFlag_);
    host::platform().SetBkMode(state_.hDC, host::TRANSPARENT_BK);
    for (std::int32_t i = 1; i <= columns_.Count(); ++i) {
        button.Right = ToInt32(std::int64_t{button.Right} + columns_[i].hWidth);
        DrawButton(state_.hDC, button);
        PaintCaption(columns_[i], button);
        button.Left = button.Right;
    }
    if (button.Left >= clientWidth_) return;
    button.Right = clientWidth_;
    DrawButton(state_.hDC, button);
}

void pcols::PaintCaption(const qrosterheader& column, const tvok_Rect& button) {
    tvok_Rect caption = button;
    host::Platform::InflateRect(caption, -cCaptionInset, -cCaptionInset);
    const host::Point place =
        mtvok::PlaceCellText(state_.hDC, column.Alignment, caption, cCaptionMargin, textHeight_);
    host::platform().SetTextColor(state_.hDC, dgi::TranslateColor(column.fcolor));
    host::platform().ExtTextOutA(state_.hDC, place.x, place.y, host::ETO_CLIPPED, &caption,
                                 column.text.data(), ToInt32(static_cast<std::int64_t>(column.text.size())));
}

// Looks.

std::int32_t pcols::lFlag() const {
    return lFlag_;
}
void pcols::lFlag(std::int32_t flags) {
    lFlag_ = flags;
}

OLE_COLOR pcols::BackColor() const {
    return state_.BackColor;
}
void pcols::BackColor(OLE_COLOR color) {
    state_.BackColor = color;
    Base().BackColor(color);
    if (UserMode()) PaintBar();
}

host::FontPtr pcols::Font() const {
    return Base().Font();
}
void pcols::Font(const host::Font& font) {
    Base().Font(font);
    state_.FontObj = Base().Font();
}
void pcols::SetToSystemfont(bool fSetFontSize) {
    dgi::ApplySystemFont(Base().Font(), fSetFontSize);
}

bool pcols::FontTransparent() const {
    return Base().FontTransparent();
}
void pcols::FontTransparent(bool on) {
    Base().FontTransparent(on);
}

std::int16_t pcols::Appearance() const {
    return Base().Appearance();
}
void pcols::Appearance(std::int16_t appearance) {
    quietly([&] { Base().Appearance(appearance); });
}

std::int32_t pcols::BorderStyle() const {
    return Base().BorderStyle();
}
void pcols::BorderStyle(std::int32_t style) {
    quietly([&] { Base().BorderStyle(ToInt16(style)); });
}

std::int32_t pcols::hwnd() const {
    return Base().hWnd();
}

// Life cycle.

void pcols::Initialize(host::Component& component) {
    component_ = &component;
    state_.hWnd = component.hWnd();
    state_.hDC = component.hDC();
    columns_ = {};
}

void pcols::InitProperties() {
    mtvok::InitListProperties(state_);
    host::Assign(*Base().Font(), Base().Ambient().Font());
}

void pcols::ReadProperties(host::PropertyBag& bag) {
    host::Component& base = Base();
    mtvok::ReadListProperties(bag, state_);
    host::ReadAppearance(bag, base);
    host::ReadBorderStyle(bag, base);
    host::ReadFont(bag, base, base.Ambient());
    host::ReadFontTransparent(bag, base);
    base.BackColor(state_.BackColor);
    if (!UserMode()) return;
    AttachHook();
    Refresh();
}

void pcols::WriteProperties(host::PropertyBag& bag) {
    const host::Component& base = Base();
    mtvok::WriteListProperties(bag, state_);
    host::WriteAppearance(bag, base);
    host::WriteBorderStyle(bag, base);
    host::WriteFont(bag, base, base.Ambient());
    host::WriteFontTransparent(bag, base);
}

void pcols::Resize() {
    quietly(
        [&] {
            tvok_Rect client;
            host::platform().GetClientRect(state_.hWnd, client);
            clientWidth_ = client.Right;
            clientHeight_ = client.bottom;
        },
        [&] { Refresh(); });
}

void pcols::Paint() {
    if (!UserMode()) mtvok::DrawDesignFrame(state_.hWnd, state_.hDC, Base().Ambient().DisplayName());
}

void pcols::Terminate() {
    quietly(
        [&] {
            if (WMHOOK_) WMHOOK_->HookRelease();
        },
        [&] { WMHOOK_.reset(); }, [&] { state_.FontObj.reset(); });
    component_ = nullptr; // it may go before this object does
}

// Messages.

void pcols::AttachHook() {
    WMHOOK_ = host::services().CreateWindowHook();
    WMHOOK_->RtMsg = [this](std::int32_t message, std::int32_t, std::int32_t lParam, std::int32_t&,
                            bool& fCallNext) { WMHOOK_RtMsg(message, lParam, fCallNext); };
    std::int32_t kind = 0; // a window
    bool flag = true;
    WMHOOK_->HookSet(kind, state_.hWnd, flag);
}

void pcols::WMHOOK_RtMsg(std::int32_t message, std::int32_t lParam, bool& fCallNext) {
    const host::Point point = dgi::PointFromLParam(lParam);
    switch (message) {
    case host::WM_PAINT: {
        fCallNext = false;
        const WindowPaint paint(state_.hWnd);
        PaintBar(); // the whole bar, whatever has to be painted
        break;
    }
    case host::WM_MOUSEMOVE: MoveTo(point.x, point.y); break;
    // The right button sizes columns, too, and a drag that it began ends with the left one only.
    case host::WM_LBUTTONDOWN:
    case host::WM_RBUTTONDOWN: Press(point.x, point.y); break;
    case host::WM_LBUTTONUP: columns_.StopSizing(); break;
    default: break;
    }
}

void pcols::Press(std::int32_t x, std::int32_t y) {
    if (columns_.StartSizing(columns_.EdgeFromPoint(x, y, clientHeight_), x, clientWidth_)) return;
    const std::int32_t column = columns_.ColumnFromPoint(x, y, clientWidth_, clientHeight_);
    if (column >= 0) events.MouseDown(column, cAnyButton); // a handler may have ended the control
}

void pcols::MoveTo(std::int32_t x, std::int32_t y) {
    if (columns_.IsSizing()) {
        if (columns_.SizeTo(x)) Refresh();
    } else {
        const bool divider = columns_.EdgeFromPoint(x, y, clientHeight_) > 0;
        Base().MousePointer(divider ? host::ccSizeWE : host::ccDefault);
    }
}

} // namespace tvok
