/// What the tests of qRoster in a window have in common.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tests/support/TestDesktop.h"

namespace tvok::test {

/// "item 1" to "item COUNT".
inline std::vector<std::string> Items(int count) {
    std::vector<std::string> texts;
    for (int i = 1; i <= count; ++i) texts.push_back("item " + std::to_string(i));
    return texts;
}

/// Of a list, in pixels: its bar begins there.
inline std::int32_t ClientWidth(TestDesktop& desktop, qRoster& list) {
    tvok_Rect client;
    host::platform().GetClientRect(desktop.WindowOf(list), client);
    return client.Right;
}

} // namespace tvok::test
