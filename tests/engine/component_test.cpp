/// What a control may rely on in its component: life cycle, looks, sizes and input, on the real desktop.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/Canvas.h"
#include "tests/support/TestDesktop.h"
#include "tvok/engine/dgi.h"
#include "tvok/host/Services.h"
#include "tvok/host/desktop/ControlTypes.h"

namespace tvok::test {
namespace {

using Lines = std::vector<std::string>;

class ComponentOfACanvas : public ::testing::Test {
protected:
    /// The lines that begin with one of the words, in order.
    Lines Only(const std::vector<std::string>& words) {
        Lines lines = canvas.TakeStory();
        std::erase_if(lines, [&](const std::string& line) {
            return std::ranges::none_of(words, [&](const auto& word) { return line.starts_with(word); });
        });
        return lines;
    }
    TestDesktop desktop;
    Canvas& canvas = desktop.form().Add<Canvas>("canvas", Placement{20, 30, 200, 150});
    host::Component& component = *canvas.component;
};

TEST_F(ComponentOfACanvas, LoadsAControlInOrder) {
    const Lines story = canvas.TakeStory();
    ASSERT_GE(story.size(), 3u);
    EXPECT_EQ(story[0], "Initialize");
    EXPECT_EQ(story[1], "ReadProperties");
    EXPECT_EQ(story[2], "Resize");
    EXPECT_EQ(std::ranges::count(story, "InitProperties"), 0);
}

TEST_F(ComponentOfACanvas, PlacesANewControlAtDesignTime) {
    auto& form = desktop.desktop().AddForm("design", 300, 200);
    form.UserMode(false);
    auto& placed = form.Add<Canvas>("placed", Placement{0, 0, 100, 100});
    const Lines story = placed.TakeStory();
    ASSERT_GE(story.size(), 2u);
    EXPECT_EQ(story[0], "Initialize");
    EXPECT_EQ(story[1], "InitProperties");
    EXPECT_EQ(std::ranges::count(story, "ReadProperties"), 0);
    EXPECT_FALSE(placed.component->Ambient().UserMode());
    EXPECT_TRUE(component.Ambient().UserMode());
}

TEST_F(ComponentOfACanvas, PaintsWhatIsInvalid) {
    desktop.Pump();
    canvas.TakeStory();
    host::platform().InvalidateRect(component.hWnd(), nullptr, false);
    host::platform().UpdateWindow(component.hWnd());
    EXPECT_EQ(Only({"Paint"}), Lines{"Paint"});
    host::platform().UpdateWindow(component.hWnd());
    EXPECT_EQ(Only({"Paint"}), Lines{});
}

TEST_F(ComponentOfACanvas, KeepsItsWindowAndItsOneContext) {
    EXPECT_NE(component.hWnd(), 0);
    EXPECT_NE(component.hDC(), 0);
    EXPECT_EQ(component.hDC(), canvas.component->hDC());
    tvok_Rect client;
    ASSERT_TRUE(host::platform().GetClientRect(component.hWnd(), client));
    EXPECT_EQ(dgi::RectToWindowDC(component.hDC(), component.hWnd(), client), client);
}

TEST_F(ComponentOfACanvas, ResizesWhenItsHeightIsWritten) {
    canvas.TakeStory();
    const float perPixel = host::services().Screen().TwipsPerPixelY();
    component.Height(100 * perPixel);
    EXPECT_EQ(Only({"Resize"}), Lines{"Resize"});
    tvok_Rect window;
    host::platform().GetWindowRect(component.hWnd(), window);
    EXPECT_EQ(window.bottom - window.Top, 100);
    component.Height(100 * perPixel);
    EXPECT_EQ(Only({"Resize"}), Lines{}) << "no real change";
}

TEST_F(ComponentOfACanvas, ForwardsItsLooksAsTheyStand) {
    component.BackColor(0x123456);
    EXPECT_EQ(component.BackColor(), 0x123456);
    component.FontTransparent(true);
    EXPECT_TRUE(component.FontTransparent());
    component.FontTransparent(false);
    EXPECT_FALSE(component.FontTransparent());
    component.Appearance(0);
    EXPECT_EQ(component.Appearance(), 0);
    component.Appearance(1);
    EXPECT_EQ(component.Appearance(), 1);
    component.BorderStyle(1);
    EXPECT_EQ(component.BorderStyle(), 1);
    EXPECT_THROW(component.BorderStyle(7), Error);
    EXPECT_THROW(component.Appearance(7), Error);
}

TEST_F(ComponentOfACanvas, ItsFontStaysTheSameObjectWhenItIsWritten) {
    const host::FontPtr font = component.Font();
    font->Bold(true);
    EXPECT_TRUE(component.Font()->Bold());
    auto& other = desktop.form().Add<Canvas>("other", Placement{0, 0, 10, 10});
    other.component->Font()->Size(20);
    other.component->Font()->Italic(true);
    component.Font(*other.component->Font());
    EXPECT_EQ(component.Font(), font);
    EXPECT_EQ(font->Size(), 20);
    EXPECT_TRUE(font->Italic());
    EXPECT_FALSE(font->Bold());
}

TEST_F(ComponentOfACanvas, ItsFontDecidesTheWidthOfATextInTwips) {
    EXPECT_EQ(component.TextWidth(""), 0);
    const float narrow = component.TextWidth("width");
    EXPECT_GT(narrow, 5 * host::services().Screen().TwipsPerPixelX());
    component.Font()->Size(component.Font()->Size() * 3);
    EXPECT_GT(component.TextWidth("width"), 2 * narrow);
}

TEST_F(ComponentOfACanvas, KnowsItsNameAndTheFontAroundIt) {
    EXPECT_EQ(component.Ambient().DisplayName(), "canvas");
    EXPECT_FALSE(component.Ambient().Font().Name.empty());
    EXPECT_GT(component.Ambient().Font().Size, 0);
}

TEST_F(ComponentOfACanvas, TheScreenTellsTheTwipsOfAPixel) {
    EXPECT_EQ(host::services().Screen().TwipsPerPixelX(), 15);
    EXPECT_EQ(host::services().Screen().TwipsPerPixelY(), 15);
    EXPECT_EQ(host::services().Screen().Width(), 1280 * 15);
    EXPECT_EQ(host::services().Screen().Height(), 1024 * 15);
}

TEST_F(ComponentOfACanvas, TellsAKeyDownPressedAndUp) {
    desktop.Focus(canvas);
    canvas.TakeStory();
    desktop.Type("a");
    EXPECT_EQ(Only({"Key"}), (Lines{"KeyDown 65 0", "KeyPress 97", "KeyUp 65 0"}));
    desktop.Key(host::VK_DOWN);
    EXPECT_EQ(Only({"Key"}), (Lines{"KeyDown 40 0", "KeyUp 40 0"}));
}

TEST_F(ComponentOfACanvas, TellsTheMouseInTwips) {
    desktop.MoveTo(canvas, 5, 5);
    canvas.TakeStory();
    desktop.Click(canvas, 10, 20);
    EXPECT_EQ(Only({"Mouse"}),
              (Lines{"MouseMove 0 0 150 300", "MouseDown 1 0 150 300", "MouseUp 1 0 150 300"}));
}

TEST_F(ComponentOfACanvas, TellsTheFocusComingAndGoing) {
    canvas.TakeStory();
    desktop.FocusAway();
    canvas.TakeStory();
    desktop.Focus(canvas);
    EXPECT_EQ(Only({"GotFocus", "LostFocus"}), Lines{"GotFocus"});
    EXPECT_TRUE(dgi::IsFocusWindow(component.hWnd()));
    desktop.FocusAway();
    EXPECT_EQ(Only({"GotFocus", "LostFocus"}), Lines{"LostFocus"});
    EXPECT_FALSE(dgi::IsFocusWindow(component.hWnd()));
}

TEST_F(ComponentOfACanvas, TerminatesAControlThatIsRemoved) {
    struct Witness : Canvas {
        explicit Witness(std::shared_ptr<Lines> lines) : lines_(std::move(lines)) {}
        ~Witness() override { lines_->push_back("freed"); }
        Witness(const Witness&) = delete;
        Witness& operator=(const Witness&) = delete;
        void Terminate() override { lines_->push_back("Terminate"); }
        std::shared_ptr<Lines> lines_;
    };
    const auto lines = std::make_shared<Lines>();
    auto& witness = desktop.form().Add<Witness>("witness", Placement{0, 0, 10, 10}, lines);
    desktop.form().Remove(witness);
    EXPECT_EQ(desktop.form().Find("witness"), nullptr);
    desktop.Pump();
    EXPECT_EQ(*lines, (Lines{"Terminate", "freed"}));
}

TEST_F(ComponentOfACanvas, WritesAControlsPropertiesWhenTheFormIsSaved) {
    RegisterControl<Canvas>("Canvas");
    canvas.TakeStory();
    desktop.form().Save(std::string(TVOK_TEST_OUTPUT) + "/component_test.form");
    EXPECT_EQ(Only({"WriteProperties", "Terminate"}), Lines{"WriteProperties"});
}

} // namespace
} // namespace tvok::test
