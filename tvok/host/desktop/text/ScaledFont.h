/// A font that was asked for, at its size: which face shows which character.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "tvok/host/desktop/text/Face.h"
#include "tvok/host/desktop/text/FontCatalog.h"
#include "tvok/host/desktop/text/TextEngine.h"

namespace tvok::soft {

/// The faces that are open, each once for a file and a size.
class FaceStore {
public:
    explicit FaceStore(std::string fontFile) : fontFile_(fontFile), catalog_(std::move(fontFile)) {}

    /// The face for a spec. Throws `ResourceError` that says what to install when there is none.
    Face& Find(const FontSpec& spec);
    /// Another face that has the character; null for none.
    Face* Covering(char32_t character, const FontSpec& spec);

private:
    struct OpenFace {
        FaceFile file;
        std::int32_t pixelHeight = 0;
        std::unique_ptr<Face> face; ///< Null for a file that cannot be opened.
    };
    Face* Open(const FaceFile& file, std::int32_t pixelHeight);

    std::string fontFile_;
    FontLibrary library_;
    FontCatalog catalog_;
    std::vector<OpenFace> faces_;
};

class ScaledFont {
public:
    /// The store has to outlive the font.
    ScaledFont(const FontSpec& spec, FaceStore& store)
        : spec_(spec), store_(store), face_(store.Find(spec)), metrics_(face_.Metrics()), pages_(pageCount) {}

    const FontSpec& Spec() const { return spec_; }
    const FontMetrics& Metrics() const { return metrics_; }

    /// The glyph of a character that stands for itself; null for one that needs shaping. Costs two look-ups
    /// in tables once it was asked for.
    const Glyph* SimpleGlyph(char32_t character) {
        const auto& page = pages_[character >> 8];
        const Glyph* glyph = page ? (*page)[character & 0xFF] : nullptr;
        if (!glyph) [[unlikely]]
            glyph = LookUp(character);
        return glyph == &needsShaping ? nullptr : glyph;
    }

    /// The face that shows these characters, which make one unit: the first that has all, else the first that
    /// has the first one, else the font's own.
    Face& FaceFor(const std::uint32_t* unit, std::size_t count);

private:
    static constexpr std::size_t pageCount = 0x110000 / 256;
    static const Glyph needsShaping; ///< Stands in the table for "this character needs shaping".
    using Page = std::array<const Glyph*, 256>;

    const Glyph* LookUp(char32_t character);

    FontSpec spec_;
    FaceStore& store_;
    Face& face_;
    FontMetrics metrics_;
    std::vector<std::unique_ptr<Page>> pages_;
};

} // namespace tvok::soft
