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
constexpr std::size_t cPiece = std::size_t{4} * 1024; // marks stand at the last line end of such a piece
constexpr auto cProgressEvery = std::chrono::milliseconds(50);

/// 32 bytes that are compared at once: by one instruction where the processor has it, else by two or more.
using Lanes = std::uint8_t __attribute__((vector_size(32)));

std::uint64_t Sum(const Lanes& lanes) {
    std::uint64_t sum = 0;
    for (std::size_t i = 0; i < sizeof(Lanes); ++i) sum += lanes[i];
    return sum;
}

#if defined(__x86_64__)
__attribute__((target_clones("avx2", "default")))
#endif
std::uint64_t
CountByte(const char* bytes, std::size_t size) {
    constexpr std::size_t step = 2 * sizeof(Lanes);
    constexpr std::size_t longestRun = 255 * step; // so that no lane overflows
    Lanes feeds; // NOLINT(cppcoreguidelines-pro-type-member-init): filled by the next line
    std::memset(&feeds, '\n', sizeof feeds);
    std::uint64_t total = 0;
    while (size >= step) {
        const char* const end = bytes + std::min(size, longestRun) / step * step;
        size -= static_cast<std::size_t>(end - bytes);
        Lanes even{};
        Lanes odd{};
        for (; bytes != end; bytes += step) {
            Lanes first;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled by the copy
            Lanes second; // NOLINT(cppcoreguidelines-pro-type-member-init)
            std::memcpy(&first, bytes, sizeof first);
            std::memcpy(&second, bytes + sizeof first, sizeof second);
            // A lane that is equal compares as all ones, which is -1.
            even -= reinterpret_cast<Lanes>(first == feeds);
            odd -= reinterpret_cast<Lanes>(second == feeds);
        }
        total += Sum(even) + Sum(odd);
    }
    return total + static_cast<std::uint64_t>(std::count(bytes, bytes + size, '\n'));
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

void LineIndex::WaitForFirstLines() {
    std::unique_lock lock(guard_);
    wake_.wait(lock, [&] { return !busy_ || stop_ || bytes_ > 0; });
}

std::string LineIndex::Error() const {
    const std::lock_guard lock(guard_);
    return error_;
}

std::size_t LineIndex::MemoryUsed() const {
    const std::lock_guard lock(guard_);
    return marks_.capacity() * sizeof(Place);
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
    std::chrono::steady_clock::time_point told; // long ago: the first block is told of at once
    while (bytes_ < end) {
        const std::uint64_t offset = bytes_;
        const std::size_t size =
            file_->Read(offset, block.data(), std::min<std::uint64_t>(cBlock, end - offset));
        if (size == 0) return;
        IndexBlock(block.data(), size, offset);
        lines_ = feeds_ + (block[size - 1] == '\n' ? 0 : 1);
        {
            const std::lock_guard lock(guard_);
            bytes_ = offset + size;
            if (stop_) return;
        }
        const auto now = std::chrono::steady_clock::now();
        if (now - told < cProgressEvery) continue;
        told = now;
        wake_.notify_all();
        progress_();
    }
}

void LineIndex::IndexBlock(const char* bytes, std::size_t size, std::uint64_t offset) {
    for (std::size_t start = 0; start < size; start += cPiece) {
        const char* const piece = bytes + start;
        const std::size_t length = std::min(cPiece, size - start);
        const std::uint64_t before = feeds_;
        feeds_ += CountByte(piece, length);
        const bool due = feeds_ - marked_.line >= cLinesPerMark ||
                         offset + start + length - marked_.offset >= cBytesPerMark;
        if (due && feeds_ > before) MarkAfterLastFeed(piece, length, offset + start);
    }
}

void LineIndex::MarkAfterLastFeed(const char* bytes, std::size_t size, std::uint64_t offset) {
    const std::size_t feed = std::string_view(bytes, size).rfind('\n');
    marked_ = {feeds_, offset + feed + 1};
    const std::lock_guard lock(guard_);
    marks_.push_back(marked_);
}

// Looking lines up.

LineIndex::Place LineIndex::MarkBefore(std::uint64_t line) const {
    const std::lock_guard lock(guard_);
    const auto after =
        std::upper_bound(marks_.begin(), marks_.end(), line,
                         [](std::uint64_t wanted, const Place& mark) { return wanted < mark.line; });
    return *(after - 1);
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

std::uint64_t LineIndex::EndOf(std::uint64_t line) const {
    return line + 1 < lines_ ? OffsetOf(line + 1) : bytes_.load();
}

std::string LineIndex::TextOf(std::uint64_t line, std::size_t most) const {
    if (line >= lines_) return {};
    const std::uint64_t offset = OffsetOf(line);
    std::string text;
    std::array<char, cPiece> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init): filled by Read
    while (text.size() < most) {
        const std::size_t size =
            file_->Read(offset + text.size(), buffer.data(), std::min(buffer.size(), most - text.size()));
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
        const auto after =
            std::upper_bound(marks_.begin(), marks_.end(), offset,
                             [](std::uint64_t wanted, const Place& mark) { return wanted < mark.offset; });
        from = *(after - 1);
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
