#include "apps/logview/Copier.h"

#include <algorithm>
#include <new>
#include <string_view>

#include "apps/logview/texts.h"
#include "tvok/records/Error.h"

namespace logview {

namespace {

constexpr std::size_t cBlock = std::size_t{1024} * 1024;

std::string TooMuch(std::uint64_t bytes) {
    return "The selection is " + Bytes(bytes) + "; at most " + Bytes(Copier::cMost) +
           " can be copied at once. Nothing was copied.";
}

void AppendLine(Copied& copied, const CopyRange& range, std::string_view line) {
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    copied.text += range.asColumns ? range.columns.Cells(Shown(line, line.size())) : ForClipboard(line);
    copied.text += '\n';
    ++copied.lines;
}

/// Appends the whole lines of `bytes` and gives how many bytes they took. The first `searched` bytes have no
/// line feed: a line of many blocks is looked through once.
std::size_t AppendLines(Copied& copied, const CopyRange& range, std::string_view bytes,
                        std::size_t searched) {
    std::size_t at = 0;
    for (;;) {
        const std::size_t feed = bytes.find('\n', std::max(at, searched));
        if (feed == std::string_view::npos) return at;
        AppendLine(copied, range, bytes.substr(at, feed - at));
        at = feed + 1;
    }
}

} // namespace

void Copier::Start(CopyRange range, Done done) {
    Cancel();
    stop_ = false;
    busy_ = true;
    read_ = 0;
    thread_ = std::thread([this, range = std::move(range), done = std::move(done)] {
        Copied copied;
        try {
            copied = Copy(range);
        } catch (const std::bad_alloc&) {
            copied.refusal = "There is not enough memory for this selection. Nothing was copied.";
        } catch (const tvok::Error& error) {
            copied.refusal = error.what();
        }
        busy_ = false;
        if (!copied.refusal.empty()) copied.text.clear();
        if (!stop_) done(std::move(copied));
    });
}

void Copier::Cancel() {
    stop_ = true;
    if (thread_.joinable()) thread_.join();
    busy_ = false;
}

Copied Copier::Copy(const CopyRange& range) {
    Copied copied;
    if (range.to - range.from > cMost) {
        copied.refusal = TooMuch(range.to - range.from);
        return copied;
    }
    copied.text.reserve(static_cast<std::size_t>(range.to - range.from) + 1);
    std::string bytes; // what of the range is read and not yet copied: at most a block and one line
    for (std::uint64_t offset = range.from; offset < range.to && !stop_;) {
        const std::size_t kept = bytes.size();
        bytes.resize(kept + static_cast<std::size_t>(std::min<std::uint64_t>(cBlock, range.to - offset)));
        const std::size_t size = range.file->Read(offset, bytes.data() + kept, bytes.size() - kept);
        bytes.resize(kept + size);
        if (size == 0) break; // the file was cut short
        offset += size;
        read_ = offset - range.from;
        bytes.erase(0, AppendLines(copied, range, bytes, kept));
        if (copied.text.size() > cMost) {
            copied.refusal = TooMuch(copied.text.size());
            return copied;
        }
    }
    if (!bytes.empty()) AppendLine(copied, range, bytes);
    return copied;
}

} // namespace logview
