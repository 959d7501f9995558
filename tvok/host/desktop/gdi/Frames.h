/// The three-dimensional parts of the desktop: edges, buttons, arrows and marks.
#pragma once

#include "tvok/host/desktop/gdi/DeviceContext.h"

namespace tvok::soft {

/// Draws one or two lines inside `rect`. `edge`: BDR_* bits, one of the outer and one of the inner pair; with
/// both of a pair that line is left out and the answer is false. `flags`: BF_* bits: the sides, and
/// - BF_MIDDLE: fills what is inside the lines with the button face;
/// - BF_ADJUST: `rect` becomes what is inside the lines;
/// - BF_SOFT: the outer and the inner light change places, as on buttons;
/// - BF_FLAT: shadow outside, button face inside; BF_MONO: window frame outside, window inside.
bool DrawEdge(DeviceContext& context, const Theme& theme, tvok_Rect& rect, std::int32_t edge,
              std::int32_t flags);

/// Fills `rect` with a part: `type` DFC_CAPTION (close cross), DFC_SCROLL (arrows) or DFC_BUTTON (push
/// button, check box, radio button); `state` DFCS_* bits. Arrows and marks grow with the rectangle. An empty
/// rectangle draws nothing. False for a part that there is none of.
bool DrawFrameControl(DeviceContext& context, const Theme& theme, const tvok_Rect& rect, std::int32_t type,
                      std::int32_t state);

} // namespace tvok::soft
