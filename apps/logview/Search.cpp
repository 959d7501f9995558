#include "apps/logview/Search.h"

#include <algorithm>
#include <cctype>
#include <cstring>
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

/// The next place from `at` where the first byte of `text` stands in either case.
std::size_t NextCandidate(std::string_view bytes, std::size_t at, char first, bool exact) {
    const auto next = [&](char c) {
        const void* found =
            at < bytes.size() ? std::memchr(bytes.data() + at, c, bytes.size() - at) : nullptr;
        return found == nullptr ? std::string_view::npos
                                : static_cast<std::size_t>(static_cast<const char*>(found) - bytes.data());
    };
    return exact || Upper(first) == first ? next(first) : std::min(next(first), next(Upper(first)));
}

} // namespace

std::size_t FindIn(std::string_view bytes, std::string_view text) {
    const bool exact = HasCapital(text);
    if (text.empty()) return std::string_view::npos;
    if (exact) return bytes.find(text);
    // Windows keep the look for either case of the first letter linear, however rare one of the two is.
    constexpr std::size_t window = 4096;
    for (std::size_t start = 0; start < bytes.size(); start += window) {
        const std::size_t stop = std::min(start + window, bytes.size());
        std::size_t at = NextCandidate(bytes.substr(0, stop), start, text.front(), exact);
        for (; at != std::string_view::npos;
             at = NextCandidate(bytes.substr(0, stop), at + 1, text.front(), exact))
            if (at + text.size() <= bytes.size() && MatchesAt(bytes, at, text, exact)) return at;
    }
    return std::string_view::npos;
}

std::size_t FindLastIn(std::string_view bytes, std::string_view text) {
    if (text.empty() || text.size() > bytes.size()) return std::string_view::npos;
    const bool exact = HasCapital(text);
    for (std::size_t at = bytes.size() - text.size() + 1; at-- > 0;)
        if (MatchesAt(bytes, at, text, exact)) return at;
    return std::string_view::npos;
}

void Search::Start(std::string text, std::uint64_t offset, Direction direction, Found found) {
    Cancel();
    stop_ = false;
    busy_ = true;
    thread_ = std::thread([this, text = std::move(text), offset, direction, found = std::move(found)] {
        std::optional<std::uint64_t> place;
        try {
            place = direction == Direction::Forward ? Forward(text, offset) : Backward(text, offset);
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

std::optional<std::uint64_t> Search::Forward(const std::string& text, std::uint64_t offset) const {
    std::vector<char> block(cBlock + text.size());
    while (!stop_ && !text.empty()) {
        const std::size_t size = file_->Read(offset, block.data(), block.size());
        const std::size_t at = FindIn({block.data(), size}, text);
        if (at != std::string_view::npos) return offset + at;
        if (size < block.size()) return std::nullopt;
        offset += cBlock; // what a block shares with the next one is as long as the text
    }
    return std::nullopt;
}

std::optional<std::uint64_t> Search::Backward(const std::string& text, std::uint64_t offset) const {
    std::vector<char> block(cBlock + text.size());
    while (!stop_ && !text.empty() && offset > 0) {
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
