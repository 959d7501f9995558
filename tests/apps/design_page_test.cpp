// The page "design" under a user's hands: selecting, dragging, keys, files and the running form.
#include "apps/gallery/design/DesignPage.h"

#include <filesystem>
#include <fstream>
#include <random>

#include <gmock/gmock.h>

#include "apps/gallery/Window.h"
#include "apps/gallery/design/types.h"
#include "tests/support/RandomRuns.h"
#include "tests/support/TestDesktop.h"
#include "tvok/host/desktop/windows/World.h"

namespace gallery {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using tvok::Placement;
using tvok::desktop::MouseButton;
using tvok::host::platform;
using tvok::host::Point;
using namespace tvok::host; // the key codes

class DesignPageTest : public testing::Test {
protected:
    explicit DesignPageTest(Panes panes = Panes::None)
        : window_(Window::Open(desktop_.desktop(), "design", panes)) {
        folder_ = std::filesystem::temp_directory_path() / ("tvok_design_" + std::to_string(std::rand()));
        std::filesystem::create_directories(folder_);
        Pump();
        // Three controls with room around them.
        tvok::FormFile simple{"Form", 320, 240, {}};
        simple.controls.push_back({"TextBox", "a", {16, 16, 80, 24}, {}});
        simple.controls.push_back({"TextBox", "b", {16, 56, 80, 24}, {}});
        simple.controls.push_back({"iLabel", "c", {120, 16, 80, 64}, {}});
        model().Replace(simple);
        Pump();
    }
    ~DesignPageTest() override { std::filesystem::remove_all(folder_); }

    DesignPage& page() { return dynamic_cast<DesignPage&>(window_->page()); }
    Designer& designer() { return page().designer(); }
    DesignedForm& model() { return designer().model(); }
    tvok::Form& form() { return designer().form(); }
    Placement PlaceOf(const std::string& name) { return form().PlacementOf(*form().Find(name)); }
    const Designer::Names& Selected() { return designer().Selected(); }
    tvok::desktop::Input& Input() { return desktop_.desktop().Input(); }
    void Pump() { desktop_.Pump(); }

    void MoveOn(tvok::host::Handle hWnd, std::int32_t x, std::int32_t y) {
        Point point{x, y};
        platform().ClientToScreen(hWnd, point);
        Input().MouseMove(point.x, point.y);
        Pump();
    }
    void MoveTo(std::int32_t x, std::int32_t y) { MoveOn(form().hWnd(), x, y); }
    void Press(std::int32_t x, std::int32_t y) {
        desktop_.clock().now += std::chrono::seconds(1); // no double click
        MoveTo(x, y);
        Input().MouseDown(MouseButton::Left);
        Pump();
    }
    void Release() {
        Input().MouseUp(MouseButton::Left);
        Pump();
    }
    void Click(std::int32_t x, std::int32_t y) {
        Press(x, y);
        Release();
    }
    void Drag(Point from, Point to) {
        Press(from.x, from.y);
        for (int step = 1; step <= 4; ++step)
            MoveTo(from.x + (to.x - from.x) * step / 4, from.y + (to.y - from.y) * step / 4);
        Release();
    }
    template<class Action>
    void Holding(std::int32_t key, const Action& action) {
        desktop_.HoldKey(key);
        action();
        desktop_.LetGoKey(key);
    }
    void Control(std::int32_t key) {
        Holding(VK_CONTROL, [&] { desktop_.Key(key); });
    }
    tvok::qRoster& Palette() { return *window_->form().Find<tvok::qRoster>("design.types"); }
    tvok::TextBox& Field(const char* name) { return *window_->form().Find<tvok::TextBox>(name); }
    tvok::host::Handle Area() {
        return window_->form().ComponentOf(*window_->form().Find("design.area")).hWnd();
    }
    /// Clicks the command with this number in the bar.
    void Command(std::int32_t number) {
        desktop_.clock().now += std::chrono::seconds(1);
        const auto& bar = *window_->form().Find("design.commands");
        MoveOn(window_->form().ComponentOf(bar).hWnd(), CommandBar::CommandWidth * (number - 1) + 20, 12);
        Input().MouseDown(MouseButton::Left);
        Input().MouseUp(MouseButton::Left);
        Pump();
    }
    static constexpr std::int32_t New = 1, Open = 2, Save = 3, Undo = 4, Redo = 5, Run = 6;
    std::string FileNamed(const std::string& name) const { return (folder_ / name).string(); }
    static std::string TextOf(const std::string& file) {
        std::ifstream stream(file);
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }

    tvok::test::TestDesktop desktop_;
    std::shared_ptr<Window> window_;
    std::filesystem::path folder_;
};

TEST_F(DesignPageTest, ComesUpWithAFormAtDesignTime) {
    while (model().CanUndo()) model().Undo();
    EXPECT_FALSE(form().UserMode());
    EXPECT_EQ(form().Caption(), "Orders");
    EXPECT_THAT(form().Names(), SizeIs(testing::Gt(5u)));
    EXPECT_NO_THROW(tvok::ParseFormFile(model().Text(), "x"));
}

// Selecting.

TEST_F(DesignPageTest, AClickSelectsWithControlItAddsAndTakesAway) {
    Click(20, 20);
    EXPECT_THAT(Selected(), ElementsAre("a"));
    Click(20, 60);
    EXPECT_THAT(Selected(), ElementsAre("b"));
    Holding(VK_CONTROL, [&] { Click(130, 50); });
    EXPECT_THAT(Selected(), ElementsAre("b", "c"));
    Click(40, 70); // on one of several: it leads now
    EXPECT_THAT(Selected(), ElementsAre("c", "b"));
    Holding(VK_CONTROL, [&] { Click(130, 50); });
    EXPECT_THAT(Selected(), ElementsAre("b"));
    Click(300, 200);
    EXPECT_THAT(Selected(), IsEmpty());
    Click(20, 20);
    Click(60, -10); // the form's caption
    EXPECT_THAT(Selected(), IsEmpty());
    Control('A');
    EXPECT_THAT(Selected(), ElementsAre("a", "b", "c"));
    EXPECT_FALSE([&] {
        model().Undo(); // the form of the set-up alone was a step
        return model().CanUndo();
    }());
}

TEST_F(DesignPageTest, ADragBesideTheControlsSelectsWhatItTouches) {
    Press(4, 4);
    MoveTo(60, 60);
    EXPECT_THAT(Selected(), ElementsAre("a", "b"));
    MoveTo(60, 50);
    EXPECT_THAT(Selected(), ElementsAre("a"));
    Release();
    EXPECT_THAT(Selected(), ElementsAre("a"));
    Holding(VK_CONTROL, [&] { Drag({220, 100}, {190, 70}); });
    EXPECT_THAT(Selected(), ElementsAre("a", "c"));
}

TEST_F(DesignPageTest, ControlsGetNeitherMouseNorFocus) {
    Click(20, 20);
    EXPECT_EQ(platform().GetFocus(), form().hWnd());
    desktop_.Type("x");
    EXPECT_EQ(form().Find<tvok::TextBox>("a")->Text(), "");
}

// Dragging.

TEST_F(DesignPageTest, ADragMovesAllThatIsSelectedToTheGridAsOneStep) {
    const std::string before = model().Text();
    Click(20, 20);
    Holding(VK_CONTROL, [&] { Click(20, 60); });
    Drag({30, 62}, {59, 75});
    EXPECT_EQ(PlaceOf("b"), (Placement{48, 72, 80, 24})); // 16 + 29, 56 + 13
    EXPECT_EQ(PlaceOf("a"), (Placement{48, 32, 80, 24}));
    EXPECT_EQ(PlaceOf("c"), (Placement{120, 16, 80, 64}));
    Control('Z');
    EXPECT_EQ(model().Text(), before);
    EXPECT_EQ(PlaceOf("a"), (Placement{16, 16, 80, 24}));
    Control('Y');
    EXPECT_EQ(PlaceOf("b"), (Placement{48, 72, 80, 24}));
}

TEST_F(DesignPageTest, WithShiftOrAltADragLeavesTheGrid) {
    Holding(VK_SHIFT, [&] { Drag({30, 30}, {43, 37}); });
    EXPECT_EQ(PlaceOf("a"), (Placement{29, 23, 80, 24}));
    Holding(VK_MENU, [&] { Drag({40, 30}, {41, 35}); });
    EXPECT_EQ(PlaceOf("a"), (Placement{30, 28, 80, 24}));
}

TEST_F(DesignPageTest, ASmallMoveIsAClick) {
    const std::string before = model().Text();
    Drag({30, 30}, {32, 32});
    EXPECT_EQ(model().Text(), before);
    EXPECT_THAT(Selected(), ElementsAre("a"));
}

TEST_F(DesignPageTest, AHandleResizesAllThatIsSelected) {
    Click(20, 60);
    Holding(VK_CONTROL, [&] { Click(20, 20); });
    Drag({95, 39}, {118, 50}); // the right bottom one of "a"
    EXPECT_EQ(PlaceOf("a"), (Placement{16, 16, 104, 32}));
    EXPECT_EQ(PlaceOf("b"), (Placement{16, 56, 104, 32}));
    Drag({16, 32}, {9, 32}); // the left one
    EXPECT_EQ(PlaceOf("a"), (Placement{8, 16, 112, 32}));
    Control('Z');
    Control('Z');
    EXPECT_EQ(PlaceOf("a"), (Placement{16, 16, 80, 24}));
    EXPECT_EQ(PlaceOf("b"), (Placement{16, 56, 80, 24}));
}

TEST_F(DesignPageTest, TheMousePointerTellsAHandle) {
    Click(20, 20);
    MoveTo(95, 39);
    EXPECT_EQ(form().MousePointer(), ccSizeNWSE);
    MoveTo(95, 28);
    EXPECT_EQ(form().MousePointer(), ccSizeWE);
    MoveTo(40, 28);
    EXPECT_EQ(form().MousePointer(), ccDefault);
}

TEST_F(DesignPageTest, EscTakesADragBackAndThenSelectsTheForm) {
    const std::string before = model().Text();
    Press(30, 30);
    MoveTo(80, 80);
    EXPECT_NE(model().Text(), before);
    desktop_.Key(VK_ESCAPE);
    EXPECT_EQ(model().Text(), before);
    EXPECT_EQ(PlaceOf("a"), (Placement{16, 16, 80, 24}));
    MoveTo(90, 90);
    Release();
    EXPECT_EQ(model().Text(), before);
    EXPECT_THAT(Selected(), ElementsAre("a"));
    desktop_.Key(VK_ESCAPE);
    EXPECT_THAT(Selected(), IsEmpty());
}

TEST_F(DesignPageTest, AHandleOfTheFormResizesIt) {
    Click(300, 200);
    tvok::tvok_Rect rect;
    platform().GetWindowRect(form().hWnd(), rect);
    const auto drag = [&](Point from, Point to) {
        desktop_.clock().now += std::chrono::seconds(1);
        Input().MouseMove(from.x, from.y);
        Input().MouseDown(MouseButton::Left);
        Input().MouseMove(to.x, to.y);
        Input().MouseUp(MouseButton::Left);
        Pump();
    };
    drag({rect.Right + 5, rect.bottom + 5}, {rect.Right + 26, rect.bottom - 18});
    EXPECT_EQ(form().Width(), 344); // 320 + 21
    EXPECT_EQ(form().Height(), 216);
    Control('Z');
    EXPECT_EQ(form().Width(), 320);
    EXPECT_EQ(form().Height(), 240);
}

// Keys.

TEST_F(DesignPageTest, ArrowKeysMoveAndResize) {
    Click(20, 20);
    desktop_.Key(VK_RIGHT);
    EXPECT_EQ(PlaceOf("a"), (Placement{17, 16, 80, 24}));
    Control(VK_DOWN);
    EXPECT_EQ(PlaceOf("a"), (Placement{17, 24, 80, 24}));
    Holding(VK_SHIFT, [&] { desktop_.Key(VK_RIGHT); });
    EXPECT_EQ(PlaceOf("a"), (Placement{17, 24, 81, 24}));
    for (int i = 0; i < 3; ++i) Control('Z');
    EXPECT_EQ(PlaceOf("a"), (Placement{16, 16, 80, 24}));
}

TEST_F(DesignPageTest, DelDeletesAndAnUndoBringsItBackSelected) {
    Click(20, 20);
    Holding(VK_CONTROL, [&] { Click(130, 50); });
    desktop_.Key(VK_DELETE);
    EXPECT_THAT(form().Names(), ElementsAre("b"));
    EXPECT_THAT(Selected(), IsEmpty());
    Control('Z');
    EXPECT_THAT(form().Names(), ElementsAre("a", "b", "c"));
    EXPECT_THAT(Selected(), ElementsAre("a", "c"));
}

TEST_F(DesignPageTest, WhatIsCutOrCopiedCanBePasted) {
    Click(20, 20);
    Control('C');
    EXPECT_THAT(desktop_.desktop().ClipboardText(), HasSubstr("name = \"a\""));
    Control('V');
    EXPECT_THAT(Selected(), ElementsAre("TextBox1"));
    EXPECT_EQ(PlaceOf("TextBox1"), (Placement{24, 24, 80, 24}));
    Control('X');
    EXPECT_THAT(form().Names(), ElementsAre("a", "b", "c"));
    desktop_.desktop().ClipboardText("[form]\nno = 1\n");
    Control('V');
    EXPECT_THAT(page().Message(), HasSubstr("clipboard:2"));
    EXPECT_THAT(form().Names(), ElementsAre("a", "b", "c"));
}

// The palette.

TEST_F(DesignPageTest, ADoubleClickOnATypeAddsAControl) {
    desktop_.clock().now += std::chrono::seconds(1);
    MoveOn(window_->form().ComponentOf(Palette()).hWnd(), 60, 10);
    for (int i = 0; i < 2; ++i) {
        Input().MouseDown(MouseButton::Left);
        Input().MouseUp(MouseButton::Left);
    }
    Pump();
    EXPECT_THAT(form().Names(), ElementsAre("a", "b", "c", "iLabel1"));
    EXPECT_THAT(Selected(), ElementsAre("iLabel1"));
}

TEST_F(DesignPageTest, ATypeThatIsDraggedIntoTheFormComesWhereItEnds) {
    desktop_.clock().now += std::chrono::seconds(1);
    MoveOn(window_->form().ComponentOf(Palette()).hWnd(), 60, 26 * 5 + 10); // qRoster
    Input().MouseDown(MouseButton::Left);
    Pump();
    MoveTo(50, 50);
    MoveTo(123, 101);
    Release();
    EXPECT_THAT(form().Names(), ElementsAre("a", "b", "c", "qRoster1"));
    EXPECT_EQ(PlaceOf("qRoster1").left, 120);
    EXPECT_EQ(PlaceOf("qRoster1").top, 104);
    EXPECT_THAT(Selected(), ElementsAre("qRoster1"));
    MoveOn(window_->form().ComponentOf(Palette()).hWnd(), 60, 26 * 5 + 10);
    desktop_.clock().now += std::chrono::seconds(1);
    Input().MouseDown(MouseButton::Left);
    Pump();
    MoveTo(50, 50);
    MoveOn(Area(), 4, 4); // beside the form
    Release();
    EXPECT_THAT(form().Names(), SizeIs(4));
}

// Names, files and running.

TEST_F(DesignPageTest, TheNameFieldRenamesAndRefusesAnothersName) {
    Click(20, 20);
    EXPECT_EQ(Field("design.name").Text(), "a");
    const auto rename = [&](const std::string& name) {
        Field("design.name").Text(name);
        window_->form().ComponentOf(Field("design.name")).SetFocus();
        desktop_.Key(VK_RETURN);
    };
    rename("b");
    EXPECT_THAT(page().Message(), HasSubstr("\"b\""));
    EXPECT_THAT(form().Names(), ElementsAre("a", "b", "c"));
    rename("price");
    EXPECT_THAT(form().Names(), ElementsAre("price", "b", "c"));
    EXPECT_THAT(Selected(), ElementsAre("price"));
    Control('Z');
    EXPECT_THAT(form().Names(), ElementsAre("a", "b", "c"));
}

TEST_F(DesignPageTest, SavesAndOpensAndSaysWhatIsWrong) {
    const std::string file = FileNamed("panel.toml");
    Field("design.path").Text(file);
    Command(Save);
    EXPECT_EQ(TextOf(file), model().Text());
    EXPECT_THAT(page().Message(), HasSubstr(file));
    const std::string saved = model().Text();
    Command(New);
    EXPECT_THAT(form().Names(), IsEmpty());
    Command(Open);
    EXPECT_EQ(model().Text(), saved);
    Command(Undo);
    EXPECT_THAT(form().Names(), IsEmpty());
    Command(Redo);
    EXPECT_EQ(model().Text(), saved);
    std::ofstream(file) << "[form]\n[[control]]\ntype = \"TextBox\"\nname = \"a\"\nleft = \"x\"\n";
    Command(Open);
    EXPECT_THAT(page().Message(), HasSubstr("panel.toml:5: control.left"));
    EXPECT_EQ(model().Text(), saved);
    Field("design.path").Text(FileNamed("no/such/folder.toml"));
    Command(Save);
    EXPECT_THAT(page().Message(), HasSubstr("cannot be written"));
}

TEST_F(DesignPageTest, RunShowsTheFormAsItsFileInAWindowOfItsOwn) {
    Command(Run);
    ASSERT_THAT(page().Running(), SizeIs(1));
    tvok::Form& running = *page().Running()[0];
    EXPECT_TRUE(running.UserMode());
    EXPECT_EQ(tvok::FormFileText(running.Content()), model().Text());
    EXPECT_EQ(running.Caption(), "Form");
    window_->form().ComponentOf(Palette()).SetFocus();
    Command(Run);
    EXPECT_THAT(page().Running(), SizeIs(2));
    page().Running()[0]->Close();
    EXPECT_THAT(page().Running(), SizeIs(1));
    Pump();
    const std::size_t before = desktop_.desktop().Forms().size();
    window_->form().Close();
    EXPECT_EQ(desktop_.desktop().Forms().size(), before - 2); // with the running one
    Pump();
}

// Pixels.

TEST_F(DesignPageTest, NothingThatIsDraggedLeavesPixelsBehind) {
    std::mt19937 random(tvok::test::FromEnvironment("TVOK_RANDOM_SEED", 7));
    const auto below = [&](int limit) {
        return static_cast<std::int32_t>(random() % static_cast<unsigned>(limit));
    };
    const auto pixels = [&] {
        const auto& top = *desktop_.desktop().world().windows.Find(window_->form().hWnd())->top();
        std::vector<std::uint32_t> all;
        for (std::int32_t y = 0; y < top.surface.Height(); ++y)
            all.insert(all.end(), top.surface.Row(y), top.surface.Row(y) + top.surface.Width());
        return all;
    };
    for (int step = 0; step < 60; ++step) {
        if (below(3) == 0) designer().Add(DesignTypes()[static_cast<std::size_t>(below(9))].name);
        Press(below(320), below(240));
        for (int move = 0; move < 3; ++move) MoveTo(below(400) - 40, below(300) - 30);
        if (below(3) != 0) Release();
        if (below(5) == 0) desktop_.Key(VK_ESCAPE);
        if (below(5) == 0) desktop_.Key(VK_DELETE);
        if (below(4) == 0) Control('Z');
        Release();
        Pump();
        const auto seen = pixels();
        desktop_.desktop().world().windows.InvalidateAll();
        Pump();
        ASSERT_EQ(seen, pixels()) << "step " << step;
        ASSERT_EQ(form().Names().size(), model().Content().controls.size()) << "step " << step;
    }
}

// The workbench around the page.

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
    property("Caption").set("Stock");
    property("Width").set(400);
    property("Height").set(100);
    EXPECT_EQ(property("Caption").get(), tvok::Variant("Stock"));
    EXPECT_EQ(property("Width").get(), tvok::Variant(400));
    EXPECT_THAT(model().Text(),
                testing::StartsWith("[form]\ncaption = \"Stock\"\nwidth = 400\nheight = 100\n"));
    for (int i = 0; i < 3; ++i) designer().Undo();
    EXPECT_EQ(form().Caption(), "Form");
    EXPECT_EQ(form().Height(), 240);
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
