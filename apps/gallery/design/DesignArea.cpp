#include "apps/gallery/design/DesignArea.h"

#include <array>
#include <cmath>

#include "tvok/engine/dgi.h"
#include "tvok/host/Services.h"

namespace gallery {

using tvok::host::platform;
using tvok::host::Point;

namespace {

constexpr std::array<Grip, 3> FormGrips{{{1, 0}, {1, 1}, {0, 1}}};
constexpr std::int32_t Gap = 2; // between the form's frame and its handles

/// To the pixel also where a pixel is no whole number of twips, as at 100 dots per inch.
Point PixelsOf(float x, float y) {
    const tvok::host::Screen& screen = tvok::host::services().Screen();
    return {static_cast<std::int32_t>(std::lround(x / screen.TwipsPerPixelX())),
            static_cast<std::int32_t>(std::lround(y / screen.TwipsPerPixelY()))};
}

} // namespace

void DesignArea::Show(DesignedForm& design) {
    design_ = &design;
    Refresh();
}

void DesignArea::ShowHandles(bool show) {
    handles_ = show;
    Refresh();
}

void DesignArea::Refresh() {
    if (component_ != nullptr) platform().InvalidateRect(component_->hWnd(), nullptr, true);
}

void DesignArea::Initialize(tvok::host::Component& component) {
    component_ = &component;
    component.BorderStyle(1);
    component.BackColor(tvok::cWindowBackground);
}

void DesignArea::Terminate() {
    component_ = nullptr;
    if (ended) ended();
}

void DesignArea::GotFocus() {
    if (focused) focused();
}

tvok::Placement DesignArea::Outer() const {
    tvok::tvok_Rect rect;
    platform().GetWindowRect(design_->form().hWnd(), rect);
    Point corner{rect.Left, rect.Top};
    platform().ScreenToClient(component_->hWnd(), corner);
    return {corner.x, corner.y, rect.Right - rect.Left, rect.bottom - rect.Top};
}

/// Outside the form, which covers what is behind it.
tvok::tvok_Rect DesignArea::Handle(Grip grip) const {
    const tvok::Placement place = Outer();
    const auto start = [](std::int32_t side, std::int32_t first, std::int32_t length) {
        return side > 0 ? first + length + Gap : first + (length - HandleSize) / 2;
    };
    const std::int32_t x = start(grip.x, place.left, place.width);
    const std::int32_t y = start(grip.y, place.top, place.height);
    return {x, y, x + HandleSize, y + HandleSize};
}

std::optional<Grip> DesignArea::GripUnder(Point point) const {
    if (!handles_ || design_ == nullptr) return {};
    for (const Grip grip : FormGrips)
        if (tvok::host::Platform::PtInRect(Handle(grip), point)) return grip;
    return {};
}

void DesignArea::Paint() {
    if (component_ == nullptr || design_ == nullptr || !handles_) return;
    const tvok::host::Handle hDC = component_->hDC();
    for (const Grip grip : FormGrips) tvok::dgi::FillRectColor(hDC, Handle(grip), tvok::cHighlight);
}

void DesignArea::MouseDown(std::int16_t& button, std::int16_t&, float& x, float& y) {
    if (button != LeftButton || design_ == nullptr) return;
    start_ = PixelsOf(x, y);
    dragged_ = GripUnder(start_);
    if (!dragged_) {
        if (pressed) pressed();
        return;
    }
    before_ = {0, 0, design_->form().Width(), design_->form().Height()};
    design_->BeginDrag();
}

void DesignArea::MouseMove(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    if (design_ == nullptr) return;
    const Point point = PixelsOf(x, y);
    if (dragged_ && ((button & LeftButton) == 0 || !design_->IsDragging())) { // the mouse or the drag is gone
        dragged_.reset();
        return design_->EndDrag();
    }
    if (!dragged_) {
        const std::optional<Grip> grip = GripUnder(point);
        component_->MousePointer(grip ? PointerOf(*grip) : tvok::host::ccDefault);
        return;
    }
    const tvok::Placement size =
        Resized(before_, *dragged_, point.x - start_.x, point.y - start_.y, Snaps(shift));
    design_->Size(size.width, size.height);
}

void DesignArea::MouseUp(std::int16_t& button, std::int16_t&, float&, float&) {
    if (button != LeftButton || !dragged_) return;
    dragged_.reset();
    design_->EndDrag();
}

} // namespace gallery
