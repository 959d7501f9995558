/// What a designed form shows besides its controls: the grid, frames and handles.
#pragma once

#include <cstdint>
#include <vector>

#include "tvok/tvok.h"

namespace gallery {

std::vector<tvok::FormMark> Outline(const tvok::tvok_Rect& rect); ///< Of one pixel, inside the rectangle.
/// The frame and the handles of a selected control. Those of the leading one are filled, the others hollow.
std::vector<tvok::FormMark> SelectionMarks(const tvok::Placement& place, bool leads);

/// The points of the grid on a form's own area.
void DrawGrid(tvok::host::Handle hDC, std::int32_t width, std::int32_t height);

} // namespace gallery
