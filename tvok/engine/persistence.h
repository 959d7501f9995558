/// A list's settings as property bag keys, and the numbered-line text form behind `ItemsStr`.
#pragma once

#include <string>
#include <string_view>

#include "tvok/engine/ItemSlots.h"
#include "tvok/engine/ListState.h"
#include "tvok/host/PropertyBag.h"

namespace tvok::mtvok {

void WriteListProperties(host::PropertyBag& bag, const ListState& state);
void ReadListProperties(host::PropertyBag& bag, ListState& state);
/// The settings of a newly placed control. Differs from the keys' defaults in `GridlineWidth` (0 here) and
/// leaves `FixedHeight` alone.
void InitListProperties(ListState& state);

/// The list's settings and all its items as text. Lines end with carriage return and line feed.
std::string BuildItemsStr(const ListState& state, const ItemSlots& items, const IndexArray& indexes);
/// Reads such a text: stores settings directly, appends its items, repaints nothing. Errors end the line they
/// occur in.
void ParseItemsStr(ListState& state, ItemSlots& items, IndexArray& indexes, std::string_view text);

} // namespace tvok::mtvok
