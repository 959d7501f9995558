/// The measured widths of captions: each distinct caption is measured once in each font.
#pragma once

#include <cstdint>
#include <functional>
#include <list>
#include <string>
#include <vector>

#include "tvok/controls/propertylist/ItemStore.h"
#include "tvok/host/Font.h"

namespace tvok::propertylist {

class CaptionWidths {
public:
    explicit CaptionWidths(const ItemStore& items) : items_(items) {}

    /// The font that the next widths are for. A few fonts are kept, since painting leaves an item's style in
    /// it. False where it is the one in use.
    bool Use(const host::FontValue& font);
    /// The width of the caption of this slot: `measure` is asked where it is not known, neither from this
    /// slot nor from another one with the same caption.
    std::int32_t Of(std::int32_t slot, const std::function<std::int32_t(const std::string&)>& measure);
    void Reset();

private:
    struct Known {
        std::uint64_t stamp = 0; ///< Which caption of the slot it is; 0 for none.
        std::int32_t width = 0;
    };
    struct OfFont {
        host::FontValue font;
        std::vector<Known> slots;
        std::vector<std::int32_t> table; ///< Known slots by the hash of their captions; 0 is an empty place.
        std::size_t used = 0;
    };
    static constexpr std::size_t cFonts = 4;

    bool IsCurrent(const OfFont& font, std::int32_t slot) const;
    void MakeRoom(OfFont& font) const;
    std::int32_t& PlaceOf(OfFont& font, const std::string& caption) const;

    const ItemStore& items_;
    std::list<OfFont> fonts_; ///< The one in use is the first.
};

} // namespace tvok::propertylist
