#include "apps/logview/Settings.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <toml++/toml.h>

#include "tvok/records/Error.h"

namespace logview {

std::string Settings::DefaultPath() {
    if (const char* folder = std::getenv("XDG_CONFIG_HOME"); folder != nullptr && *folder != '\0')
        return (std::filesystem::path(folder) / "tvok" / "logview.toml").string();
    if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0')
        return (std::filesystem::path(home) / ".config" / "tvok" / "logview.toml").string();
    return {};
}

Settings::Settings(std::string path) : path_(std::move(path)) {
    if (path_.empty()) return;
    try {
        const toml::table file = toml::parse_file(path_);
        const toml::table* widths = file["widths"].as_table();
        if (widths == nullptr) return;
        for (const auto& [kind, value] : *widths)
            if (const auto text = value.value<std::string>()) widths_[std::string(kind.str())] = *text;
    } catch (const toml::parse_error&) {
        widths_.clear(); // the next `Save` writes a whole one
    }
}

std::string Settings::Widths(const std::string& kind) const {
    const auto found = widths_.find(kind);
    return found == widths_.end() ? std::string() : found->second;
}

void Settings::Widths(const std::string& kind, const std::string& widths) {
    std::string& place = widths_[kind];
    changed_ = changed_ || place != widths;
    place = widths;
}

void Settings::Save() {
    if (!changed_ || path_.empty()) return;
    toml::table widths;
    for (const auto& [kind, text] : widths_) widths.insert_or_assign(kind, text);
    std::error_code ignored; // the write tells
    std::filesystem::create_directories(std::filesystem::path(path_).parent_path(), ignored);
    std::ofstream file(path_);
    file << toml::table{{"widths", widths}} << '\n';
    if (!file.flush()) throw tvok::FileError(path_ + ": the settings cannot be written");
    changed_ = false;
}

} // namespace logview
