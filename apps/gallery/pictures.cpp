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

} // namespace

std::vector<std::string> WritePictures(tvok::Desktop& desktop, const PageEntry& entry,
                                       const std::vector<std::string>& themes, const std::string& folder) {
    std::filesystem::create_directories(folder);
    std::vector<std::string> files;
    for (const std::string& theme : themes) {
        desktop.SetTheme(tvok::Theme::ByName(theme));
        const std::vector<tvok::Form*> before = FormsOf(desktop);
        const std::shared_ptr<Window> window = Window::Open(desktop, entry.name);
        for (tvok::Form* form : before) form->Close(); // behind the new one: a desktop is over with its last
        desktop.ProcessEvents(std::chrono::milliseconds(0));
        for (const Scene& scene : window->page().Scenes()) {
            scene.act();
            desktop.ProcessEvents(std::chrono::milliseconds(0));
            const std::string name =
                std::string(entry.name) + "-" + theme + (scene.name.empty() ? "" : "-") + scene.name;
            files.push_back((std::filesystem::path(folder) / (name + ".png")).string());
            scene.popups ? SaveWithPopups(desktop, window->form(), files.back())
                         : desktop.SaveForm(window->form(), files.back());
        }
    }
    return files;
}

} // namespace gallery
