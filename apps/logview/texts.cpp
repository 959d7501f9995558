#include "apps/logview/texts.h"

#include <cstdio>
#include <iterator>

namespace logview {

namespace {

constexpr std::string_view cNotText = "\xEF\xBF\xBD"; // U+FFFD
constexpr std::string_view cEllipsis = "\xE2\x80\xA6";

bool IsTail(unsigned char byte) {
    return (byte & 0xC0) == 0x80;
}

unsigned char ByteAt(std::string_view text, std::size_t at) {
    return at < text.size() ? static_cast<unsigned char>(text[at]) : 0;
}

/// The length of the well-formed character of two or more bytes at `at`, or 0.
std::size_t LongCharacterAt(std::string_view text, std::size_t at) {
    const unsigned char first = ByteAt(text, at);
    const unsigned char second = ByteAt(text, at + 1);
    if (!IsTail(second)) return 0;
    if (first >= 0xC2 && first <= 0xDF) return 2;
    if (!IsTail(ByteAt(text, at + 2))) return 0;
    if (first >= 0xE0 && first <= 0xEF) {
        const bool tooShort = first == 0xE0 && second < 0xA0;
        const bool halfOfAPair = first == 0xED && second >= 0xA0;
        return tooShort || halfOfAPair ? 0 : 3;
    }
    if (first < 0xF0 || first > 0xF4 || !IsTail(ByteAt(text, at + 3))) return 0;
    const bool tooShort = first == 0xF0 && second < 0x90;
    const bool tooFar = first == 0xF4 && second >= 0x90;
    return tooShort || tooFar ? 0 : 4;
}

/// Appends the character at `at`, which is not ASCII, and gives the bytes it took.
std::size_t AppendLongCharacter(std::string& result, std::string_view text, std::size_t at) {
    const std::size_t length = LongCharacterAt(text, at);
    result += length == 0 ? cNotText : text.substr(at, length);
    return length == 0 ? 1 : length;
}

void AppendPicture(std::string& result, unsigned char control) {
    result += "\xE2\x90";
    result += static_cast<char>(control == 0x7F ? 0xA1 : 0x80 + control);
}

/// The length of the terminal sequence "ESC [ parameters letter" at `at`, or 0.
std::size_t SequenceAt(std::string_view text, std::size_t at) {
    if (text.substr(at, 2) != "\x1B[") return 0;
    std::size_t end = at + 2;
    while (ByteAt(text, end) >= 0x20 && ByteAt(text, end) <= 0x3F) ++end;
    return ByteAt(text, end) >= 0x40 && ByteAt(text, end) <= 0x7E ? end + 1 - at : 0;
}

} // namespace

std::string Shown(std::string_view line, std::size_t most) {
    const std::string_view seen = line.substr(0, most);
    std::string result;
    result.reserve(seen.size());
    for (std::size_t at = 0; at < seen.size();) {
        const auto byte = static_cast<unsigned char>(seen[at]);
        if (byte >= 0x80) {
            // The cut may stand inside a character: the whole line says whether it is one.
            at += AppendLongCharacter(result, line, at);
        } else if (const std::size_t sequence = SequenceAt(line, at); sequence > 0) {
            at += sequence;
        } else {
            if ((byte < 0x20 && byte != '\t') || byte == 0x7F)
                AppendPicture(result, byte);
            else
                result += static_cast<char>(byte);
            ++at;
        }
    }
    if (line.size() > most) result += cEllipsis;
    return result;
}

std::string ForClipboard(std::string_view bytes) {
    std::string result;
    result.reserve(bytes.size());
    for (std::size_t at = 0; at < bytes.size();) {
        const auto byte = static_cast<unsigned char>(bytes[at]);
        if (byte >= 0x80) {
            at += AppendLongCharacter(result, bytes, at);
            continue;
        }
        const bool ofLineEnd = byte == '\r' && ByteAt(bytes, at + 1) == '\n';
        if (byte == 0)
            AppendPicture(result, 0);
        else if (!ofLineEnd)
            result += static_cast<char>(byte);
        ++at;
    }
    return result;
}

std::string Grouped(std::uint64_t number) {
    std::string text = std::to_string(number);
    for (std::ptrdiff_t at = static_cast<std::ptrdiff_t>(text.size()) - 3; at > 0; at -= 3)
        text.insert(static_cast<std::size_t>(at), 1, ',');
    return text;
}

std::string Bytes(std::uint64_t bytes) {
    const char* const units[] = {"bytes", "KB", "MB", "GB", "TB"};
    std::size_t unit = 0;
    auto amount = static_cast<double>(bytes);
    for (; amount >= 1000 && unit + 1 < std::size(units); ++unit) amount /= 1000;
    char text[32];
    std::snprintf(text, sizeof text, unit == 0 ? "%.0f %s" : "%.1f %s", amount, units[unit]);
    return text;
}

std::string Lines(std::uint64_t number) {
    return Grouped(number) + (number == 1 ? " line" : " lines");
}

} // namespace logview
