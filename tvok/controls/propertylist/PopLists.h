/// The popup lists that a `gList` has loaded, for what its cells show.
#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "tvok/records/tvok_declare.h"

namespace tvok::propertylist {

/// Entries of all lists in the order of loading. Kept as they were loaded until `Reset`.
class PopLists {
public:
    void Reset();

    bool Has(std::int32_t list) const; ///< Whether the list has an entry.

    /// The first entry of the list with this `ItemData`, or null. Good until the next `Load`.
    const qrosterdata* Find(std::int32_t list, std::int32_t itemData) const;

    /// Appends the entries of a list's text: numbered lines with the fields of a cell, 998 for a fresh entry
    /// and 999 at the end of each. Errors end the line in which they happen.
    void Load(std::int32_t list, std::string_view text);

private:
    static std::uint64_t Key(std::int32_t list, std::int32_t itemData) {
        return std::uint64_t{static_cast<std::uint32_t>(list)} << 32 | static_cast<std::uint32_t>(itemData);
    }
    void Append(std::int32_t list, const qrosterdata& item);

    std::vector<qrosterdata> entries_;
    std::unordered_map<std::uint64_t, std::size_t> first_;
    std::unordered_set<std::int32_t> lists_;
};

} // namespace tvok::propertylist
