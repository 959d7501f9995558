// `xbutton` on the software desktop: what a user does, by real messages.
#include <gmock/gmock.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "tests/host/desktop/windows/Recorder.h"
#include "tests/support/TestDesktop.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* cThree = "a|a|0|b|b|0|c|c|0";

class xbuttonDesktop : public testing::Test {
protected:
    xbuttonDesktop() : strip(desktop.form().Add<xbutton>("strip", {10, 10, 5, 20})) {
        strip.ButtonSettingsStr(cThree);
        desktop.Pump();
        strip.events.MouseDown = [this](const std::string& key) { log.push_back("MouseDown " + key); };
        strip.events.Click = [this](const std::string& key) { log.push_back("Click " + key); };
        strip.events.KeyDown = [this](std::int16_t& code, std::int16_t& shift) {
            log.push_back("KeyDown " + std::to_string(code) + " " + std::to_string(shift));
        };
        atRest = desktop.Pixels(strip);
    }
    std::vector<std::string> TakeLog() { return std::exchange(log, {}); }
    Placement Place() const { return desktop.form().PlacementOf(strip); }
    /// The state of each button by the corner of its edge, as "UDU": a raised edge is light there.
    std::string Faces() {
        std::string faces;
        for (std::int32_t x = 0; x < Place().width; x += 20)
            faces += desktop.PixelAt(strip, x, 0) == desktop.PixelAt(strip, x + 19, 19) ? 'D' : 'U';
        return faces;
    }

    mutable TestDesktop desktop;
    xbutton& strip;
    std::vector<std::string> log;
    std::vector<std::uint32_t> atRest;
};

TEST_F(xbuttonDesktop, MakesItselfAsWideAsItsButtons) {
    EXPECT_EQ(Place().width, 60);
    EXPECT_EQ(Place().height, 20);
    EXPECT_EQ(Faces(), "UUU");
    EXPECT_EQ(strip.SetButtons("x|k|0"), 20);
    EXPECT_EQ(Place().width, 20);
}

TEST_F(xbuttonDesktop, KeepsItsSquaresWhereTheHostSizesIt) {
    desktop.form().Place(strip, {10, 10, 60, 30});
    EXPECT_EQ(Place().width, 90);
    EXPECT_EQ(Place().height, 30);
    desktop.form().Place(strip, {10, 10, 7, 30});
    EXPECT_EQ(Place().width, 90) << "the width alone is put back";
    desktop.form().ComponentOf(strip).Height(300);
    EXPECT_EQ(Place().width, 60) << "by twips";
}

TEST_F(xbuttonDesktop, PressAndReleaseOnAButton) {
    desktop.Press(strip, 25, 10);
    EXPECT_THAT(TakeLog(), ElementsAre("MouseDown b"));
    EXPECT_EQ(Faces(), "UDU");
    desktop.Release();
    EXPECT_THAT(TakeLog(), ElementsAre("Click b"));
    EXPECT_EQ(desktop.Pixels(strip), atRest);
}

TEST_F(xbuttonDesktop, AHeldButtonFollowsThePointerOffAndOn) {
    desktop.Press(strip, 25, 10);
    desktop.MoveTo(strip, 5, 10);
    EXPECT_EQ(Faces(), "UUU") << "over its neighbour";
    desktop.MoveTo(strip, 25, 10);
    EXPECT_EQ(Faces(), "UDU");
    desktop.MoveTo(strip, 25, 200);
    EXPECT_EQ(Faces(), "UUU") << "outside the control, which has the mouse";
    desktop.MoveTo(strip, 39, 19);
    EXPECT_EQ(Faces(), "UDU");
    desktop.Release();
    EXPECT_THAT(TakeLog(), ElementsAre("MouseDown b", "Click b"));
}

TEST_F(xbuttonDesktop, AReleaseOverAnotherButtonStillClicksThePressedOne) {
    desktop.Press(strip, 25, 10);
    desktop.MoveTo(strip, 45, 10);
    desktop.Release();
    EXPECT_THAT(TakeLog(), ElementsAre("MouseDown b", "Click b"));
    EXPECT_EQ(desktop.Pixels(strip), atRest);
}

TEST_F(xbuttonDesktop, AReleaseOutsideTheStripIsNoClick) {
    desktop.Press(strip, 25, 10);
    desktop.MoveTo(strip, 25, 200);
    desktop.Release();
    EXPECT_THAT(TakeLog(), ElementsAre("MouseDown b"));
    EXPECT_EQ(desktop.Pixels(strip), atRest);
    desktop.MoveTo(strip, 25, 10);
    EXPECT_EQ(Faces(), "UUU") << "it is held no more";
}

TEST_F(xbuttonDesktop, AClickBesideTheButtonsTellsTheLastPressedOne) {
    desktop.Click(strip, 5, 10);
    TakeLog();
    strip.SetButtons("");
    desktop.form().ComponentOf(strip).Width(600); // put back at once: there is nothing to click on
    EXPECT_EQ(Place().width, 0);
    strip.SetButtons("x|x|0|y|y|0");
    strip.events.MouseDown = [this](const std::string& key) {
        log.push_back("MouseDown " + key);
        strip.SetButtons("z|z|0"); // the pointer stands beside its one button from here on
    };
    desktop.Press(strip, 25, 10);
    desktop.MoveTo(strip, 5, 10);
    desktop.Release();
    EXPECT_THAT(TakeLog(), ElementsAre("MouseDown y", "Click y"));
}

TEST_F(xbuttonDesktop, OtherMouseButtonsDoNothing) {
    desktop.RightClick(strip, 25, 10);
    EXPECT_THAT(TakeLog(), IsEmpty());
    EXPECT_EQ(Faces(), "UUU");
    desktop.Press(strip, 25, 10);
    desktop.desktop().Input().MouseDown(desktop::MouseButton::Right);
    desktop.Pump();
    desktop.desktop().Input().MouseUp(desktop::MouseButton::Right);
    desktop.Pump();
    EXPECT_EQ(Faces(), "UDU") << "held by the left one all the while";
    desktop.Release();
    EXPECT_THAT(TakeLog(), ElementsAre("MouseDown b", "Click b"));
}

TEST_F(xbuttonDesktop, LosingTheFocusLetsAHeldButtonUp) {
    desktop.Press(strip, 25, 10);
    EXPECT_EQ(Faces(), "UDU");
    desktop.FocusAway();
    EXPECT_EQ(Faces(), "UUU");
    desktop.MoveTo(strip, 26, 10);
    EXPECT_EQ(Faces(), "UUU") << "although the mouse is still down";
    desktop.Release();
    EXPECT_THAT(TakeLog(), ElementsAre("MouseDown b", "Click b"));
}

TEST_F(xbuttonDesktop, AHandlerMayTakeTheMouseAndTheFocusAway) {
    auto& other = desktop.form().Add<Recorder>("other", {200, 10, 100, 50});
    strip.events.MouseDown = [&](const std::string& key) {
        log.push_back("MouseDown " + key);
        EXPECT_EQ(Faces(), "UDU") << "drawn before it is told";
        host::platform().SetCapture(desktop.WindowOf(other));
    };
    desktop.Press(strip, 25, 10);
    other.TakeLog();
    desktop.Release();
    EXPECT_THAT(TakeLog(), ElementsAre("MouseDown b")) << "the release went elsewhere";
    EXPECT_EQ(Faces(), "UDU");
    desktop.Focus(other);
    EXPECT_EQ(Faces(), "UUU") << "the way out";
}

TEST_F(xbuttonDesktop, KeysComeToTheHostOnceTheStripHasTheFocus) {
    desktop.Click(strip, 5, 10);
    TakeLog();
    desktop.Key(host::VK_DOWN);
    desktop.HoldKey(host::VK_SHIFT);
    desktop.Key('A');
    desktop.LetGoKey(host::VK_SHIFT);
    EXPECT_THAT(TakeLog(), ElementsAre("KeyDown 40 0", "KeyDown 16 1", "KeyDown 65 1"));
    EXPECT_EQ(desktop.Pixels(strip), atRest);
}

TEST_F(xbuttonDesktop, TheSecondPressOfADoubleClickIsNoPress) {
    desktop.DoubleClick(strip, 25, 10);
    EXPECT_THAT(TakeLog(), ElementsAre("MouseDown b", "Click b"));
    EXPECT_EQ(desktop.Pixels(strip), atRest);
}

TEST_F(xbuttonDesktop, AnImageListOf0AndImagesThatAreNotThereDrawTheFaceAlone) {
    strip.SetButtons("0|i|1|9|j|1|-1|k|1");
    desktop.Pump();
    const auto without = desktop.Pixels(strip);
    strip.IconHandle(desktop.desktop().AddImageList(std::vector<std::uint32_t>(256, 0xFF0000FF), 16));
    EXPECT_EQ(desktop.Pixels(strip), without) << "no repaint by the handle";
    strip.Paint();
    EXPECT_EQ(desktop.PixelAt(strip, 10, 10), 0x0000FFu);
    EXPECT_EQ(desktop.PixelAt(strip, 30, 10), without[10 * 60 + 30]) << "there is no image 9";
    strip.IconHandle(0);
    strip.Paint();
    EXPECT_EQ(desktop.Pixels(strip), without);
}

TEST_F(xbuttonDesktop, CaptionsTakeTheForeColor) {
    strip.SetButtons("#|k|0");
    strip.ForeColor(0x0000FF);
    const auto pixels = desktop.Pixels(strip);
    EXPECT_NE(std::ranges::count(pixels, 0xFF0000u), 0) << "0x00BBGGRR on the way in";
}

TEST_F(xbuttonDesktop, ACoveredStripRepaintsItselfWithTheHeldButtonDown) {
    desktop.Press(strip, 25, 10);
    const auto held = desktop.Pixels(strip);
    host::platform().InvalidateRect(desktop.WindowOf(strip), nullptr, true);
    desktop.Pump();
    EXPECT_EQ(desktop.Pixels(strip), held);
    desktop.Release();
}

// Form files and design time.

TEST_F(xbuttonDesktop, AFormFileKeepsTextColourAndFont) {
    strip.ForeColor(0x336699);
    strip.Font()->Name("DejaVu Sans");
    strip.Font()->Size(11);
    strip.FontTransparent(false);
    const std::string file = testing::TempDir() + "xbutton_form.toml";
    desktop.form().Save(file);
    auto& form = desktop.desktop().AddForm("again", 200, 100);
    form.Load(file);
    std::filesystem::remove(file);
    auto* again = form.Find<xbutton>("strip");
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(again->ButtonSettingsStr(), cThree);
    EXPECT_EQ(again->ForeColor(), 0x336699);
    EXPECT_EQ(again->Font()->Size(), 11);
    EXPECT_FALSE(again->FontTransparent());
    EXPECT_EQ(form.PlacementOf(*again).width, 60);
}

TEST_F(xbuttonDesktop, ALoadedForeColorColoursTheCaptions) {
    strip.SetButtons("#|k|0");
    strip.ForeColor(0x0000FF);
    desktop.Pump();
    const auto red = desktop.Pixels(strip);
    const std::string file = testing::TempDir() + "xbutton_color.toml";
    desktop.form().Save(file);
    desktop.form().Remove(strip);
    desktop.Pump();
    desktop.form().Load(file);
    std::filesystem::remove(file);
    desktop.Pump();
    EXPECT_EQ(desktop.Pixels(*desktop.form().Find("strip")), red);
}

TEST(xbuttonDesign, ShowsItsButtonsAndTakesNoMessageOfItsOwn) {
    TestDesktop desktop;
    desktop.form().UserMode(false);
    auto& strip = desktop.form().Add<xbutton>("strip", {10, 10, 5, 20});
    strip.ButtonSettingsStr("a|a|0|b|b|0");
    EXPECT_EQ(desktop.form().PlacementOf(strip).width, 40);
    desktop.Pump();
    const auto atRest = desktop.Pixels(strip);
    desktop.Press(strip, 5, 10);
    EXPECT_NE(desktop.Pixels(strip), atRest);
    desktop.FocusAway();
    EXPECT_NE(desktop.Pixels(strip), atRest) << "no hook hears the focus go";
    desktop.Release();
    EXPECT_EQ(desktop.Pixels(strip), atRest);
}

TEST(xbuttonTheme, CaptionsFollowTheTheme) {
    TestDesktop desktop;
    auto& strip = desktop.form().Add<xbutton>("strip", {10, 10, 5, 20});
    strip.ButtonSettingsStr("#|k|0");
    const auto light = Theme::Dark().colors[host::COLOR_BTNTEXT];
    const auto screen = static_cast<std::uint32_t>((light & 0xFF) << 16 | (light & 0xFF00) | light >> 16);
    desktop.desktop().SetTheme(Theme::Dark());
    desktop.Pump();
    const auto pixels = desktop.Pixels(strip);
    EXPECT_NE(std::ranges::count(pixels, screen), 0);
}

TEST(xbuttonTrace, APressDragsOffAndOnInThisOrder) {
    TestDesktop desktop;
    auto& strip = desktop.form().Add<xbutton>("strip", {10, 10, 5, 20});
    strip.ButtonSettingsStr("x|a|0|0|b|2|0|c|1");
    strip.IconHandle(desktop.desktop().AddImageList(std::vector<std::uint32_t>(256, 0xFF0000FF), 16));
    desktop.Pump();
    std::vector<std::string> lines;
    const auto add = [&](const char* title, const std::function<void()>& action) {
        lines.push_back(std::string("-- ") + title);
        for (const auto& line : desktop.Trace(action)) lines.push_back(line);
    };
    add("paint", [&] { strip.Paint(); });
    add("press the arrow", [&] { desktop.Press(strip, 30, 10); });
    add("drag off", [&] { desktop.MoveTo(strip, 5, 10); });
    add("and on", [&] { desktop.MoveTo(strip, 30, 10); });
    add("release", [&] { desktop.Release(); });
    add("press the image", [&] { desktop.Press(strip, 50, 10); });
    ExpectTrace("buttonstrip/press", lines);
}

} // namespace
} // namespace tvok::test
