/// The function keys that the gallery hears, as virtual key codes.
#pragma once

#include <cstdint>

#include "tvok/host/constants.h"

namespace gallery {

inline constexpr std::int32_t F2 = tvok::host::VK_F1 + 1; ///< Edits a row.
inline constexpr std::int32_t F4 =
    tvok::host::VK_F1 + 3; ///< Opens a row's popup, or the choice of a control.
inline constexpr std::int32_t F6 = tvok::host::VK_F1 + 5; ///< Goes around the panes.
inline constexpr std::int32_t F9 = tvok::host::VK_F1 + 8; ///< Hides and shows them.

} // namespace gallery
