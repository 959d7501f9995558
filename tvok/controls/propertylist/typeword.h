/// An item's `xbuttons` text: "buttons;type", where the type is a name and an optional number.
#pragma once

#include <cstdint>
#include <string_view>

namespace tvok::propertylist {

/// The type names that are built in. Every other name, also an empty one, is the host's.
enum class ItemKind { Host, Color, Number, ListByNumber, ListByText };

/// What a type word says.
struct ItemType {
    ItemKind kind = ItemKind::Host;
    std::int32_t number = 0; ///< Of a popup list.

    bool IsList() const { return kind == ItemKind::ListByNumber || kind == ItemKind::ListByText; }
};

/// The text before the first ";", or all of it: the setting text of the item's buttons.
std::string_view ButtonsOf(std::string_view xbuttons);

/// The type word behind the first ";", trimmed; case does not count: "cs", "ns", "li" or "lt". The name ends
/// at the first digit or blank, and the number is read from there on. A number that does not fit is left 0.
ItemType ParseItemType(std::string_view xbuttons);

} // namespace tvok::propertylist
