// `HeaderWidths`: any text leaves columns that can be shown and hit, what is read back says the same again,
// and parts that are plain numbers do what they say. The first byte chooses how many columns there are.

#include <algorithm>
#include <charconv>
#include <chrono>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "fuzz.h"
#include "tvok/controls/largelist/HeaderColumns.h"
#include "tvok/records/text.h"

namespace {

using tvok::fuzz::Require;

constexpr std::int32_t cMinWidth = 10;
constexpr std::int32_t cMaxWidth = 3840;
constexpr std::int32_t cHeaderHeight = 20;
constexpr std::int32_t cListWidth = 200;
constexpr std::int32_t cRows = 1000;

std::vector<std::int32_t> WidthsOf(const tvok::HeaderColumns& columns) {
    std::vector<std::int32_t> widths;
    for (std::int32_t i = 1; i <= columns.Count(); ++i) widths.push_back(columns[i].hWidth);
    return widths;
}

tvok::HeaderColumns Columns(std::int32_t count, std::int32_t first) {
    tvok::HeaderColumns columns;
    for (std::int32_t i = 0; i < count; ++i) columns.Add(0, {.hWidth = first + i}, cMaxWidth);
    return columns;
}

/// The number of a part that is nothing but a few digits.
std::optional<std::int32_t> PlainNumber(std::string_view part) {
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(part.data(), part.data() + part.size(), number);
    const bool plain = !part.empty() && part.front() != '-' && end == part.data() + part.size();
    if (!plain || error != std::errc{}) return std::nullopt;
    return number;
}

void CheckParts(std::string_view text, const std::vector<std::int32_t>& before,
                const std::vector<std::int32_t>& after) {
    const auto parts = tvok::Split(text, '-');
    Require(after.size() == before.size(), "the columns stay");
    for (std::size_t i = 0; i < after.size(); ++i) {
        Require(after[i] == before[i] || after[i] >= cMinWidth, "a new width is 10 or more");
        if (i >= parts.size()) {
            Require(after[i] == before[i], "a column without a part keeps its width");
        } else if (const auto number = PlainNumber(parts[i])) {
            const std::int32_t expected = *number >= cMinWidth ? *number : before[i];
            Require(after[i] == expected, "a number of 10 or more is the width, a smaller one is none");
        }
    }
}

void CheckEdges(const tvok::HeaderColumns& columns) {
    std::int64_t edge = 0;
    std::vector<std::int64_t> edges;
    for (const std::int32_t width : WidthsOf(columns)) edges.push_back(edge += width);
    for (const std::int64_t middle : edges) {
        for (std::int64_t x = middle - 3; x <= middle + 3; ++x) {
            const auto hit = std::find_if(edges.begin(), edges.end(),
                                          [&](std::int64_t e) { return x - e >= -2 && x - e <= 2; });
            const auto expected = hit == edges.end() ? 0 : static_cast<std::int32_t>(hit - edges.begin()) + 1;
            Require(columns.EdgeFromPoint(x, 1, cHeaderHeight) == expected,
                    "the lowest column whose edge is within 2 pixels is hit");
        }
    }
    const bool fits = edge <= std::numeric_limits<std::int32_t>::max();
    try {
        Require(columns.Sum() == edge && fits, "the sum is that of the widths");
    } catch (const tvok::OverflowError&) {
        Require(!fits, "only a sum past 32 bits overflows");
    }
}

/// A list that counts what it asks for.
struct Shown {
    tvok::Form& form = tvok::fuzz::HeadlessDesktop().AddForm("widths", cListWidth, 100);
    tvok::qRosterex& list = form.Add<tvok::qRosterex>("list", {0, 0, cListWidth, 100});
    std::int32_t asked = 0;

    Shown() {
        list.BorderStyle(0);
        list.HeaderHeight(cHeaderHeight);
        list.ViewMode(1);
        list.Count(cRows);
        list.events.EnumDATA = [this](std::int32_t& row, tvok::qrosterdata& record) {
            Require(row >= 1 && row <= cRows, "only rows that exist are asked for");
            ++asked;
            record = {.text = "cell\tcell\tcell"};
        };
    }
};

/// Moves the pointer over the end of the first column, where that is on the list.
void CheckPointer(Shown& shown, std::int32_t firstWidth) {
    if (firstWidth >= cListWidth - 30) return;
    tvok::host::Point at{firstWidth, 1};
    tvok::host::platform().ClientToScreen(shown.form.ComponentOf(shown.list).hWnd(), at);
    tvok::fuzz::HeadlessDesktop().Input().MouseMove(at.x, at.y);
    tvok::fuzz::HeadlessDesktop().ProcessEvents(std::chrono::milliseconds(0));
    Require(shown.form.ComponentOf(shown.list).MousePointer() == tvok::host::ccSizeWE,
            "the pointer over a divider says so");
}

void Show(std::string_view text, const tvok::HeaderColumns& before, const tvok::HeaderColumns& after) {
    static Shown shown;
    shown.list.HeaderClear();
    for (std::int32_t i = 1; i <= before.Count(); ++i) shown.list.HeaderAdd(0, "column", before[i].hWidth);
    shown.list.Refresh();
    shown.asked = 0;
    shown.list.HeaderWidths(text);
    Require(shown.list.HeaderWidths() == after.Widths(), "the list has the widths");
    std::int64_t sum = 0;
    for (const std::int32_t width : WidthsOf(after)) sum += width;
    if (sum > std::numeric_limits<std::int32_t>::max()) return;
    const bool blank = tvok::Trim(text).empty();
    Require(blank ? shown.asked == 0 : shown.asked > 0, "a text that is not blank repaints");
    shown.asked = 0;
    shown.list.PaintAll();
    Require(shown.asked == shown.list.yn() + 1, "one page of rows is asked for");
    if (after.Count() > 0) CheckPointer(shown, after[1].hWidth);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::int32_t count = data[0] % 8;
    const std::string_view text = tvok::fuzz::Text(data + 1, size - 1);

    const tvok::HeaderColumns before = Columns(count, 40);
    tvok::HeaderColumns after = before;
    const bool taken = after.Widths(text);
    Require(taken == !tvok::Trim(text).empty(), "only a blank text is refused");
    CheckParts(text, WidthsOf(before), WidthsOf(after));
    CheckEdges(after);

    tvok::HeaderColumns again = after;
    again.Widths(text);
    Require(again.Widths() == after.Widths(), "the same text changes nothing more");
    tvok::HeaderColumns other = Columns(count, 100);
    other.Widths(after.Widths());
    Require(other.Widths() == after.Widths(), "what is read back sets the same widths");

    Show(text, before, after);
    return 0;
}
