// The gallery's property list by groups and by its switches: folds, order, and the text that saves and
// restores all of it.
#include <gmock/gmock.h>

#include "tests/apps/OtherValue.h"
#include "tests/apps/PropertiesPageTest.h"

namespace gallery {
namespace {

using testing::SizeIs;
using tvok::Variant;
using namespace tvok::host;

TEST_F(PropertiesPageTest, AGroupFoldsByItsBoxAndByTheKeyboard) {
    const std::int32_t all = page_.list().Count();
    ClickRow("label");
    const tvok::tvok_Rect place = ValueArea();
    desktop_.clock().now += std::chrono::seconds(1);
    desktop_.Press(page_.list(), 6, (place.Top + place.bottom) / 2);
    desktop_.Release();
    const std::int32_t folded = page_.list().Count();
    EXPECT_LT(folded, all);
    EXPECT_EQ(Current(), "label");
    desktop_.Key(VK_RETURN);
    EXPECT_EQ(page_.list().Count(), all);
    desktop_.Key(VK_SPACE);
    EXPECT_EQ(page_.list().Count(), folded);
    EXPECT_EQ(Current(), "label");
}

TEST_F(PropertiesPageTest, AFlatListNamesTheControlInEachCaption) {
    page_.switches().Flip(PropertiesPage::Groups);
    EXPECT_EQ(Item("label.Caption").hItem.text, "Caption, Label");
    EXPECT_THAT(Rows(), SizeIs(page_.list().Count()));
    EXPECT_EQ(testing::Value(Rows(), testing::Contains("label")), false) << "groups have no rows";
    page_.switches().Flip(PropertiesPage::Groups);
    EXPECT_EQ(Item("label.Caption").hItem.text, "Caption");
    EXPECT_EQ(testing::Value(Rows(), testing::Contains("label")), true);
}

TEST_F(PropertiesPageTest, UnsortedRowsStandAsTheyWereAdded) {
    EXPECT_EQ(Rows().front(), "strip") << "\"Button strip\" is the first by caption";
    page_.switches().Flip(PropertiesPage::Order);
    EXPECT_EQ(Rows().front(), "roster");
    EXPECT_EQ(Rows()[1], "roster.Appearance");
    page_.switches().Flip(PropertiesPage::Order);
    EXPECT_EQ(Rows().front(), "strip");
}

TEST_F(PropertiesPageTest, EditingGoesOnInTheSameRowWhenTheRowsAreMadeAnew) {
    ClickRow("label.Caption");
    desktop_.Type("kept");
    page_.switches().Flip(PropertiesPage::Groups);
    EXPECT_EQ(page_.label().Caption(), "kept");
    EXPECT_EQ(Current(), "label.Caption");
    EXPECT_EQ(page_.text().Text(), "kept");
}

TEST_F(PropertiesPageTest, RestoringBringsBackValuesFoldsAndSettings) {
    page_.properties().Set("label.Caption", Variant("a = b, \"c\""));
    page_.properties().Set("self.ItemHeight", Variant(24));
    ClickRow("bar");
    desktop_.Key(VK_SPACE);
    const auto values = [&] {
        std::vector<Variant> all;
        for (const PropertyGroup& group : page_.properties().groups())
            for (const Property& property : group.properties) all.push_back(property.get());
        return all;
    };
    const std::vector<Variant> saved = values();
    const std::vector<std::string> rows = Rows();
    page_.switches().Flip(PropertiesPage::Save);

    desktop_.Key(VK_SPACE); // unfolds
    for (const PropertyGroup& group : page_.properties().groups())
        for (const Property& property : group.properties)
            page_.properties().Set(group.key + "." + property.name, OtherValue(property));
    page_.switches().Flip(PropertiesPage::Groups);
    page_.switches().Flip(PropertiesPage::Order);
    EXPECT_NE(values(), saved);

    page_.switches().Flip(PropertiesPage::Restore);
    EXPECT_EQ(values(), saved);
    EXPECT_EQ(Rows(), rows);
    EXPECT_EQ(page_.list().ListMode(), 1);
    EXPECT_EQ(Value("label.Caption"), "a = b, \"c\"");
    for (const std::string& key : rows) {
        if (const Property* property = page_.properties().Find(key)) {
            EXPECT_EQ(page_.list().GetData(key), property->get()) << key;
        }
    }
}

TEST_F(PropertiesPageTest, AFlatListIsRestoredAsOne) {
    page_.switches().Flip(PropertiesPage::Groups);
    page_.switches().Flip(PropertiesPage::Save);
    const std::vector<std::string> rows = Rows();
    page_.switches().Flip(PropertiesPage::Groups);
    page_.switches().Flip(PropertiesPage::Restore);
    EXPECT_FALSE(page_.properties().IsGrouped());
    EXPECT_EQ(Rows(), rows);
}

} // namespace
} // namespace gallery
