#include <random>

#include "tests/support/EngineList.h"
#include "tvok/records/text.h"

namespace tvok::test {
namespace {

/// The searches as their steps are told.
class PlainSearch {
public:
    PlainSearch(const ListState& state, const ItemSlots& items, const IndexArray& indexes)
        : state_(state), items_(items), indexes_(indexes) {}

    std::int32_t Char(char32_t key) const {
        const auto wanted = Upper(std::string(1, static_cast<char>(key)));
        for (std::int32_t step = 1; step <= state_.Count; ++step) {
            const auto i = (state_.ListIndex + step - 1) % state_.Count + 1;
            const auto first = FirstCharacters(Text(i), 1);
            if (!first.empty() && Upper(first) == wanted) return i;
        }
        return 0;
    }
    std::int32_t Prefix(std::string_view text) const {
        const auto wanted = Upper(Trim(text));
        return First([&](std::string_view item) {
            return Upper(FirstCharacters(item, CharacterCount(wanted))) == wanted;
        });
    }
    std::int32_t Whole(std::string_view text) const {
        const auto wanted = Upper(Trim(text));
        return First([&](std::string_view item) { return Upper(item) == wanted; });
    }

private:
    static std::string Upper(std::string_view text) { return host::services().Language().UpperCase(text); }
    std::string_view Text(std::int32_t i) const { return items_[indexes_[i]].text; }
    template<class Matches>
    std::int32_t First(const Matches& matches) const {
        for (std::int32_t i = 1; i <= state_.Count; ++i)
            if (matches(Text(i))) return i;
        return state_.Count + 1;
    }

    const ListState& state_;
    const ItemSlots& items_;
    const IndexArray& indexes_;
};

class Search : public EngineList {
protected:
    std::string Text() {
        static constexpr std::string_view cParts[] = {"a",      "A",      "b", "B",   " ",
                                                      "\u00E9", "\u00C9", "1", "\xFF"};
        std::string text;
        for (auto count = random() % 5; count > 0; --count) text += cParts[random() % std::size(cParts)];
        return text;
    }
    std::mt19937 random{31};
};

TEST_F(Search, FindsWhatThePlainStepsFind) {
    for (int round = 0; round < 400; ++round) {
        items.Reset();
        state.Count = 0;
        for (auto count = 1 + random() % 40; count > 0; --count) Add({.text = Text()});
        state.ListIndex = static_cast<std::int32_t>(random() % static_cast<unsigned>(state.Count + 1));
        const PlainSearch plain(state, items, indexes);
        for (int search = 0; search < 20; ++search) {
            const auto text = Text();
            ASSERT_EQ(mtvok::FindItemText(state, items, indexes, text), plain.Whole(text)) << text;
            ASSERT_EQ(mtvok::SeekItemPrefix(state, items, indexes, text), plain.Prefix(text)) << text;
            const char key = "aAbB1z "[random() % 7];
            ASSERT_EQ(mtvok::SeekItemChar(key, state, items, indexes),
                      plain.Char(static_cast<unsigned char>(key)))
                << key;
        }
    }
}

TEST_F(Search, ForACharacterThatIsNoneFindsNothing) {
    AddTexts({"a", "\xFF"});
    for (const std::int32_t key : {-1, 0xD800, 0x110000})
        EXPECT_EQ(mtvok::SeekItemChar(key, state, items, indexes), 0);
}

} // namespace
} // namespace tvok::test
