/// A log as bytes: a file that may be larger than memory, may grow, shrink or be replaced while it is read,
/// or what arrives on standard input.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace logview {

/// What became of the file since it was opened.
enum class FileChange {
    None,
    Grown,
    Truncated, ///< It is shorter than it was, or written anew: what was known of it no longer holds.
    Rotated,   ///< Another file stands at its path now.
    Removed,   ///< Nothing stands at its path; what was opened can still be read.
};

/// Reads at places, never through a mapping: a file that is cut short while it is read gives fewer bytes, not
/// a fault. `Read` and `Size` may be called from several threads at once.
class LogFile {
public:
    /// Throws `tvok::FileError` that says in words what is wrong: no such file, a folder, not readable. A
    /// pipe at the path is read as standard input is.
    static std::shared_ptr<LogFile> Open(const std::string& path);
    /// What arrives on a descriptor, kept in an unnamed temporary file. A thread of its own reads until the
    /// end.
    static std::shared_ptr<LogFile> Spool(int descriptor, const std::string& name);

    virtual ~LogFile() = default;

    virtual const std::string& Name() const = 0;
    virtual std::uint64_t Size() const = 0; ///< Bytes there are now.
    /// Up to `size` bytes from `offset`; fewer at the end. Throws `tvok::FileError` when the device fails.
    virtual std::size_t Read(std::uint64_t offset, char* buffer, std::size_t size) const = 0;
    /// Looks at the path again and compares with the size that was told last. Throws `tvok::FileError` once
    /// where what arrives can no longer be kept.
    virtual FileChange Look() = 0;
};

} // namespace logview
