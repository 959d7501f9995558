// The item text form behind `ItemsStr`.

#include "tests/support/FakeRoster.h"

namespace tvok::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The text form.

TEST(qRosterItems, ItemsStrRoundTripKeepsOrderAndFieldsButNotSelectionAndItemDataEx) {
    FakeRoster from({.xn = 2});
    from.list.AddItem(
        0, {.text = "bee", .key = "k", .IconID = 4, .ItemData = 1, .ItemDataEx = 2, .vflag = 0x18});
    from.list.AddItem(1, {.text = "ant", .bColor = 0x123456, .vflag = vflag::Selected});
    from.list.Refresh();
    from.list.HeadWidthEx(12);
    const auto text = from.list.ItemsStr();
    FakeRoster to({}, {"gone"});
    to.list.ItemsStr(text);
    EXPECT_THAT(to.Texts(), ElementsAre("ant", "bee"));
    EXPECT_THAT(to.Selected(), IsEmpty());
    EXPECT_EQ(to.Data(2), (qrosterdata{.text = "bee",
                                       .key = "k",
                                       .IconID = 4,
                                       .ItemData = 1,
                                       .ItemDataEx = 0,
                                       .vflag = vflag::InUse | 0x18}));
    EXPECT_EQ(to.Data(1).bColor, 0x123456);
    EXPECT_EQ(to.list.xn(), 2);
    EXPECT_EQ(to.list.HeadWidthEx(), 12);
    EXPECT_EQ(to.list.ItemsStr(), text);
}

TEST(qRosterItems, SelectionLeavesNoTraceInTheTextForm) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    const auto before = roster.list.ItemsStr();
    roster.list.ListIndex(2);
    EXPECT_EQ(roster.list.ItemsStr(), before);
}

TEST(qRosterItems, WritingItemsStrClearsTheListAndLeavesTheRefreshToTheHost) {
    FakeRoster roster({}, Numbered(9));
    roster.list.ListIndex(3);
    roster.log().Clear();
    roster.list.ItemsStr("107=ant\r\n999\r\n107=bee\r\n999\r\n");
    EXPECT_THAT(roster.Texts(), ElementsAre("ant", "bee"));
    EXPECT_EQ(roster.list.ListIndex(), 0);
    EXPECT_THAT(roster.TakeDrawn(), IsEmpty()); // Clear painted blanks, and nothing was painted since
    roster.list.Refresh();
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre("ant", "bee"));
}

TEST(qRosterItems, AnEmptyTextEmptiesTheList) {
    FakeRoster roster({}, {"ant"});
    roster.list.ItemsStr("");
    EXPECT_EQ(roster.list.Count(), 0);
}

TEST(qRosterItems, ItemsReadFromATextAreTakenOnByAddAndRemove) {
    FakeRoster roster;
    roster.list.ItemsStr("107=ant\r\n999\r\n107=bee\r\n999\r\n107=cat\r\n999\r\n");
    roster.list.RemoveItem(2);
    roster.list.AddItem(0, {.text = "dog"});
    roster.list.AddItem(1, {.text = "new"});
    roster.list.Refresh();
    EXPECT_THAT(roster.Texts(), ElementsAre("new", "ant", "cat", "dog"));
}

TEST(qRosterItems, BrokenTextFormsAreReadByTheRulesAndNeverEndInAnError) {
    const std::vector<std::string> texts = {
        "999",
        "999\r\n999\r\n",
        "=\r\n==\r\n\r\n999\r\n",
        "107=no end",
        "107=ant\n999\n",
        "18=99999999999999999999\r\n999\r\n",
        "18=-5\r\n19=-5\r\n13=-4000000000\r\n999\r\n",
        "107=a\r\n99999999999999999999=b\r\n999\r\n",
        std::string("107=a\0b\r\n999\r\n\0\r\n", 17),
        "107=\xFF\xFE\xC3\r\n999\r\n",
        "109=&HFFFFFFFF&\r\n999\r\n",
        "104=&HZZ&\r\n105=abc\r\n999\r\n",
        std::string(100000, '='),
        std::string(100000, '9') + "\r\n",
    };
    for (const auto& text : texts) {
        FakeRoster roster({}, {"ant"});
        EXPECT_NO_THROW(roster.list.ItemsStr(text)) << text.substr(0, 40);
        try {
            roster.list.Refresh();
        } catch (const Error&) { // settings that do not fit may end in an overflow
        }
        roster.list.Clear();
    }
}

TEST(qRosterItems, AGridOfAnAbsurdSizeFromATextEndsInAnErrorAndTheListCanBeUsedAgain) {
    for (const char* grid : {"18=2000000000\r\n", "19=2000000000\r\n", "18=100000\r\n19=100000\r\n"}) {
        FakeRoster roster;
        roster.list.ItemsStr(std::string(grid) + "107=ant\r\n999\r\n");
        EXPECT_EQ(roster.list.Count(), 1);
        EXPECT_THROW(roster.list.Refresh(), Error) << grid;
        try {
            roster.list.xn(1);
        } catch (const Error&) { // the rows are still too many
        }
        roster.list.yn(5);
        roster.log().Clear();
        roster.list.Refresh();
        EXPECT_THAT(roster.TakeDrawn(), ElementsAre("ant"));
    }
}

TEST(qRosterItems, ALineNineHundredNinetyNineAloneAddsTheWorkingRecord) {
    FakeRoster roster;
    roster.list.ItemsStr("999\r\n107=ant\r\n999\r\n999\r\n");
    EXPECT_THAT(roster.Texts(), ElementsAre("", "ant", "ant"));
}

TEST(qRosterItems, TextsWithZeroBytesAndInvalidUtf8AreKeptAndPainted) {
    FakeRoster roster;
    const std::string odd("a\0b\xFF\xC3", 5);
    roster.list.AddItem(0, {.text = odd});
    roster.list.Refresh();
    EXPECT_EQ(roster.Data(1).text, odd);
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre(odd));
    EXPECT_EQ(roster.list.FindItem(odd), 1);
    roster.list.StrSeekItem("\xFF");
    EXPECT_EQ(roster.list.ListIndex(), 0);
}

} // namespace
} // namespace tvok::test
