// A program that uses the library's logic without any window system.

#include <cstdio>
#include <cstring>

#include <tvok/engine/mtvok.h>
#include <tvok/engine/persistence.h>
#include <tvok/records/numeric.h>
#include <tvok/version.h>

int main() {
    tvok::ListState state;
    tvok::ItemSlots items;
    tvok::IndexArray indexes{0};
    tvok::mtvok::ParseItemsStr(state, items, indexes, "107=ant\r\n999\r\n107=bee\r\n999\r\n26=40,60\r\n");
    tvok::mtvok::ParseTabStops(state);

    const bool read = state.Count == 2 && items[indexes[2]].text == "bee" && state.TabStops[1] == 60;
    const bool scanned = tvok::ScanNumber("12ab") == 12.0;
    std::printf("%d items, the second is %s\n", state.Count, items[indexes[2]].text.c_str());

#ifdef FOUND_VERSION // The version of the package that these headers came with.
    const bool sameVersion = std::strcmp(FOUND_VERSION, TVOK_VERSION) == 0;
#else
    const bool sameVersion = true;
#endif
    return read && scanned && sameVersion ? 0 : 1;
}
