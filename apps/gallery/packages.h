/// What the gallery shows: the packages installed on this machine, or where there are none, some of its
/// files.
#pragma once

#include <cstdint>
#include <istream>
#include <string>
#include <vector>

namespace gallery {

struct Package {
    std::string name;
    std::string version;
    std::string section;
    std::string priority;
    std::string summary;        ///< One line.
    std::int64_t kibibytes = 0; ///< Installed size.

    friend bool operator==(const Package&, const Package&) = default;
};

struct Collection {
    std::vector<Package> packages; ///< Ordered by name.
    std::string title;
    std::string note; ///< Why these are files and not packages; empty for packages.
};

/// The installed packages of a package database: paragraphs of "Key: value" lines, each ended by an empty
/// line. Paragraphs without a name, or that are not installed, are left out. Reads any bytes.
std::vector<Package> ParsePackages(std::istream& database);

/// The packages in `database`, or where that cannot be read or holds none, the files of the first of
/// `folders` that has any: their extension stands for the section.
Collection LoadCollection(const std::string& database, const std::vector<std::string>& folders);

/// The same from where this machine keeps them.
Collection LoadCollection();

/// "812 KiB", "4.1 MiB" or "2.3 GiB".
std::string SizeText(std::int64_t kibibytes);

} // namespace gallery
