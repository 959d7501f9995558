/// The gallery's window: a list of the pages at the left, and beside it the page that the user chose.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "apps/gallery/Page.h"
#include "apps/gallery/drawing.h"

namespace gallery {

inline constexpr std::int32_t FormWidth = 1120, FormHeight = 640;

/// A click on the list, its arrow keys, and Ctrl+Tab and Ctrl+Shift+Tab from anywhere go from page to page. A
/// page is made when it is first shown and keeps its state while others are.
class Window {
public:
    /// Opens a form with this page; with an empty name, the first. It lives as long as the form.
    static std::shared_ptr<Window> Open(tvok::Desktop& desktop, const std::string& page = {});

    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    tvok::Form& form() { return form_; }
    tvok::qRoster& pages() { return pages_; }
    Page& page() { return *shown_->page; } ///< The one that is shown.
    const PageEntry& entry() const { return *shown_->entry; }

    /// Turns the page, if it is live.
    void Turn(std::chrono::milliseconds elapsed);

private:
    struct Shown {
        const PageEntry* entry = nullptr;
        std::unique_ptr<Page> page;                 // made when it is first shown
        std::vector<tvok::host::Control*> controls; // those that it put on the form
    };

    Window(tvok::Desktop& desktop, tvok::Form& form);
    void SetUpList();
    void Choose(std::size_t place);
    void Make(Shown& shown);
    void ShowControls(const Shown& shown, bool visible);
    void Step(bool back);
    void Layout();
    void Paint();
    tvok::tvok_Rect PageArea() const;

    tvok::Desktop& desktop_;
    tvok::Form& form_;
    Fonts fonts_;
    tvok::qRoster& pages_;
    std::vector<Shown> all_;
    Shown* shown_ = nullptr;
};

} // namespace gallery
