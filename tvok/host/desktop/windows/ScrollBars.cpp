#include "tvok/host/desktop/windows/ScrollBars.h"

#include <algorithm>

#include "tvok/host/desktop/gdi/Frames.h"
#include "tvok/host/desktop/windows/Geometry.h"

namespace tvok::soft {

namespace {

constexpr std::int32_t kSmallestThumb = 8;

std::int32_t Scaled(std::int32_t value, std::int32_t factor, std::int32_t divisor) {
    return static_cast<std::int32_t>((std::int64_t{value} * factor + divisor / 2) / divisor);
}

} // namespace

BarPart BarLayout::PartAt(std::int32_t along) const {
    if (along < 0 || along >= length) return BarPart::None;
    if (along < arrow) return BarPart::LineBack;
    if (along >= length - arrow) return BarPart::LineForward;
    if (thumbLength == 0) return BarPart::None;
    if (along < thumbStart) return BarPart::PageBack;
    return along < thumbStart + thumbLength ? BarPart::Thumb : BarPart::PageForward;
}

std::int32_t BarLayout::ValueAt(std::int32_t start, std::int32_t max) const {
    const std::int32_t way = length - 2 * arrow - thumbLength;
    if (way <= 0) return 0;
    return Scaled(max, std::clamp(start - arrow, 0, way), way);
}

BarLayout Divide(const BarState& state, std::int32_t length, std::int32_t arrow) {
    BarLayout layout;
    layout.length = length;
    layout.arrow = std::min(arrow, length / 2);
    const std::int32_t track = length - 2 * layout.arrow;
    if (state.max <= 0 || track < kSmallestThumb) return layout;
    const std::int64_t page = std::max(state.large, 1);
    const auto proportional = static_cast<std::int32_t>(page * track / (page + state.max));
    layout.thumbLength = std::clamp(proportional, kSmallestThumb, track);
    layout.thumbStart = layout.arrow + Scaled(state.value, track - layout.thumbLength, state.max);
    return layout;
}

void ScrollBars::Arrange(const tvok_Rect& insideFrame, const tvok_Rect& client) {
    verticalPlace_ = {client.Right, insideFrame.Top, insideFrame.Right, client.bottom};
    horizontalPlace_ = {insideFrame.Left, client.bottom, client.Right, insideFrame.bottom};
}

tvok_Rect ScrollBars::Place(Bar bar) const {
    if (!state(bar).shown) return {};
    return bar == Bar::Vertical ? verticalPlace_ : horizontalPlace_;
}

BarLayout ScrollBars::Layout(Bar bar) const {
    const tvok_Rect place = Place(bar);
    const bool upright = bar == Bar::Vertical;
    const std::int32_t thickness = upright ? WidthOf(place) : HeightOf(place);
    return Divide(state(bar), upright ? HeightOf(place) : WidthOf(place), thickness);
}

std::int32_t ScrollBars::Along(Bar bar, host::Point point) const {
    const tvok_Rect place = Place(bar);
    return bar == Bar::Vertical ? point.y - place.Top : point.x - place.Left;
}

std::int32_t ScrollBars::Astray(Bar bar, host::Point point) const {
    const tvok_Rect place = Place(bar);
    const std::int32_t x = std::max({place.Left - point.x, point.x - place.Right, 0});
    const std::int32_t y = std::max({place.Top - point.y, point.y - place.bottom, 0});
    return std::max(x, y);
}

void ScrollBars::Pressed(Bar bar, BarPart part) {
    pressedBar_ = bar;
    pressedPart_ = part;
}

void ScrollBars::Draw(DeviceContext& context, const Theme& theme) const {
    if (vertical_.shown) DrawBar(context, theme, Bar::Vertical);
    if (horizontal_.shown) DrawBar(context, theme, Bar::Horizontal);
    if (vertical_.shown && horizontal_.shown)
        context.FillColor(
            {verticalPlace_.Left, horizontalPlace_.Top, verticalPlace_.Right, horizontalPlace_.bottom},
            theme.colors[host::COLOR_BTNFACE]);
}

void ScrollBars::DrawBar(DeviceContext& context, const Theme& theme, Bar bar) const {
    const tvok_Rect place = Place(bar);
    const BarLayout layout = Layout(bar);
    const bool upright = bar == Bar::Vertical;
    const auto piece = [&](std::int32_t from, std::int32_t to) {
        return upright ? tvok_Rect{place.Left, place.Top + from, place.Right, place.Top + to}
                       : tvok_Rect{place.Left + from, place.Top, place.Left + to, place.bottom};
    };
    const auto pressed = [&](BarPart part) { return pressedBar_ == bar && pressedPart_ == part; };
    const auto button = [&](tvok_Rect rect, std::int32_t symbol, BarPart part) {
        const std::int32_t look = pressed(part) ? host::DFCS_PUSHED | host::DFCS_FLAT : 0;
        const std::int32_t off = state(bar).max > 0 ? 0 : host::DFCS_INACTIVE;
        DrawFrameControl(context, theme, rect, host::DFC_SCROLL, symbol | look | off);
    };
    const auto track = [&](std::int32_t from, std::int32_t to, BarPart part) {
        context.FillColor(piece(from, to),
                          theme.colors[pressed(part) ? host::COLOR_BTNSHADOW : host::COLOR_SCROLLBAR]);
    };

    button(piece(0, layout.arrow), upright ? host::DFCS_SCROLLUP : host::DFCS_SCROLLLEFT, BarPart::LineBack);
    button(piece(layout.length - layout.arrow, layout.length),
           upright ? host::DFCS_SCROLLDOWN : host::DFCS_SCROLLRIGHT, BarPart::LineForward);
    const std::int32_t last = layout.length - layout.arrow;
    if (layout.thumbLength == 0) return track(layout.arrow, last, BarPart::None);
    const std::int32_t thumbEnd = layout.thumbStart + layout.thumbLength;
    track(layout.arrow, layout.thumbStart, BarPart::PageBack);
    track(thumbEnd, last, BarPart::PageForward);
    tvok_Rect thumb = piece(layout.thumbStart, thumbEnd);
    DrawEdge(context, theme, thumb, host::EDGE_RAISED, host::BF_RECT | host::BF_MIDDLE);
}

} // namespace tvok::soft
