#include "apps/gallery/Inspector.h"

#include <algorithm>
#include <utility>

#include "tvok/engine/dgi.h"

namespace gallery {

Inspector::Inspector(tvok::Desktop&, tvok::Form& form)
    : form_(form), list_(form.Add<tvok::gList>("inspector.list", {})) {}

void Inspector::Layout(const tvok::tvok_Rect& area) {
    area_ = area;
    const std::int32_t top = area.Top + BannerHeight + HeadingHeight;
    form_.Place(list_, {area.Left, top, std::max(area.Right - area.Left - Margin, 1),
                        std::max(area.bottom - Margin - top, 1)});
}

void Inspector::Paint(tvok::host::Handle hDC) {
    DrawBackground(hDC, area_, fonts_, "Inspector",
                   page_ + ": " + (selected_.empty() ? "nothing" : selected_));
}

void Inspector::Visible(bool show) {
    form_.ComponentOf(list_).Visible(show);
}

void Inspector::Offer(const std::string& page, std::vector<Subject> subjects) {
    page_ = page;
    subjects_ = std::move(subjects);
    Select(std::string(selected_));
}

void Inspector::Select(const std::string& name) {
    const auto found = std::ranges::find(subjects_, name, &Subject::name);
    selected_ = found == subjects_.end() ? std::string() : name;
}

void Inspector::Update() {}

} // namespace gallery
