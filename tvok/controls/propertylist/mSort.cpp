#include "tvok/controls/propertylist/mSort.h"

#include "tvok/engine/mtvok.h"

namespace tvok::mSort {

void SortKeyIndex(const Array<std::string>& SortText, Array<std::int32_t>& SortOrder, std::int32_t low,
                  std::int32_t high, bool ascending, bool binary) {
    mtvok::SortIndexByText([&](std::int32_t entry) -> const std::string& { return SortText[entry]; },
                           SortOrder, low, high, ascending, binary);
}

} // namespace tvok::mSort
