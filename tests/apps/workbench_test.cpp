// The gallery's window with its panes, by a user's mouse and keys.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "apps/gallery/ColumnsPage.h"
#include "apps/gallery/FeedPage.h"
#include "apps/gallery/Hands.h"
#include "apps/gallery/Window.h"
#include "apps/gallery/design/DesignPage.h"
#include "apps/gallery/keys.h"
#include "tests/support/TestDesktop.h"
#include "tvok/host/desktop/pixels/Png.h"

namespace gallery {
namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::StartsWith;
using tvok::host::platform;
using tvok::host::Point;

class Bench : public testing::Test {
protected:
    Bench() { Turn(); }

    tvok::Form& form() { return window_->form(); }
    Inspector& inspector() { return *window_->inspector(); }
    ToolBar& tools() { return *window_->tools(); }
    tvok::host::Control& Find(const char* name) { return *form().Find(name); }
    bool Shows(const char* name) { return form().ComponentOf(Find(name)).Visible(); }
    tvok::Placement PlaceOf(const char* name) { return form().PlacementOf(Find(name)); }

    /// As the program's loop does.
    void Turn() {
        desktop_.Pump();
        window_->Turn(milliseconds(0));
        desktop_.Pump();
    }
    void Click(const char* name, Point point) {
        desktop_.clock().now += std::chrono::seconds(1); // no double click
        Hands(desktop_.desktop(), form()).Click(Find(name), point);
        Turn();
    }
    void Key(std::int32_t code) {
        desktop_.Key(code);
        Turn();
    }
    void ShowPage(const char* name) {
        for (std::size_t place = 0; place < Pages().size(); ++place)
            if (std::string(Pages()[place].name) == name)
                window_->pages().ListIndex(static_cast<std::int32_t>(place) + 1);
        Turn();
    }
    std::string WithFocus() {
        for (const std::string& name : form().Names())
            if (platform().GetFocus() == form().ComponentOf(*form().Find(name)).hWnd()) return name;
        return {};
    }
    std::string Value(const std::string& key) {
        tvok::elistdata item;
        inspector().list().GetItem(item, key);
        return item.item.text;
    }

    tvok::test::TestDesktop desktop_;
    std::shared_ptr<Window> window_ = Window::Open(desktop_.desktop(), {}, Panes::Shown);
};

TEST(WindowWithoutPanes, HasNoneAndLeavesTheirKeysAlone) {
    tvok::test::TestDesktop desktop;
    const auto window = Window::Open(desktop.desktop());
    desktop.Pump();
    EXPECT_EQ(window->inspector(), nullptr);
    EXPECT_EQ(window->log(), nullptr);
    EXPECT_EQ(window->tools(), nullptr);
    EXPECT_EQ(window->form().Width(), FormWidth);
    for (const std::int32_t key : {F6, F9}) desktop.Key(key);
    window->Turn(milliseconds(0));
    EXPECT_EQ(window->form().Find("inspector.list"), nullptr);
    EXPECT_EQ(window->workbench().Selected(), "");
    window->workbench().Select("details");
    window->workbench().SubjectsChanged();
    window->workbench().UpdateInspector();
}

TEST_F(Bench, APageHasTheSamePlaceAsWithoutPanes) {
    const auto alone = Window::Open(desktop_.desktop());
    desktop_.Pump();
    for (const char* name : {"details", "names", "sections"}) {
        const tvok::Placement place = alone->form().PlacementOf(*alone->form().Find(name));
        EXPECT_EQ(PlaceOf(name).left, place.left) << name;
        EXPECT_EQ(PlaceOf(name).top, place.top) << name;
        EXPECT_EQ(PlaceOf(name).width, place.width) << name;
        EXPECT_EQ(PlaceOf(name).height, place.height) << name;
    }
    EXPECT_GE(PlaceOf("inspector.list").left, FormWidth);
    EXPECT_GE(PlaceOf("log.list").top, FormHeight);
}

TEST_F(Bench, ComesUpWithTheFirstControlSelectedAndAClickSelectsAnother) {
    EXPECT_EQ(inspector().Selected(), "details");
    Click("sections", {60, 30});
    EXPECT_EQ(inspector().Selected(), "sections");
    EXPECT_EQ(inspector().line().Caption(), "lists.sections: qRoster");
    EXPECT_EQ(Value("Behaviour.MultiSelect"), "Several");
    Click("inspector.line", {10, 10});
    Key(tvok::host::VK_HOME);
    Key(tvok::host::VK_RETURN);
    EXPECT_EQ(inspector().Selected(), "details");
    Click("sections", {60, 30});
    EXPECT_EQ(inspector().Selected(), "sections");
    Click("pages", {60, 12});
    EXPECT_EQ(inspector().Selected(), "sections") << "the list of pages is no control of the page";
}

TEST_F(Bench, TheRowsFollowWhatTheUserDoesOnThePage) {
    Click("details", {60, 30});
    const std::string before = Value("Content.ListIndex");
    Key(tvok::host::VK_DOWN);
    EXPECT_NE(Value("Content.ListIndex"), before);
    inspector().Visible(false);
}

TEST_F(Bench, EachPageKeepsItsSelection) {
    Click("names", {60, 30});
    ShowPage("labels");
    EXPECT_EQ(inspector().Selected(), "labels.1");
    EXPECT_EQ(inspector().line().Caption(), "labels.1: iLabel");
    Click("labels.3", {60, 30});
    ShowPage("lists");
    EXPECT_EQ(inspector().Selected(), "names");
    ShowPage("labels");
    EXPECT_EQ(inspector().Selected(), "labels.3");
}

TEST_F(Bench, EveryPageOffersControlsAndTurns) {
    for (const PageEntry& page : Pages()) {
        ShowPage(page.name);
        EXPECT_FALSE(inspector().subjects().empty()) << page.name;
        for (const Subject& subject : inspector().subjects()) {
            window_->workbench().Select(subject.name);
            EXPECT_GT(inspector().list().Count(), 1) << subject.name;
            Turn();
        }
    }
}

TEST_F(Bench, AnEditChangesTheControlOnThePage) {
    form().ComponentOf(inspector().list()).SetFocus();
    inspector().list().ShowItem("Appearance.ItemHeight");
    desktop_.Type("40");
    desktop_.Key(tvok::host::VK_RETURN);
    EXPECT_EQ(form().Find<tvok::qRoster>("details")->ItemHeight(), 40);
}

TEST_F(Bench, WhatWasTypedIsTakenWhereControlTabLeavesThePage) {
    form().ComponentOf(inspector().list()).SetFocus();
    inspector().list().ShowItem("Appearance.ItemHeight");
    desktop_.Type("40");
    std::vector<std::string> told;
    const auto before = inspector().changed;
    inspector().changed = [&](const PropertyChange& change) {
        told.push_back(change.subject + " on " + window_->entry().name);
        before(change);
    };
    desktop_.HoldKey(tvok::host::VK_CONTROL);
    Key(tvok::host::VK_TAB);
    desktop_.LetGoKey(tvok::host::VK_CONTROL);
    EXPECT_STREQ(window_->entry().name, "feed");
    EXPECT_EQ(form().Find<tvok::qRoster>("details")->ItemHeight(), 40);
    EXPECT_THAT(told, ElementsAre("details on lists"));
}

// Keys.

TEST_F(Bench, F6GoesAroundPageInspectorAndLogInBothDirections) {
    Click("names", {60, 30});
    Key(F6);
    EXPECT_EQ(WithFocus(), "inspector.list");
    Key(F6);
    EXPECT_THAT(WithFocus(), StartsWith("log."));
    Key(F6);
    EXPECT_EQ(WithFocus(), "names") << "to the selected control";
    desktop_.HoldKey(tvok::host::VK_SHIFT);
    Key(F6);
    EXPECT_THAT(WithFocus(), StartsWith("log."));
    Key(F6);
    EXPECT_EQ(WithFocus(), "inspector.list");
    Key(F6);
    EXPECT_EQ(WithFocus(), "names");
    desktop_.LetGoKey(tvok::host::VK_SHIFT);
}

TEST_F(Bench, F6LeavesOutAPaneThatIsHiddenAndTakesWhatWasTyped) {
    tools().switches().Flip(0);
    Click("names", {60, 30});
    Key(F6);
    EXPECT_THAT(WithFocus(), StartsWith("log."));
    tools().switches().Flip(0);
    Key(F6);
    Key(F6);
    inspector().list().ShowItem("Appearance.ItemHeight");
    desktop_.Type("44");
    Key(F6);
    EXPECT_EQ(form().Find<tvok::qRoster>("names")->ItemHeight(), 44);
}

TEST_F(Bench, F9HidesThePanesAndThePageHasTheirRoom) {
    const tvok::Placement before = PlaceOf("sections");
    Key(F9);
    EXPECT_FALSE(Shows("inspector.list"));
    EXPECT_FALSE(Shows("inspector.line"));
    EXPECT_FALSE(Shows("log.list"));
    EXPECT_TRUE(Shows("tools.switches"));
    EXPECT_EQ(PlaceOf("sections").left + PlaceOf("sections").width, BenchWidth - 12);
    Key(F9);
    EXPECT_TRUE(Shows("inspector.list"));
    EXPECT_TRUE(Shows("log.list"));
    EXPECT_EQ(PlaceOf("sections").width, before.width);
}

TEST_F(Bench, APaneGivesWayWhereItLeavesThePageTooLittle) {
    form().Size(900, BenchHeight);
    Turn();
    EXPECT_FALSE(Shows("inspector.list"));
    EXPECT_TRUE(Shows("log.list"));
    EXPECT_EQ(PlaceOf("sections").left + PlaceOf("sections").width, 900 - 12);
    form().Size(900, 500);
    Turn();
    EXPECT_FALSE(Shows("log.list"));
    form().Size(BenchWidth, BenchHeight);
    Turn();
    EXPECT_TRUE(Shows("inspector.list"));
    EXPECT_TRUE(Shows("log.list"));
}

TEST_F(Bench, ItsSwitchesHideEachPaneAlone) {
    Click("tools.switches", {20, 10});
    EXPECT_FALSE(Shows("inspector.list"));
    EXPECT_TRUE(Shows("log.list"));
    Click("tools.switches", {20 + 112, 10});
    EXPECT_FALSE(Shows("log.list"));
    Key(F9);
    EXPECT_TRUE(Shows("inspector.list"));
    EXPECT_TRUE(Shows("log.list"));
}

// Theme and scale.

TEST_F(Bench, AClickChangesTheThemeAndEveryPageFollows) {
    ShowPage("labels");
    const auto& label = *form().Find<tvok::iLabel>("labels.1");
    EXPECT_EQ(label.ForeColor(), 0);
    ShowPage("colors");
    Click("tools.themes", {62 + 20, 10});
    EXPECT_EQ(desktop_.desktop().CurrentTheme().name, "dark");
    EXPECT_NE(label.ForeColor(), 0) << "also while it is hidden";
    EXPECT_NE(form().Find<tvok::ucColorSelector>("colors.1")->ForeColor(), 0);
    EXPECT_NE(inspector().line().ForeColor(), 0);
    Key(tvok::host::VK_RIGHT);
    EXPECT_EQ(desktop_.desktop().CurrentTheme().name, "contrast");
    Click("tools.themes", {10, 10});
    EXPECT_EQ(desktop_.desktop().CurrentTheme().name, "classic");
    EXPECT_EQ(label.ForeColor(), 0);
}

/// Of a page in the window without panes, which comes up in one theme and is switched to another.
std::vector<std::uint32_t> PicturesOf(const char* page, const char* first, const char* then) {
    tvok::test::TestDesktop desktop;
    desktop.desktop().SetTheme(tvok::Theme::ByName(first));
    const auto window = Window::Open(desktop.desktop(), page);
    desktop.Pump();
    window->SetTheme(then);
    desktop.Pump();
    const std::string file = std::string(TVOK_TEST_OUTPUT) + "/theme.png";
    desktop.desktop().SaveForm(window->form(), file);
    return tvok::soft::ReadPng(file).pixels;
}

TEST(WindowInAnotherTheme, LooksAsIfItHadComeUpInIt) {
    for (const PageEntry& page : Pages())
        EXPECT_TRUE(PicturesOf(page.name, "classic", "dark") == PicturesOf(page.name, "dark", "dark"))
            << page.name;
}

TEST_F(Bench, AClickChangesTheScale) {
    EXPECT_EQ(tools().scales().ListIndex(), 1);
    Click("tools.scales", {2 * 50 + 20, 10});
    EXPECT_EQ(desktop_.desktop().Scale(), 1.5F);
    Click("tools.scales", {3 * 50 + 20, 10});
    EXPECT_EQ(desktop_.desktop().Scale(), 2);
    window_->SetScale(1.25F);
    EXPECT_EQ(tools().scales().ListIndex(), 2);
    EXPECT_EQ(form().Width(), BenchWidth) << "in memory there is always room";
}

// What a page can do. None of the gallery's own does all of it.

TEST_F(Bench, APageSelectsAndTellsOfControlsThatCameAndWent) {
    Workbench& bench = window_->workbench();
    bench.Select("sections");
    EXPECT_EQ(bench.Selected(), "sections");
    auto& added = form().Add<tvok::iLabel>("lists.added", {600, 600, 50, 20});
    bench.SubjectsChanged();
    EXPECT_EQ(bench.Selected(), "sections");
    bench.Select("lists.added");
    EXPECT_EQ(inspector().line().Caption(), "lists.added: iLabel");
    added.GridlineWidth(3);
    bench.UpdateInspector();
    EXPECT_EQ(Value("Appearance.GridlineWidth"), "3");
    ShowPage("feed");
    EXPECT_FALSE(Shows("lists.added")) << "it is the page's";
    ShowPage("lists");
    EXPECT_TRUE(Shows("lists.added"));
    form().Remove(added);
    bench.SubjectsChanged();
    EXPECT_EQ(bench.Selected(), "");
    Turn();
    bench.Select("nobody");
    EXPECT_EQ(bench.Selected(), "");
}

TEST_F(Bench, TheLogForgetsAControlThatIsGone) {
    Workbench& bench = window_->workbench();
    const std::size_t before = window_->log()->Watched();
    auto& added = form().Add<tvok::iLabel>("lists.added", {600, 600, 50, 20});
    bench.SubjectsChanged();
    EXPECT_EQ(window_->log()->Watched(), before + 1);
    form().Remove(added);
    bench.SubjectsChanged();
    EXPECT_EQ(window_->log()->Watched(), before);
    ShowPage("feed");
    const std::size_t withFeed = window_->log()->Watched();
    EXPECT_GT(withFeed, before);
    ShowPage("lists");
    EXPECT_EQ(window_->log()->Watched(), withFeed) << "a page that was shown is still listened to";
}

TEST_F(Bench, AFormThatIsRunIsInTheLogUntilItCloses) {
    const auto logged = [&](const std::string& text) {
        Turn();
        for (std::int32_t row = 1; row <= window_->log()->list().Count(); ++row)
            if (window_->log()->RowText(row).find(text) != std::string::npos) return true;
        return false;
    };
    ShowPage("design");
    auto& page = static_cast<DesignPage&>(window_->page());
    const std::size_t watched = window_->log()->Watched();
    page.Run();
    ASSERT_EQ(page.Running().size(), 1u);
    tvok::Form& running = *page.Running()[0];
    EXPECT_GT(window_->log()->Watched(), watched);
    std::string box;
    for (const std::string& name : running.Names())
        if (dynamic_cast<tvok::TextBox*>(running.Find(name)) != nullptr) box = name;
    ASSERT_FALSE(box.empty());
    running.Find<tvok::TextBox>(box)->Text("typed while it runs");
    EXPECT_TRUE(logged("\trun." + box + "\tChange"));
    running.Close();
    EXPECT_TRUE(logged("\trun\tClosed"));
    EXPECT_EQ(window_->log()->Watched(), watched);
}

TEST_F(Bench, WhatAnUndoMakesAnewIsForgottenWithTheOneBefore) {
    ShowPage("design");
    auto& designer = static_cast<DesignPage&>(window_->page()).designer();
    const std::size_t watched = window_->log()->Watched();
    designer.Select({designer.form().Names().front()});
    for (int i = 0; i < 5; ++i) {
        designer.DeleteSelected();
        Turn();
        EXPECT_LT(window_->log()->Watched(), watched);
        designer.Undo();
        Turn();
        EXPECT_EQ(window_->log()->Watched(), watched);
    }
}

TEST_F(Bench, TheBarsColumnsHaveRowsFromTheFirstVisitAndTheyFollow) {
    const auto columns = [&] {
        int count = 0;
        while (inspector().properties().Find("Content.Column" + std::to_string(count + 1) + ".text") !=
               nullptr)
            ++count;
        return count;
    };
    ShowPage("columns");
    window_->workbench().Select("columns.bar");
    EXPECT_EQ(columns(), 4);
    const auto flip = [&](ColumnsPage::Switch which) {
        const auto place = static_cast<std::int32_t>(which);
        const std::int32_t half = PlaceOf("columns.switches").width / 2;
        Click("columns.switches", {place % 2 * half + 60, place / 2 * SwitchPanel::RowHeight + 8});
        window_->workbench().Select("columns.bar"); // which the click on the switch took away
    };
    flip(ColumnsPage::Add);
    EXPECT_EQ(columns(), 5);
    EXPECT_EQ(Value("Content.Column1.text"), "Summary");
    flip(ColumnsPage::Remove);
    flip(ColumnsPage::Remove);
    EXPECT_EQ(columns(), 3);
    flip(ColumnsPage::Reset);
    EXPECT_EQ(columns(), 4);
    // Also while they are shown, as where a program does it.
    static_cast<tvok::pcols&>(Find("columns.bar")).Remove(1);
    window_->workbench().SubjectsChanged();
    EXPECT_EQ(columns(), 3);
    EXPECT_EQ(Value("Content.Column1.text"), "Version");
}

TEST_F(Bench, KeysAndClicksAfterItsEndGoPastIt) {
    Click("details", {60, 30});
    Key(F6);
    form().Close();
    EXPECT_NO_THROW({
        desktop_.Key(F6);
        desktop_.Click(desktop_.form().Add<tvok::iLabel>("other", {}), 5, 5);
    });
}

} // namespace
} // namespace gallery
