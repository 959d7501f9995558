#include "tvok/controls/iconlabel/iLabel.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/FakeComponent.h"

namespace tvok::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::int32_t cOneLine = 0x824; // vertically centred, one line, ampersands as they stand
constexpr tvok_Rect cClient{0, 0, 200, 40};

/// A label of 200 x 40 pixels inside its border, with the caption "text".
class FakeLabel {
public:
    FakeLabel() {
        component.control = &label;
        label.Initialize(component);
        label.Caption("text");
        log().Clear();
    }
    ~FakeLabel() { label.Terminate(); }
    FakeLabel(const FakeLabel&) = delete;
    FakeLabel& operator=(const FakeLabel&) = delete;

    FakeComponent component{true, 200, 40};
    iLabel label;

    CallLog& log() { return component.log; }
    void TakeFocus() { log().focus = FakeComponent::cWindow; }
    Calls Drawn() {
        log().Clear();
        label.Refresh();
        return log().Drawing();
    }
    /// How often the label was painted since the last look.
    std::size_t TakePaints() {
        const std::size_t paints = log().Named("DrawTextA").size();
        log().Clear();
        return paints;
    }
};

Call CaptionCall(const tvok_Rect& rect, std::int32_t color = 0, std::int32_t flags = cOneLine,
                 std::int32_t backColor = 0xFFFFFF) {
    return {"DrawTextA", rect, {flags, color, backColor, 1}, "text"};
}

Call BackgroundCall() {
    return FillRectCall(cClient, Sys(5));
}

// Values of a new label.

TEST(iLabelMembers, StartAsDocumented) {
    FakeComponent component(true, 200, 40);
    iLabel label;
    label.Initialize(component);
    EXPECT_EQ(label.GridlineWidth(), 0);
    EXPECT_EQ(label.GridlineColor(), cWindowFrame);
    EXPECT_EQ(label.BackColor(), cWindowBackground);
    EXPECT_EQ(label.BorderStyle(), 1);
    EXPECT_EQ(label.Caption(), "");
    EXPECT_EQ(label.ForeColor(), 0);
    EXPECT_EQ(label.IconHandle(), 0);
    EXPECT_EQ(label.IconID(), 0);
    EXPECT_EQ(label.IconLeft(), 3);
    EXPECT_EQ(label.IconTop(), 3);
    EXPECT_EQ(label.IconWidth(), 16);
    EXPECT_EQ(label.IconHeight(), 16);
    EXPECT_FALSE(label.IconBorder());
    EXPECT_EQ(label.IconBorderColor(), 0);
    EXPECT_EQ(label.IconBackColor(), 0);
    EXPECT_TRUE(label.IconTransParent());
    EXPECT_EQ(label.TextLeft(), 22);
    EXPECT_EQ(label.TextRight(), 200);
    EXPECT_FALSE(label.MultiLine());
    EXPECT_FALSE(label.HideFocus());
    EXPECT_TRUE(label.NOPREFIX());
    EXPECT_EQ(label.hwnd(), FakeComponent::cWindow);
    EXPECT_EQ(component.ForeColor(), cWindowText);
    EXPECT_THAT(component.log.Drawing(), IsEmpty());
}

TEST(iLabelMembers, NeedAForm) {
    iLabel label;
    EXPECT_THROW(label.Refresh(), ObjectError);
    EXPECT_THROW((void)label.BackColor(), ObjectError);
    EXPECT_EQ(label.Caption(), "");
}

TEST(iLabelMembers, ThoseThatRepaintDoSoOnceEach) {
    FakeLabel f;
    const std::vector<std::pair<const char*, std::function<void()>>> writes = {
        {"GridlineWidth", [&] { f.label.GridlineWidth(2); }},
        {"GridlineColor", [&] { f.label.GridlineColor(3); }},
        {"ForeColor", [&] { f.label.ForeColor(4); }},
        {"Caption", [&] { f.label.Caption("new"); }},
        {"IconID", [&] { f.label.IconID(5); }},
        {"IconLeft", [&] { f.label.IconLeft(6); }},
        {"IconTop", [&] { f.label.IconTop(7); }},
        {"TextLeft", [&] { f.label.TextLeft(8); }},
        {"MultiLine", [&] { f.label.MultiLine(true); }},
        {"HideFocus", [&] { f.label.HideFocus(true); }},
        {"BackColor", [&] { f.label.BackColor(9); }},
        {"BorderStyle", [&] { f.label.BorderStyle(0); }},
        {"Font", [&] { f.label.Font(*f.component.font); }},
        {"Refresh", [&] { f.label.Refresh(); }},
        {"Paint", [&] { f.label.Paint(); }},
        {"Resize", [&] { f.label.Resize(); }},
        {"GotFocus", [&] { f.label.GotFocus(); }},
        {"LostFocus", [&] { f.label.LostFocus(); }},
    };
    for (const auto& [name, write] : writes) {
        write();
        EXPECT_EQ(f.TakePaints(), 1u) << name;
    }
    EXPECT_EQ(f.label.GridlineWidth(), 2);
    EXPECT_EQ(f.label.GridlineColor(), 3);
    EXPECT_EQ(f.label.ForeColor(), 4);
    EXPECT_EQ(f.label.Caption(), "new");
    EXPECT_EQ(f.label.IconID(), 5);
    EXPECT_EQ(f.label.IconLeft(), 6);
    EXPECT_EQ(f.label.IconTop(), 7);
    EXPECT_EQ(f.label.TextLeft(), 8);
    EXPECT_TRUE(f.label.MultiLine());
    EXPECT_TRUE(f.label.HideFocus());
    EXPECT_EQ(f.component.BackColor(), 9);
    EXPECT_EQ(f.component.BorderStyle(), 0);
}

TEST(iLabelMembers, AWrittenBorderStyleStaysWhereItsRepaintFails) {
    FakeLabel f;
    f.label.TextRight(INT32_MIN);
    EXPECT_THROW(f.label.Refresh(), OverflowError);
    EXPECT_NO_THROW(f.label.BorderStyle(0));
    EXPECT_EQ(f.component.BorderStyle(), 0);
}

TEST(iLabelMembers, ThoseThatOnlyStorePaintNothing) {
    FakeLabel f;
    f.label.IconHandle(1);
    f.label.IconBorder(true);
    f.label.IconBorderColor(2);
    f.label.IconBackColor(3);
    f.label.IconTransParent(false);
    f.label.TextRight(4);
    f.label.IconWidth(5);
    f.label.IconHeight(6);
    f.label.NOPREFIX(false);
    f.label.FontTransparent(false);
    EXPECT_THAT(f.log().Drawing(), IsEmpty());
    EXPECT_EQ(f.label.IconHandle(), 1);
    EXPECT_TRUE(f.label.IconBorder());
    EXPECT_EQ(f.label.IconBorderColor(), 2);
    EXPECT_EQ(f.label.IconBackColor(), 3);
    EXPECT_FALSE(f.label.IconTransParent());
    EXPECT_EQ(f.label.TextRight(), 4);
    EXPECT_EQ(f.label.IconWidth(), 5);
    EXPECT_EQ(f.label.IconHeight(), 6);
    EXPECT_FALSE(f.label.NOPREFIX());
    EXPECT_FALSE(f.component.FontTransparent());
}

TEST(iLabelMembers, ANegativeGridlineWidthIsIgnoredWithoutARepaint) {
    FakeLabel f;
    f.label.GridlineWidth(3);
    f.log().Clear();
    f.label.GridlineWidth(-1);
    EXPECT_EQ(f.label.GridlineWidth(), 3);
    EXPECT_THAT(f.log().All(), IsEmpty());
}

TEST(iLabelMembers, ABorderStyleThatIsRefusedChangesNothingAndRepaints) {
    FakeLabel f;
    for (const std::int32_t style : {2, -1, 0x10000}) {
        f.label.BorderStyle(style);
        EXPECT_EQ(f.label.BorderStyle(), 1);
        EXPECT_EQ(f.TakePaints(), 1u) << style;
    }
}

TEST(iLabelMembers, AFontIsCopiedToTheComponentsOwn) {
    FakeLabel f;
    FakeFont other(f.log());
    other.value.Name = "Other";
    f.label.Font(other);
    EXPECT_EQ(f.component.font->Name(), "Other");
    EXPECT_EQ(f.label.Font(), f.component.Font());
}

TEST(iLabelMembers, ForeColorOfTheComponentIsItsOwn) {
    FakeLabel f;
    f.label.ForeColor(0x112233);
    EXPECT_EQ(f.component.ForeColor(), cWindowText);
}

// Painting.

TEST(iLabelPainting, ANewLabelIsItsBackgroundAndItsCaption) {
    FakeLabel f;
    EXPECT_EQ(f.Drawn(), (Calls{BackgroundCall(), CaptionCall({23, 1, 199, 39})}));
}

TEST(iLabelPainting, AFrameOfTwoShrinksTheTextByThree) {
    FakeLabel f;
    f.label.GridlineWidth(2);
    EXPECT_EQ(f.Drawn(),
              (Calls{RectangleCall(cClient, 6, 2, Sys(6), Sys(5), 13), CaptionCall({25, 3, 197, 37})}));
    f.TakeFocus();
    EXPECT_EQ(f.Drawn()[1], FillRectCall({24, 3, 198, 37}, Sys(13)));
}

TEST(iLabelPainting, ColorsOfFrameAndBackgroundAreTranslated) {
    FakeLabel f;
    f.label.GridlineWidth(1);
    f.label.GridlineColor(0x102030);
    f.label.BackColor(SystemColor(15));
    EXPECT_EQ(f.Drawn().front(), RectangleCall(cClient, 6, 1, 0x102030, Sys(15), 13));
}

TEST(iLabelPainting, TheFocusLookIsABandWithAFocusRectangle) {
    FakeLabel f;
    f.label.ForeColor(0x0000FF);
    f.TakeFocus();
    EXPECT_EQ(f.Drawn(), (Calls{BackgroundCall(), FillRectCall({22, 1, 200, 39}, Sys(13)),
                                FocusCall({22, 1, 200, 39}, Sys(8), Sys(14)),
                                CaptionCall({23, 1, 199, 39}, Sys(14), cOneLine, Sys(14))}));
    f.label.HideFocus(true);
    f.log().SetBkColor(0, 0xFFFFFF);
    EXPECT_EQ(f.Drawn(), (Calls{BackgroundCall(), CaptionCall({23, 1, 199, 39}, 0x0000FF)}));
    f.label.HideFocus(false);
    f.log().focus = 99;
    EXPECT_EQ(f.Drawn().size(), 2u) << "another window's focus";
}

TEST(iLabelPainting, TheFocusBandGoesFromTextLeftToTextRight) {
    FakeLabel f;
    f.label.TextLeft(50);
    f.label.TextRight(120);
    f.TakeFocus();
    EXPECT_EQ(f.Drawn()[1], FillRectCall({50, 1, 120, 39}, Sys(13)));
}

TEST(iLabelPainting, TheForeColorIsGivenAsItStands) {
    FakeLabel f;
    f.label.ForeColor(cWindowText);
    EXPECT_EQ(f.Drawn().back(), CaptionCall({23, 1, 199, 39}, cWindowText));
    EXPECT_EQ(f.log().Named("SetTextColor").back().values.back(), cWindowText);
}

TEST(iLabelPainting, TheIconBoxEndsAtWidthAndHeightAloneAndTheImageReachesPastIt) {
    FakeLabel f;
    f.label.IconHandle(77);
    f.label.IconID(5);
    f.label.IconBorder(true);
    const Calls hollow = f.Drawn();
    EXPECT_EQ(hollow[1], RectangleCall({2, 2, 16, 16}, 6, 1, 0, -1, 13));
    EXPECT_EQ(hollow[2], ImageCall(77, 4, 3, 3));
    f.label.IconLeft(10);
    f.label.IconTop(8);
    f.label.IconWidth(40);
    f.label.IconHeight(30);
    f.label.IconTransParent(false);
    f.label.IconBorderColor(0x0000FF);
    f.label.IconBackColor(SystemColor(24));
    const Calls filled = f.Drawn();
    EXPECT_EQ(filled[1], RectangleCall({9, 7, 40, 30}, 6, 1, 0x0000FF, Sys(24), 13));
    EXPECT_EQ(filled[2], ImageCall(77, 4, 10, 8)) << "the image is drawn on the fill";
}

TEST(iLabelPainting, AnImageNumberBelowOneIsNoImage) {
    FakeLabel f;
    f.label.IconHandle(77);
    for (const std::int32_t number : {0, -1, INT32_MIN}) {
        f.label.IconID(number);
        EXPECT_EQ(f.Drawn().size(), 2u);
    }
    f.label.IconID(1);
    EXPECT_EQ(f.Drawn()[1], ImageCall(77, 0, 3, 3));
}

TEST(iLabelPainting, SeveralLinesWrapAndAmpersandsUnderlineWhereTheyMay) {
    FakeLabel f;
    f.label.MultiLine(true);
    EXPECT_EQ(f.Drawn().back(), CaptionCall({23, 1, 199, 39}, 0, 0x810));
    f.label.NOPREFIX(false);
    EXPECT_EQ(f.Drawn().back(), CaptionCall({23, 1, 199, 39}, 0, 0x10));
    f.label.MultiLine(false);
    EXPECT_EQ(f.Drawn().back(), CaptionCall({23, 1, 199, 39}, 0, 0x24));
}

TEST(iLabelPainting, TextRightDoesNotFollowTheSize) {
    FakeLabel f;
    f.component.SetPixelSize(400, 60);
    EXPECT_EQ(f.label.TextRight(), 200);
    EXPECT_EQ(f.TakePaints(), 1u);
    EXPECT_EQ(f.Drawn(), (Calls{FillRectCall({0, 0, 400, 60}, Sys(5)), CaptionCall({23, 1, 199, 59})}));
    f.label.TextRight(400);
    EXPECT_EQ(f.Drawn().back(), CaptionCall({23, 1, 399, 59}));
}

TEST(iLabelPainting, LeavesNoDrawingObjectBehind) {
    FakeLabel f;
    f.label.GridlineWidth(2);
    f.label.IconBorder(true);
    f.TakeFocus();
    f.label.Refresh();
    EXPECT_EQ(f.log().LiveObjects(), 0u);
    EXPECT_EQ(f.log().Slips(), 0);
}

TEST(iLabelPainting, ARectangleThatHasNoPlaceIsAnError) {
    FakeLabel f;
    EXPECT_THROW(f.label.TextLeft(INT32_MAX), OverflowError);
    EXPECT_EQ(f.label.TextLeft(), INT32_MAX) << "stored before the repaint";
    f.label.TextLeft(22);
    EXPECT_THROW(f.label.GridlineWidth(INT32_MAX), OverflowError);
    f.label.GridlineWidth(0);
    f.label.IconBorder(true);
    EXPECT_THROW(f.label.IconLeft(INT32_MIN), OverflowError);
}

// Events.

TEST(iLabelEvents, ForwardKeysAndButtonsByReference) {
    FakeLabel f;
    std::vector<std::string> story;
    const auto key = [&](const char* name) {
        return [&story, name](std::int16_t& code, std::int16_t& shift) {
            story.push_back(std::string(name) + " " + std::to_string(code) + " " + std::to_string(shift));
            code = 7;
            shift = 8;
        };
    };
    const auto button = [&](const char* name) {
        return [&story, name](std::int16_t& which, std::int16_t& shift, float& x, float& y) {
            story.push_back(std::string(name) + " " + std::to_string(which) + " " + std::to_string(shift));
            std::swap(x, y);
        };
    };
    f.label.events.Click = [&] { story.emplace_back("Click"); };
    f.label.events.KeyDown = key("KeyDown");
    f.label.events.KeyUp = key("KeyUp");
    f.label.events.MouseDown = button("MouseDown");
    f.label.events.MouseUp = button("MouseUp");
    std::int16_t a = 65, b = 1;
    f.label.KeyDown(a, b);
    EXPECT_EQ(a, 7);
    EXPECT_EQ(b, 8);
    f.label.KeyUp(a, b);
    a = 2, b = 3;
    float x = 45, y = 60;
    f.label.MouseDown(a, b, x, y);
    EXPECT_EQ(x, 60);
    EXPECT_EQ(y, 45);
    f.label.MouseUp(a, b, x, y);
    EXPECT_EQ(x, 45);
    host::Control& control = f.label;
    control.Click();
    control.DblClick();
    EXPECT_THAT(story, ElementsAre("KeyDown 65 1", "KeyUp 7 8", "MouseDown 2 3", "MouseUp 2 3"));
    EXPECT_THAT(f.log().Drawing(), IsEmpty());
}

TEST(iLabelEvents, AnEndedLabelPaintsNoMoreAndItsMembersNeedAForm) {
    FakeLabel f;
    f.label.Terminate();
    f.label.LostFocus();
    f.label.GotFocus();
    f.label.Paint();
    f.label.Resize();
    EXPECT_THAT(f.log().All(), IsEmpty());
    EXPECT_THROW(f.label.Caption("late"), ObjectError);
}

TEST(iLabelEvents, NothingIsPersisted) {
    FakeLabel f;
    FakeBag bag;
    host::Control& control = f.label;
    control.WriteProperties(bag);
    control.ReadProperties(bag);
    control.InitProperties();
    EXPECT_THAT(bag.written, IsEmpty());
    EXPECT_THAT(bag.read, IsEmpty());
    EXPECT_EQ(f.label.Caption(), "text");
}

} // namespace
} // namespace tvok::test
