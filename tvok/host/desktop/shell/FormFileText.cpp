#include <charconv>
#include <cstdlib>

#include "tvok/host/desktop/FormFile.h"
#include "tvok/records/text.h"

namespace tvok {

namespace {

/// From here on numbers are mostly colours and bits, which read better in hexadecimal.
constexpr std::int64_t FirstHexadecimal = 0x10000;

void AppendUnsigned(std::string& text, std::uint32_t value, int base) {
    char digits[16];
    const auto end = std::to_chars(digits, digits + sizeof digits, value, base).ptr;
    text.append(digits, end);
}

void AppendEscaped(std::string& text, char32_t character) {
    switch (character) {
    case '"': text += "\\\""; return;
    case '\\': text += "\\\\"; return;
    case '\n': text += "\\n"; return;
    case '\r': text += "\\r"; return;
    case '\t': text += "\\t"; return;
    default: break;
    }
    if (character >= 0x20 && character != 0x7F) return AppendCharacter(text, character);
    text += character < 0x10 ? "\\u000" : "\\u00";
    AppendUnsigned(text, character, 16);
}

std::string Quoted(std::string_view value) {
    std::string text = "\"";
    for (std::size_t place = 0; place < value.size();) AppendEscaped(text, NextCharacter(value, place));
    return text + '"';
}

/// A key as it stands where it may, else quoted.
std::string Key(std::string_view name) {
    const auto isBare = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
               c == '-';
    };
    for (const char c : name)
        if (!isBare(c)) return Quoted(name);
    return name.empty() ? Quoted(name) : std::string(name);
}

struct ValueText {
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(std::int32_t value) const {
        if (std::abs(std::int64_t{value}) < FirstHexadecimal) return std::to_string(value);
        std::string text = "0x";
        AppendUnsigned(text, static_cast<std::uint32_t>(value), 16);
        return text;
    }
    std::string operator()(float value) const {
        char digits[32];
        std::string text(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
        return text.find_first_of(".en") == std::string::npos ? text + ".0" : text;
    }
    std::string operator()(const std::string& value) const { return Quoted(value); }
    std::string operator()(const host::FontValue& font) const {
        const ValueText& self = *this;
        return "{ Name = " + Quoted(font.Name) + ", Size = " + self(font.Size) +
               ", Bold = " + self(font.Bold) + ", Italic = " + self(font.Italic) +
               ", Underline = " + self(font.Underline) + ", Strikethrough = " + self(font.Strikethrough) +
               " }";
    }
};

void AppendLine(std::string& text, std::string_view key, const host::PropertyValue& value) {
    text += Key(key) + " = " + std::visit(ValueText{}, value) + '\n';
}

void AppendControl(std::string& text, const FormFileControl& control) {
    text += "\n[[control]]\n";
    AppendLine(text, "type", control.type);
    AppendLine(text, "name", control.name);
    AppendLine(text, "left", control.place.left);
    AppendLine(text, "top", control.place.top);
    AppendLine(text, "width", control.place.width);
    AppendLine(text, "height", control.place.height);
    if (control.settings.All().empty()) return;
    text += "[control.settings]\n";
    for (const auto& [key, value] : control.settings.All()) AppendLine(text, key, value);
}

} // namespace

std::string FormFileText(const FormFile& file) {
    std::string text = "[form]\n";
    AppendLine(text, "caption", file.caption);
    AppendLine(text, "width", file.width);
    AppendLine(text, "height", file.height);
    for (const FormFileControl& control : file.controls) AppendControl(text, control);
    return text;
}

} // namespace tvok
