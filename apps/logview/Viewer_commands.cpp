// What the viewer does on keys: finding, going, marking, copying, following.
#include <algorithm>
#include <charconv>
#include <filesystem>
#include <thread>

#include "apps/logview/Viewer.h"

namespace logview {

namespace {

constexpr std::size_t cMostCopied = std::size_t{256} * 1024 * 1024;
constexpr std::int32_t cKeyF2 = 113;
constexpr std::int32_t cKeyF3 = 114;
constexpr std::int32_t cKeyF4 = 115;

} // namespace

void Viewer::KeyDown(std::int16_t& code, std::int16_t shift) {
    const bool shifted = (shift & 1) != 0;
    const bool control = (shift & 2) != 0;
    if (RunCommand(code, control, shifted)) code = 0;
}

bool Viewer::RunCommand(std::int32_t code, bool control, bool shifted) {
    const auto direction = shifted ? Search::Direction::Backward : Search::Direction::Forward;
    const bool inLog = form_->ComponentOf(*list_).hWnd() == tvok::host::platform().GetFocus();
    if (control && code == 'F') {
        form_->ComponentOf(*findBox_).SetFocus();
        findBox_->Select(0, static_cast<std::int32_t>(findBox_->Text().size()));
    } else if (control && code == 'G') {
        form_->ComponentOf(*lineBox_).SetFocus();
    } else if (control && code == 'E') {
        ToggleFollow();
    } else if (control && code == 'C' && inLog) {
        Copy(shifted);
    } else if (code == cKeyF2) {
        ToggleMark();
    } else if (code == cKeyF3) {
        Find(direction, false);
    } else if (code == cKeyF4) {
        NextMark();
    } else if (code == tvok::host::VK_ESCAPE && !inLog) {
        form_->ComponentOf(*list_).SetFocus();
    } else {
        return false;
    }
    return true;
}

// Going.

void Viewer::GoTo(std::int32_t row) {
    list_->ListIndex(row);
    InvalidateStatus();
}

void Viewer::GoToStart() {
    if (options_.line > 0) GoTo(std::min(options_.line, shownRows_));
    if (!options_.find.empty()) findBox_->Text(options_.find);
    options_.line = 0; // a file that is read anew starts at its beginning
}

void Viewer::GoToLine() {
    const std::string& text = lineBox_->Text();
    std::int32_t row = 0;
    const auto [end, code] = std::from_chars(text.data(), text.data() + text.size(), row);
    if (code != std::errc() || end != text.data() + text.size() || row < 1 || row > shownRows_)
        return Say("There is no line " + text + ": the last one is " + std::to_string(shownRows_) + ".");
    Say({});
    GoTo(row);
    form_->ComponentOf(*list_).SetFocus();
}

// Finding.

void Viewer::Find(Search::Direction direction, bool live) {
    const std::string text = findBox_->Text();
    if (text.empty()) return document_->Search().Cancel();
    const std::int32_t row = list_->ListIndex();
    std::uint64_t from = row < 1 ? 0 : document_->OffsetOf(row);
    if (!live && direction == Search::Direction::Forward && row >= 1)
        from = row < shownRows_ ? document_->OffsetOf(row + 1) : document_->File().Size();
    if (live) from = liveFrom_ = std::min(liveFrom_ == 0 ? from : liveFrom_, from);
    if (!live) liveFrom_ = 0;
    Say("looking for \"" + text + "\" ...");
    document_->Search().Start(
        text, from, direction,
        [this, text, alive = std::weak_ptr(alive_)](std::optional<std::uint64_t> offset) {
            desktop_.Post([this, text, alive, offset] {
                if (const auto flag = alive.lock(); flag && *flag) ShowFound(offset, text);
            });
        });
}

void Viewer::ShowFound(std::optional<std::uint64_t> offset, const std::string& text) {
    if (!open_) return;
    if (!offset) return Say("\"" + text + "\" was not found");
    Say("\"" + text + "\" found");
    GoTo(document_->RowAt(*offset));
}

// Marks.

void Viewer::ToggleMark() {
    const std::int32_t row = list_->ListIndex();
    if (row < 1) return;
    const bool marked = list_->FileBufValue(row) != 0;
    try {
        list_->FileBufValue(row, marked ? 0 : 1);
    } catch (const tvok::Error& error) {
        return Say(error.what());
    }
    if (marked)
        marks_.erase(row);
    else
        marks_.insert(row);
    list_->DrawItem(row);
    InvalidateStatus();
}

void Viewer::NextMark() {
    if (marks_.empty()) return Say("No line is marked: F2 marks one.");
    const auto next = marks_.upper_bound(list_->ListIndex());
    GoTo(next == marks_.end() ? *marks_.begin() : *next);
}

// Copying.

void Viewer::Copy(bool asColumns) {
    const std::int32_t last = list_->EndSelected();
    std::string text;
    std::int32_t row = list_->StartSelected();
    for (; row >= 1 && row <= last && text.size() < cMostCopied; ++row) {
        text += asColumns ? document_->Cells(row) : document_->Text(row);
        text += '\n';
    }
    desktop_.ClipboardText(text);
    Say(row <= last ? "The selection is too long: its first 256 MB were copied." : "Copied.");
}

void Viewer::ToggleFollow() {
    options_.follow = !options_.follow;
    if (options_.follow) GoTo(shownRows_);
    tvok::host::platform().InvalidateRect(form_->hWnd(), nullptr, true);
}

// Pictures.

std::vector<std::string> Viewer::WritePictures(const std::string& folder) {
    std::filesystem::create_directories(folder);
    std::vector<std::string> files;
    const auto settle = [&] {
        while (document_->Index().IsBusy() || document_->Search().IsBusy())
            desktop_.ProcessEvents(std::chrono::milliseconds(10));
        desktop_.ProcessEvents(std::chrono::milliseconds(0));
    };
    const auto picture = [&](const char* name) {
        settle();
        files.push_back((std::filesystem::path(folder) / (std::string("logview-") + name + ".png")).string());
        desktop_.SaveForm(*form_, files.back());
    };
    picture("1-first-page");
    GoTo(shownRows_);
    ToggleMark();
    picture("2-end-and-mark");
    GoTo(shownRows_ / 2);
    desktop_.Input().KeyDown(tvok::host::VK_SHIFT);
    for (int i = 0; i < 12; ++i) desktop_.Input().KeyDown(tvok::host::VK_DOWN);
    desktop_.Input().KeyUp(tvok::host::VK_DOWN);
    desktop_.Input().KeyUp(tvok::host::VK_SHIFT);
    picture("3-range");
    GoTo(1);
    findBox_->Text({});
    findBox_->Text(options_.find.empty() ? "error" : options_.find);
    picture("4-found");
    return files;
}

} // namespace logview
