// The life cycle of a property list: a new one and a loaded one, the keys of its settings, and its end.
#include "tests/support/FakeHost.h"
#include "tests/support/PropertyListDesktop.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using List = PropertyListDesktop;
using Setting = std::pair<std::string, host::PropertyValue>;

/// A list that is loaded from a bag, with nothing done to it since.
struct Loaded {
    explicit Loaded(FakeBag& bag, bool userMode = true) {
        desktop.form().UserMode(userMode);
        auto control = std::make_unique<gList>();
        list = control.get();
        NoteEvents(
            list->events, [this](const std::string& line) { log.push_back(line); },
            [](std::int32_t) { return nullptr; });
        desktop.form().Adopt("list1", {10, 10, 300, 200}, std::move(control), &bag);
    }
    host::Component& Component() const { return desktop.form().ComponentOf(*list); }

    std::vector<std::string> log;
    mutable TestDesktop desktop;
    PropertyListServices services;
    gList* list = nullptr;
};

std::vector<Setting> Defaults(const std::vector<FakeBag::Entry>& entries) {
    std::vector<Setting> settings;
    for (const auto& entry : entries) settings.emplace_back(entry.key, entry.defaultValue);
    return settings;
}

FakeBag Written(gList& list) {
    FakeBag bag;
    list.WriteProperties(bag);
    return bag;
}

/// What stands under this key in a bag that the list was written to.
host::PropertyValue Kept(gList& list, const std::string& key) {
    return Written(list).stored.at(key);
}

// Keys.

std::vector<Setting> SharedKeysAsWritten() {
    return {{"TmpKey", std::string()},
            {"SelectedColor", SystemColor(0x0D)},
            {"CX_TEXT", 20},
            {"xn", 1},
            {"xnauto", false},
            {"yn", 5},
            {"ItemHeight", 18},
            {"IconPos", 16846864},
            {"GridlineWidth", 1},
            {"GridLineColor", SystemColor(0x16)},
            {"GridLineOnBorder", false},
            {"FixedWidthForLastXn", false},
            {"FixedHeight", true},
            {"IconBorderColor", SystemColor(6)},
            {"BackColor", SystemColor(5)},
            {"ColWidthSettingStr", std::string()},
            {"TabStopSettingStr", std::string()},
            {"ItemWidth", 100},
            {"HotTrack", false},
            {"HeadWidthEx", 0},
            {"HeadExBackColor", SystemColor(0x16)},
            {"HeadExBorderColor", SystemColor(0x0F)}};
}

std::vector<Setting> SharedKeysAsRead() {
    return {{"TmpKey", std::string()},
            {"SelectedColor", SystemColor(0x0D)},
            {"CX_TEXT", 20},
            {"xn", 1},
            {"xnauto", false},
            {"yn", 5},
            {"ItemHeight", 18},
            {"ItemWidth", 100},
            {"IconPos", 16846864},
            {"FixedHeight", true},
            {"FixedWidthForLastXn", false},
            {"IconBorderColor", SystemColor(6)},
            {"GridLineColor", SystemColor(0x16)},
            {"GridlineWidth", 1},
            {"GridlineOnBorder", false},
            {"BackColor", SystemColor(5)},
            {"ColWidthSettingStr", std::string()},
            {"TabStopSettingStr", std::string()},
            {"HotTrack", false},
            {"HeadWidthEx", 0},
            {"HeadExBackColor", SystemColor(0x16)},
            {"HeadExBorderColor", SystemColor(0x0F)}};
}

TEST(gListPersistence, TheSettingsAreWrittenInOrderWithTheirDefaults) {
    List at;
    std::vector<Setting> expected = SharedKeysAsWritten();
    const host::FontValue ambient = at.desktop.form().ComponentOf(*at.list).Ambient().Font();
    for (const Setting& own : std::vector<Setting>{{"Appearance", 0},
                                                   {"ListMode", 0},
                                                   {"BorderStyle", 1},
                                                   {"Sorted", true},
                                                   {"HeadWidth", 120},
                                                   {"Font", ambient},
                                                   {"FontTransparent", true}})
        expected.push_back(own);
    EXPECT_EQ(Defaults(Written(*at.list).written), expected);
}

TEST(gListPersistence, TheSettingsAreReadInOrderWithTheSameDefaults) {
    FakeBag bag;
    Loaded at(bag);
    std::vector<Setting> expected = SharedKeysAsRead();
    for (const Setting& own : std::vector<Setting>{{"Appearance", 0},
                                                   {"BorderStyle", 1},
                                                   {"ListMode", 0},
                                                   {"Sorted", true},
                                                   {"HeadWidth", 120},
                                                   {"Font", at.Component().Ambient().Font()},
                                                   {"FontTransparent", true}})
        expected.push_back(own);
    EXPECT_EQ(Defaults(bag.read), expected);
}

TEST(gListPersistence, SettingsComeBack) {
    List from({.ListMode = 1, .Sorted = false});
    from.list->TmpKey("scratch");
    from.list->SelectedColor(1);
    from.list->CX_TEXT(2);
    from.list->ItemHeight(33);
    from.list->GridlineWidth(4);
    from.list->GridlineColor(5);
    from.list->IconPos(6);
    from.list->IconBorderColor(7);
    from.list->BackColor(8);
    from.list->HeadExBackColor(9);
    from.list->HeadExBorderColor(10);
    from.list->Appearance(1);
    from.list->BorderStyle(0);
    from.list->FontTransparent(false);
    from.list->Font()->Size(20);
    from.list->Font()->Italic(true);
    FakeBag bag = Written(*from.list);
    Loaded to(bag);
    EXPECT_EQ(to.list->TmpKey(), "scratch");
    EXPECT_EQ(to.list->SelectedColor(), 1);
    EXPECT_EQ(to.list->CX_TEXT(), 2);
    EXPECT_EQ(to.list->ItemHeight(), 33);
    EXPECT_EQ(to.list->GridlineWidth(), 4);
    EXPECT_EQ(to.list->GridlineColor(), 5);
    EXPECT_EQ(to.list->IconPos(), 6);
    EXPECT_EQ(to.list->IconBorderColor(), 7);
    EXPECT_EQ(to.list->BackColor(), 8);
    EXPECT_EQ(to.Component().BackColor(), 8);
    EXPECT_EQ(to.list->HeadExBackColor(), 9);
    EXPECT_EQ(to.list->HeadExBorderColor(), 10);
    EXPECT_EQ(to.list->Appearance(), 1);
    EXPECT_EQ(to.list->BorderStyle(), 0);
    EXPECT_EQ(to.list->ListMode(), 1);
    EXPECT_FALSE(to.list->Sorted());
    EXPECT_FALSE(to.list->FontTransparent());
    EXPECT_EQ(to.list->Font()->Size(), 20);
    EXPECT_TRUE(to.list->Font()->Italic());
}

TEST(gListPersistence, ItemsAndScratchDataAreNotKept) {
    List at;
    at.list->TmpData(5);
    at.Show({List::Value("a")});
    for (const auto& entry : Written(*at.list).written)
        EXPECT_TRUE(entry.key != "ItemsStr" && entry.key != "TmpData") << entry.key;
    FakeBag bag = Written(*at.list);
    Loaded other(bag);
    elistdata item;
    EXPECT_EQ(other.list->GetItem(item, {}, -1), 0);
    EXPECT_EQ(other.list->Count(), 0);
    EXPECT_TRUE(other.list->TmpData().IsEmpty());
}

TEST(gListPersistence, LinesOnTheBorderAreLostInABagThatComparesNamesExactly) {
    List from;
    from.list->GridlineOnBorder(true);
    FakeBag bag = Written(*from.list);
    EXPECT_EQ(bag.stored.at("GridLineOnBorder"), host::PropertyValue(true));
    EXPECT_FALSE(Loaded(bag).list->GridlineOnBorder()) << "written by one spelling and read by another";
}

TEST(gListPersistence, TheCaptionWidthThatIsKeptHoldsUntilTheFirstRebuild) {
    FakeBag bag;
    bag.stored["HeadWidth"] = 77;
    Loaded at(bag);
    EXPECT_EQ(at.list->HeadWidth(), 77);
    EXPECT_EQ(Kept(*at.list, "HeadWidth"), host::PropertyValue(77));
    at.list->BuiltList();
    EXPECT_EQ(at.list->HeadWidth(), 30);
}

TEST(gListPersistence, TheHeadBandOfALoadedListIs15WideWhateverIsStored) {
    FakeBag bag;
    bag.stored["HeadWidthEx"] = 40;
    Loaded at(bag);
    EXPECT_EQ(at.list->HeadWidthEx(), 15);
    EXPECT_EQ(Kept(*at.list, "HeadWidthEx"), host::PropertyValue(15));
}

TEST(gListPersistence, RowsLieOnOneColumnWhateverIsStored) {
    FakeBag bag;
    bag.stored["xn"] = 3;
    bag.stored["xnauto"] = true;
    Loaded at(bag);
    EXPECT_EQ(Kept(*at.list, "xn"), host::PropertyValue(1));
    EXPECT_EQ(Kept(*at.list, "xnauto"), host::PropertyValue(false));
    for (const char* key : {"a", "b"}) at.list->AddItem(List::Value(key));
    at.list->BuiltList();
    at.desktop.Click(*at.list, 60, 25);
    EXPECT_EQ(at.list->ListIndex(), 2) << "the second row stands below the first";
}

// Coming up.

TEST(gListPersistence, ANewListDiffersFromALoadedOneInItsBandItsLinesAndItsHeight) {
    TestDesktop desktop;
    desktop.form().UserMode(false);
    const gList& fresh = desktop.form().Add<gList>("list1", {10, 10, 300, 200});
    EXPECT_EQ(fresh.HeadWidthEx(), 13);
    EXPECT_EQ(fresh.HeadWidth(), 120);
    EXPECT_EQ(fresh.HeadExBackColor(), 0xE0E0E0);
    EXPECT_EQ(fresh.GridlineWidth(), 0);
    EXPECT_FALSE(fresh.FixedHeight());
    FakeBag bag;
    Loaded loaded(bag);
    EXPECT_EQ(loaded.list->HeadWidthEx(), 15);
    EXPECT_EQ(loaded.list->HeadWidth(), 120);
    EXPECT_EQ(loaded.list->HeadExBackColor(), c3DLight);
    EXPECT_EQ(loaded.list->GridlineWidth(), 1);
    EXPECT_TRUE(loaded.list->FixedHeight());
}

TEST(gListPersistence, TheOtherSettingsOfANewList) {
    TestDesktop desktop;
    desktop.form().UserMode(false);
    gList& fresh = desktop.form().Add<gList>("list1", {10, 10, 300, 200});
    EXPECT_EQ(fresh.ListMode(), 0);
    EXPECT_TRUE(fresh.Sorted());
    EXPECT_EQ(fresh.GridlineColor(), c3DLight);
    EXPECT_FALSE(fresh.GridlineOnBorder());
    EXPECT_EQ(fresh.HeadExBorderColor(), cButtonFace);
    EXPECT_EQ(fresh.IconPos(), cDefaultIconPos);
    EXPECT_EQ(fresh.ItemHeight(), 18);
    EXPECT_EQ(fresh.SelectedColor(), cHighlight);
    EXPECT_EQ(fresh.IconBorderColor(), cWindowFrame);
    EXPECT_EQ(fresh.BackColor(), cWindowBackground);
    EXPECT_EQ(fresh.CX_TEXT(), 20);
    EXPECT_EQ(fresh.TmpKey(), "");
    EXPECT_EQ(ValueOf(*fresh.Font()), desktop.form().ComponentOf(fresh).Ambient().Font());
    EXPECT_EQ(Kept(fresh, "xn"), host::PropertyValue(1));
}

TEST(gListPersistence, ANewListHasNoHook) {
    TestDesktop desktop;
    desktop.form().UserMode(false);
    gList& fresh = desktop.form().Add<gList>("list1", {10, 10, 300, 200});
    EXPECT_THROW(fresh.Refresh(), ObjectError);
    EXPECT_THROW(fresh.PaintAll(), ObjectError);
    EXPECT_NO_THROW(fresh.Resize()) << "a quiet region";
}

TEST(gListPersistence, AListThatIsLoadedAtDesignTimeHasNoHookEither) {
    FakeBag bag;
    Loaded at(bag, false);
    EXPECT_EQ(at.services.hookNumber, 0);
    EXPECT_THAT(at.log, IsEmpty());
    EXPECT_THROW(at.list->Refresh(), ObjectError);
    EXPECT_EQ(at.list->HeadWidthEx(), 15) << "but its settings are read";
}

TEST(gListPersistence, ALoadedListAttachesItsHookClearsAndFitsItsHeight) {
    FakeBag bag;
    Loaded at(bag);
    const std::string name = std::to_string(at.services.hookNumber) + " ";
    std::vector<std::string> first;
    for (const std::string& line : at.services.TakeLog())
        if (line.starts_with(name) && first.size() < 6) first.push_back(line.substr(name.size()));
    EXPECT_THAT(first, ElementsAre("HookMode 3", "HookAttach", "ScrollMax 0", "ScrollValue 0", "ScrollHMax 0",
                                   "ScrollHValue 0"));
    ASSERT_FALSE(at.log.empty());
    EXPECT_EQ(at.log.front(), "ExEditorHide()");
    EXPECT_NE(at.desktop.form().PlacementOf(*at.list).height, 200) << "snapped to whole rows";
}

TEST(gListPersistence, ALoadedListIsReadyForItems) {
    FakeBag bag;
    Loaded at(bag);
    EXPECT_EQ(at.list->AddItem(List::Value("a")), -1);
    at.list->BuiltList();
    at.list->ListIndex(1);
    EXPECT_EQ(at.list->ListIndex(), 1);
    EXPECT_NE(at.list->hwnd(), 0);
    EXPECT_EQ(at.list->hwnd(), at.Component().hWnd());
}

TEST(gListPersistence, NumbersOfABagAreTakenAsTheyStand) {
    FakeBag bag;
    bag.stored["TmpKey"] = std::string("kept");
    bag.stored["CX_TEXT"] = -5;
    bag.stored["ItemHeight"] = 40;
    Loaded at(bag);
    EXPECT_EQ(at.list->ItemHeight(), 40);
    EXPECT_EQ(at.list->CX_TEXT(), -5);
    EXPECT_EQ(at.list->TmpKey(), "kept");
}

// The end.

TEST(gListPersistence, TheEndDetachesTheHook) {
    List at;
    at.Show({List::Edited("a")});
    at.ClickRow(1);
    at.Forget();
    at.desktop.form().Remove(*at.list);
    at.desktop.Pump();
    EXPECT_THAT(at.TakeHookLog(), ElementsAre("HookDetach"));
    EXPECT_THAT(at.TakeLog({"ExEditorDataRestore", "ExEditorHide", "Change", "Click"}), IsEmpty());
}

TEST(gListPersistence, AListCanEndWithoutHavingBeenLoaded) {
    TestDesktop desktop;
    desktop.form().UserMode(false);
    gList& fresh = desktop.form().Add<gList>("list1", {10, 10, 300, 200});
    EXPECT_NO_THROW(desktop.form().Remove(fresh));
}

} // namespace
} // namespace tvok::test
