#include "apps/gallery/design/marks.h"

#include "apps/gallery/design/geometry.h"
#include "tvok/engine/dgi.h"

namespace gallery {

std::vector<tvok::FormMark> Outline(const tvok::tvok_Rect& rect) {
    return {{{rect.Left, rect.Top, rect.Right, rect.Top + 1}},
            {{rect.Left, rect.bottom - 1, rect.Right, rect.bottom}},
            {{rect.Left, rect.Top, rect.Left + 1, rect.bottom}},
            {{rect.Right - 1, rect.Top, rect.Right, rect.bottom}}};
}

std::vector<tvok::FormMark> SelectionMarks(const tvok::Placement& place, bool leads) {
    std::vector<tvok::FormMark> marks = Outline(RectOf(place));
    const tvok::OLE_COLOR fill = leads ? tvok::cHighlight : tvok::cWindowBackground;
    for (const Grip grip : Grips) marks.push_back({HandleRect(place, grip), fill, tvok::cHighlight});
    return marks;
}

void DrawGrid(tvok::host::Handle hDC, std::int32_t width, std::int32_t height) {
    const tvok::OLE_COLOR color = tvok::SystemColor(tvok::host::COLOR_BTNSHADOW);
    for (std::int32_t y = 0; y < height; y += GridStep)
        for (std::int32_t x = 0; x < width; x += GridStep)
            tvok::dgi::FillRectColor(hDC, {x, y, x + 1, y + 1}, color);
}

} // namespace gallery
