#include "tvok/controls/propertylist/CaptionWidths.h"

#include <algorithm>

namespace tvok::propertylist {

void CaptionWidths::Reset() {
    fonts_.clear();
}

void CaptionWidths::Use(const host::FontValue& font) {
    const auto found = std::ranges::find(fonts_, font, &OfFont::font);
    if (found != fonts_.end()) {
        fonts_.splice(fonts_.begin(), fonts_, found);
        return;
    }
    fonts_.push_front({font, {}, {}});
    if (fonts_.size() > cFonts) fonts_.pop_back();
}

std::int32_t CaptionWidths::Of(std::int32_t slot, std::uint64_t stamp, const std::string& caption,
                               const Measure& measure) {
    OfFont& font = fonts_.front();
    const auto place = static_cast<std::size_t>(slot);
    if (font.slots.size() <= place) font.slots.resize(place + 1);
    Known& known = font.slots[place];
    if (known.stamp == stamp) return known.width;
    // Captions of items that are long gone are dropped together, and those still there measured once more.
    if (font.captions.size() > 2 * font.slots.size() + 1000) font.captions.clear();
    const auto [entry, isNew] = font.captions.try_emplace(caption);
    if (isNew) entry->second = measure(caption);
    known = {stamp, entry->second};
    return known.width;
}

} // namespace tvok::propertylist
