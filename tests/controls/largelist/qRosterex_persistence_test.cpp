/// What a `qRosterex` keeps in a property bag, and what it starts with.
#include "tests/support/FakeLargeList.h"

namespace tvok::test {
namespace {

using host::FontValue;
using host::PropertyValue;

/// A list that a test takes through its life itself.
struct BareList {
    FakeComponent component{true, 200, 100, 2};
    LargeListServices services{component.log};
    host::Services* servicesBefore = host::SetServices(&services);
    FakeBag bag;
    std::unique_ptr<qRosterex> owner = std::make_unique<qRosterex>();
    qRosterex& list = *owner;

    BareList() { list.Initialize(component); }
    ~BareList() {
        list.Terminate();
        owner.reset();
        host::SetServices(servicesBefore);
    }
    BareList(const BareList&) = delete;
    BareList& operator=(const BareList&) = delete;
};

Lines KeysOf(const std::vector<FakeBag::Entry>& entries) {
    Lines keys;
    for (const auto& entry : entries) keys.push_back(entry.key);
    return keys;
}

TEST(LargeListPersistence, AllKeysAreWrittenInOneOrderAndNothingElseIs) {
    BareList f;
    f.list.ReadProperties(f.bag);
    f.list.WriteProperties(f.bag);
    EXPECT_EQ(KeysOf(f.bag.written), (Lines{"TmpKey",
                                            "SelectedColor",
                                            "CX_TEXT",
                                            "xn",
                                            "xnauto",
                                            "yn",
                                            "ItemHeight",
                                            "IconPos",
                                            "GridlineWidth",
                                            "GridLineColor",
                                            "GridLineOnBorder",
                                            "FixedWidthForLastXn",
                                            "FixedHeight",
                                            "IconBorderColor",
                                            "BackColor",
                                            "ColWidthSettingStr",
                                            "TabStopSettingStr",
                                            "ItemWidth",
                                            "HotTrack",
                                            "HeadWidthEx",
                                            "HeadExBackColor",
                                            "HeadExBorderColor",
                                            "Appearance",
                                            "MultiSelect",
                                            "BorderStyle",
                                            "Font",
                                            "FontTransparent"}));
}

TEST(LargeListPersistence, TheSharedKeysAreReadBeforeTheOwnOnes) {
    BareList f;
    f.list.ReadProperties(f.bag);
    EXPECT_EQ(KeysOf(f.bag.read), (Lines{"TmpKey",
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
                                         "HeadExBorderColor",
                                         "Appearance",
                                         "MultiSelect",
                                         "BorderStyle",
                                         "Font",
                                         "FontTransparent"}));
}

TEST(LargeListPersistence, ReaderAndWriterOfTheOwnKeysAgreeOnTheDefaults) {
    BareList f;
    f.list.ReadProperties(f.bag);
    f.list.WriteProperties(f.bag);
    const std::vector<std::pair<std::string, PropertyValue>> defaults{{"Appearance", 0},
                                                                      {"MultiSelect", 0},
                                                                      {"BorderStyle", 1},
                                                                      {"Font", f.component.ambient.font},
                                                                      {"FontTransparent", true}};
    ASSERT_EQ(f.bag.read.size(), 27u);
    ASSERT_EQ(f.bag.written.size(), 27u);
    for (std::size_t i = 0; i < defaults.size(); ++i) {
        EXPECT_EQ(f.bag.read[22 + i].defaultValue, defaults[i].second) << defaults[i].first;
        EXPECT_EQ(f.bag.written[22 + i].defaultValue, defaults[i].second) << defaults[i].first;
        EXPECT_EQ(f.bag.written[22 + i].value, defaults[i].second) << defaults[i].first;
    }
}

TEST(LargeListPersistence, StoredSettingsAreTheListsFromThenOn) {
    BareList f;
    f.bag.stored = {{"TmpKey", std::string("scratch")},
                    {"SelectedColor", 1},
                    {"CX_TEXT", 7},
                    {"yn", 77},
                    {"ItemHeight", 24},
                    {"GridlineWidth", 1},
                    {"GridLineColor", 8},
                    {"FixedHeight", false},
                    {"IconBorderColor", 2},
                    {"BackColor", 3},
                    {"HotTrack", true},
                    {"HeadWidthEx", 4},
                    {"HeadExBackColor", 5},
                    {"HeadExBorderColor", 6},
                    {"Appearance", 1},
                    {"MultiSelect", 1},
                    {"BorderStyle", 0},
                    {"Font", FontValue{"Stored Sans", 24, true, false, false, false}},
                    {"FontTransparent", false}};
    const auto stored = f.bag.stored;
    f.list.ReadProperties(f.bag);
    EXPECT_EQ(f.list.TmpKey(), "scratch");
    EXPECT_EQ(f.list.SelectedColor(), 1);
    EXPECT_EQ(f.list.CX_TEXT(), 7);
    EXPECT_EQ(f.list.yn(), 4); // the first layout's, not the stored one
    EXPECT_EQ(f.list.ItemHeight(), 24);
    EXPECT_EQ(f.list.GridlineWidth(), 1);
    EXPECT_EQ(f.list.GridlineColor(), 8);
    EXPECT_FALSE(f.list.FixedHeight());
    EXPECT_EQ(f.list.IconBorderColor(), 2);
    EXPECT_EQ(f.list.BackColor(), 3);
    EXPECT_EQ(f.component.BackColor(), 3);
    EXPECT_TRUE(f.list.HotTrack());
    EXPECT_EQ(f.list.HeadWidthEx(), 4);
    EXPECT_EQ(f.list.HeadExBackColor(), 5);
    EXPECT_EQ(f.list.HeadExBorderColor(), 6);
    EXPECT_EQ(f.component.Appearance(), 1);
    EXPECT_EQ(f.list.MultiSelect(), 1);
    EXPECT_EQ(f.component.BorderStyle(), 0);
    EXPECT_EQ(f.component.font->Name(), "Stored Sans");
    EXPECT_EQ(f.component.font->Size(), 24);
    EXPECT_FALSE(f.component.FontTransparent());
    f.list.WriteProperties(f.bag);
    for (const auto& [key, value] : stored) {
        if (key != "yn") {
            EXPECT_EQ(f.bag.stored[key], value) << key;
        }
    }
    EXPECT_EQ(f.bag.stored["yn"], PropertyValue(4));
}

TEST(LargeListPersistence, AnEmptyBagGivesTheKeysDefaults) {
    BareList f;
    f.component.Appearance(1);
    f.list.ReadProperties(f.bag);
    EXPECT_EQ(f.list.GridlineWidth(), 1);
    EXPECT_EQ(f.list.ItemHeight(), 18);
    EXPECT_TRUE(f.list.FixedHeight());
    EXPECT_EQ(f.list.yn(), 5); // of 100 pixels in rows of 19
    EXPECT_EQ(f.list.MultiSelect(), 0);
    EXPECT_EQ(f.list.Appearance(), 0);
    EXPECT_EQ(f.list.BorderStyle(), 1);
    EXPECT_TRUE(f.list.FontTransparent());
    EXPECT_EQ(f.list.Font()->Name(), "Ambient Sans");
    EXPECT_EQ(f.component.BackColor(), SystemColor(5));
}

TEST(LargeListPersistence, AStoredModeThatIsNoneIsIgnored) {
    EXPECT_EQ(FakeLargeList({.MultiSelect = 2}).list.MultiSelect(), 0);
    EXPECT_EQ(FakeLargeList({.MultiSelect = -1}).list.MultiSelect(), 0);
    EXPECT_EQ(FakeLargeList({.MultiSelect = 1}).list.MultiSelect(), 1);
}

TEST(LargeListPersistence, RowsHaveTheTextHeightOfTheStoredFont) {
    FakeLargeList f({}, 1);
    f.list.DrawItem(1);
    EXPECT_EQ(f.list.TextHeight(), 16);
    EXPECT_EQ(f.log().Named("ExtTextOutA").front().values[1], 2);
}

TEST(LargeListPersistence, ANewControlStartsWithItsOwnValues) {
    BareList f;
    f.list.InitProperties();
    EXPECT_EQ(f.list.GridlineWidth(), 0); // 1 where a bag has no such key
    EXPECT_FALSE(f.list.FixedHeight());   // and true there
    EXPECT_EQ(f.list.ItemHeight(), 18);
    EXPECT_EQ(f.list.CX_TEXT(), 20);
    EXPECT_EQ(f.list.yn(), 5);
    EXPECT_EQ(f.list.SelectedColor(), SystemColor(0x0D));
    EXPECT_EQ(f.list.IconBorderColor(), SystemColor(6));
    EXPECT_EQ(f.list.BackColor(), SystemColor(5));
    EXPECT_EQ(f.list.GridlineColor(), SystemColor(0x16));
    EXPECT_EQ(f.list.HeadExBackColor(), SystemColor(0x16));
    EXPECT_EQ(f.list.HeadExBorderColor(), SystemColor(0x0F));
    EXPECT_EQ(f.list.HeadWidthEx(), 0);
    EXPECT_EQ(f.list.TmpKey(), "");
    EXPECT_TRUE(f.list.TmpData().IsEmpty());
    EXPECT_FALSE(f.list.HotTrack());
    EXPECT_EQ(f.component.font->Name(), "Ambient Sans");
    EXPECT_EQ(f.component.font->Size(), 12);
    EXPECT_EQ(f.services.hook, nullptr); // which comes with the settings
}

TEST(LargeListPersistence, AListThatStartsAnewForgetsWhatItsHostHadSet) {
    FakeLargeList f({}, 50);
    f.list.ListIndex(3);
    f.list.KeySeek(true);
    f.list.ViewMode(0);
    f.list.BufAddItemOnly(true);
    f.list.ShowIcon(true);
    f.Press(5, 10);
    EXPECT_TRUE(f.list.MouseDownOnIcon());
    f.list.Initialize(f.component);
    EXPECT_EQ(f.list.Count(), 0);
    EXPECT_EQ(f.list.ListIndex(), 0);
    EXPECT_EQ(f.list.HeaderCount(), 0);
    EXPECT_FALSE(f.list.KeySeek());
    EXPECT_FALSE(f.list.BufAddItemOnly());
    EXPECT_FALSE(f.list.MouseDownOnIcon());
}

TEST(LargeListPersistence, TheEndDetachesTheHookDeletesTheFileAndMayComeTwice) {
    FakeLargeList f({}, 3);
    f.list.FileBufCreate();
    const std::string path = f.services.files.paths.back();
    f.Forget();
    f.list.Terminate();
    EXPECT_EQ(f.TakeHookWrites(), (Lines{"HookDetach 0"}));
    EXPECT_EQ(f.services.hook, nullptr);
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_NO_THROW(f.list.Terminate());
    EXPECT_EQ(f.list.FileBufValue(1), 0);
}

} // namespace
} // namespace tvok::test
