#include "apps/gallery/EventLog.h"

#include <algorithm>

#include "tvok/engine/dgi.h"

namespace gallery {

namespace {

constexpr std::int32_t RowHeight = 20;

} // namespace

EventLog::EventLog(tvok::Desktop&, tvok::Form& form)
    : form_(form), list_(form.Add<tvok::qRosterex>("log.list", {})) {
    list_.ItemHeight(RowHeight);
    list_.HeaderHeight(RowHeight);
    list_.HeaderAdd(0, "Control", 160, {}, 0, tvok::cButtonText);
    list_.HeaderAdd(0, "Event", 140, {}, 0, tvok::cButtonText);
    list_.HeaderAdd(0, "Arguments", 600, {}, 0, tvok::cButtonText);
    list_.ClearText("No event yet");
}

void EventLog::Layout(const tvok::tvok_Rect& area) {
    area_ = area;
    const std::int32_t top = area.Top + HeadingHeight;
    form_.Place(list_, {area.Left + Margin, top, std::max(area.Right - area.Left - 2 * Margin, 1),
                        std::max(area.bottom - Margin - top, 1)});
}

void EventLog::Paint(tvok::host::Handle hDC) {
    tvok::dgi::FillRectColor(hDC, area_, tvok::cButtonFace);
    DrawLabel(hDC, {area_.Left + Margin, area_.Top, area_.Right, area_.Top + HeadingHeight},
              "Events, newest first", fonts_.Bold(), tvok::cButtonText);
}

void EventLog::Visible(bool show) {
    form_.ComponentOf(list_).Visible(show);
}

void EventLog::Watch(tvok::host::Control&, const std::string&) {}

void EventLog::Turn() {}

} // namespace gallery
