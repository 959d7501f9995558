// The page "design" with the inspector beside it: what is shown there, and what an edit there comes to.
#include <gmock/gmock.h>

#include "apps/gallery/Inspector.h"
#include "apps/gallery/design/types.h"
#include "apps/gallery/keys.h"
#include "tests/apps/DesignPageTest.h"
#include "tests/apps/OtherValue.h"

namespace gallery {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using namespace tvok::host; // the key codes

class DesignWithPanes : public DesignPageTest {
protected:
    DesignWithPanes() : DesignPageTest(Panes::Shown) { Turn(); }
    void Turn() {
        window_->Turn(std::chrono::milliseconds(0));
        Pump();
    }
    std::string Shown() { return window_->inspector()->Selected(); }
    std::vector<std::string> Offered() {
        std::vector<std::string> names;
        for (const Subject& subject : window_->inspector()->subjects()) names.push_back(subject.name);
        return names;
    }
};

TEST_F(DesignWithPanes, TheInspectorShowsWhatIsSelected) {
    EXPECT_THAT(Offered(), ElementsAre("(form)", "a", "b", "c"));
    EXPECT_EQ(Shown(), "(form)");
    Click(20, 20);
    Turn();
    EXPECT_EQ(Shown(), "a");
    desktop_.Key(VK_DELETE);
    Turn();
    EXPECT_THAT(Offered(), ElementsAre("(form)", "b", "c"));
    EXPECT_EQ(Shown(), "(form)");
    page().Selected("c");
    EXPECT_THAT(Selected(), ElementsAre("c"));
    page().Selected("(form)");
    EXPECT_THAT(Selected(), IsEmpty());
}

TEST_F(DesignWithPanes, TheFormsOwnPropertiesAreStepsToo) {
    const std::vector<PropertyGroup> groups = page().Subjects()->front().properties();
    ASSERT_THAT(groups, SizeIs(1));
    const auto property = [&](const std::string& name) {
        return *std::ranges::find(groups[0].properties, name, &Property::name);
    };
    const auto change = [&](const std::string& name, const tvok::Variant& value) {
        const tvok::Variant before = property(name).get();
        property(name).set(value);
        page().PropertyChanged({"(form)", name, before, value});
    };
    change("Caption", "Stock");
    change("Width", 400);
    change("Height", 100);
    EXPECT_EQ(property("Caption").get(), tvok::Variant("Stock"));
    EXPECT_EQ(property("Width").get(), tvok::Variant(400));
    EXPECT_THAT(model().Text(),
                testing::StartsWith("[form]\ncaption = \"Stock\"\nwidth = 400\nheight = 100\n"));
    for (int i = 0; i < 3; ++i) designer().Undo();
    EXPECT_EQ(form().Caption(), "Form");
    EXPECT_EQ(form().Height(), 240);
}

TEST_F(DesignWithPanes, ASizeThatAPopupTriesIsOneStepAndNoneWhenItIsTakenBack) {
    const std::string before = model().Text();
    const auto open = [&] {
        window_->form().ComponentOf(window_->inspector()->list()).SetFocus();
        window_->inspector()->list().ShowItem("(form).Width");
        Pump();
        desktop_.Key(F4);
        desktop_.Key(VK_DOWN);
        desktop_.Key(VK_DOWN);
        EXPECT_EQ(form().Width(), 322) << "the form follows";
    };
    open();
    EXPECT_EQ(model().Text(), before);
    desktop_.Key(VK_ESCAPE);
    EXPECT_EQ(form().Width(), 320);
    EXPECT_EQ(model().Text(), before);
    model().Undo(); // the form of the set-up, which alone was a step
    EXPECT_FALSE(model().CanUndo());
    model().Redo();
    Turn();
    open();
    desktop_.Key(VK_RETURN);
    EXPECT_THAT(model().Text(), HasSubstr("width = 322\n"));
    model().Undo();
    EXPECT_EQ(model().Text(), before);
}

TEST_F(DesignWithPanes, APropertyThatNoFormFileKeepsIsPutBackAndSaid) {
    designer().Add("qRoster");
    Turn();
    ASSERT_EQ(Shown(), "qRoster1");
    const std::string before = model().Text();
    PropertyList& properties = window_->inspector()->properties();
    const auto& list = *form().Find<tvok::qRoster>("qRoster1");
    properties.Set("Behaviour.SortedMode", 2);
    EXPECT_EQ(page().Message(), "SortedMode is not kept in form files");
    EXPECT_EQ(list.SortedMode(), 0);
    EXPECT_EQ(properties.Find("Behaviour.SortedMode")->get(), tvok::Variant(0));
    EXPECT_EQ(model().Text(), before);
    properties.Set("Behaviour.HotTrack", 1);
    EXPECT_TRUE(list.HotTrack());
    EXPECT_NE(model().Text(), before);
    model().Undo();
    EXPECT_EQ(model().Text(), before);
}

TEST_F(DesignWithPanes, EveryPropertyOfEveryTypeIsAStepOrPutBack) {
    PropertyList& properties = window_->inspector()->properties();
    int steps = 0, back = 0;
    for (const DesignType& type : DesignTypes()) {
        designer().Add(type.name);
        const std::string name = Selected().back();
        std::vector<std::string> keys;
        for (const PropertyGroup& group : properties.groups())
            for (const Property& property : group.properties)
                if (!property.readOnly) keys.push_back(group.key + "." + property.name);
        EXPECT_THAT(keys, SizeIs(testing::Gt(4u))) << name;
        for (const std::string& key : keys) {
            const std::string before = model().Text();
            const tvok::Variant value = properties.Find(key)->get();
            if (!properties.Set(key, OtherValue(*properties.Find(key)))) continue; // it is not taken
            if (page().Message().ends_with("is not kept in form files")) {
                EXPECT_EQ(properties.Find(key)->get(), value) << name << " " << key;
                ++back;
            } else {
                EXPECT_NE(model().Text(), before) << name << " " << key;
                designer().Undo();
                designer().Select({name});
                ++steps;
            }
            EXPECT_EQ(model().Text(), before) << name << " " << key;
            EXPECT_EQ(tvok::FormFileText(form().Content()), before) << name << " " << key;
            designer().contentChanged(); // another message
        }
    }
    EXPECT_GT(steps, 100);
    EXPECT_GT(back, 10);
}

TEST_F(DesignWithPanes, APropertyFromTheInspectorIsAStep) {
    Click(20, 20);
    const std::string before = model().Text();
    form().Find<tvok::TextBox>("a")->Text("price");
    page().PropertyChanged({"a", "Text", "", "price"});
    EXPECT_THAT(model().Text(), HasSubstr("Text = \"price\""));
    Control('Z');
    EXPECT_EQ(model().Text(), before);
    EXPECT_EQ(form().Find<tvok::TextBox>("a")->Text(), "");
    Turn();
    EXPECT_THAT(Offered(), ElementsAre("(form)", "a", "b", "c"));
}

} // namespace
} // namespace gallery
