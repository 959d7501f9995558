#include "apps/logview/Columns.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>

#include "tvok/records/Error.h"

namespace logview {

namespace {

constexpr std::size_t cLongestMatched = 4096; // a regular expression sees no more of a line than this
constexpr std::size_t cSeveritySearch = 200;

// A time of day with a date in one of the usual forms, a level word, and the rest.
constexpr const char* cTimeLevelText =
    R"(^\[?(\d{4}[-/]\d\d[-/]\d\d[T ]\d\d:\d\d:\d\d\S*)\]?\s+\[?(TRACE|DEBUG|INFO|NOTICE|WARN|WARNING|ERROR|FATAL|CRITICAL)\]?:?\s+(.*)$)";
// The system log: month day time, host, program, text.
constexpr const char* cSystemLog =
    R"(^(\w{3} +\d+ \d\d:\d\d:\d\d|\d{4}-\d\d-\d\dT\S+) (\S+) ([^:\[]+(?:\[\d+\])?): (.*)$)";
// The common form of web servers.
constexpr const char* cWebServer = R"re(^(\S+) \S+ (\S+) \[([^\]]+)\] "([^"]*)" (\d{3}) (\S+)(.*)$)re";
// The package manager: date, time, what, and the rest.
constexpr const char* cDateTimeText = R"(^\[?(\d{4}[-/]\d\d[-/]\d\d)[T ](\d\d:\d\d:\d\d\S*)\]?\s+(.*)$)";

struct Form {
    const char* pattern;
    std::array<const char*, 7> names;
};
constexpr std::array<Form, 4> cForms{{
    {cTimeLevelText, {"Time", "Level", "Message"}},
    {cWebServer, {"Address", "User", "Time", "Request", "Status", "Bytes", "Rest"}},
    {cSystemLog, {"Time", "Host", "Program", "Message"}},
    {cDateTimeText, {"Date", "Time", "Message"}},
}};

bool Quotes(char delimiter) {
    return delimiter == ',' || delimiter == ';';
}

/// Takes the part before the next delimiter off the front of `rest`.
std::string_view TakePart(std::string_view& rest, char delimiter) {
    bool quoted = false;
    std::size_t at = 0;
    for (; at < rest.size(); ++at) {
        if (rest[at] == '"' && Quotes(delimiter)) quoted = !quoted;
        if (rest[at] == delimiter && !quoted) break;
    }
    const std::string_view part = rest.substr(0, at);
    rest.remove_prefix(std::min(at + 1, rest.size()));
    return part;
}

void AppendCell(std::string& cells, std::string_view cell) {
    if (cell.size() >= 2 && cell.front() == '"' && cell.back() == '"') cell = cell.substr(1, cell.size() - 2);
    for (const char c : cell) cells += c == '\t' ? ' ' : c;
}

std::size_t PartCount(std::string_view line, char delimiter) {
    std::size_t count = 1;
    while (line.size() > TakePart(line, delimiter).size() && !line.empty()) ++count;
    return count;
}

bool HasDigit(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c) != 0; });
}

/// The number of parts that nearly all lines have at this delimiter, where that is more than one.
std::optional<std::size_t> CommonCount(const std::vector<std::string>& lines, char delimiter) {
    if (lines.empty()) return std::nullopt;
    const std::size_t count = PartCount(lines.front(), delimiter);
    const auto same = std::count_if(lines.begin(), lines.end(), [&](const std::string& line) {
        return PartCount(line, delimiter) == count;
    });
    if (count < 2 || same * 10 < static_cast<std::ptrdiff_t>(lines.size()) * 9) return std::nullopt;
    return count;
}

bool IsWordCharacter(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

struct Level {
    std::string_view word;
    Severity severity;
};
constexpr std::array<Level, 13> cLevels{{
    {"error", Severity::Error},
    {"fatal", Severity::Error},
    {"critical", Severity::Error},
    {"panic", Severity::Error},
    {"fail", Severity::Error},
    {"failed", Severity::Error},
    {"warn", Severity::Warning},
    {"warning", Severity::Warning},
    {"info", Severity::Info},
    {"notice", Severity::Info},
    {"debug", Severity::Debug},
    {"trace", Severity::Debug},
    {"verbose", Severity::Debug},
}};

bool SameWord(std::string_view text, std::string_view lower) {
    return text.size() == lower.size() &&
           std::equal(text.begin(), text.end(), lower.begin(),
                      [](char a, char b) { return std::tolower(static_cast<unsigned char>(a)) == b; });
}

} // namespace

Columns::Columns() : names_{"Line"} {}

void Columns::Names(std::vector<std::string> names) {
    const std::size_t count = names_.size();
    for (std::size_t i = names.size(); i < count; ++i) names.push_back(std::to_string(i + 1));
    names.resize(count);
    names_ = std::move(names);
}

Columns Columns::ByDelimiter(char delimiter, std::size_t count) {
    Columns columns;
    columns.kind_ = Kind::Delimiter;
    columns.delimiter_ = delimiter;
    columns.names_.assign(std::max<std::size_t>(count, 1), {});
    columns.Names({});
    return columns;
}

Columns Columns::ByPattern(const std::string& pattern) {
    Columns columns;
    columns.kind_ = Kind::Pattern;
    columns.pattern_ = pattern;
    try {
        columns.regex_ = std::regex(pattern, std::regex::ECMAScript | std::regex::optimize);
    } catch (const std::regex_error& error) {
        throw tvok::Error("the pattern " + pattern + " cannot be used: " + error.what());
    }
    columns.names_.assign(std::max<std::size_t>(columns.regex_.mark_count(), 1), {});
    columns.Names({});
    return columns;
}

Columns Columns::Guess(const std::vector<std::string>& lines) {
    const auto matching = [&](const std::regex& regex) {
        return std::count_if(lines.begin(), lines.end(), [&](const std::string& line) {
            return line.size() < cLongestMatched && std::regex_match(line, regex);
        });
    };
    for (const char delimiter : {'\t', ',', ';'}) {
        const auto count = CommonCount(lines, delimiter);
        if (!count || (delimiter != '\t' && *count < 3)) continue;
        Columns columns = ByDelimiter(delimiter, *count);
        if (lines.size() > 1 && !HasDigit(lines[0]) && HasDigit(lines[1])) {
            std::vector<std::string> names;
            std::string_view rest = lines[0];
            for (std::size_t i = 0; i < *count; ++i)
                AppendCell(names.emplace_back(), TakePart(rest, delimiter));
            columns.Names(std::move(names));
            columns.firstLineIsHeader_ = true;
        }
        return columns;
    }
    for (const Form& form : cForms) {
        Columns columns = ByPattern(form.pattern);
        if (matching(columns.regex_) * 10 < static_cast<std::ptrdiff_t>(lines.size()) * 7 || lines.empty())
            continue;
        std::vector<std::string> names;
        for (const char* name : form.names)
            if (name != nullptr) names.emplace_back(name);
        columns.Names(std::move(names));
        return columns;
    }
    return {};
}

std::string Columns::Describe() const {
    switch (kind_) {
    case Kind::Whole: return "line";
    case Kind::Delimiter: return std::string("delimiter ") + delimiter_ + " " + std::to_string(Count());
    case Kind::Pattern: return "pattern " + pattern_;
    }
    return {};
}

std::string Columns::Cells(std::string_view line) const {
    switch (kind_) {
    case Kind::Whole: break;
    case Kind::Delimiter: return CutAtDelimiter(line);
    case Kind::Pattern: return CutByPattern(line);
    }
    std::string cells;
    AppendCell(cells, line);
    return cells;
}

std::string Columns::CutAtDelimiter(std::string_view line) const {
    std::string cells;
    cells.reserve(line.size());
    for (std::size_t i = 0; i < Count(); ++i) {
        if (i > 0) cells += '\t';
        AppendCell(cells, i + 1 < Count() ? TakePart(line, delimiter_) : line);
    }
    return cells;
}

std::string Columns::CutByPattern(std::string_view line) const {
    std::cmatch groups;
    const std::string_view seen = line.substr(0, cLongestMatched);
    std::string cells;
    if (!std::regex_match(seen.data(), seen.data() + seen.size(), groups, regex_)) {
        // A line of another form, such as the second one of a message, stands in the last column.
        cells.assign(Count() - 1, '\t');
        AppendCell(cells, line);
        return cells;
    }
    for (std::size_t i = 1; i < groups.size(); ++i) {
        if (i > 1) cells += '\t';
        const auto length = static_cast<std::size_t>(groups[i].length());
        if (groups[i].matched) AppendCell(cells, std::string_view(groups[i].first, length));
    }
    return cells;
}

Severity SeverityOf(std::string_view line) {
    line = line.substr(0, cSeveritySearch);
    for (std::size_t at = 0; at < line.size();) {
        std::size_t end = at;
        while (end < line.size() && IsWordCharacter(line[end])) ++end;
        const std::string_view word = line.substr(at, end - at);
        for (const Level& level : cLevels)
            if (SameWord(word, level.word)) return level.severity;
        at = std::max(end, at) + 1;
    }
    return Severity::None;
}

} // namespace logview
