#include "apps/gallery/words.h"

#include <cstddef>

namespace gallery {

std::string Grouped(std::int64_t number) {
    std::string text = std::to_string(number);
    const std::ptrdiff_t first = number < 0 ? 1 : 0;
    for (auto at = static_cast<std::ptrdiff_t>(text.size()) - 3; at > first; at -= 3)
        text.insert(static_cast<std::size_t>(at), 1, ','); // a text in its place gives g++ a false alarm
    return text;
}

std::string Plural(std::int64_t count, const char* one, const char* many) {
    return Grouped(count) + " " + (count == 1 ? one : many);
}

} // namespace gallery
