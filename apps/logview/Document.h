/// A log as rows: the file, where its lines are, and how they are cut. A new one is made when the file is
/// replaced.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "apps/logview/Columns.h"
#include "apps/logview/LineIndex.h"
#include "apps/logview/LogFile.h"
#include "apps/logview/Options.h"
#include "apps/logview/Search.h"

namespace logview {

/// Rows are numbered from 1. Where the first line holds the columns' names it is no row.
class Document {
public:
    /// Throws `tvok::FileError` or `tvok::Error` in words. `progress` is called from another thread.
    Document(const Options& options, std::function<void()> progress);

    LogFile& File() { return *file_; }
    const LogFile& File() const { return *file_; }
    std::shared_ptr<const LogFile> SharedFile() const { return file_; }
    LineIndex& Index() { return *index_; }
    const LineIndex& Index() const { return *index_; }
    logview::Search& Search() { return *search_; }
    const logview::Search& Search() const { return *search_; }
    const logview::Columns& Columns() const { return columns_; }

    /// The first lines, as they stood when the log was opened.
    const std::vector<std::string>& Sample() const { return sample_; }

    /// A log that began with too few lines to tell its columns: looks again, and says whether they are others
    /// now.
    bool LookAtColumnsAgain(const Options& options);

    /// Rows known so far: at most 2,147,483,647; what comes after them is not shown.
    std::int32_t Rows() const;
    std::string Text(std::int32_t row) const; ///< As much of the line as is shown.
    std::uint64_t OffsetOf(std::int32_t row) const;
    std::uint64_t EndOf(std::int32_t row) const; ///< Behind its line end.
    std::int32_t RowAt(std::uint64_t offset) const;

    /// Lines of the file are numbered from 1, the one with the columns' names included.
    std::uint64_t LineNumber(std::int32_t row) const { return LineOf(row) + 1; }
    std::int32_t
    RowOfLineNumber(std::uint64_t line) const; ///< The nearest row there is; 0 where there is none.

private:
    std::uint64_t LineOf(std::int32_t row) const {
        return static_cast<std::uint64_t>(row) - 1 + headerLines_;
    }
    logview::Columns ChooseColumns(const Options& options, std::uint64_t& headerLines) const;

    std::shared_ptr<LogFile> file_;
    std::vector<std::string> sample_;
    std::uint64_t headerLines_ = 0;
    logview::Columns columns_;
    std::unique_ptr<LineIndex> index_;
    std::unique_ptr<logview::Search> search_;
};

} // namespace logview
