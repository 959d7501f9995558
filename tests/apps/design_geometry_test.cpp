// Handles and drags of a designed form, as numbers.
#include "apps/gallery/design/geometry.h"

#include <gtest/gtest.h>

namespace gallery {
namespace {

using tvok::Placement;

TEST(DesignGeometry, HandlesStandOnCornersAndMiddles) {
    const Placement place{100, 50, 41, 21};
    EXPECT_EQ(HandleRect(place, {-1, -1}), (tvok::tvok_Rect{97, 47, 104, 54}));
    EXPECT_EQ(HandleRect(place, {1, 1}), (tvok::tvok_Rect{137, 67, 144, 74}));
    EXPECT_EQ(HandleRect(place, {0, 1}), (tvok::tvok_Rect{117, 67, 124, 74}));
    EXPECT_EQ(GripAt(place, 100, 50), (Grip{-1, -1}));
    EXPECT_EQ(GripAt(place, 143, 60), (Grip{1, 0}));
    EXPECT_EQ(GripAt(place, 144, 60), std::nullopt);
    EXPECT_EQ(GripAt(place, 110, 60), std::nullopt);
}

TEST(DesignGeometry, TheGridsLinesAreEightApartAlsoLeftOfNothing) {
    for (const auto& [value, line] :
         {std::pair{0, 0}, {3, 0}, {4, 8}, {11, 8}, {12, 16}, {-3, 0}, {-4, 0}, {-5, -8}})
        EXPECT_EQ(Snapped(value), line) << value;
}

TEST(DesignGeometry, EachHandleMovesItsEdgesToTheGridAndNoOther) {
    const Placement from{10, 20, 50, 40};
    EXPECT_EQ(Resized(from, {1, 0}, 5, 99, true), (Placement{10, 20, 54, 40}));
    EXPECT_EQ(Resized(from, {0, 1}, 99, 5, true), (Placement{10, 20, 50, 44}));
    EXPECT_EQ(Resized(from, {-1, 0}, -3, 0, true), (Placement{8, 20, 52, 40}));
    EXPECT_EQ(Resized(from, {0, -1}, 0, -3, true), (Placement{10, 16, 50, 44}));
    EXPECT_EQ(Resized(from, {1, 1}, 5, 6, false), (Placement{10, 20, 55, 46}));
    EXPECT_EQ(Resized(from, {-1, -1}, 5, 6, false), (Placement{15, 26, 45, 34}));
}

TEST(DesignGeometry, AnEdgeStopsBeforeTheOppositeOne) {
    const Placement from{10, 20, 50, 40};
    EXPECT_EQ(Resized(from, {1, 1}, -200, -200, true), (Placement{10, 20, LeastSide, LeastSide}));
    EXPECT_EQ(Resized(from, {-1, -1}, 200, 200, true),
              (Placement{60 - LeastSide, 60 - LeastSide, LeastSide, LeastSide}));
    EXPECT_EQ(Resized({10, 20, 3, 40}, {1, 0}, -200, 0, true), (Placement{10, 20, 3, 40}));
}

TEST(DesignGeometry, AMoveBringsTheLeaderToTheGrid) {
    const auto by = SnappedMove({10, 21, 50, 40}, 5, 5, true);
    EXPECT_EQ(by.x, 6);
    EXPECT_EQ(by.y, 3);
    const auto exact = SnappedMove({10, 21, 50, 40}, 5, 5, false);
    EXPECT_EQ(exact.x, 5);
    EXPECT_EQ(exact.y, 5);
}

TEST(DesignGeometry, ABandTouchesWhatItOverlaps) {
    const tvok::tvok_Rect band = Between({50, 60}, {20, 30});
    EXPECT_EQ(band, (tvok::tvok_Rect{20, 30, 51, 61}));
    EXPECT_TRUE(Touches(band, {50, 60, 10, 10}));
    EXPECT_FALSE(Touches(band, {51, 60, 10, 10}));
    EXPECT_FALSE(Touches(band, {10, 10, 10, 30}));
}

TEST(DesignGeometry, ThePointerShowsTheWay) {
    EXPECT_EQ(PointerOf({0, -1}), tvok::host::ccSizeNS);
    EXPECT_EQ(PointerOf({1, 0}), tvok::host::ccSizeWE);
    EXPECT_EQ(PointerOf({1, 1}), tvok::host::ccSizeNWSE);
    EXPECT_EQ(PointerOf({1, -1}), tvok::host::ccSizeNESW);
}

} // namespace
} // namespace gallery
