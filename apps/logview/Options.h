/// The log viewer's switches.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace logview {

struct Options {
    std::string file; ///< "-": standard input.
    std::string theme = "classic";
    std::string delimiter;      ///< "tab", or one character.
    std::string pattern;        ///< A regular expression with a group for each column.
    std::string columnNames;    ///< Separated by commas.
    std::string headlessFolder; ///< Where the pictures go; empty: a window.
    std::string find;           ///< Looked for at the start.
    std::int32_t line = 0;      ///< Gone to at the start.
    bool follow = false;
    bool newestFirst = false;
    bool help = false;
};

/// The text that `--help` prints.
std::string Usage();

/// Reads the switches. False where one is not known, lacks its value or contradicts another; `error` says
/// which.
bool ParseOptions(const std::vector<std::string>& arguments, Options& options, std::string& error);

} // namespace logview
