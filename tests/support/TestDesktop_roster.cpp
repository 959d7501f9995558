/// `qRoster` on a test desktop.
#include "tests/support/TestDesktop.h"

namespace tvok::test {

qRoster& TestDesktop::Roster(const RosterSetup& setup, const std::vector<std::string>& texts) {
    auto& list = form_->Add<qRoster>("list" + std::to_string(form_->Names().size() + 1), setup.place);
    list.BorderStyle(0);
    list.xn(setup.xn);
    list.MultiSelect(setup.MultiSelect);
    list.GridlineWidth(setup.GridlineWidth);
    list.GridlineOnBorder(setup.GridlineOnBorder);
    list.FixedHeight(setup.FixedHeight);
    list.HotTrack(setup.HotTrack);
    form_->Place(list, setup.place); // a default of the list may have snapped its height
    for (const std::string& text : texts) list.AddItem(0, {.text = text});
    list.Refresh();
    Pump();
    return list;
}

std::vector<std::int32_t> SelectedItems(const qRoster& roster) {
    std::vector<std::int32_t> selected;
    for (std::int32_t index = 1; index <= roster.Count(); ++index)
        if (roster.IsSelected(index)) selected.push_back(index);
    return selected;
}

} // namespace tvok::test
