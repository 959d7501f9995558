// A form that is saved to a file and loaded into another form, with a control type of the program's own.
// With "--headless FILE" it checks that the loaded form is as the saved one and saves what it looks like.

#include <string>

#include <tvok/engine/dgi.h>
#include <tvok/tvok.h>

class Lamp : public tvok::host::Control { // a filled rectangle; its colour is kept in the form file
public:
    tvok::OLE_COLOR color = 0x00C000;

    void Initialize(tvok::host::Component& component) override { component_ = &component; }
    void ReadProperties(tvok::host::PropertyBag& bag) override {
        color = tvok::host::Read(bag, "Color", std::int32_t{0x00C000});
    }
    void WriteProperties(tvok::host::PropertyBag& bag) override {
        bag.WriteProperty("Color", color, std::int32_t{0x00C000}); // a default is left out of the file
    }
    void Paint() override {
        tvok::tvok_Rect area;
        tvok::host::platform().GetClientRect(component_->hWnd(), area);
        tvok::dgi::FillRectColor(component_->hDC(), area, color);
    }

private:
    tvok::host::Component* component_ = nullptr;
};

int main(int argc, char** argv) {
    const bool headless = argc == 3; // --headless FILE
    tvok::DesktopOptions options;
    if (headless) options.display = tvok::DesktopOptions::Display::Headless;
    tvok::Desktop desktop(options);
    tvok::RegisterControl<Lamp>("Lamp"); // before a file names it

    const std::string file = headless ? std::string(argv[2]) + ".toml" : "panel.toml";
    auto& made = desktop.AddForm("Panel", 220, 100);
    made.Add<Lamp>("alarm", {8, 8, 24, 24}).color = 0x0000E0;
    made.Add<tvok::qRoster>("list", {40, 8, 172, 84}).ItemHeight(20);
    made.Save(file);

    auto& form = desktop.AddForm("", 100, 100); // the file brings caption and size
    form.Load(file);
    made.Close(); // not before: the desktop is over when its last form closes
    auto* list = form.Find<tvok::qRoster>("list"); // events and items are the program's, not the file's
    auto* lamp = form.Find<Lamp>("alarm");
    if (!list || !lamp) return 1;
    for (const char* text : {"pump 1 stopped", "pump 2 runs"}) list->AddItem(0, {.text = text});
    list->Refresh();
    if (!headless) return desktop.Run();
    desktop.Run();
    desktop.SaveForm(form, argv[2]);
    return lamp->color == 0x0000E0 && list->ItemHeight() == 20 && form.Caption() == "Panel" ? 0 : 1;
}
