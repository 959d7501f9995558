// What a property list of 100,000 items costs: filling, rebuilding, folding a group, and the repaints of
// single rows.

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "benchmarks/ratios.h"
#include "tvok/engine/dgi.h"
#include "tvok/tvok.h"

namespace tvok::bench {
namespace {

constexpr std::int32_t kItems = 100'000;

/// Items of which one in `each` + 1 is a group, with keys, and captions in no order.
std::vector<elistdata> Items(std::int32_t count, std::int32_t groups) {
    std::mt19937 random(7);
    std::vector<elistdata> items;
    const std::int32_t each = count / groups;
    for (std::int32_t i = 0; i < count; ++i) {
        const std::int32_t group = i / each;
        elistdata item{.bVisible = true};
        item.bParentItem = i % each == 0;
        item.hItem.key = item.bParentItem ? "group." + std::to_string(group) : "item.of." + std::to_string(i);
        item.hItem.text = "Caption " + std::to_string(random() % 10'000'000);
        if (!item.bParentItem) item.pKey = "group." + std::to_string(group);
        item.xbuttons = "b|1-12|2;ns";
        item.nData = Variant(i);
        items.push_back(item);
    }
    return items;
}

/// A grouped list on a form in memory.
struct ListInMemory {
    Desktop desktop{[] {
        DesktopOptions options;
        options.display = DesktopOptions::Display::Headless;
        return options;
    }()};
    Form& form = desktop.AddForm("bench", 400, 600);
    gList& list = form.Add<gList>("list1", {0, 0, 400, 600});

    ListInMemory() {
        list.ListMode(1);
        Pump();
    }
    explicit ListInMemory(const std::vector<elistdata>& items) : ListInMemory() {
        Fill(items);
        list.BuiltList();
        Pump();
    }
    void Fill(const std::vector<elistdata>& items) {
        for (const elistdata& item : items) list.AddItem(item);
    }
    void Pump() { desktop.ProcessEvents(std::chrono::milliseconds{0}); }

    /// A press in the head band of a row on the page.
    void Press(std::int32_t row) {
        tvok_Rect value;
        list.GetItemRect(row, value);
        const tvok_Rect client = dgi::GetClientScreenRect(form.ComponentOf(list).hWnd());
        desktop.Input().MouseMove(client.Left + 4, (value.Top + value.bottom) / 2);
        desktop.Input().MouseDown(desktop::MouseButton::Left);
        desktop.Input().MouseUp(desktop::MouseButton::Left);
        Pump();
    }
};

/// Filling a list, and copying the same records to a vector and their keys to a map.
struct Filling {
    double own = 1e9;
    double least = 1e9;

    explicit Filling(const std::vector<elistdata>& items) {
        for (int run = 0; run < 5; ++run) {
            ListInMemory at;
            own = std::min(own, Seconds(1, [&] { at.Fill(items); }));
            std::vector<elistdata> records;
            std::unordered_map<std::string, std::int32_t> keys;
            const auto copy = [&] {
                for (const elistdata& item : items) {
                    keys.emplace(item.hItem.key, static_cast<std::int32_t>(records.size()));
                    records.push_back(item);
                }
            };
            least = std::min(least, Seconds(1, copy));
        }
    }
};

void MeasureFilling() {
    const Filling all(Items(kItems, 1000));
    const Filling some(Items(kItems / 10, 100));
    Report("AddItem of 100,000 with keys, in copies to a vector and a map", all.own / all.least,
           Wanted::AtMost, 3);
    Report("AddItem of 100,000 against 10,000, beside the same of the copies",
           all.own / some.own / (all.least / some.least), Wanted::AtMost, 1.5);
}

/// Sorting keys that are there, and measuring each caption once.
double LeastForRows(ListInMemory& at, const std::vector<elistdata>& items) {
    const host::Component& base = at.form.ComponentOf(at.list);
    double least = 1e9;
    for (int run = 0; run < 3; ++run) {
        std::vector<std::pair<std::string_view, std::int32_t>> keys;
        keys.reserve(items.size());
        for (const elistdata& item : items)
            keys.emplace_back(item.hItem.text, static_cast<std::int32_t>(keys.size()));
        float widest = 0;
        least = std::min(least, Seconds(1, [&] {
                             std::sort(keys.begin(), keys.end());
                             for (const elistdata& item : items)
                                 if (!item.bParentItem)
                                     widest = std::max(widest, base.TextWidth(item.hItem.text));
                         }));
        if (widest <= 0) std::abort();
    }
    return least;
}

void MeasureRows() {
    const auto items = Items(kItems, 1000);
    double own = 1e9;
    double least = 1e9;
    for (int run = 0; run < 3; ++run) {
        ListInMemory at;
        at.Fill(items);
        own = std::min(own, Seconds(1, [&] { at.list.BuiltList(); }));
        least = std::min(least, LeastForRows(at, items));
    }
    Report("BuiltList of 100,000, in a sort of keys and measuring captions once", own / least, Wanted::AtMost,
           2);
}

void MeasureFolding() {
    ListInMemory at(Items(kItems, 100)); // groups of 1,000 rows
    const double paint = Seconds(
        15, [&] { at.list.PaintAll(); }, 5);
    const double fold = Seconds(
        15, [&] { at.Press(1); }, 2);
    Report("folding 1,000 of 100,000 rows, in repaints of the page", fold / paint, Wanted::AtMost, 5);
    ListInMemory few(Items(kItems / 10, 10));
    const double foldOfFew = Seconds(
        15, [&] { few.Press(1); }, 2);
    Report("folding 1,000 of 100,000 rows against 1,000 of 10,000", fold / foldOfFew, Wanted::AtMost, 3);
}

void MeasureRowRepaints() {
    ListInMemory at(Items(kItems, 1000));
    at.list.ListIndex(3);
    const double paint = Seconds(
        15, [&] { at.list.PaintAll(); }, 5);
    const std::int32_t rows = 600 / at.list.ItemHeight();
    elistdata shown;
    at.list.GetItem(shown, {}, 5);
    std::int32_t value = 0;
    const double set = Seconds(
        15, [&] { at.list.SetData(Variant(++value % 100), shown.hItem.key); }, 50);
    Report("SetData of a visible item, in parts of a page for its one row", set * rows / paint,
           Wanted::AtMost, 2);
    std::int32_t row = 5;
    const double move = Seconds(
        15, [&] { at.list.ListIndex(row = row == 5 ? 6 : 5); }, 50);
    Report("moving the current row, in parts of a page for its two rows", move * rows / paint / 2,
           Wanted::AtMost, 3);
}

} // namespace
} // namespace tvok::bench

int main() {
    tvok::bench::MeasureFilling();
    tvok::bench::MeasureRows();
    tvok::bench::MeasureFolding();
    tvok::bench::MeasureRowRepaints();
    return tvok::bench::missed;
}
