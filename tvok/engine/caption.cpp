#include "tvok/engine/caption.h"

#include "tvok/engine/dgi.h"
#include "tvok/records/numeric.h"

namespace tvok::mtvok {

std::int32_t DrawFocusBand(std::int32_t hDC, const tvok_Rect& area) {
    host::Platform& platform = host::platform();
    dgi::FillRectColor(hDC, area, cHighlight);
    platform.SetTextColor(hDC, platform.GetSysColor(host::COLOR_WINDOWTEXT));
    platform.SetBkColor(hDC, platform.GetSysColor(host::COLOR_HIGHLIGHTTEXT));
    platform.DrawFocusRect(hDC, area);
    return platform.GetSysColor(host::COLOR_HIGHLIGHTTEXT);
}

void DrawCaption(std::int32_t hDC, tvok_Rect area, std::string_view text, std::int32_t color,
                 std::int32_t format) {
    host::platform().SetTextColor(hDC, color);
    area.Left = ToInt32(std::int64_t{area.Left} + 1);
    area.Right = ToInt32(std::int64_t{area.Right} - 1);
    host::platform().DrawTextA(hDC, text.data(), ToInt32(static_cast<std::int64_t>(text.size())), area,
                               format);
}

} // namespace tvok::mtvok
