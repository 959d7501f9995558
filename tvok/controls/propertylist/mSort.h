/// The module `mSort`: orders a list of numbers by texts that stand beside it, as `gList` orders its items.
#pragma once

#include <cstdint>
#include <string>

#include "tvok/records/Array.h"

namespace tvok::mSort {

/// Puts the entries `low` to `high` of `SortOrder` in an order in which the texts
/// `SortText[SortOrder[k]]` ascend, or descend. With `binary` bytes are compared, without it texts with the
/// case of letters ignored. Not stable: the order of equal texts is that of `mtvok::SortIndexByText`, with
/// entry 0 as its scratch. `SubscriptError` for bounds beyond `SortOrder` and entries beyond `SortText`; then
/// nothing has moved.
void SortKeyIndex(const Array<std::string>& SortText, Array<std::int32_t>& SortOrder, std::int32_t low,
                  std::int32_t high, bool ascending, bool binary);

} // namespace tvok::mSort
