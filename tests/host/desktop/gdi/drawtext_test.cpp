#include <gtest/gtest.h>

#include "tests/host/desktop/gdi/DrawnSurface.h"

namespace tvok::test {
namespace {

using namespace host;

/// A canvas whose text boxes are plain green: their places can be read.
struct Boxes : DrawnSurface {
    Boxes() : DrawnSurface(200, 120) {
        dc.BkColor(green);
        dc.TextColor(green);
        height = dc.Metrics().height;
    }
    std::int32_t Draw(std::string_view text, tvok_Rect rect, std::int32_t flags) {
        return dc.DrawText(text, rect, flags);
    }
    tvok_Rect Calculated(std::string_view text, tvok_Rect rect, std::int32_t flags) {
        dc.DrawText(text, rect, flags | DT_CALCRECT);
        return rect;
    }
    std::int32_t height = 0;
};

TEST(DrawText, StartsAtTheTopLeftAndAnswersTheHeight) {
    Boxes boxes;
    EXPECT_EQ(boxes.Draw("apple", {10, 20, 190, 110}, 0), boxes.height);
    EXPECT_EQ(boxes.Ink(), (tvok_Rect{10, 20, 10 + boxes.dc.TextWidth("apple"), 20 + boxes.height}));
}

TEST(DrawText, CentresAndAlignsEachLine) {
    Boxes boxes;
    const std::int32_t width = boxes.dc.TextWidth("apple");
    boxes.Draw("apple", {10, 20, 190, 110}, DT_CENTER);
    EXPECT_EQ(boxes.Ink().Left, 10 + (180 - width) / 2);
    Boxes right;
    right.Draw("apple\r\ni", {10, 20, 190, 110}, DT_RIGHT);
    EXPECT_EQ(right.Ink(), (tvok_Rect{190 - width, 20, 190, 20 + 2 * right.height}));
    EXPECT_EQ(right.At(190 - width, 20 + right.height), 0xFFFFFFu);
}

TEST(DrawText, ASingleLineCanStandInTheMiddleOrAtTheBottom) {
    Boxes middle;
    const std::int32_t top = 10 + (91 - middle.height) / 2;
    EXPECT_EQ(middle.Draw("apple", {0, 10, 190, 101}, DT_SINGLELINE | DT_VCENTER), top - 10 + middle.height);
    EXPECT_EQ(middle.Ink().Top, top);
    Boxes bottom;
    EXPECT_EQ(bottom.Draw("apple", {0, 10, 190, 101}, DT_SINGLELINE | DT_BOTTOM), 91);
    EXPECT_EQ(bottom.Ink().bottom, 101);
    Boxes several; // without DT_SINGLELINE the two count nothing
    several.Draw("apple", {0, 10, 190, 101}, DT_BOTTOM);
    EXPECT_EQ(several.Ink().Top, 10);
}

TEST(DrawText, LinesEndAtEveryKindOfLineEnd) {
    Boxes boxes;
    EXPECT_EQ(boxes.Draw("a\r\nb\nc\rd", {0, 0, 200, 120}, 0), 4 * boxes.height);
    EXPECT_EQ(boxes.Draw("a\n\nb", {0, 0, 200, 120}, 0), 3 * boxes.height);
    EXPECT_EQ(boxes.Draw("a\n", {0, 0, 200, 120}, 0), boxes.height);
    EXPECT_EQ(boxes.Draw("a\nb", {0, 0, 200, 120}, DT_SINGLELINE), boxes.height);
}

TEST(DrawText, ClipsToTheRectangleUnlessToldNotTo) {
    Boxes boxes;
    boxes.Draw("wide apple", {10, 10, 30, 15}, 0);
    EXPECT_EQ(boxes.Ink(), (tvok_Rect{10, 10, 30, 15}));
    boxes.Draw("wide apple", {10, 10, 30, 15}, DT_NOCLIP);
    EXPECT_EQ(boxes.Ink().Right, 10 + boxes.dc.TextWidth("wide apple"));
    Boxes none;
    EXPECT_EQ(none.Draw("apple", {30, 10, 10, 15}, 0), none.height);
    EXPECT_EQ(none.Ink(), tvok_Rect{});
}

TEST(DrawText, MeasuringDrawsNothingAndSetsTheRectangle) {
    Boxes boxes;
    const std::int32_t width = boxes.dc.TextWidth("apple");
    EXPECT_EQ(boxes.Calculated("apple", {5, 6, 7, 8}, DT_SINGLELINE),
              (tvok_Rect{5, 6, 5 + width, 6 + boxes.height}));
    EXPECT_EQ(boxes.Calculated("i\napple\ni", {5, 6, 7, 8}, DT_RIGHT),
              (tvok_Rect{5, 6, 5 + width, 6 + 3 * boxes.height}));
    EXPECT_EQ(boxes.Ink(), tvok_Rect{});
}

TEST(DrawText, AnEmptyTextIsALineHighAndMeasuresNothing) {
    Boxes boxes;
    EXPECT_EQ(boxes.Draw("", {0, 0, 9, 9}, 0), boxes.height);
    EXPECT_EQ(boxes.Calculated("", {5, 6, 70, 80}, DT_SINGLELINE), (tvok_Rect{5, 6, 5, 6 + boxes.height}));
    EXPECT_EQ(boxes.Calculated("", {5, 6, 70, 80}, 0), (tvok_Rect{5, 6, 5, 6}));
}

TEST(DrawText, WrapsAtWords) {
    Boxes boxes;
    const std::int32_t width = boxes.dc.TextWidth("apple pear");
    const tvok_Rect rect{0, 0, width + 2, 100};
    EXPECT_EQ(boxes.Draw("apple pear plum", rect, DT_WORDBREAK), 2 * boxes.height);
    EXPECT_EQ(boxes.Ink(), (tvok_Rect{0, 0, width, 2 * boxes.height}));
    EXPECT_EQ(boxes.Draw("apple pear plum", rect, DT_WORDBREAK | DT_SINGLELINE), boxes.height);
    EXPECT_EQ(boxes.Calculated("apple pear plum", rect, DT_WORDBREAK),
              (tvok_Rect{0, 0, width, 2 * boxes.height}));
}

TEST(DrawText, MeasuringWrappedTextWidensForALongWord) {
    Boxes boxes;
    EXPECT_EQ(boxes.Calculated("a pineapple", {0, 0, 10, 5}, DT_WORDBREAK).Right,
              boxes.dc.TextWidth("pineapple"));
}

TEST(DrawText, AMarkUnderlinesTheNextCharacter) {
    DrawnSurface canvas(100, 30);
    const tvok_Rect rect{0, 0, 100, 30};
    tvok_Rect box = rect;
    canvas.dc.DrawText("  & ", box, DT_SINGLELINE); // the third blank is underlined
    const soft::FontMetrics metrics = canvas.dc.Metrics();
    const std::int32_t blank = canvas.dc.TextWidth(" ");
    const std::int32_t top = metrics.ascent + metrics.underline;
    EXPECT_EQ(canvas.Ink(), (tvok_Rect{2 * blank, top, 3 * blank, top + metrics.lineWidth}));
}

TEST(DrawText, MarksTakeNoRoom) {
    Boxes boxes;
    const auto width = [&](std::string_view text, std::int32_t flags) {
        return boxes.Calculated(text, {}, DT_SINGLELINE | flags).Right;
    };
    EXPECT_EQ(width("&Open", 0), boxes.dc.TextWidth("Open"));
    EXPECT_EQ(width("A && B", 0), boxes.dc.TextWidth("A & B"));
    EXPECT_EQ(width("Open&", 0), boxes.dc.TextWidth("Open"));
    EXPECT_EQ(width("&Open", DT_NOPREFIX), boxes.dc.TextWidth("&Open"));
}

TEST(DrawText, TwoMarksShowOneAndUnderlineNothing) {
    DrawnSurface marked(100, 30), plain(100, 30);
    tvok_Rect rect{0, 0, 100, 30};
    marked.dc.DrawText("a&&b", rect, DT_SINGLELINE);
    plain.dc.DrawText("a&b", rect, DT_SINGLELINE | DT_NOPREFIX);
    EXPECT_EQ(marked.Picture(), plain.Picture());
}

TEST(DrawText, AMarkInALaterLineUnderlinesThere) {
    DrawnSurface canvas(100, 60);
    tvok_Rect rect{0, 0, 100, 60};
    canvas.dc.DrawText("  \n & ", rect, 0);
    const soft::FontMetrics metrics = canvas.dc.Metrics();
    EXPECT_EQ(canvas.Ink().Top, metrics.height + metrics.ascent + metrics.underline);
    EXPECT_EQ(canvas.Ink().Left, canvas.dc.TextWidth(" "));
}

TEST(DrawText, TabsGoToTheNextStop) {
    Boxes boxes;
    const auto widthOf = [&](std::string_view text) {
        return boxes.Calculated(text, {}, DT_EXPANDTABS).Right - boxes.dc.TextWidth("x");
    };
    const std::int32_t stop = widthOf("\tx");
    EXPECT_GT(stop, 4 * boxes.dc.TextWidth("x"));
    EXPECT_EQ(widthOf("ab\tx"), stop);
    EXPECT_EQ(widthOf("\t\tx"), 2 * stop);
    EXPECT_EQ(widthOf("mmmmmmm\tx"), 2 * stop);
    boxes.Draw("\tx", {0, 0, 200, 30}, DT_EXPANDTABS);
    EXPECT_EQ(boxes.Ink().Left, stop);
}

TEST(DrawText, DoesNotFollowTheTextAlignment) {
    Boxes boxes;
    boxes.dc.TextAlign(TA_RIGHT | TA_BOTTOM);
    boxes.Draw("apple", {10, 20, 190, 110}, 0);
    EXPECT_EQ(boxes.Ink().Left, 10);
    EXPECT_EQ(boxes.Ink().Top, 20);
}

} // namespace
} // namespace tvok::test
