// The form that is being designed, without a mouse: edits, steps, and thousands of them taken back.
#include "apps/gallery/design/DesignedForm.h"

#include <random>

#include <gmock/gmock.h>

#include "apps/gallery/design/types.h"
#include "tests/support/RandomRuns.h"
#include "tests/support/TestDesktop.h"
#include "tvok/records/Error.h"

namespace gallery {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using tvok::Placement;

class DesignedFormTest : public testing::Test {
protected:
    /// What the live form would save.
    std::string Live() const { return tvok::FormFileText(form.Content()); }
    Placement PlaceOf(const std::string& name) const { return form.PlacementOf(*form.Find(name)); }

    tvok::test::TestDesktop desktop;
    tvok::Form& form = desktop.form().AddForm("Form", 320, 240);
    DesignedForm design{form};
};

TEST_F(DesignedFormTest, EveryTypeIsAddedUnderAFreeNameAndTakenBack) {
    const std::string empty = design.Text();
    for (const DesignType& type : DesignTypes()) {
        const std::string name = design.Add(type.name, {8, 16, type.size.width, type.size.height});
        EXPECT_EQ(name, std::string(type.name) + "1");
        EXPECT_NE(form.Find(name), nullptr);
        EXPECT_EQ(tvok::ControlTypeName(*form.Find(name)), type.name);
        EXPECT_THAT(design.Text(), HasSubstr("type = \"" + std::string(type.name) + "\""));
        EXPECT_EQ(design.Text(), Live());
    }
    EXPECT_EQ(DesignTypes().size(), tvok::RegisteredControls().size());
    EXPECT_EQ(design.Add("qRoster", {}), "qRoster2");
    while (design.CanUndo()) design.Undo();
    EXPECT_EQ(design.Text(), empty);
    EXPECT_THAT(form.Names(), IsEmpty());
    EXPECT_THROW(design.Add("NoSuchType", {}), tvok::ObjectError);
    EXPECT_FALSE(design.CanUndo());
}

TEST_F(DesignedFormTest, UndoAndRedoNameWhatIsAnotherNow) {
    design.Add("TextBox", {8, 8, 100, 24});
    design.Add("iLabel", {8, 40, 100, 24});
    design.Place({{"TextBox1", {16, 8, 100, 24}}});
    EXPECT_THAT(design.Undo(), ElementsAre("TextBox1"));
    EXPECT_EQ(PlaceOf("TextBox1"), (Placement{8, 8, 100, 24}));
    EXPECT_THAT(design.Redo(), ElementsAre("TextBox1"));
    EXPECT_EQ(PlaceOf("TextBox1"), (Placement{16, 8, 100, 24}));
    EXPECT_FALSE(design.CanRedo());
    EXPECT_THAT(design.Redo(), IsEmpty());
    design.Delete({"TextBox1", "nobody"});
    EXPECT_THAT(form.Names(), ElementsAre("iLabel1"));
    EXPECT_THAT(design.Undo(), ElementsAre("TextBox1"));
    EXPECT_THAT(form.Names(), ElementsAre("TextBox1", "iLabel1")); // at its place in the order
}

TEST_F(DesignedFormTest, AnEditAfterAnUndoDropsWhatWasTakenBack) {
    design.Add("TextBox", {});
    design.Add("iLabel", {});
    design.Undo();
    EXPECT_TRUE(design.CanRedo());
    design.Caption("Another");
    EXPECT_FALSE(design.CanRedo());
    design.Undo();
    EXPECT_EQ(form.Caption(), "Form");
    EXPECT_THAT(form.Names(), ElementsAre("TextBox1"));
}

TEST_F(DesignedFormTest, WhatChangesNothingIsNoStep) {
    design.Add("TextBox", {8, 8, 100, 24});
    const auto steps = [&] {
        int count = 0;
        while (design.CanUndo()) design.Undo(), ++count;
        while (design.CanRedo()) design.Redo();
        return count;
    };
    design.Place({{"TextBox1", {8, 8, 100, 24}}});
    design.Place({{"nobody", {8, 8, 100, 24}}});
    design.Delete({});
    design.Caption("Form");
    design.Size(320, 240);
    design.Take("TextBox1");
    design.Reorder("TextBox1", 0);
    EXPECT_TRUE(design.Rename("TextBox1", "TextBox1"));
    EXPECT_EQ(steps(), 1);
}

TEST_F(DesignedFormTest, ADragIsOneStepAndNoneWhereItEndsAsItBegan) {
    design.Add("TextBox", {8, 8, 100, 24});
    const std::string before = design.Text();
    design.BeginDrag();
    for (std::int32_t x = 9; x < 60; ++x) design.Place({{"TextBox1", {x, 8, 100, 24}}});
    design.EndDrag();
    EXPECT_EQ(PlaceOf("TextBox1").left, 59);
    design.Undo();
    EXPECT_EQ(design.Text(), before);
    design.Redo();
    const std::string after = design.Text();
    design.BeginDrag();
    design.Place({{"TextBox1", {0, 0, 100, 24}}});
    design.Place({{"TextBox1", {59, 8, 100, 24}}});
    design.EndDrag();
    EXPECT_EQ(design.Text(), after);
    design.Undo();
    EXPECT_EQ(design.Text(), before);
    design.BeginDrag();
    design.Place({{"TextBox1", {0, 0, 10, 10}}});
    design.CancelDrag();
    EXPECT_EQ(design.Text(), before);
    EXPECT_EQ(Live(), before);
}

TEST_F(DesignedFormTest, ManyControlsMoveAsOneStep) {
    design.Add("TextBox", {8, 8, 100, 24});
    design.Add("iLabel", {8, 40, 100, 24});
    const std::string before = design.Text();
    design.Place({{"TextBox1", {16, 16, 100, 24}}, {"iLabel1", {16, 48, 90, 24}}});
    EXPECT_EQ(PlaceOf("iLabel1"), (Placement{16, 48, 90, 24}));
    design.Undo();
    EXPECT_EQ(design.Text(), before);
    EXPECT_EQ(PlaceOf("TextBox1"), (Placement{8, 8, 100, 24}));
}

TEST_F(DesignedFormTest, ANameIsRefusedWhereItIsTakenOrEmpty) {
    design.Add("TextBox", {8, 8, 100, 24});
    design.Add("iLabel", {8, 40, 100, 24});
    const std::string before = design.Text();
    EXPECT_FALSE(design.Rename("TextBox1", "iLabel1"));
    EXPECT_FALSE(design.Rename("TextBox1", ""));
    EXPECT_FALSE(design.Rename("nobody", "somebody"));
    EXPECT_EQ(design.Text(), before);
    EXPECT_TRUE(design.Rename("TextBox1", "the price"));
    EXPECT_THAT(form.Names(), ElementsAre("the price", "iLabel1"));
    EXPECT_EQ(PlaceOf("the price"), (Placement{8, 8, 100, 24}));
    EXPECT_EQ(form.ComponentOf(*form.Find("the price")).Ambient().DisplayName(), "the price");
    design.Undo();
    EXPECT_EQ(design.Text(), before);
    EXPECT_THAT(form.Names(), ElementsAre("TextBox1", "iLabel1"));
}

TEST_F(DesignedFormTest, APropertyThatSomebodyChangedBecomesAStep) {
    design.Add("qRoster", {8, 8, 160, 120});
    const std::string before = design.Text();
    const auto list = [&]() -> tvok::qRoster& { return *form.Find<tvok::qRoster>("qRoster1"); };
    list().ItemHeight(30);
    list().SelectedColor(0x123456);
    design.Take("qRoster1");
    EXPECT_THAT(design.Text(), HasSubstr("ItemHeight = 30"));
    design.Undo();
    EXPECT_EQ(design.Text(), before);
    EXPECT_EQ(list().ItemHeight(), 18);
    design.Redo();
    EXPECT_EQ(list().ItemHeight(), 30);
    EXPECT_EQ(list().SelectedColor(), 0x123456);
    EXPECT_EQ(design.Text(), Live());
}

TEST_F(DesignedFormTest, CaptionAndSizeAreStepsAndKeptWithinWhatAFileTakes) {
    design.Caption("Stock");
    design.Size(0, 100000);
    EXPECT_EQ(form.Caption(), "Stock");
    EXPECT_EQ(design.Content().width, 1);
    EXPECT_EQ(design.Content().height, 8192);
    EXPECT_NO_THROW(tvok::ParseFormFile(design.Text(), "x"));
    design.Undo();
    EXPECT_EQ(form.Width(), 320);
    design.Undo();
    EXPECT_EQ(form.Caption(), "Form");
}

TEST_F(DesignedFormTest, WhatSomebodyChangedOfTheFormIsOneStepAndNoneWhereItIsBack) {
    form.Size(321, 240);
    form.Size(400, 200);
    form.Caption("Stock");
    design.TakeForm();
    EXPECT_EQ(design.Text(), Live());
    EXPECT_THAT(design.Text(), HasSubstr("caption = \"Stock\"\nwidth = 400\nheight = 200\n"));
    form.Size(100, 100);
    form.Size(400, 200);
    design.TakeForm();
    design.Undo();
    EXPECT_FALSE(design.CanUndo());
    EXPECT_EQ(form.Width(), 320);
    EXPECT_EQ(form.Caption(), "Form");
}

TEST_F(DesignedFormTest, TakeTellsWhetherAFormFileKeepsWhatChanged) {
    design.Add("qRoster", {8, 8, 160, 120});
    auto& list = *form.Find<tvok::qRoster>("qRoster1");
    tvok::quietly([&] { list.SortedMode(2); });
    ASSERT_EQ(list.SortedMode(), 2);
    EXPECT_FALSE(design.Take("qRoster1"));
    EXPECT_FALSE(design.Take("nobody"));
    tvok::quietly([&] { list.HotTrack(true); });
    EXPECT_TRUE(design.Take("qRoster1"));
    EXPECT_FALSE(design.Take("qRoster1"));
}

/// What a list writes and does not take back from a bag.
template<class List>
void SetLinesAndBand(tvok::Form& form, const std::string& name) {
    auto& list = *form.Find<List>(name);
    tvok::quietly([&] { list.GridlineOnBorder(true); }, [&] { list.HeadWidthEx(7); });
}
template<class List>
void ExpectLinesAndBand(const tvok::Form& form, const std::string& name) {
    const auto* list = form.Find<List>(name);
    ASSERT_NE(list, nullptr) << name;
    EXPECT_TRUE(list->GridlineOnBorder()) << name;
    EXPECT_EQ(list->HeadWidthEx(), 7) << name;
}

TEST_F(DesignedFormTest, AListThatIsMadeAnewHasItsLinesOnTheBorderAndItsBand) {
    const auto expect = [&](const std::string& before, const std::string& number) {
        ExpectLinesAndBand<tvok::qRoster>(form, before + "qRoster" + number);
        ExpectLinesAndBand<tvok::gList>(form, before + "gList" + number);
        ExpectLinesAndBand<tvok::xPopup>(form, before + "xPopup" + number);
        EXPECT_EQ(design.Text(), Live());
    };
    const DesignedForm::Names names{"qRoster1", "gList1", "xPopup1"};
    for (const char* type : {"qRoster", "gList", "xPopup"}) design.Add(type, {8, 8, 160, 120});
    SetLinesAndBand<tvok::qRoster>(form, "qRoster1");
    SetLinesAndBand<tvok::gList>(form, "gList1");
    SetLinesAndBand<tvok::xPopup>(form, "xPopup1");
    for (const std::string& name : names) EXPECT_TRUE(design.Take(name));
    design.Paste(design.Copy(names), 8);
    expect("", "2");
    for (const std::string& name : names) design.Rename(name, "the " + name);
    expect("the ", "1");
    design.Delete(form.Names());
    design.Undo();
    expect("the ", "1");
    expect("", "2");
    for (std::size_t i = 0; i < names.size(); ++i) design.Undo();
    expect("", "1");
    while (design.CanUndo()) design.Undo(); // on the way the lists are what they were at first
    EXPECT_EQ(design.Text(), Live());
    while (design.CanRedo()) {
        design.Redo();
        EXPECT_EQ(design.Text(), Live());
    }
}

TEST_F(DesignedFormTest, WhatIsCopiedIsPastedUnderFreeNames) {
    design.Add("TextBox", {8, 8, 100, 24});
    design.Add("qRoster", {8, 40, 160, 120});
    form.Find<tvok::qRoster>("qRoster1")->ItemHeight(30);
    design.Take("qRoster1");
    const std::string before = design.Text();
    const std::string copied = design.Copy({"qRoster1"});
    EXPECT_THAT(design.Paste(copied, 8), ElementsAre("qRoster2"));
    EXPECT_EQ(PlaceOf("qRoster2").left, 16);
    EXPECT_EQ(form.Find<tvok::qRoster>("qRoster2")->ItemHeight(), 30);
    EXPECT_EQ(design.Text(), Live());
    design.Delete({"qRoster1"});
    EXPECT_THAT(design.Paste(copied, 0), ElementsAre("qRoster1"));
    for (int i = 0; i < 3; ++i) design.Undo();
    EXPECT_EQ(design.Text(), before);
    EXPECT_THROW(design.Paste("[form]\n[[control]]\ntype = \"qRoster\"\n", 0), tvok::FileError);
    EXPECT_THROW(design.Paste("no form", 0), tvok::FileError);
    EXPECT_EQ(design.Text(), before);
}

TEST_F(DesignedFormTest, AnotherFormTakesItsPlaceAsOneStep) {
    design.Add("TextBox", {8, 8, 100, 24});
    const std::string before = design.Text();
    tvok::FormFile other{"Other", 200, 100, {{"qRoster", "TextBox1", {0, 0, 50, 50}, {}}}};
    design.Replace(other);
    EXPECT_EQ(form.Caption(), "Other");
    EXPECT_EQ(form.Width(), 200);
    EXPECT_NE(form.Find<tvok::qRoster>("TextBox1"), nullptr);
    design.Undo();
    EXPECT_EQ(design.Text(), before);
    EXPECT_EQ(Live(), before);
    EXPECT_NE(form.Find<tvok::TextBox>("TextBox1"), nullptr);
}

TEST_F(DesignedFormTest, TheOrderOfTabIsAStep) {
    for (int i = 0; i < 3; ++i) design.Add("TextBox", {8, 8 + 30 * i, 100, 24});
    design.Reorder("TextBox3", 0);
    EXPECT_THAT(form.Names(), ElementsAre("TextBox3", "TextBox1", "TextBox2"));
    EXPECT_EQ(design.Text(), Live());
    design.Undo();
    EXPECT_THAT(form.Names(), ElementsAre("TextBox1", "TextBox2", "TextBox3"));
    design.Reorder("TextBox1", 99);
    EXPECT_THAT(form.Names(), ElementsAre("TextBox2", "TextBox3", "TextBox1"));
}

TEST_F(DesignedFormTest, ControlsThatStayAreNotMadeAnew) {
    design.Add("TextBox", {8, 8, 100, 24});
    design.Add("qRoster", {8, 40, 160, 120});
    const auto* text = form.Find("TextBox1");
    const auto* list = form.Find("qRoster1");
    design.Place({{"TextBox1", {16, 8, 100, 24}}, {"qRoster1", {16, 40, 160, 90}}});
    design.Undo();
    design.Redo();
    EXPECT_EQ(form.Find("TextBox1"), text);
    EXPECT_EQ(form.Find("qRoster1"), list);
}

TEST_F(DesignedFormTest, TellsOfEveryChange) {
    int told = 0;
    design.changed = [&] { ++told; };
    design.Add("TextBox", {8, 8, 100, 24});
    EXPECT_EQ(told, 1);
    design.BeginDrag();
    design.Place({{"TextBox1", {9, 8, 100, 24}}});
    EXPECT_EQ(told, 2);
    design.EndDrag();
    design.Undo();
    EXPECT_GE(told, 3);
}

// Random edits.

/// Does anything to a design. Sizes go beyond what controls keep to.
class RandomEditor {
public:
    RandomEditor(DesignedForm& design, std::mt19937& random) : design_(design), random_(random) {}

    void Edit() {
        switch (Below(10)) {
        case 0:
        case 1: Add(); break;
        case 2: design_.Delete(Some(4)); break;
        case 3:
        case 4: Move(); break;
        case 5: Drag(); break;
        case 6: ChangeProperty(); break;
        case 7:
            if (!design_.form().Names().empty()) design_.Rename(Any(), "n" + std::to_string(Below(12)));
            break;
        case 8: EditForm(); break;
        default: design_.Paste(design_.Copy(Some(3)), Below(20)); break;
        }
    }

    std::int32_t Below(std::int32_t limit) {
        return static_cast<std::int32_t>(random_() % static_cast<unsigned>(limit));
    }

private:
    Placement AnyPlace() { return {Below(400) - 50, Below(300) - 50, Below(250), Below(250)}; }
    std::string Any() {
        const auto names = design_.form().Names();
        return names[static_cast<std::size_t>(Below(static_cast<std::int32_t>(names.size())))];
    }
    DesignedForm::Names Some(std::int32_t part) {
        DesignedForm::Names names = design_.form().Names();
        std::erase_if(names, [&](const std::string&) { return Below(part) != 0; });
        return names;
    }
    void Add() {
        if (design_.form().Names().size() > 12) return design_.Delete(Some(2));
        const auto& types = DesignTypes();
        const auto number = static_cast<std::size_t>(Below(static_cast<std::int32_t>(types.size())));
        design_.Add(types[number].name, AnyPlace());
    }
    void Move() {
        DesignedForm::Places places;
        for (const std::string& name : Some(2)) places.emplace_back(name, AnyPlace());
        design_.Place(places);
    }
    void Drag() {
        design_.BeginDrag();
        for (int i = 0; i < 3; ++i) Move();
        if (Below(4) == 0) return design_.CancelDrag();
        if (Below(4) != 0) design_.EndDrag(); // else what comes next ends it
    }
    void ChangeProperty() {
        if (design_.form().Names().empty()) return;
        const std::string name = Any();
        tvok::host::Control* control = design_.form().Find(name);
        // Some of a list's members throw at design time, after the property has its new value.
        tvok::quietly([&] { Change(*control); }, [&] { ChangeLinesAndBand<tvok::qRoster>(*control); },
                      [&] { ChangeLinesAndBand<tvok::gList>(*control); },
                      [&] { ChangeLinesAndBand<tvok::xPopup>(*control); });
        design_.Take(name);
    }
    void Change(tvok::host::Control& control) {
        if (auto* list = dynamic_cast<tvok::qRoster*>(&control)) {
            list->ItemHeight(10 + Below(30));
            list->xn(1 + Below(3));
            list->FixedHeight(Below(2) == 0);
        } else if (auto* large = dynamic_cast<tvok::qRosterex*>(&control)) {
            large->ItemHeight(10 + Below(30));
        } else if (auto* label = dynamic_cast<tvok::iLabel*>(&control)) {
            label->Caption("label " + std::to_string(Below(100)));
            label->Font()->Bold(Below(2) == 0);
        } else if (auto* text = dynamic_cast<tvok::TextBox*>(&control)) {
            text->Text("text " + std::to_string(Below(100)));
            text->BackColor(Below(0x1000000));
        }
    }
    template<class List>
    void ChangeLinesAndBand(tvok::host::Control& control) {
        auto* list = dynamic_cast<List*>(&control);
        if (list == nullptr) return;
        const bool lines = Below(2) == 0;
        const std::int32_t band = Below(3) * 7;
        tvok::quietly([&] { list->GridlineOnBorder(lines); }, [&] { list->HeadWidthEx(band); });
    }
    void EditForm() {
        if (Below(2) == 0) design_.Size(Below(400), Below(400));
        if (Below(3) == 0) design_.Caption("caption " + std::to_string(Below(9)));
        const auto names = design_.form().Names();
        if (!names.empty()) design_.Reorder(Any(), static_cast<std::size_t>(Below(14)));
    }

    DesignedForm& design_;
    std::mt19937& random_;
};

TEST_F(DesignedFormTest, ThousandsOfEditsUndosAndRedosGiveTheSameTextsAgain) {
    std::mt19937 random(tvok::test::FromEnvironment("TVOK_RANDOM_SEED", 6011));
    const std::uint32_t steps = tvok::test::FromEnvironment("TVOK_RANDOM_STEPS", 2500);
    RandomEditor editor(design, random);
    std::vector<std::string> texts{design.Text()}; // of each step
    std::size_t now = 0;
    for (std::uint32_t step = 0; step < steps; ++step) {
        const std::int32_t choice = editor.Below(10);
        if (choice < 6) {
            editor.Edit();
            if (design.IsDragging()) design.EndDrag();
            // An edit may be several steps, or none: the way back from here has to meet the steps before.
            std::vector<std::string> back{design.Text()};
            while (design.CanUndo() && back.size() < 4) design.Undo(), back.push_back(design.Text());
            for (std::size_t i = 1; i < back.size(); ++i) design.Redo();
            ASSERT_EQ(design.Text(), back.front()) << "step " << step;
            const auto met = std::ranges::find(back, texts[now]);
            ASSERT_NE(met, back.end()) << "step " << step;
            if (design.CanRedo()) continue; // nothing was changed
            texts.resize(now + 1);
            texts.insert(texts.end(), std::make_reverse_iterator(met), back.rend());
            now = texts.size() - 1;
        } else if (choice < 8 && now > 0) {
            ASSERT_TRUE(design.CanUndo());
            design.Undo();
            --now;
        } else if (choice >= 8 && now + 1 < texts.size()) {
            ASSERT_TRUE(design.CanRedo());
            design.Redo();
            ++now;
        }
        ASSERT_EQ(design.Text(), texts[now]) << "step " << step;
        ASSERT_EQ(Live(), texts[now]) << "step " << step;
        if (step % 64 == 0) desktop.Pump(); // frees what was removed
    }
    while (design.CanUndo()) {
        design.Undo();
        ASSERT_EQ(design.Text(), texts[--now]);
        ASSERT_EQ(Live(), texts[now]);
    }
    EXPECT_EQ(now, 0u);
    EXPECT_THAT(form.Names(), IsEmpty());
}

} // namespace
} // namespace gallery
