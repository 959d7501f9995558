#include "tests/support/FakeComponent.h"

#include <algorithm>
#include <cmath>

namespace tvok::test {

namespace {

bool IsEmpty(const tvok_Rect& rect) {
    return rect.Left >= rect.Right || rect.Top >= rect.bottom;
}

tvok_Rect BoxAround(const tvok_Rect& a, const tvok_Rect& b) {
    if (IsEmpty(a)) return b;
    if (IsEmpty(b)) return a;
    return {std::min(a.Left, b.Left), std::min(a.Top, b.Top), std::max(a.Right, b.Right),
            std::max(a.bottom, b.bottom)};
}

std::int32_t Pixels(float twips) {
    return static_cast<std::int32_t>(std::lround(twips / 15));
}

} // namespace

bool WindowLog::InvalidateRect(host::Handle hWnd, const tvok_Rect* rect, bool erase) {
    CallLog::InvalidateRect(hWnd, rect, erase);
    const tvok_Rect asked = rect ? *rect : client;
    invalid =
        BoxAround(invalid, {std::max(asked.Left, client.Left), std::max(asked.Top, client.Top),
                            std::min(asked.Right, client.Right), std::min(asked.bottom, client.bottom)});
    return true;
}

bool WindowLog::UpdateWindow(host::Handle hWnd) {
    CallLog::UpdateWindow(hWnd);
    if (IsEmpty(invalid) || !services_ || !services_->hook) return true;
    std::int32_t result = 0;
    bool process = true;
    services_->hook->events.RtMsg(host::WM_PAINT, 0, 0, result, process);
    invalid = {};
    return true;
}

host::Handle WindowLog::BeginPaint(host::Handle hWnd, host::PaintStruct& paint) {
    CallLog::BeginPaint(hWnd, paint);
    paint.rcPaint = invalid;
    paint.hdc = FakeComponent::cContext;
    invalid = {};
    return paint.hdc;
}

bool WindowLog::ScrollDC(host::Handle hDC, std::int32_t dx, std::int32_t dy, const tvok_Rect* scroll,
                         const tvok_Rect* clip, host::Handle region, tvok_Rect* update) {
    CallLog::ScrollDC(hDC, dx, dy, scroll, clip, region, update);
    const tvok_Rect area = scroll ? *scroll : client;
    tvok_Rect band = area;
    if (dy > 0) band.bottom = std::min(area.bottom, area.Top + dy);
    if (dy < 0) band.Top = std::max(area.Top, area.bottom + dy);
    if (update) *update = dy == 0 ? tvok_Rect{} : band;
    return true;
}

FakeComponent::FakeComponent(bool userMode, std::int32_t width, std::int32_t height, std::int32_t border)
    : border_(border) {
    servicesPlace = &services;
    ambient.userMode = userMode;
    log.client = {0, 0, width, height};
    log.window = {50, 60, 50 + width + 2 * border, 60 + height + 2 * border};
    platformBefore_ = host::SetPlatform(&log);
    servicesBefore_ = host::SetServices(&services);
}

FakeComponent::~FakeComponent() {
    host::SetServices(servicesBefore_);
    host::SetPlatform(platformBefore_);
}

bool FakeComponent::Send(std::int32_t message, std::int32_t wParam, std::int32_t lParam, bool process) {
    std::int32_t result = 0;
    if (services.hook) services.hook->events.RtMsg(message, wParam, lParam, result, process);
    return process;
}

void FakeComponent::SetPixelSize(std::int32_t width, std::int32_t height) {
    const tvok_Rect before = log.window;
    log.window.Right = log.window.Left + width;
    log.window.bottom = log.window.Top + height;
    log.client = {0, 0, width - 2 * border_, height - 2 * border_};
    if (control && !(before == log.window)) control->Resize();
}

void FakeComponent::Width(float twips) {
    SetPixelSize(Pixels(twips), PixelHeight());
}

void FakeComponent::Height(float twips) {
    log.Add(PlainCall("Height", {static_cast<std::int32_t>(twips)}));
    SetPixelSize(log.window.Right - log.window.Left, Pixels(twips));
}

void FakeComponent::Size(float width, float height) {
    SetPixelSize(Pixels(width), Pixels(height));
}

void FakeComponent::BackColor(OLE_COLOR color) {
    log.Add(PlainCall("BackColor", {color}));
    backColor_ = color;
}

void FakeComponent::ForeColor(OLE_COLOR color) {
    log.Add(PlainCall("ForeColor", {color}));
    foreColor_ = color;
}

void FakeComponent::Font(const host::Font& from) {
    log.Add(PlainCall("Font", {static_cast<std::int32_t>(from.Size())}, from.Name()));
    font->value = host::ValueOf(from);
}

void FakeComponent::FontTransparent(bool transparent) {
    log.Add(PlainCall("FontTransparent", {transparent}));
    fontTransparent_ = transparent;
}

void FakeComponent::Appearance(std::int16_t appearance) {
    if (appearance < 0 || appearance > 1) throw Error("no such appearance");
    log.Add(PlainCall("Appearance", {appearance}));
    appearance_ = appearance;
}

void FakeComponent::BorderStyle(std::int16_t style) {
    if (style < 0 || style > 1) throw Error("no such border style");
    log.Add(PlainCall("BorderStyle", {style}));
    borderStyle_ = style;
}

} // namespace tvok::test
