/// The gallery's icons, drawn in code: one for each kind of package, and some for the pages.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace gallery {

inline constexpr std::int32_t IconSize = 16;

enum class Icon : std::int32_t {
    Box = 1,
    Books,
    Terminal,
    Gear,
    Brackets,
    Page,
    Letter,
    Globe,
    Picture,
    Cylinder,
    Chart,
    Rise,
    Fall,
    CheckedBox,
    EmptyBox,
    Newest
};
inline constexpr std::int32_t IconCount = 16;

/// Every icon one after the other, 0xAARRGGBB with straight alpha, `IconSize` squared each: what
/// `Desktop::AddImageList` takes. Image number i is `Icon` i.
std::vector<std::uint32_t> DrawIcons();

/// The icon of a package section such as "libs" or "contrib/net"; `Box` for one that is not known.
Icon IconOfSection(std::string_view section);

} // namespace gallery
