/// What the tests of property lists set a property to.
#pragma once

#include "apps/gallery/properties.h"

namespace gallery {

/// Another value that the property takes.
inline tvok::Variant OtherValue(const Property& property) {
    const tvok::Variant now = property.get();
    switch (property.kind) {
    case ValueKind::Color: return tvok::Variant(now == tvok::Variant(0x123456) ? 0x654321 : 0x123456);
    case ValueKind::Truth: return tvok::Variant(now.AsInteger() == 0 ? 1 : 0);
    case ValueKind::Choice:
        for (const ListedValue& listed : ValuesOf(property.list))
            if (tvok::Variant(listed.value) != now) return tvok::Variant(listed.value);
        return {};
    case ValueKind::Name: return tvok::Variant("DejaVu Serif");
    case ValueKind::Text:
        if (property.name == "HeaderWidths") return tvok::Variant("90-80-70");
        if (property.name == "ColWidthSettingStr") return tvok::Variant("0,40");
        if (property.name == "TabStopSettingStr") return tvok::Variant("60");
        return tvok::Variant(now.AsText() + "x");
    case ValueKind::Number: break;
    }
    return tvok::Variant(now.AsInteger() < property.most ? now.AsInteger() + 1 : property.least);
}

} // namespace gallery
