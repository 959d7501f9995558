/// The two scroll bars of a window's frame: what they hold, how they are divided, and how they look.
#pragma once

#include <cstdint>

#include "tvok/host/desktop/Theme.h"
#include "tvok/host/desktop/gdi/DeviceContext.h"

namespace tvok::soft {

class SoftMessageHook;

enum class Bar { Vertical, Horizontal };

/// A position from 0 to `max`, a page step, and whether the bar takes room in the frame.
struct BarState {
    std::int32_t value = 0;
    std::int32_t max = 0;
    std::int32_t large = 1;
    bool shown = false;
};

enum class BarPart { None, LineBack, LineForward, PageBack, PageForward, Thumb };

/// How a bar is divided, in pixels from its beginning.
struct BarLayout {
    std::int32_t length = 0;
    std::int32_t arrow = 0; ///< Of one arrow button.
    std::int32_t thumbStart = 0;
    std::int32_t thumbLength = 0; ///< 0: no thumb, there is no range or no room.

    BarPart PartAt(std::int32_t along) const;
    /// The position that a thumb at `start` stands for.
    std::int32_t ValueAt(std::int32_t start, std::int32_t max) const;
};

/// The thumb is to the track as the page is to the whole, at least 8 pixels.
BarLayout Divide(const BarState& state, std::int32_t length, std::int32_t arrow);

/// Belongs to a message hook; the window of the hook shows it.
class ScrollBars {
public:
    explicit ScrollBars(SoftMessageHook& hook) : hook_(hook) {}

    SoftMessageHook& hook() const { return hook_; }
    BarState& state(Bar bar) { return bar == Bar::Vertical ? vertical_ : horizontal_; }
    const BarState& state(Bar bar) const { return bar == Bar::Vertical ? vertical_ : horizontal_; }
    const BarState& vertical() const { return vertical_; }
    const BarState& horizontal() const { return horizontal_; }

    /// Puts the bars between the client area and the rest of the frame; surface coordinates, as all here.
    void Arrange(const tvok_Rect& insideFrame, const tvok_Rect& client);
    /// Empty for a bar that is not shown.
    tvok_Rect Place(Bar bar) const;
    BarLayout Layout(Bar bar) const;
    /// Pixels from the bar's beginning to a point.
    std::int32_t Along(Bar bar, host::Point point) const;
    /// How far outside the bar a point is, in pixels; 0 over it.
    std::int32_t Astray(Bar bar, host::Point point) const;

    /// Which arrow or page looks pressed.
    void Pressed(Bar bar, BarPart part);
    void Draw(DeviceContext& context, const Theme& theme) const;

private:
    void DrawBar(DeviceContext& context, const Theme& theme, Bar bar) const;

    SoftMessageHook& hook_;
    BarState vertical_;
    BarState horizontal_;
    tvok_Rect verticalPlace_;
    tvok_Rect horizontalPlace_;
    Bar pressedBar_ = Bar::Vertical;
    BarPart pressedPart_ = BarPart::None;
};

} // namespace tvok::soft
