#include "tvok/controls/propertylist/CaptionWidths.h"

#include <algorithm>
#include <functional>
#include <string_view>

namespace tvok::propertylist {

void CaptionWidths::Reset() {
    fonts_.clear();
}

bool CaptionWidths::Use(const host::FontValue& font, float scale) {
    const auto found = std::ranges::find_if(
        fonts_, [&](const OfFont& known) { return known.font == font && known.scale == scale; });
    if (found != fonts_.end() && found == fonts_.begin()) return false;
    if (found != fonts_.end())
        fonts_.splice(fonts_.begin(), fonts_, found);
    else
        fonts_.push_front({.font = font, .scale = scale});
    if (fonts_.size() > cFonts) fonts_.pop_back();
    return true;
}

/// The place of a caption, or the empty one where it belongs.
CaptionWidths::Caption& CaptionWidths::PlaceOf(OfFont& font, const std::string& caption, std::size_t hash) {
    const std::size_t mask = font.table.size() - 1;
    for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
        Caption& known = font.table[at];
        if (known.width == cUnknown) return known;
        if (known.hash == hash && std::string_view(font.texts).substr(known.first, known.size) == caption)
            return known;
    }
}

/// Doubles the table where half of it is used. Captions that no item has any more go together with all others
/// once they are many, and those still there are measured once more.
void CaptionWidths::MakeRoom(OfFont& font) {
    constexpr std::size_t cFirst = 64;
    if (font.used > 4 * (font.slots.size() + cFirst)) {
        font.texts.clear();
        font.table.clear();
        font.used = 0;
    }
    if (2 * font.used < font.table.size()) return;
    std::vector<Caption> old(std::max(cFirst, 2 * font.table.size()));
    old.swap(font.table);
    const std::size_t mask = font.table.size() - 1;
    for (const Caption& known : old) {
        if (known.width == cUnknown) continue;
        std::size_t at = known.hash & mask;
        while (font.table[at].width != cUnknown) at = (at + 1) & mask;
        font.table[at] = known;
    }
}

std::int32_t CaptionWidths::WidthOf(OfFont& font, const std::string& caption,
                                    const std::function<std::int32_t(const std::string&)>& measure) {
    MakeRoom(font);
    const std::size_t hash = std::hash<std::string>{}(caption);
    Caption& place = PlaceOf(font, caption, hash);
    if (place.width != cUnknown) return place.width;
    const std::int32_t width = std::max(measure(caption), 0);
    place = {hash, font.texts.size(), caption.size(), width};
    font.texts += caption;
    ++font.used;
    return width;
}

std::int32_t CaptionWidths::Of(std::int32_t slot,
                               const std::function<std::int32_t(const std::string&)>& measure) {
    OfFont& font = fonts_.front();
    const auto at = static_cast<std::size_t>(slot);
    if (font.slots.size() <= at) font.slots.resize(at + 1);
    Known& known = font.slots[at];
    if (known.stamp != items_.CaptionStamp(slot))
        known = {items_.CaptionStamp(slot), WidthOf(font, items_[slot].hItem.text, measure)};
    return known.width;
}

} // namespace tvok::propertylist
