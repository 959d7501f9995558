/// Pictures of the gallery's pages, made in memory.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "apps/gallery/Page.h"

namespace gallery {

inline constexpr std::int32_t FormWidth = 980, FormHeight = 640;

/// The gallery's form with this page on it. The page lives as long as the form.
tvok::Form& OpenPage(tvok::Desktop& desktop, const PageEntry& entry, std::shared_ptr<Page>& page);

/// Writes a picture of every scene of the page in each of these themes, and gives the files' names. Makes the
/// folder where it is missing. Throws `FileError` or `std::filesystem::filesystem_error`.
std::vector<std::string> WritePictures(tvok::Desktop& desktop, const PageEntry& entry,
                                       const std::vector<std::string>& themes, const std::string& folder);

} // namespace gallery
