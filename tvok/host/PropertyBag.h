/// Where a control's settings are kept between runs.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "tvok/host/Font.h"

namespace tvok::host {

/// A stored setting. Colours and 16-bit numbers are kept as 32-bit integers.
using PropertyValue = std::variant<bool, std::int32_t, float, std::string, FontValue>;

class PropertyBag {
public:
    virtual ~PropertyBag() = default;

    /// The stored value, or `defaultValue` where nothing is stored under this name. Names are compared as the
    /// bag likes. A stored value has the type of the default, or the bag throws `TypeError` naming the key.
    virtual PropertyValue ReadProperty(std::string_view name, const PropertyValue& defaultValue) = 0;

    /// Stores the value; a bag may leave out one that equals the default.
    virtual void WriteProperty(std::string_view name, const PropertyValue& value,
                               const PropertyValue& defaultValue) = 0;
};

/// Typed reading: the type is the default's.
template<class T>
T Read(PropertyBag& bag, std::string_view name, T defaultValue) {
    return std::get<T>(bag.ReadProperty(name, PropertyValue(std::move(defaultValue))));
}
inline std::string ReadText(PropertyBag& bag, std::string_view name) {
    return Read(bag, name, std::string());
}

} // namespace tvok::host
