#include "apps/logview/LineIndex.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstring>
#include <string_view>

#include "tvok/records/Error.h"

namespace logview {

namespace {

constexpr std::size_t cBlock = std::size_t{256} * 1024;
constexpr std::size_t cPiece = std::size_t{4} * 1024; // searched byte by byte where a mark falls into it
constexpr auto cProgressEvery = std::chrono::milliseconds(50);

#if defined(__x86_64__) && defined(__GNUC__)
__attribute__((target_clones("avx2", "default")))
#endif
std::uint64_t
CountByte(const char* bytes, std::size_t size) {
    std::uint64_t total = 0;
    while (size > 0) {
        const std::size_t run = std::min<std::size_t>(size, 128); // so that an 8-bit lane cannot overflow
        std::uint8_t count = 0;
        for (std::size_t i = 0; i < run; ++i) count = static_cast<std::uint8_t>(count + (bytes[i] == '\n'));
        total += count;
        bytes += run;
        size -= run;
    }
    return total;
}

} // namespace

std::uint64_t CountLineFeeds(const char* bytes, std::size_t size) {
    return CountByte(bytes, size);
}

LineIndex::LineIndex(std::shared_ptr<const LogFile> file, std::function<void()> progress)
    : file_(std::move(file)), progress_(std::move(progress)), thread_([this] { Work(); }) {
    Extend();
}

LineIndex::~LineIndex() {
    {
        const std::lock_guard lock(guard_);
        stop_ = true;
    }
    wake_.notify_all();
    thread_.join();
}

void LineIndex::Extend() {
    {
        const std::lock_guard lock(guard_);
        wanted_ = std::max(wanted_, file_->Size());
        busy_ = wanted_ > bytes_;
    }
    wake_.notify_all();
}

void LineIndex::Wait() {
    std::unique_lock lock(guard_);
    wake_.wait(lock, [&] { return !busy_ || stop_; });
}

std::string LineIndex::Error() const {
    const std::lock_guard lock(guard_);
    return error_;
}

std::size_t LineIndex::MemoryUsed() const {
    const std::lock_guard lock(guard_);
    return marks_.capacity() * sizeof(std::uint64_t);
}

// The thread.

void LineIndex::Work() {
    std::unique_lock lock(guard_);
    while (!stop_) {
        wake_.wait(lock, [&] { return stop_ || wanted_ > bytes_; });
        if (stop_) return;
        const std::uint64_t end = wanted_;
        lock.unlock();
        std::string failure;
        try {
            IndexUpTo(end);
        } catch (const tvok::Error& error) {
            failure = error.what();
        }
        lock.lock();
        if (!failure.empty()) error_ = failure;
        if (!failure.empty() || bytes_ < end) wanted_ = bytes_; // the file ended early: `Extend` starts again
        busy_ = wanted_ > bytes_;
        lock.unlock();
        wake_.notify_all();
        progress_();
        lock.lock();
    }
}

void LineIndex::IndexUpTo(std::uint64_t end) {
    std::vector<char> block(cBlock);
    auto told = std::chrono::steady_clock::now();
    while (bytes_ < end) {
        const std::uint64_t offset = bytes_;
        const std::size_t size =
            file_->Read(offset, block.data(), std::min<std::uint64_t>(cBlock, end - offset));
        if (size == 0) return;
        IndexBlock(block.data(), size, offset);
        bytes_ = offset + size;
        lines_ = feeds_ + (block[size - 1] == '\n' ? 0 : 1);
        {
            const std::lock_guard lock(guard_);
            if (stop_) return;
        }
        const auto now = std::chrono::steady_clock::now();
        if (now - told < cProgressEvery) continue;
        told = now;
        progress_();
    }
}

void LineIndex::IndexBlock(const char* bytes, std::size_t size, std::uint64_t offset) {
    for (std::size_t start = 0; start < size; start += cPiece) {
        const char* const piece = bytes + start;
        const char* const pieceEnd = piece + std::min(cPiece, size - start);
        const std::uint64_t after = feeds_ + CountByte(piece, static_cast<std::size_t>(pieceEnd - piece));
        std::uint64_t seen = feeds_;
        feeds_ = after;
        if (seen / cLinesPerMark == after / cLinesPerMark) continue;
        for (const char* at = piece; at < pieceEnd; ++at) {
            at = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(pieceEnd - at)));
            if (at == nullptr) break;
            if (++seen % cLinesPerMark != 0) continue;
            const std::lock_guard lock(guard_);
            marks_.push_back(offset + start + static_cast<std::size_t>(at - piece) + 1);
        }
    }
}

// Looking lines up.

LineIndex::Place LineIndex::MarkBefore(std::uint64_t line) const {
    const std::lock_guard lock(guard_);
    const std::uint64_t mark = std::min<std::uint64_t>(line / cLinesPerMark, marks_.size() - 1);
    return {mark * cLinesPerMark, marks_[mark]};
}

std::uint64_t LineIndex::SkipLines(Place from, std::uint64_t line) const {
    std::array<char, cPiece> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init): filled by Read
    while (from.line < line) {
        const std::size_t size = file_->Read(from.offset, buffer.data(), buffer.size());
        if (size == 0) break;
        const char* at = buffer.data();
        const char* const end = at + size;
        while (from.line < line) {
            const auto* feed =
                static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
            if (feed == nullptr) {
                at = end;
                break;
            }
            at = feed + 1;
            ++from.line;
        }
        from.offset += static_cast<std::size_t>(at - buffer.data());
    }
    return from.offset;
}

std::uint64_t LineIndex::OffsetOf(std::uint64_t line) const {
    const std::uint64_t known = lines_;
    if (known == 0) return 0;
    line = std::min(line, known - 1);
    Place from = MarkBefore(line);
    if (last_.line <= line && last_.line > from.line) from = last_; // a page asks for line after line
    last_ = {line, SkipLines(from, line)};
    return last_.offset;
}

std::string LineIndex::TextOf(std::uint64_t line) const {
    if (line >= lines_) return {};
    const std::uint64_t offset = OffsetOf(line);
    std::string text;
    std::array<char, cPiece> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init): filled by Read
    while (text.size() < cLongestLine) {
        const std::size_t size = file_->Read(offset + text.size(), buffer.data(), buffer.size());
        const std::string_view bytes(buffer.data(), size);
        const std::size_t feed = bytes.find('\n');
        text += bytes.substr(0, feed);
        if (feed != std::string_view::npos || size == 0) break;
    }
    if (!text.empty() && text.back() == '\r') text.pop_back();
    return text;
}

std::uint64_t LineIndex::LineAt(std::uint64_t offset) const {
    Place from;
    {
        const std::lock_guard lock(guard_);
        const auto after = std::upper_bound(marks_.begin(), marks_.end(), offset);
        const auto mark = static_cast<std::uint64_t>(after - marks_.begin()) - 1;
        from = {mark * cLinesPerMark, marks_[mark]};
    }
    std::array<char, cPiece> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init): filled by Read
    while (from.offset < offset) {
        const std::size_t size = file_->Read(from.offset, buffer.data(),
                                             std::min<std::uint64_t>(buffer.size(), offset - from.offset));
        if (size == 0) break;
        from.line += CountByte(buffer.data(), size);
        from.offset += size;
    }
    return from.line;
}

} // namespace logview
