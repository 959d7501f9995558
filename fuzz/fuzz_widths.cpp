// `HeaderWidths` of a column bar: any text is taken without harm, what is then read writes back as itself,
// the bar can be painted and dragged or says that its widths have no place, and the next column fits them in.

#include <chrono>
#include <string>

#include "fuzz.h"

namespace {

constexpr std::int32_t cBarWidth = 300;

tvok::Form& Form() {
    static tvok::Form& form = tvok::fuzz::HeadlessDesktop().AddForm("widths", cBarWidth, 22);
    return form;
}

void Drag(tvok::pcols& bar, std::int32_t column) {
    auto& input = tvok::fuzz::HeadlessDesktop().Input();
    tvok::host::Point point{};
    for (std::int32_t i = 1; i <= column; ++i) point.x += bar.GetData(i).hWidth % cBarWidth;
    tvok::host::platform().ClientToScreen(bar.hwnd(), point);
    input.MouseMove(point.x, point.y);
    input.MouseDown(tvok::desktop::MouseButton::Left);
    input.MouseMove(point.x + 40, point.y);
    input.MouseUp(tvok::desktop::MouseButton::Left);
    tvok::fuzz::HeadlessDesktop().ProcessEvents(std::chrono::milliseconds(0));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    auto& bar = Form().Add<tvok::pcols>("bar", {0, 0, cBarWidth, 22});
    for (int i = 0; i < 5; ++i) bar.Add(0, "column", 50);
    bar.HeaderWidths(tvok::fuzz::Text(data, size));
    const std::string written = bar.HeaderWidths();
    for (std::int32_t i = 1; i <= 5; ++i)
        tvok::fuzz::Require(bar.GetData(i).hWidth >= 10, "every column is 10 wide or more");
    bar.HeaderWidths(written);
    tvok::fuzz::Require(bar.HeaderWidths() == written, "the written text reads back as itself");
    try {
        bar.Refresh();
        Drag(bar, 1);
        Drag(bar, 5);
    } catch (const tvok::OverflowError&) { // the sum of the widths is beyond 32 bits
    }
    bar.Add(0, "one more", 50);
    std::int64_t sum = 0;
    for (std::int32_t i = 1; i <= bar.Count(); ++i) sum += bar.GetData(i).hWidth;
    tvok::fuzz::Require(bar.Count() == 6 && sum <= cBarWidth, "the columns fit the bar");
    Form().Remove(bar);
    tvok::quietly([] { tvok::fuzz::HeadlessDesktop().ProcessEvents(std::chrono::milliseconds(0)); });
    return 0;
}
