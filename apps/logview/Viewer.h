/// The log viewer's window: the log, a box to find and one to go to a line, and a status line.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "apps/logview/Document.h"
#include "apps/logview/Settings.h"
#include "tvok/tvok.h"

namespace logview {

class Viewer {
public:
    /// Throws in words when the log cannot be opened.
    Viewer(tvok::Desktop& desktop, const Options& options, Settings& settings);
    ~Viewer();
    Viewer(const Viewer&) = delete;
    Viewer& operator=(const Viewer&) = delete;

    /// Shows what came in and looks at the file. Call it several times a second.
    void Turn();
    bool IsOpen() const { return open_; }

    /// Plays through the viewer's states once the log is indexed, and writes a picture of each. The files'
    /// names.
    std::vector<std::string> WritePictures(const std::string& folder);

private:
    // The log (Viewer.cpp).
    void OpenDocument();
    void Restart(const std::string& why);
    void TakeProgress();
    void ShowRows();
    void AddRows(std::int32_t rows);
    void LookAtFile();
    void GiveRow(std::int32_t row, tvok::qrosterdata& record);
    void FillRecord(std::int32_t row, tvok::qrosterdata& record);
    std::int32_t NewLinesUnseen() const;

    // The window (Viewer_window.cpp).
    void PlaceControls();
    std::int32_t FittingWidth(std::size_t column) const;
    void MakeColumns();
    void ConnectEvents();
    void Say(const std::string& message);
    void PaintBars();
    void PaintStatus();
    std::string StatusText() const;
    void InvalidateStatus();

    // Commands (Viewer_commands.cpp).
    void KeyDown(std::int16_t& code, std::int16_t shift);
    bool RunCommand(std::int32_t code, bool control, bool shifted);
    void Find(Search::Direction direction, bool live);
    void ShowFound(std::optional<std::uint64_t> offset, const std::string& text);
    void GoToLine();
    void GoToStart();
    void GoTo(std::int32_t row);
    void ToggleMark();
    void NextMark();
    void Copy(bool asColumns);
    void ToggleFollow();

    tvok::Desktop& desktop_;
    Options options_;
    Settings& settings_;
    std::shared_ptr<bool> alive_ =
        std::make_shared<bool>(true); ///< What posted work asks before it touches this.
    std::unique_ptr<Document> document_;
    tvok::Form* form_ = nullptr;
    tvok::qRosterex* list_ = nullptr;
    tvok::TextBox* findBox_ = nullptr;
    tvok::TextBox* lineBox_ = nullptr;
    std::set<std::int32_t>
        marks_; ///< Marked rows, for going from one to the next; the list's buffer says which.
    std::string message_;
    std::chrono::steady_clock::time_point nextLook_;
    std::int32_t shownRows_ = 0; ///< Rows given to the list, also those that it still holds back.
    std::int32_t seenRow_ = 0;   ///< The newest row that was painted.
    std::int32_t startRows_ = 0; ///< Rows that were there when following began: they are not new.
    std::uint64_t liveFrom_ = 0; ///< Where a search that follows the typing starts.
    bool indexed_ = false;       ///< The whole file was indexed once: what comes now is new.
    bool open_ = true;
};

} // namespace logview
