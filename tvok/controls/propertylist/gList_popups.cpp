// The button strip, the popup and the colour dialog of `gList`: what the built-in types do.
#include "tvok/controls/propertylist/gList_impl.h"
#include "tvok/controls/propertylist/typeword.h"
#include "tvok/records/numeric.h"
#include "tvok/records/text.h"

namespace tvok {

using propertylist::ItemKind;
using propertylist::ParseItemType;

void gList::Impl::ConnectChildren() {
    xbutton1.events.MouseDown = [this](const std::string& key) { StripMouseDown(key); };
    xbutton1.events.Click = [this](const std::string& key) { StripClick(key); };
    xbutton1.events.KeyDown = [this](std::int16_t& key, std::int16_t& shift) { KeyIn(key, shift); };
    xPopup1.events.Click = [this](std::int32_t, qrosterdata& entry, bool canceled) {
        PopupClick(entry, canceled);
    };
    // Each move of the popup's selection is stored and shown at once, as a preview.
    xPopup1.events.Change = [this](std::int32_t, qrosterdata& entry) { PopupClick(entry, false); };
}

// Without a current row these work on the blank record, and the popup has no place of its own. That stays.
void gList::Impl::StripMouseDown(std::string_view key) {
    if (!IsAlive()) return;
    const std::string pressed(key); // a handler may change the strip
    elistdata copy = items[CurrentSlot()];
    const propertylist::ItemType type = ParseItemType(copy.xbuttons);
    if (type.kind == ItemKind::Color) OpenColors(pressed, copy);
    if (type.kind == ItemKind::Number) OpenNumbers(pressed, copy);
    if (type.IsList()) OpenList(pressed, copy, type.number, type.kind == ItemKind::ListByNumber);
    if (!IsAlive()) return;
    events.ButtonMouseDown(pressed, copy);
    if (IsAlive()) events.ButtonMouseDownEx(pressed, copy);
}

void gList::Impl::OpenColors(const std::string& key, const elistdata& record) {
    const double number = ScanNumber(key); // what is no number opens the palette, as 0 does
    if (number == 0) {
        xPopup1.TmpKey(record.hItem.key);
        xPopup1.SetColorPal(PAL24x10);
    } else if (number == 1) {
        xPopup1.SetColorPal(PAL_SYSCOLOR);
        xPopup1.TmpKey(record.hItem.key);
    } else {
        return;
    }
    xPopup1.TmpData(record.nData);
    PlacePopup();
    xPopup1.Popup(false);
}

void gList::Impl::OpenNumbers(const std::string& key, const elistdata& record) {
    const auto dash = key.find('-');
    const double from = ScanNumber(key);
    const double to = dash == std::string::npos ? 0 : ScanNumber(std::string_view(key).substr(dash + 1));
    const auto first = TryRoundToInt32(from);
    const auto last = TryRoundToInt32(to);
    if (!(from < to) || !first || !last) return;
    xPopup1.TmpKey(record.hItem.key);
    xPopup1.SetNS(*first, *last);
    xPopup1.TmpData(record.nData);
    PlacePopup();
    xPopup1.Popup(false);
}

// The list is asked for anew at each press, while cells show what was loaded once: a host that changes a list
// sees both differ.
void gList::Impl::OpenList(const std::string& key, const elistdata& record, std::int32_t number,
                           bool byNumber) {
    const std::int32_t named = TryRoundToInt32(ScanNumber(key)).value_or(0);
    std::string text;
    events.EnumPopStr(named < 1 ? number : named, text);
    if (!IsAlive() || Trim(text).empty()) return;
    xPopup1.TmpKey(record.hItem.key);
    xPopup1.TmpData(record.nData);
    xPopup1.ItemsStr(text);
    PlacePopup();
    xPopup1.SortedMode(byNumber ? bItemDataAscendingSorted : bAscendingSorted);
    xPopup1.Popup(false);
}

/// Under the value of the current row. Off the page that has no place, and the popup opens at the screen's
/// corner.
void gList::Impl::PlacePopup() {
    tvok_Rect place;
    GetItemRect(state.ListIndex, place);
    xPopup1.SetParentRect(place);
}

void gList::Impl::StripClick(std::string_view key) {
    if (!IsAlive()) return;
    const std::string clicked(key);
    const elistdata before = items[CurrentSlot()];
    if (ParseItemType(before.xbuttons).kind == ItemKind::Color && ScanNumber(clicked) == 2) {
        const std::int32_t color = host::services().ColorPicker().PickColor(state.hWnd);
        if (!IsAlive()) return;
        if (color != -1) {
            VarData(Variant(color));
            if (!IsAlive()) return;
            ReqEnumItems(0, before.hItem.key);
            if (!IsAlive()) return;
        }
    }
    elistdata copy = items[CurrentSlot()];
    events.ButtonClick(clicked, copy);
}

// Also the preview, then never cancelled. The value from before the opening waits in the popup's scratch
// value.
void gList::Impl::PopupClick(const qrosterdata& entry, bool canceled) {
    if (!IsAlive()) return; // the popup goes with the control: nobody is there to hear of it
    elistdata& record = items.Contents(CurrentSlot());
    if (canceled) {
        record.nData = xPopup1.TmpData();
    } else {
        switch (ParseItemType(record.xbuttons).kind) {
        case ItemKind::Color: record.nData = entry.IconBackColor; break;
        case ItemKind::Number:
        case ItemKind::ListByNumber: record.nData = entry.ItemData; break;
        case ItemKind::ListByText: record.nData = entry.text; break;
        case ItemKind::Host: break;
        }
    }
    ReqEnumItems(0, xPopup1.TmpKey());
    DrawRow(state.ListIndex);
}

} // namespace tvok
