// How new lines become rows: with the least painting, and so that the reader keeps the place.
#include "apps/logview/Viewer.h"

namespace logview {

namespace {

constexpr std::int32_t cMostRowsAdded = 200000; // more at once are counted, not added

} // namespace

void Viewer::ShowRows() {
    const std::int32_t rows = document_->Rows();
    if (HoldsRowsBack()) return;
    if (rows == shownRows_) return ShowLastRowAgain(rows);
    const std::int32_t before = shownRows_;
    if (indexed_ && options_.follow) {
        AddRows(rows - before);
    } else if (!indexed_ ||
               !options_.newestFirst) { // with the newest row at the top, rows wait to be followed
        shownRows_ = rows;
        list_->Count(rows);
    }
    if (indexed_) ShowLastRowAgain(before);
}

/// The line that was the last one may have been unfinished.
void Viewer::ShowLastRowAgain(std::int32_t row) {
    if (row > 0) list_->ClearItemData(row);
    if (row > 0 && row == shownRows_) list_->DrawItem(row);
}

/// The list keeps added rows back while a thumb is held.
bool Viewer::HoldsRowsBack() const {
    return list_->Count() != shownRows_;
}

/// A row off the page is not painted.
bool Viewer::Shows(std::int32_t row) {
    paintedRow_ = 0;
    list_->DrawItem(row);
    return paintedRow_ == row;
}

void Viewer::AddRow() {
    ++shownRows_;
    if (options_.newestFirst)
        list_->AddItemTop();
    else
        list_->AddItemButtom();
}

void Viewer::AddRows(std::int32_t rows) {
    AddRow();
    if (HoldsRowsBack()) return; // the others come when the thumb is let go
    if (rows - 1 > list_->yn()) return AddManyRows(rows - 1);
    for (std::int32_t i = 1; i < rows; ++i) AddRow();
}

/// More rows than the page has: those that would scroll off it at once are not painted.
void Viewer::AddManyRows(std::int32_t rows) {
    const bool atNewest = Shows(shownRows_);
    if (rows > cMostRowsAdded) {
        shownRows_ += rows;
        list_->Count(shownRows_);
    } else {
        list_->BufAddItemOnly(true);
        for (std::int32_t i = 1; i < rows; ++i) AddRow();
        list_->BufAddItemOnly(false);
        AddRow();
        list_->Refresh();
    }
    if (atNewest && !Shows(shownRows_)) list_->ListIndex(shownRows_);
}

} // namespace logview
