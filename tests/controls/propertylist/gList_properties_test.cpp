// The properties of a property list: what each write stores, refuses and shows.
#include <set>

#include "tests/support/PropertyListDesktop.h"
#include "tvok/engine/dgi.h"

namespace tvok::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using List = PropertyListDesktop;

/// A property of whole numbers.
struct Property {
    const char* name;
    std::int32_t (*get)(const gList&);
    void (*set)(gList&, std::int32_t);
    const char* effect; ///< Of a write of a new value, in run mode.
    std::int32_t value; ///< That differs from the one at the start.
};

#define TVOK_PROPERTY(Name, Type, effect, value)                                                             \
    Property {                                                                                               \
#Name, [](const gList& list) { return static_cast<std::int32_t>(list.Name()); },                      \
            [](gList& list, std::int32_t to) { list.Name(static_cast<Type>(to)); }, effect, value      \
    }

using Color = OLE_COLOR;
using Number = std::int32_t;

const Property cProperties[] = {
    TVOK_PROPERTY(BackColor, Color, "paint", 0x123456),
    TVOK_PROPERTY(SelectedColor, Color, "paint", 0x123456),
    TVOK_PROPERTY(IconBorderColor, Color, "paint", 0x123456),
    TVOK_PROPERTY(GridlineColor, Color, "paint", -1),
    TVOK_PROPERTY(HeadExBackColor, Color, "paint", 0x123456),
    TVOK_PROPERTY(HeadExBorderColor, Color, "paint", 0x123456),
    TVOK_PROPERTY(CX_TEXT, Number, "paint", -4),
    TVOK_PROPERTY(HeadWidthEx, Number, "paint", 33),
    TVOK_PROPERTY(IconPos, Number, "paint", 0x01010808),
    TVOK_PROPERTY(IconHandle, Number, "", 7),
    TVOK_PROPERTY(ItemHeight, Number, "refresh", 25),
    TVOK_PROPERTY(GridlineWidth, Number, "refresh", 0),
    TVOK_PROPERTY(GridlineOnBorder, bool, "refresh", 1),
    TVOK_PROPERTY(FixedHeight, bool, "refresh", 1),
    TVOK_PROPERTY(ListMode, Number, "refresh", 1),
};

class gListProperty : public testing::TestWithParam<Property> {};

TEST_P(gListProperty, AWriteIsStoredAndShows) {
    List at;
    at.Show({List::Value("a"), List::Value("b")});
    const Property& property = GetParam();
    ASSERT_NE(property.get(*at.list), property.value);
    EXPECT_EQ(at.Effect([&] { property.set(*at.list, property.value); }), property.effect);
    EXPECT_EQ(property.get(*at.list), property.value);
}

TEST_P(gListProperty, AWriteOfTheOldValueDoesNothing) {
    List at;
    at.Show({List::Value("a"), List::Value("b")});
    const Property& property = GetParam();
    EXPECT_EQ(at.Effect([&] { property.set(*at.list, property.get(*at.list)); }), "");
    property.set(*at.list, property.value);
    at.TakeLog();
    EXPECT_EQ(at.Effect([&] { property.set(*at.list, property.value); }), "");
    EXPECT_EQ(property.get(*at.list), property.value);
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

TEST_P(gListProperty, AtDesignTimeAWriteIsStoredAndNothingRuns) {
    List at({.userMode = false});
    at.list->GridlineWidth(1); // a new list has none
    const Property& property = GetParam();
    ASSERT_NE(property.get(*at.list), property.value);
    EXPECT_EQ(at.Effect([&] { property.set(*at.list, property.value); }), "");
    EXPECT_EQ(property.get(*at.list), property.value);
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Each, gListProperty, testing::ValuesIn(cProperties),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(gListProperties, AnItemHeightBelowOneIsRefused) {
    List at;
    for (const std::int32_t height : {0, -1, INT32_MIN}) {
        EXPECT_EQ(at.Effect([&] { at.list->ItemHeight(height); }), "");
        EXPECT_EQ(at.list->ItemHeight(), 18);
    }
    at.list->ItemHeight(1);
    EXPECT_EQ(at.list->ItemHeight(), 1);
}

TEST(gListProperties, AGridlineWidthBelowZeroIsRefused) {
    List at;
    for (const std::int32_t width : {-1, INT32_MIN}) {
        EXPECT_EQ(at.Effect([&] { at.list->GridlineWidth(width); }), "");
        EXPECT_EQ(at.list->GridlineWidth(), 1);
    }
    at.list->GridlineWidth(0);
    EXPECT_EQ(at.list->GridlineWidth(), 0);
}

TEST(gListProperties, TheBackColourIsAlsoTheComponents) {
    List at;
    at.list->BackColor(0x123456);
    EXPECT_EQ(at.desktop.form().ComponentOf(*at.list).BackColor(), 0x123456);
    List design({.userMode = false});
    design.list->BackColor(0x654321);
    EXPECT_EQ(design.desktop.form().ComponentOf(*design.list).BackColor(), 0x654321);
}

TEST(gListProperties, AFixedHeightFitsTheControlAlsoAtDesignTime) {
    for (const bool userMode : {true, false}) {
        List at({.userMode = userMode});
        const auto height = [&] { return at.desktop.form().PlacementOf(*at.list).height; };
        at.list->FixedHeight(true);
        const std::int32_t fitted = height();
        EXPECT_NE(fitted, 200) << userMode;
        at.list->ItemHeight(43);
        EXPECT_NE(height(), fitted) << userMode;
        at.list->FixedHeight(false);
        at.desktop.form().Place(*at.list, {10, 10, 300, 200});
        EXPECT_EQ(height(), 200) << userMode;
    }
}

// The icons of the strip.

/// Where the strip draws its image in its one button, as the recorded line tells.
struct IconStrip : List {
    IconStrip() {
        list->IconHandle(desktop.desktop().AddImageList(std::vector<std::uint32_t>(64, 0xFF3366CC), 8));
        Show({Value("a", "", "0|1|1;x")});
        ClickRow(1);
    }
    /// The lines of images in the next repaint of the strip.
    std::vector<std::string> Images() {
        std::vector<std::string> lines = desktop.Trace([&] {
            const tvok_Rect strip = Strip();
            desktop.Press(*list, strip.Left + 3, strip.Top + 3);
            desktop.Release();
        });
        std::erase_if(lines, [](const std::string& line) { return !line.starts_with("ImageList_Draw"); });
        return lines;
    }
    /// Left and top of the image of an `xbutton` with this icon size, in the same words.
    static std::vector<std::string> Expected(std::int32_t width, std::int32_t height) {
        TestDesktop other;
        auto& strip = other.form().Add<xbutton>("strip", {10, 10, 5, 20});
        strip.IconHandle(other.desktop().AddImageList(std::vector<std::uint32_t>(64, 0xFF3366CC), 8));
        strip.IconWidth(width);
        strip.IconHeight(height);
        strip.SetButtons("0|1|1");
        other.Pump();
        std::vector<std::string> lines = other.Trace([&] {
            other.Press(strip, 3, 3);
            other.Release();
        });
        std::erase_if(lines, [](const std::string& line) { return !line.starts_with("ImageList_Draw"); });
        return lines;
    }
};

/// The parts of the lines that tell places: of the button when it is up and when it is down.
std::set<std::string> Places(const std::vector<std::string>& lines) {
    std::set<std::string> places;
    for (const std::string& line : lines) {
        const std::size_t start = line.find("at (");
        places.insert(line.substr(start, line.find(')', start) - start + 1));
    }
    return places;
}

TEST(gListProperties, TheStripDrawsTheListsImages) {
    IconStrip at;
    const auto images = at.Images();
    ASSERT_FALSE(images.empty());
    EXPECT_EQ(Places(images), Places(IconStrip::Expected(16, 16)));
}

TEST(gListProperties, TheIconSizeOfTheStripIsTheTwoLowBytesOfIconPos) {
    struct {
        std::int32_t packed;
        std::int32_t width;
        std::int32_t height;
    } const cases[] = {{0x01010C04, 12, 4}, {0x7FFF0400, 4, 0},
                       {-1, 0, 255},      // the division drops its fraction before the mask
                       {-256, 255, 0},    // -1
                       {-257, 255, 255},  // -1 and a fraction
                       {-1000, 253, 24}}; // -3 and a fraction
    for (const auto& each : cases) {
        IconStrip at;
        at.list->IconPos(each.packed);
        EXPECT_EQ(Places(at.Images()), Places(IconStrip::Expected(each.width, each.height))) << each.packed;
    }
}

TEST(gListProperties, TheImageListGoesToTheStripAlsoWhenUnchanged) {
    IconStrip at;
    ASSERT_FALSE(at.Images().empty());
    const std::int32_t images = at.list->IconHandle();
    at.list->IconHandle(0);
    EXPECT_THAT(at.Images(), Each(HasSubstr("images=0 ")));
    at.list->IconHandle(images);
    EXPECT_THAT(at.Images(), Each(Not(HasSubstr("images=0 "))));
}

// Structure.

TEST(gListProperties, ListModeRebuildsOnlyWhenItChanges) {
    List at;
    at.Show({List::Group("g"), List::Value("a", "g")});
    at.list->ListMode(1);
    EXPECT_THAT(at.Keys(), ElementsAre("g", "a"));
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide()"));
    at.list->ListMode(1);
    EXPECT_THAT(at.TakeLog(), IsEmpty());
    at.list->ListMode(-5);
    EXPECT_EQ(at.list->ListMode(), -5);
    EXPECT_THAT(at.Keys(), ElementsAre("a"));
}

TEST(gListProperties, SortedRebuildsAtEachWriteOfTrueAndAtNoneOfFalse) {
    List at;
    EXPECT_TRUE(at.list->Sorted());
    at.Show({List::Value("b"), List::Value("a")});
    at.list->Sorted(false);
    EXPECT_FALSE(at.list->Sorted());
    EXPECT_THAT(at.Keys(), ElementsAre("a", "b")) << "the old order stays";
    EXPECT_THAT(at.TakeLog(), IsEmpty());
    at.list->BuiltList();
    EXPECT_THAT(at.Keys(), ElementsAre("b", "a"));
    at.TakeLog();
    at.list->Sorted(true);
    EXPECT_THAT(at.Keys(), ElementsAre("a", "b"));
    at.list->Sorted(true);
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide()", "ExEditorHide()"));
    EXPECT_EQ(at.Effect([&] { at.list->Sorted(true); }), "refresh");
}

TEST(gListProperties, StructureIsStoredAtDesignTimeWithoutARebuild) {
    List at({.userMode = false});
    at.list->AddItem(List::Value("a"));
    at.TakeLog();
    at.list->Sorted(false);
    EXPECT_FALSE(at.list->Sorted());
    at.list->Sorted(true);
    EXPECT_TRUE(at.list->Sorted());
    at.list->ListMode(1);
    EXPECT_EQ(at.list->ListMode(), 1);
    EXPECT_EQ(at.list->Count(), 0);
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

TEST(gListProperties, ARebuildKeepsTheCurrentItem) {
    List at;
    at.Show({List::Group("g"), List::Value("a", "g"), List::Value("b", "g")});
    at.list->ListIndex(2);
    at.TakeLog();
    at.list->ListMode(1);
    EXPECT_EQ(at.list->ListIndex(), 3);
    EXPECT_THAT(at.TakeLog({"Change", "Click"}), ElementsAre("Change(3, b)"));
}

// Looks of the component.

TEST(gListProperties, AppearanceAndBorderStyleAreTheComponents) {
    List at;
    const host::Component& component = at.desktop.form().ComponentOf(*at.list);
    at.list->Appearance(1);
    at.list->BorderStyle(1);
    EXPECT_EQ(at.list->Appearance(), 1);
    EXPECT_EQ(component.Appearance(), 1);
    EXPECT_EQ(at.list->BorderStyle(), 1);
    EXPECT_EQ(component.BorderStyle(), 1);
    EXPECT_NO_THROW(at.list->Appearance(9));
    EXPECT_NO_THROW(at.list->BorderStyle(9));
    EXPECT_NO_THROW(at.list->BorderStyle(INT32_MAX));
    EXPECT_EQ(at.list->Appearance(), 1);
    EXPECT_EQ(at.list->BorderStyle(), 1);
}

TEST(gListProperties, FontTransparentIsTheComponents) {
    List at;
    at.list->FontTransparent(false);
    EXPECT_FALSE(at.list->FontTransparent());
    EXPECT_FALSE(at.desktop.form().ComponentOf(*at.list).FontTransparent());
    at.list->FontTransparent(true);
    EXPECT_TRUE(at.list->FontTransparent());
}

TEST(gListProperties, TheFontIsTheComponentsAndAWriteDoesNotRepaintRows) {
    List at;
    at.Show({List::Value("a caption of some width")});
    const host::FontPtr font = at.list->Font();
    EXPECT_EQ(font, at.desktop.form().ComponentOf(*at.list).Font());
    const std::int32_t width = at.list->HeadWidth();
    const host::FontPtr other = at.desktop.form().Add<gList>("other", {0, 300, 50, 50}).Font();
    other->Size(20);
    other->Bold(true);
    EXPECT_EQ(at.Effect([&] { at.list->Font(*other); }), "");
    EXPECT_EQ(at.list->Font(), font) << "the same object with other properties";
    EXPECT_EQ(font->Size(), 20);
    EXPECT_TRUE(font->Bold());
    EXPECT_EQ(at.list->HeadWidth(), width);
    EXPECT_EQ(at.list->TextHeight(), dgi::PointsToPixels(20));
}

TEST(gListProperties, TextHeightIsThatOfTheFontInPixels) {
    List at;
    EXPECT_EQ(at.list->TextHeight(), dgi::PointsToPixels(at.list->Font()->Size()));
    at.list->Font()->Size(31);
    EXPECT_EQ(at.list->TextHeight(), dgi::PointsToPixels(31));
}

TEST(gListProperties, SetToSystemfontTakesTheFontOfDialogs) {
    List at;
    std::string name;
    float size = 0;
    ASSERT_TRUE(dgi::GetSystemFont(name, size));
    at.list->Font()->Name("Another");
    at.list->Font()->Size(31);
    at.list->SetToSystemfont(false);
    EXPECT_EQ(at.list->Font()->Name(), name);
    EXPECT_EQ(at.list->Font()->Size(), 31);
    at.list->SetToSystemfont();
    EXPECT_EQ(at.list->Font()->Size(), size);
}

TEST(gListProperties, TheWindowIsTheComponents) {
    List at;
    EXPECT_EQ(at.list->hwnd(), at.desktop.form().ComponentOf(*at.list).hWnd());
}

} // namespace
} // namespace tvok::test
