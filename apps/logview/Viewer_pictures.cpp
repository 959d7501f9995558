// The viewer's states as pictures, for where there is no display and for looking at them.
#include <filesystem>

#include "apps/logview/Viewer.h"

namespace logview {

std::vector<std::string> Viewer::WritePictures(const std::string& folder) {
    std::error_code failure;
    std::filesystem::create_directories(folder, failure);
    if (failure) throw tvok::FileError(folder + ": the folder cannot be made: " + failure.message());
    std::vector<std::string> files;
    const auto picture = [&](const char* name) {
        while (IsBusy()) desktop_.ProcessEvents(std::chrono::milliseconds(10));
        desktop_.ProcessEvents(std::chrono::milliseconds(0));
        files.push_back((std::filesystem::path(folder) / (std::string("logview-") + name + ".png")).string());
        desktop_.SaveForm(*form_, files.back());
    };
    picture("1-first-page");
    GoTo(shownRows_);
    ToggleMark();
    picture("2-end-and-mark");
    SelectRows(shownRows_ / 2, shownRows_ / 2 + 12);
    picture("3-range");
    GoTo(1);
    findBox_->Text({});
    findBox_->Text(options_.find.empty() ? "error" : options_.find);
    picture("4-found");
    return files;
}

} // namespace logview
