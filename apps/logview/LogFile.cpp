#include "apps/logview/LogFile.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "tvok/records/Error.h"

namespace logview {

namespace {

class Descriptor {
public:
    explicit Descriptor(int descriptor) : descriptor_(descriptor) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (descriptor_ >= 0) ::close(descriptor_);
    }
    int get() const { return descriptor_; }

private:
    int descriptor_;
};

[[noreturn]] void Fail(const std::string& name, int error) {
    switch (error) {
    case ENOENT: throw tvok::FileError(name + ": there is no such file");
    case EACCES:
    case EPERM: throw tvok::FileError(name + ": the file may not be read");
    case EISDIR: throw tvok::FileError(name + ": this is a folder, not a file");
    default: throw tvok::FileError(name + ": " + std::strerror(error));
    }
}

std::size_t ReadAt(int descriptor, const std::string& name, std::uint64_t offset, char* buffer,
                   std::size_t size) {
    std::size_t done = 0;
    while (done < size) {
        const ssize_t got =
            ::pread(descriptor, buffer + done, size - done, static_cast<off_t>(offset + done));
        if (got == 0) break;
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) Fail(name, errno);
        done += static_cast<std::size_t>(got);
    }
    return done;
}

class PlainFile : public LogFile {
public:
    explicit PlainFile(const std::string& path)
        : path_(path), file_(::open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
        if (file_.get() < 0) Fail(path, errno);
        struct stat status {};
        if (::fstat(file_.get(), &status) != 0) Fail(path, errno);
        if (S_ISDIR(status.st_mode)) Fail(path, EISDIR);
        device_ = status.st_dev;
        inode_ = status.st_ino;
        size_ = static_cast<std::uint64_t>(status.st_size);
    }

    const std::string& Name() const override { return path_; }
    std::uint64_t Size() const override { return size_; }
    std::size_t Read(std::uint64_t offset, char* buffer, std::size_t size) const override {
        return ReadAt(file_.get(), path_, offset, buffer, size);
    }

    FileChange Look() override {
        struct stat now {};
        if (::fstat(file_.get(), &now) != 0) return FileChange::None;
        const std::uint64_t before = size_;
        size_ = static_cast<std::uint64_t>(now.st_size);
        if (size_ < before) return FileChange::Truncated;
        if (size_ > before) return FileChange::Grown; // what is left of an old file comes before the new one
        struct stat there {};
        if (::stat(path_.c_str(), &there) != 0) return FileChange::Removed;
        return there.st_ino == inode_ && there.st_dev == device_ ? FileChange::None : FileChange::Rotated;
    }

private:
    std::string path_;
    Descriptor file_;
    dev_t device_ = 0;
    ino_t inode_ = 0;
    std::atomic<std::uint64_t> size_ = 0;
};

/// A file that has no name, in the folder for temporary files.
int UnnamedFile() {
    std::string path = (std::filesystem::temp_directory_path() / "logview-XXXXXX").string();
    const int descriptor = ::mkostemp(path.data(), O_CLOEXEC);
    if (descriptor < 0) Fail(path, errno);
    ::unlink(path.c_str());
    return descriptor;
}

class SpooledFile : public LogFile {
public:
    SpooledFile(int source, std::string name)
        : name_(std::move(name)), file_(UnnamedFile()), reader_([this, source] { Copy(source); }) {}
    ~SpooledFile() override {
        stop_ = true;
        reader_.join();
    }
    SpooledFile(const SpooledFile&) = delete;
    SpooledFile& operator=(const SpooledFile&) = delete;

    const std::string& Name() const override { return name_; }
    std::uint64_t Size() const override { return size_; }
    std::size_t Read(std::uint64_t offset, char* buffer, std::size_t size) const override {
        return ReadAt(file_.get(), name_, offset, buffer, size);
    }
    FileChange Look() override {
        const std::uint64_t now = size_;
        const bool grown = now > told_;
        told_ = now;
        return grown ? FileChange::Grown : FileChange::None;
    }

private:
    void Copy(int source) {
        std::array<char, std::size_t{64} * 1024> buffer{};
        while (!stop_) {
            pollfd wait{source, POLLIN, 0};
            if (::poll(&wait, 1, 100) == 0) continue;
            const ssize_t got = ::read(source, buffer.data(), buffer.size());
            if (got < 0 && errno == EINTR) continue;
            if (got <= 0 || !Append(buffer.data(), static_cast<std::size_t>(got))) return;
        }
    }
    bool Append(const char* bytes, std::size_t count) {
        while (count > 0) {
            const ssize_t put = ::pwrite(file_.get(), bytes, count, static_cast<off_t>(size_.load()));
            if (put < 0 && errno == EINTR) continue;
            if (put <= 0) return false; // the disk is full: what came so far stays readable
            bytes += put;
            count -= static_cast<std::size_t>(put);
            size_ += static_cast<std::uint64_t>(put);
        }
        return true;
    }

    std::string name_;
    Descriptor file_;
    std::atomic<std::uint64_t> size_ = 0;
    std::uint64_t told_ = 0;
    std::atomic<bool> stop_ = false;
    std::thread reader_; // last: it uses all of the above
};

} // namespace

std::shared_ptr<LogFile> LogFile::Open(const std::string& path) {
    return std::make_shared<PlainFile>(path);
}

std::shared_ptr<LogFile> LogFile::Spool(int descriptor, const std::string& name) {
    return std::make_shared<SpooledFile>(descriptor, name);
}

} // namespace logview
