#include "tvok/host/desktop/shell/TemporaryFiles.h"

#include <cerrno>
#include <filesystem>
#include <random>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace tvok::soft {

namespace {

constexpr int Attempts = 100;

bool IsNamePart(std::string_view part) {
    return part.find('/') == std::string_view::npos && part.find('\0') == std::string_view::npos;
}

std::string RandomLetters(std::random_device& random) {
    constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz0123456789";
    std::uniform_int_distribution<std::size_t> place(0, letters.size() - 1);
    std::string text(12, ' ');
    for (char& character : text) character = letters[place(random)];
    return text;
}

/// True where the file is new and empty now; else `errno` says why.
bool CreateNew(const std::string& path) {
    const int file = open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600);
    return file >= 0 && close(file) == 0;
}

class FolderFiles : public host::TemporaryFiles {
public:
    bool CreateTemporaryFile(std::string_view folder, std::string_view prefix, std::string_view extension,
                             std::string& path) override {
        if (!IsNamePart(prefix) || !IsNamePart(extension)) return false;
        std::error_code error;
        const std::filesystem::path place =
            folder.empty() ? std::filesystem::temp_directory_path(error) : std::filesystem::path(folder);
        if (error || place.native().find('\0') != std::string::npos) return false;
        std::string ending(extension);
        if (!ending.empty() && ending.front() != '.') ending.insert(0, 1, '.');
        for (int attempt = 0; attempt < Attempts; ++attempt) {
            const std::string name =
                (place / (std::string(prefix) + RandomLetters(random_) + ending)).string();
            if (CreateNew(name)) {
                path = name;
                return true;
            }
            if (errno != EEXIST) return false;
        }
        return false;
    }

private:
    std::random_device random_;
};

} // namespace

std::unique_ptr<host::TemporaryFiles> MakeTemporaryFiles() {
    return std::make_unique<FolderFiles>();
}

} // namespace tvok::soft
