#include "tvok/host/desktop/windows/WidgetCore.h"

#include <algorithm>
#include <cmath>

#include "tvok/host/desktop/gdi/Frames.h"
#include "tvok/host/desktop/windows/SoftHooks.h"
#include "tvok/host/desktop/windows/World.h"
#include "tvok/records/Error.h"

namespace tvok::soft {

WidgetCore::WidgetCore(World& world, Window* parent, const tvok_Rect& rect, bool shown)
    : world_(world), window_(world.windows, *this) {
    font = std::make_shared<ComponentFont>(world, window_.dc());
    SetFontTransparent(true);
    SetForeColor(foreColor);
    world.windows.Attach(window_, parent, rect, shown);
}

WidgetCore::~WidgetCore() {
    Leave();
    font->Detach();
}

void WidgetCore::Leave() {
    world_.windows.Remove(window_);
}

std::int32_t WidgetCore::Process(Window& window, const Message& message) {
    switch (message.message) {
    case host::WM_PAINT: {
        if (window.update().IsEmpty()) return 0;
        host::PaintStruct paint;
        if (world_.windows.BeginPaint(window, paint) == 0) return 0;
        Paint();
        if (window_.IsAlive()) world_.windows.EndPaint(window_);
        return 0;
    }
    case host::WM_ERASEBKGND: Cls(); return 1;
    case host::WM_NCLBUTTONDOWN:
    case host::WM_NCLBUTTONDBLCLK:
        if (message.wParam == host::HTVSCROLL || message.wParam == host::HTHSCROLL)
            world_.tracker.Press(window, message.wParam == host::HTVSCROLL ? Bar::Vertical : Bar::Horizontal,
                                 {LowWord(message.lParam), HighWord(message.lParam)});
        return 0;
    case host::WM_MOUSEWHEEL:
    case host::WM_MOUSEHWHEEL: Wheel(message); return 0;
    default: return 0;
    }
}

void WidgetCore::Wheel(const Message& message) {
    constexpr std::int32_t kLines = 3;
    constexpr std::int32_t kNotch = 120;
    const std::int32_t lines = kLines * HighWord(message.wParam) / kNotch;
    const bool sideways =
        message.message == host::WM_MOUSEHWHEEL || (LowWord(message.wParam) & host::MK_SHIFT) != 0;
    const Bar bar = sideways ? Bar::Horizontal : Bar::Vertical;
    ScrollBars* bars = window_.bars();
    if (bars && bars->state(bar).shown) {
        const std::int32_t unit = sideways ? kHorizontalLine : 1;
        // A wheel turned away from the user goes up, one pushed to the right goes right.
        const std::int32_t way = message.message == host::WM_MOUSEHWHEEL ? lines : -lines;
        bars->hook().StepTo(bar, std::int64_t{bars->state(bar).value} + std::int64_t{way} * unit);
    } else if (window_.parent()) {
        world_.Send({window_.parent()->handle(), message.message, message.wParam, message.lParam});
    }
}

Insets WidgetCore::Frame() const {
    const std::int32_t width = borderStyle == 0 ? 0 : appearance == 0 ? 1 : 2;
    return {width, width, width, width};
}

void WidgetCore::DrawFrame(Window& window, DeviceContext& context) {
    tvok_Rect rect{0, 0, WidthOf(window.rect()), HeightOf(window.rect())};
    if (borderStyle == 0) return;
    if (appearance == 0) {
        context.FrameColor(rect, world_.theme.colors[host::COLOR_WINDOWFRAME]);
    } else {
        DrawEdge(context, world_.theme, rect, host::EDGE_SUNKEN, host::BF_RECT);
    }
}

std::int32_t WidgetCore::EraseColor() const {
    return world_.ColorOf(backColor);
}

float WidgetCore::ToTwips(std::int32_t pixels) const {
    return static_cast<float>(pixels) * world_.TwipsPerPixel();
}

std::int32_t WidgetCore::ToPixels(float twips) const {
    constexpr auto kMost = static_cast<float>(kMaxCoordinate);
    const float pixels = twips / world_.TwipsPerPixel();
    return static_cast<std::int32_t>(std::lround(std::clamp(pixels, -kMost, kMost)));
}

void WidgetCore::MovePixels(const tvok_Rect& rect) {
    world_.windows.Place(window_, rect);
}

void WidgetCore::SetAppearance(std::int16_t value) {
    if (value < 0 || value > 1) throw Error("Appearance is 0 (flat) or 1 (three-dimensional)");
    if (std::exchange(appearance, value) != value) ApplyFrame();
}

void WidgetCore::SetBorderStyle(std::int16_t value) {
    if (value < 0 || value > 1) throw Error("BorderStyle is 0 (none) or 1 (single)");
    if (std::exchange(borderStyle, value) != value) ApplyFrame();
}

void WidgetCore::ApplyFrame() {
    const tvok_Rect before = window_.clientArea();
    world_.windows.FrameChanged(window_);
    if (window_.clientArea() != before) FrameResized();
}

void WidgetCore::SetBackColor(OLE_COLOR color) {
    if (std::exchange(backColor, color) != color) world_.windows.Invalidate(window_, nullptr, true);
}

void WidgetCore::SetForeColor(OLE_COLOR color) {
    foreColor = color;
    window_.dc().TextColor(world_.ColorOf(color));
}

void WidgetCore::ThemeChanged() {
    font->Renew();
    SetForeColor(foreColor);
}

void WidgetCore::SetFontTransparent(bool transparent) {
    fontTransparent = transparent;
    window_.dc().BkMode(transparent ? host::TRANSPARENT_BK : host::OPAQUE_BK);
}

void WidgetCore::SetPointer(std::int16_t value) {
    pointer = value;
    world_.input.ShowPointer();
}

float WidgetCore::TextWidth(std::string_view text) const {
    return ToTwips(window_.dc().TextWidth(text));
}

void WidgetCore::FocusHere() {
    world_.focus.Focus(window_.handle());
}

void WidgetCore::Refresh() {
    world_.windows.Invalidate(window_, nullptr, true);
    world_.windows.Update(window_);
}

void WidgetCore::Cls() {
    if (!window_.IsAlive()) return;
    window_.dc().FillColor({0, 0, WidthOf(window_.clientArea()), HeightOf(window_.clientArea())},
                           EraseColor());
}

} // namespace tvok::soft
