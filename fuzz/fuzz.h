/// What every fuzz target has in common.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "tvok/tvok.h"

/// One input. Anything but a return is a finding.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace tvok::fuzz {

inline std::string_view Text(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Ends the program where a property that has to hold does not.
inline void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

/// One desktop in memory for all inputs.
inline Desktop& HeadlessDesktop() {
    static DesktopOptions options = [] {
        DesktopOptions headless;
        headless.display = DesktopOptions::Display::Headless;
        return headless;
    }();
    static Desktop desktop(options);
    return desktop;
}

} // namespace tvok::fuzz
