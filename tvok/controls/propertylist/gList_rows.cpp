// `BuiltList`: how the items of a `gList` become rows.
#include <algorithm>

#include "tvok/controls/propertylist/gList_impl.h"
#include "tvok/records/numeric.h"

namespace tvok {

namespace {

constexpr std::int32_t cRowGrowth = 5;
constexpr std::int32_t cHeadMargin = 5;
constexpr std::int32_t cLeastHeadWidth = 30;

} // namespace

void gList::Impl::CloseEditor() {
    std::string key;
    if (editorRow >= 1 && editorRow <= state.Count) {
        const elistdata& record = items[rowIndex[editorRow]];
        if ((record.item.vflag & vflag::Editor) != 0) {
            key = record.hItem.key;
            events.ExEditorDataRestore(key);
        }
    }
    events.ExEditorHide(key);
    ShowStrip(false);
}

void gList::Impl::BuiltList() {
    CloseEditor();
    editorRow = 0;
    if (!IsAlive()) return;
    std::int32_t kept = 0;
    if (state.ListIndex > 0) {
        kept = CurrentSlot();
        items.Contents(kept).hItem.vflag &= ~vflag::Selected;
    }
    // The note is a slot number of before the gaps close: where an item before it was removed, another item
    // is current afterwards. That stays.
    const std::int32_t rowOfKept = MakeRows(kept);
    Refresh();
    if (rowOfKept == 0 || !IsAlive()) return;
    SetListIndex(rowOfKept);
    if (IsAlive()) ActivateRow(false);
}

std::int32_t gList::Impl::MakeRows(std::int32_t kept) {
    const std::int32_t count = items.Squeeze();
    plan.Make(items, count, sorted);
    widths.Use(host::ValueOf(*Base().Font()));
    rowOf.assign(static_cast<std::size_t>(items.UpperBound()) + 1, 0);
    state.Count = 0;
    std::int32_t widest = 0;
    if (listMode == 1) {
        for (const auto& group : plan.Groups()) {
            AddRow(group.parent, widest);
            if ((items[group.parent].hItem.vflag & vflag::Collapsed) != 0) continue;
            for (const std::int32_t slot : group.children) AddRow(slot, widest);
        }
    } else {
        for (const std::int32_t slot : plan.Order())
            if (const elistdata& item = items[slot]; !item.bParentItem && item.bVisible) AddRow(slot, widest);
    }
    state.ListIndex = 0;
    FitHeadWidth(widest);
    return kept > 0 ? rowOf[static_cast<std::size_t>(kept)] : 0;
}

void gList::Impl::AddRow(std::int32_t slot, std::int32_t& widest) {
    const std::int32_t row = ToInt32(std::int64_t{state.Count} + 1);
    if (rowIndex.UpperBound() < row) rowIndex.Resize(ToInt32(std::int64_t{row} + cRowGrowth));
    rowIndex[row] = slot;
    state.Count = row;
    if (auto& first = rowOf[static_cast<std::size_t>(slot)]; first == 0) first = row;
    const elistdata& item = items[slot];
    if (item.bParentItem) return;
    const auto measure = [this](const std::string& caption) {
        return RoundToInt32(static_cast<double>(Base().TextWidth(caption)));
    };
    widest = std::max(widest, widths.Of(slot, items.CaptionStamp(slot), item.hItem.text, measure));
}

void gList::Impl::FitHeadWidth(std::int32_t widest) {
    const std::int32_t twips = RoundToInt32(static_cast<double>(host::services().Screen().TwipsPerPixelX()));
    if (twips == 0) ThrowOverflow(widest);
    headWidth = std::max(ToInt32(std::int64_t{widest / twips} + cHeadMargin), cLeastHeadWidth);
}

void gList::BuiltList() {
    impl_->BuiltList();
}

} // namespace tvok
