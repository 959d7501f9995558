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
    if (!IsAlive()) return;
    const Hiding hiding(*this);
    events.ExEditorHide(key);
    HideStrip();
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

/// Gives the row of the slot `kept`, the first where it has several, and 0 where it has none.
std::int32_t gList::Impl::MakeRows(std::int32_t kept) {
    const bool isNewFont =
        widths.Use(host::ValueOf(*Base().Font()), host::services().Screen().TwipsPerPixelX());
    if (!plan.Make(items, items.Squeeze(), sorted, listMode == 1) && isNewFont) plan.ForgetWidths();
    std::vector<bool> isOpen(plan.KeyCount());
    rowOf.clear();
    state.Count = 0;
    for (const auto& group : plan.Groups()) {
        const bool hasRow = group.parent != 0;
        if (hasRow) AddRows({&group.parent, 1});
        if (hasRow && (items[group.parent].hItem.vflag & vflag::Collapsed) != 0) continue;
        AddRows(group.children);
        isOpen[static_cast<std::size_t>(group.key)] = true;
    }
    state.ListIndex = 0;
    const host::Component& base = Base();
    const auto measure = [&](const std::string& caption) {
        return RoundToInt32(static_cast<double>(base.TextWidth(caption)));
    };
    FitHeadWidth(plan.Widest(isOpen, [&](std::int32_t slot) { return widths.Of(slot, measure); }));
    const std::int32_t* const rows = rowIndex.data();
    const auto found = std::find(rows + 1, rows + state.Count + 1, kept);
    return kept > 0 && found != rows + state.Count + 1 ? static_cast<std::int32_t>(found - rows) : 0;
}

void gList::Impl::AddRows(std::span<const std::int32_t> slots) {
    const std::int32_t first = state.Count + 1;
    const std::int32_t count = ToInt32(std::int64_t{state.Count} + std::ssize(slots));
    // The bound grows in steps of six rows from where it was, as if the rows came one by one.
    if (const std::int32_t bound = rowIndex.UpperBound(); bound < count)
        rowIndex.Resize(ToInt32(bound + (std::int64_t{count} - bound + cRowGrowth) / (cRowGrowth + 1) *
                                            (cRowGrowth + 1)));
    std::ranges::copy(slots, rowIndex.data() + first);
    state.Count = count;
}

void gList::Impl::FitHeadWidth(std::int32_t widest) {
    const std::int32_t twips = RoundToInt32(static_cast<double>(host::services().Screen().TwipsPerPixelX()));
    if (twips == 0) throw OverflowError("gList: a pixel of no twips");
    headWidth = std::max(ToInt32(std::int64_t{widest / twips} + cHeadMargin), cLeastHeadWidth);
}

void gList::BuiltList() {
    impl_->BuiltList();
}

} // namespace tvok
