// The log as rows of the list: opening, indexing, following.
#include "apps/logview/Viewer.h"

#include <algorithm>

#include "apps/logview/colors.h"

namespace logview {

namespace {

constexpr auto cLookEvery = std::chrono::milliseconds(150);
constexpr std::int32_t cMostRowsOneByOne = 20000;
constexpr std::int32_t cReady = 1;           // `ItemData` of a record whose text is that of its row
constexpr std::int32_t cSwatch = 0x00001000; // the list's bit for a colour swatch in the icon column

} // namespace

Viewer::Viewer(tvok::Desktop& desktop, const Options& options, Settings& settings)
    : desktop_(desktop), options_(options), settings_(settings) {
    OpenDocument();
    form_ = &desktop.AddForm(document_->File().Name() + " - log viewer", 1100, 720);
    list_ = &form_->Add<tvok::qRosterex>("log", {0, 34, 1100, 660});
    findBox_ = &form_->Add<tvok::TextBox>("find", {52, 6, 260, 22});
    lineBox_ = &form_->Add<tvok::TextBox>("line", {372, 6, 110, 22});
    list_->BorderStyle(0);
    list_->MultiSelect(1);
    list_->GridlineWidth(0);
    list_->ItemHeight(18);
    list_->HeaderHeight(22);
    list_->CX_TEXT(16);
    list_->IconCX(4);
    list_->IconCY(4);
    list_->FileBufCreate(4096);
    list_->ClearText("The log is empty.");
    list_->ViewMode(options_.newestFirst ? 0 : 1);
    MakeColumns();
    ConnectEvents();
    PlaceControls();
    TakeProgress();
    form_->ComponentOf(*list_).SetFocus();
}

Viewer::~Viewer() {
    *alive_ = false;
}

void Viewer::OpenDocument() {
    const auto progress = [this, alive = std::weak_ptr(alive_)] {
        desktop_.Post([this, alive] {
            if (const auto flag = alive.lock(); flag && *flag) TakeProgress();
        });
    };
    document_ = std::make_unique<Document>(options_, progress);
}

void Viewer::Restart(const std::string& why) {
    settings_.Widths(document_->Columns().Describe(), list_->HeaderWidths());
    document_.reset();
    OpenDocument();
    marks_.clear();
    shownRows_ = seenRow_ = startRows_ = 0;
    indexed_ = false;
    list_->HeaderClear();
    list_->FileBufCreate(4096);
    list_->Clear();
    MakeColumns();
    Say(why);
}

// Following.

void Viewer::Turn() {
    if (!open_) return;
    const auto now = std::chrono::steady_clock::now();
    if (now < nextLook_) return;
    nextLook_ = now + cLookEvery;
    try {
        LookAtFile();
    } catch (const tvok::Error& error) {
        Say(error.what());
    }
}

void Viewer::LookAtFile() {
    switch (document_->File().Look()) {
    case FileChange::None: break;
    case FileChange::Grown: document_->Index().Extend(); break;
    case FileChange::Truncated: Restart("The file was cut short: it is read anew."); break;
    case FileChange::Rotated: Restart("The file was replaced: this is the new one."); break;
    case FileChange::Removed:
        Say("The file was removed. What was read of it stays until this window closes.");
        break;
    }
}

void Viewer::TakeProgress() {
    if (!open_) return;
    ShowRows();
    if (!document_->Index().IsBusy()) {
        if (const std::string error = document_->Index().Error(); !error.empty()) Say(error);
        if (!indexed_) {
            indexed_ = true;
            startRows_ = shownRows_;
            GoToStart();
        }
    }
    InvalidateStatus();
}

void Viewer::ShowRows() {
    const std::int32_t rows = document_->Rows();
    if (rows == shownRows_) {
        if (indexed_ && rows > 0) list_->DrawItem(rows); // the last line may have grown
        return;
    }
    const std::int32_t before = shownRows_;
    shownRows_ = rows;
    if (!indexed_ || rows - before > cMostRowsOneByOne)
        list_->Count(rows);
    else
        AddRows(rows - before);
    if (before > 0) list_->DrawItem(before);
    if (options_.follow && !indexed_) GoTo(rows);
}

void Viewer::AddRows(std::int32_t rows) {
    for (std::int32_t i = 0; i < rows; ++i) {
        if (options_.newestFirst)
            list_->AddItemTop();
        else
            list_->AddItemButtom();
    }
}

std::int32_t Viewer::NewLinesUnseen() const {
    return shownRows_ - std::max(seenRow_, startRows_);
}

// Rows.

void Viewer::GiveRow(std::int32_t row, tvok::qrosterdata& record) {
    seenRow_ = std::max(seenRow_, row);
    // The last line may still grow, so it is cut anew each time.
    if (record.ItemDataEx != row || record.ItemData != cReady || row == shownRows_) FillRecord(row, record);
    record.vflag = list_->FileBufValue(row) != 0 ? cSwatch : 0;
}

void Viewer::FillRecord(std::int32_t row, tvok::qrosterdata& record) {
    record = list_->DefaultItem();
    record.IconPos = 0;
    record.IconBackColor = colors::Mark();
    try {
        const std::string line = document_->Text(row);
        record.text = document_->Columns().Cells(line);
        record.fcolor = colors::Of(SeverityOf(line));
        record.ItemData = cReady;
    } catch (const tvok::Error& error) {
        record.text = error.what();
    }
}

} // namespace logview
