// The large list among other toolkits' tables: it does what the programs in benchmarks/peers do, with the
// same texts and steps, as benchmarks/peers/comparison.h tells.

#include <memory>
#include <string>

#include "benchmarks/LargeListPage.h"
#include "benchmarks/peers/comparison.h"
#include "tvok/tvok.h"

namespace tvok::comparison {
namespace {

using bench::LargeListPage;
static_assert(bench::cListWidth == cWidth && bench::cListHeight == cHeight && bench::cListStep == cRowHeight);
static_assert(bench::cListColumns == cColumns && bench::cListColumnWidth == cColumnWidth);

/// Cells of the row whose number counts from 0 at the top; rows put on top go below 0.
void AppendCells(std::int64_t number, std::string& text) {
    for (int column = 0; column < cColumns; ++column) {
        if (column > 0) text += '\t';
        text += CellText(number, column).View();
    }
}

void Nothing(int) {}

enum class Order { OldestFirst, NewestFirst };

/// The page with a list of the rows that the case names.
struct Page : LargeListPage {
    Run& run;

    explicit Page(Run& of, Order order = Order::OldestFirst) : run(of) { OpenList(order); }
    void OpenList(Order order = Order::OldestFirst) {
        const std::int32_t count = run.rows();
        if (order == Order::OldestFirst)
            Open(count, [](std::int32_t row, std::string& text) { AppendCells(row - 1, text); });
        else
            Open(
                count, [count](std::int32_t row, std::string& text) { AppendCells(count - row, text); }, 0);
    }
    std::int32_t Start() const { return static_cast<std::int32_t>(StartRow(run.n)); }
    void Finish(bool right, const char* what) {
        run.Expect(right, what);
        if (!run.picture.empty()) desktop().SaveForm(form(), run.picture);
    }
};

void MeasureOpen(Run& run) {
    Page page(run);
    run.Tell(Measure(
                 3, [&](int) { page.Close(); }, [&](int) { page.OpenList(); }),
             Unit::Milliseconds);
    page.Finish(page.Position() == 0, "the first row is on top");
}

/// By clicks on the arrow or on the track of the bar.
void Scroll(Run& run, bool byPage) {
    Page page(run);
    const std::int32_t step = byPage ? page.list().yn() : 1;
    const int jump = StepsFromStart(run.n, step);
    if (byPage)
        page.MoveToTrack();
    else
        page.MoveToArrow();
    std::int32_t at = 0;
    run.Tell(Measure(
        20,
        [&](int i) {
            if (i % jump == 0) page.ScrollTo(at = page.Start());
        },
        [&](int) {
            at += step;
            page.Click();
        }));
    page.Finish(page.Position() == at, "each click scrolled");
}
void ScrollByRow(Run& run) {
    Scroll(run, false);
}
void ScrollByPage(Run& run) {
    Scroll(run, true);
}

void Repaint(Run& run) {
    Page page(run);
    page.ScrollTo(page.Start());
    const std::int64_t before = page.asked;
    run.Tell(Measure(20, Nothing, [&](int) {
        page.list().PaintAll();
        page.Pump();
    }));
    page.Finish(page.asked > before, "rows were painted");
}

void AppendVisible(Run& run) {
    Page page(run);
    page.ScrollTo(page.Bars().ScrollMax());
    run.Tell(Measure(10, Nothing, [&](int) {
        page.list().AddItemButtom();
        page.Pump();
    }));
    page.Finish(page.Position() == page.Bars().ScrollMax(), "the end is in view");
}

void PrependVisible(Run& run) {
    Page page(run, Order::NewestFirst);
    run.Tell(Measure(10, Nothing, [&](int) {
        page.list().AddItemTop();
        page.Pump();
    }));
    page.Finish(page.Position() == 0, "the newest row is in view");
}

void AppendAway(Run& run) {
    Page page(run);
    page.ScrollTo(page.Start());
    run.Tell(Measure(10, Nothing, [&](int) {
        page.list().AddItemButtom();
        page.Pump();
    }));
    page.Finish(page.Position() == page.Start(), "the place is kept");
}

void PrependAway(Run& run) {
    Page page(run, Order::NewestFirst);
    page.ScrollTo(page.Start());
    std::int32_t added = 0;
    run.Tell(Measure(10, Nothing, [&](int) {
        ++added;
        page.list().AddItemTop();
        page.Pump();
    }));
    page.Finish(page.Position() == page.Start() + added, "the place is kept");
}

void KeyDown(Run& run) {
    Page page(run);
    page.ClickAt(100, 100);
    std::int32_t row = 0;
    const auto toTop = [&](int i) {
        if (i % cStepsOnPage != 0) return;
        page.ScrollTo(page.Start());
        page.list().ListIndex(row = page.Start() + 1);
        page.Pump();
    };
    run.Tell(Measure(20, toTop, [&](int) {
        ++row;
        page.Key(host::VK_DOWN);
    }));
    page.Finish(page.list().ListIndex() == row && page.Position() == page.Start(), "each key moved");
}

/// From the first row to the last by Shift and End, which also goes there.
void SelectAll(Run& run) {
    Page page(run);
    page.list().MultiSelect(1);
    page.ClickAt(100, 100);
    run.Tell(Measure(
        3, [&](int) { page.Key(host::VK_HOME); },
        [&](int) {
            page.desktop().Input().KeyDown(host::VK_SHIFT);
            page.desktop().Input().KeyDown(host::VK_END);
            page.desktop().Input().KeyUp(host::VK_END);
            page.desktop().Input().KeyUp(host::VK_SHIFT);
            page.Pump();
        }));
    page.Finish(page.list().StartSelected() == 1 && page.list().EndSelected() == run.rows(),
                "all rows are selected");
}

} // namespace
} // namespace tvok::comparison

int main(int count, char** arguments) {
    using namespace tvok::comparison;
    RunOne("tvok", count, arguments,
           {{"open", MeasureOpen},
            {"scroll_row", ScrollByRow},
            {"scroll_page", ScrollByPage},
            {"repaint", Repaint},
            {"append_visible", AppendVisible},
            {"prepend_visible", PrependVisible},
            {"append_away", AppendAway},
            {"prepend_away", PrependAway},
            {"key_down", KeyDown},
            {"select_all_range", SelectAll}});
}
