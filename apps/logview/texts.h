/// What a line's bytes look like: as a cell shows them and as the clipboard takes them. And numbers for
/// people.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace logview {

/// Bytes of a line that are shown; a longer one ends in an ellipsis. Copying takes all of a line.
inline constexpr std::size_t cLongestShown = 4096;

/// The line as UTF-8 without control characters other than the tab: colour sequences of terminals are left
/// out, other control characters become their pictures (U+2400 and on), bytes that are no UTF-8 become
/// U+FFFD. No more than `most` bytes of it.
std::string Shown(std::string_view line, std::size_t most = cLongestShown);

/// Bytes as a clipboard can take them: zero bytes become U+2400, bytes that are no UTF-8 become U+FFFD, and
/// the carriage return of each line end goes. Nothing else changes.
std::string ForClipboard(std::string_view bytes);

std::string Grouped(std::uint64_t number); ///< "1,234,567"
std::string Bytes(std::uint64_t bytes);    ///< "1.2 MB"
std::string Lines(std::uint64_t number);   ///< "1 line", "2,000 lines"

} // namespace logview
