#include "apps/logview/Document.h"

#include <algorithm>
#include <limits>
#include <unistd.h>

#include "apps/logview/texts.h"
#include "tvok/records/text.h"

namespace logview {

namespace {

constexpr std::size_t cSample = 64 * 1024;
constexpr std::size_t cSampleLines = 50;
constexpr std::size_t cEnoughLines = 10; // to be sure of what the columns are

std::vector<std::string> FirstLines(const LogFile& file) {
    std::string bytes(cSample, '\0');
    bytes.resize(file.Read(0, bytes.data(), bytes.size()));
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < bytes.size() && lines.size() < cSampleLines;) {
        const std::size_t end = bytes.find('\n', at);
        if (end == std::string::npos && !lines.empty()) break; // a line that the sample cuts tells nothing
        std::string line = bytes.substr(at, end - at);
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (!line.empty()) lines.push_back(std::move(line));
        if (end == std::string::npos) break;
        at = end + 1;
    }
    return lines;
}

} // namespace

Document::Document(const Options& options, std::function<void()> progress)
    : file_(options.file == "-" ? LogFile::Spool(STDIN_FILENO, "standard input")
                                : LogFile::Open(options.file)),
      sample_(FirstLines(*file_)), columns_(ChooseColumns(options, headerLines_)),
      index_(std::make_unique<LineIndex>(file_, std::move(progress))),
      search_(std::make_unique<logview::Search>(file_)) {}

Columns Document::ChooseColumns(const Options& options, std::uint64_t& headerLines) const {
    logview::Columns columns;
    if (!options.pattern.empty()) {
        columns = Columns::ByPattern(options.pattern);
    } else if (!options.delimiter.empty()) {
        const char delimiter = options.delimiter == "tab" ? '\t' : options.delimiter.front();
        const std::string first = sample_.empty() ? std::string() : sample_.front();
        columns = Columns::ByDelimiter(
            delimiter, 1 + static_cast<std::size_t>(std::count(first.begin(), first.end(), delimiter)));
    } else {
        columns = Columns::Guess(sample_);
        headerLines = columns.FirstLineIsHeader() ? 1 : 0;
    }
    if (!options.columnNames.empty()) {
        std::vector<std::string> names;
        for (const std::string_view name : tvok::Split(options.columnNames, ',')) names.emplace_back(name);
        columns.Names(std::move(names));
    }
    return columns;
}

bool Document::LookAtColumnsAgain(const Options& options) {
    if (sample_.size() >= cEnoughLines) return false;
    std::vector<std::string> sample = FirstLines(*file_);
    if (sample.size() == sample_.size()) return false;
    sample_ = std::move(sample);
    std::uint64_t headerLines = 0;
    logview::Columns columns = ChooseColumns(options, headerLines);
    if (columns.Describe() == columns_.Describe() && columns.Names() == columns_.Names()) return false;
    columns_ = std::move(columns);
    headerLines_ = headerLines;
    return true;
}

std::int32_t Document::Rows() const {
    const std::uint64_t lines = index_->Lines();
    const std::uint64_t rows = lines - std::min(lines, headerLines_);
    return static_cast<std::int32_t>(
        std::min<std::uint64_t>(rows, static_cast<std::uint64_t>(std::numeric_limits<std::int32_t>::max())));
}

std::string Document::Text(std::int32_t row) const {
    return index_->TextOf(LineOf(row), cLongestShown + 1);
}

std::uint64_t Document::OffsetOf(std::int32_t row) const {
    return index_->OffsetOf(LineOf(row));
}

std::uint64_t Document::EndOf(std::int32_t row) const {
    return index_->EndOf(LineOf(row));
}

std::int32_t Document::RowOfLineNumber(std::uint64_t line) const {
    const std::uint64_t row = line - std::min(line, headerLines_);
    return static_cast<std::int32_t>(
        std::min<std::uint64_t>(std::max<std::uint64_t>(row, 1), static_cast<std::uint64_t>(Rows())));
}

std::int32_t Document::RowAt(std::uint64_t offset) const {
    const std::uint64_t line = index_->LineAt(offset);
    return static_cast<std::int32_t>(
        std::min<std::uint64_t>(line - std::min(line, headerLines_) + 1, static_cast<std::uint64_t>(Rows())));
}

} // namespace logview
