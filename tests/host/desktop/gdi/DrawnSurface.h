/// A small white surface with a context on it, and its pixels as letters.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tvok/host/desktop/gdi/DeviceContext.h"
#include "tvok/host/desktop/pixels/kernels.h"

namespace tvok::test {

inline constexpr const char* pinnedFont = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";

/// One engine for all tests: looking fonts up takes a while.
inline soft::TextEngine& PinnedText() {
    static soft::TextEngine engine(pinnedFont);
    return engine;
}

inline constexpr std::int32_t black = 0x000000, white = 0xFFFFFF, red = 0x0000FF, green = 0x00FF00,
                              blue = 0xFF0000;

struct DrawnSurface {
    explicit DrawnSurface(std::int32_t width, std::int32_t height) : surface(width, height) {
        soft::Fill(surface, {0, 0, width, height}, 0xFFFFFF);
        dc.Target(&surface, 0, 0, &damage);
        dc.Clip(soft::Region({0, 0, width, height}));
    }

    host::Handle SolidBrush(std::int32_t color) { return objects.Add(soft::Brush{false, color}); }
    host::Handle SelectPen(std::int32_t style, std::int32_t width, std::int32_t color) {
        return dc.Select(objects.Add(soft::Pen{style, width, color}));
    }
    host::Handle SelectBrush(std::int32_t color) { return dc.Select(SolidBrush(color)); }
    void SelectFont(std::int32_t pixels, bool underline = false, bool strikeout = false) {
        host::LogFont font = soft::DescriptionOf("DejaVu Sans", pixels);
        font.lfUnderline = underline;
        font.lfStrikeOut = strikeout;
        dc.Select(objects.Add(soft::FontOf(font)));
    }

    soft::Pixel At(std::int32_t x, std::int32_t y) const { return surface.Row(y)[x]; }

    /// One text per row: '.' white, '#' black, 'r', 'g', 'b' the pure colours, '?' any other.
    std::vector<std::string> Picture() const {
        std::vector<std::string> rows;
        for (std::int32_t y = 0; y < surface.Height(); ++y) {
            std::string& row = rows.emplace_back();
            for (std::int32_t x = 0; x < surface.Width(); ++x) row += Letter(At(x, y));
        }
        return rows;
    }
    static char Letter(soft::Pixel pixel) {
        switch (pixel) {
        case 0xFFFFFF: return '.';
        case 0x000000: return '#';
        case 0xFF0000: return 'r';
        case 0x00FF00: return 'g';
        case 0x0000FF: return 'b';
        default: return '?';
        }
    }
    /// The box around all pixels that are not `background`; empty where all are.
    tvok_Rect Ink(soft::Pixel background = 0xFFFFFF) const {
        soft::Region ink;
        for (std::int32_t y = 0; y < surface.Height(); ++y)
            for (std::int32_t x = 0; x < surface.Width(); ++x)
                if (At(x, y) != background) ink.Add({x, y, x + 1, y + 1});
        return ink.Bounds();
    }

    soft::GdiObjects objects{Theme::Classic()};
    soft::Surface surface;
    soft::Damage damage;
    soft::DeviceContext dc{objects, PinnedText()};
};

using Rows = std::vector<std::string>;

} // namespace tvok::test
