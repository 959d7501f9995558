/// How a line is cut into columns: at a delimiter, by a pattern, or by blanks; and how a log's own way is
/// guessed.
#pragma once

#include <cstdint>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

namespace logview {

/// A way of cutting. Copy it freely.
class Columns {
public:
    /// The whole line is one column.
    Columns();
    /// At every `delimiter`, except inside double quotes where it is a comma or a semicolon. `count` 1 or
    /// more columns; the last one takes what is left.
    static Columns ByDelimiter(char delimiter, std::size_t count);
    /// One column for each group of a regular expression (ECMAScript). A line that does not match is one
    /// column: the last. Throws `tvok::Error` that says what is wrong with the pattern.
    static Columns ByPattern(const std::string& pattern);
    /// What most of these lines look like: tabs, commas or semicolons, or a time, a level and a message.
    static Columns Guess(const std::vector<std::string>& lines);

    std::size_t Count() const { return names_.size(); }
    const std::vector<std::string>& Names() const { return names_; }
    void Names(std::vector<std::string> names); ///< Missing ones get numbers.
    bool FirstLineIsHeader() const {
        return firstLineIsHeader_;
    }                             ///< `Guess` found words where numbers follow.
    std::string Describe() const; ///< "line", "delimiter , 3", "pattern …": the key of remembered widths.

    /// The line as `Count` cells between tab characters. Tabs inside a cell become blanks.
    std::string Cells(std::string_view line) const;

private:
    enum class Kind { Whole, Delimiter, Pattern };

    std::string CutAtDelimiter(std::string_view line) const;
    std::string CutByPattern(std::string_view line) const;

    Kind kind_ = Kind::Whole;
    char delimiter_ = '\t';
    std::string pattern_;
    std::regex regex_;
    std::vector<std::string> names_;
    bool firstLineIsHeader_ = false;
};

enum class Severity : std::uint8_t { None, Debug, Info, Warning, Error };

/// How bad a line sounds: the first level word in its first 200 bytes, in capitals or as a whole word.
Severity SeverityOf(std::string_view line);

} // namespace logview
