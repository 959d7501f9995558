#include "tvok/records/text.h"

#include <algorithm>

namespace tvok {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

unsigned ByteAt(std::string_view text, std::size_t place) {
    return static_cast<unsigned char>(text[place]);
}

bool IsContinuation(std::string_view text, std::size_t place) {
    return place < text.size() && (ByteAt(text, place) & 0xC0) == 0x80;
}

/// What a lead byte says: the number of bytes, its own bits, and the smallest character of that length.
struct Lead {
    std::size_t length;
    unsigned bits;
    char32_t lowest;
};

Lead ReadLead(unsigned byte) {
    if (byte < 0x80) return {1, byte, 0};
    if (byte >= 0xC2 && byte < 0xE0) return {2, byte & 0x1F, 0x80};
    if (byte >= 0xE0 && byte < 0xF0) return {3, byte & 0x0F, 0x800};
    if (byte >= 0xF0 && byte < 0xF5) return {4, byte & 0x07, 0x10000};
    return {0, 0, 0};
}

} // namespace

std::string_view Trim(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    if (text.empty()) return parts;
    parts.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), separator)) + 1);
    for (auto end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    parts.push_back(text);
    return parts;
}

bool Lines::Next(std::string_view& line) {
    const auto end = rest_.find("\r\n");
    if (end == std::string_view::npos) return false;
    line = rest_.substr(0, end);
    rest_.remove_prefix(end + 2);
    return true;
}

char32_t NextCharacter(std::string_view text, std::size_t& place) {
    const auto start = place++;
    const auto lead = ReadLead(ByteAt(text, start));
    if (lead.length <= 1) return lead.length == 1 ? lead.bits : kReplacement;
    char32_t character = lead.bits;
    for (std::size_t i = 1; i < lead.length; ++i) {
        if (!IsContinuation(text, start + i)) return kReplacement;
        character = character << 6 | (ByteAt(text, start + i) & 0x3F);
    }
    if (character < lead.lowest || !IsCharacter(character)) return kReplacement;
    place = start + lead.length;
    return character;
}

bool IsCharacter(char32_t number) {
    return number <= 0x10FFFF && (number < 0xD800 || number > 0xDFFF);
}

void AppendCharacter(std::string& text, char32_t character) {
    const auto append = [&](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    const auto appendTail = [&](int shift) { append(0x80 | (character >> shift & 0x3F)); };
    if (!IsCharacter(character)) character = kReplacement;
    if (character < 0x80) return append(character);
    if (character < 0x800) {
        append(0xC0 | character >> 6);
    } else {
        if (character < 0x10000) {
            append(0xE0 | character >> 12);
        } else {
            append(0xF0 | character >> 18);
            appendTail(12);
        }
        appendTail(6);
    }
    appendTail(0);
}

std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t place = 0; place < text.size(); ++count) NextCharacter(text, place);
    return count;
}

std::string_view FirstCharacters(std::string_view text, std::size_t count) {
    std::size_t place = 0;
    for (; count > 0 && place < text.size(); --count) NextCharacter(text, place);
    return text.substr(0, place);
}

} // namespace tvok
