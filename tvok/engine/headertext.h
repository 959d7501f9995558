/// What cells of every list share: the font style bits, and the place of a text in a column.
#pragma once

#include <cstdint>

#include "tvok/host/Font.h"
#include "tvok/host/Platform.h"

namespace tvok::mtvok {

/// Sets bold, italic, strikethrough and underline, in this order, from the style bits of `vflag`. A property
/// is written only where it differs, since a write makes the context look up another font. The font stays as
/// it is set.
void ApplyFontStyle(host::Font& font, std::int32_t flags);

/// Sets the opaque background mode, then the font's bold, italic, strikethrough and underline from the style
/// bits of `vflag`. A property is written only where it differs; the font stays as it is set.
void ApplyFontFlags(std::int32_t hDC, const host::FontPtr& font, std::int32_t flags);

/// Where the text of a cell is written, in the middle of its height; sets the context's text alignment.
/// `alignment` 0 is left, 1 right, any other centred, which takes no margin. Divisions drop the fraction
/// toward zero.
host::Point PlaceCellText(std::int32_t hDC, std::int32_t alignment, const tvok_Rect& cell,
                          std::int32_t margin, std::int32_t textHeight);

} // namespace tvok::mtvok
