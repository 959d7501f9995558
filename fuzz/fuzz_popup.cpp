// The popup's item text: any text is read without harm, what is then written reads back as itself, and a
// popup of a size that a screen could hold opens, takes keys and presses, and closes with exactly one Click.

#include <chrono>
#include <string>

#include "fuzz.h"

namespace {

using tvok::xPopup;

tvok::Form& Form() {
    static tvok::Form& form = tvok::fuzz::HeadlessDesktop().AddForm("popup", 200, 120);
    return form;
}

void Process() {
    tvok::fuzz::HeadlessDesktop().ProcessEvents(std::chrono::milliseconds(0));
}

void Key(std::int32_t key) {
    tvok::fuzz::HeadlessDesktop().Input().KeyDown(key);
    tvok::fuzz::HeadlessDesktop().Input().KeyUp(key);
    Process();
}

bool Between(std::int32_t value, std::int32_t most) {
    return value >= 0 && value <= most;
}

bool FitsAScreen(const xPopup& popup) {
    return Between(popup.xn(), 30) && Between(popup.yn(), 60) && Between(popup.ItemHeight(), 300) &&
           Between(popup.ItemWidth(), 300) && Between(popup.GridlineWidth(), 20) &&
           Between(popup.HeadWidthEx(), 300) && popup.ColWidthSettingStr().empty();
}

/// Opens it, moves about in it, and closes it by a press outside.
void Use(xPopup& popup) {
    int clicks = 0;
    popup.events.Click = [&](std::int32_t, tvok::qrosterdata&, bool) { ++clicks; };
    tvok::quietly([&] { popup.CalTextWidth(); }); // a margin that is too large is an error
    popup.Popup(false, true);
    const bool opens = popup.Count() >= 1 && popup.xn() >= 1 && popup.yn() >= 1;
    auto& input = tvok::fuzz::HeadlessDesktop().Input();
    for (const std::int32_t key : {tvok::host::VK_END, tvok::host::VK_UP, std::int32_t{'A'}}) Key(key);
    input.MouseMove(120, 130);
    input.Wheel(-1);
    input.MouseMove(1279, 1023);
    input.MouseDown(tvok::desktop::MouseButton::Left);
    input.MouseUp(tvok::desktop::MouseButton::Left);
    Process();
    Key(tvok::host::VK_ESCAPE);
    tvok::fuzz::Require(clicks == (opens ? 1 : 0), "one opening ends with one Click");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    auto& first = Form().Add<xPopup>("first", {0, 0, 18, 17});
    first.ItemsStr(tvok::fuzz::Text(data, size));
    const std::string written = first.ItemsStr();
    auto& second = Form().Add<xPopup>("second", {0, 0, 18, 17});
    second.ItemsStr(written);
    tvok::fuzz::Require(second.Count() == first.Count(), "the written text has every item");
    tvok::fuzz::Require(second.ItemsStr() == written, "the written text reads back as itself");
    second.SetParentRect({100, 100, 200, 120});
    for (const std::int32_t mode : {1, 4}) second.SortedMode(mode);
    if (FitsAScreen(second)) Use(second);
    Form().Remove(first);
    Form().Remove(second);
    Process();
    return 0;
}
