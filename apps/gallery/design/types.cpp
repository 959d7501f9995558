#include "apps/gallery/design/types.h"

namespace gallery {

const std::vector<DesignType>& DesignTypes() {
    static const std::vector<DesignType> types{
        {"iLabel", {0, 0, 120, 24}, Icon::Letter, "a label with an icon"},
        {"TextBox", {0, 0, 120, 24}, Icon::Page, "one line of text to edit"},
        {"xbutton", {0, 0, 120, 24}, Icon::EmptyBox, "a strip of small buttons"},
        {"ucColorSelector", {0, 0, 200, 24}, Icon::Picture, "a colour to choose"},
        {"pcols", {0, 0, 240, 24}, Icon::Newest, "captions over columns"},
        {"qRoster", {0, 0, 160, 120}, Icon::Books, "a list of items"},
        {"qRosterex", {0, 0, 160, 120}, Icon::Cylinder, "a list of very many rows"},
        {"gList", {0, 0, 200, 160}, Icon::Gear, "a property list"},
        {"xPopup", {0, 0, 32, 32}, Icon::Box, "a list that drops out of the form"},
    };
    return types;
}

tvok::Placement UsualSize(const std::string& type) {
    for (const DesignType& each : DesignTypes())
        if (type == each.name) return each.size;
    return {};
}

} // namespace gallery
