#include "apps/gallery/options.h"

#include "apps/gallery/Page.h"

namespace gallery {
namespace {

struct Switch {
    const char* name;
    std::string Options::*value;
};

constexpr Switch Switches[] = {
    {"--headless", &Options::headlessFolder},
    {"--theme", &Options::theme},
    {"--trace", &Options::traceFile},
    {"--page", &Options::page},
};

const Switch* FindSwitch(const std::string& name) {
    for (const Switch& entry : Switches) {
        if (name == entry.name) return &entry;
    }
    return nullptr;
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
                       "  --trace FILE     write every platform call to FILE, one line each\n"
                       "  --page NAME      the page to show, and the only one of the pictures:\n";
    for (const PageEntry& page : Pages()) {
        text += "                     " + std::string(page.name) + ": " + page.description + "\n";
    }
    return text + "  --help           print this\n"
                  "Without switches: a window; where there is no display, pictures in out/.\n";
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
    return IsKnown(options, error);
}

} // namespace gallery
