/// What a control shows at design time in place of its content.
#pragma once

#include <cstdint>
#include <string_view>

namespace tvok::mtvok {

/// A framed box over the client area with the control's name in its top left corner, in black.
void DrawDesignFrame(std::int32_t hWnd, std::int32_t hDC, std::string_view name);

} // namespace tvok::mtvok
