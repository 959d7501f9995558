// What a strip of buttons costs against its faces drawn directly. Ratios of one run.

#include <string>
#include <vector>

#include "benchmarks/ratios.h"
#include "tvok/tvok.h"

namespace tvok {
namespace {

using namespace bench;

constexpr std::int32_t cSide = 20, cButtons = 12;

struct Strip {
    Desktop desktop{{.display = DesktopOptions::Display::Headless,
                     .fontFile = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf",
                     .language = "en"}};
    Form& form = desktop.AddForm("bench", cSide* cButtons, cSide);
    xbutton& strip = form.Add<xbutton>("strip", {0, 0, 10, cSide});
    std::string settings;

    Strip() {
        for (std::int32_t i = 0; i < cButtons / 3; ++i)
            settings += std::string(i > 0 ? "|" : "") + "...|c" + std::to_string(i) + "|0|0|a|2|1|b|2";
        strip.ButtonSettingsStr(settings);
        desktop.ProcessEvents({});
    }
    host::Handle hDC() { return form.ComponentOf(strip).hDC(); }

    /// What each button is made of: a frame, an edge and its caption.
    void DrawDirectly() {
        host::Platform& platform = host::platform();
        const host::Handle context = hDC();
        for (std::int32_t i = 0; i < cButtons; ++i) {
            tvok_Rect face{i * cSide, 0, (i + 1) * cSide, cSide};
            const std::int32_t kind = i % 3;
            if (kind == 0)
                platform.DrawFrameControl(context, face, host::DFC_BUTTON, host::DFCS_BUTTONPUSH);
            else
                platform.DrawFrameControl(context, face, host::DFC_SCROLL,
                                          kind == 1 ? host::DFCS_SCROLLCOMBOBOX : host::DFCS_SCROLLRIGHT);
            platform.DrawEdge(context, face, host::EDGE_RAISED, host::BF_RECT);
            platform.DrawTextA(context, "...", kind == 0 ? 3 : 0, face,
                               host::DT_CENTER | host::DT_VCENTER | host::DT_SINGLELINE);
        }
    }
};

void Paint(Strip& page) {
    const double ratio = RatioOf([&] { page.strip.Paint(); }, [&] { page.DrawDirectly(); }, 5);
    Report("paint a strip of 12 buttons / its faces drawn directly", ratio, Wanted::AtMost, 1.2);
    page.desktop.ProcessEvents({}); // takes what has piled up to be shown
    Report("allocations of painting it once more", AllocationsOf([&] { page.strip.Paint(); }), Wanted::AtMost,
           0, "");
}

std::string SettingsOf(std::int32_t count) {
    std::string settings = "x|key|0";
    for (std::int32_t i = 1; i < count; ++i) settings += "|x|key|0";
    return settings;
}

void Set() {
    constexpr std::int32_t times = 10;
    const std::string few = SettingsOf(3000), many = SettingsOf(3000 * times);
    ButtonRow row;
    const double ratio = RatioOf([&] { row.Set(many, cSide); },
                                 [&] {
                                     for (std::int32_t i = 0; i < times; ++i) row.Set(few, cSide);
                                 });
    Report("read a button of 30,000 / of 3,000", ratio, Wanted::AtMost, 1.5);
}

} // namespace
} // namespace tvok

int main() {
    tvok::Strip page;
    tvok::Paint(page);
    tvok::Set();
    return tvok::bench::missed;
}
