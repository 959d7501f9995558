/// Where the handles of a control are, and where a drag of them leads. Pixels of the designed form.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tvok/tvok.h"

namespace gallery {

inline constexpr std::int32_t GridStep = 8;   ///< Between the points of the grid.
inline constexpr std::int32_t HandleSize = 7; ///< Of each side of a handle.
inline constexpr std::int32_t LeastSide = 8;  ///< That a drag leaves of a control.

inline constexpr std::int16_t LeftButton = 1;                           // in events of the mouse
inline constexpr std::int16_t ShiftBit = 1, ControlBit = 2, AltBit = 4; // in `shift` of events
bool Snaps(std::int16_t shift); ///< Whether a drag keeps to the grid: neither Shift nor Alt is held.

/// The edges that a handle moves: -1 the left or top one, 1 the right or bottom one, 0 neither.
struct Grip {
    std::int32_t x = 0;
    std::int32_t y = 0;
    friend bool operator==(const Grip&, const Grip&) = default;
};

/// Clockwise from the left top.
inline constexpr std::array<Grip, 8> Grips{
    {{-1, -1}, {0, -1}, {1, -1}, {1, 0}, {1, 1}, {0, 1}, {-1, 1}, {-1, 0}}};

/// The handle stands on the middle of its edge or on its corner, half outside.
tvok::tvok_Rect HandleRect(const tvok::Placement& place, Grip grip);
/// The one at a point; of two that share it, the one that comes last clockwise.
std::optional<Grip> GripAt(const tvok::Placement& place, std::int32_t x, std::int32_t y);
std::int16_t PointerOf(Grip grip); ///< The shape of the mouse pointer over it.

std::int32_t Snapped(std::int32_t value); ///< To the nearest line of the grid; half way, to the next.

/// The place after its handle was dragged by (dx, dy). With `snap` each edge that it moves comes to a line of
/// the grid. At least `LeastSide` stays, unless there was less: the opposite edge never moves.
tvok::Placement Resized(const tvok::Placement& from, Grip grip, std::int32_t dx, std::int32_t dy, bool snap);

/// The move by which `lead` comes to the grid after (dx, dy), for all that move along with it.
tvok::host::Point SnappedMove(const tvok::Placement& lead, std::int32_t dx, std::int32_t dy, bool snap);

tvok::tvok_Rect RectOf(const tvok::Placement& place);
/// The rectangle between two corners.
tvok::tvok_Rect Between(tvok::host::Point a, tvok::host::Point b);
bool Touches(const tvok::tvok_Rect& rect, const tvok::Placement& place);

} // namespace gallery
