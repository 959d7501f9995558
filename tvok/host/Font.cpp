#include "tvok/host/Font.h"

namespace tvok::host {

FontValue ValueOf(const Font& font) {
    return {font.Name(), font.Size(), font.Bold(), font.Italic(), font.Underline(), font.Strikethrough()};
}

void Assign(Font& font, const FontValue& value) {
    font.Name(value.Name);
    font.Size(value.Size);
    font.Bold(value.Bold);
    font.Italic(value.Italic);
    font.Underline(value.Underline);
    font.Strikethrough(value.Strikethrough);
}

} // namespace tvok::host
