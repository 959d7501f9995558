// The popup among other toolkits' combo boxes: `popup_compared CASE N` opens and closes a list of 20 entries,
// all of them in sight, and prints one line of JSON for each figure. It exits with 3 for a case that it does
// not have. In memory; with TVOK_COMPARED_WINDOW in the environment in windows on the screen.

#include <cstdio>
#include <cstdlib>
#include <string>

#include "tvok/tvok.h"

#include <bench.h>

namespace tvok::bench {
namespace {

using ::bench::Args;
using ::bench::measure;

constexpr const char* cProgram = "tvok";
constexpr std::int32_t cFieldHeight = 24;
constexpr Placement cField{20, 20, 200, cFieldHeight};

class Compared {
public:
    explicit Compared(const Args& args)
        : args_(args), desktop_({.display = Where(),
                                 .fontFile = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf",
                                 .language = "en"}),
          form_(desktop_.AddForm("popup", ::bench::kWidth, ::bench::kHeight)),
          field_(form_.Add<qRoster>("field", cField)), popup_(form_.Add<xPopup>("popup", {})) {
        const auto entries = static_cast<std::int32_t>(args.n);
        char text[32];
        for (std::int32_t i = 0; i < entries; ++i) {
            ::bench::cell_text(i, 1, text);
            popup_.AddItem({.text = text});
        }
        popup_.yn(entries);
        popup_.ItemHeight(::bench::kRowHeight);
        popup_.events.Click = [this](std::int32_t, qrosterdata&, bool) { ++closed_; };
        host::platform().SetFocus(FieldWindow());
        Pump();
    }

    /// Opened until the last row is painted, and by Esc closed until the form is whole again.
    void Open() {
        ::bench::Samples opened;
        const auto both = measure(
            1000, 4, 20, [&](int) { Pump(); },
            [&](int i) {
                const double start = ::bench::now_us();
                popup_.SetParentHwnd(FieldWindow());
                popup_.Popup(false, true);
                Pump();
                const double shown = ::bench::now_us();
                if (i == 5 && !args_.shot.empty()) desktop_.SaveScreen(args_.shot);
                Close();
                ++wanted_;
                if (i >= 0) opened.add(shown - start, 0);
            });
        ::bench::report(cProgram, "popup_open", args_.n, "us", both, 1, "open until painted, and close");
        ::bench::report(cProgram, "popup_open_only", args_.n, "us", opened);
        if (closed_ != wanted_) std::fprintf(stderr, "tvok: %d of %d popups closed\n", closed_, wanted_);
    }

private:
    static DesktopOptions::Display Where() {
        const char* window = std::getenv("TVOK_COMPARED_WINDOW");
        return window != nullptr ? DesktopOptions::Display::Window : DesktopOptions::Display::Headless;
    }
    host::Handle FieldWindow() { return form_.ComponentOf(field_).hWnd(); }
    void Pump() { desktop_.ProcessEvents({}); }
    void Close() {
        desktop_.Input().KeyDown(host::VK_ESCAPE);
        desktop_.Input().KeyUp(host::VK_ESCAPE);
        Pump();
    }

    Args args_;
    Desktop desktop_;
    Form& form_;
    qRoster& field_;
    xPopup& popup_;
    int wanted_ = 0, closed_ = 0;
};

} // namespace
} // namespace tvok::bench

int main(int argc, char** argv) {
    const ::bench::Args args = ::bench::parse(argc, argv);
    if (args.name != "popup_open") return 3;
    tvok::bench::Compared(args).Open();
    std::fflush(stdout);
    return 0;
}
