/// The order of plain ASCII text, read off a collator once and then looked up.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <unicode/ucol.h>

namespace tvok::soft {

/// A character is plain when it counts by itself: it is part of no contraction of ASCII characters ("ch"
/// where that is a letter), and it differs from the others in its primary weight alone. For texts of plain
/// characters the tables give what the collator gives, byte for byte; for all others they say so.
class AsciiOrder {
public:
    /// `collator` ignores case.
    explicit AsciiOrder(const UCollator* collator);

    bool IsPlain(std::string_view text) const;
    /// -1, 0 or 1. Both texts are plain.
    int Compare(std::string_view a, std::string_view b) const;
    /// Replaces `key` by the collator's sort key without its final zero. False, and `key` unchanged, where
    /// the text is not plain or longer than `LongestText`.
    bool SortKey(std::string_view text, std::string& key) const;

    static constexpr std::size_t LongestText = 127;

private:
    static constexpr std::size_t Characters = 128;

    /// The bytes that a character adds to a key; no bytes: it is not plain.
    struct Addition {
        std::array<char, 7> bytes{};
        std::uint8_t size = 0;
        friend bool operator==(const Addition&, const Addition&) = default;
    };

    using Row = std::array<Addition, Characters>;

    void ReadPrimaries(const UCollator* collator);
    void DropContractions(const UCollator* collator);
    void ReadAdditions(const UCollator* collator);
    Row AdditionsAfter(const UCollator* collator, const std::string& before) const;
    std::size_t ClassOf(const Row& row);
    void Rank();

    std::array<std::string, Characters> primary_;      ///< Primary part of the key; empty: not plain.
    std::array<std::uint8_t, Characters> rank_{};      ///< 0: not plain.
    std::array<std::uint8_t, Characters> classOf_{};   ///< Characters that act alike on the next one.
    std::vector<Row> additions_;                       ///< By class of the character before; 0: none before.
    std::array<std::string, LongestText + 1> endings_; ///< What follows the primary part, by length.
};

/// The sort key of UTF-16 text without its final zero, appended to `key`.
void AppendSortKey(const UCollator* collator, const UChar* text, std::int32_t length, std::string& key);

} // namespace tvok::soft
