// The states of the page "design" that are worth a picture.
#include "apps/gallery/design/DesignPage.h"

namespace gallery {

using tvok::host::platform;
using tvok::host::Point;
using tvok::host::VK_CONTROL;

/// A point of the designed form, in pixels of the area around it.
Point DesignPage::OnArea(Point point) const {
    platform().ClientToScreen(designer_.form().hWnd(), point);
    platform().ScreenToClient(form_.ComponentOf(area_).hWnd(), point);
    return point;
}

std::vector<Scene> DesignPage::Scenes() {
    return {
        {"", [] {}},
        {"selected",
         [this] {
             hands_.Click(area_, OnArea({100, 160}));
             hands_.Click(area_, OnArea({350, 150}), VK_CONTROL);
             hands_.Click(area_, OnArea({60, 324}), VK_CONTROL);
         }},
        {"resized",
         [this] {
             hands_.Click(area_, OnArea({440, 330}));
             hands_.Click(area_, OnArea({100, 160}));
             hands_.Drag(area_, OnArea({287, 295}), OnArea({230, 250}));
         }},
        {"undone",
         [this] {
             desktop_.Input().KeyDown(VK_CONTROL);
             hands_.Press('Z');
             desktop_.Input().KeyUp(VK_CONTROL);
         }},
        {"running", [this] { Run(); }, true},
    };
}

} // namespace gallery
