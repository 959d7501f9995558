#include "apps/gallery/Page.h"

#include "apps/gallery/ListsPage.h"

namespace gallery {

const std::vector<PageEntry>& Pages() {
    static const std::vector<PageEntry> pages{
        {"lists", "three flat lists of the packages on this machine",
         [](tvok::Desktop& desktop, tvok::Form& form) -> std::unique_ptr<Page> {
             return std::make_unique<ListsPage>(desktop, form, LoadCollection());
         }},
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
