/// One page of the gallery: some controls in a part of the gallery's form.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "apps/gallery/icons.h"
#include "tvok/tvok.h"

namespace gallery {

/// A state of a page that is worth a picture: what a user would do to come there, and what to call it.
struct Scene {
    std::string name; ///< Empty: the page as it comes up.
    std::function<void()> act;
    bool popups = false; ///< Something is open above the form: the picture shows that, too.
};

/// It puts its controls on the form when it is made, under names that no other page uses, and lives as long
/// as the form. The gallery shows and hides the controls as the user goes from page to page.
class Page {
public:
    virtual ~Page() = default;
    /// Places the controls in this part of the form: before the page is first shown, and with each new size.
    virtual void Layout(const tvok::tvok_Rect& area) = 0;
    /// Paints the whole area around the controls. Comes only while the page is shown.
    virtual void Paint(tvok::host::Handle hDC) = 0;
    /// A live page gets `Turn` some forty times a second while it is shown, with the time since the last one.
    virtual bool IsLive() const { return false; }
    virtual void Turn(std::chrono::milliseconds /*elapsed*/) {}
    /// In order; each starts from the state that the one before left.
    virtual std::vector<Scene> Scenes() = 0;
};

struct PageEntry {
    const char* name;  ///< For `--page` and the names of the pictures.
    const char* title; ///< In the gallery's list of pages.
    Icon icon;
    const char* description;
    std::unique_ptr<Page> (*make)(tvok::Desktop& desktop, tvok::Form& form);
};

const std::vector<PageEntry>& Pages();

/// Null where there is no page of this name.
const PageEntry* FindPage(const std::string& name);

} // namespace gallery
