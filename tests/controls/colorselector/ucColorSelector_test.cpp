// Members, painting, size and life cycle of `ucColorSelector` as calls, one by one.
#include "tests/support/FakeSelector.h"

#include "tvok/engine/dgi.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int32_t cOneLine = 36; // vertically centred, one line, and "&" underlines
constexpr OLE_COLOR cFace = SystemColor(0x0F);

Call SwatchCall(const tvok_Rect& rect, std::int32_t edge, std::int32_t fill) {
    return RectangleCall(rect, 6, 1, edge, fill, 13);
}
Call DescriptionCall(const tvok_Rect& rect, const std::string& text, std::int32_t color,
                     std::int32_t backColor = 0xFFFFFF) {
    return {"DrawTextA", rect, {cOneLine, color, backColor, 1}, text};
}

// Values of a new selector.

TEST(ucColorSelector, StartsAsDocumented) {
    FakeSelector fake;
    EXPECT_EQ(fake.selector.SelectColor(), 0);
    EXPECT_EQ(fake.selector.borderColor(), 0);
    EXPECT_EQ(fake.selector.ForeColor(), 0);
    EXPECT_EQ(fake.selector.BackColor(), cWindowBackground);
    EXPECT_EQ(fake.selector.BorderStyle(), 1);
    EXPECT_EQ(fake.component.BackColor(), cWindowBackground);
    EXPECT_EQ(fake.component.BorderStyle(), 1);
    fake.selector.Paint();
    EXPECT_THAT(fake.TakePaints(), ElementsAre("")) << "nothing is described yet";
}

TEST(ucColorSelector, ColoursTheTextOfItsComponentBeforeTheFirstPaint) {
    SelectorComponent component(true, 200, 20);
    SelectorServices services(component.log);
    host::Services* before = host::SetServices(&services);
    {
        ucColorSelector selector;
        selector.Initialize(component);
        EXPECT_EQ(component.ForeColor(), cWindowText);
        selector.Resize();
        EXPECT_EQ(component.ForeColor(), 0) << "the first paint without the focus writes its own";
        selector.Terminate();
    }
    host::SetServices(before);
}

TEST(ucColorSelector, PlacesAStripOfTwoArrowsAndDotsAndAHiddenPopup) {
    for (const bool userMode : {true, false}) {
        FakeSelector fake(userMode);
        EXPECT_EQ(fake.component.strip().ButtonSettingsStr(), "b|a|2|b|b|2|...|c|0");
        EXPECT_FALSE(fake.component.children.at("xPopup1")->Visible());
        EXPECT_EQ(fake.component.children.size(), 2U);
    }
}

TEST(ucColorSelector, NeedsAForm) {
    ucColorSelector selector;
    EXPECT_THROW((void)selector.BackColor(), ObjectError);
    EXPECT_THROW(selector.BackColor(1), ObjectError);
    EXPECT_THROW((void)selector.BorderStyle(), ObjectError);
    EXPECT_THROW(selector.BorderStyle(1), ObjectError);
    EXPECT_THROW((void)selector.Font(), ObjectError);
    EXPECT_THROW(selector.FontTransparent(true), ObjectError);
    EXPECT_EQ(selector.SelectColor(), 0);
    for (const auto told : {&ucColorSelector::Paint, &ucColorSelector::Resize, &ucColorSelector::GotFocus,
                            &ucColorSelector::EnterFocus, &ucColorSelector::Terminate})
        EXPECT_NO_THROW((selector.*told)());
}

TEST(ucColorSelector, PersistsNothing) {
    FakeSelector fake;
    fake.selector.SelectColor(255);
    fake.selector.WriteProperties(fake.bag);
    EXPECT_THAT(fake.bag.written, IsEmpty());
    EXPECT_THAT(fake.bag.read, IsEmpty());
}

// Members.

TEST(ucColorSelector, WritesThatRepaintDoSoOnceEach) {
    for (const bool userMode : {true, false}) {
        FakeSelector fake(userMode);
        const std::vector<std::pair<const char*, std::function<void()>>> writes = {
            {"SelectColor", [&] { fake.selector.SelectColor(2); }},
            {"BackColor", [&] { fake.selector.BackColor(3); }},
            {"BorderStyle", [&] { fake.selector.BorderStyle(0); }},
            {"Font", [&] { fake.selector.Font(*fake.component.font); }},
            {"FontTransparent", [&] { fake.selector.FontTransparent(false); }},
            {"Resize", [&] { fake.selector.Resize(); }},
            {"GotFocus", [&] { fake.selector.GotFocus(); }},
            {"LostFocus", [&] { fake.selector.LostFocus(); }},
            {"EnterFocus", [&] { fake.selector.EnterFocus(); }},
            {"ExitFocus", [&] { fake.selector.ExitFocus(); }},
        };
        for (const auto& [name, write] : writes) {
            write();
            EXPECT_EQ(fake.TakePaints().size(), 1U) << name << (userMode ? "" : " at design time");
        }
        EXPECT_EQ(fake.selector.BackColor(), 3);
        EXPECT_EQ(fake.component.BackColor(), 3);
        EXPECT_EQ(fake.selector.BorderStyle(), 0);
        EXPECT_FALSE(fake.selector.FontTransparent());
    }
}

TEST(ucColorSelector, BorderAndForeColorAreOnlyStored) {
    FakeSelector fake;
    fake.selector.borderColor(0x123456);
    fake.selector.ForeColor(0x654321);
    EXPECT_THAT(fake.log().All(), IsEmpty());
    EXPECT_EQ(fake.selector.borderColor(), 0x123456);
    EXPECT_EQ(fake.selector.ForeColor(), 0x654321);
    EXPECT_EQ(fake.component.ForeColor(), 0) << "it goes to the component with the next paint";
    fake.selector.Paint();
    EXPECT_EQ(fake.component.ForeColor(), 0x654321);
}

TEST(ucColorSelector, ARefusedBorderStyleChangesNothingAndRepaints) {
    FakeSelector fake;
    for (const std::int32_t style : {2, -1, 70'000, 65'537}) {
        EXPECT_NO_THROW(fake.selector.BorderStyle(style)) << style;
        EXPECT_EQ(fake.selector.BorderStyle(), 1) << style;
        EXPECT_EQ(fake.TakePaints().size(), 1U) << style;
    }
}

TEST(ucColorSelector, TheFontIsTheComponentsOwnObject) {
    FakeSelector fake;
    EXPECT_EQ(fake.selector.Font(), fake.component.Font());
    FakeFont other(fake.log());
    other.value.Name = "Other Sans";
    fake.selector.Font(other);
    EXPECT_EQ(fake.selector.Font()->Name(), "Other Sans");
}

// Describing.

TEST(ucColorSelector, DescribesAPlainColourByItsEightDigits) {
    FakeSelector fake;
    for (const auto& [color, text] : {std::pair<OLE_COLOR, const char*>{255, "(&H000000FF)"},
                                      {0, "(&H00000000)"},
                                      {0xFFFFFF, "(&H00FFFFFF)"},
                                      {0x7FABCDEF, "(&H7FABCDEF)"}}) {
        fake.selector.SelectColor(color);
        EXPECT_EQ(fake.selector.SelectColor(), color);
        EXPECT_THAT(fake.TakePaints(), ElementsAre(text));
    }
}

TEST(ucColorSelector, DescribesASystemColourByItsName) {
    FakeSelector fake;
    fake.selector.SelectColor(cFace);
    EXPECT_THAT(fake.TakePaints(), ElementsAre("(Button Face)"));
    fake.selector.SelectColor(SystemColor(200));
    EXPECT_THAT(fake.TakePaints(), ElementsAre("()")) << "which has no name";
}

// Painting.

TEST(ucColorSelector, PaintsBackgroundSwatchAndDescriptionInThisOrder) {
    FakeSelector fake;
    fake.selector.borderColor(0x111111);
    fake.selector.ForeColor(0x222222);
    fake.selector.SelectColor(255);
    EXPECT_EQ(fake.TakeDrawing(),
              (Calls{FillRectCall({0, 0, 200, 20}, Sys(5)), SwatchCall({3, 3, 17, 17}, 0x111111, 255),
                     DescriptionCall({21, 0, 137, 20}, "(&H000000FF)", 0x222222)}));
}

TEST(ucColorSelector, TheSwatchTranslatesASystemColourAndTheTextDoesNot) {
    FakeSelector fake;
    fake.selector.ForeColor(cWindowText);
    fake.selector.SelectColor(cFace);
    const Calls drawn = fake.TakeDrawing();
    EXPECT_EQ(drawn.at(1), SwatchCall({3, 3, 17, 17}, 0, Sys(15)));
    EXPECT_EQ(drawn.at(2).values.at(1), cWindowText) << "as it stands";
}

TEST(ucColorSelector, ShowsTheFocusOfItsWindowAndOfItsStrip) {
    for (const bool onStrip : {false, true}) {
        FakeSelector fake;
        fake.selector.SelectColor(255);
        fake.log().focus = onStrip ? fake.StripWindow() : FakeComponent::cWindow;
        fake.log().Clear();
        fake.selector.Paint();
        EXPECT_EQ(
            fake.TakeDrawing(),
            (Calls{FillRectCall({0, 0, 200, 20}, Sys(5)), SwatchCall({3, 3, 17, 17}, 0, 255),
                   FillRectCall({20, 0, 138, 20}, Sys(13)), FocusCall({20, 0, 138, 20}, Sys(8), Sys(14)),
                   DescriptionCall({21, 0, 137, 20}, "(&H000000FF)", Sys(14), Sys(14))}));
    }
}

TEST(ucColorSelector, OtherWindowsWithTheFocusDoNotShow) {
    FakeSelector fake;
    for (const host::Handle window : {0, 999, fake.component.popup().hwnd()}) {
        fake.log().focus = window;
        EXPECT_FALSE(fake.ShowsFocus()) << window;
    }
}

TEST(ucColorSelector, APaintWithTheFocusLeavesTheComponentsTextColourAlone) {
    FakeSelector fake;
    fake.selector.ForeColor(0x123456);
    fake.log().focus = FakeComponent::cWindow;
    fake.selector.Paint();
    EXPECT_EQ(fake.component.ForeColor(), 0);
}

TEST(ucColorSelector, LeavesNoPenAndNoBrushBehind) {
    FakeSelector fake;
    fake.log().focus = FakeComponent::cWindow;
    fake.selector.SelectColor(255);
    EXPECT_EQ(fake.log().LiveObjects(), 0U);
    EXPECT_EQ(fake.log().Slips(), 0);
    EXPECT_EQ(fake.log().pen, CallLog::cFirstPen);
    EXPECT_EQ(fake.log().brush, CallLog::cFirstBrush);
}

TEST(ucColorSelector, APaintAtDesignTimeOnlyClears) {
    FakeSelector fake(false);
    fake.selector.Paint();
    EXPECT_EQ(fake.log().All(), Calls{PlainCall("base.Cls")});
    fake.selector.SelectColor(255);
    EXPECT_THAT(fake.TakePaints(), ElementsAre("(&H000000FF)")) << "a write paints";
}

TEST(ucColorSelector, AnErrorOfThePaintReachesTheHostAndTheColourStays) {
    FakeSelector fake;
    fake.log().onCall = [](const std::string& name) {
        if (name == "DrawTextA") throw Error("no texts today");
    };
    EXPECT_THROW(fake.selector.SelectColor(255), Error);
    fake.log().onCall = nullptr;
    EXPECT_EQ(fake.selector.SelectColor(), 255);
}

// Size.

TEST(ucColorSelector, ResizeSetsTheStripsHeightMovesItAndPaints) {
    FakeSelector fake;
    fake.selector.Resize();
    const Calls calls =
        fake.log().NamedOneOf({"GetClientRect", "xbutton1.Height", "xbutton1.Move", "FillRect"});
    ASSERT_EQ(calls.size(), 5U);
    EXPECT_EQ(calls[0].name, "GetClientRect");
    EXPECT_EQ(calls[1], PlainCall("xbutton1.Height", {300}));
    EXPECT_EQ(calls[2], PlainCall("xbutton1.Move", {2100, 0}));
    EXPECT_EQ(calls[3].name, "GetClientRect") << "of the paint";
    EXPECT_EQ(calls[4].name, "FillRect");
}

TEST(ucColorSelector, ANewHeightGivesSquaresAndAWiderStrip) {
    FakeSelector fake;
    fake.selector.SelectColor(255);
    fake.log().Clear();
    fake.component.Height(450);
    EXPECT_EQ(fake.component.children.at("xbutton1")->Width(), 90 * 15);
    EXPECT_EQ(fake.component.children.at("xbutton1")->Left(), 110 * 15);
    fake.log().Clear();
    fake.selector.Paint();
    EXPECT_EQ(fake.TakeDrawing(),
              (Calls{FillRectCall({0, 0, 200, 30}, Sys(5)), SwatchCall({3, 3, 27, 27}, 0, 255),
                     DescriptionCall({31, 0, 107, 30}, "(&H000000FF)", 0)}));
}

TEST(ucColorSelector, RoundsTheStripsPlaceBeforeItDivides) {
    FakeSelector fake;
    fake.services.twipsX = 14.6F;
    fake.selector.Resize();
    // 200 x 14.6 - 900 = 2020 twips, in pixels of 15: 134, the fraction cut.
    EXPECT_EQ(fake.log().Named("DrawTextA").back().rect, (tvok_Rect{21, 0, 131, 20}));
}

TEST(ucColorSelector, ANarrowOneHasAnAreaOfNoWidth) {
    FakeSelector fake(true, 30, 20);
    fake.log().focus = FakeComponent::cWindow;
    EXPECT_NO_THROW(fake.selector.SelectColor(255));
    EXPECT_EQ(fake.log().Named("DrawFocusRect").back().rect, (tvok_Rect{20, 0, -32, 20}));
    FakeSelector none(true, 0, 0);
    EXPECT_NO_THROW(none.selector.SelectColor(255));
    EXPECT_EQ(none.log().Named("Rectangle").back().rect, (tvok_Rect{3, 3, -3, -3}));
}

// End.

TEST(ucColorSelector, TheEndRemovesTheChildrenOnce) {
    FakeSelector fake;
    fake.selector.Terminate();
    EXPECT_EQ(fake.log().Named("RemoveChild"),
              (Calls{PlainCall("RemoveChild", {}, "xbutton1"), PlainCall("RemoveChild", {}, "xPopup1")}));
    fake.log().Clear();
    fake.selector.Terminate();
    EXPECT_THAT(fake.log().All(), IsEmpty());
}

TEST(ucColorSelector, WhatIsToldAfterTheEndDoesNothing) {
    FakeSelector fake;
    fake.selector.SelectColor(255);
    fake.selector.Terminate();
    fake.log().Clear();
    for (const auto told :
         {&ucColorSelector::Paint, &ucColorSelector::Resize, &ucColorSelector::GotFocus,
          &ucColorSelector::LostFocus, &ucColorSelector::EnterFocus, &ucColorSelector::ExitFocus})
        EXPECT_NO_THROW((fake.selector.*told)());
    EXPECT_THAT(fake.log().All(), IsEmpty());
    EXPECT_EQ(fake.selector.SelectColor(), 255);
    EXPECT_THROW(fake.selector.SelectColor(1), ObjectError);
}

} // namespace
} // namespace tvok::test
