#include "apps/gallery/pictures.h"

#include <chrono>
#include <filesystem>
#include <memory>

#include "apps/gallery/Window.h"

namespace gallery {

namespace {

std::vector<tvok::Form*> FormsOf(const tvok::Desktop& desktop) {
    std::vector<tvok::Form*> forms;
    for (const auto& form : desktop.Forms()) forms.push_back(form.get());
    return forms;
}

/// A popup is a window of its own: what the screen shows where the form is.
void SaveWithPopups(tvok::Desktop& desktop, const tvok::Form& form, const std::string& file) {
    tvok::tvok_Rect rect;
    tvok::host::platform().GetWindowRect(form.hWnd(), rect);
    desktop.SaveScreen(file, rect);
}

void Save(tvok::Desktop& desktop, const Scene& scene, const tvok::Form& form, const std::string& file) {
    scene.popups ? SaveWithPopups(desktop, form, file) : desktop.SaveForm(form, file);
}

/// In place of the one that is open.
std::shared_ptr<Window> OpenAnew(tvok::Desktop& desktop, const std::string& page, Panes panes) {
    const std::vector<tvok::Form*> before = FormsOf(desktop);
    std::shared_ptr<Window> window = Window::Open(desktop, page, panes);
    for (tvok::Form* form : before) form->Close(); // behind the new one: a desktop is over with its last
    desktop.ProcessEvents(std::chrono::milliseconds(0));
    return window;
}

/// So that the pictures are the same at any time of day.
void SetClock(EventStore& store) {
    using namespace std::chrono;
    store.Clock([now = milliseconds(hours(9) + minutes(30))]() mutable { return now += milliseconds(125); });
}

} // namespace

std::vector<std::string> WritePictures(tvok::Desktop& desktop, const PageEntry& entry,
                                       const std::vector<std::string>& themes, const std::string& folder) {
    std::filesystem::create_directories(folder);
    std::vector<std::string> files;
    for (const std::string& theme : themes) {
        desktop.SetTheme(tvok::Theme::ByName(theme));
        const auto window = OpenAnew(desktop, entry.name, Panes::None);
        for (const Scene& scene : window->page().Scenes()) {
            scene.act();
            desktop.ProcessEvents(std::chrono::milliseconds(0));
            const std::string name =
                std::string(entry.name) + "-" + theme + (scene.name.empty() ? "" : "-") + scene.name;
            files.push_back((std::filesystem::path(folder) / (name + ".png")).string());
            Save(desktop, scene, window->form(), files.back());
        }
    }
    return files;
}

std::vector<std::string> WriteWorkbench(tvok::Desktop& desktop, const std::vector<std::string>& themes,
                                        const std::string& folder) {
    std::filesystem::create_directories(folder);
    std::vector<std::string> files;
    for (const std::string& theme : themes) {
        desktop.SetTheme(tvok::Theme::ByName(theme));
        const auto window = OpenAnew(desktop, "lists", Panes::Shown);
        SetClock(window->log()->store());
        for (const Scene& scene : window->Scenes()) {
            scene.act();
            desktop.ProcessEvents(std::chrono::milliseconds(0));
            window->Turn(std::chrono::milliseconds(0));
            desktop.ProcessEvents(std::chrono::milliseconds(0));
            const std::string name = "workbench-" + theme + (scene.name.empty() ? "" : "-") + scene.name;
            files.push_back((std::filesystem::path(folder) / (name + ".png")).string());
            Save(desktop, scene, window->form(), files.back());
        }
    }
    return files;
}

} // namespace gallery
