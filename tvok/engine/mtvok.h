/// The list engine: cell geometry, item painter, hit testing, keys, scrolling, search and sort.
///
/// Every routine works on a control's `ListState`, its item slots, its display index and its cell table.
/// Geometry is computed in 64 bits; a result that does not fit its place throws `OverflowError`.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "tvok/engine/ItemSlots.h"
#include "tvok/engine/ListState.h"
#include "tvok/engine/callbacks.h"
#include "tvok/host/Hooks.h"

/// The engine of the list controls: geometry, painting, hit tests, keys, search, sort and text forms.
namespace tvok::mtvok {

// Geometry (geometry.cpp).

/// Reads the setting strings and the window, and fills the cell table. Nothing while `xn` or `yn` is 0.
void BuildCellGrid(CellTable& cells, ListState& state);
void ParseColWidths(ListState& state);
void ParseTabStops(ListState& state);
/// The control's wanted height in twips, or 0 where it needs no change. `rows` below 1 computes `yn` from the
/// client height. Writes `yn` and `GridRows`.
std::int32_t ComputeFitHeight(ListState& state, std::int32_t rows);
/// The control's wanted width in twips, or 0. With `XnAuto` it writes `xn` instead.
std::int32_t ComputeFitWidth(ListState& state);
/// Whether the item is on the page. Column and row are written for every index from 1 to `Count`. False also
/// for a list without columns.
bool IndexToCell(std::int32_t index, const ListState& state, std::int32_t& column, std::int32_t& row);

// Painter (painter.cpp).

/// Paints one cell into `CellRect`; `CurItem` 0 paints a blank one.
void DrawListItem(ListState& state, const qrosterdata& item, cExdrawCallback& callback, bool focus);
/// Paints an item by its index. With `column` below 1 the cell is looked up; an item off the page draws
/// nothing.
void DrawItemAt(ListState& state, std::int32_t index, ItemSlots& items, IndexArray& indexes,
                const CellTable& cells, cExdrawCallback& callback, std::int32_t column, std::int32_t row,
                bool focus);
/// Paints all cells that meet the rectangle.
void DrawItems(ListState& state, const tvok_Rect& rect, ItemSlots& items, IndexArray& indexes,
               const CellTable& cells, cExdrawCallback& callback, bool focus);
/// The same for a control that paints each item itself: `paintItem` gets the index of a cell on the page,
/// which starts at `first` and goes on from what is left in it. `paintBlank` paints a cell past the items and
/// the filler, with `CurItem` 0.
void DrawCells(ListState& state, const tvok_Rect& rect, const CellTable& cells, std::int64_t first,
               const std::function<void(std::int32_t&)>& paintItem, const std::function<void()>& paintBlank);
/// Paints `CellRect` with slot 0; `CurItem` has to be 0.
void DrawBlank(ListState& state, ItemSlots& items, cExdrawCallback& callback);
void ResolveIconPos(std::int32_t itemIconPos, std::int32_t& left, std::int32_t& top, std::int32_t& width,
                    std::int32_t& height, std::int32_t cellHeight, std::int32_t areaWidth,
                    std::int32_t listIconPos);

// Points and keys (navigation.cpp).

std::int32_t ItemFromPoint(const CellTable& cells, const ListState& state, std::int32_t x, std::int32_t y);
std::int32_t ItemFromMouseMsg(const ListState& state, const CellTable& cells, std::int32_t lParam,
                              std::int32_t wParam);
/// The index that a navigation key leads to, 0 for any other key.
std::int32_t IndexFromKey(std::int32_t key, const ListState& state);

// Scrolling (navigation.cpp). A null hook throws `ObjectError`.

bool EnsureItemVisible(host::MessageHook* hook, const ListState& state, std::int32_t index, bool last);
void UpdateScrollRange(host::MessageHook* hook, const ListState& state);

// Search and sort (search.cpp, sort.cpp).

/// The next item whose text starts with the key's character; the current one is tried last. 0 for none.
std::int32_t SeekItemChar(std::int32_t key, const ListState& state, const ItemSlots& items,
                          const IndexArray& indexes);
/// The first item whose text begins with the trimmed `text`, case ignored; `Count` + 1 for none.
std::int32_t SeekItemPrefix(const ListState& state, const ItemSlots& items, const IndexArray& indexes,
                            std::string_view text);
/// The first item whose text equals the trimmed `text`, case ignored; `Count` + 1 for none.
std::int32_t FindItemText(const ListState& state, const ItemSlots& items, const IndexArray& indexes,
                          std::string_view text);
using TextOfEntry =
    std::function<const std::string&(std::int32_t)>; ///< The text that an index entry sorts by.
/// Sorts entries `low` to `high` of the index by text; `low` is 1 or more. Not stable: which of several equal
/// texts comes first follows from the steps of a partition about the middle entry with short runs sorted by
/// selection, and entry 0 is left as the last swap of these steps leaves it.
void SortIndexByText(const TextOfEntry& textOf, IndexArray& indexes, std::int32_t low, std::int32_t high,
                     bool ascending, bool caseSensitive);
void SortIndexByText(const ItemSlots& items, IndexArray& indexes, std::int32_t low, std::int32_t high,
                     bool ascending, bool caseSensitive);
/// The first position from 1 to `count` that names the slot, or 0.
std::int32_t PositionOfSlot(std::int32_t slot, const IndexArray& indexes, std::int32_t count);
/// Sorts by `SortedMode`, keeps the current item current and repaints. Nothing when the mode is 0.
void ResortItems(ListState& state, const ItemSlots& items, IndexArray& indexes);

} // namespace tvok::mtvok
