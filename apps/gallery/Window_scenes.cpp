// The states of the workbench that are worth a picture.
#include "apps/gallery/Hands.h"
#include "apps/gallery/Window.h"
#include "apps/gallery/keys.h"

namespace gallery {

namespace {

constexpr std::chrono::milliseconds NoWait{0};

} // namespace

/// By clicks and keys, as a user does it.
std::vector<Scene> Window::Scenes() {
    const auto hands = [this] { return Hands(desktop_, form_); };
    const auto turn = [this] {
        desktop_.ProcessEvents(NoWait);
        Turn(NoWait);
    };
    const auto click = [=, this](const char* control, tvok::host::Point point) {
        hands().Click(*form_.Find(control), point);
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
         [=] {
             click("sections", {60, 70});
             click("names", {260, 30});
             for (int step = 0; step < 4; ++step) {
                 hands().Press(tvok::host::VK_DOWN);
                 turn();
             }
         }},
        {"edited",
         [=] {
             toRow("Appearance.ItemHeight");
             hands().Type("34");
             hands().Press(tvok::host::VK_RETURN);
             turn();
         }},
        {"colors",
         [=] {
             toRow("Appearance.SelectedColor");
             hands().Press(F4);
             turn();
         },
         true},
        {"choice",
         [=] {
             hands().Press(tvok::host::VK_ESCAPE);
             turn();
             click("inspector.line", {40, 10});
         },
         true},
    };
}

} // namespace gallery
