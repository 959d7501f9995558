/// The gallery's switches.
#pragma once

#include <string>
#include <vector>

namespace gallery {

struct Options {
    std::string headlessFolder; ///< Where the pictures go; empty: a window.
    std::string theme;          ///< Empty: classic, and in memory a picture of every theme.
    std::string traceFile;      ///< Empty: no trace.
    std::string scaleText;      ///< As it was typed; empty: 1.
    float scale = 1;
    std::string page; ///< Empty: the first one, and pictures of all.
    bool help = false;
};

/// The text that `--help` prints.
std::string Usage();

/// Reads the switches. False where one is not known or lacks its value; `error` then says which.
bool ParseOptions(const std::vector<std::string>& arguments, Options& options, std::string& error);

} // namespace gallery
