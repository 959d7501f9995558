/// One page of the gallery: some controls on the gallery's form.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tvok/tvok.h"

namespace gallery {

/// A state of a page that is worth a picture: what a user would do to come there, and what to call it.
struct Scene {
    std::string name; ///< Empty: the page as it comes up.
    std::function<void()> act;
};

class Page {
public:
    virtual ~Page() = default;
    /// In order; each starts from the state that the one before left.
    virtual std::vector<Scene> Scenes() = 0;
};

/// A page puts its controls on the form, which is empty then and has its size, and follows its resizing.
struct PageEntry {
    const char* name;
    const char* description;
    std::unique_ptr<Page> (*make)(tvok::Desktop& desktop, tvok::Form& form);
};

const std::vector<PageEntry>& Pages();

/// Null where there is no page of this name.
const PageEntry* FindPage(const std::string& name);

} // namespace gallery
