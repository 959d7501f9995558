// `ucColorSelector` on the software desktop: what it looks like, and the popups by real messages.
#include "tests/support/SelectorTestDesktop.h"

#include <algorithm>
#include <filesystem>

#include "tvok/host/desktop/ControlTypes.h"

namespace tvok::test {
namespace {

constexpr std::uint32_t cScreenBlue = 0x0000FF, cScreenRed = 0xFF0000, cScreenGreen = 0x00FF00;

// Looks.

TEST(ucColorSelectorDesktop, AHeightOf20HasASwatchOf14AndTextFrom20) {
    SelectorDesktop at;
    at.selector->SelectColor(255);
    at.desktop.Focus(*at.selector);
    const auto pixel = [&](std::int32_t x, std::int32_t y) { return at.desktop.PixelAt(*at.selector, x, y); };
    const std::uint32_t back = at.Screen(host::COLOR_WINDOW);
    EXPECT_EQ(pixel(2, 2), back);
    EXPECT_EQ(pixel(3, 3), 0U) << "its edge";
    EXPECT_EQ(pixel(16, 16), 0U);
    EXPECT_EQ(pixel(4, 4), cScreenRed);
    EXPECT_EQ(pixel(15, 15), cScreenRed);
    EXPECT_EQ(pixel(17, 10), back);
    EXPECT_EQ(pixel(10, 17), back);
    EXPECT_EQ(pixel(19, 10), back);
    EXPECT_EQ(pixel(21, 1), at.Screen(host::COLOR_HIGHLIGHT)) << "inside the focus rectangle";
    EXPECT_EQ(pixel(132, 1), at.Screen(host::COLOR_HIGHLIGHT));
    EXPECT_EQ(pixel(134, 10), back) << "two pixels before the strip";
    EXPECT_EQ(pixel(135, 10), back);
}

TEST(ucColorSelectorDesktop, TheStripStandsAtTheRightEdgeWithSquareButtons) {
    SelectorDesktop at;
    std::int32_t boundaries = 0;
    for (const std::int32_t left : {136, 156, 176})
        boundaries += at.desktop.PixelAt(*at.selector, left, 1) != at.Screen(host::COLOR_WINDOW) ? 1 : 0;
    EXPECT_EQ(boundaries, 3);
    at.desktop.form().Place(*at.selector, {20, 20, 300, 34});
    at.desktop.Pump();
    EXPECT_EQ(at.desktop.PixelAt(*at.selector, 205, 10), at.Screen(host::COLOR_WINDOW)) << "296 - 90 - 1";
    EXPECT_NE(at.desktop.PixelAt(*at.selector, 206, 1), at.Screen(host::COLOR_WINDOW));
    EXPECT_EQ(at.desktop.PixelAt(*at.selector, 25, 25), cScreenBlue) << "the swatch grew along";
}

TEST(ucColorSelectorDesktop, ASystemColourIsFilledWithWhatTheThemeHasForIt) {
    for (const Theme& theme : {Theme::Classic(), Theme::Dark(), Theme::HighContrast()}) {
        SelectorDesktop at(theme, cButtonFace);
        EXPECT_EQ(at.Swatch(), at.Screen(host::COLOR_BTNFACE)) << theme.name;
        at.desktop.desktop().SetTheme(Theme::Dark());
        at.desktop.Pump();
        EXPECT_EQ(at.Swatch(), at.Screen(host::COLOR_BTNFACE)) << theme.name << ", then dark";
    }
}

TEST(ucColorSelectorDesktop, ThePicturesAreThese) {
    for (const Theme& theme : {Theme::Classic(), Theme::Dark(), Theme::HighContrast()}) {
        SelectorDesktop at(theme, 0x0060E0);
        at.selector->ForeColor(host::platform().GetSysColor(host::COLOR_WINDOWTEXT));
        at.selector->borderColor(SystemColor(host::COLOR_BTNSHADOW));
        at.desktop.FocusAway();
        ExpectPictureWithFrame("colorselector/rest-" + theme.name, at.desktop, *at.selector);
        at.desktop.Focus(*at.selector);
        ExpectPictureWithFrame("colorselector/focused-" + theme.name, at.desktop, *at.selector);
        at.PressButton(SelectorDesktop::Grid);
        ExpectPictureWithFrame("colorselector/open-" + theme.name, at.desktop, *at.selector);
    }
}

TEST(ucColorSelectorDesktop, TheAmpersandOfADescriptionUnderlinesTheH) {
    SelectorDesktop at;
    auto& label = at.desktop.form().Add<iLabel>("label", {20, 60, 140, 24});
    label.TextLeft(20); // and a pixel, as the selector's description
    label.BorderStyle(1);
    const auto texts = [&](const host::Control& control) {
        std::vector<std::uint32_t> pixels;
        for (std::int32_t y = 1; y < 19; ++y)
            for (std::int32_t x = 21; x < 130; ++x) pixels.push_back(at.desktop.PixelAt(control, x, y));
        return pixels;
    };
    label.Caption("(&H00FF0000)");
    label.NOPREFIX(false);
    at.desktop.Pump();
    const auto underlined = texts(label);
    label.NOPREFIX(true);
    label.Refresh();
    at.desktop.Pump();
    EXPECT_NE(texts(label), underlined);
    at.desktop.FocusAway();
    EXPECT_EQ(texts(*at.selector), underlined);
}

TEST(ucColorSelectorDesktop, AnOpaqueFontPaintsTheTextsBackground) {
    SelectorDesktop at;
    at.desktop.Focus(*at.selector); // the background behind texts is that of highlighted ones from here on
    at.desktop.FocusAway();
    at.selector->BackColor(0x00FFFF);
    const auto transparent = at.desktop.Pixels(*at.selector);
    at.selector->FontTransparent(false);
    EXPECT_NE(at.desktop.Pixels(*at.selector), transparent);
    at.selector->FontTransparent(true);
    EXPECT_EQ(at.desktop.Pixels(*at.selector), transparent);
}

TEST(ucColorSelectorDesktop, AWriteOfTheFontRepaints) {
    SelectorDesktop at;
    const auto before = at.desktop.Pixels(*at.selector);
    auto& other = at.desktop.form().Add<iLabel>("label", {20, 60, 140, 24});
    other.Font()->Size(13);
    at.selector->Font(*other.Font());
    EXPECT_NE(at.desktop.Pixels(*at.selector), before);
    EXPECT_EQ(at.selector->Font()->Size(), 13);
}

TEST(ucColorSelectorDesktop, WithoutABorderTheClientGrows) {
    SelectorDesktop at;
    at.selector->BorderStyle(0);
    at.desktop.Pump();
    EXPECT_EQ(at.desktop.PixelAt(*at.selector, 20, 20), 0U) << "the edge of a swatch of 18 by 18";
    EXPECT_NE(at.desktop.PixelAt(*at.selector, 128, 1), at.Screen(host::COLOR_WINDOW)) << "200 - 3 x 24";
}

TEST(ucColorSelectorDesktop, ARepaintGivesTheSamePixels) {
    SelectorDesktop at;
    for (const bool focused : {false, true}) {
        focused ? at.desktop.Focus(*at.selector) : at.desktop.FocusAway();
        const auto shown = at.desktop.Pixels(*at.selector);
        host::platform().InvalidateRect(at.OwnWindow(), nullptr, true);
        at.desktop.Pump();
        EXPECT_EQ(at.desktop.Pixels(*at.selector), shown) << focused;
    }
}

// Focus.

TEST(ucColorSelectorDesktop, TheFocusShowsOnTheControlAndOnItsStrip) {
    SelectorDesktop at;
    at.desktop.FocusAway();
    EXPECT_FALSE(at.ShowsFocus());
    at.desktop.Click(*at.selector, 60, 10);
    EXPECT_EQ(host::platform().GetFocus(), at.OwnWindow());
    EXPECT_TRUE(at.ShowsFocus());
    at.PressButton(SelectorDesktop::Dialog);
    EXPECT_NE(host::platform().GetFocus(), at.OwnWindow());
    EXPECT_TRUE(at.ShowsFocus()) << "by the strip's";
    at.desktop.MoveTo(*at.selector, 60, 200);
    at.desktop.Release();
    at.desktop.Key(host::VK_TAB);
    EXPECT_EQ(host::platform().GetFocus(), at.desktop.WindowOf(*at.desktop.form().Find("elsewhere")));
    EXPECT_FALSE(at.ShowsFocus());
}

// The popups.

TEST(ucColorSelectorDesktop, PressedDraggedIntoTheGridAndReleasedAColourIsChosen) {
    SelectorDesktop at;
    at.PressButton(SelectorDesktop::Grid);
    ASSERT_TRUE(at.IsOpen());
    EXPECT_TRUE(at.IsDown(SelectorDesktop::Grid));
    EXPECT_FALSE(at.ShowsFocus());
    EXPECT_EQ(at.selector->SelectColor(), SelectorDesktop::cFirst) << "nothing is under the pointer yet";
    at.MoveToCell(1, 5);
    EXPECT_EQ(at.selector->SelectColor(), SelectorDesktop::cRed);
    EXPECT_EQ(at.Swatch(), cScreenRed);
    at.MoveToCell(9, 5);
    EXPECT_EQ(at.selector->SelectColor(), SelectorDesktop::cGreen);
    EXPECT_EQ(at.Swatch(), cScreenGreen);
    at.Up();
    EXPECT_FALSE(at.IsOpen());
    EXPECT_EQ(at.selector->SelectColor(), SelectorDesktop::cGreen);
    EXPECT_EQ(at.Swatch(), cScreenGreen);
    EXPECT_FALSE(at.IsDown(SelectorDesktop::Grid));
    EXPECT_EQ(host::platform().GetFocus(), at.OwnWindow());
    EXPECT_EQ(host::platform().GetCapture(), 0);
    EXPECT_TRUE(at.ShowsFocus());
}

TEST(ucColorSelectorDesktop, AChosenColourLooksLikeAWrittenOne) {
    SelectorDesktop at;
    at.PressButton(SelectorDesktop::Grid);
    at.MoveToCell(9, 5);
    at.Up();
    const auto chosen = at.desktop.Pixels(*at.selector);
    at.selector->SelectColor(0);
    EXPECT_NE(at.desktop.Pixels(*at.selector), chosen);
    at.selector->SelectColor(SelectorDesktop::cGreen);
    EXPECT_EQ(at.desktop.Pixels(*at.selector), chosen);
}

TEST(ucColorSelectorDesktop, ThePopupsOpenBelowTheControlWithItsRightEdge) {
    SelectorDesktop at;
    tvok_Rect own;
    host::platform().GetWindowRect(at.OwnWindow(), own);
    for (const auto button : {SelectorDesktop::Grid, SelectorDesktop::List}) {
        at.ClickButton(button);
        EXPECT_EQ(at.WindowRect().Right, own.Right);
        EXPECT_EQ(at.WindowRect().Top, own.bottom);
        at.desktop.Key(host::VK_ESCAPE);
    }
    at.desktop.form().Move(100, 980);
    at.desktop.Pump();
    host::platform().GetWindowRect(at.OwnWindow(), own);
    at.ClickButton(SelectorDesktop::Grid);
    EXPECT_EQ(at.WindowRect().bottom, own.Top) << "or above where there is no room";
}

TEST(ucColorSelectorDesktop, EachArrowOpensItsOwnPalette) {
    SelectorDesktop at;
    at.ClickButton(SelectorDesktop::Grid);
    EXPECT_EQ(at.ClientRect(), (tvok_Rect{0, 0, 265, 111})) << "24 by 10 cells of 10 with lines of 1";
    at.desktop.Key(host::VK_ESCAPE);
    at.ClickButton(SelectorDesktop::List);
    EXPECT_LT(at.ClientRect().bottom, at.WindowRect().bottom - at.WindowRect().Top + 1);
    EXPECT_EQ(at.PixelAt(60, 1), 0xFFFFFFU) << "a white list";
    EXPECT_GE(at.WindowRect().Right - at.WindowRect().Left, 200) << "as wide as the control at least";
}

/// The ends that put the colour back; each begins with a popup that is open and previews red.
struct CancelCase {
    const char* name;
    void (*end)(SelectorDesktop&);
};

class ucColorSelectorCancelled : public testing::TestWithParam<CancelCase> {};

TEST_P(ucColorSelectorCancelled, ColourDescriptionAndLookAreThoseFromBefore) {
    SelectorDesktop at;
    at.desktop.FocusAway(); // there is another control that can have it
    at.desktop.Focus(*at.selector);
    const auto before = at.desktop.Pixels(*at.selector);
    at.ClickButton(SelectorDesktop::Grid);
    ASSERT_TRUE(at.IsOpen()) << "pressed and released on the arrow it stays";
    for (std::int32_t column = 1; column <= 20; column += 3) at.MoveToCell(column, 7);
    at.MoveToCell(1, 5);
    EXPECT_EQ(at.Swatch(), cScreenRed);
    GetParam().end(at);
    EXPECT_FALSE(at.IsOpen());
    EXPECT_EQ(at.selector->SelectColor(), SelectorDesktop::cFirst);
    EXPECT_EQ(host::platform().GetFocus(), at.OwnWindow());
    EXPECT_EQ(at.desktop.Pixels(*at.selector), before);
    at.PressButton(SelectorDesktop::Grid);
    EXPECT_TRUE(at.IsOpen()) << "and once more";
}

INSTANTIATE_TEST_SUITE_P(
    ByEach, ucColorSelectorCancelled,
    testing::Values(
        CancelCase{"Esc", [](SelectorDesktop& at) { at.desktop.Key(host::VK_ESCAPE); }},
        CancelCase{"PressOutside",
                   [](SelectorDesktop& at) {
                       at.MoveToScreen(900, 700);
                       at.Down();
                       at.Up();
                   }},
        CancelCase{"PressOnItsOwnArrow", [](SelectorDesktop& at) { at.ClickButton(SelectorDesktop::Grid); }},
        CancelCase{"PressOnItsDots", [](SelectorDesktop& at) { at.ClickButton(SelectorDesktop::Dialog); }},
        CancelCase{"Tab", [](SelectorDesktop& at) { at.desktop.Key(host::VK_TAB); }},
        CancelCase{"TheFocusThatIsGivenAway",
                   [](SelectorDesktop& at) {
                       host::platform().SetFocus(at.desktop.form().hWnd());
                       at.desktop.Pump();
                   }}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(ucColorSelectorDesktop, AnotherProgramThatComesToTheFrontCancels) {
    SelectorDesktop at;
    at.ClickButton(SelectorDesktop::Grid);
    at.MoveToCell(1, 5);
    at.desktop.desktop().Input().Activate(0);
    at.desktop.Pump();
    EXPECT_FALSE(at.IsOpen());
    EXPECT_EQ(at.selector->SelectColor(), SelectorDesktop::cFirst);
    EXPECT_EQ(at.Swatch(), cScreenBlue);
    EXPECT_EQ(host::platform().GetFocus(), 0) << "it does not push itself to the front";
    EXPECT_FALSE(at.ShowsFocus());
    at.desktop.desktop().Input().Activate(at.desktop.form().hWnd());
    at.desktop.Pump();
    EXPECT_EQ(host::platform().GetFocus(), at.OwnWindow());
    EXPECT_TRUE(at.ShowsFocus());
}

TEST(ucColorSelectorDesktop, ArrowKeysPreviewInTheGridAndEnterTakes) {
    SelectorDesktop at;
    at.ClickButton(SelectorDesktop::Grid);
    at.desktop.MoveTo(*at.selector, 60, -300);
    at.desktop.Key(host::VK_RIGHT);
    const OLE_COLOR first = at.selector->SelectColor();
    EXPECT_NE(first, SelectorDesktop::cFirst);
    for (int i = 0; i < 4; ++i) at.desktop.Key(host::VK_DOWN);
    EXPECT_EQ(at.selector->SelectColor(), SelectorDesktop::cRed) << "the fifth row begins with red";
    at.desktop.Key(host::VK_RETURN);
    EXPECT_FALSE(at.IsOpen());
    EXPECT_EQ(at.selector->SelectColor(), SelectorDesktop::cRed);
}

TEST(ucColorSelectorDesktop, TheSystemColoursAreChosenByKeys) {
    SelectorDesktop at;
    at.ClickButton(SelectorDesktop::List);
    at.desktop.MoveTo(*at.selector, 60, -300);
    at.desktop.Key(host::VK_DOWN);
    EXPECT_EQ(at.selector->SelectColor(), SystemColor(0));
    at.desktop.Key('B');
    EXPECT_EQ(at.selector->SelectColor(), cButtonFace) << "the first that begins with B";
    EXPECT_EQ(at.Swatch(), at.Screen(host::COLOR_BTNFACE));
    at.desktop.Key(host::VK_END);
    EXPECT_EQ(at.selector->SelectColor(), SystemColor(24));
    at.desktop.Key(host::VK_RETURN);
    EXPECT_EQ(at.selector->SelectColor(), SystemColor(24));
    const auto chosen = at.desktop.Pixels(*at.selector);
    at.selector->SelectColor(SystemColor(24));
    EXPECT_EQ(at.desktop.Pixels(*at.selector), chosen) << "named as it is";
}

TEST(ucColorSelectorDesktop, EscInTheSystemColoursPutsASystemColourBack) {
    SelectorDesktop at(Theme::Classic(), cButtonFace);
    at.desktop.Focus(*at.selector);
    const auto before = at.desktop.Pixels(*at.selector);
    at.ClickButton(SelectorDesktop::List);
    at.desktop.Key(host::VK_END);
    EXPECT_NE(at.desktop.Pixels(*at.selector), before);
    at.desktop.Key(host::VK_ESCAPE);
    EXPECT_EQ(at.selector->SelectColor(), cButtonFace);
    EXPECT_EQ(at.desktop.Pixels(*at.selector), before);
}

TEST(ucColorSelectorDesktop, EnterBeforeAnyMovePutsBackWhatIsThere) {
    SelectorDesktop at;
    at.ClickButton(SelectorDesktop::Grid);
    at.desktop.MoveTo(*at.selector, 60, -300);
    at.desktop.Key(host::VK_RETURN);
    EXPECT_FALSE(at.IsOpen());
    EXPECT_EQ(at.selector->SelectColor(), SelectorDesktop::cFirst);
}

TEST(ucColorSelectorDesktop, AColourWrittenWhileAPopupIsOpenGivesWayToTheOldOneWithEsc) {
    SelectorDesktop at;
    at.ClickButton(SelectorDesktop::Grid);
    at.selector->SelectColor(0x123456);
    EXPECT_EQ(at.Swatch(), 0x563412U);
    at.desktop.Key(host::VK_ESCAPE);
    EXPECT_EQ(at.selector->SelectColor(), SelectorDesktop::cFirst);
}

TEST(ucColorSelectorDesktop, EscThatWaitsWhileThePopupOpensClosesIt) {
    SelectorDesktop at;
    at.desktop.MoveTo(*at.selector, SelectorDesktop::MiddleOf(SelectorDesktop::Grid), 10);
    at.desktop.desktop().Input().MouseDown(desktop::MouseButton::Left);
    at.desktop.desktop().Input().KeyDown(host::VK_ESCAPE);
    at.desktop.Pump();
    EXPECT_FALSE(at.IsOpen());
    EXPECT_EQ(at.selector->SelectColor(), SelectorDesktop::cFirst);
    EXPECT_TRUE(at.ShowsFocus());
    EXPECT_FALSE(at.IsDown(SelectorDesktop::Grid));
    at.desktop.LetGoKey(host::VK_ESCAPE);
    at.desktop.Release();
    at.PressButton(SelectorDesktop::Grid);
    EXPECT_TRUE(at.IsOpen());
}

TEST(ucColorSelectorDesktop, TwoSelectorsHoldEachItsOwnColour) {
    SelectorDesktop at;
    auto& second = at.desktop.form().Add<ucColorSelector>("second", {20, 60, 200, 24});
    second.SelectColor(0x808080);
    at.PressButton(SelectorDesktop::Grid);
    at.MoveToCell(1, 5);
    at.Up();
    at.desktop.Press(second, SelectorDesktop::MiddleOf(SelectorDesktop::Grid), 10);
    at.MoveToCell(9, 5);
    at.Up();
    EXPECT_EQ(at.selector->SelectColor(), SelectorDesktop::cRed);
    EXPECT_EQ(second.SelectColor(), SelectorDesktop::cGreen);
    EXPECT_FALSE(at.ShowsFocus()) << "the second one has it";
}

// The dialog.

TEST(ucColorSelectorDesktop, TheDotsAskTheDialogOnTheRelease) {
    SelectorDesktop at;
    host::Handle owner = 0;
    bool shown = true;
    int asked = 0;
    at.watch.onPick = [&](host::Handle hWnd) {
        ++asked;
        owner = hWnd;
        shown = at.ShowsFocus();
        return SelectorDesktop::cRed;
    };
    at.PressButton(SelectorDesktop::Dialog);
    EXPECT_EQ(asked, 0);
    at.desktop.Release();
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(owner, at.OwnWindow());
    EXPECT_FALSE(shown);
    EXPECT_TRUE(at.ShowsFocus());
    EXPECT_EQ(host::platform().GetFocus(), at.OwnWindow());
    EXPECT_EQ(at.Swatch(), cScreenRed);
}

TEST(ucColorSelectorDesktop, TheDialogChangesTheSwatchAndLeavesTheDescription) {
    SelectorDesktop at;
    at.desktop.Focus(*at.selector);
    const auto before = at.desktop.Pixels(*at.selector);
    at.watch.onPick = [](host::Handle) { return SelectorDesktop::cRed; };
    at.ClickButton(SelectorDesktop::Dialog);
    EXPECT_EQ(at.selector->SelectColor(), SelectorDesktop::cRed);
    const auto after = at.desktop.Pixels(*at.selector);
    for (std::size_t place = 0; place < after.size(); ++place) {
        const auto x = place % 196, y = place / 196;
        const bool inSwatch = x >= 4 && x < 16 && y >= 4 && y < 16;
        ASSERT_EQ(after[place] != before[place], inSwatch) << x << ", " << y;
    }
}

TEST(ucColorSelectorDesktop, ReleasedBesideTheDotsButOnTheStripTheDialogOpens) {
    SelectorDesktop at;
    int asked = 0;
    at.watch.onPick = [&](host::Handle) { return ++asked, -1; };
    at.PressButton(SelectorDesktop::Dialog);
    at.desktop.MoveTo(*at.selector, SelectorDesktop::MiddleOf(SelectorDesktop::Grid), 10);
    at.desktop.Release();
    EXPECT_EQ(asked, 1);
    at.PressButton(SelectorDesktop::Dialog);
    at.desktop.MoveTo(*at.selector, 60, 10);
    at.desktop.Release();
    EXPECT_EQ(asked, 1) << "beside the strip it does not";
    EXPECT_EQ(at.selector->SelectColor(), SelectorDesktop::cFirst);
}

TEST(ucColorSelectorDesktop, TheDesktopsOwnDialogChooses) {
    SelectorDesktop at;
    const auto click = [&](const char* control, std::int32_t x, std::int32_t y) {
        Form& dialog = *at.desktop.desktop().Forms().back();
        host::Point point{x, y};
        host::platform().ClientToScreen(dialog.ComponentOf(*dialog.Find(control)).hWnd(), point);
        at.desktop.desktop().Input().MouseMove(point.x, point.y);
        at.desktop.desktop().Input().MouseDown(desktop::MouseButton::Left);
        at.desktop.desktop().Input().MouseUp(desktop::MouseButton::Left);
    };
    bool shown = true;
    at.PressButton(SelectorDesktop::Dialog);
    at.desktop.desktop().Input().MouseUp(desktop::MouseButton::Left);
    // Behind the release, so that it runs in the dialog.
    at.watch.onPick = [&](host::Handle owner) {
        at.watch.onPick = nullptr;
        at.desktop.desktop().Post([&] {
            EXPECT_EQ(at.desktop.desktop().Forms().size(), 2U);
            shown = at.ShowsFocus();
            click("basic", 12, 2 * 22 + 11); // red
            click("accept", 10, 10);
        });
        return host::services().ColorPicker().PickColor(owner);
    };
    at.desktop.Pump();
    EXPECT_EQ(at.desktop.desktop().Forms().size(), 1U);
    EXPECT_EQ(at.selector->SelectColor(), SelectorDesktop::cRed);
    EXPECT_EQ(at.Swatch(), cScreenRed);
    EXPECT_FALSE(shown);
    EXPECT_TRUE(at.ShowsFocus());
    EXPECT_EQ(host::platform().GetFocus(), at.OwnWindow());
    at.watch.onPick = [&](host::Handle owner) {
        at.watch.onPick = nullptr;
        at.desktop.desktop().Post([&] { at.desktop.desktop().Input().KeyDown(host::VK_ESCAPE); });
        return host::services().ColorPicker().PickColor(owner);
    };
    at.ClickButton(SelectorDesktop::Dialog);
    EXPECT_EQ(at.desktop.desktop().Forms().size(), 1U);
    EXPECT_EQ(at.selector->SelectColor(), SelectorDesktop::cRed) << "cancelled";
    EXPECT_TRUE(at.ShowsFocus());
}

// Form files and design time.

TEST(ucColorSelectorDesktop, AFormFileKeepsItsTypeAndPlaceAlone) {
    SelectorDesktop at;
    EXPECT_EQ(ControlTypeName(*at.selector), "ucColorSelector");
    const std::string file = testing::TempDir() + "ucColorSelector_form.toml";
    at.desktop.form().Save(file);
    auto& form = at.desktop.desktop().AddForm("again", 300, 100);
    form.Load(file);
    std::filesystem::remove(file);
    auto* again = form.Find<ucColorSelector>("selector");
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(form.PlacementOf(*again).width, 200);
    EXPECT_EQ(again->SelectColor(), 0);
}

TEST(ucColorSelectorDesign, PaintsItsWritesAndClearsWithThePaint) {
    TestDesktop desktop;
    desktop.form().UserMode(false);
    auto& selector = desktop.form().Add<ucColorSelector>("selector", {20, 20, 200, 24});
    desktop.Pump();
    const std::uint32_t cleared = desktop.PixelAt(selector, 10, 10);
    EXPECT_EQ(cleared, desktop.PixelAt(selector, 60, 10));
    selector.SelectColor(255);
    EXPECT_EQ(desktop.PixelAt(selector, 10, 10), cScreenRed);
    host::platform().InvalidateRect(desktop.WindowOf(selector), nullptr, false);
    desktop.Pump();
    EXPECT_EQ(desktop.PixelAt(selector, 10, 10), cleared);
    EXPECT_EQ(selector.SelectColor(), 255);
}

TEST(ucColorSelectorDesign, ShowsNoPlaceholderOfItsPopup) {
    TestDesktop desktop;
    desktop.form().UserMode(false);
    auto& selector = desktop.form().Add<ucColorSelector>("selector", {20, 20, 200, 24});
    desktop.Pump();
    for (std::int32_t x = 0; x < 130; ++x)
        for (std::int32_t y = 0; y < 20; ++y)
            ASSERT_EQ(desktop.PixelAt(selector, x, y), desktop.PixelAt(selector, 1, 1)) << x << ", " << y;
}

TEST(ucColorSelectorDesign, ItsButtonsOpenNothing) {
    FloatingDesktop at;
    at.desktop.form().UserMode(false);
    auto& selector = at.desktop.form().Add<ucColorSelector>("selector", {20, 20, 200, 24});
    for (const std::int32_t button : {0, 1, 2}) {
        at.desktop.Press(selector, 146 + 20 * button, 10);
        EXPECT_FALSE(at.IsOpen()) << button;
        at.desktop.Release();
    }
    EXPECT_EQ(at.desktop.desktop().Forms().size(), 1U);
    EXPECT_EQ(selector.SelectColor(), 0);
}

// Calls in their order.

TEST(ucColorSelectorTrace, WritesAndANewSizePaintByTheseCalls) {
    SelectorDesktop at;
    at.desktop.FocusAway();
    std::vector<std::string> lines;
    const auto add = [&](const char* title, const std::function<void()>& action) {
        lines.push_back(std::string("-- ") + title);
        for (const auto& line : at.desktop.Trace(action)) lines.push_back(line);
    };
    add("a colour is written", [&] { at.selector->SelectColor(0x808080); });
    at.desktop.Focus(*at.selector);
    add("with the focus", [&] { at.selector->SelectColor(cButtonFace); });
    add("a new size", [&] { at.desktop.form().Place(*at.selector, {20, 20, 180, 22}); });
    ExpectTrace("colorselector/paints", lines);
}

} // namespace
} // namespace tvok::test
