// The property list's text form: any text is read without harm, what is then written reads back as the same
// settings and items, and a list of a size that a screen could hold shows them, takes keys and presses.

#include <algorithm>
#include <chrono>
#include <string>
#include <tuple>
#include <vector>

#include "fuzz.h"

namespace {

using tvok::elistdata;
using tvok::gList;
using tvok::qrosterdata;

tvok::Form& Form() {
    static tvok::Form& form = tvok::fuzz::HeadlessDesktop().AddForm("properties", 200, 120);
    return form;
}

gList& NewList(std::string_view name, std::string_view text) {
    auto& list = Form().Add<gList>(name, {0, 0, 200, 100});
    list.ItemsStr(text);
    return list;
}

auto FieldsOf(const qrosterdata& cell) {
    return std::tie(cell.text, cell.key, cell.IconID, cell.IconBackColor, cell.IconPos, cell.ItemData,
                    cell.ItemDataEx, cell.bColor, cell.fcolor, cell.vflag);
}

bool Before(const elistdata& a, const elistdata& b) {
    const auto fields = [](const elistdata& x) {
        return std::tuple_cat(FieldsOf(x.hItem), FieldsOf(x.item),
                              std::tie(x.pKey, x.xbuttons, x.bVisible, x.bParentItem, x.HelpStr));
    };
    return fields(a) < fields(b);
}

/// Items with equal captions change places when a text is read, so their order is none that has to hold.
std::vector<elistdata> ItemsOf(const gList& list) {
    std::vector<elistdata> items;
    elistdata item;
    for (std::int32_t slot = 1; list.GetItem(item, {}, -slot) != 0; ++slot) {
        item.hItem.vflag &= ~tvok::vflag::Selected;
        items.push_back(item);
    }
    std::sort(items.begin(), items.end(), Before);
    return items;
}

std::string SettingsOf(const std::string& text) {
    return text.substr(0, text.find("\r\n998\r\n"));
}

bool Between(std::int32_t value, std::int32_t least, std::int32_t most) {
    return value >= least && value <= most;
}

bool FitsAScreen(const gList& list) {
    return Between(list.ItemHeight(), 1, 300) && Between(list.GridlineWidth(), 0, 20) &&
           Between(list.HeadWidthEx(), -300, 300) && Between(list.CX_TEXT(), -300, 300);
}

void Use(gList& list) {
    auto& input = tvok::fuzz::HeadlessDesktop().Input();
    for (const std::int32_t mode : {0, 1}) {
        list.ListMode(mode);
        list.BuiltList();
        for (const std::int32_t key : {tvok::host::VK_END, tvok::host::VK_UP, tvok::host::VK_HOME})
            list.KeyIn(static_cast<std::int16_t>(key));
        tvok::host::Point point{3, 8};
        tvok::host::platform().ClientToScreen(list.hwnd(), point);
        input.MouseMove(point.x, point.y);
        input.MouseDown(tvok::desktop::MouseButton::Left);
        input.MouseUp(tvok::desktop::MouseButton::Left);
        tvok::fuzz::HeadlessDesktop().ProcessEvents(std::chrono::milliseconds(0));
        tvok::fuzz::Require(list.ListIndex() >= 0 && list.ListIndex() <= list.Count(),
                            "the current row is a row");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    gList& first = NewList("first", tvok::fuzz::Text(data, size));
    const std::string written = first.ItemsStr();
    gList& second = NewList("second", written);
    tvok::fuzz::Require(SettingsOf(second.ItemsStr()) == SettingsOf(written), "the settings come back");
    tvok::fuzz::Require(ItemsOf(second) == ItemsOf(first), "the items come back");
    if (FitsAScreen(second)) Use(second);
    Form().Remove(first);
    Form().Remove(second);
    tvok::fuzz::HeadlessDesktop().ProcessEvents(std::chrono::milliseconds(0));
    return 0;
}
