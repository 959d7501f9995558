// Folding groups of a property list with the mouse: on the press in the head band, on a double click
// anywhere.
#include "tests/support/PropertyListPaint.h"

namespace tvok::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Rows: group "g" with "a" and "b", group "h" with "c"; the focus, and no current row.
struct GroupedList : PropertyListDesktop {
    explicit GroupedList(std::int32_t mode = 1) : PropertyListDesktop({.ListMode = mode}) {
        desktop.Focus(*list);
        Show({Group("g"), Value("a", "g"), Value("b", "g"), Group("h"), Value("c", "h")});
    }
};

bool IsCollapsed(const PropertyListDesktop& at, const std::string& key) {
    return (at.ByKey(key).hItem.vflag & vflag::Collapsed) != 0;
}

TEST(gListFolding, APressInTheHeadBandOfAGroupFoldsItAtOnce) {
    GroupedList at;
    at.PressHead(1);
    EXPECT_THAT(at.Keys(), ElementsAre("g", "h", "c"));
    EXPECT_TRUE(IsCollapsed(at, "g"));
    EXPECT_EQ(at.list->ListIndex(), 1);
    at.desktop.Release();
    EXPECT_THAT(at.Keys(), ElementsAre("g", "h", "c")) << "the release changes nothing more";
    at.PressHead(1);
    EXPECT_THAT(at.Keys(), ElementsAre("g", "a", "b", "h", "c"));
    EXPECT_FALSE(IsCollapsed(at, "g"));
    at.desktop.Release();
}

TEST(gListFolding, TheEventsOfAFoldAreThoseOfAPressAndOfARebuild) {
    GroupedList at;
    at.PressHead(1);
    EXPECT_THAT(at.TakeLog(),
                ElementsAre("Change(1, g)", "ExEditorHide()", // the press
                            "ExEditorHide()", "Change(1, g)", // the rebuild, which keeps the row,
                            "ExEditorHide()"));               // and activates it without a click
    at.desktop.Release();
    EXPECT_THAT(at.TakeLog(), ElementsAre("Click(1, g)", "ExEditorHide()"));
}

TEST(gListFolding, TheWholeHeightOfTheBandFoldsAndNothingRightOfIt) {
    for (const auto& [x, y, folds] :
         {std::tuple{0, 0, true}, {14, 17, true}, {7, 18, true}, {15, 9, false}}) {
        GroupedList at;
        at.desktop.Press(*at.list, x, y);
        EXPECT_EQ(IsCollapsed(at, "g"), folds) << x << " " << y;
        at.desktop.Release();
    }
}

TEST(gListFolding, TheBandIsAsWideAsHeadWidthExTells) {
    GroupedList at;
    at.list->HeadWidthEx(40);
    at.PressRow(1, 39);
    at.desktop.Release();
    EXPECT_TRUE(IsCollapsed(at, "g"));
    at.PressRow(1, 40);
    at.desktop.Release();
    EXPECT_TRUE(IsCollapsed(at, "g"));
    at.list->HeadWidthEx(0);
    at.PressRow(1, 0);
    at.desktop.Release();
    EXPECT_TRUE(IsCollapsed(at, "g")) << "without a band nothing folds by a press";
}

TEST(gListFolding, APressInTheBandOfAChildOnlyMakesItCurrent) {
    GroupedList at;
    at.PressHead(2);
    EXPECT_THAT(at.Keys(), ElementsAre("g", "a", "b", "h", "c"));
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(2, a)", "ExEditorHide()"));
    at.desktop.Release();
}

TEST(gListFolding, InAFlatListTheBandIsPartOfTheRow) {
    GroupedList at(0);
    at.PressHead(1);
    EXPECT_THAT(at.Keys(), ElementsAre("a", "b", "c"));
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(1, a)", "ExEditorHide()"));
    at.desktop.Release();
    EXPECT_THAT(at.TakeLog(), ElementsAre("Click(1, a)", "ExEditorHide()"));
}

TEST(gListFolding, ModesOtherThanOneAreFlat) {
    GroupedList at(2);
    at.DoubleClickRow(1);
    EXPECT_THAT(at.TakeLog({"DblClick"}), ElementsAre("DblClick(1, a)"));
}

TEST(gListFolding, ADoubleClickOnAGroupFoldsItWhereverItFalls) {
    for (const std::int32_t x : {16, 60, 290}) {
        GroupedList at;
        at.DoubleClickRow(4, x);
        EXPECT_THAT(at.Keys(), ElementsAre("g", "a", "b", "h")) << x;
        EXPECT_EQ(at.list->ListIndex(), 4);
    }
}

TEST(gListFolding, ADoubleClickInAGroupedListRaisesNoDblClickOnAnyRow) {
    GroupedList at;
    at.DoubleClickRow(4);
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(4, h)", "ExEditorHide()", "Click(4, h)", "ExEditorHide()",
                                          "ExEditorHide()", "Change(4, h)", "ExEditorHide()"));
    at.DoubleClickRow(2);
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(2, a)", "ExEditorHide()", "Click(2, a)", "ExEditorHide()"));
    EXPECT_THAT(at.Keys(), ElementsAre("g", "a", "b", "h"));
}

TEST(gListFolding, ADoubleClickOnTheBandEndsWhereItBegan) {
    GroupedList at;
    at.DoubleClickRow(1, 7);
    EXPECT_THAT(at.Keys(), ElementsAre("g", "a", "b", "h", "c"));
    EXPECT_FALSE(IsCollapsed(at, "g"));
    EXPECT_EQ(at.TakeLog({"Click"}).size(), 1u);
}

TEST(gListFolding, AFoldedCurrentChildLeavesNoCurrentRow) {
    GroupedList at;
    at.ClickRow(2);
    at.Forget();
    elistdata group = at.ByKey("g");
    group.hItem.vflag |= vflag::Collapsed;
    at.list->AddItem(group);
    at.Forget();
    at.list->BuiltList();
    EXPECT_EQ(at.list->ListIndex(), 0);
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide()"));
    EXPECT_THAT(at.Selected(), IsEmpty());
}

TEST(gListFolding, AFoldDuringADragGoesOnAsADrag) {
    GroupedList at;
    at.PressHead(1);
    at.Forget();
    at.desktop.MoveTo(*at.list, 60, at.RowMiddle(3));
    EXPECT_THAT(at.TakeLog(), ElementsAre("Change(3, c)"));
    at.desktop.Release();
    EXPECT_THAT(at.TakeLog(), ElementsAre("Click(3, c)", "ExEditorHide()"));
}

TEST(gListFolding, TheFoldedRowsGoAndTheRowsBelowMoveUpOnTheScreen) {
    GroupedList at;
    const RowCalls rows(at);
    at.PressHead(1);
    at.desktop.Release();
    const auto calls = Drawing(at.desktop.Trace([&] { at.list->PaintAll(); }));
    const auto page = Join({rows.Group(1, "g", true, true), rows.Filler(1), rows.Group(2, "h", false),
                            rows.Filler(2), rows.Value(3, "c", "")});
    ASSERT_GT(calls.size(), page.size());
    EXPECT_EQ(DrawnCalls(calls.begin(), calls.begin() + static_cast<std::ptrdiff_t>(page.size())), page);
}

TEST(gListFolding, AFoldScrollsBackWhereTheRowsNoLongerFillThePage) {
    PropertyListDesktop at({.ListMode = 1, .Sorted = false});
    at.desktop.Focus(*at.list);
    std::vector<elistdata> items{PropertyListDesktop::Group("g")};
    for (char c = 'a'; c < 'a' + 20; ++c)
        items.push_back(PropertyListDesktop::Value(std::string("1") + c, "g"));
    items.push_back(PropertyListDesktop::Group("h"));
    at.Show(items);
    at.hook->ScrollValue(12);
    elistdata group = at.ByKey("g");
    group.hItem.vflag |= vflag::Collapsed;
    at.list->AddItem(group);
    at.list->BuiltList();
    EXPECT_EQ(at.hook->ScrollValue(), 0);
    EXPECT_FALSE(at.hook->ScrollBarShown());
    EXPECT_THAT(at.Keys(), ElementsAre("g", "h"));
}

} // namespace
} // namespace tvok::test
