// The text of a popup list behind an item type: any text gives the entries that a plain reading of its lines
// gives, and an item shows the first entry with its value, or what it showed before.

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

#include "fuzz.h"
#include "tvok/records/numeric.h"

namespace {

using tvok::qrosterdata;
using tvok::fuzz::Require;

tvok::Form& Form() {
    static tvok::Form& form = tvok::fuzz::HeadlessDesktop().AddForm("lists", 200, 120);
    return form;
}

std::string WithoutBlanks(std::string text) {
    while (!text.empty() && text.back() == ' ') text.pop_back();
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

void Set(qrosterdata& entry, std::int32_t code, const std::string& value) {
    std::int32_t* const numbers[] = {&entry.bColor,  &entry.fcolor, &entry.IconBackColor,
                                     &entry.IconPos, &entry.IconID, &entry.ItemData};
    if (code == 107) entry.text = value;
    if (code == 108) entry.key = value;
    const auto number = tvok::TryRoundToInt32(tvok::ScanNumber(value));
    if (!number) return;
    if (code >= 101 && code <= 106) *numbers[code - 101] = *number;
    if (code == 109) entry.vflag = *number;
}

/// The entries line by line, without the reader's own means.
std::vector<qrosterdata> EntriesOf(const std::string& text) {
    std::vector<qrosterdata> entries;
    qrosterdata entry;
    std::string value;
    std::int32_t number = 0;
    for (std::size_t start = 0, end = 0; (end = text.find("\r\n", start)) != std::string::npos;
         start = end + 2) {
        const std::string line = WithoutBlanks(text.substr(start, end - start));
        const std::size_t sign = line.find('=');
        const bool divided = sign != std::string::npos && sign >= 1;
        if (divided) value = WithoutBlanks(line.substr(sign + 1));
        const double code = tvok::ScanNumber(divided ? line.substr(0, sign) : line);
        number = tvok::TryRoundToInt32(code).value_or(number); // what does not fit leaves the one before
        Set(entry, number, value);
        if (number == 998) entry = {};
        if (number == 999) entries.push_back(entry);
    }
    return entries;
}

qrosterdata Shown(tvok::gList& list, std::int32_t value) {
    tvok::elistdata item = list.DefaultItem();
    item.hItem.key = "k";
    item.xbuttons = ";li 1";
    item.item.text = "before";
    item.nData = value;
    list.AddItem(item);
    Require(list.GetItem(item, "k") == -1, "the item is found");
    return item.item;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 4000) return 0; // each entry is looked at beside all others
    const std::string text(tvok::fuzz::Text(data, size));
    const std::vector<qrosterdata> entries = EntriesOf(text);
    auto& list = Form().Add<tvok::gList>("list", {0, 0, 200, 100});
    int asked = 0;
    list.events.EnumPopStr = [&](std::int32_t, std::string& of) {
        ++asked;
        of = text;
    };
    for (std::size_t i = 0; i < entries.size(); ++i) {
        std::size_t first = 0;
        while (entries[first].ItemData != entries[i].ItemData) ++first;
        Require(Shown(list, entries[i].ItemData) == entries[first], "the first entry with the value shows");
    }
    if (!entries.empty()) Require(asked == 1, "a list with entries is asked for once");
    constexpr std::int32_t missing = 12345;
    const auto isIt = [](const qrosterdata& entry) { return entry.ItemData == missing; };
    if (std::none_of(entries.begin(), entries.end(), isIt))
        Require(Shown(list, missing).text == "before", "a value without an entry keeps what was shown");
    Form().Remove(list);
    tvok::fuzz::HeadlessDesktop().ProcessEvents(std::chrono::milliseconds(0));
    return 0;
}
