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
    std::int32_t style = 0;
    std::int32_t width = 1;
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

/// Making and freeing an object costs no allocation once the table has grown to what is in use.
class GdiObjects {
public:
    explicit GdiObjects(const Theme& theme);
    ~GdiObjects();

    host::Handle Add(const GdiObject& object);
    host::Handle Stock(std::int32_t index);           ///< 0 for an index that names none.
    const GdiObject* Find(host::Handle handle) const; ///< Null for a handle that names none.
    bool Delete(host::Handle handle); ///< False for a stock object, one that is selected, or none.
    void AddUse(host::Handle handle, std::int32_t change); ///< +1 when selected into a context, -1 when out.
    std::int32_t LiveObjects() const;                      ///< Without the stock objects: for leak tests.
    void ApplyTheme(const Theme& theme);                   ///< The default GUI font follows the theme.

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace tvok::soft
