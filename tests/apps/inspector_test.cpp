// The gallery's inspector by itself: controls of every type, and what it tells of edits, by a user's mouse
// and keys.
#include "apps/gallery/Inspector.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "apps/gallery/inspected.h"
#include "apps/gallery/keys.h"
#include "tests/apps/OtherValue.h"
#include "tests/support/TestDesktop.h"

namespace gallery {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tvok::Variant;
using namespace tvok::host;

class InspectorTest : public testing::Test {
protected:
    InspectorTest() {
        desktop_.form().Size(800, 700);
        roster_.AddItem(0, {.text = "one"});
        roster_.AddItem(0, {.text = "two"});
        roster_.Refresh();
        inspector_.Layout({400, 0, 800, 700});
        inspector_.list().SetToSystemfont(); // of the desktop that the tests pin
        inspector_.changed = [this](const PropertyChange& change) {
            told_.push_back(change.subject + "." + change.property + ": " + change.before.AsText() + " -> " +
                            change.after.AsText());
        };
        inspector_.chosen = [this](const std::string& name) { chosen_.push_back(name); };
        Offer();
        inspector_.Select("page.roster");
        desktop_.Pump();
    }

    Subject SubjectOf(const char* name, Control& control) {
        return {.name = name, .control = &control, .form = &desktop_.form()};
    }
    void Offer() {
        inspector_.Offer("page", {SubjectOf("page.roster", roster_), SubjectOf("label", label_)});
    }
    std::string Value(const std::string& key) {
        tvok::elistdata item;
        inspector_.list().GetItem(item, key);
        return item.item.text;
    }
    std::vector<std::string> Titles() {
        std::vector<std::string> titles;
        for (const PropertyGroup& group : inspector_.properties().groups()) titles.push_back(group.title);
        return titles;
    }
    /// To the row of this property, with the focus in the list.
    void GoTo(const std::string& key) {
        desktop_.Focus(inspector_.list());
        inspector_.list().ShowItem(key);
        desktop_.Pump();
    }
    void TypeInto(const std::string& key, const char* text) {
        GoTo(key);
        desktop_.Key(F2);
        desktop_.Type(text);
        desktop_.Key(VK_RETURN);
    }
    std::string Current() {
        tvok::elistdata item;
        inspector_.list().GetItem(item, {}, inspector_.list().ListIndex());
        return item.hItem.key;
    }
    bool Shows(const char* control) {
        return desktop_.form().ComponentOf(*desktop_.form().Find(control)).Visible();
    }

    tvok::test::TestDesktop desktop_;
    tvok::qRoster& roster_ = desktop_.form().Add<tvok::qRoster>("roster", {10, 20, 300, 200});
    tvok::iLabel& label_ = desktop_.form().Add<tvok::iLabel>("label", {10, 240, 300, 40});
    Inspector inspector_{desktop_.desktop(), desktop_.form()};
    std::vector<std::string> told_;
    std::vector<std::string> chosen_;
};

TEST_F(InspectorTest, TheLineNamesTheSelectedControlWithItsPageAndType) {
    EXPECT_EQ(inspector_.line().Caption(), "page.roster: qRoster") << "a name with its page has it once";
    inspector_.Select("label");
    EXPECT_EQ(inspector_.line().Caption(), "page.label: iLabel");
    inspector_.Select("nobody");
    EXPECT_EQ(inspector_.line().Caption(), "page: nothing is selected");
    EXPECT_EQ(inspector_.list().Count(), 0);
    EXPECT_THAT(chosen_, IsEmpty()) << "nobody chose that by hand";
}

TEST_F(InspectorTest, PropertiesStandInGroupsByTheirSense) {
    EXPECT_THAT(Titles(), ElementsAre("Appearance", "Behaviour", "Content", "Font", "Place"));
    for (const char* key : {"Appearance.BackColor", "Appearance.ItemHeight", "Behaviour.HotTrack",
                            "Behaviour.MultiSelect", "Content.ListIndex", "Font.Font.Size", "Place.Left"})
        EXPECT_NE(inspector_.properties().Find(key), nullptr) << key;
    EXPECT_EQ(Value("Place.Left"), "10");
    EXPECT_EQ(Value("Place.Name"), "page.roster");
    EXPECT_EQ(Value("Place.Type"), "qRoster");
}

/// Every type that a form file can name, so also one that comes later.
TEST_F(InspectorTest, EveryTypeOfControlHasItsPropertiesAndEachTakesAnotherValueAndTheOldOneAgain) {
    std::size_t types = 0;
    for (const std::string& type : tvok::RegisteredControls()) {
        desktop_.form().Adopt(type, {10, 300, 300, 100}, tvok::MakeControl(type), nullptr);
        Control& control = *desktop_.form().Find(type);
        for (const char* caption : {"a", "b", "c"}) {
            if (auto* bar = dynamic_cast<tvok::pcols*>(&control)) bar->Add(0, caption, 60, {}, 0, 0);
            if (auto* list = dynamic_cast<tvok::qRosterex*>(&control))
                list->HeaderAdd(0, caption, 60, {}, 0, 0);
        }
        std::size_t properties = 0;
        for (const PropertyGroup& group :
             GroupsOf({.name = type, .control = &control, .form = &desktop_.form()})) {
            for (const Property& property : group.properties) {
                ++properties;
                // Without items there is none to make current, and many controls fit their own size.
                if (property.readOnly || property.name == "ListIndex") continue;
                if (property.name == "Width" || property.name == "Height") continue;
                SCOPED_TRACE(type + ": " + group.title + "." + property.name);
                const Variant before = property.get();
                const Variant other = OtherValue(property);
                property.set(other);
                EXPECT_EQ(property.get(), other);
                property.set(before);
                EXPECT_EQ(property.get(), before);
            }
        }
        EXPECT_GT(properties, 10u) << type;
        ++types;
        desktop_.form().Remove(control);
        desktop_.Pump();
    }
    EXPECT_GE(types, 9u);
}

TEST_F(InspectorTest, ATextBoxHasTheBorderAndTheFontThatItsComponentKeeps) {
    auto& box = desktop_.form().Add<tvok::TextBox>("box", {10, 300, 120, 24});
    const Component& component = desktop_.form().ComponentOf(box);
    inspector_.Offer("page", {SubjectOf("box", box)});
    inspector_.Select("box");
    auto& rows = inspector_.properties();
    EXPECT_TRUE(rows.Set("Appearance.BorderStyle", Variant(0)));
    EXPECT_TRUE(rows.Set("Appearance.Appearance", Variant(0)));
    EXPECT_TRUE(rows.Set("Font.Font.Name", Variant("DejaVu Serif")));
    EXPECT_TRUE(rows.Set("Font.Font.Size", Variant(14)));
    EXPECT_TRUE(rows.Set("Font.Font.Bold", Variant(1)));
    EXPECT_EQ(component.BorderStyle(), 0);
    EXPECT_EQ(component.Appearance(), 0);
    const std::string kept = tvok::FormFileText(desktop_.form().Content());
    EXPECT_NE(kept.find(R"(Font = { Name = "DejaVu Serif", Size = 14.0, Bold = true)"), kept.npos) << kept;
}

TEST_F(InspectorTest, AListHasItsRowsColumnsAndTheFourNumbersOfIconPos) {
    auto& rows = inspector_.properties();
    EXPECT_TRUE(rows.Set("Appearance.IconPos.Left", Variant(7)));
    EXPECT_TRUE(rows.Set("Appearance.IconPos.Height", Variant(200)));
    const tvok::tvok_IconPos pos = tvok::UnpackIconPos(roster_.IconPos());
    EXPECT_EQ(pos.Left, 7);
    EXPECT_EQ(pos.Height, 200);
    EXPECT_EQ(pos.width, tvok::UnpackIconPos(tvok::cDefaultIconPos).width);
    EXPECT_TRUE(rows.Set("Appearance.XnAuto", Variant(1)));
    EXPECT_TRUE(roster_.XnAuto());
    EXPECT_TRUE(rows.Set("Appearance.yn", Variant(3)));
    EXPECT_EQ(roster_.yn(), 3);
}

TEST_F(InspectorTest, ASizeIsTheControlsWhereItTakesOne) {
    inspector_.Select("label");
    EXPECT_TRUE(inspector_.properties().Set("Place.Width", Variant(120)));
    EXPECT_TRUE(inspector_.properties().Set("Place.Height", Variant(50)));
    EXPECT_EQ(desktop_.form().PlacementOf(label_).width, 120);
    EXPECT_EQ(desktop_.form().PlacementOf(label_).height, 50);
}

TEST_F(InspectorTest, WhatHasNoTableHasNoProperties) {
    auto& check = desktop_.form().Add<CheckBox>("check", {});
    EXPECT_THAT(GroupsOf({.name = "check", .control = &check}), IsEmpty());
    EXPECT_THAT(GroupsOf({.name = "nothing"}), IsEmpty());
}

TEST_F(InspectorTest, ATypedValueIsTheControlsAndIsToldOnceWithBothValues) {
    TypeInto("Appearance.ItemHeight", "31");
    EXPECT_EQ(roster_.ItemHeight(), 31);
    EXPECT_THAT(told_, ElementsAre("page.roster.ItemHeight: 18 -> 31"));
    TypeInto("Appearance.ItemHeight", "9999");
    EXPECT_EQ(roster_.ItemHeight(), 31);
    EXPECT_EQ(told_.size(), 1u) << "what is refused is no change";
}

TEST_F(InspectorTest, APlaceThatIsTypedMovesTheControlAndANameCannotBeTyped) {
    TypeInto("Place.Left", "44");
    EXPECT_EQ(desktop_.form().PlacementOf(roster_).left, 44);
    EXPECT_THAT(told_, ElementsAre("page.roster.Left: 10 -> 44"));
    desktop_.Key(VK_DOWN);
    EXPECT_EQ(Current(), "Place.Name");
    EXPECT_FALSE(Shows("inspector.text"));
    desktop_.Key(F2);
    desktop_.Type("other");
    desktop_.Key(VK_RETURN);
    EXPECT_EQ(Value("Place.Name"), "page.roster");
    EXPECT_EQ(told_.size(), 1u);
}

TEST_F(InspectorTest, AColorThatAPopupTriesIsToldOnceWhenItCloses) {
    const tvok::OLE_COLOR before = roster_.BackColor();
    GoTo("Appearance.BackColor");
    desktop_.Key(F4);
    desktop_.Key(VK_DOWN);
    const tvok::OLE_COLOR tried = roster_.BackColor();
    EXPECT_NE(tried, before) << "the control follows";
    desktop_.Key(VK_RIGHT);
    EXPECT_NE(roster_.BackColor(), tried);
    EXPECT_THAT(told_, IsEmpty());
    desktop_.Key(VK_RETURN);
    EXPECT_THAT(told_, ElementsAre("page.roster.BackColor: " + std::to_string(before) + " -> " +
                                   std::to_string(roster_.BackColor())));
}

TEST_F(InspectorTest, AColorThatWasTriedAndTakenBackIsNotTold) {
    const tvok::OLE_COLOR before = roster_.BackColor();
    GoTo("Appearance.BackColor");
    desktop_.Key(F4);
    desktop_.Key(VK_DOWN);
    EXPECT_NE(roster_.BackColor(), before);
    desktop_.Key(VK_ESCAPE);
    EXPECT_EQ(roster_.BackColor(), before);
    EXPECT_THAT(told_, IsEmpty());
}

TEST_F(InspectorTest, TheStripsOwnPopupIsToldOnceToo) {
    GoTo("Appearance.BackColor");
    tvok::tvok_Rect place;
    ASSERT_TRUE(inspector_.list().GetItemRect(inspector_.list().ListIndex(), place));
    const std::int32_t side = place.bottom - place.Top;
    desktop_.desktop().Input().MouseMove(place.Right - 3 * side + side / 2, place.Top + side / 2);
    desktop_.desktop().Input().MouseDown(tvok::desktop::MouseButton::Left);
    desktop_.Pump();
    for (const std::int32_t step : {30, 50, 70}) {
        desktop_.desktop().Input().MouseMove(place.Right - 100, place.bottom + step);
        desktop_.Pump();
    }
    EXPECT_THAT(told_, IsEmpty());
    desktop_.Release();
    ASSERT_EQ(told_.size(), 1u);
    EXPECT_THAT(told_.front(), testing::EndsWith(" -> " + std::to_string(roster_.BackColor())));
}

TEST_F(InspectorTest, AnotherControlIsChosenByTheKeyboardFromTheLine) {
    desktop_.Focus(inspector_.line());
    desktop_.Key(F4);
    desktop_.Key(VK_DOWN);
    EXPECT_EQ(inspector_.Selected(), "page.roster") << "not before it is chosen";
    desktop_.Key(VK_RETURN);
    EXPECT_EQ(inspector_.Selected(), "label");
    EXPECT_THAT(chosen_, ElementsAre("label"));
    EXPECT_EQ(Value("Place.Top"), "240");
    desktop_.Focus(inspector_.line());
    desktop_.Key(VK_SPACE);
    desktop_.Key(VK_UP);
    desktop_.Key(VK_ESCAPE);
    EXPECT_EQ(inspector_.Selected(), "label");
    EXPECT_EQ(chosen_.size(), 1u);
}

TEST_F(InspectorTest, APressOnTheLineOpensTheChoiceToDragInto) {
    desktop_.Press(inspector_.line(), 40, 10);
    desktop_.MoveTo(inspector_.line(), 40, 24 + 30);
    desktop_.Release();
    EXPECT_THAT(chosen_, ElementsAre("label"));
}

TEST_F(InspectorTest, TheRowsFollowTheControlButNotWhileTheUserTypes) {
    roster_.ListIndex(2);
    inspector_.Update();
    EXPECT_EQ(Value("Content.ListIndex"), "2");
    GoTo("Content.ListIndex");
    EXPECT_EQ(desktop_.form().Find<tvok::TextBox>("inspector.text")->Text(), "2");
    roster_.ListIndex(1);
    inspector_.Update();
    EXPECT_EQ(desktop_.form().Find<tvok::TextBox>("inspector.text")->Text(), "1")
        << "the editor follows, too";
    desktop_.Type("7");
    roster_.ListIndex(2);
    inspector_.Update();
    EXPECT_EQ(desktop_.form().Find<tvok::TextBox>("inspector.text")->Text(), "7");
}

TEST_F(InspectorTest, WhatWasTypedIsTakenWhereAnotherControlIsSelected) {
    GoTo("Appearance.ItemHeight");
    desktop_.Type("33");
    inspector_.Select("label");
    EXPECT_EQ(roster_.ItemHeight(), 33);
    EXPECT_THAT(told_, ElementsAre("page.roster.ItemHeight: 18 -> 33"));
    EXPECT_FALSE(Shows("inspector.text"));
}

TEST_F(InspectorTest, TheSameControlsOfferedAgainLeaveTheRowsAsTheyAre) {
    GoTo("Appearance");
    desktop_.Key(VK_SPACE); // folds it
    const std::int32_t folded = inspector_.list().Count();
    Offer();
    EXPECT_EQ(inspector_.list().Count(), folded);
    EXPECT_EQ(inspector_.Selected(), "page.roster");
}

TEST_F(InspectorTest, AControlThatIsGoneIsDroppedWithWhatWasBeingTyped) {
    GoTo("Appearance.ItemHeight");
    desktop_.Type("33");
    desktop_.form().Remove(roster_);
    inspector_.Offer("page", {SubjectOf("label", label_)});
    EXPECT_EQ(inspector_.Selected(), "");
    EXPECT_EQ(inspector_.list().Count(), 0);
    EXPECT_THAT(told_, IsEmpty());
    desktop_.Pump();
    inspector_.Update();
    inspector_.Select("label");
    EXPECT_EQ(Value("Place.Name"), "label");
}

TEST_F(InspectorTest, WhoHearsOfAnEditMayOfferOthersAtOnce) {
    inspector_.changed = [this](const PropertyChange& change) {
        told_.push_back(change.property);
        inspector_.Offer("page", {SubjectOf("label", label_)});
    };
    TypeInto("Appearance.ItemHeight", "31");
    EXPECT_THAT(told_, ElementsAre("ItemHeight"));
    EXPECT_EQ(inspector_.Selected(), "");
    Offer();
    inspector_.Select("page.roster");
    GoTo("Appearance.BackColor");
    desktop_.Key(F4);
    desktop_.Key(VK_DOWN);
    desktop_.Key(VK_RETURN);
    EXPECT_THAT(told_, ElementsAre("ItemHeight", "BackColor"));
    EXPECT_EQ(inspector_.list().Count(), 0);
}

TEST_F(InspectorTest, ASubjectMayHavePropertiesOfItsOwnAndNoControl) {
    std::string title = "First";
    const auto properties = [&] {
        return std::vector<PropertyGroup>{{"Form",
                                           "Form",
                                           {{.name = "Caption",
                                             .get = [&] { return Variant(title); },
                                             .set = [&](const Variant& value) { title = value.AsText(); }}}}};
    };
    inspector_.Offer("page", {{.name = "form", .properties = properties}});
    inspector_.Select("form");
    EXPECT_EQ(inspector_.line().Caption(), "page.form");
    TypeInto("Form.Caption", "Second");
    EXPECT_EQ(title, "Second");
    EXPECT_THAT(told_, ElementsAre("form.Caption: First -> Second"));
}

TEST_F(InspectorTest, AtDesignTimeAControlsPropertiesCanBeEditedToo) {
    tvok::Form& form = desktop_.desktop().AddForm("Design", 300, 200);
    form.UserMode(false);
    for (const std::string& type : tvok::RegisteredControls()) {
        form.Adopt(type, {0, 0, 100, 50}, tvok::MakeControl(type), nullptr);
        inspector_.Offer("design", {{.name = type, .control = form.Find(type), .form = &form}});
        inspector_.Select(type);
        EXPECT_TRUE(inspector_.properties().Set("Place.Left", Variant(12))) << type;
        EXPECT_EQ(form.PlacementOf(*form.Find(type)).left, 12);
        const Property* color = inspector_.properties().Find("Appearance.BackColor");
        if (color != nullptr) {
            EXPECT_TRUE(inspector_.properties().Set("Appearance.BackColor", Variant(0x123456))) << type;
        }
    }
    inspector_.Offer("page", {});
    form.Close();
}

} // namespace
} // namespace gallery
