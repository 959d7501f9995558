// What an item's `xbuttons` makes of its value: type words, the value rule, and the lists behind two of the
// types.
#include "tests/support/PropertyListDesktop.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using List = PropertyListDesktop;

elistdata Typed(const std::string& xbuttons, const Variant& value = {}) {
    elistdata item = List::Value("k", "", xbuttons);
    item.nData = value;
    item.item.text = "before";
    return item;
}

/// The stored record after an item was added.
elistdata Added(List& at, const std::string& xbuttons, const Variant& value = {}) {
    at.list->AddItem(Typed(xbuttons, value));
    return at.ByKey("k");
}

/// What such an item shows as its value.
std::string Shown(const std::string& xbuttons, const Variant& value = {}) {
    List at;
    return Added(at, xbuttons, value).item.text;
}

/// What adding such an item raises.
std::vector<std::string> Raised(const std::string& xbuttons) {
    List at;
    Added(at, xbuttons);
    return at.TakeLog();
}

std::string ColorText(std::int32_t color) {
    TestDesktop desktop;
    return "(" + desktop.form().Add<xPopup>("p", {0, 0, 9, 9}).GetColorDesc(color) + ")";
}

// The type word.

TEST(gListTypes, WithoutASemicolonThereIsNoTypeWord) {
    for (const char* text : {"", "ns", "b|0|2", "lt 3"})
        EXPECT_THAT(Raised(text), ElementsAre("ExItemShowCov(k)")) << text;
}

TEST(gListTypes, TheTypeWordStandsBehindTheFirstSemicolonTrimmedAndInAnyCase) {
    for (const char* text : {";ns", "b|1-3|2;ns", ";  NS  ", "x;nS", "a b;ns "}) {
        EXPECT_EQ(Shown(text, 5), "5") << text;
        EXPECT_THAT(Raised(text), IsEmpty()) << text;
    }
    EXPECT_EQ(Added(*std::make_unique<List>(), "x;CS", 3).item.text, ColorText(3));
}

TEST(gListTypes, AnyOtherWordIsTheHosts) {
    for (const char* text : {";", ";x", ";n", ";nsx", ";colour", ";ns;", "x;;ns", ";cs;lt", ";-ns", ";\tns",
                             ";li-7", ";\xC3\xA4"})
        EXPECT_THAT(Raised(text), ElementsAre("ExItemShowCov(k)")) << text;
}

TEST(gListTypes, TheNameEndsAtTheFirstDigitOrBlank) {
    EXPECT_EQ(Shown(";ns 9", 5), "5");
    EXPECT_EQ(Shown(";ns9x", 5), "5");
    EXPECT_EQ(Shown(";ns x", 5), "5");
    EXPECT_THAT(Raised(";n s"), ElementsAre("ExItemShowCov(k)"));
    EXPECT_THAT(Raised(";n1s"), ElementsAre("ExItemShowCov(k)"));
}

TEST(gListTypes, AWordThatBeginsWithADigitHasNoName) {
    for (const char* text : {";7li", ";7", ";0ns"})
        EXPECT_THAT(Raised(text), ElementsAre("ExItemShowCov(k)")) << text;
}

TEST(gListTypes, TheNumberOfAListIsReadFromTheEndOfTheName) {
    struct {
        const char* word;
        const char* asked;
    } const cases[] = {{"li7", "7"},
                       {"li 7", "7"},
                       {"li   7", "7"},
                       {" LI 7 ", "7"},
                       {"lt 12x", "12"},
                       {"li 7;9", "7"},
                       {"li 2.5", "2"},
                       {"li 3.5", "4"},
                       {"li 6.6", "7"},
                       {"li &H10", "16"},
                       {"li7 8", "7"},
                       {"li 07", "7"},
                       {"li +7", "7"},
                       {"lt7", "7"},
                       {"li 7-9", "7"},
                       {"li 0.6", "1"},
                       {"li 2147483647", "2147483647"}};
    for (const auto& each : cases) {
        const std::string xbuttons = std::string("b|1|2;") + each.word;
        EXPECT_THAT(Raised(xbuttons),
                    ElementsAre("EnumPopStr(" + std::string(each.asked) + ", " + xbuttons + ")"));
    }
}

TEST(gListTypes, BlanksAreNotPassedOverInsideTheNumber) {
    EXPECT_THAT(Raised(";li - 7"), IsEmpty()) << "a sign alone is 0";
    EXPECT_THAT(Raised(";li x7"), IsEmpty());
    EXPECT_THAT(Raised(";li \t7"), IsEmpty());
}

TEST(gListTypes, AListNumberBelowOneAsksForNothing) {
    for (const char* text : {";li", ";lt", ";li 0", ";li -7", ";lt 0.5", ";li x", ";li 99999999999"})
        EXPECT_THAT(Raised(text), IsEmpty()) << text;
}

TEST(gListTypes, OtherTypesAskForNothingWhateverTheirNumber) {
    EXPECT_THAT(Raised(";cs 7"), IsEmpty());
    EXPECT_THAT(Raised(";ns 7"), IsEmpty());
    EXPECT_THAT(Raised(";other 7"), ElementsAre("ExItemShowCov(k)"));
}

// Colours.

TEST(gListTypes, AColourShowsItsDescriptionInBracketsOnItself) {
    for (const std::int32_t color : {0, 255, 0xFF8000, 0x123456, static_cast<std::int32_t>(0x80000005u)}) {
        List at;
        const elistdata item = Added(at, ";cs", color);
        EXPECT_EQ(item.item.text, ColorText(color));
        EXPECT_EQ(item.item.IconBackColor, color);
        EXPECT_EQ(item.item.vflag, 0) << "nothing else changes";
        EXPECT_EQ(item.nData, Variant(color));
    }
}

TEST(gListTypes, AColourIsReadAsTextAndThenAsANumber) {
    struct {
        Variant value;
        std::int32_t color;
    } const cases[] = {{{}, 0},    {"", 0},           {"&HFF", 255}, {"&HFF00&", 0xFF00}, {"12 and more", 12},
                       {"x", 0},   {1.5, 2},          {2.5, 2},      {"2.5", 2},          {-1, -1},
                       {"-1", -1}, {"&HFFFFFFFF", -1}};
    for (const auto& each : cases) {
        List at;
        const elistdata item = Added(at, ";cs", each.value);
        EXPECT_EQ(item.item.IconBackColor, each.color) << each.value.AsText();
        EXPECT_EQ(item.item.text, ColorText(each.color)) << each.value.AsText();
    }
}

TEST(gListTypes, AColourThatNoNumberHoldsLeavesTheDisplay) {
    List at;
    for (const Variant& value : {Variant(3e9), Variant("99999999999")}) {
        const elistdata item = Added(at, ";cs", value);
        EXPECT_EQ(item.item.text, "before");
        EXPECT_EQ(item.item.IconBackColor, cWindowBackground);
        EXPECT_EQ(item.nData, value);
    }
}

// Numbers.

TEST(gListTypes, ANumberShowsAsTheTextOfWhatItsValueReadsAs) {
    EXPECT_EQ(Shown(";ns", "12.50"), "12.5");
    EXPECT_EQ(Shown(";ns", "12abc"), "12");
    EXPECT_EQ(Shown(";ns"), "0");
    EXPECT_EQ(Shown(";ns", "abc"), "0");
    EXPECT_EQ(Shown(";ns", 7), "7");
    EXPECT_EQ(Shown(";ns", -7.25), "-7.25");
    EXPECT_EQ(Shown(";ns", "-03"), "-3");
    EXPECT_EQ(Shown(";ns", "&H10"), "16");
    EXPECT_EQ(Shown(";ns", "3000000000"), "3000000000") << "no 32 bits are asked for";
    EXPECT_EQ(Shown(";ns", 0.5), Variant(0.5).AsText());
}

TEST(gListTypes, ANumberChangesTheTextAlone) {
    List at;
    elistdata item = Typed(";ns", "5x");
    item.item.vflag = vflag::Bold;
    item.item.key = "inner";
    at.list->AddItem(item);
    item.item.text = "5";
    EXPECT_EQ(at.ByKey("k"), item);
}

// Texts.

TEST(gListTypes, ATextShowsTrimmed) {
    EXPECT_EQ(Shown(";lt", "  a  b "), "a  b");
    EXPECT_EQ(Shown(";lt"), "");
    EXPECT_EQ(Shown(";lt", 12.5), "12.5");
    EXPECT_EQ(Shown(";lt", "\tx"), "\tx");
}

TEST(gListTypes, ATextOfAListShowsWhetherTheListHasItOrNot) {
    List at;
    at.popLists[4] = "107=one\r\n999\r\n";
    elistdata item = Added(at, ";lt 4", " two ");
    EXPECT_EQ(item.item.text, "two");
    EXPECT_EQ(item.nData, Variant(" two "));
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumPopStr(4, ;lt 4)"));
}

// Entries of lists.

constexpr const char* cNumerals =
    "107=none\r\n999\r\n"
    "101=1\r\n102=2\r\n103=3\r\n104=4\r\n105=5\r\n106=6\r\n107=six\r\n108=vi\r\n"
    "109=7\r\n999\r\n"
    "106=7\r\n107=seven\r\n999\r\n"
    "107=another seven\r\n999\r\n"
    "998\r\n107=eight\r\n106=8\r\n999\r\n";

struct Numerals : List {
    Numerals() { popLists[7] = cNumerals; }
    qrosterdata Of(const Variant& value) { return Added(*this, ";li 7", value).item; }
};

TEST(gListLists, AnEntryBecomesTheWholeValueCell) {
    Numerals at;
    qrosterdata six;
    six.bColor = 1;
    six.fcolor = 2;
    six.IconBackColor = 3;
    six.IconPos = 4;
    six.IconID = 5;
    six.ItemData = 6;
    six.text = "six";
    six.key = "vi";
    six.vflag = 7;
    EXPECT_EQ(at.Of(6), six);
    EXPECT_EQ(at.ByKey("k").hItem.text, "k");
}

TEST(gListLists, EntriesStateWhatDiffersFromTheOneBefore) {
    Numerals at;
    qrosterdata seven = at.Of(6);
    seven.ItemData = 7;
    seven.text = "seven";
    EXPECT_EQ(at.Of(7), seven) << "the first of two";
    qrosterdata eight;
    eight.ItemData = 8;
    eight.text = "eight";
    EXPECT_EQ(at.Of(8), eight);
    qrosterdata none;
    none.text = "none";
    EXPECT_EQ(at.Of({}), none) << "an empty value is 0, as the first entry's";
}

TEST(gListLists, AnEntryIsFoundByTheValueReadAsANumberAndRounded) {
    Numerals at;
    EXPECT_EQ(at.Of("6 and more").text, "six");
    EXPECT_EQ(at.Of(6.5).text, "six");
    EXPECT_EQ(at.Of(7.5).text, "eight");
    EXPECT_EQ(at.Of("&H6").text, "six");
}

TEST(gListLists, AValueThatNoEntryHasKeepsTheLastDisplay) {
    Numerals at;
    EXPECT_EQ(at.Of(9).text, "before");
    at.Of(6);
    at.list->SetData(9, "k");
    EXPECT_EQ(at.ByKey("k").item.text, "six");
    EXPECT_EQ(at.ByKey("k").nData, Variant(9));
    at.list->SetData(1e12, "k");
    EXPECT_EQ(at.ByKey("k").item.text, "six");
    at.list->SetData(7, "k");
    EXPECT_EQ(at.ByKey("k").item.text, "seven");
}

TEST(gListLists, AnEntryWithoutTheEditorFlagTurnsTheEditorOff) {
    List at;
    at.popLists[2] = "106=1\r\n107=with\r\n109=2\r\n999\r\n106=2\r\n107=without\r\n109=0\r\n999\r\n";
    elistdata item = Typed(";li 2", 1);
    at.Show({item});
    at.ClickRow(1);
    EXPECT_THAT(at.TakeLog({"ExEditorIni"}), ElementsAre("ExEditorIni(k)"));
    at.list->SetData(2, "k");
    at.ClickRow(1);
    EXPECT_THAT(at.TakeLog({"ExEditorIni"}), IsEmpty());
}

TEST(gListLists, AListIsAskedForOnce) {
    Numerals at;
    at.list->AddItem(List::Value("a", "", "x;li 7"));
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumPopStr(7, x;li 7)"));
    at.list->AddItem(List::Value("b", "", ";lt 7"));
    at.list->SetData(1, "a");
    at.list->ReqEnumItems(0, "a");
    at.list->BuiltList();
    EXPECT_THAT(at.TakeLog({"EnumPopStr"}), IsEmpty());
    at.list->AddItem(List::Value("c", "", ";li 8"));
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumPopStr(8, ;li 8)"));
}

TEST(gListLists, AListWithoutEntriesIsAskedForAgainAtEachItem) {
    List at;
    at.popLists[3] = "107=no entry\r\n";
    at.popLists[4] = "";
    for (int i = 0; i < 2; ++i)
        for (const char* text : {";li 3", ";lt 4", ";li 5"}) at.list->AddItem(List::Value("", "", text));
    EXPECT_EQ(at.TakeLog().size(), 6u);
    at.popLists[3] += "999\r\n";
    at.list->AddItem(List::Value("", "", ";li 3"));
    at.list->AddItem(List::Value("", "", ";li 3"));
    EXPECT_THAT(at.TakeLog(), ElementsAre("EnumPopStr(3, ;li 3)"));
}

TEST(gListLists, AListThatWasLoadedNeverChanges) {
    Numerals at;
    at.Of(6);
    at.popLists[7] = "106=6\r\n107=new\r\n999\r\n";
    EXPECT_EQ(at.Of(6).text, "six");
}

TEST(gListLists, TheTypeTextStandsForAListThatTheHostLeavesAlone) {
    List at;
    at.list->events.EnumPopStr = nullptr;
    EXPECT_EQ(Added(at, ";li 7\r\n106=6\r\n107=own\r\n999\r\n", 6).item.text, "own");
}

TEST(gListLists, TheTypeTextAddsEntriesAlsoWhereTheListIsThere) {
    Numerals at;
    at.Of(6);
    at.TakeLog();
    EXPECT_EQ(Added(at, ";li 7\r\n106=9\r\n107=nine\r\n999\r\n106=6\r\n999\r\n", 9).item.text, "nine");
    EXPECT_EQ(at.Of(6).text, "six") << "behind those that are there";
    EXPECT_EQ(at.Of(9).text, "nine");
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

TEST(gListLists, AThrowingHostLeavesTheTextAsItStands) {
    List at;
    at.list->events.EnumPopStr = [](std::int32_t, std::string& text) {
        text = "106=6\r\n107=half\r\n999\r\n";
        throw Error("and then it broke");
    };
    EXPECT_EQ(Added(at, ";li 7", 6).item.text, "half");
}

/// The texts of the entries with the `ItemData` 0 to 9 of a list with this text, where there are such.
std::vector<std::string> Entries(const std::string& text) {
    List at;
    at.popLists[1] = text;
    std::vector<std::string> entries;
    for (std::int32_t data = 0; data < 10; ++data) {
        const elistdata item = Added(at, ";li 1", data);
        if (item.item.text != "before") entries.push_back(std::to_string(data) + " " + item.item.text);
    }
    return entries;
}

TEST(gListLists, ALineWithoutItsEndIsLost) {
    EXPECT_THAT(Entries("107=a\r\n999\r\n106=1\r\n107=b\r\n999"), ElementsAre("0 a"));
    EXPECT_THAT(Entries("107=a\r\n999"), IsEmpty());
    EXPECT_THAT(Entries("107=a\n999\n"), IsEmpty()) << "other line ends are none";
}

TEST(gListLists, LinesNumbersAndValuesAreTrimmed) {
    EXPECT_THAT(Entries("  107  =  a b  \r\n 106 = 3 \r\n  999  \r\n"), ElementsAre("3 a b"));
}

TEST(gListLists, OnlyTheFirstEqualsSignDivides) {
    EXPECT_THAT(Entries("107=a=b=\r\n999\r\n"), ElementsAre("0 a=b="));
}

TEST(gListLists, ALineWithoutAValueTakesThatOfTheLineBefore) {
    EXPECT_THAT(Entries("107=4\r\n106\r\n999\r\n"), ElementsAre("4 4"));
    EXPECT_THAT(Entries("=5\r\n107=a\r\n106=2\r\n=9\r\n106\r\n999\r\n"), ElementsAre("2 a"))
        << "an equals sign at the start divides nothing";
    EXPECT_THAT(Entries("107=a\r\n106=\r\n999\r\n"), ElementsAre("0 a")) << "an empty value is one";
}

TEST(gListLists, OtherNumbersAreSkippedButTheirValueStaysInForce) {
    EXPECT_THAT(Entries("1=9\r\n110=9\r\n207=x\r\nabc\r\n\r\n107=a\r\n777=b\r\n107\r\n999\r\n"),
                ElementsAre("0 b"));
}

TEST(gListLists, NumbersAreReadByTheNumericScan) {
    EXPECT_THAT(Entries("107x=a\r\n106=&H3&\r\n999 entries\r\n"), ElementsAre("3 a"));
    EXPECT_THAT(Entries("107=a\r\n106=2.5\r\n999\r\n"), ElementsAre("2 a"));
    EXPECT_THAT(Entries("&H6B=a\r\n999\r\n"), ElementsAre("0 a"));
}

TEST(gListLists, ANumberThatDoesNotFitLeavesTheField) {
    EXPECT_THAT(Entries("107=a\r\n106=5\r\n106=99999999999\r\n999\r\n"), ElementsAre("5 a"));
}

// The host's own types.

TEST(gListTypes, TheHostMakesTheCellOfTheStoredRecord) {
    List at;
    at.list->events.ExItemShowCov = [](elistdata& x) {
        x.item = {.text = x.nData.AsText() + " m", .IconID = 2, .vflag = vflag::Editor};
        x.HelpStr = "seen";
    };
    const elistdata item = Added(at, ";length", 5);
    EXPECT_EQ(item.item, (qrosterdata{.text = "5 m", .IconID = 2, .vflag = vflag::Editor}));
    EXPECT_EQ(item.HelpStr, "seen");
}

TEST(gListTypes, AGroupIsMadeLikeAnyItem) {
    List at;
    elistdata group = List::Group("g");
    group.xbuttons = ";ns";
    group.nData = "4x";
    at.list->AddItem(group);
    at.list->AddItem(List::Group("h"));
    EXPECT_EQ(at.ByKey("g").item.text, "4");
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExItemShowCov(h)"));
}

} // namespace
} // namespace tvok::test
