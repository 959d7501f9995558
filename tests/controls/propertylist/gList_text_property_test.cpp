// Random items go out as text and come back with exactly the losses that the form has.
#include <algorithm>
#include <random>

#include "tests/support/PropertyListDesktop.h"
#include "tvok/records/text.h"

namespace tvok::test {
namespace {

using List = PropertyListDesktop;

class RandomItems {
public:
    explicit RandomItems(std::uint32_t seed) : random_(seed) {}

    /// Captions differ, so that their order is known; keys are empty or differ in more than their case.
    elistdata Item(std::int32_t number) {
        elistdata item;
        item.pKey = Text();
        item.hItem = Cell();
        item.item = Cell();
        item.hItem.text = Blanks() + "c" + std::to_string(10000 + number) + Text();
        item.hItem.key = Below(3) == 0 ? "" : Blanks() + "k" + std::to_string(number) + Blanks();
        item.nData = Value();
        item.xbuttons = Below(2) == 0 ? Text() : Text() + Typed();
        item.bVisible = Below(4) != 0;
        item.bParentItem = Below(4) == 0;
        item.HelpStr = Text();
        return item;
    }
    std::uint32_t Below(std::uint32_t limit) { return static_cast<std::uint32_t>(random_()) % limit; }

private:
    std::string Blanks() { return std::string(Below(4) == 0 ? 1 + Below(2) : 0, ' '); }
    std::string Text() {
        static const char* const texts[] = {
            "",         "a",     "=",    "a=b=", "998", "107=x", "&H7&",     "\xC3\xA4 \xE6\x97\xA5",
            "one\ttwo", "\"q\"", "a\rb", "a\nb", "|",   "&",     "two words"};
        return Blanks() + texts[Below(15)] + Blanks();
    }
    std::string Typed() {
        static const char* const words[] = {";cs", ";ns", ";lt", ";li 7", ";own", ";lt 7", ";li"};
        return words[Below(7)];
    }
    std::int32_t Number() {
        static constexpr std::int32_t edges[] = {0, -1, 1, INT32_MAX, INT32_MIN, 255, 0x1011010};
        return Below(2) == 0 ? edges[Below(7)] : static_cast<std::int32_t>(random_());
    }
    Variant Value() {
        switch (Below(3)) {
        case 0: return {};
        case 1: return Number();
        default: return Text();
        }
    }
    qrosterdata Cell() {
        if (Below(4) == 0) return {};
        return {.text = Text(),
                .key = Text(),
                .IconID = Number(),
                .IconBackColor = Number(),
                .IconPos = Number(),
                .ItemData = Number(),
                .ItemDataEx = Number(),
                .bColor = Number(),
                .fcolor = Number(),
                .vflag = Number()};
    }

    std::mt19937 random_;
};

void TrimText(std::string& text) {
    text = std::string(Trim(text));
}

/// The item with what the form loses: the value and its display, the second data numbers, the selection, and
/// blanks around texts. What the type makes of the missing value then stands in the value cell.
elistdata Lost(elistdata item, const List& types) {
    item.nData = {};
    item.item.text.clear();
    item.hItem.ItemDataEx = item.item.ItemDataEx = 0;
    item.hItem.vflag &= ~vflag::Selected;
    item.bDelete = false;
    for (std::string* text :
         {&item.pKey, &item.xbuttons, &item.HelpStr, &item.hItem.text, &item.hItem.key, &item.item.key})
        TrimText(*text);
    types.list->AddItem(item, -1);
    return types.Slot(1);
}

constexpr const char* cList7 = "106=0\r\n107=zero\r\n103=77\r\n999\r\n";

void Prepare(List& at) {
    at.popLists[7] = cList7;
    at.list->events.ExItemShowCov = nullptr;
}

TEST(gListTextProperty, RandomItemsComeBackWithTheLossesOfTheForm) {
    RandomItems random(31);
    List from, to, types;
    for (List* at : {&from, &to, &types}) Prepare(*at);
    types.list->AddItem(List::Value("any"));
    for (int round = 0; round < 60; ++round) {
        from.list->Clear(true);
        to.list->Clear(true);
        std::vector<elistdata> stored;
        const auto count = static_cast<std::int32_t>(random.Below(30));
        for (std::int32_t number = 0; number < count; ++number) {
            const std::int32_t slot = from.list->AddItem(random.Item(number));
            stored.push_back(from.Slot(-slot));
        }
        const std::string text = from.list->ItemsStr();
        to.list->ItemsStr(text);
        std::vector<elistdata> read;
        elistdata item;
        for (std::int32_t slot = 1; to.list->GetItem(item, {}, -slot) != 0; ++slot)
            if (!item.bDelete) read.push_back(item);
        std::vector<elistdata> expected;
        for (const elistdata& each : stored) expected.push_back(Lost(each, types));
        const auto byCaption = [](const elistdata& a, const elistdata& b) {
            return a.hItem.text < b.hItem.text;
        };
        std::sort(read.begin(), read.end(), byCaption);
        std::sort(expected.begin(), expected.end(), byCaption);
        ASSERT_EQ(read.size(), expected.size());
        for (std::size_t i = 0; i < read.size(); ++i) ASSERT_EQ(read[i], expected[i]) << text;
    }
}

TEST(gListTextProperty, ATextThatWasReadIsWrittenAsItself) {
    RandomItems random(32);
    List from, to, again;
    for (List* at : {&from, &to, &again}) Prepare(*at);
    for (int round = 0; round < 60; ++round) {
        for (List* at : {&from, &to, &again}) at->list->Clear(true);
        const auto count = static_cast<std::int32_t>(random.Below(40));
        for (std::int32_t number = 0; number < count; ++number) from.list->AddItem(random.Item(number));
        to.list->ItemsStr(from.list->ItemsStr());
        const std::string text = to.list->ItemsStr();
        again.list->ItemsStr(text);
        // What a type makes of a value counts only the first time: colours and entries of lists overwrite
        // fields that have lines.
        ASSERT_EQ(again.list->ItemsStr(), text);
    }
}

} // namespace
} // namespace tvok::test
