// Keysyms are numbers that stand for good, so no header of the window system is needed.
#include "tvok/host/desktop/Keysyms.h"

#include <algorithm>
#include <iterator>

#include "tvok/host/constants.h"

namespace tvok::desktop {

namespace {

using namespace host;

/// Keysyms from `first` on, `count` of them, which have virtual keys in a row from `virtualKey` on.
struct KeyRange {
    std::uint32_t first;
    std::uint32_t count;
    std::int32_t virtualKey;
};

constexpr KeyRange Ranges[] = {
    {' ', 1, VK_SPACE},      {'0', 10, '0'},         {'A', 26, 'A'},         {'a', 26, 'A'},
    {0xFF08, 2, VK_BACK},    {0xFF0D, 1, VK_RETURN}, {0xFF13, 1, 19},        {0xFF14, 1, 145},
    {0xFF1B, 1, VK_ESCAPE},  {0xFE20, 1, VK_TAB},    {0xFF50, 1, VK_HOME},   {0xFF51, 4, VK_LEFT},
    {0xFF55, 2, VK_PRIOR},   {0xFF57, 1, VK_END},    {0xFF61, 1, 44},        {0xFF63, 1, VK_INSERT},
    {0xFF67, 1, 93},         {0xFF7F, 1, 144},       {0xFF8D, 1, VK_RETURN}, {0xFF95, 1, VK_HOME},
    {0xFF96, 4, VK_LEFT},    {0xFF9A, 2, VK_PRIOR},  {0xFF9C, 1, VK_END},    {0xFF9D, 1, 12},
    {0xFF9E, 1, VK_INSERT},  {0xFF9F, 1, VK_DELETE}, {0xFFAA, 6, 106},       {0xFFB0, 10, 96},
    {0xFFBE, 24, VK_F1},     {0xFFE1, 1, VK_SHIFT},  {0xFFE2, 1, VK_SHIFT},  {0xFFE3, 1, VK_CONTROL},
    {0xFFE4, 1, VK_CONTROL}, {0xFFE5, 1, 20},        {0xFFE9, 1, VK_MENU},   {0xFFEA, 1, VK_MENU},
    {0xFFEB, 2, 91},         {0xFFFF, 1, VK_DELETE}, {';', 1, 186},          {'=', 1, 187},
    {',', 3, 188},           {'/', 1, 191},          {'`', 1, 192},          {'[', 3, 219},
    {'\'', 1, 222},          {'<', 1, 226},
};

} // namespace

std::int32_t VirtualKeyOfKeysym(std::uint32_t keysym) {
    const auto found = std::ranges::find_if(
        Ranges, [&](const KeyRange& range) { return keysym - range.first < range.count; });
    return found == std::end(Ranges) ? 0
                                     : found->virtualKey + static_cast<std::int32_t>(keysym - found->first);
}

} // namespace tvok::desktop
