/// One 32-bit value for each row of a large list, in a temporary file, behind a small direct-mapped read
/// cache.
#pragma once

#include <cstdint>
#include <fstream>
#include <string>

#include "tvok/host/Services.h"
#include "tvok/records/Array.h"

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

    /// Replaces the file by a new, empty one. Any failure ends quietly: there is no file then, and reading
    /// gives 0. The cache grows to `cacheSize` places where it was smaller and is emptied then; a cache that
    /// is large enough keeps its pairs, which answer for the new file until they are overwritten or cleared.
    void Create(host::TemporaryFiles& service, std::int32_t cacheSize);

    bool IsOpen() const { return file_.is_open(); }
    const std::string& Path() const { return path_; }

    /// The value of a row, 1 or more. Throws `FileError` where the file cannot be read; a read past its end
    /// is 0.
    std::int32_t Read(std::int32_t row);

    /// Writes the file first and the cache after it. Throws `FileError` on a failed write, with the cache
    /// unchanged.
    void Write(std::int32_t row, std::int32_t value);

    void ClearCache(); ///< The file stays as it is.
    void Close();      ///< Closes and deletes the file. Errors are ignored.

    std::int32_t CacheSize() const { return cacheSize_; }
    std::uint64_t FileReads() const { return fileReads_; } ///< How many reads the cache did not answer.

private:
    struct Pair {
        std::int32_t row = 0; ///< 0: empty.
        std::int32_t value = 0;
    };
    Pair& PairOf(std::int32_t row) { return cache_[row % cacheSize_ + 1]; }
    std::int32_t ReadRecord(std::int32_t row);
    void WriteRecord(std::int32_t row, std::int32_t value);

    std::fstream file_;
    std::string path_;
    std::int32_t cacheSize_;
    Array<Pair> cache_; ///< Entry 0 is never used: places run from 1 to the size.
    std::uint64_t fileReads_ = 0;
};

} // namespace tvok
