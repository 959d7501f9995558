// Setting text, painting and life cycle of `xbutton`.
#include "tvok/controls/buttonstrip/xbutton.h"

#include <optional>
#include <utility>

#include "tvok/engine/dgi.h"
#include "tvok/host/ComponentSettings.h"
#include "tvok/host/Services.h"
#include "tvok/records/numeric.h"

namespace tvok {

namespace {

constexpr std::int32_t cIconSize = 16;

/// What `DrawFrameControl` is asked for: the flags that the pressed face adds differ.
struct Face {
    std::int32_t type;
    std::int32_t state;
    std::int32_t pushed;
};

std::optional<Face> FaceOf(const StripButton& button) {
    constexpr std::int32_t flat = host::DFCS_FLAT | host::DFCS_PUSHED;
    if (button.kind == buttonkind::Caption || button.kind == buttonkind::Image)
        return Face{host::DFC_BUTTON, host::DFCS_BUTTONPUSH, host::DFCS_PUSHED};
    if (button.kind != buttonkind::Symbol) return std::nullopt;
    switch (button.value) {
    case 0: return Face{host::DFC_SCROLL, host::DFCS_SCROLLCOMBOBOX, flat};
    case 1: return Face{host::DFC_SCROLL, host::DFCS_SCROLLRIGHT, flat};
    case 2: return Face{host::DFC_CAPTION, host::DFCS_CAPTIONCLOSE, flat};
    default: return std::nullopt;
    }
}

std::int32_t Centred(std::int32_t from, std::int32_t to, std::int32_t size, bool down) {
    return ToInt32(from + (std::int64_t{to} - from - size) / 2 + (down ? 1 : 0));
}

} // namespace

xbutton::xbutton() = default;
xbutton::~xbutton() = default;

host::Component& xbutton::Base() const {
    if (component_ == nullptr) throw ObjectError("xbutton: the control is not on a form");
    return *component_;
}

// Buttons.

std::int32_t xbutton::SetButtons(std::string_view vNewValue) {
    std::int32_t size = 0;
    std::int32_t width = 0;
    quietly([&] { settings_ = vNewValue; }, [&] { size = ButtonSize(); },
            [&] { width = row_.Set(settings_, size); }, [&] { FitWidth(width, size); }, [&] { Paint(); });
    return width;
}

std::int32_t xbutton::ButtonSize() const {
    return dgi::TwipsToPixels(Base().Height(), host::services().Screen().TwipsPerPixelY());
}

/// A real change comes back as `Resize`, which lays the buttons out once more. It asks for the size that is
/// being set already; where the pixels are no whole number of twips it may ask for another one each time, and
/// would not end.
void xbutton::FitWidth(std::int32_t width, std::int32_t height) {
    if (std::exchange(fitting_, true)) return;
    const host::Screen& screen = host::services().Screen();
    quietly([&] {
        Base().Size(screen.TwipsPerPixelX() * static_cast<float>(width),
                    screen.TwipsPerPixelY() * static_cast<float>(height));
    });
    fitting_ = false;
}

const std::string& xbutton::ButtonSettingsStr() const {
    return settings_;
}
void xbutton::ButtonSettingsStr(std::string_view text) {
    SetButtons(text);
}

// Painting.

void xbutton::Paint() {
    for (std::int32_t i = 1; i <= row_.Count(); ++i) DrawButton(i, row_[i].state);
}

void xbutton::PaintInRunMode() {
    if (Base().Ambient().UserMode()) Paint();
}

/// `state` says which face to draw and need not be the button's own, which notes what was drawn.
void xbutton::DrawButton(std::int32_t index, std::int32_t state) {
    StripButton& button = row_[index];
    const bool down = (state & buttonstate::Pressed) != 0;
    DrawFace(button, down);
    const std::int32_t drawn =
        down ? button.state | buttonstate::DrawnDown : button.state & buttonstate::Pressed;
    button.state = static_cast<std::int16_t>(drawn);
    DrawContent(button, down);
}

void xbutton::DrawFace(const StripButton& button, bool down) {
    host::Platform& platform = host::platform();
    const host::Handle hDC = Base().hDC();
    tvok_Rect rect = button.rect;
    if (const auto face = FaceOf(button))
        platform.DrawFrameControl(hDC, rect, face->type, face->state | (down ? face->pushed : 0));
    rect = button.rect;
    if (down) {
        platform.DrawEdge(hDC, rect, host::EDGE_SUNKEN, host::BF_RECT | host::BF_FLAT);
    } else {
        platform.DrawEdge(hDC, rect, host::EDGE_RAISED, host::BF_RECT);
    }
}

void xbutton::DrawContent(const StripButton& button, bool down) {
    host::Platform& platform = host::platform();
    const host::Handle hDC = Base().hDC();
    tvok_Rect rect = button.rect;
    if (down) host::Platform::OffsetRect(rect, 1, 1);
    platform.DrawTextA(hDC, button.text.data(), ToInt32(static_cast<std::int64_t>(button.text.size())), rect,
                       host::DT_CENTER | host::DT_VCENTER | host::DT_SINGLELINE);
    if (button.kind != buttonkind::Image) return;
    // The number counts from 0, unlike the `IconID` of list items.
    platform.ImageList_Draw(
        iconHandle_, button.value, hDC, Centred(button.rect.Left, button.rect.Right, iconWidth_, down),
        Centred(button.rect.Top, button.rect.bottom, iconHeight_, down), host::ILD_TRANSPARENT);
}

// Looks.

std::int32_t xbutton::IconHandle() const {
    return iconHandle_;
}
void xbutton::IconHandle(std::int32_t imageList) {
    iconHandle_ = imageList;
}

std::int32_t xbutton::IconWidth() const {
    return iconWidth_;
}
void xbutton::IconWidth(std::int32_t pixels) {
    iconWidth_ = pixels;
}

std::int32_t xbutton::IconHeight() const {
    return iconHeight_;
}
void xbutton::IconHeight(std::int32_t pixels) {
    iconHeight_ = pixels;
}

OLE_COLOR xbutton::ForeColor() const {
    return Base().ForeColor();
}
void xbutton::ForeColor(OLE_COLOR color) {
    Base().ForeColor(color);
    host::platform().SetTextColor(Base().hDC(), dgi::TranslateColor(color));
    PaintInRunMode();
}

host::FontPtr xbutton::Font() const {
    return Base().Font();
}
void xbutton::Font(const host::Font& font) {
    Base().Font(font);
    PaintInRunMode();
}

bool xbutton::FontTransparent() const {
    return Base().FontTransparent();
}
void xbutton::FontTransparent(bool on) {
    Base().FontTransparent(on);
    PaintInRunMode();
}

void xbutton::SetToSystemfont(bool fSetFontSize) {
    dgi::ApplySystemFont(Base().Font(), fSetFontSize);
}

host::Handle xbutton::hwnd() const {
    return Base().hWnd();
}

// Life cycle.

void xbutton::Initialize(host::Component& component) {
    component_ = &component;
    row_.Clear();
    settings_.clear();
    iconWidth_ = cIconSize;
    iconHeight_ = cIconSize;
}

void xbutton::InitProperties() {
    host::Assign(*Base().Font(), Base().Ambient().Font());
}

void xbutton::ReadProperties(host::PropertyBag& bag) {
    host::Component& base = Base();
    settings_ = host::ReadText(bag, "ButtonSettingsStr");
    base.ForeColor(host::Read(bag, "ForeColor", cButtonText)); // alone: no colour of the context, no repaint
    host::ReadFont(bag, base, base.Ambient());
    host::ReadFontTransparent(bag, base);
    if (base.Ambient().UserMode()) AttachHook();
    SetButtons(settings_);
}

void xbutton::WriteProperties(host::PropertyBag& bag) {
    const host::Component& base = Base();
    bag.WriteProperty("ButtonSettingsStr", settings_, std::string());
    bag.WriteProperty("ForeColor", base.ForeColor(), cButtonText);
    host::WriteFont(bag, base, base.Ambient());
    host::WriteFontTransparent(bag, base);
}

void xbutton::Resize() {
    SetButtons(settings_);
}

void xbutton::Terminate() {
    const auto hook = WSHOOK_;
    quietly(
        [&] {
            if (hook) hook->HookRelease();
        },
        [&] { WSHOOK_.reset(); });
    component_ = nullptr; // it may go before this object does
}

} // namespace tvok
