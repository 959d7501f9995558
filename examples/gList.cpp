// A property list for a small scene: a colour, a number, a choice, and a text that is typed into a box in its
// row. With "--headless FILE" a user of its own types a new title and folds a group, and the picture shows
// the end.

#include <string_view>
#include <tvok/tvok.h>

int main(int argc, char** argv) {
    const bool headless = argc == 3 && std::string_view(argv[1]) == "--headless";
    tvok::DesktopOptions options;
    if (headless) options.display = tvok::DesktopOptions::Display::Headless;
    tvok::Desktop desktop(options);
    auto& form = desktop.AddForm("Scene", 320, 220);
    auto& list = form.Add<tvok::gList>("list", {8, 8, 304, 204});
    auto& box = form.Add<tvok::TextBox>("box", {0, 0, 10, 10}); // the editor of the title's row
    auto& boxBase = form.ComponentOf(box);
    boxBase.ZOrder(0); // in front of the list
    boxBase.Visible(false);
    list.ListMode(1); // groups
    const auto add = [&](const char* group, const char* key, const char* caption, const char* type,
                         const tvok::Variant& value, std::int32_t flags) {
        tvok::elistdata item = list.DefaultItem();
        item.bParentItem = *group == 0;
        item.pKey = group;
        item.hItem = {.text = caption, .key = key, .vflag = tvok::vflag::TextAtEdge};
        item.item.vflag = flags;
        item.xbuttons = type;
        item.nData = value;
        list.AddItem(item);
    };
    list.events.EnumPopStr = [](std::int32_t, std::string& text) {
        text = "106=0\r\n107=Day\r\n999\r\n106=1\r\n107=Night\r\n999\r\n";
    };
    list.events.ExItemShowCov = [](tvok::elistdata& x) { x.item.text = x.nData.AsText(); };
    list.events.ExEditorIni = [&](tvok::elistdata& x) { box.Text(x.nData.AsText()); };
    list.events.ExEditorSetPosition = [&](const std::string&, std::int32_t& left, std::int32_t& top,
                                          std::int32_t& width, std::int32_t& height) {
        const auto& base = form.ComponentOf(list); // places are twips of the list
        boxBase.Move(base.Left() + static_cast<float>(left), base.Top() + static_cast<float>(top));
        boxBase.Size(static_cast<float>(width), static_cast<float>(height));
    };
    list.events.ExEditorShow = [&](const std::string&) { boxBase.Visible(true); };
    list.events.ExEditorHide = [&](const std::string&) { boxBase.Visible(false); };
    list.events.ExEditorDataRestore = [&](const std::string& key) { list.SetData(box.Text(), key); };

    add("", "look", "Look", "", {}, 0);
    add("look", "sky", "Sky", "b|0|2|b|1|2|...|2|0;cs", 0xE0A060, tvok::vflag::IconBox);
    add("look", "time", "Time", "b|0|2;li 1", 1, 0);
    add("", "scene", "Scene", "", {}, 0);
    add("scene", "title", "Title", "", "Harbour", tvok::vflag::Editor);
    add("scene", "boats", "Boats", "b|1-12|2;ns", 7, 0);
    list.BuiltList();
    if (!headless) return desktop.Run();
    list.KeyIn(35); // End: the title, whose box opens
    box.Text("Harbour at night");
    list.KeyIn(38); // leaves the row, which takes the text over
    desktop.SaveScreen(argv[2]);
    return list.GetData("title") == tvok::Variant("Harbour at night") ? 0 : 1;
}
