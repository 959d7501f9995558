#include "apps/logview/LogFile.h"

#include <algorithm>
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
#include <utility>

#include "tvok/records/Error.h"

namespace logview {

namespace {

class Descriptor {
public:
    explicit Descriptor(int descriptor) : descriptor_(descriptor) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor(Descriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
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

constexpr std::size_t cTail = 64;

class PlainFile : public LogFile {
public:
    PlainFile(std::string path, Descriptor file, const struct stat& status)
        : path_(std::move(path)), file_(std::move(file)), device_(status.st_dev), inode_(status.st_ino),
          changed_(status.st_mtim), size_(static_cast<std::uint64_t>(status.st_size)) {
        tail_ = TailAt(size_);
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
        const auto size = static_cast<std::uint64_t>(now.st_size);
        const bool touched = now.st_mtim.tv_sec != changed_.tv_sec || now.st_mtim.tv_nsec != changed_.tv_nsec;
        changed_ = now.st_mtim;
        if (size != before || touched) {
            // A file that was cut short and has grown past its old size again differs where it ended.
            const bool same = size >= before && TailAt(before) == tail_;
            size_ = size;
            tail_ = TailAt(size);
            if (!same) return FileChange::Truncated;
        }
        if (size > before) return FileChange::Grown; // what is left of an old file comes before the new one
        struct stat there {};
        if (::stat(path_.c_str(), &there) != 0) return FileChange::Removed;
        return there.st_ino == inode_ && there.st_dev == device_ ? FileChange::None : FileChange::Rotated;
    }

private:
    /// The last bytes before `end`.
    std::string TailAt(std::uint64_t end) const {
        const std::uint64_t start = end - std::min<std::uint64_t>(end, cTail);
        std::string tail(static_cast<std::size_t>(end - start), '\0');
        tail.resize(Read(start, tail.data(), tail.size()));
        return tail;
    }

    std::string path_;
    Descriptor file_;
    dev_t device_;
    ino_t inode_;
    timespec changed_;
    std::string tail_; ///< What stood before the end when the size was told last.
    std::atomic<std::uint64_t> size_;
};

/// A file that has no name, in the folder for temporary files.
int UnnamedFile() {
    std::string path = (std::filesystem::temp_directory_path() / "logview-XXXXXX").string();
    const int descriptor = ::mkostemp(path.data(), O_CLOEXEC);
    if (descriptor < 0) Fail(path, errno);
    ::unlink(path.c_str());
    return descriptor;
}

/// What comes through a pipe, copied to a file as it comes.
class SpooledFile : public LogFile {
public:
    SpooledFile(Descriptor owned, int source, std::string name)
        : name_(std::move(name)), owned_(std::move(owned)), file_(UnnamedFile()),
          reader_([this, source] { Copy(source); }) {}
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
        if (grown) return FileChange::Grown;
        if (const int failure = failure_.exchange(0); failure != 0)
            throw tvok::FileError(name_ + ": no more of it can be kept: " + std::strerror(failure));
        return FileChange::None;
    }

private:
    void Copy(int source) {
        std::array<char, std::size_t{64} * 1024> buffer{};
        while (!stop_) {
            pollfd wait{source, POLLIN, 0};
            if (::poll(&wait, 1, 100) == 0) continue;
            const ssize_t got = ::read(source, buffer.data(), buffer.size());
            if (got < 0 && (errno == EINTR || errno == EAGAIN)) continue;
            if (got <= 0 || !Append(buffer.data(), static_cast<std::size_t>(got))) return;
        }
    }
    bool Append(const char* bytes, std::size_t count) {
        while (count > 0) {
            const ssize_t put = ::pwrite(file_.get(), bytes, count, static_cast<off_t>(size_.load()));
            if (put < 0 && errno == EINTR) continue;
            if (put <= 0) { // the disk is full: what came so far stays readable
                failure_ = put < 0 ? errno : ENOSPC;
                return false;
            }
            bytes += put;
            count -= static_cast<std::size_t>(put);
            size_ += static_cast<std::uint64_t>(put);
        }
        return true;
    }

    std::string name_;
    Descriptor owned_; ///< Of a pipe with a name; standard input is not ours to close.
    Descriptor file_;
    std::atomic<std::uint64_t> size_ = 0;
    std::uint64_t told_ = 0;
    std::atomic<int> failure_ = 0; ///< Of the write that failed, until it is told.
    std::atomic<bool> stop_ = false;
    std::thread reader_; // last: it uses all of the above
};

} // namespace

std::shared_ptr<LogFile> LogFile::Open(const std::string& path) {
    // Without waiting: a pipe that nobody writes to yet is opened, too.
    Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (file.get() < 0) Fail(path, errno);
    struct stat status {};
    if (::fstat(file.get(), &status) != 0) Fail(path, errno);
    if (S_ISDIR(status.st_mode)) Fail(path, EISDIR);
    if (S_ISFIFO(status.st_mode)) {
        const int source = file.get();
        return std::make_shared<SpooledFile>(std::move(file), source, path);
    }
    if (!S_ISREG(status.st_mode)) throw tvok::FileError(path + ": this is a device, not a file");
    return std::make_shared<PlainFile>(path, std::move(file), status);
}

std::shared_ptr<LogFile> LogFile::Spool(int descriptor, const std::string& name) {
    return std::make_shared<SpooledFile>(Descriptor(-1), descriptor, name);
}

} // namespace logview
