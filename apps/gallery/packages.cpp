#include "apps/gallery/packages.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace gallery {
namespace {

constexpr std::size_t MaximumFiles = 2'000;

/// The value of a "Key: value" line; empty for another key.
std::string_view ValueOf(std::string_view line, std::string_view key) {
    if (line.size() <= key.size() || !line.starts_with(key) || line[key.size()] != ':') return {};
    const auto start = line.find_first_not_of(" \t", key.size() + 1);
    return start == std::string_view::npos ? std::string_view{} : line.substr(start);
}

std::int64_t Number(std::string_view text) {
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && value > 0 ? value : 0;
}

struct Paragraph {
    Package package;
    bool installed = false;

    void Read(std::string_view line) {
        const auto take = [&](std::string_view key, std::string& field) {
            if (const auto value = ValueOf(line, key); !value.empty()) field = value;
        };
        take("Package", package.name);
        take("Version", package.version);
        take("Section", package.section);
        take("Priority", package.priority);
        take("Description", package.summary);
        if (const auto size = ValueOf(line, "Installed-Size"); !size.empty())
            package.kibibytes = Number(size);
        if (const auto status = ValueOf(line, "Status"); !status.empty()) {
            installed = status.ends_with(" installed");
        }
    }
};

void SortByName(std::vector<Package>& packages) {
    std::stable_sort(packages.begin(), packages.end(),
                     [](const Package& a, const Package& b) { return a.name < b.name; });
}

std::string SectionOfFile(const std::filesystem::directory_entry& entry) {
    std::error_code error;
    if (entry.is_directory(error)) return "folder";
    const auto extension = entry.path().extension().string();
    return extension.empty() ? "file" : extension.substr(1);
}

Package DescribeFile(const std::filesystem::directory_entry& entry) {
    std::error_code error;
    const std::uintmax_t bytes = entry.is_regular_file(error) ? entry.file_size(error) : 0;
    Package package;
    package.name = entry.path().filename().string();
    package.section = SectionOfFile(entry);
    package.summary = entry.path().string();
    package.kibibytes = error ? 0 : static_cast<std::int64_t>((bytes + 1023) / 1024);
    return package;
}

std::vector<Package> FilesOf(const std::string& folder) {
    std::vector<Package> files;
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator() && files.size() < MaximumFiles;
         entry.increment(error)) {
        files.push_back(DescribeFile(*entry));
    }
    SortByName(files);
    return files;
}

} // namespace

std::vector<Package> ParsePackages(std::istream& database) {
    std::vector<Package> packages;
    Paragraph paragraph;
    const auto finish = [&] {
        if (paragraph.installed && !paragraph.package.name.empty()) {
            if (paragraph.package.section.empty()) paragraph.package.section = "unknown";
            packages.push_back(paragraph.package);
        }
        paragraph = {};
    };
    for (std::string line; std::getline(database, line);) {
        if (line.empty()) {
            finish();
        } else {
            paragraph.Read(line);
        }
    }
    finish();
    SortByName(packages);
    return packages;
}

Collection LoadCollection(const std::string& database, const std::vector<std::string>& folders) {
    Collection collection;
    std::ifstream file(database, std::ios::binary);
    collection.packages = ParsePackages(file);
    collection.title = "Packages on this machine";
    if (!collection.packages.empty()) return collection;

    const std::string none = "There is no package database at " + database + ", ";
    for (const std::string& folder : folders) {
        collection.packages = FilesOf(folder);
        if (collection.packages.empty()) continue;
        collection.title = "Files in " + folder;
        collection.note = none + "so these are the files in " + folder + ".";
        return collection;
    }
    collection.title = "Nothing to show";
    collection.note = none + "and no other folder could be read.";
    return collection;
}

Collection LoadCollection() {
    return LoadCollection("/var/lib/dpkg/status", {"/usr/share/doc", "/etc"});
}

std::string SizeText(std::int64_t kibibytes) {
    if (kibibytes < 1024) return std::to_string(kibibytes) + " KiB";
    const bool large = kibibytes >= 1024 * 1024;
    const double value = static_cast<double>(kibibytes) / (large ? 1024 * 1024 : 1024);
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.1f %s", value, large ? "GiB" : "MiB");
    return text.data();
}

} // namespace gallery
