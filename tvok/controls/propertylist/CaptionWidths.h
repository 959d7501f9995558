/// The measured widths of captions: each distinct caption is measured once in each font.
#pragma once

#include <cstdint>
#include <functional>
#include <list>
#include <string>
#include <unordered_map>
#include <vector>

#include "tvok/host/Font.h"

namespace tvok::propertylist {

class CaptionWidths {
public:
    using Measure = std::function<std::int32_t(const std::string&)>;

    /// The font that the next widths are for. A few fonts are kept, since painting leaves an item's style in
    /// it.
    void Use(const host::FontValue& font);
    /// The width of the caption of this slot. `stamp` says which caption that is: while it stays, the answer
    /// costs no look at the text.
    std::int32_t Of(std::int32_t slot, std::uint64_t stamp, const std::string& caption,
                    const Measure& measure);
    void Reset();

private:
    struct Known {
        std::uint64_t stamp = 0;
        std::int32_t width = 0;
    };
    struct OfFont {
        host::FontValue font;
        std::vector<Known> slots;
        std::unordered_map<std::string, std::int32_t> captions;
    };
    static constexpr std::size_t cFonts = 4;

    std::list<OfFont> fonts_; ///< The one in use is the first.
};

} // namespace tvok::propertylist
