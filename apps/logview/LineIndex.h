/// Where the lines of a log begin, known sparsely: a place for every few hundred lines, found in the
/// background.
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "apps/logview/LogFile.h"

namespace logview {

/// Line feeds among `size` bytes.
std::uint64_t CountLineFeeds(const char* bytes, std::size_t size);

/// Lines are numbered from 0 and end with a line feed; what follows the last one counts as a line once it is
/// not empty. A carriage return before the line feed is not part of the text.
class LineIndex {
public:
    /// A mark stands after this many lines, or after this many bytes where lines are long: so a look-up reads
    /// little of either kind of log. The marks of a log of usual lines take a byte for 8 to 16 lines.
    static constexpr std::uint64_t cLinesPerMark = 256;
    static constexpr std::uint64_t cBytesPerMark = std::uint64_t{1024} * 1024;

    /// `progress` is called from the index's thread: once the first lines are known, about 20 times a second
    /// while it works, and when it stops.
    LineIndex(std::shared_ptr<const LogFile> file, std::function<void()> progress);
    ~LineIndex();
    LineIndex(const LineIndex&) = delete;
    LineIndex& operator=(const LineIndex&) = delete;

    /// Indexes what the file has now, on the index's thread. Harmless while it works.
    void Extend();
    void Wait();              ///< Until all that was there at the last `Extend` is indexed.
    void WaitForFirstLines(); ///< The same, but at most until the first block is.

    std::uint64_t Lines() const { return lines_; }        ///< Known so far, the unfinished last one included.
    std::uint64_t IndexedBytes() const { return bytes_; } ///< For a progress bar, against `LogFile::Size`.
    bool IsBusy() const { return busy_; }
    std::size_t MemoryUsed() const; ///< Of the marks, in bytes.
    std::string Error() const;      ///< Why the index stopped early; empty when it did not.

    /// Where a known line begins. Beyond the known ones: the place of the last.
    std::uint64_t OffsetOf(std::uint64_t line) const;
    /// Where the text and the end of a known line end, that is where the next one begins. Beyond: the end.
    std::uint64_t EndOf(std::uint64_t line) const;
    /// Up to `most` bytes of a known line, without its line end; empty beyond.
    std::string TextOf(std::uint64_t line, std::size_t most) const;
    /// The line that the byte at `offset` belongs to.
    std::uint64_t LineAt(std::uint64_t offset) const;

private:
    struct Place {
        std::uint64_t line = 0;
        std::uint64_t offset = 0;
    };
    void Work();
    void IndexUpTo(std::uint64_t end);
    void IndexBlock(const char* bytes, std::size_t size, std::uint64_t offset);
    void MarkAfterLastFeed(const char* bytes, std::size_t size, std::uint64_t offset);
    Place MarkBefore(std::uint64_t line) const;
    std::uint64_t SkipLines(Place from, std::uint64_t line) const;

    std::shared_ptr<const LogFile> file_;
    std::function<void()> progress_;
    mutable std::mutex guard_;
    std::condition_variable wake_;
    std::vector<Place> marks_{{}}; ///< Of line beginnings, ascending.
    std::string error_;
    std::uint64_t wanted_ = 0;
    std::uint64_t feeds_ = 0; ///< The index thread's own, as the next.
    Place marked_;            ///< The last mark.
    std::atomic<std::uint64_t> lines_ = 0;
    std::atomic<std::uint64_t> bytes_ = 0;
    std::atomic<bool> busy_ = false;
    bool stop_ = false;
    mutable Place last_; ///< Of the caller's thread: the line that was asked for last.
    std::thread thread_; // last: it uses all of the above
};

} // namespace logview
