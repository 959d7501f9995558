// The life cycle: coming up, settings in a property bag, resizing, focus, design time, going away.

#include "tests/support/FakeRoster.h"

namespace tvok::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A bag that compares names without their case, as many do.
class LenientBag : public FakeBag {
public:
    host::PropertyValue ReadProperty(std::string_view name,
                                     const host::PropertyValue& defaultValue) override {
        return FakeBag::ReadProperty(Lower(name), defaultValue);
    }
    void WriteProperty(std::string_view name, const host::PropertyValue& value,
                       const host::PropertyValue& defaultValue) override {
        FakeBag::WriteProperty(Lower(name), value, defaultValue);
    }

private:
    static std::string Lower(std::string_view name) {
        std::string lower(name);
        for (auto& letter : lower)
            if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter + 32);
        return lower;
    }
};

using Setting = std::pair<std::string, host::PropertyValue>;

std::vector<Setting> Defaults(const std::vector<FakeBag::Entry>& entries) {
    std::vector<Setting> settings;
    for (const auto& entry : entries) settings.emplace_back(entry.key, entry.defaultValue);
    return settings;
}

const host::FontValue cAmbientFont{"Ambient Sans", 12, false, false, false, false};

/// A component with a control that is not loaded yet.
struct Bare {
    explicit Bare(bool userMode = true, std::int32_t height = 90) : component(userMode, 200, height) {
        component.control = &list;
        list.Initialize(component);
        component.log.Clear();
    }
    ~Bare() { list.Terminate(); }
    FakeComponent component;
    FakeBag bag;
    qRoster list;
};

// Coming up.

TEST(qRosterLifeCycle, InitializeMakesAnEmptyListWithoutAHook) {
    Bare bare;
    EXPECT_EQ(bare.list.Count(), 0);
    EXPECT_EQ(bare.list.ListIndex(), 0);
    EXPECT_EQ(bare.component.services.hook, nullptr);
}

TEST(qRosterLifeCycle, RefreshBeforeTheLoadEndsInTheObjectErrorWhichResizeSwallows) {
    Bare bare;
    EXPECT_THROW(bare.list.Refresh(), ObjectError);
    EXPECT_NO_THROW(bare.list.Resize());
}

TEST(qRosterLifeCycle, ANewControlTakesItsSettingsAndTheAmbientFontAndRunsWithoutAHook) {
    Bare bare;
    bare.list.InitProperties();
    EXPECT_EQ(bare.component.font->value, cAmbientFont);
    EXPECT_EQ(bare.component.services.hook, nullptr);
    EXPECT_EQ(bare.list.GridlineWidth(), 0); // the key's default is 1
    EXPECT_FALSE(bare.list.FixedHeight());   // the key's default is true
    EXPECT_EQ(bare.list.xn(), 1);
    EXPECT_EQ(bare.list.yn(), 5);
    EXPECT_EQ(bare.list.ItemHeight(), 18);
    EXPECT_EQ(bare.list.CX_TEXT(), 20);
    EXPECT_THROW(bare.list.Refresh(), ObjectError);
}

TEST(qRosterLifeCycle, ANewControlHasNoLineHeightUntilSetToSystemfont) {
    Bare bare;
    bare.list.InitProperties();
    bare.list.AddItem(0, {.text = "ant"});
    bare.list.ResetSize(); // there are rows now, and all cells are still empty rectangles at (0, 0)
    bare.component.log.Clear();
    bare.list.DrawItem(1);
    EXPECT_EQ(bare.component.log.Named("ExtTextOutA").at(0).values[1], 0);
    bare.component.log.guiFont.lfHeight = -8;
    bare.list.SetToSystemfont();
    bare.component.log.Clear();
    bare.list.DrawItem(1);
    EXPECT_EQ(bare.component.log.Named("ExtTextOutA").at(0).values[1], -4);
}

TEST(qRosterLifeCycle, TheLoadReadsItsKeysInOrderWithTheirDefaults) {
    Bare bare;
    bare.list.ReadProperties(bare.bag);
    const std::vector<Setting> expected = {
        {"TmpKey", std::string()},
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
        {"HeadExBorderColor", SystemColor(0x0F)},
        {"Appearance", 0},
        {"MultiSelect", 0},
        {"BorderStyle", 1},
        {"Font", cAmbientFont},
        {"FontTransparent", true},
    };
    EXPECT_EQ(Defaults(bare.bag.read), expected);
}

TEST(qRosterLifeCycle, TheLoadAppliesToTheComponentAndComesUpInOrder) {
    Bare bare(true, 100);
    bare.list.ReadProperties(bare.bag);
    std::vector<std::string> order;
    for (const auto& call : bare.component.log.NamedOneOf(
             {"Appearance", "BorderStyle", "Font", "Font.Name", "FontTransparent", "Height", "BackColor",
              "hook created", "hook.HookMode", "hook.HookAttach", "hook.ScrollLarge"}))
        if (const auto name = call.name.starts_with("Font.") ? "Font" : call.name;
            order.empty() || order.back() != name)
            order.push_back(name);
    EXPECT_THAT(order,
                ElementsAre("Appearance", "BorderStyle", "Font", "FontTransparent", "Height", "BackColor",
                            "hook created", "hook.HookMode", "hook.HookAttach", "hook.ScrollLarge"));
    EXPECT_EQ(bare.component.log.Named("hook.HookMode"), (Calls{PlainCall("hook.HookMode", {3})}));
    EXPECT_EQ(bare.component.log.Named("hook.HookAttach"),
              (Calls{PlainCall("hook.HookAttach", {FakeComponent::cWindow, 0})}));
    EXPECT_EQ(bare.component.PixelHeight(), 5 * 19);
    EXPECT_EQ(bare.component.font->value, cAmbientFont);
}

TEST(qRosterLifeCycle, TheLoadTakesTheLineHeightFromTheLoadedFont) {
    Bare bare;
    bare.bag.stored["Font"] = host::FontValue{"Loaded Sans", 6, true, false, false, false};
    bare.list.ReadProperties(bare.bag);
    bare.list.AddItem(0, {.text = "ant"});
    bare.component.log.Clear();
    bare.list.Refresh();
    EXPECT_EQ(bare.component.font->value.Name, "Loaded Sans");
    EXPECT_EQ(bare.component.log.Named("ExtTextOutA").at(0).values[1], (18 - 8) / 2);
}

TEST(qRosterLifeCycle, AtDesignTimeTheLoadMakesNoHookAndPaintsNothing) {
    Bare bare(false, 100);
    bare.list.ReadProperties(bare.bag);
    EXPECT_EQ(bare.component.services.hook, nullptr);
    EXPECT_THAT(bare.component.log.Drawing(), IsEmpty());
    EXPECT_EQ(bare.component.PixelHeight(), 95); // snapped all the same
}

// Saving.

TEST(qRosterLifeCycle, SavingWritesItsKeysInOrderWithTheirDefaults) {
    Bare bare;
    bare.list.ReadProperties(bare.bag);
    bare.list.WriteProperties(bare.bag);
    const std::vector<Setting> expected = {
        {"TmpKey", std::string()},
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
        {"HeadExBorderColor", SystemColor(0x0F)},
        {"Appearance", 0},
        {"MultiSelect", 0},
        {"BorderStyle", 1},
        {"Font", cAmbientFont},
        {"FontTransparent", true},
    };
    EXPECT_EQ(Defaults(bare.bag.written), expected);
}

/// Every setting at a value of its own.
void SetAll(qRoster& list) {
    list.TmpKey("key");
    list.SelectedColor(1);
    list.CX_TEXT(21);
    list.ItemHeight(10);
    list.ItemWidth(60);
    list.IconPos(0x01020304);
    list.GridlineWidth(2);
    list.GridlineColor(2);
    list.GridlineOnBorder(true);
    list.FixedHeight(false);
    list.IconBorderColor(3);
    list.BackColor(4);
    list.ColWidthSettingStr("0,50,60");
    list.TabStopSettingStr("10,20");
    list.HotTrack(true);
    list.HeadWidthEx(5);
    list.HeadExBackColor(6);
    list.HeadExBorderColor(7);
    list.MultiSelect(1);
    list.Appearance(1);
    list.BorderStyle(0);
    list.FontTransparent(false);
    list.FixedWidthForLastXn(true);
    list.XnAuto(true);
}

template<class Bag>
std::vector<Setting> LoadedAfterSaving(bool& gridlineOnBorder) {
    Bag bag;
    {
        FakeRoster from;
        SetAll(from.list);
        from.list.WriteProperties(bag);
    }
    Bare to;
    to.list.ReadProperties(bag);
    gridlineOnBorder = to.list.GridlineOnBorder();
    EXPECT_EQ(to.list.TmpKey(), "key");
    EXPECT_EQ(to.list.SelectedColor(), 1);
    EXPECT_EQ(to.list.CX_TEXT(), 21);
    EXPECT_EQ(to.list.ItemHeight(), 10);
    EXPECT_EQ(to.list.ItemWidth(), 60);
    EXPECT_EQ(to.list.IconPos(), 0x01020304);
    EXPECT_EQ(to.list.GridlineWidth(), 2);
    EXPECT_EQ(to.list.GridlineColor(), 2);
    EXPECT_FALSE(to.list.FixedHeight());
    EXPECT_EQ(to.list.IconBorderColor(), 3);
    EXPECT_EQ(to.list.BackColor(), 4);
    EXPECT_EQ(to.component.BackColor(), 4);
    EXPECT_EQ(to.list.ColWidthSettingStr(), "0,50,60");
    EXPECT_EQ(to.list.TabStopSettingStr(), "10,20");
    EXPECT_TRUE(to.list.HotTrack());
    EXPECT_EQ(to.list.HeadWidthEx(), 5);
    EXPECT_EQ(to.list.HeadExBackColor(), 6);
    EXPECT_EQ(to.list.HeadExBorderColor(), 7);
    EXPECT_EQ(to.list.MultiSelect(), 1);
    EXPECT_EQ(to.list.Appearance(), 1);
    EXPECT_EQ(to.list.BorderStyle(), 0);
    EXPECT_FALSE(to.list.FontTransparent());
    EXPECT_TRUE(to.list.FixedWidthForLastXn());
    EXPECT_TRUE(to.list.XnAuto());
    return Defaults(bag.read);
}

TEST(qRosterLifeCycle, SettingsComeBackButGridlineOnBorderFromABagThatComparesNamesExactly) {
    bool gridlineOnBorder = true;
    LoadedAfterSaving<FakeBag>(gridlineOnBorder);
    EXPECT_FALSE(gridlineOnBorder);
}

TEST(qRosterLifeCycle, EverySettingComesBackFromABagThatIgnoresTheCaseOfNames) {
    bool gridlineOnBorder = false;
    LoadedAfterSaving<LenientBag>(gridlineOnBorder);
    EXPECT_TRUE(gridlineOnBorder);
}

TEST(qRosterLifeCycle, ItemsAndStateAreNotSaved) {
    FakeRoster roster({}, {"ant"});
    roster.list.SortedMode(1);
    roster.list.IconHandle(4);
    roster.list.TmpData(Variant("data"));
    roster.list.ListIndex(1);
    FakeBag bag;
    roster.list.WriteProperties(bag);
    for (const char* key : {"SortedMode", "IconHandle", "TmpData", "ListIndex", "ItemsStr", "Count"})
        EXPECT_FALSE(bag.stored.contains(key)) << key;
}

// Resizing.

TEST(qRosterLifeCycle, ResizeRecomputesTheRowsAndRefreshes) {
    FakeRoster roster({}, Numbered(20));
    roster.component.SetPixelSize(200, 180);
    EXPECT_EQ(roster.list.yn(), 10);
    EXPECT_EQ(roster.hook().max, 10);
    EXPECT_EQ(roster.TakeEffect(), "refresh");
}

TEST(qRosterLifeCycle, AFixedHeightSnapsThroughANestedResize) {
    FakeRoster roster({.FixedHeight = true}, Numbered(20));
    roster.component.SetPixelSize(200, 130);
    EXPECT_EQ(roster.component.PixelHeight(), 126);
    EXPECT_EQ(roster.list.yn(), 7);
    EXPECT_EQ(roster.log().Named("Height").size(), 1u);
    EXPECT_EQ(roster.log().Named("hook.ScrollLarge").size(), 2u); // the nested one, then the outer one
}

TEST(qRosterLifeCycle, AHeightThatIsNotFixedIsKept) {
    FakeRoster roster({}, Numbered(20));
    roster.component.SetPixelSize(200, 130);
    EXPECT_EQ(roster.component.PixelHeight(), 130);
    EXPECT_TRUE(roster.log().Named("Height").empty());
}

TEST(qRosterLifeCycle, ResizingToNothingIsHarmless) {
    FakeRoster roster({.GridlineWidth = 1, .FixedHeight = true}, Numbered(20));
    for (const auto& [width, height] : {std::pair{0, 0}, {1, 1}, {0, 100}, {100, 0}, {5000, 3000}, {200, 90}})
        EXPECT_NO_THROW(roster.component.SetPixelSize(width, height)) << width << " " << height;
    EXPECT_EQ(roster.list.Count(), 20);
}

TEST(qRosterLifeCycle, ResizeIsQuietAboutWhatAHandlerThrows) {
    FakeRoster roster;
    roster.list.AddItem(0, {.vflag = vflag::HostText});
    roster.list.events.ExDraw = [](std::int32_t&, std::int32_t, const std::string&, std::int32_t,
                                   std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                                   std::int32_t) { throw std::runtime_error("no"); };
    EXPECT_THROW(roster.list.Refresh(), std::runtime_error);
    EXPECT_NO_THROW(roster.list.Resize());
}

TEST(qRosterLifeCycle, ASecondRefreshRepaintsEverythingAndLeavesThePosition) {
    FakeRoster roster({}, Numbered(20));
    roster.hook().ScrollValue(7);
    roster.log().Clear();
    roster.list.Refresh();
    EXPECT_THAT(roster.TakeStory(), ElementsAre("ScrollLarge 5", "ScrollMax 15", "draw item 8", "draw item 9",
                                                "draw item 10", "draw item 11", "draw item 12"));
    EXPECT_EQ(roster.hook().value, 7);
}

TEST(qRosterLifeCycle, AListThatHasBecomeShortGoesBackToItsTop) {
    FakeRoster roster({}, Numbered(20));
    roster.hook().ScrollValue(7);
    for (int i = 5; i <= 20; ++i) roster.list.RemoveItem(i);
    roster.log().Clear();
    roster.list.Refresh();
    EXPECT_EQ(roster.hook().value, 0);
    const auto drawn = roster.TakeDrawn();
    ASSERT_GE(drawn.size(), 4u);
    EXPECT_EQ(std::vector(drawn.end() - 4, drawn.end()),
              (std::vector<std::string>{"item 1", "item 2", "item 3", "item 4"}));
    roster.PressRow(1);
    EXPECT_EQ(roster.list.ListIndex(), 1);
}

// Focus.

TEST(qRosterLifeCycle, AListThatReceivesTheFocusGetsACurrentItem) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.component.log.focus = FakeComponent::cWindow;
    roster.list.GotFocus();
    EXPECT_THAT(roster.TakeStory(), ElementsAre("Change 1 ant", "draw ant", "focus"));
    EXPECT_EQ(roster.list.ListIndex(), 1);
}

TEST(qRosterLifeCycle, FocusDrawsTheCurrentItemWithTheRectangleAndWithoutItWhenItGoes) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.ListIndex(2);
    roster.log().Clear();
    roster.component.log.focus = FakeComponent::cWindow;
    roster.list.GotFocus();
    EXPECT_THAT(roster.TakeStory(), ElementsAre("draw bee", "focus"));
    roster.component.log.focus = 99;
    roster.list.LostFocus();
    EXPECT_THAT(roster.TakeStory(), ElementsAre("draw bee"));
}

TEST(qRosterLifeCycle, FocusOnAnEmptyListDrawsNothing) {
    FakeRoster roster;
    roster.component.log.focus = FakeComponent::cWindow;
    roster.list.GotFocus();
    roster.list.LostFocus();
    EXPECT_THAT(roster.TakeStory(), IsEmpty());
    EXPECT_EQ(roster.list.ListIndex(), 0);
}

TEST(qRosterLifeCycle, AnItemWithTheFocusBitShowsTheRectangleWithoutTheFocus) {
    FakeRoster roster;
    roster.list.AddItem(0, {.text = "ant", .vflag = vflag::FocusAlways});
    roster.list.Refresh();
    EXPECT_TRUE(roster.log().Named("DrawFocusRect").empty()); // it is not the current item
    roster.list.ListIndex(1);
    EXPECT_EQ(roster.log().Named("DrawFocusRect").at(0).rect, (tvok_Rect{0, 0, 200, 18}));
}

TEST(qRosterLifeCycle, RepaintsDrawTheFocusRectangleOfTheCurrentItemAlone) {
    FakeRoster roster({}, {"ant", "bee", "cat"});
    roster.component.log.focus = FakeComponent::cWindow;
    roster.list.ListIndex(2);
    roster.log().Clear();
    roster.list.PaintAll();
    EXPECT_THAT(roster.TakeStory(), ElementsAre("draw ant", "draw bee", "focus", "draw cat"));
}

// Painting.

TEST(qRosterLifeCycle, PaintInRunModeDoesNothing) {
    FakeRoster roster({}, {"ant"});
    roster.list.Paint();
    EXPECT_THAT(roster.log().All(), IsEmpty());
}

TEST(qRosterLifeCycle, ThePaintMessagePaintsBetweenBeginAndEndAndGoesOn) {
    FakeRoster roster({}, Numbered(5));
    const tvok_Rect part{0, 40, 200, 50};
    roster.component.log.InvalidateRect(FakeComponent::cWindow, &part, false);
    roster.log().Clear();
    EXPECT_TRUE(roster.component.Send(host::WM_PAINT, 0, 0, false)); // written true
    const auto& calls = roster.log().All();
    EXPECT_EQ(calls.front().name, "BeginPaint");
    EXPECT_EQ(calls.back().name, "EndPaint");
    EXPECT_THAT(roster.TakeDrawn(), ElementsAre("item 3"));
}

TEST(qRosterLifeCycle, ThePaintMessageEndsItsPaintingAlsoWhenAHandlerThrows) {
    FakeRoster roster;
    roster.list.AddItem(0, {.vflag = vflag::HostText});
    roster.list.Refresh();
    roster.list.events.ExDraw = [](std::int32_t&, std::int32_t, const std::string&, std::int32_t,
                                   std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                                   std::int32_t) { throw std::runtime_error("no"); };
    roster.component.log.InvalidateRect(FakeComponent::cWindow, nullptr, false);
    roster.log().Clear();
    EXPECT_THROW(roster.component.Send(host::WM_PAINT), std::runtime_error);
    EXPECT_EQ(roster.log().Named("EndPaint").size(), 1u);
}

TEST(qRosterLifeCycle, DesignTimePaintShowsAFrameAndTheName) {
    FakeRoster design({.UserMode = false});
    design.list.AddItem(0, {.text = "ant"});
    design.list.Paint();
    EXPECT_EQ(design.log().Drawing(),
              (Calls{RectangleCall({0, 0, 200, 90}, 6, 1, Sys(6), Sys(5), 13),
                     {"DrawTextA",
                      {1, 1, 199, 89},
                      {32, 0, design.component.log.backColor, design.component.log.backMode},
                      "roster1"}}));
    EXPECT_EQ(design.component.log.LiveObjects(), 0u);
}

TEST(qRosterLifeCycle, ExDrawIsForwardedWithTheEdgesOfItsRectangle) {
    FakeRoster roster;
    roster.list.HeadWidthEx(10);
    roster.list.AddItem(0, {.text = "ant",
                            .key = "the key",
                            .vflag = vflag::IconBox | vflag::HostIcon | vflag::HostText | vflag::HostHead});
    std::vector<std::vector<std::int32_t>> seen;
    roster.list.events.ExDraw = [&](std::int32_t& message, std::int32_t index, const std::string& key,
                                    std::int32_t hDC, std::int32_t cy, std::int32_t x, std::int32_t y,
                                    std::int32_t w, std::int32_t h) {
        EXPECT_EQ(key, "the key");
        seen.push_back({message, index, hDC, cy, x, y, w, h});
    };
    roster.list.Refresh();
    constexpr auto context = FakeComponent::cContext;
    EXPECT_THAT(seen, ElementsAre(ElementsAre(512, 1, context, 0, 0, 0, 9, 18),
                                  ElementsAre(128, 1, context, 0, 11, 1, 27, 17),
                                  ElementsAre(256, 1, context, 0, 30, 0, 200, 18)));
}

// Going away.

TEST(qRosterLifeCycle, TerminateDetachesTheHookBeforeItReleasesIt) {
    FakeRoster roster({}, {"ant"});
    roster.End();
    EXPECT_EQ(roster.log().NamedOneOf({"hook.HookDetach", "hook released"}),
              (Calls{PlainCall("hook.HookDetach"), PlainCall("hook released")}));
    EXPECT_EQ(roster.component.services.hook, nullptr);
}

TEST(qRosterLifeCycle, TerminateLetsTheFontGo) {
    FakeRoster roster({}, {"ant"});
    const std::weak_ptr<FakeFont> font = roster.component.font;
    roster.list.Terminate();
    roster.component.font.reset();
    EXPECT_TRUE(font.expired());
    roster.component.font = std::make_shared<FakeFont>(roster.component.log);
}

TEST(qRosterLifeCycle, TerminateIsQuietWithoutAHookAndASecondTime) {
    Bare bare;
    EXPECT_NO_THROW(bare.list.Terminate());
    EXPECT_NO_THROW(bare.list.Terminate());
    FakeRoster roster({}, {"ant"});
    roster.list.Terminate();
    EXPECT_NO_THROW(roster.list.Terminate());
}

TEST(qRosterLifeCycle, MembersAfterTerminateAreHarmless) {
    FakeRoster roster({}, {"ant", "bee"});
    roster.list.Terminate();
    EXPECT_THROW(roster.list.Refresh(), Error);
    EXPECT_NO_THROW(roster.list.Resize());
    EXPECT_NO_THROW(roster.list.AddItem(0, {.text = "cat"}));
    EXPECT_EQ(roster.list.Count(), 3);
}

TEST(qRosterLifeCycle, AFreshControlThatWasNeverInitializedMayGo) {
    EXPECT_NO_THROW({ const qRoster list; });
}

TEST(qRosterLifeCycle, EveryDrawingObjectIsFreed) {
    FakeRoster roster({.GridlineWidth = 1}, Numbered(20));
    roster.list.HeadWidthEx(8);
    for (int i = 1; i <= 20; ++i)
        roster.list.SetData(i, {.text = "x", .IconID = 1, .vflag = vflag::IconBox | vflag::IconBorder});
    roster.ClickRow(3);
    roster.hook().ScrollValue(5);
    roster.list.Refresh();
    EXPECT_EQ(roster.component.log.LiveObjects(), 0u);
    EXPECT_EQ(roster.component.log.Slips(), 0);
}

} // namespace
} // namespace tvok::test
