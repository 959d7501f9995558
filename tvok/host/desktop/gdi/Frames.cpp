#include "tvok/host/desktop/gdi/Frames.h"

#include <algorithm>

#include "tvok/host/desktop/gdi/DeviceContext_private.h"

namespace tvok::soft {

namespace {

/// Arrows and marks stop growing at this size in pixels.
constexpr std::int32_t largestMark = 512;
constexpr std::int32_t smallestWithMark = 5;

std::int32_t ColorOf(const Theme& theme, std::int32_t index) {
    return theme.colors[static_cast<std::size_t>(index)];
}

/// The system colours of an edge line: on the left and top, and on the right and bottom.
struct LineColors {
    std::int32_t leftTop;
    std::int32_t rightBottom;
};

LineColors OuterColors(std::int32_t edge, std::int32_t flags) {
    if (flags & host::BF_MONO) return {host::COLOR_WINDOWFRAME, host::COLOR_WINDOWFRAME};
    if (flags & host::BF_FLAT) return {host::COLOR_BTNSHADOW, host::COLOR_BTNSHADOW};
    const bool soft = (flags & host::BF_SOFT) != 0;
    if (edge & host::BDR_RAISEDOUTER)
        return {soft ? host::COLOR_BTNHIGHLIGHT : host::COLOR_3DLIGHT, host::COLOR_3DDKSHADOW};
    return {soft ? host::COLOR_3DDKSHADOW : host::COLOR_BTNSHADOW, host::COLOR_BTNHIGHLIGHT};
}

LineColors InnerColors(std::int32_t edge, std::int32_t flags) {
    if (flags & host::BF_MONO) return {host::COLOR_WINDOW, host::COLOR_WINDOW};
    if (flags & host::BF_FLAT) return {host::COLOR_BTNFACE, host::COLOR_BTNFACE};
    const bool soft = (flags & host::BF_SOFT) != 0;
    if (edge & host::BDR_RAISEDINNER)
        return {soft ? host::COLOR_3DLIGHT : host::COLOR_BTNHIGHLIGHT, host::COLOR_BTNSHADOW};
    return {soft ? host::COLOR_BTNSHADOW : host::COLOR_3DDKSHADOW, host::COLOR_3DLIGHT};
}

/// Draws the wanted sides, right and bottom over left and top, and takes them off the rectangle.
void DrawSides(DeviceContext& context, const Theme& theme, tvok_Rect& rect, LineColors line,
               std::int32_t sides) {
    if (IsEmpty(rect)) return;
    const auto [left, top, right, bottom] = rect;
    const std::int32_t light = ColorOf(theme, line.leftTop);
    const std::int32_t dark = ColorOf(theme, line.rightBottom);
    if (sides & host::BF_LEFT) context.FillColor({left, top, left + 1, bottom}, light);
    if (sides & host::BF_TOP) context.FillColor({left, top, right, top + 1}, light);
    if (sides & host::BF_RIGHT) context.FillColor({right - 1, top, right, bottom}, dark);
    if (sides & host::BF_BOTTOM) context.FillColor({left, bottom - 1, right, bottom}, dark);
    if (sides & host::BF_LEFT) ++rect.Left;
    if (sides & host::BF_TOP) ++rect.Top;
    if (sides & host::BF_RIGHT) --rect.Right;
    if (sides & host::BF_BOTTOM) --rect.bottom;
}

std::int32_t ShorterSide(const tvok_Rect& rect) {
    const std::int64_t width = std::int64_t{rect.Right} - rect.Left;
    const std::int64_t height = std::int64_t{rect.bottom} - rect.Top;
    return static_cast<std::int32_t>(std::min({width, height, std::int64_t{largestMark}}));
}

/// A place for a mark of this size in the middle of `rect`.
host::Point Centred(const tvok_Rect& rect, std::int32_t width, std::int32_t height) {
    const std::int64_t spareX = std::int64_t{rect.Right} - rect.Left - width;
    const std::int64_t spareY = std::int64_t{rect.bottom} - rect.Top - height;
    return {Clamp32(rect.Left + spareX / 2), Clamp32(rect.Top + spareY / 2)};
}

/// One line of a mark.
void FillStrip(DeviceContext& context, host::Point at, std::int32_t width, std::int32_t height,
               std::int32_t color) {
    context.FillColor({at.x, at.y, at.x + width, at.y + height}, color);
}

using PutMark = void (*)(DeviceContext& context, const tvok_Rect& rect, std::int32_t kind, std::int32_t shift,
                         std::int32_t color);

/// A mark in the button's text colour. A pushed one moves with its button; an inactive one is grey and
/// engraved.
void DrawMark(DeviceContext& context, const Theme& theme, const tvok_Rect& rect, std::int32_t state,
              PutMark put, std::int32_t kind) {
    if (ShorterSide(rect) < smallestWithMark) return;
    const std::int32_t shift = (state & host::DFCS_PUSHED) ? 1 : 0;
    if (state & host::DFCS_INACTIVE) {
        put(context, rect, kind, shift + 1, ColorOf(theme, host::COLOR_BTNHIGHLIGHT));
        put(context, rect, kind, shift, ColorOf(theme, host::COLOR_GRAYTEXT));
        return;
    }
    put(context, rect, kind, shift, ColorOf(theme, host::COLOR_BTNTEXT));
}

/// A filled triangle; `kind` is where it points to.
void PutArrow(DeviceContext& context, const tvok_Rect& rect, std::int32_t kind, std::int32_t shift,
              std::int32_t color) {
    const std::int32_t rows = std::max(ShorterSide(rect) / 4, 1);
    const std::int32_t base = 2 * rows - 1;
    const bool upright = kind == host::DFCS_SCROLLUP || kind == host::DFCS_SCROLLDOWN;
    const bool pointFirst = kind == host::DFCS_SCROLLUP || kind == host::DFCS_SCROLLLEFT;
    const host::Point at = upright ? Centred(rect, base, rows) : Centred(rect, rows, base);
    for (std::int32_t i = 0; i < rows; ++i) {
        const std::int32_t wide = pointFirst ? i : rows - 1 - i;
        const std::int32_t inset = rows - 1 - wide + shift;
        const std::int32_t length = 2 * wide + 1;
        if (upright)
            FillStrip(context, {at.x + inset, at.y + i + shift}, length, 1, color);
        else
            FillStrip(context, {at.x + i + shift, at.y + inset}, 1, length, color);
    }
}

void PutCross(DeviceContext& context, const tvok_Rect& rect, std::int32_t, std::int32_t shift,
              std::int32_t color) {
    const std::int32_t rows = std::max(ShorterSide(rect) / 2 - 1, 2);
    const std::int32_t thickness = std::max(rows / 4, 1) + (rows > 3 ? 1 : 0);
    const host::Point at = Centred(rect, rows + thickness - 1, rows);
    for (std::int32_t i = 0; i < rows; ++i) {
        const std::int32_t y = at.y + i + shift;
        FillStrip(context, {at.x + i + shift, y}, thickness, 1, color);
        FillStrip(context, {at.x + rows - 1 - i + shift, y}, thickness, 1, color);
    }
}

/// A tick of upright strokes: down over the first third, then up.
void PutTick(DeviceContext& context, const tvok_Rect& box, std::int32_t color) {
    const std::int32_t width = std::max(ShorterSide(box) * 7 / 9, 1);
    const std::int32_t thickness = std::max(width * 3 / 7, 1);
    const std::int32_t turn = (width - 1) / 3;
    const std::int32_t lowest = width - 1 - turn;
    const host::Point at = Centred(box, width, lowest + thickness);
    for (std::int32_t x = 0; x < width; ++x) {
        const std::int32_t y = x <= turn ? lowest - turn + x : width - 1 - x;
        FillStrip(context, {at.x + x, at.y + y}, 1, thickness, color);
    }
}

/// A disc, its upper left half in one colour and its lower right half in another.
void FillDisc(DeviceContext& context, host::Point at, std::int32_t size, std::int32_t leftTop,
              std::int32_t rightBottom) {
    for (std::int32_t y = 0; y < size; ++y) {
        const std::int32_t off = 2 * y + 1 - size;
        std::int32_t left = 0;
        while (left < size / 2 && (2 * left + 1 - size) * (2 * left + 1 - size) + off * off > size * size)
            ++left;
        const std::int32_t right = size - left;
        const std::int32_t middle = std::clamp(size - y, left, right);
        FillStrip(context, {at.x + left, at.y + y}, middle - left, 1, leftTop);
        FillStrip(context, {at.x + middle, at.y + y}, right - middle, 1, rightBottom);
    }
}

std::int32_t FaceFlags(std::int32_t state) {
    return host::BF_RECT | host::BF_MIDDLE | ((state & host::DFCS_FLAT) ? host::BF_FLAT : 0);
}

void DrawPushButton(DeviceContext& context, const Theme& theme, const tvok_Rect& rect, std::int32_t state) {
    tvok_Rect inside = rect;
    const std::int32_t edge = (state & host::DFCS_PUSHED) ? host::EDGE_SUNKEN : host::EDGE_RAISED;
    DrawEdge(context, theme, inside, edge, FaceFlags(state) | host::BF_SOFT | host::BF_ADJUST);
    if (state & host::DFCS_CHECKED) context.FillColor(inside, ColorOf(theme, host::COLOR_3DLIGHT));
}

/// The colour inside a check box or radio button, and of its mark.
LineColors BoxColors(std::int32_t state) {
    const bool dull = (state & (host::DFCS_INACTIVE | host::DFCS_PUSHED)) != 0;
    return {dull ? host::COLOR_BTNFACE : host::COLOR_WINDOW,
            (state & host::DFCS_INACTIVE) ? host::COLOR_GRAYTEXT : host::COLOR_WINDOWTEXT};
}

void DrawCheckBox(DeviceContext& context, const Theme& theme, const tvok_Rect& rect, std::int32_t state) {
    const std::int32_t size = ShorterSide(rect);
    const auto [left, top] = Centred(rect, size, size);
    tvok_Rect box{left, top, left + size, top + size};
    const auto [fill, mark] = BoxColors(state);
    DrawEdge(context, theme, box, host::EDGE_SUNKEN, (FaceFlags(state) & ~host::BF_MIDDLE) | host::BF_ADJUST);
    context.FillColor(box, ColorOf(theme, fill));
    if ((state & host::DFCS_CHECKED) && !IsEmpty(box)) PutTick(context, box, ColorOf(theme, mark));
}

void DrawRadioButton(DeviceContext& context, const Theme& theme, const tvok_Rect& rect, std::int32_t state) {
    const std::int32_t size = ShorterSide(rect);
    const host::Point at = Centred(rect, size, size);
    const auto ring = [&](std::int32_t inset, LineColors colors) {
        if (size <= 2 * inset) return;
        FillDisc(context, {at.x + inset, at.y + inset}, size - 2 * inset, ColorOf(theme, colors.leftTop),
                 ColorOf(theme, colors.rightBottom));
    };
    const auto [fill, mark] = BoxColors(state);
    ring(0, OuterColors(host::BDR_SUNKENOUTER, FaceFlags(state)));
    ring(1, InnerColors(host::BDR_SUNKENINNER, FaceFlags(state)));
    ring(2, {fill, fill});
    if (state & host::DFCS_CHECKED) ring(std::max(size / 3, 2), {mark, mark});
}

bool DrawButton(DeviceContext& context, const Theme& theme, const tvok_Rect& rect, std::int32_t state) {
    constexpr std::int32_t kindBits = 0x1F;
    switch (state & kindBits) {
    case host::DFCS_BUTTONPUSH: DrawPushButton(context, theme, rect, state); return true;
    case host::DFCS_BUTTONCHECK: DrawCheckBox(context, theme, rect, state); return true;
    case host::DFCS_BUTTONRADIO: DrawRadioButton(context, theme, rect, state); return true;
    default: return false;
    }
}

/// A pushed arrow button lies flat, unlike a pushed push button.
bool DrawArrowButton(DeviceContext& context, const Theme& theme, const tvok_Rect& rect, std::int32_t state) {
    constexpr std::int32_t kindBits = 0x0F;
    std::int32_t kind = state & kindBits;
    if (kind == host::DFCS_SCROLLCOMBOBOX) kind = host::DFCS_SCROLLDOWN;
    if (kind > host::DFCS_SCROLLRIGHT) return false;
    const bool flat = (state & (host::DFCS_PUSHED | host::DFCS_FLAT)) != 0;
    tvok_Rect face = rect;
    DrawEdge(context, theme, face, host::EDGE_RAISED, FaceFlags(flat ? host::DFCS_FLAT : 0));
    DrawMark(context, theme, rect, state, PutArrow, kind);
    return true;
}

bool DrawCaptionButton(DeviceContext& context, const Theme& theme, const tvok_Rect& rect,
                       std::int32_t state) {
    constexpr std::int32_t kindBits = 0x0F;
    if ((state & kindBits) != host::DFCS_CAPTIONCLOSE) return false;
    DrawPushButton(context, theme, rect, state);
    DrawMark(context, theme, rect, state, PutCross, 0);
    return true;
}

} // namespace

bool DrawEdge(DeviceContext& context, const Theme& theme, tvok_Rect& rect, std::int32_t edge,
              std::int32_t flags) {
    const std::int32_t outer = edge & (host::BDR_RAISEDOUTER | host::BDR_SUNKENOUTER);
    const std::int32_t inner = edge & (host::BDR_RAISEDINNER | host::BDR_SUNKENINNER);
    const bool hasOuter = outer == host::BDR_RAISEDOUTER || outer == host::BDR_SUNKENOUTER;
    const bool hasInner = inner == host::BDR_RAISEDINNER || inner == host::BDR_SUNKENINNER;
    tvok_Rect inside = rect;
    if (hasOuter) DrawSides(context, theme, inside, OuterColors(outer, flags), flags);
    if (hasInner) DrawSides(context, theme, inside, InnerColors(inner, flags), flags);
    if (flags & host::BF_MIDDLE) {
        const std::int32_t fill = (flags & host::BF_MONO) ? host::COLOR_WINDOW : host::COLOR_BTNFACE;
        context.FillColor(inside, ColorOf(theme, fill));
    }
    if (flags & host::BF_ADJUST) rect = inside;
    return (hasOuter || outer == 0) && (hasInner || inner == 0);
}

bool DrawFrameControl(DeviceContext& context, const Theme& theme, const tvok_Rect& rect, std::int32_t type,
                      std::int32_t state) {
    if (IsEmpty(rect)) return true;
    switch (type) {
    case host::DFC_CAPTION: return DrawCaptionButton(context, theme, rect, state);
    case host::DFC_SCROLL: return DrawArrowButton(context, theme, rect, state);
    case host::DFC_BUTTON: return DrawButton(context, theme, rect, state);
    default: return false;
    }
}

} // namespace tvok::soft
