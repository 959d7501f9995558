// `xbuttons`: any text has the type that a plain reading gives it, the events and the display follow from
// that, and the row shows its strip.

#include <chrono>
#include <optional>
#include <string>

#include "fuzz.h"
#include "tvok/records/numeric.h"

namespace {

using tvok::fuzz::Require;

tvok::Form& Form() {
    static tvok::Form& form = tvok::fuzz::HeadlessDesktop().AddForm("types", 200, 120);
    return form;
}

struct Type {
    std::string name;
    std::int32_t number = 0;
};

/// The type word by walking over its characters, without the reader's own means.
Type TypeOf(const std::string& xbuttons) {
    const std::size_t semicolon = xbuttons.find(';');
    if (semicolon == std::string::npos) return {};
    std::string word = xbuttons.substr(semicolon + 1);
    while (!word.empty() && word.back() == ' ') word.pop_back();
    while (!word.empty() && word.front() == ' ') word.erase(0, 1);
    Type type;
    std::size_t place = 0;
    for (; place < word.size() && word[place] != ' ' && (word[place] < '0' || word[place] > '9'); ++place)
        type.name +=
            word[place] >= 'A' && word[place] <= 'Z' ? static_cast<char>(word[place] + 32) : word[place];
    while (place < word.size() && word[place] == ' ') ++place;
    type.number = tvok::TryRoundToInt32(tvok::ScanNumber(word.substr(place))).value_or(0);
    return type;
}

struct Heard {
    int made = 0; ///< `ExItemShowCov` came so often.
    std::optional<std::int32_t> asked;
};

std::string ExpectedText(const Type& type, const Heard& heard) {
    if (type.name == "ns") return "12.5";
    if (type.name == "lt") return "12.50 m";
    if (type.name == "li") return heard.asked ? "twelve" : "before";
    return "before";
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    auto& list = Form().Add<tvok::gList>("list", {0, 0, 200, 100});
    Heard heard;
    list.events.ExItemShowCov = [&](tvok::elistdata&) { ++heard.made; };
    list.events.EnumPopStr = [&](std::int32_t id, std::string& text) {
        heard.asked = id;
        text = "107=twelve\r\n106=12\r\n999\r\n";
    };
    tvok::elistdata item = list.DefaultItem();
    item.xbuttons = tvok::fuzz::Text(data, size);
    item.item.text = "before";
    item.nData = "12.50 m ";
    const Type type = TypeOf(item.xbuttons);
    const bool isList = type.name == "li" || type.name == "lt";
    if (type.name == "li") item.nData = "12 m";
    Require(list.AddItem(item) == -1, "the item is stored");

    const bool own = type.name != "cs" && type.name != "ns" && !isList;
    Require(heard.made == (own ? 1 : 0), "the host makes its own types and no others");
    Require(heard.asked.has_value() == (isList && type.number >= 1), "lists are asked for by their number");
    Require(heard.asked.value_or(type.number) == type.number, "the number is that of the word");
    Require(list.GetItem(item, {}, -1) == -1, "the item is found");
    if (type.name == "cs") {
        Require(item.item.text.starts_with("(") && item.item.IconBackColor == 12, "a colour is described");
    } else {
        Require(item.item.text == ExpectedText(type, heard), "the display follows from type and value");
    }
    list.BuiltList();
    tvok::quietly([&] { list.ListIndex(1); }); // a strip that is too wide for any window is an error
    Form().Remove(list);
    tvok::fuzz::HeadlessDesktop().ProcessEvents(std::chrono::milliseconds(0));
    return 0;
}
