/// Keys of SDL as the platform's virtual key codes.
#pragma once

#include <cstdint>

#include <SDL_keyboard.h>

namespace tvok::soft {

/// Letters and digits follow the user's layout, and stand where they stand on a Latin keyboard for a layout
/// without them. Keypad keys depend on the number lock. 0 for a key without a code.
std::int32_t VirtualKeyOf(const SDL_Keysym& key);

} // namespace tvok::soft
