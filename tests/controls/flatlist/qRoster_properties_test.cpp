// Properties: what is ignored, what is stored, and what repaints at run time and at design time.

#include "tests/support/FakeRoster.h"

#include <climits>
#include <functional>

namespace tvok::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Every property that is plainly stored, in one table.

struct PlainProperty {
    const char* name;
    std::function<std::int32_t(qRoster&)> get;
    std::function<void(qRoster&, std::int32_t)> set;
    std::int32_t value;
    std::vector<std::int32_t> ignored;
    const char* effect; ///< In run mode: "", "paint" or "refresh".
};

void PrintTo(const PlainProperty& property, std::ostream* out) {
    *out << property.name;
}

#define TVOK_NUMBER(name)                                                                                    \
#name, [](qRoster &                                                                                      \
              list) -> std::int32_t { return list.name(); }, [](qRoster & list,                              \
                                                                std::int32_t value) { list.name(value); }
#define TVOK_SWITCH(name)                                                                                    \
#name,                                                                                                   \
        [](qRoster & list)                                                                                   \
             -> std::int32_t { return list.name() ? 1 : 0; },                                                \
                                                           [](qRoster & list,                                \
                                                              std::int32_t value) { list.name(value != 0); }

const std::vector<PlainProperty> cProperties = {
    {TVOK_NUMBER(ItemHeight), 30, {0, -1, INT_MIN}, "refresh"},
    {TVOK_NUMBER(ItemWidth), 30, {-1, INT_MIN}, "refresh"},
    {TVOK_NUMBER(GridlineWidth), 2, {-1, INT_MIN}, "refresh"},
    {TVOK_NUMBER(GridlineColor), 0x123456, {}, "paint"},
    {TVOK_SWITCH(GridlineOnBorder), 1, {}, "refresh"},
    {TVOK_SWITCH(FixedHeight), 1, {}, "refresh"},
    {TVOK_NUMBER(CX_TEXT), 33, {-1, INT_MIN}, ""},
    {TVOK_NUMBER(IconPos), 0x02020808, {}, "paint"},
    {TVOK_NUMBER(BackColor), 0x123456, {}, "paint"},
    {TVOK_NUMBER(SelectedColor), 0x123456, {}, "paint"},
    {TVOK_NUMBER(IconBorderColor), 0x123456, {}, "paint"},
    {TVOK_NUMBER(HeadWidthEx), 12, {}, "paint"},
    {TVOK_NUMBER(HeadExBackColor), 0x123456, {}, ""},
    {TVOK_NUMBER(HeadExBorderColor), 0x123456, {}, ""},
    {TVOK_SWITCH(HotTrack), 1, {}, ""},
    {TVOK_NUMBER(MultiSelect), 1, {-1, 2, INT_MAX, INT_MIN}, ""},
};

class qRosterPlainProperty : public ::testing::TestWithParam<PlainProperty> {};

TEST_P(qRosterPlainProperty, IsStoredAndShownInRunMode) {
    FakeRoster roster({}, {"ant", "bee"});
    GetParam().set(roster.list, GetParam().value);
    EXPECT_EQ(roster.TakeEffect(), GetParam().effect);
    EXPECT_EQ(GetParam().get(roster.list), GetParam().value);
}

TEST_P(qRosterPlainProperty, IsStoredWithoutPaintingAtDesignTime) {
    FakeRoster roster({.UserMode = false});
    EXPECT_NO_THROW(GetParam().set(roster.list, GetParam().value));
    EXPECT_EQ(roster.TakeEffect(), "");
    EXPECT_EQ(GetParam().get(roster.list), GetParam().value);
}

TEST_P(qRosterPlainProperty, IgnoresValuesOutOfItsRange) {
    FakeRoster roster({}, {"ant", "bee"});
    const auto before = GetParam().get(roster.list);
    for (const auto value : GetParam().ignored) {
        GetParam().set(roster.list, value);
        EXPECT_EQ(GetParam().get(roster.list), before) << value;
    }
    EXPECT_THAT(roster.log().All(), IsEmpty());
}

TEST_P(qRosterPlainProperty, TakesTheSameValueOnceMoreWithTheSameEffect) {
    FakeRoster roster({}, {"ant", "bee"});
    GetParam().set(roster.list, GetParam().value);
    roster.log().Clear();
    GetParam().set(roster.list, GetParam().value);
    EXPECT_EQ(roster.TakeEffect(), GetParam().effect);
}

INSTANTIATE_TEST_SUITE_P(Each, qRosterPlainProperty, ::testing::ValuesIn(cProperties),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(qRosterProperties, LowestAllowedValuesAreTaken) {
    FakeRoster roster({}, {"ant"});
    roster.list.ItemHeight(1);
    roster.list.ItemWidth(0);
    roster.list.GridlineWidth(0);
    roster.list.CX_TEXT(0);
    roster.list.xn(1);
    roster.list.yn(1);
    EXPECT_EQ(roster.list.ItemHeight(), 1);
    EXPECT_EQ(roster.list.ItemWidth(), 0);
    EXPECT_EQ(roster.list.CX_TEXT(), 0);
    EXPECT_EQ(roster.list.yn(), 1);
}

// Defaults.

TEST(qRosterProperties, DefaultsAfterALoadFromAnEmptyBag) {
    FakeComponent component(true, 200, 90);
    qRoster list;
    FakeBag bag;
    component.control = &list;
    list.Initialize(component);
    list.ReadProperties(bag);
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(list.xn(), 1);
    EXPECT_FALSE(list.XnAuto());
    EXPECT_EQ(list.ItemHeight(), 18);
    EXPECT_EQ(list.ItemWidth(), 100);
    EXPECT_EQ(list.GridlineWidth(), 1);
    EXPECT_EQ(list.GridlineColor(), SystemColor(0x16));
    EXPECT_FALSE(list.GridlineOnBorder());
    EXPECT_TRUE(list.FixedHeight());
    EXPECT_FALSE(list.FixedWidthForLastXn());
    EXPECT_EQ(list.CX_TEXT(), 20);
    EXPECT_EQ(list.IconPos(), 16846864);
    EXPECT_EQ(list.BackColor(), SystemColor(5));
    EXPECT_EQ(list.SelectedColor(), SystemColor(0x0D));
    EXPECT_EQ(list.IconBorderColor(), SystemColor(6));
    EXPECT_EQ(list.HeadWidthEx(), 0);
    EXPECT_EQ(list.HeadExBackColor(), SystemColor(0x16));
    EXPECT_EQ(list.HeadExBorderColor(), SystemColor(0x0F));
    EXPECT_FALSE(list.HotTrack());
    EXPECT_EQ(list.ColWidthSettingStr(), "");
    EXPECT_EQ(list.TabStopSettingStr(), "");
    EXPECT_EQ(list.SortedMode(), 0);
    EXPECT_EQ(list.MultiSelect(), 0);
    EXPECT_EQ(list.TmpKey(), "");
    EXPECT_TRUE(list.TmpData().IsEmpty());
    EXPECT_EQ(list.IconHandle(), 0);
    EXPECT_EQ(list.Appearance(), 0);
    EXPECT_EQ(list.BorderStyle(), 1);
    EXPECT_TRUE(list.FontTransparent());
    list.Terminate();
}

// Icons.

TEST(qRosterProperties, ReadingIconHandleGivesZeroAndEndsTheDrawingOfImages) {
    FakeRoster roster;
    roster.list.IconHandle(44);
    EXPECT_THAT(roster.log().All(), IsEmpty());
    roster.list.AddItem(0, {.text = "ant", .IconID = 2, .vflag = vflag::IconBox});
    roster.list.Refresh();
    ASSERT_EQ(roster.log().Named("ImageList_Draw").size(), 1u);
    EXPECT_EQ(roster.log().Named("ImageList_Draw")[0].values[0], 44);
    roster.log().Clear();
    EXPECT_EQ(roster.list.IconHandle(), 0);
    roster.list.PaintAll();
    for (const auto& call : roster.log().Named("ImageList_Draw")) EXPECT_EQ(call.values[0], 0);
    roster.log().Clear();
    roster.list.IconHandle(45);
    roster.list.PaintAll();
    EXPECT_EQ(roster.log().Named("ImageList_Draw").at(0).values[0], 45);
}

TEST(qRosterProperties, IconIdZeroFillsTheBoxAndDrawsNoImage) {
    FakeRoster roster;
    roster.list.IconHandle(44);
    roster.list.AddItem(0, {.IconID = 0, .IconBackColor = 0x777777, .vflag = vflag::IconBox});
    roster.list.Refresh();
    EXPECT_TRUE(roster.log().Named("ImageList_Draw").empty());
    const auto fills = roster.log().Named("FillRect");
    EXPECT_TRUE(std::ranges::count(fills, FillRectCall({1, 1, 17, 17}, 0x777777)) == 1);
}

// Colours.

TEST(qRosterProperties, BackColorGoesToTheBaseComponentAlsoAtDesignTime) {
    FakeRoster roster({}, {"ant"});
    roster.list.BackColor(0x112233);
    EXPECT_EQ(roster.component.BackColor(), 0x112233);
    FakeRoster design({.UserMode = false});
    design.list.BackColor(0x112233);
    EXPECT_EQ(design.component.BackColor(), 0x112233);
}

TEST(qRosterProperties, BlankCellsTakeBackColorAndItemsTheirOwn) {
    FakeRoster roster({}, {"ant"});
    roster.list.BackColor(0x112233);
    EXPECT_EQ(roster.log().Named("ExtTextOutA").at(0).values[4], Sys(5));
    const auto fills = roster.log().Named("FillRect");
    EXPECT_EQ(std::ranges::count(fills, FillRectCall({0, 18, 200, 36}, 0x112233)), 1);
}

TEST(qRosterProperties, SelectedColorShowsOnSelectedItemsWithoutTheFocus) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.ListIndex(2);
    roster.log().Clear();
    roster.list.SelectedColor(0x445566);
    const auto drawn = roster.log().Named("ExtTextOutA");
    ASSERT_EQ(drawn.size(), 2u);
    EXPECT_EQ(drawn[1].values[3], Sys(14));
    EXPECT_EQ(drawn[1].values[4], 0x445566);
    EXPECT_TRUE(roster.log().Named("DrawFocusRect").empty());
}

// Font.

TEST(qRosterProperties, TextHeightReadsTheFontWhileThePainterKeepsItsLineHeight) {
    FakeRoster roster({}, {"ant"});
    roster.list.PaintAll();
    const auto y = roster.log().Named("ExtTextOutA").at(0).values[1];
    FakeFont other(roster.component.log);
    other.value = {"Other Sans", 7.5, true, false, false, false};
    roster.list.Font(other);
    EXPECT_EQ(roster.component.font->value.Name, "Other Sans");
    EXPECT_EQ(roster.list.Font()->Name(), "Other Sans");
    EXPECT_EQ(roster.list.TextHeight(), 10);
    roster.log().Clear();
    roster.list.PaintAll();
    EXPECT_EQ(roster.log().Named("ExtTextOutA").at(0).values[1], y); // from the size at the load
}

TEST(qRosterProperties, TextHeightIsThePixelsOfTheFontsSize) {
    FakeRoster roster;
    roster.component.font->value.Size = 9;
    EXPECT_EQ(roster.list.TextHeight(), 12);
    roster.component.font->value.Size = 36;
    EXPECT_EQ(roster.list.TextHeight(), 48);
}

TEST(qRosterProperties, SetToSystemfontTakesNameAndSizeAndTheLineHeightFollows) {
    FakeRoster roster({}, {"ant"});
    roster.component.log.guiFont.lfHeight = -8;
    std::string("System Sans").copy(roster.component.log.guiFont.lfFaceName, 31);
    roster.list.SetToSystemfont();
    EXPECT_EQ(roster.component.font->value.Name, "System Sans");
    EXPECT_FLOAT_EQ(roster.component.font->value.Size, 6);
    roster.log().Clear();
    roster.list.PaintAll();
    EXPECT_EQ(roster.log().Named("ExtTextOutA").at(0).values[1], (18 - 8) / 2);
}

TEST(qRosterProperties, SetToSystemfontWithoutTheSizeTakesTheNameAlone) {
    FakeRoster roster({}, {"ant"});
    roster.component.log.guiFont.lfHeight = -8;
    std::string("System Sans").copy(roster.component.log.guiFont.lfFaceName, 31);
    const auto size = roster.component.font->value.Size;
    roster.list.SetToSystemfont(false);
    EXPECT_EQ(roster.component.font->value.Name, "System Sans");
    EXPECT_FLOAT_EQ(roster.component.font->value.Size, size);
}

TEST(qRosterProperties, SetToSystemfontWithoutASystemFontLeavesTheFont) {
    FakeRoster roster;
    const auto before = roster.component.font->value;
    roster.component.log.guiFontReadable = false;
    EXPECT_NO_THROW(roster.list.SetToSystemfont());
    EXPECT_EQ(roster.component.font->value, before);
}

// Forwarded and scratch.

TEST(qRosterProperties, AppearanceAndBorderStyleAreForwardedAndARefusedValueIsIgnored) {
    FakeRoster roster;
    roster.list.Appearance(1);
    roster.list.BorderStyle(0);
    EXPECT_EQ(roster.component.Appearance(), 1);
    EXPECT_EQ(roster.component.BorderStyle(), 0);
    EXPECT_NO_THROW(roster.list.Appearance(9));
    EXPECT_NO_THROW(roster.list.BorderStyle(9));
    EXPECT_NO_THROW(roster.list.BorderStyle(65536)); // not 0 in 16 bits
    EXPECT_EQ(roster.list.Appearance(), 1);
    EXPECT_EQ(roster.list.BorderStyle(), 0);
}

TEST(qRosterProperties, FontTransparentIsForwarded) {
    FakeRoster roster;
    roster.list.FontTransparent(false);
    EXPECT_FALSE(roster.component.FontTransparent());
    EXPECT_FALSE(roster.list.FontTransparent());
    roster.list.FontTransparent(true);
    EXPECT_TRUE(roster.component.FontTransparent());
}

TEST(qRosterProperties, ScratchValuesAreTheHosts) {
    FakeRoster roster({}, {"ant"});
    roster.list.TmpKey("key");
    roster.list.TmpData(Variant("data"));
    EXPECT_EQ(roster.list.TmpKey(), "key");
    EXPECT_EQ(roster.list.TmpData().AsText(), "data");
    EXPECT_THAT(roster.log().All(), IsEmpty());
}

// Design time.

TEST(qRosterProperties, ItemsStrIsEmptyAndIgnoresWritesAtDesignTime) {
    FakeRoster design({.UserMode = false});
    EXPECT_EQ(design.list.ItemsStr(), "");
    EXPECT_NO_THROW(design.list.ItemsStr("18=4\r\n107=ant\r\n999\r\n"));
    EXPECT_EQ(design.list.Count(), 0);
    EXPECT_EQ(design.list.xn(), 1);
    FakeRoster run({}, {"ant"});
    EXPECT_NE(run.list.ItemsStr(), "");
}

TEST(qRosterProperties, RefreshAndClearAtDesignTimeEndInTheObjectError) {
    FakeRoster design({.UserMode = false});
    EXPECT_THROW(design.list.Refresh(), ObjectError);
    EXPECT_THROW(design.list.Clear(), ObjectError);
    EXPECT_NO_THROW(design.list.PaintAll());
    EXPECT_NO_THROW(design.list.ResetSize());
}

TEST(qRosterProperties, ItemsAtDesignTimeAreTakenAndClearedThoughClearEndsInTheError) {
    FakeRoster design({.UserMode = false});
    design.list.AddItem(0, {.text = "ant"});
    EXPECT_EQ(design.list.Count(), 1);
    EXPECT_THROW(design.list.Clear(), ObjectError);
    EXPECT_EQ(design.list.Count(), 0);
}

// MultiSelect.

TEST(qRosterProperties, WritingMultiSelectEndsAMultiSelectionAndKeepsTheCurrentItem) {
    for (const std::int32_t mode : {0, 1}) {
        FakeRoster roster({.MultiSelect = 1}, {"ant", "bee", "cat"});
        roster.list.ListIndex(2);
        roster.list.Selecteded();
        roster.log().Clear();
        roster.list.MultiSelect(mode);
        EXPECT_EQ(roster.TakeEffect(), "paint") << mode;
        EXPECT_THAT(roster.Selected(), ElementsAre(2)) << mode;
        EXPECT_EQ(roster.list.MultiSelect(), mode);
    }
}

TEST(qRosterProperties, WritingARefusedMultiSelectLeavesAMultiSelection) {
    FakeRoster roster({.MultiSelect = 1}, {"ant", "bee", "cat"});
    roster.list.Selecteded();
    roster.list.MultiSelect(2);
    EXPECT_THAT(roster.Selected(), ElementsAre(1, 2, 3));
}

TEST(qRosterProperties, WritingMultiSelectInSingleModeLeavesAnEnumeratedSelection) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.list.ListIndex(2);
    roster.list.EnumSelectedItem(0, false); // the list is in multi-selection state now
    roster.log().Clear();
    roster.list.MultiSelect(1); // MultiSelect was 0, so nothing is cleared
    EXPECT_THAT(roster.log().All(), IsEmpty());
    roster.list.ListIndex(3);
    EXPECT_THAT(roster.Selected(), ElementsAre(2));
}

} // namespace
} // namespace tvok::test
