// The gallery: tvok's controls with real data, in a window or as pictures.

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "apps/gallery/options.h"
#include "apps/gallery/pictures.h"

namespace {

int WriteAll(tvok::Desktop& desktop, const gallery::Options& options) {
    const std::string folder = options.headlessFolder.empty() ? "out" : options.headlessFolder;
    std::vector<std::string> themes{"classic", "dark", "contrast"};
    if (!options.theme.empty()) themes = {options.theme};
    const auto files = gallery::WritePictures(desktop, *gallery::FindPage(options.page), themes, folder);
    for (const std::string& file : files) std::printf("%s\n", file.c_str());
    std::printf("%zu pictures are in %s\n", files.size(), folder.c_str());
    return 0;
}

int Run(const gallery::Options& options) {
    tvok::DesktopOptions settings;
    if (!options.headlessFolder.empty()) settings.display = tvok::DesktopOptions::Display::Headless;
    if (!options.theme.empty()) settings.theme = tvok::Theme::ByName(options.theme);
    tvok::Desktop desktop(settings);

    if (desktop.IsHeadless()) return WriteAll(desktop, options);
    std::shared_ptr<gallery::Page> page;
    gallery::OpenPage(desktop, *gallery::FindPage(options.page), page);
    return desktop.Run();
}

} // namespace

int main(int argc, char** argv) {
    gallery::Options options;
    std::string error;
    if (!gallery::ParseOptions(std::vector<std::string>(argv + 1, argv + argc), options, error)) {
        std::fprintf(stderr, "gallery: %s\n%s", error.c_str(), gallery::Usage().c_str());
        return 2;
    }
    if (options.help) {
        std::fputs(gallery::Usage().c_str(), stdout);
        return 0;
    }
    try {
        return Run(options);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "gallery: %s\n", failure.what());
        return 1;
    }
}
