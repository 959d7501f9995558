#include "apps/logview/Settings.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <toml++/toml.h>

#include "tvok/records/Error.h"

namespace logview {

namespace {

/// The widths in a file, by the kind of log. One that is missing or broken has none.
std::map<std::string, std::string> ReadWidths(const std::string& path) {
    std::map<std::string, std::string> result;
    try {
        const toml::table file = toml::parse_file(path);
        const toml::table* widths = file["widths"].as_table();
        if (widths == nullptr) return result;
        for (const auto& [kind, value] : *widths)
            if (const auto text = value.value<std::string>()) result[std::string(kind.str())] = *text;
    } catch (const toml::parse_error&) {
        result.clear(); // the next `Save` writes a whole one
    }
    return result;
}

} // namespace

std::string Settings::DefaultPath() {
    if (const char* folder = std::getenv("XDG_CONFIG_HOME"); folder != nullptr && *folder != '\0')
        return (std::filesystem::path(folder) / "tvok" / "logview.toml").string();
    if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0')
        return (std::filesystem::path(home) / ".config" / "tvok" / "logview.toml").string();
    return {};
}

Settings::Settings(std::string path) : path_(std::move(path)) {
    if (!path_.empty()) widths_ = ReadWidths(path_);
}

std::string Settings::Widths(const std::string& kind) const {
    const auto found = widths_.find(kind);
    return found == widths_.end() ? std::string() : found->second;
}

void Settings::Widths(const std::string& kind, const std::string& widths) {
    if (Widths(kind) == widths) return;
    widths_[kind] = widths;
    changed_.insert(kind);
}

void Settings::Save() {
    if (changed_.empty() || path_.empty()) return;
    auto all = ReadWidths(path_);
    for (const std::string& kind : changed_) all[kind] = widths_[kind];
    toml::table widths;
    for (const auto& [kind, text] : all) widths.insert_or_assign(kind, text);
    std::error_code failure; // the write tells
    std::filesystem::create_directories(std::filesystem::path(path_).parent_path(), failure);
    const std::string fresh = path_ + ".new";
    std::ofstream file(fresh);
    file << toml::table{{"widths", widths}} << '\n';
    file.close();
    if (file) std::filesystem::rename(fresh, path_, failure);
    if (!file || failure) throw tvok::FileError(path_ + ": the settings cannot be written");
    changed_.clear();
}

} // namespace logview
