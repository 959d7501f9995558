/// What the gallery paints on its form itself.
#pragma once

#include <cstdint>
#include <string_view>

#include "tvok/tvok.h"

namespace gallery {

// Measures that every page keeps to, in pixels.
inline constexpr std::int32_t Margin = 12;
inline constexpr std::int32_t BannerHeight = 58;  ///< The band at the top, with the page's title.
inline constexpr std::int32_t HeadingHeight = 24; ///< The line above a control.

/// The default font in the sizes and weights that the gallery uses. The handles live as long as this.
class Fonts {
public:
    Fonts();
    Fonts(const Fonts&) = delete;
    Fonts& operator=(const Fonts&) = delete;
    ~Fonts();

    tvok::host::Handle Plain() const { return plain_; }
    tvok::host::Handle Bold() const { return bold_; }
    tvok::host::Handle Title() const { return title_; }

private:
    tvok::host::Handle plain_ = 0;
    tvok::host::Handle bold_ = 0;
    tvok::host::Handle title_ = 0;
};

/// One line, vertically centred and cut at the rectangle's edge. `font` 0 takes what is selected.
void DrawLabel(tvok::host::Handle hDC, tvok::tvok_Rect rect, std::string_view text, tvok::host::Handle font,
               tvok::OLE_COLOR color, std::int32_t alignment = tvok::host::DT_LEFT);

/// The band at the top of a page's area, with its title and a line under it; the rest is filled plainly.
void DrawBackground(tvok::host::Handle hDC, const tvok::tvok_Rect& area, const Fonts& fonts,
                    std::string_view title, std::string_view line);

/// The colours of what rises and what falls, for a light and for a dark window.
tvok::OLE_COLOR RisingColor();
tvok::OLE_COLOR FallingColor();
/// The window's background with a little of its text colour: every other row of a long list.
tvok::OLE_COLOR StripeColor();

} // namespace gallery
