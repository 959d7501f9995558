#include "tvok/host/desktop/shell/AsciiOrder.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>
#include <set>

#include <unicode/uset.h>

#include "tvok/records/Error.h"

namespace tvok::soft {

namespace {

/// Ends the part of a key that holds the primary weights.
constexpr char LevelEnd = 1;

std::string KeyOf(const UCollator* collator, std::string_view ascii) {
    const std::u16string text(ascii.begin(), ascii.end());
    std::string key;
    AppendSortKey(collator, text.data(), static_cast<std::int32_t>(text.size()), key);
    return key;
}

std::string PrimaryPart(const std::string& key) {
    return key.substr(0, key.find(LevelEnd));
}

std::size_t Place(char character) {
    return static_cast<unsigned char>(character);
}

} // namespace

void AppendSortKey(const UCollator* collator, const UChar* text, std::int32_t length, std::string& key) {
    const std::size_t start = key.size();
    key.resize(start + static_cast<std::size_t>(length) * 3 + 16);
    const auto fill = [&] {
        return ucol_getSortKey(collator, text, length, reinterpret_cast<std::uint8_t*>(key.data() + start),
                               static_cast<std::int32_t>(key.size() - start));
    };
    std::int32_t size = fill();
    if (static_cast<std::size_t>(size) > key.size() - start) {
        key.resize(start + static_cast<std::size_t>(size));
        size = fill();
    }
    if (size < 1) throw ResourceError("a text could not be given a sort key");
    key.resize(start + static_cast<std::size_t>(size) - 1);
}

AsciiOrder::AsciiOrder(const UCollator* collator) {
    ReadPrimaries(collator);
    DropContractions(collator);
    ReadAdditions(collator);
    Rank();
}

void AsciiOrder::ReadPrimaries(const UCollator* collator) {
    // A digit stands for all plain characters: no language makes a letter out of several digits.
    for (std::size_t length = 0; length <= LongestText; ++length) {
        const std::string key = KeyOf(collator, std::string(length, '0'));
        endings_[length] = key.substr(PrimaryPart(key).size());
    }
    for (std::size_t place = 1; place < Characters; ++place) {
        const std::string key = KeyOf(collator, std::string(1, static_cast<char>(place)));
        const std::string primary = PrimaryPart(key);
        if (key.substr(primary.size()) == endings_[1] && primary.size() <= sizeof(Addition::bytes))
            primary_[place] = primary;
    }
}

void AsciiOrder::DropContractions(const UCollator* collator) {
    const std::unique_ptr<USet, decltype(&uset_close)> contractions(uset_openEmpty(), &uset_close);
    UErrorCode status = U_ZERO_ERROR;
    ucol_getContractionsAndExpansions(collator, contractions.get(), nullptr, true, &status);
    if (U_FAILURE(status)) return primary_.fill({});
    for (std::int32_t i = 0; i < uset_getItemCount(contractions.get()); ++i) {
        std::array<UChar, 16> text{};
        UChar32 first = 0;
        UChar32 last = 0;
        status = U_ZERO_ERROR;
        const std::int32_t length =
            uset_getItem(contractions.get(), i, &first, &last, text.data(), text.size(), &status);
        if (U_FAILURE(status) || length < 2) continue;
        const std::u16string_view parts(text.data(), static_cast<std::size_t>(length));
        if (std::ranges::any_of(parts, [](UChar part) { return part >= Characters; })) continue;
        for (const UChar part : parts) primary_[part].clear();
    }
}

AsciiOrder::Row AsciiOrder::AdditionsAfter(const UCollator* collator, const std::string& before) const {
    const std::string start = PrimaryPart(KeyOf(collator, before));
    Row row;
    for (std::size_t place = 0; place < Characters; ++place) {
        if (primary_[place].empty()) continue;
        const std::string whole = PrimaryPart(KeyOf(collator, before + static_cast<char>(place)));
        const std::size_t size = whole.size() - std::min(whole.size(), start.size());
        if (!whole.starts_with(start) || size > sizeof(Addition::bytes)) continue;
        std::memcpy(row[place].bytes.data(), whole.data() + start.size(), size);
        row[place].size = static_cast<std::uint8_t>(size);
    }
    return row;
}

std::size_t AsciiOrder::ClassOf(const Row& row) {
    const auto found = std::ranges::find(additions_, row);
    if (found != additions_.end()) return static_cast<std::size_t>(found - additions_.begin());
    additions_.push_back(row);
    return additions_.size() - 1;
}

void AsciiOrder::ReadAdditions(const UCollator* collator) {
    // The first byte of a weight may be left out where the weight before began with the same one, so what a
    // character adds depends on the first byte before it and on nothing else.
    additions_.push_back(AdditionsAfter(collator, ""));
    std::map<char, std::size_t> classOfFirstByte;
    for (std::size_t place = 0; place < Characters; ++place) {
        if (primary_[place].empty()) continue;
        const auto [known, added] = classOfFirstByte.try_emplace(primary_[place].front(), 0);
        if (added)
            known->second = ClassOf(AdditionsAfter(collator, std::string(1, static_cast<char>(place))));
        classOf_[place] = static_cast<std::uint8_t>(known->second);
    }
}

void AsciiOrder::Rank() {
    std::set<std::string> order;
    for (const std::string& primary : primary_)
        if (!primary.empty()) order.insert(primary);
    for (std::size_t place = 0; place < Characters; ++place)
        if (const auto found = order.find(primary_[place]); found != order.end())
            rank_[place] = static_cast<std::uint8_t>(std::distance(order.begin(), found) + 1);
}

bool AsciiOrder::IsPlain(std::string_view text) const {
    return std::ranges::all_of(text, [this](char character) {
        return Place(character) < Characters && rank_[Place(character)] != 0;
    });
}

int AsciiOrder::Compare(std::string_view a, std::string_view b) const {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const int difference = rank_[Place(a[i])] - rank_[Place(b[i])];
        if (difference != 0) return difference < 0 ? -1 : 1;
    }
    return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

bool AsciiOrder::SortKey(std::string_view text, std::string& key) const {
    if (text.size() > LongestText) return false;
    std::array<char, (LongestText + 1) * sizeof(Addition)> buffer; // not initialised: filled as far as needed
    char* end = buffer.data();
    std::size_t before = 0;
    for (const char character : text) {
        const std::size_t place = Place(character);
        if (place >= Characters) return false;
        const Addition& addition = additions_[before][place];
        if (addition.size == 0) return false;
        std::memcpy(end, addition.bytes.data(), addition.bytes.size());
        end += addition.size;
        before = classOf_[place];
    }
    const std::string& ending = endings_[text.size()];
    key.assign(buffer.data(), end);
    key.append(ending);
    return true;
}

} // namespace tvok::soft
