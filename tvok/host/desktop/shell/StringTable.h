/// The library's own texts: the values and the names of the system colours.
#pragma once

#include <memory>
#include <string>

#include "tvok/host/Services.h"

namespace tvok::soft {

/// Numbers 100 to 124 are the colour values as text, 1000 to 1024 the colours' names. `wanted` is a language
/// as in `LanguageName`: Chinese in Taiwan, Hong Kong or Macau, other Chinese, and English for all others.
std::unique_ptr<host::StringResources> MakeStringResources(const std::string& wanted);

} // namespace tvok::soft
