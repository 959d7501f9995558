/// The settings that a control leaves to its base component, as property bag keys of one name and form in
/// every control. Each control reads and writes them one by one, in its own order among its own keys.
#pragma once

#include "tvok/host/Component.h"
#include "tvok/host/PropertyBag.h"

namespace tvok::host {

/// "Appearance", default 0. A stored value that no component takes throws as the component's own write does;
/// one beyond 16 bits throws `OverflowError`.
void ReadAppearance(PropertyBag& bag, Widget& base);
void WriteAppearance(PropertyBag& bag, const Widget& base);

/// "BorderStyle", default 1. Errors as with "Appearance".
void ReadBorderStyle(PropertyBag& bag, Widget& base);
void WriteBorderStyle(PropertyBag& bag, const Widget& base);

/// "Font", default the surroundings' font. The component keeps its font object, which takes the stored
/// values.
void ReadFont(PropertyBag& bag, Widget& base, const Ambient& ambient);
void WriteFont(PropertyBag& bag, const Widget& base, const Ambient& ambient);

/// "FontTransparent", default true.
void ReadFontTransparent(PropertyBag& bag, Widget& base);
void WriteFontTransparent(PropertyBag& bag, const Widget& base);

} // namespace tvok::host
