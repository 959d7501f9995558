#include <bit>
#include <random>

#include <gtest/gtest.h>

#include "tests/host/desktop/gdi/DrawnSurface.h"
#include "tvok/host/desktop/pixels/ImageList.h"

namespace tvok::test {
namespace {

constexpr tvok_Rect everything{INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX};

TEST(DeviceContext, FillRectIsHalfOpen) {
    DrawnSurface canvas(5, 4);
    EXPECT_TRUE(canvas.dc.FillRect({1, 1, 4, 3}, canvas.SolidBrush(black)));
    EXPECT_EQ(canvas.Picture(), (Rows{".....", ".###.", ".###.", "....."}));
    EXPECT_EQ(canvas.damage.Take(), soft::Region({1, 1, 4, 3}));
}

TEST(DeviceContext, ColoursAreBlueGreenRed) {
    DrawnSurface canvas(3, 1);
    canvas.dc.FillColor({0, 0, 1, 1}, red);
    canvas.dc.FillColor({1, 0, 2, 1}, 0x563412);
    canvas.dc.FillColor({2, 0, 3, 1}, static_cast<std::int32_t>(0x80000008)); // the high byte does not count
    EXPECT_EQ(canvas.At(0, 0), 0xFF0000u);
    EXPECT_EQ(canvas.At(1, 0), 0x123456u);
    EXPECT_EQ(canvas.At(2, 0), 0x080000u);
}

TEST(DeviceContext, AHollowBrushFillsNothingAndABadOneFails) {
    DrawnSurface canvas(2, 2);
    EXPECT_TRUE(canvas.dc.FillRect(everything, canvas.objects.Stock(host::HOLLOW_BRUSH)));
    EXPECT_TRUE(canvas.dc.FrameRect(everything, canvas.objects.Stock(host::HOLLOW_BRUSH)));
    EXPECT_FALSE(canvas.dc.FillRect(everything, 0));
    EXPECT_FALSE(canvas.dc.FrameRect(everything, canvas.objects.Stock(host::BLACK_PEN)));
    EXPECT_EQ(canvas.Picture(), (Rows{"..", ".."}));
    EXPECT_TRUE(canvas.damage.IsEmpty());
}

TEST(DeviceContext, EmptyAndInvertedRectanglesDrawNothing) {
    DrawnSurface canvas(4, 4);
    for (const tvok_Rect& rect : {tvok_Rect{2, 1, 2, 3}, tvok_Rect{3, 1, 1, 3}, tvok_Rect{1, 3, 3, 1},
                                  tvok_Rect{INT32_MAX, INT32_MAX, INT32_MIN, INT32_MIN}}) {
        canvas.dc.FillColor(rect, black);
        canvas.dc.FrameColor(rect, black);
        canvas.dc.Rectangle(rect);
        canvas.dc.FocusRect(rect);
    }
    EXPECT_EQ(canvas.Ink(), tvok_Rect{});
    EXPECT_TRUE(canvas.damage.IsEmpty());
}

TEST(DeviceContext, FrameRectIsOnePixelWide) {
    DrawnSurface canvas(6, 5);
    canvas.dc.FrameRect({1, 1, 5, 4}, canvas.SolidBrush(red));
    EXPECT_EQ(canvas.Picture(), (Rows{"......", ".rrrr.", ".r..r.", ".rrrr.", "......"}));
}

TEST(DeviceContext, CoordinatesStartAtTheOrigin) {
    DrawnSurface canvas(5, 3);
    canvas.dc.Target(&canvas.surface, 2, 1, &canvas.damage);
    canvas.dc.FillColor({0, 0, 2, 1}, black);
    EXPECT_EQ(canvas.Picture(), (Rows{".....", "..##.", "....."}));
    EXPECT_EQ(canvas.damage.Take(), soft::Region({2, 1, 4, 2}));
}

TEST(DeviceContext, DrawsInsideTheClipAlone) {
    DrawnSurface canvas(6, 4);
    soft::Region clip({0, 0, 2, 4});
    clip.Add({4, 1, 9, 9}); // reaches beyond the surface
    canvas.dc.Clip(clip);
    canvas.dc.FillColor(everything, black);
    EXPECT_EQ(canvas.Picture(), (Rows{"##....", "##..##", "##..##", "##..##"}));
    EXPECT_EQ(canvas.damage.Take(), clip.Intersect(tvok_Rect{0, 0, 6, 4}));
}

TEST(DeviceContext, WithoutASurfaceOrAClipNothingIsDrawn) {
    DrawnSurface canvas(2, 2);
    canvas.dc.Clip(soft::Region());
    canvas.dc.FillColor(everything, black);
    canvas.dc.Target(nullptr, 0, 0, nullptr);
    canvas.dc.Clip(soft::Region({0, 0, 2, 2}));
    canvas.dc.FillColor(everything, black);
    canvas.dc.Rectangle(everything);
    canvas.dc.LineTo(5, 5);
    canvas.dc.TextOut(0, 0, 6, &everything, "text", nullptr);
    EXPECT_EQ(canvas.Ink(), tvok_Rect{});
}

TEST(DeviceContext, RectangleHasAnOutlineAndAnInside) {
    DrawnSurface canvas(6, 5);
    canvas.SelectPen(host::PS_SOLID, 1, black);
    canvas.SelectBrush(green);
    canvas.dc.Rectangle({1, 1, 5, 4});
    EXPECT_EQ(canvas.Picture(), (Rows{"......", ".####.", ".#gg#.", ".####.", "......"}));
}

TEST(DeviceContext, AHollowBrushLeavesTheInside) {
    DrawnSurface canvas(5, 4);
    canvas.SelectPen(host::PS_SOLID, 0, red);
    canvas.dc.Select(canvas.objects.Stock(host::HOLLOW_BRUSH));
    canvas.dc.Rectangle({0, 0, 4, 4});
    EXPECT_EQ(canvas.Picture(), (Rows{"rrrr.", "r..r.", "r..r.", "rrrr."}));
}

TEST(DeviceContext, TheNullPenMakesARectangleOnePixelSmaller) {
    DrawnSurface canvas(5, 4);
    canvas.dc.Select(canvas.objects.Stock(host::NULL_PEN));
    canvas.SelectBrush(blue);
    canvas.dc.Rectangle({1, 1, 5, 4});
    EXPECT_EQ(canvas.Picture(), (Rows{".....", ".bbb.", ".bbb.", "....."}));
}

TEST(DeviceContext, AnInsideFramePenStaysInsideTheRectangle) {
    DrawnSurface canvas(8, 7);
    canvas.SelectPen(host::PS_INSIDEFRAME, 2, black);
    canvas.SelectBrush(red);
    canvas.dc.Rectangle({1, 1, 7, 6});
    EXPECT_EQ(canvas.Picture(),
              (Rows{"........", ".######.", ".######.", ".##rr##.", ".######.", ".######.", "........"}));
}

TEST(DeviceContext, AnInsideFramePenWiderThanTheRectangleFillsIt) {
    DrawnSurface canvas(6, 5);
    canvas.SelectPen(host::PS_INSIDEFRAME, INT32_MAX, black);
    canvas.dc.Rectangle({1, 1, 5, 4});
    EXPECT_EQ(canvas.Picture(), (Rows{"......", ".####.", ".####.", ".####.", "......"}));
}

TEST(DeviceContext, AWideSolidPenStandsOnTheOutermostPixels) {
    DrawnSurface canvas(9, 9);
    canvas.SelectPen(host::PS_SOLID, 3, black);
    canvas.SelectBrush(green);
    canvas.dc.Rectangle({2, 2, 7, 7});
    EXPECT_EQ(canvas.Picture(), (Rows{".........", ".#######.", ".#######.", ".#######.", ".###g###.",
                                      ".#######.", ".#######.", ".#######.", "........."}));
}

TEST(DeviceContext, InvertingTwiceLeavesThePixels) {
    DrawnSurface canvas(7, 6);
    canvas.dc.FillColor({0, 0, 4, 6}, 0x336699);
    const Rows before = canvas.Picture();
    EXPECT_EQ(canvas.dc.Rop2(host::R2_NOT), host::R2_COPYPEN);
    canvas.dc.Rectangle({1, 1, 6, 5});
    EXPECT_EQ(canvas.At(1, 1), 0xFFFFFFu ^ 0x996633u);
    EXPECT_EQ(canvas.At(3, 3), 0xFFFFFFu ^ 0x996633u); // the inside too
    EXPECT_EQ(canvas.At(5, 4), 0x000000u);
    canvas.dc.Rectangle({1, 1, 6, 5});
    EXPECT_EQ(canvas.Picture(), before);
}

TEST(DeviceContext, TheXorPenMixesWithWhatIsThere) {
    DrawnSurface canvas(4, 1);
    canvas.SelectPen(host::PS_SOLID, 1, 0x0000F0);
    canvas.dc.Rop2(host::R2_XORPEN);
    canvas.dc.MoveTo(1, 0, nullptr);
    canvas.dc.LineTo(3, 0);
    EXPECT_EQ(canvas.At(0, 0), 0xFFFFFFu);
    EXPECT_EQ(canvas.At(1, 0), 0x0FFFFFu);
    EXPECT_EQ(canvas.At(3, 0), 0xFFFFFFu);
}

TEST(DeviceContext, EveryRasterOperationHasItsTruthTable) {
    const std::uint32_t pen = 0xCC, pixel = 0xAA;
    const std::uint32_t expected[16] = {0,
                                        ~(pen | pixel),
                                        ~pen & pixel,
                                        ~pen,
                                        pen & ~pixel,
                                        ~pixel,
                                        pen ^ pixel,
                                        ~(pen & pixel),
                                        pen & pixel,
                                        ~(pen ^ pixel),
                                        pixel,
                                        ~pen | pixel,
                                        pen,
                                        pen | ~pixel,
                                        pen | pixel,
                                        ~0u};
    for (std::int32_t mode = 1; mode <= 16; ++mode) {
        DrawnSurface canvas(1, 1);
        canvas.dc.FillColor({0, 0, 1, 1}, 0xAA0000); // blue in a colour value, the low byte of a pixel
        canvas.SelectPen(host::PS_SOLID, 1, 0xCC0000);
        canvas.dc.Rop2(mode);
        canvas.dc.Rectangle({0, 0, 1, 1});
        EXPECT_EQ(canvas.At(0, 0) & 0xFF, expected[mode - 1] & 0xFF) << mode;
        EXPECT_EQ(canvas.At(0, 0) >> 24, 0u) << mode;
    }
}

TEST(DeviceContext, ModesThatThereAreNoneOfChangeNothing) {
    DrawnSurface canvas(1, 1);
    EXPECT_EQ(canvas.dc.Rop2(0), 0);
    EXPECT_EQ(canvas.dc.Rop2(17), 0);
    EXPECT_EQ(canvas.dc.Rop2(7), host::R2_COPYPEN);
    EXPECT_EQ(canvas.dc.BkMode(3), 0);
    EXPECT_EQ(canvas.dc.BkMode(host::TRANSPARENT_BK), host::OPAQUE_BK);
    EXPECT_EQ(canvas.dc.BkMode(host::OPAQUE_BK), host::TRANSPARENT_BK);
    EXPECT_EQ(canvas.dc.TextColor(5), 0);
    EXPECT_EQ(canvas.dc.TextColor(6), 5);
    EXPECT_EQ(canvas.dc.BkColor(7), 0xFFFFFF);
    EXPECT_EQ(canvas.dc.TextAlign(2), 0);
    EXPECT_EQ(canvas.dc.TextAlign(0), 2);
}

TEST(DeviceContext, FillsDoNotFollowTheRasterOperation) {
    DrawnSurface canvas(3, 3);
    canvas.dc.Rop2(host::R2_NOT);
    canvas.dc.FillColor({0, 0, 3, 3}, red);
    canvas.dc.FrameColor({0, 0, 3, 3}, black);
    EXPECT_EQ(canvas.Picture(), (Rows{"###", "#r#", "###"}));
}

TEST(DeviceContext, FocusRectIsDottedAndTwiceLeavesThePixels) {
    DrawnSurface canvas(7, 5);
    canvas.dc.FocusRect({1, 1, 6, 4});
    EXPECT_EQ(canvas.Picture(), (Rows{".......", ".#.#.#.", ".......", ".#.#.#.", "......."}));
    canvas.dc.FocusRect({1, 1, 6, 4});
    EXPECT_EQ(canvas.Ink(), tvok_Rect{});
}

TEST(DeviceContext, FocusRectMixesTheTextAndTheBackgroundColour) {
    DrawnSurface canvas(4, 2);
    canvas.dc.TextColor(0x0000FF);
    canvas.dc.BkColor(0xFF0000);
    canvas.dc.FocusRect({0, 0, 4, 2});
    EXPECT_EQ(canvas.At(0, 0), 0xFFFFFFu ^ 0x0000FFu);
    EXPECT_EQ(canvas.At(1, 0), 0xFFFFFFu ^ 0xFF0000u);
    EXPECT_EQ(canvas.At(0, 1), 0xFFFFFFu ^ 0xFF0000u);
}

TEST(DeviceContext, ThinFocusRectsMixEachPixelOnce) {
    for (const tvok_Rect& rect : {tvok_Rect{0, 0, 1, 5}, tvok_Rect{0, 0, 5, 1}, tvok_Rect{0, 0, 2, 2},
                                  tvok_Rect{0, 0, 1, 1}, tvok_Rect{0, 0, 2, 5}}) {
        DrawnSurface canvas(6, 6);
        canvas.dc.FocusRect(rect);
        for (std::int32_t y = 0; y < rect.bottom; ++y)
            for (std::int32_t x = 0; x < rect.Right; ++x)
                EXPECT_EQ(canvas.At(x, y), (x + y) % 2 == 0 ? 0x000000u : 0xFFFFFFu) << x << ' ' << y;
    }
}

TEST(DeviceContext, AScrolledFocusRectMatchesOneDrawnWhereItArrived) {
    DrawnSurface canvas(9, 12);
    canvas.dc.FocusRect({1, 1, 8, 6});
    soft::Region uncovered;
    canvas.dc.Scroll(0, 3, {0, 0, 9, 12}, {0, 0, 9, 12}, uncovered);
    canvas.dc.FillColor({0, 0, 9, 3}, white);
    canvas.dc.FocusRect({1, 4, 8, 9});
    EXPECT_EQ(canvas.Ink(), tvok_Rect{});
}

TEST(DeviceContext, SelectGivesTheObjectOfTheSameKindBefore) {
    DrawnSurface canvas(1, 1);
    auto& objects = canvas.objects;
    const host::Handle pen = objects.Add(soft::Pen{}), brush = objects.Add(soft::Brush{});
    EXPECT_EQ(canvas.dc.Select(pen), objects.Stock(host::BLACK_PEN));
    EXPECT_EQ(canvas.dc.Select(brush), objects.Stock(host::WHITE_BRUSH));
    EXPECT_EQ(canvas.dc.Select(objects.Stock(host::DEFAULT_GUI_FONT)), objects.Stock(host::SYSTEM_FONT));
    EXPECT_EQ(canvas.dc.Select(12345), 0);
    EXPECT_EQ(canvas.dc.Select(pen), pen);
    EXPECT_FALSE(objects.Delete(pen));
    EXPECT_EQ(canvas.dc.Select(objects.Stock(host::BLACK_PEN)), pen);
    EXPECT_TRUE(objects.Delete(pen));
}

TEST(DeviceContext, AContextThatGoesLetsItsObjectsGo) {
    soft::GdiObjects objects(Theme::Classic());
    const host::Handle pen = objects.Add(soft::Pen{});
    {
        soft::DeviceContext dc(objects, PinnedText());
        dc.Select(pen);
        EXPECT_FALSE(objects.Delete(pen));
    }
    EXPECT_TRUE(objects.Delete(pen));
    EXPECT_EQ(objects.LiveObjects(), 0);
}

TEST(DeviceContext, ImagesAreClippedToTheVisiblePart) {
    DrawnSurface canvas(5, 3);
    const soft::ImageList images(std::vector<std::uint32_t>(8, 0xFF0000FF), 2);
    soft::Region clip({0, 0, 2, 3});
    clip.Add({3, 0, 5, 3});
    canvas.dc.Clip(clip);
    EXPECT_TRUE(canvas.dc.Image(images, 1, 1, 1, true));
    EXPECT_TRUE(canvas.dc.Image(images, 0, 4, -1, true));
    EXPECT_TRUE(canvas.dc.Image(images, 0, INT32_MAX, INT32_MIN, true));
    EXPECT_FALSE(canvas.dc.Image(images, 2, 0, 0, true));
    EXPECT_FALSE(canvas.dc.Image(images, -1, 0, 0, true));
    EXPECT_EQ(canvas.Picture(), (Rows{"....b", ".b...", ".b..."}));
}

} // namespace
} // namespace tvok::test
