#include "tvok/host/MemoryBag.h"

#include <array>

#include "tvok/records/Error.h"

namespace tvok::host {

std::string_view KindOf(const PropertyValue& value) {
    constexpr std::array<std::string_view, 5> kinds{"true or false", "a whole number", "a number", "a text",
                                                    "a font"};
    static_assert(kinds.size() == std::variant_size_v<PropertyValue>);
    return kinds[value.index()];
}

PropertyValue MemoryBag::ReadProperty(std::string_view name, const PropertyValue& defaultValue) {
    const auto found = values_.find(name);
    if (found == values_.end()) return defaultValue;
    if (found->second.index() != defaultValue.index())
        throw TypeError(std::string(name) + ": " + std::string(KindOf(found->second)) + " stands where " +
                        std::string(KindOf(defaultValue)) + " belongs");
    return found->second;
}

void MemoryBag::WriteProperty(std::string_view name, const PropertyValue& value,
                              const PropertyValue& defaultValue) {
    if (value != defaultValue) return Put(name, value);
    if (const auto found = values_.find(name); found != values_.end()) values_.erase(found);
}

void MemoryBag::Put(std::string_view name, PropertyValue value) {
    values_.insert_or_assign(std::string(name), std::move(value));
}

} // namespace tvok::host
