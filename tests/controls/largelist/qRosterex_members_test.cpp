#include "tests/support/FakeLargeList.h"

namespace tvok::test {
namespace {

TEST(LargeListMembers, StartAsDocumented) {
    FakeLargeList f({.columns = 0});
    EXPECT_EQ(f.list.CacheSize(), 128);
    EXPECT_EQ(f.list.HeaderCount(), 0);
    EXPECT_EQ(f.list.HeaderHeight(), 0);
    EXPECT_EQ(f.list.HeaderWidths(), "");
    EXPECT_EQ(f.list.SortedMode(), bNoneSorted);
    EXPECT_FALSE(f.list.KeySeek());
    EXPECT_FALSE(f.list.BufAddItemOnly());
    EXPECT_FALSE(f.list.LockedPaint());
    EXPECT_FALSE(f.list.ShowIcon());
    EXPECT_FALSE(f.list.MouseDownOnIcon());
    EXPECT_EQ(f.list.StartSelected(), 0);
    qrosterdata item;
    GetDefaultItem(item);
    EXPECT_EQ(f.list.DefaultItem(), item);
}

TEST(LargeListMembers, FindItemFindsNothing) {
    FakeLargeList f({}, 5);
    EXPECT_EQ(f.list.FindItem("row 1"), 0);
    EXPECT_EQ(f.list.FindItem("", true), 0);
    EXPECT_TRUE(f.log().All().empty());
}

TEST(LargeListMembers, PlainStoresPaintNothing) {
    FakeLargeList f({}, 5);
    f.list.CX_TEXT(30);
    f.list.CX_TEXT(-1);
    EXPECT_EQ(f.list.CX_TEXT(), 30);
    f.list.HeadExBackColor(1);
    f.list.HeaderHeight(20);
    f.list.ShowIcon(true);
    f.list.HeaderFlag(4);
    f.list.IconCX(2);
    f.list.IconCY(3);
    f.list.ViewMode(0);
    f.list.KeySeek(true);
    f.list.BufAddItemOnly(true);
    f.list.LockedPaint(true);
    f.list.TmpKey("k");
    EXPECT_TRUE(f.log().All().empty());
    EXPECT_EQ(f.list.TmpKey(), "k");
}

TEST(LargeListMembers, VisibleLooksRepaint) {
    FakeLargeList f({}, 2);
    const auto repaints = [&](const char* what, const std::function<void()>& write) {
        f.Forget();
        write();
        EXPECT_EQ(f.asked, (Rows{1, 2})) << what;
    };
    repaints("SelectedColor", [&] { f.list.SelectedColor(1); });
    repaints("IconBorderColor", [&] { f.list.IconBorderColor(1); });
    repaints("BackColor", [&] { f.list.BackColor(0x123456); });
    repaints("HeadWidthEx", [&] { f.list.HeadWidthEx(1); });
    repaints("GridlineColor", [&] { f.list.GridlineColor(1); });
    repaints("FixedHeight", [&] { f.list.FixedHeight(false); });
    repaints("ItemHeight", [&] { f.list.ItemHeight(25); });
    repaints("GridlineWidth", [&] { f.list.GridlineWidth(2); });
    EXPECT_EQ(f.component.BackColor(), 0x123456);
    f.Forget();
    f.list.ItemHeight(0);
    f.list.GridlineWidth(-1);
    EXPECT_EQ(f.list.ItemHeight(), 25);
    EXPECT_EQ(f.list.GridlineWidth(), 2);
    EXPECT_TRUE(f.log().All().empty());
}

TEST(LargeListMembers, AtDesignTimeWritesAreSilentAndMethodsEndInTheObjectError) {
    FakeLargeList f({.UserMode = false});
    f.list.Count(5);
    f.list.ItemHeight(30);
    f.list.HeaderWidths("50");
    f.list.CacheSize(500);
    EXPECT_EQ(f.list.Count(), 5);
    EXPECT_TRUE(f.log().Drawing().empty());
    EXPECT_THROW(f.list.Refresh(), ObjectError);
    EXPECT_THROW(f.list.AddItemTop(), ObjectError);
    EXPECT_THROW(f.list.Clear(), ObjectError);
    EXPECT_NO_THROW(f.list.Resize());
}

TEST(LargeListMembers, AtDesignTimePaintShowsTheName) {
    FakeLargeList f({.UserMode = false});
    f.list.Paint();
    EXPECT_EQ(f.log().Named("Rectangle").size(), 1u);
    const auto texts = f.log().Named("DrawTextA");
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].text, "roster1");
    EXPECT_EQ(texts[0].values[0], 32);
    FakeLargeList running;
    running.list.Paint();
    EXPECT_TRUE(running.log().Drawing().empty());
}

TEST(LargeListMembers, TheHookIsSetUpInOrder) {
    FakeComponent component(true, 200, 100, 2);
    LargeListServices services(component.log);
    auto* before = host::SetServices(&services);
    {
        qRosterex list;
        FakeBag bag;
        list.Initialize(component);
        list.ReadProperties(bag);
        Lines names;
        for (const Call& call : component.log.All())
            if (call.name.starts_with("hook.")) names.push_back(call.name.substr(5));
        EXPECT_EQ(names,
                  (Lines{"HookMode", "ScrollHBarShown", "ScrollBarShown", "HookAttach", "ScrollLarge"}));
        list.Terminate();
    }
    host::SetServices(before);
}

TEST(LargeListMembers, OwnKeysArePersistedAfterTheSharedOnes) {
    FakeLargeList f({.MultiSelect = 1});
    FakeBag bag;
    f.list.WriteProperties(bag);
    Lines keys;
    for (const auto& entry : bag.written) keys.push_back(entry.key);
    ASSERT_GE(keys.size(), 5u);
    EXPECT_EQ(Lines(keys.end() - 5, keys.end()),
              (Lines{"Appearance", "MultiSelect", "BorderStyle", "Font", "FontTransparent"}));
    EXPECT_EQ(std::ranges::count(keys, "HeaderHeight"), 0);
}

TEST(LargeListMembers, ABaseEventIsForwardedUnchanged) {
    FakeLargeList f;
    int seen = 0;
    f.list.events.MouseDown = [&](std::int16_t& button, std::int16_t& shift, float& x, float& y) {
        EXPECT_EQ(button, 1);
        EXPECT_EQ(shift, 2);
        EXPECT_EQ(x, 3.5F);
        y = 9;
        ++seen;
    };
    f.list.events.KeyPress = [&](std::int16_t& key) {
        key = 0;
        ++seen;
    };
    std::int16_t button = 1, shift = 2, key = 65;
    float x = 3.5F, y = 4;
    f.list.MouseDown(button, shift, x, y);
    f.list.KeyPress(key);
    EXPECT_EQ(seen, 2);
    EXPECT_EQ(y, 9);
    EXPECT_EQ(key, 0);
}

} // namespace
} // namespace tvok::test
