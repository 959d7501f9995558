// A program that asks what the library's objects are, and catches what it throws: types that both know.

#include <chrono>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <typeinfo>

#include <tvok/tvok.h>

namespace {

int bad = 0;

void Check(bool holds, const char* what) {
    if (!holds) std::printf("not so: %s\n", what);
    bad += holds ? 0 : 1;
}

/// The program's own, which goes through the library.
struct OwnError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

void CatchTheLibrarysErrors(tvok::Form& form) {
    const std::string file = "/nowhere/to-be-found.toml";
    std::string caught;
    try {
        form.Load(file);
    } catch (const tvok::FileError& error) {
        caught = error.what();
    } catch (...) {
        caught = "something else";
    }
    Check(caught.find(file) != std::string::npos, "a file that is not there is a FileError with its name");
    bool base = false;
    try {
        tvok::Theme::ByName("none");
    } catch (const tvok::FileError&) { // which it is not
    } catch (const tvok::Error&) {
        base = true;
    }
    Check(base, "a theme that is not there is an Error and no FileError");
}

void AskForTypes(tvok::Form& form, tvok::qRoster& list) {
    tvok::host::Control* const found = form.Find("list1");
    Check(dynamic_cast<tvok::qRoster*>(found) == &list, "the control is a qRoster");
    Check(dynamic_cast<tvok::gList*>(found) == nullptr, "and no gList");
    Check(found && typeid(*found) == typeid(tvok::qRoster), "its type is that of the program's qRoster");
    Check(form.Find<tvok::TextBox>("name") != nullptr, "the other one is a TextBox");
}

void ThrowThroughTheLibrary(tvok::Desktop& desktop, tvok::Form& form, tvok::qRoster& list) {
    list.events.Change = [](std::int32_t, tvok::qrosterdata&) { throw OwnError("from the handler"); };
    form.Move(0, 0);
    const tvok::host::Handle window = form.ComponentOf(list).hWnd();
    tvok::host::Point place{20, 10};
    tvok::host::platform().ClientToScreen(window, place);
    desktop.Input().MouseMove(place.x, place.y);
    desktop.Input().MouseDown(tvok::desktop::MouseButton::Left);
    std::string caught;
    try {
        desktop.ProcessEvents(std::chrono::milliseconds(0));
    } catch (const OwnError& error) {
        caught = error.what();
    }
    Check(caught == "from the handler", "what a handler throws comes to the program");
}

} // namespace

int main() {
    tvok::DesktopOptions options;
    options.display = tvok::DesktopOptions::Display::Headless;
    tvok::Desktop desktop(options);
    CatchTheLibrarysErrors(desktop.AddForm("Empty", 100, 100));
    auto& form = desktop.AddForm("Stock", 240, 120);
    auto& list = form.Add<tvok::qRoster>("list1", {8, 8, 224, 80});
    form.Add<tvok::TextBox>("name", {8, 92, 100, 20});
    list.AddItem(0, {.text = "ant"});
    list.Refresh();
    AskForTypes(form, list);
    ThrowThroughTheLibrary(desktop, form, list);
    return bad;
}
