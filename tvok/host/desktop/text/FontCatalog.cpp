#include "tvok/host/desktop/text/FontCatalog.h"

#include <tuple>
#include <utility>

#include <fontconfig/fontconfig.h>

#include "tvok/host/desktop/text/characters.h"

namespace tvok::soft {

namespace {

struct Release {
    void operator()(FcConfig* config) const { FcConfigDestroy(config); }
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
    void operator()(FcFontSet* set) const { FcFontSetDestroy(set); }
};
template<class T>
using Owned = std::unique_ptr<T, Release>;

constexpr const char* systemFamily = "sans-serif";

const FcChar8* Text(const std::string& text) {
    return reinterpret_cast<const FcChar8*>(text.c_str());
}

/// The weight and slant that are not a face's own are made out of it.
FaceFile FaceOf(FcPattern* found, const FontSpec& spec) {
    FcChar8* file = nullptr;
    int index = 0, weight = FC_WEIGHT_REGULAR, slant = FC_SLANT_ROMAN;
    if (FcPatternGetString(found, FC_FILE, 0, &file) != FcResultMatch) return {};
    FcPatternGetInteger(found, FC_INDEX, 0, &index);
    FcPatternGetInteger(found, FC_WEIGHT, 0, &weight);
    FcPatternGetInteger(found, FC_SLANT, 0, &slant);
    return {reinterpret_cast<const char*>(file), index, spec.bold && weight < FC_WEIGHT_DEMIBOLD,
            spec.italic && slant == FC_SLANT_ROMAN};
}

/// Fonts in order of how well they fit a language, a weight and a slant.
struct Fallbacks {
    std::string language;
    bool bold = false;
    bool italic = false;
    Owned<FcFontSet> set;
    std::vector<FaceFile> faces; ///< One for each pattern of `set`.
};

} // namespace

struct FontCatalog::Impl {
    std::string fontFile;
    Owned<FcConfig> config;
    std::vector<std::unique_ptr<Fallbacks>> fallbacks;

    FcConfig* Config() {
        if (!config) config.reset(FcInitLoadConfigAndFonts());
        return config.get();
    }

    Owned<FcPattern> PatternOf(const FontSpec& spec, std::string_view language) {
        Owned<FcPattern> pattern(FcPatternCreate());
        if (!spec.face.empty()) FcPatternAddString(pattern.get(), FC_FAMILY, Text(spec.face));
        FcPatternAddString(pattern.get(), FC_FAMILY, Text(systemFamily));
        FcPatternAddInteger(pattern.get(), FC_WEIGHT, spec.bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
        FcPatternAddInteger(pattern.get(), FC_SLANT, spec.italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
        FcPatternAddBool(pattern.get(), FC_SCALABLE, FcTrue);
        if (!language.empty()) FcPatternAddString(pattern.get(), FC_LANG, Text(std::string(language)));
        FcConfigSubstitute(Config(), pattern.get(), FcMatchPattern);
        FcDefaultSubstitute(pattern.get());
        return pattern;
    }

    Fallbacks& FallbacksFor(const FontSpec& spec, std::string_view language) {
        for (const auto& known : fallbacks)
            if (known->language == language && known->bold == spec.bold && known->italic == spec.italic)
                return *known;
        auto made = std::make_unique<Fallbacks>();
        made->language = language;
        made->bold = spec.bold;
        made->italic = spec.italic;
        const auto pattern = PatternOf({{}, 0, spec.bold, spec.italic}, language);
        FcResult result = FcResultNoMatch;
        made->set.reset(FcFontSort(Config(), pattern.get(), FcTrue, nullptr, &result));
        for (int i = 0; made->set && i < made->set->nfont; ++i)
            made->faces.push_back(FaceOf(made->set->fonts[i], spec));
        return *fallbacks.emplace_back(std::move(made));
    }
};

FontCatalog::FontCatalog(std::string fontFile) : impl_(std::make_unique<Impl>()) {
    impl_->fontFile = std::move(fontFile);
}

FontCatalog::~FontCatalog() = default;

std::vector<FaceFile> FontCatalog::Find(const FontSpec& spec) {
    if (!impl_->fontFile.empty()) return {{impl_->fontFile, 0, spec.bold, spec.italic}};
    if (!impl_->Config()) return {};
    std::vector<FaceFile> faces;
    FcResult result = FcResultNoMatch;
    const Owned<FcPattern> found(FcFontMatch(impl_->Config(), impl_->PatternOf(spec, {}).get(), &result));
    if (found) faces.push_back(FaceOf(found.get(), spec));
    if (!faces.empty() && faces[0].file.empty()) faces.clear();
    return faces;
}

const FaceFile* FontCatalog::Covering(char32_t character, const FontSpec& spec) {
    if (!impl_->Config()) return nullptr;
    const Fallbacks& list = impl_->FallbacksFor(spec, LanguageOf(character));
    for (std::size_t i = 0; i < list.faces.size(); ++i) {
        FcCharSet* characters = nullptr;
        const auto known =
            FcPatternGetCharSet(list.set->fonts[i], FC_CHARSET, 0, &characters) == FcResultMatch;
        if (known && FcCharSetHasChar(characters, character)) return &list.faces[i];
    }
    return nullptr;
}

} // namespace tvok::soft
