#include "tvok/host/desktop/gdi/GdiObjects.h"

#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/Allocations.h"

namespace tvok::soft {
namespace {

TEST(GdiObjects, AHandleFindsTheObjectThatWasAdded) {
    GdiObjects objects(Theme::Classic());
    const host::Handle brush = objects.Add(Brush{false, 0x123456});
    const host::Handle pen = objects.Add(Pen{host::PS_INSIDEFRAME, 3, 7});
    EXPECT_GT(brush, 0);
    EXPECT_EQ(std::get<Brush>(*objects.Find(brush)).color, 0x123456);
    EXPECT_EQ(std::get<Pen>(*objects.Find(pen)).width, 3);
}

TEST(GdiObjects, ADeletedHandleFindsNothingThoughItsPlaceIsUsedAgain) {
    GdiObjects objects(Theme::Classic());
    const host::Handle first = objects.Add(Brush{});
    ASSERT_TRUE(objects.Delete(first));
    for (int i = 0; i < 100'000; ++i) {
        const host::Handle other = objects.Add(Brush{});
        ASSERT_NE(other, first);
        ASSERT_EQ(objects.Find(first), nullptr);
        ASSERT_TRUE(objects.Delete(other));
    }
    EXPECT_FALSE(objects.Delete(first));
}

TEST(GdiObjects, HandlesThatWereNeverGivenFindNothing) {
    GdiObjects objects(Theme::Classic());
    for (const host::Handle handle : {0, 1, 25, -1, INT32_MAX, INT32_MIN, 0x1FFFF}) {
        EXPECT_EQ(objects.Find(handle), nullptr) << handle;
        EXPECT_FALSE(objects.Delete(handle)) << handle;
        objects.AddUse(handle, 1);
    }
}

TEST(GdiObjects, AnObjectInUseIsNotDeleted) {
    GdiObjects objects(Theme::Classic());
    const host::Handle pen = objects.Add(Pen{});
    objects.AddUse(pen, 1);
    EXPECT_FALSE(objects.Delete(pen));
    objects.AddUse(pen, -1);
    EXPECT_TRUE(objects.Delete(pen));
}

TEST(GdiObjects, StockObjectsStandAndAreNotCounted) {
    GdiObjects objects(Theme::Classic());
    for (const std::int32_t index : {0, 1, 2, 3, 4, 5, 6, 7, 8, 13, 17}) {
        const host::Handle stock = objects.Stock(index);
        ASSERT_NE(objects.Find(stock), nullptr) << index;
        EXPECT_FALSE(objects.Delete(stock)) << index;
    }
    EXPECT_EQ(objects.Stock(9), 0);
    EXPECT_EQ(objects.Stock(-1), 0);
    EXPECT_EQ(objects.Stock(18), 0);
    EXPECT_EQ(objects.Stock(INT32_MAX), 0);
    EXPECT_TRUE(std::get<Brush>(*objects.Find(objects.Stock(host::HOLLOW_BRUSH))).hollow);
    EXPECT_EQ(objects.LiveObjects(), 0);
}

TEST(GdiObjects, LiveObjectsCountsWhatWasNotDeleted) {
    GdiObjects objects(Theme::Classic());
    std::vector<host::Handle> handles;
    for (int i = 0; i < 1000; ++i) handles.push_back(objects.Add(Brush{false, i}));
    EXPECT_EQ(objects.LiveObjects(), 1000);
    for (int i = 0; i < 1000; ++i)
        EXPECT_EQ(std::get<Brush>(*objects.Find(handles[static_cast<std::size_t>(i)])).color, i);
    for (const host::Handle handle : handles) EXPECT_TRUE(objects.Delete(handle));
    EXPECT_EQ(objects.LiveObjects(), 0);
}

TEST(GdiObjects, AFullTableGivesNoHandleUntilOneIsDeleted) {
    GdiObjects objects(Theme::Classic());
    host::Handle last = 0;
    while (const host::Handle handle = objects.Add(Brush{})) last = handle;
    EXPECT_GE(objects.LiveObjects(), 60'000);
    ASSERT_TRUE(objects.Delete(last));
    EXPECT_NE(objects.Add(Brush{}), 0);
    EXPECT_EQ(objects.Add(Brush{}), 0);
}

TEST(GdiObjects, TheDefaultFontIsDescribedByItsPixelsAndFace) {
    GdiObjects objects(Theme::Classic());
    host::LogFont font;
    ASSERT_EQ(objects.Describe(objects.Stock(host::DEFAULT_GUI_FONT), 60, &font), 60);
    EXPECT_EQ(font.lfHeight, -12); // 9 points at 96 dots per inch
    EXPECT_EQ(font.lfWeight, 400);
    EXPECT_STREQ(font.lfFaceName, "DejaVu Sans");
}

TEST(GdiObjects, TheDefaultFontFollowsTheTheme) {
    GdiObjects objects(Theme::Classic());
    const host::Handle stock = objects.Stock(host::DEFAULT_GUI_FONT);
    const std::int32_t before = objects.Revision();
    Theme theme = Theme::Dark();
    theme.dotsPerInch = 192;
    theme.fontName = "A face with a name of more than thirty-one letters";
    objects.ApplyTheme(theme);
    host::LogFont font;
    ASSERT_EQ(objects.Describe(stock, 60, &font), 60);
    EXPECT_EQ(font.lfHeight, -24);
    EXPECT_STREQ(font.lfFaceName, "A face with a name of more than");
    EXPECT_NE(objects.Revision(), before);
}

TEST(GdiObjects, DescribeCopiesNoMoreThanAskedFor) {
    GdiObjects objects(Theme::Classic());
    const host::Handle stock = objects.Stock(host::DEFAULT_GUI_FONT);
    std::uint8_t bytes[8] = {9, 9, 9, 9, 9, 9, 9, 9};
    EXPECT_EQ(objects.Describe(stock, 4, bytes), 4);
    EXPECT_EQ(bytes[4], 9);
    EXPECT_EQ(objects.Describe(stock, -5, bytes), 0);
    EXPECT_EQ(objects.Describe(stock, 0, nullptr), 60);
    EXPECT_EQ(objects.Describe(objects.Stock(host::WHITE_BRUSH), 60, bytes), 0);
    EXPECT_EQ(objects.Describe(0, 60, bytes), 0);
}

TEST(GdiObjects, AFontIsWhatItsDescriptionAsksFor) {
    host::LogFont description = DescriptionOf("Serif", 20);
    description.lfWeight = 700;
    description.lfItalic = 1;
    description.lfStrikeOut = 1;
    const GdiFont font = FontOf(description);
    EXPECT_EQ(font.spec, (FontSpec{"Serif", 20, true, true}));
    EXPECT_TRUE(font.strikeout);
    EXPECT_FALSE(font.underline);
}

TEST(GdiObjects, FontHeightsOfAnySizeGiveAUsableFont) {
    host::LogFont description;
    for (const std::int32_t height : {INT32_MIN, INT32_MAX, 0, 1, -1}) {
        description.lfHeight = height;
        const GdiFont font = FontOf(description);
        EXPECT_GE(font.spec.pixelHeight, 1) << height;
        EXPECT_LE(font.spec.pixelHeight, 4096) << height;
    }
    std::memset(description.lfFaceName, 'x', sizeof description.lfFaceName); // no zero character
    EXPECT_EQ(FontOf(description).spec.face, std::string(32, 'x'));
}

TEST(GdiObjects, MakingAndFreeingBrushesAllocatesNothingOnceWarm) {
    if (!test::CanCountAllocations()) GTEST_SKIP() << "the sanitizer has a heap of its own";
    GdiObjects objects(Theme::Classic());
    objects.Delete(objects.Add(Brush{}));
    const std::uint64_t before = test::Allocations();
    for (int i = 0; i < 10'000; ++i) objects.Delete(objects.Add(Brush{false, i}));
    EXPECT_EQ(test::Allocations(), before);
}

} // namespace
} // namespace tvok::soft
