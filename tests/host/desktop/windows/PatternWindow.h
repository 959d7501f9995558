/// Windows whose every pixel tells whose it is and where it belongs.
#pragma once

#include <cstdint>
#include <memory>

#include "tvok/host/desktop/windows/World.h"

namespace tvok::test {

/// Paints what it is asked to paint, and nothing else: a pixel depends on the window, on its place in the
/// client area, and on how far the content is scrolled.
class PatternWindow : public soft::WindowClient {
public:
    PatternWindow(soft::World& world, std::int32_t id, soft::Window* parent, const tvok_Rect& rect,
                  bool shown)
        : world_(world), id_(id), window(world.windows, *this) {
        world.windows.Attach(window, parent, rect, shown);
    }

    std::int32_t ColorAt(std::int32_t x, std::int32_t y) const {
        const std::uint32_t mixed = static_cast<std::uint32_t>(id_) * 2654435761U ^
                                    static_cast<std::uint32_t>(x + scrolledX) * 40503U ^
                                    static_cast<std::uint32_t>(y + scrolledY) * 2246822519U;
        return static_cast<std::int32_t>((mixed ^ mixed >> 15) & 0xFFFFFF);
    }

    std::int32_t Process(soft::Window&, const soft::Message& message) override {
        if (message.message == host::WM_PAINT) Paint();
        return 0;
    }
    soft::Insets Frame() const override { return frame; }
    void DrawFrame(soft::Window& target, soft::DeviceContext& context) override {
        context.FillColor({0, 0, soft::WidthOf(target.rect()), soft::HeightOf(target.rect())}, FrameColor());
    }
    std::int32_t FrameColor() const { return 0x800000 + id_; }
    std::int32_t EraseColor() const override { return 0; }

    std::int32_t scrolledX = 0;
    std::int32_t scrolledY = 0;
    soft::Insets frame;
    int paintedPixels = 0;

private:
    void Paint() {
        host::PaintStruct paint;
        world_.windows.BeginPaint(window, paint);
        const tvok_Rect& box = paint.rcPaint;
        for (std::int32_t y = box.Top; y < box.bottom; ++y)
            for (std::int32_t x = box.Left; x < box.Right; ++x)
                window.dc().FillColor({x, y, x + 1, y + 1}, ColorAt(x, y));
        for (const pixman_box32_t& each : window.dc().Clip().Boxes())
            paintedPixels += (each.x2 - each.x1) * (each.y2 - each.y1);
        world_.windows.EndPaint(window);
    }

    soft::World& world_;
    std::int32_t id_;

public:
    soft::Window window;
};

} // namespace tvok::test
