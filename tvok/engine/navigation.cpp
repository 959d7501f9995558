#include <algorithm>

#include "tvok/engine/dgi.h"
#include "tvok/engine/mtvok.h"
#include "tvok/host/Platform.h"
#include "tvok/records/Error.h"
#include "tvok/records/numeric.h"

namespace tvok::mtvok {
namespace {

host::MessageHook& Needed(host::MessageHook* hook) {
    if (hook == nullptr) throw ObjectError("a list has no hook before its properties are read in run mode");
    return *hook;
}

/// Whole rows that `count` items take, with the last one begun.
std::int64_t RowsOf(std::int64_t count, std::int32_t columns) {
    return count / columns + (count % columns != 0 ? 1 : 0);
}

/// The item of a row that holds the point, counted within the row; 0 for none or the filler.
std::int32_t ColumnAt(const CellTable& cells, const ListState& state, std::int32_t row, host::Point point) {
    for (std::int32_t column = 1; column <= state.GridCols; ++column) {
        const auto reach = dgi::InflatedRect(cells(column, row), state.GridlineWidth);
        if (host::Platform::PtInRect(reach, point)) return column < state.GridCols ? column : 0;
    }
    return 0;
}

bool WriteScrollValue(host::MessageHook& hook, std::int64_t position) {
    const auto value = ToInt32(position);
    hook.ScrollValue(value);
    if (hook.ScrollValue() == value) return false;
    hook.ScrollValue(value);
    return true;
}

} // namespace

std::int32_t ItemFromPoint(const CellTable& cells, const ListState& state, std::int32_t x, std::int32_t y) {
    for (std::int32_t row = 1; row <= state.GridRows; ++row) {
        const auto column = ColumnAt(cells, state, row, {x, y});
        if (column == 0) continue;
        const auto inRows = (std::int64_t{state.TopRow} * state.xn) +
                            (std::int64_t{row} - 1) * (std::int64_t{state.GridCols} - 1) + column;
        return inRows > state.Count ? 0 : ToInt32(inRows);
    }
    return 0;
}

std::int32_t ItemFromMouseMsg(const ListState& state, const CellTable& cells, std::int32_t lParam,
                              std::int32_t wParam) {
    const auto point = dgi::PointFromLParam(lParam);
    const tvok_Rect& client = state.ClientRect;
    const bool pressed = (wParam & host::MK_LBUTTON) != 0;
    if (point.x < client.Left || point.x >= client.Right) return 0;
    if (host::Platform::PtInRect(client, point))
        return pressed || state.HotTrack ? ItemFromPoint(cells, state, point.x, point.y) : 0;
    if (!pressed) return 0;
    return IndexFromKey(point.y < client.Top ? host::VK_UP : host::VK_DOWN, state);
}

std::int32_t IndexFromKey(std::int32_t key, const ListState& state) {
    const std::int64_t current = state.ListIndex;
    const std::int64_t count = state.Count;
    const std::int64_t columns = state.xn;
    const auto page = state.yn * columns;
    const auto back = [&](std::int64_t step, std::int64_t otherwise) {
        return current - step >= 1 ? current - step : std::max<std::int64_t>(otherwise, 1);
    };
    const auto index = [&]() -> std::int64_t {
        switch (key) {
        case host::VK_PRIOR: return back(page, 1);
        case host::VK_NEXT: return std::min(current + page, count);
        case host::VK_END: return count;
        case host::VK_HOME: return 1;
        case host::VK_LEFT: return back(1, 1);
        case host::VK_UP: return back(columns, current - 1);
        case host::VK_RIGHT: return std::min(current + 1, count);
        case host::VK_DOWN:
            return std::min(current + columns <= count ? current + columns : current + 1, count);
        default: return 0;
        }
    };
    return ToInt32(index());
}

bool EnsureItemVisible(host::MessageHook* hook, const ListState& state, std::int32_t index, bool last) {
    if (index < 1 || state.Count == 0 || state.xn == 0) return false;
    // The last item has to be on a whole row; others may be in the partial one.
    const std::int64_t page = last ? state.yn : state.GridRows;
    if (page <= 0) return false;
    const std::int64_t top = Needed(hook).ScrollValue();
    const auto first = top + 1;
    const auto final = first + page - 1;
    const auto row = RowsOf(index, state.xn);
    if (row > final) return WriteScrollValue(*hook, top + row - final);
    // The index is compared with a row number here: in a list of several columns an item above the page comes
    // back only while its index is below the first row's number. Hosts rely on it; do not compare rows.
    if (index >= first) return false;
    return WriteScrollValue(*hook, top + row - first);
}

void UpdateScrollRange(host::MessageHook* hook, const ListState& state) {
    if (state.xn == 0) return;
    const auto rows = RowsOf(state.Count, state.xn);
    Needed(hook).ScrollLarge(state.yn);
    if (rows > state.yn) return hook->ScrollMax(ToInt32(rows - state.yn));
    hook->ScrollMax(0);
    hook->ScrollValue(0);
}

} // namespace tvok::mtvok
