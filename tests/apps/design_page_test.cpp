// The page "design" under a user's hands: selecting, dragging, keys, files and the running form.
#include "apps/gallery/design/DesignPage.h"

#include <fstream>
#include <random>

#include <gmock/gmock.h>

#include "apps/gallery/design/types.h"
#include "tests/apps/DesignPageTest.h"
#include "tests/support/RandomRuns.h"
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

class DesignPageFormHandle : public DesignPageTest {
protected:
    /// Presses the handle at the form's corner and drags it out by this much.
    void DragCorner(std::int32_t by) {
        Click(300, 200);
        platform().GetWindowRect(form().hWnd(), rect_);
        desktop_.clock().now += std::chrono::seconds(1);
        Input().MouseMove(rect_.Right + 5, rect_.bottom + 5);
        Input().MouseDown(MouseButton::Left);
        MoveCorner(by);
    }
    void MoveCorner(std::int32_t by) {
        Input().MouseMove(rect_.Right + 5 + by, rect_.bottom + 5 + by);
        Pump();
    }
    int Steps() {
        int count = 0;
        for (; model().CanUndo(); ++count) model().Undo();
        while (model().CanRedo()) model().Redo();
        return count;
    }

    tvok::tvok_Rect rect_;
};

TEST_F(DesignPageFormHandle, EscEndsItsDrag) {
    const int before = Steps();
    DragCorner(24);
    EXPECT_EQ(form().Width(), 344);
    desktop_.Key(VK_ESCAPE);
    EXPECT_EQ(form().Width(), 320);
    for (const std::int32_t by : {32, 40, 48}) MoveCorner(by);
    Release();
    EXPECT_EQ(form().Width(), 320);
    EXPECT_EQ(Steps(), before);
}

TEST_F(DesignPageFormHandle, ControlZEndsItsDragAndTakesItBack) {
    const int before = Steps();
    DragCorner(24);
    Control('Z');
    EXPECT_EQ(form().Width(), 320);
    for (const std::int32_t by : {32, 40, 48}) MoveCorner(by);
    Release();
    EXPECT_EQ(form().Width(), 320);
    EXPECT_TRUE(model().CanRedo());
    EXPECT_EQ(Steps(), before);
}

TEST_F(DesignPageFormHandle, AButtonThatIsLetGoElsewhereEndsItsDrag) {
    const int before = Steps();
    DragCorner(24);
    platform().ReleaseCapture();
    MoveOn(window_->form().ComponentOf(Palette()).hWnd(), 60, 200);
    Release();
    EXPECT_TRUE(model().IsDragging());
    MoveCorner(48);
    EXPECT_FALSE(model().IsDragging());
    EXPECT_EQ(form().Width(), 344);
    MoveCorner(56);
    EXPECT_EQ(form().Width(), 344);
    EXPECT_EQ(Steps(), before + 1);
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

TEST_F(DesignPageTest, PageUpAndPageDownChangeTheOrderOfTab) {
    Click(130, 50);
    desktop_.Key(VK_PRIOR);
    EXPECT_THAT(form().Names(), ElementsAre("a", "c", "b"));
    EXPECT_THAT(page().Message(), HasSubstr("2 of 3 in the order of Tab"));
    EXPECT_THAT(Selected(), ElementsAre("c"));
    desktop_.Key(VK_PRIOR);
    const std::string first = model().Text();
    EXPECT_THAT(form().Names(), ElementsAre("c", "a", "b"));
    desktop_.Key(VK_PRIOR); // no step
    EXPECT_EQ(model().Text(), first);
    Control('Z');
    EXPECT_THAT(form().Names(), ElementsAre("a", "c", "b"));
    Click(20, 20);
    Holding(VK_CONTROL, [&] { Click(130, 50); });
    desktop_.Key(VK_NEXT); // both, as one step
    EXPECT_THAT(form().Names(), ElementsAre("b", "a", "c"));
    desktop_.Key(VK_NEXT);
    EXPECT_THAT(form().Names(), ElementsAre("b", "a", "c"));
    Control('Z');
    EXPECT_THAT(form().Names(), ElementsAre("a", "c", "b"));
}

TEST_F(DesignPageTest, PageUpBringsAControlInFrontOfWhatItLiesOn) {
    model().Place({{"b", {20, 20, 80, 24}}});
    Click(30, 30);
    EXPECT_THAT(Selected(), ElementsAre("a"));
    designer().Select({"b"});
    desktop_.Key(VK_PRIOR);
    Click(300, 200);
    Click(30, 30);
    EXPECT_THAT(Selected(), ElementsAre("b"));
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

} // namespace
} // namespace gallery
