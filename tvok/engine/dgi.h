/// Drawing helpers under every control. Colours are colour values; GDI objects are made and freed within each
/// call, and the pen and brush in use before are selected back.
#pragma once

#include <cstdint>
#include <string>

#include "tvok/host/Font.h"
#include "tvok/host/Platform.h"

/// Drawing helpers over `host::platform()`.
namespace tvok::dgi {

/// Pen inside the frame. Sets raster operation 13 and leaves it set. `fill` false draws the frame alone.
void DrawBoxRect(std::int32_t hDC, const tvok_Rect& rect, std::int32_t width, OLE_COLOR lineColor,
                 OLE_COLOR fillColor, bool fill);
void FillRectColor(std::int32_t hDC, const tvok_Rect& rect, OLE_COLOR color);  ///< Also a system colour.
void FrameRectColor(std::int32_t hDC, const tvok_Rect& rect, OLE_COLOR color); ///< One pixel wide, inside.
/// The four bands of `outer` around `inner`: left, right, above, below. They overlap in the corners.
void FillRectFrame(std::int32_t hDC, const tvok_Rect& outer, const tvok_Rect& inner, OLE_COLOR color);

/// A plain colour as it stands; a system colour by `GetSysColor`.
std::int32_t TranslateColor(OLE_COLOR color);

/// `rect` grown by `d` on every side; a negative `d` shrinks it. Throws `OverflowError` past 32 bits.
tvok_Rect InflatedRect(const tvok_Rect& rect, std::int32_t d);
tvok_Rect MakeRect(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom);
tvok_Rect GetClientScreenRect(std::int32_t hWnd); ///< In screen coordinates.
/// `rect` moved by the context's origin as seen from the window.
tvok_Rect RectToWindowDC(std::int32_t hDC, std::int32_t hWnd, const tvok_Rect& rect);
bool IsFocusWindow(std::int32_t hWnd); ///< Whether it has the focus.

/// x from the low and y from the high 16 bits, each signed.
host::Point PointFromLParam(std::int32_t lParam);
std::int32_t LParamFromPoint(std::int32_t x, std::int32_t y); ///< The way back.

/// Pixels of a font of this size; 0 where it cannot be told.
std::int32_t PointsToPixels(float points);
/// Whole pixels of a length or place in twips: both numbers are rounded, and the quotient loses its fraction.
/// Throws `OverflowError` where the result does not fit or `twipsPerPixel` rounds to 0.
std::int32_t TwipsToPixels(float twips, float twipsPerPixel);

/// Face name and size of the default GUI font. False when it cannot be read.
bool GetSystemFont(std::string& name, float& size);

/// Sets the system font's name, and with the flag its size. Errors are ignored.
void ApplySystemFont(const host::FontPtr& font, bool setSize);

/// Whether the button that selects is down, also where the user swapped the buttons.
bool IsPrimaryButtonDown();

} // namespace tvok::dgi
