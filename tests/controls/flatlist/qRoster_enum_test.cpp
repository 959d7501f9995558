#include <gtest/gtest.h>

#include "tests/support/TestDesktop.h"

namespace tvok::test {
namespace {

TEST(qRosterEnumSelectedItem, WhatAHandlerLeavesInTheActionComesBackToTheCaller) {
    TestDesktop desktop;
    auto& list = desktop.Roster({.MultiSelect = 1}, {"ant", "bee", "cat"});
    list.Selecteded(1, 3);
    std::vector<std::int32_t> actions;
    list.events.EnumSelectedItemCallBack = [&](std::int32_t& action, std::int32_t&) {
        actions.push_back(action++);
    };
    std::int32_t action = 7;
    list.EnumSelectedItem(action, true);
    EXPECT_EQ(actions, (std::vector<std::int32_t>{7, 8, 9}));
    EXPECT_EQ(action, 10);
}

} // namespace
} // namespace tvok::test
