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
    LineIndex& Index() { return *index_; }
    logview::Search& Search() { return *search_; }
    const logview::Columns& Columns() const { return columns_; }

    /// The first lines, as they stood when the log was opened.
    const std::vector<std::string>& Sample() const { return sample_; }

    /// Rows known so far: at most 2,147,483,647; what comes after them is not shown.
    std::int32_t Rows() const;
    std::string Text(std::int32_t row) const;
    std::string Cells(std::int32_t row) const { return columns_.Cells(Text(row)); }
    std::uint64_t OffsetOf(std::int32_t row) const;
    std::int32_t RowAt(std::uint64_t offset) const;

private:
    std::uint64_t LineOf(std::int32_t row) const {
        return static_cast<std::uint64_t>(row) - 1 + headerLines_;
    }
    logview::Columns ChooseColumns(const Options& options);

    std::shared_ptr<LogFile> file_;
    std::vector<std::string> sample_;
    std::uint64_t headerLines_ = 0;
    logview::Columns columns_;
    std::unique_ptr<LineIndex> index_;
    std::unique_ptr<logview::Search> search_;
};

} // namespace logview
