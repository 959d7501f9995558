#include <string>
#include <string_view>

#include "tvok/engine/mtvok.h"
#include "tvok/host/Services.h"
#include "tvok/records/numeric.h"
#include "tvok/records/text.h"

namespace tvok::mtvok {
namespace {

bool IsAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

char PlainUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

/// Compares texts with one that is in upper case already. Plain letters are compared where they stand; only
/// a text with other letters on the way costs a conversion.
class UpperCaseMatch {
public:
    explicit UpperCaseMatch(std::string wanted)
        : wanted_(std::move(wanted)), length_(CharacterCount(wanted_)),
          plain_(Language().UpperCase("abcdefghijklmnopqrstuvwxyz") == "ABCDEFGHIJKLMNOPQRSTUVWXYZ") {}

    bool Whole(std::string_view text) const {
        const auto same = PlainBeginning(text);
        if (same == wanted_.size() && same == text.size()) return true;
        return !Differs(text, same) && Language().UpperCase(text) == wanted_;
    }

    /// Whether the text, cut to as many characters as are wanted, is what is wanted.
    bool Beginning(std::string_view text) const {
        const auto same = PlainBeginning(text);
        if (same == wanted_.size()) return true;
        return !Differs(text, same) && Language().UpperCase(FirstCharacters(text, length_)) == wanted_;
    }

    static const host::Language& Language() { return host::services().Language(); }

private:
    /// Number of plain letters at the front that agree.
    std::size_t PlainBeginning(std::string_view text) const {
        std::size_t place = 0;
        if (!plain_) return 0;
        while (place < wanted_.size() && place < text.size() && IsAscii(text[place]) &&
               PlainUpper(text[place]) == wanted_[place])
            ++place;
        return place;
    }

    /// Whether the plain letters alone tell that the text is another one.
    bool Differs(std::string_view text, std::size_t same) const {
        if (!plain_) return false;
        if (same == text.size()) return true;
        return IsAscii(text[same]) && (same == wanted_.size() || IsAscii(wanted_[same]));
    }

    std::string wanted_;
    std::size_t length_;
    bool plain_;
};

std::string TrimmedUpper(std::string_view text) {
    return UpperCaseMatch::Language().UpperCase(Trim(text));
}

/// The first position from `first` to `last` whose text `matches`, or 0. Neighbours that show one slot, as
/// all items of a virtual list do, are compared once.
template<class Matches>
std::int32_t FirstMatch(const ItemSlots& items, const IndexArray& indexes, std::int32_t first,
                        std::int32_t last, const Matches& matches) {
    std::int32_t tried = -1;
    for (std::int32_t i = first; i <= last; ++i) {
        const std::int32_t slot = indexes[i];
        if (slot == tried) continue;
        if (matches(items[slot].text)) return i;
        tried = slot;
    }
    return 0;
}

std::int32_t FoundOrBeyond(std::int32_t found, const ListState& state) {
    return found > 0 ? found : ToInt32(std::int64_t{state.Count} + 1);
}

} // namespace

std::int32_t SeekItemChar(std::int32_t key, const ListState& state, const ItemSlots& items,
                          const IndexArray& indexes) {
    if (!IsCharacter(static_cast<char32_t>(key))) return 0;
    std::string character;
    AppendCharacter(character, static_cast<char32_t>(key));
    const UpperCaseMatch wanted(UpperCaseMatch::Language().UpperCase(character));
    const auto matches = [&](std::string_view text) {
        return !text.empty() && wanted.Whole(FirstCharacters(text, 1));
    };
    const auto next = FirstMatch(items, indexes, state.ListIndex + 1, state.Count, matches);
    return next > 0 ? next : FirstMatch(items, indexes, 1, state.ListIndex, matches);
}

std::int32_t SeekItemPrefix(const ListState& state, const ItemSlots& items, const IndexArray& indexes,
                            std::string_view text) {
    const UpperCaseMatch wanted(TrimmedUpper(text));
    const auto matches = [&](std::string_view item) { return wanted.Beginning(item); };
    return FoundOrBeyond(FirstMatch(items, indexes, 1, state.Count, matches), state);
}

std::int32_t FindItemText(const ListState& state, const ItemSlots& items, const IndexArray& indexes,
                          std::string_view text) {
    const UpperCaseMatch wanted(TrimmedUpper(text));
    const auto matches = [&](std::string_view item) { return wanted.Whole(item); };
    return FoundOrBeyond(FirstMatch(items, indexes, 1, state.Count, matches), state);
}

} // namespace tvok::mtvok
