/// What the log viewer remembers between runs: the column widths of each kind of log.
#pragma once

#include <map>
#include <set>
#include <string>

namespace logview {

class Settings {
public:
    /// The file in the user's configuration folder; empty where there is none, and then nothing is
    /// remembered.
    static std::string DefaultPath();

    /// Reads the file. One that is missing or broken counts as empty.
    explicit Settings(std::string path);

    std::string Widths(const std::string& kind) const; ///< Empty where none are known.
    void Widths(const std::string& kind, const std::string& widths);
    /// Writes the file, folder included, where something changed: whole or not at all, and with what others
    /// wrote since it was read. Throws `tvok::FileError`.
    void Save();

private:
    std::string path_;
    std::map<std::string, std::string> widths_;
    std::set<std::string> changed_; ///< Kinds that are to be written.
};

} // namespace logview
