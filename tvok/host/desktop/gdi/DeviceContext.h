/// A device context: where drawing goes, what clips it, and the objects, colours and modes it is done with.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tvok/host/desktop/gdi/Damage.h"
#include "tvok/host/desktop/gdi/GdiObjects.h"
#include "tvok/host/desktop/pixels/Region.h"

namespace tvok::soft {

class ImageList;
struct WideRect;
struct WidePoint;

/// Draws on one surface. Coordinates are the context's own; (originX, originY) is where its (0, 0) lies on
/// the surface. Everything is clipped to `Clip`, in surface coordinates. What was drawn is noted in `damage`.
/// Any coordinates may be given: what lies outside the clip costs next to nothing. Rectangles are half open;
/// an empty or inverted one draws nothing. Drawing answers false only for a handle that names no fitting
/// object. Once warm, no call allocates while the clip is a single rectangle.
class DeviceContext {
public:
    /// Starts with the black pen, the white brush and the system font. Both arguments have to outlive this.
    DeviceContext(GdiObjects& objects, TextEngine& text);
    ~DeviceContext();
    DeviceContext(const DeviceContext&) = delete;
    DeviceContext& operator=(const DeviceContext&) = delete;

    /// As it started: objects, colours, modes and position. Target and clip stay.
    void Reset();

    /// Where drawing goes. A null surface draws nothing. `damage` may be null.
    void Target(Surface* surface, std::int32_t originX, std::int32_t originY, Damage* damage);
    /// The pixels that may be touched, within the surface. Changed whenever windows move or a paint begins.
    void Clip(const Region& clip);
    const Region& Clip() const { return clip_; }

    host::Handle Select(host::Handle object);   ///< The object of the same kind before; 0 for a bad handle.
    std::int32_t TextColor(std::int32_t color); ///< The value before, as the next four.
    std::int32_t BkColor(std::int32_t color);
    std::int32_t BkMode(std::int32_t mode); ///< 0, and nothing changes, for a mode that there is none of.
    std::int32_t TextAlign(std::int32_t align);
    std::int32_t Rop2(std::int32_t mode); ///< 1 to 16; 0, and nothing changes, for any other.

    /// Fills and frames put their colour as it is; the raster operation is for the pen and for the inside of
    /// `Rectangle`. A hollow brush draws nothing.
    bool FillRect(const tvok_Rect& rect, host::Handle brush);
    bool FillColor(const tvok_Rect& rect, std::int32_t color);  ///< 0x00BBGGRR, without a brush.
    bool FrameRect(const tvok_Rect& rect, host::Handle brush);  ///< One pixel wide, inside `rect`.
    bool FrameColor(const tvok_Rect& rect, std::int32_t color); ///< The same without a brush.

    /// Outline with the pen, inside with the brush. A pen of several pixels stands on the outermost pixels of
    /// `rect`, half of it outside; an inside-frame pen stands inside. With the null pen the filled part is
    /// one pixel narrower and lower than `rect`.
    bool Rectangle(const tvok_Rect& rect);
    bool MoveTo(std::int32_t x, std::int32_t y, host::Point* before);
    /// Up to (x, y) and without that point, which becomes the position. Dashes are for pens of one pixel; the
    /// gaps get the background colour in the opaque mode.
    bool LineTo(std::int32_t x, std::int32_t y);
    /// Every second pixel of the outline is mixed with the background colour by exclusive or, the others with
    /// the text colour; twice leaves the pixels as before. The pattern starts at the rectangle's own corner,
    /// so pixels that were scrolled match a rectangle that is drawn where they arrived.
    bool FocusRect(const tvok_Rect& rect);
    /// An image with its top left at (x, y). False for an index that names none.
    bool Image(const ImageList& images, std::int32_t index, std::int32_t x, std::int32_t y, bool transparent);

    /// One line of text; see `Platform::ExtTextOutA`. `dx`: one entry for each byte of `text`; a character
    /// moves on by the sum of its bytes' entries.
    bool TextOut(std::int32_t x, std::int32_t y, std::int32_t options, const tvok_Rect* rect,
                 std::string_view text, const std::int32_t* dx);
    /// Text in a rectangle; see `Platform::DrawTextA`. Text alignment does not count here. The answer is the
    /// height of the lines; with DT_VCENTER or DT_BOTTOM the distance from the rectangle's top to the text's
    /// end.
    std::int32_t DrawText(std::string_view text, tvok_Rect& rect, std::int32_t flags);
    std::int32_t TextWidth(std::string_view text);
    FontMetrics Metrics();

    /// Moves pixels: see `Platform::ScrollDC`. What is visible of `scroll` within `clip` is the area: pixels
    /// move from it to it. `uncovered` gets the rest of the area, exactly, in context coordinates.
    bool Scroll(std::int32_t dx, std::int32_t dy, const tvok_Rect& scroll, const tvok_Rect& clip,
                Region& uncovered);

private:
    void UpdateBounds();
    /// The part of a rectangle in context coordinates that lies within the bounds of the clip, on the
    /// surface.
    tvok_Rect Placed(const WideRect& rect) const;
    /// Calls `draw(box)` for each visible part of a placed rectangle.
    template<class Draw>
    void EachVisible(const tvok_Rect& placed, Draw draw) const;
    void Note(const tvok_Rect& placed);
    void Put(const tvok_Rect& placed, Pixel color);
    void Mix(const tvok_Rect& placed, Pixel color);
    void MixUnnoted(const tvok_Rect& placed, Pixel color);
    void MixDots(const tvok_Rect& rect, const WideRect& side);
    void Outline(const WideRect& outer, const WideRect& inner);
    void DashedOutline(const WideRect& box);
    void StraightLine(host::Point from, host::Point to);
    void StepLine(host::Point from, host::Point to);

    FontId Font();
    void PutText(const tvok_Rect& limit, WidePoint place, std::string_view text, const std::int32_t* dx,
                 bool background);
    void PutGlyphs(const tvok_Rect& limit, WidePoint place, std::string_view text, const std::int32_t* dx);
    std::int64_t PutCharacters(const tvok_Rect& ink, WidePoint place, std::string_view text,
                               const std::int32_t* dx);
    std::int32_t DrawRun(const tvok_Rect& ink, std::int32_t x, std::int32_t y, std::string_view text);

    template<class Visit>
    void EachLine(std::string_view text, std::int64_t width, std::int32_t flags, Visit line);
    template<class Visit>
    std::int64_t EachPiece(std::string_view line, std::int32_t flags, Visit part);
    std::int32_t CalculateText(std::string_view text, tvok_Rect& rect, std::int32_t flags);
    std::int64_t LineWidth(std::string_view line, std::int32_t flags);
    void PutLine(const tvok_Rect& limit, WidePoint place, std::string_view line, std::int32_t flags);
    void UnderlineCharacter(const tvok_Rect& limit, WidePoint place, std::string_view line, std::size_t at,
                            std::int32_t flags);
    std::int32_t TabWidth();

    void ScrollBox(const tvok_Rect& area, std::int32_t dx, std::int32_t dy, Region& uncovered);
    void ScrollVisible(const tvok_Rect& bounds, std::int32_t dx, std::int32_t dy, Region& uncovered);

    GdiObjects& objects_;
    TextEngine& text_;
    Surface* surface_ = nullptr;
    std::int32_t originX_ = 0;
    std::int32_t originY_ = 0;
    Damage* damage_ = nullptr;
    Region clip_;
    tvok_Rect bounds_; ///< Of the clip, within the surface.
    bool plainClip_ = false;
    host::Handle penHandle_ = 0;
    host::Handle brushHandle_ = 0;
    host::Handle fontHandle_ = 0;
    Pen pen_;
    Brush brush_;
    FontId font_ = 0; ///< 0: not looked up since the selection.
    std::int32_t fontRevision_ = 0;
    std::int32_t tabWidth_ = 0;
    bool underline_ = false;
    bool strikeout_ = false;
    std::int32_t textColor_ = 0; ///< What these five start as says `Reset`.
    std::int32_t bkColor_ = 0;
    std::int32_t bkMode_ = 0;
    std::int32_t textAlign_ = 0;
    std::int32_t rop2_ = 0;
    host::Point position_;
    std::string scratch_; ///< A text without its mnemonic marks.
};

} // namespace tvok::soft
