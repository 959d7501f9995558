#include "tvok/host/ComponentSettings.h"

#include "tvok/records/numeric.h"

namespace tvok::host {

void ReadAppearance(PropertyBag& bag, Widget& base) {
    base.Appearance(ToInt16(Read(bag, "Appearance", std::int32_t{0})));
}
void WriteAppearance(PropertyBag& bag, const Widget& base) {
    bag.WriteProperty("Appearance", std::int32_t{base.Appearance()}, std::int32_t{0});
}

void ReadBorderStyle(PropertyBag& bag, Widget& base) {
    base.BorderStyle(ToInt16(Read(bag, "BorderStyle", std::int32_t{1})));
}
void WriteBorderStyle(PropertyBag& bag, const Widget& base) {
    bag.WriteProperty("BorderStyle", std::int32_t{base.BorderStyle()}, std::int32_t{1});
}

void ReadFont(PropertyBag& bag, Widget& base, const Ambient& ambient) {
    Assign(*base.Font(), Read(bag, "Font", ambient.Font()));
}
void WriteFont(PropertyBag& bag, const Widget& base, const Ambient& ambient) {
    bag.WriteProperty("Font", ValueOf(*base.Font()), ambient.Font());
}

void ReadFontTransparent(PropertyBag& bag, Widget& base) {
    base.FontTransparent(Read(bag, "FontTransparent", true));
}
void WriteFontTransparent(PropertyBag& bag, const Widget& base) {
    bag.WriteProperty("FontTransparent", base.FontTransparent(), true);
}

} // namespace tvok::host
