// The gallery's window: going from page to page.
#include "apps/gallery/Window.h"

#include <gtest/gtest.h>

#include "apps/gallery/FeedPage.h"
#include "apps/gallery/Hands.h"
#include "tests/support/TestDesktop.h"

namespace gallery {
namespace {

using std::chrono::milliseconds;

class GalleryWindow : public testing::Test {
protected:
    GalleryWindow() { desktop_.Pump(); }

    tvok::Form& form() { return window_->form(); }
    std::string Shown() const { return window_->entry().name; }
    bool Sees(const char* control) { return form().ComponentOf(*form().Find(control)).Visible(); }
    void ClickPage(std::int32_t number) {
        Hands(desktop_.desktop(), form()).Click(window_->pages(), {60, (number - 1) * 28 + 12});
        desktop_.Pump();
    }
    void CtrlTab(bool back) {
        tvok::desktop::Input& input = desktop_.desktop().Input();
        input.KeyDown(tvok::host::VK_CONTROL);
        if (back) input.KeyDown(tvok::host::VK_SHIFT);
        input.KeyDown(tvok::host::VK_TAB);
        input.KeyUp(tvok::host::VK_TAB);
        if (back) input.KeyUp(tvok::host::VK_SHIFT);
        input.KeyUp(tvok::host::VK_CONTROL);
        desktop_.Pump();
    }

    tvok::test::TestDesktop desktop_;
    std::shared_ptr<Window> window_ = Window::Open(desktop_.desktop());
};

TEST_F(GalleryWindow, OpensWithTheFirstPageOrTheOneThatIsNamed) {
    EXPECT_EQ(Shown(), Pages().front().name);
    EXPECT_STREQ(Window::Open(desktop_.desktop(), "feed")->entry().name, "feed");
}

TEST_F(GalleryWindow, AClickShowsAPageAndHidesTheOthersControls) {
    EXPECT_TRUE(Sees("details"));
    ClickPage(2);
    EXPECT_EQ(Shown(), "feed");
    EXPECT_FALSE(Sees("details"));
    EXPECT_TRUE(Sees("feed.left"));
    ClickPage(1);
    EXPECT_TRUE(Sees("details"));
    EXPECT_FALSE(Sees("feed.left"));
    EXPECT_TRUE(Sees("pages"));
}

TEST_F(GalleryWindow, APageKeepsItsStateAndOnlyTheShownOneIsTurned) {
    ClickPage(2);
    window_->Turn(milliseconds(100));
    const auto& feed = dynamic_cast<FeedPage&>(window_->page());
    const std::int32_t fed = feed.Fed();
    EXPECT_GT(fed, 0);
    ClickPage(1);
    window_->Turn(milliseconds(100));
    EXPECT_EQ(feed.Fed(), fed);
    ClickPage(2);
    EXPECT_EQ(&window_->page(), &feed);
    window_->Turn(milliseconds(100));
    EXPECT_GT(feed.Fed(), fed);
}

TEST_F(GalleryWindow, ControlTabGoesThroughAllPagesInBothDirectionsAndRound) {
    const auto count = static_cast<int>(Pages().size());
    ClickPage(1);
    for (int step = 1; step <= 2 * count; ++step) {
        CtrlTab(false);
        EXPECT_EQ(Shown(), Pages()[static_cast<std::size_t>(step % count)].name);
    }
    CtrlTab(true);
    EXPECT_EQ(Shown(), Pages().back().name);
    CtrlTab(true);
    EXPECT_EQ(Shown(), Pages()[static_cast<std::size_t>((2 * count - 2) % count)].name);
}

TEST_F(GalleryWindow, ArrowKeysOnTheListGoFromPageToPage) {
    ClickPage(1);
    desktop_.Key(tvok::host::VK_DOWN);
    EXPECT_EQ(Shown(), Pages()[1].name);
    desktop_.Key(tvok::host::VK_UP);
    EXPECT_EQ(Shown(), Pages()[0].name);
}

TEST_F(GalleryWindow, PagesFollowTheWindowsSizeAlsoThoseThatWereHiddenMeanwhile) {
    ClickPage(2);
    ClickPage(1);
    form().Size(900, 500);
    desktop_.Pump();
    ClickPage(2);
    const tvok::Placement place = form().PlacementOf(*form().Find("feed.right"));
    EXPECT_EQ(place.left + place.width, 900 - 12);
}

} // namespace
} // namespace gallery
