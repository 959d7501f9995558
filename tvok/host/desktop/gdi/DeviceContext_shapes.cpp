#include "tvok/host/desktop/gdi/DeviceContext_private.h"

#include <array>

#include "tvok/host/desktop/pixels/ImageList.h"

namespace tvok::soft {

using host::Handle;

namespace {

const Brush* FindBrush(const GdiObjects& objects, Handle handle) {
    const GdiObject* object = objects.Find(handle);
    return object ? std::get_if<Brush>(object) : nullptr;
}

/// A raster operation with a fixed pen: each bit of the result is (pixel & keep) ^ flip. The operation's
/// number less 1 is its truth table, with pen and pixel as the bits of the place in it.
struct Mixer {
    Pixel keep = 0;
    Pixel flip = 0;

    Mixer(std::int32_t rop2, Pixel pen) {
        const auto table = static_cast<std::uint32_t>(rop2 - 1);
        const auto all = [&](std::uint32_t place) { return (table >> place & 1u) ? ~Pixel{0} : Pixel{0}; };
        const Pixel onClear = (~pen & all(0)) | (pen & all(2));
        const Pixel onSet = (~pen & all(1)) | (pen & all(3));
        flip = onClear & 0xFFFFFF;
        keep = (onClear ^ onSet) & 0xFFFFFF;
    }
    void Row(Pixel* row, std::size_t count) const {
        for (std::size_t i = 0; i < count; ++i) row[i] = (row[i] & keep) ^ flip;
    }
};

void MixPart(Surface& surface, const tvok_Rect& part, const Mixer& mixer) {
    for (std::int32_t y = part.Top; y < part.bottom; ++y)
        mixer.Row(surface.Row(y) + part.Left, static_cast<std::size_t>(part.Right - part.Left));
}

} // namespace

void DeviceContext::MixUnnoted(const tvok_Rect& placed, Pixel color) {
    if (rop2_ == host::R2_COPYPEN)
        return EachVisible(placed, [&](const tvok_Rect& part) { Fill(*surface_, part, color); });
    const Mixer mixer(rop2_, color);
    EachVisible(placed, [&](const tvok_Rect& part) { MixPart(*surface_, part, mixer); });
}

void DeviceContext::Mix(const tvok_Rect& placed, Pixel color) {
    MixUnnoted(placed, color);
    Note(placed);
}

bool DeviceContext::FillColor(const tvok_Rect& rect, std::int32_t color) {
    Put(Placed(rect), PixelOf(color));
    return true;
}

bool DeviceContext::FillRect(const tvok_Rect& rect, Handle brush) {
    const Brush* found = FindBrush(objects_, brush);
    if (!found) return false;
    return found->hollow || FillColor(rect, found->color);
}

bool DeviceContext::FrameColor(const tvok_Rect& rect, std::int32_t color) {
    if (IsEmpty(rect)) return true;
    const Pixel pixel = PixelOf(color);
    const std::int64_t right = rect.Right;
    const std::int64_t bottom = rect.bottom;
    Put(Placed({rect.Left, rect.Top, right, std::int64_t{rect.Top} + 1}), pixel);
    Put(Placed({rect.Left, bottom - 1, right, bottom}), pixel);
    Put(Placed({rect.Left, rect.Top, std::int64_t{rect.Left} + 1, bottom}), pixel);
    Put(Placed({right - 1, rect.Top, right, bottom}), pixel);
    return true;
}

bool DeviceContext::FrameRect(const tvok_Rect& rect, Handle brush) {
    const Brush* found = FindBrush(objects_, brush);
    if (!found) return false;
    return found->hollow || FrameColor(rect, found->color);
}

namespace {

/// What the pen and what the brush of `Rectangle` cover.
struct BoxParts {
    WideRect outer;
    WideRect inner;
};

BoxParts PartsOf(const tvok_Rect& rect, const Pen& pen) {
    const WideRect whole(rect);
    if (pen.style == host::PS_NULL) {
        const WideRect filled = whole.Shrunk(0, 1);
        return {filled, filled};
    }
    const std::int64_t width = std::max(pen.width, 1);
    if (pen.style == host::PS_INSIDEFRAME) return {whole, whole.Shrunk(width, width)};
    const PenReach reach(width);
    return {whole.Shrunk(-reach.before, -reach.behind), whole.Shrunk(reach.behind + 1, reach.before + 1)};
}

} // namespace

bool DeviceContext::Rectangle(const tvok_Rect& rect) {
    if (IsEmpty(rect)) return true;
    const auto [outer, inner] = PartsOf(rect, pen_);
    const bool drawn = pen_.style != host::PS_NULL;
    if (drawn && inner.IsEmpty())
        Mix(Placed(outer), PixelOf(pen_.color));
    else {
        if (!brush_.hollow) Mix(Placed(inner), PixelOf(brush_.color));
        if (drawn) Outline(outer, inner);
    }
    return true;
}

void DeviceContext::Outline(const WideRect& outer, const WideRect& inner) {
    if (HasGaps(pen_)) return DashedOutline(outer);
    const Pixel color = PixelOf(pen_.color);
    Mix(Placed({outer.left, outer.top, outer.right, inner.top}), color);
    Mix(Placed({outer.left, inner.top, inner.left, inner.bottom}), color);
    Mix(Placed({inner.right, inner.top, outer.right, inner.bottom}), color);
    Mix(Placed({outer.left, inner.bottom, outer.right, outer.bottom}), color);
}

/// The outline in lines that each leave out their last pixel, so that no pixel is mixed twice.
void DeviceContext::DashedOutline(const WideRect& box) {
    const host::Point first{Clamp32(box.left), Clamp32(box.top)};
    const host::Point last{Clamp32(box.right - 1), Clamp32(box.bottom - 1)};
    StepLine(first, {last.x, first.y});
    StepLine({last.x, first.y}, last);
    StepLine(last, {first.x, last.y});
    StepLine({first.x, last.y}, first);
}

bool DeviceContext::FocusRect(const tvok_Rect& rect) {
    if (IsEmpty(rect)) return true;
    const std::int64_t right = rect.Right;
    const std::int64_t bottom = rect.bottom;
    const std::int64_t belowTop = std::int64_t{rect.Top} + 1;
    const std::int64_t besideLeft = std::int64_t{rect.Left} + 1;
    MixDots(rect, {rect.Left, rect.Top, right, belowTop});
    MixDots(rect, {rect.Left, std::max(bottom - 1, belowTop), right, bottom});
    MixDots(rect, {rect.Left, belowTop, besideLeft, bottom - 1});
    MixDots(rect, {std::max(right - 1, besideLeft), belowTop, right, bottom - 1});
    return true;
}

/// Mixes one side of a focus rectangle in; the dots are counted from the rectangle's corner.
void DeviceContext::MixDots(const tvok_Rect& rect, const WideRect& side) {
    const std::array<Pixel, 2> colors{PixelOf(bkColor_), PixelOf(textColor_)};
    const std::int64_t corner = std::int64_t{rect.Left} + originX_ + rect.Top + originY_;
    const tvok_Rect placed = Placed(side);
    EachVisible(placed, [&](const tvok_Rect& part) {
        for (std::int32_t y = part.Top; y < part.bottom; ++y)
            for (std::int32_t x = part.Left; x < part.Right; ++x)
                surface_->Row(y)[x] ^= colors[static_cast<std::size_t>((std::int64_t{x} + y - corner) & 1)];
    });
    Note(placed);
}

bool DeviceContext::Image(const ImageList& images, std::int32_t index, std::int32_t x, std::int32_t y,
                          bool transparent) {
    if (index < 0 || index >= images.Count()) return false;
    const std::int64_t size = images.Size();
    const tvok_Rect placed = Placed({x, y, x + size, y + size});
    EachVisible(placed, [&](const tvok_Rect& part) {
        images.Draw(*surface_, part, index, x + originX_, y + originY_, transparent);
    });
    Note(placed);
    return true;
}

} // namespace tvok::soft
