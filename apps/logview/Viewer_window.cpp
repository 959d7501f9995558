// The viewer's window: its controls' places, its columns, and what it paints itself.
#include "apps/logview/Viewer.h"

#include <algorithm>
#include <utility>

#include "apps/logview/colors.h"
#include "apps/logview/texts.h"
#include "tvok/engine/dgi.h"
#include "tvok/host/Services.h"
#include "tvok/records/text.h"

namespace logview {

namespace {

constexpr std::int32_t cToolHeight = 34;
constexpr std::int32_t cStatusHeight = 24;
constexpr std::int32_t cProgressWidth = 160;
constexpr std::int32_t cHintLeft = 540;
constexpr std::int32_t cMargin = 8;
constexpr std::int32_t cCellSpace = 14;
constexpr std::int32_t cWidestColumn = 420;
constexpr std::int32_t cLastColumn = 2400;
constexpr std::int32_t cMarksCached = 4096;
constexpr const char* cKeys =
    "Ctrl+F find, F3 next, Shift+F3 previous   Ctrl+G line or A-B   F2 mark, F4 next mark   "
    "Ctrl+C copy, with Shift as columns   Ctrl+A all   Ctrl+S to a file   Ctrl+E follow   Esc stop";
constexpr std::int32_t cCenteredLine =
    tvok::host::DT_VCENTER | tvok::host::DT_SINGLELINE | tvok::host::DT_NOPREFIX;

void WriteLine(tvok::host::Handle hDC, const std::string& text, tvok::tvok_Rect rect, std::int32_t flags) {
    tvok::host::platform().DrawTextA(hDC, text.data(), static_cast<std::int32_t>(text.size()), rect,
                                     cCenteredLine | flags);
}

} // namespace

void Viewer::SetUpList() {
    list_ = &form_->Add<tvok::qRosterex>("log", {0, cToolHeight, 1100, 660});
    findBox_ = &form_->Add<tvok::TextBox>("find", {52, 6, 260, 22});
    lineBox_ = &form_->Add<tvok::TextBox>("line", {372, 6, 150, 22});
    list_->BorderStyle(0);
    list_->MultiSelect(1);
    list_->KeySeek(true);
    list_->GridlineWidth(0);
    list_->ItemHeight(18);
    list_->HeaderHeight(22);
    list_->CX_TEXT(16);
    list_->IconCX(4);
    list_->IconCY(4);
    list_->FileBufCreate(cMarksCached);
    list_->ClearText("Reading ...");
    list_->ViewMode(options_.newestFirst ? 0 : 1);
}

void Viewer::ConnectEvents() {
    list_->events.EnumDATA = [this](std::int32_t& row, tvok::qrosterdata& record) { GiveRow(row, record); };
    list_->events.Change = [this](std::int32_t) { InvalidateStatus(); };
    list_->events.Click = [this](std::int32_t) { InvalidateStatus(); };
    list_->events.KeyUp = [this](std::int16_t&, std::int16_t&) { InvalidateStatus(); };
    list_->events.MouseMove = [this](std::int16_t& button, std::int16_t&, float&, float&) {
        if (button != 0) InvalidateStatus(); // a range grows without a `Change`
    };
    list_->events.KeySeek = [this](std::int16_t, std::int32_t, std::int32_t& row) {
        row = std::exchange(extendTo_, 0);
    };
    findBox_->events.Change = [this] { Find(Search::Direction::Forward, true); };
    findBox_->events.Enter = [this] { Find(Search::Direction::Forward, false); };
    lineBox_->events.Enter = [this] { GoToTypedLine(); };
    form_->events.Resize = [this] { PlaceControls(); };
    form_->events.Paint = [this] { PaintBars(); };
    form_->events.KeyDown = [this](std::int16_t& code, std::int16_t& shift) { KeyDown(code, shift); };
    form_->events.Closed = [this] {
        open_ = false;
        document_->Search().Cancel();
        copier_.Cancel();
    };
    form_->events.Closing = [this](bool&) {
        settings_.Widths(document_->Columns().Describe(), list_->HeaderWidths());
    };
}

void Viewer::PlaceControls() {
    const std::int32_t height = form_->Height() - cToolHeight - cStatusHeight;
    form_->Place(*list_, {0, cToolHeight, form_->Width(), std::max(height, 1)});
    tvok::host::platform().InvalidateRect(form_->hWnd(), nullptr, true);
}

/// What the column's name and the log's first lines need, in pixels, and at most `most`.
std::int32_t Viewer::FittingWidth(std::size_t column, std::int32_t most) const {
    const tvok::host::Component& component = form_->ComponentOf(*list_);
    const float perPixel = tvok::host::services().Screen().TwipsPerPixelX();
    float widest = component.TextWidth(document_->Columns().Names()[column]);
    for (const std::string& line : document_->Sample()) {
        const std::string cells = document_->Columns().Cells(Shown(line));
        const auto parts = tvok::Split(cells, '\t');
        if (column < parts.size()) widest = std::max(widest, component.TextWidth(parts[column]));
    }
    const auto width = static_cast<std::int32_t>(std::min(widest / perPixel, static_cast<float>(most)));
    return std::min(width + cCellSpace + (column == 0 ? list_->CX_TEXT() : 0), most);
}

void Viewer::MakeColumns() {
    const std::vector<std::string>& names = document_->Columns().Names();
    const std::size_t last = names.size() - 1;
    std::int32_t rest = form_->Width() - tvok::host::platform().GetSystemMetrics(tvok::host::SM_CXVSCROLL);
    for (std::size_t i = 0; i < last; ++i) {
        const std::int32_t width = FittingWidth(i, cWidestColumn);
        list_->HeaderAdd(0, names[i], width);
        rest -= width;
    }
    // Half as much again for longer lines than the first ones, and at least to the window's edge.
    list_->HeaderAdd(0, names[last], std::max(FittingWidth(last, cLastColumn) * 3 / 2, rest));
    list_->HeaderWidths(settings_.Widths(document_->Columns().Describe()));
    list_->Refresh();
}

void Viewer::Say(const std::string& message) {
    message_ = message;
    InvalidateStatus();
}

void Viewer::InvalidateStatus() {
    const tvok::tvok_Rect status{0, form_->Height() - cStatusHeight, form_->Width(), form_->Height()};
    tvok::host::platform().InvalidateRect(form_->hWnd(), &status, false);
}

/// "line 12 of 5,000", or what is selected; lines are numbered as in the file.
std::string Viewer::WhereText() const {
    const std::uint64_t lines = document_->Index().Lines();
    const std::int32_t first = list_->StartSelected();
    const std::int32_t last = list_->EndSelected();
    if (first < 1) return Lines(lines);
    const std::string from = Grouped(document_->LineNumber(first));
    if (first >= last) return "line " + from + " of " + Grouped(lines);
    const auto selected = static_cast<std::uint64_t>(last) - static_cast<std::uint64_t>(first) + 1;
    return "lines " + from + " - " + Grouped(document_->LineNumber(last)) + " of " + Grouped(lines) + ": " +
           Lines(selected) + " selected";
}

/// What is going on, with how far it is.
std::string Viewer::WorkText() const {
    const auto percent = [](std::uint64_t part, std::uint64_t whole) {
        return std::to_string(whole == 0 ? 0 : part * 100 / whole) + " %";
    };
    if (copier_.IsBusy()) return "copying, " + percent(copier_.BytesRead(), copyingBytes_) + " (Esc stops)";
    if (document_->Search().IsBusy())
        return "looking for \"" + findBox_->Text() + "\", at " +
               percent(document_->Search().Place(), document_->File().Size()) + " of the log (Esc stops)";
    if (wantedPlace_ || wantedLine_ > 0) return "going there once it is indexed";
    return {};
}

std::string Viewer::StatusText() const {
    if (showKeys_) return cKeys;
    std::string text = WhereText() + ", " + Bytes(document_->File().Size());
    if (!marks_.empty()) text += ", " + Grouped(marks_.size()) + " marked";
    if (options_.follow) text += ", following";
    for (const std::string& part : {WorkText(), message_, fileState_})
        if (!part.empty()) text += "   " + part;
    return text;
}

std::int32_t Viewer::NewLinesUnseen() const {
    return indexed_ ? std::max(document_->Rows() - std::max(seenRow_, startRows_), 0) : 0;
}

void Viewer::PaintBars() {
    const tvok::host::Handle hDC = form_->hDC();
    tvok::host::Platform& platform = tvok::host::platform();
    tvok::dgi::FillRectColor(hDC, {0, 0, form_->Width(), cToolHeight}, tvok::cButtonFace);
    platform.SetBkMode(hDC, tvok::host::TRANSPARENT_BK);
    platform.SetTextColor(hDC, tvok::dgi::TranslateColor(tvok::cButtonText));
    WriteLine(hDC, "Find", {cMargin, 0, 52, cToolHeight}, 0);
    WriteLine(hDC, "Line", {332, 0, 372, cToolHeight}, 0);
    const std::string follow = options_.follow ? "following, Ctrl+E stops" : "Ctrl+E follows";
    WriteLine(hDC, follow + "   F1 keys",
              {cHintLeft, 0, std::max(form_->Width() - cMargin, cHintLeft), cToolHeight},
              tvok::host::DT_RIGHT);
    PaintStatus();
}

void Viewer::PaintProgress(const tvok::tvok_Rect& bar, double part) const {
    const tvok::host::Handle hDC = form_->hDC();
    tvok::dgi::DrawBoxRect(hDC, bar, 1, tvok::cWindowFrame, tvok::cWindowBackground, true);
    const auto done = static_cast<std::int32_t>(part * (bar.Right - bar.Left - 2));
    tvok::dgi::FillRectColor(hDC, {bar.Left + 1, bar.Top + 1, bar.Left + 1 + done, bar.bottom - 1},
                             colors::Progress());
}

void Viewer::PaintStatus() {
    const tvok::host::Handle hDC = form_->hDC();
    const std::int32_t top = form_->Height() - cStatusHeight;
    const std::int32_t bottom = form_->Height();
    const std::int32_t right = form_->Width() - cMargin;
    tvok::dgi::FillRectColor(hDC, {0, top, form_->Width(), bottom}, tvok::cButtonFace);
    tvok::host::platform().SetBkMode(hDC, tvok::host::TRANSPARENT_BK);
    tvok::host::platform().SetTextColor(hDC, tvok::dgi::TranslateColor(tvok::cButtonText));
    const std::uint64_t size = document_->File().Size();
    const std::uint64_t known = document_->Index().IndexedBytes();
    const std::int32_t fresh = NewLinesUnseen();
    std::int32_t left = right;
    if (!indexed_ && known < size) {
        left = right - cProgressWidth;
        PaintProgress({left, top + 6, right, bottom - 6},
                      static_cast<double>(known) / static_cast<double>(size));
    } else if (fresh > 0) {
        left = right - cProgressWidth;
        tvok::dgi::FillRectColor(hDC, {left, top + 3, right, bottom - 3}, tvok::cHighlight);
        tvok::host::platform().SetTextColor(
            hDC, tvok::host::platform().GetSysColor(tvok::host::COLOR_HIGHLIGHTTEXT));
        WriteLine(hDC, Grouped(static_cast<std::uint64_t>(fresh)) + (fresh == 1 ? " new line" : " new lines"),
                  {left, top, right, bottom}, tvok::host::DT_CENTER);
        tvok::host::platform().SetTextColor(hDC, tvok::dgi::TranslateColor(tvok::cButtonText));
    }
    WriteLine(hDC, StatusText(), {cMargin, top, std::max(left - cMargin, cMargin), bottom}, 0);
}

} // namespace logview
