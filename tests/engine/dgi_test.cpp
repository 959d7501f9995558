/// The drawing helpers, proven call by call.
#include "tests/support/EngineList.h"

namespace tvok::test {
namespace {

using Dgi = EngineList;
using host::Point;

constexpr tvok_Rect cRect{10, 20, 110, 70};

TEST_F(Dgi, FilledBoxUsesAnInsideFramePenAndASolidBrush) {
    dgi::DrawBoxRect(cContext, cRect, 3, 0x112233, 0x445566, true);
    EXPECT_EQ(log.Drawing(), Calls{RectangleCall(cRect, 6, 3, 0x112233, 0x445566, 13)});
}

TEST_F(Dgi, EmptyBoxUsesTheHollowStockBrush) {
    dgi::DrawBoxRect(cContext, cRect, 1, 0x112233, 0x445566, false);
    EXPECT_EQ(log.Drawing(), Calls{RectangleCall(cRect, 6, 1, 0x112233, -1, 13)});
    EXPECT_EQ(log.Named("GetStockObject"), Calls{PlainCall("GetStockObject", {5})});
    EXPECT_TRUE(log.Named("CreateSolidBrush").empty());
}

TEST_F(Dgi, BoxLeavesTheRasterOperationSetAndThePenAndBrushAsBefore) {
    for (const bool fill : {true, false}) {
        log.rasterOperation = 6;
        dgi::DrawBoxRect(cContext, cRect, 1, 1, 2, fill);
        EXPECT_EQ(log.rasterOperation, 13);
        EXPECT_EQ(log.pen, CallLog::cFirstPen);
        EXPECT_EQ(log.brush, CallLog::cFirstBrush);
        EXPECT_EQ(log.LiveObjects(), 0u);
        EXPECT_EQ(log.Slips(), 0);
    }
}

TEST_F(Dgi, BoxTranslatesBothColours) {
    dgi::DrawBoxRect(cContext, cRect, 1, cWindowFrame, cHighlight, true);
    EXPECT_EQ(log.Drawing(), Calls{RectangleCall(cRect, 6, 1, Sys(6), Sys(13), 13)});
}

TEST_F(Dgi, FillAndFrameUseATemporaryBrushOfTheTranslatedColour) {
    dgi::FillRectColor(cContext, cRect, 0x010203);
    dgi::FillRectColor(cContext, cRect, cButtonFace);
    dgi::FrameRectColor(cContext, cRect, 0x040506);
    dgi::FrameRectColor(cContext, cRect, c3DLight);
    EXPECT_EQ(log.Drawing(), (Calls{FillRectCall(cRect, 0x010203), FillRectCall(cRect, Sys(15)),
                                    FrameRectCall(cRect, 0x040506), FrameRectCall(cRect, Sys(22))}));
    EXPECT_EQ(log.LiveObjects(), 0u);
    EXPECT_EQ(log.Slips(), 0);
    EXPECT_EQ(log.brush, CallLog::cFirstBrush);
}

TEST_F(Dgi, FrameBandsComeLeftRightAboveBelowAndOverlapInTheCorners) {
    dgi::FillRectFrame(cContext, {0, 0, 100, 50}, {10, 5, 80, 40}, cWindowBackground);
    EXPECT_EQ(log.Drawing(),
              (Calls{FillRectCall({0, 0, 10, 50}, Sys(5)), FillRectCall({80, 0, 100, 50}, Sys(5)),
                     FillRectCall({0, 0, 100, 5}, Sys(5)), FillRectCall({0, 40, 100, 50}, Sys(5))}));
    EXPECT_EQ(log.LiveObjects(), 0u);
    EXPECT_EQ(log.Slips(), 0);
}

TEST_F(Dgi, APlainColourStandsAndASystemColourIsLookedUpByItsLowByte) {
    EXPECT_EQ(dgi::TranslateColor(0x00123456), 0x00123456);
    EXPECT_EQ(dgi::TranslateColor(0x7F123456), 0x7F123456);
    EXPECT_EQ(dgi::TranslateColor(0), 0);
    EXPECT_TRUE(log.Named("GetSysColor").empty());
    EXPECT_EQ(dgi::TranslateColor(cHighlight), Sys(13));
    EXPECT_EQ(dgi::TranslateColor(static_cast<OLE_COLOR>(0x80ABCD12u)), Sys(0x12));
    EXPECT_EQ(dgi::TranslateColor(-1), Sys(255));
}

TEST_F(Dgi, InflatedRectGrowsOnEverySideAndShrinksByANegativeAmount) {
    EXPECT_EQ(dgi::InflatedRect(cRect, 2), (tvok_Rect{8, 18, 112, 72}));
    EXPECT_EQ(dgi::InflatedRect(cRect, -1), (tvok_Rect{11, 21, 109, 69}));
    EXPECT_EQ(dgi::InflatedRect(cRect, 0), cRect);
}

TEST_F(Dgi, InflatedRectPastThirtyTwoBitsIsAnOverflowError) {
    EXPECT_THROW(dgi::InflatedRect({0, 0, 2147483647, 10}, 1), OverflowError);
    EXPECT_THROW(dgi::InflatedRect({-2147483647 - 1, 0, 10, 10}, 1), OverflowError);
}

TEST_F(Dgi, MakeRectTakesItsValuesInOrder) {
    EXPECT_EQ(dgi::MakeRect(4, 3, 2, 1), (tvok_Rect{4, 3, 2, 1}));
}

TEST_F(Dgi, ClientScreenRectIsTheClientAreaAsTheScreenSeesIt) {
    EXPECT_EQ(dgi::GetClientScreenRect(cWindow), (tvok_Rect{52, 62, 352, 162}));
}

TEST_F(Dgi, RectToWindowDcMovesByTheContextsOriginSeenFromTheWindow) {
    EXPECT_EQ(dgi::RectToWindowDC(cContext, cWindow, cRect), cRect);
    log.contextOrigin = {50, 60};
    EXPECT_EQ(dgi::RectToWindowDC(cContext, cWindow, cRect), (tvok_Rect{8, 18, 108, 68}));
    log.contextOrigin = {72, 92};
    EXPECT_EQ(dgi::RectToWindowDC(cContext, cWindow, cRect), (tvok_Rect{30, 50, 130, 100}));
}

TEST_F(Dgi, OnlyTheWindowWithTheFocusIsTheFocusWindow) {
    EXPECT_FALSE(dgi::IsFocusWindow(cWindow));
    log.focus = cWindow;
    EXPECT_TRUE(dgi::IsFocusWindow(cWindow));
    EXPECT_FALSE(dgi::IsFocusWindow(cWindow + 1));
}

TEST_F(Dgi, PointsAreTwoSignedHalvesOfTheParameter) {
    EXPECT_EQ(dgi::PointFromLParam(0x00020001), (Point{1, 2}));
    EXPECT_EQ(dgi::PointFromLParam(0x0001FFFF), (Point{-1, 1}));
    EXPECT_EQ(dgi::PointFromLParam(static_cast<std::int32_t>(0xFFFE0003u)), (Point{3, -2}));
    EXPECT_EQ(dgi::PointFromLParam(static_cast<std::int32_t>(0x80007FFFu)), (Point{32767, -32768}));
}

TEST_F(Dgi, ParameterFromAPointReadsBackAsThePoint) {
    EXPECT_EQ(dgi::LParamFromPoint(1, 2), 0x00020001);
    for (const Point point : {Point{0, 0}, {-1, 5}, {7, -3}, {-32768, 32767}, {-4, -9}}) {
        EXPECT_EQ(dgi::PointFromLParam(dgi::LParamFromPoint(point.x, point.y)), point);
    }
}

TEST_F(Dgi, PointsBecomePixelsOfTheScreenContextRoundedHalfToEven) {
    EXPECT_EQ(dgi::PointsToPixels(9), 12);
    EXPECT_EQ(dgi::PointsToPixels(8.25f), 11);
    EXPECT_EQ(dgi::PointsToPixels(1.875f), 2) << "2.5 rounds down to the even 2";
    EXPECT_EQ(dgi::PointsToPixels(2.625f), 4) << "3.5 rounds up to the even 4";
    EXPECT_EQ(dgi::PointsToPixels(-9), 12) << "the sign is dropped";
    log.verticalDpi = 144;
    EXPECT_EQ(dgi::PointsToPixels(9), 18);
}

TEST_F(Dgi, PointsToPixelsAsksTheScreenForCapability90AndGivesItsContextBack) {
    dgi::PointsToPixels(9);
    EXPECT_EQ(log.Named("GetWindowDC"), Calls{PlainCall("GetWindowDC", {0})});
    ASSERT_EQ(log.Named("GetDeviceCaps").size(), 1u);
    EXPECT_EQ(log.Named("GetDeviceCaps")[0].values[1], 90);
    EXPECT_EQ(log.Slips(), 0);
}

TEST_F(Dgi, PointsToPixelsIgnoresErrors) {
    EXPECT_EQ(dgi::PointsToPixels(1e30f), 0) << "a result past 32 bits";
    log.onCall = [](const std::string& name) {
        if (name == "GetDeviceCaps") throw Error("no screen");
    };
    EXPECT_NO_THROW(dgi::PointsToPixels(9));
}

TEST_F(Dgi, TwipsBecomeWholePixelsWithBothNumbersRoundedAndTheFractionCut) {
    EXPECT_EQ(dgi::TwipsToPixels(300, 15), 20);
    EXPECT_EQ(dgi::TwipsToPixels(314, 15), 20);
    EXPECT_EQ(dgi::TwipsToPixels(314.5f, 15), 20) << "314.5 rounds down to the even 314";
    EXPECT_EQ(dgi::TwipsToPixels(314.6f, 15), 21);
    EXPECT_EQ(dgi::TwipsToPixels(100, 14.6f), 6) << "a pixel of 15";
    EXPECT_EQ(dgi::TwipsToPixels(-14, 15), 0) << "cut towards 0";
    EXPECT_EQ(dgi::TwipsToPixels(-30, 15), -2);
}

TEST_F(Dgi, TwipsThatGiveNoPixelsAreAnOverflow) {
    EXPECT_THROW(dgi::TwipsToPixels(300, 0.4f), OverflowError);
    EXPECT_THROW(dgi::TwipsToPixels(1e30f, 15), OverflowError);
    EXPECT_THROW(dgi::TwipsToPixels(-2147483648.0f, -1), OverflowError);
}

void SetFace(host::LogFont& font, std::string face) {
    face.resize(sizeof font.lfFaceName);
    face.copy(font.lfFaceName, face.size());
}

TEST_F(Dgi, SystemFontIsReadFromStockObject17) {
    log.guiFont.lfHeight = -11;
    SetFace(log.guiFont, "Some Sans");
    std::string name;
    float size = 0;
    EXPECT_TRUE(dgi::GetSystemFont(name, size));
    EXPECT_EQ(name, "Some Sans");
    EXPECT_FLOAT_EQ(size, 8.25f);
    EXPECT_EQ(log.Named("GetStockObject"), Calls{PlainCall("GetStockObject", {17})});
    ASSERT_EQ(log.Named("GetObjectA").size(), 1u);
    EXPECT_EQ(log.Named("GetObjectA")[0].values[1], 60);
    EXPECT_EQ(log.Slips(), 0);
}

TEST_F(Dgi, SystemFontNameIsTrimmedAndMayFillAllItsBytes) {
    std::string name;
    float size = 0;
    SetFace(log.guiFont, "  Padded Face ");
    EXPECT_TRUE(dgi::GetSystemFont(name, size));
    EXPECT_EQ(name, "Padded Face");
    SetFace(log.guiFont, "ABCDEFGHIJKLMNOPQRSTUVWXYZ012345 more");
    EXPECT_TRUE(dgi::GetSystemFont(name, size));
    EXPECT_EQ(name, "ABCDEFGHIJKLMNOPQRSTUVWXYZ012345");
}

TEST_F(Dgi, SystemFontThatCannotBeReadIsFalse) {
    log.guiFontReadable = false;
    std::string name;
    float size = 0;
    EXPECT_FALSE(dgi::GetSystemFont(name, size));
}

TEST_F(Dgi, ApplySystemFontSetsTheNameAndTheSizeOnlyWithTheFlag) {
    log.guiFont.lfHeight = -16;
    SetFace(log.guiFont, "Gui");
    dgi::ApplySystemFont(font, false);
    EXPECT_EQ(font->value.Name, "Gui");
    EXPECT_FLOAT_EQ(font->value.Size, 9);
    dgi::ApplySystemFont(font, true);
    EXPECT_FLOAT_EQ(font->value.Size, 12);
}

TEST_F(Dgi, ApplySystemFontLeavesTheFontWhenThereIsNoSystemFont) {
    log.guiFontReadable = false;
    dgi::ApplySystemFont(font, true);
    EXPECT_EQ(font->value.Name, "Test Sans");
    EXPECT_FLOAT_EQ(font->value.Size, 9);
}

TEST_F(Dgi, ApplySystemFontIgnoresErrors) {
    SetFace(log.guiFont, "Gui");
    font->refuses = true;
    EXPECT_NO_THROW(dgi::ApplySystemFont(font, true));
    EXPECT_NO_THROW(dgi::ApplySystemFont(nullptr, true));
}

TEST_F(Dgi, PrimaryButtonIsTheLeftOneUnlessTheButtonsAreSwapped) {
    EXPECT_FALSE(dgi::IsPrimaryButtonDown());
    log.keysDown = {1};
    EXPECT_TRUE(dgi::IsPrimaryButtonDown());
    log.metrics[23] = 1;
    EXPECT_FALSE(dgi::IsPrimaryButtonDown());
    log.keysDown = {2};
    EXPECT_TRUE(dgi::IsPrimaryButtonDown());
    log.metrics[23] = 0;
    EXPECT_FALSE(dgi::IsPrimaryButtonDown());
}

TEST_F(Dgi, PrimaryButtonCountsAsDownForAnyResultButZero) {
    log.keysDown = {1};
    for (const std::int32_t answer : {1, -1, -32768, 0x8000}) {
        log.keyDownValue = answer;
        EXPECT_TRUE(dgi::IsPrimaryButtonDown()) << answer;
    }
}

} // namespace
} // namespace tvok::test
