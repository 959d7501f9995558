/// Numbers in words.
#pragma once

#include <cstdint>
#include <string>

namespace gallery {

/// "12,345,678"
std::string Grouped(std::int64_t number);

/// "1 file", "2,000 files"
std::string Plural(std::int64_t count, const char* one, const char* many);

} // namespace gallery
