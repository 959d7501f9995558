/// The font object that a component lends to its control.
#pragma once

#include <memory>
#include <string>

namespace tvok::host {

/// Changing a property changes what is drawn next on the device context that the font belongs to, at once.
class Font {
public:
    virtual ~Font() = default;

    virtual std::string Name() const = 0;
    virtual void Name(const std::string& face) = 0;
    virtual float Size() const = 0; ///< In points.
    virtual void Size(float points) = 0;
    virtual bool Bold() const = 0;
    virtual void Bold(bool on) = 0;
    virtual bool Italic() const = 0;
    virtual void Italic(bool on) = 0;
    virtual bool Underline() const = 0;
    virtual void Underline(bool on) = 0;
    virtual bool Strikethrough() const = 0;
    virtual void Strikethrough(bool on) = 0;
};

using FontPtr = std::shared_ptr<Font>;

/// A font's properties as a plain value: what a property bag keeps.
struct FontValue {
    std::string Name;
    float Size = 9;
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    bool Strikethrough = false;

    friend bool operator==(const FontValue&, const FontValue&) = default;
};

FontValue ValueOf(const Font& font);
void Assign(Font& font, const FontValue& value);

} // namespace tvok::host
