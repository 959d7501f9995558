/// A device context: where drawing goes, what clips it, and the objects, colours and modes it is done with.
#pragma once

#include <cstdint>
#include <string_view>

#include "tvok/host/desktop/gdi/GdiObjects.h"
#include "tvok/host/desktop/pixels/Region.h"

namespace tvok::soft {

/// Draws on one surface. Coordinates are the context's own; (originX, originY) is where its (0, 0) lies on
/// the surface. Everything is clipped to `Clip`, in surface coordinates. What was drawn is added to `damage`.
class DeviceContext {
public:
    DeviceContext(GdiObjects& objects, TextEngine& text);
    ~DeviceContext();
    DeviceContext(const DeviceContext&) = delete;
    DeviceContext& operator=(const DeviceContext&) = delete;

    /// Where drawing goes. A null surface draws nothing. `damage` may be null.
    void Target(Surface* surface, std::int32_t originX, std::int32_t originY, Region* damage);
    /// The pixels that may be touched, within the surface. Changed whenever windows move or a paint begins.
    void Clip(const Region& clip);
    const Region& Clip() const { return clip_; }

    host::Handle Select(host::Handle object); ///< The object of the same kind before; 0 for a bad handle.
    std::int32_t TextColor(std::int32_t color);
    std::int32_t BkColor(std::int32_t color);
    std::int32_t BkMode(std::int32_t mode);
    std::int32_t TextAlign(std::int32_t align);
    std::int32_t Rop2(std::int32_t mode);

    bool FillRect(const tvok_Rect& rect, host::Handle brush);
    bool FillColor(const tvok_Rect& rect, std::int32_t color); ///< 0x00BBGGRR, without a brush.
    bool FrameRect(const tvok_Rect& rect, host::Handle brush);
    bool Rectangle(const tvok_Rect& rect);
    bool MoveTo(std::int32_t x, std::int32_t y, host::Point* before);
    bool LineTo(std::int32_t x, std::int32_t y);
    bool FocusRect(const tvok_Rect& rect);
    bool TextOut(std::int32_t x, std::int32_t y, std::int32_t options, const tvok_Rect* rect,
                 std::string_view text, const std::int32_t* dx);
    std::int32_t DrawText(std::string_view text, tvok_Rect& rect, std::int32_t flags);
    std::int32_t TextWidth(std::string_view text);
    FontMetrics Metrics();

    /// Moves visible pixels: see `Platform::ScrollDC`. `uncovered` gets the exact region in context
    /// coordinates.
    bool Scroll(std::int32_t dx, std::int32_t dy, const tvok_Rect& scroll, const tvok_Rect& clip,
                Region& uncovered);

private:
    GdiObjects& objects_;
    TextEngine& text_;
    Surface* surface_ = nullptr;
    std::int32_t originX_ = 0;
    std::int32_t originY_ = 0;
    Region* damage_ = nullptr;
    Region clip_;
    host::Handle pen_ = 0;
    host::Handle brush_ = 0;
    host::Handle font_ = 0;
    std::int32_t textColor_ = 0;
    std::int32_t bkColor_ = 0xFFFFFF;
    std::int32_t bkMode_ = host::OPAQUE_BK;
    std::int32_t textAlign_ = host::TA_LEFT;
    std::int32_t rop2_ = host::R2_COPYPEN;
    host::Point position_;
};

} // namespace tvok::soft
