#include "apps/gallery/icons.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

namespace gallery {
namespace {

constexpr std::int32_t Samples = 4; // in each direction of a pixel

/// One icon that shapes are laid on. A shape is a test of points in pixels; its edge is smoothed.
class Canvas {
public:
    template<class Shape>
    void Lay(std::uint32_t color, const Shape& contains) {
        for (std::int32_t y = 0; y < IconSize; ++y) {
            for (std::int32_t x = 0; x < IconSize; ++x) Blend(x, y, color, Coverage(x, y, contains));
        }
    }

    void AppendTo(std::vector<std::uint32_t>& pixels) const {
        for (const Pixel& pixel : pixels_) pixels.push_back(pixel.Packed());
    }

private:
    struct Pixel {
        std::array<float, 3> color{}; // 0 to 255
        float alpha = 0;              // 0 to 1

        std::uint32_t Packed() const {
            const auto byte = [](float value) { return static_cast<std::uint32_t>(std::lround(value)); };
            return byte(alpha * 255) << 24 | byte(color[0]) << 16 | byte(color[1]) << 8 | byte(color[2]);
        }
    };

    template<class Shape>
    static float Coverage(std::int32_t x, std::int32_t y, const Shape& contains) {
        std::int32_t hits = 0;
        for (std::int32_t row = 0; row < Samples; ++row) {
            for (std::int32_t column = 0; column < Samples; ++column) {
                const auto across = (static_cast<float>(column) + 0.5F) / Samples;
                const auto down = (static_cast<float>(row) + 0.5F) / Samples;
                hits += contains(static_cast<float>(x) + across, static_cast<float>(y) + down) ? 1 : 0;
            }
        }
        return static_cast<float>(hits) / (Samples * Samples);
    }

    void Blend(std::int32_t x, std::int32_t y, std::uint32_t color, float coverage) {
        if (coverage <= 0) return;
        Pixel& pixel = pixels_[static_cast<std::size_t>(y) * IconSize + static_cast<std::size_t>(x)];
        const float alpha = coverage + pixel.alpha * (1 - coverage);
        for (std::size_t channel = 0; channel < 3; ++channel) {
            const auto value = static_cast<float>(color >> (16 - 8 * channel) & 0xFF);
            float& old = pixel.color[channel];
            old = (value * coverage + old * pixel.alpha * (1 - coverage)) / alpha;
        }
        pixel.alpha = alpha;
    }

    std::array<Pixel, std::size_t{IconSize} * IconSize> pixels_{};
};

auto Ellipse(float cx, float cy, float rx, float ry) {
    return [=](float x, float y) { return std::hypot((x - cx) / rx, (y - cy) / ry) <= 1; };
}

auto Disk(float cx, float cy, float radius) {
    return Ellipse(cx, cy, radius, radius);
}

/// Corners are rounded with this radius.
auto Block(float left, float top, float right, float bottom, float corner = 0) {
    return [=](float x, float y) {
        const float dx = std::max({left + corner - x, x - right + corner, 0.0F});
        const float dy = std::max({top + corner - y, y - bottom + corner, 0.0F});
        return std::hypot(dx, dy) <= corner;
    };
}

/// With round ends.
auto Line(float x1, float y1, float x2, float y2, float width) {
    return [=](float x, float y) {
        const float dx = x2 - x1;
        const float dy = y2 - y1;
        const float along = std::clamp(((x - x1) * dx + (y - y1) * dy) / (dx * dx + dy * dy), 0.0F, 1.0F);
        return std::hypot(x - x1 - along * dx, y - y1 - along * dy) <= width / 2;
    };
}

auto Triangle(float x1, float y1, float x2, float y2, float x3, float y3) {
    return [=](float x, float y) {
        const auto left = [&](float ax, float ay, float bx, float by) {
            return (bx - ax) * (y - ay) - (by - ay) * (x - ax) >= 0;
        };
        const bool first = left(x1, y1, x2, y2);
        return left(x2, y2, x3, y3) == first && left(x3, y3, x1, y1) == first;
    };
}

template<class A, class B>
auto Both(A a, B b) {
    return [=](float x, float y) { return a(x, y) && b(x, y); };
}

void DrawBox(Canvas& canvas) {
    canvas.Lay(0xA9743A, Block(1.5F, 4, 14.5F, 14.5F, 1));
    canvas.Lay(0xC98F4E, Block(1.5F, 4, 14.5F, 7));
    canvas.Lay(0xE3B77B, Triangle(1.5F, 4, 4, 1.5F, 4, 4));
    canvas.Lay(0xE3B77B, Block(4, 1.5F, 12, 4));
    canvas.Lay(0xE3B77B, Triangle(14.5F, 4, 12, 1.5F, 12, 4));
    canvas.Lay(0xF3E2C4, Block(6.5F, 1.5F, 9.5F, 9));
}

void DrawBooks(Canvas& canvas) {
    canvas.Lay(0xB8453B, Block(1.5F, 2, 5.5F, 14, 0.8F));
    canvas.Lay(0x2F7D5B, Block(6, 3.5F, 10, 14, 0.8F));
    canvas.Lay(0x3A6EA5, Block(10.5F, 1.5F, 14.5F, 14, 0.8F));
    canvas.Lay(0xF4D9A0, Block(1.5F, 4, 5.5F, 5.2F));
    canvas.Lay(0xF4D9A0, Block(6, 5.5F, 10, 6.7F));
    canvas.Lay(0xF4D9A0, Block(10.5F, 10.5F, 14.5F, 11.7F));
}

void DrawTerminal(Canvas& canvas) {
    canvas.Lay(0x8A929B, Block(0.8F, 1.8F, 15.2F, 14.2F, 2));
    canvas.Lay(0x20262E, Block(1.8F, 2.8F, 14.2F, 13.2F, 1.2F));
    canvas.Lay(0x6FE08A, Line(4, 5.5F, 6.8F, 8, 1.4F));
    canvas.Lay(0x6FE08A, Line(6.8F, 8, 4, 10.5F, 1.4F));
    canvas.Lay(0xE6EAEE, Block(8, 9.8F, 12, 11.2F));
}

void DrawGear(Canvas& canvas) {
    for (int tooth = 0; tooth < 8; ++tooth) {
        const float angle = static_cast<float>(tooth) * 0.7854F;
        canvas.Lay(0x5D6B7A, Line(8, 8, 8 + 6.2F * std::cos(angle), 8 + 6.2F * std::sin(angle), 2.4F));
    }
    canvas.Lay(0x5D6B7A, Disk(8, 8, 5.2F));
    canvas.Lay(0x93A1B0, Disk(8, 8, 4));
    canvas.Lay(0xF2F5F8, Disk(8, 8, 1.9F));
}

void DrawBrackets(Canvas& canvas) {
    canvas.Lay(0x6A4C9C, Block(0.8F, 1.8F, 15.2F, 14.2F, 2.5F));
    canvas.Lay(0xFFFFFF, Line(5.8F, 5, 3.4F, 8, 1.5F));
    canvas.Lay(0xFFFFFF, Line(3.4F, 8, 5.8F, 11, 1.5F));
    canvas.Lay(0xFFFFFF, Line(10.2F, 5, 12.6F, 8, 1.5F));
    canvas.Lay(0xFFFFFF, Line(12.6F, 8, 10.2F, 11, 1.5F));
    canvas.Lay(0xF5C85B, Line(8.9F, 4.2F, 7.1F, 11.8F, 1.3F));
}

void DrawPage(Canvas& canvas) {
    canvas.Lay(0x8A96A3, Block(2.5F, 0.8F, 13.5F, 15.2F, 1));
    canvas.Lay(0xFFFFFF, Block(3.4F, 1.7F, 12.6F, 14.3F, 0.4F));
    canvas.Lay(0xC9D3DD, Triangle(9.5F, 0.8F, 13.5F, 4.8F, 9.5F, 4.8F));
    for (int line = 0; line < 4; ++line) {
        const float top = 6.2F + 2 * static_cast<float>(line);
        canvas.Lay(0x6E8FB5, Block(5, top, line == 3 ? 9 : 11, top + 1));
    }
}

void DrawLetter(Canvas& canvas) {
    canvas.Lay(0xC2416B, Block(0.8F, 0.8F, 15.2F, 15.2F, 2.5F));
    canvas.Lay(0xFFFFFF, Line(4, 12.4F, 8, 3.8F, 1.7F));
    canvas.Lay(0xFFFFFF, Line(12, 12.4F, 8, 3.8F, 1.7F));
    canvas.Lay(0xFFFFFF, Line(5.6F, 9.6F, 10.4F, 9.6F, 1.5F));
}

void DrawGlobe(Canvas& canvas) {
    const auto ball = Disk(8, 8, 7);
    canvas.Lay(0x2E6FB7, ball);
    canvas.Lay(0x58B368, Both(ball, Ellipse(4.8F, 5.6F, 3.4F, 2.8F)));
    canvas.Lay(0x58B368, Both(ball, Ellipse(11.2F, 10.4F, 3, 3.4F)));
    canvas.Lay(0x58B368, Both(ball, Ellipse(12, 3.2F, 2, 1.2F)));
    canvas.Lay(0xA8D3F5, Both(ball, Ellipse(5.6F, 11.6F, 1.4F, 1)));
}

void DrawPicture(Canvas& canvas) {
    const auto glass = Block(2, 3, 14, 13);
    canvas.Lay(0x7A5B36, Block(0.8F, 1.8F, 15.2F, 14.2F, 1));
    canvas.Lay(0xBFE1F6, glass);
    canvas.Lay(0xF6C944, Disk(5, 6, 1.7F));
    canvas.Lay(0x4E9A57, Both(glass, Triangle(1, 13.2F, 6, 7.6F, 11, 13.2F)));
    canvas.Lay(0x2F7246, Both(glass, Triangle(6.5F, 13.2F, 11, 6, 15.5F, 13.2F)));
}

void DrawCylinder(Canvas& canvas) {
    canvas.Lay(0x2D7F8C, Block(2.5F, 3.6F, 13.5F, 12.6F));
    canvas.Lay(0x2D7F8C, Ellipse(8, 12.6F, 5.5F, 2.4F));
    canvas.Lay(0x8FD3DA, Ellipse(8, 3.6F, 5.5F, 2.4F));
    canvas.Lay(0xCDEFF2, Ellipse(8, 3.6F, 3.8F, 1.4F));
    canvas.Lay(0x1C5A64, Block(2.5F, 7.4F, 13.5F, 8.3F));
    canvas.Lay(0x1C5A64, Block(2.5F, 10.8F, 13.5F, 11.7F));
}

void DrawChart(Canvas& canvas) {
    canvas.Lay(0x20364E, Block(0.8F, 1.8F, 15.2F, 14.2F, 2));
    canvas.Lay(0x4C6A8A, Block(2.4F, 7.6F, 13.6F, 8.2F));
    canvas.Lay(0x5FD08F, Line(3, 11.4F, 6, 7.4F, 1.5F));
    canvas.Lay(0x5FD08F, Line(6, 7.4F, 9, 9.6F, 1.5F));
    canvas.Lay(0x5FD08F, Line(9, 9.6F, 13, 4.2F, 1.5F));
}

void DrawRise(Canvas& canvas) {
    canvas.Lay(0x2E9E5B, Triangle(8, 4, 12.5F, 11.5F, 3.5F, 11.5F));
}

void DrawFall(Canvas& canvas) {
    canvas.Lay(0xD6453D, Triangle(8, 12, 12.5F, 4.5F, 3.5F, 4.5F));
}

void DrawEmptyBox(Canvas& canvas) {
    canvas.Lay(0x7C8794, Block(1.5F, 1.5F, 14.5F, 14.5F, 2));
    canvas.Lay(0xFFFFFF, Block(2.7F, 2.7F, 13.3F, 13.3F, 1));
}

void DrawCheckedBox(Canvas& canvas) {
    canvas.Lay(0xFFFFFF, Block(1, 1, 15, 15, 2.5F)); // a rim that shows on a selected row
    canvas.Lay(0x1F6FD0, Block(1.8F, 1.8F, 14.2F, 14.2F, 2));
    canvas.Lay(0xFFFFFF, Line(4.4F, 8.2F, 7, 11, 1.8F));
    canvas.Lay(0xFFFFFF, Line(7, 11, 11.8F, 5, 1.8F));
}

void DrawNewest(Canvas& canvas) {
    canvas.Lay(0xC98F1E, Block(2.5F, 1.8F, 13.5F, 3.4F, 0.5F));
    canvas.Lay(0xC98F1E, Triangle(8, 4.4F, 12.5F, 9.4F, 3.5F, 9.4F));
    canvas.Lay(0xC98F1E, Block(6.8F, 9, 9.2F, 14.2F));
}

using Drawing = void (*)(Canvas&);
constexpr std::array<Drawing, IconCount> Drawings{DrawBox,      DrawBooks,      DrawTerminal, DrawGear,
                                                  DrawBrackets, DrawPage,       DrawLetter,   DrawGlobe,
                                                  DrawPicture,  DrawCylinder,   DrawChart,    DrawRise,
                                                  DrawFall,     DrawCheckedBox, DrawEmptyBox, DrawNewest};

constexpr std::pair<std::string_view, Icon> Sections[] = {
    {"admin", Icon::Gear},          {"comm", Icon::Globe},
    {"database", Icon::Cylinder},   {"debug", Icon::Brackets},
    {"devel", Icon::Brackets},      {"doc", Icon::Page},
    {"editors", Icon::Page},        {"fonts", Icon::Letter},
    {"games", Icon::Picture},       {"gnome", Icon::Picture},
    {"golang", Icon::Brackets},     {"graphics", Icon::Picture},
    {"httpd", Icon::Globe},         {"interpreters", Icon::Brackets},
    {"introspection", Icon::Books}, {"java", Icon::Brackets},
    {"javascript", Icon::Brackets}, {"kde", Icon::Picture},
    {"kernel", Icon::Gear},         {"libdevel", Icon::Books},
    {"libs", Icon::Books},          {"localization", Icon::Page},
    {"mail", Icon::Globe},          {"math", Icon::Terminal},
    {"net", Icon::Globe},           {"oldlibs", Icon::Books},
    {"perl", Icon::Brackets},       {"php", Icon::Brackets},
    {"python", Icon::Brackets},     {"ruby", Icon::Brackets},
    {"rust", Icon::Brackets},       {"science", Icon::Terminal},
    {"shells", Icon::Terminal},     {"sound", Icon::Picture},
    {"tex", Icon::Letter},          {"text", Icon::Page},
    {"translations", Icon::Page},   {"utils", Icon::Terminal},
    {"vcs", Icon::Brackets},        {"video", Icon::Picture},
    {"web", Icon::Globe},           {"x11", Icon::Picture},
};

} // namespace

std::vector<std::uint32_t> DrawIcons() {
    std::vector<std::uint32_t> pixels;
    for (const Drawing draw : Drawings) {
        Canvas canvas;
        draw(canvas);
        canvas.AppendTo(pixels);
    }
    return pixels;
}

Icon IconOfSection(std::string_view section) {
    const auto name = section.substr(section.find('/') + 1); // without a '/', the whole text
    const auto* found = std::find_if(std::begin(Sections), std::end(Sections),
                                     [&](const auto& entry) { return entry.first == name; });
    return found == std::end(Sections) ? Icon::Box : found->second;
}

} // namespace gallery
