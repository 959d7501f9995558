/// Pictures of the gallery's pages, made in memory.
#pragma once

#include <string>
#include <vector>

#include "apps/gallery/Page.h"

namespace gallery {

/// Writes a picture of every scene of the page in each of these themes, and gives the files' names. Makes the
/// folder where it is missing. Throws `FileError` or `std::filesystem::filesystem_error`.
std::vector<std::string> WritePictures(tvok::Desktop& desktop, const PageEntry& entry,
                                       const std::vector<std::string>& themes, const std::string& folder);

/// The same for the workbench: the window with its panes, as "workbench-THEME-SCENE.png".
std::vector<std::string> WriteWorkbench(tvok::Desktop& desktop, const std::vector<std::string>& themes,
                                        const std::string& folder);

} // namespace gallery
