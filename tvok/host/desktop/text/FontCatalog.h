/// Finds font files: by name, and for characters that a font lacks.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tvok/host/desktop/text/TextEngine.h"

namespace tvok::soft {

/// A face in a file, and what has to be done to it to look as it was asked for.
struct FaceFile {
    std::string file;
    std::int32_t index = 0; ///< Of the face within its file.
    bool embolden = false;
    bool slant = false;

    friend bool operator==(const FaceFile&, const FaceFile&) = default;
};

class FontCatalog {
public:
    /// `fontFile`: the answer to every `Find`; empty to ask fontconfig, which is loaded at the first
    /// question.
    explicit FontCatalog(std::string fontFile);
    ~FontCatalog();
    FontCatalog(const FontCatalog&) = delete;
    FontCatalog& operator=(const FontCatalog&) = delete;

    /// Faces for the asked name, weight and slant, the best one first. A later one counts only where those
    /// before it cannot be opened. Empty when there is no font.
    std::vector<FaceFile> Find(const FontSpec& spec);

    /// A face that has the character, in the asked weight and slant as far as there is one; null for none.
    /// Which one is best depends on the character's language. Valid as long as the catalog.
    const FaceFile* Covering(char32_t character, const FontSpec& spec);

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace tvok::soft
