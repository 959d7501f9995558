// What the viewer does on keys: going, selecting, marking, copying, following.
#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>

#include "apps/logview/Viewer.h"
#include "apps/logview/texts.h"

namespace logview {

namespace {

constexpr std::int32_t cKeyF1 = 112;
constexpr std::int32_t cKeyF2 = 113;
constexpr std::int32_t cKeyF3 = 114;
constexpr std::int32_t cKeyF4 = 115;
constexpr std::int16_t cKeyF24 = 135; // what the list is sent to extend its range
constexpr std::int16_t cShift = 1;

/// "12", "1,200" or "12-500"; `last` is 0 where there is only one. False for anything else.
bool ParseLines(std::string text, std::uint64_t& first, std::uint64_t& last) {
    text.erase(std::remove_if(text.begin(), text.end(), [](char c) { return c == ' ' || c == ','; }),
               text.end());
    const char* const end = text.data() + text.size();
    auto [at, code] = std::from_chars(text.data(), end, first);
    last = 0;
    if (code != std::errc() || first == 0) return false;
    if (at == end) return true;
    if (*at != '-') return false;
    const auto [after, lastCode] = std::from_chars(at + 1, end, last);
    return lastCode == std::errc() && after == end && last > 0;
}

} // namespace

void Viewer::KeyDown(std::int16_t& code, std::int16_t shift) {
    const bool shifted = (shift & cShift) != 0;
    const bool control = (shift & 2) != 0;
    const bool taken = control ? RunControlCommand(code, shifted) : RunCommand(code, shifted);
    if (showKeys_ && code != cKeyF1) showKeys_ = false;
    InvalidateStatus();
    if (taken) code = 0;
}

bool Viewer::RunControlCommand(std::int32_t code, bool shifted) {
    const bool inLog = form_->ComponentOf(*list_).hWnd() == tvok::host::platform().GetFocus();
    if (code == 'F') {
        liveFrom_.reset();
        form_->ComponentOf(*findBox_).SetFocus();
        findBox_->Select(0, static_cast<std::int32_t>(findBox_->Text().size()));
    } else if (code == 'G') {
        form_->ComponentOf(*lineBox_).SetFocus();
        lineBox_->Select(0, static_cast<std::int32_t>(lineBox_->Text().size()));
    } else if (code == 'E') {
        ToggleFollow();
    } else if (code == 'C' && inLog) {
        Copy(shifted);
    } else if (code == 'S') {
        Save();
    } else if (code == 'A' && inLog) {
        SelectRows(1, shownRows_);
    } else {
        return false;
    }
    return true;
}

bool Viewer::RunCommand(std::int32_t code, bool shifted) {
    if (code == cKeyF1)
        showKeys_ = !showKeys_;
    else if (code == cKeyF2)
        ToggleMark();
    else if (code == cKeyF3)
        Find(shifted ? Search::Direction::Backward : Search::Direction::Forward, false);
    else if (code == cKeyF4)
        GoToMark(!shifted);
    else if (code == tvok::host::VK_ESCAPE)
        Leave();
    else
        return false;
    return true;
}

/// Ends what is going on; else the range; and goes back to the log.
void Viewer::Leave() {
    const bool working = document_->Search().IsBusy() || copier_.IsBusy();
    const bool inLog = form_->ComponentOf(*list_).hWnd() == tvok::host::platform().GetFocus();
    document_->Search().Cancel();
    copier_.Cancel();
    wantedPlace_.reset();
    wantedLine_ = 0;
    Say(working ? "Stopped." : "");
    if (!working && inLog) list_->MultiSelect(1); // ends a range
    form_->ComponentOf(*list_).SetFocus();
}

// Going and selecting.

void Viewer::GoTo(std::int32_t row) {
    list_->MultiSelect(1); // ends a range
    list_->ListIndex(row);
    InvalidateStatus();
}

void Viewer::SelectRows(std::int32_t first, std::int32_t last) {
    GoTo(first);
    last = std::min(last, shownRows_);
    if (first == last || list_->ListIndex() != first) return;
    extendTo_ = last; // what the list's `KeySeek` is answered
    std::int16_t code = cKeyF24;
    std::int16_t shift = cShift;
    list_->KeyDown(code, shift);
}

void Viewer::GoToTypedLine() {
    std::uint64_t first = 0;
    std::uint64_t last = 0;
    if (!ParseLines(lineBox_->Text(), first, last))
        return Say("\"" + lineBox_->Text() +
                   "\" is no line: type a number, or two with - between to select.");
    const std::uint64_t lines = document_->Index().Lines();
    Say({});
    if (std::max(first, last) > lines && !document_->Index().IsBusy())
        return Say("There is no line " + Grouped(std::max(first, last)) + ": the last one is " +
                   Grouped(lines) + ".");
    if (last > 0 && std::max(first, last) > lines)
        return Say("Line " + Grouped(std::max(first, last)) + " is not indexed yet.");
    form_->ComponentOf(*list_).SetFocus();
    if (last > 0) return SelectRows(document_->RowOfLineNumber(first), document_->RowOfLineNumber(last));
    wantedLine_ = first;
    GoToWanted();
}

/// To a line or a place that is asked for, as soon as the index has come to it.
void Viewer::GoToWanted() {
    const LineIndex& index = document_->Index();
    if (wantedLine_ > 0 && (index.Lines() > wantedLine_ || !index.IsBusy())) {
        GoTo(std::min(document_->RowOfLineNumber(wantedLine_), shownRows_));
        wantedLine_ = 0;
    }
    if (wantedPlace_ && (index.IndexedBytes() > *wantedPlace_ || !index.IsBusy())) {
        const std::int32_t row = document_->RowAt(*wantedPlace_);
        if (row > shownRows_) return; // the rows that a held thumb keeps back come first
        GoTo(row);
        wantedPlace_.reset();
    }
}

// Marks.

void Viewer::ToggleMark() {
    const std::int32_t row = list_->ListIndex();
    if (row < 1) return Say("There is no line to mark.");
    const bool marked = list_->FileBufValue(row) != 0;
    try {
        list_->FileBufValue(row, marked ? 0 : 1);
    } catch (const tvok::Error& error) {
        return Say(std::string("The mark cannot be kept: ") + error.what());
    }
    if (!marked && list_->FileBufValue(row) == 0)
        return Say("The mark cannot be kept: there is no temporary file for it.");
    if (marked)
        marks_.erase(row);
    else
        marks_.insert(row);
    list_->DrawItem(row);
    Say({});
}

void Viewer::GoToMark(bool next) {
    if (marks_.empty()) return Say("No line is marked: F2 marks one.");
    const std::int32_t now = list_->ListIndex();
    const auto after = next ? marks_.upper_bound(now) : marks_.lower_bound(now);
    if (next)
        GoTo(after == marks_.end() ? *marks_.begin() : *after);
    else
        GoTo(after == marks_.begin() ? *marks_.rbegin() : *std::prev(after));
}

// Copying.

/// Collects the selected lines in the background, and gives them to `use` when they are there.
void Viewer::Collect(bool asColumns, std::function<void(const Copied&)> use) {
    const std::int32_t first = list_->StartSelected();
    const std::int32_t last = list_->EndSelected();
    if (first < 1) return Say("No line is selected.");
    const CopyRange range{document_->SharedFile(), document_->OffsetOf(first), document_->EndOf(last),
                          asColumns, document_->Columns()};
    copyingBytes_ = range.to - range.from;
    Say({});
    copier_.Start(range, [this, use = std::move(use)](Copied&& copied) {
        const auto shared = std::make_shared<Copied>(std::move(copied));
        Later([this, shared, use] {
            if (!open_ || copier_.IsBusy()) return;
            if (!shared->refusal.empty()) return Say(shared->refusal);
            use(*shared);
        })();
    });
}

void Viewer::Copy(bool asColumns) {
    Collect(asColumns, [this, asColumns](const Copied& copied) {
        const std::string size = Bytes(copied.text.size());
        if (copied.text.size() > desktop_.ClipboardCapacity())
            return Say(size + " are more than the " + Bytes(desktop_.ClipboardCapacity()) +
                       " that this clipboard takes: Ctrl+S writes them to a file.");
        desktop_.ClipboardText(copied.text);
        Say("Copied " + Lines(copied.lines) + " (" + size + ") as " + (asColumns ? "columns." : "text."));
    });
}

/// To a new file in the current folder; one that is there already is never replaced.
void Viewer::Save() {
    const std::string name = std::filesystem::path(document_->File().Name()).filename().string() + "." +
                             std::to_string(document_->LineNumber(std::max(list_->StartSelected(), 1))) +
                             "-" + std::to_string(document_->LineNumber(std::max(list_->EndSelected(), 1))) +
                             ".txt";
    if (std::filesystem::exists(name)) return Say(name + " is there already: nothing was written.");
    Collect(false, [this, name](const Copied& copied) {
        std::ofstream file(name, std::ios::binary);
        file << copied.text;
        if (!file.flush()) return Say(name + " cannot be written.");
        Say("Wrote " + Lines(copied.lines) + " (" + Bytes(copied.text.size()) + ") to " + name + ".");
    });
}

void Viewer::ToggleFollow() {
    options_.follow = !options_.follow;
    if (options_.follow) {
        ShowRows();
        GoTo(shownRows_);
    }
    Say({});
    tvok::host::platform().InvalidateRect(form_->hWnd(), nullptr, true);
}

} // namespace logview
