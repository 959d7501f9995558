/// What the fragments of the manual stand in: the names that they use without declaring them, which are the
/// reader's own program there, and what runs them. `tools/docs-code fragments` makes a function of each fence
/// of C++ in docs/ that is no whole program, and this is its first include.
#pragma once

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <initializer_list>
#include <string>
#include <string_view>

#include <tvok/engine/dgi.h>
#include <tvok/tvok.h>

namespace fragments {

struct Settings {
    tvok::OLE_COLOR paper = 0xC0FFC0;
    std::string widths = "40-120-100";
    const std::string& Read(std::string_view) const { return widths; }
    void Write(std::string_view, const std::string& text) { widths = text; }
};
inline Settings settings;
inline tvok::OLE_COLOR color = 0x0000FF;
inline float right = 6000, top = 120;

inline void Apply(const std::string&, const tvok::Variant&) {}
inline void Open() {}
inline void OpenDialog() {}
inline void OpenList() {}
inline void Paper(tvok::OLE_COLOR paper) {
    settings.paper = paper;
}
inline void Preview(tvok::OLE_COLOR) {}
inline void SortBy(const std::string&) {}
inline std::string TimeOf(std::int32_t row) {
    return std::to_string(row);
}
inline std::string MessageOf(std::int32_t row) {
    return "message " + std::to_string(row);
}

struct Fragment {
    const char* name;
    void (*run)(tvok::Desktop& desktop, tvok::Form& form, tvok::qRoster& button);
};

/// Runs each on a desktop of its own for some turns. The images that fragments load are made here.
inline int RunAll(std::initializer_list<Fragment> all) {
    int failed = 0;
    for (const Fragment& fragment : all) try {
            tvok::DesktopOptions options;
            options.display = tvok::DesktopOptions::Display::Headless;
            tvok::Desktop desktop(options);
            for (const char* name : {"fruit.png", "open.png", "tools.png"})
                desktop.SaveScreen(name, {0, 0, 64, 16});
            auto& form = desktop.AddForm(fragment.name, 640, 400);
            auto& button = form.Add<tvok::qRoster>("button", {500, 370, 100, 20});
            desktop.Post(
                [&] { desktop.Post([&] { desktop.Quit(); }); }); // one that waits in a loop ends, too
            fragment.run(desktop, form, button);
            desktop.SaveForm(form, std::string(fragment.name) + ".png");
        } catch (const std::exception& error) {
            std::printf("%s: %s\n", fragment.name, error.what());
            ++failed;
        }
    std::printf("%zu fragments run, %d failed\n", all.size(), failed);
    return failed == 0 && all.size() > 0 ? 0 : 1;
}

} // namespace fragments
