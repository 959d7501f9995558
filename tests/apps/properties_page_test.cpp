// The gallery's property list on a desktop, by a user's mouse and keys: what is typed, toggled, chosen and
// taken back is at once that of the controls.
#include "apps/gallery/PropertiesPage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "apps/gallery/Window.h"
#include "apps/gallery/keys.h"
#include "tests/apps/OtherValue.h"
#include "tests/apps/PropertiesPageTest.h"
#include "tvok/host/Services.h"

namespace gallery {
namespace {

using testing::HasSubstr;
using testing::SizeIs;
using tvok::Variant;
using namespace tvok::host;

TEST_F(PropertiesPageTest, HasARowForEveryPropertyAndGroup) {
    std::size_t properties = 0;
    std::set<std::string> keys;
    for (const PropertyGroup& group : page_.properties().groups()) {
        properties += group.properties.size();
        for (const Property& property : group.properties) keys.insert(group.key + "." + property.name);
    }
    EXPECT_GE(properties, 100u);
    EXPECT_EQ(keys.size(), properties);
    EXPECT_THAT(Rows(), SizeIs(properties + 6));
}

// The table.

TEST_F(PropertiesPageTest, EveryPropertyTakesAnotherValueAndTheOldOneAgain) {
    for (const PropertyGroup& group : page_.properties().groups()) {
        for (const Property& property : group.properties) {
            SCOPED_TRACE(group.key + "." + property.name);
            const Variant before = property.get();
            const Variant other = OtherValue(property);
            ASSERT_NE(before, other);
            EXPECT_TRUE(page_.properties().Set(group.key + "." + property.name, other));
            EXPECT_EQ(property.get(), other);
            EXPECT_EQ(page_.list().GetData(group.key + "." + property.name), other);
            EXPECT_TRUE(page_.properties().Set(group.key + "." + property.name, before));
            EXPECT_EQ(property.get(), before);
        }
    }
}

TEST_F(PropertiesPageTest, ARefusedValueLeavesTheOldOne) {
    EXPECT_FALSE(page_.properties().Set("roster.MultiSelect", Variant(7)));
    EXPECT_EQ(page_.roster().MultiSelect(), 0);
    EXPECT_FALSE(page_.properties().Set("roster.NoSuchThing", Variant(7)));
    EXPECT_FALSE(page_.properties().Set("roster.ItemHeight", Variant(0)));
    EXPECT_EQ(page_.list().GetData("roster.ItemHeight"), Variant(20));
}

TEST_F(PropertiesPageTest, AColorIsReadFromItsNameAndFromHexadecimalDigits) {
    tvok::xPopup& palette = desktop_.form().Add<tvok::xPopup>("palette", {});
    const ColorNames names(palette);
    const Property* property = page_.properties().Find("label.BackColor");
    const auto color = [&](const char* text) { return ValueOfText(*property, text, names); };
    EXPECT_EQ(color("#FF8000"), Variant(0x0080FF));
    EXPECT_EQ(color(" &H000080FF"), Variant(0x0080FF));
    EXPECT_EQ(color("highlight"), Variant(tvok::cHighlight));
    EXPECT_EQ(color("&H80000005"), std::nullopt) << "a system colour has a name";
    for (const char* text : {"", "#FF800", "#FF80001", "&H", "&HG", "red-ish", "&H1000000", "#-10000"})
        EXPECT_EQ(color(text), std::nullopt) << text;
}

TEST_F(PropertiesPageTest, AChoiceIsReadFromItsTextOrABeginningThatIsTheOnlyOne) {
    tvok::xPopup& palette = desktop_.form().Add<tvok::xPopup>("palette", {});
    const ColorNames names(palette);
    const Property* icon = page_.properties().Find("label.IconID");
    EXPECT_EQ(ValueOfText(*icon, "globe", names), Variant(8));
    EXPECT_EQ(ValueOfText(*icon, "gl", names), Variant(8));
    EXPECT_EQ(ValueOfText(*icon, "Box", names), Variant(1));
    EXPECT_EQ(ValueOfText(*icon, "b", names), std::nullopt) << "box, books and brackets";
    EXPECT_EQ(ValueOfText(*icon, "", names), std::nullopt);
    EXPECT_EQ(ValueOfText(*icon, "globes", names), std::nullopt);
}

// Editing by the keyboard.

TEST_F(PropertiesPageTest, WhatIsTypedInTheListReplacesTheTextAndEnterTakesIt) {
    ClickRow("label.Caption");
    EXPECT_TRUE(HasFocus(page_.list()));
    desktop_.Type("Ready, steady");
    EXPECT_TRUE(HasFocus(page_.text()));
    EXPECT_THAT(page_.label().Caption(), HasSubstr("A label")) << "not before it is taken";
    desktop_.Key(VK_RETURN);
    EXPECT_EQ(page_.label().Caption(), "Ready, steady");
    EXPECT_EQ(Value("label.Caption"), "Ready, steady");
    EXPECT_TRUE(HasFocus(page_.list()));
}

TEST_F(PropertiesPageTest, EscInTheTextGetsTheOldValueBack) {
    ClickRow("label.Caption");
    const std::string before = page_.label().Caption();
    desktop_.Key(F2);
    desktop_.Type("nonsense");
    desktop_.Key(VK_ESCAPE);
    EXPECT_EQ(page_.label().Caption(), before);
    EXPECT_EQ(page_.text().Text(), before);
    EXPECT_TRUE(HasFocus(page_.list()));
}

TEST_F(PropertiesPageTest, EnterStartsToEditWithTheWholeTextSelected) {
    ClickRow("roster.TabStopSettingStr");
    desktop_.Key(VK_RETURN);
    EXPECT_TRUE(HasFocus(page_.text()));
    EXPECT_EQ(page_.text().SelText(), "140");
}

TEST_F(PropertiesPageTest, AnArrowInTheTextTakesItAndMovesTheRow) {
    ClickRow("label.TextLeft");
    desktop_.Key(VK_UP);
    const std::string above = Current();
    desktop_.Key(VK_DOWN);
    desktop_.Type("44");
    desktop_.Key(VK_UP);
    EXPECT_EQ(page_.label().TextLeft(), 44);
    EXPECT_EQ(Current(), above);
    EXPECT_TRUE(HasFocus(page_.list()));
    desktop_.Key(VK_DOWN);
    EXPECT_EQ(Current(), "label.TextLeft");
    EXPECT_EQ(page_.text().Text(), "44");
}

TEST_F(PropertiesPageTest, AClickOnAnotherRowOrATabTakesTheText) {
    ClickRow("label.TextLeft");
    desktop_.Type("50");
    ClickRow("label.IconLeft");
    EXPECT_EQ(page_.label().TextLeft(), 50);
    desktop_.Type("9");
    desktop_.Key(VK_TAB);
    EXPECT_EQ(page_.label().IconLeft(), 9);
    EXPECT_FALSE(HasFocus(page_.text()));
}

TEST_F(PropertiesPageTest, ATextThatIsNoValueIsRefusedAndTheOldOneShown) {
    for (const char* text : {"x", "9999", "-1", ""}) {
        ClickRow("label.GridlineWidth");
        desktop_.Key(F2);
        desktop_.Type(text);
        if (*text == '\0') desktop_.Key(VK_DELETE);
        desktop_.Key(VK_RETURN);
        EXPECT_EQ(page_.label().GridlineWidth(), 0) << text;
        EXPECT_EQ(page_.text().Text(), "0") << text;
        EXPECT_TRUE(HasFocus(page_.text())) << "so that another can be typed";
        desktop_.Key(VK_ESCAPE);
    }
    EXPECT_EQ(Value("label.GridlineWidth"), "0");
}

TEST_F(PropertiesPageTest, TheEditorStandsInTheRowAndLeavesRoomForTheButtons) {
    ClickRow("label.GridlineWidth");
    const tvok::tvok_Rect value = ValueArea();
    const tvok::Placement place = desktop_.form().PlacementOf(page_.text());
    Point corner{place.left, place.top};
    platform().ClientToScreen(desktop_.form().hWnd(), corner);
    platform().ScreenToClient(page_.list().hwnd(), corner);
    EXPECT_EQ(corner, (Point{value.Left, value.Top}));
    EXPECT_EQ(place.height, value.bottom - value.Top);
    EXPECT_EQ(corner.x + place.width, value.Right - (value.bottom - value.Top + 2)) << "one button";
}

TEST_F(PropertiesPageTest, ScrollingAwayHidesTheEditorAndBackItHoldsWhatWasTyped) {
    ClickRow("self.BackColor");
    ClickRow("roster.TabStopSettingStr");
    desktop_.Type("6");
    desktop_.Wheel(30);
    EXPECT_FALSE(Shows(page_.text()));
    EXPECT_TRUE(HasFocus(page_.list()));
    page_.list().ShowItem("roster.TabStopSettingStr");
    EXPECT_TRUE(Shows(page_.text()));
    EXPECT_EQ(page_.text().Text(), "6");
    EXPECT_EQ(page_.roster().TabStopSettingStr(), "140");
    desktop_.Key(VK_DOWN);
    EXPECT_EQ(page_.roster().TabStopSettingStr(), "6");
}

TEST_F(PropertiesPageTest, TheWheelTurnsTheListAlsoOverAnEditor) {
    for (const char* key : {"strip.ButtonSettingsStr", "strip.Font.Bold"}) {
        ClickRow(key);
        tvok::tvok_Rect place;
        EXPECT_TRUE(page_.list().GetItemRect(page_.list().ListIndex(), place));
        const auto& editor = page_.properties().Find(key)->kind == ValueKind::Truth
                                 ? static_cast<const Control&>(page_.check())
                                 : page_.text();
        desktop_.MoveTo(editor, 30, 8);
        desktop_.Wheel(-1);
        tvok::tvok_Rect now;
        EXPECT_FALSE(page_.list().GetItemRect(page_.list().ListIndex(), now) && now == place) << key;
        desktop_.Wheel(1);
    }
}

TEST_F(PropertiesPageTest, TheFirstRowThatTheFocusBringsHasItsEditor) {
    desktop_.Focus(page_.switches().list());
    desktop_.Focus(page_.list());
    EXPECT_EQ(page_.list().ListIndex(), 1) << "a group";
    EXPECT_FALSE(Shows(page_.text()));
    desktop_.Key(VK_DOWN);
    EXPECT_TRUE(Shows(page_.text()) || Shows(page_.check()));
}

// The check box.

TEST_F(PropertiesPageTest, SpaceTogglesAndEscPutsBack) {
    ClickRow("label.IconBorder");
    EXPECT_TRUE(Shows(page_.check()));
    EXPECT_FALSE(Shows(page_.text()));
    desktop_.Key(VK_SPACE);
    EXPECT_TRUE(page_.label().IconBorder());
    EXPECT_TRUE(HasFocus(page_.check()));
    desktop_.Key(VK_SPACE);
    EXPECT_FALSE(page_.label().IconBorder());
    desktop_.Key(VK_SPACE);
    desktop_.Key(VK_ESCAPE);
    EXPECT_FALSE(page_.label().IconBorder());
    EXPECT_FALSE(page_.check().Value());
    EXPECT_TRUE(HasFocus(page_.list()));
}

TEST_F(PropertiesPageTest, AClickOnTheBoxTogglesAndAnArrowGoesOn) {
    ClickRow("roster.HotTrack");
    desktop_.Click(page_.check(), 8, 8);
    EXPECT_TRUE(page_.roster().HotTrack());
    desktop_.Key(VK_DOWN);
    EXPECT_NE(Current(), "roster.HotTrack");
    EXPECT_TRUE(page_.roster().HotTrack()) << "it was taken at once";
    EXPECT_FALSE(Shows(page_.check()));
}

// Popups.

TEST_F(PropertiesPageTest, ADragIntoThePaletteShowsEachColorAndTheReleaseTakesIt) {
    ClickRow("label.BackColor");
    const tvok::OLE_COLOR before = page_.label().BackColor();
    PressButton(3);
    MoveInPopup(60, 40);
    const tvok::OLE_COLOR tried = page_.label().BackColor();
    EXPECT_NE(tried, before);
    MoveInPopup(100, 60);
    const tvok::OLE_COLOR chosen = page_.label().BackColor();
    EXPECT_NE(chosen, tried);
    desktop_.Release();
    EXPECT_EQ(page_.label().BackColor(), chosen);
    EXPECT_EQ(Item("label.BackColor").item.IconBackColor, chosen);
    EXPECT_EQ("(" + page_.text().Text() + ")", Value("label.BackColor"));
    EXPECT_TRUE(HasFocus(page_.list()));
}

TEST_F(PropertiesPageTest, EscInThePaletteTakesTheColorBack) {
    ClickRow("roster.SelectedColor");
    const tvok::OLE_COLOR before = page_.roster().SelectedColor();
    ClickButton(3);
    MoveInPopup(60, 40);
    EXPECT_NE(page_.roster().SelectedColor(), before);
    desktop_.Key(VK_ESCAPE);
    EXPECT_EQ(page_.roster().SelectedColor(), before);
    EXPECT_EQ(Item("roster.SelectedColor").nData, Variant(before));
    EXPECT_TRUE(HasFocus(page_.list()));
}

TEST_F(PropertiesPageTest, TheSystemColorsComeByName) {
    ClickRow("label.BackColor");
    ClickButton(2);
    desktop_.Key(VK_END);
    desktop_.Key(VK_RETURN);
    EXPECT_LT(page_.label().BackColor(), 0);
    EXPECT_NE(page_.label().BackColor(), tvok::cWindowBackground);
    EXPECT_EQ("(" + page_.text().Text() + ")", Value("label.BackColor"));
}

TEST_F(PropertiesPageTest, TheColorDialogGivesAColorOrLeavesTheOldOne) {
    ClickRow("label.BackColor");
    const tvok::OLE_COLOR before = page_.label().BackColor();
    // The dialog runs until it is answered, so the answer waits behind the release that opens it.
    const auto answer = [this](std::int32_t key) {
        PressButton(1);
        desktop_.desktop().Input().MouseUp(tvok::desktop::MouseButton::Left);
        desktop_.desktop().Input().KeyDown(key);
        desktop_.desktop().Input().KeyUp(key);
        desktop_.Pump();
    };
    answer(VK_ESCAPE);
    EXPECT_EQ(page_.label().BackColor(), before);
    EXPECT_TRUE(HasFocus(page_.list()));
    answer(VK_RETURN);
    EXPECT_NE(page_.label().BackColor(), before);
    EXPECT_EQ(Item("label.BackColor").nData, Variant(page_.label().BackColor()));
    EXPECT_TRUE(HasFocus(page_.list()));
}

TEST_F(PropertiesPageTest, ThePopupKeepsOpenForTheKeyboardWhileTheButtonIsHeld) {
    ClickRow("label.GridlineWidth");
    PressButton(1);
    desktop_.Key(VK_END);
    desktop_.Release();
    desktop_.Key(VK_UP);
    EXPECT_EQ(page_.label().GridlineWidth(), 11);
    desktop_.Key(VK_ESCAPE);
    EXPECT_EQ(page_.label().GridlineWidth(), 0);
}

TEST_F(PropertiesPageTest, ANumberComesFromItsPopup) {
    ClickRow("label.GridlineWidth");
    ClickButton(1);
    desktop_.Key(VK_HOME);
    desktop_.Key(VK_DOWN);
    desktop_.Key(VK_DOWN);
    EXPECT_EQ(page_.label().GridlineWidth(), 2) << "while the popup is open";
    desktop_.Key(VK_RETURN);
    EXPECT_EQ(page_.label().GridlineWidth(), 2);
    EXPECT_EQ(Value("label.GridlineWidth"), "2");
}

TEST_F(PropertiesPageTest, AChoiceComesFromItsList) {
    ClickRow("roster.SortedMode");
    PressButton(1);
    MoveInPopup(20, 50);
    desktop_.Release();
    EXPECT_EQ(page_.roster().SortedMode(), 2);
    EXPECT_EQ(Value("roster.SortedMode"), "Descending");
    tvok::qrosterdata first;
    page_.roster().GetData(1, first);
    EXPECT_THAT(first.text, HasSubstr("Manuals"));
    EXPECT_TRUE(Shows(page_.text())) << "an entry of the list is a cell with an editor";
}

TEST_F(PropertiesPageTest, ATextComesFromItsList) {
    ClickRow("label.Font.Name");
    ClickButton(1);
    desktop_.Key(VK_END);
    desktop_.Key(VK_RETURN);
    EXPECT_EQ(page_.label().Font()->Name(), "Noto Sans CJK JP");
    EXPECT_EQ(Value("label.Font.Name"), "Noto Sans CJK JP");
}

TEST_F(PropertiesPageTest, F4OpensThePopupForTheKeyboardAlone) {
    ClickRow("label.IconID");
    desktop_.Key(F4);
    desktop_.Key(VK_END);
    EXPECT_EQ(page_.label().IconID(), 16) << "while the popup is open";
    desktop_.Key(VK_ESCAPE);
    EXPECT_EQ(page_.label().IconID(), 8);
    desktop_.Key(F4);
    desktop_.Key(VK_END);
    desktop_.Key(VK_RETURN);
    EXPECT_EQ(page_.label().IconID(), 16);
    EXPECT_EQ(Value("label.IconID"), "Newest");
    EXPECT_TRUE(HasFocus(page_.list()));
}

TEST_F(PropertiesPageTest, TwoButtonsStepANumberAndStopAtItsEnds) {
    ClickRow("roster.xn");
    ClickButton(2);
    EXPECT_EQ(page_.roster().xn(), 2);
    EXPECT_EQ(page_.text().Text(), "2");
    ClickButton(1);
    ClickButton(1);
    EXPECT_EQ(page_.roster().xn(), 1);
    EXPECT_EQ(Value("roster.xn"), "1");
    EXPECT_TRUE(HasFocus(page_.list()));
}

TEST_F(PropertiesPageTest, ArrowsGoOnAfterAPopup) {
    ClickRow("label.BackColor");
    ClickButton(3);
    desktop_.Key(VK_ESCAPE);
    desktop_.Key(VK_DOWN);
    desktop_.Key(VK_DOWN);
    EXPECT_EQ(Current(), "label.Caption");
    EXPECT_TRUE(HasFocus(page_.list()));
}

// What one property changes in others.

TEST_F(PropertiesPageTest, ARowFollowsWhatTheUserDoesInTheControl) {
    desktop_.Click(page_.roster(), 60, 10);
    EXPECT_EQ(Value("roster.ListIndex"), "1");
}

TEST_F(PropertiesPageTest, ThePropertyListIsOneOfItsOwnControls) {
    ClickRow("self.ItemHeight");
    desktop_.Type("26");
    desktop_.Key(VK_RETURN);
    EXPECT_EQ(page_.list().ItemHeight(), 26);
    EXPECT_EQ(desktop_.form().PlacementOf(page_.text()).height, 26) << "the editor follows";
}

TEST_F(PropertiesPageTest, AControlThatWasSnappedGetsItsHeightBack) {
    const std::int32_t before = desktop_.form().PlacementOf(page_.roster()).height;
    EXPECT_TRUE(page_.properties().Set("roster.FixedHeight", Variant(1)));
    EXPECT_LT(desktop_.form().PlacementOf(page_.roster()).height, before);
    EXPECT_TRUE(page_.properties().Set("roster.FixedHeight", Variant(0)));
    EXPECT_EQ(desktop_.form().PlacementOf(page_.roster()).height, before);
}

// In the gallery's window.

TEST(PropertiesPageInTheWindow, AnotherPageTakesTheTextAndHidesTheEditors) {
    tvok::test::TestDesktop desktop;
    const auto window = Window::Open(desktop.desktop(), "properties");
    auto& page = dynamic_cast<PropertiesPage&>(window->page());
    const auto shows = [&](const Control& control) { return window->form().ComponentOf(control).Visible(); };
    desktop.Pump();
    window->form().ComponentOf(page.list()).SetFocus();
    page.list().ShowItem("label.Caption");
    EXPECT_TRUE(shows(page.text()));
    EXPECT_FALSE(shows(page.check()));
    desktop.Type("typed");
    window->pages().ListIndex(1);
    desktop.Pump();
    EXPECT_EQ(page.label().Caption(), "typed");
    EXPECT_FALSE(shows(page.list()));
    EXPECT_FALSE(shows(page.text()));
    EXPECT_FALSE(shows(page.check()));
    const auto named = [](const PageEntry& entry) { return std::string(entry.name) == "properties"; };
    const auto place = std::ranges::find_if(Pages(), named) - Pages().begin();
    window->pages().ListIndex(static_cast<std::int32_t>(place) + 1);
    EXPECT_EQ(&window->page(), &page);
    EXPECT_TRUE(shows(page.text()));
    EXPECT_FALSE(shows(page.check())) << "a row has one editor";
    EXPECT_EQ(page.text().Text(), "typed");
}

TEST(PropertiesPageInTheWindow, KeysThatComeAfterItsEndGoPastIt) {
    tvok::test::TestDesktop desktop;
    const auto window = Window::Open(desktop.desktop(), "properties");
    auto& page = dynamic_cast<PropertiesPage&>(window->page());
    desktop.Pump();
    window->form().ComponentOf(page.list()).SetFocus();
    page.list().ShowItem("label.Caption");
    desktop.Type("x");
    window->form().Close();
    EXPECT_NO_THROW(desktop.Type("y"));
}

} // namespace
} // namespace gallery
