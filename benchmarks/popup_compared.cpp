// The popup among other toolkits' combo boxes: a list of entries, all of them in sight, is opened and closed,
// as benchmarks/peers/comparison.h tells.

#include <string>
#include <vector>

#include "benchmarks/peers/comparison.h"
#include "tvok/tvok.h"

namespace tvok::comparison {
namespace {

/// A field in a window, and a popup that drops out of it.
class Field {
public:
    explicit Field(Run& run)
        : run_(run), desktop_({.display = DesktopOptions::Display::Headless,
                               .fontFile = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf",
                               .language = "en"}),
          form_(desktop_.AddForm("popup", cWidth, cHeight)),
          field_(form_.Add<qRoster>("field", {20, 20, 200, 24})), popup_(form_.Add<xPopup>("popup", {})) {
        for (int i = 0; i < run.rows(); ++i) popup_.AddItem({.text = CellText(i, 1).c_str()});
        popup_.yn(run.rows());
        popup_.ItemHeight(cRowHeight);
        popup_.events.Click = [this](std::int32_t, qrosterdata&, bool) { ++closed_; };
        host::platform().SetFocus(Window());
        Pump();
    }

    /// Opened until the last row is painted, and by Esc closed until the form is whole again.
    void Measure() {
        std::vector<double> opened;
        int wanted = 0;
        const auto both = comparison::Measure(
            20, [&](int) { Pump(); },
            [&](int i) {
                const double start = ProcessorTime();
                popup_.SetParentHwnd(Window());
                popup_.Popup(false, true);
                Pump();
                opened.push_back(ProcessorTime() - start);
                if (i == 0 && !run_.picture.empty()) desktop_.SaveScreen(run_.picture);
                Close();
                ++wanted;
            });
        run_.Tell(both);
        run_.Tell(opened, Unit::Microseconds, "popup_open_only");
        run_.Expect(closed_ == wanted, "each popup closed once");
    }

private:
    host::Handle Window() { return form_.ComponentOf(field_).hWnd(); }
    void Pump() { desktop_.ProcessEvents({}); }
    void Close() {
        desktop_.Input().KeyDown(host::VK_ESCAPE);
        desktop_.Input().KeyUp(host::VK_ESCAPE);
        Pump();
    }

    Run& run_;
    Desktop desktop_;
    Form& form_;
    qRoster& field_;
    xPopup& popup_;
    int closed_ = 0;
};

void OpenAndClose(Run& run) {
    Field(run).Measure();
}

} // namespace
} // namespace tvok::comparison

int main(int count, char** arguments) {
    using namespace tvok::comparison;
    RunOne("tvok", count, arguments, {{"popup_open", OpenAndClose}});
}
