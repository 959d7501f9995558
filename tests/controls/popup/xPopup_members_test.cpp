// Properties, settings in a property bag, and the life cycle.
#include "tests/support/PopupTestDesktop.h"
#include "tvok/engine/dgi.h"
#include "tvok/host/MemoryBag.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Properties.

struct Number {
    const char* name;
    std::int32_t (*read)(const xPopup&);
    void (*write)(xPopup&, std::int32_t);
    std::int32_t least; ///< What is below is ignored.
};

#define NUMBER(name, least)                                                                                  \
    Number {                                                                                                 \
#name, [](const xPopup& p) { return p.name(); }, [](xPopup & p, std::int32_t v) { p.name(v); },      \
                                                                                                     least   \
    }

constexpr std::int32_t kAny = INT32_MIN;

class xPopupNumber : public testing::TestWithParam<Number> {};

TEST_P(xPopupNumber, KeepsWhatIsAcceptedIgnoresTheRestAndPaintsNothing) {
    const Number& property = GetParam();
    PopupDesktop at({"a", "b"});
    at.Open();
    const auto trace = at.desktop.Trace([&] {
        property.write(*at.popup, 37);
        EXPECT_EQ(property.read(*at.popup), 37);
        for (const std::int32_t value : {INT32_MAX, 1, 0, -1, INT32_MIN + 1}) {
            const std::int32_t before = property.read(*at.popup);
            property.write(*at.popup, value);
            EXPECT_EQ(property.read(*at.popup), value >= property.least ? value : before) << value;
        }
    });
    EXPECT_THAT(trace, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Each, xPopupNumber,
                         testing::Values(NUMBER(CX_TEXT, 0), NUMBER(GridlineWidth, 0), NUMBER(xn, 1),
                                         NUMBER(yn, 1), NUMBER(ItemHeight, 1), NUMBER(ItemWidth, 1),
                                         NUMBER(IconPos, kAny), NUMBER(IconHandle, kAny),
                                         NUMBER(HeadWidthEx, kAny), NUMBER(BackColor, kAny),
                                         NUMBER(SelectedColor, kAny), NUMBER(IconBorderColor, kAny),
                                         NUMBER(GridlineColor, kAny), NUMBER(HeadExBackColor, kAny),
                                         NUMBER(HeadExBorderColor, kAny)),
                         [](const auto& info) { return info.param.name; });

TEST(xPopupMembers, FlagsTextsAndScratchValuesAreKept) {
    PopupDesktop at;
    at.popup->HotTrack(true);
    at.popup->GridlineOnBorder(true);
    at.popup->FixedWidthForLastXn(true);
    EXPECT_TRUE(at.popup->HotTrack() && at.popup->GridlineOnBorder() && at.popup->FixedWidthForLastXn());
    at.popup->ColWidthSettingStr("  0,50 ");
    at.popup->TabStopSettingStr(" 40, 60  ");
    EXPECT_EQ(at.popup->ColWidthSettingStr(), "0,50");
    EXPECT_EQ(at.popup->TabStopSettingStr(), "40, 60");
    at.popup->TmpKey(" key ");
    at.popup->TmpData(Variant("old"));
    EXPECT_EQ(at.popup->TmpKey(), " key ");
    EXPECT_EQ(at.popup->TmpData(), Variant("old"));
}

TEST(xPopupMembers, TheIconHandleCanBeReadAgain) {
    PopupDesktop at;
    at.popup->IconHandle(5);
    EXPECT_EQ(at.popup->IconHandle(), 5);
    EXPECT_EQ(at.popup->IconHandle(), 5);
}

TEST(xPopupMembers, AWriteShowsWithTheNextOpening) {
    PopupDesktop at({"a", "b"});
    at.Open();
    const auto before = at.Pixels();
    at.popup->BackColor(0x0000FF);
    at.popup->ItemHeight(40);
    at.desktop.Pump();
    EXPECT_EQ(at.Pixels(), before);
    at.desktop.Key(host::VK_ESCAPE);
    at.Open();
    EXPECT_EQ(at.ClientRect().bottom, 82);
}

TEST(xPopupMembers, TheFontIsThatOfTheFloatingWindow) {
    PopupDesktop at({"a"});
    host::FontPtr own = at.popup->Font();
    EXPECT_NE(own, at.desktop.form().ComponentOf(*at.popup).Font());
    const std::int32_t before = at.popup->TextHeight();
    own->Size(own->Size() * 2);
    EXPECT_EQ(at.popup->TextHeight(), before * 2) << "it is computed at each read";
    at.popup->Font(*at.desktop.form().ComponentOf(*at.popup).Font());
    EXPECT_EQ(at.popup->TextHeight(), before);
    own->Size(40);
    at.popup->SetToSystemfont(false);
    EXPECT_EQ(own->Size(), 40);
    at.popup->SetToSystemfont();
    EXPECT_NE(own->Size(), 40);
    EXPECT_TRUE(at.popup->FontTransparent());
    at.popup->FontTransparent(false);
    EXPECT_FALSE(at.popup->FontTransparent());
}

TEST(xPopupMembers, hwndIsThePlaceholdersWindow) {
    PopupDesktop at({"a"});
    at.Open();
    EXPECT_EQ(at.popup->hwnd(), at.desktop.WindowOf(*at.popup));
    EXPECT_NE(at.popup->hwnd(), at.Floating());
}

// Settings.

/// Compares names exactly and keeps what was asked for, in order.
class ListedBag : public host::MemoryBag {
public:
    std::vector<std::string> written, read;
    host::PropertyValue ReadProperty(std::string_view name, const host::PropertyValue& value) override {
        read.emplace_back(name);
        return MemoryBag::ReadProperty(name, value);
    }
    void WriteProperty(std::string_view name, const host::PropertyValue& value,
                       const host::PropertyValue& defaultValue) override {
        written.emplace_back(name);
        MemoryBag::WriteProperty(name, value, defaultValue);
    }
};

TEST(xPopupSettings, TheFontIsWrittenAndNeverRead) {
    PopupDesktop at;
    ListedBag bag;
    at.popup->Font()->Size(30);
    at.popup->FontTransparent(false);
    at.popup->xn(3);
    at.popup->WriteProperties(bag);
    EXPECT_THAT(bag.written, testing::IsSupersetOf({"TmpKey", "xn", "Font", "FontTransparent"}));
    EXPECT_EQ(bag.written.size(), 24u);
    EXPECT_EQ(bag.written[22], "Font");
    EXPECT_EQ(bag.written[23], "FontTransparent");

    PopupDesktop other;
    const float before = other.popup->Font()->Size();
    other.popup->ReadProperties(bag);
    EXPECT_EQ(other.popup->Font()->Size(), before);
    EXPECT_FALSE(other.popup->FontTransparent());
    EXPECT_EQ(other.popup->xn(), 3);
    EXPECT_THAT(bag.read, testing::Not(testing::Contains("Font")));
    EXPECT_EQ(bag.read.back(), "FontTransparent");
}

TEST(xPopupSettings, TheKeysOfAutomaticColumnsAndFixedWidthHaveNoEffect) {
    PopupDesktop at(Lines(9));
    host::MemoryBag bag;
    bag.WriteProperty("xnauto", true, false);
    bag.WriteProperty("FixedWidthForLastXn", true, false);
    bag.WriteProperty("xn", std::int32_t{3}, std::int32_t{1});
    at.popup->ReadProperties(bag);
    EXPECT_FALSE(at.popup->FixedWidthForLastXn());
    at.Open();
    EXPECT_EQ(at.popup->xn(), 3);
    EXPECT_EQ(at.ClientRect().Right, 302) << "three columns of 100 with a line between them";
}

TEST(xPopupSettings, ANewControlInADesignerStartsWithTheSettingsOfANewList) {
    TestDesktop desktop;
    desktop.form().UserMode(false);
    auto& popup = desktop.form().Add<xPopup>("popup1", {0, 0, 10, 10});
    EXPECT_EQ(popup.GridlineWidth(), 0);
    EXPECT_EQ(popup.yn(), 5);
    PopupDesktop running;
    EXPECT_EQ(running.popup->GridlineWidth(), 1) << "the key's default";
}

// The placeholder.

TEST(xPopupLifeCycle, ThePlaceholderCannotBeResized) {
    TestDesktop desktop;
    desktop.form().UserMode(false);
    auto& popup = desktop.form().Add<xPopup>("popup1", {10, 10, 300, 200});
    const auto size = [&] {
        tvok_Rect rect;
        host::platform().GetClientRect(desktop.WindowOf(popup), rect);
        return rect;
    };
    EXPECT_EQ(size(), (tvok_Rect{0, 0, 18, 17}));
    desktop.form().ComponentOf(popup).Width(3000);
    EXPECT_EQ(size(), (tvok_Rect{0, 0, 18, 17}));
    desktop.form().Place(popup, {10, 10, 5, 5});
    EXPECT_EQ(size(), (tvok_Rect{0, 0, 18, 17}));
}

TEST(xPopupLifeCycle, ItShowsAtDesignTimeAndNotAtRunTime) {
    TestDesktop desktop;
    desktop.form().UserMode(false);
    auto& designed = desktop.form().Add<xPopup>("popup1", {310, 10, 18, 17});
    desktop.Pump();
    const auto pixels = desktop.Pixels(designed);
    EXPECT_NE(std::count(pixels.begin(), pixels.end(), pixels[0]), static_cast<long>(pixels.size()));

    PopupDesktop at({"a"});
    EXPECT_FALSE(host::platform().IsWindowVisible(at.popup->hwnd()));
    EXPECT_FALSE(at.IsOpen());
}

TEST(xPopupLifeCycle, TheFloatingWindowIsAToolWindow) {
    PopupDesktop at({"a"});
    at.Open();
    EXPECT_NE(host::platform().GetWindowExStyle(at.Floating()) & host::WS_EX_TOOLWINDOW, 0);
}

TEST(xPopupLifeCycle, AtDesignTimeItOpensWithoutHooksAndWithoutAnError) {
    TestDesktop desktop;
    desktop.form().UserMode(false);
    auto& popup = desktop.form().Add<xPopup>("popup1", {0, 0, 10, 10});
    popup.AddItem({.text = "a"});
    EXPECT_NO_THROW(popup.Popup());
    EXPECT_NO_THROW(popup.ListIndex(1));
    EXPECT_EQ(popup.ListIndex(), 1);
    desktop.Pump();
}

TEST(xPopupLifeCycle, EndingWithTheFormWhileOpenRaisesNothingAndLeavesNoCapture) {
    PopupDesktop at({"a"});
    at.Open();
    at.desktop.form().Remove(*at.popup);
    at.desktop.Pump();
    EXPECT_FALSE(at.IsOpen());
    EXPECT_EQ(host::platform().GetCapture(), 0);
    at.desktop.Key('A');
    EXPECT_THAT(at.owner.TakeLog(), testing::Contains("KeyDown 65 0"));
    EXPECT_THAT(at.story, IsEmpty());
}

TEST(xPopupLifeCycle, AsAChildOfAnotherControlItOpensAndOutlivesItsEnd) {
    PopupDesktop at;
    xPopup child;
    std::int32_t clicks = 0;
    child.events.Click = [&](std::int32_t, qrosterdata&, bool) { ++clicks; };
    at.owner.component->AddChild(child, "child", {0, 0, 18, 17}, nullptr);
    child.SetColorPal(PAL8x8);
    child.SetParentHwnd(at.owner.component->hWnd());
    child.Popup();
    EXPECT_TRUE(at.IsOpen());
    at.desktop.Key(host::VK_ESCAPE);
    EXPECT_EQ(clicks, 1);
    child.Popup();
    at.owner.component->RemoveChild(child);
    at.desktop.Pump();
    EXPECT_FALSE(at.IsOpen());
    EXPECT_EQ(clicks, 1) << "an end with its parent is no choice";
    EXPECT_THROW(child.hwnd(), ObjectError);
    EXPECT_THROW(child.CalTextWidth(), ObjectError);
    EXPECT_NO_THROW(child.Popup());
    EXPECT_NO_THROW(child.ListIndex(3));
    EXPECT_EQ(child.Count(), 64);
    EXPECT_FALSE(at.IsOpen());
}

TEST(xPopupLifeCycle, BeforeItsStartItIsAnObjectErrorOrNothing) {
    xPopup popup;
    EXPECT_THROW(popup.hwnd(), ObjectError);
    EXPECT_THROW(popup.TextHeight(), ObjectError);
    EXPECT_THROW(popup.Count(3), ObjectError);
    EXPECT_NO_THROW(popup.Popup());
    EXPECT_NO_THROW(popup.ListIndex(1));
}

} // namespace
} // namespace tvok::test
