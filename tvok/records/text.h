/// Text helpers that every control shares: trimming, splitting, lines, and characters of UTF-8.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tvok {

/// Without the blanks (U+0020 only) at both ends.
std::string_view Trim(std::string_view text);

/// The parts between separators. An empty text has no part; "a," has two. The views live as long as `text`.
std::vector<std::string_view> Split(std::string_view text, char separator);

/// Walks the lines that end with carriage return and line feed. What follows the last line end is not a line.
class Lines {
public:
    explicit Lines(std::string_view text) : rest_(text) {}
    /// Gives the next line without its end; false when no complete line is left.
    bool Next(std::string_view& line);

private:
    std::string_view rest_;
};

/// Decodes the character at `place` and moves `place` behind it. Bytes that are not UTF-8 give U+FFFD, one
/// byte at a time. `place` is below the size.
char32_t NextCharacter(std::string_view text, std::size_t& place);

/// Whether a number is a character: no surrogate half and nothing beyond U+10FFFF.
bool IsCharacter(char32_t number);

/// Appends a character in UTF-8. What is no character is appended as U+FFFD.
void AppendCharacter(std::string& text, char32_t character);

/// Number of characters.
std::size_t CharacterCount(std::string_view text);

/// The first `count` characters.
std::string_view FirstCharacters(std::string_view text, std::size_t count);

} // namespace tvok
