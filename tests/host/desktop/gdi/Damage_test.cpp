#include "tvok/host/desktop/gdi/Damage.h"

#include <random>

#include <gtest/gtest.h>

namespace tvok::soft {
namespace {

TEST(Damage, IsEmptyUntilSomethingIsAdded) {
    Damage damage;
    EXPECT_TRUE(damage.IsEmpty());
    damage.Add({5, 5, 5, 9});
    damage.Add({5, 5, 9, 4});
    EXPECT_TRUE(damage.IsEmpty());
    damage.Add({5, 5, 6, 6});
    EXPECT_FALSE(damage.IsEmpty());
}

TEST(Damage, TakeGivesTheAreaAndStartsAnew) {
    Damage damage;
    damage.Add({0, 0, 10, 10});
    EXPECT_EQ(damage.Area(), Region({0, 0, 10, 10}));
    damage.Add({10, 0, 20, 10});
    EXPECT_EQ(damage.Take(), Region({0, 0, 20, 10}));
    EXPECT_TRUE(damage.IsEmpty());
    EXPECT_TRUE(damage.Area().IsEmpty());
}

TEST(Damage, TheAreaIsTheUnionOfWhatWasAdded) {
    std::mt19937 random(7);
    for (int round = 0; round < 30; ++round) {
        Damage damage;
        Region expected;
        const int count = round == 0 ? 6000 : 200;
        for (int i = 0; i < count; ++i) {
            const auto x = static_cast<std::int32_t>(random() % 60);
            const auto y = static_cast<std::int32_t>(random() % 60);
            const tvok_Rect rect{x, y, x + static_cast<std::int32_t>(random() % 9),
                                 y + static_cast<std::int32_t>(random() % 9)};
            damage.Add(rect);
            expected.Add(rect);
        }
        EXPECT_EQ(damage.Area(), expected);
    }
}

TEST(Damage, ARegionIsAddedAsItsBoxes) {
    Region ring({0, 0, 9, 9});
    ring.Subtract({3, 3, 6, 6});
    Damage damage;
    damage.Add(ring);
    EXPECT_EQ(damage.Take(), ring);
}

} // namespace
} // namespace tvok::soft
