#include <random>

#include "tests/support/EngineList.h"

namespace tvok::test {
namespace {

class ItemsStr : public EngineList {
protected:
    std::int32_t Number() {
        switch (random() % 4) {
        case 0: return static_cast<std::int32_t>(random());
        case 1: return static_cast<std::int32_t>(random() % 3) - 1;
        case 2: return -1;
        default: return static_cast<std::int32_t>(random() % 1000);
        }
    }
    bool Truth() { return random() % 2 == 0; }

    /// A text that may hold anything but a line end.
    std::string Text() {
        std::string text(random() % 8, ' ');
        for (char& c : text) {
            c = static_cast<char>(random() % 3 == 0 ? " =9\t\"&H0\\"[random() % 9]
                                                    : static_cast<int>(random()));
            if (c == '\r' || c == '\n') c = ' ';
        }
        return text;
    }
    std::string SomeText() { return random() % 3 == 0 ? std::string("the same") : Text(); }

    qrosterdata Item() {
        return {.text = SomeText(),
                .key = SomeText(),
                .IconID = Number(),
                .IconBackColor = Number(),
                .IconPos = Number(),
                .ItemData = Number(),
                .ItemDataEx = Number(),
                .bColor = Number(),
                .fcolor = Number(),
                .vflag = Number()};
    }

    void RandomSettings() {
        for (auto* field :
             {&state.BackColor, &state.CX_TEXT, &state.GridlineColor, &state.GridlineWidth,
              &state.HeadExBackColor, &state.HeadExBorderColor, &state.HeadWidthEx, &state.IconBorderColor,
              &state.IconPos, &state.ItemWidth, &state.SelectedColor, &state.xn, &state.yn})
            *field = Number();
        state.ItemHeight = static_cast<std::int32_t>(random() % 100);
        state.GridlineOnBorder = Truth();
        state.FixedWidthForLastXn = Truth();
        state.ColWidthSettingStr = Text();
        state.TabStopSettingStr = Text();
    }

    /// What is lost on the way: blanks at the ends, the second host value, the selection.
    static qrosterdata AsReadBack(qrosterdata item) {
        item.text = Trimmed(item.text);
        item.key = Trimmed(item.key);
        item.ItemDataEx = 0;
        item.vflag &= ~vflag::Selected;
        return item;
    }
    static std::string Trimmed(const std::string& text) {
        const auto first = text.find_first_not_of(' ');
        if (first == std::string::npos) return {};
        return text.substr(first, text.find_last_not_of(' ') - first + 1);
    }

    std::string Build() const { return mtvok::BuildItemsStr(state, items, indexes); }

    std::mt19937 random{21};
};

TEST_F(ItemsStr, IsReadBackWithTheNamedLossesAlone) {
    for (int round = 0; round < 300; ++round) {
        RandomSettings();
        items.Reset();
        state.Count = 0;
        for (auto count = random() % 30; count > 0; --count) Add(Item());
        std::shuffle(indexes.data() + 1, indexes.data() + state.Count + 1, random);

        ListState read;
        read.FontObj = font;
        read.HeadExBorderColor = 123;
        ItemSlots readItems;
        IndexArray readIndexes{0};
        mtvok::ParseItemsStr(read, readItems, readIndexes, Build());

        ASSERT_EQ(read.Count, state.Count);
        for (std::int32_t i = 1; i <= state.Count; ++i)
            ASSERT_EQ(readItems[readIndexes[i]], AsReadBack(items[indexes[i]])) << "item " << i;
        EXPECT_EQ(read.BackColor, state.BackColor);
        EXPECT_EQ(read.CX_TEXT, state.CX_TEXT);
        EXPECT_EQ(read.GridlineColor, state.GridlineColor);
        EXPECT_EQ(read.GridlineOnBorder, state.GridlineOnBorder);
        EXPECT_EQ(read.GridlineWidth, state.GridlineWidth);
        EXPECT_EQ(read.HeadExBackColor, state.HeadExBackColor);
        EXPECT_EQ(read.HeadExBorderColor, 123);
        EXPECT_EQ(read.HeadWidthEx, state.HeadWidthEx);
        EXPECT_EQ(read.IconBorderColor, state.IconBorderColor);
        EXPECT_EQ(read.IconPos, state.IconPos);
        EXPECT_EQ(read.ItemHeight, state.ItemHeight);
        EXPECT_EQ(read.ItemWidth, state.ItemWidth);
        EXPECT_EQ(read.SelectedColor, state.SelectedColor);
        EXPECT_EQ(read.xn, state.xn);
        EXPECT_EQ(read.yn, state.yn);
        EXPECT_EQ(read.ColWidthSettingStr, Trimmed(state.ColWidthSettingStr));
        EXPECT_EQ(read.TabStopSettingStr, Trimmed(state.TabStopSettingStr));
        EXPECT_EQ(read.FixedWidthForLastXn, state.FixedWidthForLastXn);
    }
}

TEST_F(ItemsStr, WrittenAgainAfterReadingIsTheSameText) {
    for (int round = 0; round < 50; ++round) {
        state = {};
        state.FontObj = font;
        items.Reset();
        for (auto count = random() % 30; count > 0; --count) Add(AsReadBack(Item()));
        const auto text = Build();
        items.Reset();
        state.Count = 0;
        mtvok::ParseItemsStr(state, items, indexes, text);
        ASSERT_EQ(Build(), text);
    }
}

TEST_F(ItemsStr, OfAnyBytesIsReadWithoutHarm) {
    static constexpr std::string_view cPieces[] = {"\r\n",
                                                   "\r",
                                                   "\n",
                                                   "=",
                                                   "999",
                                                   "998",
                                                   "107=",
                                                   "13=",
                                                   "18=",
                                                   "25=",
                                                   "26=",
                                                   "109=",
                                                   "&H",
                                                   "&HFFFFFFFF&",
                                                   "99999999999999999999",
                                                   "-",
                                                   " ",
                                                   ".",
                                                   "106=2147483648",
                                                   "105=-1",
                                                   "6=0.4",
                                                   "108=key",
                                                   "999=",
                                                   "=999"};
    for (int round = 0; round < 3000; ++round) {
        std::string text;
        for (auto count = random() % 40; count > 0; --count) {
            if (random() % 5 == 0)
                text += static_cast<char>(random());
            else
                text += cPieces[random() % std::size(cPieces)];
        }
        state.Count = 0;
        items.Reset();
        indexes.Make(0);
        ASSERT_NO_THROW(mtvok::ParseItemsStr(state, items, indexes, text));
        ASSERT_GE(items.UpperBound(), state.Count);
        for (std::int32_t i = 1; i <= state.Count; ++i) {
            ASSERT_EQ(indexes[i], i);
            ASSERT_LT(items[i].vflag, 0);
        }
    }
}

TEST_F(ItemsStr, ALineWhoseNumberDoesNotFitCountsAsTheLineBefore) {
    mtvok::ParseItemsStr(state, items, indexes,
                         "107=a\r\n999\r\n99999999999\r\n107=b\r\n99999999999=c\r\n999\r\n");
    EXPECT_THAT(Texts(), ::testing::ElementsAre("a", "a", "c"));
}

TEST_F(ItemsStr, AValueThatDoesNotFitLeavesTheFieldAndTheNextLinesCount) {
    mtvok::ParseItemsStr(state, items, indexes,
                         "106=5\r\n106=2147483648\r\n14=9999999999\r\n3=31\r\n999\r\n");
    EXPECT_EQ(items[indexes[1]].ItemData, 5);
    EXPECT_EQ(state.ItemWidth, 100);
    EXPECT_EQ(state.CX_TEXT, 31);
}

TEST_F(ItemsStr, WithoutAFontIsNotWrittenAndReadWithoutItsHeight) {
    state.FontObj = nullptr;
    EXPECT_THROW(Build(), ObjectError);
    mtvok::ParseItemsStr(state, items, indexes, "13=5\r\n14=66\r\n");
    EXPECT_EQ(state.ItemHeight, 18);
    EXPECT_EQ(state.ItemWidth, 66);
}

} // namespace
} // namespace tvok::test
