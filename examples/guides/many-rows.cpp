// A hundred million measurements that nobody stores: a row is worked out when it is painted, and kept while
// its record lasts. With "--headless FILE" it selects the second half, and saves what that looks like.

#include <cstdio>
#include <string>

#include <tvok/tvok.h>

namespace {

double ValueOf(std::int32_t row) { // stands for a look-up in a file or a table
    const auto mixed = static_cast<std::uint32_t>(row) * 2654435761u;
    return static_cast<double>(mixed % 100'000) / 1000;
}

} // namespace

int main(int argc, char** argv) {
    const bool headless = argc == 3; // --headless FILE
    tvok::DesktopOptions options;
    if (headless) options.display = tvok::DesktopOptions::Display::Headless;
    tvok::Desktop desktop(options);

    auto& form = desktop.AddForm("Measurements", 320, 224);
    auto& list = form.Add<tvok::qRosterex>("list", {8, 8, 304, 208});
    list.CX_TEXT(0);
    list.HeaderHeight(22);
    list.HeaderAdd(0, "Number", 120, {}, 1);
    list.HeaderAdd(0, "Value", 120, {}, 1);

    int asked = 0, made = 0;
    list.events.EnumDATA = [&](std::int32_t& row, tvok::qrosterdata& record) {
        ++asked;
        record.vflag = 0; // on every call: the list sets the bit of a selected row, and never clears it
        if (record.ItemData != 0 && record.ItemDataEx == row) return; // this row's own record is still there
        ++made;
        const double value = ValueOf(row);
        record = list.DefaultItem();
        record.IconPos = 0;
        record.ItemData = row; // keep it, and let ClearItemData find it
        record.fcolor = value < 90 ? tvok::cWindowText : 0x0000C0;
        record.text = std::to_string(row) + '\t' + std::to_string(value);
    };
    list.ViewMode(1); // row 1 at the top
    list.MultiSelect(1);
    list.Count(100'000'000);
    if (!headless) return desktop.Run();
    list.ListIndex(50'000'001);
    desktop.Input().KeyDown(tvok::host::VK_SHIFT);
    desktop.Input().KeyDown(tvok::host::VK_END);
    desktop.Run();
    const int before = made;
    list.Refresh();                  // the same page again: asked for, and not made
    list.ClearItemData(100'000'000); // as if the last row's data had changed: this one is made anew
    desktop.SaveForm(form, argv[2]);
    const std::int32_t selected = list.EndSelected() - list.StartSelected() + 1;
    std::printf("%d selected, %d asked, %d made, picture in %s\n", selected, asked, made, argv[2]);
    return selected == 50'000'000 && made == before + 1 && made < asked && asked < 100 ? 0 : 1;
}
