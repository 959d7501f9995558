/// One 32-bit value for each row of a large list, in a temporary file, behind a small direct-mapped read
/// cache.
#pragma once

#include <array>
#include <cstdint>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "tvok/host/Services.h"

namespace tvok {

/// The file is a flat array of 4-byte little-endian records: the value of row n lies at (n - 1) * 4. It is
/// made by `Create`, belongs to this object alone and is deleted with it. A record that was never written
/// reads as 0.
class BufferFile {
public:
    BufferFile();
    BufferFile(const BufferFile&) = delete;
    BufferFile& operator=(const BufferFile&) = delete;
    ~BufferFile();

    /// Replaces the file by a new, empty one. Any failure ends quietly: there is no file then, and `Read` and
    /// `Write` are not to be called. The cache grows to `cacheSize` places where it was smaller and is
    /// emptied then; a cache that is large enough keeps its pairs, which answer for the new file until they
    /// are overwritten or cleared.
    void Create(host::TemporaryFiles& service, std::int32_t cacheSize);

    bool IsOpen() const { return file_.is_open(); }
    const std::string& Path() const { return path_; }

    /// The value of a row, 1 or more. Throws `FileError` where the file cannot be read. A record that the
    /// file does not hold whole reads as 0.
    std::int32_t Read(std::int32_t row);

    /// Writes the file first and the cache after it. Throws `FileError` on a failed write, with the cache
    /// unchanged.
    void Write(std::int32_t row, std::int32_t value);

    void ClearCache(); ///< The file stays as it is.
    void ResetCache(); ///< As `ClearCache`, at the first size of 10 places.
    void Close();      ///< Closes and deletes the file. Errors are ignored.

    std::int32_t CacheSize() const { return cacheSize_; }
    std::uint64_t FileReads() const { return fileReads_; } ///< How many reads the cache did not answer.

private:
    struct Pair {
        std::int32_t row = 0; ///< 0: empty.
        std::int32_t value = 0;
    };
    static constexpr std::int32_t cPagePairs = 1024;
    using Page = std::array<Pair, cPagePairs>;

    void SizeCache(std::int32_t size);
    Pair& PairOf(std::int32_t row);
    std::int32_t ReadRecord(std::int32_t row);
    void WriteRecord(std::int32_t row, std::int32_t value);

    std::fstream file_;
    std::string path_;
    std::int32_t cacheSize_ = 0;
    std::vector<std::unique_ptr<Page>> cache_; ///< A page comes with the first row that falls into it.
    std::uint64_t fileReads_ = 0;
};

} // namespace tvok
