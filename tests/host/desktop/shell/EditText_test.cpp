#include "tvok/host/desktop/shell/EditText.h"

#include <random>

#include <gtest/gtest.h>

#include "tvok/records/text.h"

namespace tvok::soft {
namespace {

/// e with an acute accent of its own, a family of four in one picture, and a flag of two letters.
const std::string AccentedE = "e\xCC\x81";
const std::string Family = "\U0001F468\u200D\U0001F469\u200D\U0001F467\u200D\U0001F466";
const std::string Flag = "\U0001F1F3\U0001F1F1";

EditText With(const std::string& text, std::size_t caret) {
    EditText edit;
    edit.Text(text);
    edit.MoveTo(caret, false);
    return edit;
}

TEST(EditText, TypingGoesToTheCaretAndMovesIt) {
    EditText edit = With("ad", 1);
    EXPECT_TRUE(edit.Insert("bc"));
    EXPECT_EQ(edit.Text(), "abcd");
    EXPECT_EQ(edit.Caret(), 3u);
}

TEST(EditText, TypingReplacesTheSelection) {
    EditText edit = With("one two", 0);
    edit.MoveTo(3, true);
    EXPECT_EQ(edit.SelectedText(), "one");
    EXPECT_TRUE(edit.Insert("1"));
    EXPECT_EQ(edit.Text(), "1 two");
    EXPECT_FALSE(edit.HasSelection());
}

TEST(EditText, ALetterAndItsAccentsAreOneCharacter) {
    EditText edit = With("a" + AccentedE + "b", 0);
    EXPECT_EQ(edit.After(1), 4u);
    EXPECT_EQ(edit.Before(4), 1u);
    edit.MoveTo(2, false);
    EXPECT_EQ(edit.Caret(), 1u);
}

TEST(EditText, AnEmojiAndWhatModifiesItAreOneCharacter) {
    for (const std::string& emoji : {Family, Flag}) {
        EditText edit = With(emoji, emoji.size());
        EXPECT_EQ(edit.Before(edit.Caret()), 0u);
        EXPECT_TRUE(edit.Erase(edit.Before(edit.Caret()), edit.Caret()));
        EXPECT_EQ(edit.Text(), "");
    }
}

TEST(EditText, TheCaretGoesBehindWhatAnAccentJoined) {
    EditText edit = With("\xCC\x81", 0);
    edit.Insert("e");
    EXPECT_EQ(edit.Text(), AccentedE);
    EXPECT_EQ(edit.Caret(), 3u);
}

TEST(EditText, WordMovesStopAtTheStartsOfWords) {
    const EditText edit = With("one  two, three", 0);
    EXPECT_EQ(edit.WordAfter(0), 5u);
    EXPECT_EQ(edit.WordAfter(5), 8u);
    EXPECT_EQ(edit.WordAfter(8), 10u);
    EXPECT_EQ(edit.WordAfter(10), 15u);
    EXPECT_EQ(edit.WordAfter(15), 15u);
    EXPECT_EQ(edit.WordBefore(15), 10u);
    EXPECT_EQ(edit.WordBefore(10), 8u);
    EXPECT_EQ(edit.WordBefore(5), 0u);
    EXPECT_EQ(edit.WordBefore(0), 0u);
}

TEST(EditText, ADoubleClickTakesTheWord) {
    EditText edit = With("one two three", 0);
    edit.SelectWordAt(5);
    EXPECT_EQ(edit.SelectedText(), "two");
    edit.SelectWordAt(13);
    EXPECT_EQ(edit.SelectedText(), "three");
    EditText empty;
    empty.SelectWordAt(0);
    EXPECT_FALSE(empty.HasSelection());
}

TEST(EditText, OnlyTheFirstLineIsTaken) {
    EXPECT_EQ(EditText::Clean("a\tb\r\nc"), "a b");
    EXPECT_EQ(EditText::Clean(std::string_view("a\0\x1B"
                                               "b\x7F",
                                               5)),
              "ab");
    EXPECT_EQ(EditText::Clean("a\xFF"), "a\xEF\xBF\xBD");
}

TEST(EditText, TheMostCharactersAreKept) {
    EditText edit;
    edit.MaxLength(3);
    edit.Text("abcdef");
    EXPECT_EQ(edit.Text(), "abc");
    edit.MoveTo(3, false);
    EXPECT_FALSE(edit.Insert("x"));
    edit.MoveTo(1, true);
    EXPECT_TRUE(edit.Insert("\xC3\xA4xyz"));
    EXPECT_EQ(edit.Text(), "a\xC3\xA4x");
}

TEST(EditText, UndoTakesBackOneChangeAfterTheOther) {
    EditText edit = With("ab", 2);
    edit.Insert("c");
    edit.Erase(0, 1);
    EXPECT_TRUE(edit.Undo());
    EXPECT_EQ(edit.Text(), "abc");
    EXPECT_TRUE(edit.Undo());
    EXPECT_EQ(edit.Text(), "ab");
    EXPECT_FALSE(edit.Undo());
}

TEST(EditText, RandomEditingKeepsThePlacesBetweenCharacters) {
    const std::vector<std::string> pieces{"a",  " ",        AccentedE,      Family,
                                          Flag, "\xCC\x81", "\xE4\xB8\xAD", "\u200D"};
    std::mt19937 random(4);
    EditText edit;
    for (int step = 0; step < 5000; ++step) {
        const std::size_t place = random() % (edit.Text().size() + 1);
        switch (random() % 6) {
        case 0: edit.Insert(pieces[random() % pieces.size()]); break;
        case 1: edit.MoveTo(place, random() % 2 == 0); break;
        case 2: edit.Erase(edit.Before(edit.Caret()), edit.Caret()); break;
        case 3: edit.EraseSelection(); break;
        case 4: edit.MoveTo(edit.WordAfter(edit.Caret()), true); break;
        default: edit.Undo(); break;
        }
        ASSERT_LE(edit.Caret(), edit.Text().size());
        ASSERT_EQ(edit.AtOrBefore(edit.Caret()), edit.Caret());
        ASSERT_EQ(EditText::Clean(edit.Text()), edit.Text());
        if (edit.Text().size() > 200) edit.Text("");
    }
}

} // namespace
} // namespace tvok::soft
