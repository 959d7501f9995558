/// Between pixels of the desktop and pixels of a screen that shows them larger or smaller.
#pragma once

#include <cstddef>
#include <cstdint>

#include "tvok/host/desktop/pixels/Surface.h"
#include "tvok/records/tvok_declare.h"

namespace tvok::soft {

/// A length or a place of the desktop on the screen, rounded.
std::int32_t ToScreen(std::int32_t pixels, float scale);
/// The desktop pixel in which a screen pixel lies, counted from the same corner.
std::int32_t FromScreen(std::int32_t pixels, float scale);

/// The screen pixels that change when `rect` of a surface does, within `width` by `height` screen pixels.
tvok_Rect ScaledRect(const tvok_Rect& rect, float scale, std::int32_t width, std::int32_t height);

/// Writes the screen pixels of `rect` to `to`, whose rows are `pitch` pixels apart and which starts at the
/// screen pixel (0, 0). A whole factor repeats pixels; other factors blend neighbours. A pixel's value does
/// not depend on `rect`, so parts fit together. Pixels that show nothing of the surface stay.
void ScalePixels(const Surface& from, float scale, const tvok_Rect& rect, Pixel* to, std::size_t pitch);

} // namespace tvok::soft
