/// The types of controls that a form file can name.
#pragma once

#include <concepts>
#include <functional>
#include <memory>
#include <string>
#include <typeindex>
#include <typeinfo>
#include <vector>

#include "tvok/host/Component.h"

namespace tvok {

using ControlFactory = std::function<std::unique_ptr<host::Control>()>;

/// Makes a type known to form files. The controls of the library are known already; a name that is known gets
/// the new type.
void RegisterControl(const std::string& name, std::type_index type, ControlFactory factory);

template<std::derived_from<host::Control> T>
void RegisterControl(const std::string& name) {
    RegisterControl(name, typeid(T), [] { return std::make_unique<T>(); });
}

std::vector<std::string> RegisteredControls(); ///< Their names in alphabetical order.

/// A new control of this type; null where the name is not known.
std::unique_ptr<host::Control> MakeControl(const std::string& name);

/// The name of a control's type; empty where it was not registered.
std::string ControlTypeName(const host::Control& control);

} // namespace tvok
