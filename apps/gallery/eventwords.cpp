#include "apps/gallery/eventwords.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

#include "tvok/records/text.h"

namespace gallery {

namespace {

using Style = ArgumentStyle;

constexpr std::size_t LongestText = 40;
constexpr const char* Ellipsis = "\u2026";
constexpr const char* Arrow = " \u2192 ";

struct Named {
    std::int32_t value;
    const char* name;
};

constexpr Named Keys[] = {
    {tvok::host::VK_BACK, "Backspace"}, {tvok::host::VK_TAB, "Tab"},       {tvok::host::VK_RETURN, "Enter"},
    {tvok::host::VK_SHIFT, "Shift"},    {tvok::host::VK_CONTROL, "Ctrl"},  {tvok::host::VK_MENU, "Alt"},
    {tvok::host::VK_ESCAPE, "Esc"},     {tvok::host::VK_SPACE, "Space"},   {tvok::host::VK_PRIOR, "Page Up"},
    {tvok::host::VK_NEXT, "Page Down"}, {tvok::host::VK_END, "End"},       {tvok::host::VK_HOME, "Home"},
    {tvok::host::VK_LEFT, "Left"},      {tvok::host::VK_UP, "Up"},         {tvok::host::VK_RIGHT, "Right"},
    {tvok::host::VK_DOWN, "Down"},      {tvok::host::VK_INSERT, "Insert"}, {tvok::host::VK_DELETE, "Delete"},
};
constexpr Named ShiftBits[] = {{1, "Shift"}, {2, "Ctrl"}, {4, "Alt"}};
constexpr Named ButtonBits[] = {{1, "left"}, {2, "right"}, {4, "middle"}};
constexpr Named HostParts[] = {
    {tvok::bExDrawIcon, "icon"}, {tvok::bExDrawText, "text"}, {tvok::bExDrawHead, "head"}};
constexpr Named Colors[] = {{tvok::cWindowBackground, "cWindowBackground"},
                            {tvok::cWindowFrame, "cWindowFrame"},
                            {tvok::cWindowText, "cWindowText"},
                            {tvok::cHighlight, "cHighlight"},
                            {tvok::cButtonFace, "cButtonFace"},
                            {tvok::cButtonText, "cButtonText"},
                            {tvok::c3DLight, "c3DLight"}};
constexpr Named Flags[] = {{tvok::vflag::FocusAlways, "FocusAlways"},
                           {tvok::vflag::Editor, "Editor"},
                           {tvok::vflag::IconBorder, "IconBorder"},
                           {tvok::vflag::IconBox, "IconBox"},
                           {tvok::vflag::TextAtEdge, "TextAtEdge"},
                           {tvok::vflag::RightAligned, "RightAligned"},
                           {tvok::vflag::IconOnBackground, "IconOnBackground"},
                           {tvok::vflag::HostIcon, "HostIcon"},
                           {tvok::vflag::HostText, "HostText"},
                           {tvok::vflag::HostHead, "HostHead"},
                           {tvok::vflag::Bold, "Bold"},
                           {tvok::vflag::Underline, "Underline"},
                           {tvok::vflag::Italic, "Italic"},
                           {tvok::vflag::Strikethrough, "Strikethrough"},
                           {tvok::vflag::Collapsed, "Collapsed"},
                           {tvok::vflag::Selected, "Selected"},
                           {tvok::vflag::InUse, "InUse"}};

template<std::size_t N>
const char* NameIn(const Named (&names)[N], std::int32_t value) {
    const auto* found = std::ranges::find(names, value, &Named::value);
    return found == std::end(names) ? nullptr : found->name;
}

/// The names of the bits that are set, with what is left of them as a number.
template<std::size_t N>
std::string BitWords(const Named (&names)[N], std::int32_t bits) {
    std::string words;
    const auto add = [&words](const std::string& word) { words += (words.empty() ? "" : "+") + word; };
    for (const Named& bit : names) {
        if ((bits & bit.value) == 0) continue;
        add(bit.name);
        bits &= ~bit.value;
    }
    if (bits != 0 || words.empty()) add(std::to_string(bits));
    return words;
}

std::string KeyWords(std::int32_t code) {
    const std::string number = std::to_string(code);
    if (const char* name = NameIn(Keys, code)) return number + " " + name;
    if (code >= tvok::host::VK_F1 && code <= tvok::host::VK_F12)
        return number + " F" + std::to_string(code - tvok::host::VK_F1 + 1);
    const bool isOnTheKey = (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z');
    return isOnTheKey ? number + " " + static_cast<char>(code) : number;
}

std::string CharacterWords(std::int32_t code) {
    if (code <= ' ') return KeyWords(code);
    std::string words = std::to_string(code) + " ";
    tvok::AppendCharacter(words, static_cast<char32_t>(code));
    return words;
}

std::string NumberWords(std::int32_t value, Style style) {
    switch (style) {
    case Style::Key: return KeyWords(value);
    case Style::Character: return CharacterWords(value);
    case Style::Shift: return BitWords(ShiftBits, value);
    case Style::Button: return BitWords(ButtonBits, value);
    case Style::HostPart: return BitWords(HostParts, value);
    default: return std::to_string(value);
    }
}

std::string ValueWords(const tvok::Variant& value) {
    if (value.IsEmpty()) return "empty";
    return value.kind() == tvok::Variant::Kind::Text ? Quoted(value.AsText()) : value.AsText();
}

ValuePart TextPart(const char* name, const std::string& text, bool always = false) {
    return {name, Quoted(text), always || !text.empty()};
}
ValuePart ColorPart(const char* name, tvok::OLE_COLOR color, tvok::OLE_COLOR usual) {
    return {name, ColorWords(color), color != usual};
}
ValuePart NumberPart(const char* name, std::int32_t number, std::int32_t usual) {
    return {name, std::to_string(number), number != usual};
}
ValuePart TruthPart(const char* name, bool value) {
    return {name, value ? "true" : "false", value};
}
/// Of the control's own bits one is in every record that a list has, and the other is told only beside more.
ValuePart FlagPart(const char* name, std::int32_t flags) {
    flags &= ~tvok::vflag::InUse;
    return {name, FlagWords(flags), (flags & ~tvok::vflag::Selected) != 0};
}

std::string Changed(const std::string& before, const std::string& after) {
    return before == after ? after : before + Arrow + after;
}

std::string RecordWords(const ValueParts& before, const ValueParts& after) {
    std::string words;
    for (std::size_t i = 0; i < after.size(); ++i) {
        if (!after[i].telling && before[i].words == after[i].words) continue;
        words += words.empty() ? "" : ", ";
        words += std::string(after[i].name) + "=" + Changed(before[i].words, after[i].words);
    }
    return "{" + words + "}";
}

std::string ArgumentWords(const ValueParts& before, const ValueParts& after) {
    const bool isRecord = after.front().name[0] != '\0';
    return isRecord ? RecordWords(before, after) : Changed(before.front().words, after.front().words);
}

std::string RectWords(const ValueParts* edges) {
    const auto edge = [edges](std::size_t i) { return edges[i].front().words; };
    return "(" + edge(0) + "," + edge(1) + ")-(" + edge(2) + "," + edge(3) + ")";
}

} // namespace

std::string Quoted(std::string_view text) {
    const std::string_view shown = tvok::FirstCharacters(text, LongestText);
    std::string words = "\"";
    for (std::size_t place = 0; place < shown.size();) {
        const char32_t character = tvok::NextCharacter(shown, place);
        if (character == '\t')
            words += "\\t";
        else if (character == '\n')
            words += "\\n";
        else if (character == '\r')
            words += "\\r";
        else if (character < ' ')
            words += "\\" + std::to_string(static_cast<int>(character));
        else if (character == '"' || character == '\\')
            words += std::string("\\") + static_cast<char>(character);
        else
            tvok::AppendCharacter(words, character);
    }
    return words + (shown.size() < text.size() ? Ellipsis : "") + "\"";
}

std::string ColorWords(tvok::OLE_COLOR color) {
    if (const char* name = NameIn(Colors, color)) return name;
    const auto bits = static_cast<std::uint32_t>(color);
    if (color < 0) return "system " + std::to_string(bits & 0xFF);
    char text[16];
    std::snprintf(text, sizeof text, "#%02X%02X%02X", bits & 0xFF, bits >> 8 & 0xFF, bits >> 16 & 0xFF);
    return text;
}

std::string FlagWords(std::int32_t flags) {
    return BitWords(Flags, flags);
}

ValueParts PartsOf(bool value, Style) {
    return {{"", value ? "true" : "false"}};
}
ValueParts PartsOf(std::int32_t value, Style style) {
    return {{"", NumberWords(value, style)}};
}
ValueParts PartsOf(float value, Style) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", static_cast<double>(value));
    return {{"", text}};
}
ValueParts PartsOf(const std::string& value, Style) {
    return {{"", Quoted(value)}};
}

ValueParts PartsOf(const tvok::qrosterdata& value, Style style) {
    // A record that is to be filled comes with all else 0, or with what another row left.
    if (style == Style::Given)
        return {TextPart("text", value.text, true), TextPart("key", value.key),
                FlagPart("vflag", value.vflag)};
    const tvok::qrosterdata usual;
    return {TextPart("text", value.text, true),
            TextPart("key", value.key),
            NumberPart("IconID", value.IconID, usual.IconID),
            ColorPart("IconBackColor", value.IconBackColor, usual.IconBackColor),
            NumberPart("IconPos", value.IconPos, usual.IconPos),
            NumberPart("ItemData", value.ItemData, usual.ItemData),
            NumberPart("ItemDataEx", value.ItemDataEx, usual.ItemDataEx),
            ColorPart("bColor", value.bColor, usual.bColor),
            ColorPart("fcolor", value.fcolor, usual.fcolor),
            FlagPart("vflag", value.vflag)};
}

ValueParts PartsOf(const tvok::elistdata& value, Style) {
    const tvok::qrosterdata usual;
    return {TextPart("hItem.text", value.hItem.text, true),
            TextPart("hItem.key", value.hItem.key),
            FlagPart("hItem.vflag", value.hItem.vflag),
            TextPart("pKey", value.pKey),
            {"nData", ValueWords(value.nData), !value.nData.IsEmpty()},
            TextPart("item.text", value.item.text),
            NumberPart("item.IconID", value.item.IconID, usual.IconID),
            ColorPart("item.IconBackColor", value.item.IconBackColor, usual.IconBackColor),
            FlagPart("item.vflag", value.item.vflag),
            TextPart("xbuttons", value.xbuttons),
            TruthPart("bParentItem", value.bParentItem),
            {"bVisible", value.bVisible ? "true" : "false", !value.bVisible},
            TruthPart("bDelete", value.bDelete),
            TextPart("HelpStr", value.HelpStr)};
}

std::string ArgumentsText(std::span<const Argument> arguments, const std::vector<ValueParts>& before,
                          const std::vector<ValueParts>& after) {
    std::string text;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        text += (i == 0 ? "" : ", ") + std::string(arguments[i].name) + "=";
        if (arguments[i].style == Style::Edge) {
            text += Changed(RectWords(&before[i]), RectWords(&after[i]));
            i += 3;
        } else if (arguments[i].style == Style::Given) {
            text += ArgumentWords(after[i], after[i]);
        } else {
            text += ArgumentWords(before[i], after[i]);
        }
    }
    return text;
}

} // namespace gallery
