// The property list among other toolkits' property grids: `propertylist_compared CASE N` does `props_build`,
// `props_move` or `props_toggle` with N properties in groups of 100, or of TVOK_COMPARED_GROUP, and prints
// one line of JSON for each figure. It exits with 3 for a case that it does not have. In memory; with
// TVOK_COMPARED_WINDOW in the environment in a window on the screen.

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "tvok/engine/dgi.h"
#include "tvok/tvok.h"

#include <bench.h>

namespace tvok::bench {
namespace {

using ::bench::Args;
using ::bench::measure;

constexpr const char* cProgram = "tvok";

std::int32_t GroupSize() {
    const char* size = std::getenv("TVOK_COMPARED_GROUP");
    return size != nullptr ? std::atoi(size) : 100;
}

/// A window full of properties.
class Properties {
public:
    explicit Properties(std::int32_t count)
        : desktop_({.display = Where(),
                    .fontFile = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf",
                    .language = "en"}),
          form_(desktop_.AddForm("properties", ::bench::kWidth, ::bench::kHeight)),
          list_(form_.Add<gList>("list1", {0, 0, ::bench::kWidth, ::bench::kHeight})) {
        list_.ItemHeight(::bench::kRowHeight);
        list_.Sorted(false); // as the others are: in the order of adding
        list_.ListMode(1);
        const std::int32_t each = GroupSize();
        char text[32];
        for (std::int32_t i = 0; i < count; ++i) {
            const std::string group = "g" + std::to_string(i / each);
            if (i % each == 0) AddGroup(group, "Group " + std::to_string(i / each));
            elistdata item = list_.DefaultItem();
            item.pKey = group;
            item.hItem.key = "p" + std::to_string(i);
            ::bench::cell_text(i, 1, text);
            item.hItem.text = text;
            ::bench::cell_text(i, 4, text);
            item.item.text = text;
            item.nData = Variant(text);
            list_.AddItem(item);
        }
        list_.BuiltList();
        Pump();
    }

    void Pump() { desktop_.ProcessEvents({}); }
    void Select(std::int32_t row) {
        list_.ListIndex(row);
        Pump();
    }
    /// By a press on the first group's box.
    void Toggle() {
        const tvok_Rect client = dgi::GetClientScreenRect(form_.ComponentOf(list_).hWnd());
        desktop_.Input().MouseMove(client.Left + 6, client.Top + 8);
        desktop_.Input().MouseDown(desktop::MouseButton::Left);
        desktop_.Input().MouseUp(desktop::MouseButton::Left);
        Pump();
    }
    std::int32_t Count() const { return list_.Count(); }
    void Shoot(const Args& args) {
        if (!args.shot.empty()) desktop_.SaveScreen(args.shot);
    }

private:
    static DesktopOptions::Display Where() {
        const char* window = std::getenv("TVOK_COMPARED_WINDOW");
        return window != nullptr ? DesktopOptions::Display::Window : DesktopOptions::Display::Headless;
    }
    void AddGroup(const std::string& key, const std::string& caption) {
        elistdata group = list_.DefaultItem();
        group.bParentItem = true;
        group.hItem.key = key;
        group.hItem.text = caption;
        list_.AddItem(group);
    }

    Desktop desktop_;
    Form& form_;
    gList& list_;
};

void Build(const Args& args) {
    std::unique_ptr<Properties> properties;
    const auto samples = measure(
        10, 5, 1, [&](int) { properties.reset(); },
        [&](int) { properties = std::make_unique<Properties>(static_cast<std::int32_t>(args.n)); });
    ::bench::report(cProgram, "props_build", args.n, "ms", samples, 1e-3);
    properties->Shoot(args);
}

void Move(const Args& args) {
    Properties properties(static_cast<std::int32_t>(args.n));
    std::int32_t row = 2;
    const auto samples = measure(
        1000, 4, 20,
        [&](int i) {
            if ((i + 3) % 35 == 0) properties.Select(row = 2);
        },
        [&](int) { properties.Select(++row); });
    ::bench::report(cProgram, "props_move", args.n, "us", samples);
    properties.Shoot(args);
}

void Toggle(const Args& args) {
    Properties properties(static_cast<std::int32_t>(args.n));
    const std::int32_t open = properties.Count();
    int wrong = 0;
    const auto samples = measure(
        1000, 4, 20, [](int) {},
        [&](int i) {
            properties.Toggle();
            const bool isOpen = (i + 3) % 2 != 0;
            wrong += properties.Count() == (isOpen ? open : open - GroupSize()) ? 0 : 1;
        });
    ::bench::report(cProgram, "props_toggle", args.n, "us", samples);
    if (wrong > 0) std::fprintf(stderr, "tvok: %d folds went wrong\n", wrong);
    properties.Shoot(args);
}

} // namespace
} // namespace tvok::bench

int main(int argc, char** argv) {
    const ::bench::Args args = ::bench::parse(argc, argv);
    if (args.name == "props_build")
        tvok::bench::Build(args);
    else if (args.name == "props_move")
        tvok::bench::Move(args);
    else if (args.name == "props_toggle")
        tvok::bench::Toggle(args);
    else
        return 3;
    std::fflush(stdout);
    return 0;
}
