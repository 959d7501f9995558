#include "apps/gallery/pictures.h"

#include <chrono>
#include <filesystem>

namespace gallery {

tvok::Form& OpenPage(tvok::Desktop& desktop, const PageEntry& entry, std::shared_ptr<Page>& page) {
    tvok::Form& form = desktop.AddForm("tvok gallery", FormWidth, FormHeight);
    page = entry.make(desktop, form);
    form.events.Closed = [page] {};
    return form;
}

std::vector<std::string> WritePictures(tvok::Desktop& desktop, const PageEntry& entry,
                                       const std::vector<std::string>& themes, const std::string& folder) {
    std::filesystem::create_directories(folder);
    std::vector<std::string> files;
    tvok::Form* before = nullptr; // closed behind the next one: a desktop is over with its last form
    for (const std::string& theme : themes) {
        desktop.SetTheme(tvok::Theme::ByName(theme));
        std::shared_ptr<Page> page;
        tvok::Form& form = OpenPage(desktop, entry, page);
        if (before != nullptr) before->Close();
        desktop.ProcessEvents(std::chrono::milliseconds(0));
        for (const Scene& scene : page->Scenes()) {
            scene.act();
            desktop.ProcessEvents(std::chrono::milliseconds(0));
            const std::string name =
                std::string(entry.name) + "-" + theme + (scene.name.empty() ? "" : "-") + scene.name;
            files.push_back((std::filesystem::path(folder) / (name + ".png")).string());
            desktop.SaveForm(form, files.back());
        }
        before = &form;
    }
    return files;
}

} // namespace gallery
