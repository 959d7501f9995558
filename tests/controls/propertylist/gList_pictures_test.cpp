// What a property list looks like, pixel by pixel: the pictures in tests/golden/propertylist.
#include "tests/support/PropertyListPaint.h"

namespace tvok::test {
namespace {

/// Two groups of typed values, of which "Shape" is folded, and a third without rows.
std::vector<elistdata> Properties() {
    std::vector<elistdata> items;
    for (const char* group : {"Behaviour", "Look", "Shape"})
        items.push_back(PropertyListDesktop::Group(group));
    items.back().hItem.vflag = vflag::Collapsed;
    const auto add = [&](const char* group, const char* name, const char* xbuttons, const Variant& value,
                         std::int32_t flags = 0) {
        items.push_back(PropertyListDesktop::Value(name, group, xbuttons));
        items.back().nData = value;
        items.back().item.vflag = flags;
    };
    add("Look", "BackColor", "b|0|2|b|1|2|...|2|0;cs", 0x66CCFF, vflag::IconBox | vflag::IconBorder);
    add("Look", "ItemHeight", "b|1-40|2;ns", 18, vflag::TextAtEdge);
    add("Look", "Caption", ";lt", "Some text", vflag::Editor | vflag::Bold);
    add("Behaviour", "Sorted", "b|x|2;lt 1", "True", vflag::RightAligned);
    add("Shape", "Width", ";ns", 120);
    return items;
}

struct Pictured : PropertyListDesktop {
    explicit Pictured(const PropertyListSetup& setup) : PropertyListDesktop(setup) {}
    void Expect(const std::string& name) { ExpectPicture("propertylist/" + name, desktop, *list); }
};

void ExpectGrouped(const Theme& theme) {
    Pictured at({.ListMode = 1, .place = {0, 0, 260, 176}});
    at.desktop.desktop().SetTheme(theme);
    at.Show(Properties());
    at.list->ListIndex(4);
    at.Expect("grouped-" + theme.name);
}

TEST(gListPictures, GroupsWithAFoldedOneAndTheStripOfTheCurrentRowInTheClassicTheme) {
    ExpectGrouped(Theme::Classic());
}

TEST(gListPictures, GroupsWithAFoldedOneAndTheStripOfTheCurrentRowInTheDarkTheme) {
    ExpectGrouped(Theme::Dark());
}

TEST(gListPictures, GroupsWithAFoldedOneAndTheStripOfTheCurrentRowInHighContrast) {
    ExpectGrouped(Theme::HighContrast());
}

TEST(gListPictures, AFlatListWithLinesOnItsBorder) {
    Pictured at({.place = {0, 0, 260, 121}});
    at.list->GridlineOnBorder(true);
    at.Show(Properties());
    at.list->ListIndex(3);
    at.Expect("flat");
}

TEST(gListPictures, AFoldedGroupIsTheCurrentRow) {
    Pictured at({.ListMode = 1, .place = {0, 0, 200, 95}});
    at.list->GridlineWidth(0);
    at.Show(Properties());
    at.PressHead(3);
    at.desktop.Release();
    at.Expect("folded");
}

TEST(gListPictures, ANarrowListHasNoRoomForItsStrip) {
    Pictured at({.ListMode = 1, .place = {0, 0, 150, 133}});
    at.Show(Properties());
    at.list->ListIndex(4);
    at.Expect("narrow");
}

TEST(gListPictures, AnEditorStandsInItsRowBesideTheStrip) {
    Pictured at({.place = {0, 0, 260, 95}});
    auto& box = at.desktop.form().Add<TextBox>("editor", {0, 0, 1, 1});
    host::Component& base = at.desktop.form().ComponentOf(box);
    base.BorderStyle(0);
    base.Visible(false);
    box.BackColor(0xC0FFFF);
    at.list->events.ExEditorIni = [&](elistdata& x) { box.Text(x.nData.AsText()); };
    at.list->events.ExEditorSetPosition = [&](const std::string&, std::int32_t& x, std::int32_t& y,
                                              std::int32_t& w, std::int32_t& h) {
        at.desktop.form().Place(box, {x / 15, y / 15, w / 15, h / 15});
    };
    at.list->events.ExEditorShow = [&](const std::string&) {
        base.ZOrder(0);
        base.Visible(true);
    };
    auto items = Properties();
    items[5].xbuttons = "...|x|0;lt";
    at.Show(items);
    at.ClickRow(2);
    at.Expect("editor");
}

TEST(gListPictures, AScrolledListEndsInAPartOfARow) {
    Pictured at({.ListMode = 1, .place = {0, 0, 200, 65}});
    at.Show(Properties());
    at.list->ListIndex(4);
    at.hook->ScrollValue(2);
    at.desktop.Pump();
    ExpectPictureWithFrame("propertylist/scrolled", at.desktop, *at.list);
}

} // namespace
} // namespace tvok::test
