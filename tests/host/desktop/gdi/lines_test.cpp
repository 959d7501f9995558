#include <random>

#include <gtest/gtest.h>

#include "tests/host/desktop/gdi/DrawnSurface.h"

namespace tvok::test {
namespace {

void Line(DrawnSurface& canvas, host::Point from, host::Point to) {
    canvas.dc.MoveTo(from.x, from.y, nullptr);
    canvas.dc.LineTo(to.x, to.y);
}

TEST(DeviceContextLine, LeavesOutTheLastPoint) {
    DrawnSurface canvas(6, 5);
    Line(canvas, {1, 1}, {5, 1});
    Line(canvas, {4, 3}, {0, 3});
    EXPECT_EQ(canvas.Picture(), (Rows{"......", ".####.", "......", ".####.", "......"}));
}

TEST(DeviceContextLine, GoesUpAndDown) {
    DrawnSurface canvas(4, 5);
    Line(canvas, {0, 0}, {0, 3});
    Line(canvas, {2, 4}, {2, 1});
    EXPECT_EQ(canvas.Picture(), (Rows{"#...", "#...", "#.#.", "..#.", "..#."}));
}

TEST(DeviceContextLine, GoesAslant) {
    DrawnSurface canvas(6, 4);
    Line(canvas, {0, 0}, {3, 3});
    Line(canvas, {5, 0}, {2, 3});
    EXPECT_EQ(canvas.Picture(), (Rows{"#....#", ".#..#.", "..##..", "......"}));
}

TEST(DeviceContextLine, ToWhereItIsDrawsNothing) {
    DrawnSurface canvas(3, 3);
    Line(canvas, {1, 1}, {1, 1});
    EXPECT_EQ(canvas.Ink(), tvok_Rect{});
}

TEST(DeviceContextLine, MovesThePosition) {
    DrawnSurface canvas(4, 4);
    host::Point before;
    canvas.dc.LineTo(2, 3);
    canvas.dc.MoveTo(0, 0, &before);
    EXPECT_EQ(before, (host::Point{2, 3}));
}

TEST(DeviceContextLine, AWidePenIsWideAcross) {
    DrawnSurface canvas(6, 5);
    canvas.SelectPen(host::PS_SOLID, 3, black);
    Line(canvas, {1, 2}, {5, 2});
    EXPECT_EQ(canvas.Picture(), (Rows{"......", ".####.", ".####.", ".####.", "......"}));
}

TEST(DeviceContextLine, TheNullPenDrawsNothingAndMoves) {
    DrawnSurface canvas(3, 3);
    canvas.dc.Select(canvas.objects.Stock(host::NULL_PEN));
    Line(canvas, {0, 0}, {3, 3});
    canvas.dc.Select(canvas.objects.Stock(host::BLACK_PEN));
    canvas.dc.LineTo(3, 0);
    EXPECT_EQ(canvas.Picture(), (Rows{"...", "...", "..."})); // column 3 lies outside
    canvas.dc.LineTo(0, 0);
    EXPECT_EQ(canvas.Picture(), (Rows{".##", "...", "..."}));
}

TEST(DeviceContextLine, ADottedPenHasGapsInTheBackgroundColour) {
    DrawnSurface canvas(8, 2);
    canvas.SelectPen(host::PS_DOT, 1, black);
    canvas.dc.BkColor(red);
    Line(canvas, {0, 0}, {8, 0});
    canvas.dc.BkMode(host::TRANSPARENT_BK);
    Line(canvas, {0, 1}, {8, 1});
    EXPECT_EQ(canvas.Picture(), (Rows{"###rrr##", "###...##"}));
}

TEST(DeviceContextLine, ADottedRectangleMixesEachPixelOnce) {
    DrawnSurface canvas(9, 8);
    canvas.SelectPen(host::PS_DOT, 1, black);
    canvas.dc.Select(canvas.objects.Stock(host::HOLLOW_BRUSH));
    canvas.dc.Rop2(host::R2_NOT);
    canvas.dc.Rectangle({1, 1, 8, 7}); // gaps are inverted too in the opaque mode
    EXPECT_EQ(canvas.Picture(), (Rows{".........", ".#######.", ".#.....#.", ".#.....#.", ".#.....#.",
                                      ".#.....#.", ".#######.", "........."}));
}

TEST(DeviceContextLine, StaysWithinItsClip) {
    DrawnSurface canvas(5, 3);
    soft::Region clip({0, 0, 2, 3});
    clip.Add({3, 0, 4, 3});
    canvas.dc.Clip(clip);
    Line(canvas, {-9, 1}, {9, 1});
    EXPECT_EQ(canvas.Picture(), (Rows{".....", "##.#.", "....."}));
}

TEST(DeviceContextLine, AVisiblePartOfALongLineIsTheSameAsWithoutAClip) {
    std::mt19937 random(3);
    for (int round = 0; round < 200; ++round) {
        const auto place = [&] { return static_cast<std::int32_t>(random() % 60); };
        const host::Point from{place(), place()}, to{place(), place()};
        const tvok_Rect part{20, 15, 41, 38};
        DrawnSurface whole(60, 60), clipped(60, 60);
        clipped.dc.Clip(soft::Region(part));
        for (DrawnSurface* canvas : {&whole, &clipped}) {
            canvas->SelectPen(round % 2 ? host::PS_SOLID : host::PS_DOT, 1 + round % 3, black);
            Line(*canvas, from, to);
        }
        for (std::int32_t y = 0; y < 60; ++y)
            for (std::int32_t x = 0; x < 60; ++x) {
                const bool inside = x >= part.Left && x < part.Right && y >= part.Top && y < part.bottom;
                ASSERT_EQ(clipped.At(x, y), inside ? whole.At(x, y) : 0xFFFFFFu) << x << ' ' << y;
            }
    }
}

TEST(DeviceContextLine, CoordinatesAtTheEndsOf32BitsDrawWhatIsVisible) {
    DrawnSurface canvas(5, 5);
    canvas.SelectPen(host::PS_SOLID, 1, black);
    Line(canvas, {INT32_MIN, 2}, {INT32_MAX, 2});
    Line(canvas, {2, INT32_MAX}, {2, INT32_MIN});
    EXPECT_EQ(canvas.Picture(), (Rows{"..#..", "..#..", "#####", "..#..", "..#.."}));
    Line(canvas, {INT32_MIN, INT32_MIN}, {INT32_MAX, INT32_MAX}); // through (0, 0), (1, 1) ...
    EXPECT_EQ(canvas.Picture(), (Rows{"#.#..", ".##..", "#####", "..##.", "..#.#"}));
    canvas.SelectPen(host::PS_DASH, 1, black);
    Line(canvas, {INT32_MAX, INT32_MIN}, {INT32_MIN, INT32_MAX});
    Line(canvas, {INT32_MIN, 3}, {INT32_MAX, 4});
}

TEST(DeviceContextLine, ShapesAtTheEndsOf32BitsDrawWhatIsVisible) {
    DrawnSurface canvas(4, 4);
    for (const std::int32_t width : {1, 2, 7, INT32_MAX}) {
        for (const std::int32_t style : {host::PS_SOLID, host::PS_INSIDEFRAME, host::PS_NULL, host::PS_DOT}) {
            canvas.dc.Select(canvas.objects.Stock(host::BLACK_PEN));
            canvas.SelectPen(style, width, black);
            canvas.dc.Rectangle({INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX});
            canvas.dc.Rectangle({INT32_MAX - 1, INT32_MAX - 1, INT32_MAX, INT32_MAX});
            Line(canvas, {INT32_MIN, INT32_MIN}, {INT32_MAX, 7});
        }
    }
    canvas.dc.FillColor({INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX}, green);
    EXPECT_EQ(canvas.Picture(), (Rows{"gggg", "gggg", "gggg", "gggg"}));
    canvas.dc.FrameColor({INT32_MIN, INT32_MIN, 2, INT32_MAX}, red);
    EXPECT_EQ(canvas.Picture(), (Rows{"grgg", "grgg", "grgg", "grgg"}));
    canvas.dc.FocusRect({INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX});
    EXPECT_EQ(canvas.Picture(), (Rows{"grgg", "grgg", "grgg", "grgg"}));
    soft::Region uncovered;
    canvas.dc.Scroll(INT32_MIN, INT32_MAX, {INT32_MIN, 0, INT32_MAX, 3}, {0, INT32_MIN, 4, INT32_MAX},
                     uncovered);
    EXPECT_EQ(uncovered, soft::Region({0, 0, 4, 3}));
}

} // namespace
} // namespace tvok::test
