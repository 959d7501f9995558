#include <algorithm>
#include <stdexcept>

#include <gmock/gmock.h>

#include "tests/host/desktop/EmbeddedDesktop.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class EmbeddedWindows : public EmbeddedDesktop {
protected:
    EmbeddedWindows() : EmbeddedDesktop(Layout::Windows) {}
};

TEST_F(EmbeddedWindows, TellsOfFormsAndPopupsAsOuterWindows) {
    auto& control = form.Add<Recorder>("control", {0, 0, 200, 100});
    EXPECT_THAT(TakeLog(), IsEmpty());
    embedding.Turn();
    EXPECT_THAT(TakeLog(), ElementsAre("opened Form", "raised Form"));
    const Handle id = form.hWnd();
    EXPECT_EQ(windows[id].rect.Right - windows[id].rect.Left, 200) << "without a frame";
    EXPECT_EQ(AreaOf(embedding.TakeDamage(id)), 200 * 100);
    EXPECT_EQ(PixelOf(embedding.Pixels(id), 0, 0), cRecorderPixel);
    EXPECT_EQ(embedding.Pixels().data, nullptr);

    auto popup = OpenPopup(*control.component, 700, 50);
    embedding.Turn();
    EXPECT_THAT(TakeLog(), ElementsAre("opened popup", "raised popup"));
    EXPECT_EQ(windows[popup->hWnd()].rect, (tvok_Rect{700, 50, 730, 70}));
    form.Caption("Other");
    form.Close();
    embedding.Turn();
    EXPECT_THAT(TakeLog(), testing::Contains("closed Form"));
    EXPECT_THAT(embedding.TakeDamage(id), IsEmpty());
}

TEST_F(EmbeddedWindows, TakesWhereTheUserPutAWindow) {
    auto& control = form.Add<Recorder>("control", {0, 0, 500, 500});
    embedding.Turn();
    const Handle id = form.hWnd();
    embedding.Moved(1000, 700, id);
    embedding.Resize(250, 80, id);
    control.TakeLog();
    TakeLog();
    Click(245, 75, id);
    EXPECT_THAT(control.TakeLog(), testing::Contains("Click"));
    EXPECT_EQ(form.Width(), 250);
    EXPECT_THAT(TakeLog(), ElementsAre("raised Form")) << "the program knows the rest";
    EXPECT_EQ(AreaOf(embedding.TakeDamage(id)), 250 * 80);
    Click(245, 75, id + 1);
    EXPECT_THAT(control.TakeLog(), testing::Not(testing::Contains("MouseMove")));
}

TEST_F(EmbeddedWindows, LetsAWindowsCallCloseTheForm) {
    form.Add<Recorder>("control", {0, 0, 200, 100});
    onWindow = [&](const EmbeddedWindow&) {
        form.Close();
        embedding.Turn();
    };
    EXPECT_FALSE(embedding.Turn());
    EXPECT_THAT(log, ElementsAre("opened Form", "raised Form", "closed Form"));
}

TEST_F(EmbeddedWindows, TellsOfEachFormAndWhichWasBroughtToTheFront) {
    Form& second = embedding.desktop().AddForm("Second", 120, 60);
    embedding.Turn();
    EXPECT_THAT(log, testing::IsSupersetOf({"opened Form", "opened Second"}));
    embedding.FocusIn(form.hWnd()); // the user's own doing
    Settle();
    for (const Form* each : {&form, &second}) embedding.TakeDamage(each->hWnd());
    host::platform().SetWindowPos(second.hWnd(), 0, 0, 0, 0, 0, host::SWP_NOSIZE | host::SWP_NOMOVE);
    embedding.Turn();
    EXPECT_THAT(TakeLog(), testing::Contains("raised Second"));
    EXPECT_EQ(AreaOf(embedding.TakeDamage(second.hWnd())), 0) << "it looks as before";
    EXPECT_EQ(embedding.Pixels(second.hWnd()).width, 120);
    EXPECT_EQ(embedding.Pixels(form.hWnd()).width, 200);
}

TEST_F(EmbeddedWindows, KeepsWhatTheWindowsShowApart) {
    auto& first = form.Add<Recorder>("control", {0, 0, 200, 100});
    Form& other = embedding.desktop().AddForm("Second", 120, 60);
    auto& second = other.Add<Recorder>("control", {0, 0, 120, 60});
    Settle();
    embedding.TakeDamage(form.hWnd());
    embedding.TakeDamage(other.hWnd());
    second.color = 0x0000FF;
    host::platform().InvalidateRect(second.component->hWnd(), nullptr, false);
    embedding.Turn();
    EXPECT_THAT(embedding.TakeDamage(form.hWnd()), IsEmpty());
    EXPECT_THAT(embedding.TakeDamage(other.hWnd()), ElementsAre(tvok_Rect{0, 0, 120, 60}));
    EXPECT_EQ(PixelOf(embedding.Pixels(other.hWnd()), 5, 5), 0xFF0000U);
    EXPECT_EQ(PixelOf(embedding.Pixels(form.hWnd()), 5, 5), cRecorderPixel);
    first.TakeLog();
    Click(5, 5, other.hWnd());
    EXPECT_THAT(second.TakeLog(), testing::Contains("Click"));
    EXPECT_THAT(first.TakeLog(), testing::Not(testing::Contains("Click")));
}

TEST_F(EmbeddedWindows, TellsWhereTheProgramPutsAForm) {
    Settle();
    const Handle id = form.hWnd();
    form.Move(300, 200);
    form.Size(150, 90);
    form.Caption("Moved");
    embedding.Turn();
    EXPECT_THAT(TakeLog(), testing::Contains("changed Moved"));
    EXPECT_EQ(windows[id].rect, (tvok_Rect{300, 200, 450, 290}));
    embedding.TakeDamage(id);
    EXPECT_EQ(embedding.Pixels(id).width, 150);
    EXPECT_EQ(embedding.Pixels(id).height, 90);
}

TEST_F(EmbeddedWindows, ClosesOneOfTwoAndGoesOn) {
    Form& second = embedding.desktop().AddForm("Second", 120, 60);
    Settle();
    const Handle id = second.hWnd();
    bool keep = true;
    second.events.Closing = [&](bool& keeps) { keeps = keep; };
    embedding.CloseRequest(id);
    EXPECT_TRUE(embedding.Turn());
    EXPECT_THAT(TakeLog(), testing::Not(testing::Contains("closed Second")));
    keep = false;
    embedding.CloseRequest(id);
    EXPECT_TRUE(embedding.Turn()) << "the other form is there";
    EXPECT_THAT(TakeLog(), testing::Contains("closed Second"));
    EXPECT_EQ(embedding.Pixels(id).data, nullptr);
    embedding.Moved(1, 2, id); // of a window that is no more: nothing
    embedding.Resize(10, 10, id);
    embedding.CloseRequest(id);
    embedding.FocusIn(id);
    EXPECT_TRUE(embedding.Turn());
    embedding.CloseRequest(form.hWnd());
    EXPECT_FALSE(embedding.Turn());
}

TEST_F(EmbeddedWindows, DamagesEveryWindowWhenTheThemeChanges) {
    Form& second = embedding.desktop().AddForm("Second", 120, 60);
    Settle();
    for (const Form* each : {&form, &second}) embedding.TakeDamage(each->hWnd());
    embedding.desktop().SetTheme(Theme::Dark());
    EXPECT_EQ(embedding.NextTurn(), 0ms);
    embedding.Turn();
    EXPECT_EQ(AreaOf(embedding.TakeDamage(form.hWnd())), 200 * 100);
    EXPECT_EQ(AreaOf(embedding.TakeDamage(second.hWnd())), 120 * 60);
}

TEST_F(EmbeddedWindows, LetsThroughWhatACallThrowsAndTellsTheRestInTheNextTurn) {
    embedding.desktop().AddForm("Second", 120, 60);
    onWindow = [&](const EmbeddedWindow& window) {
        if (window.caption == "Form") throw std::runtime_error("no window");
    };
    EXPECT_THROW(embedding.Turn(), std::runtime_error);
    EXPECT_EQ(embedding.NextTurn(), 0ms);
    onWindow = nullptr;
    EXPECT_TRUE(embedding.Turn());
    EXPECT_THAT(TakeLog(), testing::IsSupersetOf({"opened Form", "opened Second"}));
}

// Popups that are controls: what the user does outside of them.

class EmbeddedPopup : public EmbeddedDesktop {
protected:
    explicit EmbeddedPopup(Layout layout = Layout::OneSurface) : EmbeddedDesktop(layout) {
        popup.AddItem({.text = "ant"});
        popup.AddItem({.text = "bee"});
        popup.events.Click = [this](std::int32_t, qrosterdata&, bool canceled) {
            endings.push_back(canceled ? "canceled" : "chosen");
        };
        embedding.Turn();
        popup.SetParentHwnd(field.component->hWnd());
        popup.Popup(false, true);
        embedding.Turn();
    }

    std::vector<std::string> endings;
    Recorder& field = form.Add<Recorder>("field", {10, 10, 80, 20});
    xPopup& popup = form.Add<xPopup>("popup", {0, 0, 18, 17});
};

class EmbeddedWindowPopup : public EmbeddedPopup {
protected:
    EmbeddedWindowPopup() : EmbeddedPopup(Layout::Windows) {}
    /// The popup as the program heard of it.
    EmbeddedWindow Told() const {
        const auto found =
            std::ranges::find_if(windows, [](const auto& entry) { return entry.second.popup; });
        return found == windows.end() ? EmbeddedWindow{} : found->second;
    }
};

TEST_F(EmbeddedPopup, APressElsewhereCancelsIt) {
    ASSERT_NE(PixelOf(embedding.Pixels(), 15, 35), 0x336699U);
    embedding.PressElsewhere();
    EXPECT_THAT(endings, IsEmpty()) << "input waits for the turn";
    embedding.Turn();
    EXPECT_THAT(endings, ElementsAre("canceled"));
}

TEST_F(EmbeddedPopup, APressElsewhereReachesNoControlAndIsNothingWithoutAPopup) {
    embedding.PressElsewhere();
    embedding.Turn();
    field.TakeLog();
    embedding.PressElsewhere();
    embedding.Turn();
    EXPECT_THAT(field.TakeLog(), IsEmpty());
    EXPECT_THAT(endings, ElementsAre("canceled"));
    EXPECT_EQ(embedding.NextTurn(), std::nullopt);
}

TEST_F(EmbeddedPopup, IsCanceledWhenAnotherProgramGetsTheFocus) {
    embedding.FocusOut();
    embedding.Turn();
    EXPECT_THAT(endings, ElementsAre("canceled"));
}

TEST_F(EmbeddedWindowPopup, IsAnOuterWindowThatTakesAClick) {
    const EmbeddedWindow told = Told();
    ASSERT_TRUE(told.visible);
    EXPECT_FALSE(told.resizable);
    EXPECT_EQ(told.rect.Left, form.PlacementOf(field).left + windows[form.hWnd()].rect.Left);
    EXPECT_EQ(AreaOf(embedding.TakeDamage(told.id)),
              (told.rect.Right - told.rect.Left) * (told.rect.bottom - told.rect.Top));
    Click(10, 10, told.id);
    EXPECT_THAT(endings, ElementsAre("chosen"));
    EXPECT_FALSE(windows[told.id].visible && embedding.Pixels(told.id).data);
}

TEST_F(EmbeddedWindowPopup, APressElsewhereCancelsItAndTheProgramHears) {
    const Handle id = Told().id;
    TakeLog();
    embedding.PressElsewhere();
    embedding.Turn();
    EXPECT_THAT(endings, ElementsAre("canceled"));
    EXPECT_FALSE(Told().visible && embedding.Pixels(id).data);
    EXPECT_THAT(TakeLog(), testing::Contains(testing::AnyOf("changed popup", "closed ")));
}

} // namespace
} // namespace tvok::test
