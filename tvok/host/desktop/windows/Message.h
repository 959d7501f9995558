/// A window message.
#pragma once

#include <cstdint>

#include "tvok/host/constants.h"

namespace tvok::soft {

struct Message {
    host::Handle hWnd = 0;
    std::int32_t message = 0;
    std::int32_t wParam = 0;
    std::int32_t lParam = 0;
};

/// Two 16-bit numbers in one word. What does not fit is cut.
constexpr std::int32_t PackWords(std::int32_t low, std::int32_t high) {
    return static_cast<std::int32_t>((static_cast<std::uint32_t>(low) & 0xFFFFu) |
                                     static_cast<std::uint32_t>(high) << 16);
}
constexpr std::int32_t LowWord(std::int32_t packed) {
    return static_cast<std::int16_t>(static_cast<std::uint32_t>(packed) & 0xFFFFu);
}
constexpr std::int32_t HighWord(std::int32_t packed) {
    return static_cast<std::int16_t>(static_cast<std::uint32_t>(packed) >> 16);
}

} // namespace tvok::soft
