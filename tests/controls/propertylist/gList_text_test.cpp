// A property list as text: what is written, how a text is read, and what is lost on the way and back.
#include <random>

#include "tests/support/PlainSort.h"
#include "tests/support/PropertyListDesktop.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using List = PropertyListDesktop;

/// A value row whose text has no line but those that a test gives it.
elistdata Plain(const std::string& caption = {}, const std::string& key = {}) {
    elistdata item;
    item.bVisible = true;
    item.hItem.text = caption;
    item.hItem.key = key;
    return item;
}

/// The text behind the line 998, with its line ends as "|".
std::string Items(const List& at) {
    const std::string text = at.list->ItemsStr();
    const std::size_t start = text.find("\r\n998\r\n");
    EXPECT_NE(start, std::string::npos);
    std::string items = text.substr(start + 7);
    for (std::size_t place; (place = items.find("\r\n")) != std::string::npos;) items.replace(place, 2, "|");
    return items;
}

/// Reads a text that is written with "|" for its line ends, and gives the records of the slots.
std::vector<elistdata> Read(List& at, std::string text) {
    for (std::size_t place; (place = text.find('|')) != std::string::npos;) text.replace(place, 1, "\r\n");
    at.list->ItemsStr(text);
    std::vector<elistdata> items;
    elistdata item;
    for (std::int32_t slot = 1; at.list->GetItem(item, {}, -slot) != 0; ++slot) items.push_back(item);
    return items;
}

std::vector<elistdata> Read(const std::string& text) {
    List at;
    return Read(at, text);
}

std::vector<std::string> Captions(const std::vector<elistdata>& items) {
    std::vector<std::string> captions;
    for (const elistdata& item : items) captions.push_back(item.hItem.text);
    return captions;
}

// What is written.

TEST(gListText, AnEmptyStoreGivesTheSettingsAndTheLineThatStartsTheItems) {
    List at;
    EXPECT_EQ(at.list->ItemsStr(), "1=&H80000005&\r\n2=0\r\n3=20\r\n4=0\r\n5=&H80000016&\r\n6=0\r\n7=1\r\n"
                                   "8=&H80000016&\r\n10=15\r\n11=&H80000006&\r\n12=&H1011010&\r\n13=" +
                                       std::to_string(18 - at.list->TextHeight()) +
                                       "\r\n15=&H8000000D&\r\n24=0\r\n28=-1\r\n998\r\n");
}

TEST(gListText, EverySettingHasItsLine) {
    List at;
    at.list->BackColor(0xA);
    at.list->BorderStyle(1);
    at.list->CX_TEXT(-3);
    at.list->FixedHeight(true);
    at.list->GridlineColor(0);
    at.list->GridlineOnBorder(true);
    at.list->GridlineWidth(4);
    at.list->HeadExBackColor(-1);
    at.list->HeadExBorderColor(77);
    at.list->HeadWidthEx(6);
    at.list->IconBorderColor(0xBCDEF);
    at.list->IconPos(-2);
    at.list->ItemHeight(33);
    at.list->SelectedColor(9);
    at.list->ListMode(1);
    at.list->Sorted(false);
    EXPECT_EQ(at.list->ItemsStr(),
              "1=&HA&\r\n2=1\r\n3=-3\r\n4=-1\r\n5=&H0&\r\n6=-1\r\n7=4\r\n8=&HFFFFFFFF&\r\n"
              "10=6\r\n11=&HBCDEF&\r\n12=&HFFFFFFFE&\r\n13=" +
                  std::to_string(33 - at.list->TextHeight()) + "\r\n15=&H9&\r\n24=1\r\n28=0\r\n998\r\n");
}

TEST(gListText, AChildIsToldAsADifferenceFromItsGroup) {
    List at;
    elistdata group = Plain("Size", "g1"), child = Plain("Width", "w");
    group.bParentItem = true;
    child.pKey = "g1";
    child.xbuttons = ";ns";
    at.list->AddItem(group);
    at.list->AddItem(child);
    EXPECT_EQ(Items(at), "20=-1|107=Size|108=g1|999|20=0|22=g1|23=;ns|107=Width|108=w|999|");
}

TEST(gListText, EveryFieldHasItsLineInItsPlace) {
    List at;
    elistdata item = List::Group("key");
    item.pKey = "parent";
    item.bVisible = false;
    item.xbuttons = "b|1|2;own";
    item.HelpStr = "help";
    item.hItem = {.text = "caption",
                  .key = "key",
                  .IconID = -7,
                  .IconBackColor = 0xC,
                  .IconPos = 0xD,
                  .ItemData = 14,
                  .ItemDataEx = 15,
                  .bColor = 0xA,
                  .fcolor = 0xB,
                  .vflag = vflag::Selected | vflag::InUse | vflag::Bold};
    item.item = {.text = "value",
                 .key = "inner",
                 .IconID = 27,
                 .IconBackColor = 0x2C,
                 .IconPos = 0x2D,
                 .ItemData = -24,
                 .ItemDataEx = 25,
                 .bColor = 0x2A,
                 .fcolor = 0x2B,
                 .vflag = vflag::Selected | vflag::Editor};
    item.nData = "data";
    at.list->AddItem(item);
    EXPECT_EQ(Items(at),
              "20=-1|21=0|22=parent|23=b|1|2;own|29=help|101=&HA&|102=&HB&|103=&HC&|104=&HD&|105=-7|"
              "106=14|107=caption|108=key|109=&H80100000&|201=&H2A&|202=&H2B&|203=&H2C&|204=&H2D&|"
              "205=27|206=-24|208=inner|209=&H40000002&|999|");
}

TEST(gListText, TheSelectionCausesNoLine) {
    List at;
    at.Show({List::Value("a"), List::Value("b")});
    const std::string before = at.list->ItemsStr();
    at.list->ListIndex(1);
    EXPECT_EQ(at.list->ItemsStr(), before);
}

TEST(gListText, AFoldedGroupStaysFolded) {
    List at({.ListMode = 1});
    elistdata group = List::Group("g");
    group.hItem.vflag = vflag::Collapsed;
    at.Show({group, List::Value("child", "g")});
    EXPECT_THAT(Items(at), HasSubstr("109=&H20000000&|"));
    List other({.ListMode = 1});
    other.list->ItemsStr(at.list->ItemsStr());
    other.list->BuiltList();
    EXPECT_THAT(other.Keys(), ElementsAre("g"));
}

TEST(gListText, ItemsStandInTheOrderOfTheirCaptionsEvenWhereTheListIsNotSorted) {
    List at({.Sorted = false});
    for (const char* caption : {"B", "A", "b"}) at.list->AddItem(Plain(caption));
    EXPECT_EQ(Items(at), "107=A|999|107=B|999|107=b|999|");
    List other;
    other.list->ItemsStr(at.list->ItemsStr());
    EXPECT_EQ(other.Slot(1).hItem.text, "A") << "the order of the store is lost";
    at.list->BuiltList();
    EXPECT_EQ(at.Row(1).hItem.text, "B") << "rows keep it";
}

TEST(gListText, TheSortTakesFreeSlotsIntoAccountAndTheTextLeavesThemOut) {
    List at;
    std::vector<std::string> captions{""};
    std::vector<std::int32_t> order{0};
    for (std::int32_t slot = 1; slot <= 40; ++slot) {
        elistdata item = Plain(std::string(1, static_cast<char>('a' + slot * 7 % 3)));
        item.hItem.ItemData = slot;
        at.list->AddItem(item);
        captions.push_back(item.hItem.text);
        order.push_back(slot);
    }
    at.list->events.EnumItems = [](elistdata& x, std::int32_t) { x.bDelete = x.hItem.ItemData % 4 == 0; };
    at.list->ReqEnumItems(0);
    PlainSort plain(
        order, true,
        [&](std::int32_t slot) -> const std::string& { return captions[static_cast<std::size_t>(slot)]; },
        CompareBytes);
    plain.Sort(1, 40);
    std::vector<std::int32_t> expected, written;
    for (std::size_t i = 1; i <= 40; ++i)
        if (order[i] % 4 != 0) expected.push_back(order[i]);
    List other;
    for (const elistdata& item : Read(other, at.list->ItemsStr())) written.push_back(item.hItem.ItemData);
    EXPECT_EQ(written, expected);
}

TEST(gListText, AfterClearThereAreNoItemsInIt) {
    List at;
    at.Show({List::Value("a"), List::Value("b")});
    at.list->Clear();
    EXPECT_EQ(Items(at), "");
}

TEST(gListText, ItemsThatDifferInNothingThatIsWrittenHaveNoLineBetweenThem) {
    List at;
    elistdata item = Plain("a");
    at.list->AddItem(item);
    item.nData = 5;
    item.item.text = "t";
    item.item.ItemDataEx = item.hItem.ItemDataEx = 3;
    at.list->AddItem(item);
    EXPECT_EQ(Items(at), "107=a|999|999|");
    List other;
    EXPECT_EQ(Read(other, at.list->ItemsStr()).size(), 2u);
}

TEST(gListText, ItemsThatShareAKeyReplaceEachOtherOnReading) {
    List at;
    at.list->AddItem(Plain("a", "k"));
    at.list->AddItem(Plain("b", "x"));
    at.list->AddItem(Plain("a", "k"), -2);
    EXPECT_EQ(Items(at), "107=a|108=k|999|999|");
    List other;
    EXPECT_EQ(Read(other, at.list->ItemsStr()).size(), 1u);
}

TEST(gListText, AtDesignTimeTheTextIsEmptyAndAWriteIsIgnored) {
    List at({.userMode = false});
    at.list->AddItem(Plain("a"));
    EXPECT_EQ(at.list->ItemsStr(), "");
    at.TakeLog();
    EXPECT_EQ(Read(at, "3=99|107=b|999|").size(), 1u);
    EXPECT_EQ(at.list->CX_TEXT(), 20);
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

// Settings that are read.

TEST(gListText, EverySettingIsRead) {
    List from;
    from.list->BackColor(0xA);
    from.list->CX_TEXT(31);
    from.list->GridlineColor(32);
    from.list->GridlineOnBorder(true);
    from.list->GridlineWidth(3);
    from.list->HeadExBackColor(33);
    from.list->HeadWidthEx(9);
    from.list->IconBorderColor(34);
    from.list->IconPos(35);
    from.list->ItemHeight(26);
    from.list->SelectedColor(36);
    from.list->ListMode(1);
    from.list->Sorted(false);
    from.list->BorderStyle(1);
    from.list->FixedHeight(true);
    List to;
    const std::string text = from.list->ItemsStr();
    to.list->ItemsStr(text);
    EXPECT_EQ(to.list->ItemsStr(), text);
    EXPECT_EQ(to.list->ListMode(), 1);
    EXPECT_FALSE(to.list->Sorted());
    EXPECT_EQ(to.list->ItemHeight(), 26);
    EXPECT_EQ(to.list->BorderStyle(), 1);
    EXPECT_TRUE(to.list->FixedHeight());
    EXPECT_TRUE(to.list->GridlineOnBorder());
}

TEST(gListText, SettingsWithoutALineAreNotPartOfTheText) {
    List from;
    from.list->HeadExBorderColor(5);
    from.list->Font()->Size(20);
    from.Show({Plain("a caption of some width")});
    List to;
    to.list->ItemsStr(from.list->ItemsStr());
    EXPECT_EQ(to.list->HeadExBorderColor(), cButtonFace);
    EXPECT_EQ(to.list->HeadWidth(), 30) << "as an empty list has it";
    EXPECT_NE(to.list->Font()->Size(), 20);
}

TEST(gListText, LinesNineAndFourteenAreSkipped) {
    List at;
    const std::string before = at.list->ItemsStr();
    Read(at, "9=5|14=55|0=1|16=1|997=1|99=1|207=x|");
    EXPECT_EQ(at.list->ItemsStr(), before);
}

TEST(gListText, TheBackColourOfTheComponentIsNotTouched) {
    List at;
    const OLE_COLOR before = at.desktop.form().ComponentOf(*at.list).BackColor();
    Read(at, "1=&H123456&|");
    EXPECT_EQ(at.list->BackColor(), 0x123456);
    EXPECT_EQ(at.desktop.form().ComponentOf(*at.list).BackColor(), before);
}

TEST(gListText, AnyNumberButZeroIsTrue) {
    List at;
    Read(at, "4=7|6=-1|28=0|");
    EXPECT_TRUE(at.list->FixedHeight());
    EXPECT_TRUE(at.list->GridlineOnBorder());
    EXPECT_FALSE(at.list->Sorted());
    Read(at, "4=x|6=0.4|28=0.6|");
    EXPECT_FALSE(at.list->FixedHeight());
    EXPECT_FALSE(at.list->GridlineOnBorder()) << "rounded to a whole number first";
    EXPECT_TRUE(at.list->Sorted());
}

TEST(gListText, TheRowHeightIsToldBeyondTheHeightOfTheText) {
    List at;
    Read(at, "13=5|");
    EXPECT_EQ(at.list->ItemHeight(), at.list->TextHeight() + 5);
    at.list->Font()->Size(20);
    Read(at, "13=5|");
    EXPECT_EQ(at.list->ItemHeight(), at.list->TextHeight() + 5) << "of the moment";
    Read(at, "13=-2.6|");
    EXPECT_EQ(at.list->ItemHeight(), at.list->TextHeight() - 3);
}

TEST(gListText, ABorderStyleThatIsRefusedEndsItsLineOnly) {
    List at;
    Read(at, "2=9|3=44|");
    EXPECT_EQ(at.list->BorderStyle(), 0);
    EXPECT_EQ(at.list->CX_TEXT(), 44);
}

TEST(gListText, TheHeightIsFittedAtTheEnd) {
    List at;
    const std::int32_t before = at.desktop.form().PlacementOf(*at.list).height;
    Read(at, "4=-1|");
    const std::int32_t after = at.desktop.form().PlacementOf(*at.list).height;
    EXPECT_NE(after, before);
    at.list->FixedHeight(false);
    at.list->FixedHeight(true);
    EXPECT_EQ(at.desktop.form().PlacementOf(*at.list).height, after) << "as the property does";
}

// Items that are read.

TEST(gListText, AWriteMakesNoRowsAndPaintsNothing) {
    List at;
    at.Show({List::Value("a"), List::Value("b")});
    EXPECT_EQ(at.Effect([&] { Read(at, "1=5|24=1|28=0|998|107=c|999|"); }), "");
    EXPECT_EQ(at.list->Count(), 2);
    EXPECT_EQ(at.Slot(3).hItem.text, "c");
    EXPECT_EQ(at.Slot(1).hItem.key, "a") << "nothing is cleared";
}

TEST(gListText, AnItemWithAKnownKeyReplacesThatItemAndOneWithoutAKeyIsNew) {
    List at;
    at.Show({List::Value("a"), List::Value("b")});
    const auto items = Read(at, "107=new|108=B|999|108=|107=more|999|999|");
    EXPECT_THAT(Captions(items), ElementsAre("a", "new", "more", "more"));
}

TEST(gListText, EachItemIsMadeAsByAddItem) {
    List at;
    at.popLists[7] = "107=zero|\r\n999\r\n";
    const auto items = Read(at, "23=;li 7|108=a|999|23=;ns|108=b|999|23=;x|108=c|999|23=;lt 8|108=d|999|");
    EXPECT_THAT(at.TakeLog(),
                ElementsAre("EnumPopStr(7, ;li 7)", "ExItemShowCov(c)", "EnumPopStr(8, ;lt 8)"));
    ASSERT_EQ(items.size(), 4u);
    EXPECT_EQ(items[0].item.text, "zero|");
    EXPECT_EQ(items[1].item.text, "0");
    EXPECT_EQ(items[2].item.text, "");
    EXPECT_EQ(items[3].item.text, "");
}

TEST(gListText, WhatATypeMakesOfOneItemIsNoPartOfTheNext) {
    List at;
    const auto items = Read(at, "23=;cs|203=&HFF&|999|23=;x|999|");
    ASSERT_EQ(items.size(), 2u);
    EXPECT_EQ(items[0].item.IconBackColor, 0);
    EXPECT_THAT(items[0].item.text, testing::StartsWith("("));
    EXPECT_EQ(items[1].item.IconBackColor, 255);
    EXPECT_EQ(items[1].item.text, "");
}

TEST(gListText, TheDefaultItemComesBackWithLine998) {
    const auto items = Read("107=a|106=5|20=-1|999|998|107=b|999|");
    ASSERT_EQ(items.size(), 2u);
    EXPECT_EQ(items[1].hItem.ItemData, 0);
    EXPECT_FALSE(items[1].bParentItem);
    EXPECT_TRUE(items[1].bVisible);
}

TEST(gListText, AnItemWithoutLine998IsToldFromTheDefaultItem) {
    const auto items = Read("999|");
    ASSERT_EQ(items.size(), 1u);
    EXPECT_EQ(items[0], Plain());
}

TEST(gListText, TheWorkingRecordIsNotKeptFromOneTextToTheNext) {
    List at;
    Read(at, "107=a|999|107=b|");
    EXPECT_THAT(Captions(Read(at, "999|")), ElementsAre("a", ""));
}

TEST(gListText, BehindTheLastLineEndNothingIsRead) {
    EXPECT_THAT(Captions(Read("107=a|999|107=b|999")), ElementsAre("a"));
    EXPECT_THAT(Read("999"), IsEmpty());
    EXPECT_THAT(Read(""), IsEmpty());
    EXPECT_THAT(Read("107=a\n999\n"), IsEmpty()) << "other line ends are none";
}

TEST(gListText, LinesNumbersAndValuesAreTrimmed) {
    EXPECT_THAT(Captions(Read("  107 =  a b  | 999 |")), ElementsAre("a b"));
}

TEST(gListText, OnlyTheFirstEqualsSignDividesAndNotAtTheStart) {
    EXPECT_THAT(Captions(Read("107=a=b|999|")), ElementsAre("a=b"));
    EXPECT_THAT(Captions(Read("107=a|=b|107|999|")), ElementsAre("a")) << "no new value";
}

TEST(gListText, ALineWithoutAValueTakesThatOfTheLineBefore) {
    const auto items = Read("107=x|108|999|");
    ASSERT_EQ(items.size(), 1u);
    EXPECT_EQ(items[0].hItem.key, "x");
    EXPECT_EQ(Read("777=12|106|999|")[0].hItem.ItemData, 12);
}

TEST(gListText, NumbersAreReadByTheNumericScanAndRounded) {
    const auto items = Read("106.5=&H10&|105=2.5|206=-3.5x|107abc=t|999 items|");
    ASSERT_EQ(items.size(), 1u);
    EXPECT_EQ(items[0].hItem.ItemData, 16);
    EXPECT_EQ(items[0].hItem.IconID, 2);
    EXPECT_EQ(items[0].item.ItemData, -4);
    EXPECT_EQ(items[0].hItem.text, "t");
}

TEST(gListText, ALineThatReadsAsNoNumberIsSkippedButItsValueStays) {
    EXPECT_EQ(Read("abc=7|106|999|")[0].hItem.ItemData, 7);
}

TEST(gListText, ALineNumberOf17BitsLeavesTheNumberBeforeInForceWithTheNewValue) {
    EXPECT_THAT(Captions(Read("107=a|99999=b|999|")), ElementsAre("b"));
    EXPECT_THAT(Captions(Read("107=a|999|32768=x|-40000=y|")), ElementsAre("a", "a", "a"));
    EXPECT_THAT(Captions(Read("107=a|40000|999|")), ElementsAre("a"));
    EXPECT_THAT(Captions(Read("107=a|32767=b|107|999|")), ElementsAre("b")) << "the highest that is none";
    EXPECT_EQ(Read("106=1|99999999999999=5|999|")[0].hItem.ItemData, 5);
}

TEST(gListText, ANumberThatOverflowsLeavesTheField) {
    List at;
    const auto items =
        Read(at, "106=5|106=99999999999|20=-1|20=3000000000|999|3=1e9|3=4294967296|13=2147483647|");
    ASSERT_EQ(items.size(), 1u);
    EXPECT_EQ(items[0].hItem.ItemData, 5);
    EXPECT_TRUE(items[0].bParentItem);
    EXPECT_EQ(at.list->CX_TEXT(), 1) << "no exponent is read, and no overflow stored";
    EXPECT_EQ(at.list->ItemHeight(), 18);
}

TEST(gListText, Line207DoesNothing) {
    EXPECT_EQ(Read("207=x|107=y|208=z|999|")[0].item, (qrosterdata{.key = "z"}));
}

TEST(gListText, ABreakInATextBecomesALineOfItsOwn) {
    List at;
    elistdata item = Plain("a");
    item.HelpStr = "first\r\n106=44\r\nlast";
    at.list->AddItem(item);
    List other;
    const auto items = Read(other, at.list->ItemsStr());
    ASSERT_EQ(items.size(), 1u);
    EXPECT_EQ(items[0].HelpStr, "first");
    EXPECT_EQ(items[0].hItem.ItemData, 44);
}

TEST(gListText, HandlersThatThrowEndTheirLineOnly) {
    List at;
    at.list->events.ExItemShowCov = [](elistdata&) { throw Error("no text"); };
    at.list->events.EnumPopStr = [](std::int32_t, std::string&) { throw Error("no list"); };
    EXPECT_THAT(Captions(Read(at, "107=a|999|23=;li 3|107=b|999|3=77|")), ElementsAre("a", "b"));
    EXPECT_EQ(at.list->CX_TEXT(), 77);
}

} // namespace
} // namespace tvok::test
