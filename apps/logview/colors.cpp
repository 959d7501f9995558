#include "apps/logview/colors.h"

#include "tvok/engine/dgi.h"

namespace logview::colors {

namespace {

constexpr tvok::OLE_COLOR Rgb(std::int32_t red, std::int32_t green, std::int32_t blue) {
    return red | green << 8 | blue << 16;
}

bool WindowIsDark() {
    const std::int32_t color = tvok::dgi::TranslateColor(tvok::cWindowBackground);
    return (color & 0xFF) + (color >> 8 & 0xFF) + (color >> 16 & 0xFF) < 3 * 128;
}

} // namespace

tvok::OLE_COLOR Of(Severity severity) {
    const bool dark = WindowIsDark();
    switch (severity) {
    case Severity::Error: return dark ? Rgb(255, 128, 118) : Rgb(176, 0, 16);
    case Severity::Warning: return dark ? Rgb(255, 200, 96) : Rgb(140, 80, 0);
    case Severity::Debug: return dark ? Rgb(160, 168, 176) : Rgb(100, 106, 112);
    case Severity::Info:
    case Severity::None: break;
    }
    return tvok::cWindowText;
}

tvok::OLE_COLOR Mark() {
    return Rgb(240, 140, 0);
}
tvok::OLE_COLOR Progress() {
    return tvok::cHighlight;
}

} // namespace logview::colors
