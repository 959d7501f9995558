/// Copying a range of lines, on a thread of its own.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <thread>

#include "apps/logview/Columns.h"
#include "apps/logview/LogFile.h"

namespace logview {

/// The bytes of whole lines, and how they are to be copied.
struct CopyRange {
    std::shared_ptr<const LogFile> file;
    std::uint64_t from = 0;
    std::uint64_t to = 0; ///< Behind the last line's end.
    bool asColumns =
        false; ///< Cells between tab characters, as `columns` cuts them. False: the text as it is.
    logview::Columns columns;
};

struct Copied {
    std::string text; ///< Each line ends with a line feed.
    std::uint64_t lines = 0;
    std::string refusal; ///< Why nothing was copied, in words; empty where it was.
};

/// One copy at a time: a new one ends the one before. The time it takes goes with the bytes of the range, and
/// its text is never more than `cMost`, whatever was selected.
class Copier {
public:
    static constexpr std::uint64_t cMost = std::uint64_t{256} * 1024 * 1024; ///< Bytes of text.

    using Done = std::function<void(Copied&& copied)>; ///< Called on the copier's thread.

    Copier() = default;
    ~Copier() { Cancel(); }
    Copier(const Copier&) = delete;
    Copier& operator=(const Copier&) = delete;

    void Start(CopyRange range, Done done);
    void Cancel(); ///< Waits for the thread; `done` is not called any more.
    bool IsBusy() const { return busy_; }
    std::uint64_t BytesRead() const { return read_; } ///< Of the range, for telling how far it is.

private:
    Copied Copy(const CopyRange& range);

    std::thread thread_;
    std::atomic<std::uint64_t> read_ = 0;
    std::atomic<bool> stop_ = false;
    std::atomic<bool> busy_ = false;
};

} // namespace logview
