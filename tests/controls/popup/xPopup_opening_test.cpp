// Opening: rows, width, place on the screen, what is called in which order, and hooks that cannot attach.
#include "tests/support/NotedServices.h"
#include "tests/support/PopupTestDesktop.h"
#include "tvok/host/RecordingPlatform.h"

namespace tvok::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int32_t kScreenWidth = 1280, kScreenHeight = 1024, kBar = 17;

std::int32_t WidthOf(const tvok_Rect& rect) {
    return rect.Right - rect.Left;
}

// Whether and how many rows.

TEST(xPopupOpening, AnEmptyPopupDoesNothingAtAll) {
    PopupDesktop at;
    EXPECT_THAT(at.desktop.Trace([&] { at.popup->Popup(); }), IsEmpty());
    EXPECT_FALSE(at.IsOpen());
    at.desktop.Key(host::VK_ESCAPE);
    EXPECT_THAT(at.owner.TakeLog(), Contains("KeyDown 27 0"));
    EXPECT_THAT(at.story, IsEmpty());
}

TEST(xPopupOpening, WithoutColumnsOrRowsItDoesNothingEither) {
    for (const char* text : {"18=0\r\n998\r\n999\r\n", "19=0\r\n998\r\n999\r\n", "18=-1\r\n998\r\n999\r\n"}) {
        PopupDesktop at;
        at.popup->ItemsStr(text);
        ASSERT_EQ(at.popup->Count(), 1);
        at.popup->Popup();
        EXPECT_FALSE(at.IsOpen()) << text;
    }
}

TEST(xPopupOpening, FewerItemsThanRowsLowerYnForGood) {
    PopupDesktop at(Lines(3));
    at.popup->yn(8);
    at.Open();
    EXPECT_EQ(at.popup->yn(), 3);
    EXPECT_EQ(at.ClientRect().bottom, 3 * 19);
    at.desktop.Key(host::VK_ESCAPE);
    at.Add(Lines(9));
    at.Open();
    EXPECT_EQ(at.popup->yn(), 3);
    EXPECT_EQ(at.ClientRect().bottom, 3 * 19);
}

TEST(xPopupOpening, ARowBegunCountsAsARow) {
    PopupDesktop at(Lines(7));
    at.popup->xn(3);
    at.popup->yn(9);
    at.Open();
    EXPECT_EQ(at.popup->yn(), 3);
}

TEST(xPopupOpening, ItOpensAtTheTopAgain) {
    PopupDesktop at(Lines(30));
    at.Open();
    at.popup->ListIndex(30);
    const auto end = at.Pixels();
    at.desktop.Key(host::VK_ESCAPE);
    at.Open();
    EXPECT_NE(at.Pixels(), end);
    at.ClickRow(1);
    EXPECT_THAT(at.TakeStory(), Contains("Click 1 item 1"));
}

// Width.

TEST(xPopupOpening, OneColumnIsAsWideAsTheWidestOfParentItemAndTexts) {
    PopupDesktop at({"some text"});
    at.Open();
    EXPECT_EQ(WidthOf(at.WindowRect()), 100) << "parent and ItemWidth are 100, and no text was measured";
    at.popup->SetParentRect({0, 0, 250, 10});
    at.Open();
    EXPECT_EQ(WidthOf(at.WindowRect()), 250);
    at.popup->ItemWidth(300);
    at.Open();
    EXPECT_EQ(WidthOf(at.WindowRect()), 300);
}

TEST(xPopupOpening, UnmeasuredTextsDoNotWidenIt) {
    PopupDesktop at({std::string(200, 'w')});
    at.Open();
    EXPECT_EQ(WidthOf(at.WindowRect()), 100);
    at.popup->CalTextWidth();
    at.Open();
    EXPECT_EQ(WidthOf(at.WindowRect()), kScreenWidth) << "and never beyond the screen";
}

TEST(xPopupOpening, MeasuredTextsGetRoomBesideTheScrollBar) {
    PopupDesktop at({"a text that is measured"});
    at.popup->ItemWidth(1);
    at.popup->SetParentRect({10, 10, 11, 11});
    at.popup->CalTextWidth();
    at.Open();
    const std::int32_t width = WidthOf(at.WindowRect());
    at.desktop.Key(host::VK_ESCAPE);
    at.Add(Lines(20)); // shorter texts, and a scroll bar
    at.popup->yn(5);
    at.Open();
    EXPECT_EQ(WidthOf(at.WindowRect()), width + kBar);
    EXPECT_EQ(at.ClientRect().Right, width);
}

TEST(xPopupOpening, SeveralColumnsAreAsWideAsTheyAre) {
    PopupDesktop at(Lines(9));
    at.popup->xn(3);
    at.popup->ColWidthSettingStr("0,50,60,70");
    at.popup->SetParentRect({0, 0, 600, 10});
    at.Open();
    EXPECT_EQ(at.ClientRect(), (tvok_Rect{0, 0, 50 + 60 + 70 + 2, 3 * 19}));
}

TEST(xPopupOpening, ResetSizeFitsTheWindowToRowsAndColumns) {
    PopupDesktop at(Lines(40));
    at.popup->yn(5);
    at.Open();
    EXPECT_EQ(at.ClientRect().bottom, 95);
    at.popup->yn(7);
    at.popup->ResetSize();
    EXPECT_EQ(at.ClientRect().bottom, 7 * 19);
    EXPECT_EQ(WidthOf(at.WindowRect()), 100) << "one column keeps its width";
    at.popup->xn(2);
    at.popup->ResetSize();
    EXPECT_EQ(at.ClientRect().Right, 201);
}

// Place.

struct Place {
    const char* name;
    tvok_Rect parent;
    bool alignLeft;
    std::int32_t x, y; ///< Of a popup of 100 by 57.
};

class xPopupPlace : public testing::TestWithParam<Place> {};

TEST_P(xPopupPlace, IsWhereItsParentAndTheScreenSay) {
    const Place& place = GetParam();
    PopupDesktop at(Lines(3));
    at.popup->SetParentRect(place.parent);
    at.popup->Popup(false, place.alignLeft);
    EXPECT_EQ(at.WindowRect(), (tvok_Rect{place.x, place.y, place.x + 100, place.y + 57}));
}

INSTANTIATE_TEST_SUITE_P(
    Each, xPopupPlace,
    testing::Values(Place{"BelowRightAligned", {200, 100, 240, 120}, false, 140, 120},
                    Place{"BelowLeftAligned", {200, 100, 240, 120}, true, 200, 120},
                    Place{"RightEdgesOfANarrowParentLeftOfTheScreen", {10, 100, 50, 120}, false, 0, 120},
                    Place{"UpwardAtTheBottom", {200, 990, 240, 1010}, true, 200, 990 - 57},
                    Place{"LastPlaceBelow", {200, 900, 240, 1024 - 58}, true, 200, 1024 - 58},
                    Place{"FirstPlaceAbove", {200, 900, 240, 1024 - 57}, true, 200, 900 - 57},
                    Place{"UpwardBeyondTheTop", {200, 20, 240, 1020}, true, 200, 20 - 57},
                    Place{"PushedBackFromTheRight", {1250, 100, 1270, 120}, true, 1180, 120},
                    Place{"LastPlaceAtTheRight", {1179, 100, 1199, 120}, true, 1179, 120},
                    Place{"LeftOfTheScreen", {-500, 100, -450, 120}, true, 0, 120},
                    Place{"RightOfTheScreen", {5000, 100, 5050, 120}, false, 1180, 120},
                    Place{"AboveTheScreen", {200, -300, 240, -280}, true, 200, -280},
                    Place{"BelowTheScreen", {200, 3000, 240, 3020}, true, 200, 3000 - 57}),
    [](const auto& info) { return info.param.name; });

TEST(xPopupOpening, WiderThanTheScreenTheLimitAtTheRightWins) {
    PopupDesktop at(Lines(40));
    at.popup->xn(20);
    at.popup->SetParentRect({10, 10, 60, 30});
    at.Open();
    const std::int32_t width = 20 * 101 - 1;
    EXPECT_EQ(at.WindowRect(), (tvok_Rect{kScreenWidth - width, 30, kScreenWidth, 30 + 2 * 19}));
}

TEST(xPopupOpening, AtTheCursorItsTopRightCornerIsThere) {
    PopupDesktop at(Lines(3));
    at.MoveToScreen(500, 400);
    at.popup->Popup(true);
    EXPECT_EQ(at.WindowRect(), (tvok_Rect{400, 400, 500, 457}));
    at.popup->Popup(true, true);
    EXPECT_EQ(at.WindowRect(), (tvok_Rect{500, 400, 600, 457}));
    at.MoveToScreen(500, kScreenHeight - 5);
    at.popup->Popup(true, true);
    EXPECT_EQ(at.WindowRect().bottom, kScreenHeight - 5);
}

TEST(xPopupOpening, HugeParentRectanglesOpenSomewhereWithoutAnError) {
    for (const tvok_Rect& parent : {tvok_Rect{INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX},
                                    tvok_Rect{INT32_MAX, INT32_MAX, INT32_MIN, INT32_MIN},
                                    tvok_Rect{300, 300, 100, 100}, tvok_Rect{}}) {
        PopupDesktop at(Lines(3));
        at.popup->SetParentRect(parent);
        EXPECT_NO_THROW(at.popup->Popup());
        at.desktop.Key(host::VK_ESCAPE);
        EXPECT_THAT(at.story, ElementsAre("Click 0  canceled"));
    }
}

// The parent.

TEST(xPopupOpening, TheParentWindowGivesItsRectangleAndNoWindowLeavesIt) {
    PopupDesktop at(Lines(3));
    tvok_Rect owner;
    host::platform().GetWindowRect(at.desktop.WindowOf(at.owner), owner);
    at.popup->SetParentHwnd(at.desktop.WindowOf(at.owner));
    at.popup->SetParentHwnd(0);
    at.Open();
    EXPECT_EQ(at.WindowRect().Left, owner.Left);
    EXPECT_EQ(at.WindowRect().Top, owner.bottom);
}

TEST(xPopupOpening, AnObjectIsPlacedInItsWindowsClientArea) {
    PopupDesktop at(Lines(3));
    at.popup->SetParenpObject(at.desktop.form().ComponentOf(at.owner), at.desktop.form().hWnd());
    tvok_Rect owner;
    host::platform().GetWindowRect(at.desktop.WindowOf(at.owner), owner);
    at.Open();
    EXPECT_EQ(at.WindowRect().Left, owner.Left);
    EXPECT_EQ(at.WindowRect().Top, owner.bottom);
}

TEST(xPopupOpening, WhatAnObjectDoesNotHaveCountsAsZeroOrStays) {
    PopupDesktop at(Lines(3));
    host::Point corner;
    host::platform().ClientToScreen(at.desktop.form().hWnd(), corner);
    at.popup->SetParenpObject({.Top = 150.0F, .width = 1500.0F, .Height = 300.0F}, at.desktop.form().hWnd());
    at.Open();
    EXPECT_EQ(at.WindowRect().Left, corner.x);
    EXPECT_EQ(at.WindowRect().Top, corner.y + 10 + 20);
    at.popup->SetParentRect({1, 2, 3, 400});
    at.popup->SetParenpObject({.Left = 150.0F}, at.desktop.form().hWnd());
    at.Open();
    EXPECT_EQ(at.WindowRect().Left, corner.x + 10);
    EXPECT_EQ(at.WindowRect().Top, 400);
}

// A screen whose pixels are wider than high tells the factors apart.
TEST(xPopupOpening, TheHorizontalFactorServesTheTopAsWell) {
    PopupDesktop at(Lines(3));
    host::Point corner;
    host::platform().ClientToScreen(at.desktop.form().hWnd(), corner);
    at.popup->ItemWidth(1);
    {
        const TwipsOf factors(30, 15);
        at.popup->SetParenpObject({.Left = 300.0F, .Top = 299.0F, .width = 3000.0F, .Height = 299.6F},
                                  at.desktop.form().hWnd());
    }
    at.Open();
    // Operands are rounded, and what is left over is dropped: 299 / 30 = 9, 300 / 15 = 20.
    EXPECT_EQ(at.WindowRect().Left, corner.x + 10);
    EXPECT_EQ(at.WindowRect().Top, corner.y + 9 + 20);
    EXPECT_EQ(WidthOf(at.WindowRect()), 100);
}

// The steps in their order.

TEST(xPopupOpening, TheStepsComeInTheirOrder) {
    PopupDesktop plain;
    NotedServices services;
    auto& popup = plain.desktop.form().Add<xPopup>("popup2", {0, 0, 10, 10});
    EXPECT_THAT(services.TakeLog(), ElementsAre("window hook 1", "window hook 2", "message hook 3",
                                                "window hook 4", "3 HookActive 0"));
    popup.AddItem({.text = "a"});
    popup.SetParentRect(PopupDesktop::cParent);
    std::vector<std::string> trace;
    services.book().onCall = [&](const std::string& line) { trace.push_back(line); };
    host::RecordingPlatform recorder(plain.desktop.desktop().OwnPlatform(), [&](std::string_view line) {
        for (const char* name : {"GetFocus", "SetParent", "SetWindowPos", "ClientToScreen", "InvalidateRect",
                                 "UpdateWindow", "DoEvents", "GetCapture", "SetCapture", "GetWindowRect"})
            if (line.starts_with(name)) trace.emplace_back(name);
    });
    plain.desktop.desktop().InterposePlatform(&recorder);
    popup.Popup();
    plain.desktop.desktop().InterposePlatform(nullptr);
    services.book().onCall = nullptr;
    const std::string focus = std::to_string(plain.desktop.WindowOf(plain.owner));
    const std::string thread = std::to_string(host::services().ThreadID());
    EXPECT_THAT(trace,
                testing::ContainerEq(std::vector<std::string>{"3 HookActive 0",
                                                              "GetFocus",
                                                              "1 HookSet 1 " + focus,
                                                              "2 HookSet 3 " + thread,
                                                              "3 HookAttach",
                                                              "4 HookSet 2 " + thread,
                                                              "3 HookMode 3",
                                                              "3 ScrollHMax 0",
                                                              "3 ScrollValue 0",
                                                              "3 ScrollLarge 1",
                                                              "3 ScrollMax 0",
                                                              "3 ScrollValue 0",
                                                              "GetWindowRect",
                                                              "GetWindowRect", // the fit of height and width
                                                              "GetWindowRect", // the grid
                                                              "SetParent",
                                                              "SetWindowPos",
                                                              "GetWindowRect",
                                                              "ClientToScreen",
                                                              "InvalidateRect",
                                                              "UpdateWindow",
                                                              "DoEvents",
                                                              "GetCapture",
                                                              "SetCapture"}));
    services.TakeLog();
    plain.desktop.Key(host::VK_ESCAPE);
    EXPECT_THAT(services.TakeLog(), ElementsAre("1 HookRelease", "2 HookRelease", "4 HookRelease"));
    popup.Popup();
    EXPECT_THAT(services.TakeLog(), testing::Not(Contains("3 HookAttach"))) << "it is still attached";
    plain.desktop.form().Remove(popup);
    EXPECT_THAT(services.TakeLog(),
                testing::IsSupersetOf({"1 released", "2 released", "3 HookDetach", "4 released"}));
}

TEST(xPopupOpening, TheCaptureOfTheOpeningButtonIsLeftAlone) {
    PopupDesktop at(Lines(3));
    at.desktop.Press(at.owner, 5, 5);
    at.Open();
    EXPECT_EQ(host::platform().GetCapture(), at.desktop.WindowOf(at.owner));
    at.desktop.Release();
    at.desktop.MoveTo(at.owner, 6, 6);
    EXPECT_EQ(host::platform().GetCapture(), at.Floating()) << "taken as soon as nobody has it";
    at.desktop.Key(host::VK_ESCAPE);
    EXPECT_EQ(host::platform().GetCapture(), 0);
}

TEST(xPopupOpening, TheFocusStaysAndItemsShowIt) {
    PopupDesktop at(Lines(3));
    at.popup->ListIndex(2);
    at.Open();
    EXPECT_EQ(host::platform().GetFocus(), at.desktop.WindowOf(at.owner));
    EXPECT_THAT(at.owner.TakeLog(), testing::Not(Contains("LostFocus")));
}

// Hooks that cannot attach.

TEST(xPopupOpening, WithoutHooksItOpensAllTheSame) {
    for (const std::int32_t refused : {1, 2, 3, 4}) {
        PopupDesktop plain;
        NotedServices services;
        auto& popup = plain.desktop.form().Add<xPopup>("popup2", {0, 0, 10, 10});
        services.book().refuse = refused;
        popup.AddItem({.text = "a"});
        popup.SetParentRect(PopupDesktop::cParent);
        int clicks = 0;
        popup.events.Click = [&](std::int32_t, qrosterdata&, bool) { ++clicks; };
        EXPECT_NO_THROW(popup.Popup());
        EXPECT_TRUE(plain.IsOpen()) << refused;
        if (refused == 4) { // nothing closes it by presses outside
            plain.MoveToScreen(900, 900);
            plain.Down();
            plain.Up();
            EXPECT_TRUE(plain.IsOpen());
        }
        plain.desktop.Key(host::VK_ESCAPE);
        plain.desktop.FocusAway();
        EXPECT_FALSE(plain.IsOpen()) << refused;
        EXPECT_EQ(clicks, 1) << refused;
        EXPECT_EQ(host::platform().GetCapture(), 0);
    }
}

TEST(xPopupOpening, WithoutAFocusedWindowItOpensAndTakesKeys) {
    PopupDesktop at(Lines(3));
    host::platform().SetFocus(0);
    at.Open();
    EXPECT_TRUE(at.IsOpen());
    at.desktop.Key(host::VK_DOWN);
    at.desktop.Key(host::VK_RETURN);
    EXPECT_THAT(at.TakeStory(), ElementsAre("Change 1 item 1", "Click 1 item 1"));
}

} // namespace
} // namespace tvok::test
