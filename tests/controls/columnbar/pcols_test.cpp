#include "tests/support/FakeBar.h"

namespace tvok::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

Call ButtonCall(const tvok_Rect& rect) {
    return {"DrawFrameControl", rect, {4, 16}, {}};
}

Call CaptionCall(std::int32_t x, const tvok_Rect& rect, const std::string& text, std::int32_t align = 0,
                 std::int32_t color = Sys(8)) {
    // The font is 16 pixels high, as the rectangle.
    return TextCall(x, 2, rect, text, {color, 0xFFFFFF, align, 1}, 4);
}

// Columns.

TEST(pcolsColumns, AddTakesDefaults) {
    FakeBar f;
    f.bar.Add(0, "one");
    EXPECT_EQ(f.bar.GetData(1), (qrosterheader{"one", 80, "", cWindowText, 0, 0, 0}));
    f.bar.Add(1, "two", 90, "k", 2, 0x112233, 7);
    EXPECT_EQ(f.bar.GetData(1), (qrosterheader{"two", 90, "k", 0x112233, 2, 7, 0}));
    EXPECT_EQ(f.bar.Count(), 1);
}

TEST(pcolsColumns, ThreeOfTwoHundredInThreeHundred) {
    FakeBar f;
    for (int i = 0; i < 3; ++i) f.bar.Add(0, "c", 200);
    EXPECT_EQ(f.bar.HeaderWidths(), "83-83-133");
    EXPECT_EQ(f.TakePaints(), 0u);
}

TEST(pcolsColumns, FortyOfTenInThreeHundredAreThirtyAndEachDroppedOneRefreshes) {
    FakeBar f;
    for (int i = 0; i < 30; ++i) f.bar.Add(0, "c", 10);
    EXPECT_EQ(f.TakePaints(), 0u);
    for (int i = 0; i < 10; ++i) f.bar.Add(0, "c", 10);
    EXPECT_EQ(f.TakePaints(), 10u);
    EXPECT_EQ(f.bar.Count(), 30);
}

TEST(pcolsColumns, AreDroppedBeforeTheControlHasASize) {
    FakeBar f(true, 0, 0);
    f.bar.Add(0, "c", 80);
    EXPECT_EQ(f.bar.Count(), 0);
    f.component.SetPixelSize(300, 20);
    f.bar.Add(0, "c", 80);
    EXPECT_EQ(f.bar.HeaderWidths(), "80");
}

TEST(pcolsColumns, MinusOnePutsAColumnFirstAndSevenOfThreeStoresNothing) {
    FakeBar f;
    f.Columns({20, 30, 40});
    f.bar.Add(-1, "first", 50);
    f.bar.Add(7, "none", 60);
    EXPECT_EQ(f.bar.HeaderWidths(), "50-20-30-40");
    EXPECT_EQ(f.bar.GetData(1).text, "first");
}

TEST(pcolsColumns, ANewWidthOfTheBarFitsWithTheNextSetDataOnly) {
    FakeBar f;
    f.Columns({100, 100, 100});
    f.component.SetPixelSize(240, 20);
    EXPECT_EQ(f.bar.HeaderWidths(), "100-100-100");
    f.bar.Remove(0);
    f.bar.SetData(9, {});
    EXPECT_EQ(f.bar.HeaderWidths(), "80-80-80");
}

TEST(pcolsColumns, ClearRemoveAndCountDoNotRepaint) {
    FakeBar f;
    f.Columns({20, 30, 40});
    f.bar.Remove(2);
    f.bar.Count(5);
    f.bar.Clear();
    EXPECT_THAT(f.log().All(), IsEmpty());
    EXPECT_THROW(f.bar.Count(-1), SubscriptError);
    EXPECT_EQ(f.bar.Count(), -1);
    f.bar.Refresh();
    EXPECT_THAT(f.log().Drawing(), IsEmpty()) << "a negative count paints nothing";
}

TEST(pcolsColumns, WrittenWidthsRefreshAndAreNotFitted) {
    FakeBar f;
    f.Columns({100, 100});
    f.bar.HeaderWidths("200-300-50");
    EXPECT_EQ(f.bar.HeaderWidths(), "200-300");
    EXPECT_EQ(f.TakePaints(), 1u);
    f.bar.HeaderWidths("9-5");
    EXPECT_EQ(f.TakePaints(), 1u);
    f.bar.HeaderWidths("  ");
    EXPECT_EQ(f.TakePaints(), 0u);
    f.bar.HeaderWidths("2147483647-2147483647"); // their sum has no place, which is ignored
    EXPECT_EQ(f.bar.HeaderWidths(), "2147483647-2147483647");
    EXPECT_THROW(f.bar.Refresh(), OverflowError);
}

// Painting.

TEST(pcolsPainting, IsAButtonAndACaptionForEachColumnAndAnEmptyButton) {
    FakeBar f;
    f.bar.Add(0, "left", 100);
    f.bar.Add(0, "right", 60, "", 1, 0x0000FF);
    f.bar.Add(0, "middle", 50, "", 2, SystemColor(17));
    f.log().Clear();
    f.bar.Refresh();
    EXPECT_EQ(f.log().Drawing(),
              (Calls{ButtonCall({0, 0, 100, 20}), CaptionCall(5, {2, 2, 98, 18}, "left"),
                     ButtonCall({100, 0, 160, 20}), CaptionCall(155, {102, 2, 158, 18}, "right", 2, 0xFF),
                     ButtonCall({160, 0, 210, 20}), CaptionCall(185, {162, 2, 208, 18}, "middle", 6, Sys(17)),
                     ButtonCall({210, 0, 300, 20})}));
}

TEST(pcolsPainting, AnyOtherAlignmentIsCentred) {
    FakeBar f;
    f.bar.Add(0, "c", 50, "", -1);
    f.log().Clear();
    f.bar.Refresh();
    EXPECT_EQ(f.log().Named("ExtTextOutA"), (Calls{CaptionCall(25, {2, 2, 48, 18}, "c", 6)}));
}

TEST(pcolsPainting, AFullBarHasNoEmptyButton) {
    FakeBar f;
    f.Columns({150, 150});
    f.bar.Refresh();
    EXPECT_EQ(f.log().Named("DrawFrameControl").size(), 2u);
    f.bar.HeaderWidths("200-200");
    f.log().Clear();
    f.bar.Refresh();
    EXPECT_EQ(f.log().Named("DrawFrameControl"),
              (Calls{ButtonCall({0, 0, 200, 20}), ButtonCall({200, 0, 400, 20})}));
}

TEST(pcolsPainting, AClearedBarIsOneEmptyButton) {
    FakeBar f;
    f.Columns({100, 50});
    f.bar.Clear();
    f.bar.Refresh();
    EXPECT_EQ(f.log().Drawing(), (Calls{ButtonCall({0, 0, 300, 20})}));
}

TEST(pcolsPainting, ARemovedColumnLeavesAGapThatTheEmptyButtonFills) {
    FakeBar f;
    f.Columns({100, 100, 100});
    f.bar.Remove(2);
    f.bar.Refresh();
    EXPECT_EQ(f.log().Named("DrawFrameControl").back(), ButtonCall({200, 0, 300, 20}));
}

TEST(pcolsPainting, SetsTheFontStylesAndATransparentBackgroundFirst) {
    FakeBar f;
    f.Columns({100});
    f.bar.lFlag(vflag::Bold | vflag::Underline | vflag::Italic | vflag::Strikethrough);
    EXPECT_THAT(f.log().All(), IsEmpty()) << "a plain store";
    f.bar.Refresh();
    std::vector<std::string> names;
    for (const Call& call : f.log().All())
        if (call.name.starts_with("Font.") || call.name == "SetBkMode" || call.name == "DrawFrameControl")
            names.push_back(call.name + " " + std::to_string(call.values.back()));
    EXPECT_THAT(names,
                ElementsAre("SetBkMode 2", "Font.Bold 1", "Font.Italic 1", "Font.Strikethrough 1",
                            "Font.Underline 1", "SetBkMode 1", "DrawFrameControl 16", "DrawFrameControl 16"));
    f.log().Clear();
    f.bar.lFlag(vflag::Italic);
    f.bar.Refresh();
    EXPECT_EQ(f.bar.lFlag(), vflag::Italic);
    EXPECT_FALSE(f.component.font->Bold());
    EXPECT_TRUE(f.component.font->Italic());
    EXPECT_FALSE(f.component.font->Underline());
    EXPECT_FALSE(f.component.font->Strikethrough());
}

TEST(pcolsPainting, TakesTheFontsHeightWithRefreshOnly) {
    FakeBar f;
    f.Columns({100});
    const auto y = [&] { return f.log().Named("ExtTextOutA").back().values[1]; };
    f.bar.Refresh();
    EXPECT_EQ(y(), 2);
    f.component.font->value.Size = 4.5; // 6 pixels
    f.Send(host::WM_PAINT);
    EXPECT_EQ(y(), 2);
    f.bar.Refresh();
    EXPECT_EQ(y(), 7);
}

TEST(pcolsPainting, APaintMessageDrawsTheWholeBarInsideThePaint) {
    FakeBar f;
    f.Columns({100});
    f.component.log.invalid = {290, 0, 300, 5};
    EXPECT_FALSE(f.Send(host::WM_PAINT));
    const Calls& all = f.log().All();
    EXPECT_EQ(all.front().name, "BeginPaint");
    EXPECT_EQ(all.back().name, "EndPaint");
    EXPECT_EQ(f.log().Drawing().size(), 3u);
}

TEST(pcolsPainting, BackColorGoesToTheComponentAndRepaintsInRunModeOnly) {
    FakeBar f;
    EXPECT_EQ(f.bar.BackColor(), cWindowBackground);
    f.bar.BackColor(0x112233);
    EXPECT_EQ(f.bar.BackColor(), 0x112233);
    EXPECT_EQ(f.component.BackColor(), 0x112233);
    EXPECT_EQ(f.TakePaints(), 1u);
}

TEST(pcolsPainting, AtDesignTimeAFrameWithTheNameIsPainted) {
    FakeBar f(false);
    f.bar.BackColor(0x112233);
    EXPECT_EQ(f.TakePaints(), 0u);
    f.bar.Paint();
    EXPECT_EQ(f.log().Named("Rectangle"), (Calls{RectangleCall({0, 0, 300, 20}, 6, 1, Sys(6), Sys(5), 13)}));
    EXPECT_EQ(f.log().Named("DrawTextA").at(0).text, "roster1");
    f.log().Clear();
    f.bar.Refresh();
    EXPECT_EQ(f.TakePaints(), 1u) << "Refresh paints at design time, too";
}

TEST(pcolsPainting, TheComponentsPaintDoesNothingInRunMode) {
    FakeBar f;
    f.bar.Paint();
    EXPECT_THAT(f.log().All(), IsEmpty());
}

// Presses.

TEST(pcolsPress, TellsTheColumnOrTheEmptyPart) {
    FakeBar f;
    f.Columns({50, 60});
    f.Press(10);
    f.Press(80);
    f.Press(200);
    f.Send(host::WM_RBUTTONDOWN, 80, 10, 2);
    EXPECT_THAT(f.TakeEvents(),
                ElementsAre("MouseDown 1 1", "MouseDown 2 1", "MouseDown 0 1", "MouseDown 2 1"));
}

TEST(pcolsPress, NextToADividerRaisesNothing) {
    FakeBar f;
    f.Columns({50, 60});
    for (const std::int32_t x : {47, 53, 107, 113}) f.Press(x);
    EXPECT_THAT(f.TakeEvents(), IsEmpty());
    f.Press(46);
    f.Press(54);
    f.Press(106);
    f.Press(114);
    EXPECT_THAT(f.TakeEvents(),
                ElementsAre("MouseDown 1 1", "MouseDown 2 1", "MouseDown 2 1", "MouseDown 0 1"));
}

TEST(pcolsPress, NextToTheDividerOfALoneColumnIsOnTheEmptyPart) {
    FakeBar f;
    f.Columns({50});
    for (std::int32_t x = 44; x <= 56; ++x) f.Press(x);
    EXPECT_THAT(f.TakeEvents(),
                ElementsAre("MouseDown 1 1", "MouseDown 1 1", "MouseDown 1 1", "MouseDown 0 1",
                            "MouseDown 0 1", "MouseDown 0 1", "MouseDown 0 1", "MouseDown 0 1"));
}

TEST(pcolsPress, OutsideTheBarRaisesNothing) {
    FakeBar f;
    f.Columns({50});
    f.Press(-1);
    f.Press(10, -1);
    f.Press(301);
    f.Press(10, 21);
    EXPECT_THAT(f.TakeEvents(), IsEmpty());
    f.Press(10, 20);
    f.Press(300, 0);
    EXPECT_THAT(f.TakeEvents(), ElementsAre("MouseDown 1 1", "MouseDown 0 1"));
}

TEST(pcolsPress, NothingEverRaisesClick) {
    FakeBar f;
    f.Columns({50});
    f.Press(10);
    f.Release();
    f.Send(host::WM_LBUTTONDBLCLK, 10, 10);
    f.bar.Clear();
    f.bar.Refresh();
    EXPECT_THAT(f.TakeEvents(), ElementsAre("MouseDown 1 1"));
}

TEST(pcolsPress, OtherMessagesGoOnUntouched) {
    FakeBar f;
    f.Columns({50});
    for (const std::int32_t message : {host::WM_LBUTTONDBLCLK, host::WM_RBUTTONDBLCLK, host::WM_RBUTTONUP,
                                       host::WM_MBUTTONDOWN, host::WM_KEYDOWN, host::WM_SETFOCUS})
        EXPECT_TRUE(f.Send(message, 50, 10)) << message;
    EXPECT_THAT(f.log().All(), IsEmpty());
    f.Move(90);
    EXPECT_EQ(f.bar.HeaderWidths(), "50") << "a second press in the time of a double click sizes nothing";
    for (const std::int32_t message :
         {host::WM_MOUSEMOVE, host::WM_LBUTTONDOWN, host::WM_RBUTTONDOWN, host::WM_LBUTTONUP})
        EXPECT_TRUE(f.Send(message, 50, 10)) << message;
}

// Dragging.

TEST(pcolsDrag, EachStepPaintsTheBarOnce) {
    FakeBar f;
    f.Columns({50, 60, 70});
    f.Press(49);
    EXPECT_EQ(f.TakePaints(), 0u);
    f.Move(69);
    EXPECT_EQ(f.TakePaints(), 1u);
    f.Move(69);
    EXPECT_EQ(f.TakePaints(), 0u);
    f.Move(59, 500);
    EXPECT_EQ(f.TakePaints(), 1u);
    EXPECT_EQ(f.bar.HeaderWidths(), "60-50-70");
    EXPECT_EQ(f.component.pointer, 0) << "the pointer is left alone during a drag";
    f.Release();
    f.Move(100);
    EXPECT_EQ(f.bar.HeaderWidths(), "60-50-70");
}

TEST(pcolsDrag, StopsWhereTheNeighbourIsTenWide) {
    FakeBar f;
    f.Columns({50, 60, 70});
    f.Press(50);
    f.Move(250);
    EXPECT_EQ(f.bar.HeaderWidths(), "100-10-70");
    EXPECT_THAT(f.TakeEvents(), IsEmpty());
}

TEST(pcolsDrag, TheLastDividerGoesUpToTheClientEdge) {
    FakeBar f;
    f.Columns({50, 60});
    f.Press(112);
    f.Move(1000);
    EXPECT_EQ(f.bar.HeaderWidths(), "50-250");
    f.Move(-30000);
    EXPECT_EQ(f.bar.HeaderWidths(), "50-10");
}

TEST(pcolsDrag, OfTheRightButtonEndsWithTheLeftOneOnly) {
    FakeBar f;
    f.Columns({50, 60});
    f.Send(host::WM_RBUTTONDOWN, 50, 10, 2);
    f.Send(host::WM_RBUTTONUP, 50, 10);
    f.Move(70);
    EXPECT_EQ(f.bar.HeaderWidths(), "70-40");
    f.Release();
    f.Move(50);
    EXPECT_EQ(f.bar.HeaderWidths(), "70-40");
    EXPECT_THAT(f.TakeEvents(), IsEmpty());
}

TEST(pcolsDrag, APressElsewhereEndsTheDragOfALostRelease) {
    FakeBar f;
    f.Columns({50, 60});
    f.Press(50);
    f.Press(20);
    f.Move(70);
    EXPECT_EQ(f.bar.HeaderWidths(), "50-60");
    EXPECT_THAT(f.TakeEvents(), ElementsAre("MouseDown 1 1"));
}

TEST(pcolsDrag, ThePointerShowsWhereItCanBegin) {
    FakeBar f;
    f.Columns({50, 60});
    for (std::int32_t x = 0; x <= 120; ++x) {
        f.Move(x);
        const bool divider = (x >= 48 && x <= 52) || (x >= 108 && x <= 112);
        EXPECT_EQ(f.component.pointer, divider ? 9 : 0) << x;
    }
    f.Move(50, 20);
    EXPECT_EQ(f.component.pointer, 9);
    f.Move(50, 21);
    EXPECT_EQ(f.component.pointer, 0);
}

TEST(pcolsDrag, SurvivesColumnsThatAHostTakesAway) {
    FakeBar f;
    f.Columns({50, 60, 70});
    f.Press(180);
    f.bar.Clear();
    f.bar.Add(0, "c", 40);
    f.log().Clear();
    f.Move(200);
    EXPECT_EQ(f.bar.HeaderWidths(), "40");
    EXPECT_THAT(f.log().All(), IsEmpty());
}

// Handlers.

TEST(pcolsHandlers, MayRefreshAndChangeColumnsInsideMouseDown) {
    FakeBar f;
    f.Columns({50, 60});
    f.bar.events.MouseDown = [&](std::int32_t column, std::int32_t) {
        f.bar.Remove(column);
        f.bar.Add(0, "new", 90);
        f.bar.Refresh();
    };
    f.Press(20);
    EXPECT_EQ(f.bar.HeaderWidths(), "60-90");
    f.Press(80);
    EXPECT_EQ(f.bar.HeaderWidths(), "60-90");
}

TEST(pcolsHandlers, MayEndTheControlInsideMouseDown) {
    FakeBar f;
    f.Columns({50});
    f.bar.events.MouseDown = [&](std::int32_t, std::int32_t) { f.bar.Terminate(); };
    f.Press(20);
    EXPECT_EQ(f.services.hook, nullptr);
    EXPECT_THROW(f.bar.Refresh(), ObjectError);
}

TEST(pcolsHandlers, MayThrow) {
    FakeBar f;
    f.Columns({50, 60});
    f.bar.events.MouseDown = [](std::int32_t, std::int32_t) { throw std::runtime_error("a host's own"); };
    EXPECT_THROW(f.Press(20), std::runtime_error);
    f.bar.events.MouseDown = nullptr;
    f.Press(20);
    f.Press(50);
    f.Move(60);
    EXPECT_EQ(f.bar.HeaderWidths(), "60-50");
}

// Forwarded members.

TEST(pcolsMembers, GoToTheComponent) {
    FakeBar f;
    EXPECT_EQ(f.bar.hwnd(), FakeComponent::cWindow);
    f.bar.Appearance(1);
    EXPECT_EQ(f.bar.Appearance(), 1);
    f.bar.Appearance(7);
    EXPECT_EQ(f.bar.Appearance(), 1);
    f.bar.BorderStyle(0);
    EXPECT_EQ(f.bar.BorderStyle(), 0);
    f.bar.BorderStyle(7);
    f.bar.BorderStyle(0x10001); // no 16 bits
    EXPECT_EQ(f.bar.BorderStyle(), 0);
    f.bar.FontTransparent(false);
    EXPECT_FALSE(f.bar.FontTransparent());
    EXPECT_FALSE(f.component.FontTransparent());

    FakeFont other(f.log());
    other.value.Name = "Other";
    f.bar.Font(other);
    EXPECT_EQ(f.bar.Font()->Name(), "Other");
    EXPECT_EQ(f.bar.Font(), f.component.Font());
    EXPECT_EQ(f.TakePaints(), 0u);
}

TEST(pcolsMembers, SetToSystemfontTakesNameAndSizeAndDoesNotRepaint) {
    FakeBar f;
    std::string name;
    float size = 0;
    ASSERT_TRUE(dgi::GetSystemFont(name, size));
    f.bar.SetToSystemfont(false);
    EXPECT_EQ(f.component.font->Name(), name);
    EXPECT_EQ(f.component.font->Size(), 12);
    f.bar.SetToSystemfont();
    EXPECT_EQ(f.component.font->Size(), size);
    EXPECT_EQ(f.TakePaints(), 0u);
}

TEST(pcolsMembers, NeedAForm) {
    pcols bar;
    EXPECT_THROW(bar.Refresh(), ObjectError);
    EXPECT_THROW((void)bar.hwnd(), ObjectError);
    EXPECT_EQ(bar.Count(), 0);
    EXPECT_EQ(bar.HeaderWidths(), "");
}

// Life cycle.

TEST(pcolsLife, ReadsItsKeysInOrderAndThenComesUp) {
    FakeComponent component(true, 300, 20);
    WindowHookServices services(component.log);
    host::Services* before = host::SetServices(&services);
    {
        pcols bar;
        FakeBag bag;
        bar.Initialize(component);
        component.log.Clear();
        bar.ReadProperties(bag);
        std::vector<std::string> keys;
        for (const auto& entry : bag.read) keys.push_back(entry.key);
        ASSERT_EQ(keys.size(), 26u);
        EXPECT_EQ(std::vector<std::string>(keys.begin() + 22, keys.end()),
                  (std::vector<std::string>{"Appearance", "BorderStyle", "Font", "FontTransparent"}));
        std::vector<std::string> steps;
        for (const Call& call : component.log.All())
            if (call.name == "hook.HookSet" || call.name == "SetBkMode") steps.push_back(call.name);
        ASSERT_GE(steps.size(), 2u);
        EXPECT_EQ(steps.front(), "hook.HookSet") << "before the first paint";

        services.hook->refuses = true;
        component.log.Clear();
        EXPECT_NO_THROW(bar.Terminate());
        EXPECT_EQ(component.log.Named("hook released").size(), 1u);
    }
    host::SetServices(before);
}

TEST(pcolsLife, RunModeAttachesTheHookAndRefreshesAndTheEndReleasesIt) {
    FakeComponent component(true, 300, 20);
    WindowHookServices services(component.log);
    host::Services* before = host::SetServices(&services);
    {
        pcols bar;
        FakeBag bag;
        bar.Initialize(component);
        EXPECT_EQ(services.hook, nullptr);
        bar.ReadProperties(bag);
        ASSERT_NE(services.hook, nullptr);
        EXPECT_EQ(component.log.Named("hook.HookSet"),
                  (Calls{PlainCall("hook.HookSet", {0, FakeComponent::cWindow, 1})}));
        EXPECT_EQ(component.log.Named("SetBkMode").size(), 2u) << "one paint";
        component.log.Clear();
        bar.Terminate();
        EXPECT_EQ(component.log.All(), (Calls{PlainCall("hook.HookRelease"), PlainCall("hook released")}));
        bar.Terminate();
    }
    host::SetServices(before);
}

TEST(pcolsLife, ANewControlTakesTheSurroundingsFontAndHasNoHook) {
    FakeBar f(false);
    EXPECT_EQ(f.services.hook, nullptr);
    EXPECT_EQ(f.component.font->Name(), "Ambient Sans");
    EXPECT_EQ(f.component.font->Size(), 12);
    EXPECT_EQ(f.bar.BackColor(), cWindowBackground);
}

TEST(pcolsLife, ResizeTakesTheClientSizeRepaintsAndIgnoresErrors) {
    FakeBar f;
    f.component.SetPixelSize(400, 30);
    EXPECT_EQ(f.log().Drawing(), (Calls{ButtonCall({0, 0, 400, 30})}));
    f.Columns({20, 20});
    f.bar.HeaderWidths("2147483647-2147483647");
    f.component.SetPixelSize(200, 30); // the sum of the widths has no place
    f.bar.Clear();
    f.log().Clear();
    f.bar.Refresh();
    EXPECT_EQ(f.log().Drawing(), (Calls{ButtonCall({0, 0, 200, 30})}));
}

TEST(pcolsLife, SettingsAreTheSharedOnesAndTheComponentsButNoColumns) {
    FakeBar f;
    f.Columns({50});
    f.bar.BackColor(0x445566);
    f.bar.Appearance(1);
    f.bar.BorderStyle(0);
    f.bar.FontTransparent(false);
    f.bar.WriteProperties(f.bag);
    std::vector<std::string> keys;
    for (std::size_t i = f.bag.written.size() - 4; i < f.bag.written.size(); ++i) {
        const auto& entry = f.bag.written[i];
        keys.push_back(entry.key);
    }
    EXPECT_THAT(keys, ElementsAre("Appearance", "BorderStyle", "Font", "FontTransparent"));
    EXPECT_EQ(f.bag.written.size(), 26u) << "22 shared keys and these";
    EXPECT_EQ(f.bag.written.end()[-4].defaultValue, host::PropertyValue(std::int32_t{0}));
    EXPECT_EQ(f.bag.written.end()[-3].defaultValue, host::PropertyValue(std::int32_t{1}));
    EXPECT_EQ(f.bag.written.end()[-2].defaultValue, host::PropertyValue(f.component.ambient.font));
    EXPECT_EQ(f.bag.written.end()[-1].defaultValue, host::PropertyValue(true));

    FakeBar g;
    g.bag.stored = f.bag.stored;
    g.bar.ReadProperties(g.bag);
    EXPECT_EQ(g.bar.BackColor(), 0x445566);
    EXPECT_EQ(g.component.BackColor(), 0x445566);
    EXPECT_EQ(g.bar.Appearance(), 1);
    EXPECT_EQ(g.bar.BorderStyle(), 0);
    EXPECT_FALSE(g.bar.FontTransparent());
    EXPECT_EQ(g.bar.Count(), 0);
}

TEST(pcolsLife, KeysThatAreMissingGetTheirDefaults) {
    FakeBar f;
    EXPECT_EQ(f.bar.Appearance(), 0);
    EXPECT_EQ(f.bar.BorderStyle(), 1);
    EXPECT_TRUE(f.bar.FontTransparent());
    EXPECT_EQ(f.component.BackColor(), cWindowBackground);
    EXPECT_EQ(f.component.font->Name(), "Ambient Sans");
}

} // namespace
} // namespace tvok::test
