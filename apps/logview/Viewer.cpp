// The log as rows of the list: opening, indexing, what becomes of the file.
#include "apps/logview/Viewer.h"

#include <algorithm>

#include "apps/logview/colors.h"
#include "apps/logview/texts.h"

namespace logview {

namespace {

constexpr auto cLookEvery = std::chrono::milliseconds(150);
constexpr std::int32_t cSwatch = 0x00001000; // the list's bit for a colour swatch in the icon column
constexpr std::int32_t cMarksCached = 4096;

} // namespace

Viewer::Viewer(tvok::Desktop& desktop, const Options& options, Settings& settings)
    : desktop_(desktop), options_(options), settings_(settings) {
    OpenDocument();
    form_ = &desktop.AddForm(document_->File().Name() + " - log viewer", 1100, 720);
    SetUpList();
    MakeColumns();
    ConnectEvents();
    PlaceControls();
    wantedLine_ = static_cast<std::uint64_t>(options_.line);
    document_->Index().WaitForFirstLines();
    TakeProgress();
    if (!options_.find.empty()) findBox_->Text(options_.find);
    form_->ComponentOf(*list_).SetFocus();
}

Viewer::~Viewer() {
    *alive_ = false;
}

bool Viewer::IsBusy() const {
    return document_->Index().IsBusy() || document_->Search().IsBusy() || copier_.IsBusy();
}

std::function<void()> Viewer::Later(std::function<void()> action) {
    return [this, alive = std::weak_ptr(alive_), action = std::move(action)] {
        desktop_.Post([alive, action] {
            if (const auto flag = alive.lock(); flag && *flag) action();
        });
    };
}

void Viewer::OpenDocument() {
    document_ = std::make_unique<Document>(options_, Later([this] { TakeProgress(); }));
}

void Viewer::Restart(const std::string& why) {
    settings_.Widths(document_->Columns().Describe(), list_->HeaderWidths());
    OpenDocument(); // where this throws, the old one stays
    marks_.clear();
    shownRows_ = seenRow_ = startRows_ = 0;
    wantedLine_ = 0;
    wantedPlace_.reset();
    liveFrom_.reset();
    indexed_ = false;
    list_->HeaderClear();
    list_->FileBufCreate(cMarksCached);
    list_->MultiSelect(1); // ends a range, which emptying the list leaves
    list_->Clear();
    MakeColumns();
    SayOfFile(why);
}

// Progress.

void Viewer::Turn() {
    if (!open_) return;
    const auto now = std::chrono::steady_clock::now();
    if (now < nextLook_) return;
    nextLook_ = now + cLookEvery;
    try {
        LookAtFile();
    } catch (const tvok::Error& error) {
        SayOfFile(error.what());
    }
    if (document_->Rows() != shownRows_) TakeProgress(); // a thumb that was held has kept rows back
    if (document_->Search().IsBusy() || copier_.IsBusy()) InvalidateStatus();
}

void Viewer::LookAtFile() {
    switch (document_->File().Look()) {
    case FileChange::None: break;
    case FileChange::Grown: document_->Index().Extend(); break;
    case FileChange::Truncated: Restart("The file was cut short or written anew: it is read again."); break;
    case FileChange::Rotated: Restart("The file was replaced: this is the new one."); break;
    case FileChange::Removed:
        SayOfFile("The file was removed: what was read of it stays until this window closes.");
        break;
    }
}

void Viewer::SayOfFile(const std::string& state) {
    if (fileState_ == state) return;
    fileState_ = state;
    InvalidateStatus();
}

void Viewer::TakeProgress() {
    if (!open_) return;
    if (marks_.empty() && document_->LookAtColumnsAgain(options_)) {
        list_->HeaderClear();
        MakeColumns();
        shownRows_ = document_->Rows(); // one less where the first line turned out to hold the names
        list_->Count(shownRows_);
    }
    ShowRows();
    if (list_->ListIndex() == 0 && !options_.newestFirst) list_->ListIndex(1); // once there is one
    if (!document_->Index().IsBusy()) {
        if (const std::string error = document_->Index().Error(); !error.empty()) SayOfFile(error);
        if (!indexed_) {
            indexed_ = true;
            startRows_ = shownRows_;
            list_->ClearText("The log is empty.");
            if (options_.follow && list_->ListIndex() <= 1 && wantedLine_ == 0) GoTo(shownRows_);
        }
    }
    GoToWanted();
    InvalidateStatus();
}

// What the list asks for.

void Viewer::GiveRow(std::int32_t row, tvok::qrosterdata& record) {
    paintedRow_ = row;
    if (row > seenRow_) {
        seenRow_ = row;
        InvalidateStatus();
    }
    // The last line may still grow, so it is cut anew each time.
    if (record.ItemDataEx != row || record.ItemData != row || row == shownRows_) FillRecord(row, record);
    record.vflag = list_->FileBufValue(row) != 0 ? cSwatch : 0;
}

void Viewer::FillRecord(std::int32_t row, tvok::qrosterdata& record) {
    record = list_->DefaultItem();
    record.IconPos = 0;
    record.IconBackColor = colors::Mark();
    try {
        const std::string line = Shown(document_->Text(row));
        record.text = document_->Columns().Cells(line);
        record.fcolor = colors::Of(SeverityOf(line));
        record.ItemData = row; // which is what `ClearItemData` looks for
    } catch (const tvok::Error& error) {
        record.text = error.what();
    }
}

} // namespace logview
