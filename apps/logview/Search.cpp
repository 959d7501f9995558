#include "apps/logview/Search.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "tvok/records/Error.h"

namespace logview {

namespace {

constexpr std::size_t cBlock = std::size_t{1024} * 1024;

char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}
char Upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
}

bool HasCapital(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

bool MatchesAt(std::string_view bytes, std::size_t at, std::string_view text, bool exact) {
    if (exact) return bytes.compare(at, text.size(), text) == 0;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (Lower(bytes[at + i]) != text[i]) return false;
    return true;
}

/// How often a byte stands in logs, roughly: the rarest one of a text is looked for first.
std::size_t Commonness(char c) {
    constexpr std::string_view rareToCommon =
        "~^`|\\{}$&!*%?<>@;#+\"'()QZXJYKVqzjxUHGBFPWMLCOkvwTSRNDIAEybgpufmhdcls_nrioat=,[]e/9876543:.-210 ";
    const std::size_t at = rareToCommon.find(c);
    return at == std::string_view::npos ? 0 : at;
}

std::size_t RarestByte(std::string_view text, bool exact) {
    const auto weight = [&](char c) { return Commonness(c) + (exact ? 0 : Commonness(Upper(c)) / 4); };
    std::size_t rarest = 0;
    for (std::size_t i = 1; i < text.size(); ++i)
        if (weight(text[i]) < weight(text[rarest])) rarest = i;
    return rarest;
}

/// The next place from `at` where `byte` stands, in either case where that does not count.
std::size_t NextCandidate(std::string_view bytes, std::size_t at, char byte, bool exact) {
    const std::size_t as = bytes.find(byte, at);
    return exact || Upper(byte) == byte ? as : std::min(as, bytes.substr(0, as).find(Upper(byte), at));
}

} // namespace

std::size_t FindIn(std::string_view bytes, std::string_view text) {
    constexpr std::size_t nowhere = std::string_view::npos;
    if (text.empty() || text.size() > bytes.size()) return nowhere;
    const bool exact = HasCapital(text);
    const std::size_t anchor = RarestByte(text, exact);
    // Windows keep the look for either case of a letter linear, however rare one of the two is.
    constexpr std::size_t window = 4096;
    const std::size_t end = bytes.size() - text.size() + anchor + 1; // of the places that the anchor can have
    for (std::size_t start = anchor; start < end; start += window) {
        const std::string_view seen = bytes.substr(0, std::min(start + window, end));
        std::size_t at = NextCandidate(seen, start, text[anchor], exact);
        for (; at != nowhere; at = NextCandidate(seen, at + 1, text[anchor], exact))
            if (MatchesAt(bytes, at - anchor, text, exact)) return at - anchor;
    }
    return nowhere;
}

std::size_t FindLastIn(std::string_view bytes, std::string_view text) {
    constexpr std::size_t nowhere = std::string_view::npos;
    constexpr std::size_t window = std::size_t{16} * 1024;
    if (text.empty() || text.size() > bytes.size()) return nowhere;
    // From the back, window by window: the last place in the first window that has one.
    for (std::size_t stop = bytes.size() - text.size() + 1; stop > 0;) {
        const std::size_t start = stop - std::min(stop, window);
        std::size_t last = nowhere;
        for (std::size_t from = start; from < stop;) {
            const std::size_t at = FindIn(bytes.substr(from, stop - from + text.size() - 1), text);
            if (at == nowhere) break;
            last = from + at;
            from = last + 1;
        }
        if (last != nowhere) return last;
        stop = start;
    }
    return nowhere;
}

void Search::Start(std::string text, std::uint64_t offset, Direction direction, Found found,
                   std::optional<std::uint64_t> until) {
    Cancel();
    stop_ = false;
    busy_ = true;
    place_ = offset;
    thread_ = std::thread([this, text = std::move(text), offset, direction, found = std::move(found), until] {
        std::optional<std::uint64_t> place;
        try {
            place = direction == Direction::Forward
                        ? Forward(text, offset, until.value_or(std::numeric_limits<std::uint64_t>::max()))
                        : Backward(text, offset, until.value_or(0));
        } catch (const tvok::Error&) {
            place.reset(); // a file that cannot be read any more holds nothing to find
        }
        busy_ = false;
        if (!stop_) found(place);
    });
}

void Search::Cancel() {
    stop_ = true;
    if (thread_.joinable()) thread_.join();
    busy_ = false;
}

std::optional<std::uint64_t> Search::Forward(const std::string& text, std::uint64_t offset,
                                             std::uint64_t until) {
    std::vector<char> block(cBlock + text.size());
    while (!stop_ && !text.empty() && offset < until) {
        place_ = offset;
        const std::size_t size = file_->Read(offset, block.data(), block.size());
        const std::size_t at = FindIn({block.data(), size}, text);
        if (at != std::string_view::npos) return offset + at;
        if (size < block.size()) return std::nullopt;
        offset += cBlock; // what a block shares with the next one is as long as the text
    }
    return std::nullopt;
}

std::optional<std::uint64_t> Search::Backward(const std::string& text, std::uint64_t offset,
                                              std::uint64_t until) {
    std::vector<char> block(cBlock + text.size());
    while (!stop_ && !text.empty() && offset > until) {
        place_ = offset;
        const std::uint64_t start = offset > cBlock ? offset - cBlock : 0;
        const std::size_t wanted = static_cast<std::size_t>(offset - start) + text.size() - 1;
        const std::size_t size = file_->Read(start, block.data(), wanted);
        const std::size_t at = FindLastIn({block.data(), size}, text);
        if (at != std::string_view::npos) return start + at;
        offset = start;
    }
    return std::nullopt;
}

} // namespace logview
