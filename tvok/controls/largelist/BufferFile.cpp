#include "tvok/controls/largelist/BufferFile.h"

#include <filesystem>

#include "tvok/records/Error.h"

namespace tvok {

namespace {

constexpr std::int32_t cFirstCacheSize = 10;
constexpr std::streamoff cRecordSize = 4;

std::streamoff OffsetOf(std::int32_t row) {
    return (std::streamoff{row} - 1) * cRecordSize;
}

} // namespace

BufferFile::BufferFile() {
    ResetCache();
}
BufferFile::~BufferFile() {
    Close();
}

void BufferFile::Close() {
    quietly([&] { file_.close(); },
            [&] {
                std::error_code ignored;
                if (!path_.empty()) std::filesystem::remove(path_, ignored);
            });
    file_.clear();
    path_.clear();
}

void BufferFile::Create(host::TemporaryFiles& service, std::int32_t cacheSize) {
    Close();
    quietly([&] {
        if (!service.CreateTemporaryFile("", "tvokex", "tmp", path_)) {
            path_.clear();
            return;
        }
        file_.rdbuf()->pubsetbuf(nullptr,
                                 0); // each record goes to the file at once, so that a full disk is noticed
        constexpr auto cBothWays = std::ios::in | std::ios::out | std::ios::binary;
        file_.open(path_, cBothWays);
        if (!file_.is_open()) { // the service only named it
            using std::filesystem::perms;
            std::error_code ignored;
            file_.open(path_, cBothWays | std::ios::trunc);
            std::filesystem::permissions(path_, perms::owner_read | perms::owner_write, ignored);
        }
        file_.clear();
        if (cacheSize_ < cacheSize) SizeCache(cacheSize);
    });
}

void BufferFile::ClearCache() {
    for (auto& page : cache_) page.reset();
}

void BufferFile::ResetCache() {
    SizeCache(cFirstCacheSize);
}

void BufferFile::SizeCache(std::int32_t size) {
    std::vector<std::unique_ptr<Page>> pages(static_cast<std::size_t>((size - 1) / cPagePairs) + 1);
    cache_.swap(pages);
    cacheSize_ = size;
}

BufferFile::Pair& BufferFile::PairOf(std::int32_t row) {
    const std::int32_t place = row % cacheSize_;
    auto& page = cache_[static_cast<std::size_t>(place / cPagePairs)];
    if (!page) page = std::make_unique<Page>();
    return (*page)[static_cast<std::size_t>(place % cPagePairs)];
}

std::int32_t BufferFile::Read(std::int32_t row) {
    Pair& pair = PairOf(row);
    if (pair.row != row) {
        const std::int32_t value = ReadRecord(row);
        pair = {row, value};
    }
    return pair.value;
}

void BufferFile::Write(std::int32_t row, std::int32_t value) {
    WriteRecord(row, value);
    PairOf(row) = {row, value};
}

std::int32_t BufferFile::ReadRecord(std::int32_t row) {
    ++fileReads_;
    std::array<char, cRecordSize> bytes{};
    file_.clear();
    file_.seekg(OffsetOf(row));
    const bool placed = file_.good();
    file_.read(bytes.data(), cRecordSize);
    const bool failed = !placed || file_.bad();
    if (file_.gcount() < cRecordSize) bytes.fill(0); // at or beyond the end of the file
    file_.clear();
    if (failed) throw FileError("cannot read the buffer file " + path_);
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i)
        value |= std::uint32_t{static_cast<unsigned char>(bytes[i])} << (8 * i);
    return static_cast<std::int32_t>(value);
}

void BufferFile::WriteRecord(std::int32_t row, std::int32_t value) {
    std::array<char, cRecordSize> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(static_cast<std::uint32_t>(value) >> (8 * i));
    file_.clear();
    file_.seekp(OffsetOf(row));
    file_.write(bytes.data(), cRecordSize);
    file_.flush();
    const bool failed = !file_;
    file_.clear();
    if (failed) throw FileError("cannot write the buffer file " + path_);
}

} // namespace tvok
