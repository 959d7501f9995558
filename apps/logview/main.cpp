// The log viewer: logs of any size, followed as they grow, in a window or as pictures.

#include <cstdio>
#include <exception>

#include "apps/logview/Options.h"
#include "apps/logview/Viewer.h"

namespace {

constexpr auto cTurn = std::chrono::milliseconds(50);

int Run(const logview::Options& options) {
    tvok::DesktopOptions screen;
    const bool pictures = !options.headlessFolder.empty();
    if (pictures) screen.display = tvok::DesktopOptions::Display::Headless;
    screen.theme = tvok::Theme::ByName(options.theme);
    tvok::Desktop desktop(screen);
    if (desktop.IsHeadless() && !pictures) {
        std::fprintf(stderr, "logview: --headless FOLDER writes pictures where there is no display\n");
        return 1;
    }
    logview::Settings settings(logview::Settings::DefaultPath());
    logview::Viewer viewer(desktop, options, settings);
    if (pictures) {
        for (const std::string& file : viewer.WritePictures(options.headlessFolder))
            std::printf("%s\n", file.c_str());
        return 0;
    }
    while (viewer.IsOpen() && desktop.ProcessEvents(cTurn)) viewer.Turn();
    settings.Save();
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    logview::Options options;
    std::string error;
    if (!logview::ParseOptions(std::vector<std::string>(argv + 1, argv + argc), options, error)) {
        std::fprintf(stderr, "logview: %s\n%s", error.c_str(), logview::Usage().c_str());
        return 2;
    }
    if (options.help) {
        std::fputs(logview::Usage().c_str(), stdout);
        return 0;
    }
    try {
        return Run(options);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "logview: %s\n", failure.what());
        return 1;
    }
}
