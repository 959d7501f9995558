// The flat list among other toolkits' lists of items: building, sorting, and a step through it, as
// benchmarks/peers/comparison.h tells.

#include <memory>
#include <string>
#include <vector>

#include "benchmarks/peers/comparison.h"
#include "tvok/tvok.h"

#include "tvok/host/desktop/windows/SoftHooks.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok::comparison {
namespace {

/// What there is one of in a process, as the others have their application.
struct OneDesktop : Desktop {
    OneDesktop()
        : Desktop({.display = DesktopOptions::Display::Headless,
                   .fontFile = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf",
                   .language = "en"}) {
        AddForm("stays", 1, 1); // a desktop whose last form was closed is over
    }
};

/// A window with one list of one column.
class FlatList {
public:
    FlatList(Run& run, Desktop& desktop)
        : run_(run), desktop_(desktop), form_(desktop_.AddForm("list", cWidth, cHeight)),
          list_(form_.Add<qRoster>("list1", {0, 0, cWidth, cHeight})) {
        list_.ItemHeight(cRowHeight);
        host::platform().SetFocus(Window());
    }
    ~FlatList() {
        form_.Close();
        desktop_.ProcessEvents({});
    }
    FlatList(const FlatList&) = delete;
    FlatList& operator=(const FlatList&) = delete;

    template<class TextOf>
    void Fill(TextOf&& textOf) {
        list_.Clear();
        for (int i = 0; i < run_.rows(); ++i) list_.AddItem(0, {.text = textOf(i)});
        Show();
    }
    void Show() {
        list_.Refresh();
        desktop_.ProcessEvents({});
    }
    void ScrollTo(std::int32_t row) {
        desktop_.world().hooks.messages.Newest(Window())->ScrollValue(row);
        desktop_.ProcessEvents({});
    }
    void Key(std::int32_t key) {
        desktop_.Input().KeyDown(key);
        desktop_.Input().KeyUp(key);
        desktop_.ProcessEvents({});
    }
    qRoster& list() { return list_; }
    std::string TextAt(std::int32_t index) const {
        qrosterdata item;
        list_.GetData(index, item);
        return item.text;
    }
    void Finish(bool right, const char* what) {
        run_.Expect(right, what);
        if (!run_.picture.empty()) desktop_.SaveForm(form_, run_.picture);
    }

private:
    host::Handle Window() { return form_.ComponentOf(list_).hWnd(); }

    Run& run_;
    Desktop& desktop_;
    Form& form_;
    qRoster& list_;
};

std::string NameOf(int row) {
    return std::string(CellText(row, 1).View());
}

void Build(Run& run) {
    OneDesktop desktop;
    std::unique_ptr<FlatList> list;
    run.Tell(Measure(
                 3, [&](int) { list.reset(); },
                 [&](int) {
                     list = std::make_unique<FlatList>(run, desktop);
                     list->Fill(NameOf);
                 }),
             Unit::Milliseconds);
    list->Finish(list->list().Count() == run.rows(), "all items are there");
}

void Sort(Run& run) {
    OneDesktop desktop;
    FlatList list(run, desktop);
    std::vector<std::string> texts;
    texts.reserve(static_cast<std::size_t>(run.rows()));
    for (int i = 0; i < run.rows(); ++i) texts.push_back(SortText(i));
    run.Tell(Measure(
                 3,
                 [&](int) {
                     list.list().SortedMode(bNoneSorted);
                     list.Fill([&](int i) { return texts[static_cast<std::size_t>(i)]; });
                 },
                 [&](int) {
                     list.list().SortedMode(bAscendingSorted);
                     list.Show();
                 }),
             Unit::Milliseconds);
    list.Finish(list.TextAt(1) < list.TextAt(run.rows()), "the first is before the last");
}

void ScrollByRow(Run& run) {
    OneDesktop desktop;
    FlatList list(run, desktop);
    list.Fill(NameOf);
    const int jump = StepsFromStart(run.n, 1);
    auto at = static_cast<std::int32_t>(StartRow(run.n));
    run.Tell(Measure(
        20,
        [&](int i) {
            if (i % jump == 0) list.ScrollTo(at = static_cast<std::int32_t>(StartRow(run.n)));
        },
        [&](int) { list.ScrollTo(++at); }));
    list.Finish(true, "");
}

void KeyDown(Run& run) {
    OneDesktop desktop;
    FlatList list(run, desktop);
    list.Fill(NameOf);
    const auto start = static_cast<std::int32_t>(StartRow(run.n));
    std::int32_t row = 0;
    run.Tell(Measure(
        20,
        [&](int i) {
            if (i % cStepsOnPage != 0) return;
            list.ScrollTo(start);
            list.list().ListIndex(row = start + 1);
            list.Show();
        },
        [&](int) {
            ++row;
            list.Key(host::VK_DOWN);
        }));
    list.Finish(list.list().ListIndex() == row, "each key moved");
}

} // namespace
} // namespace tvok::comparison

int main(int count, char** arguments) {
    using namespace tvok::comparison;
    RunOne("tvok", count, arguments,
           {{"flat_open", Build},
            {"flat_sort", Sort},
            {"flat_scroll_row", ScrollByRow},
            {"flat_key_down", KeyDown}});
}
