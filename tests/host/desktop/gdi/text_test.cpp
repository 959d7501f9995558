#include <gtest/gtest.h>

#include "tests/host/desktop/gdi/DrawnSurface.h"
#include "tests/support/Allocations.h"

namespace tvok::test {
namespace {

constexpr std::int32_t flagsOfCells = host::ETO_OPAQUE | host::ETO_CLIPPED;

TEST(DeviceContextText, AnOpaqueRectangleIsFilledAlsoWithoutText) {
    DrawnSurface canvas(6, 4);
    canvas.dc.BkColor(green);
    const tvok_Rect rect{1, 1, 5, 3};
    canvas.dc.TextOut(1, 1, flagsOfCells, &rect, "", nullptr);
    EXPECT_EQ(canvas.Picture(), (Rows{"......", ".gggg.", ".gggg.", "......"}));
    canvas.dc.BkMode(host::TRANSPARENT_BK);
    canvas.dc.BkColor(red);
    canvas.dc.TextOut(1, 1, host::ETO_OPAQUE, &rect, "", nullptr); // whatever the background mode is
    EXPECT_EQ(canvas.Picture(), (Rows{"......", ".rrrr.", ".rrrr.", "......"}));
}

TEST(DeviceContextText, ClippedTextStaysInItsRectangle) {
    DrawnSurface canvas(60, 30);
    const tvok_Rect rect{10, 8, 30, 16};
    canvas.dc.TextOut(2, 4, flagsOfCells, &rect, "Wgjy Wgjy", nullptr);
    const tvok_Rect ink = canvas.Ink();
    EXPECT_EQ(ink, soft::Intersection(ink, rect));
    EXPECT_FALSE(canvas.Ink() == tvok_Rect{});
    EXPECT_EQ(canvas.damage.Take(), soft::Region(rect));
}

TEST(DeviceContextText, OpaqueModeFillsTheTextsBox) {
    DrawnSurface canvas(80, 30);
    canvas.dc.BkColor(green);
    canvas.dc.TextColor(green);
    canvas.dc.TextOut(5, 4, 0, nullptr, "Apples", nullptr);
    const std::int32_t width = canvas.dc.TextWidth("Apples");
    EXPECT_EQ(canvas.Ink(), (tvok_Rect{5, 4, 5 + width, 4 + canvas.dc.Metrics().height}));
    EXPECT_EQ(canvas.At(5, 4), 0x00FF00u);
}

TEST(DeviceContextText, OpaqueModeFillsBesideAnOpaqueRectangleThatDoesNotClip) {
    DrawnSurface canvas(80, 30);
    canvas.dc.BkColor(green);
    canvas.dc.TextColor(green);
    const tvok_Rect rect{5, 4, 10, 8};
    canvas.dc.TextOut(5, 4, host::ETO_OPAQUE, &rect, "Apples", nullptr);
    EXPECT_EQ(canvas.Ink().Right, 5 + canvas.dc.TextWidth("Apples"));
}

TEST(DeviceContextText, TransparentModeDrawsLettersAlone) {
    DrawnSurface canvas(80, 30);
    canvas.dc.BkColor(green);
    canvas.dc.BkMode(host::TRANSPARENT_BK);
    canvas.dc.TextOut(5, 4, 0, nullptr, "il", nullptr);
    for (std::int32_t y = 0; y < 30; ++y)
        for (std::int32_t x = 0; x < 80; ++x) EXPECT_NE(canvas.At(x, y), 0x00FF00u);
    EXPECT_FALSE(canvas.Ink() == tvok_Rect{});
}

/// Where the letters' box lies for an alignment at (40, 20).
tvok_Rect BoxFor(std::int32_t align) {
    DrawnSurface canvas(80, 40);
    canvas.dc.BkColor(green);
    canvas.dc.TextColor(green);
    EXPECT_EQ(canvas.dc.TextAlign(align), host::TA_LEFT);
    canvas.dc.TextOut(40, 20, 0, nullptr, "mine", nullptr);
    return canvas.Ink();
}

TEST(DeviceContextText, AlignsAtThePoint) {
    DrawnSurface canvas(1, 1);
    const std::int32_t width = canvas.dc.TextWidth("mine");
    const soft::FontMetrics metrics = canvas.dc.Metrics();
    EXPECT_EQ(BoxFor(host::TA_LEFT), (tvok_Rect{40, 20, 40 + width, 20 + metrics.height}));
    EXPECT_EQ(BoxFor(host::TA_RIGHT), (tvok_Rect{40 - width, 20, 40, 20 + metrics.height}));
    EXPECT_EQ(BoxFor(host::TA_CENTER).Left, 40 - width / 2);
    EXPECT_EQ(BoxFor(host::TA_CENTER).Right, 40 - width / 2 + width);
    EXPECT_EQ(BoxFor(host::TA_BOTTOM).bottom, 20);
    EXPECT_EQ(BoxFor(host::TA_RIGHT | host::TA_BASELINE).Top, 20 - metrics.ascent);
}

TEST(DeviceContextText, GivenAdvancesPlaceEachCharacterByItsBytes) {
    const std::int32_t dx[] = {20, 5, 15, 20}; // a, two bytes of e with acute, b
    DrawnSurface apart(100, 24), single(100, 24);
    for (DrawnSurface* canvas : {&apart, &single}) canvas->dc.BkMode(host::TRANSPARENT_BK);
    apart.dc.TextOut(3, 2, 0, nullptr,
                     "a\xC3\xA9"
                     "b",
                     dx);
    single.dc.TextOut(3, 2, 0, nullptr, "a", nullptr);
    single.dc.TextOut(23, 2, 0, nullptr, "\xC3\xA9", nullptr);
    single.dc.TextOut(43, 2, 0, nullptr, "b", nullptr);
    EXPECT_EQ(apart.Picture(), single.Picture());
}

TEST(DeviceContextText, GivenAdvancesMakeTheBackgroundsWidth) {
    const std::int32_t dx[] = {20, 30};
    DrawnSurface canvas(100, 24);
    canvas.dc.BkColor(green);
    canvas.dc.TextColor(green);
    canvas.dc.TextAlign(host::TA_RIGHT);
    canvas.dc.TextOut(90, 0, 0, nullptr, "ab", dx);
    EXPECT_EQ(canvas.Ink().Left, 40);
    EXPECT_EQ(canvas.Ink().Right, 90);
}

TEST(DeviceContextText, UnderlineAndStrikeoutRunAlongTheText) {
    DrawnSurface plain(80, 24), lined(80, 24);
    lined.SelectFont(12, true, true);
    plain.SelectFont(12);
    for (DrawnSurface* canvas : {&plain, &lined}) canvas->dc.TextOut(4, 3, 0, nullptr, "   ", nullptr);
    const soft::FontMetrics metrics = lined.dc.Metrics();
    const std::int32_t baseline = 3 + metrics.ascent;
    EXPECT_EQ(plain.Ink(), tvok_Rect{});
    EXPECT_EQ(lined.Ink(), (tvok_Rect{4, baseline - metrics.strikeout, 4 + lined.dc.TextWidth("   "),
                                      baseline + metrics.underline + metrics.lineWidth}));
    EXPECT_EQ(lined.At(5, baseline + metrics.underline), 0x000000u);
    EXPECT_EQ(lined.At(5, baseline - metrics.strikeout), 0x000000u);
}

TEST(DeviceContextText, ASelectedFontCountsForWhatComesNext) {
    DrawnSurface canvas(10, 10);
    const std::int32_t usual = canvas.dc.TextWidth("width");
    canvas.SelectFont(24);
    EXPECT_GT(canvas.dc.TextWidth("width"), usual * 3 / 2);
    EXPECT_GT(canvas.dc.Metrics().height, 24);
    canvas.dc.Select(canvas.objects.Stock(host::SYSTEM_FONT));
    EXPECT_EQ(canvas.dc.TextWidth("width"), usual);
}

TEST(DeviceContextText, TheStockFontFollowsTheThemeWhileItIsSelected) {
    DrawnSurface canvas(10, 10);
    const std::int32_t usual = canvas.dc.TextWidth("width");
    Theme large = Theme::Classic();
    large.fontPoints = 18;
    canvas.objects.ApplyTheme(large);
    EXPECT_GT(canvas.dc.TextWidth("width"), usual * 3 / 2);
}

TEST(DeviceContextText, UnderWindowsThePartsAreThoseOfTheWholeText) {
    DrawnSurface whole(90, 24), parts(90, 24);
    soft::Region clip({0, 0, 90, 24});
    clip.Subtract(tvok_Rect{20, 5, 33, 12}).Subtract(tvok_Rect{50, 8, 70, 40});
    parts.dc.Clip(clip);
    const tvok_Rect rect{2, 2, 88, 20};
    for (DrawnSurface* canvas : {&whole, &parts})
        canvas->dc.TextOut(2, 3, flagsOfCells, &rect, "Some words of text", nullptr);
    for (std::int32_t y = 0; y < 24; ++y)
        for (std::int32_t x = 0; x < 90; ++x)
            ASSERT_EQ(parts.At(x, y), clip.Contains(x, y) ? whole.At(x, y) : 0xFFFFFFu) << x << ' ' << y;
    EXPECT_EQ(parts.damage.Take(), clip.Intersect(rect));
}

TEST(DeviceContextText, CoordinatesAtTheEndsOf32BitsAreHarmless) {
    DrawnSurface canvas(40, 20);
    canvas.SelectFont(12, true, true);
    const std::int32_t dx[] = {INT32_MAX, INT32_MAX, INT32_MIN, INT32_MAX};
    const tvok_Rect rect{INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX};
    for (const std::int32_t x : {INT32_MIN, INT32_MAX, INT32_MAX - 3, 0})
        for (const std::int32_t y : {INT32_MIN, INT32_MAX, 0})
            for (const std::int32_t align : {0, 2, 6, 8, 24, 30}) {
                canvas.dc.TextAlign(align);
                canvas.dc.TextOut(x, y, 0, nullptr, "text", nullptr);
                canvas.dc.TextOut(x, y, flagsOfCells, &rect, "text", dx);
                tvok_Rect box{x, y, x, y};
                canvas.dc.DrawText("some\ntext", box, host::DT_NOCLIP | host::DT_RIGHT);
                tvok_Rect wide = rect;
                canvas.dc.DrawText("so&me", wide, host::DT_SINGLELINE | host::DT_VCENTER | host::DT_CENTER);
                canvas.dc.DrawText("some text", wide, host::DT_CALCRECT | host::DT_WORDBREAK);
            }
}

TEST(DeviceContextText, WarmDrawingAllocatesNothing) {
    if (!CanCountAllocations()) GTEST_SKIP() << "the sanitizer has a heap of its own";
    DrawnSurface canvas(200, 60);
    host::LogFont font = soft::DescriptionOf("DejaVu Sans", 12);
    font.lfUnderline = 1;
    const host::Handle lined = canvas.objects.Add(soft::FontOf(font));
    const host::Handle plain = canvas.objects.Stock(host::DEFAULT_GUI_FONT);
    const auto draw = [&](std::int32_t i) {
        const tvok_Rect rect{4, 4, 124, 22};
        const std::string_view text =
            std::string_view("Some words of text that differ").substr(static_cast<std::size_t>(i % 8), 12);
        const host::Handle brush = canvas.SolidBrush(i);
        const host::Handle before = canvas.dc.Select(brush);
        canvas.dc.FillRect(rect, brush);
        canvas.dc.FrameRect(rect, brush);
        canvas.dc.Rectangle(rect);
        canvas.dc.TextAlign(i % 2 ? host::TA_LEFT : host::TA_RIGHT);
        canvas.dc.TextOut(4, 6, flagsOfCells, &rect, text, nullptr);
        canvas.dc.Select(i % 3 ? lined : plain);
        canvas.dc.TextOut(4, 6, 0, nullptr, text, nullptr);
        tvok_Rect box = rect;
        canvas.dc.DrawText("&Open the file", box, host::DT_SINGLELINE | host::DT_VCENTER);
        canvas.dc.FocusRect(rect);
        canvas.dc.MoveTo(1, 1, nullptr);
        canvas.dc.LineTo(100, 40);
        canvas.dc.Select(before);
        canvas.objects.Delete(brush);
    };
    soft::Region uncovered;
    const auto page = [&] {
        for (std::int32_t i = 0; i < 100; ++i) draw(i);
        canvas.dc.Scroll(0, -9, {0, 0, 200, 60}, {0, 0, 200, 60}, uncovered);
    };
    page();
    page();
    canvas.damage.Take();
    const std::uint64_t before = Allocations();
    page();
    EXPECT_EQ(Allocations(), before);
}

TEST(DeviceContextText, DrawingLeavesNoObjects) {
    DrawnSurface canvas(50, 20);
    const std::int32_t before = canvas.objects.LiveObjects();
    for (int i = 0; i < 1000; ++i) {
        const host::Handle brush = canvas.SolidBrush(i), pen = canvas.objects.Add(soft::Pen{});
        const host::Handle brushBefore = canvas.dc.Select(brush), penBefore = canvas.dc.Select(pen);
        canvas.dc.Rectangle({0, 0, 20, 20});
        canvas.dc.Select(brushBefore);
        canvas.dc.Select(penBefore);
        EXPECT_TRUE(canvas.objects.Delete(brush));
        EXPECT_TRUE(canvas.objects.Delete(pen));
    }
    EXPECT_EQ(canvas.objects.LiveObjects(), before);
}

} // namespace
} // namespace tvok::test
