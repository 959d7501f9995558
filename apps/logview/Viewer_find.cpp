// Finding: as the text is typed, the next and the previous place, around the end.
#include "apps/logview/Viewer.h"

namespace logview {

void Viewer::Find(Search::Direction direction, bool live) {
    const std::string text = findBox_->Text();
    wantedPlace_.reset();
    if (text.empty()) {
        document_->Search().Cancel();
        return Say({});
    }
    const std::int32_t row = list_->ListIndex();
    const bool forward = direction == Search::Direction::Forward;
    std::uint64_t from = forward ? 0 : document_->File().Size();
    if (row >= 1) from = live || !forward ? document_->OffsetOf(row) : document_->EndOf(row);
    if (live) {
        // A letter more looks from where the typing began, so that one taken back finds what it found before.
        if (!liveFrom_) liveFrom_ = from;
        from = *liveFrom_;
    } else {
        liveFrom_.reset();
    }
    StartSearch(text, from, direction, std::nullopt);
}

void Viewer::StartSearch(const std::string& text, std::uint64_t from, Search::Direction direction,
                         std::optional<std::uint64_t> until) {
    const auto found = [this, text, from, direction, until](std::optional<std::uint64_t> offset) {
        Later([=, this] { ShowFound(offset, text, from, direction, until.has_value()); })();
    };
    document_->Search().Start(text, from, direction, found, until);
    Say({});
}

void Viewer::ShowFound(std::optional<std::uint64_t> offset, const std::string& text, std::uint64_t from,
                       Search::Direction direction, bool around) {
    // The answer to a search that was given up meanwhile is none.
    if (!open_ || document_->Search().IsBusy() || text != findBox_->Text()) return;
    const bool forward = direction == Search::Direction::Forward;
    const std::uint64_t end = document_->File().Size();
    if (!offset && !around && from != (forward ? 0 : end))
        return StartSearch(text, forward ? 0 : end, direction, from);
    const std::string quoted = "\"" + text + "\"";
    if (!offset) return Say(quoted + " is not in this log.");
    const std::string way = forward ? "on from the beginning" : "on from the end";
    Say(quoted + " found" + (around ? ", " + way : "") + ".");
    wantedPlace_ = offset;
    GoToWanted();
}

} // namespace logview
