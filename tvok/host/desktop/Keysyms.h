/// Keys of the X Window System, for a program that feeds a desktop from there.
#pragma once

#include <cstdint>

namespace tvok::desktop {

/// The virtual key code for `Input::KeyDown` and `KeyUp` of a keysym as X11, xkbcommon and GDK have them; 0
/// where there is none, such as for the level shift, and then nothing is to be fed. Letters come in either
/// case. A sign of another level has no key of its own: ask for the keysym of the key's first level.
std::int32_t VirtualKeyOfKeysym(std::uint32_t keysym);

} // namespace tvok::desktop
