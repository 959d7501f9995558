// Scrolling a property list: pixels are moved, what comes in is painted, and the current row is painted with
// its strip and editor, wherever it stands.
#include <random>

#include "tests/support/PropertyListPaint.h"

namespace tvok::test {
namespace {

using namespace host;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Rows "a" to "z" of which ten fit, with the focus.
struct LongList : PropertyListDesktop {
    explicit LongList(const PropertyListSetup& setup = {}) : PropertyListDesktop(setup) {
        desktop.Focus(*list);
        std::vector<elistdata> items;
        for (char c = 'a'; c <= 'z'; ++c) {
            items.push_back(Edited(std::string(1, c)));
            items.back().item.text = items.back().hItem.key + "=";
            items.back().xbuttons = "0|x|2";
        }
        Show(items);
    }
};

/// The row is painted once at the end, and before that where it is part of what came in.
void ExpectPlacings(const std::vector<std::string>& log, const std::string& position,
                    const std::string& show) {
    ASSERT_GE(log.size(), 2u);
    for (std::size_t i = 0; i < log.size(); ++i) EXPECT_EQ(log[i], i % 2 == 0 ? position : show);
    EXPECT_EQ(log.back(), show);
}

TEST(gListScrolling, MovesPixelsAndPaintsWhatCameIn) {
    LongList at;
    const RowCalls rows(at);
    std::vector<std::string> calls;
    for (const std::string& line : at.desktop.Trace([&] { at.hook->ScrollValue(2); }))
        for (const char* name : {"ScrollDC", "InvalidateRect", "UpdateWindow", "BeginPaint", "EndPaint"})
            if (line.starts_with(name)) calls.push_back(ShortCall(line));
    ASSERT_EQ(calls.size(), 5u) << testing::PrintToString(calls);
    EXPECT_EQ(calls[0], "ScrollDC by (0,-38) (0,0)-(283,200) clip (0,0)-(283,200) -> (0,162)-(283,200)");
    EXPECT_EQ(calls[1], "InvalidateRect hwnd=1 (0,162)-(283,200) erase=0");
    EXPECT_EQ(calls[2], "UpdateWindow hwnd=1");
    EXPECT_EQ(calls[3], "BeginPaint hwnd=1 -> (0,162)-(283,200)");
    EXPECT_EQ(calls[4], "EndPaint hwnd=1");
}

TEST(gListScrolling, PaintsTheRowsThatCameInOnly) {
    LongList at;
    EXPECT_THAT(PaintedTexts(at.desktop, [&] { at.hook->ScrollValue(1); }), ElementsAre("k", "k=", "l", "l="))
        << "the tenth row of the page, of which a part was there, and the one begun";
    EXPECT_THAT(PaintedTexts(at.desktop, [&] { at.hook->ScrollValue(0); }),
                ElementsAre("a", "a=", "b", "b="));
}

TEST(gListScrolling, NeverMovesTheCurrentRow) {
    LongList at;
    at.list->ListIndex(3);
    at.Forget();
    for (const std::int32_t place : {1, 9, 16, 0}) {
        at.hook->ScrollValue(place);
        EXPECT_EQ(at.list->ListIndex(), 3);
    }
    EXPECT_THAT(at.TakeLog({"Change", "Click"}), IsEmpty());
    EXPECT_THAT(at.Selected(), ElementsAre(3));
}

TEST(gListScrolling, WithoutACurrentRowNothingIsRaised) {
    LongList at;
    at.desktop.FocusAway();
    at.hook->ScrollValue(5);
    EXPECT_THAT(at.TakeLog(), IsEmpty());
}

TEST(gListScrolling, TheWheelAndTheBarScrollIt) {
    LongList at;
    at.desktop.MoveTo(*at.list, 60, 60);
    at.desktop.Wheel(-1);
    const std::int32_t notch = at.hook->ScrollValue();
    EXPECT_GT(notch, 0);
    EXPECT_EQ(PaintedTexts(at.desktop, [&] { at.list->PaintAll(); }).front(),
              std::string(1, static_cast<char>('a' + notch)));
    at.desktop.Press(*at.list, 291, 195); // the arrow at the bottom
    at.desktop.Release();
    EXPECT_EQ(at.hook->ScrollValue(), notch + 1);
    EXPECT_EQ(at.list->ListIndex(), 0) << "the bar is no row";
}

TEST(gListScrolling, AThumbThatIsDraggedScrollsOnItsWay) {
    LongList at;
    at.desktop.Press(*at.list, 291, 22);
    at.desktop.MoveTo(*at.list, 291, 60);
    const std::int32_t onTheWay = at.hook->ScrollValue();
    EXPECT_GT(onTheWay, 0);
    EXPECT_EQ(PaintedTexts(at.desktop, [&] { at.list->PaintAll(); }).front(),
              std::string(1, static_cast<char>('a' + onTheWay)));
    at.desktop.MoveTo(*at.list, 291, 300);
    at.desktop.Release();
    EXPECT_EQ(at.hook->ScrollValue(), 16);
    EXPECT_EQ(at.list->ListIndex(), 0);
}

TEST(gListScrolling, AScrollPaintsTheCurrentRowOnceMoreAtTheEnd) {
    LongList at;
    at.list->ListIndex(5);
    at.Forget();
    const PaintsInLog paints(at);
    at.hook->ScrollValue(1);
    const std::vector<std::string> log = at.TakeLog();
    ASSERT_GE(log.size(), 4u);
    EXPECT_EQ(log[log.size() - 4], "paint(e)");
    EXPECT_EQ(log[log.size() - 3], "paint(e=)");
    EXPECT_TRUE(log[log.size() - 2].starts_with("ExEditorSetPosition(e, "));
    EXPECT_EQ(log.back(), "ExEditorShow(e)");
}

TEST(gListScrolling, EditorAndStripMoveAlongWithTheRow) {
    LongList at;
    at.list->ListIndex(5);
    const std::int32_t left = 15 + at.list->HeadWidth() + 1 + 20;
    at.Forget();
    EXPECT_EQ(at.Strip(), (tvok_Rect{263, 75, 283, 95}));
    at.hook->ScrollValue(3);
    const auto position = [&](std::int32_t top) {
        return "ExEditorSetPosition(e, " + std::to_string(left * 15) + "," + std::to_string(top * 15) + "," +
               std::to_string((263 - left) * 15) + ",270)";
    };
    ExpectPlacings(at.TakeLog(), position(19), "ExEditorShow(e)");
    EXPECT_EQ(at.Strip(), (tvok_Rect{263, 18, 283, 38}));
    at.hook->ScrollValue(4);
    ExpectPlacings(at.TakeLog(), position(0), "ExEditorShow(e)");
    EXPECT_EQ(at.Strip(), (tvok_Rect{263, -1, 283, 19}));
}

TEST(gListScrolling, OffThePageTheEditorAndTheStripHideAndComeBackAsTheyWere) {
    LongList at;
    at.ClickRow(2);
    at.Forget();
    at.hook->ScrollValue(2);
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide(b)"));
    EXPECT_EQ(at.Strip(), (tvok_Rect{}));
    at.hook->ScrollValue(3);
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide(b)")) << "at every paint of the row, also unseen";
    at.hook->ScrollValue(0);
    const std::vector<std::string> log = at.TakeLog();
    ASSERT_GE(log.size(), 2u);
    for (const std::string& line : log)
        EXPECT_TRUE(line.starts_with("ExEditorSetPosition(b, ") || line == "ExEditorShow(b)") << line;
    EXPECT_EQ(log.back(), "ExEditorShow(b)");
    EXPECT_EQ(at.Strip().Top, 18);
    at.PressRow(4);
    EXPECT_THAT(at.TakeLog({"ExEditorDataRestore", "ExEditorHide", "ExEditorIni"}),
                ElementsAre("ExEditorDataRestore(b)", "ExEditorHide(b)"))
        << "it was open all the while";
    at.desktop.Release();
}

TEST(gListScrolling, ARowWithoutAnEditorHidesThatOfItsKeyAllTheSame) {
    PropertyListDesktop at;
    std::vector<elistdata> items;
    for (char c = 'a'; c <= 'z'; ++c) items.push_back(PropertyListDesktop::Value(std::string(1, c)));
    at.Show(items);
    at.list->ListIndex(2);
    at.Forget();
    at.hook->ScrollValue(2);
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide(b)"));
}

TEST(gListScrolling, TheRowBegunAtTheBottomIsOnThePage) {
    LongList at;
    at.list->ListIndex(12);
    at.hook->ScrollValue(1);
    EXPECT_EQ(at.Strip().Top, 189);
    at.Forget();
    at.hook->ScrollValue(0);
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide(l)"));
}

TEST(gListScrolling, AnOffPageRowIsPaintedNowhereByTheFocusOrItsData) {
    LongList at;
    at.list->ListIndex(2);
    at.hook->ScrollValue(5);
    at.Forget();
    const PaintsInLog paints(at);
    at.desktop.FocusAway();
    at.list->SetData(1, "b");
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExEditorHide(b)", "ExItemShowCov(b)", "ExEditorHide(b)"));
}

// A row that is not the current one says nothing there.
TEST(gListScrolling, OtherOffPageRowsHideNothing) {
    LongList at;
    at.list->ListIndex(8);
    at.hook->ScrollValue(5);
    at.Forget();
    at.list->SetData(1, "b");
    EXPECT_THAT(at.TakeLog(), ElementsAre("ExItemShowCov(b)"));
    EXPECT_NE(at.Strip(), (tvok_Rect{}));
}

// Sequences of events in which a scroll takes part.

/// The log without the places of editors, and each run of equal lines as one: a row that scrolls in is
/// painted by the way.
std::vector<std::string> Story(LongList& at) {
    std::vector<std::string> log = at.TakeLog();
    std::erase_if(log, [](const std::string& line) { return line.starts_with("ExEditorSetPosition"); });
    log.erase(std::unique(log.begin(), log.end()), log.end());
    return log;
}

TEST(gListScrolling, AReleaseThatScrollsShowsTheEditorBeforeTheClickAndItsLoading) {
    LongList at;
    at.ClickRow(1);
    at.Forget();
    at.desktop.Press(*at.list, 60, 195);
    EXPECT_THAT(Story(at), ElementsAre("Change(11, k)", "ExEditorDataRestore(a)", "ExEditorHide(a)"));
    at.desktop.Release();
    EXPECT_THAT(Story(at), ElementsAre("ExEditorShow(k)", "Click(11, k)", "ExEditorHide()", "ExEditorIni(k)",
                                       "ExEditorShow(k)"));
}

TEST(gListScrolling, AKeyThatScrollsHidesNothingOfTheRowThatLeavesThePageBeforeItIsReadBack) {
    LongList at;
    at.ClickRow(1);
    at.Forget();
    at.desktop.Key(VK_NEXT);
    EXPECT_EQ(at.hook->ScrollValue(), 1);
    EXPECT_THAT(Story(at),
                ElementsAre("ExEditorShow(k)", "Change(11, k)", "Click(11, k)", "ExEditorDataRestore(a)",
                            "ExEditorHide(a)", "ExEditorIni(k)", "ExEditorShow(k)"));
}

TEST(gListScrolling, ADragThatScrollsPlacesNothingOnItsWay) {
    LongList at;
    at.PressRow(10);
    at.Forget();
    at.desktop.MoveTo(*at.list, 60, 205);
    at.desktop.MoveTo(*at.list, 61, 205);
    EXPECT_EQ(at.hook->ScrollValue(), 1);
    EXPECT_THAT(Story(at), ElementsAre("Change(11, k)", "Change(12, l)"));
    EXPECT_EQ(at.Strip(), (tvok_Rect{}));
    at.desktop.Release();
    EXPECT_NE(at.Strip(), (tvok_Rect{}));
}

struct LookCase {
    std::int32_t mode, lines;
    bool onBorder;
};

class gListScrolledPixels : public testing::TestWithParam<LookCase> {};

TEST_P(gListScrolledPixels, AreThoseOfAFullPaint) {
    const auto [mode, lines, onBorder] = GetParam();
    PropertyListDesktop at({.ListMode = mode, .Sorted = false});
    at.list->GridlineWidth(lines);
    at.list->GridlineOnBorder(onBorder);
    std::vector<elistdata> items;
    for (std::int32_t i = 0; i < 60; ++i) {
        const std::string key = "item " + std::to_string(i);
        items.push_back(i % 7 == 0 ? PropertyListDesktop::Group(key)
                                   : PropertyListDesktop::Value(key, "item " + std::to_string(i / 7 * 7)));
        items.back().item.text = key + " has a value";
        if (i % 3 == 0) items.back().xbuttons = "0|x|2|...|y|0";
    }
    at.Show(items);
    std::mt19937 random(11);
    const auto pick = [&](std::int32_t below) {
        return static_cast<std::int32_t>(random() % static_cast<std::uint32_t>(below));
    };
    for (int step = 0; step < 150; ++step) {
        switch (pick(5)) {
        case 0: at.list->ListIndex(1 + pick(at.list->Count())); break;
        case 1: at.hook->ScrollValue(pick(at.list->Count())); break;
        case 2: at.desktop.Wheel(pick(5) - 2); break;
        case 3: at.desktop.Key(33 + pick(8)); break;
        default: at.ClickRow(1 + pick(10), 5 + pick(150));
        }
        at.desktop.Pump();
        const auto scrolled = at.desktop.Pixels(*at.list);
        at.list->PaintAll();
        at.desktop.Pump();
        ASSERT_EQ(scrolled == at.desktop.Pixels(*at.list), true) << "after step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Lists, gListScrolledPixels,
                         testing::Values(LookCase{0, 0, false}, LookCase{0, 1, false}, LookCase{1, 1, false},
                                         LookCase{1, 1, true}, LookCase{0, 3, true}, LookCase{1, 0, false}));

} // namespace
} // namespace tvok::test
