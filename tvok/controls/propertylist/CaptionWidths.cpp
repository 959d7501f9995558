#include "tvok/controls/propertylist/CaptionWidths.h"

#include <algorithm>
#include <bit>
#include <functional>

namespace tvok::propertylist {

void CaptionWidths::Reset() {
    fonts_.clear();
}

bool CaptionWidths::Use(const host::FontValue& font) {
    const auto found = std::ranges::find(fonts_, font, &OfFont::font);
    if (found != fonts_.end() && found == fonts_.begin()) return false;
    if (found != fonts_.end())
        fonts_.splice(fonts_.begin(), fonts_, found);
    else
        fonts_.push_front({font, {}, {}});
    if (fonts_.size() > cFonts) fonts_.pop_back();
    return true;
}

/// Whether what is known of a slot is the caption that it has now.
bool CaptionWidths::IsCurrent(const OfFont& font, std::int32_t slot) const {
    const auto place = static_cast<std::size_t>(slot);
    return slot <= items_.UpperBound() && place < font.slots.size() &&
           font.slots[place].stamp == items_.CaptionStamp(slot);
}

/// Twice as many places as captions, made anew from those that are still there.
void CaptionWidths::MakeRoom(OfFont& font) const {
    if (font.table.size() > 2 * font.used) return;
    font.slots.resize(static_cast<std::size_t>(items_.UpperBound()) + 1);
    font.table.assign(std::bit_ceil(4 * (font.slots.size() + 16)), 0);
    font.used = 0;
    for (std::int32_t slot = 1; slot <= items_.UpperBound(); ++slot) {
        if (!IsCurrent(font, slot)) continue;
        std::int32_t& place = PlaceOf(font, items_[slot].hItem.text);
        font.used += place == 0 ? 1 : 0;
        place = slot;
    }
}

/// The place of a slot with this caption, or the empty one where such a slot belongs.
std::int32_t& CaptionWidths::PlaceOf(OfFont& font, const std::string& caption) const {
    const std::size_t mask = font.table.size() - 1;
    for (std::size_t at = std::hash<std::string>{}(caption)&mask;; at = (at + 1) & mask) {
        std::int32_t& slot = font.table[at];
        if (slot == 0 || (IsCurrent(font, slot) && items_[slot].hItem.text == caption)) return slot;
    }
}

std::int32_t CaptionWidths::Of(std::int32_t slot,
                               const std::function<std::int32_t(const std::string&)>& measure) {
    OfFont& font = fonts_.front();
    if (IsCurrent(font, slot)) return font.slots[static_cast<std::size_t>(slot)].width;
    MakeRoom(font);
    if (font.slots.size() <= static_cast<std::size_t>(slot))
        font.slots.resize(static_cast<std::size_t>(slot) + 1);
    Known& known = font.slots[static_cast<std::size_t>(slot)];
    const std::string& caption = items_[slot].hItem.text;
    std::int32_t& place = PlaceOf(font, caption);
    const std::int32_t width =
        place == 0 ? measure(caption) : font.slots[static_cast<std::size_t>(place)].width;
    if (place == 0) {
        place = slot;
        ++font.used;
    }
    known = {items_.CaptionStamp(slot), width};
    return width;
}

} // namespace tvok::propertylist
