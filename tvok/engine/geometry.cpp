#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

#include "tvok/engine/mtvok.h"
#include "tvok/host/Platform.h"
#include "tvok/host/Services.h"
#include "tvok/records/Error.h"
#include "tvok/records/numeric.h"
#include "tvok/records/text.h"

namespace tvok::mtvok {
namespace {

using host::platform;

constexpr std::int32_t kColumnWidths = 100;

/// A window's two rectangles as they are now.
struct WindowSize {
    tvok_Rect window;
    tvok_Rect client;

    explicit WindowSize(host::Handle hWnd) {
        platform().GetClientRect(hWnd, client);
        platform().GetWindowRect(hWnd, window);
    }
    std::int64_t WindowHeight() const { return std::int64_t{window.bottom} - window.Top; }
    std::int64_t WindowWidth() const { return std::int64_t{window.Right} - window.Left; }
    std::int64_t ClientHeight() const { return std::int64_t{client.bottom} - client.Top; }
    std::int64_t ClientWidth() const { return std::int64_t{client.Right} - client.Left; }
};

std::int64_t OuterLine(const ListState& state) {
    return state.GridlineOnBorder ? state.GridlineWidth : 0;
}

std::int64_t RowStep(const ListState& state) {
    return std::int64_t{state.GridlineWidth} + state.ItemHeight;
}

std::int32_t WholeRows(const ListState& state, std::int64_t clientHeight) {
    const auto step = RowStep(state);
    if (step == 0) throw OverflowError("rows of height 0 have no number that fits the page");
    return ToInt32(std::max<std::int64_t>((clientHeight - OuterLine(state)) / step, 1));
}

std::int32_t Twips(std::int64_t pixels, float twipsPerPixel) {
    return TruncateToInt32(static_cast<double>(pixels) * double{twipsPerPixel});
}

std::int64_t WantedClientWidth(const ListState& state) {
    std::int64_t total = 2 * OuterLine(state) - state.GridlineWidth;
    for (std::int32_t i = 1; i <= state.xn; ++i)
        total += std::int64_t{state.ColWidths[i]} + state.GridlineWidth;
    return total;
}

void FitColumns(ListState& state, std::int64_t clientWidth) {
    const auto outer = OuterLine(state);
    auto left = outer;
    for (std::int32_t k = 1; k <= kColumnWidths; ++k) {
        const auto right = left + state.ColWidths[k];
        left = right + state.GridlineWidth;
        if (right + outer <= clientWidth) continue;
        state.xn = std::max(k - 1, 1);
        return;
    }
}

bool TakesTheRest(const ListState& state, std::int32_t column) {
    return column == state.GridCols || (column == state.xn && !state.FixedWidthForLastXn);
}

void LayOutRow(CellTable& cells, const ListState& state, std::int32_t row, std::int64_t top) {
    const auto outer = OuterLine(state);
    auto left = outer;
    for (std::int32_t column = 1; column <= state.GridCols; ++column) {
        const auto right =
            TakesTheRest(state, column) ? state.ClientRect.Right - outer : left + state.ColWidths[column];
        cells(column, row) = {ToInt32(left), ToInt32(top), ToInt32(right), ToInt32(top + state.ItemHeight)};
        left = right + state.GridlineWidth;
    }
}

void MakeCells(CellTable& cells, const ListState& state) {
    // A column beyond the widths is refused before the table is made, however many columns are asked for.
    const auto lastWithWidth = state.FixedWidthForLastXn ? state.xn : state.xn - 1;
    if (lastWithWidth > kColumnWidths) throw SubscriptError(kColumnWidths + 1, kColumnWidths);
    const auto bound = [](std::int32_t wanted, std::int32_t present) {
        return wanted > present ? ToInt32(std::int64_t{wanted} + 1) : present;
    };
    cells.Make(bound(state.GridCols, cells.UpperColumn()), bound(state.GridRows, cells.UpperRow()));
}

} // namespace

void ParseColWidths(ListState& state) {
    const auto parts = Split(state.ColWidthSettingStr, ',');
    state.ColWidths.Make(kColumnWidths);
    // The text before the first comma is a placeholder that nothing reads. Settings are written with it, so
    // it stays: the second value is column 1.
    for (std::int32_t i = 1; i <= kColumnWidths; ++i) {
        auto& width = state.ColWidths[i];
        const auto part = static_cast<std::size_t>(i);
        if (part < parts.size()) width = RoundToInt32(ScanNumber(parts[part]));
        if (width < 1) width = state.ItemWidth;
    }
    state.ColWidths[1] = ToInt32(std::int64_t{state.ColWidths[1]} + state.HeadWidthEx);
}

void ParseTabStops(ListState& state) {
    state.TabCount = 0;
    quietly([&] {
        const auto parts = Split(state.TabStopSettingStr, ',');
        if (parts.empty()) return;
        const auto last = ToInt32(static_cast<std::int64_t>(parts.size()) - 1);
        if (last > state.TabStops.UpperBound()) state.TabStops.Resize(last);
        for (const auto part : parts) {
            // A width that does not fit keeps the old entry and still counts as a column.
            if (const auto width = TryRoundToInt32(std::abs(ScanNumber(part))))
                state.TabStops[state.TabCount] = *width;
            ++state.TabCount;
        }
    });
}

std::int32_t ComputeFitHeight(ListState& state, std::int32_t rows) {
    if (state.ItemHeight == 0) return 0;
    const WindowSize size(state.hWnd);
    state.yn = rows < 1 ? WholeRows(state, size.ClientHeight()) : rows;
    state.GridRows = state.yn;
    const auto needed = state.yn * RowStep(state) + OuterLine(state);
    const auto wanted = size.WindowHeight() - size.ClientHeight() + needed;
    if (!state.FixedHeight && rows < 1) return 0;
    if (size.WindowHeight() == wanted) return 0;
    return Twips(wanted, host::services().Screen().TwipsPerPixelY());
}

std::int32_t ComputeFitWidth(ListState& state) {
    const WindowSize size(state.hWnd);
    ParseColWidths(state);
    if (state.XnAuto) {
        FitColumns(state, size.ClientWidth());
        return 0;
    }
    if (state.xn < 2) return 0;
    const auto wanted = size.WindowWidth() - size.ClientWidth() + WantedClientWidth(state);
    if (size.WindowWidth() == wanted) return 0;
    return Twips(wanted, host::services().Screen().TwipsPerPixelX());
}

void BuildCellGrid(CellTable& cells, ListState& state) {
    if (state.xn == 0 || state.yn == 0) return;
    ParseColWidths(state);
    ParseTabStops(state);
    const WindowSize size(state.hWnd);
    state.WindowRect = size.window;
    state.ClientRect = size.client;
    state.GridCols = ToInt32(std::int64_t{state.xn} + 1);
    state.GridRows = ToInt32(std::int64_t{state.yn} + 1);
    MakeCells(cells, state);
    auto top = OuterLine(state);
    for (std::int32_t row = 1; row <= state.GridRows; ++row, top += RowStep(state))
        LayOutRow(cells, state, row, top);
}

bool IndexToCell(std::int32_t index, const ListState& state, std::int32_t& column, std::int32_t& row) {
    if (index < 1 || index > state.Count || state.xn == 0) return false;
    column = (index - 1) % state.xn + 1;
    row = ToInt32(std::int64_t{(index - 1) / state.xn} - state.TopRow + 1);
    return row >= 1 && row <= state.GridRows;
}

} // namespace tvok::mtvok
