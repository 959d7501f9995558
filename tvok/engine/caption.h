/// The text of a control that is one caption, plain or on the band that shows the focus.
#pragma once

#include <cstdint>
#include <string_view>

#include "tvok/records/tvok_declare.h"

namespace tvok::mtvok {

/// Fills `area` with the highlight colour and draws the focus rectangle on it. Gives the caption's colour on
/// it, 0x00BBGGRR. Leaves the context's background colour as that of highlighted text.
std::int32_t DrawFocusBand(std::int32_t hDC, const tvok_Rect& area);

/// The text in this colour, which is not translated, a pixel inside `area` at its left and right. `format` is
/// that of `DrawTextA`. Throws `OverflowError` where the area has no place in 32 bits.
void DrawCaption(std::int32_t hDC, tvok_Rect area, std::string_view text, std::int32_t color,
                 std::int32_t format);

} // namespace tvok::mtvok
