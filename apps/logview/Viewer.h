/// The log viewer's window: the log, a box to find and one to go to a line, and a status line.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "apps/logview/Copier.h"
#include "apps/logview/Document.h"
#include "apps/logview/Settings.h"
#include "tvok/tvok.h"

namespace logview {

class Viewer {
public:
    /// Shows the first page. Throws in words when the log cannot be opened.
    Viewer(tvok::Desktop& desktop, const Options& options, Settings& settings);
    ~Viewer();
    Viewer(const Viewer&) = delete;
    Viewer& operator=(const Viewer&) = delete;

    /// Shows what came in and looks at the file. Call it several times a second.
    void Turn();
    bool IsOpen() const { return open_; }
    bool IsBusy() const; ///< It indexes, looks for a text or copies.

    /// Where the reader is, of how much; what is selected and marked; what was done last.
    std::string StatusText() const;
    std::int32_t NewLinesUnseen() const; ///< Lines that came after the newest one that was on the page.

    /// Plays through the viewer's states once the log is indexed, and writes a picture of each. The files'
    /// names.
    std::vector<std::string> WritePictures(const std::string& folder);

private:
    // The log (Viewer.cpp).
    void OpenDocument();
    void Restart(const std::string& why);
    void TakeProgress();
    void LookAtFile();
    void SayOfFile(const std::string& state);
    void GiveRow(std::int32_t row, tvok::qrosterdata& record);
    void FillRecord(std::int32_t row, tvok::qrosterdata& record);

    // Rows as they come (Viewer_rows.cpp).
    void ShowRows();
    void ShowLastRowAgain(std::int32_t row);
    void AddRows(std::int32_t rows);
    void AddRow();
    void AddManyRows(std::int32_t rows);
    bool HoldsRowsBack() const;
    bool Shows(std::int32_t row);

    // The window (Viewer_window.cpp).
    void SetUpList();
    void PlaceControls();
    std::int32_t FittingWidth(std::size_t column, std::int32_t most) const;
    void MakeColumns();
    void ConnectEvents();
    void Say(const std::string& message);
    void PaintBars();
    void PaintStatus();
    void PaintProgress(const tvok::tvok_Rect& bar, double part) const;
    std::string WhereText() const;
    std::string WorkText() const;
    void InvalidateStatus();

    // Commands (Viewer_commands.cpp).
    void KeyDown(std::int16_t& code, std::int16_t shift);
    bool RunCommand(std::int32_t code, bool shifted);
    bool RunControlCommand(std::int32_t code, bool shifted);
    void Leave();
    void GoToTypedLine();
    void GoToWanted();
    void GoTo(std::int32_t row);
    void SelectRows(std::int32_t first, std::int32_t last);
    void ToggleMark();
    void GoToMark(bool next);
    void Collect(bool asColumns, std::function<void(const Copied&)> use);
    void Copy(bool asColumns);
    void Save();
    void ToggleFollow();

    // Finding (Viewer_find.cpp).
    void Find(Search::Direction direction, bool live);
    void StartSearch(const std::string& text, std::uint64_t from, Search::Direction direction,
                     std::optional<std::uint64_t> until);
    void ShowFound(std::optional<std::uint64_t> offset, const std::string& text, std::uint64_t from,
                   Search::Direction direction, bool around);

    std::function<void()> Later(std::function<void()> action); ///< From any thread, on this one's turn.

    tvok::Desktop& desktop_;
    Options options_;
    Settings& settings_;
    std::shared_ptr<bool> alive_ =
        std::make_shared<bool>(true); ///< What posted work asks before it touches this.
    std::unique_ptr<Document> document_;
    Copier copier_;
    tvok::Form* form_ = nullptr;
    tvok::qRosterex* list_ = nullptr;
    tvok::TextBox* findBox_ = nullptr;
    tvok::TextBox* lineBox_ = nullptr;
    std::set<std::int32_t>
        marks_;             ///< Marked rows, for going from one to the next; the list's buffer says which.
    std::string message_;   ///< What was done last.
    std::string fileState_; ///< What became of the file; stays until it changes.
    std::chrono::steady_clock::time_point nextLook_;
    std::int32_t shownRows_ = 0;   ///< Rows given to the list, also those that it still holds back.
    std::int32_t seenRow_ = 0;     ///< The newest row that was painted.
    std::int32_t paintedRow_ = 0;  ///< The row that was painted last.
    std::int32_t startRows_ = 0;   ///< Rows that were there when following began: they are not new.
    std::int32_t extendTo_ = 0;    ///< Where the list is to extend its range to.
    std::uint64_t wantedLine_ = 0; ///< Gone to once it is indexed.
    std::optional<std::uint64_t> wantedPlace_; ///< The same for a byte.
    std::optional<std::uint64_t> liveFrom_;    ///< Where a search that follows the typing starts.
    std::uint64_t copyingBytes_ = 0;           ///< Of the range that is being copied.
    bool indexed_ = false;                     ///< The whole file was indexed once: what comes now is new.
    bool showKeys_ = false;
    bool open_ = true;
};

} // namespace logview
