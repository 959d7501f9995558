/// What a step costs in calls to the host and to the platform, whatever the number of rows is.
#include <cstdlib>

#include "tests/support/FakeLargeList.h"

namespace tvok::test {
namespace {

constexpr std::int32_t cHundredMillion = 100000000;

/// A page of five rows of 20 pixels, of three columns.
class LargeListCosts : public testing::TestWithParam<std::int32_t> {
protected:
    static constexpr std::int32_t cColumns = 3;
    FakeLargeList f{{.width = 400, .columns = cColumns}, GetParam()};
    std::int32_t rows() const { return GetParam(); }

    /// What was called since the last look: rows asked for, ScrollDC and ExtTextOutA.
    struct Calls {
        std::size_t asked, scrolls, texts;
        friend bool operator==(const Calls&, const Calls&) = default;
    };
    Calls Take() {
        const Calls calls{f.asked.size(), f.log().Named("ScrollDC").size(),
                          f.log().Named("ExtTextOutA").size()};
        f.Forget();
        return calls;
    }
    static Calls Painted(std::size_t painted, std::size_t scrolls) {
        return {painted, scrolls, painted * std::size_t{cColumns}};
    }
    void GoTo(std::int32_t position) {
        f.hook().ScrollValue(position);
        f.Forget();
    }
};

TEST_P(LargeListCosts, ARowAtTheVisibleBottomIsOneScrollAndOneRow) {
    GoTo(f.hook().ScrollMax());
    for (int i = 1; i <= 50; ++i) {
        f.list.AddItemButtom();
        EXPECT_EQ(f.asked, (Rows{rows() + i}));
        EXPECT_EQ(Take(), Painted(1, 1));
    }
}

TEST_P(LargeListCosts, ARowAtTheVisibleTopIsOneScrollAndOneRow) {
    f.list.ViewMode(0);
    f.list.Refresh();
    f.Forget();
    for (int i = 1; i <= 50; ++i) {
        f.list.AddItemTop();
        EXPECT_EQ(f.asked, (Rows{rows() + i}));
        EXPECT_EQ(Take(), Painted(1, 1));
    }
}

TEST_P(LargeListCosts, ARowAddedElsewhereTellsTheBarAndDrawsNothing) {
    f.list.FileBufCreate();
    GoTo(7);
    for (int i = 0; i < 50; ++i) f.list.AddItemButtom(i);
    EXPECT_TRUE(f.asked.empty());
    EXPECT_EQ(f.TakeHookWrites(), Lines(50, "ScrollGrow 1"));
    for (int i = 0; i < 50; ++i) f.list.AddItemTop(i);
    EXPECT_TRUE(f.asked.empty());
    EXPECT_EQ(f.log().All().size(), 50u); // no platform call at all
    EXPECT_EQ(f.TakeHookWrites(), Lines(50, "ScrollGrowValue 1"));
}

TEST_P(LargeListCosts, ARepaintAsksOnceForEachRowOnThePage) {
    GoTo(rows() / 2);
    f.list.PaintAll();
    const std::int32_t first = rows() / 2 + 1;
    EXPECT_EQ(f.asked, (Rows{first, first + 1, first + 2, first + 3, first + 4}));
    EXPECT_EQ(Take(), Painted(5, 0));
    f.list.DrawItem(first - 1);
    f.list.DrawItem(first + 6); // there is a slot for a sixth row that is cut off
    f.list.DrawItem(rows());
    EXPECT_TRUE(f.asked.empty());
    EXPECT_TRUE(f.log().All().empty());
}

TEST_P(LargeListCosts, ScrollingPaintsTheUncoveredRowsAlone) {
    GoTo(rows() / 2);
    for (const std::int32_t by : {1, -1, 3, -4}) {
        f.hook().ScrollValue(f.hook().ScrollValue() + by);
        EXPECT_EQ(Take(), Painted(static_cast<std::size_t>(std::abs(by)), 1)) << by;
    }
    f.hook().ScrollValue(rows() / 4);
    EXPECT_EQ(Take(), Painted(5, 0));
}

TEST_P(LargeListCosts, AKeyPaintsTheRowItLeavesAndTheOneItReaches) {
    GoTo(rows() / 2);
    f.list.ListIndex(rows() / 2 + 2);
    f.Forget();
    f.Key(host::VK_DOWN);
    EXPECT_EQ(f.asked, (Rows{rows() / 2 + 2, rows() / 2 + 3}));
    EXPECT_EQ(Take(), Painted(2, 0));
    f.Key(host::VK_NEXT); // the old row, then the page moves by three; the new row is off the page until then
    EXPECT_EQ(Take(), Painted(4, 1));
    f.Key(host::VK_END);
    EXPECT_EQ(Take(), Painted(6, 0)); // the old row and one page
    f.Key(host::VK_DOWN);
    EXPECT_EQ(Take(), Painted(1, 0)); // there is no further row
}

TEST_P(LargeListCosts, APressPaintsTwoRowsAndAReleaseNone) {
    GoTo(rows() / 2);
    f.PressSlot(2);
    EXPECT_EQ(Take(), Painted(1, 0)); // there was no current row on the page
    f.Release();
    EXPECT_EQ(Take(), Painted(0, 0));
    f.PressSlot(4);
    EXPECT_EQ(Take(), Painted(2, 0));
    f.Release();
    f.MoveToSlot(3, 0);
    EXPECT_EQ(Take(), Painted(0, 0));
}

TEST_P(LargeListCosts, ADragPaintsTheRowsBetweenAndARangeOfAllRowsOnePageEach) {
    f.list.MultiSelect(1);
    GoTo(rows() / 2);
    f.PressSlot(2);
    Take();
    f.MoveToSlot(4);
    EXPECT_EQ(f.asked, (Rows{rows() / 2 + 2, rows() / 2 + 3, rows() / 2 + 4}));
    EXPECT_EQ(Take(), Painted(3, 0));
    f.Release();
    f.Key(host::VK_HOME);
    f.Forget();
    f.Key(host::VK_END, 1);
    EXPECT_EQ(f.list.EndSelected() - f.list.StartSelected(), rows() - 1);
    EXPECT_EQ(Take(), Painted(10, 0)); // the page where the range began and the one where it ends
}

TEST_P(LargeListCosts, GridLinesTakeOnePenForEachRow) {
    f.list.GridlineWidth(1);
    GoTo(rows() / 2);
    f.list.PaintAll();
    EXPECT_EQ(f.log().Named("CreatePen").size(), f.asked.size());
    EXPECT_EQ(f.log().Named("CreateSolidBrush").size(), f.log().Named("FillRect").size());
    EXPECT_EQ(f.log().LiveObjects(), 0u);
}

TEST_P(LargeListCosts, AnAddedRowIsFourBytesOfTheFile) {
    f.list.FileBufCreate(10);
    const std::string path = f.services.files.paths.back();
    f.list.AddItemButtom(1);
    const auto before = std::filesystem::file_size(path);
    EXPECT_EQ(before, (static_cast<std::uintmax_t>(rows()) + 1) * 4);
    for (int i = 0; i < 25; ++i) f.list.AddItemButtom(i);
    EXPECT_EQ(std::filesystem::file_size(path), before + 100);
}

INSTANTIATE_TEST_SUITE_P(Counts, LargeListCosts, testing::Values(1000, cHundredMillion));

} // namespace
} // namespace tvok::test
