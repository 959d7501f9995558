// Painting, mouse, members and life cycle of `xbutton` as calls, one by one.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/FakeStrip.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* cThree = "a|a|0|b|b|0|c|c|0";
constexpr tvok_Rect cFirst{0, 0, 20, 20}, cFirstDown{1, 1, 21, 21};

Call FrameCall(const tvok_Rect& rect, std::int32_t type, std::int32_t state) {
    return {"DrawFrameControl", rect, {type, state}};
}
Call EdgeCall(const tvok_Rect& rect, std::int32_t edge, std::int32_t flags) {
    return {"DrawEdge", rect, {edge, flags}};
}
Call CaptionCall(const tvok_Rect& rect, const std::string& text) {
    return {"DrawTextA", rect, {37, 0, 0xFFFFFF, 1}, text};
}
Calls Up(std::int32_t type, std::int32_t state, const std::string& text = {}) {
    return {FrameCall(cFirst, type, state), EdgeCall(cFirst, 5, 15), CaptionCall(cFirst, text)};
}
Calls Down(std::int32_t type, std::int32_t state, const std::string& text = {}) {
    return {FrameCall(cFirst, type, state), EdgeCall(cFirst, 10, 16399), CaptionCall(cFirstDown, text)};
}

// Faces.

struct FaceCase {
    const char* settings;
    std::int32_t type, up, down;
};

TEST(xbutton, DrawsEachKindUpAndDownWithItsFaceEdgeAndCaption) {
    for (const FaceCase& face : {FaceCase{"x|k|0", 4, 16, 528}, FaceCase{"0|k|2", 3, 5, 16901},
                                 FaceCase{"1|k|2", 3, 3, 16899}, FaceCase{"2|k|2", 1, 0, 16896}}) {
        FakeStrip fake(face.settings);
        const std::string text = face.type == 4 ? "x" : "";
        fake.strip.Paint();
        EXPECT_EQ(fake.TakeDrawing(), Up(face.type, face.up, text)) << face.settings;
        fake.Press(5);
        EXPECT_EQ(fake.TakeDrawing(), Down(face.type, face.down, text)) << face.settings;
        fake.LetGo();
        EXPECT_EQ(fake.TakeDrawing(), Up(face.type, face.up, text)) << face.settings;
    }
}

TEST(xbutton, DrawsTheEdgeAloneForAnUnknownSymbol) {
    FakeStrip fake("3|k|2");
    fake.strip.Paint();
    EXPECT_EQ(fake.TakeDrawing(), (Calls{EdgeCall(cFirst, 5, 15), CaptionCall(cFirst, "")}));
    fake.Press(5);
    EXPECT_EQ(fake.TakeDrawing(), (Calls{EdgeCall(cFirst, 10, 16399), CaptionCall(cFirstDown, "")}));
}

TEST(xbutton, DrawsEdgeAndCaptionAloneForAnUnknownKind) {
    FakeStrip fake("x|k|3");
    fake.strip.Paint();
    EXPECT_EQ(fake.TakeDrawing(), (Calls{EdgeCall(cFirst, 5, 15), CaptionCall(cFirst, "x")}));
    fake.strip.SetButtons("x|k|-1");
    fake.log().Clear();
    fake.strip.Paint();
    EXPECT_EQ(fake.TakeDrawing(), (Calls{EdgeCall(cFirst, 5, 15), CaptionCall(cFirst, "x")}));
}

TEST(xbutton, CentresAnImageByItsSizeAndMovesItWhenDown) {
    FakeStrip fake("7|k|1");
    fake.strip.IconHandle(99);
    fake.strip.Paint();
    Calls expected = Up(4, 16);
    expected.push_back(ImageCall(99, 7, 2, 2)); // its number as it stands, not less 1
    EXPECT_EQ(fake.TakeDrawing(), expected);
    fake.Press(5);
    expected = Down(4, 528);
    expected.push_back(ImageCall(99, 7, 3, 3));
    EXPECT_EQ(fake.TakeDrawing(), expected);
}

TEST(xbutton, CentresWithTheFractionCut) {
    FakeStrip fake("0|j|1|0|k|1");
    fake.strip.IconWidth(15);
    fake.strip.IconHeight(33);
    fake.strip.Paint();
    EXPECT_EQ(fake.log().Named("ImageList_Draw"), (Calls{ImageCall(0, 0, 2, -6), ImageCall(0, 0, 22, -6)}));
}

TEST(xbutton, DrawsAnImageAlsoWithoutAnImageList) {
    FakeStrip fake("-1|k|1");
    fake.strip.Paint();
    EXPECT_EQ(fake.log().Named("ImageList_Draw"), (Calls{ImageCall(0, -1, 2, 2)}));
}

// Setting text and size.

TEST(xbutton, SetButtonsStoresLaysOutSizesAndPaints) {
    FakeStrip fake;
    EXPECT_EQ(fake.strip.SetButtons("x|k|0"), 20);
    EXPECT_EQ(fake.strip.ButtonSettingsStr(), "x|k|0");
    EXPECT_EQ(fake.PixelWidth(), 20);
    EXPECT_EQ(fake.log().Named("Size"), Calls{PlainCall("Size", {300, 300})});
    EXPECT_EQ(fake.log().All().front().name, "Size");
    EXPECT_THAT(fake.TakeFaces(), ElementsAre("1 up", "1 up")) << "by the new size and at the end";
    EXPECT_EQ(fake.strip.SetButtons("x|k|0"), 20);
    EXPECT_THAT(fake.TakeFaces(), ElementsAre("1 up")) << "the size is the same";
}

TEST(xbutton, WritingTheSettingTextSetsTheButtons) {
    FakeStrip fake;
    fake.strip.ButtonSettingsStr(cThree);
    EXPECT_EQ(fake.strip.ButtonSettingsStr(), cThree);
    EXPECT_EQ(fake.PixelWidth(), 60);
}

TEST(xbutton, AnEmptyTextIsNoWidthAndNothingToPaint) {
    FakeStrip fake(cThree);
    EXPECT_EQ(fake.strip.SetButtons(""), 0);
    EXPECT_EQ(fake.PixelWidth(), 0);
    EXPECT_THAT(fake.TakeDrawing(), IsEmpty());
}

TEST(xbutton, ANewHeightGivesNewSquaresAndTheWidthFollows) {
    FakeStrip fake(cThree);
    fake.component.Height(450);
    EXPECT_EQ(fake.PixelWidth(), 90);
    EXPECT_EQ(fake.component.PixelHeight(), 30);
    fake.log().Clear();
    fake.strip.Paint();
    EXPECT_EQ(fake.log().Named("DrawEdge").back().rect, (tvok_Rect{60, 0, 90, 30}));
}

TEST(xbutton, ANewWidthIsPutBack) {
    FakeStrip fake(cThree);
    fake.component.Width(9999);
    EXPECT_EQ(fake.PixelWidth(), 60);
}

TEST(xbutton, RoundsHeightAndTwipsBeforeItDivides) {
    FakeStrip near;
    near.services.twipsY = 14.6F;
    EXPECT_EQ(near.strip.SetButtons("x|k|0"), 20) << "300 twips in pixels of 15";
    FakeStrip odd;
    odd.services.twipsY = 17;
    EXPECT_EQ(odd.strip.SetButtons("x|k|0"), 17) << "17.6 is cut";
}

TEST(xbutton, ComesToAnEndWhereASizeNeverFits) {
    FakeStrip fake;
    fake.services.twipsY = 14.4F; // 20 pixels are read as 21 of 14, and so on
    fake.services.twipsX = 14.4F;
    EXPECT_EQ(fake.strip.SetButtons(cThree), 63);
    EXPECT_EQ(fake.log().Named("Size").size(), 1U);
}

TEST(xbutton, SwallowsEveryErrorOfSetButtons) {
    FakeStrip fake;
    fake.services.twipsY = 0;
    EXPECT_EQ(fake.strip.SetButtons(cThree), 0) << "no height is known";
    EXPECT_EQ(fake.strip.ButtonSettingsStr(), cThree);
    fake.services.twipsY = 15;
    fake.component.SetPixelSize(0, 20);
    fake.log().onCall = [](const std::string& name) {
        if (name == "DrawEdge") throw Error("no edges today");
    };
    EXPECT_EQ(fake.strip.SetButtons(cThree), 60);
    EXPECT_EQ(fake.PixelWidth(), 60);
    fake.log().onCall = nullptr;
    xbutton alone;
    EXPECT_EQ(alone.SetButtons(cThree), 0) << "on no form";
    EXPECT_EQ(alone.ButtonSettingsStr(), cThree);
}

TEST(xbutton, AHeldButtonStaysHeldThroughANewText) {
    FakeStrip fake(cThree);
    fake.Press(25);
    fake.TakeFaces();
    fake.strip.SetButtons("x|x|0|y|y|0|z|z|0");
    EXPECT_THAT(fake.TakeFaces(), ElementsAre("1 up", "2 down", "3 up"));
    fake.LetGo();
    EXPECT_THAT(fake.TakeFaces(), ElementsAre("1 up", "2 up", "3 up"));
}

// Mouse.

TEST(xbutton, APressDrawsTheButtonDownBeforeItIsTold) {
    FakeStrip fake(cThree);
    fake.Press(25);
    ASSERT_FALSE(fake.log().All().empty());
    EXPECT_EQ(fake.log().All().back(), PlainCall("MouseDown", {}, "b"));
    EXPECT_THAT(fake.TakeFaces(), ElementsAre("2 down"));
}

TEST(xbutton, APressOutsideEveryButtonDoesNothing) {
    FakeStrip fake(cThree);
    for (const host::Point point : {host::Point{60, 10}, {25, 20}, {25, -1}, {-1, 10}}) {
        fake.Press(point.x, point.y);
        EXPECT_THAT(fake.log().All(), IsEmpty()) << point.x << "," << point.y;
    }
}

TEST(xbutton, OnlyTheLeftButtonCounts) {
    FakeStrip fake(cThree);
    fake.Press(25, 10, 2);
    fake.Press(25, 10, 4);
    EXPECT_THAT(fake.log().All(), IsEmpty());
    fake.Press(25);
    fake.log().Clear();
    fake.Move(5, 10, 2);
    fake.LetGo(25, 10, 2);
    EXPECT_THAT(fake.log().All(), IsEmpty()) << "the held button is as it was";
    fake.Move(5, 10, 3);
    EXPECT_THAT(fake.TakeFaces(), ElementsAre("2 up")) << "the left one is down among others";
}

TEST(xbutton, AHeldButtonFollowsThePointerOutAndIn) {
    FakeStrip fake(cThree);
    fake.Press(25);
    fake.TakeFaces();
    fake.Move(26);
    EXPECT_THAT(fake.TakeFaces(), IsEmpty()) << "it is drawn down already";
    fake.Move(5);
    EXPECT_THAT(fake.TakeFaces(), ElementsAre("2 up")) << "and no other button reacts";
    fake.Move(6);
    EXPECT_THAT(fake.TakeFaces(), IsEmpty());
    fake.Move(25);
    EXPECT_THAT(fake.TakeFaces(), ElementsAre("2 down"));
    fake.Move(25, 99);
    EXPECT_THAT(fake.TakeFaces(), ElementsAre("2 up"));
    fake.LetGo();
    EXPECT_THAT(fake.TakeFaces(), ElementsAre("1 up", "2 up", "3 up"));
    fake.Move(25);
    EXPECT_THAT(fake.TakeFaces(), IsEmpty()) << "it is held no more";
}

TEST(xbutton, AMoveWithoutAPressDrawsNothing) {
    FakeStrip fake(cThree);
    fake.Move(25);
    fake.Move(25, 10, 0);
    EXPECT_THAT(fake.log().All(), IsEmpty());
}

TEST(xbutton, APaintDrawsAHeldButtonDownWhereverThePointerIs) {
    FakeStrip fake(cThree);
    fake.Press(25);
    fake.Move(5);
    fake.TakeFaces();
    fake.strip.Paint();
    EXPECT_THAT(fake.TakeFaces(), ElementsAre("1 up", "2 down", "3 up"));
    fake.Move(6);
    EXPECT_THAT(fake.TakeFaces(), ElementsAre("2 up")) << "the next move tells it again";
}

TEST(xbutton, ReleasingTellsNothing) {
    FakeStrip fake(cThree);
    fake.Press(25);
    fake.TakeEvents();
    fake.LetGo();
    EXPECT_THAT(fake.TakeEvents(), IsEmpty());
}

TEST(xbutton, ClickNamesTheButtonThatWasPressedLastWhateverIsUnderThePointer) {
    FakeStrip fake(cThree);
    fake.strip.Click();
    EXPECT_THAT(fake.TakeEvents(), ElementsAre("Click ")) << "none was pressed yet";
    fake.Press(25);
    fake.Move(5);
    fake.LetGo(5);
    fake.strip.Click();
    EXPECT_THAT(fake.TakeEvents(), ElementsAre("MouseDown b", "Click b"));
    fake.Press(70);
    fake.LetGo(70);
    fake.strip.Click();
    EXPECT_THAT(fake.TakeEvents(), ElementsAre("Click b")) << "the press on no button is not told";
    fake.strip.SetButtons("");
    fake.strip.Click();
    EXPECT_THAT(fake.TakeEvents(), ElementsAre("Click b")) << "nothing clears it";
}

TEST(xbutton, TwipsOfThePointerAreRoundedAndCut) {
    FakeStrip fake(cThree);
    std::int16_t button = 1, shift = 0;
    float x = 299.4F, y = 0;
    fake.strip.MouseDown(button, shift, x, y);
    EXPECT_THAT(fake.TakeEvents(), ElementsAre("MouseDown a")) << "299 twips are 19 pixels";
    x = 299.6F;
    fake.strip.MouseDown(button, shift, x, y);
    EXPECT_THAT(fake.TakeEvents(), ElementsAre("MouseDown b")) << "300 are 20";
    x = -14;
    fake.strip.MouseDown(button, shift, x, y);
    EXPECT_THAT(fake.TakeEvents(), ElementsAre("MouseDown a")) << "cut towards 0";
}

TEST(xbutton, KeysGoToTheHostByReference) {
    FakeStrip fake(cThree);
    fake.strip.events.KeyDown = [](std::int16_t& code, std::int16_t& shift) {
        EXPECT_EQ(code, 40);
        EXPECT_EQ(shift, 1);
        code = 0;
        shift = 7;
    };
    std::int16_t code = 40, shift = 1;
    fake.strip.KeyDown(code, shift);
    EXPECT_EQ(code, 0);
    EXPECT_EQ(shift, 7);
    EXPECT_THAT(fake.TakeDrawing(), IsEmpty());
}

TEST(xbutton, LosingTheFocusLetsTheButtonUp) {
    FakeStrip fake(cThree);
    fake.Press(25);
    fake.log().Clear();
    for (const std::int32_t other : {host::WM_SETFOCUS, host::WM_LBUTTONUP, host::WM_PAINT, host::WM_MOVE})
        fake.Message(other);
    EXPECT_THAT(fake.log().All(), IsEmpty());
    fake.Message(host::WM_KILLFOCUS);
    EXPECT_THAT(fake.TakeFaces(), ElementsAre("1 up", "2 up", "3 up"));
    fake.Move(25);
    EXPECT_THAT(fake.TakeFaces(), IsEmpty());
}

// Looks.

TEST(xbutton, IconMembersArePlainNumbers) {
    FakeStrip fake("0|k|1");
    EXPECT_EQ(fake.strip.IconHandle(), 0);
    EXPECT_EQ(fake.strip.IconWidth(), 16);
    EXPECT_EQ(fake.strip.IconHeight(), 16);
    fake.strip.IconHandle(5);
    fake.strip.IconWidth(-3);
    fake.strip.IconHeight(2147483647);
    EXPECT_EQ(fake.strip.IconHandle(), 5);
    EXPECT_EQ(fake.strip.IconHandle(), 5) << "reading takes nothing away";
    EXPECT_EQ(fake.strip.IconWidth(), -3);
    EXPECT_EQ(fake.strip.IconHeight(), 2147483647);
    EXPECT_THAT(fake.log().All(), IsEmpty()) << "and nothing is repainted";
}

TEST(xbutton, WritingTheForeColorGoesToComponentAndContextAndRepaints) {
    FakeStrip fake("x|k|0");
    fake.strip.ForeColor(SystemColor(8));
    EXPECT_EQ(fake.strip.ForeColor(), SystemColor(8));
    const Calls expected{PlainCall("ForeColor", {SystemColor(8)}), PlainCall("GetSysColor", {8}),
                         PlainCall("SetTextColor", {Sys(8)})};
    const Calls& all = fake.log().All();
    ASSERT_EQ(all.size(), 6U);
    EXPECT_EQ(Calls(all.begin(), all.begin() + 3), expected);
    EXPECT_THAT(fake.TakeFaces(), ElementsAre("1 up"));
}

TEST(xbutton, WritingFontAndItsTransparencyGoesToTheComponentAndRepaints) {
    FakeStrip fake("x|k|0");
    FakeFont font(fake.log());
    font.value = {"Other", 20, true, false, false, false};
    fake.strip.Font(font);
    EXPECT_EQ(host::ValueOf(*fake.strip.Font()), font.value);
    EXPECT_EQ(fake.strip.Font(), fake.component.font) << "the component's object";
    EXPECT_THAT(fake.TakeFaces(), ElementsAre("1 up"));
    fake.strip.FontTransparent(false);
    EXPECT_FALSE(fake.strip.FontTransparent());
    EXPECT_EQ(fake.log().All().front(), PlainCall("FontTransparent", {0}));
    EXPECT_THAT(fake.TakeFaces(), ElementsAre("1 up"));
}

TEST(xbutton, TakesTheSystemFontWithOrWithoutItsSize) {
    FakeStrip fake("x|k|0");
    fake.log().guiFont.lfHeight = -16;
    std::string("System Sans").copy(fake.log().guiFont.lfFaceName, 31);
    fake.strip.SetToSystemfont(false);
    EXPECT_EQ(fake.component.font->value.Name, "System Sans");
    EXPECT_EQ(fake.component.font->value.Size, 12) << "the surroundings' size stays";
    fake.log().guiFont.lfHeight = -20;
    fake.strip.SetToSystemfont();
    EXPECT_EQ(fake.component.font->value.Size, 15);
    EXPECT_THAT(fake.TakeDrawing(), IsEmpty());
}

TEST(xbutton, KnowsItsWindow) {
    FakeStrip fake;
    EXPECT_EQ(fake.strip.hwnd(), FakeComponent::cWindow);
}

// Life cycle.

std::vector<std::string> Names(const Calls& calls) {
    std::vector<std::string> names;
    for (const Call& call : calls) names.push_back(call.name);
    return names;
}

TEST(xbutton, ReadsItsKeysInOrderThenSetsTheHookThenTheButtons) {
    SizedComponent component(true, 100, 20);
    WindowHookServices services(component.log);
    host::Services* before = host::SetServices(&services);
    xbutton strip;
    component.control = &strip;
    FakeBag bag;
    bag.stored = {{"ButtonSettingsStr", std::string("x|k|0")}, {"ForeColor", 0x0000FF}};
    strip.Initialize(component);
    component.log.Clear();
    strip.ReadProperties(bag);

    ASSERT_EQ(bag.read.size(), 4U);
    EXPECT_EQ(bag.read[0].key, "ButtonSettingsStr");
    EXPECT_EQ(bag.read[0].defaultValue, host::PropertyValue(std::string()));
    EXPECT_EQ(bag.read[1].key, "ForeColor");
    EXPECT_EQ(bag.read[1].defaultValue, host::PropertyValue(SystemColor(0x12)));
    EXPECT_EQ(bag.read[2].key, "Font");
    EXPECT_EQ(bag.read[2].defaultValue, host::PropertyValue(component.ambient.font));
    EXPECT_EQ(bag.read[3].key, "FontTransparent");
    EXPECT_EQ(bag.read[3].defaultValue, host::PropertyValue(true));

    const auto names = Names(component.log.NamedOneOf(
        {"ForeColor", "SetTextColor", "Font.Name", "FontTransparent", "hook.HookSet", "Size"}));
    EXPECT_THAT(names, ElementsAre("ForeColor", "Font.Name", "FontTransparent", "hook.HookSet", "Size"))
        << "the colour goes to the component alone";
    EXPECT_EQ(component.log.Named("hook.HookSet"),
              Calls{PlainCall("hook.HookSet", {0, FakeComponent::cWindow, 1})});
    EXPECT_EQ(strip.ForeColor(), 0x0000FF);
    strip.Terminate();
    host::SetServices(before);
}

TEST(xbutton, WritesItsKeysWithTheirDefaults) {
    FakeStrip fake(cThree);
    fake.strip.ForeColor(0x123456);
    fake.strip.FontTransparent(false);
    fake.strip.IconHandle(9);
    FakeBag bag;
    fake.strip.WriteProperties(bag);
    ASSERT_EQ(bag.written.size(), 4U) << "the icon members are not kept";
    EXPECT_EQ(bag.written[0].key, "ButtonSettingsStr");
    EXPECT_EQ(bag.written[0].value, host::PropertyValue(std::string(cThree)));
    EXPECT_EQ(bag.written[0].defaultValue, host::PropertyValue(std::string()));
    EXPECT_EQ(bag.written[1].key, "ForeColor");
    EXPECT_EQ(bag.written[1].value, host::PropertyValue(0x123456));
    EXPECT_EQ(bag.written[1].defaultValue, host::PropertyValue(SystemColor(0x12)));
    EXPECT_EQ(bag.written[2].key, "Font");
    EXPECT_EQ(bag.written[2].defaultValue, host::PropertyValue(fake.component.ambient.font));
    EXPECT_EQ(bag.written[3].key, "FontTransparent");
    EXPECT_EQ(bag.written[3].value, host::PropertyValue(false));
    EXPECT_EQ(bag.written[3].defaultValue, host::PropertyValue(true));

    FakeStrip other;
    other.strip.ReadProperties(bag);
    EXPECT_EQ(other.strip.ButtonSettingsStr(), cThree);
    EXPECT_EQ(other.strip.ForeColor(), 0x123456);
    EXPECT_FALSE(other.strip.FontTransparent());
    EXPECT_EQ(other.PixelWidth(), 60);
}

TEST(xbutton, KeepsItsPropertiesAtDesignTimeWithoutAHook) {
    FakeStrip fake({}, false);
    EXPECT_EQ(fake.services.hook, nullptr);
    EXPECT_EQ(fake.component.font->value, fake.component.ambient.font) << "newly placed";
    fake.strip.SetButtons("x|k|0");
    EXPECT_EQ(fake.PixelWidth(), 20);
    EXPECT_THAT(fake.TakeFaces(), ElementsAre("1 up", "1 up")) << "the buttons paint here too";
    fake.strip.ForeColor(255);
    fake.strip.FontTransparent(false);
    fake.strip.Font(*fake.component.font);
    EXPECT_THAT(fake.TakeDrawing(), IsEmpty()) << "other writes do not";
    FakeBag bag;
    bag.stored = {{"ButtonSettingsStr", std::string(cThree)}};
    fake.strip.ReadProperties(bag);
    EXPECT_EQ(fake.services.hook, nullptr);
    EXPECT_EQ(fake.PixelWidth(), 60);
}

TEST(xbutton, TerminateLetsTheHookGoAlsoWhereItRefuses) {
    FakeStrip fake(cThree);
    fake.services.hook->refuses = true;
    EXPECT_NO_THROW(fake.strip.Terminate());
    EXPECT_EQ(fake.services.hook, nullptr);
    EXPECT_THAT(Names(fake.log().All()), ElementsAre("hook.HookRelease", "hook released"));
    EXPECT_NO_THROW(fake.strip.Terminate());
    EXPECT_THROW(fake.strip.hwnd(), ObjectError) << "the component may be gone";
    FakeStrip design({}, false);
    EXPECT_NO_THROW(design.strip.Terminate());
}

TEST(xbutton, InitializeBeginsWithoutButtons) {
    FakeStrip fake(cThree);
    fake.strip.IconWidth(3);
    fake.strip.IconHeight(4);
    fake.strip.Initialize(fake.component);
    EXPECT_EQ(fake.strip.ButtonSettingsStr(), "");
    EXPECT_EQ(fake.strip.IconWidth(), 16);
    EXPECT_EQ(fake.strip.IconHeight(), 16);
    fake.strip.Paint();
    EXPECT_THAT(fake.TakeDrawing(), IsEmpty());
}

TEST(xbutton, MembersThatNeedAFormSayThatThereIsNone) {
    xbutton alone;
    EXPECT_THROW(alone.ForeColor(), ObjectError);
    EXPECT_THROW(alone.hwnd(), ObjectError);
    EXPECT_EQ(alone.IconWidth(), 16);
}

// Handlers that take the ground away.

TEST(xbutton, AHandlerMayEndTheControlAtOnce) {
    for (const bool press : {true, false}) {
        FakeStrip fake(cThree);
        const auto end = [&](const std::string& key) {
            fake.End();
            EXPECT_EQ(key, press ? "b" : "");
        };
        fake.strip.events.MouseDown = end;
        fake.strip.events.Click = end;
        if (press)
            fake.Press(25);
        else
            fake.strip.Click();
        EXPECT_EQ(fake.owner, nullptr);
    }
}

TEST(xbutton, AHandlerMayClearAndSetTheTextOnTheWay) {
    FakeStrip fake("a|a key that is too long to be short|0");
    fake.strip.events.MouseDown = [&](const std::string& key) {
        fake.strip.ButtonSettingsStr("");
        fake.strip.ButtonSettingsStr("x|x|0|y|y|0");
        fake.strip.events.MouseDown = nullptr;
        EXPECT_EQ(key, "a key that is too long to be short");
    };
    fake.Press(5);
    fake.TakeFaces();
    fake.strip.Paint();
    EXPECT_THAT(fake.TakeFaces(), ElementsAre("1 down", "2 up")) << "the first place is still held";
    fake.LetGo();
    fake.strip.Click();
    EXPECT_THAT(fake.TakeEvents(), ElementsAre("Click a key that is too long to be short"));
}

TEST(xbutton, AHandlerThatThrowsIsHeardAndLeavesTheButtonHeld) {
    FakeStrip fake(cThree);
    fake.strip.events.MouseDown = [](const std::string&) { throw Error("not now"); };
    EXPECT_THROW(fake.Press(25), Error);
    EXPECT_THAT(fake.TakeFaces(), ElementsAre("2 down"));
    fake.LetGo();
    EXPECT_THAT(fake.TakeFaces(), ElementsAre("1 up", "2 up", "3 up"));
    fake.strip.Click();
    EXPECT_THAT(fake.TakeEvents(), ElementsAre("Click b"));
}

} // namespace
} // namespace tvok::test
