/// A property bag in memory, the form between a control and a form file.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "tvok/host/PropertyBag.h"

namespace tvok::host {

/// "true or false", "a whole number", …: the kind of a value for messages.
std::string_view KindOf(const PropertyValue& value);

/// Compares names exactly, case included, and leaves out a value that equals its default: it takes out what
/// was stored under that name before.
class MemoryBag : public PropertyBag {
public:
    using Values = std::map<std::string, PropertyValue, std::less<>>;

    /// Throws `TypeError` that names the key where the stored value is of another type than the default.
    PropertyValue ReadProperty(std::string_view name, const PropertyValue& defaultValue) override;
    void WriteProperty(std::string_view name, const PropertyValue& value,
                       const PropertyValue& defaultValue) override;

    /// Stores a value whatever its default is.
    void Put(std::string_view name, PropertyValue value);
    const Values& All() const { return values_; } ///< In the order of the names.
    bool operator==(const MemoryBag& other) const { return values_ == other.values_; }

private:
    Values values_;
};

} // namespace tvok::host
