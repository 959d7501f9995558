// The large list among other toolkits' tables: `largelist_compared CASE N` does what their programs do, with
// the same cell texts and steps, and prints one line of JSON for each figure. It exits with 3 for a case that
// it does not have.

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>

#include "benchmarks/LargeListPage.h"

#include <bench.h>

namespace tvok::bench {
namespace {

using ::bench::Args;
using ::bench::measure;

constexpr const char* cProgram = "tvok";

/// Cells of the row whose number counts from 0 at the top; rows put on top go below 0.
void AppendCells(std::int64_t number, std::string& text) {
    char cell[32];
    for (int column = 0; column < cListColumns; ++column) {
        if (column > 0) text += '\t';
        text.append(cell, static_cast<std::size_t>(::bench::cell_text(number, column, cell)));
    }
}

void Report(const Args& args, const char* unit, const ::bench::Samples& samples, double scale = 1) {
    ::bench::report(cProgram, args.name.c_str(), args.n, unit, samples, scale);
}

void Nothing(int) {}

class Compared {
public:
    explicit Compared(const Args& args) : args_(args), count_(static_cast<std::int32_t>(args.n)) {}

    bool Run() {
        if (args_.name == "open") return Open();
        if (args_.name == "scroll_row") return Scroll(false);
        if (args_.name == "scroll_page") return Scroll(true);
        if (args_.name == "repaint") return Repaint();
        if (args_.name == "append_visible") return AppendVisible();
        if (args_.name == "prepend_visible") return PrependVisible();
        if (args_.name == "append_away") return AppendAway();
        if (args_.name == "key_down") return KeyDown();
        if (args_.name == "select_all_range") return SelectAll();
        return false;
    }

private:
    void OpenList(std::int16_t viewMode = 1) {
        const auto oldestFirst = [](std::int32_t row, std::string& text) { AppendCells(row - 1, text); };
        const auto newestFirst = [n = count_](std::int32_t row, std::string& text) {
            AppendCells(n - row, text);
        };
        if (viewMode != 0)
            page_.Open(count_, oldestFirst, viewMode);
        else
            page_.Open(count_, newestFirst, viewMode);
    }
    std::int32_t Start() const { return static_cast<std::int32_t>(::bench::start_row(args_.n)); }
    void Shoot() {
        if (!args_.shot.empty()) page_.desktop().SaveForm(page_.form(), args_.shot);
    }
    bool Done(bool right) {
        if (!right) std::fprintf(stderr, "tvok %s: the list is not where it should be\n", args_.name.c_str());
        Shoot();
        return true;
    }

    bool Open() {
        const long before = ::bench::rss_kb();
        const double start = ::bench::now_us();
        OpenList();
        const double cold = ::bench::now_us() - start;
        ::bench::report(cProgram, "open_cold", args_.n, "ms", cold / 1e3, 1, -1, -1,
                        static_cast<double>(::bench::calls), "first window of the process");
        ::bench::report(cProgram, "open_rss", args_.n, "KB", static_cast<double>(::bench::rss_kb() - before),
                        1);
        Shoot();
        Report(args_, "ms",
               measure(
                   20, 5, 1, [&](int) { page_.Close(); }, [&](int) { OpenList(); }),
               1e-3);
        return true;
    }

    /// By clicks on the arrow or on the track of the bar.
    bool Scroll(bool byPage) {
        OpenList();
        const std::int32_t step = byPage ? page_.list().yn() : 1;
        const int jump = ::bench::steps_before_jump(args_.n, step);
        if (byPage)
            page_.MoveToTrack();
        else
            page_.MoveToArrow();
        std::int32_t at = 0;
        const auto samples = measure(
            1000, 4, 20,
            [&](int i) {
                if ((i + 3) % jump != 0) return;
                page_.ScrollTo(at = Start());
            },
            [&](int) {
                at += step;
                page_.Click();
            });
        Report(args_, "us", samples);
        return Done(page_.Position() == at);
    }

    bool Repaint() {
        OpenList();
        page_.ScrollTo(Start());
        Report(args_, "us", measure(1000, 4, 20, Nothing, [&](int) {
                   page_.list().PaintAll();
                   page_.Pump();
               }));
        return Done(true);
    }

    bool AppendVisible() {
        OpenList();
        page_.ScrollTo(page_.Bars().ScrollMax());
        Report(args_, "us", measure(1000, 6, 10, Nothing, [&](int) {
                   page_.list().AddItemButtom();
                   page_.Pump();
               }));
        return Done(page_.Position() == page_.Bars().ScrollMax());
    }

    bool PrependVisible() {
        OpenList(0);
        Report(args_, "us", measure(1000, 6, 10, Nothing, [&](int) {
                   page_.list().AddItemTop();
                   page_.Pump();
               }));
        return Done(page_.Position() == 0);
    }

    bool AppendAway() {
        OpenList();
        page_.ScrollTo(Start());
        Report(args_, "us", measure(1000, 6, 10, Nothing, [&](int) {
                   page_.list().AddItemButtom();
                   page_.Pump();
               }));
        return Done(page_.Position() == Start());
    }

    bool KeyDown() {
        OpenList();
        page_.ClickAt(100, 100);
        std::int32_t row = 0;
        const auto toTop = [&](int i) {
            if ((i + 3) % 40 != 0) return;
            page_.ScrollTo(Start());
            page_.list().ListIndex(row = Start() + 1);
            page_.Pump();
        };
        Report(args_, "us", measure(1000, 4, 20, toTop, [&](int) {
                   ++row;
                   page_.Key(host::VK_DOWN);
               }));
        return Done(page_.list().ListIndex() == row && page_.Position() == Start());
    }

    /// From the first row to the last by Shift and End, which also goes there.
    bool SelectAll() {
        OpenList();
        page_.list().MultiSelect(1);
        page_.ClickAt(100, 100);
        Report(args_, "us",
               measure(
                   100, 4, 3, [&](int) { page_.Key(host::VK_HOME); },
                   [&](int) {
                       page_.desktop().Input().KeyDown(host::VK_SHIFT);
                       page_.desktop().Input().KeyDown(host::VK_END);
                       page_.desktop().Input().KeyUp(host::VK_END);
                       page_.desktop().Input().KeyUp(host::VK_SHIFT);
                       page_.Pump();
                   }));
        return Done(page_.list().StartSelected() == 1 && page_.list().EndSelected() == count_);
    }

    Args args_;
    std::int32_t count_;
    LargeListPage page_;
};

} // namespace
} // namespace tvok::bench

int main(int argc, char** argv) {
    const auto known = tvok::bench::Compared(::bench::parse(argc, argv)).Run();
    std::fflush(stdout);
    return known ? 0 : 3;
}
