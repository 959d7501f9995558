#include "tvok/host/desktop/Keysyms.h"

#include <gtest/gtest.h>

#include "tvok/host/constants.h"

namespace tvok::test {
namespace {

using desktop::VirtualKeyOfKeysym;

TEST(Keysyms, LettersAndDigitsAreTheirOwnKeysInEitherCase) {
    EXPECT_EQ(VirtualKeyOfKeysym('a'), 'A');
    EXPECT_EQ(VirtualKeyOfKeysym('Z'), 'Z');
    EXPECT_EQ(VirtualKeyOfKeysym('0'), '0');
    EXPECT_EQ(VirtualKeyOfKeysym('9'), '9');
    EXPECT_EQ(VirtualKeyOfKeysym(' '), host::VK_SPACE);
}

TEST(Keysyms, KeysThatMoveHaveTheirOwnOrder) {
    const std::int32_t moving[] = {host::VK_HOME, host::VK_LEFT,  host::VK_UP,   host::VK_RIGHT,
                                   host::VK_DOWN, host::VK_PRIOR, host::VK_NEXT, host::VK_END};
    for (std::uint32_t i = 0; i < 8; ++i) {
        EXPECT_EQ(VirtualKeyOfKeysym(0xFF50 + i), moving[i]) << i;
        EXPECT_EQ(VirtualKeyOfKeysym(0xFF95 + i), moving[i]) << "of the keypad, " << i;
    }
}

TEST(Keysyms, EditingAndShiftingKeys) {
    EXPECT_EQ(VirtualKeyOfKeysym(0xFF08), host::VK_BACK);
    EXPECT_EQ(VirtualKeyOfKeysym(0xFF09), host::VK_TAB);
    EXPECT_EQ(VirtualKeyOfKeysym(0xFE20), host::VK_TAB) << "with Shift";
    EXPECT_EQ(VirtualKeyOfKeysym(0xFF0D), host::VK_RETURN);
    EXPECT_EQ(VirtualKeyOfKeysym(0xFF8D), host::VK_RETURN) << "of the keypad";
    EXPECT_EQ(VirtualKeyOfKeysym(0xFF1B), host::VK_ESCAPE);
    EXPECT_EQ(VirtualKeyOfKeysym(0xFFFF), host::VK_DELETE);
    EXPECT_EQ(VirtualKeyOfKeysym(0xFFE2), host::VK_SHIFT);
    EXPECT_EQ(VirtualKeyOfKeysym(0xFFE4), host::VK_CONTROL);
    EXPECT_EQ(VirtualKeyOfKeysym(0xFFE9), host::VK_MENU);
    EXPECT_EQ(VirtualKeyOfKeysym(0xFFBE), host::VK_F1);
    EXPECT_EQ(VirtualKeyOfKeysym(0xFFC9), host::VK_F12);
    EXPECT_EQ(VirtualKeyOfKeysym(0xFFB0 + 5), 101) << "5 of the keypad";
    EXPECT_EQ(VirtualKeyOfKeysym(0xFFAA), 106) << "multiply";
}

TEST(Keysyms, WhatIsNoKeyHasNone) {
    EXPECT_EQ(VirtualKeyOfKeysym(0), 0);
    EXPECT_EQ(VirtualKeyOfKeysym('!'), 0);
    EXPECT_EQ(VirtualKeyOfKeysym(0xFE03), 0) << "the level shift";
    EXPECT_EQ(VirtualKeyOfKeysym(0xFE50), 0) << "a dead accent";
    EXPECT_EQ(VirtualKeyOfKeysym(0xFFFFFFFF), 0);
}

} // namespace
} // namespace tvok::test
