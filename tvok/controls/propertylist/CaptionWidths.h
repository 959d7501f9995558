/// The measured widths of captions: while a font is known, each distinct caption is measured once in it.
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

    /// The font and its scale in twips per pixel that the next widths are for. The last few are kept, since
    /// painting leaves an item's style in the font. False where it is the one in use.
    bool Use(const host::FontValue& font, float scale);
    /// The width of the caption of this slot: `measure` is asked where it is not known, neither from this
    /// slot nor from another one with the same caption.
    std::int32_t Of(std::int32_t slot, const std::function<std::int32_t(const std::string&)>& measure);
    void Reset();

private:
    struct Known {
        std::uint64_t stamp = 0; ///< Which caption of the slot it is; 0 for none.
        std::int32_t width = 0;
    };
    /// One caption in `texts`.
    struct Caption {
        std::size_t hash = 0;
        std::size_t first = 0;
        std::size_t size = 0;
        std::int32_t width = cUnknown;
    };
    static constexpr std::int32_t cUnknown = -1;
    static constexpr std::size_t cFonts = 4;
    struct OfFont {
        host::FontValue font;
        float scale = 0;
        std::vector<Known> slots{};
        std::string texts{};          ///< All captions, one behind the other.
        std::vector<Caption> table{}; ///< By hash; a power of 2 of places, half of them empty.
        std::size_t used = 0;
    };

    static Caption& PlaceOf(OfFont& font, const std::string& caption, std::size_t hash);
    static void MakeRoom(OfFont& font);
    static std::int32_t WidthOf(OfFont& font, const std::string& caption,
                                const std::function<std::int32_t(const std::string&)>& measure);

    const ItemStore& items_;
    std::list<OfFont> fonts_; ///< The one in use is the first.
};

} // namespace tvok::propertylist
