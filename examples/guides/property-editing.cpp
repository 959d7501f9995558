// Settings of a server: two texts that are typed into a box in their row, and a number. A port that is no
// number is not taken. With "--headless FILE" a user of its own types a port, and then one that is none.

#include <string>
#include <tvok/tvok.h>

int main(int argc, char** argv) {
    const bool headless = argc == 3; // --headless FILE
    tvok::DesktopOptions options;
    if (headless) options.display = tvok::DesktopOptions::Display::Headless;
    tvok::Desktop desktop(options);
    auto& form = desktop.AddForm("Server", 260, 96);
    auto& list = form.Add<tvok::gList>("list", {8, 8, 244, 80});
    auto& box = form.Add<tvok::TextBox>("box", {0, 0, 10, 10}); // the editor of both texts
    auto& place = form.ComponentOf(box);
    place.ZOrder(0); // in front of the list
    place.Visible(false);
    list.events.ExItemShowCov = [](tvok::elistdata& x) { x.item.text = x.nData.AsText(); };
    list.events.ExEditorIni = [&](tvok::elistdata& x) { box.Text(x.nData.AsText()); };
    list.events.ExEditorSetPosition = [&](const std::string&, std::int32_t& left, std::int32_t& top,
                                          std::int32_t& width, std::int32_t& height) {
        const auto& base = form.ComponentOf(list); // what comes are twips of the list
        place.Move(base.Left() + static_cast<float>(left), base.Top() + static_cast<float>(top));
        place.Size(static_cast<float>(width), static_cast<float>(height));
    };
    list.events.ExEditorShow = [&](const std::string&) { place.Visible(true); };
    list.events.ExEditorHide = [&](const std::string&) { place.Visible(false); };
    list.events.ExEditorDataRestore = [&](const std::string& key) {
        const bool good = key != "port" || box.Text().find_first_not_of("0123456789") == std::string::npos;
        if (good) list.SetData(box.Text(), key); // else the row keeps its value
    };
    box.events.Enter = [&] { // on to the next row, from the last to the first
        list.KeyIn(list.ListIndex() < list.Count() ? tvok::host::VK_DOWN : tvok::host::VK_HOME);
    };
    const auto add = [&](const char* key, const char* caption, const char* type, const tvok::Variant& value) {
        tvok::elistdata item = list.DefaultItem();
        item.hItem = {.text = caption, .key = key, .vflag = tvok::vflag::TextAtEdge};
        if (*type == 0) item.item.vflag = tvok::vflag::Editor;
        item.xbuttons = type;
        item.nData = value;
        list.AddItem(item);
    };
    add("copies", "Copies", "b|1-12|2;ns", 4); // the list edits this one by itself
    add("host", "Host", "", "localhost");
    add("port", "Port", "", "8080");
    list.BuiltList();
    if (!headless) return desktop.Run();
    for (const char* typed : {"9090", "ninety"}) {
        list.KeyIn(tvok::host::VK_END); // the last row, whose box opens
        place.SetFocus();
        box.Select(0, 99);
        desktop.Input().Text(typed);
        desktop.Run();
        list.KeyIn(tvok::host::VK_HOME); // leaves it
    }
    list.KeyIn(tvok::host::VK_END); // for the picture
    desktop.SaveForm(form, argv[2]);
    return list.GetData("port") == tvok::Variant("9090") ? 0 : 1;
}
