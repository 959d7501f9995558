#include "tvok/host/Platform.h"

#include <gtest/gtest.h>

#include <limits>
#include <thread>

#include "tests/support/CallLog.h"
#include "tvok/host/Services.h"
#include "tvok/records/Error.h"

namespace tvok::host {
namespace {

constexpr std::int32_t cLargest = std::numeric_limits<std::int32_t>::max();

TEST(Platform, IsTheThreadsOwn) {
    test::CallLog log;
    Platform* before = SetPlatform(&log);
    EXPECT_EQ(&platform(), &log);
    std::thread([] { EXPECT_THROW(platform(), ObjectError); }).join();
    EXPECT_EQ(SetPlatform(before), &log);
}

TEST(Services, AreTheThreadsOwn) {
    std::thread([] {
        EXPECT_EQ(SetServices(nullptr), nullptr);
        EXPECT_THROW(services(), ObjectError);
    }).join();
}

TEST(InflateRect, ShrinksByANegativeAmountAlsoPastNothing) {
    tvok_Rect rect{10, 20, 12, 40};
    Platform::InflateRect(rect, -3, 5);
    EXPECT_EQ(rect, (tvok_Rect{13, 15, 9, 45}));
}

TEST(InflateRect, ThrowsWhereAnEdgeDoesNotFitAndLeavesTheRectangle) {
    tvok_Rect rect{0, 0, cLargest, 10};
    EXPECT_THROW(Platform::InflateRect(rect, 1, 1), OverflowError);
    EXPECT_EQ(rect, (tvok_Rect{0, 0, cLargest, 10}));
    EXPECT_THROW(Platform::OffsetRect(rect, 1, 0), OverflowError);
}

TEST(IntersectRect, OfRectanglesThatOnlyTouchIsEmptyAndAllNull) {
    tvok_Rect common{1, 2, 3, 4};
    EXPECT_FALSE(Platform::IntersectRect(common, {0, 0, 10, 10}, {10, 0, 20, 10}));
    EXPECT_EQ(common, tvok_Rect{});
    EXPECT_TRUE(Platform::IntersectRect(common, {0, 0, 10, 10}, {9, 9, 20, 20}));
    EXPECT_EQ(common, (tvok_Rect{9, 9, 10, 10}));
}

TEST(IntersectRect, WithAnEmptyRectangleIsEmpty) {
    tvok_Rect common;
    EXPECT_FALSE(Platform::IntersectRect(common, {0, 0, 10, 10}, {5, 5, 5, 8}));
    EXPECT_FALSE(Platform::IntersectRect(common, {8, 0, 2, 10}, {0, 0, 10, 10}));
}

TEST(IsRectEmpty, AnswersOneForARectangleWithoutAPixel) {
    EXPECT_EQ(Platform::IsRectEmpty({0, 0, 0, 5}), 1);
    EXPECT_EQ(Platform::IsRectEmpty({0, 5, 5, 4}), 1);
    EXPECT_EQ(Platform::IsRectEmpty({0, 0, 1, 1}), 0);
}

TEST(PtInRect, HasLeftAndTopAndNotRightAndBottom) {
    const tvok_Rect rect{10, 20, 30, 40};
    EXPECT_TRUE(Platform::PtInRect(rect, {10, 20}));
    EXPECT_TRUE(Platform::PtInRect(rect, {29, 39}));
    EXPECT_FALSE(Platform::PtInRect(rect, {30, 39}));
    EXPECT_FALSE(Platform::PtInRect(rect, {29, 40}));
    EXPECT_FALSE(Platform::PtInRect(rect, {9, 20}));
}

TEST(LstrlenA, CountsBytesUpToTheZeroCharacter) {
    EXPECT_EQ(Platform::lstrlenA("\u00E9x"), 3);
    EXPECT_EQ(Platform::lstrlenA(nullptr), 0);
}

} // namespace
} // namespace tvok::host
