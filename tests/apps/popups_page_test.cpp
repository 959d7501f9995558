// The gallery's popups on a desktop, by a user's mouse and keys.
#include "apps/gallery/PopupsPage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/TestDesktop.h"

namespace gallery {
namespace {

using testing::HasSubstr;

class PopupsPageTest : public testing::Test {
protected:
    PopupsPageTest() {
        desktop_.form().Size(980, 640);
        page_.Layout({0, 0, 980, 640});
        desktop_.Pump();
    }

    std::string Newest() {
        tvok::qrosterdata line;
        page_.log().GetData(1, line);
        return line.text;
    }
    void Press(PopupsPage::Kind kind, std::int32_t x = 10) { desktop_.Press(page_.strip(kind), x, 10); }

    tvok::test::TestDesktop desktop_;
    PopupsPage page_{desktop_.desktop(), desktop_.form()};
};

TEST_F(PopupsPageTest, ADragIntoTheGridAndAReleaseChoosesAColor) {
    Press(PopupsPage::Color);
    desktop_.MoveTo(page_.strip(PopupsPage::Color), 17 * 3 + 8, 48 + 8);
    EXPECT_EQ(page_.ChosenColor(), 0x0000FF);
    desktop_.Release();
    EXPECT_EQ(page_.ChosenColor(), 0x0000FF);
    EXPECT_THAT(Newest(), HasSubstr("Click(4, accepted)"));
}

TEST_F(PopupsPageTest, EscTakesTheColorBack) {
    const tvok::OLE_COLOR before = page_.ChosenColor();
    Press(PopupsPage::Color);
    desktop_.Release();
    desktop_.MoveTo(page_.strip(PopupsPage::Color), 17 * 3 + 8, 48 + 8);
    EXPECT_NE(page_.ChosenColor(), before);
    desktop_.Key(tvok::host::VK_ESCAPE);
    EXPECT_EQ(page_.ChosenColor(), before);
    EXPECT_THAT(Newest(), HasSubstr("cancelled"));
}

TEST_F(PopupsPageTest, ALetterJumpsInTheListOfAMillion) {
    Press(PopupsPage::Virtual);
    desktop_.Release();
    desktop_.Key('C');
    EXPECT_EQ(page_.popup(PopupsPage::Virtual).ListIndex(), PopupsPage::FirstEntry('C'));
    EXPECT_THAT(page_.Text(PopupsPage::Virtual), HasSubstr("Cedar 76,925"));
    desktop_.Key(tvok::host::VK_RETURN);
    EXPECT_THAT(Newest(), HasSubstr("Click(76,925, accepted)"));
}

TEST_F(PopupsPageTest, AListThatWasCancelledOpensAtTheOldEntry) {
    const std::string before = page_.Text(PopupsPage::Stored);
    Press(PopupsPage::Stored);
    desktop_.Release();
    desktop_.Key(tvok::host::VK_END);
    EXPECT_NE(page_.Text(PopupsPage::Stored), before);
    desktop_.Key(tvok::host::VK_ESCAPE);
    EXPECT_EQ(page_.Text(PopupsPage::Stored), before);
    EXPECT_EQ(page_.popup(PopupsPage::Stored).ListIndex(), 3);
}

TEST_F(PopupsPageTest, EachLetterBeginsWhereItsFirstEntryStands) {
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const std::int32_t first = PopupsPage::FirstEntry(letter);
        EXPECT_EQ(PopupsPage::EntryText(first).front(), letter);
        EXPECT_TRUE(first == 1 || PopupsPage::EntryText(first - 1).front() == letter - 1) << letter;
    }
    EXPECT_EQ(PopupsPage::EntryText(PopupsPage::Entries).front(), 'Z');
    EXPECT_EQ(PopupsPage::FirstEntry('7'), 0);
}

} // namespace
} // namespace gallery
