// `TabStopSettingStr`: any text gives tab stops that are not negative, as many as it has parts.

#include <algorithm>

#include "fuzz.h"
#include "tvok/engine/mtvok.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tvok::ListState state;
    state.TabStopSettingStr = tvok::fuzz::Text(data, size);
    tvok::mtvok::ParseTabStops(state);

    const auto commas = std::count(state.TabStopSettingStr.begin(), state.TabStopSettingStr.end(), ',');
    tvok::fuzz::Require(state.TabCount == (size == 0 ? 0 : commas + 1), "every part is a stop");
    for (std::int32_t stop = 0; stop < state.TabCount; ++stop) {
        tvok::fuzz::Require(state.TabStops[stop] >= 0, "no stop is negative");
    }
    return 0;
}
