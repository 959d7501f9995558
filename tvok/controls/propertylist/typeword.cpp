#include "tvok/controls/propertylist/typeword.h"

#include <algorithm>

#include "tvok/records/numeric.h"
#include "tvok/records/text.h"

namespace tvok::propertylist {

namespace {

/// Whether `text` is `name`, which is in lower case. Letters of other scripts make another name in any case.
bool IsName(std::string_view text, std::string_view name) {
    return std::ranges::equal(text, name, [](char letter, char wanted) {
        return letter == wanted || (letter >= 'A' && letter <= 'Z' && letter - 'A' + 'a' == wanted);
    });
}

ItemKind KindOf(std::string_view name) {
    if (IsName(name, "cs")) return ItemKind::Color;
    if (IsName(name, "ns")) return ItemKind::Number;
    if (IsName(name, "li")) return ItemKind::ListByNumber;
    if (IsName(name, "lt")) return ItemKind::ListByText;
    return ItemKind::Host;
}

} // namespace

std::string_view ButtonsOf(std::string_view xbuttons) {
    return xbuttons.substr(0, xbuttons.find(';'));
}

ItemType ParseItemType(std::string_view xbuttons) {
    const auto divider = xbuttons.find(';');
    if (divider == std::string_view::npos) return {};
    const std::string_view word = Trim(xbuttons.substr(divider + 1));
    const auto end = std::min(word.find_first_of("0123456789 "), word.size());
    return {KindOf(word.substr(0, end)), TryRoundToInt32(ScanNumber(Trim(word.substr(end)))).value_or(0)};
}

} // namespace tvok::propertylist
