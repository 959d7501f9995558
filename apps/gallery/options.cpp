#include "apps/gallery/options.h"

#include <charconv>

#include "apps/gallery/Page.h"

namespace gallery {
namespace {

struct Switch {
    const char* name;
    std::string Options::*value;
};

constexpr Switch Switches[] = {
    {"--headless", &Options::headlessFolder}, {"--theme", &Options::theme},
    {"--trace", &Options::traceFile},         {"--page", &Options::page},
    {"--scale", &Options::scaleText},
};

const Switch* FindSwitch(const std::string& name) {
    for (const Switch& entry : Switches) {
        if (name == entry.name) return &entry;
    }
    return nullptr;
}

/// All of the text has to be a number, with a point whatever the user's language is.
bool ReadScale(Options& options, std::string& error) {
    if (options.scaleText.empty()) return true;
    constexpr float least = 0.5F, most = 4;
    const char* const end = options.scaleText.data() + options.scaleText.size();
    const auto read = std::from_chars(options.scaleText.data(), end, options.scale);
    if (read.ec == std::errc() && read.ptr == end && options.scale >= least && options.scale <= most)
        return true;
    error = "--scale has to be a number from 0.5 to 4, and is \"" + options.scaleText + "\"";
    return false;
}

bool IsKnown(const Options& options, std::string& error) {
    if (!options.page.empty() && FindPage(options.page) == nullptr) {
        error = "there is no page \"" + options.page + "\"";
        return false;
    }
    if (options.theme.empty()) return true;
    try {
        tvok::Theme::ByName(options.theme);
    } catch (const tvok::Error& unknown) {
        error = unknown.what();
        return false;
    }
    return true;
}

} // namespace

std::string Usage() {
    std::string text = "usage: gallery [switches]\n"
                       "  --headless DIR   run in memory and write pictures of the pages to DIR\n"
                       "  --theme NAME     classic, dark or contrast\n"
                       "  --scale F        the window's size on the screen, from 0.5 to 4\n"
                       "  --trace FILE     write every platform call to FILE, one line each\n"
                       "  --page NAME      the page to show, and the only one of the pictures:\n";
    for (const PageEntry& page : Pages()) {
        text += "                     " + std::string(page.name) + ": " + page.description + "\n";
    }
    return text +
           "  --help           print this\n"
           "Without switches: a window; where there is no display, pictures in out/.\n"
           "In the window Ctrl+Tab shows the next page, F6 goes around page, inspector and event log,\n"
           "and F9 shows and hides these two.\n";
}

bool ParseOptions(const std::vector<std::string>& arguments, Options& options, std::string& error) {
    for (std::size_t place = 0; place < arguments.size(); ++place) {
        const std::string& argument = arguments[place];
        if (argument == "--help") {
            options.help = true;
            return true;
        }
        const Switch* found = FindSwitch(argument);
        if (found == nullptr) {
            error = "unknown switch " + argument;
            return false;
        }
        if (place + 1 == arguments.size() || arguments[place + 1].empty()) {
            error = argument + " needs a value";
            return false;
        }
        options.*(found->value) = arguments[++place];
    }
    return IsKnown(options, error) && ReadScale(options, error);
}

} // namespace gallery
