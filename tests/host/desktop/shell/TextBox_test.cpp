#include "tvok/host/desktop/TextBox.h"

#include <algorithm>
#include <string>

#include <gmock/gmock.h>

#include "tests/support/TestDesktop.h"
#include "tvok/host/desktop/shell/Clipboard.h"

namespace tvok {
namespace {

using namespace host;
using test::TestDesktop;

class TextBoxTest : public testing::Test {
protected:
    TextBoxTest() { box.Text("one two three"); }

    void With(std::int32_t modifier, std::int32_t key) {
        desktop.HoldKey(modifier);
        desktop.Key(key);
        desktop.LetGoKey(modifier);
    }
    void Focus() { desktop.Focus(box); }
    /// Pixels from the left edge of the client area to the place behind this many characters, in the middle
    /// of the line.
    std::int32_t XBehind(std::size_t bytes) {
        tvok_Rect rect;
        if (bytes > 0)
            platform().DrawTextA(desktop.form().ComponentOf(box).hDC(), box.Text().data(),
                                 static_cast<std::int32_t>(bytes), rect,
                                 DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX);
        return rect.Right + 3;
    }
    bool ShowsColor(std::int32_t systemColor) {
        const auto color = static_cast<std::uint32_t>(platform().GetSysColor(systemColor));
        const std::uint32_t pixel = (color & 0xFF) << 16 | (color & 0xFF00) | color >> 16;
        return std::ranges::count(desktop.Pixels(box), pixel) > 20;
    }

    TestDesktop desktop;
    TextBox& box = desktop.form().Add<TextBox>("text", {10, 10, 160, 24});
};

TEST_F(TextBoxTest, TypingGoesToTheCaret) {
    Focus();
    desktop.Key(VK_END);
    desktop.Type("!");
    desktop.Key(VK_HOME);
    desktop.Type("\xC3\xA4"
                 "A");
    EXPECT_EQ(box.Text(), "\xC3\xA4"
                          "Aone two three!");
    EXPECT_EQ(box.SelStart(), 2);
}

TEST_F(TextBoxTest, ACharacterOfTwoUnitsIsTypedAsOne) {
    Focus();
    desktop.Type("\U0001F600");
    EXPECT_EQ(box.Text(), "\U0001F600one two three");
    desktop.Key(VK_BACK);
    EXPECT_EQ(box.Text(), "one two three");
}

TEST_F(TextBoxTest, ChangeIsRaisedForEachRealChangeByUserOrWrite) {
    Focus();
    int changes = 0;
    box.events.Change = [&] { ++changes; };
    desktop.Type("x");
    desktop.Key(VK_BACK);
    desktop.Key(VK_BACK); // nothing stands before the caret
    EXPECT_EQ(changes, 2);
    box.Text("new");
    box.Text("new");
    EXPECT_EQ(changes, 3);
}

TEST_F(TextBoxTest, KeysMoveAndSelect) {
    Focus();
    With(VK_CONTROL, VK_RIGHT);
    EXPECT_EQ(box.SelStart(), 4);
    desktop.HoldKey(VK_SHIFT);
    With(VK_CONTROL, VK_RIGHT);
    desktop.Key(VK_LEFT);
    desktop.LetGoKey(VK_SHIFT);
    EXPECT_EQ(box.SelText(), "two");
    desktop.Key(VK_RIGHT); // to the end of the selection and no further
    EXPECT_EQ(box.SelStart(), 7);
    EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(TextBoxTest, EraseKeysTakeTheSelectionACharacterOrAWord) {
    Focus();
    With(VK_CONTROL, VK_DELETE);
    EXPECT_EQ(box.Text(), "two three");
    desktop.Key(VK_DELETE);
    EXPECT_EQ(box.Text(), "wo three");
    box.Select(3, 5);
    desktop.Key(VK_BACK);
    EXPECT_EQ(box.Text(), "wo ");
    With(VK_CONTROL, VK_BACK);
    EXPECT_EQ(box.Text(), "");
}

TEST_F(TextBoxTest, ControlKeysCopyCutAndPaste) {
    Focus();
    With(VK_CONTROL, 'A');
    With(VK_CONTROL, 'C');
    EXPECT_EQ(soft::clipboard().Text(), "one two three");
    box.Select(0, 4);
    With(VK_CONTROL, 'X');
    EXPECT_EQ(box.Text(), "two three");
    desktop.Key(VK_END);
    With(VK_CONTROL, 'V');
    EXPECT_EQ(box.Text(), "two threeone ");
    With(VK_CONTROL, 'Z');
    EXPECT_EQ(box.Text(), "two three");
}

TEST_F(TextBoxTest, AReadOnlyBoxCanBeCopiedFromOnly) {
    box.ReadOnly(true);
    Focus();
    soft::clipboard().Text("other");
    desktop.Type("x");
    desktop.Key(VK_DELETE);
    With(VK_CONTROL, 'V');
    With(VK_CONTROL, 'A');
    With(VK_CONTROL, 'X');
    EXPECT_EQ(box.Text(), "one two three");
    EXPECT_EQ(soft::clipboard().Text(), "one two three");
}

TEST_F(TextBoxTest, ADragSelectsAndADoubleClickTakesTheWord) {
    desktop.Drag(box, {XBehind(4), 10}, {XBehind(7), 10});
    EXPECT_EQ(box.SelText(), "two");
    desktop.Click(box, XBehind(1), 10);
    EXPECT_EQ(box.SelStart(), 1);
    EXPECT_EQ(box.SelLength(), 0);
    desktop.DoubleClick(box, XBehind(10), 10);
    EXPECT_EQ(box.SelText(), "three");
}

TEST_F(TextBoxTest, ADragBeyondTheEdgesSelectsToTheEnds) {
    desktop.Drag(box, {XBehind(4), 10}, {500, 200});
    EXPECT_EQ(box.SelText(), "two three");
}

TEST_F(TextBoxTest, AShiftClickExtendsTheSelection) {
    desktop.Click(box, XBehind(4), 10);
    desktop.HoldKey(VK_SHIFT);
    desktop.Click(box, XBehind(7), 10);
    desktop.LetGoKey(VK_SHIFT);
    EXPECT_EQ(box.SelText(), "two");
}

TEST_F(TextBoxTest, ALongTextScrollsSoThatTheCaretShows) {
    box.Text(std::string(100, 'W') + "i");
    Focus();
    const auto front = desktop.Pixels(box);
    desktop.Key(VK_END);
    EXPECT_NE(desktop.Pixels(box), front);
    desktop.Click(box, 158, 10); // the right edge shows the end
    EXPECT_EQ(box.SelStart(), 101);
    desktop.Key(VK_HOME);
    EXPECT_EQ(desktop.Pixels(box), front);
}

TEST_F(TextBoxTest, TheSelectionIsHighlightedWhileTheBoxHasTheFocus) {
    Focus();
    EXPECT_FALSE(ShowsColor(COLOR_HIGHLIGHT));
    box.Select(0, 13);
    desktop.Pump();
    EXPECT_TRUE(ShowsColor(COLOR_HIGHLIGHT));
    desktop.FocusAway();
    EXPECT_FALSE(ShowsColor(COLOR_HIGHLIGHT));
}

TEST_F(TextBoxTest, EnterIsAnEventAndNoCharacter) {
    Focus();
    int enters = 0;
    box.events.Enter = [&] { ++enters; };
    desktop.Key(VK_RETURN);
    desktop.Key(VK_ESCAPE);
    EXPECT_EQ(enters, 1);
    EXPECT_EQ(box.Text(), "one two three");
}

TEST_F(TextBoxTest, AHandlerMayChangeTheKeyOrRemoveTheBox) {
    Focus();
    box.events.KeyDown = [](std::int16_t& key, std::int16_t&) {
        if (key == VK_HOME) key = VK_END;
    };
    desktop.Key(VK_HOME);
    EXPECT_EQ(box.SelStart(), 13);
    box.events.Change = [&] { desktop.form().Remove(box); };
    desktop.Type("x");
    EXPECT_EQ(desktop.form().Find("text"), nullptr);
}

TEST_F(TextBoxTest, TheLengthIsLimitedInCharacters) {
    box.MaxLength(4);
    box.Text("\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F"
             "abc");
    EXPECT_EQ(box.Text(), "\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F");
    Focus();
    desktop.Type("x");
    EXPECT_EQ(box.Text(), "\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F");
    box.MaxLength(-1);
    EXPECT_EQ(box.MaxLength(), 4);
}

} // namespace
} // namespace tvok
