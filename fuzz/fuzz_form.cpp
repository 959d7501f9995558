// A form file: any text is read whole or refused with an error that names the file, and what is then written
// reads back as itself.

#include "fuzz.h"
#include "tvok/host/desktop/FormFile.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tvok::fuzz::HeadlessDesktop();
    tvok::FormFile file;
    try {
        file = tvok::ParseFormFile(tvok::fuzz::Text(data, size), "input.toml");
    } catch (const tvok::FileError& error) {
        const bool named = std::string_view(error.what()).find("input.toml") != std::string_view::npos;
        tvok::fuzz::Require(named, "the error names the file");
        return 0;
    }
    const std::string written = tvok::FormFileText(file);
    const auto again = tvok::ParseFormFile(written, "written.toml");
    tvok::fuzz::Require(tvok::FormFileText(again) == written, "the written file reads back as itself");
    return 0;
}
