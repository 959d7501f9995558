// The store of `gList`: how an item is found, and the operations on items.
#include "tvok/controls/propertylist/gList_impl.h"
#include "tvok/records/numeric.h"

namespace tvok {

// A row beyond `Count` finds what was there before the last rebuild, as far as the row array reaches, and one
// beyond that the subscript error. Hosts rely on both.
gList::Impl::Resolved gList::Impl::Resolve(std::int32_t index) const {
    if (index < 0) {
        const std::int64_t slot = -std::int64_t{index};
        if (slot > items.UpperBound()) return {};
        return {static_cast<std::int32_t>(slot), RowOf(static_cast<std::int32_t>(slot))};
    }
    if (index > items.UpperBound()) return {};
    return {rowIndex[index], index};
}

std::int32_t gList::Impl::RowOf(std::int32_t slot) const {
    if (state.Count < 1) return 0;
    if (rowOf.empty()) {
        rowOf.assign(static_cast<std::size_t>(items.UpperBound()) + 1, 0);
        for (std::int32_t row = state.Count; row >= 1; --row)
            rowOf[static_cast<std::size_t>(rowIndex[row])] = row;
    }
    const auto place = static_cast<std::size_t>(slot);
    return place < rowOf.size() ? rowOf[place] : 0; // an item that came after the rows has none
}

/// The slot that a key names or, with an empty one, an index. 0 also where the index leads nowhere.
std::int32_t gList::Impl::SlotOf(std::string_view key, std::int32_t index) {
    std::int32_t slot = 0;
    quietly([&] { slot = Resolve(key.empty() ? index : FindSlotByKey(key)).slot; });
    return slot;
}

std::int32_t gList::Impl::AddItem(const elistdata& record, std::int32_t index) {
    std::int32_t slot = 0;
    quietly([&] { slot = Resolve(index).slot; },
            [&] {
                if (slot == 0) slot = Resolve(FindSlotByKey(record.hItem.key)).slot;
            },
            [&] {
                if (slot == 0) slot = items.FirstFree();
                if (slot == 0) slot = items.Grow();
                items.Put(slot, record);
            },
            [&] { LoadPopList(items[slot].xbuttons); },
            [&] {
                if (IsAlive()) ApplyItemValue(slot);
            });
    return -slot;
}

void gList::Impl::SetData(const Variant& value, std::string_view key, std::int32_t index) {
    Resolved place;
    quietly([&] { place = Resolve(key.empty() ? index : FindSlotByKey(key)); },
            [&] {
                if (place.slot > 0) items.Contents(place.slot).nData = value;
            },
            // Also where nothing was found: the host hears of the blank record then.
            [&] { ApplyItemValue(place.slot); },
            [&] {
                if (place.row > 0) DrawRow(place.row);
            });
}

void gList::Impl::VarData(const Variant& value) {
    const std::int32_t slot = CurrentSlot();
    items.Contents(slot).nData = value;
    ApplyItemValue(slot);
    if (!IsAlive()) return;
    if (!OpenEditor()) DrawRow(state.ListIndex);
}

void gList::Impl::Clear(bool noRefresh) {
    items.FreeAll();
    state.Count = 0;
    state.ListIndex = 0;
    editorRow = 0;
    const auto hook = MS0HOOK;
    HideStrip();
    if (!hook) ThrowNoHook();
    hook->ScrollMax(0);
    hook->ScrollValue(0);
    hook->ScrollHMax(0);
    hook->ScrollHValue(0);
    if (!IsAlive() || !UserMode()) return;
    events.ExEditorHide(std::string());
    if (IsAlive() && !noRefresh) Refresh();
}

/// One step of the walk: the record goes to the host as it is stored. False where the control ended there.
bool gList::Impl::EnumItem(std::int32_t slot, std::int32_t action) {
    if (events.EnumItems.IsHeard()) {
        const auto loan = items.Lend(slot);
        events.EnumItems(loan.record(), action);
    }
    return IsAlive();
}

void gList::Impl::ReqEnumItems(std::int32_t action, std::string_view key) {
    const std::int32_t last = items.UpperBound();
    const std::string wanted(key); // a handler may end what the view looks at
    if (!wanted.empty()) {
        // Here case counts, unlike in the search that narrows the slots down.
        for (std::int32_t slot = items.NextWithKey(wanted); slot > 0 && slot <= last;
             slot = items.NextWithKey(wanted, slot + 1)) {
            if (items[slot].bDelete || items[slot].hItem.key != wanted) continue;
            if (!EnumItem(slot, action)) return;
            ApplyItemValue(slot);
            if (!IsAlive()) return;
        }
        return;
    }
    if (!events.EnumItems.IsHeard()) return;
    for (std::int32_t slot = 1; slot <= last; ++slot) {
        if (items[slot].bDelete) continue;
        const bool answered{events.EnumItems}; // one who only watches changes no value
        const Variant before = items[slot].nData;
        if (!EnumItem(slot, action)) return;
        if (answered && items[slot].nData != before) ApplyItemValue(slot);
        if (!IsAlive()) return;
    }
}

// The public operations.

std::int32_t gList::AddItem(const elistdata& NewValue, std::int32_t Index) {
    return impl_->AddItem(NewValue, Index);
}

void gList::RemoveItem(std::int32_t Index) {
    const std::int32_t slot = impl_->Resolve(Index).slot;
    if (slot <= 0) return;
    impl_->items.Free(slot);
    impl_->BuiltList();
}

std::int32_t gList::GetItem(elistdata& ItemValue, std::string_view key, std::int32_t Index) const {
    const std::int32_t slot = impl_->SlotOf(key, Index);
    if (slot > 0) ItemValue = impl_->items[slot];
    return -slot;
}

void gList::SetData(const Variant& NewValue, std::string_view key, std::int32_t Index) {
    impl_->SetData(NewValue, key, Index);
}

Variant gList::GetData(std::string_view key, std::int32_t Index) const {
    const std::int32_t slot = impl_->SlotOf(key, Index);
    return slot > 0 ? impl_->items[slot].nData : Variant();
}

void gList::ShowItem(std::string_view key) {
    quietly([&] { impl_->SetListIndex(impl_->Resolve(impl_->FindSlotByKey(key)).row); });
}

void gList::Clear(bool NoRefresh) {
    impl_->Clear(NoRefresh);
}

void gList::ReqEnumItems(std::int32_t ActionID, std::string_view key) {
    impl_->ReqEnumItems(ActionID, key);
}

elistdata gList::DefaultItem() const {
    return Impl::DefaultRecord();
}

std::int32_t gList::Count() const {
    return impl_->state.Count;
}

std::int32_t gList::ListIndex() const {
    return impl_->state.ListIndex;
}
void gList::ListIndex(std::int32_t row) {
    impl_->SetListIndex(row);
}

Variant gList::VarData() const {
    return impl_->state.ListIndex == 0 ? Variant() : impl_->items[impl_->CurrentSlot()].nData;
}
void gList::VarData(const Variant& value) {
    impl_->VarData(value);
}

} // namespace tvok
