// The gallery: tvok's controls with real data, in a window or as pictures.

#include <chrono>
#include <cstdio>
#include <exception>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "apps/gallery/Window.h"
#include "apps/gallery/options.h"
#include "apps/gallery/pictures.h"
#include "tvok/host/RecordingPlatform.h"

namespace {

/// Writes every platform call to a file for as long as it lives.
class Trace {
public:
    Trace(tvok::Desktop& desktop, const std::string& file)
        : desktop_(desktop), out_(file),
          recorder_(desktop.OwnPlatform(), [this](std::string_view line) { out_ << line << '\n'; }) {
        if (!out_) throw tvok::FileError(file + ": cannot be written");
        desktop_.InterposePlatform(&recorder_);
    }
    Trace(const Trace&) = delete;
    Trace& operator=(const Trace&) = delete;
    ~Trace() { desktop_.InterposePlatform(nullptr); }

private:
    tvok::Desktop& desktop_;
    std::ofstream out_;
    tvok::host::RecordingPlatform recorder_;
};

int WriteAll(tvok::Desktop& desktop, const gallery::Options& options) {
    const std::string folder = options.headlessFolder.empty() ? "out" : options.headlessFolder;
    std::vector<std::string> themes{"classic", "dark", "contrast"};
    if (!options.theme.empty()) themes = {options.theme};
    std::vector<std::string> files;
    for (const gallery::PageEntry& page : gallery::Pages()) {
        if (!options.page.empty() && options.page != page.name) continue;
        const auto written = gallery::WritePictures(desktop, page, themes, folder);
        files.insert(files.end(), written.begin(), written.end());
    }
    if (options.page.empty()) {
        const auto written = gallery::WriteWorkbench(desktop, themes, folder);
        files.insert(files.end(), written.begin(), written.end());
    }
    for (const std::string& file : files) std::printf("%s\n", file.c_str());
    std::printf("%zu pictures are in %s\n", files.size(), folder.c_str());
    return 0;
}

/// Shows the window until it is closed, and turns it all the while.
void Show(tvok::Desktop& desktop, const std::string& page) {
    using namespace std::chrono;
    constexpr milliseconds LiveWait{25}, IdleWait{60'000};
    const auto window = gallery::Window::Open(desktop, page, gallery::Panes::Shown);
    auto last = steady_clock::now();
    while (desktop.ProcessEvents(window->page().IsLive() ? LiveWait : IdleWait)) {
        const auto elapsed = duration_cast<milliseconds>(steady_clock::now() - last);
        last += elapsed;
        window->Turn(elapsed);
    }
}

int Run(const gallery::Options& options) {
    tvok::DesktopOptions settings;
    if (!options.headlessFolder.empty()) settings.display = tvok::DesktopOptions::Display::Headless;
    if (!options.theme.empty()) settings.theme = tvok::Theme::ByName(options.theme);
    settings.scale = options.scale;
    settings.screenWidth = 1920; // of pictures: the workbench with its popups
    settings.screenHeight = 1200;
    tvok::Desktop desktop(settings);
    std::unique_ptr<Trace> trace;
    if (!options.traceFile.empty()) trace = std::make_unique<Trace>(desktop, options.traceFile);

    if (desktop.IsHeadless()) return WriteAll(desktop, options);
    Show(desktop, options.page);
    return 0;
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
