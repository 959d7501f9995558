#include "tvok/engine/designframe.h"

#include "tvok/engine/dgi.h"

namespace tvok::mtvok {

void DrawDesignFrame(std::int32_t hWnd, std::int32_t hDC, std::string_view name) {
    tvok_Rect rect;
    host::platform().GetClientRect(hWnd, rect);
    dgi::DrawBoxRect(hDC, rect, 1, cWindowFrame, cWindowBackground, true);
    rect = dgi::InflatedRect(rect, -1);
    host::platform().SetTextColor(hDC, 0);
    host::platform().DrawTextA(hDC, name.data(), static_cast<std::int32_t>(name.size()), rect,
                               host::DT_SINGLELINE);
}

} // namespace tvok::mtvok
