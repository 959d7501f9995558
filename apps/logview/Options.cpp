#include "apps/logview/Options.h"

#include <array>
#include <charconv>

namespace logview {

std::string Usage() {
    return "usage: logview [switches] FILE\n"
           "       command | logview [switches] -\n"
           "\n"
           "  --follow             show new lines as they come\n"
           "  --newest-first       the newest line at the top; follows\n"
           "  --delimiter C        cut lines into columns at C, a character or the word tab\n"
           "  --pattern REGEX      one column for each group of a regular expression\n"
           "  --columns A,B,...    the columns' names\n"
           "  --find TEXT          look for a text at the start\n"
           "  --line N             go to line N of the file at the start\n"
           "  --theme NAME         classic, dark or contrast\n"
           "  --headless FOLDER    write pictures there instead of opening a window\n"
           "  --help               this text\n"
           "\n"
           "keys: Ctrl+F find (as you type), F3 next, Shift+F3 previous, Ctrl+G go to line N or select A-B,\n"
           "      F2 mark, F4 next mark, Shift+F4 previous mark, Shift with a key or a click selects,\n"
           "      Ctrl+A all, Ctrl+C copy as text, Ctrl+Shift+C as columns, Ctrl+S write to a file,\n"
           "      Ctrl+E follow, Esc stop, back to the log\n";
}

namespace {

struct TextSwitch {
    const char* name;
    std::string Options::*place;
};
constexpr std::array<TextSwitch, 6> cTextSwitches{{
    {"--delimiter", &Options::delimiter},
    {"--pattern", &Options::pattern},
    {"--columns", &Options::columnNames},
    {"--find", &Options::find},
    {"--theme", &Options::theme},
    {"--headless", &Options::headlessFolder},
}};

std::string Options::*FindTextSwitch(const std::string& name) {
    for (const TextSwitch& entry : cTextSwitches)
        if (name == entry.name) return entry.place;
    return nullptr;
}

bool ParseLine(const std::string& text, std::int32_t& line) {
    const auto [end, code] = std::from_chars(text.data(), text.data() + text.size(), line);
    return code == std::errc() && end == text.data() + text.size() && line > 0;
}

bool Check(const Options& options, std::string& error) {
    if (options.help) return true;
    if (options.file.empty()) error = "no file is given";
    if (!options.delimiter.empty() && options.delimiter != "tab" && options.delimiter.size() != 1)
        error = "--delimiter takes one character or the word tab";
    if (!options.delimiter.empty() && !options.pattern.empty())
        error = "--delimiter and --pattern exclude each other";
    return error.empty();
}

} // namespace

bool ParseOptions(const std::vector<std::string>& arguments, Options& options, std::string& error) {
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& name = arguments[i];
        const auto place = FindTextSwitch(name);
        const bool takesValue = place != nullptr || name == "--line";
        if (takesValue && i + 1 == arguments.size()) {
            error = name + " lacks its value";
            return false;
        }
        if (place != nullptr) {
            options.*place = arguments[++i];
        } else if (name == "--line") {
            if (!ParseLine(arguments[++i], options.line)) error = "--line takes a number from 1";
        } else if (name == "--follow") {
            options.follow = true;
        } else if (name == "--newest-first") {
            options.newestFirst = options.follow = true;
        } else if (name == "--help") {
            options.help = true;
        } else if (name.size() > 1 && name.front() == '-') {
            error = name + " is no switch";
        } else if (options.file.empty()) {
            options.file = name;
        } else {
            error = "more than one file is given";
        }
        if (!error.empty()) return false;
    }
    return Check(options, error);
}

} // namespace logview
