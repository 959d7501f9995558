// The states of the workbench that are worth a picture.
#include "apps/gallery/Hands.h"
#include "apps/gallery/Window.h"

namespace gallery {

namespace {

constexpr std::chrono::milliseconds NoWait{0};

void Press(tvok::Desktop& desktop, std::int32_t key) {
    desktop.Input().KeyDown(key);
    desktop.Input().KeyUp(key);
}

void Type(tvok::Desktop& desktop, std::string_view text) {
    for (const char letter : text) {
        constexpr std::int32_t AnyKey = 0xE7;
        desktop.Input().KeyDown(AnyKey);
        desktop.Input().Text(std::string_view(&letter, 1));
        desktop.Input().KeyUp(AnyKey);
    }
}

} // namespace

/// By clicks and keys, as a user does it.
std::vector<Scene> Window::Scenes() {
    const auto turn = [this] {
        desktop_.ProcessEvents(NoWait);
        Turn(NoWait);
    };
    const auto click = [=, this](const char* control, tvok::host::Point point) {
        Hands(desktop_, form_).Click(*form_.Find(control), point);
        turn();
    };
    // A row of the inspector's list, by its key.
    const auto toRow = [=, this](const char* key) {
        form_.ComponentOf(bench_->inspector.list()).SetFocus();
        bench_->inspector.list().ShowItem(key);
        turn();
    };
    return {
        {"",
         [click] {
             click("details", {300, 30});
         }},
        {"events",
         [=, this] {
             click("sections", {60, 70});
             click("names", {260, 30});
             for (int step = 0; step < 4; ++step) {
                 Press(desktop_, tvok::host::VK_DOWN);
                 turn();
             }
         }},
        {"edited",
         [=, this] {
             toRow("Appearance.ItemHeight");
             Type(desktop_, "34");
             Press(desktop_, tvok::host::VK_RETURN);
             turn();
         }},
        {"colors",
         [=, this] {
             toRow("Appearance.SelectedColor");
             Press(desktop_, tvok::host::VK_F1 + 3);
             turn();
         },
         true},
        {"choice",
         [=, this] {
             Press(desktop_, tvok::host::VK_ESCAPE);
             turn();
             click("inspector.line", {40, 10});
         },
         true},
    };
}

} // namespace gallery
