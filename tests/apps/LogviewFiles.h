/// A folder for the logs of one test, gone when it ends.
#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

namespace logview {

class LogviewFiles : public testing::Test {
protected:
    LogviewFiles() {
        folder_ = std::filesystem::temp_directory_path() / ("tvok-logview-" + std::to_string(::getpid()));
        std::filesystem::create_directories(folder_);
    }
    ~LogviewFiles() override { std::filesystem::remove_all(folder_); }

    std::string Path(const char* name) const { return (folder_ / name).string(); }
    std::string Write(const char* name, const std::string& bytes, bool append = false) const {
        std::ofstream(Path(name), append ? std::ios::app | std::ios::binary : std::ios::binary) << bytes;
        return Path(name);
    }

private:
    std::filesystem::path folder_;
};

/// Lines of different lengths: "line 0", "line 1x" ...
inline std::string Numbered(int lines) {
    std::string bytes;
    for (int i = 0; i < lines; ++i) {
        const std::string tail(static_cast<std::size_t>(i % 7), 'x');
        bytes += "line " + std::to_string(i) + tail + "\n";
    }
    return bytes;
}

} // namespace logview
