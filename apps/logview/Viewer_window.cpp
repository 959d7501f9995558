// The viewer's window: its controls' places, its columns, and what it paints itself.
#include "apps/logview/Viewer.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "apps/logview/colors.h"
#include "tvok/engine/dgi.h"
#include "tvok/host/Services.h"
#include "tvok/records/text.h"

namespace logview {

namespace {

constexpr std::int32_t cToolHeight = 34;
constexpr std::int32_t cStatusHeight = 24;
constexpr std::int32_t cProgressWidth = 160;
constexpr std::int32_t cMargin = 8;
constexpr std::int32_t cCellSpace = 14;
constexpr std::int32_t cWidestColumn = 420;
constexpr std::int32_t cLastColumn = 1600;
constexpr std::int32_t cCenteredLine =
    tvok::host::DT_VCENTER | tvok::host::DT_SINGLELINE | tvok::host::DT_NOPREFIX;

std::string Grouped(std::uint64_t number) {
    std::string text = std::to_string(number);
    for (std::ptrdiff_t at = static_cast<std::ptrdiff_t>(text.size()) - 3; at > 0; at -= 3)
        text.insert(static_cast<std::size_t>(at), ",");
    return text;
}

std::string Bytes(std::uint64_t bytes) {
    const char* const units[] = {"bytes", "KB", "MB", "GB", "TB"};
    std::size_t unit = 0;
    auto amount = static_cast<double>(bytes);
    for (; amount >= 1000 && unit + 1 < std::size(units); ++unit) amount /= 1000;
    char text[32];
    std::snprintf(text, sizeof text, unit == 0 ? "%.0f %s" : "%.1f %s", amount, units[unit]);
    return text;
}

void WriteLine(tvok::host::Handle hDC, const std::string& text, tvok::tvok_Rect rect, std::int32_t flags) {
    tvok::host::platform().DrawTextA(hDC, text.data(), static_cast<std::int32_t>(text.size()), rect,
                                     cCenteredLine | flags);
}

} // namespace

void Viewer::ConnectEvents() {
    list_->events.EnumDATA = [this](std::int32_t& row, tvok::qrosterdata& record) { GiveRow(row, record); };
    list_->events.Change = [this](std::int32_t) { InvalidateStatus(); };
    list_->events.Click = [this](std::int32_t) { InvalidateStatus(); };
    findBox_->events.Change = [this] { Find(Search::Direction::Forward, true); };
    findBox_->events.Enter = [this] { Find(Search::Direction::Forward, false); };
    lineBox_->events.Enter = [this] { GoToLine(); };
    form_->events.Resize = [this] { PlaceControls(); };
    form_->events.Paint = [this] { PaintBars(); };
    form_->events.KeyDown = [this](std::int16_t& code, std::int16_t& shift) { KeyDown(code, shift); };
    form_->events.Closed = [this] {
        open_ = false;
        document_->Search().Cancel();
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

std::int32_t Viewer::FittingWidth(std::size_t column) const {
    const tvok::host::Component& component = form_->ComponentOf(*list_);
    const float perPixel = tvok::host::services().Screen().TwipsPerPixelX();
    float widest = component.TextWidth(document_->Columns().Names()[column]);
    for (const std::string& line : document_->Sample()) {
        const std::string cells = document_->Columns().Cells(line);
        const auto parts = tvok::Split(cells, '\t');
        if (column < parts.size()) widest = std::max(widest, component.TextWidth(parts[column]));
    }
    const auto width = static_cast<std::int32_t>(widest / perPixel) + cCellSpace;
    return std::min(width + (column == 0 ? list_->CX_TEXT() : 0), cWidestColumn);
}

void Viewer::MakeColumns() {
    const std::vector<std::string>& names = document_->Columns().Names();
    for (std::size_t i = 0; i < names.size(); ++i)
        list_->HeaderAdd(0, names[i], i + 1 == names.size() ? cLastColumn : FittingWidth(i));
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

std::string Viewer::StatusText() const {
    std::string text =
        Grouped(static_cast<std::uint64_t>(shownRows_)) + " lines, " + Bytes(document_->File().Size());
    const std::int32_t first = list_->StartSelected();
    const std::int32_t last = list_->EndSelected();
    if (first > 0 && first == last) text += ", line " + Grouped(static_cast<std::uint64_t>(first));
    if (first > 0 && first < last)
        text += ", " + Grouped(static_cast<std::uint64_t>(last) - static_cast<std::uint64_t>(first) + 1) +
                " lines selected";
    if (!marks_.empty()) text += ", " + Grouped(marks_.size()) + " marked";
    if (!message_.empty()) text += "   " + message_;
    return text;
}

void Viewer::PaintBars() {
    const tvok::host::Handle hDC = form_->hDC();
    tvok::host::Platform& platform = tvok::host::platform();
    tvok::dgi::FillRectColor(hDC, {0, 0, form_->Width(), cToolHeight}, tvok::cButtonFace);
    platform.SetBkMode(hDC, tvok::host::TRANSPARENT_BK);
    platform.SetTextColor(hDC, tvok::dgi::TranslateColor(tvok::cButtonText));
    WriteLine(hDC, "Find", {cMargin, 0, 52, cToolHeight}, 0);
    WriteLine(hDC, "Line", {332, 0, 372, cToolHeight}, 0);
    WriteLine(hDC, options_.follow ? "following (Ctrl+E)" : "Ctrl+E follows",
              {500, 0, std::max(form_->Width() - cMargin, 500), cToolHeight}, tvok::host::DT_RIGHT);
    PaintStatus();
}

void Viewer::PaintStatus() {
    const tvok::host::Handle hDC = form_->hDC();
    const std::int32_t top = form_->Height() - cStatusHeight;
    const std::int32_t right = form_->Width() - cMargin;
    tvok::dgi::FillRectColor(hDC, {0, top, form_->Width(), form_->Height()}, tvok::cButtonFace);
    tvok::host::platform().SetBkMode(hDC, tvok::host::TRANSPARENT_BK);
    tvok::host::platform().SetTextColor(hDC, tvok::dgi::TranslateColor(tvok::cButtonText));
    const std::uint64_t size = document_->File().Size();
    const std::uint64_t known = document_->Index().IndexedBytes();
    std::int32_t left = right;
    if (known < size) {
        left = right - cProgressWidth;
        const tvok::tvok_Rect bar{left, top + 6, right, form_->Height() - 6};
        tvok::dgi::DrawBoxRect(hDC, bar, 1, tvok::cWindowFrame, tvok::cWindowBackground, true);
        const auto done = static_cast<double>(known) / static_cast<double>(size) * (cProgressWidth - 2);
        tvok::dgi::FillRectColor(
            hDC, {bar.Left + 1, bar.Top + 1, bar.Left + 1 + static_cast<std::int32_t>(done), bar.bottom - 1},
            colors::Progress());
    } else if (const std::int32_t fresh = NewLinesUnseen(); fresh > 0) {
        left = right - cProgressWidth;
        WriteLine(hDC, Grouped(static_cast<std::uint64_t>(fresh)) + (fresh == 1 ? " new line" : " new lines"),
                  {left, top, right, form_->Height()}, tvok::host::DT_RIGHT);
    }
    WriteLine(hDC, StatusText(), {cMargin, top, std::max(left - cMargin, cMargin), form_->Height()}, 0);
}

} // namespace logview
