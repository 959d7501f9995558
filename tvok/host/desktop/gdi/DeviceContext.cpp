#include "tvok/host/desktop/gdi/DeviceContext_private.h"

#include <utility>

namespace tvok::soft {

using host::Handle;

DeviceContext::DeviceContext(GdiObjects& objects, TextEngine& text) : objects_(objects), text_(text) {
    Reset();
}

void DeviceContext::Reset() {
    for (const std::int32_t index : {host::BLACK_PEN, host::WHITE_BRUSH, host::SYSTEM_FONT})
        Select(objects_.Stock(index));
    textColor_ = 0;
    bkColor_ = 0xFFFFFF;
    bkMode_ = host::OPAQUE_BK;
    textAlign_ = host::TA_LEFT;
    rop2_ = host::R2_COPYPEN;
    position_ = {};
}

DeviceContext::~DeviceContext() {
    for (const Handle handle : {penHandle_, brushHandle_, fontHandle_}) objects_.AddUse(handle, -1);
}

void DeviceContext::Target(Surface* surface, std::int32_t originX, std::int32_t originY, Damage* damage) {
    surface_ = surface;
    originX_ = originX;
    originY_ = originY;
    damage_ = damage;
    UpdateBounds();
}

void DeviceContext::Clip(const Region& clip) {
    clip_ = clip;
    UpdateBounds();
}

void DeviceContext::UpdateBounds() {
    bounds_ = surface_ ? Intersection(clip_.Bounds(), BoundsOf(*surface_)) : tvok_Rect{};
    plainClip_ = clip_.Boxes().size() == 1;
}

Handle DeviceContext::Select(Handle object) {
    const GdiObject* found = objects_.Find(object);
    if (!found) return 0;
    Handle& place = std::holds_alternative<Pen>(*found)     ? penHandle_
                    : std::holds_alternative<Brush>(*found) ? brushHandle_
                                                            : fontHandle_;
    if (const auto* pen = std::get_if<Pen>(found)) pen_ = *pen;
    if (const auto* brush = std::get_if<Brush>(found)) brush_ = *brush;
    if (&place == &fontHandle_ && object != fontHandle_) font_ = 0;
    objects_.AddUse(object, 1);
    objects_.AddUse(place, -1);
    return std::exchange(place, object);
}

std::int32_t DeviceContext::TextColor(std::int32_t color) {
    return std::exchange(textColor_, color);
}

std::int32_t DeviceContext::BkColor(std::int32_t color) {
    return std::exchange(bkColor_, color);
}

std::int32_t DeviceContext::BkMode(std::int32_t mode) {
    if (mode != host::TRANSPARENT_BK && mode != host::OPAQUE_BK) return 0;
    return std::exchange(bkMode_, mode);
}

std::int32_t DeviceContext::TextAlign(std::int32_t align) {
    return std::exchange(textAlign_, align);
}

std::int32_t DeviceContext::Rop2(std::int32_t mode) {
    if (mode < 1 || mode > 16) return 0;
    return std::exchange(rop2_, mode);
}

/// The selected font, looked up when something is first drawn or measured with it.
FontId DeviceContext::Font() {
    if (font_ != 0 && fontRevision_ == objects_.Revision()) return font_;
    const auto& font = std::get<GdiFont>(*objects_.Find(fontHandle_));
    font_ = text_.Find(font.spec);
    fontRevision_ = objects_.Revision();
    underline_ = font.underline;
    strikeout_ = font.strikeout;
    tabWidth_ = 0;
    return font_;
}

FontMetrics DeviceContext::Metrics() {
    return text_.Metrics(Font());
}

std::int32_t DeviceContext::TextWidth(std::string_view text) {
    return text_.Measure(Font(), text);
}

} // namespace tvok::soft
