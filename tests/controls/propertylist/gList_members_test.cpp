// Clear, the current row and its value, scratch values, and which records handlers get in their hands.
#include "tests/support/PropertyListDesktop.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using List = PropertyListDesktop;

// Clear.

TEST(gListMembers, ClearFreesAllSlotsAndDropsTheRowsButChangesNothingElseOfTheSlots) {
    List at;
    at.Show({List::Value("a"), List::Value("b")});
    at.list->ListIndex(2);
    const elistdata a = at.Slot(1), b = at.Slot(2);
    ASSERT_TRUE((b.hItem.vflag & vflag::Selected) != 0);
    at.list->Clear();
    EXPECT_EQ(at.list->Count(), 0);
    EXPECT_EQ(at.list->ListIndex(), 0);
    elistdata freeA = a, freeB = b;
    freeA.bDelete = freeB.bDelete = true;
    EXPECT_EQ(at.Slot(1), freeA);
    EXPECT_EQ(at.Slot(2), freeB) << "also its selection bit stays";
    elistdata none;
    EXPECT_EQ(at.list->GetItem(none, {}, -3), 0);
}

TEST(gListMembers, ClearHidesTheEditorWithNoKeyAndRefreshes) {
    List at;
    at.Show({List::Edited("a"), List::Edited("b")});
    at.ClickRow(1);
    at.Forget();
    EXPECT_EQ(at.Effect([&] { at.list->Clear(); }), "refresh");
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide()"));
    at.list->BuiltList();
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide()")) << "no editor is read back: there is none open";
}

TEST(gListMembers, ClearWithoutRefreshStillHidesTheEditorAndPaintsNothing) {
    List at;
    at.Show({List::Value("a")});
    EXPECT_EQ(at.Effect([&] { at.list->Clear(true); }), "");
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide()"));
    EXPECT_EQ(at.list->Count(), 0);
}

TEST(gListMembers, ClearWritesRangesAndPositionsOfBothBars) {
    List at;
    at.Show({List::Value("a")});
    at.list->Clear(true);
    EXPECT_THAT(at.TakeHookLog(),
                ElementsAre("ScrollMax 0", "ScrollValue 0", "ScrollHMax 0", "ScrollHValue 0"));
}

TEST(gListMembers, ClearHidesTheStrip) {
    List at;
    at.Show({List::Value("a", "", "b|1|2;x")});
    at.ClickRow(1);
    ASSERT_NE(at.Strip(), tvok_Rect());
    at.list->Clear(true);
    EXPECT_EQ(at.Strip(), tvok_Rect());
}

TEST(gListMembers, ClearLeavesPopupListsAlone) {
    List at;
    at.popLists[3] = "107=three\r\n106=3\r\n999\r\n";
    elistdata item = List::Value("a", "", ";li 3");
    item.nData = 3;
    at.list->AddItem(item);
    at.list->Clear();
    at.TakeLog();
    at.list->AddItem(item);
    EXPECT_EQ(at.ByKey("a").item.text, "three");
    EXPECT_THAT(at.TakeLog(), IsEmpty()) << "nor is it asked for again";
}

TEST(gListMembers, ClearScrollsBackToTheTop) {
    List at;
    std::vector<elistdata> items;
    for (int i = 100; i < 150; ++i) items.push_back(List::Value("k" + std::to_string(i)));
    at.Show(items);
    at.list->ListIndex(50);
    ASSERT_GT(at.hook->ScrollValue(), 0);
    at.list->Clear();
    EXPECT_EQ(at.hook->ScrollValue(), 0);
    EXPECT_EQ(at.hook->ScrollMax(), 0);
}

TEST(gListMembers, ClearAtDesignTimeFreesTheSlotsAndIsAnObjectError) {
    List at({.userMode = false});
    at.list->AddItem(List::Value("a"));
    at.TakeLog();
    EXPECT_THROW(at.list->Clear(), ObjectError);
    EXPECT_TRUE(at.Slot(1).bDelete);
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

// ListIndex.

TEST(gListMembers, AWriteOfListIndexMovesTheCurrentRowAndRaisesChangeAlone) {
    List at;
    at.Show({List::Value("a"), List::Value("b"), List::Value("c")});
    at.list->ListIndex(2);
    EXPECT_EQ(at.list->ListIndex(), 2);
    EXPECT_THAT(at.Selected(), ElementsAre(2));
    at.list->ListIndex(3);
    EXPECT_THAT(at.Selected(), ElementsAre(3));
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(2, b)", "Change(3, c)"));
}

TEST(gListMembers, AWriteOfListIndexShowsTheEditorWithoutLoadingIt) {
    List at;
    at.Show({List::Edited("a"), List::Edited("b")});
    at.list->ListIndex(2);
    const auto log = at.TakeLog();
    ASSERT_EQ(log.size(), 3u);
    EXPECT_THAT(log[0], testing::StartsWith("ExEditorSetPosition(b, "));
    EXPECT_EQ(log[1], "ExEditorShow(b)");
    EXPECT_EQ(log[2], "Change(2, b)");
}

TEST(gListMembers, AWriteOfTheCurrentRowRepaintsItAndRaisesNothing) {
    List at;
    at.Show({List::Value("a"), List::Value("b")});
    at.list->ListIndex(2);
    at.TakeLog();
    EXPECT_EQ(at.Effect([&] { at.list->ListIndex(2); }), "paint");
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

TEST(gListMembers, AWriteOfListIndexOutOfTheRowsChangesNothing) {
    List at;
    at.Show({List::Value("a"), List::Value("b")});
    at.list->ListIndex(1);
    at.TakeLog();
    for (const std::int32_t row : {0, -1, 3, INT32_MAX, INT32_MIN})
        EXPECT_EQ(at.Effect([&] { at.list->ListIndex(row); }), "") << row;
    EXPECT_EQ(at.list->ListIndex(), 1);
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

TEST(gListMembers, ListIndexCannotBeWrittenAtDesignTime) {
    List at({.userMode = false});
    at.list->AddItem(List::Value("a"));
    EXPECT_THROW(at.list->BuiltList(), ObjectError);
    ASSERT_EQ(at.list->Count(), 1);
    at.TakeLog();
    at.list->ListIndex(1);
    EXPECT_EQ(at.list->ListIndex(), 0);
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

// VarData.

TEST(gListMembers, VarDataIsTheValueOfTheCurrentRow) {
    List at;
    at.Show({List::Value("b", "", ";ns"), List::Value("a")});
    EXPECT_TRUE(at.list->VarData().IsEmpty());
    at.list->ListIndex(2);
    at.list->VarData("12x");
    EXPECT_EQ(at.list->VarData(), Variant("12x"));
    EXPECT_EQ(at.Slot(1).nData, Variant("12x"));
    EXPECT_EQ(at.Slot(1).item.text, "12");
}

TEST(gListMembers, AWriteOfVarDataLoadsTheEditorAgainAndRepaintsTheRow) {
    List at;
    at.Show({List::Edited("a"), List::Value("b")});
    at.list->ListIndex(1);
    at.TakeLog();
    EXPECT_EQ(at.Effect([&] { at.list->VarData(5); }), "paint");
    const auto log = at.TakeLog();
    ASSERT_EQ(log.size(), 4u);
    EXPECT_EQ(log[0], "ExItemShowCov(a)");
    EXPECT_EQ(log[1], "ExEditorIni(a)");
    EXPECT_THAT(log[2], testing::StartsWith("ExEditorSetPosition(a, "));
    EXPECT_EQ(log[3], "ExEditorShow(a)");
    at.list->ListIndex(2);
    at.TakeLog();
    EXPECT_EQ(at.Effect([&] { at.list->VarData(5); }), "paint");
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExItemShowCov(b)")) << "without an editor";
}

TEST(gListMembers, AWriteOfVarDataWithoutACurrentRowLandsInTheBlankRecordAndShowsNowhere) {
    List at;
    at.Show({List::Value("a")});
    std::vector<Variant> seen;
    at.list->events.ExItemShowCov = [&](elistdata& x) { seen.push_back(x.nData); };
    EXPECT_EQ(at.Effect([&] { at.list->VarData(5); }), "");
    EXPECT_TRUE(at.list->VarData().IsEmpty());
    EXPECT_TRUE(at.Slot(1).nData.IsEmpty());
    at.list->SetData(7, "nobody");
    EXPECT_THAT(seen, ElementsAre(Variant(5), Variant(5))) << "and stays there";
}

// Scratch values.

TEST(gListMembers, TmpKeyAndTmpDataAreTheHosts) {
    List at;
    EXPECT_EQ(at.list->TmpKey(), "");
    EXPECT_TRUE(at.list->TmpData().IsEmpty());
    at.list->TmpKey("k");
    at.list->TmpData(2.5);
    at.Show({List::Value("a", "", ";ns")});
    at.ClickRow(1);
    at.list->Clear();
    EXPECT_EQ(at.list->TmpKey(), "k");
    EXPECT_EQ(at.list->TmpData(), Variant(2.5));
}

// Which record a handler gets.

/// Marks the record that comes with each event by the event's name, added to `HelpStr`.
struct Marked : List {
    Marked() : List({.ListMode = 0}) {
        auto& events = list->events;
        const auto row = [this](const char* name) {
            return [this, name](std::int32_t, elistdata& x) { Mark(x, name); };
        };
        const auto button = [this](const char* name) {
            return [this, name](const std::string&, elistdata& x) { Mark(x, name); };
        };
        const auto record = [this](const char* name) {
            return [this, name](elistdata& x) { Mark(x, name); };
        };
        events.EnumItems = [this](elistdata& x, std::int32_t) { Mark(x, "EnumItems"); };
        events.Change = row("Change");
        events.Click = row("Click");
        events.DblClick = row("DblClick");
        events.ButtonClick = button("ButtonClick");
        events.ButtonMouseDown = button("ButtonMouseDown");
        events.ButtonMouseDownEx = button("ButtonMouseDownEx");
        events.ExItemShowCov = record("ExItemShowCov");
        events.ExEditorIni = record("ExEditorIni");
    }
    void Mark(elistdata& x, const std::string& name) {
        x.HelpStr += name + " ";
        seen.push_back(x.HelpStr);
    }
    std::string Stored() const { return ByKey("a").HelpStr; }
    std::vector<std::string> seen;
};

TEST(gListRecords, HandlersThatMakeOrLoadGetTheStoredRecord) {
    Marked at;
    at.list->AddItem(List::Edited("a"));
    EXPECT_EQ(at.Stored(), "ExItemShowCov ");
    at.list->ReqEnumItems(0);
    EXPECT_EQ(at.Stored(), "ExItemShowCov EnumItems ");
    at.list->BuiltList();
    at.list->ListIndex(1);
    at.list->VarData(1);
    EXPECT_EQ(at.Stored(), "ExItemShowCov EnumItems ExItemShowCov ExEditorIni ");
}

TEST(gListRecords, HandlersThatHearOfRowsGetACopy) {
    Marked at;
    at.list->AddItem(List::Value("a"));
    at.list->BuiltList();
    const std::string before = at.Stored();
    at.seen.clear();
    at.DoubleClickRow(1);
    EXPECT_THAT(at.seen, ElementsAre(before + "Change ", before + "Click ", before + "DblClick "));
    EXPECT_EQ(at.Stored(), before);
}

TEST(gListRecords, BothEventsOfAButtonThatGoesDownGetTheSameCopy) {
    Marked at;
    at.list->AddItem(List::Value("a", "", "b|1|2;x"));
    at.list->BuiltList();
    at.ClickRow(1);
    const std::string before = at.Stored();
    at.seen.clear();
    const tvok_Rect strip = at.Strip();
    ASSERT_NE(strip, tvok_Rect());
    at.desktop.Click(*at.list, strip.Left + 5, strip.Top + 5);
    EXPECT_THAT(at.seen, ElementsAre(before + "ButtonMouseDown ",
                                     before + "ButtonMouseDown ButtonMouseDownEx ", before + "ButtonClick "));
    EXPECT_EQ(at.Stored(), before);
}

} // namespace
} // namespace tvok::test
