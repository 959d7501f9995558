/// Labels that the gallery paints on its form itself.
#pragma once

#include <cstdint>
#include <string_view>

#include "tvok/tvok.h"

namespace gallery {

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

} // namespace gallery
