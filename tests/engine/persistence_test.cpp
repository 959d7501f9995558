/// A list's settings as property bag keys.
#include "tests/support/EngineList.h"

namespace tvok::test {
namespace {

using namespace mtvok;
using host::PropertyValue;

// Property bag keys.

struct Setting {
    std::string key;
    PropertyValue value;
    PropertyValue defaultValue;
};

class BagKeys : public EngineList {
protected:
    /// A state in which no setting has its default.
    void Change() {
        state.TmpKey = "scratch";
        state.SelectedColor = 1;
        state.CX_TEXT = 2;
        state.xn = 3;
        state.XnAuto = true;
        state.yn = 4;
        state.ItemHeight = 19;
        state.IconPos = 6;
        state.GridlineWidth = 7;
        state.GridlineColor = 8;
        state.GridlineOnBorder = true;
        state.FixedWidthForLastXn = true;
        state.FixedHeight = false;
        state.IconBorderColor = 9;
        state.BackColor = 10;
        state.ColWidthSettingStr = "0,1";
        state.TabStopSettingStr = "2,3";
        state.ItemWidth = 11;
        state.HotTrack = true;
        state.HeadWidthEx = 12;
        state.HeadExBackColor = 13;
        state.HeadExBorderColor = 14;
    }
    static std::vector<Setting> Written() {
        return {{"TmpKey", std::string("scratch"), std::string()},
                {"SelectedColor", 1, SystemColor(0x0D)},
                {"CX_TEXT", 2, 20},
                {"xn", 3, 1},
                {"xnauto", true, false},
                {"yn", 4, 5},
                {"ItemHeight", 19, 18},
                {"IconPos", 6, 16846864},
                {"GridlineWidth", 7, 1},
                {"GridLineColor", 8, SystemColor(0x16)},
                {"GridLineOnBorder", true, false},
                {"FixedWidthForLastXn", true, false},
                {"FixedHeight", false, true},
                {"IconBorderColor", 9, SystemColor(6)},
                {"BackColor", 10, SystemColor(5)},
                {"ColWidthSettingStr", std::string("0,1"), std::string()},
                {"TabStopSettingStr", std::string("2,3"), std::string()},
                {"ItemWidth", 11, 100},
                {"HotTrack", true, false},
                {"HeadWidthEx", 12, 0},
                {"HeadExBackColor", 13, SystemColor(0x16)},
                {"HeadExBorderColor", 14, SystemColor(0x0F)}};
    }
    FakeBag bag;
};

TEST_F(BagKeys, AreWrittenInTheirOrderWithTheirTypesAndDefaults) {
    Change();
    WriteListProperties(bag, state);
    const auto expected = Written();
    ASSERT_EQ(bag.written.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(bag.written[i].key, expected[i].key);
        EXPECT_TRUE(bag.written[i].value == expected[i].value) << expected[i].key;
        EXPECT_TRUE(bag.written[i].defaultValue == expected[i].defaultValue) << expected[i].key;
    }
}

TEST_F(BagKeys, AreReadInTheirOrderWithTheDefaultsOfTheWriter) {
    ReadListProperties(bag, state);
    const std::vector<std::string> order{"TmpKey",
                                         "SelectedColor",
                                         "CX_TEXT",
                                         "xn",
                                         "xnauto",
                                         "yn",
                                         "ItemHeight",
                                         "ItemWidth",
                                         "IconPos",
                                         "FixedHeight",
                                         "FixedWidthForLastXn",
                                         "IconBorderColor",
                                         "GridLineColor",
                                         "GridlineWidth",
                                         "GridlineOnBorder",
                                         "BackColor",
                                         "ColWidthSettingStr",
                                         "TabStopSettingStr",
                                         "HotTrack",
                                         "HeadWidthEx",
                                         "HeadExBackColor",
                                         "HeadExBorderColor"};
    std::vector<std::string> read;
    for (const auto& entry : bag.read) read.push_back(entry.key);
    EXPECT_EQ(read, order);
    for (const auto& setting : Written()) {
        const std::string key = setting.key == "GridLineOnBorder" ? "GridlineOnBorder" : setting.key;
        const auto found = std::find_if(bag.read.begin(), bag.read.end(),
                                        [&](const FakeBag::Entry& entry) { return entry.key == key; });
        ASSERT_NE(found, bag.read.end()) << key;
        EXPECT_TRUE(found->defaultValue == setting.defaultValue) << key;
    }
}

TEST_F(BagKeys, AnEmptyBagGivesEveryKeysDefault) {
    Change();
    ReadListProperties(bag, state);
    EXPECT_EQ(state.TmpKey, "");
    EXPECT_EQ(state.SelectedColor, SystemColor(0x0D));
    EXPECT_EQ(state.CX_TEXT, 20);
    EXPECT_EQ(state.xn, 1);
    EXPECT_FALSE(state.XnAuto);
    EXPECT_EQ(state.yn, 5);
    EXPECT_EQ(state.ItemHeight, 18);
    EXPECT_EQ(state.IconPos, 16846864);
    EXPECT_EQ(state.GridlineWidth, 1);
    EXPECT_EQ(state.GridlineColor, SystemColor(0x16));
    EXPECT_FALSE(state.GridlineOnBorder);
    EXPECT_FALSE(state.FixedWidthForLastXn);
    EXPECT_TRUE(state.FixedHeight);
    EXPECT_EQ(state.IconBorderColor, SystemColor(6));
    EXPECT_EQ(state.BackColor, SystemColor(5));
    EXPECT_EQ(state.ColWidthSettingStr, "");
    EXPECT_EQ(state.TabStopSettingStr, "");
    EXPECT_EQ(state.ItemWidth, 100);
    EXPECT_FALSE(state.HotTrack);
    EXPECT_EQ(state.HeadWidthEx, 0);
    EXPECT_EQ(state.HeadExBackColor, SystemColor(0x16));
    EXPECT_EQ(state.HeadExBorderColor, SystemColor(0x0F));
}

// The writer spells one key unlike the reader: with a bag that compares exactly the property is lost. It
// stays so.
TEST_F(BagKeys, ComeBackFromAnExactBagButForTheLineOnTheBorder) {
    Change();
    WriteListProperties(bag, state);
    const ListState saved = state;
    state = ListState();
    ReadListProperties(bag, state);
    EXPECT_FALSE(state.GridlineOnBorder);
    state.GridlineOnBorder = true;
    FakeBag again;
    WriteListProperties(again, state);
    ASSERT_EQ(again.written.size(), bag.written.size());
    for (std::size_t i = 0; i < bag.written.size(); ++i)
        EXPECT_TRUE(again.written[i].value == bag.written[i].value) << bag.written[i].key;
    EXPECT_EQ(state.TmpKey, saved.TmpKey);
}

TEST_F(BagKeys, TheReadersSpellingIsFound) {
    bag.stored["GridlineOnBorder"] = true;
    ReadListProperties(bag, state);
    EXPECT_TRUE(state.GridlineOnBorder);
}

TEST_F(BagKeys, LeaveWhatIsNotPersistedAlone) {
    AddTexts({"a", "b"});
    state.SortedMode = 2;
    state.IconHandle = 5;
    state.TmpData = Variant(7);
    state.ListIndex = 2;
    ReadListProperties(bag, state);
    EXPECT_EQ(state.SortedMode, 2);
    EXPECT_EQ(state.IconHandle, 5);
    EXPECT_EQ(state.TmpData, Variant(7));
    EXPECT_EQ(state.ListIndex, 2);
    EXPECT_EQ(state.Count, 2);
}

TEST_F(BagKeys, ANewControlStartsWithItsOwnValues) {
    Change();
    InitListProperties(state);
    EXPECT_EQ(state.GridlineWidth, 0) << "unlike the key's default of 1";
    EXPECT_FALSE(state.GridlineOnBorder);
    EXPECT_EQ(state.GridlineColor, SystemColor(0x16));
    EXPECT_FALSE(state.XnAuto);
    EXPECT_FALSE(state.HotTrack);
    EXPECT_EQ(state.HeadWidthEx, 0);
    EXPECT_EQ(state.HeadExBackColor, SystemColor(0x16));
    EXPECT_EQ(state.HeadExBorderColor, SystemColor(0x0F));
    EXPECT_FALSE(state.FixedWidthForLastXn);
    EXPECT_EQ(state.IconPos, 16846864);
    EXPECT_EQ(state.ItemWidth, 100);
    EXPECT_EQ(state.ItemHeight, 18);
    EXPECT_EQ(state.SelectedColor, SystemColor(0x0D));
    EXPECT_EQ(state.IconBorderColor, SystemColor(6));
    EXPECT_EQ(state.BackColor, SystemColor(5));
    EXPECT_EQ(state.CX_TEXT, 20);
    EXPECT_EQ(state.xn, 1);
    EXPECT_EQ(state.yn, 5);
    EXPECT_EQ(state.TmpKey, "");
}

TEST_F(BagKeys, ANewControlsFixedHeightIsNotTouched) {
    for (const bool fixed : {true, false}) {
        state.FixedHeight = fixed;
        InitListProperties(state);
        EXPECT_EQ(state.FixedHeight, fixed);
    }
    EXPECT_FALSE(ListState().FixedHeight) << "so a new control starts with false, unlike the key's default";
}

} // namespace
} // namespace tvok::test
