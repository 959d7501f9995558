#include "apps/gallery/Page.h"

#include "apps/gallery/ButtonsPage.h"
#include "apps/gallery/ColorsPage.h"
#include "apps/gallery/ColumnsPage.h"
#include "apps/gallery/FeedPage.h"
#include "apps/gallery/LabelsPage.h"
#include "apps/gallery/ListsPage.h"
#include "apps/gallery/PopupsPage.h"
#include "apps/gallery/PropertiesPage.h"
#include "apps/gallery/design/DesignPage.h"

namespace gallery {

namespace {

template<class T>
std::unique_ptr<Page> Make(tvok::Desktop& desktop, tvok::Form& form) {
    return std::make_unique<T>(desktop, form);
}

} // namespace

const std::vector<PageEntry>& Pages() {
    static const std::vector<PageEntry> pages{
        {"lists", "Flat lists", Icon::Books, "three flat lists of the packages on this machine",
         Make<ListsPage>},
        {"feed", "Live feed", Icon::Chart, "a live feed into two large lists", Make<FeedPage>},
        {"columns", "Column bar", Icon::Newest, "a column bar over a list that follows it",
         Make<ColumnsPage>},
        {"labels", "Labels", Icon::Letter, "labels with icons that take the focus", Make<LabelsPage>},
        {"buttons", "Buttons", Icon::EmptyBox, "strips of small buttons, one with a text to edit",
         Make<ButtonsPage>},
        {"popups", "Popups", Icon::Picture, "lists and palettes that drop out of the form", Make<PopupsPage>},
        {"colors", "Colors", Icon::Cylinder, "selectors for the colours of a list that follows",
         Make<ColorsPage>},
        {"properties", "Properties", Icon::Gear, "a property list over the live controls beside it",
         Make<PropertiesPage>},
        {"design", "Design", Icon::Brackets, "a form to arrange, to save and to run", Make<DesignPage>},
    };
    return pages;
}

const PageEntry* FindPage(const std::string& name) {
    for (const PageEntry& page : Pages()) {
        if (page.name == name) return &page;
    }
    return nullptr;
}

} // namespace gallery
