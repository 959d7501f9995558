// How the value of a `gList` item becomes what its cell shows.
#include <cmath>

#include "tvok/controls/propertylist/gList_impl.h"
#include "tvok/controls/propertylist/typeword.h"
#include "tvok/records/numeric.h"
#include "tvok/records/text.h"

namespace tvok {

using propertylist::ItemKind;

namespace {

/// A value read as a text, and that as a number.
double NumberOf(const Variant& value) {
    return ScanNumber(value.AsText());
}

double FiniteNumberOf(const Variant& value) {
    const double number = value.AsNumber();
    if (!std::isfinite(number)) throw OverflowError("gList: a number too large to show");
    return number;
}

} // namespace

void gList::Impl::ApplyItemValue(std::int32_t slot) {
    elistdata& record = items.Contents(slot);
    const propertylist::ItemType type = propertylist::ParseItemType(record.xbuttons);
    switch (type.kind) {
    case ItemKind::Color:
        record.item.IconBackColor = RoundToInt32(NumberOf(record.nData));
        record.item.text = "(" + xPopup1.GetColorDesc(record.item.IconBackColor) + ")";
        return;
    case ItemKind::Number: record.item.text = Variant(FiniteNumberOf(record.nData)).AsText(); return;
    case ItemKind::ListByNumber: {
        const qrosterdata* entry = popLists.Find(type.number, RoundToInt32(NumberOf(record.nData)));
        if (entry != nullptr) record.item = *entry;
        return;
    }
    case ItemKind::ListByText: record.item.text = Trim(record.nData.AsText()); return;
    case ItemKind::Host: break;
    }
    if (!events.ExItemShowCov.IsHeard()) return;
    const auto loan = items.Lend(slot);
    events.ExItemShowCov(loan.record());
}

// A host that leaves the text alone leaves the item's own in it, and a list that is there already meets the
// item's text too: neither has a line that ends an entry as a rule.
void gList::Impl::LoadPopList(const std::string& xbuttons) {
    const propertylist::ItemType type = propertylist::ParseItemType(xbuttons);
    if (!type.IsList() || type.number < 1) return;
    std::string text = xbuttons;
    quietly(
        [&] {
            if (!popLists.Has(type.number)) events.EnumPopStr(type.number, text);
        },
        [&] {
            if (!Trim(text).empty()) popLists.Load(type.number, text);
        });
}

} // namespace tvok
