#include "tvok/host/desktop/windows/HandleTable.h"

#include <gtest/gtest.h>

namespace tvok::soft {
namespace {

TEST(HandleTable, AStaleHandleNamesNothingThroughManyUsesOfOnePlace) {
    HandleTable<int> table(1);
    int object = 0;
    const host::Handle stale = table.Add(&object);
    table.Remove(stale);
    for (int use = 0; use < 100'000; ++use) {
        const host::Handle handle = table.Add(&object);
        ASSERT_EQ(table.Find(stale), nullptr) << "after " << use << " uses";
        table.Remove(handle);
    }
}

TEST(HandleTable, UsesEveryPlaceWhenItIsFull) {
    HandleTable<int> table(1);
    int object = 0;
    host::Handle last = 0;
    for (int i = 0; i < 0xFFFF; ++i) last = table.Add(&object);
    EXPECT_THROW(table.Add(&object), ResourceError);
    table.Remove(last);
    const host::Handle again = table.Add(&object);
    EXPECT_NE(again, last);
    EXPECT_EQ(table.Find(again), &object);
    EXPECT_THROW(table.Add(&object), ResourceError);
}

} // namespace
} // namespace tvok::soft
