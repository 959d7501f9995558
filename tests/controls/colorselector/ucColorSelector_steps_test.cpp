// What `ucColorSelector` does step by step when its strip and its popup tell something.
#include "tests/support/FakeSelector.h"

#include <algorithm>

#include "tvok/engine/dgi.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr OLE_COLOR cFace = SystemColor(0x0F);

/// With the focus on its strip and blue chosen, as after a press on the strip.
struct Pressed : FakeSelector {
    Pressed() {
        log().focus = StripWindow();
        selector.SelectColor(0xFF0000);
        log().Clear();
    }
    bool Opened() { return !log().Named("DoEvents").empty(); }
    /// What `look` sees when the popup is told where to hang from.
    void AtParent(std::function<void()> look) {
        log().onCall = [act = std::move(look), rects = 0](const std::string& name) mutable {
            if (name == "GetWindowRect" && rects++ == 0) act();
        };
    }
};

// Pressing the arrows.

TEST(ucColorSelectorSteps, TheFirstArrowOpensTheGridAtTheControl) {
    Pressed fake;
    std::int32_t items = 0;
    bool kept = false;
    fake.AtParent([&] {
        items = fake.component.popup().Count();
        kept = fake.component.popup().TmpData() == Variant(0xFF0000);
    });
    fake.Press("a");
    EXPECT_EQ(items, 240) << "filled before it is placed";
    EXPECT_TRUE(kept);
    EXPECT_TRUE(fake.component.popup().HotTrack());
    EXPECT_EQ(fake.component.popup().xn(), 24);
    EXPECT_EQ(fake.component.popup().yn(), 10);
    EXPECT_EQ(fake.component.popup().ListIndex(), 0);
    EXPECT_EQ(fake.log().Named("GetWindowRect").front(),
              PlainCall("GetWindowRect", {FakeComponent::cWindow}));
    EXPECT_TRUE(fake.Opened());
}

TEST(ucColorSelectorSteps, TheSecondArrowOpensTheSystemColoursAndMeasuresThemOnceMore) {
    Pressed fake;
    std::int32_t items = -1;
    bool kept = false;
    fake.AtParent([&] {
        items = fake.component.popup().Count();
        kept = fake.component.popup().TmpData() == Variant(0xFF0000);
    });
    fake.Press("b");
    EXPECT_EQ(items, 0) << "placed before it is filled";
    EXPECT_TRUE(kept);
    EXPECT_EQ(fake.component.popup().Count(), 2);
    EXPECT_TRUE(fake.component.popup().HotTrack());
    EXPECT_EQ(fake.component.popup().ListIndex(), 0);
    const Calls texts = fake.log().Named("DrawTextA");
    const auto measured = std::ranges::count_if(
        texts, [](const Call& call) { return call.values[0] == (host::DT_CALCRECT | host::DT_SINGLELINE); });
    EXPECT_EQ(measured, 4) << "by the palette and by the selector";
    EXPECT_TRUE(fake.Opened());
}

TEST(ucColorSelectorSteps, TheLookOfTheFocusGoesBeforeThePopupIsFilled) {
    for (const char* key : {"a", "b"}) {
        Pressed fake;
        ASSERT_TRUE(fake.ShowsFocus());
        std::size_t paintsBefore = 0;
        fake.AtParent([&] {
            paintsBefore =
                fake.log().Named("DrawFocusRect").size() * 100 + fake.log().Named("Rectangle").size();
        });
        fake.Press(key);
        EXPECT_EQ(paintsBefore, 1U) << "painted once, and without the focus";
        EXPECT_FALSE(fake.ShowsFocus());
    }
}

TEST(ucColorSelectorSteps, OtherKeysOnlyLeaveTheHotTrackOn) {
    for (const char* key : {"c", "", "A", " a", "aa", "d"}) {
        Pressed fake;
        ASSERT_FALSE(fake.component.popup().HotTrack());
        fake.Press(key);
        EXPECT_TRUE(fake.component.popup().HotTrack()) << key;
        EXPECT_THAT(fake.log().All(), IsEmpty()) << key;
        EXPECT_EQ(fake.component.popup().Count(), 0) << key;
        EXPECT_TRUE(fake.ShowsFocus()) << key;
    }
}

TEST(ucColorSelectorSteps, APopupWithoutItemsHidesTheFocusUntilItComesInAgain) {
    Pressed fake;
    fake.services.texts.clear();
    fake.Press("b");
    EXPECT_FALSE(fake.Opened());
    EXPECT_FALSE(fake.ShowsFocus()) << "no end of it comes";
    fake.selector.LostFocus();
    fake.selector.GotFocus();
    fake.selector.ExitFocus();
    EXPECT_FALSE(fake.ShowsFocus());
    fake.log().Clear();
    fake.selector.EnterFocus();
    EXPECT_EQ(fake.log().Named("DrawFocusRect").size(), 1U) << "in that very paint";
}

// Previews and ends.

TEST(ucColorSelectorSteps, AChangeOfThePopupAppliesItsColour) {
    Pressed fake;
    fake.Press("a");
    fake.log().Clear();
    fake.Preview(255);
    EXPECT_EQ(fake.selector.SelectColor(), 255);
    EXPECT_THAT(fake.TakePaints(), ElementsAre("(&H000000FF)"));
    fake.Preview(cFace);
    EXPECT_EQ(fake.selector.SelectColor(), cFace);
    EXPECT_THAT(fake.TakePaints(), ElementsAre("(Button Face)"));
}

TEST(ucColorSelectorSteps, AnAcceptedEndTakesTheFocusAndPaintsOnce) {
    Pressed fake;
    fake.Press("a");
    fake.Preview(255);
    fake.log().Clear();
    fake.Close(false);
    EXPECT_EQ(fake.log().All().front(), PlainCall("base.SetFocus"));
    EXPECT_EQ(fake.log().Named("DrawFocusRect").size(), 1U);
    EXPECT_THAT(fake.TakePaints(), ElementsAre("(&H000000FF)"));
    EXPECT_EQ(fake.selector.SelectColor(), 255);
}

TEST(ucColorSelectorSteps, ACancelledEndPutsColourAndDescriptionBackAfterTheFocus) {
    Pressed fake;
    fake.Press("a");
    fake.Preview(255);
    fake.log().Clear();
    OLE_COLOR atFocus = 0;
    bool shown = false;
    fake.component.onFocus = [&] {
        atFocus = fake.selector.SelectColor();
        shown = fake.ShowsFocus();
    };
    fake.Close(true);
    EXPECT_EQ(atFocus, 255);
    EXPECT_TRUE(shown) << "no popup is open any more";
    EXPECT_EQ(fake.selector.SelectColor(), 0xFF0000);
    EXPECT_THAT(fake.TakePaints(), ElementsAre("(&H00FF0000)", "(&H00FF0000)")) << "applied, and painted";
}

TEST(ucColorSelectorSteps, ASystemColourComesBackAsOne) {
    Pressed fake;
    fake.selector.SelectColor(cFace);
    fake.Press("a");
    fake.Preview(255);
    fake.log().Clear();
    fake.Close(true);
    EXPECT_EQ(fake.selector.SelectColor(), cFace);
    EXPECT_EQ(fake.TakePaints().back(), "(Button Face)");
}

TEST(ucColorSelectorSteps, AnEmptyValueOfThePopupIsColourZero) {
    Pressed fake;
    fake.component.popup().TmpData(Variant());
    fake.Close(true);
    EXPECT_EQ(fake.selector.SelectColor(), 0);
    EXPECT_EQ(fake.TakePaints().back(), "(&H00000000)");
}

TEST(ucColorSelectorSteps, EachStepOfTheEndIsMadeWhateverAnotherThrows) {
    Pressed fake;
    fake.Press("a");
    fake.Preview(255);
    fake.component.refusesFocus = true;
    fake.component.popup().TmpData(Variant("99999999999"));
    fake.log().Clear();
    EXPECT_NO_THROW(fake.Close(true));
    EXPECT_EQ(fake.selector.SelectColor(), 255) << "what was kept is no colour";
    EXPECT_THAT(fake.TakePaints(), ElementsAre("(&H000000FF)"));
    EXPECT_TRUE(fake.ShowsFocus());
}

// The dialog.

TEST(ucColorSelectorSteps, TheDialogsColourIsTakenAndTheDescriptionStays) {
    Pressed fake;
    fake.services.answer = 255;
    bool hidden = false;
    std::size_t paintsBefore = 0;
    fake.services.onDialog = [&] {
        paintsBefore = fake.TakePaints().size();
        hidden = !fake.ShowsFocus();
    };
    fake.Click("c");
    EXPECT_EQ(paintsBefore, 1U);
    EXPECT_TRUE(hidden);
    EXPECT_EQ(fake.selector.SelectColor(), 255);
    EXPECT_EQ(fake.log().All().front(), PlainCall("base.SetFocus"));
    EXPECT_EQ(fake.log().Named("Rectangle").back().values[3], 255) << "the swatch is the new one";
    EXPECT_THAT(fake.TakePaints(), ElementsAre("(&H00FF0000)")) << "and its description the old one's";
    EXPECT_TRUE(fake.ShowsFocus());
    fake.selector.SelectColor(fake.selector.SelectColor());
    EXPECT_THAT(fake.TakePaints(), ElementsAre("(&H000000FF)")) << "until it is applied";
}

TEST(ucColorSelectorSteps, TheDialogIsAskedWithTheControlsWindow) {
    Pressed fake;
    fake.Click("c");
    EXPECT_EQ(fake.log().Named("PickColor"), Calls{PlainCall("PickColor", {FakeComponent::cWindow})});
}

TEST(ucColorSelectorSteps, ACancelledDialogLeavesTheColour) {
    Pressed fake;
    fake.Click("c");
    EXPECT_EQ(fake.selector.SelectColor(), 0xFF0000);
    EXPECT_EQ(fake.log().Named("base.SetFocus").size(), 1U);
    EXPECT_THAT(fake.TakePaints(), ElementsAre("(&H00FF0000)", "(&H00FF0000)"));
    EXPECT_TRUE(fake.ShowsFocus());
}

TEST(ucColorSelectorSteps, ADialogMayGiveASystemColour) {
    Pressed fake;
    fake.services.answer = cFace;
    fake.Click("c");
    EXPECT_EQ(fake.selector.SelectColor(), cFace);
    EXPECT_EQ(fake.log().Named("Rectangle").back().values[3], Sys(15));
}

TEST(ucColorSelectorSteps, AClickWithAnotherKeyDoesNothing) {
    for (const char* key : {"a", "b", "", "C", "cc"}) {
        Pressed fake;
        fake.services.answer = 255;
        fake.Click(key);
        EXPECT_THAT(fake.log().All(), IsEmpty()) << key;
        EXPECT_EQ(fake.selector.SelectColor(), 0xFF0000) << key;
    }
}

TEST(ucColorSelectorSteps, ADialogThatFailsIsOneThatWasCancelled) {
    Pressed fake;
    fake.component.refusesFocus = true;
    fake.services.onDialog = [] { throw Error("there is no dialog"); };
    EXPECT_NO_THROW(fake.Click("c"));
    EXPECT_EQ(fake.selector.SelectColor(), 0xFF0000);
    EXPECT_THAT(fake.TakePaints(), ElementsAre("(&H00FF0000)", "(&H00FF0000)"));
    EXPECT_TRUE(fake.ShowsFocus());
}

TEST(ucColorSelectorSteps, APaintThatFailsDoesNotKeepTheDialogAway) {
    Pressed fake;
    fake.services.answer = 255;
    fake.log().onCall = [](const std::string& name) {
        if (name == "FillRect") throw Error("nothing is painted today");
    };
    EXPECT_NO_THROW(fake.Click("c"));
    fake.log().onCall = nullptr;
    EXPECT_EQ(fake.selector.SelectColor(), 255);
    EXPECT_TRUE(fake.ShowsFocus());
}

// Design time and the end.

TEST(ucColorSelectorSteps, AtDesignTimeTheButtonsDoNothing) {
    FakeSelector fake(false);
    fake.services.answer = 255;
    for (const char* key : {"a", "b", "c"}) {
        fake.Press(key);
        fake.Click(key);
    }
    EXPECT_THAT(fake.log().All(), IsEmpty());
    EXPECT_EQ(fake.selector.SelectColor(), 0);
    EXPECT_EQ(fake.component.popup().Count(), 0);
}

TEST(ucColorSelectorSteps, EndedInTheDialogItTouchesNothingMore) {
    Pressed fake;
    fake.services.answer = 255;
    fake.services.onDialog = [&] {
        fake.selector.Terminate();
        fake.log().Clear();
    };
    EXPECT_NO_THROW(fake.Click("c"));
    EXPECT_THAT(fake.log().All(), IsEmpty());
}

TEST(ucColorSelectorSteps, EndedByTheFocusItTouchesNothingMore) {
    Pressed fake;
    fake.Press("a");
    fake.Preview(255);
    fake.component.onFocus = [&] {
        fake.selector.Terminate();
        fake.log().Clear();
    };
    EXPECT_NO_THROW(fake.Close(true));
    EXPECT_THAT(fake.log().All(), IsEmpty());
    EXPECT_EQ(fake.selector.SelectColor(), 255);
}

TEST(ucColorSelectorSteps, EndedWhileThePopupFillsOrOpensItTouchesNothingMore) {
    for (const char* moment : {"LoadResString", "DoEvents"}) {
        Pressed fake;
        bool ended = false;
        const auto end = [&] {
            if (std::exchange(ended, true)) return;
            fake.selector.Terminate();
        };
        fake.services.onString = [&] {
            if (std::string(moment) == "LoadResString") end();
        };
        fake.log().onCall = [&](const std::string& name) {
            if (name == moment) end();
        };
        EXPECT_NO_THROW(fake.Press("b")) << moment;
        EXPECT_TRUE(ended) << moment;
        EXPECT_EQ(fake.Opened(), std::string(moment) == "DoEvents") << "a popup without a control stays shut";
        fake.log().onCall = nullptr;
        fake.log().Clear();
        EXPECT_NO_THROW(fake.Close(true));
        EXPECT_THAT(fake.log().All(), IsEmpty()) << moment;
    }
}

TEST(ucColorSelectorSteps, TheDialogsColourStandsBeforeTheFocusComes) {
    FakeSelector fake;
    fake.services.answer = 0x123456;
    std::vector<OLE_COLOR> atFocus;
    bool showsFocus = false;
    fake.component.onFocus = [&] {
        atFocus.push_back(fake.selector.SelectColor());
        showsFocus = fake.ShowsFocus();
    };
    fake.Click("c");
    EXPECT_THAT(atFocus, ElementsAre(0x123456));
    EXPECT_TRUE(showsFocus) << "the dialog counts as closed by then";
}

TEST(ucColorSelectorSteps, TheDialogsAnswerWinsOverAColourWrittenMeanwhile) {
    FakeSelector fake;
    fake.services.answer = 0x123456;
    fake.services.onDialog = [&] { fake.selector.SelectColor(255); };
    fake.Click("c");
    EXPECT_EQ(fake.selector.SelectColor(), 0x123456);
    fake.TakePaints();
    fake.selector.Paint();
    EXPECT_THAT(fake.TakePaints(), ElementsAre("(&H000000FF)"))
        << "the description is that of the last write";
}

TEST(ucColorSelectorSteps, AColourWrittenWhileThePopupIsOpenStaysWhenItIsAccepted) {
    FakeSelector fake;
    fake.Press("a");
    fake.Preview(0x0000FF);
    fake.selector.SelectColor(0x123456);
    fake.Close(false);
    EXPECT_EQ(fake.selector.SelectColor(), 0x123456);
}

TEST(ucColorSelectorSteps, TheBackgroundIsTheComponentsOwn) {
    FakeSelector fake;
    for (const OLE_COLOR color : {0x00FF00, 0x123456}) {
        fake.component.BackColor(color); // past the selector
        fake.log().Clear();
        fake.selector.Paint();
        const auto brushes = fake.log().Named("CreateSolidBrush");
        ASSERT_FALSE(brushes.empty());
        EXPECT_EQ(brushes.front().values[0], color);
        EXPECT_EQ(fake.selector.BackColor(), color);
    }
}

TEST(ucColorSelectorSteps, ASecondLifeBeginsAsTheFirst) {
    for (const bool userMode : {true, false}) {
        FakeSelector fake;
        fake.selector.SelectColor(255);
        fake.selector.borderColor(1);
        fake.selector.ForeColor(2);
        fake.Press("a"); // a popup is open at the end
        fake.selector.Terminate();
        fake.component.ambient.userMode = userMode;
        fake.selector.Initialize(fake.component);
        fake.selector.Resize();
        EXPECT_EQ(fake.selector.SelectColor(), 0);
        EXPECT_EQ(fake.selector.borderColor(), 0);
        EXPECT_EQ(fake.selector.ForeColor(), 0);
        fake.TakePaints();
        fake.selector.GotFocus();
        EXPECT_THAT(fake.TakePaints(), ElementsAre(""));
        fake.component.SetFocus();
        EXPECT_EQ(fake.ShowsFocus(), userMode);
        fake.Press("a");
        EXPECT_EQ(fake.component.popup().Count() > 0, userMode) << "in a designer the buttons do nothing";
    }
}

} // namespace
} // namespace tvok::test
