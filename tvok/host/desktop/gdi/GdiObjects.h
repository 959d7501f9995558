/// Pens, brushes and fonts behind their handles, and the stock objects.
#pragma once

#include <cstdint>
#include <memory>
#include <variant>

#include "tvok/host/constants.h"
#include "tvok/host/desktop/Theme.h"
#include "tvok/host/desktop/pixels/Surface.h"
#include "tvok/host/desktop/text/TextEngine.h"

namespace tvok::soft {

struct Pen {
    std::int32_t style = 0; ///< PS_*.
    std::int32_t width = 1; ///< Pixels; below 1 counts as 1.
    std::int32_t color = 0;
};
struct Brush {
    bool hollow = false;
    std::int32_t color = 0;
};
struct GdiFont {
    host::LogFont description;
    FontSpec spec;
    bool underline = false;
    bool strikeout = false;
};
using GdiObject = std::variant<Pen, Brush, GdiFont>;

/// The font that a description asks for. A negative height is the size of the em square, a positive one the
/// height of the line, 0 the default size of 12. A weight from 600 on is bold.
GdiFont FontOf(const host::LogFont& description);
/// The description of a font by family name and em size in pixels.
host::LogFont DescriptionOf(std::string_view face, std::int32_t pixelHeight);

/// Making and freeing an object costs no allocation once the table has grown to what is in use, but for a
/// font with a long face name. A handle says which use of its place it belongs to, so that it names nothing
/// after its object was deleted.
class GdiObjects {
public:
    explicit GdiObjects(const Theme& theme);
    ~GdiObjects();
    GdiObjects(const GdiObjects&) = delete;
    GdiObjects& operator=(const GdiObjects&) = delete;

    host::Handle Add(const GdiObject& object);        ///< 0 when 65,000 objects are in use.
    host::Handle Stock(std::int32_t index);           ///< 0 for an index that names none.
    const GdiObject* Find(host::Handle handle) const; ///< Null for a handle that names none.
    bool Delete(host::Handle handle); ///< False for a stock object, one that is selected, or none.
    void AddUse(host::Handle handle, std::int32_t change); ///< +1 when selected into a context, -1 when out.
    std::int32_t LiveObjects() const;                      ///< Without the stock objects: for leak tests.

    /// Copies up to `bytes` of a font's description; the number of bytes copied, 0 for what is no font. With
    /// a null buffer: the size of the whole.
    std::int32_t Describe(host::Handle font, std::int32_t bytes, void* buffer) const;

    void ApplyTheme(const Theme& theme); ///< The default GUI font follows the theme.
    /// Grows with each `ApplyTheme`: what was derived from a stock object before is stale.
    std::int32_t Revision() const;

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace tvok::soft
