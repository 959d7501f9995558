/// What is on screen is what a repaint would show: the cases in which moving pixels alone would not do.
#include "tests/support/FakeLargeList.h"

namespace tvok::test {
namespace {

TEST(LargeListShown, AScrollAfterANewCountWithTheNewestFirstRepaintsInFull) {
    FakeLargeList f({}, 0);
    for (int i = 0; i < 20; ++i) f.list.AddItemTop();
    f.list.Count(19); // row 19 is at the top now, and the position has not changed
    f.Forget();
    f.hook().ScrollValue(1);
    EXPECT_EQ(f.TakeScrolls(), (Rows{}));
    EXPECT_EQ(f.TakeAsked(), (Rows{18, 17, 16, 15, 14}));
    f.hook().ScrollValue(2);
    EXPECT_EQ(f.TakeScrolls(), (Rows{-20}));
}

TEST(LargeListShown, TheTextOfAnEmptyListDoesNotSlideDownWithTheFirstRow) {
    FakeLargeList f;
    f.list.ClearText("nothing here");
    f.Forget();
    f.list.AddItemTop();
    const auto fills = f.log().Named("FillRect");
    EXPECT_TRUE(std::ranges::any_of(fills, [](const Call& call) {
        return call.rect == tvok_Rect{0, 20, 200, 41};
    }));
    EXPECT_EQ(std::ranges::count(f.asked, 1), static_cast<std::ptrdiff_t>(f.asked.size()));
}

TEST(LargeListShown, APositionKeptWithoutABarIsRepaintedWhenAnAddLimitsIt) {
    FakeLargeList f({}, 0);
    for (int i = 0; i < 40; ++i) f.list.AddItemTop();
    f.hook().ScrollValue(20);
    f.list.Count(5);
    ASSERT_FALSE(f.hook().ScrollBarShown());
    ASSERT_EQ(f.hook().ScrollValue(), 20);
    f.Forget();
    f.list.AddItemTop();
    EXPECT_EQ(f.hook().ScrollValue(), 1);
    EXPECT_EQ(f.TakeAsked(), (Rows{5, 4, 3, 2, 1}));
}

TEST(LargeListShown, RowsOfHeightZeroAreAnErrorAndNoCrash) {
    FakeLargeList f({}, 3);
    f.bag.stored["ItemHeight"] = 0;
    EXPECT_THROW(f.list.ReadProperties(f.bag), OverflowError);
    f.list.ItemHeight(20);
    EXPECT_EQ(f.list.yn(), 5);
}

} // namespace
} // namespace tvok::test
