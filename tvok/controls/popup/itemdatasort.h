/// The popup's sort by `ItemData`.
#pragma once

#include "tvok/engine/ItemSlots.h"

namespace tvok::popup {

/// Sorts entries `low` to `high` of the index by the items' `ItemData`, and where these are equal by `text`
/// in the opposite direction, byte by byte. Which of several items that are equal in both comes first follows
/// from the steps of a partition about the middle entry down to single entries. Entry 0 takes no part.
/// Nothing happens where `high` is not above `low`; otherwise a bound outside the index is the
/// `SubscriptError`.
void SortIndexByItemData(const ItemSlots& items, IndexArray& indexes, std::int32_t low, std::int32_t high,
                         bool ascending);

} // namespace tvok::popup
