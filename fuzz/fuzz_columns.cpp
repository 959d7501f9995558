// `ColWidthSettingStr`: any text gives usable widths or the overflow error.

#include "fuzz.h"
#include "tvok/engine/mtvok.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tvok::ListState state;
    state.ColWidthSettingStr = tvok::fuzz::Text(data, size);
    try {
        tvok::mtvok::ParseColWidths(state);
    } catch (const tvok::OverflowError&) {
        return 0;
    }
    tvok::fuzz::Require(state.ColWidths.UpperBound() == 100, "there are 100 columns");
    for (std::int32_t column = 1; column <= 100; ++column) {
        tvok::fuzz::Require(state.ColWidths[column] >= 1, "every column has a width");
    }
    return 0;
}
